#pragma once

#include <array>
#include <optional>
#include <string>

#include "location/weighted_points.h"
#include "shell/base/table.h"

namespace vantore::pmed {

constexpr int mostPoints = 65;
constexpr int mostCandidates = 15;

/// What the coordinates are, with the numbers of the problem file.
enum class Coordinates {
    Linear = 1, ///< on a grid
    Degrees = 2 ///< west longitude as X, north latitude as Y
};

/// A point to be served, at which a facility may be located where it is a candidate.
struct Site : WeightedPoint {
    double fixedCost = 0; ///< of a facility there
    bool candidate = false;
};

struct Problem {
    std::string label;
    double hScale = 0; ///< from coordinates to miles or kilometres on the horizontal axis
    double vScale = 0; ///< the same on the vertical axis; with degrees the circuity factor
    Coordinates coordinates = Coordinates::Linear;
    int rowCount = 0; ///< N
    Table<Site, 1, mostPoints> sites;

    int candidateCount() const;
};

/// The members that the file holds and the user edits, in their order; the coordinates' kind and the
/// candidate's mark follow them.
inline constexpr std::array<Field<Problem>, 3> scalarFields = {&Problem::label, &Problem::hScale,
                                                               &Problem::vScale};
inline constexpr std::array<Field<Site>, 6> siteFields = {&Site::label,  &Site::x,    &Site::y,
                                                          &Site::volume, &Site::rate, &Site::fixedCost};

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items; a number that is no kind of coordinates stands for linear ones, a mark other
/// than 0 for a candidate. InputPastEnd for a short file, SubscriptOutOfRange for a count of points outside 0
/// to 65.
Problem read(ItemReader& reader);

/// Writes the items; labels of points without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

/// What doesn't allow a solution with so many facilities, the first of: their count, the scaling factors, N,
/// then of each point X, Y, volume, rate, then the candidates.
std::optional<Message> fault(const Problem& problem, double facilities);

} // namespace vantore::pmed
