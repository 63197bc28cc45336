#pragma once

#include <cstdint>
#include <string>

#include "shell/base/item_stream.h"
#include "shell/base/table.h"

namespace vantore::tranlp {

/// Most sources or sinks, a balancing one included.
constexpr int mostPlaces = 102;

/// A table with an element for each source or each sink, and one for each cell.
template <class T>
using PlaceTable = Table<T, 0, mostPlaces>;
template <class T>
using CellTable = Table2<T, 0, mostPlaces, 0, mostPlaces>;

/// Sources i = 1..M with what they can ship, sinks j = 1..N with what they need, and what a unit costs from
/// one to the other.
struct Problem {
    std::string label;
    int sources = 0; ///< M
    int sinks = 0;   ///< N
    PlaceTable<std::string> sourceName, sinkName;
    PlaceTable<double> supply, demand;
    CellTable<double> cost; ///< 0 where the cell is blank or no number
};

/// The text of a new problem's file.
std::string skeleton();

/// The headings that a place has until it is given a name: "F1" and "T1".
std::string defaultSourceName(int source);
std::string defaultSinkName(int sink);

/// What a problem file holds. A cell that it doesn't name stays blank, one that it names with 0 shows 0.
struct ProblemFile {
    Problem problem;
    CellTable<std::uint8_t> named; ///< 1 where the file names the cell
};

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for counts outside 0 to
/// 102 and for a cost of a cell that the counts don't have.
ProblemFile read(ItemReader& reader);

/// Writes the items: names without blanks at their ends, an empty one as one blank; costs other than 0.
void write(const Problem& problem, ItemWriter& writer);

} // namespace vantore::tranlp
