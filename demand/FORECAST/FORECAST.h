#pragma once

#include <array>
#include <optional>

#include "demand/FORECAST/method.h"
#include "demand/FORECAST/problem.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::forecast {

/// Time series forecasting: the user gives a series and a model, and sees how the model fits and what it
/// forecasts, as a report and as a plot.
class FORECAST : public ModuleFrame {
  public:
    explicit FORECAST(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    bool mayBeWritten() override;
    void solve() override;
    void printData() override;

  private:
    void addFields();
    void addModels();
    void addSeries();
    void addButtons();

    void checkSearchAnswer(const TextBox& box);
    void plot();

    void forgetForecast();
    Problem readControls() const;
    Model chosenModel() const;
    bool passes(const Problem& problem);
    ChartData askedChart();

    Fields<Problem> boxes_;
    GridColumns<Period> periods_;
    TextBox* txtNoPrds = nullptr;
    std::array<Option*, 5> models_{}; ///< in the order of their numbers
    DataGrid* grdSeries = nullptr;
    SizeBox* countBox_ = nullptr; ///< txtNoPrds and the rows of grdSeries
    Chart* grfPlot = nullptr;
    Button* cmdPlot = nullptr;

    std::optional<Forecast> forecast_; ///< of the last Solve since a file was opened
};

} // namespace vantore::forecast
