#pragma once

#include "routing/ROUTER/problem.h"

namespace vantore::router {

/// A place on the grid.
struct Place {
    double x = 0;
    double y = 0;
};

/// Distance per unit of the grid, along each axis.
struct GridScale {
    double horizontal = 1;
    double vertical = 1;
};

/// The length of the straight line between two places.
double straightDistance(Place a, Place b, GridScale scale);

/// What a barrier does to a straight way.
struct BarrierEffect {
    double detour = 0;       ///< distance that the way round it adds
    bool endsInside = false; ///< an end of the way lies within the barrier, so that there is no way round
};

/// The effect of one barrier on the way between two places that don't coincide: where the way crosses two of
/// its edges, the shorter part of the perimeter between the crossings replaces the piece inside. A way along
/// a vertical or horizontal edge isn't hindered, and one along a sloped edge doesn't cross that edge. The
/// result isn't finite where the coordinates are beyond all bounds.
BarrierEffect barrierEffect(const Barrier& barrier, Place from, Place to, GridScale scale);

} // namespace vantore::router
