#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "demand/INPOL/method.h"
#include "demand/INPOL/plot.h"
#include "demand/INPOL/problem.h"
#include "demand/INPOL/sensitivity.h"
#include "shell/module_frame.h"
#include "shell/row_count_box.h"

namespace vantore::inpol {

/// Inventory control: reorder point and periodic review policies for up to fifty products, their annual
/// costs, and how both answer to the service level.
class INPOL : public ModuleFrame {
  public:
    explicit INPOL(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override;
    void fillBlankCells() override;

  private:
    void addQuestions();
    void addGrids();
    void addDataButtons();
    void addOutcomeButtons();

    int productCount() const { return grdDemand->rowCount; }
    void appendProduct(DataGrid& grid);

    void solve();
    void compute(Problem& problem, PrintLines& page);
    void printData();
    void plot();
    void askAndPlot();
    PlottedSystem askSystem();
    int askProduct();
    std::optional<PlottedCurve> askCurve(PlottedSystem system);

    Problem readControls() const;

    TextBox* txtLabel = nullptr;
    TextBox* txtNoPrd = nullptr;
    TextBox* txtTimeFrame = nullptr;
    TextBox* txtJointOrder = nullptr;
    TextBox* txtServInd = nullptr;
    TextBox* txtSen = nullptr;
    TextBox* txtJointCost = nullptr;
    TextBox* txtCycleTime = nullptr;
    TextBox* txtOrderQuant = nullptr;
    DataGrid* grdDemand = nullptr;
    DataGrid* grdPrice = nullptr;
    DataGrid* grdMisc = nullptr;
    Chart* chtPlot = nullptr;

    /// The boxes with their prompts, in the order of the file.
    struct Question {
        std::string prompt;
        TextBox* answer;
    };
    std::vector<Question> questions_;

    std::array<DataGrid*, 3> grids_{}; // in the order of `productTables`

    std::unique_ptr<RowCountBox> countBox_;

    double keptLookup_ = 0; // lives as long as the window: solves follow on each other
    std::optional<Sensitivity> sensitivity_;
};

} // namespace vantore::inpol
