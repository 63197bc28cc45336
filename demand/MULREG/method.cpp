#include "demand/MULREG/method.h"

#include <algorithm>
#include <cmath>

#include "shell/base/arithmetic.h"

namespace vantore::mulreg {

namespace {

constexpr double tolerance = 0.000001;
constexpr double leastPivot = 0.000001;
constexpr int mostSets = 1 << (columnCount - 1); // sets of independent variables

using Matrix = Table2<DoubleDouble, 1, columnCount, 1, columnCount>;

/// The variables' products with each other and with a column of ones.
struct CrossProducts {
    Table<DoubleDouble, 1, columnCount> sum;
    Matrix product;
};

CrossProducts crossProductsOf(const Observations& observations) {
    CrossProducts raw;
    for (int i = 1; i <= observations.count; ++i)
        for (int j = 1; j <= observations.variableCount; ++j) {
            raw.sum(j) += observations.x(i, j);
            for (int k = 1; k <= observations.variableCount; ++k)
                raw.product(j, k) += DoubleDouble(observations.x(i, j)) * observations.x(i, k);
        }
    return raw;
}

bool isConstant(const Observations& observations, int k) {
    for (int i = 2; i <= observations.count; ++i)
        if (observations.x(i, k) != observations.x(1, k)) return false;
    return true;
}

/// The stepwise procedure. The matrix starts as the correlations; a sweep on a variable brings it into the
/// equation, the next sweep on it takes it out. A swept row and column hold their part of the inverse in
/// place, so that no identity block has to be carried beside the matrix.
class Procedure {
  public:
    Procedure(const Moments& moments, int observationCount, int variableCount, const Criteria& criteria)
        : moments_(moments), n_(observationCount), y_(variableCount), criteria_(criteria),
          df_(observationCount - 1), r_(moments.correlation) {}

    std::vector<Step> run();

  private:
    static unsigned bitOf(int k) { return 1U << static_cast<unsigned>(k - 1); }
    bool isIn(int k) const { return (in_ & bitOf(k)) != 0; }

    Step pass();
    void weigh();
    void fit(Step& step) const;
    Term termOf(int k, Number standardError) const;
    bool leaves(Step& step) const;
    bool enters(Step& step) const;
    bool isEndless();
    void sweep(int k);

