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
    void followProductCount();
    void rememberRows(bool goesOn);
    void setProductCount(int count);
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

    /// The grids' rows, with those cut off since the user began to edit the number of products: a count on
    /// its way from 12 by 1 to 15 must not cost rows 2 to 12.
    using Rows = std::vector<std::vector<std::string>>;
    std::array<Rows, 3> rowsBeforeCounting_;
    std::string countText_;
    bool counting_ = false;

    double keptLookup_ = 0; // lives as long as the window: solves follow on each other
    std::optional<Sensitivity> sensitivity_;
};

} // namespace vantore::inpol
