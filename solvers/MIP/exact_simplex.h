#pragma once

#include <cstddef>
#include <vector>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/model.h"

namespace vantore::mip {

enum class LinearEnd { Optimal, Infeasible, Unbounded };

/// What an exact solution of a linear program comes to. Values and direction are over `scale`.
struct ExactResult {
    LinearEnd end = LinearEnd::Infeasible;
    std::vector<Integer> values;    ///< Optimal
    std::vector<Integer> direction; ///< Unbounded: the cost falls along it for ever.
    Multipliers multipliers;        ///< Optimal: their bound is the optimum. Infeasible: they contradict.
    Integer scale = 1;
};

/// The simplex method for variables with two bounds, in whole numbers: a tableau over one common
/// denominator. It begins where the run before ended, so that a box that differs little takes few pivots.
///
/// It always ends: after a number of pivots that choose by size, Bland's rule takes over.
/// Sources: Edmonds, "Systems of distinct representatives and linear algebra" (1967); Bland, "New finite
/// pivoting rules for the simplex method" (1977); Dutertre and de Moura, "A fast linear-arithmetic solver for
/// DPLL(T)" (2006).
class ExactSimplex {
  public:
    explicit ExactSimplex(const Model& model);

    /// Solves the model within a box.
    ExactResult solve(const Box& box);

    /// Takes these structural variables (from 0) into the basis where that can be, for a start close to the
    /// end.
    void takeIntoBasis(const std::vector<std::size_t>& columns);

  private:
    // Variables: the model's columns first, then the left sides of its rows. The tableau has a row for each
    // basic variable and at last one for the cost; a column for each variable that isn't basic.
    using Line = std::vector<Integer>;

    const Range& rangeOf(std::size_t variable) const;
    std::size_t costLine() const { return basic_.size(); }
    bool canMove(std::size_t column, bool up) const;
    void placeAtBounds();
    void computeValues();
    void pivot(std::size_t line, std::size_t column);
    void leaveAt(std::size_t line, std::size_t column, const Integer& end);
    bool usesBland() const { return pivots_ > patience_; }

    bool makeFeasible(ExactResult& result);
    std::optional<std::size_t> violatedLine() const;
    Integer violation(std::size_t line) const;
    std::optional<std::size_t> columnToMend(std::size_t line, bool up) const;
    void explain(ExactResult& result, std::size_t line, bool tooLow) const;

    bool improve(ExactResult& result);
    std::optional<std::size_t> columnToImprove() const;
    struct Step {
        std::optional<std::size_t> line; ///< whose variable stops the step; none where it is its own bound
        Integer length, over;            ///< length over `over`
    };
    std::optional<Step> longestStep(std::size_t column, bool up) const;
    void take(const Step& step, std::size_t column, bool up);
    void tellDirection(ExactResult& result, std::size_t column, bool up) const;
    void tellOptimum(ExactResult& result) const;

    const Model& model_;
    Box box_;
    std::vector<std::size_t> basic_, free_; // variables of the lines, of the columns
    std::vector<Line> tableau_;
    Integer denominator_ = 1;     // of the tableau and of `values_`
    std::vector<Integer> at_;     // the values of the free variables
    std::vector<Integer> values_; // the values of the basic variables, times the denominator
    long pivots_ = 0, patience_ = 0;
};

} // namespace vantore::mip
