#pragma once

#include <optional>

#include "mathprog/TRANLP/method.h"
#include "mathprog/TRANLP/problem.h"
#include "mathprog/TRANLP/report.h"
#include "mathprog/matrix_grid.h"
#include "shell/module_frame.h"

namespace vantore::tranlp {

/// The transportation method: a matrix of unit costs with supplies in its last column and demands in its last
/// row, and the cheapest plan in a grid of the same shape.
class TRANLP : public ModuleFrame {
  public:
    explicit TRANLP(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void fillBlankCells() override;
    void solve() override;
    void printData() override;

  private:
    void addFields();
    void addSizeBoxes();
    void addGrids();
    void addDataButtons();
    void addResultButtons();

    int sources() const { return Grid->rows() - 2; }
    int sinks() const { return Grid->cols() - 2; }

    void shapeGrid(int newSources, int newSinks);
    void nameHeadings();
    void clearGrid();
    void typeKey(int code);
    void showLabels();
    void addSourceRow(bool asks);
    int insertPosition(bool asks);
    void renumberNames(int from);

    void putInCells(const ProblemFile& file);
    Problem readControls() const;

    void showPlan();
    void showReport();

    TextBox* txtProbLabel = nullptr;
    TextBox* txtRows = nullptr;
    TextBox* txtCols = nullptr;
    TextBox* txtRowLabel = nullptr;
    TextBox* txtColLabel = nullptr;
    DataGrid* Grid = nullptr;
    DataGrid* GridOut = nullptr;
    TextBox* txtTotalCost = nullptr;

    /// A solved problem and its plan.
    struct Solution {
        Problem problem;
        Plan plan;
    };
    std::optional<Solution> solution_;
    SizeBox* rowsBox_ = nullptr;
    SizeBox* columnsBox_ = nullptr;
};

} // namespace vantore::tranlp
