#pragma once

#include <optional>
#include <vector>

#include "demand/MULREG/problem.h"
#include "shell/base/double_double.h"
#include "shell/base/number.h"

namespace vantore::mulreg {

/// Linear regression of the last variable on the others, stepwise on their correlation matrix.
///
/// Source: Efroymson, "Multiple regression analysis", in Ralston and Wilf, Mathematical Methods for Digital
/// Computers (1960). Variables are numbered 1 to p as in `Observations`; p is the dependent one. The sums
/// over the plain values lose as many digits as the mean has before the deviation begins; they and all that
/// is computed from them have twice the digits of a double, which leaves enough for any data that can be
/// typed.

/// Means, deviations and correlations of the variables.
struct Moments {
    Table<DoubleDouble, 1, columnCount> mean;
    Table<double, 1, columnCount> deviation;
    Table<double, 1, columnCount> squares; ///< corrected sum of squares
    Table2<DoubleDouble, 1, columnCount, 1, columnCount> correlation;
};

/// Nothing when a variable has no deviation: all its values are equal, or differ by no more than rounding.
/// DivisionByZero for fewer than two observations, Overflow beyond the double range.
std::optional<Moments> momentsOf(const Observations& observations);

/// A variable in the equation.
struct Term {
    int variable = 0;
    DoubleDouble coefficient;
    Number standardError;
    Number tRatio;
};

/// The equation at one pass, and how the pass ends.
struct Step {
    enum class End {
        Entering,
        Leaving,
        Insufficient, ///< no variable may leave or enter
        Endless       ///< variables enter and leave in a circle
    };

    DoubleDouble intercept;
    std::vector<Term> terms; ///< in the order of the variables
    Number standardError;
    Number rSquare;
    Number totalF;
    int degreesOfFreedom = 0; ///< of the residual
    int entered = 0;          ///< variables entered, 1 when there are none
    End end = End::Insufficient;
    int moved = 0;           ///< the variable that enters or leaves
    double incrementalF = 0; ///< of the entering or leaving test
};

struct Criteria {
    double enteringLevel = 0; ///< a variable enters when its F is above
    double leavingLevel = 0;  ///< a variable leaves when its F is below
    bool positive = false;    ///< an R-square or total F below 0 is replaced by its absolute value
};

/// How often the same variables may make up the equation before the steps count as endless. Two F-levels of
/// which the one for leaving is above the one for entering can let a variable in and out for ever; a
/// procedure that ends comes back to an equation by rounding only.
constexpr int mostReturns = 5;

/// The steps from the intercept alone to the last. There is always at least one.
/// A variable that would leave no degree of freedom has an F of 0. DivisionByZero when one enters all the
/// same, or when the equation fits without any residual.
std::vector<Step> regress(const Moments& moments, int observationCount, int variableCount,
                          const Criteria& criteria);

/// The estimate of the dependent variable for observation i.
double estimate(const Step& step, const Observations& observations, int i);

struct AnalysisOfVariance {
    Number regressionSquares;
    Number residualSquares;
    Number totalSquares;
    Number regressionMean;
    Number residualMean;
};

/// The analysis of variance of a step. `deviation` is that of the dependent variable.
AnalysisOfVariance varianceOf(const Step& step, Number deviation, int observationCount);

} // namespace vantore::mulreg
