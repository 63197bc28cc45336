#include "simulator/SCSIM/replenishment.h"

#include <algorithm>

#include "shell/base/arithmetic.h"
#include "simulator/SCSIM/forecast.h"
#include "simulator/SCSIM/safety_table.h"

namespace vantore::scsim {

namespace {

/// Orders of a level in a run before the user is asked, and after each Yes.
constexpr long long ordersAtATime = 100000;

/// Stands for a cost or a forecast of 0 where one is divided by.
constexpr double nearlyNothing = .00001;

/// Calculated policies begin when the first forecast errors have been measured.
constexpr int lastDayWithoutPoint = -349;
constexpr int firstReviewedDay = -348;
constexpr int firstCalculatedReview = -345;

/// A loss target that any protection meets.
constexpr double anyLoss = 9E20;

void place(int day, double quantity, Stock& stock, LevelDays& days) {
    stock.onOrder = finite(stock.onOrder + quantity);
    days.onOrder(day) = stock.onOrder;
    days.orderQuantity(day) = finite(days.orderQuantity(day) + quantity);
    days.orderCount(day) += 1;
}

void orderUpTo(double target, int day, Stock& stock, LevelDays& days) {
    const double missing = finite(stock.missingTo(target));
    if (missing > 0) place(day, missing, stock, days);
}

} // namespace

double SafetyFactor::protect(const LevelData& data, const Outlook& outlook, double quantity, double time) {
    const double spread = outlook.deviation * squareRoot(time);
    const double share = 1 - data.inStockProbability / 100;
    const double target = spread == 0 ? anyLoss : divide(finite(quantity * share), spread);
    z = safetyFactor(target).value_or(z);
    return z;
}

Replenishment::Replenishment(Level level, const LevelData& data, const Answers& answers, SafetyFactor& safety)
    : level_(level), data_(data), answers_(answers), safety_(safety), interval_(data.orderInterval),
      target_(data.targetLevel), ordersAllowed_(ordersAtATime) {}

void Replenishment::order(int day, const Outlook& outlook, Stock& stock, LevelDays& days) {
    switch (data_.policy) {
    case Policy::ReorderPoint:
        if (data_.reorderParameters == Parameters::Specified) orderAtSpecifiedPoint(day, stock, days);
        if (data_.reorderParameters == Parameters::Calculated)
            orderAtCalculatedPoint(day, outlook, stock, days);
        return;
    case Policy::PeriodicReview:
        if (data_.reviewParameters == Parameters::Specified) reviewAsSpecified(day, stock, days);
        if (data_.reviewParameters == Parameters::Calculated) reviewByCalculation(day, outlook, stock, days);
        return;
    case Policy::StockToDemand: return reviewStockToDemand(day, outlook.forecast, stock, days);
    case Policy::None: return;
    }
}

void Replenishment::orderAtPoint(int day, const OrdersQuestion& point, double lot, Stock& stock,
                                 LevelDays& days) {
    while (stock.position() < point.reorderPoint) {
        guard(point);
        place(day, lot, stock, days);
    }
    ordersAllowed_ = ordersAtATime;
}

/// The count isn't set back after a Yes: once it has passed the limit, each day's orders ask anew.
void Replenishment::guard(const OrdersQuestion& point) {
    if (++ordersPlaced_ <= ordersAllowed_) return;
    if (!answers_.moreOrders(point)) throw RunStopped();
    ordersAllowed_ += ordersAtATime;
}

/// The retailer's quantity is rounded, the others' are cut.
void Replenishment::orderAtSpecifiedPoint(int day, Stock& stock, LevelDays& days) {
    const double quantity = data_.reorderQuantity;
    const double lot = wholePart(level_ == Level::Retailer ? quantity + .5 : quantity);
    orderAtPoint(day, {level_, Parameters::Specified, data_.reorderPoint, quantity}, lot, stock, days);
}

void Replenishment::orderAtCalculatedPoint(int day, const Outlook& outlook, Stock& stock, LevelDays& days) {
    if (day <= lastDayWithoutPoint) return;
    const double time = outlook.leadTime;
    const double quantity = economicQuantity(outlook.forecast);
    const double z = safety_.protect(data_, outlook, quantity, time);
    const double safetyStock = z * outlook.deviation * squareRoot(time);
    const double point = std::max(wholePart(finite(outlook.forecast * time + safetyStock)), 1.0);
    calculated_.reorderQuantity = wholePart(quantity);
    calculated_.reorderPoint = point;
    orderAtPoint(day, {level_, Parameters::Calculated, point, quantity}, wholePart(quantity + .5), stock,
                 days);
}

double Replenishment::economicQuantity(double forecast) {
    const auto replaced = [this](double cost) {
        return cost == 0 || (level_ == Level::Retailer && cost < 0) ? nearlyNothing : cost;
    };
    const double holdingCost = replaced(data_.carryingCost) / 100 * replaced(data_.itemValue);
    const double orderingCost = finite(2 * forecast * daysPerYear * data_.orderProcessingCost);
    return std::max(squareRoot(divide(orderingCost, finite(holdingCost))), 1.0);
}

void Replenishment::reviewByCalculation(int day, const Outlook& outlook, Stock& stock, LevelDays& days) {
    if (day == firstDay) {
        nextReview_ = firstCalculatedReview;
        calculated_.targetLevel = target_ = 0;
    }
    if (day < firstReviewedDay) return;
    if (day == nextReview_) {
        // The target is the one of the review before: the first review orders the back orders alone.
        orderUpTo(target_, day, stock, days);
        calculateReview(day, outlook, days);
    }
    calculated_.targetLevel = target_;
    calculated_.orderInterval = interval_;
}

void Replenishment::calculateReview(int day, Outlook outlook, LevelDays& days) {
    const double quantity = economicQuantity(outlook.forecast);
    if (outlook.forecast == 0) days.salesForecast(day) = outlook.forecast = nearlyNothing;
    interval_ = std::max(divide(quantity, outlook.forecast), 1.0);
    const double time = interval_ + outlook.leadTime;
    const double z = safety_.protect(data_, outlook, quantity, interval_ + outlook.lossLeadTime);
    const double safetyStock = z * outlook.deviation * squareRoot(time);
    target_ = std::max(wholePart(finite(outlook.forecast * time + safetyStock + .5)), 1.0);
    nextReview_ = day + wholePart(interval_ + .5);
}

void Replenishment::reviewAsSpecified(int day, Stock& stock, LevelDays& days) {
    const double interval = wholePart(data_.orderInterval);
    if (day == firstDay) nextReview_ = interval - daysPerYear;
    if (day != nextReview_) return;
    nextReview_ += interval;
    orderUpTo(wholePart(data_.targetLevel), day, stock, days);
}

/// A review time with a fraction, which only the retailer's may have, meets no day.
void Replenishment::reviewStockToDemand(int day, double forecast, Stock& stock, LevelDays& days) {
    const double interval = level_ == Level::Retailer ? data_.reviewTime : wholePart(data_.reviewTime);
    if (day == firstDay) nextReview_ = interval - daysPerYear;
    if (day == firstDay || day != nextReview_) return;
    nextReview_ += interval;
    orderUpTo(wholePart(finite(forecast * data_.targetDays)), day, stock, days);
}

} // namespace vantore::scsim
