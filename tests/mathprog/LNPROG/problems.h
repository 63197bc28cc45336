#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "mathprog/LNPROG/problem.h"

namespace vantore::lnprog::tests {

/// A constraint as a textbook writes it.
struct Constraint {
    std::vector<double> coefficients;
    std::string relation;
    double rightSide = 0;
};

/// The problem that minimises `objective` under the constraints.
inline Problem minimise(const std::vector<double>& objective, const std::vector<Constraint>& constraints) {
    Problem problem;
    problem.variables = static_cast<int>(objective.size());
    const auto put = [&problem](int row, const std::vector<double>& values) {
        int variable = 0;
        for (const double value : values) problem.coefficients(row, ++variable) = value;
    };
    for (const Constraint& constraint : constraints) {
        problem.rows(++problem.constraints) = {constraint.relation, constraint.rightSide};
        put(problem.constraints, constraint.coefficients);
    }
    put(problem.objectiveRow(), objective);
    return problem;
}

} // namespace vantore::lnprog::tests
