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
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void fillBlankCells() override;
    void computeColumn() override;
    void solve() override;
    void printReport() override;
    void printData() override;

  private:
    void addFields();
    void addSizes();
    void addObjective();
    void addMatrix();
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
    void shape(int rows, int cols);
    void cellKey(int code);
    void cycleType(int row, int col);
    void showLabels();

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

    SizeBox* rowsBox_ = nullptr;
    SizeBox* columnsBox_ = nullptr;
};

} // namespace vantore::miprog
