#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "demand/FORECAST/method.h"
#include "demand/FORECAST/problem.h"
#include "shell/module_frame.h"
#include "shell/row_count_box.h"

namespace vantore::forecast {

/// Time series forecasting: the user gives a series and a model, and sees how the model fits and what it
/// forecasts, as a report and as a plot.
class FORECAST : public ModuleFrame {
  public:
    explicit FORECAST(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override;
    bool mayBeWritten() override;

  private:
    void addFields();
    TextBox& addField(const std::string& name, const std::string& prompt);
    void addModels();
    void addSeries();
    void addButtons();
    void addOutcomeButtons();

    void changeRows(const std::function<void()>& operation);
    void checkSearchAnswer();
    void solve();
    void printData();
    void plot();

    Problem readControls() const;
    Model chosenModel() const;
    bool passes(const Problem& problem);
    ChartData askedChart();

    TextBox* txtLabel = nullptr;
    TextBox* txtNoPrds = nullptr;
    TextBox* txtIni = nullptr;
    TextBox* txtErrPrds = nullptr;
    TextBox* txtSearch = nullptr;
    TextBox* txtSearchInc = nullptr;
    TextBox* txtLvlCons = nullptr;
    TextBox* txtTrendCons = nullptr;
    TextBox* txtSeaCons = nullptr;
    TextBox* txtSeasLen = nullptr;
    TextBox* txtForPrds = nullptr;
    std::array<Option*, 5> models_{}; ///< in the order of their numbers
    DataGrid* grdSeries = nullptr;
    Chart* grfPlot = nullptr;
    Button* cmdPlot = nullptr;
    Button* cmdPrintTB = nullptr;

    std::unique_ptr<RowCountBox> countBox_; ///< txtNoPrds and the rows of grdSeries
    std::optional<Forecast> forecast_;      ///< of the last Solve since a file was opened
};

} // namespace vantore::forecast
