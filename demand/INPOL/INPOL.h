#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "demand/INPOL/method.h"
#include "demand/INPOL/plot.h"
#include "demand/INPOL/problem.h"
#include "demand/INPOL/sensitivity.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::inpol {

/// Inventory control: reorder point and periodic review policies for up to fifty products, their annual
/// costs, and how both answer to the service level.
class INPOL : public ModuleFrame {
  public:
    explicit INPOL(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;

  private:
    void addQuestions();
    TextBox& ask(FieldColumn column, const std::string& name, const std::string& prompt);
    void addTables();
    void addCountBox();
    void addOutcome();

    int productCount() const { return tables_[0].rows->grid().rowCount(); }
    void setProductCount(int count);
    void appendProduct(const GridRows& rows);

    void compute(Problem& problem, PrintLines& page);
    void plot();
    void askAndPlot();
    PlottedSystem askSystem();
    int askProduct();
    std::optional<PlottedCurve> askCurve(PlottedSystem system);

    Problem readControls() const;

    Fields<Problem> boxes_;
    TextBox* txtNoPrd = nullptr;

    /// The boxes with their prompts, in the order of the printed data.
    struct Question {
        std::string prompt;
        const TextBox* answer;
    };
    std::vector<Question> questions_;

    struct ShownTable {
        GridRows* rows = nullptr;
        GridColumns<Product> columns;
    };
    std::array<ShownTable, 3> tables_; // in the order of `productTables`
    SizeBox* countBox_ = nullptr;
    Chart* chtPlot = nullptr;

    double keptLookup_ = 0; // lives as long as the window: solves follow on each other
    std::optional<Sensitivity> sensitivity_;
};

} // namespace vantore::inpol
