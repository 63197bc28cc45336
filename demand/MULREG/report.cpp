#include "demand/MULREG/report.h"

#include <array>
#include <string>

#include "demand/MULREG/residual_plot.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::mulreg {

namespace {

constexpr std::size_t labelCharacters = 15;
constexpr std::array<int, columnCount> momentColumns = {17, 33, 49, 65, 81};
constexpr std::array<int, columnCount> correlationColumns = {26, 35, 44, 53, 62};
constexpr double rangeWidth = 2; // standard errors on either side of an estimate
constexpr const char* squaresMask = "#,###,###.####0";
constexpr const char* freedomMask = "##,##0";
constexpr const char* coefficientMask = "###,###.###0";
constexpr const char* shareMask = "#.###0";

class Writer {
  public:
    Writer(const Problem& problem, const Observations& observations, const Regression& regression,
           PrintLines& page)
        : problem_(problem), observations_(observations), moments_(regression.moments),
          steps_(regression.steps), last_(regression.steps.back()), columns_(usedColumns(problem)),
          page_(page) {}

    void moments();
    void correlations();
    void steps();
    void endOfSteps();
    void analysisOfVariance();
    void summary();
    void errorAnalysis();

  private:
    using Moment = Table<double, 1, columnCount>;

    int columnOf(int variable) const { return columns_.at(static_cast<std::size_t>(variable - 1)); }
    std::string nameOf(int variable) const { return variableName(problem_, columnOf(variable)); }
    std::string shortNameOf(int variable) const { return left(nameOf(variable), labelCharacters); }
    int dependent() const { return observations_.variableCount; }

    void moment(const char* title, const Moment& values);
    void step(const Step& step);
    void move(const Step& step);
    void errorRow(int i, double estimated);

