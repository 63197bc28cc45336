#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <map>
#include <optional>
#include <random>

#include "solvers/MIP/proof.h"
#include "solvers/MIP/solve.h"
#include "tests/solvers/MIP/enumeration.h"

namespace vantore::mip::tests {
namespace {

/// Random problems of one kind of unit. Right sides are what a whole-number point gives, or next to it, so
/// that a little rounding makes a wrong answer.
class RandomProblems {
  public:
    RandomProblems(unsigned seed, std::vector<int> powers) : random_(seed), powers_(std::move(powers)) {}

    TypedProblem next() {
        TypedProblem problem;
        problem.maximize = from(0, 1) == 1;
        problem.continuousLast = from(0, 5) == 0;
        const auto integers = static_cast<std::size_t>(from(1, problem.continuousLast ? 3 : 4));
        const std::size_t variables = integers + (problem.continuousLast ? 1 : 0);
        const int power = powerOfRow();
        for (std::size_t j = 0; j < variables; ++j)
            problem.objective.push_back({from(-5, 60), power + mixed()});
        for (std::size_t j = 0; j < integers; ++j) problem.binary.push_back(from(0, 2) == 0);
        const int rows = from(1, 4);
        for (int i = 0; i < rows; ++i) addRow(problem);
        return problem;
    }

  private:
    int from(int low, int high) {
        return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
    }

    int powerOfRow() {
        return powers_[static_cast<std::size_t>(from(0, static_cast<int>(powers_.size()) - 1))];
    }

    /// Units differ within a row where there are several.
    int mixed() { return powers_.size() > 1 ? from(0, 4) : 0; }

    void addRow(TypedProblem& problem) {
        const int power = powerOfRow();
        std::vector<Decimal> row;
        long long right = 0;
        for (std::size_t j = 0; j < problem.variables(); ++j) {
            const int low = from(0, 3) == 0 ? -30 : 0;
            const int more = mixed();
            row.push_back({from(low, 60), power + more});
            const bool binary = j < problem.integers() && problem.binary[j];
            long long unit = 1;
            for (int k = 0; k < more; ++k) unit *= 10;
            right += row.back().mantissa * unit * from(0, binary ? 1 : 5);
        }
        if (from(0, 3) == 0) right += from(-1, 1);
        problem.rows.push_back(std::move(row));
        problem.rhs.push_back({std::max(right, 0LL), power});
        problem.relations += "<<<=>"[from(0, 4)];
    }

    std::mt19937 random_;
    std::vector<int> powers_;
};

/// The cost of the last solution that the proof alone comes to from a cost to be beaten.
std::optional<Rational> provedFrom(const Model& model, const Rational& best) {
    std::optional<Rational> found;
    prove(model, best,
          {[&](const ExactPoint& point) { found = costOf(model, point); }, [](long long /*nodes*/) {}});
    return found;
}

Truth truthOf(Status status) {
    switch (status) {
    case Status::Optimal: return Truth::Optimal;
    case Status::Infeasible: return Truth::Infeasible;
    case Status::Unbounded: return Truth::Unbounded;
    default: return Truth::Unknown;
    }
}

/// How many problems of a kind are tried; a longer run sets MIP_RANDOM_PROBLEMS.
int problemsOfAKind(int kinds) {
    constexpr int usually = 2000;
    const char* wanted = std::getenv("MIP_RANDOM_PROBLEMS");
    return (wanted == nullptr ? usually : std::atoi(wanted)) / kinds;
}

struct Kind {
    const char* name;
    std::vector<int> powers;
};

const std::array kinds = {Kind{"WholeNumbers", {0}},
                          Kind{"Tenths", {-1}},
                          Kind{"Cents", {-2}},
                          Kind{"Thousandths", {-3}},
                          Kind{"HundredThousandths", {-5}},
                          Kind{"HundredMillionths", {-8}},
                          Kind{"Millions", {6}},
                          Kind{"Billions", {9}},
                          Kind{"MixedUnits", {-8, -2, 0, 3}},
                          Kind{"FarApart", {-8, -5, 6, 9}}};

class Random : public testing::TestWithParam<Kind> {};

TEST_P(Random, AgreesWithTryingAllWholeNumbers) {
    RandomProblems problems(20260101, GetParam().powers);
    std::map<Truth, int> seen;
    const int wanted = problemsOfAKind(static_cast<int>(kinds.size()));
    for (int known = 0, tried = 0; known < wanted; ++tried) {
        ASSERT_LT(tried, 3 * wanted);
        const TypedProblem problem = problems.next();
        const Answer answer = enumerated(problem);
        if (answer.truth == Truth::Unknown) continue;
        ++known;
        ++seen[answer.truth];
        const auto input = problem.input();
        const Outcome outcome = solve(input, usualLimits);
        ASSERT_EQ(truthOf(outcome.status), answer.truth) << "problem " << tried;
        if (answer.truth != Truth::Optimal) continue;
        ASSERT_EQ(outcome.solution->objective, answer.objective) << "problem " << tried;
        // Nothing that the library says may help the proof to its answer.
        const Model model = exactModel(input);
        const Rational optimum = answer.objective * model.costScale;
        ASSERT_EQ(provedFrom(model, optimum), std::nullopt) << "problem " << tried;
        ASSERT_EQ(provedFrom(model, optimum + 1), optimum) << "problem " << tried;
        ASSERT_EQ(provedFrom(model, optimum + 50), optimum) << "problem " << tried;
    }
    EXPECT_GT(seen[Truth::Optimal], wanted / 2);
    EXPECT_GT(seen[Truth::Infeasible], 0);
    EXPECT_GT(seen[Truth::Unbounded], 0);
}

INSTANTIATE_TEST_SUITE_P(Units, Random, testing::ValuesIn(kinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace vantore::mip::tests
