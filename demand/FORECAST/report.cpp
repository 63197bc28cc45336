#include "demand/FORECAST/report.h"

#include "shell/base/number_text.h"

namespace vantore::forecast {

namespace {

void printConstants(PrintLines& page, Model model, const Constants& constants) {
    page.text(" Level sm. const. = " + format(constants.level, "##.#0"));
    if (hasTrend(model)) page.text("  Trend sm. const. = " + format(constants.trend, "##.#0"));
    if (smoothsSeasons(model)) page.text("  Seasonal sm. const. = " + format(constants.seasonal, "##.#0"));
    page.endLine();
}

void printHead(PrintLines& page, const Forecast& forecast) {
    const Model model = forecast.setting.model;
    page.line("* TIME SERIES FORECASTING").line("* Curve fitting and model validation").line("");
    if (model == Model::Decomposition)
        page.line(" TREND EQUATION: " + format(forecast.line.intercept, "##,###,###.#0") + " +" +
                  format(forecast.line.slope, "##,###,###.###0") + "T")
            .line("");
    page.line(" MODEL TYPE: " + nameOf(model));
    if (model != Model::Decomposition) printConstants(page, model, forecast.constants);
    page.line(" Prd Period                                                    Sea-");
    page.line(" no. label----------        Actual     Forecast       Trend   sonal        Error");
}

void printFit(PrintLines& page, const Problem& problem, const Forecast& forecast) {
    const Series& series = forecast.series;
    for (long long t = forecast.setting.initialPeriods + 1; t <= forecast.setting.dataPeriods; ++t) {
        page.right(5, format(static_cast<double>(t), "##0")).tab(6).text(problem.periods(t).label);
        page.right(35, format(series.y(t), "##,###,###.#0"));
        page.right(48, format(series.fitted(t), "##,###,###.#0"));
        page.right(60, format(series.trend(t), "#,###,###.#0"));
        page.right(68, format(series.seasonal(t), "###.#0"));
        page.right(81, format(series.error(t), "##,###,###.#0")).endLine();
    }
}

void printForecast(PrintLines& page, const Forecast& forecast) {
    const long long first = forecast.setting.dataPeriods + 1;
    const long long last = forecast.setting.lastForecast();
    const auto number = [](long long period) { return defaultText(static_cast<double>(period)); };
    page.line("").line("* THE FORECAST");
    page.line(" MAD = " + format(forecast.errors.mad, "###,###.#0") +
              " BIAS = " + format(forecast.errors.bias, "###,###.#0") +
              " RMSE = " + format(forecast.errors.rmse, "###,###.#0"));
    if (forecast.setting.forecastPeriods == 1)
        page.line(" The forecast for period " + number(first) + " is:");
    else
        page.line(" The forecasts for periods " + number(first) + " to " + number(last) + " are:");
    page.line(" Period        Forecast");
    for (long long t = first; t <= last; ++t) {
        const double value = forecast.series.fitted(t);
        page.right(6, format(static_cast<double>(t), "#####0"))
            .right(24, format(value, "###,###,###.#0"))
            .endLine();
    }
}

std::string longNameOf(Model model) {
    switch (model) {
    case Model::Level: return "Exponential smoothing, Level only";
    case Model::LevelTrend: return "Exponential smoothing, Level-Trend";
    case Model::LevelSeasonal: return "Exponential smoothing, Level-Seasonal";
    case Model::LevelTrendSeasonal: return "Exponential smoothing, Level-Trend-Seasonal";
    default: return nameOf(model);
    }
}

} // namespace

PrintLines reportOf(const Problem& problem, const Forecast& forecast) {
    PrintLines page;
    printHead(page, forecast);
    printFit(page, problem, forecast);
    printForecast(page, forecast);
    return page;
}

PrintLines dataLines(const Problem& problem) {
    PrintLines page;
    page.line("").line("                           FORECASTING DATA").line("");
    page.line("Problem label: " + problem.label);
    page.line(joined("Number of data periods: ", problem.dataPeriods));
    page.line(joined("Periods used for model initialization: ", problem.initialPeriods));
    page.line(joined("Number of periods used to compute error statistics: ", problem.errorPeriods));
    page.line("Search for best smoothing constant (Y/N)? " + problem.search);
    page.line(joined("Search increment: ", problem.searchIncrement));
    page.line(joined("Level smoothing constant: ", problem.levelConstant));
    page.line(joined("Trend smoothing constant: ", problem.trendConstant));
    page.line(joined("Seasonal smoothing constant: ", problem.seasonalConstant));
    page.line(joined("Seasonal length (in periods): ", problem.seasonalLength));
    page.line(joined("Number of periods to be forecast: ", problem.forecastPeriods));
    page.line("Type of forecasting model: " + longNameOf(problem.model));
    page.line("Prd.                     Time series").line(" no. Period label        data, units");
    for (int t = 1; t <= problem.dataPeriods; ++t) {
        const Period& period = problem.periods(t);
        page.right(5, format(t, "##0")).tab(6).text(period.label);
        page.right(37, format(period.value, "###,###,###.##0")).endLine();
    }
    return page;
}

} // namespace vantore::forecast
