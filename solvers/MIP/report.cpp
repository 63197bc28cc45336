#include "solvers/MIP/report.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "solvers/MIP/check.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr std::size_t numberWidth = 14;
constexpr std::size_t smallNumberWidth = 10; // five significant digits say enough
constexpr std::size_t lineWidth = 76;
constexpr int summaryEnd = 55; // position behind the figures of the summary

// Positions behind the columns of the tables, and where their texts begin.
constexpr int placeEnd = 5;
constexpr int nameStart = 6;
constexpr int typeStart = 23;
constexpr int firstNumberEnd = 47;
constexpr int secondNumberEnd = 62;
constexpr int thirdNumberEnd = 77;
constexpr int leftSideEnd = 21;
constexpr int relationStart = 23;
constexpr int rightSideEnd = 41;
constexpr int slackEnd = 59;

std::string plural(long long count, const std::string& what) {
    return format(static_cast<double>(count), "###,###,##0") + " " + what + (count == 1 ? "" : "s");
}

/// A sentence in lines of the report's width, broken at blanks.
void wrap(PrintLines& page, const std::string& text) {
    std::string line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (!line.empty() && length(line) + 1 + length(word) > lineWidth) {
            page.line(line);
            line.clear();
        }
        line.append(line.empty() ? "" : " ").append(word);
    }
    page.line(line);
}

void summaryLine(PrintLines& page, const std::string& label, const std::string& figure) {
    page.text(label).right(summaryEnd, figure).endLine();
}

std::string heading(const Outcome& outcome) {
    switch (outcome.status) {
    case Status::Optimal: return "OPTIMAL";
    case Status::Infeasible: return "INFEASIBLE";
    case Status::Unbounded: return "UNBOUNDED";
    case Status::TimeLimit:
    case Status::NodeLimit:
    case Status::Interrupted:
    case Status::BrokenDown: return "STOPPED";
    case Status::Unproved: return "NOT PROVED OPTIMAL";
    case Status::NotSolved: break;
    }
    return "NOT SOLVED";
}

std::string stoppedText(const Outcome& outcome, const std::string& by) {
    return "The search was stopped by " + by + ". " +
           (outcome.solution ? "The best solution found until then is given below."
                             : "No solution had been found until then; there may be one.");
}

std::string statusText(const Outcome& outcome, const Limits& limits) {
    switch (outcome.status) {
    case Status::Optimal: return "The solution below is proved to be the best that there is.";
    case Status::Infeasible: return "No solution satisfies all constraints and bounds.";
    case Status::Unbounded:
        return "The objective value can be improved without limit: a constraint is missing.";
    case Status::TimeLimit:
        return stoppedText(outcome, "its time limit of " + defaultText(limits.seconds) + " seconds");
    case Status::NodeLimit: return stoppedText(outcome, "its limit of " + plural(limits.nodes, "node"));
    case Status::Interrupted: return stoppedText(outcome, "the user");
    case Status::BrokenDown: return stoppedText(outcome, "a failure of the solver's library");
    case Status::Unproved:
        return "The solution below has been checked, but the numbers of this problem are so far apart in "
               "size "
               "that it can't be proved to be the best. Rescaling the problem may help.";
    case Status::NotSolved: break;
    }
    return "No solution is given.";
}

void listPlaces(PrintLines& page, const std::string& lead, const std::vector<int>& places) {
    if (places.empty()) return;
    std::string text;
    for (const int place : places) text.append(text.empty() ? " " : ", ").append(std::to_string(place));
    wrap(page, lead + text + ".");
}

void printStatus(PrintLines& page, const Outcome& outcome, const Limits& limits) {
    page.line("STATUS: " + heading(outcome));
    wrap(page, statusText(outcome, limits));
    if (!outcome.reason.empty()) wrap(page, outcome.reason);
    listPlaces(page, "Together with the bounds of the variables these constraints contradict each other:",
               outcome.conflict);
    listPlaces(page, "Variables that can change without limit:", outcome.unlimited);
}

/// The gap as a share of the objective value.
std::string gapText(double gap, double objective) {
    if (gap == 0) return "0.00 %";
    if (objective == 0) return "-";
    const double percent = gap / std::abs(objective) * 100;
    if (!(percent < 1E+06)) return "-";
    return format(percent, "###,##0.00") + " %";
}

void printSummary(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    page.line("");
    summaryLine(page, "Objective", input.objectiveFlag > 0 ? "Maximize" : "Minimize");
    if (!outcome.solution) return;
    const double objective = outcome.solution->objective;
    summaryLine(page, "Objective value", columnText(objective, numberWidth));
    if (!outcome.bound) return;
    // A bound that is worse than the solution by the last digits is the solution's value.
    const double bound = better(input, objective, *outcome.bound) ? objective : *outcome.bound;
    const double gap = std::abs(bound - objective);
    summaryLine(page, "Best possible objective value", columnText(bound, numberWidth));
    summaryLine(page, "Gap between the two", columnText(gap, numberWidth));
    summaryLine(page, "Gap in per cent of the objective value", gapText(gap, objective));
}

std::string typeText(const SolverInput& input, const std::set<int>& integers, int j) {
    if (!integers.contains(j)) return "continuous";
    const bool binary = input.bounds(j).lower == 0 && input.bounds(j).upper == 1;
    return binary ? "0-1" : "integer";
}

