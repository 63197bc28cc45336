#include "tests/solvers/MIP/problems.h"

#include <cstdint>
#include <random>
#include <stdexcept>

#include "shell/base/number_text.h"
#include "solvers/MIP/report.h"
#include "solvers/MIP/solve.h"

namespace vantore::mip::tests {

using miprog::SolverInput;

SolverInput ProblemText::input() const {
    SolverInput input;
    input.objectiveFlag = maximize ? 1 : -1;
    input.m = static_cast<int>(rows.size());
    input.n = static_cast<int>(objective.size());
    for (std::size_t j = 0; j < objective.size(); ++j) {
        input.names.add("v" + std::to_string(j + 1));
        input.objCoef.add(objective[j]);
        input.bounds.add(bounds.empty() ? miprog::Bounds{} : bounds.at(j));
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int sense = relations.at(i) == '<' ? 1 : relations.at(i) == '=' ? 0 : -1;
        input.rowSense.add(sense);
        ++(sense > 0 ? input.lessCount : sense == 0 ? input.equalCount : input.greaterCount);
        input.rhs.add(rhs.at(i));
        for (const double coefficient : rows[i]) input.coefs.add(coefficient);
    }
    for (const int j : integers) input.intIndex.add(j);
    return input;
}

SolverInput marketSplit() {
    constexpr std::size_t equations = 4;
    constexpr std::size_t variables = 30;
    constexpr std::uint32_t coefficients = 100; // 0 to 99
    std::mt19937 random(3);
    ProblemText text{.maximize = false, .relations = "===="};
    for (std::size_t i = 0; i < equations; ++i) {
        std::vector<double> row;
        double total = 0;
        for (std::size_t j = 0; j < variables; ++j) {
            row.push_back(static_cast<double>(random() % coefficients));
            total += row.back();
        }
        row.resize(variables + 2 * equations, 0);
        row[variables + 2 * i] = 1;
        row[variables + 2 * i + 1] = -1;
        text.rows.push_back(row);
        text.rhs.push_back(static_cast<double>(static_cast<int>(total / 2)));
    }
    for (std::size_t j = 0; j < variables + 2 * equations; ++j) {
        const bool binary = j < variables;
        text.objective.push_back(binary ? 0 : 1);
        text.bounds.push_back({0, binary ? 1 : miprog::noBound});
        if (binary) text.integers.push_back(static_cast<int>(j) + 1);
    }
    return text.input();
}

std::vector<std::string> reportLines(const SolverInput& input) {
    return report(input, solve(input, usualLimits), usualLimits).lines();
}

double figureOf(const std::vector<std::string>& lines, const std::string& label) {
    for (const std::string& line : lines)
        if (line.starts_with(label + "  ")) return val(line.substr(label.size()));
    throw std::runtime_error("no line " + label);
}

} // namespace vantore::mip::tests
