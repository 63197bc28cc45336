#pragma once

#include "simulator/SCSIM/days.h"

namespace vantore::scsim {

/// The years from the start of year `first` to the end of year `last`.
struct Span {
    double first = 1;
    double last = 1;

    double years() const { return last - first + 1; }
    int firstDay() const;
    int lastDay() const;
};

/// Sums over the days of a span, each day's figure without its fraction.
struct LevelSums {
    double forecast = 0;
    double sales = 0; ///< orders that reached the level, not what it shipped
    double onHand = 0;
    double backOrders = 0;
    double onOrder = 0;
    double orders = 0;
    double stockOuts = 0;
    double receipts = 0;
};

struct Summary {
    double years = 1;
    double demand = 0;
    PerLevel<LevelSums> levels;
    double production = 0;

    double perYear(double sum) const { return sum / years; }
    double perDay(double sum) const { return sum / (years * daysPerYear); }
};

/// SubscriptOutOfRange for a span beyond the tables, Overflow for a sum beyond the range.
Summary summaryOf(const Days& days, const Span& span);

} // namespace vantore::scsim
