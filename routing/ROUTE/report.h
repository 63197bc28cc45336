#pragma once

#include <optional>
#include <string>
#include <vector>

#include "routing/ROUTE/method.h"
#include "shell/base/print_lines.h"

namespace vantore::route {

/// The report's first lines, which stand in its file whatever the checks find.
PrintLines reportHead(const RouteNetwork& network);

/// The whole report.
PrintLines reportPage(const RouteNetwork& network, const Solution& solution);

/// What the user is told in boxes, in order: a network of too few nodes, an origin that isn't joined to it,
/// each node that the origin doesn't reach.
std::vector<std::string> warnings(const RouteNetwork& network, const Solution& solution);

/// The paths as the working file holds them, an item a line: cost, count of nodes, the nodes.
PrintLines pathFile(const Solution& solution);

/// The path to a node from the lines of the working file; nothing when it holds none. InputPastEnd for a path
/// that is cut off, SubscriptOutOfRange for a count of nodes that no path has.
std::optional<Path> pathFrom(const std::vector<std::string>& lines, double destination);

/// The input data for the printer.
PrintLines dataPage(const RouteNetwork& network);

} // namespace vantore::route
