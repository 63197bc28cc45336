#include "simulator/SCSIM/plot.h"

#include <algorithm>
#include <cmath>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"

namespace vantore::scsim {

namespace {

constexpr int weeksPerYear = 52;
constexpr double daysPerWeek = 7;
constexpr double daysPerPlottedWeek = 6.923076923; // 360 / 52

struct PeriodWording {
    const char* pattern;
    const char* axis;
};

const PeriodWording& wordingOf(PlotPeriod period) {
    static constexpr std::array<PeriodWording, 3> wordings = {{{"DAILY", "Simulated time, days"},
                                                               {"WEEKLY", "Simulated time, weeks"},
                                                               {"MONTHLY", "Simulated time, months"}}};
    return wordings.at(static_cast<std::size_t>(period) - 1);
}

int pointsPerYear(PlotPeriod period) {
    if (period == PlotPeriod::Daily) return daysPerYear;
    return period == PlotPeriod::Weekly ? weeksPerYear : monthsPerYear;
}

double daysPerPoint(PlotPeriod period) {
    if (period == PlotPeriod::Daily) return 1;
    return period == PlotPeriod::Weekly ? daysPerPlottedWeek : daysPerMonth;
}

double sumOf(const DaySeries& series, int first, int last) {
    double total = 0;
    for (int day = first; day <= last; ++day) total += series(day);
    return finite(total);
}

/// The axes reach from the smallest to the largest plotted value, the vertical one at least down to 0.
void setAxes(ChartData& chart, const std::string& xLabel, double first, double last) {
    chart.x = {xLabel, first, last};
    chart.y = {"Units", 0, 0};
    for (const ChartSeries& series : chart.series)
        for (const ChartPoint& point : series.points) {
            chart.y.low = std::min(chart.y.low, point.y);
            chart.y.high = std::max(chart.y.high, point.y);
        }
}

/// Makes the series of one plot.
class Plotter {
  public:
    Plotter(const Days& days, PlotPeriod period, const Span& span)
        : days_(days), period_(period), span_(span) {}

    int firstPoint() const { return toInt16(std::ceil((span_.first - 1) * pointsPerYear(period_)) + 1); }
    int lastPoint() const { return toInt16(wholePart(span_.last * pointsPerYear(period_))); }

    /// The bounds of a point's days are rounded, so that each day belongs to one point.
    ChartSeries line(const std::string& name, int colour, const DaySeries& series) const {
        const double width = daysPerPoint(period_);
        ChartSeries result = {.name = name, .kind = SeriesKind::Line, .colour = colour, .points = {}};
        for (int point = firstPoint(); point <= lastPoint(); ++point) {
            const int first = toInt16((point - 1) * width + 1);
            const int last = std::min<int>(toInt16(point * width), span_.lastDay());
            result.points.push_back({static_cast<double>(point), sumOf(series, first, last) / width});
        }
        return result;
    }

    /// "Daily sales", or "Average daily sales" where a point is more than a day.
    std::string legend(const std::string& what) const {
        return (period_ == PlotPeriod::Daily ? "Daily " : "Average daily ") + what;
    }

    ChartSeries sales(Level level) const {
        return line(legend("sales"), colour::lightRed, days_.levels(level).demandDue);
    }
    ChartSeries inventory(Level level) const {
        return line("Average inventory", colour::lightBlue, days_.levels(level).onHand);
    }
    ChartSeries backOrders(Level level) const {
        return line(legend("back orders"), lightGreen, days_.levels(level).backOrders);
    }
    ChartSeries orders(Level level) const {
        ChartSeries bars = line("", colour::lightRed, days_.levels(level).orderQuantity);
        bars.kind = SeriesKind::Bars;
        return bars;
    }
    std::vector<ChartSeries> salesAndForecast(Level level, bool withDemand) const;
    std::vector<ChartSeries> ofLevel(Level level, Measure measure, bool withDemand) const;
    std::vector<ChartSeries> ofChannel(Measure measure) const;

  private:
    static constexpr int lightGreen = 10;
    static constexpr int white = 7;

