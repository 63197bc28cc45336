#include "solvers/MIP/exact_simplex.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;

/// Random linear programs, whose coefficients are often 0 and whose rows often meet in one point.
Model randomModel(std::mt19937& random) {
    const auto from = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    ProblemText text{.maximize = from(0, 1) == 1};
    const int variables = from(1, 7);
    for (int j = 0; j < variables; ++j) {
        text.objective.push_back(from(-9, 9) / 10.0);
        const double lower = from(0, 3) == 0 ? -miprog::noBound : from(-3, 2);
        text.bounds.push_back({lower, from(0, 1) == 0 ? miprog::noBound : from(2, 8)});
    }
    for (int i = from(0, 7); i > 0; --i) {
        std::vector<double> row;
        for (int j = 0; j < variables; ++j) row.push_back(from(0, 2) == 0 ? 0 : from(-5, 5) / 100.0);
        text.rows.push_back(row);
        text.relations += "<<=>>"[from(0, 4)];
        text.rhs.push_back(from(-4, 12) / 100.0);
    }
    return exactModel(text.input());
}

/// Each end is held against what proves it.
void expectProved(const Model& model, const Box& box, const ExactResult& result) {
    Model within = model;
    within.box = box;
    switch (result.end) {
    case LinearEnd::Optimal: {
        const ExactPoint point{result.values, result.scale};
        ASSERT_TRUE(keepsAll(within, point));
        const auto bound = safeBound(model, box, result.multipliers);
        ASSERT_TRUE(bound);
        Rational dual(bound->cost, result.multipliers.scale);
        dual.canonicalize();
        ASSERT_EQ(dual, costOf(model, point));
        return;
    }
    case LinearEnd::Infeasible: ASSERT_TRUE(contradict(model, box, result.multipliers.rows)); return;
    case LinearEnd::Unbounded: ASSERT_TRUE(fallsForEver(within, result.direction)); return;
    }
}

TEST(ExactSimplex, EndsWithAProofWhateverTheProblem) {
    std::mt19937 random(11);
    std::map<LinearEnd, int> seen;
    for (int k = 0; k < 1000; ++k) {
        const Model model = randomModel(random);
        const ExactResult result = ExactSimplex(model).solve(model.box);
        ++seen[result.end];
        ASSERT_NO_FATAL_FAILURE(expectProved(model, model.box, result)) << "problem " << k;
    }
    EXPECT_GT(seen[LinearEnd::Optimal], 200);
    EXPECT_GT(seen[LinearEnd::Infeasible], 50);
    EXPECT_GT(seen[LinearEnd::Unbounded], 50);
}

TEST(ExactSimplex, GoesOnFromWhereItEnded) {
    std::mt19937 random(12);
    for (int k = 0; k < 300; ++k) {
        const Model model = randomModel(random);
        ExactSimplex simplex(model);
        Box box = model.box;
        for (int step = 0; step < 5; ++step) {
            const ExactResult result = simplex.solve(box);
            ASSERT_NO_FATAL_FAILURE(expectProved(model, box, result)) << "problem " << k;
            ASSERT_EQ(result.end, ExactSimplex(model).solve(box).end);
            Range& range = box[random() % box.size()];
            const Integer middle(static_cast<long>(random() % 5));
            if (step % 2 == 0 && (!range.lower || *range.lower <= middle)) range.upper = middle;
            if (step % 2 == 1 && (!range.upper || *range.upper >= middle)) range.lower = middle;
        }
    }
}

TEST(ExactSimplex, BeginsWithAnyBasis) {
    std::mt19937 random(13);
    for (int k = 0; k < 300; ++k) {
        const Model model = randomModel(random);
        ExactSimplex simplex(model);
        std::vector<std::size_t> columns;
        for (std::size_t j = 0; j < model.columnCount(); ++j)
            if (random() % 2 == 0) columns.push_back(j);
        simplex.takeIntoBasis(columns);
        const ExactResult result = simplex.solve(model.box);
        ASSERT_NO_FATAL_FAILURE(expectProved(model, model.box, result)) << "problem " << k;
    }
}

TEST(ExactSimplex, EndsWhereOtherRulesGoRoundInCircles) {
    // Source: Beale, "Cycling in the dual simplex algorithm" (1955).
    const Model model = exactModel(ProblemText{
        .maximize = false,
        .objective = {-.75, 150, -.02, 6},
        .rows = {{.25, -60, -.04, 9}, {.5, -90, -.02, 3}, {0, 0, 1, 0}},
        .relations = "<<<",
        .rhs = {0, 0, 1}}.input());
    const ExactResult result = ExactSimplex(model).solve(model.box);
    ASSERT_EQ(result.end, LinearEnd::Optimal);
    EXPECT_EQ(costOf(model, {result.values, result.scale}) / model.costScale, Rational(-1, 20));
}

} // namespace
} // namespace vantore::mip::tests
