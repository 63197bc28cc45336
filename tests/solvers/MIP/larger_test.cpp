#include <glpk.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <numeric>
#include <random>

#include "solvers/MIP/solve.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::SolverInput;
using Row = std::vector<double>;

/// Random problems as large as the window takes, 50 constraints by 99 variables, of the kinds that textbooks
/// have.
class LargerProblems {
  public:
    explicit LargerProblems(unsigned seed) : random_(seed) {}

    int from(int low, int high) {
        return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
    }

    /// Goods in a few lorries, in tenths of a unit of weight.
    ProblemText knapsack() {
        ProblemText text;
        const int goods = from(30, 99);
        for (int j = 1; j <= goods; ++j) addVariable(text, from(100, 999) / 100.0, 1);
        for (int lorries = from(1, 3); lorries > 0; --lorries) {
            Row row;
            int total = 0;
            for (int j = 0; j < goods; ++j) {
                const int tenths = from(10, 400);
                row.push_back(tenths / 10.0);
                total += tenths;
            }
            addRow(text, row, '<', total / 3 / 10.0);
        }
        return text;
    }

    /// Depots so that every town is near one.
    ProblemText cover() {
        ProblemText text{.maximize = false};
        const int depots = from(30, 99);
        for (int j = 0; j < depots; ++j) addVariable(text, from(1000, 5000) / 100.0, 1);
        for (int towns = from(20, 50); towns > 0; --towns) {
            Row row(static_cast<std::size_t>(depots), 0);
            for (int k = 0; k < 5; ++k) row[static_cast<std::size_t>(from(0, depots - 1))] = 1;
            addRow(text, row, '>', 1);
        }
        return text;
    }

    ProblemText assignment() {
        ProblemText text{.maximize = false};
        const int size = from(4, 9);
        const auto cells = static_cast<std::size_t>(size * size);
        for (std::size_t j = 0; j < cells; ++j) addVariable(text, from(10, 999) / 10.0, 1);
        for (int i = 0; i < size; ++i) {
            Row worker(cells, 0), task(cells, 0);
            for (int j = 0; j < size; ++j) {
                worker[static_cast<std::size_t>(i * size + j)] = 1;
                task[static_cast<std::size_t>(j * size + i)] = 1;
            }
            addRow(text, worker, '=', 1);
            addRow(text, task, '=', 1);
        }
        return text;
    }

    /// Plants with a fixed charge of thousands that ship continuous amounts at cents a unit.
    ProblemText fixedCharge() {
        ProblemText text{.maximize = false};
        const int plants = from(3, 7);
        const int towns = from(4, 10);
        const auto flows = static_cast<std::size_t>(plants * towns);
        const std::size_t all = flows + static_cast<std::size_t>(plants);
        for (std::size_t j = 0; j < flows; ++j) addVariable(text, from(100, 900) / 100.0, 0);
        for (int i = 0; i < plants; ++i) addVariable(text, from(1000, 9000), 1);
        int total = 0;
        for (int k = 0; k < towns; ++k) {
            Row row(all, 0);
            for (int i = 0; i < plants; ++i) row[static_cast<std::size_t>(i * towns + k)] = 1;
            const int demand = from(50, 500);
            total += demand;
            addRow(text, row, '>', demand);
        }
        for (int i = 0; i < plants; ++i) {
            Row row(all, 0);
            for (int k = 0; k < towns; ++k) row[static_cast<std::size_t>(i * towns + k)] = 1;
            row[flows + static_cast<std::size_t>(i)] = -(total / 2.0 + from(0, 200));
            addRow(text, row, '<', 0);
        }
        return text;
    }

    /// Whole numbers of coins, boxes, bars that must come to sums exactly.
    ProblemText equality() {
        ProblemText text{.maximize = from(0, 1) == 1};
        const int variables = from(8, 25);
        for (int j = 0; j < variables; ++j) addVariable(text, from(1, 99) / 10.0, -1);
        for (int rows = from(1, 3); rows > 0; --rows) {
            Row row;
            double right = 0;
            for (int j = 0; j < variables; ++j) {
                row.push_back(from(1, 60));
                right += row.back() * from(0, 3);
            }
            addRow(text, row, '=', right);
        }
        return text;
    }

    ProblemText general() {
        ProblemText text{.maximize = from(0, 1) == 1};
        const int variables = from(10, 60);
        for (int j = 0; j < variables; ++j) addVariable(text, from(1, 999) / 10.0, from(-1, 1));
        for (int rows = from(5, 30); rows > 0; --rows) {
            Row row;
            int total = 0;
            for (int j = 0; j < variables; ++j) {
                const int hundredths = from(0, 2) == 0 ? from(1, 900) : 0;
                row.push_back(hundredths / 100.0);
                total += hundredths;
            }
            addRow(text, row, text.maximize ? '<' : '>', (text.maximize ? total : total / 2 * 2) / 100.0);
        }
        for (int j = 0; j < variables; ++j)
            text.bounds[static_cast<std::size_t>(j)].upper =
                std::min(text.bounds[static_cast<std::size_t>(j)].upper, 20.0);
        return text;
    }

  private:
    /// `whole`: 1 for 0-1, -1 for integer, 0 for continuous.
    static void addVariable(ProblemText& text, double cost, int whole) {
        text.objective.push_back(cost);
        text.bounds.push_back({0, whole == 1 ? 1 : miprog::noBound});
        if (whole != 0) text.integers.push_back(static_cast<int>(text.objective.size()));
    }