    const Days& days_;
    PlotPeriod period_;
    Span span_;
};

std::vector<ChartSeries> Plotter::salesAndForecast(Level level, bool withDemand) const {
    std::vector<ChartSeries> series = {
        sales(level), line(legend("sales forecast"), colour::lightBlue, days_.levels(level).salesForecast)};
    if (level == Level::Retailer && withDemand)
        series.push_back(line(legend("customer demand"), white, days_.customerDemand));
    return series;
}

std::vector<ChartSeries> Plotter::ofLevel(Level level, Measure measure, bool withDemand) const {
    switch (measure) {
    case Measure::All: return {sales(level), inventory(level), backOrders(level)};
    case Measure::Sales: return salesAndForecast(level, withDemand);
    case Measure::Inventory: return {inventory(level)};
    case Measure::BackOrders: return {backOrders(level)};
    case Measure::Orders: break;
    }
    return {orders(level)};
}

std::vector<ChartSeries> Plotter::ofChannel(Measure measure) const {
    static constexpr PerLevel<const char*> names({"Retail", "Distributor", "Warehouse"});
    static constexpr PerLevel<int> colours({colour::lightRed, colour::lightBlue, lightGreen});
    std::vector<ChartSeries> series;
    for (const Level level : allLevels) {
        const LevelDays& at = days_.levels(level);
        const DaySeries& figures = measure == Measure::Sales       ? at.demandDue
                                   : measure == Measure::Inventory ? at.onHand
                                                                   : at.backOrders;
        series.push_back(line(names(level), colours(level), figures));
    }
    if (measure == Measure::Sales) series.push_back(line("Factory", colour::black, days_.production));
    return series;
}

std::string levelTitle(Level level, Measure measure) {
    static constexpr PerLevel<const char*> names({"RETAILER", "DISTRIBUTOR", "WAREHOUSE"});
    static constexpr PerLevel<const char*> orders({"RETAIL REPLENISHMENT ORDERS PLACED ON DISTRIBUTOR",
                                                   "DISTRIBUTOR REPLENISHMENT ORDERS PLACED ON WAREHOUSE",
                                                   "WAREHOUSE REPLENISHMENT ORDERS PLACED ON FACTORY"});
    const std::string name = names(level);
    switch (measure) {
    case Measure::All: return name + " PERFORMANCE";
    case Measure::Sales: return "DAILY " + name + " SALES";
    case Measure::Inventory: return "AVERAGE " + name + " INVENTORY";
    case Measure::BackOrders: return "AVERAGE " + name + " BACK ORDERS";
    case Measure::Orders: break;
    }
    return orders(level);
}

std::string channelTitle(Measure measure, PlotPeriod period) {
    if (measure == Measure::Inventory) return "SUPPLY CHANNEL INVENTORY";
    if (measure == Measure::BackOrders) return "SUPPLY CHANNEL BACK ORDERS";
    return period == PlotPeriod::Daily ? "DAILY SUPPLY CHANNEL SALES" : "AVERAGE DAILY SUPPLY CHANNEL SALES";
}

Level levelOf(Subject subject) {
    if (subject == Subject::Retailer) return Level::Retailer;
    return subject == Subject::Distributor ? Level::Distributor : Level::Warehouse;
}

} // namespace

std::optional<PlotPeriod> periodOf(std::string_view answer) {
    const double number = val(answer);
    for (const PlotPeriod period : {PlotPeriod::Daily, PlotPeriod::Weekly, PlotPeriod::Monthly})
        if (number == static_cast<int>(period)) return period;
    return std::nullopt;
}

bool isAvailable(Subject subject, Measure measure) {
    if (subject == Subject::Factory) return measure == Measure::Sales;
    return subject != Subject::Channel || (measure != Measure::All && measure != Measure::Orders);
}

ChartData performanceChart(const Days& days, Subject subject, Measure measure, PlotPeriod period,
                           const Span& span, bool withDemand) {
    if (!isAvailable(subject, measure)) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const Plotter plotter(days, period, span);
    ChartData chart;
    if (subject == Subject::Channel) {
        chart.title = channelTitle(measure, period);
        chart.series = plotter.ofChannel(measure);
    } else if (subject == Subject::Factory) {
        chart.title = "DAILY FACTORY SALES";
        chart.series = {plotter.line(plotter.legend("sales"), colour::lightRed, days.production)};
    } else {
        chart.title = levelTitle(levelOf(subject), measure);
        chart.series = plotter.ofLevel(levelOf(subject), measure, withDemand);
    }
    chart.title += " FOR " + yearsText(span, " THROUGH ");
    setAxes(chart, wordingOf(period).axis, plotter.firstPoint(), plotter.lastPoint());
    return chart;
}

ChartData demandChart(const Problem& problem, const DaySeries& customerDemand, PlotPeriod period) {
    const double width = period == PlotPeriod::Weekly ? daysPerWeek : daysPerPoint(period);
    const bool generated = problem.demandSource == DemandSource::Generated;
    const int last = toInt16(wholePart(problem.years * daysPerYear / width + 1));
    ChartSeries series = {.name = "", .kind = SeriesKind::Line, .colour = colour::lightRed, .points = {}};
    for (int point = 0; point <= last; ++point) {
        const int lastDay = toInt16(point * width);
        const int firstDay = lastDay - toInt16(width) + 1;
        series.points.push_back(
            {static_cast<double>(point), point == 0 ? 0 : sumOf(customerDemand, firstDay, lastDay)});
    }
    ChartData chart;
    chart.title = std::string(generated ? "STATISTICALLY GENERATED " : "SPECIFIED ") +
                  wordingOf(period).pattern + " DEMAND PATTERN";
    chart.series.push_back(std::move(series));
    setAxes(chart, wordingOf(period).axis, 0, last);
    return chart;
}

} // namespace vantore::scsim
