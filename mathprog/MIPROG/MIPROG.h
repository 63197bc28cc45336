#pragma once

#include "mathprog/MIPROG/problem.h"
#include "mathprog/matrix_grid.h"
#include "shell/module_frame.h"

namespace vantore::miprog {

/// Integer programming: the window collects a mixed integer linear program, hands it to the solver program
/// and shows what that reports.
class MIPROG : public ModuleFrame {
  public:
    explicit MIPROG(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override;
    void fillBlankCells() override;

  private:
    void addFields();
    void addObjective();
    void addGrid();
    void addButtons();

    // The grid: constraints 1 to m, the type row and the objective row; variables 1 to n, relation and
    // right-hand side.
    int m() const { return Grid->rows() - 3; }
    int n() const { return Grid->cols() - 3; }
    int typeRow() const { return m() + 1; }
    int objectiveRow() const { return m() + 2; }
    int relationColumn() const { return n() + 1; }
    int rhsColumn() const { return n() + 2; }

    void showHeadings();
    void fitColumns();
    void showSizes();
    void sizeTyped(TextBox& box, int most, const std::string& what);
    void reshapeTo(const TextBox& box, int size);
    void shape(int rows, int cols);
    void cellKey(int code);
    void cycleType(int row, int col);
    void showLabels();
    void labelTyped(const TextBox& box);
    void arithmeticOnColumn();

    void solve();
    void printReport();
    void printData();

    void putProblem(const Problem& problem);
    Problem readControls() const;

    TextBox* txtTitle = nullptr;
    TextBox* txtRows = nullptr;
    TextBox* txtCols = nullptr;
    TextBox* txtConLabel = nullptr;
    TextBox* txtVarLabel = nullptr;
    Option* optMax = nullptr;
    Option* optMin = nullptr;
    DataGrid* Grid = nullptr;

    TypedReshape reshapeRows_, reshapeColumns_;
    bool settingBoxes_ = false; // a box shows what the window has, which is no change by the user
};

} // namespace vantore::miprog
