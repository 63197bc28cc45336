#pragma once

#include "mathprog/TRANLP/labelling.h"

namespace vantore::tests {

/// The labelling method in its plain loops over the whole table, as the yardstick of the fast one. Takes the
/// same tableau and leaves it as the fast one does.
///
/// `chainLimit` is the product of sources and sinks in front of the balancing. Ends, too, where no column is
/// left unlabelled, so that no change of duals is possible.
void labelPlainly(tranlp::Tableau& tableau, int chainLimit, const tranlp::AugmentationWatch& watch = {});

} // namespace vantore::tests
