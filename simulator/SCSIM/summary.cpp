#include "simulator/SCSIM/summary.h"

#include <cmath>

#include "shell/base/arithmetic.h"

namespace vantore::scsim {

int Span::firstDay() const {
    return toInt16(std::ceil((first - 1) * daysPerYear) + 1);
}

int Span::lastDay() const {
    return toInt16(wholePart(last * daysPerYear));
}

Summary summaryOf(const Days& days, const Span& span) {
    const auto sum = [&span](const DaySeries& series) {
        double total = 0;
        for (int day = span.firstDay(); day <= span.lastDay(); ++day) total += wholePart(series(day));
        return finite(total);
    };
    Summary summary = {.years = span.years(),
                       .demand = sum(days.customerDemand),
                       .levels = {},
                       .production = sum(days.production)};
    for (const Level level : allLevels) {
        const LevelDays& at = days.levels(level);
        summary.levels(level) = {.forecast = sum(at.salesForecast),
                                 .sales = sum(at.demandDue),
                                 .onHand = sum(at.onHand),
                                 .backOrders = sum(at.backOrders),
                                 .onOrder = sum(at.onOrder),
                                 .orders = sum(at.orderCount),
                                 .stockOuts = sum(at.stockOut),
                                 .receipts = sum(at.receipts)};
    }
    return summary;
}

} // namespace vantore::scsim
