#include "solvers/MIP/tightening.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "solvers/MIP/check.h"

namespace vantore::mip {

using miprog::Bounds;
using miprog::SolverInput;

namespace {

constexpr int passes = 3;           // over all constraints, to carry bounds from one to the next
constexpr double widening = 1E-09;  // of a derived bound, so that rounding never makes it too tight
constexpr double leastShare = .001; // of the largest other coefficient: what a coefficient keeps
constexpr double worthwhile = .999; // A coefficient is changed when it shrinks below this share.

/// One constraint as "sum of coefficient x variable <= right": "=" stands for two of them.
struct Row {
    std::vector<double> coefs;
    double right = 0;
};

Row rowOf(const SolverInput& input, int i, int sign) {
    Row row;
    for (int j = 1; j <= input.n; ++j) row.coefs.push_back(sign * input.coef(i, j));
    row.right = sign * input.rhs(i);
    return row;
}

/// The least or the most that a sum of terms can be; nothing while a term has no end.
class Reach {
  public:
    void add(double term) {
        if (std::abs(term) >= largestNumber) {
            ++endless_;
        } else {
            sum_ += term;
        }
    }

    /// The same without one of the terms.
    std::optional<double> without(double term) const {
        const bool endless = std::abs(term) >= largestNumber;
        if (endless_ - (endless ? 1 : 0) > 0) return std::nullopt;
        return endless ? sum_ : sum_ - term;
    }

  private:
    double sum_ = 0;
    int endless_ = 0;
};

double term(double coefficient, double bound) {
    if (coefficient == 0) return 0;
    if (std::abs(bound) >= largestNumber)
        return (bound > 0) == (coefficient > 0) ? largestNumber : -largestNumber;
    return coefficient * bound;
}

double leastTerm(double coefficient, const Bounds& bounds) {
    return term(coefficient, coefficient > 0 ? bounds.lower : bounds.upper);
}

double mostTerm(double coefficient, const Bounds& bounds) {
    return term(coefficient, coefficient > 0 ? bounds.upper : bounds.lower);
}

/// Beyond this a double no longer tells a whole number from the next: such a bound is left to the check.
constexpr double largestWholeBound = 1E+15;

Bounds wholeBounds(const Bounds& bounds) {
    return {bounds.lower < -largestWholeBound ? -miprog::noBound : std::ceil(bounds.lower),
            bounds.upper > largestWholeBound ? miprog::noBound : std::floor(bounds.upper)};
}

class Tightening {
  public:
    explicit Tightening(const SolverInput& input)
        : input_(input), bounds_(input.bounds.span().begin(), input.bounds.span().end()),
          binary_(static_cast<std::size_t>(input.n), false) {
        for (const int j : input.intIndex.span()) {
            const auto at = static_cast<std::size_t>(j - 1);
            bounds_[at] = wholeBounds(bounds_[at]);
            binary_[at] = bounds_[at].lower == 0 && bounds_[at].upper == 1;
        }
        for (const Bounds& bounds : bounds_) ownBounds_.add(bounds);
    }

    SolverInput result() {
        for (int pass = 0; pass < passes; ++pass)
            for (int i = 1; i <= input_.m; ++i) {
                if (input_.rowSense(i) >= 0) deriveBounds(rowOf(input_, i, 1));
                if (input_.rowSense(i) <= 0) deriveBounds(rowOf(input_, i, -1));
            }
        SolverInput tight = input_;
        tight.bounds = ownBounds_;
        tight.coefs = {};
        tight.rhs = {};
        for (int i = 1; i <= input_.m; ++i) {
            const int sign = input_.rowSense(i) < 0 ? -1 : 1;
            Row row = rowOf(input_, i, sign);
            if (input_.rowSense(i) != 0) shrinkBinaries(row);
            for (const double coefficient : row.coefs) tight.coefs.add(sign * coefficient);
            tight.rhs.add(sign * row.right);
        }
        return tight;
    }

