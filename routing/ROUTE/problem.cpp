#include "routing/ROUTE/problem.h"

#include <algorithm>
#include <unordered_set>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::route {

namespace {

using Fault = std::optional<std::string>;
using NodeNumbers = std::unordered_set<int>;

NodeNumbers numbersOf(std::span<const NodeRow> nodes) {
    NodeNumbers numbers;
    for (const NodeRow& node : nodes) numbers.insert(nodeNumber(node));
    return numbers;
}

/// The nodes' numbers of an arc.
struct Ends {
    int first = 0;
    int second = 0;

    bool operator==(const Ends&) const = default;
    Ends reversed() const { return {second, first}; }
    bool touch(int node) const { return first == node || second == node; }
};

CountedTable<Ends> endsOf(const RouteNetwork& network) {
    CountedTable<Ends> ends;
    for (int i = 1; i <= network.arcCount; ++i) ends.add({network.arcs(i).first(), network.arcs(i).second()});
    return ends;
}

Fault countFault(const RouteNetwork& network) {
    if (network.nodeCount == 0) return "No nodes in database.";
    if (network.arcCount == 0) return "No connecting node data in database.";
    if (network.arcCount > mostSolvedArcs) return "ERROR: There are more than 900 arcs in the network.";
    return std::nullopt;
}

Fault originFault(int origin, const NodeNumbers& listed, const CountedTable<Ends>& arcs) {
    if (origin < 1) return "ERROR: Origin node number is less than 1 or blank";
    if (origin > mostNodes) return "ERROR: Origin node number is greater than 500.";
    // A list of blank rows holds nothing but the number 0.
    if (listed == NodeNumbers{0}) return "No data has been entered in node identification list.";
    if (!listed.contains(origin)) return "ERROR: Origin node number not in node list.";
    if (std::ranges::none_of(arcs.span(), [&](const Ends& arc) { return arc.touch(origin); }))
        return joined("Origin node number ", origin) + " is not in arc list.";
    return std::nullopt;
}

Fault duplicateFault(const CountedTable<Ends>& arcs) {
    for (int i = 1; i <= arcs.count(); ++i)
        for (int j = i + 1; j <= arcs.count(); ++j) {
            if (arcs(i) == arcs(j))
                return "WARNING: Node numbers are duplicated at sequence numbers" + str(i) + " and" + str(j) +
                       ".";
            if (arcs(i) == arcs(j).reversed())
                return "WARNING: Node numbers are duplicated and reversed at sequence nnumbers" + str(i) +
                       " and" + str(j) + ".";
        }
    for (int i = 1; i <= arcs.count(); ++i)
        if (arcs(i).first == arcs(i).second)
            return "WARNING: Duplicate node numbers in arc list at sequence number" + str(i) + ".";
    return std::nullopt;
}

Fault rangeFault(const char* which, int node, int arc) {
    const char* range = node < 1 ? "less than 1" : node > mostNodes ? "greater than 500" : nullptr;
    if (range == nullptr) return std::nullopt;
    return std::string("ERROR: ") + which + " node in arc list is " + range + " at sequence number" +
           str(arc) + ".";
}

Fault numberFault(const CountedTable<Ends>& arcs) {
    for (int i = 1; i <= arcs.count(); ++i) {
        if (Fault found = rangeFault("First", arcs(i).first, i)) return found;
        if (Fault found = rangeFault("Second", arcs(i).second, i)) return found;
    }
    return std::nullopt;
}

Fault unlistedFault(const NodeNumbers& listed, const CountedTable<Ends>& arcs) {
    for (const Ends& arc : arcs.span()) {
        if (!listed.contains(arc.first))
            return "ERROR: First node" + str(arc.first) + " in arc list is not in master node list.";
        if (!listed.contains(arc.second))
            return "ERROR: Second node" + str(arc.second) + "in arc list is not in master node list.";
    }
    return std::nullopt;
}

Fault valueFault(const RouteNetwork& network) {
    const auto arcs = network.arcs.span().first(static_cast<std::size_t>(network.arcCount));
    if (std::ranges::all_of(network.listedNodes(),
                            [](const NodeRow& node) { return val(node.x) == 0 && val(node.y) == 0; }))
        return "WARNING: Node coordinates have not been included in the data.";
    if (std::ranges::none_of(arcs, [](const ArcRow& arc) { return arc.cost > 0; }))
        return "WARNING: No costs have been included for the arcs.";
    return std::nullopt;
}

} // namespace

int nodeNumber(const NodeRow& node) {
    return toInt32(val(node.number));
}

NodeNames::NodeNames(std::span<const NodeRow> nodes) {
    for (const NodeRow& node : nodes) names_.emplace(val(node.number), node.name);
}

std::string NodeNames::of(double number) const {
    const auto found = names_.find(number);
    return found == names_.end() ? "" : found->second;
}

int ArcRow::first() const {
    return toInt32(firstNode);
}

int ArcRow::second() const {
    return toInt32(secondNode);
}

std::string skeleton() {
    RouteNetwork network;
    network.title = "Enter label";
    network.nodeCount = network.arcCount = 1;
    network.nodes(1) = {"0", "", "0", "0"};
    ItemWriter writer;
    write(network, writer);
    return writer.text();
}

RouteNetwork read(ItemReader& reader) {
    RouteNetwork network;
    network.title = reader.readString();
    network.originNode = toInt16(reader.readNumber());
    network.nodeCount = reader.readCount(mostNodes);
    for (int i = 1; i <= network.nodeCount; ++i) readFields<NodeRow>(reader, network.nodes(i), nodeFields);
    network.arcCount = reader.readCount(mostArcRows);
    const NodeNames names(network.listedNodes());
    for (int i = 1; i <= network.arcCount; ++i) {
        ArcRow& arc = network.arcs(i);
        readFields<ArcRow>(reader, arc, storedArcFields);
        arc.firstName = names.of(arc.firstNode);
        arc.secondName = names.of(arc.secondNode);
    }
    return network;
}

void write(const RouteNetwork& network, ItemWriter& writer) {
    writer.string(network.title).number(network.originNode).endLine();
    writer.number(network.nodeCount).endLine();
    for (int i = 1; i <= network.nodeCount; ++i) writeRow<NodeRow>(writer, network.nodes(i), nodeFields);
    writer.number(network.arcCount).endLine();
    for (int i = 1; i <= network.arcCount; ++i) writeRow<ArcRow>(writer, network.arcs(i), storedArcFields);
}

std::optional<std::string> fault(const RouteNetwork& network) {
    if (Fault found = countFault(network)) return found;
    const NodeNumbers listed = numbersOf(network.listedNodes());
    const CountedTable<Ends> arcs = endsOf(network);
    if (Fault found = originFault(network.originNode, listed, arcs)) return found;
    if (Fault found = duplicateFault(arcs)) return found;
    if (Fault found = numberFault(arcs)) return found;
    if (Fault found = unlistedFault(listed, arcs)) return found;
    return valueFault(network);
}

} // namespace vantore::route