    const Moments& moments_;
    int n_;
    int y_; // the dependent variable
    Criteria criteria_;
    int df_;
    Matrix r_;
    unsigned in_ = 0;                       // the variables in the equation, variable k in bit k - 1
    Table<DoubleDouble, 1, columnCount> v_; // what each variable takes off r(y,y), below 0 for one that is in
    Table<int, 0, mostSets - 1> visits_;
};

std::vector<Step> Procedure::run() {
    std::vector<Step> steps;
    while (true) {
        const Step& step = steps.emplace_back(pass());
        if (step.end != Step::End::Entering && step.end != Step::End::Leaving) return steps;
        df_ += step.end == Step::End::Leaving ? 1 : -1;
        in_ ^= bitOf(step.moved);
        sweep(step.moved);
    }
}

Step Procedure::pass() {
    Step step;
    weigh();
    fit(step);
    if (leaves(step)) {
        step.end = Step::End::Leaving;
    } else if (enters(step)) {
        step.end = Step::End::Entering;
    }
    if (step.end != Step::End::Insufficient && isEndless()) step.end = Step::End::Endless;
    return step;
}

void Procedure::weigh() {
    for (int k = 1; k < y_; ++k) {
        v_(k) = 0;
        if (abs(r_(k, k)) <= tolerance) continue;
        const DoubleDouble v = r_(k, y_) * r_(y_, k) / r_(k, k);
        // Where nothing is left to explain rounding can give V the other side's sign.
        v_(k) = isIn(k) ? -abs(v) : std::max(v, DoubleDouble(0));
    }
}

void Procedure::fit(Step& step) const {
    const Number total = moments_.squares(y_);
    const Number residual = std::max(r_(y_, y_).value(), 0.0) * total; // below 0 by rounding only
    step.degreesOfFreedom = df_;
    step.entered = std::max(n_ - df_ - 1, 1);
    step.standardError = squareRoot(residual / df_);
    step.rSquare = 1 - residual / total;
    step.totalF = Number(df_) / step.entered * step.rSquare / (1 - step.rSquare);
    if (criteria_.positive) {
        step.rSquare = std::abs(step.rSquare);
        step.totalF = std::abs(step.totalF);
    }
    step.intercept = moments_.mean(y_);
    for (int k = 1; k < y_; ++k) {
        if (v_(k) >= 0) continue;
        step.terms.push_back(termOf(k, step.standardError));
        step.intercept -= step.terms.back().coefficient * moments_.mean(k);
    }
}

Term Procedure::termOf(int k, Number standardError) const {
    Term term;
    term.variable = k;
    term.coefficient = r_(k, y_) * moments_.deviation(y_) / moments_.deviation(k);
    term.standardError =
        standardError * squareRoot(r_(k, k).value()) / (moments_.deviation(k) * squareRoot(n_ - 1));
    term.tRatio = term.coefficient.value() / term.standardError;
    return term;
}

bool Procedure::leaves(Step& step) const {
    int weakest = 0;
    for (int k = 1; k < y_; ++k)
        if (v_(k) < 0 && (weakest == 0 || v_(k) > v_(weakest))) weakest = k;
    if (weakest == 0) return false;
    step.moved = weakest;
    step.incrementalF = (df_ * abs(v_(weakest)) / r_(y_, y_)).value();
    return step.incrementalF < criteria_.leavingLevel;
}

bool Procedure::enters(Step& step) const {
    int strongest = 0;
    for (int k = 1; k < y_; ++k)
        if (v_(k) > 0 && (strongest == 0 || v_(k) > v_(strongest))) strongest = k;
    step.moved = strongest;
    step.incrementalF = 0;
    if (strongest == 0) return false;
    // No variable explains more than there is; a residual below 0 is rounding, and an exact fit has no F.
    // Where the variable takes the last degree of freedom any fit is exact, and the F is 0 whatever rounding
    // leaves.
    const DoubleDouble residual = std::max(r_(y_, y_) - v_(strongest), DoubleDouble(0));
    if (df_ > 1) step.incrementalF = ((df_ - 1) * v_(strongest) / residual).value();
    return step.incrementalF > criteria_.enteringLevel;
}

/// Counts the visits to the equation's set of variables.
bool Procedure::isEndless() {
    return ++visits_(in_) > mostReturns;
}

void Procedure::sweep(int k) {
    if (r_(k, k) <= 0) r_(k, k) = leastPivot;
    const DoubleDouble b = 1 / r_(k, k);
    for (int j = 1; j <= y_; ++j) r_(k, j) *= b;
    for (int i = 1; i <= y_; ++i) {
        if (i == k) continue;
        const DoubleDouble c = -r_(i, k);
        for (int j = 1; j <= y_; ++j) r_(i, j) += c * r_(k, j);
        r_(i, k) = c * b;
    }
    r_(k, k) = b;
}

} // namespace

std::optional<Moments> momentsOf(const Observations& observations) {
    const CrossProducts raw = crossProductsOf(observations);
    const int n = observations.count;
    const int p = observations.variableCount;
    Moments moments;
    for (int j = 1; j <= p; ++j) {
        moments.mean(j) = raw.sum(j) / n;
        for (int k = 1; k <= p; ++k)
            moments.correlation(j, k) = raw.product(j, k) - raw.sum(j) * raw.sum(k) / n;
        moments.squares(j) = moments.correlation(j, j).value();
        const double variance = divide(moments.squares(j), n - 1);
        if (variance <= 0 || isConstant(observations, j)) return std::nullopt;
        moments.deviation(j) = squareRoot(variance);
    }
    for (int j = 1; j <= p; ++j)
        for (int k = 1; k <= p; ++k)
            moments.correlation(j, k) /= DoubleDouble(moments.deviation(j)) * moments.deviation(k) * (n - 1);
    return moments;
}

std::vector<Step> regress(const Moments& moments, int observationCount, int variableCount,
                          const Criteria& criteria) {
    return Procedure(moments, observationCount, variableCount, criteria).run();
}

double estimate(const Step& step, const Observations& observations, int i) {
    DoubleDouble value = step.intercept;
    for (const Term& term : step.terms) value += term.coefficient * observations.x(i, term.variable);
    return value.value();
}

AnalysisOfVariance varianceOf(const Step& step, Number deviation, int observationCount) {
    AnalysisOfVariance result;
    result.totalSquares = deviation * deviation * (observationCount - 1);
    result.regressionSquares = result.totalSquares * step.rSquare;
    result.residualSquares = result.totalSquares - result.regressionSquares;
    result.regressionMean = result.regressionSquares / step.entered;
    result.residualMean = result.residualSquares / step.degreesOfFreedom;
    return result;
}

} // namespace vantore::mulreg
