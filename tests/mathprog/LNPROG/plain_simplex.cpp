#include "tests/mathprog/LNPROG/plain_simplex.h"

#include <cmath>
#include <cstddef>

#include "shell/base/number_text.h"

namespace vantore::lnprog::tests {

namespace {

constexpr double tolerance = 0.000001;

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

void PlainSimplex::add(int row, int variable, double coefficient, int mark) {
    artificialMark[at(row)][at(variable + 1)] = mark;
    tableau[at(row)][at(variable + 1)] = coefficient;
}

void PlainSimplex::build(const Problem& problem) {
    tableau = {};
    artificialMark = {};
    constraints = problem.constraints;
    const int n = problem.variables;
    for (int i = 1; i <= constraints + 1; ++i) {
        for (int j = 1; j <= n; ++j) tableau[at(i)][at(j + 1)] = problem.coefficients(i, j).value_or(0);
        tableau[at(i)][at(n + 2)] = val(problem.rows(i).relation);
        tableau[at(i)][1] = problem.rows(i).rightSide;
    }
    int c = n;
    for (int i = 1; i <= constraints; ++i) {
        const std::string& relation = problem.rows(i).relation;
        if (relation == "<") add(i, ++c, 1, 0);
        if (relation == "=") add(i, ++c, 1, 1);
        if (relation == ">") add(i, ++c, -1, 0);
        if (relation == ">") add(i, ++c, 1, 1);
        if (relation == "<" || relation == "=" || relation == ">") basis[at(i)] = c;
    }
    lastColumn = c + 1;
    basis[at(constraints + 1)] = 0;
    iterations = 0;
}

void PlainSimplex::setPhaseOneRow() {
    const int k2 = constraints + 2;
    for (int j = 1; j <= lastColumn; ++j) {
        tableau[at(k2)][at(j)] = 0;
        for (int i = 1; i <= constraints; ++i)
            for (int l = 1; l <= lastColumn; ++l)
                if (artificialMark[at(i)][at(l)] == 1) {
                    tableau[at(k2)][at(j)] -= tableau[at(i)][at(j)];
                    break;
                }
    }
    for (int i = 1; i <= constraints; ++i)
        for (int j = 1; j <= lastColumn; ++j)
            if (artificialMark[at(i)][at(j)] == 1) tableau[at(k2)][at(j)] = 0;
}

int PlainSimplex::phaseOneColumn() const {
    double r = 0;
    int jp = 0;
    for (int j = 2; j <= lastColumn; ++j)
        if (tableau[at(constraints + 2)][at(j)] < r) {
            r = tableau[at(constraints + 2)][at(j)];
            jp = j;
        }
    return jp;
}

int PlainSimplex::phaseTwoColumn() const {
    double s = 0;
    int jp = 0;
    for (int j = 2; j <= lastColumn; ++j) {
        if (!(tableau[at(constraints + 1)][at(j)] < s)) continue;
        bool marked = false;
        for (int l = 1; l <= constraints; ++l) marked = marked || artificialMark[at(l)][at(j)] == 1;
        if (marked) continue;
        s = tableau[at(constraints + 1)][at(j)];
        jp = j;
    }
    return jp;
}

int PlainSimplex::leavingRow(int column) const {
    double min = 999999999;
    int ip = 0;
    for (int i = 1; i <= constraints; ++i)
        if (tableau[at(i)][at(column)] > 0) {
            const double ratio = tableau[at(i)][1] / tableau[at(i)][at(column)];
            if (ratio < min) {
                min = ratio;
                ip = i;
            }
        }
    return ip;
}

void PlainSimplex::pivot(int pivotRow, int pivotColumn, int lastRow) {
    basis[at(pivotRow)] = pivotColumn - 1;
    const double p = tableau[at(pivotRow)][at(pivotColumn)];
    for (int i = 1; i <= lastRow; ++i) {
        if (i == pivotRow) continue;
        const double f = tableau[at(i)][at(pivotColumn)];
        for (int j = 1; j <= lastColumn; ++j) {
            tableau[at(i)][at(j)] = tableau[at(i)][at(j)] - (f / p) * tableau[at(pivotRow)][at(j)];
            if (std::abs(tableau[at(i)][at(j)]) <= tolerance) tableau[at(i)][at(j)] = 0;
        }
    }
    for (int j = 1; j <= lastColumn; ++j) tableau[at(pivotRow)][at(j)] = tableau[at(pivotRow)][at(j)] / p;
}

Outcome PlainSimplex::solve(const Problem& problem) {
    build(problem);
    setPhaseOneRow();
    while (const int column = phaseOneColumn()) {
        const int row = leavingRow(column);
        if (row == 0) return Unbounded{column, iterations + 1};
        pivot(row, column, constraints + 2);
        ++iterations;
    }
    double& infeasibility = tableau[at(constraints + 2)][1];
    if (std::abs(infeasibility) <= tolerance) infeasibility = 0;
    if (infeasibility != 0) return Infeasible{};
    while (const int column = phaseTwoColumn()) {
        const int row = leavingRow(column);
        if (row == 0) return Unbounded{column, iterations + 1};
        pivot(row, column, constraints + 1);
        ++iterations;
    }
    return Optimal{};
}

} // namespace vantore::lnprog::tests
