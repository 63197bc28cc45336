#pragma once

#include "mathprog/TRANLP/labelling.h"

namespace vantore::tests {

/// The least cost of a balanced tableau by LEMON's network simplex method. The tableau must hold costs, not
/// reduced costs.
double networkSimplexCost(const tranlp::Tableau& tableau);

} // namespace vantore::tests
