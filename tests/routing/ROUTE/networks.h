#pragma once

#include <initializer_list>
#include <string>

#include "routing/ROUTE/problem.h"

namespace vantore::route::tests {

/// A network of the nodes 1 to `nodes`, node n at (n, 2n) and called "Nn", with these arcs.
RouteNetwork networkOf(int nodes, int origin, std::initializer_list<ArcRow> arcs);

/// What the costs of a random network are like.
enum class Costs { Few, Cents, Fractional, Wide };

/// A network that passes every check: node numbers and arcs drawn at random, no two arcs between the same
/// nodes, now and then one that is left out for its cost. As many arcs as were asked for, but no more than
/// there are pairs of nodes.
RouteNetwork randomNetwork(int nodes, int arcs, Costs costs, unsigned seed);

/// The same with some of the faults that the checks look for put in at random places.
RouteNetwork faultyNetwork(int nodes, int arcs, unsigned seed);

} // namespace vantore::route::tests
