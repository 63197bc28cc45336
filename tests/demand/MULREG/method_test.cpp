#include "demand/MULREG/method.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "shell/base/runtime_error.h"
#include "tests/demand/MULREG/observations.h"

namespace vantore::mulreg {
namespace {

using Rows = std::vector<std::vector<double>>;

constexpr double close = 1e-10;

std::vector<Step> stepsOf(const Observations& observations, const Criteria& criteria) {
    const std::optional<Moments> moments = momentsOf(observations);
    if (!moments) throw std::logic_error("no deviation");
    return regress(*moments, observations.count, observations.variableCount, criteria);
}

std::vector<Step> stepsOf(const Rows& rows, double enteringLevel, double leavingLevel) {
    return stepsOf(observationsOf(rows), Criteria{enteringLevel, leavingLevel, true});
}

std::vector<int> variablesOf(const Step& step) {
    std::vector<int> variables;
    for (const Term& term : step.terms) variables.push_back(term.variable);
    return variables;
}

ErrorNumber errorOf(const Rows& rows) {
    try {
        stepsOf(rows, 0, 0);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    throw std::logic_error("no error");
}

// By hand: x = 1..5, means 3 and 4, sums of squares 10 and 6, of products 6. So b = .6, a = 2.2, the
// regression takes 3.6 of the 6 and leaves 2.4 on 3 degrees of freedom: s = Sqr(.8), s(b) = Sqr(.8 / 10), F
// = 3.6 / .8.
const Rows five = {{1, 2}, {2, 4}, {3, 5}, {4, 4}, {5, 5}};

TEST(Regress, FitsOneVariable) {
    const std::vector<Step> steps = stepsOf(five, 4, 3.9);
    ASSERT_EQ(steps.size(), 2U);
    const Step& step = steps.back();
    ASSERT_EQ(step.terms.size(), 1U);
    EXPECT_NEAR(step.intercept.value(), 2.2, close);
    EXPECT_NEAR(step.terms[0].coefficient.value(), .6, close);
    EXPECT_NEAR(step.terms[0].standardError, std::sqrt(.08), close);
    EXPECT_NEAR(step.terms[0].tRatio, .6 / std::sqrt(.08), close);
    EXPECT_NEAR(step.standardError, std::sqrt(.8), close);
    EXPECT_NEAR(step.rSquare, .6, close);
    EXPECT_NEAR(step.totalF, 4.5, close);
    EXPECT_EQ(step.degreesOfFreedom, 3);
    EXPECT_EQ(step.end, Step::End::Insufficient);
    EXPECT_EQ(step.incrementalF, 0);
}

TEST(Regress, StartsWithTheInterceptAlone) {
    const Step step = stepsOf(five, 4, 3.9).front();
    EXPECT_TRUE(step.terms.empty());
    EXPECT_NEAR(step.intercept.value(), 4, close);
    EXPECT_NEAR(step.standardError, std::sqrt(6.0 / 4), close);
    EXPECT_NEAR(step.rSquare, 0, close);
    EXPECT_EQ(step.entered, 1);
    EXPECT_EQ(step.end, Step::End::Entering);
    EXPECT_EQ(step.moved, 1);
    EXPECT_NEAR(step.incrementalF, 4.5, close);
}

TEST(Regress, KeepsAWeakVariableOut) {
    const std::vector<Step> steps = stepsOf(five, 4.6, 4.5);
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].end, Step::End::Insufficient);
    EXPECT_NEAR(steps[0].incrementalF, 4.5, close);
}

TEST(EstimateOf, AnObservationIsOnTheLine) {
    const Step step = stepsOf(five, 4, 3.9).back();
    EXPECT_NEAR(estimate(step, observationsOf(five), 1), 2.8, close);
    EXPECT_NEAR(estimate(step, observationsOf(five), 5), 5.2, close);
}

TEST(VarianceOf, SplitsTheTotal) {
    const Observations observations = observationsOf(five);
    const Moments moments = momentsOf(observations).value();
    const AnalysisOfVariance variance =
        varianceOf(stepsOf(five, 4, 3.9).back(), moments.deviation(2), observations.count);
    EXPECT_NEAR(variance.totalSquares, 6, close);
    EXPECT_NEAR(variance.regressionSquares, 3.6, close);
    EXPECT_NEAR(variance.residualSquares, 2.4, close);
    EXPECT_NEAR(variance.regressionMean, 3.6, close);
    EXPECT_NEAR(variance.residualMean, .8, close);
}

// By hand: a 2 x 2 design, y = 5 + 3 x1 + 1.5 x2 with residuals of +-.5. The sums of squares are 36 and 9 of
// 46, 1 is left on 1 degree of freedom; each coefficient has standard error Sqr(1 / 4).
const Rows twoByTwo = {{-1, -1, 1}, {-1, 1, 3}, {1, -1, 6}, {1, 1, 10}};

TEST(Regress, FitsTwoVariables) {
    const std::vector<Step> steps = stepsOf(twoByTwo, 4, 3.9);
    ASSERT_EQ(steps.size(), 3U);
    EXPECT_EQ(steps[0].moved, 1);
    EXPECT_NEAR(steps[0].incrementalF, 2 * 36.0 / 10, close);
    EXPECT_EQ(steps[1].moved, 2);
    EXPECT_NEAR(steps[1].incrementalF, 1 * 9.0 / 1, close);
    const Step& step = steps[2];
    EXPECT_NEAR(step.intercept.value(), 5, close);
    EXPECT_NEAR(step.terms.at(0).coefficient.value(), 3, close);
    EXPECT_NEAR(step.terms.at(1).coefficient.value(), 1.5, close);
    EXPECT_NEAR(step.terms.at(0).tRatio, 6, close);
    EXPECT_NEAR(step.terms.at(1).tRatio, 3, close);
    EXPECT_NEAR(step.standardError, 1, close);
    EXPECT_NEAR(step.rSquare, 45.0 / 46, close);
    EXPECT_NEAR(step.totalF, 22.5, close);
}

// By hand: a 2 x 2 x 2 design, y = 10 + 4 x1 + 2 x2 + x3 + .5 x1 x2 x3, so that 128, 32 and 8 of 170 are
// explained and 2 are left on 4 degrees of freedom; each coefficient has standard error Sqr(.5 / 8) = .25.
Rows twoByTwoByTwo() {
    Rows rows;
    for (const double a : {-1, 1})
        for (const double b : {-1, 1})
            for (const double c : {-1, 1}) rows.push_back({a, b, c, 10 + 4 * a + 2 * b + c + .5 * a * b * c});
    return rows;
}

TEST(Regress, FitsThreeVariables) {
    const std::vector<Step> steps = stepsOf(twoByTwoByTwo(), 4, 3.9);
    ASSERT_EQ(steps.size(), 4U);
    EXPECT_NEAR(steps[0].incrementalF, 6 * 128.0 / 42, close);
    EXPECT_NEAR(steps[1].incrementalF, 5 * 32.0 / 10, close);
    EXPECT_NEAR(steps[2].incrementalF, 4 * 8.0 / 2, close);
    const Step& step = steps[3];
    EXPECT_EQ(variablesOf(step), (std::vector<int>{1, 2, 3}));
    EXPECT_NEAR(step.terms[0].tRatio, 16, close);
    EXPECT_NEAR(step.terms[1].tRatio, 8, close);
    EXPECT_NEAR(step.terms[2].tRatio, 4, close);
    EXPECT_NEAR(step.totalF, 112, 1e-8);
    EXPECT_EQ(step.entered, 3);
    EXPECT_EQ(step.degreesOfFreedom, 4);
}

TEST(Regress, LeavesWeakVariablesOutOfThree) {
    const std::vector<Step> steps = stepsOf(twoByTwoByTwo(), 17, 15);
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(variablesOf(steps[1]), std::vector<int>{1});
    EXPECT_NEAR(steps[1].incrementalF, 16, close);
}

// Hald's cement data, x1 to x4 and y: Hald, Statistical Theory with Engineering Applications (1952). The
// answers are those of Draper and Smith, Applied Regression Analysis, 2nd edition (1981), chapter 6 and
// appendix B, to the digits printed there.
const Rows cement = {{7, 26, 6, 60, 78.5},   {1, 29, 15, 52, 74.3}, {11, 56, 8, 20, 104.3},
                     {11, 31, 8, 47, 87.6},  {7, 52, 6, 33, 95.9},  {11, 55, 9, 22, 109.2},
                     {3, 71, 17, 6, 102.7},  {1, 31, 22, 44, 72.5}, {2, 54, 18, 22, 93.1},
                     {21, 47, 4, 26, 115.9}, {1, 40, 23, 34, 83.8}, {11, 66, 9, 12, 113.3},
                     {10, 68, 8, 12, 109.4}};

TEST(Regress, LetsAVariableLeaveThatOthersHaveReplaced) {
    const std::vector<Step> steps = stepsOf(cement, 4, 3.9);
    ASSERT_EQ(steps.size(), 5U);
    EXPECT_EQ(steps[0].moved, 4);
    EXPECT_NEAR(steps[0].incrementalF, 22.80, .005);
    EXPECT_EQ(steps[1].moved, 1);
    EXPECT_NEAR(steps[1].incrementalF, 108.22, .005);
    EXPECT_NEAR(steps[1].rSquare, .67454, .000005);
    EXPECT_EQ(steps[2].moved, 2);
    EXPECT_NEAR(steps[2].incrementalF, 5.03, .005);
    EXPECT_EQ(steps[3].end, Step::End::Leaving);
    EXPECT_EQ(steps[3].moved, 4);
    EXPECT_NEAR(steps[3].incrementalF, 1.86, .005);
    EXPECT_EQ(steps[4].end, Step::End::Insufficient);
}

TEST(Regress, EndsWithTheEquationOfTheLiterature) {
    const Step step = stepsOf(cement, 4, 3.9).back();
    EXPECT_EQ(variablesOf(step), (std::vector<int>{1, 2}));
    EXPECT_NEAR(step.intercept.value(), 52.57735, .000005);
    EXPECT_NEAR(step.terms[0].coefficient.value(), 1.46831, .000005);
    EXPECT_NEAR(step.terms[1].coefficient.value(), .66225, .000005);
    EXPECT_NEAR(step.terms[0].standardError, .1213, .00005);
    EXPECT_NEAR(step.terms[1].standardError, .0459, .00005);
    EXPECT_NEAR(step.rSquare, .97868, .000005);
    EXPECT_NEAR(step.standardError, 2.406, .0005);
    EXPECT_NEAR(step.totalF, 229.50, .005);
    EXPECT_EQ(step.degreesOfFreedom, 10);
}

TEST(Regress, TakesAllVariablesAtLevelsOfZero) {
    const Step step = stepsOf(cement, 0, 0).back();
    EXPECT_EQ(variablesOf(step), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_NEAR(step.rSquare, .98238, .000005);
    EXPECT_NEAR(step.intercept.value(), 62.4054, .00005);
    EXPECT_NEAR(step.standardError, 2.446, .0005);
}

TEST(MomentsOf, GivesMeansDeviationsAndCorrelations) {
    const Moments moments = momentsOf(observationsOf(five)).value();
    EXPECT_NEAR(moments.mean(1).value(), 3, close);
    EXPECT_NEAR(moments.deviation(1), std::sqrt(2.5), close);
    EXPECT_NEAR(moments.squares(2), 6, close);
    EXPECT_NEAR(moments.correlation(1, 2).value(), 6 / std::sqrt(60.0), close);
    EXPECT_NEAR(moments.correlation(2, 2).value(), 1, close);
}

TEST(MomentsOf, FindsAColumnWithoutDeviation) {
    EXPECT_FALSE(momentsOf(observationsOf({{4, 30}, {4, 41}, {4, 52}})));
    EXPECT_FALSE(momentsOf(observationsOf({{30, 4}, {41, 4}, {52, 4}})));
}

TEST(MomentsOf, FindsAConstantThatHasNoExactSquare) {
    for (const double constant : {.1, .7, 1.1, 3.3, 1e9 + .1, -.3})
        for (int count = 2; count <= 40; ++count) {
            Rows rows;
            for (int i = 1; i <= count; ++i) rows.push_back({constant, 1.0 * i});
            EXPECT_FALSE(momentsOf(observationsOf(rows))) << constant << " x " << count;
        }
}

TEST(MomentsOf, NeedsTwoObservations) {
    EXPECT_THROW(momentsOf(observationsOf({})), RuntimeError);
    EXPECT_THROW(momentsOf(observationsOf({{1, 2}})), RuntimeError);
}

TEST(MomentsOf, RefusesWhatIsBeyondTheRange) {
    EXPECT_THROW(momentsOf(observationsOf({{1e200, 1}, {2e200, 2}, {3e200, 4}})), RuntimeError);
}

TEST(Regress, TakesOneOfTwoCollinearVariables) {
    const Rows rows = {{1, 2, 2}, {2, 4, 4}, {3, 6, 5}, {4, 8, 4}, {5, 10, 5}};
    for (const double level : {4.0, 0.0, -1.0}) {
        const std::vector<Step> steps = stepsOf(rows, level, level);
        ASSERT_EQ(steps.size(), 2U) << level;
        EXPECT_EQ(variablesOf(steps[1]), std::vector<int>{1}) << level;
        EXPECT_NEAR(steps[1].terms[0].coefficient.value(), .6, close);
        EXPECT_EQ(steps[1].incrementalF, 0);
    }
}

TEST(Regress, IgnoresAVariableThatExplainsNothing) {
    // y is the same at both levels of x3 - x1 - x2, so that x3 explains nothing beside x1 and x2. Rounding
    // gives its V a sign below 0 here, as of a variable that is in.
    const Rows rows = {{-2, 0, -3, 1.5},    {-2, 0, -1, 1.5},    {0, -1, -2, 2.5},    {0, -1, 0, 2.5},
                       {2, 1.5, 2.5, 11.1}, {2, 1.5, 4.5, 11.1}, {4, 1.5, 4.5, 14.3}, {4, 1.5, 6.5, 14.3}};
    const std::vector<Step> steps = stepsOf(rows, 4, 3.9);
    ASSERT_EQ(steps.size(), 3U);
    EXPECT_EQ(variablesOf(steps[2]), (std::vector<int>{1, 2}));
    EXPECT_EQ(steps[2].degreesOfFreedom, 5);
    EXPECT_EQ(steps[2].end, Step::End::Insufficient);
}

TEST(Regress, StopsVariablesThatEnterAndLeaveForEver) {
    // The variable's F of 4.5 lets it in above 1 and out below 10.
    const std::vector<Step> steps = stepsOf(five, 1, 10);
    ASSERT_EQ(steps.size(), 2U * mostReturns + 1);
    EXPECT_EQ(steps[0].end, Step::End::Entering);
    EXPECT_EQ(steps[1].end, Step::End::Leaving);
    EXPECT_EQ(steps.back().end, Step::End::Endless);
    EXPECT_TRUE(steps.back().terms.empty());
    EXPECT_NEAR(steps.back().rSquare, 0, close);
}

TEST(Regress, EndsForAnyLevels) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(-5, 5);
    std::uniform_real_distribution<double> level(-2, 12);
    for (int problem = 0; problem < 500; ++problem) {
        Rows rows(12);
        for (auto& row : rows)
            for (int k = 0; k < 5; ++k) row.push_back(value(random));
        const std::vector<Step> steps = stepsOf(rows, level(random), level(random));
        EXPECT_LE(steps.size(), 16U * mostReturns + 1);
        for (const Step& step : steps) EXPECT_GE(step.degreesOfFreedom, 7);
    }
}

TEST(Regress, NeverStopsEarlyWhereTheLeavingLevelIsNotAboveTheEnteringLevel) {
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0, 1);
    for (int problem = 0; problem < 500; ++problem) {
        Rows rows(15);
        for (auto& row : rows) {
            for (int k = 0; k < 4; ++k) row.push_back(noise(random));
            row[1] += row[0];
            row[3] -= row[2];
            row.push_back(row[0] + .5 * row[2] + noise(random));
        }
        const double leaving = std::abs(noise(random)) * 3;
        EXPECT_EQ(stepsOf(rows, leaving + .01, leaving).back().end, Step::End::Insufficient);
    }
}

