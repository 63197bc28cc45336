#include "solvers/MIP/proof.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/exact_simplex.h"
#include "solvers/MIP/floating_simplex.h"
#include "solvers/MIP/propagation.h"
#include "solvers/MIP/pseudo_costs.h"

namespace vantore::mip {

namespace {

constexpr double leastFraction = 1E-06; // The library's values nearer to a whole number count as one.
constexpr long long nodesBetweenNews = 100;

/// The cost that a solution has to beat.
class Cutoff {
  public:
    explicit Cutoff(const Model& model) : whole_(model.hasWholeObjective()) {}

    void set(const Rational& best) {
        best_ = best;
        // With whole costs the next better one is lower by 1.
        most_ = whole_ ? Integer(best.get_num() - 1) : ceilingOf(best.get_num(), best.get_den());
    }

    /// The whole number above which no cost is of interest.
    const std::optional<Integer>& most() const { return most_; }

    /// True when nothing that costs at least `cost` over `scale` is better.
    bool excludes(const Integer& cost, const Integer& scale) const {
        if (!best_) return false;
        return whole_ ? cost > *most_ * scale : cost * best_->get_den() >= best_->get_num() * scale;
    }

  private:
    bool whole_;
    std::optional<Rational> best_;
    std::optional<Integer> most_;
};

/// A part of all solutions, and how it came about.
struct Node {
    Box box;
    std::optional<Branching> branching;
};

class Proof {
  public:
    Proof(const Model& model, const ProofNews& news)
        : model_(divided(model)), news_(news), propagation_(model_), floating_(model_), exact_(model_),
          cutoff_(model_), pseudoCosts_(model_.columnCount()) {}

    void run(const std::optional<Rational>& best) {
        if (best) limitTo(*best);
        Box root = model_.box;
        if (propagation_.narrow(root)) open_.push_back({std::move(root), std::nullopt});
        while (!open_.empty()) {
            Node node = std::move(open_.back());
            open_.pop_back();
            examine(node);
            if (++nodes_ % nodesBetweenNews == 0) news_.nodes(nodes_);
        }
        news_.nodes(nodes_);
    }

  private:
    void limitTo(const Rational& best) {
        cutoff_.set(best);
        propagation_.limitCost(*cutoff_.most());
    }

    /// Finds that the node holds nothing better, takes the best that it holds, or branches.
    void examine(Node& node) {
        const FloatingSimplex::Guess guess = floating_.solve(node.box);
        if (guess.end == LinearEnd::Infeasible && isContradiction(node.box, guess.multipliers)) return;
        if (guess.end == LinearEnd::Optimal) {
            if (node.branching) pseudoCosts_.learn(*node.branching, guess.cost);
            if (isExcluded(node.box, guess.multipliers)) return;
            if (const auto column = columnToBranchOn(node.box, guess.values))
                return branchNear(node.box, *column, guess.values[*column], guess.cost);
        }
        examineExactly(node.box);
    }

    /// A library's ray may point either way.
    bool isContradiction(const Box& box, const Multipliers& multipliers) const {
        std::vector<Integer> turned = multipliers.rows;
        for (Integer& factor : turned) factor = -factor;
        return contradict(model_, box, multipliers.rows) || contradict(model_, box, std::move(turned));
    }

    /// True when the multipliers show that nothing in the box is better. Otherwise takes off the box what
    /// they show to be no better.
    bool isExcluded(Box& box, const Multipliers& multipliers) const {
        const auto bound = safeBound(model_, box, multipliers);
        if (!bound) return false;
        if (cutoff_.excludes(bound->cost, multipliers.scale)) return true;
        return cutoff_.most() && !fixByReducedCosts(box, *bound, multipliers.scale);
    }

    /// Each unit that a variable leaves its cheaper end by costs its reduced cost.
    bool fixByReducedCosts(Box& box, const SafeBound& bound, const Integer& scale) const {
        const Integer room = *cutoff_.most() * scale - bound.cost;
        for (std::size_t j = 0; j < box.size(); ++j) {
            const Integer& each = bound.reducedCosts[j];
            if (each == 0 || !model_.whole[j]) continue;
            Range& range = box[j];
            const Integer units = floorOf(room, abs(each));
            if (each > 0 && (!range.upper || *range.lower + units < *range.upper))
                range.upper = *range.lower + units;
            if (each < 0 && (!range.lower || *range.upper - units > *range.lower))
                range.lower = *range.upper - units;
        }
        return !hasEmptyRange(box);
    }

    std::optional<std::size_t> columnToBranchOn(const Box& box, const std::vector<double>& values) const {
        std::optional<std::size_t> chosen;
        double best = 0;
        for (std::size_t j = 0; j < values.size(); ++j) {
            if (!model_.whole[j] || isFixed(box[j])) continue;
            const double fraction = values[j] - std::floor(values[j]);
            if (!(std::min(fraction, 1 - fraction) > leastFraction)) continue;
            const double score = pseudoCosts_.score(j, fraction);
            if (chosen && score <= best) continue;
            chosen = j;
            best = score;
        }
        return chosen;
    }

    static bool isFixed(const Range& range) {
        return range.lower && range.upper && *range.lower == *range.upper;
    }

    void branchNear(const Box& box, std::size_t column, double value, double cost) {
        const double below = std::floor(value);
        const Branching branching{column, value - below > .5, value - below, cost};
        branch(box, column, Integer(below), branching);
    }

    /// Splits the box above a value of a variable; the part that `branching` tells of comes first.
    void branch(const Box& box, std::size_t column, Integer below, std::optional<Branching> branching) {
        const Range& range = box[column];
        if (range.lower && below < *range.lower) below = *range.lower;
        if (range.upper && below >= *range.upper) below = *range.upper - 1;
        const bool upFirst = branching && branching->up;
        for (const bool up : {!upFirst, upFirst}) {
            Box part = box;
            (up ? part[column].lower : part[column].upper) = up ? Integer(below + 1) : below;
            if (branching) branching->up = up;
            if (propagation_.narrow(part, column)) open_.push_back({std::move(part), branching});
        }
    }

    /// Where doubles can't tell: the node's linear program solved in whole numbers.
    void examineExactly(Box& box) {
        if (nodes_ == 0) exact_.takeIntoBasis(floating_.basicColumns());
        const ExactResult result = exact_.solve(box);
        if (result.end == LinearEnd::Infeasible && contradict(model_, box, result.multipliers.rows)) return;
        if (result.end != LinearEnd::Optimal) throw std::logic_error("a node without an optimum");
        if (isExcluded(box, result.multipliers)) return;
        for (std::size_t j = 0; j < result.values.size(); ++j) {
            if (!model_.whole[j] || result.values[j] % result.scale == 0) continue;
            return branch(box, j, floorOf(result.values[j], result.scale), std::nullopt);
        }
        const ExactPoint point{result.values, result.scale};
        limitTo(costOf(model_, point));
        news_.betterSolution(point);
    }

    Model model_;
    const ProofNews& news_;
    Propagation propagation_;
    FloatingSimplex floating_;
    ExactSimplex exact_;
    Cutoff cutoff_;
    PseudoCosts pseudoCosts_;
    std::vector<Node> open_;
    long long nodes_ = 0;
};

} // namespace

void prove(const Model& model, std::optional<Rational> best, const ProofNews& news) {
    Proof(model, news).run(best);
}

} // namespace vantore::mip
