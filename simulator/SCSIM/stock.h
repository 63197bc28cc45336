#pragma once

namespace vantore::scsim {

/// What a level holds and owes, in units.
struct Stock {
    double onHand = 0;
    double backOrders = 0;
    double onOrder = 0; ///< from the level above

    /// The inventory position: what the reorder point is held against.
    double position() const { return onHand + onOrder - backOrders; }

    /// What is missing to a target level.
    double missingTo(double target) const { return target - onHand - onOrder + backOrders; }
};

/// Takes a day's receipts into stock and off what is on order. Overflow beyond the range.
void receive(Stock& stock, double receipts);

struct Filling {
    double shipped = 0;
    double stockOut = 0; ///< the day's demand beyond the whole stock, whatever back orders took of it first
    bool untouched = false; ///< new demand met stock that equals the back orders: nothing is shipped
};

/// Fills back orders and a day's demand from stock as far as it goes. Overflow beyond the range.
Filling fill(Stock& stock, double demand);

} // namespace vantore::scsim