  private:
    /// The bounds that a constraint sets to each of its variables, the others being where they leave it most
    /// room.
    void deriveBounds(const Row& row) {
        Reach least;
        for (std::size_t j = 0; j < row.coefs.size(); ++j) least.add(leastTerm(row.coefs[j], bounds_[j]));
        for (std::size_t j = 0; j < row.coefs.size(); ++j) {
            if (row.coefs[j] == 0) continue;
            const auto others = least.without(leastTerm(row.coefs[j], bounds_[j]));
            if (!others) continue;
            // The terms are summed from the bounds as they were when the constraint was begun, which holds
            // still.
            bind(row.coefs[j] > 0, (row.right - *others) / row.coefs[j], derived_[j]);
        }
        takeDerived();
    }

    struct Derived {
        std::optional<double> lower, upper;
    };

    static void bind(bool above, double value, Derived& derived) {
        const double margin = widening * std::max(1.0, std::abs(value));
        if (!(std::abs(value) < largestNumber)) return;
        (above ? derived.upper : derived.lower) = value + (above ? margin : -margin);
    }

    void takeDerived() {
        for (std::size_t j = 0; j < bounds_.size(); ++j) {
            Bounds& bounds = bounds_[j];
            if (derived_[j].upper) bounds.upper = std::min(bounds.upper, *derived_[j].upper);
            if (derived_[j].lower) bounds.lower = std::max(bounds.lower, *derived_[j].lower);
            derived_[j] = {};
        }
    }

    void shrinkBinaries(Row& row) const {
        Reach most;
        for (std::size_t j = 0; j < row.coefs.size(); ++j) most.add(mostTerm(row.coefs[j], bounds_[j]));
        for (std::size_t j = 0; j < row.coefs.size(); ++j) {
            if (!binary_[j] || row.coefs[j] == 0) continue;
            const double before = mostTerm(row.coefs[j], bounds_[j]);
            const auto others = most.without(before);
            if (!others) continue;
            shrink(row, j, *others);
            most.add(mostTerm(row.coefs[j], bounds_[j]) - before);
        }
    }

    /// Where the constraint says nothing with the variable at one of its values, it is made to say just what
    /// holds there anyway: that the others come to no more than `others`. The coefficient keeps a size that
    /// is more than rounding beside the others.
    static void shrink(Row& row, std::size_t j, double others) {
        const double size = std::abs(row.coefs[j]);
        const double atOne = row.right - row.coefs[j];
        if (others <= std::min(row.right, atOne) || others >= std::max(row.right, atOne)) return;
        const double needed = row.coefs[j] < 0 ? others - row.right : others - atOne;
        const double kept = std::max(needed, leastShare * largestOther(row, j));
        if (kept >= worthwhile * size) return;
        if (row.coefs[j] > 0) row.right -= size - kept;
        row.coefs[j] = std::copysign(kept, row.coefs[j]);
    }

    static double largestOther(const Row& row, std::size_t j) {
        double largest = 0;
        for (std::size_t k = 0; k < row.coefs.size(); ++k)
            if (k != j) largest = std::max(largest, std::abs(row.coefs[k]));
        return largest;
    }

    const SolverInput& input_;
    std::vector<Bounds> bounds_;     // with those that the constraints imply
    CountedTable<Bounds> ownBounds_; // those of the variables, whole for integer variables
    std::vector<bool> binary_;
    std::vector<Derived> derived_ = std::vector<Derived>(bounds_.size());
};

} // namespace

SolverInput tightened(const SolverInput& input) {
    return Tightening(input).result();
}

bool hidesFractions(const SolverInput& input, double integerTolerance) {
    std::vector<bool> whole(static_cast<std::size_t>(input.n), false);
    for (const int j : input.intIndex.span()) whole[static_cast<std::size_t>(j - 1)] = true;
    for (int i = 1; i <= input.m; ++i) {
        double largestWhole = 0;
        double leastWhole = largestNumber;
        double leastContinuous = largestNumber;
        for (int j = 1; j <= input.n; ++j) {
            const double size = std::abs(input.coef(i, j));
            if (size == 0) continue;
            const bool integer = whole[static_cast<std::size_t>(j - 1)];
            if (integer) largestWhole = std::max(largestWhole, size);
            double& least = integer ? leastWhole : leastContinuous;
            least = std::min(least, size);
        }
        const double hidden = largestWhole * integerTolerance;
        if (hidden > mostHiddenUnits * leastContinuous || hidden > mostHiddenWholeUnits * leastWhole)
            return true;
    }
    return false;
}

} // namespace vantore::mip
