#pragma once

#include <optional>

#include "solvers/OPTMZR/search_route.h"

namespace vantore::optmzr {

/// Two stops of two routes that are exchanged, each taking the best place in the other route.
struct SwapStar {
    int positionA = 0; ///< of the stop that leaves route a
    int positionB = 0;
    int afterA = 0; ///< position in route a behind which the stop of b comes
    int afterB = 0;

    Splice newA(const SearchRoute& a, const SearchRoute& b) const;
    Splice newB(const SearchRoute& a, const SearchRoute& b) const;
};

/// The swap that gains most by the legs, at the rate of each route's last hour, and by the loads as if their
/// order didn't matter; none where no swap gains anything. Of each stop only the three cheapest places in the
/// other route are weighed, and the place of the stop that it is exchanged for.
/// Source: Vidal, "Hybrid genetic search for the CVRP: open-source implementation and SWAP* neighborhood"
/// (2022).
std::optional<SwapStar> bestSwap(const Instance& instance, const RouteJudge& judge, const SearchRoute& a,
                                 const SearchRoute& b);

} // namespace vantore::optmzr
