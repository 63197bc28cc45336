#include "routing/ROUTE/method.h"

#include <algorithm>
#include <optional>

namespace vantore::route {

namespace {

constexpr double costUnits = 100;    // the solver's units to one of the problem's
constexpr double infinity = 9999999; // no label reaches it
constexpr int mostSortedNodes = 2 * mostSolvedArcs;

/// One end of an arc, as the other end sees it.
struct Slot {
    int neighbour = 0;
    double cost = 0;
};

/// An arc in use between two positions of the sorted node table.
struct UsedArc {
    int a = 0;
    int b = 0;
    double cost = 0;
};

/// The arcs in use, each twice, grouped by the node they leave.
class ForwardStar {
  public:
    explicit ForwardStar(const RouteNetwork& network) {
        const std::vector<const ArcRow*> used = arcsInUse(network);
        arcCount_ = static_cast<int>(used.size());
        sortNodes(used);
        std::vector<UsedArc> arcs;
        for (const ArcRow* arc : used)
            arcs.push_back({*position(arc->first()), *position(arc->second()), arc->cost * costUnits});
        fillSlots(arcs);
    }

    int nodeCount() const { return nodeCount_; }
    int arcCount() const { return arcCount_; }
    int nodeAt(int position) const { return sorted_(position); }

    std::optional<int> position(int node) const {
        const auto nodes = sorted_.span().first(static_cast<std::size_t>(nodeCount_));
        const auto found = std::ranges::lower_bound(nodes, node);
        if (found == nodes.end() || *found != node) return std::nullopt;
        return static_cast<int>(found - nodes.begin()) + 1;
    }

    /// The slots of a position, the arcs in the reverse of their order in the arc list.
    std::span<const Slot> slotsOf(int position) const {
        const int begin = first_(position);
        const int count = first_(position + 1) - begin;
        return slots_.span().subspan(static_cast<std::size_t>(begin - 1), static_cast<std::size_t>(count));
    }

  private:
    static std::vector<const ArcRow*> arcsInUse(const RouteNetwork& network) {
        std::vector<const ArcRow*> used;
        for (int i = 1; i <= network.arcCount; ++i) {
            const double cost = network.arcs(i).cost * costUnits;
            if (cost > 0 && cost < infinity) used.push_back(&network.arcs(i));
        }
        return used;
    }

    void sortNodes(const std::vector<const ArcRow*>& used) {
        std::vector<int> nodes;
        for (const ArcRow* arc : used) nodes.insert(nodes.end(), {arc->first(), arc->second()});
        std::ranges::sort(nodes);
        for (const int node : nodes)
            if (nodeCount_ == 0 || sorted_(nodeCount_) != node) sorted_(++nodeCount_) = node;
    }

    /// Fills each node's block from its top downward.
    void fillSlots(const std::vector<UsedArc>& arcs) {
        for (const UsedArc& arc : arcs) {
            ++first_(arc.a);
            ++first_(arc.b);
        }
        int slots = 0;
        for (int position = 1; position <= nodeCount_; ++position)
            first_(position) = slots += first_(position);
        for (const UsedArc& arc : arcs) {
            slots_(first_(arc.a)--) = {arc.b, arc.cost};
            slots_(first_(arc.b)--) = {arc.a, arc.cost};
        }
        for (int position = 1; position <= nodeCount_; ++position) ++first_(position);
        first_(nodeCount_ + 1) = slots + 1;
    }

    int nodeCount_ = 0;
    int arcCount_ = 0;
    Table<int, 1, mostSortedNodes> sorted_;
    Table<int, 1, mostSortedNodes + 1> first_;
    Table<Slot, 1, 2 * mostSolvedArcs> slots_;
};

/// Label setting from one origin.
class Labelling {
  public:
    Labelling(const ForwardStar& star, int origin) : star_(star), origin_(origin) {
        label_.fill(infinity);
        label_(origin) = 0;
        state_(origin) = State::Settled;
        std::optional<int> current = origin;
        while (current) {
            labelFrom(*current);
            current = takeCheapest();
        }
    }

    Path pathTo(int position) const {
        Path path{star_.nodeAt(position), 0, {}};
        if (label_(position) >= infinity) return path;
        path.cost = label_(position) / costUnits;
        for (int at = position; at != origin_; at = predecessor_(at)) path.nodes.push_back(star_.nodeAt(at));
        path.nodes.push_back(star_.nodeAt(origin_));
        std::ranges::reverse(path.nodes);
        return path;
    }

  private:
    enum class State { Unseen, Candidate, Settled };

    void labelFrom(int current) {
        for (const Slot& slot : star_.slotsOf(current)) {
            State& state = state_(slot.neighbour);
            const double trial = label_(current) + slot.cost;
            // A settled node's label can only be met by a cost too small to show in it; following that arc
            // would lead in a circle.
            if (state == State::Settled || trial > label_(slot.neighbour)) continue;
            label_(slot.neighbour) = trial;
            predecessor_(slot.neighbour) = current;
            if (state == State::Unseen) candidates_.push_back(slot.neighbour);
            state = State::Candidate;
        }
    }

    std::optional<int> takeCheapest() {
        const auto cheapest = std::ranges::min_element(candidates_, {}, [this](int c) { return label_(c); });
        if (cheapest == candidates_.end() || label_(*cheapest) >= infinity) return std::nullopt;
        const int taken = *cheapest;
        *cheapest = candidates_.back();
        candidates_.pop_back();
        state_(taken) = State::Settled;
        return taken;
    }

    const ForwardStar& star_;
    int origin_;
    Table<double, 1, mostSortedNodes> label_;
    Table<int, 1, mostSortedNodes> predecessor_;
    Table<State, 1, mostSortedNodes> state_;
    std::vector<int> candidates_;
};

} // namespace

Solution shortestPaths(const RouteNetwork& network) {
    checkIndex(network.arcCount, 0, mostSolvedArcs);
    const ForwardStar star(network);
    Solution solution{star.nodeCount(), star.arcCount(), false, {}};
    const std::optional<int> origin = star.position(network.originNode);
    if (!origin) return solution;
    solution.originConnected = true;
    const Labelling labels(star, *origin);
    for (int position = 1; position <= star.nodeCount(); ++position)
        if (position != *origin) solution.paths.push_back(labels.pathTo(position));
    return solution;
}

} // namespace vantore::route
