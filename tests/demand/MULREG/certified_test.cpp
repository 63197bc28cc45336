#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

#include "demand/MULREG/method.h"
#include "shell/base/text_file.h"
#include "tests/demand/MULREG/observations.h"

namespace vantore::mulreg {
namespace {

// NIST Statistical Reference Datasets, Norris: simple linear regression, lower level of difficulty. The
// values are those certified in the file, lines 31 to 46.
namespace certified {
constexpr double b0 = -0.262323073774029;
constexpr double b1 = 1.00211681802045;
constexpr double standardErrorOfB1 = 0.429796848199937E-03;
constexpr double residualDeviation = 0.884796396144373;
constexpr double rSquared = 0.999993745883712;
constexpr double regressionSquares = 4255954.13232369;
constexpr double residualSquares = 26.6173985294224;
constexpr double residualMean = 0.782864662630069;
constexpr double f = 5436385.54079785;
} // namespace certified

Observations norris() {
    const auto path = pathOf(VANTORE_SOURCE_FOLDER "/tests/data/nist/Norris.dat");
    const std::vector<std::string> lines = readLines(path);
    std::vector<std::vector<double>> rows;
    for (std::size_t line = 60; line < 96; ++line) {
        double x = 0;
        double y = 0;
        std::istringstream(lines.at(line)) >> y >> x;
        rows.push_back({x, y});
    }
    return observationsOf(rows);
}

/// Count of significant digits in which two values agree.
double digits(double value, double expected) {
    return value == expected ? 15 : -std::log10(std::abs(value - expected) / std::abs(expected));
}

TEST(NorrisCalibration, AgreesWithTheCertifiedValuesToNineDigits) {
    const Observations observations = norris();
    const Moments moments = momentsOf(observations).value();
    const Step step = regress(moments, observations.count, 2, Criteria{4, 3.9, true}).back();
    const AnalysisOfVariance variance = varianceOf(step, moments.deviation(2), observations.count);
    ASSERT_EQ(step.terms.size(), 1U);
    EXPECT_EQ(step.degreesOfFreedom, 34);
    const auto expectNineDigits = [](const char* name, double value, double expected) {
        EXPECT_GE(digits(value, expected), 9) << name;
        RecordProperty(name, std::to_string(digits(value, expected)));
    };
    expectNineDigits("B0", step.intercept.value(), certified::b0);
    expectNineDigits("B1", step.terms[0].coefficient.value(), certified::b1);
    expectNineDigits("StandardErrorOfB1", step.terms[0].standardError, certified::standardErrorOfB1);
    expectNineDigits("ResidualDeviation", step.standardError, certified::residualDeviation);
    expectNineDigits("RSquared", step.rSquare, certified::rSquared);
    expectNineDigits("RegressionSquares", variance.regressionSquares, certified::regressionSquares);
    expectNineDigits("RegressionMean", variance.regressionMean, certified::regressionSquares);
    expectNineDigits("ResidualSquares", variance.residualSquares, certified::residualSquares);
    expectNineDigits("ResidualMean", variance.residualMean, certified::residualMean);
    expectNineDigits("F", step.totalF, certified::f);
}

} // namespace
} // namespace vantore::mulreg
