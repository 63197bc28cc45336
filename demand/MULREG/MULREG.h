#pragma once

#include <memory>
#include <optional>

#include "demand/MULREG/problem.h"
#include "demand/MULREG/report.h"
#include "shell/module_frame.h"
#include "shell/row_count_box.h"

namespace vantore::mulreg {

/// Multiple regression: a linear equation for one of five variables on some of the others.
class MULREG : public ModuleFrame {
  public:
    explicit MULREG(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override;
    void fillBlankCells() override;

  private:
    void addFields();
    void addVariableBoxes();
    void addGrid();
    void addButtons();
    void addOutcome();

    void transform();
    std::optional<int> columnToTransform();
    void solve();
    Observations throughWorkingFile(const Problem& problem);
    void printData();
    void plotData();
    std::optional<int> askColumn(const std::string& prompt);

    Problem readControls() const;

    TextBox* txtLabel = nullptr;
    TextBox* txtNoObs = nullptr;
    TextBox* txtFenter = nullptr;
    TextBox* txtFleave = nullptr;
    TextBox* txtStepwise = nullptr;
    TextBox* txtErrorAnalysis = nullptr;
    Table<TextBox*, 1, columnCount> txtLabels;
    Table<TextBox*, 1, columnCount> txtTypes;
    DataGrid* grdObs = nullptr;
    Chart* grfPlot = nullptr;
    std::unique_ptr<RowCountBox> countBox_;
};

} // namespace vantore::mulreg
