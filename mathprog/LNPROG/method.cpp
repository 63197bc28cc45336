#include "mathprog/LNPROG/method.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::lnprog {

namespace {

constexpr double zeroTolerance = 0.000001; // an element or infeasibility no larger counts as 0
constexpr double ratioLimit = 999999999;   // ratios from here on don't limit the entering variable

// The initial tableau

void copyCells(Simplex& simplex, const Problem& problem) {
    auto& tableau = simplex.tableau;
    for (int i = 1; i <= problem.objectiveRow(); ++i) {
        const Row& row = problem.rows(i);
        for (int j = 1; j <= problem.variables; ++j)
            tableau(i, j + 1) = problem.coefficients(i, j).value_or(0);
        // The relation is read as one more coefficient; it is 0 unless a file has a number in its place.
        tableau(i, problem.variables + 2) = val(row.relation);
        tableau(i, 1) = row.rightSide;
    }
}

/// Adds the variables of the relations; returns the number of the last variable.
int addVariables(Simplex& simplex, const Problem& problem) {
    int variable = problem.variables;
    const auto add = [&](int row, double coefficient, bool artificial) {
        ++variable;
        simplex.artificialMark(row, variable + 1) = artificial ? 1 : 0;
        simplex.tableau(row, variable + 1) = coefficient;
    };
    for (int i = 1; i <= problem.constraints; ++i) {
        const std::string& relation = problem.rows(i).relation;
        if (relation == "<") {
            add(i, 1, false);
        } else if (relation == "=") {
            add(i, 1, true);
        } else if (relation == ">") {
            add(i, -1, false);
            add(i, 1, true);
        } else {
            continue; // the entry of `basis` stays
        }
        simplex.basis(i) = variable;
    }
    return variable;
}

/// For each column, whether it holds an artificial variable.
using ColumnFlags = Table<std::int32_t, 0, lastTableauColumn>;

ColumnFlags artificialColumns(const Simplex& simplex) {
    ColumnFlags flags;
    for (int i = 1; i <= simplex.constraints; ++i)
        std::ranges::transform(simplex.artificialMark.row(i), flags.span(), flags.span().begin(),
                               std::bit_or<std::int32_t>{});
    return flags;
}

bool hasArtificial(const Simplex& simplex, int row) {
    const auto marks = simplex.artificialMark.row(row);
    return std::ranges::find(marks, 1) != marks.end();
}

/// The phase-one row: the negated sum of the rows with an artificial variable, 0 in the artificial columns.
void setPhaseOneRow(Simplex& simplex, const ColumnFlags& artificial) {
    auto& tableau = simplex.tableau;
    const int row = simplex.phaseOneRow();
    for (int i = 1; i <= simplex.constraints; ++i) {
        if (!hasArtificial(simplex, i)) continue;
        for (int j = 1; j <= simplex.lastColumn; ++j)
            tableau(row, j) = finite(tableau(row, j) - tableau(i, j));
    }
    for (int j = 1; j <= simplex.lastColumn; ++j)
        if (artificial(j) == 1) tableau(row, j) = 0;
}

// Pivoting

constexpr std::uint64_t exponentBits = 0x7FF0000000000000; // of a double; all are 1 in an infinity or NaN
constexpr std::uint64_t exponentUnit = 0x0010000000000000;

/// The top bit is set for an infinity or a NaN and for nothing else. The hot loops gather it in place of a
/// branch, which would keep them from running several elements at a time.
std::uint64_t rangeBit(double value) {
    return (std::bit_cast<std::uint64_t>(value) & exponentBits) + exponentUnit;
}

void checkRange(std::uint64_t gathered) {
    if (gathered > exponentBits) throw RuntimeError(ErrorNumber::Overflow);
}

/// row - factor x pivotRow, an element within the tolerance being set to 0 at once. Returns what `checkRange`
/// tests.
///
/// Nearly all the time of a solve goes here, so it is built a second time for processors with registers of
/// four elements; both give the same bits. It throws nothing itself: built by GCC 12 with the sanitizers, an
/// exception out of such a function isn't caught.
#if defined(__x86_64__) && defined(__linux__)
[[gnu::target_clones("default", "avx2")]]
#endif
std::uint64_t
subtractMultiple(std::span<double> row, std::span<const double> pivotRow, double factor) noexcept {
    std::uint64_t gathered = 0;
    for (std::size_t j = 0; j < row.size(); ++j) {
        const double value = row[j] - factor * pivotRow[j];
        const double kept = std::abs(value) <= zeroTolerance ? 0 : value;
        gathered |= rangeBit(kept);
        row[j] = kept;
    }
    return gathered;
}

/// row / divisor. Overflow when an element leaves the double range.
void divideRow(std::span<double> row, double divisor) {
    std::uint64_t gathered = 0;
    for (double& value : row) {
        value /= divisor;
        gathered |= rangeBit(value);
    }
    checkRange(gathered);
}

/// The pivots of one solve.
class Pivoting {
  public:
    explicit Pivoting(Simplex& simplex) : simplex_(simplex) {}