/// The largest of the sums of residual times 1, x1, .. x4, which least squares make 0.
double largestNormalEquation(const Observations& observations, const Step& step) {
    double largest = 0;
    for (int k = 0; k < observations.variableCount; ++k) {
        double sum = 0;
        for (int i = 1; i <= observations.count; ++i)
            sum += (observations.x(i, observations.variableCount) - estimate(step, observations, i)) *
                   (k == 0 ? 1 : observations.x(i, k));
        largest = std::max(largest, std::abs(sum));
    }
    return largest;
}

TEST(Regress, LeavesResidualsOrthogonalToTheVariables) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> value(0, 10);
    for (int problem = 0; problem < 200; ++problem) {
        Rows rows(20);
        for (auto& row : rows)
            for (int k = 0; k < 5; ++k) row.push_back(value(random));
        const Observations observations = observationsOf(rows);
        const Step step = stepsOf(rows, -1, -1).back();
        ASSERT_EQ(step.terms.size(), 4U);
        EXPECT_LT(largestNormalEquation(observations, step), 1e-9);
        double squares = 0;
        for (int i = 1; i <= observations.count; ++i)
            squares += std::pow(observations.x(i, 5) - estimate(step, observations, i), 2);
        EXPECT_NEAR(step.standardError, std::sqrt(squares / 15), 1e-9);
    }
}

