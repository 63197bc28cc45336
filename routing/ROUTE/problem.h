#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::route {

constexpr int mostNodes = 500; ///< rows of the node list, and the largest node number
constexpr int mostArcRows = 2000;
constexpr int mostSolvedArcs = 900;

/// A row of the node list: the texts of its cells, which the file keeps as they stand.
struct NodeRow {
    std::string number;
    std::string name;
    std::string x;
    std::string y;
};

/// The number of a node, as the whole number nearest to its text. Overflow beyond 32 bits.
int nodeNumber(const NodeRow& node);

/// The names of a list's nodes by their numbers. Of equal numbers the first row counts.
class NodeNames {
  public:
    explicit NodeNames(std::span<const NodeRow> nodes);

    /// Empty for a number that no node has.
    std::string of(double number) const;

  private:
    std::unordered_map<double, std::string> names_;
};

/// A row of the arc list; the arc can be travelled both ways. The names are those of the node list.
struct ArcRow {
    double firstNode = 0;
    double secondNode = 0;
    double cost = 0;
    std::string firstName = {};
    std::string secondName = {};

    /// The nodes' numbers, as the nearest whole numbers. Overflow beyond 32 bits.
    int first() const;
    int second() const;
};

inline constexpr std::array<Field<NodeRow>, 4> nodeFields = {&NodeRow::number, &NodeRow::name, &NodeRow::x,
                                                             &NodeRow::y};
/// What the file holds of an arc, and what the user sees of it.
inline constexpr std::array<Field<ArcRow>, 3> storedArcFields = {&ArcRow::firstNode, &ArcRow::secondNode,
                                                                 &ArcRow::cost};
inline constexpr std::array<Field<ArcRow>, 5> shownArcFields = {
    &ArcRow::firstNode, &ArcRow::firstName, &ArcRow::secondNode, &ArcRow::secondName, &ArcRow::cost};

struct RouteNetwork {
    std::string title;
    int originNode = 0;
    int nodeCount = 0;
    int arcCount = 0;
    Table<NodeRow, 1, mostNodes> nodes;
    Table<ArcRow, 1, mostArcRows> arcs;

    /// The rows of the node list that hold data.
    std::span<const NodeRow> listedNodes() const {
        return nodes.span().first(static_cast<std::size_t>(nodeCount));
    }
};

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items, and gives the arcs their nodes' names. InputPastEnd for a short file,
/// SubscriptOutOfRange for more than 500 nodes or 2000 arcs, Overflow for an origin beyond 16 bits.
RouteNetwork read(ItemReader& reader);

/// Writes the items; the texts of the node list without blanks at their ends, an empty one as one blank.
void write(const RouteNetwork& network, ItemWriter& writer);

/// The first thing, in the order of the checks, that doesn't allow a solution.
std::optional<std::string> fault(const RouteNetwork& network);

} // namespace vantore::route