    /// Pivots until no cost in the last of rows 1 to `costRow` is negative but in a barred column. Returns
    /// where the problem proved unbounded, nothing when it didn't.
    std::optional<Unbounded> run(int costRow, const ColumnFlags& barred);

  private:
    std::span<double> row(int number) {
        return simplex_.tableau.row(number).subspan(1, static_cast<std::size_t>(simplex_.lastColumn));
    }
    int enteringColumn(int costRow, const ColumnFlags& barred);
    std::optional<int> leavingRow(int column) const;
    void pivot(int pivotRow, int pivotColumn, int lastRow);

    Simplex& simplex_;
    std::int16_t iterations_ = 0;
    Table<std::int32_t, 0, lastTableauRow> snapped_; // 1 where all elements have gone through the tolerance
};

std::optional<Unbounded> Pivoting::run(int costRow, const ColumnFlags& barred) {
    while (const int column = enteringColumn(costRow, barred)) {
        const std::optional<int> leaving = leavingRow(column);
        if (!leaving) return Unbounded{column, iterations_ + 1};
        pivot(*leaving, column, costRow);
        iterations_ = toInt16(iterations_ + 1);
    }
    return std::nullopt;
}

/// The column of the most negative cost, the first of equal ones; 0 when there is none.
int Pivoting::enteringColumn(int costRow, const ColumnFlags& barred) {
    const std::span<const double> costs = row(costRow);
    double least = 0;
    int entering = 0;
    for (int j = 2; j <= simplex_.lastColumn; ++j) {
        const double cost = costs[static_cast<std::size_t>(j - 1)];
        if (cost < least && barred(j) == 0) {
            least = cost;
            entering = j;
        }
    }
    return entering;
}

std::optional<int> Pivoting::leavingRow(int column) const {
    const auto& tableau = simplex_.tableau;
    double least = ratioLimit;
    std::optional<int> leaving;
    for (int i = 1; i <= simplex_.constraints; ++i) {
        if (!(tableau(i, column) > 0)) continue;
        const double ratio = divide(tableau(i, 1), tableau(i, column));
        if (ratio < least) {
            least = ratio;
            leaving = i;
        }
    }
    return leaving;
}

/// A row whose element in the pivot column is 0 changes only in that elements within the tolerance become 0,
/// so it is passed over once that has been done.
void Pivoting::pivot(int pivotRow, int pivotColumn, int lastRow) {
    simplex_.basis(pivotRow) = pivotColumn - 1;
    const double element = simplex_.tableau(pivotRow, pivotColumn);
    const std::span<double> source = row(pivotRow);
    for (int i = 1; i <= lastRow; ++i) {
        if (i == pivotRow) continue;
        const double inColumn = simplex_.tableau(i, pivotColumn);
        if (inColumn == 0 && snapped_(i) == 1) continue;
        checkRange(subtractMultiple(row(i), source, divide(inColumn, element)));
        snapped_(i) = 1;
    }
    divideRow(source, element);
    snapped_(pivotRow) = 0;
}

/// Phase one has reached 0, within the tolerance.
bool isFeasible(Simplex& simplex) {
    double& infeasibility = simplex.tableau(simplex.phaseOneRow(), 1);
    if (std::abs(infeasibility) <= zeroTolerance) infeasibility = 0;
    return infeasibility == 0;
}

} // namespace

void buildTableau(Simplex& simplex, const Problem& problem) {
    simplex.tableau.fill(0);
    simplex.artificialMark.fill(0);
    simplex.constraints = problem.constraints;
    copyCells(simplex, problem);
    simplex.lastColumn = addVariables(simplex, problem) + 1;
    simplex.basis(simplex.objectiveRow()) = 0;
}

Outcome solve(Simplex& simplex, const Problem& problem) {
    buildTableau(simplex, problem);
    const ColumnFlags artificial = artificialColumns(simplex);
    setPhaseOneRow(simplex, artificial);
    Pivoting pivoting(simplex);
    if (const auto unbounded = pivoting.run(simplex.phaseOneRow(), ColumnFlags{})) return *unbounded;
    if (!isFeasible(simplex)) return Infeasible{};
    if (const auto unbounded = pivoting.run(simplex.objectiveRow(), artificial)) return *unbounded;
    return Optimal{};
}

std::optional<int> basicRow(const Simplex& simplex, int variable) {
    for (int i = 1; i <= simplex.constraints; ++i)
        if (simplex.basis(i) == variable) return i;
    return std::nullopt;
}

} // namespace vantore::lnprog
