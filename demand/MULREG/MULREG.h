#pragma once

#include <optional>
#include <string>

#include "demand/MULREG/problem.h"
#include "demand/MULREG/report.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::mulreg {

/// Multiple regression: a linear equation for one of five variables on some of the others.
class MULREG : public ModuleFrame {
  public:
    explicit MULREG(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;

  private:
    void addFields();
    void addVariableBoxes();
    void addObservations();
    void addButtons();

    void transform();
    std::optional<int> columnToTransform();
    Observations throughWorkingFile(const Problem& problem);
    void plotData();
    std::optional<int> askColumn(const std::string& prompt);

    Problem readControls() const;

    Fields<Problem> boxes_;
    TextBox* txtNoObs = nullptr;
    Table<TextBox*, 1, columnCount> txtLabels;
    Table<TextBox*, 1, columnCount> txtTypes;
    DataGrid* grdObs = nullptr;
    SizeBox* countBox_ = nullptr;
    Chart* grfPlot = nullptr;
};

} // namespace vantore::mulreg
