#pragma once

#include "shell/base/table.h"
#include "simulator/SCSIM/problem.h"

namespace vantore::scsim {

/// Days are numbered from the start of the first year that is measured: days 1 to 360 are year 1. A year of
/// warming up goes before, days -359 to 0.
constexpr int firstDay = 1 - daysPerYear;
constexpr int lastDayOfTables = 9000;

/// One figure for each day; SubscriptOutOfRange beyond day 9000.
using DaySeries = Table<double, -daysPerYear, lastDayOfTables>;

/// What happened at one level, in units but for `orderCount`.
struct LevelDays {
    DaySeries demandDue; ///< orders that reach the level, its sales
    DaySeries receipts;
    DaySeries filled;        ///< shipped
    DaySeries onHand;        ///< after the day's filling
    DaySeries backOrders;    ///< after the day's filling
    DaySeries onOrder;       ///< after the day's ordering
    DaySeries stockOut;      ///< of the day's demand beyond the stock
    DaySeries salesForecast; ///< for the day
    DaySeries orderQuantity; ///< ordered from the level above
    DaySeries orderCount;
};

struct Days {
    DaySeries customerDemand;
    PerLevel<LevelDays> levels;
    DaySeries production; ///< completed by the factory
};

} // namespace vantore::scsim