void printVariables(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    page.line("").line("VARIABLES");
    page.right(secondNumberEnd, "Objective").right(thirdNumberEnd, "Reduced").endLine();
    page.right(placeEnd, "No.").tab(nameStart).text("Name").tab(typeStart).text("Type");
    page.right(firstNumberEnd, "Value").right(secondNumberEnd, "coefficient").right(thirdNumberEnd, "cost");
    page.endLine();
    const auto columns = input.intIndex.span();
    const std::set<int> integers(columns.begin(), columns.end());
    for (int j = 1; j <= input.n; ++j) {
        const auto at = static_cast<std::size_t>(j - 1);
        page.right(placeEnd, std::to_string(j)).tab(nameStart).text(input.names(j));
        page.tab(typeStart).text(typeText(input, integers, j));
        page.right(firstNumberEnd, columnText(outcome.solution->values[at], numberWidth));
        page.right(secondNumberEnd, columnText(input.objCoef(j), numberWidth));
        page.right(thirdNumberEnd,
                   outcome.relaxation ? columnText(outcome.relaxation->reducedCosts[at], numberWidth) : "-");
        page.endLine();
    }
}

/// What is left of the right side, never below 0 but for what the check lets pass.
double slackOf(const SolverInput& input, int i, double leftSide) {
    return input.rowSense(i) < 0 ? leftSide - input.rhs(i) : input.rhs(i) - leftSide;
}

std::string relationText(int sense) {
    if (sense == 0) return "=";
    return sense > 0 ? "<=" : ">=";
}

void printConstraints(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    page.line("").line("CONSTRAINTS");
    page.right(thirdNumberEnd, "Dual").endLine();
    page.right(placeEnd, "No.").right(leftSideEnd, "Left side").right(rightSideEnd, "Right side");
    page.right(slackEnd, "Slack").right(thirdNumberEnd, "value").endLine();
    for (int i = 1; i <= input.m; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        const double leftSide = outcome.solution->leftSides[at];
        page.right(placeEnd, std::to_string(i)).right(leftSideEnd, columnText(leftSide, numberWidth));
        page.tab(relationStart).text(relationText(input.rowSense(i)));
        page.right(rightSideEnd, columnText(input.rhs(i), numberWidth));
        page.right(slackEnd, columnText(slackOf(input, i, leftSide), numberWidth));
        page.right(thirdNumberEnd,
                   outcome.relaxation ? columnText(outcome.relaxation->dualValues[at], numberWidth) : "-");
        page.endLine();
    }
}

void printRelaxation(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    if (!outcome.relaxation) return;
    page.line("").line("CONTINUOUS RELAXATION");
    summaryLine(page, "Objective value of the relaxation",
                columnText(outcome.relaxation->objective, numberWidth));
    wrap(page, input.intCount() == 0 ? "There are no integer variables: the relaxation is the problem itself."
                                     : "This is the optimum when the integer variables may have fractions.");
    if (outcome.solution)
        wrap(page,
             "Reduced costs and dual values belong to it: the change of its objective value for one unit "
             "more of the variable or of the right side.");
}

std::string secondsText(double seconds) {
    return seconds < 1 ? "less than 1" : format(seconds, "###,##0.0");
}

void printSearch(PrintLines& page, const Outcome& outcome, const Limits& limits) {
    page.line("").line("SEARCH");
    summaryLine(page, "Nodes", format(outcome.nodes, "###,###,##0"));
    summaryLine(page, "Simplex iterations", format(outcome.iterations, "###,###,##0"));
    summaryLine(page, "Seconds", secondsText(outcome.seconds));
    summaryLine(page, "Limits", defaultText(limits.seconds) + " seconds, " + plural(limits.nodes, "node"));
    if (!outcome.solution) return;
    wrap(page, "The solution was computed anew from the problem with the integer variables rounded: it keeps "
               "every bound and constraint within " +
                   defaultText(checkTolerance) + " of the largest term.");
}

} // namespace

std::string columnText(double value, std::size_t width) {
    if (value == 0) return "0.0000";
    // A small number shows as it is only where four decimals are all that it has.
    constexpr double leastWithDecimals = .01;
    const double tenThousandths = std::abs(value) * 10000;
    const bool fewDecimals = std::abs(tenThousandths - std::nearbyint(tenThousandths)) < 1E-09;
    const bool shows = std::abs(value) >= leastWithDecimals || (fewDecimals && tenThousandths > .5);
    if (!shows) return fitted(value, std::min(width, smallNumberWidth));
    for (const char* mask : {"###,###,###,##0.0000", "###,###,###,##0.00", "###,###,###,##0"}) {
        const std::string text = format(value, mask);
        if (text.size() <= width) return text;
    }
    return fitted(value, width);
}

PrintLines report(const SolverInput& input, const Outcome& outcome, const Limits& limits) {
    PrintLines page;
    printStatus(page, outcome, limits);
    printSummary(page, input, outcome);
    if (outcome.solution) {
        if (input.n > 0) printVariables(page, input, outcome);
        if (input.m > 0) printConstraints(page, input, outcome);
    }
    printRelaxation(page, input, outcome);
    printSearch(page, outcome, limits);
    return page;
}

PrintLines reportWithoutProblem(const std::string& why) {
    PrintLines page;
    page.line("STATUS: NOT SOLVED");
    wrap(page, "TEMP.DAT can't be read as a problem.");
    wrap(page, why);
    return page;
}

PrintLines reportBeforehand() {
    PrintLines page;
    page.line("STATUS: NOT SOLVED");
    wrap(page, "The solver was ended before it could report.");
    return page;
}

} // namespace vantore::mip
