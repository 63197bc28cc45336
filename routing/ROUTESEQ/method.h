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

} // namespace vantore::routeseq
