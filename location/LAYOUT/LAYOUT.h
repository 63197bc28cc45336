#pragma once

#include "location/LAYOUT/problem.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::layout {

/// Product layout in a warehouse: ranks the products for placement, nearest the dock first, and tells the
/// space that each needs.
class LAYOUT : public ModuleFrame {
  public:
    explicit LAYOUT(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;

  private:
    void addControls();
    void addRules();

    Option& optionOf(Rule rule) const;
    Rule rule() const;
    Problem readControls() const;

    TextBox* txtLabel = nullptr;
    Option* optPop = nullptr;
    Option* optSize = nullptr;
    Option* optCPO = nullptr;
    DataGrid* Grid = nullptr;
    GridColumns<Product> products_;
};

} // namespace vantore::layout
