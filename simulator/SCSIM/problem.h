#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "shell/base/item_stream.h"
#include "shell/base/table.h"

namespace vantore::scsim {

/// One product in a supply channel of four levels: customers buy from the retailer, who orders from the
/// distributor, who orders from the warehouse, who orders from the factory. The factory makes whole lots from
/// materials that it buys without limit.
///
/// The year has 360 days, twelve months of 30, throughout. Times are in days, costs in $, shares in per cent.

constexpr int daysPerMonth = 30;
constexpr int monthsPerYear = 12;
constexpr int daysPerYear = daysPerMonth * monthsPerYear;
constexpr int leastYears = 1;
constexpr int mostYears = 20;

/// The levels that hold stock, from the customers upwards.
enum class Level { Retailer, Distributor, Warehouse };

constexpr std::size_t levelCount = 3;
constexpr std::array<Level, levelCount> allLevels = {Level::Retailer, Level::Distributor, Level::Warehouse};

/// One thing for each level that holds stock.
template <class T>
class PerLevel {
  public:
    constexpr PerLevel() = default;
    constexpr explicit PerLevel(const std::array<T, levelCount>& items) : items_(items) {}

    T& operator()(Level level) { return items_.at(static_cast<std::size_t>(level)); }
    constexpr const T& operator()(Level level) const { return items_.at(static_cast<std::size_t>(level)); }

  private:
    std::array<T, levelCount> items_{};
};

enum class DemandSource { Generated, Specified };
enum class ForecastMethod { None, ExponentialSmoothing, MovingAverage, Specified };
enum class Policy { None, ReorderPoint, PeriodicReview, StockToDemand };

/// Where the control parameters of a policy come from.
enum class Parameters { None, Calculated, Specified };

struct LevelData {
    double itemValue = 0;           ///< of a unit in inventory
    double orderFillingCost = 0;    ///< for each unit
    double orderProcessingCost = 0; ///< for each order placed
    double carryingCost = 0;        ///< per cent of the item's value a year
    double averageFillTime = 0;     ///< of an order of the level below: its lead time, but for the transport
    double fillTimeDeviation = 0;
    double inStockProbability = 0;
    double backOrderCost = 0; ///< for each unit

    ForecastMethod forecast = ForecastMethod::ExponentialSmoothing;
    double smoothingConstant = 0;
    double averagedDays = 0;
    double forecastFrequency = 0; ///< days between specified forecasts

    Policy policy = Policy::ReorderPoint;
    Parameters reorderParameters = Parameters::Calculated;
    double reorderQuantity = 0; ///< Q
    double reorderPoint = 0;    ///< ROP
    Parameters reviewParameters = Parameters::None;
    double orderInterval = 0; ///< T
    double targetLevel = 0;   ///< Max
    double targetDays = 0;    ///< of inventory
    double reviewTime = 0;
};

struct FactoryData {
    double productionCost = 0;
    double lotSize = 0;
    double orderFillingCost = 0; ///< kept with the problem; no report uses it
    double averageProductionTime = 0;
    double productionTimeDeviation = 0;
    double purchaseCost = 0;
};

/// Transport to a level from the one above it.
struct Lane {
    double cost = 0;
    double averageTime = 0;
    double timeDeviation = 0;
};

struct Problem {
    std::string title;
    double seed = 0;
    double years = 0; ///< length of the run
    double price = 0; ///< at which the retailer sells

    DemandSource demandSource = DemandSource::Generated; ///< not kept in the file
    double averageDemand = 0;                            ///< a day
    double demandDeviation = 0;
    double growth = 0; ///< per cent a year, of generated demand
    Table<double, 1, monthsPerYear> seasonalIndices;
    double profileGrowth = 0; ///< per cent a year, of specified demand
    Table<double, 1, daysPerYear> dayProfile;

