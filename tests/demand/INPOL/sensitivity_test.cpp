#include "demand/INPOL/sensitivity.h"

#include <gtest/gtest.h>

namespace vantore::inpol {
namespace {

/// Two products; the first as in the method's tests: Q 200, sigma 20.
Problem problemWith(const char* joint, const char* service) {
    Problem problem;
    problem.productCount = 2;
    problem.timeFrame = 3;
    problem.jointOrderAnswer = joint;
    problem.serviceIndexAnswer = service;
    problem.sensitivityAnswer = "Y";
    problem.orderQuantityAnswer = "N";
    for (int i = 1; i <= 2; ++i) {
        Product& product = problem.products(i);
        product.avgDemand = 100;
        product.sdDemand = 10;
        product.avgLeadTime = 4;
        product.unitPrice = 9;
        product.transportRate = 1;
        product.carryingCost = .02;
        product.orderCost = 40;
        product.stockoutCost = i == 1 ? .5 : 4;
        product.orderQuantity = 100;
        product.serviceIndex = .95;
    }
    return problem;
}

struct Solved {
    ProductPolicies policies;
    double keptLookup = 0;
    Sensitivity sensitivity;
};

Solved solved(Problem problem) {
    Solved result;
    runProcedure(procedureFor(problem), problem, result.policies, result.keptLookup,
                 [](int, const StockingPolicies&) {});
    result.sensitivity = sensitivityOf(problem, result.policies, result.keptLookup);
    return result;
}

TEST(Sensitivity, OfServiceIndicesVariesTheIndexAlone) {
    const Solved result = solved(problemWith("N", "Y"));
    EXPECT_FALSE(result.sensitivity.jointlyOrdered);
    // Row 81 is .9: z 1.2817, loss .0473.
    const SensitivityRow& row = result.sensitivity.rows(1, 81);
    EXPECT_DOUBLE_EQ(row.ropQ, 200);
    EXPECT_DOUBLE_EQ(row.ropInStock, 1 - 20 * .0473 / 200);
    EXPECT_DOUBLE_EQ(row.reorderPoint, 400 + 25.634);
    EXPECT_DOUBLE_EQ(row.ropAvgInv, 100 + 25.634);
    // 46800 + 5200 + 1040 + 1040 + Int(5200 x .5 x .00473 + .5) + Int(10.4 x 25.634 + .5)
    EXPECT_EQ(row.ropTotal, 46800 + 5200 + 1040 + 1040 + 12 + 267);
    EXPECT_EQ(row.reviewTime, 2);
    EXPECT_NEAR(row.maxLevel, 600 + 1.2817 * 24.494897, 1E-6);
    // The solve's own row is that of its index, 91.
    EXPECT_EQ(result.sensitivity.rows(1, 91).prTotal, result.policies(1).prCosts.total());
    EXPECT_EQ(result.sensitivity.rows(1, 91).ropAvgInv, result.policies(1).ropAvgInv);
}

TEST(Sensitivity, WithoutServiceIndicesHoldsTheQuantitiesThatWereFound) {
    const Solved result = solved(problemWith("N", "N"));
    for (const int level : {1, 50, 101})
        for (const int product : {1, 2}) {
            EXPECT_EQ(result.sensitivity.rows(product, level).ropQ, result.policies(product).ropQ);
            EXPECT_EQ(result.sensitivity.rows(product, level).reviewTime,
                      result.policies(product).ropQ / 100);
        }
    EXPECT_DOUBLE_EQ(result.sensitivity.rows(2, 81).ropInStock, 1 - 20 * .0473 / result.policies(2).ropQ);
}

TEST(Sensitivity, OfJointOrdersWithServiceIndicesKeepsTheCycle) {
    Problem problem = problemWith("Y", "Y");
    problem.cycleTime = 2;
    const Solved result = solved(problem);
    EXPECT_TRUE(result.sensitivity.jointlyOrdered);
    const SensitivityRow& row = result.sensitivity.rows(1, 81);
    EXPECT_EQ(row.reviewTime, 2);
    EXPECT_NEAR(row.prAvgInv, 100 + 1.2817 * 24.494897, 1E-6);
    EXPECT_EQ(row.ropInStock, 0);
    EXPECT_EQ(row.ropQ, 1);
}

TEST(Sensitivity, OfJointOrdersWithoutServiceIndicesTakesNoNoticeOfTheLevel) {
    Problem problem = problemWith("Y", "N");
    problem.cycleTime = 2;
    const Solved result = solved(problem);
    // Product 1 has P = .2 and leaves .7 to product 2.
    EXPECT_DOUBLE_EQ(result.keptLookup, .7);
    for (const int level : {1, 2, 101}) {
        EXPECT_NEAR(result.sensitivity.rows(1, level).prAvgInv, 100 - .5244 * 24.494897, 1E-6);
        EXPECT_NEAR(result.sensitivity.rows(2, level).prAvgInv, 100 + .5244 * 24.494897, 1E-6);
    }
}

TEST(Sensitivity, LeavesTheRecordAlone) {
    const Problem problem = problemWith("N", "N");
    Problem record = problem;
    ProductPolicies policies;
    double keptLookup = 0;
    runProcedure(procedureFor(record), record, policies, keptLookup, [](int, const StockingPolicies&) {});
    sensitivityOf(record, policies, keptLookup);
    EXPECT_EQ(record.products(1).serviceIndex, problem.products(1).serviceIndex);
    EXPECT_EQ(record.products(1).orderQuantity, problem.products(1).orderQuantity);
}

} // namespace
} // namespace vantore::inpol