/// Agreement in nine significant digits.
void expectNineDigits(double value, double expected) {
    EXPECT_NEAR(value, expected, 1e-9 * std::abs(expected));
}

TEST(Regress, KeepsItsDigitsWhereValuesAreLargeBesideTheirSpread) {
    // Counters and dates: the same thirty days, counted from elsewhere.
    const std::vector<double> sales = {12, 15, 13, 18, 21, 20, 24, 22, 27, 31, 29, 33, 36, 34, 38,
                                       41, 43, 40, 47, 46, 51, 50, 55, 53, 58, 60, 59, 64, 66, 65};
    const auto observationsFrom = [&](double start) {
        Rows rows;
        for (const double y : sales) rows.push_back({start + static_cast<double>(rows.size()), y});
        return observationsOf(rows);
    };
    const Observations plain = observationsFrom(1);
    const Step expected = stepsOf(plain, Criteria{4, 3.9, true}).back();
    for (const double start : {1E9 + 1, 20240101.0, -1E12}) {
        const Observations shifted = observationsFrom(start);
        const Step step = stepsOf(shifted, Criteria{4, 3.9, true}).back();
        ASSERT_EQ(step.terms.size(), 1U) << start;
        expectNineDigits(step.terms[0].coefficient.value(), expected.terms[0].coefficient.value());
        expectNineDigits(step.terms[0].standardError, expected.terms[0].standardError);
        expectNineDigits(step.terms[0].tRatio, expected.terms[0].tRatio);
        expectNineDigits(step.rSquare, expected.rSquare);
        expectNineDigits(step.standardError, expected.standardError);
        expectNineDigits(step.totalF, expected.totalF);
        expectNineDigits((step.intercept + (start - 1) * step.terms[0].coefficient).value(),
                         expected.intercept.value());
        for (int i = 1; i <= plain.count; ++i)
            expectNineDigits(estimate(step, shifted, i), estimate(expected, plain, i));
    }
}