    PerLevel<LevelData> levels;
    FactoryData factory;
    PerLevel<Lane> lanes; ///< by the level that they lead to
};

/// The letter that ends the names of a level's controls: R, D, W.
char suffixOf(Level level);

/// The letters of the lane to a level: DR, WD, FW.
std::string_view laneSuffixOf(Level level);

/// The least value of a field, to which a smaller one is set back; with a message that isn't empty the user
/// is told. The length of the run has limits of its own, leastYears and mostYears.
struct Limit {
    std::string_view control;
    double least;
    std::string_view message;
};

/// The limit of a control; nullptr when it has none.
const Limit* limitOf(std::string_view control);

/// The problem as the window would hold it: every value below its limit set to the limit, the length of the
/// run between its two.
Problem withinLimits(Problem problem);

/// Passes the items of a problem file in their order, each with the name of the control that holds it.
///
/// `Items` is told text(name, string), number(name, double), seasonalIndex(month, double),
/// dayDemand(day, double), option(name, group, choice) for a choice that excludes the others of its group,
/// spareOption and spareNumber alike for what is written and never read, and endLine().
template <class Record, class Items>
void passItems(Record& problem, Items& items);

/// Reads a problem file. InputPastEnd for a short file.
Problem read(ItemReader& reader);

void write(const Problem& problem, ItemWriter& writer);

// What follows is the order of the file.

namespace file_order {

template <class Record, class Items>
void passDemand(Record& problem, Items& items) {
    items.text("TitleBox", problem.title);
    items.endLine();
    items.number("Seed", problem.seed);
    items.number("SimLgth", problem.years);
    items.number("DemText", problem.averageDemand);
    items.number("SDText", problem.demandDeviation);
    items.number("GroText", problem.growth);
    items.number("txtPrice", problem.price);
    items.endLine();
    for (int month = 1; month <= monthsPerYear; ++month) {
        items.seasonalIndex(month, problem.seasonalIndices(month));
        items.endLine();
    }
    items.number("SpecGroText", problem.profileGrowth);
    items.endLine();
    for (int day = 1; day <= daysPerYear; ++day) {
        items.dayDemand(day, problem.dayProfile(day));
        items.endLine();
    }
}

template <class Data, class Items>
void passCosts(Data& data, const std::string& suffix, Items& items) {
    items.number("txtItemCost" + suffix, data.itemValue);
    items.number("txtHandling" + suffix, data.orderFillingCost);
    items.number("txtPurOrdProc" + suffix, data.orderProcessingCost);
    items.number("txtInvCarCost" + suffix, data.carryingCost);
    items.number("txtAvgFillTime" + suffix, data.averageFillTime);
    items.number("txtFillTimeSD" + suffix, data.fillTimeDeviation);
    items.number("txtServLvl" + suffix, data.inStockProbability);
    items.number("txtBOC" + suffix, data.backOrderCost);
    items.endLine();
}

template <class Data, class Items>
void passForecast(Data& data, const std::string& suffix, Items& items) {
    items.option("EPForcst" + suffix, data.forecast, ForecastMethod::ExponentialSmoothing);
    items.number("txtSmCons" + suffix, data.smoothingConstant);
    items.option("MAForcst" + suffix, data.forecast, ForecastMethod::MovingAverage);
    items.number("txtNoPeriods" + suffix, data.averagedDays);
    items.option("SpecForcst" + suffix, data.forecast, ForecastMethod::Specified);
    items.number("txtForFreq" + suffix, data.forecastFrequency);
    items.endLine();
}

/// The flag of specified T and Max stands in the file twice.
template <class Data, class Items>
void passPolicy(Data& data, const std::string& suffix, Items& items) {
    items.option("ReorderPoint" + suffix, data.policy, Policy::ReorderPoint);
    items.option("ROPCal" + suffix, data.reorderParameters, Parameters::Calculated);
    items.option("ROPSpec" + suffix, data.reorderParameters, Parameters::Specified);
    items.number("txtROPQuant" + suffix, data.reorderQuantity);
    items.number("txtROP" + suffix, data.reorderPoint);
    items.option("PeriodicReview" + suffix, data.policy, Policy::PeriodicReview);
    items.option("PRCal" + suffix, data.reviewParameters, Parameters::Calculated);
    items.option("PRSpec" + suffix, data.reviewParameters, Parameters::Specified);
    items.number("txtPROrdInt" + suffix, data.orderInterval);
    items.number("txtPRMaxLvl" + suffix, data.targetLevel);
    items.option("PRSpec" + suffix, data.reviewParameters, Parameters::Specified);
    items.option("StockToDemand" + suffix, data.policy, Policy::StockToDemand);
    items.number("txtSToD" + suffix, data.targetDays);
    items.number("txtStoDRevTime" + suffix, data.reviewTime);
    items.endLine();
}

template <class Data, class Items>
void passFactory(Data& factory, Items& items) {
    items.number("txtItemCostP", factory.productionCost);
    items.number("txtLotSize", factory.lotSize);
    items.number("txtHandlingP", factory.orderFillingCost);
    items.number("txtAvgProdTimeP", factory.averageProductionTime);
    items.number("txtProdTimeSDP", factory.productionTimeDeviation);
    items.number("txtPurCost", factory.purchaseCost);
    items.endLine();
}

/// A line that keeps a place for forecasts of the factory: the warehouse's, with the retailer's frequency.
template <class Record, class Items>
void passSpareForecast(Record& problem, Items& items) {
    auto& warehouse = problem.levels(Level::Warehouse);
    items.spareOption("EPForcstW", warehouse.forecast, ForecastMethod::ExponentialSmoothing);
    items.spareNumber("txtSmConsW", warehouse.smoothingConstant);
    items.spareOption("MAForcstW", warehouse.forecast, ForecastMethod::MovingAverage);
    items.spareNumber("txtNoPeriodsW", warehouse.averagedDays);
    items.spareOption("SpecForcstW", warehouse.forecast, ForecastMethod::Specified);
    items.spareNumber("txtForFreqR", problem.levels(Level::Retailer).forecastFrequency);
    items.endLine();
}

template <class Data, class Items>
void passLane(Data& lane, const std::string& suffix, Items& items) {
    items.number("txtTransCost" + suffix, lane.cost);
    items.number("txtAvgTrnsTime" + suffix, lane.averageTime);
    items.number("txtTrnsTimeSD" + suffix, lane.timeDeviation);
    items.endLine();
}

} // namespace file_order

template <class Record, class Items>
void passItems(Record& problem, Items& items) {
    file_order::passDemand(problem, items);
    for (const Level level : allLevels) {
        auto& data = problem.levels(level);
        const std::string suffix(1, suffixOf(level));
        file_order::passCosts(data, suffix, items);
        file_order::passForecast(data, suffix, items);
        file_order::passPolicy(data, suffix, items);
    }
    file_order::passFactory(problem.factory, items);
    file_order::passSpareForecast(problem, items);
    for (const Level level : allLevels)
        file_order::passLane(problem.lanes(level), std::string(laneSuffixOf(level)), items);
}

} // namespace vantore::scsim
