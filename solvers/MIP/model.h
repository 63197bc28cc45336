#pragma once

#include <string>
#include <vector>

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/rational.h"

namespace vantore::mip {

/// The problem in whole numbers, always minimised. What users type are decimal numbers, so a constraint or an
/// objective times a power of ten, over what its numbers have in common, is the same one exactly. Indices
/// are from 0.

/// Whole bounds of a variable or a constraint; nothing where there is none.
struct Range {
    std::optional<Integer> lower, upper;
};

/// The bounds of all variables.
using Box = std::vector<Range>;

struct Term {
    std::size_t column = 0;
    Integer factor; ///< other than 0
};

/// The sum of the terms is within the range; "<" has an upper end, ">" a lower one, "=" both.
struct Row {
    std::vector<Term> terms;
    Range range;
    Rational scale; ///< The row is the constraint of the problem times this.
};

struct Model {
    std::vector<Row> rows;
    Box box;
    std::vector<bool> whole;           ///< which variables are integer or binary
    std::vector<Rational> columnScale; ///< A variable is that of the problem times this: 1 for whole ones.
    std::vector<Integer> costs;
    Rational costScale; ///< The objective is that of the problem times this, negative when that is maximised.

    std::size_t rowCount() const { return rows.size(); }
    std::size_t columnCount() const { return box.size(); }

    /// Nothing but whole numbers in the objective: one solution is better than another by 1 at least.
    bool hasWholeObjective() const;
};

/// The bounds of integer variables are taken to the whole numbers within them.
Model exactModel(const miprog::SolverInput& input);

/// The first variable (from 1) whose bounds have no whole number between them; nothing when each has.
std::optional<int> variableWithoutWholeNumber(const Model& model);

/// The same problem without its objective: all solutions are as good.
Model withoutObjective(Model model);

/// A solution of the problem as the user knows it, all in its units: variable j at j - 1, constraint i at
/// i - 1.
struct Solution {
    std::vector<Rational> values;
    Rational objective;
    std::vector<Rational> leftSides;
};

/// The solution with these values when they keep every bound, constraint and integer requirement exactly;
/// nothing when they don't.
std::optional<Solution> checked(const miprog::SolverInput& input, std::vector<Rational> values);

/// True when `objective` is better than `other` in the problem's sense.
bool better(const miprog::SolverInput& input, const Rational& objective, const Rational& other);

} // namespace vantore::mip
