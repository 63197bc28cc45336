#include "simulator/SCSIM/report.h"

#include <array>
#include <string>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::scsim {

namespace {

constexpr double yearlyEnd = 18;
constexpr double periodEnd = 34;
constexpr double labelColumn = 40;
constexpr double lowFillColumn = 14;

constexpr const char* whole = "###,###,##0";
constexpr const char* decimals = "###,###,###.#0";
constexpr const char* wholeDollars = "$###,###,##0";
constexpr const char* dollars = "$###,###,###.#0";

constexpr double leastShownFill = 50; // per cent

/// Stands for a stock or sales of 0 where they are divided by.
constexpr double nearlyNothing = .00001;

/// A figure's yearly average and what it comes to over the period.
struct Amount {
    double yearly = 0;
    double period = 0;

    Amount operator*(double factor) const { return {finite(yearly * factor), finite(period * factor)}; }
    Amount operator/(double divisor) const { return {finite(yearly / divisor), finite(period / divisor)}; }
    Amount operator+(const Amount& other) const {
        return {finite(yearly + other.yearly), finite(period + other.period)};
    }
    Amount operator-(const Amount& other) const {
        return {finite(yearly - other.yearly), finite(period - other.period)};
    }
};

/// The words in which the levels' reports differ.
struct Wording {
    const char* name;
    const char* sales;
    const char* orderProcessing;
    const char* orderFilling;
    const char* transport; ///< the retailer has none
    const char* averageFill;
    const char* lowFill;
};

const Wording& wordingOf(Level level) {
    static constexpr const char* filled = "Average demand filled on request";
    static constexpr PerLevel<Wording> wordings({{
        {"RETAILER", "Retailer sales to customers, units", "Cost to process distributor orders",
         "Cost for handling customer orders", "", filled, filled},
        {"DISTRIBUTOR", "Distributor sales to retailer, units", "Cost to process warehouse orders ",
         "Cost for handling retailer orders", "Cost for transport to retailer", filled, filled},
        {"WAREHOUSE", "Warehouse sales to distributor, units", "Cost to process factory orders ",
         "Cost for handling distributor orders", "Cost for transport to distributor", filled,
         "Average demand on request"},
    }});
    return wordings(level);
}

std::string forecastLine(ForecastMethod method) {
    switch (method) {
    case ForecastMethod::ExponentialSmoothing: return " Forecasting method: Exponential smoothing";
    case ForecastMethod::MovingAverage: return " Forecasting method: Moving average";
    case ForecastMethod::Specified:
    case ForecastMethod::None: break;
    }
    return " Forecasting method: Specified forecast";
}

std::string policyLine(Policy policy) {
    switch (policy) {
    case Policy::ReorderPoint: return " Inventory control method: Reorder point";
    case Policy::PeriodicReview: return " Inventory control method: Periodic review";
    case Policy::StockToDemand: return " Inventory control method: Stock-to-demand";
    case Policy::None: break;
    }
    return " Inventory control method: None";
}

/// The page of a report, line by line: figures, then what they are.
class Page {
  public:
    PrintLines lines;

    void printHeadings(const std::string& section) {
        lines.line("*           Yearly       Simulated");
        lines.text("*          average          period").tab(labelColumn).text(section).endLine();
    }

    void printSection(const std::string& section) {
        lines.text("*").tab(labelColumn).text(section).endLine();
    }

    void print(const std::string& yearly, const std::string& period, const std::string& label) {
        lines.right(yearlyEnd, yearly).right(periodEnd, period);
        printLabel(label);
    }

    void printSingle(const std::string& figure, const std::string& label) {
        lines.right(yearlyEnd, figure);
        printLabel(label);
    }

    void printLabel(const std::string& label) { lines.tab(labelColumn).text(label).endLine(); }

    void printUnits(const Amount& amount, const std::string& label, const char* yearlyMask = whole) {
        print(format(amount.yearly, yearlyMask), format(amount.period, whole), label);
    }

    void printCost(const Amount& amount, const std::string& label) { printUnits(amount, label, decimals); }

    void printDollars(const Amount& amount, const std::string& label) {
        print(format(amount.yearly, dollars), format(amount.period, wholeDollars), label);
    }

    /// Each column by its own sign: a loss stands in parentheses, which are no part of the figure's column.
    void printResult(const Amount& amount, const std::string& label) {
        const auto printFigure = [this](double end, double value, const char* mask) {
            if (value < 0)
                lines.right(end, "(" + format(-value, mask)).text(")");
            else
                lines.right(end, format(value, mask));
        };
        printFigure(yearlyEnd, amount.yearly, dollars);
        printFigure(periodEnd, amount.period, wholeDollars);
        printLabel(label);
    }
};

/// The figures of a period, priced as the problem stands.
class Figures {
  public:
    Figures(const Problem& problem, const Summary& summary) : problem_(problem), summary_(summary) {}

