#pragma once

#include "demand/INPOL/method.h"
#include "demand/INPOL/service_table.h"
#include "shell/base/table.h"

namespace vantore::inpol {

/// What becomes of a product's policies at one service level of the table.
struct SensitivityRow {
    Number ropInStock;
    Number ropQ;
    Number ropAvgInv;
    Number reorderPoint;
    Number ropTotal;
    Number prInStock;
    Number prAvgInv;
    Number maxLevel;
    Number reviewTime;
    Number prTotal;
};

struct Sensitivity {
    bool jointlyOrdered = false;
    int productCount = 0;
    Table2<SensitivityRow, 1, mostProducts, 1, serviceLevels> rows; ///< by product and service level
};

/// Runs the policies over all service levels, after a solve whose record and policies these are.
///
/// Individual orders whose service index was not given keep the order quantities that the solve has found.
/// Joint orders without service indices take no notice of the level: their rows differ at most by
/// `keptLookup`. Errors as in the solve.
Sensitivity sensitivityOf(Problem problem, const ProductPolicies& solved, double& keptLookup);

} // namespace vantore::inpol
