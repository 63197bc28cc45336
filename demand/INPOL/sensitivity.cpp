#include "demand/INPOL/sensitivity.h"

namespace vantore::inpol {

namespace {

SensitivityRow rowOf(const StockingPolicies& policies) {
    return {.ropInStock = policies.ropInStock,
            .ropQ = policies.ropQ,
            .ropAvgInv = policies.ropAvgInv,
            .reorderPoint = policies.reorderPoint,
            .ropTotal = policies.ropCosts.total(),
            .prInStock = policies.prInStock,
            .prAvgInv = policies.prAvgInv,
            .maxLevel = policies.maxLevel,
            .reviewTime = policies.reviewTime,
            .prTotal = policies.prCosts.total()};
}

void holdQuantities(Problem& problem, const ProductPolicies& solved) {
    problem.orderQuantityAnswer = "Y";
    for (int i = 1; i <= problem.productCount; ++i) problem.products(i).orderQuantity = solved(i).ropQ;
}

} // namespace

Sensitivity sensitivityOf(Problem problem, const ProductPolicies& solved, double& keptLookup) {
    Sensitivity sensitivity;
    sensitivity.jointlyOrdered = problem.jointlyOrdered();
    sensitivity.productCount = problem.productCount;
    Procedure procedure = procedureFor(problem);
    if (procedure == Procedure::IndividualOptimal) {
        holdQuantities(problem, solved);
        procedure = Procedure::IndividualService;
    }
    ProductPolicies policies;
    for (int level = 1; level <= serviceLevels; ++level) {
        for (int i = 1; i <= problem.productCount; ++i)
            problem.products(i).serviceIndex = serviceLevel(level).probability;
        runProcedure(procedure, problem, policies, keptLookup,
                     [&](int product, const StockingPolicies& reached) {
                         sensitivity.rows(product, level) = rowOf(reached);
                     });
    }
    return sensitivity;
}

} // namespace vantore::inpol
