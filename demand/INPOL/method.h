#pragma once

#include <functional>

#include "demand/INPOL/problem.h"
#include "shell/base/number.h"
#include "shell/base/table.h"

namespace vantore::inpol {

/// Stocking policies of products with uncertain demand and lead time: a reorder point policy (order a fixed
/// quantity when the stock falls to a point) and a periodic review policy (order up to a level at fixed
/// times). Time is in units of the problem's time frame, costs are per year.
///
/// Source of the formulas: Hadley and Whitin, "Analysis of Inventory Systems" (1963), the approximate models
/// with backorders of chapters 4 and 5.
///
/// All operations raise DivisionByZero, Overflow or InvalidProcedureCall where a figure has no finite value,
/// and SubscriptOutOfRange for a probability beyond the table of service levels.

/// The annual costs of one policy, each a whole number of money units.
struct AnnualCosts {
    Number purchase;
    Number transport;
    Number carrying;
    Number orderProcessing;
    Number outOfStock;
    Number safetyStock;

    Number total() const {
        return purchase + transport + carrying + orderProcessing + outOfStock + safetyStock;
    }
    AnnualCosts& operator+=(const AnnualCosts& other);
};

/// Both policies of one product. `rop` figures belong to the reorder point, `pr` figures to the periodic
/// review. With joint orders there is only the periodic review; its reorder quantity and average inventory
/// of the other policy are 1.
struct StockingPolicies {
    Number ropQ; ///< order quantity
    Number prQ;
    Number sigma;  ///< standard deviation of demand over the lead time
    Number sigmaP; ///< and over review and lead time
    Number ropLoss;
    Number prLoss;
    Number ropSafety; ///< safety stock
    Number prSafety;
    Number reorderPoint;
    Number maxLevel;
    Number reviewTime;
    Number ropAvgInv; ///< average inventory
    Number prAvgInv;
    Number ropInStock; ///< fraction of demand filled from stock
    Number prInStock;
    AnnualCosts ropCosts;
    AnnualCosts prCosts;
    Number ropTurnover; ///< annual demand over average inventory
    Number prTurnover;
    Number ropInvestment;
    Number prInvestment;
};

using ProductPolicies = Table<StockingPolicies, 1, mostProducts>;

/// The four ways to policies: by the answers about joint orders and service indices.
enum class Procedure { IndividualOptimal, IndividualService, JointOptimal, JointService };

Procedure procedureFor(const Problem& problem);

/// Individual orders, service level by the balance of carrying and stockout cost. Quantity and service level
/// hang on each other: twenty rounds for each policy. A stockout cost of 0 becomes .00001 in `product`.
StockingPolicies optimalPolicies(Product& product, bool quantitySpecified);

/// Individual orders, the service index given.
StockingPolicies servicePolicies(const Product& product, bool quantitySpecified);

/// The time between joint orders: the one given, else the one that balances order and carrying cost.
double jointCycleTime(const Problem& problem);

/// Joint orders, the service index given.
StockingPolicies jointServicePolicies(const Product& product, double cycleTime);

/// Joint orders, service level by the balance of carrying and stockout cost.
///
/// Only a probability below one half sets `keptLookup`; any other is looked up under the value that the last
/// product, or the last solve, has left there. Figures of the suite rest on this.
StockingPolicies jointOptimalPolicies(const Product& product, double cycleTime, double& keptLookup);

/// Adds costs, turnover and investment. A, the cost of a joint order, is shared by all products alike.
void addCosts(const Problem& problem, const Product& product, StockingPolicies& policies);

/// Told of each product as soon as its policies are computed.
using ProductListener = std::function<void(int product, const StockingPolicies& policies)>;

/// Runs a procedure over products 1 to `productCount`. Stockout costs of 0 are replaced in `problem`.
void runProcedure(Procedure procedure, Problem& problem, ProductPolicies& policies, double& keptLookup,
                  const ProductListener& listener);

/// Sums over all products.
struct Summary {
    AnnualCosts ropCosts;
    AnnualCosts prCosts;
    Number ropInvestment;
    Number prInvestment;
};

Summary summaryOf(const ProductPolicies& policies, int productCount);

} // namespace vantore::inpol