TEST(Regress, KeepsItsDigitsWithFourVariables) {
    std::mt19937 random(4);
    std::uniform_int_distribution<int> value(0, 50);
    Rows plain;
    Rows shifted;
    for (int i = 0; i < 25; ++i) {
        std::vector<double>& row = plain.emplace_back();
        for (int k = 0; k < 4; ++k) row.push_back(value(random));
        row.push_back(3 * row[0] - 2 * row[1] + row[2] / 2 + row[3] + value(random) / 10.0);
        shifted.push_back({row[0] + 1E9, row[1] - 3E8, row[2] + 20240100, row[3] + 1E7, row[4] + 1E6});
    }
    const std::vector<Step> expected = stepsOf(plain, 4, 3.9);
    const std::vector<Step> steps = stepsOf(shifted, 4, 3.9);
    ASSERT_EQ(steps.size(), expected.size());
    ASSERT_EQ(variablesOf(steps.back()), (std::vector<int>{1, 2, 3, 4}));
    for (std::size_t s = 0; s < steps.size(); ++s) {
        EXPECT_EQ(steps[s].moved, expected[s].moved);
        // The moved y has fewer digits behind its point.
        EXPECT_NEAR(steps[s].rSquare, expected[s].rSquare, 1e-9);
        for (std::size_t k = 0; k < steps[s].terms.size(); ++k)
            EXPECT_NEAR(steps[s].terms[k].coefficient.value(), expected[s].terms[k].coefficient.value(),
                        1e-9);
    }
}

