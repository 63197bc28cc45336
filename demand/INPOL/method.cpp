#include "demand/INPOL/method.h"

#include "demand/INPOL/service_table.h"
#include "shell/base/arithmetic.h"

namespace vantore::inpol {

namespace {

constexpr int rounds = 20;
constexpr double leastStockoutCost = .00001;

/// H: what it costs to hold one unit over one period.
Number holdingCost(const Product& product) {
    return (product.unitPrice + product.transportRate) * product.carryingCost;
}

/// The standard deviation of demand over `time`, the lead time being uncertain too.
Number demandDeviation(const Product& product, Number time) {
    const Number byDemand = time * (product.sdDemand * product.sdDemand);
    const Number byLeadTime = product.avgDemand * product.sdLeadTime;
    return squareRoot(byDemand + byLeadTime * byLeadTime);
}

/// The quantity that balances carrying cost and the costs that an order brings.
Number economicQuantity(const Product& product, Number costPerOrder) {
    return squareRoot(2 * product.avgDemand * costPerOrder / holdingCost(product));
}

Number costWithStockouts(const Product& product, Number sigma, Number loss) {
    return product.orderCost + product.stockoutCost * sigma * loss;
}

/// The probability of no stockout at which one unit more costs as much to hold as it saves.
Number optimalProbability(const Product& product, Number quantity) {
    return 1 - quantity * holdingCost(product) / (product.stockoutCost * product.avgDemand);
}

Number fractionInStock(Number sigma, Number loss, Number quantity) {
    return 1 - sigma * loss / quantity;
}

void setReorderPoint(const Product& product, NormalDeviate normal, StockingPolicies& policies) {
    policies.ropLoss = normal.loss;
    policies.ropSafety = normal.z * policies.sigma;
    policies.reorderPoint = product.avgDemand * product.avgLeadTime + policies.ropSafety;
    policies.ropAvgInv = policies.ropQ / 2 + policies.ropSafety;
    policies.ropInStock = fractionInStock(policies.sigma, normal.loss, policies.ropQ);
}

void setPeriodicReview(const Product& product, NormalDeviate normal, StockingPolicies& policies) {
    policies.prLoss = normal.loss;
    policies.prSafety = normal.z * policies.sigmaP;
    policies.maxLevel = product.avgDemand * (policies.reviewTime + product.avgLeadTime) + policies.prSafety;
    policies.prAvgInv = policies.prQ / 2 + policies.prSafety;
    policies.prInStock = fractionInStock(policies.sigmaP, normal.loss, policies.prQ);
}

Number startQuantity(const Product& product, bool quantitySpecified) {
    if (quantitySpecified) return product.orderQuantity;
    return economicQuantity(product, product.orderCost);
}

void balanceReorderPoint(const Product& product, bool quantitySpecified, StockingPolicies& policies) {
    NormalDeviate normal;
    policies.sigma = demandDeviation(product, product.avgLeadTime);
    for (int round = 1; round <= rounds; ++round) {
        normal = deviateFor(optimalProbability(product, policies.ropQ));
        if (!quantitySpecified)
            policies.ropQ =
                economicQuantity(product, costWithStockouts(product, policies.sigma, normal.loss));
    }
    setReorderPoint(product, normal, policies);
}

/// The review time stays that of the quantity before the last round's change.
void balancePeriodicReview(const Product& product, bool quantitySpecified, StockingPolicies& policies) {
    NormalDeviate normal;
    for (int round = 1; round <= rounds; ++round) {
        policies.reviewTime = policies.prQ / product.avgDemand;
        normal = deviateFor(optimalProbability(product, policies.prQ));
        policies.sigmaP = demandDeviation(product, policies.reviewTime + product.avgLeadTime);
        if (!quantitySpecified)
            policies.prQ =
                economicQuantity(product, costWithStockouts(product, policies.sigmaP, normal.loss));
    }
    setPeriodicReview(product, normal, policies);
}

StockingPolicies jointPolicies(const Product& product, Number cycleTime, NormalDeviate normal) {
    StockingPolicies policies;
    policies.reviewTime = cycleTime;
    policies.prQ = product.avgDemand * cycleTime;
    policies.ropQ = policies.ropAvgInv = 1;
    policies.sigmaP = demandDeviation(product, cycleTime + product.avgLeadTime);
    setPeriodicReview(product, normal, policies);
    return policies;
}

/// What the costs of a policy hang on, besides the product.
struct PolicyTerms {
    Number quantity, averageInventory, safetyStock, loss, sigma;
    Number costPerOrder;
};

Number whole(Number cost) {
    return wholePart(.5 + cost);
}

AnnualCosts annualCosts(Number periods, const Product& product, const PolicyTerms& terms) {
    const Number demand = periods * product.avgDemand;
    const Number holding = periods * holdingCost(product);
    const Number stockouts = periods * product.stockoutCost * product.avgDemand * terms.loss * terms.sigma;
    AnnualCosts costs;
    costs.purchase = whole(demand * product.unitPrice);
    costs.transport = whole(demand * product.transportRate);
    costs.carrying = whole(holding * (terms.averageInventory - terms.safetyStock));
    costs.orderProcessing = whole(demand * terms.costPerOrder / terms.quantity);
    costs.outOfStock = whole(stockouts / terms.quantity);
    costs.safetyStock = whole(holding * terms.safetyStock);
    return costs;
}

} // namespace

AnnualCosts& AnnualCosts::operator+=(const AnnualCosts& other) {
    purchase += other.purchase;
    transport += other.transport;
    carrying += other.carrying;
    orderProcessing += other.orderProcessing;
    outOfStock += other.outOfStock;
    safetyStock += other.safetyStock;
    return *this;
}

Procedure procedureFor(const Problem& problem) {
    if (problem.jointlyOrdered())
        return problem.serviceIndexSpecified() ? Procedure::JointService : Procedure::JointOptimal;
    return problem.serviceIndexSpecified() ? Procedure::IndividualService : Procedure::IndividualOptimal;
}

StockingPolicies optimalPolicies(Product& product, bool quantitySpecified) {
    StockingPolicies policies;
    policies.ropQ = startQuantity(product, quantitySpecified);
    if (product.stockoutCost == 0) product.stockoutCost = leastStockoutCost;
    balanceReorderPoint(product, quantitySpecified, policies);
    policies.prQ = policies.ropQ;
    balancePeriodicReview(product, quantitySpecified, policies);
    return policies;
}

StockingPolicies servicePolicies(const Product& product, bool quantitySpecified) {
    const NormalDeviate normal = deviateFor(product.serviceIndex);
    StockingPolicies policies;
    policies.sigma = demandDeviation(product, product.avgLeadTime);
    policies.ropQ = policies.prQ = startQuantity(product, quantitySpecified);
    setReorderPoint(product, normal, policies);
    policies.reviewTime = policies.prQ / product.avgDemand;
    policies.sigmaP = demandDeviation(product, policies.reviewTime + product.avgLeadTime);
    setPeriodicReview(product, normal, policies);
    return policies;
}

double jointCycleTime(const Problem& problem) {
    if (problem.cycleTime != 0) return problem.cycleTime;
    Number orderCosts;
    Number holdingCosts;
    for (int i = 1; i <= problem.productCount; ++i) {
        const Product& product = problem.products(i);
        orderCosts += product.orderCost;
        holdingCosts += holdingCost(product) * product.avgDemand;
    }
    return squareRoot(2 * (problem.jointCost + orderCosts) / holdingCosts);
}

StockingPolicies jointServicePolicies(const Product& product, double cycleTime) {
    return jointPolicies(product, cycleTime, deviateFor(product.serviceIndex));
}

StockingPolicies jointOptimalPolicies(const Product& product, double cycleTime, double& keptLookup) {
    const Number probability = optimalProbability(product, product.avgDemand * cycleTime);
    if (probability < .5) keptLookup = probability + .5;
    return jointPolicies(product, cycleTime, deviateFor(probability, keptLookup));
}

void addCosts(const Problem& problem, const Product& product, StockingPolicies& policies) {
    const Number periods = periodsPerYear(problem.timeFrame);
    const Number jointCost = problem.jointCost;
    const Number value = product.unitPrice + product.transportRate;
    policies.ropCosts = annualCosts(periods, product,
                                    {policies.ropQ, policies.ropAvgInv, policies.ropSafety, policies.ropLoss,
                                     policies.sigma, product.orderCost});
    policies.prCosts = annualCosts(periods, product,
                                   {policies.prQ, policies.prAvgInv, policies.prSafety, policies.prLoss,
                                    policies.sigmaP, product.orderCost + jointCost / problem.productCount});
    policies.ropTurnover = periods * product.avgDemand / policies.ropAvgInv;
    policies.prTurnover = periods * product.avgDemand / policies.prAvgInv;
    policies.ropInvestment = value * policies.ropAvgInv;
    policies.prInvestment = value * policies.prAvgInv;
}

void runProcedure(Procedure procedure, Problem& problem, ProductPolicies& policies, double& keptLookup,
                  const ProductListener& listener) {
    const bool joint = procedure == Procedure::JointOptimal || procedure == Procedure::JointService;
    const bool specified = problem.orderQuantitySpecified();
    const double cycleTime = joint ? jointCycleTime(problem) : 0;
    const auto compute = [&](Product& product) {
        switch (procedure) {
        case Procedure::IndividualOptimal: return optimalPolicies(product, specified);
        case Procedure::IndividualService: return servicePolicies(product, specified);
        case Procedure::JointOptimal: return jointOptimalPolicies(product, cycleTime, keptLookup);
        case Procedure::JointService: return jointServicePolicies(product, cycleTime);
        }
        return StockingPolicies();
    };
    for (int i = 1; i <= problem.productCount; ++i) {
        policies(i) = compute(problem.products(i));
        addCosts(problem, problem.products(i), policies(i));
        listener(i, policies(i));
    }
}

Summary summaryOf(const ProductPolicies& policies, int productCount) {
    Summary summary;
    for (int i = 1; i <= productCount; ++i) {
        summary.ropCosts += policies(i).ropCosts;
        summary.prCosts += policies(i).prCosts;
        summary.ropInvestment += policies(i).ropInvestment;
        summary.prInvestment += policies(i).prInvestment;
    }
    return summary;
}

} // namespace vantore::inpol
