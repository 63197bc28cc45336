#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "routing/ROUTESEQ/points.h"

namespace vantore::routeseq {

/// The stops of a short route in the order of visit, each once: the convex hull of depot and stops, with the
/// points inside inserted one at a time. Needs at least one stop.
/// Source: the convex hull approach of Norback and Love, "Geometric approaches to solving the traveling
/// salesman problem" (1977), with cheapest insertion.
std::vector<int> shortSequence(const Points& points);

/// The stop that an answer names; nothing for a number outside 1 to `stopCount`. Overflow beyond the double
/// range.
std::optional<int> specifiedStop(std::string_view answer, int stopCount);

/// The stops' numbers with a blank in front of each.
std::string sequenceText(const std::vector<int>& stops);

/// The length of the route from the depot through the stops of a sequence text and back, in the coordinates
/// as typed, times both factors. SubscriptOutOfRange for a stop that the table hasn't, Overflow beyond the
/// double range.
double routeDistance(const StopSequencingProblem& problem, std::string_view sequence);

} // namespace vantore::routeseq
