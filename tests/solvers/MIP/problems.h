#pragma once

#include <string>
#include <vector>

#include "mathprog/MIPROG/exchange.h"

namespace vantore::mip::tests {

/// A problem as a test writes it: one constraint a row, `relations` one character each.
///
///     const SolverInput crates = ProblemText{.maximize = true, .objective = {5, 4},
///         .rows = {{3, 2}, {1, 4}}, .relations = "<<", .rhs = {12, 16}, .integers = {1}}.input();
struct ProblemText {
    bool maximize = true;
    std::vector<double> objective = {};
    std::vector<std::vector<double>> rows = {};
    std::string relations = {};
    std::vector<double> rhs = {};
    std::vector<int> integers = {};          ///< columns from 1
    std::vector<miprog::Bounds> bounds = {}; ///< 0 and no upper one where it is empty

    miprog::SolverInput input() const;
};

/// Four equations of 30 variables of 0 or 1 with random coefficients from 0 to 99, each to be met as nearly
/// as can be: quick to solve somehow, hopeless to solve to the end. Source: Cornuéjols and Dawande, "A class
/// of hard small 0-1 programs" (1998).
miprog::SolverInput marketSplit();

/// The lines of a report, and the figure behind a label of its summary.
std::vector<std::string> reportLines(const miprog::SolverInput& input);
double figureOf(const std::vector<std::string>& lines, const std::string& label);

} // namespace vantore::mip::tests
