#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "location/weighted_points.h"
#include "shell/base/table.h"

namespace vantore::cog {

constexpr int mostPoints = 500;

using Point = WeightedPoint;

struct Problem {
    std::string label;
    double powerFactor = 0; ///< T; 0.5 makes distances straight lines
    double mapFactor = 0;   ///< K, from coordinates to miles or kilometres
    int rowCount = 0;       ///< N
    Table<Point, 1, mostPoints> points;

    std::span<const Point> pointSpan() const {
        return points.span().first(static_cast<std::size_t>(rowCount));
    }
};

/// The members that the file holds and the user edits, in their order.
inline constexpr std::array<Field<Problem>, 3> scalarFields = {&Problem::label, &Problem::powerFactor,
                                                               &Problem::mapFactor};
inline constexpr auto pointFields = weightedPointFields;

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for a count of points
/// outside 0 to 500.
Problem read(ItemReader& reader);

/// Writes the items; labels without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

/// The first of T, K and N that doesn't allow a solution.
std::optional<Message> scalarFault(const Problem& problem);

/// The first point, in order, with a value out of range: X, Y, volume, rate.
std::optional<Message> pointFault(const Problem& problem);

} // namespace vantore::cog
