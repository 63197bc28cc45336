#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "shell/base/message.h"
#include "shell/base/number.h"
#include "shell/base/print_lines.h"
#include "shell/base/record_fields.h"

namespace vantore {

/// A place to which transport costs something: what the location modules are about.
struct WeightedPoint {
    std::string label;
    double x = 0;
    double y = 0;
    double volume = 0;
    double rate = 0; ///< transport rate for one unit of volume over one unit of distance

    double weight() const { return volume * rate; }
};

/// The members that the files hold and the user edits, in their order.
inline constexpr std::array<Field<WeightedPoint>, 5> weightedPointFields = {
    &WeightedPoint::label, &WeightedPoint::x, &WeightedPoint::y, &WeightedPoint::volume,
    &WeightedPoint::rate};

/// A new problem: a label, coordinates that are miles or kilometres already, and a point to begin with.
template <class Problem>
Problem newProblem() {
    Problem problem;
    problem.label = "Enter label";
    problem.mapFactor = 1;
    problem.rowCount = 1;
    problem.points(1).label = "Enter label";
    return problem;
}

/// Reads a problem that is its scalars and at most so many points. InputPastEnd for a short file,
/// SubscriptOutOfRange for a count of points outside 0 to `mostPoints`.
template <class Problem>
Problem readWithPoints(ItemReader& reader, std::span<const Field<Problem>> scalars, int mostPoints) {
    Problem problem;
    readFields<Problem>(reader, problem, scalars);
    problem.rowCount = reader.readCount(mostPoints);
    for (int i = 1; i <= problem.rowCount; ++i)
        readFields<WeightedPoint>(reader, problem.points(i), weightedPointFields);
    return problem;
}

/// Writes one; the points' labels without blanks at their ends, an empty one as one blank.
template <class Problem>
void writeWithPoints(const Problem& problem, std::span<const Field<Problem>> scalars, ItemWriter& writer) {
    writeFields<Problem>(writer, problem, scalars);
    writer.endLine().number(problem.rowCount).endLine();
    for (int i = 1; i <= problem.rowCount; ++i)
        writeRow<WeightedPoint>(writer, problem.points(i), weightedPointFields);
}

struct Location {
    double x = 0;
    double y = 0;
};

/// Sums of w, w x and w y over points, each weight divided by something.
struct WeightedSums {
    Number x;
    Number y;
    Number weight;

    void add(const WeightedPoint& point, double divisor = 1) {
        x += point.weight() * point.x / divisor;
        weight += point.weight() / divisor;
        y += point.weight() * point.y / divisor;
    }

    /// DivisionByZero when the weights come to 0.
    Location mean() const { return {x / weight, y / weight}; }
};

/// A range to which a value of a point must keep, and what is told when it doesn't.
struct PointRange {
    double WeightedPoint::*value;
    double least;
    double most;
    const char* text;
    const char* title;
};

using PointRanges = std::array<PointRange, 4>;

inline constexpr PointRange anyRate = {&WeightedPoint::rate, 0, 99999.9999,
                                       "No transport rate should be outside the range of 0 to 99999.9999.",
                                       "Transport rate"};

/// The ranges of X, Y, volume and rate, in the order in which they are tested.
constexpr PointRanges pointRanges(const PointRange& rate = anyRate) {
    return {{{&WeightedPoint::x, 0, 99999, "No X coordinate should be outside the range of 0 to 99,999.",
              "X coordinate"},
             {&WeightedPoint::y, 0, 99999, "No Y coordinate should be outside the range of 0 to 99,999.",
              "Y coordinate"},
             {&WeightedPoint::volume, 0, 999999999,
              "No volume should be outside the range of 0 to 999,999,999.", "Point volume"},
             rate}};
}

/// The first range that a point doesn't keep to.
std::optional<Message> rangeFault(const WeightedPoint& point, const PointRanges& ranges);

/// The same of the first of several points that has one, its number (from 1) behind the text.
std::optional<Message> rangeFault(std::span<const WeightedPoint> points, const PointRanges& ranges);

/// Prints the points as a table with its headings.
void printPoints(PrintLines& page, std::span<const WeightedPoint> points);

} // namespace vantore
