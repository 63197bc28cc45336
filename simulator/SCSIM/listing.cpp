#include "simulator/SCSIM/listing.h"

#include <string>

#include "shell/base/number_text.h"

namespace vantore::scsim {

namespace {

constexpr double titleColumn = 31;
constexpr double labelColumn = 20;
constexpr int indexPairs = 4;
constexpr double indexPairWidth = 16;
constexpr double dayEnd = 6;
constexpr std::size_t profileCell = 6;
constexpr double profileStep = 7;

/// Each level's heading and whose orders it fills.
struct Wording {
    const char* heading;
    const char* customer;
    const char* customerWithin; ///< in the middle of a label
    const char* backOrderCost;
};

constexpr PerLevel<Wording> wordings({{
    {"Retailer/Level 1", "Customer", "customer", "Back order cost, $/unit"},
    {"Distributor/Level 2", "Retailer", "retailer", "Backorder cost, $/unit"},
    {"Warehouse/Level 3", "Distributor", "distributor", "Backorder cost, $/unit"},
}});

class Listing {
  public:
    PrintLines lines;

    void printBlock(const std::string& heading) { lines.line("").line(heading); }
    void print(double value, const std::string& label) {
        lines.text(defaultText(value)).tab(labelColumn).text(label).endLine();
    }

    void printDemand(const Problem& problem);
    void printLevel(const LevelData& data, Level level);
    void printLane(const Lane& lane, const std::string& heading);

