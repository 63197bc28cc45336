#pragma once

#include <optional>
#include <string>

#include "mathprog/LNPROG/method.h"
#include "mathprog/LNPROG/problem.h"
#include "mathprog/matrix_grid.h"
#include "shell/module_frame.h"

namespace vantore::lnprog {

/// Linear programming by the simplex method: the user types a table of coefficients with a relation and a
/// right-hand side per row, and reads the basic and nonbasic variables of the optimum.
class Lnprog : public ModuleFrame {
  public:
    explicit Lnprog(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override;

    /// An untouched cell stays untouched, in the window as in the file.
    void fillBlankCells() override {}

  private:
    void addFields();
    void addButtons();
    void addReportButtons();

    std::optional<int> sizeToTake(TextBox& box, int shown, int most, const std::string& exceeded);
    void takeRows();
    void takeColumns();
    void showSizes();
    void shapeGrid(int constraints, int variables);
    void showHeadings();
    void fitColumn(int col);
    void showProblem(const Problem& problem);
    void typeKey(int code);
    void computeColumn();

    void solveProblem();
    void printData();

    Problem readControls() const;
    void readRow(Problem& problem, int row) const;

    int constraintsShown() const { return Grid->rows() - 2; }
    int variablesShown() const { return Grid->cols() - 3; }
    int relationColumn() const { return Grid->cols() - 2; }
    int rightSideColumn() const { return Grid->cols() - 1; }

    TextBox* txtTitle = nullptr;
    TextBox* txtRows = nullptr;
    TextBox* txtCols = nullptr;
    DataGrid* Grid = nullptr;

    TypedReshape typedRows_, typedColumns_;
    bool sizesHeld_ = true; ///< From Open until Resize the size boxes don't change the grid.
    Simplex simplex_;       ///< Its `basis` lasts from solve to solve.
};

} // namespace vantore::lnprog