    Amount demand() const { return amountOf(summary_.demand); }
    Amount made() const { return amountOf(summary_.production); }
    Amount forecast(Level level) const { return amountOf(sums(level).forecast); }
    Amount sold(Level level) const { return amountOf(sums(level).sales); }
    Amount orders(Level level) const { return amountOf(sums(level).orders); }
    Amount stockOuts(Level level) const { return amountOf(sums(level).stockOuts); }

    double dailyInventory(Level level) const { return summary_.perDay(sums(level).onHand); }
    double dailyBackOrders(Level level) const { return summary_.perDay(sums(level).backOrders); }
    double dailyOnOrder(Level level) const { return summary_.perDay(sums(level).onOrder); }
    double turnover(Level level) const;
    double filledOnRequest(Level level) const;

    Amount revenue() const { return sold(Level::Retailer) * problem_.price; }
    Amount materials() const { return made() * problem_.factory.purchaseCost; }
    Amount production() const { return made() * problem_.factory.productionCost; }
    Amount transportTo(Level level) const {
        return amountOf(sums(level).receipts) * problem_.lanes(level).cost;
    }
    Amount orderProcessing(Level level) const { return orders(level) * data(level).orderProcessingCost; }
    Amount orderFilling(Level level) const { return sold(level) * data(level).orderFillingCost; }
    Amount carrying(Level level) const;
    Amount backOrders(Level level) const { return stockOuts(level) * data(level).backOrderCost; }

    const LevelData& data(Level level) const { return problem_.levels(level); }

  private:
    const LevelSums& sums(Level level) const { return summary_.levels(level); }
    Amount amountOf(double sum) const { return {summary_.perYear(sum), sum}; }