  private:
    void printIndices(const Problem& problem);
    void printProfile(const Problem& problem);
    void printItemData(const LevelData& data, Level level);
    void printForecast(const LevelData& data);
    void printPolicy(const LevelData& data);
};

void Listing::printDemand(const Problem& problem) {
    printBlock("Customer demand pattern");
    if (problem.demandSource == DemandSource::Specified) {
        lines.line("Specify daily demand");
        print(problem.profileGrowth, "Annual growth increment, %");
        return printProfile(problem);
    }
    lines.line("Generate daily demand");
    print(problem.averageDemand, "Average daily demand, units");
    print(problem.demandDeviation, "Standard deviation of daily demand, units");
    print(problem.growth, "Annual demand growth increment, %");
    printIndices(problem);
}

/// Four quarters side by side, a month a line.
void Listing::printIndices(const Problem& problem) {
    constexpr int monthsPerPair = monthsPerYear / indexPairs;
    lines.line("Monthly seasonal indices");
    const auto printPairs = [this](const auto& month, const auto& index) {
        for (int pair = 0; pair < indexPairs; ++pair) {
            const double end = (pair + 1) * indexPairWidth;
            lines.right(end - indexPairWidth / 2, month(pair)).right(end, index(pair));
        }
        lines.endLine();
    };
    printPairs([](int) { return std::string("Month"); }, [](int) { return std::string("Index"); });
    for (int row = 1; row <= monthsPerPair; ++row) {
        const auto monthOf = [row](int pair) { return pair * monthsPerPair + row; };
        printPairs([&](int pair) { return std::to_string(monthOf(pair)); },
                   [&](int pair) { return fitted(problem.seasonalIndices(monthOf(pair)), 7); });
    }
}

void Listing::printProfile(const Problem& problem) {
    const auto cell = [](double value) {
        const std::string text = format(value, "#,###,##0");
        return text.size() > profileCell ? std::string(profileCell, '*') : text;
    };
    lines.line("Monthly specified demand").text("Month");
    for (int month = 1; month <= monthsPerYear; ++month)
        lines.right(dayEnd + month * profileStep, std::to_string(month));
    lines.endLine().line("Day");
    for (int day = 1; day <= daysPerMonth; ++day) {
        lines.right(dayEnd, std::to_string(day));
        for (int month = 1; month <= monthsPerYear; ++month)
            lines.right(dayEnd + month * profileStep,
                        cell(problem.dayProfile((month - 1) * daysPerMonth + day)));
        lines.endLine();
    }
}

void Listing::printLevel(const LevelData& data, Level level) {
    printBlock(wordings(level).heading);
    printItemData(data, level);
    printForecast(data);
    printPolicy(data);
}

void Listing::printItemData(const LevelData& data, Level level) {
    const Wording& wording = wordings(level);
    const std::string customer = wording.customer;
    lines.line("Product item data");
    print(data.itemValue, "Item value in inventory, $/unit");
    print(data.orderFillingCost, customer + " order filling cost, $/unit");
    print(data.orderProcessingCost, "Purchase order processing cost, $/order");
    print(data.carryingCost, "Inventory carrying cost, %/year");
    print(data.averageFillTime, std::string("Average ") + wording.customerWithin + " order fill time, days");
    print(data.fillTimeDeviation, customer + " order fill time standard deviation, days");
    print(data.inStockProbability, "In-stock probability, %");
    print(data.backOrderCost, wording.backOrderCost);
}

void Listing::printForecast(const LevelData& data) {
    lines.line("Forecasting method");
    switch (data.forecast) {
    case ForecastMethod::ExponentialSmoothing:
        lines.line("Exponential smoothing");
        return print(data.smoothingConstant, "Smoothing constant");
    case ForecastMethod::MovingAverage:
        lines.line("Moving average");
        return print(data.averagedDays, "Number of periods");
    case ForecastMethod::Specified:
    case ForecastMethod::None: break;
    }
    lines.line("Specified forecast");
    print(data.forecastFrequency, "Forecast frequency, days");
}

void Listing::printPolicy(const LevelData& data) {
    const auto printParameters = [this](Parameters parameters, const std::string& names) {
        const bool calculated = parameters == Parameters::Calculated;
        lines.line(calculated ? "Calculate inventory control parameters " + names
                              : "Specify inventory control parameters");
    };
    lines.line("Reorder policy");
    switch (data.policy) {
    case Policy::ReorderPoint:
        lines.line("Reorder point control method");
        printParameters(data.reorderParameters, "(Q, ROP)");
        print(data.reorderQuantity, "Reorder quantity (Q), units");
        return print(data.reorderPoint, "Reorder point quantity (ROP), units");
    case Policy::PeriodicReview:
        lines.line("Periodic review control method");
        printParameters(data.reviewParameters, "(T, Max)");
        print(data.orderInterval, "Order review interval (T), days");
        return print(data.targetLevel, "Target level (Max), units");
    case Policy::StockToDemand:
        lines.line("Stock-to-demand control method");
        print(data.targetDays, "Target days of inventory");
        return print(data.reviewTime, "Review time in days");
    case Policy::None: return;
    }
}

void Listing::printLane(const Lane& lane, const std::string& heading) {
    lines.line(heading);
    print(lane.cost, "Transport cost, $/unit");
    print(lane.averageTime, "Average time in-transit, days");
    print(lane.timeDeviation, "Transit time standard deviation, days");
}

} // namespace

PrintLines listingOf(const Problem& problem) {
    Listing listing;
    listing.lines.tab(titleColumn).text("SIMULATION DATABASE").endLine();
    listing.lines.line("").line("Title: " + problem.title);
    listing.printBlock("Initialization");
    listing.print(problem.seed, "Seed value");
    listing.print(problem.years, "Length of simulation, years");
    listing.print(problem.price, "Selling price, $/unit");
    listing.printDemand(problem);
    for (const Level level : allLevels) listing.printLevel(problem.levels(level), level);
    listing.printBlock("Factory/Source");
    const FactoryData& factory = problem.factory;
    listing.print(factory.productionCost, "Production cost, $/unit");
    listing.print(factory.lotSize, "Minimum production lot size, units");
    listing.print(factory.orderFillingCost, "Warehouse order filling cost, $/unit");
    listing.print(factory.averageProductionTime, "Average production time, days");
    listing.print(factory.productionTimeDeviation, "Production time standard deviation, days");
    listing.print(factory.purchaseCost, "Purchase cost, $/unit");
    listing.printBlock("Transportation");
    listing.printLane(problem.lanes(Level::Retailer), "Transport between Distributor and Retailer");
    listing.printLane(problem.lanes(Level::Distributor), "Transport between Warehouse and Distributor");
    listing.printLane(problem.lanes(Level::Warehouse), "Transport between Factory and Warehouse");
    return listing.lines;
}

} // namespace vantore::scsim
