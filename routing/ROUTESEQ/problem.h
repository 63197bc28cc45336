#pragma once

#include <array>
#include <string>

#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::routeseq {

constexpr int mostStops = 500;      ///< rows of the grid
constexpr int mostSolvedStops = 50; ///< that a sequence may hold

struct Stop {
    std::string label;
    double x = 0;
    double y = 0;
};

struct StopSequencingProblem {
    std::string label;
    double circuityFactor = 1; ///< from the straight line to road or rail; 0 counts as 1
    double mapFactor = 1;      ///< from coordinates to miles or kilometres; 0 counts as 1
    double depotX = 0;
    double depotY = 0;
    int stopCount = 0;
    Table<Stop, 1, mostStops> stops;

    /// A distance in coordinates times both factors. Overflow beyond the double range.
    double onTheRoad(double distance) const;
};

/// The members that the file holds and the user edits, in their order.
inline constexpr std::array<Field<StopSequencingProblem>, 5> scalarFields = {
    &StopSequencingProblem::label, &StopSequencingProblem::circuityFactor, &StopSequencingProblem::mapFactor,
    &StopSequencingProblem::depotX, &StopSequencingProblem::depotY};
inline constexpr std::array<Field<Stop>, 3> stopFields = {&Stop::label, &Stop::x, &Stop::y};

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for a count of stops
/// outside 0 to 500.
StopSequencingProblem read(ItemReader& reader);

/// Writes the items; labels without blanks at their ends, an empty one as one blank.
void write(const StopSequencingProblem& problem, ItemWriter& writer);

} // namespace vantore::routeseq
