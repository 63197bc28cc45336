#pragma once

#include <optional>

#include "simulator/SCSIM/days.h"
#include "simulator/SCSIM/questions.h"
#include "simulator/SCSIM/stock.h"

namespace vantore::scsim {

/// Control parameters as a policy calculates them: what the boxes of a level show.
struct ControlParameters {
    std::optional<double> reorderQuantity, reorderPoint;
    std::optional<double> orderInterval, targetLevel;
};

/// What a level orders from: the demand that it expects and how long an order takes.
struct Outlook {
    double forecast;  ///< units a day
    double deviation; ///< of a day's demand
    double leadTime;  ///< days
    /// Stands for the lead time where a review's loss target is set.
    double lossLeadTime;
};

/// The safety factor that was found last: all levels share it, and a loss target beyond the table leaves it.
struct SafetyFactor {
    double z = 0;

    /// Looks up the factor for a protection time in days and an order quantity.
    double protect(const LevelData& data, const Outlook& outlook, double quantity, double time);
};

/// The ordering of one level over a run, from day -359 on.
///
/// Source of the calculated parameters: the economic order quantity of Harris (1913), and the safety factor
/// at which the units short of an order cycle are 1 - in-stock probability of the order quantity; Brown,
/// "Decision Rules for Inventory Management" (1967).
class Replenishment {
  public:
    /// All live at least as long.
    Replenishment(Level level, const LevelData& data, const Answers& answers, SafetyFactor& safety);

    /// The day's orders, which are added to `stock.onOrder` and to the day's figures. A forecast of 0 that a
    /// calculated review meets becomes .00001. RunStopped where the user ends the run; InvalidProcedureCall,
    /// DivisionByZero and Overflow where a figure has no finite value.
    void order(int day, const Outlook& outlook, Stock& stock, LevelDays& days);

    const ControlParameters& calculated() const { return calculated_; }

  private:
    void orderAtPoint(int day, const OrdersQuestion& point, double lot, Stock& stock, LevelDays& days);
    void orderAtSpecifiedPoint(int day, Stock& stock, LevelDays& days);
    void orderAtCalculatedPoint(int day, const Outlook& outlook, Stock& stock, LevelDays& days);
    void reviewByCalculation(int day, const Outlook& outlook, Stock& stock, LevelDays& days);
    void calculateReview(int day, Outlook outlook, LevelDays& days);
    void reviewAsSpecified(int day, Stock& stock, LevelDays& days);
    void reviewStockToDemand(int day, double forecast, Stock& stock, LevelDays& days);
    double economicQuantity(double forecast);
    void guard(const OrdersQuestion& point);

    Level level_;
    LevelData data_; ///< with costs of 0 replaced
    const Answers& answers_;
    SafetyFactor& safety_;
    ControlParameters calculated_;
    double nextReview_ = 0;
    double interval_ = 0;
    double target_ = 0;
    long long ordersPlaced_ = 0;
    long long ordersAllowed_ = 0;
};

} // namespace vantore::scsim
