#include "tests/routing/ROUTE/plain_route.h"

#include <cmath>

#include "shell/base/number_text.h"

namespace vantore::route::tests {

namespace {

constexpr double endless = 9999999;
constexpr long offset = 10000;

/// Every array has a place 0 that isn't used.
class PlainSolver {
  public:
    explicit PlainSolver(const RouteNetwork& network) : network_(network) {
        for (int i = 1; i <= network.nodeCount; ++i) {
            numbers_.push_back(std::lround(val(network.nodes(i).number)));
            xs_.push_back(val(network.nodes(i).x));
            ys_.push_back(val(network.nodes(i).y));
        }
        for (int i = 1; i <= network.arcCount; ++i) {
            // Halves go to the even number.
            from_.push_back(std::lrint(network.arcs(i).firstNode));
            to_.push_back(std::lrint(network.arcs(i).secondNode));
            costs_.push_back(network.arcs(i).cost);
        }
    }

    PlainRun run() {
        say(network_.title);
        say("Origin node number =" + number(origin()));
        const std::string wrong = check();
        if (!wrong.empty()) {
            run_.boxes.push_back(wrong);
            return run_;
        }
        build();
        if (count_ < 2) run_.boxes.emplace_back("ERROR: At least two nodes are needed.");
        say("   Number of nodes =" + number(count_));
        say("   Number of arcs =" + number(static_cast<long>(endpoints_.size() - 1) / 2));
        long start = 0;
        for (long p = 1; p <= count_; ++p)
            if (sorted_[at(p)] == origin() + offset) start = p;
        if (start == 0) {
            run_.boxes.emplace_back("ERROR: The origin node is not connected to the network.");
            say("ERROR: THE ORIGIN NODE IS NOT CONNECTED TO THE NETWORK");
            return run_;
        }
        forwardStar();
        labelFrom(start);
        writePaths(start);
        run_.solved = true;
        return run_;
    }

  private:
    static std::size_t at(long index) { return static_cast<std::size_t>(index); }
    static std::string number(long value) { return (value < 0 ? "" : " ") + std::to_string(value) + " "; }
    long origin() const { return network_.originNode; }
    long arcs() const { return static_cast<long>(from_.size()) - 1; }
    void say(const std::string& line) { run_.report.push_back(line); }

    bool listed(long node) const {
        for (std::size_t i = 1; i < numbers_.size(); ++i)
            if (numbers_[i] == node) return true;
        return false;
    }

    std::string check() const {
        if (numbers_.size() == 1) return "No nodes in database.";
        if (arcs() == 0) return "No connecting node data in database.";
        if (arcs() > 900) return "ERROR: There are more than 900 arcs in the network.";
        if (origin() < 1) return "ERROR: Origin node number is less than 1 or blank";
        if (origin() > 500) return "ERROR: Origin node number is greater than 500.";
        bool anyNumber = false;
        for (std::size_t i = 1; i < numbers_.size(); ++i) anyNumber = anyNumber || numbers_[i] != 0;
        if (!anyNumber) return "No data has been entered in node identification list.";
        if (!listed(origin())) return "ERROR: Origin node number not in node list.";
        bool joinedToArc = false;
        for (long i = 1; i <= arcs(); ++i)
            joinedToArc = joinedToArc || from_[at(i)] == origin() || to_[at(i)] == origin();
        if (!joinedToArc) return "Origin node number " + std::to_string(origin()) + " is not in arc list.";
        if (std::string wrong = checkPairs(); !wrong.empty()) return wrong;
        if (std::string wrong = checkArcs(); !wrong.empty()) return wrong;
        bool anyPlace = false;
        for (std::size_t i = 1; i < numbers_.size(); ++i) anyPlace = anyPlace || xs_[i] != 0 || ys_[i] != 0;
        if (!anyPlace) return "WARNING: Node coordinates have not been included in the data.";
        bool anyCost = false;
        for (long i = 1; i <= arcs(); ++i) anyCost = anyCost || costs_[at(i)] > 0;
        if (!anyCost) return "WARNING: No costs have been included for the arcs.";
        return "";
    }

    std::string checkPairs() const {
        for (long i = 1; i < arcs(); ++i)
            for (long j = i + 1; j <= arcs(); ++j) {
                const bool same = from_[at(i)] == from_[at(j)] && to_[at(i)] == to_[at(j)];
                const bool reversed = from_[at(i)] == to_[at(j)] && to_[at(i)] == from_[at(j)];
                if (!same && !reversed) continue;
                const std::string where = " " + std::to_string(i) + " and " + std::to_string(j) + ".";
                return (same ? "WARNING: Node numbers are duplicated at sequence numbers"
                             : "WARNING: Node numbers are duplicated and reversed at sequence nnumbers") +
                       where;
            }
        for (long i = 1; i <= arcs(); ++i)
            if (from_[at(i)] == to_[at(i)])
                return "WARNING: Duplicate node numbers in arc list at sequence number " + std::to_string(i) +
                       ".";
        return "";
    }

    std::string checkArcs() const {
        for (long i = 1; i <= arcs(); ++i) {
            const std::string where = " at sequence number " + std::to_string(i) + ".";
            if (from_[at(i)] < 1) return "ERROR: First node in arc list is less than 1" + where;
            if (from_[at(i)] > 500) return "ERROR: First node in arc list is greater than 500" + where;
            if (to_[at(i)] < 1) return "ERROR: Second node in arc list is less than 1" + where;
            if (to_[at(i)] > 500) return "ERROR: Second node in arc list is greater than 500" + where;
        }
        for (long i = 1; i <= arcs(); ++i) {
            if (!listed(from_[at(i)]))
                return "ERROR: First node " + std::to_string(from_[at(i)]) +
                       " in arc list is not in master node list.";
            if (!listed(to_[at(i)]))
                return "ERROR: Second node " + std::to_string(to_[at(i)]) +
                       "in arc list is not in master node list.";
        }
        return "";
    }