    const Problem& problem_;
    const Summary& summary_;
};

double Figures::turnover(Level level) const {
    const double inventory = dailyInventory(level);
    return divide(sold(level).yearly, inventory == 0 ? nearlyNothing : inventory);
}

/// Per cent of a year's sales that weren't back-ordered.
double Figures::filledOnRequest(Level level) const {
    const double sales = sold(level).yearly;
    return finite((1 - divide(dailyBackOrders(level) * daysPerYear, sales == 0 ? nearlyNothing : sales)) *
                  100);
}

Amount Figures::carrying(Level level) const {
    const double inventory = dailyInventory(level);
    const Amount average = {inventory, inventory * summary_.years};
    return average * data(level).itemValue * data(level).carryingCost / 100;
}

void printFill(Page& page, double filled, const Wording& wording) {
    if (filled < leastShownFill) {
        page.lines.tab(lowFillColumn).text(" <50%");
        return page.printLabel(wording.lowFill);
    }
    page.lines.right(yearlyEnd, format(filled, decimals)).text("%");
    page.printLabel(wording.averageFill);
}

void printPerformance(Page& page, const Figures& figures, Level level) {
    const Wording& wording = wordingOf(level);
    const bool warehouse = level == Level::Warehouse;
    if (level == Level::Retailer) page.printUnits(figures.demand(), "Demand, units");
    page.printUnits(figures.forecast(level), "Sales Forecast, units");
    page.printUnits(figures.sold(level), wording.sales);
    page.printSingle(format(figures.dailyInventory(level), decimals), "Average inventory on hand, units");
    page.printSingle(format(figures.turnover(level), decimals), "Inventory turnover ratio");
    page.printSingle(format(figures.dailyBackOrders(level), warehouse ? decimals : whole),
                     "Daily back orders, units");
    printFill(page, figures.filledOnRequest(level), wording);
    page.printUnits(figures.stockOuts(level), "Back order occurrences", warehouse ? decimals : whole);
    page.printSingle(format(figures.dailyOnOrder(level), whole), "Daily quantity on order, units");
    page.printUnits(figures.orders(level), "Number of orders placed");
}

/// The four costs that every level has; gives their total.
Amount printLevelCosts(Page& page, const Figures& figures, Level level) {
    const Wording& wording = wordingOf(level);
    page.printCost(figures.orderProcessing(level), wording.orderProcessing);
    page.printCost(figures.orderFilling(level), wording.orderFilling);
    page.printCost(figures.carrying(level), "Cost for carrying inventory");
    page.printCost(figures.backOrders(level), "Cost for back orders");
    return figures.orderProcessing(level) + figures.orderFilling(level) + figures.carrying(level) +
           figures.backOrders(level);
}

void printRetailerFinances(Page& page, const Figures& figures) {
    page.printDollars(figures.revenue(), "Retailer sales");
    const Amount costs = printLevelCosts(page, figures, Level::Retailer);
    page.printCost(costs, "Total cost");
    page.printDollars(figures.revenue() - costs, "Profit contribution");
}

void printSupplierFinances(Page& page, const Figures& figures, Level level) {
    const Amount costs = printLevelCosts(page, figures, level);
    const Amount transport =
        figures.transportTo(level == Level::Distributor ? Level::Retailer : Level::Distributor);
    page.printCost(transport, wordingOf(level).transport);
    page.printDollars(costs + transport, "Total cost");
}

void printLevel(Page& page, const Figures& figures, Level level) {
    page.lines.line(forecastLine(figures.data(level).forecast));
    page.lines.line(policyLine(figures.data(level).policy)).line("");
    page.printHeadings(" PERFORMANCE STATISTICS");
    printPerformance(page, figures, level);
    page.printSection(" FINANCIAL PERFORMANCE");
    if (level == Level::Retailer)
        printRetailerFinances(page, figures);
    else
        printSupplierFinances(page, figures, level);
}

void printFactory(Page& page, const Figures& figures) {
    const Amount transport = figures.transportTo(Level::Warehouse);
    page.printHeadings(" PERFORMANCE STATISTICS");
    page.printUnits(figures.made(), "Factory sales to warehouse, units");
    page.printSection(" FINANCIAL PERFORMANCE");
    page.printCost(figures.materials(), "Cost of purchased materials");
    page.printCost(figures.production(), "Cost of production");
    page.printCost(transport, "Cost for transport to warehouse");
    page.printDollars(figures.materials() + figures.production() + transport, "Total cost");
}

/// One cost of all levels under a heading of its own.
struct CostBlock {
    const char* heading;
    Amount (Figures::*cost)(Level) const;
    PerLevel<const char*> labels;
};

/// Gives the total of the three costs.
Amount printBlock(Page& page, const Figures& figures, const CostBlock& block) {
    Amount total;
    page.lines.line("");
    page.printLabel(block.heading);
    for (const Level level : allLevels) {
        const Amount cost = (figures.*block.cost)(level);
        page.printCost(cost, block.labels(level));
        total = total + cost;
    }
    return total;
}

void printChannel(Page& page, const Figures& figures) {
    static constexpr PerLevel<const char*> levelNames({"  Retailer", "  Distributor", "  Warehouse"});
    static constexpr std::array<CostBlock, 5> blocks = {{
        {"Transportation costs:", &Figures::transportTo,
         PerLevel<const char*>(
             {"  Distributor to retailer", "  Warehouse to distributor", "  Factory to warehouse"})},
        {"Sales order handling cost for:", &Figures::orderFilling,
         PerLevel<const char*>({"  Customer orders", "  Retailer orders", "  Distributor orders"})},
        {"Order processing cost for:", &Figures::orderProcessing,
         PerLevel<const char*>({"  Orders to distributor", "  Orders to warehouses", "  Orders to factory"})},
        {"Inventory costs", &Figures::carrying, levelNames},
        {"Back order costs", &Figures::backOrders, levelNames},
    }};
    page.printHeadings(" FINANCIAL PERFORMANCE");
    Amount result = figures.revenue() - figures.materials();
    page.printCost(figures.revenue(), "Revenue");
    page.printCost(figures.materials(), "Cost of purchased goods");
    page.printCost(result, "Gross margin");
    page.lines.line("");
    page.printCost(figures.production(), "Production cost");
    result = result - figures.production();
    for (const CostBlock& block : blocks) result = result - printBlock(page, figures, block);
    page.lines.line("");
    page.printResult(result, "Net profit contribution");
}

std::string titleOf(Subject subject) {
    switch (subject) {
    case Subject::Channel: return "* SUPPLY CHANNEL REPORT FOR SIMULATED ";
    case Subject::Retailer: return "* RETAILER REPORT FOR SIMULATED ";
    case Subject::Distributor: return "* DISTRIBUTOR REPORT FOR SIMULATED ";
    case Subject::Warehouse: return "* WAREHOUSE REPORT FOR SIMULATED ";
    case Subject::Factory: break;
    }
    return "* FACTORY REPORT FOR SIMULATED ";
}

} // namespace

std::string yearsText(const Span& span, const std::string& until) {
    if (span.years() > 1) return joined(joined("YEARS ", span.first) + until, span.last);
    return joined("YEAR ", span.first);
}

PrintLines reportOf(const Problem& problem, const Days& days, Subject subject, const Span& span) {
    const Summary summary = summaryOf(days, span);
    const Figures figures(problem, summary);
    Page page;
    page.lines.line(titleOf(subject) + yearsText(span, subject == Subject::Retailer ? " THROUGH " : " TO "));
    switch (subject) {
    case Subject::Channel: printChannel(page, figures); break;
    case Subject::Retailer: printLevel(page, figures, Level::Retailer); break;
    case Subject::Distributor: printLevel(page, figures, Level::Distributor); break;
    case Subject::Warehouse: printLevel(page, figures, Level::Warehouse); break;
    case Subject::Factory: printFactory(page, figures); break;
    }
    return page.lines;
}

} // namespace vantore::scsim
