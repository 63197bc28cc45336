#include "simulator/SCSIM/stock.h"

#include <algorithm>

#include "shell/base/arithmetic.h"

namespace vantore::scsim {

namespace {

/// All stock goes out and isn't enough.
Filling shipAll(Stock& stock, double demand) {
    const Filling result = {.shipped = stock.onHand, .stockOut = std::max(demand - stock.onHand, 0.0)};
    stock.onHand = 0;
    return result;
}

} // namespace

void receive(Stock& stock, double receipts) {
    stock.onHand = finite(stock.onHand + receipts);
    stock.onOrder = receipts <= stock.onOrder ? stock.onOrder - receipts : 0;
}

Filling fill(Stock& stock, double demand) {
    const double due = finite(stock.backOrders + demand);
    if (stock.onHand >= due) {
        stock.onHand -= due;
        stock.backOrders = 0;
        return {.shipped = due};
    }
    if (stock.onHand > stock.backOrders) {
        stock.backOrders = due - stock.onHand;
        return shipAll(stock, demand);
    }
    if (stock.onHand < stock.backOrders) {
        stock.backOrders = finite(stock.backOrders - stock.onHand + demand);
        return shipAll(stock, demand);
    }
    stock.backOrders = due;
    return {.stockOut = demand, .untouched = true};
}

} // namespace vantore::scsim
