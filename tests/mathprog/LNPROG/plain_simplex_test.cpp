#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/mathprog/LNPROG/plain_simplex.h"
#include "tests/mathprog/LNPROG/problems.h"

namespace vantore::lnprog::tests {
namespace {

/// A kind of random problem.
struct Kind {
    const char* name;
    int mostRows, mostColumns;
    double density;                     ///< share of coefficients that aren't 0
    bool whole;                         ///< small whole numbers, which make ties and degenerate vertices
    std::vector<std::string> relations; ///< drawn from
    double leastRightSide;
    int decades = 0; ///< by which coefficients are scaled up or down
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

class RandomProblems : public testing::TestWithParam<Kind> {
  protected:
    std::mt19937 generator_{20};

    double uniform(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(generator_);
    }
    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(generator_); }
    double value(double low, double high) {
        const double drawn = uniform(low, high);
        return GetParam().whole ? std::nearbyint(drawn) : drawn;
    }

    Problem problem() {
        const Kind& kind = GetParam();
        Problem result;
        result.constraints = number(1, kind.mostRows);
        result.variables = number(1, kind.mostColumns);
        for (int i = 1; i <= result.objectiveRow(); ++i) {
            const auto which =
                static_cast<std::size_t>(number(0, static_cast<int>(kind.relations.size()) - 1));
            if (i <= result.constraints)
                result.rows(i) = {kind.relations[which], value(kind.leastRightSide, 20)};
            for (int j = 1; j <= result.variables; ++j)
                if (uniform(0, 1) < kind.density)
                    result.coefficients(i, j) =
                        value(-4, 9) * std::pow(10., number(-kind.decades, kind.decades));
        }
        if (!kind.whole) result.coefficients(1, 1) = uniform(-1, 1) * 0.000001;
        return result;
    }
};

std::uint64_t bits(double value) {
    return std::bit_cast<std::uint64_t>(value);
}

void expectSame(const Simplex& ours, const PlainSimplex& plain, int seed) {
    ASSERT_EQ(ours.lastColumn, plain.lastColumn) << seed;
    for (int i = 0; i <= lastTableauRow; ++i) {
        const auto row = static_cast<std::size_t>(i);
        ASSERT_EQ(ours.basis(i), plain.basis[row]) << seed << ": " << i;
        for (int j = 0; j <= lastTableauColumn; ++j)
            ASSERT_EQ(bits(ours.tableau(i, j)), bits(plain.tableau[row][static_cast<std::size_t>(j)]))
                << "problem " << seed << ", row " << i << ", column " << j;
    }
}

TEST_P(RandomProblems, GiveTheSameBitsAsPlainLoops) {
    Simplex ours;
    auto plain = std::make_unique<PlainSimplex>();
    std::array<int, 3> endings{};
    int pivots = 0;
    for (int seed = 0; seed < 150; ++seed) {
        const Problem each = problem();
        const Outcome outcome = solve(ours, each);
        const Outcome expected = plain->solve(each);
        ASSERT_EQ(outcome.index(), expected.index()) << seed;
        if (const auto* unbounded = std::get_if<Unbounded>(&expected)) {
            EXPECT_EQ(std::get<Unbounded>(outcome).column, unbounded->column);
            EXPECT_EQ(std::get<Unbounded>(outcome).iteration, unbounded->iteration);
        }
        expectSame(ours, *plain, seed);
        if (HasFatalFailure()) return;
        ++endings.at(outcome.index());
        pivots += plain->iterations;
    }
    EXPECT_GT(endings[0], 10);
    EXPECT_GT(pivots, 300);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RandomProblems,
                         testing::Values(Kind{"Capacities", 50, 100, 1, false, {"<"}, 1},
                                         Kind{"Mixed", 20, 30, .7, false, {"<", "=", ">"}, 0},
                                         Kind{"Sparse", 40, 60, .1, false, {"<", "<", ">"}, 0},
                                         Kind{"Degenerate", 12, 20, .5, true, {"<", "<", "=", ">"}, 0},
                                         Kind{"NegativeRightSides", 12, 12, .6, true, {"<", "=", ">"}, -20},
                                         Kind{"BadlyScaled", 20, 30, .2, false, {"<", "<", ">"}, 0, 4},
                                         Kind{"RelationsLeftOut", 10, 12, .6, true, {"<", "<", ">", ""}, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace vantore::lnprog::tests
