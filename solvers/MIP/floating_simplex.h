#pragma once

#include <ClpSimplex.hpp>
#include <vector>

#include "solvers/MIP/exact_simplex.h"
#include "solvers/MIP/linear_model.h"

namespace vantore::mip {

/// The library's linear programming in doubles: quick and nearly right. What it says is a guess until a
/// certificate bears it out.
class FloatingSimplex {
  public:
    explicit FloatingSimplex(const Model& model);

    struct Guess {
        std::optional<LinearEnd> end; ///< nothing where the library doesn't know
        std::vector<double> values;   ///< Optimal
        double cost = 0;              ///< Optimal; in a unit of the library's own
        Multipliers multipliers;      ///< Optimal, Infeasible
    };

    /// Solves the model within a box, beginning where the run before ended.
    Guess solve(const Box& box);

    /// The model's columns (from 0) in the basis where the last run ended.
    std::vector<std::size_t> basicColumns() const;

  private:
    std::size_t columns_;
    LinearModel linear_;
    ClpSimplex simplex_;
};

} // namespace vantore::mip
