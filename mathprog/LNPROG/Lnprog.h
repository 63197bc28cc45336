#pragma once

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
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;

    /// An untouched cell stays untouched, in the window as in the file.
    void fillBlankCells() override {}

  private:
    void addFields();
    void addSizes();
    void addButtons();

    void shapeGrid(int constraints, int variables);
    void showHeadings();
    void fitColumns();
    void showProblem(const Problem& problem);
    void typeKey(int code);

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

    bool sizesHeld_ = true; ///< From Open until Resize the size boxes don't change the grid.
    Simplex simplex_;       ///< Its `basis` lasts from solve to solve.
};

} // namespace vantore::lnprog