TEST(Regress, HasNoFOfAnExactFit) {
    EXPECT_EQ(errorOf({{1, 3}, {2, 5}, {3, 7}, {4, 9}}), ErrorNumber::DivisionByZero);
    // y = 1 + 2 x1 + 4 x2
    EXPECT_EQ(errorOf({{1, 1, 7}, {2, 5, 25}, {3, 2, 15}, {4, 6, 33}, {5, 3, 23}}),
              ErrorNumber::DivisionByZero);
}

TEST(Regress, LeavesAVariableOutThatWouldTakeTheLastDegreeOfFreedom) {
    for (const Rows& rows : {Rows{{-1, 1}, {1, 3}}, Rows{{.1, .7}, {.3, 1.3}}, Rows{{3, 1.1}, {7, .2}}}) {
        const std::vector<Step> steps = stepsOf(rows, 4, 3.9);
        ASSERT_EQ(steps.size(), 1U);
        EXPECT_EQ(steps[0].end, Step::End::Insufficient);
        EXPECT_EQ(steps[0].incrementalF, 0);
        EXPECT_EQ(steps[0].degreesOfFreedom, 1);
    }
    // Of three observations one stays free: x2 may enter on what x1 leaves of it, x1 then not.
    const std::vector<Step> steps = stepsOf({{1, 5, 2}, {2, 1, 4}, {3, 4, 5}}, 0, 0);
    EXPECT_EQ(steps.back().end, Step::End::Insufficient);
    EXPECT_EQ(steps.back().degreesOfFreedom, 1);
    EXPECT_EQ(steps.back().terms.size(), 1U);
}

TEST(Regress, NeedsADegreeOfFreedom) {
    // Below 0 the level lets any variable in, until none of 3 observations is free.
    const Rows rows = {{1, 5, 2}, {2, 1, 4}, {3, 4, 5}};
    EXPECT_THROW(stepsOf(rows, -1, -1), RuntimeError);
}

} // namespace
} // namespace vantore::mulreg