    /// The place of a node in the sorted table, or minus the place where it is to be put in.
    long bisect(long node) const {
        long lower = 1;
        long upper = count_ + 1;
        while (true) {
            const long middle = (lower + upper) / 2;
            if (sorted_[at(middle)] == node) return middle;
            if (middle == lower) return sorted_[at(middle)] > node ? -middle : -(middle + 1);
            (sorted_[at(middle)] > node ? upper : lower) = middle;
        }
    }

    void build() {
        std::vector<long> nodes(1);
        for (long i = 1; i <= arcs(); ++i) {
            const double cost = costs_[at(i)] * 100;
            if (!(cost > 0 && cost < endless)) continue;
            for (const long node : {from_[at(i)] + offset, to_[at(i)] + offset}) {
                const long place = bisect(node);
                if (place < 0) {
                    sorted_.insert(sorted_.begin() - place, node);
                    ++count_;
                }
                nodes.push_back(node);
                endCosts_.push_back(cost);
            }
        }
        for (std::size_t e = 1; e < nodes.size(); ++e) endpoints_.push_back(bisect(nodes[e]));
    }

    void forwardStar() {
        first_.assign(at(count_ + 2), 0);
        for (std::size_t e = 1; e < endpoints_.size(); ++e) ++first_[at(endpoints_[e])];
        for (long p = 2; p <= count_ + 1; ++p) first_[at(p)] += first_[at(p - 1)];
        neighbours_.assign(endpoints_.size(), 0);
        slotCosts_.assign(endpoints_.size(), 0);
        for (std::size_t e = 1; e < endpoints_.size(); e += 2) {
            const long a = endpoints_[e];
            const long b = endpoints_[e + 1];
            long x = first_[at(a)]--;
            neighbours_[at(x)] = b;
            slotCosts_[at(x)] = endCosts_[e];
            x = first_[at(b)]--;
            neighbours_[at(x)] = a;
            slotCosts_[at(x)] = endCosts_[e];
        }
        for (long p = 1; p <= count_ + 1; ++p) ++first_[at(p)];
    }

    void labelFrom(long start) {
        label_.assign(at(count_ + 1), endless);
        before_.assign(at(count_ + 1), 0);
        std::vector<std::string> flag(at(count_ + 1), "F");
        std::vector<long> list(1);
        label_[at(start)] = 0;
        flag[at(start)] = "T";
        long current = start;
        while (true) {
            for (long j = first_[at(current)]; j <= first_[at(current + 1)] - 1; ++j) {
                const long next = neighbours_[at(j)];
                const double trial = label_[at(current)] + slotCosts_[at(j)];
                if (trial > label_[at(next)]) continue;
                label_[at(next)] = trial;
                before_[at(next)] = current;
                if (flag[at(next)] == "T") continue;
                list.push_back(next);
                flag[at(next)] = "T";
            }
            double smallest = endless;
            std::size_t chosen = 0;
            for (std::size_t c = 1; c < list.size(); ++c)
                if (label_[at(list[c])] < smallest) {
                    smallest = label_[at(list[c])];
                    chosen = c;
                }
            if (chosen == 0) return;
            current = list[chosen];
            list[chosen] = list.back();
            list.pop_back();
        }
    }

    void writePaths(long start) {
        say("");
        say("Shortest paths from origin node" + number(origin()));
        say("to all destination nodes");
        say("      Cost Path");
        for (long p = 1; p <= count_; ++p) {
            if (p == start) continue;
            const long node = sorted_[at(p)] - offset;
            if (label_[at(p)] >= endless) {
                run_.boxes.push_back("Node " + std::to_string(node) + " is not connected to node " +
                                     std::to_string(origin()));
                say("NODE" + number(node));
                say("IS NOT CONNECTED TO NODE" + number(origin()));
                continue;
            }
            std::vector<long> stack;
            for (long q = p; q != start; q = before_[at(q)]) stack.push_back(sorted_[at(q)] - offset);
            writePath(label_[at(p)] / 100, stack);
        }
    }

    void writePath(double cost, const std::vector<long>& stack) {
        const std::string text = format(cost, "###,##0.00");
        std::string line = std::string(10 - text.size(), ' ') + text + number(origin());
        run_.paths.push_back(defaultText(cost));
        run_.paths.push_back(std::to_string(stack.size() + 1));
        run_.paths.push_back(std::to_string(origin()));
        for (auto node = stack.rbegin(); node != stack.rend(); ++node) {
            line += "->" + number(*node);
            run_.paths.push_back(std::to_string(*node));
        }
        say(line);
    }

    const RouteNetwork& network_;
    PlainRun run_;
    std::vector<long> numbers_ = {0}, from_ = {0}, to_ = {0};
    std::vector<double> xs_ = {0}, ys_ = {0}, costs_ = {0};
    long count_ = 0;
    std::vector<long> sorted_ = {0, 1000000};
    std::vector<long> endpoints_ = {0};
    std::vector<double> endCosts_ = {0};
    std::vector<long> first_, neighbours_, before_;
    std::vector<double> slotCosts_, label_;
};

} // namespace

PlainRun plainSolve(const RouteNetwork& network) {
    return PlainSolver(network).run();
}

} // namespace vantore::route::tests