    static void addRow(ProblemText& text, const Row& row, char relation, double right) {
        text.rows.push_back(row);
        text.relations += relation;
        text.rhs.push_back(right);
    }

    std::mt19937 random_;
};

struct DeleteProblem {
    void operator()(glp_prob* problem) const { glp_delete_prob(problem); }
};

/// What another library says of a problem.
struct Second {
    enum class Says { Optimal, None, NotDone } says = Says::NotDone;
    double objective = 0;
};

void loadRows(glp_prob* problem, const SolverInput& input) {
    std::vector<int> rows(1), columns(1);
    std::vector<double> values(1);
    for (int i = 1; i <= input.m; ++i) {
        const int sense = input.rowSense(i);
        glp_set_row_bnds(problem, i,
                         sense > 0   ? GLP_UP
                         : sense < 0 ? GLP_LO
                                     : GLP_FX,
                         input.rhs(i), input.rhs(i));
        for (int j = 1; j <= input.n; ++j) {
            if (input.coef(i, j) == 0) continue;
            rows.push_back(i);
            columns.push_back(j);
            values.push_back(input.coef(i, j));
        }
    }
    glp_load_matrix(problem, static_cast<int>(values.size()) - 1, rows.data(), columns.data(), values.data());
}

Second askedGlpk(const SolverInput& input, int milliseconds) {
    glp_term_out(GLP_OFF);
    const std::unique_ptr<glp_prob, DeleteProblem> problem(glp_create_prob());
    glp_set_obj_dir(problem.get(), input.objectiveFlag > 0 ? GLP_MAX : GLP_MIN);
    glp_add_rows(problem.get(), input.m);
    glp_add_cols(problem.get(), input.n);
    for (int j = 1; j <= input.n; ++j) {
        const miprog::Bounds& bounds = input.bounds(j);
        glp_set_obj_coef(problem.get(), j, input.objCoef(j));
        glp_set_col_bnds(problem.get(), j, bounds.upper < miprog::noBound ? GLP_DB : GLP_LO, bounds.lower,
                         bounds.upper);
    }
    for (const int j : input.intIndex.span()) glp_set_col_kind(problem.get(), j, GLP_IV);
    loadRows(problem.get(), input);
    glp_iocp control;
    glp_init_iocp(&control);
    control.presolve = GLP_ON;
    control.tm_lim = milliseconds;
    const int fault = glp_intopt(problem.get(), &control);
    if (fault == GLP_ENOPFS || fault == GLP_ENODFS) return {Second::Says::None, 0};
    if (fault != 0) return {};
    const int status = glp_mip_status(problem.get());
    if (status == GLP_NOFEAS) return {Second::Says::None, 0};
    if (status != GLP_OPT) return {};
    return {Second::Says::Optimal, glp_mip_obj_val(problem.get())};
}

/// How many problems are tried; a longer run sets MIP_LARGER_PROBLEMS.
int problemsToTry() {
    constexpr int usually = 60;
    const char* wanted = std::getenv("MIP_LARGER_PROBLEMS");
    return wanted == nullptr ? usually : std::atoi(wanted);
}

TEST(LargerProblems, HaveTheOptimumThatASecondLibraryFinds) {
    constexpr StageSeconds limits{10, 5, 5};
    constexpr int milliseconds = 10000;
    LargerProblems problems(20260202);
    const std::array<ProblemText (LargerProblems::*)(), 6> kinds = {
        &LargerProblems::knapsack,    &LargerProblems::cover,    &LargerProblems::assignment,
        &LargerProblems::fixedCharge, &LargerProblems::equality, &LargerProblems::general};
    std::array<int, kinds.size()> proved{}, tried{}, compared{};
    for (int k = 0; k < problemsToTry(); ++k) {
        const std::size_t kind = static_cast<std::size_t>(k) % kinds.size();
        const SolverInput input = (problems.*kinds.at(kind))().input();
        const Outcome outcome = solve(input, limits);
        const bool isProved = outcome.status == Status::Optimal || outcome.status == Status::Infeasible;
        ++tried.at(kind);
        proved.at(kind) += isProved ? 1 : 0;
        ASSERT_NE(outcome.status, Status::Unbounded) << "problem " << k;
        if (!isProved && outcome.status != Status::OptimalWithinTolerances) continue;
        const Second second = askedGlpk(input, milliseconds);
        if (second.says == Second::Says::NotDone) continue;
        ++compared.at(kind);
        ASSERT_EQ(outcome.solution.has_value(), second.says == Second::Says::Optimal) << "problem " << k;
        if (!outcome.solution) continue;
        const double objective = approximate(outcome.solution->objective);
        ASSERT_NEAR(objective, second.objective, 1E-06 * std::max(1.0, std::abs(objective)))
            << "problem " << k;
    }
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
        std::cout << "kind " << kind + 1 << ": " << proved.at(kind) << " of " << tried.at(kind)
                  << " proved exactly, " << compared.at(kind) << " agree with the second library\n";
    const auto sum = [](const auto& counts) { return std::accumulate(counts.begin(), counts.end(), 0); };
    EXPECT_GE(sum(proved) * 10, sum(tried) * 9);
    EXPECT_GE(sum(compared), sum(proved) * 9 / 10);
}

} // namespace
} // namespace vantore::mip::tests