    const Problem& problem_;
    const Observations& observations_;
    const Moments& moments_;
    const std::vector<Step>& steps_;
    const Step& last_;
    std::vector<int> columns_;
    PrintLines& page_;
};

void Writer::moment(const char* title, const Moment& values) {
    page_.line(title);
    for (int column = 1; column <= columnCount; ++column)
        page_.right(momentColumns.at(static_cast<std::size_t>(column - 1)),
                    left(variableName(problem_, column), labelCharacters));
    page_.endLine();
    for (int column = 1; column <= columnCount; ++column)
        for (int variable = 1; variable <= dependent(); ++variable)
            if (columnOf(variable) == column)
                page_.right(momentColumns.at(static_cast<std::size_t>(column - 1)),
                            format(values(variable), "###,###.##0"));
    page_.endLine();
}

void Writer::moments() {
    Moment means;
    for (int variable = 1; variable <= dependent(); ++variable)
        means(variable) = moments_.mean(variable).value();
    moment(" Means", means);
    moment(" Standard deviations", moments_.deviation);
}

void Writer::correlations() {
    page_.line(" Simple correlation coefficients");
    for (int j = 1; j <= dependent(); ++j) {
        page_.text(" " + shortNameOf(j));
        for (int k = 1; k <= dependent(); ++k)
            page_.right(correlationColumns.at(static_cast<std::size_t>(k - 1)),
                        format(moments_.correlation(j, k).value(), "#.##0"));
        page_.endLine();
    }
}

void Writer::steps() {
    page_.line(" STEPWISE COMPUTATIONS");
    page_.line(" Dependent variable " + nameOf(dependent()));
    for (const Step& each : steps_) {
        step(each);
        move(each);
    }
}

void Writer::step(const Step& step) {
    page_.line("                            B      Standard ");
    page_.line(" Variable         Index     coef.  deviation    T-Ratio");
    page_.text(" Intercept")
        .right(24, "0")
        .right(34, format(step.intercept.value(), "##,###.###0"))
        .endLine();
    for (const Term& term : step.terms) {
        page_.text(" " + shortNameOf(term.variable)).right(24, defaultText(columnOf(term.variable)));
        page_.right(34, format(term.coefficient.value(), "##,###.###0"));
        page_.right(45, format(term.standardError, coefficientMask));
        page_.right(56, format(term.tRatio, coefficientMask)).endLine();
    }
    page_.line(" Standard error of Y: " + format(step.standardError, coefficientMask));
    page_.line(" Coefficient of determination (RSQR): " + format(step.rSquare, shareMask));
    page_.line(" Total F-level: " + format(step.totalF, "##,###,###.0"));
}

void Writer::move(const Step& step) {
    switch (step.end) {
    case Step::End::Entering:
        page_.line(" Independent variable entering is: " + nameOf(step.moved) +
                   " Incremental F-level: " + format(step.incrementalF, "##,###,###.0"));
        return;
    case Step::End::Leaving: page_.line(" Independent variable leaving is: " + nameOf(step.moved)); return;
    case Step::End::Insufficient:
        page_.line(" Incremental F-level insufficient for further computation");
        return;
    case Step::End::Endless: return;
    }
}

void Writer::endOfSteps() {
    if (last_.end != Step::End::Endless) return;
    page_.line(" Variables enter and leave without end under these F-levels; computation stopped");
}

void Writer::analysisOfVariance() {
    const AnalysisOfVariance variance =
        varianceOf(last_, moments_.deviation(dependent()), observations_.count);
    page_.line(" ANALYSIS OF VARIANCE");
    page_.line(" Source                    SS      df                MS         F-value");
    page_.text(" Regression").right(30, format(variance.regressionSquares, squaresMask)).text("  ");
    page_.right(38, format(last_.entered, "##0"));
    page_.right(56, format(variance.regressionMean, squaresMask));
    page_.right(72, format(last_.totalF, squaresMask)).endLine();
    page_.text(" Residual  ").right(30, format(variance.residualSquares, squaresMask));
    page_.right(38, format(last_.degreesOfFreedom, freedomMask));
    page_.right(56, format(variance.residualMean, squaresMask)).endLine();
    page_.text("  Total").right(30, format(variance.totalSquares, squaresMask));
    page_.right(38, format(observations_.count - 1, freedomMask)).endLine();
}

void Writer::summary() {
    page_.line(" SUMMARY");
    page_.line(" The estimating equation is:");
    page_.line(" Y (" + nameOf(dependent()) + ") = " + format(last_.intercept.value(), "#,###,###,###.###0"));
    for (const Term& term : last_.terms)
        page_.line(" + " + format(term.coefficient.value(), "###,###,###.###0") + " x " +
                   nameOf(term.variable));
    page_.line(" with a standard error of estimate = " + format(last_.standardError, coefficientMask));
    page_.line(" and an R-square of  " + format(last_.rSquare, shareMask));
}

void Writer::errorRow(int i, double estimated) {
    const double actual = observations_.x(i, dependent());
    const double low = estimated - rangeWidth * last_.standardError;
    const double high = estimated + rangeWidth * last_.standardError;
    page_.right(5, defaultText(i)).right(16, format(actual, "#####.##0"));
    page_.right(26, format(estimated, "######.##0")).right(36, format(actual - estimated, "#######.##0"));
    page_.right(46, format(low, "######.##0")).text(" - ").text(format(high, "######.##0"));
    page_.tab(58).text("     ").text(actual < low || actual > high ? "Y" : " ").endLine();
}

void Writer::errorAnalysis() {
    page_.line(" ERROR ANALYSIS");
    page_.line(" Obs     Actual Estimated   Re-         Expected range     Out of");
    page_.line(" no.          Y         Y   siduals     2 x Std. Error     range");
    std::vector<FittedPoint> points;
    for (int i = 1; i <= observations_.count; ++i) {
        const double estimated = estimate(last_, observations_, i);
        points.push_back({estimated, observations_.x(i, dependent()) - estimated});
        errorRow(i, estimated);
    }
    print(plotResiduals(points), page_);
}

} // namespace

PrintLines reportOn(const Problem& problem, const Observations& observations,
                    const std::optional<Regression>& regression) {
    PrintLines page;
    page.line(" MULTIPLE REGRESSION ANALYSIS RESULTS").line("").line(problem.label);
    if (!regression) {
        page.line("A zero standard deviation is not allowed - check input data");
        return page;
    }
    Writer writer(problem, observations, *regression, page);
    if (problem.stepwise == "Y") {
        writer.moments();
        writer.correlations();
        writer.steps();
    }
    writer.endOfSteps();
    writer.analysisOfVariance();
    writer.summary();
    if (problem.errorAnalysis == "Y") writer.errorAnalysis();
    return page;
}

} // namespace vantore::mulreg
