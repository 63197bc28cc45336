#pragma once

#include <vector>

#include "shell/base/item_stream.h"

namespace vantore::wareloca {

/// TEMP.DAT, by which the solver hands its allocation to the map.

/// A place in the form of the case file.
struct Place {
    double x = 0; ///< north latitude, degrees
    double y = 0; ///< west longitude, degrees

    bool operator==(const Place&) const = default;
};

/// How a customer is served. The numbers are rows of the case's tables, from 1.
struct Flow {
    Place customer;
    int warehouse = 0;
    Place from; ///< the warehouse
    int plant = 0;
    Place source; ///< the plant

    bool operator==(const Flow&) const = default;
};

/// Reads flows until the file ends. InputPastEnd when the last one is cut off, SubscriptOutOfRange for a
/// number of a warehouse outside 1 to 48 or of a plant outside 1 to 6, and for more than 191 flows.
std::vector<Flow> readFlows(ItemReader& reader);

/// Writes flows, a line each.
void writeFlows(const std::vector<Flow>& flows, ItemWriter& writer);

} // namespace vantore::wareloca
