#include "demand/INPOL/method.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/error_of.h"

namespace vantore::inpol {
namespace {

using tests::errorOf;

constexpr bool specified = true;
constexpr bool free = false;

/// Demand 100 a week with deviation 10, lead time 4 weeks: sigma = sqrt(4 x 10^2) = 20. H = (9 + 1) x .02 =
/// .2, so that the economic quantity is sqrt(2 x 100 x 40 / .2) = 200.
Product filter() {
    Product product;
    product.avgDemand = 100;
    product.sdDemand = 10;
    product.avgLeadTime = 4;
    product.unitPrice = 9;
    product.transportRate = 1;
    product.carryingCost = .02;
    product.orderCost = 40;
    product.stockoutCost = 4;
    product.orderQuantity = 100;
    product.serviceIndex = .95;
    return product;
}

/// H = (15 + 5) x .02 = .4.
Product pump() {
    Product product = filter();
    product.avgDemand = 50;
    product.unitPrice = 15;
    product.transportRate = 5;
    product.orderCost = 20;
    return product;
}

Problem problemOf(std::initializer_list<Product> products) {
    Problem problem;
    problem.timeFrame = 3;
    for (const Product& product : products) problem.products(++problem.productCount) = product;
    return problem;
}

const ProductListener nobody = [](int, const StockingPolicies&) {};

// Individual orders, service index specified

TEST(ServicePolicies, FollowFromTheServiceIndex) {
    const StockingPolicies found = servicePolicies(filter(), free);
    // z = 1.645, loss = .0209.
    EXPECT_DOUBLE_EQ(found.ropQ, 200);
    EXPECT_DOUBLE_EQ(found.sigma, 20);
    EXPECT_DOUBLE_EQ(found.ropSafety, 32.9);
    EXPECT_DOUBLE_EQ(found.reorderPoint, 400 + 32.9);
    EXPECT_DOUBLE_EQ(found.ropAvgInv, 100 + 32.9);
    EXPECT_DOUBLE_EQ(found.ropInStock, 1 - 20 * .0209 / 200); // .99791
    // Review time 200 / 100 = 2, sigma over 6 weeks sqrt(600) = 24.494897.
    EXPECT_DOUBLE_EQ(found.prQ, 200);
    EXPECT_DOUBLE_EQ(found.reviewTime, 2);
    EXPECT_NEAR(found.sigmaP, 24.494897, 1E-6);
    EXPECT_NEAR(found.prSafety, 40.294106, 1E-6);
    EXPECT_NEAR(found.maxLevel, 640.294106, 1E-6);
    EXPECT_NEAR(found.prAvgInv, 140.294106, 1E-6);
    EXPECT_NEAR(found.prInStock, .99744028, 1E-8); // 1 - 24.494897 x .0209 / 200
}

TEST(ServicePolicies, CountTheDeviationOfTheLeadTime) {
    Product product = filter();
    product.sdLeadTime = .15;
    EXPECT_DOUBLE_EQ(servicePolicies(product, free).sigma, 25); // sqrt(400 + (100 x .15)^2)
}

TEST(ServicePolicies, HoldASpecifiedQuantity) {
    const StockingPolicies found = servicePolicies(filter(), specified);
    EXPECT_EQ(found.ropQ, 100);
    EXPECT_EQ(found.prQ, 100);
    EXPECT_EQ(found.reviewTime, 1);
}

TEST(ServicePolicies, BelowOneHalfHaveNegativeSafetyStock) {
    Product product = filter();
    product.serviceIndex = .45; // mirrored to .95: z = -1.645, loss = .0209 + 1.645
    const StockingPolicies found = servicePolicies(product, free);
    EXPECT_DOUBLE_EQ(found.ropSafety, -32.9);
    EXPECT_DOUBLE_EQ(found.ropInStock, 1 - 20 * 1.6659 / 200);
}

TEST(ServicePolicies, NeedAnIndexWithinTheTable) {
    Product product = filter();
    product.serviceIndex = 95;
    EXPECT_EQ(errorOf([&] { servicePolicies(product, free); }), ErrorNumber::SubscriptOutOfRange);
}

// Individual orders, service index not specified

TEST(OptimalPolicies, BalanceQuantityAndServiceLevel) {
    Product product = filter();
    const StockingPolicies found = optimalPolicies(product, free);
    // Q = 200: P = 1 - 40 / 400 = .9, loss .0473, Q = sqrt(1000 x (40 + 80 x .0473)) = 209.246.
    // P = .895377: row .895, z 1.2533, loss .0502, Q = sqrt(44016) = 209.79990; the row stays.
    EXPECT_NEAR(found.ropQ, 209.79990, 1E-5);
    EXPECT_DOUBLE_EQ(found.ropSafety, 1.2533 * 20);
    EXPECT_DOUBLE_EQ(found.reorderPoint, 400 + 25.066);
    EXPECT_NEAR(found.ropAvgInv, 104.89995 + 25.066, 1E-5);
    EXPECT_NEAR(found.ropInStock, .99521449, 1E-8); // 1 - 20 x .0502 / 209.7999
}

TEST(OptimalPolicies, BalanceThePeriodicReviewFromThere) {
    Product product = filter();
    const StockingPolicies found = optimalPolicies(product, free);
    // Row .895 throughout. Q = sqrt(1000 x (40 + 4 x .0502 x sigmaP)) with sigmaP = 10 sqrt(Q / 100 + 4):
    // 209.800 -> 212.034 -> 212.0558 -> 212.05603.
    EXPECT_NEAR(found.prQ, 212.0560, 1E-4);
    EXPECT_NEAR(found.prQ * found.prQ, 1000 * (40 + .2008 * found.sigmaP), 1E-6);
    EXPECT_NEAR(found.reviewTime, 2.120560, 1E-6);
    EXPECT_NEAR(found.sigmaP, 24.739766, 1E-6);
    EXPECT_NEAR(found.prSafety, 1.2533 * 24.739766, 1E-5);
    EXPECT_NEAR(found.maxLevel, 612.0560 + 31.006349, 1E-4);
    EXPECT_NEAR(found.prAvgInv, 106.0280 + 31.006349, 1E-4);
    EXPECT_EQ(found.prLoss, .0502);
}

TEST(OptimalPolicies, HoldASpecifiedQuantityThroughAllRounds) {
    Product product = filter();
    product.stockoutCost = 2; // P = 1 - 100 x .2 / (2 x 100) = .9
    const StockingPolicies found = optimalPolicies(product, specified);
    EXPECT_EQ(found.ropQ, 100);
    EXPECT_EQ(found.prQ, 100);
    EXPECT_EQ(found.reviewTime, 1);
    EXPECT_DOUBLE_EQ(found.ropSafety, 1.2817 * 20);
    EXPECT_DOUBLE_EQ(found.ropInStock, 1 - 20 * .0473 / 100);
    EXPECT_DOUBLE_EQ(found.prSafety, 1.2817 * std::sqrt(500));
}

TEST(OptimalPolicies, ReplaceAStockoutCostOfZero) {
    Product product = filter();
    product.stockoutCost = 0;
    const StockingPolicies found = optimalPolicies(product, free);
    // P = 1 - 40 / .001 is mirrored and still below the table: row 1, z 0, loss .3989, and
    // Q = sqrt(1000 x (40 + .0002 x .3989)).
    EXPECT_EQ(product.stockoutCost, .00001);
    EXPECT_EQ(found.ropSafety, 0);
    EXPECT_NEAR(found.ropQ, 200.0001995, 1E-7);
    EXPECT_NEAR(found.ropInStock, 1 - 20 * .3989 / 200, 1E-6);
}

TEST(OptimalPolicies, KeepTheReviewTimeOfTheRoundBefore) {
    Product product = filter();
    product.sdDemand = 5000;
    product.avgLeadTime = 0;
    product.stockoutCost = 60;
    // So uncertain a demand keeps the quantity moving through all twenty rounds.
    const StockingPolicies found = optimalPolicies(product, free);
    EXPECT_GT(std::abs(found.reviewTime - found.prQ / 100), 1E-9);
    EXPECT_DOUBLE_EQ(found.sigmaP, 5000 * std::sqrt(found.reviewTime));
    EXPECT_NEAR(found.prQ, std::sqrt(1000 * (40 + 60 * found.sigmaP * found.prLoss)), 1E-9 * found.prQ);
}

TEST(OptimalPolicies, NeedDemandAndValue) {
    Product noDemand = filter();
    noDemand.avgDemand = 0;
    EXPECT_EQ(errorOf([&] { optimalPolicies(noDemand, free); }), ErrorNumber::DivisionByZero);
    Product noValue = filter();
    noValue.unitPrice = noValue.transportRate = 0;
    EXPECT_EQ(errorOf([&] { optimalPolicies(noValue, free); }), ErrorNumber::DivisionByZero);
    Product noCarrying = filter();
    noCarrying.carryingCost = 0;
    EXPECT_EQ(errorOf([&] { optimalPolicies(noCarrying, free); }), ErrorNumber::DivisionByZero);
    Product negative = filter();
    negative.carryingCost = -.02;
    EXPECT_EQ(errorOf([&] { optimalPolicies(negative, free); }), ErrorNumber::InvalidProcedureCall);
    Product huge = filter();
    huge.sdDemand = 1E300;
    EXPECT_EQ(errorOf([&] { optimalPolicies(huge, free); }), ErrorNumber::Overflow);
}

// Joint orders

TEST(JointCycleTime, BalancesOrderAndCarryingCost) {
    Problem problem = problemOf({filter(), pump()});
    problem.jointCost = 260;
    // S = 60, W = .2 x 100 + .4 x 50 = 40: sqrt(2 x 320 / 40) = 4.
    EXPECT_DOUBLE_EQ(jointCycleTime(problem), 4);
}

TEST(JointCycleTime, IsTheSpecifiedOne) {
    Problem problem = problemOf({filter()});
    problem.jointCost = 1E6;
    problem.cycleTime = 3.5;
    EXPECT_EQ(jointCycleTime(problem), 3.5);
}

TEST(JointCycleTime, NeedsSomethingToCarry) {
    EXPECT_EQ(errorOf([] { jointCycleTime(problemOf({})); }), ErrorNumber::DivisionByZero);
}

TEST(JointServicePolicies, OrderForOneCycle) {
    const StockingPolicies found = jointServicePolicies(filter(), 2);
    EXPECT_EQ(found.prQ, 200);
    EXPECT_EQ(found.reviewTime, 2);
    EXPECT_NEAR(found.prSafety, 40.294106, 1E-6); // 1.645 x sqrt(600)
    EXPECT_NEAR(found.maxLevel, 640.294106, 1E-6);
    EXPECT_NEAR(found.prAvgInv, 140.294106, 1E-6);
    EXPECT_NEAR(found.prInStock, .99744028, 1E-8);
    EXPECT_EQ(found.ropQ, 1);
    EXPECT_EQ(found.ropAvgInv, 1);
    EXPECT_EQ(found.ropInStock, 0);
    EXPECT_EQ(found.reorderPoint, 0);
}

TEST(JointOptimalPolicies, MirrorAProbabilityBelowOneHalf) {
    Product product = filter();
    product.stockoutCost = .5; // P = 1 - 200 x .2 / 50 = .2: looked up as .7, z -.5244, loss .1904 + .5244
    double keptLookup = 0;
    const StockingPolicies found = jointOptimalPolicies(product, 2, keptLookup);
    EXPECT_DOUBLE_EQ(keptLookup, .7);
    EXPECT_NEAR(found.prSafety, -.5244 * std::sqrt(600), 1E-12);
    EXPECT_DOUBLE_EQ(found.prLoss, .7148);
}

TEST(JointOptimalPolicies, LookOtherProbabilitiesUpUnderTheKeptValue) {
    double keptLookup = .7;
    // P = 1 - 40 / 400 = .9, but the row is that of .7.
    EXPECT_DOUBLE_EQ(jointOptimalPolicies(filter(), 2, keptLookup).prLoss, .1904);
    EXPECT_EQ(keptLookup, .7);
    keptLookup = 0;
    EXPECT_EQ(jointOptimalPolicies(filter(), 2, keptLookup).prSafety, 0);
    EXPECT_EQ(jointOptimalPolicies(filter(), 2, keptLookup).prLoss, .3989);
}

TEST(JointOptimalPolicies, DivideByAStockoutCostOfZero) {
    Product product = filter();
    product.stockoutCost = 0;
    double keptLookup = 0;
    EXPECT_EQ(errorOf([&] { jointOptimalPolicies(product, 2, keptLookup); }), ErrorNumber::DivisionByZero);
}

// Costs

TEST(AnnualCosts, AreWholeFiguresOfAYear) {
    Product product = filter();
    product.stockoutCost = 5;
    Problem problem = problemOf({product, pump()});
    problem.jointCost = 120;
    StockingPolicies found = servicePolicies(product, free);
    addCosts(problem, product, found);
    EXPECT_EQ(found.ropCosts.purchase, 46800);       // 52 x 100 x 9
    EXPECT_EQ(found.ropCosts.transport, 5200);       // 52 x 100 x 1
    EXPECT_EQ(found.ropCosts.carrying, 1040);        // 52 x .2 x 100
    EXPECT_EQ(found.ropCosts.orderProcessing, 1040); // 52 x 100 x 40 / 200
    EXPECT_EQ(found.ropCosts.outOfStock, 54);        // 52 x 5 x 100 x .0209 x 20 / 200 = 54.34
    EXPECT_EQ(found.ropCosts.safetyStock, 342);      // 52 x .2 x 32.9 = 342.16
    EXPECT_EQ(found.ropCosts.total(), 54476);
    EXPECT_EQ(found.prCosts.orderProcessing, 2600); // 52 x 100 x (40 + 120 / 2) / 200
    EXPECT_EQ(found.prCosts.outOfStock, 67);        // 26000 x .0209 x 24.494897 / 200 = 66.55
    EXPECT_EQ(found.prCosts.safetyStock, 419);      // 10.4 x 40.294106 = 419.06
    EXPECT_NEAR(found.ropTurnover, 39.127163, 1E-6);
    EXPECT_NEAR(found.prTurnover, 37.064993, 1E-5);
    EXPECT_DOUBLE_EQ(found.ropInvestment, 1329);
    EXPECT_NEAR(found.prInvestment, 1402.94106, 1E-5);
}

TEST(AnnualCosts, OfASingleProductCarryTheJointCostInFull) {
    Problem problem = problemOf({filter()});
    problem.jointCost = 60;
    StockingPolicies found = jointServicePolicies(filter(), 2);
    addCosts(problem, filter(), found);
    EXPECT_EQ(found.prCosts.orderProcessing, 2600); // 52 x 100 x (40 + 60) / 200
}

TEST(PeriodsPerYear, FollowTheTimeFrame) {
    EXPECT_EQ(periodsPerYear(1), 365);
    EXPECT_EQ(periodsPerYear(2), 250);
    EXPECT_EQ(periodsPerYear(3), 52);
    EXPECT_EQ(periodsPerYear(4), 12);
    for (const double other : {5.0, 0.0, 6.0, -1.0, 1E300}) EXPECT_EQ(periodsPerYear(other), 1) << other;
    EXPECT_EQ(timeUnit(1) + timeUnit(2) + timeUnit(3) + timeUnit(4) + timeUnit(5) + timeUnit(9),
              "dadawkmoyryr");
}

// All products

TEST(Procedures, AreChosenByTwoAnswers) {
    Problem problem;
    problem.jointOrderAnswer = problem.serviceIndexAnswer = "N";
    EXPECT_EQ(procedureFor(problem), Procedure::IndividualOptimal);
    problem.serviceIndexAnswer = "y";
    EXPECT_EQ(procedureFor(problem), Procedure::IndividualService);
    problem.jointOrderAnswer = "Y";
    EXPECT_EQ(procedureFor(problem), Procedure::JointService);
    problem.serviceIndexAnswer = "Yes"; // only "Y" counts
    EXPECT_EQ(procedureFor(problem), Procedure::JointOptimal);
}

TEST(Procedures, TellEachProductBeforeTheNextCanFail) {
    Product second = filter();
    second.serviceIndex = 95;
    Problem problem = problemOf({filter(), second});
    ProductPolicies policies;
    double keptLookup = 0;
    std::vector<int> told;
    const auto listener = [&](int product, const StockingPolicies&) { told.push_back(product); };
    EXPECT_EQ(
        errorOf([&] { runProcedure(Procedure::IndividualService, problem, policies, keptLookup, listener); }),
        ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(told, std::vector<int>{1});
}

TEST(Summaries, AddUpTheProducts) {
    Problem problem = problemOf({filter(), pump(), filter()});
    ProductPolicies policies;
    double keptLookup = 0;
    runProcedure(Procedure::IndividualService, problem, policies, keptLookup, nobody);
    const Summary summary = summaryOf(policies, 3);
    EXPECT_EQ(summary.ropCosts.total(), 2 * policies(1).ropCosts.total() + policies(2).ropCosts.total());
    EXPECT_EQ(summary.prCosts.purchase, 2 * 46800 + 52 * 50 * 15);
    EXPECT_DOUBLE_EQ(summary.ropInvestment, 2 * policies(1).ropInvestment + policies(2).ropInvestment);
    EXPECT_DOUBLE_EQ(summary.prInvestment, 2 * policies(1).prInvestment + policies(2).prInvestment);
}

} // namespace
} // namespace vantore::inpol
