#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "mathprog/MIPROG/problem.h"
#include "shell/base/table.h"

namespace vantore::miprog {

/// TEMP.DAT, by which the window hands a problem to the solver.

/// From here on a bound counts as no bound.
constexpr double noBound = 1E+30;

struct Bounds {
    double lower = 0;
    double upper = noBound;
};

/// What TEMP.DAT holds. Rows i run from 1 to m, columns j from 1 to n.
struct SolverInput {
    int objectiveFlag = 1; ///< 1 maximises, -1 minimises
    int m = 0;
    int n = 0;
    int lessCount = 0;
    int equalCount = 0;
    int greaterCount = 0;
    CountedTable<std::string> names; ///< of the variables
    CountedTable<double> coefs;      ///< row by row
    CountedTable<double> rhs;
    CountedTable<int> rowSense; ///< 1 for "<", 0 for "=", -1 for ">"
    CountedTable<double> objCoef;
    CountedTable<Bounds> bounds;
    CountedTable<int> intIndex; ///< the columns of the integer and binary variables

    int intCount() const { return intIndex.count(); }

    double coef(int i, int j) const {
        checkIndex(j, 1, n);
        return coefs(static_cast<long long>(i - 1) * n + j);
    }
};

/// The problem as the solver takes it; nothing when a relation is neither "<" nor "=" nor ">". The name of a
/// variable is its label without the first character.
std::optional<SolverInput> solverInput(const Problem& problem);

/// The lines of TEMP.DAT.
std::vector<std::string> temporaryLines(const SolverInput& input);

/// The largest problem that a TEMP.DAT may hold; more is refused before anything is allocated for it.
constexpr int mostSolverRows = 10000;
constexpr int mostSolverColumns = 10000;
constexpr long long mostSolverCoefficients = 4000000;

/// Why a text is no TEMP.DAT: "Line 5: ..." in `what()`.
class MalformedInput : public std::runtime_error {
  public:
    MalformedInput(std::size_t line, const std::string& why);
};

/// Reads the lines of TEMP.DAT; MalformedInput names the first line that is wrong, and the reason.
SolverInput readTemporaryLines(const std::vector<std::string>& lines);

} // namespace vantore::miprog
