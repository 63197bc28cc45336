#include "solvers/MIP/report.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "solvers/MIP/figures.h"

namespace vantore::mip {

using miprog::SolverInput;
using Side = FigureTable::Side;
using Cells = std::vector<std::string>;

namespace {

constexpr std::size_t lineWidth = 76;
constexpr int summaryEnd = 60; // position behind the figures of the summary

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

void summaryLine(PrintLines& page, const std::string& label, const std::string& text) {
    page.text(label).right(summaryEnd, text).endLine();
}

bool isOptimal(const std::optional<Relaxation>& relaxation) {
    return relaxation && relaxation->end == LinearEnd::Optimal;
}

bool isInfeasible(const std::optional<Relaxation>& relaxation) {
    return relaxation && relaxation->end == LinearEnd::Infeasible;
}

bool isUnbounded(const std::optional<Relaxation>& relaxation) {
    return relaxation && relaxation->end == LinearEnd::Unbounded;
}

std::string heading(Status status) {
    switch (status) {
    case Status::Optimal: return "OPTIMAL";
    case Status::Infeasible: return "INFEASIBLE";
    case Status::Unbounded: return "UNBOUNDED";
    case Status::OptimalWithinTolerances: return "OPTIMAL WITHIN TOLERANCES";
    case Status::NoneWithinTolerances: return "NO SOLUTION FOUND";
    case Status::Stopped: break;
    }
    return "STOPPED";
}

std::string stageName(Stage stage) {
    switch (stage) {
    case Stage::Relaxation: return "The solution without integer requirements";
    case Stage::Search: return "The search";
    case Stage::Proof: break;
    }
    return "The proof";
}

double secondsOf(const StageSeconds& seconds, Stage stage) {
    switch (stage) {
    case Stage::Relaxation: return seconds.relaxation;
    case Stage::Search: return seconds.search;
    case Stage::Proof: break;
    }
    return seconds.proof;
}

/// Which stage didn't come to its end, and why.
std::string haltText(const Outcome& outcome, const StageSeconds& limits) {
    if (!outcome.halt) return "The search broke down.";
    const std::string name = stageName(outcome.halt->stage);
    switch (outcome.halt->cause) {
    case watch::End::TimeLimit:
        return name + " ran into its time limit of " + defaultText(secondsOf(limits, outcome.halt->stage)) +
               " seconds.";
    case watch::End::Interrupted: return name + " was stopped by the user.";
    default: return name + " broke down.";
    }
}

std::string statusText(const Outcome& outcome, const StageSeconds& limits) {
    switch (outcome.status) {
    case Status::Optimal:
        return "The solution below is the best that there is: this is proved in exact arithmetic.";
    case Status::Infeasible:
        return "No solution satisfies all constraints, bounds and integer requirements: this is proved in "
               "exact arithmetic.";
    case Status::Unbounded:
        return "The objective value can be improved without limit, a constraint is missing: this is proved "
               "in exact arithmetic.";
    case Status::OptimalWithinTolerances:
        return "The search found no better solution than the one below within the tolerances of its library. "
               "That there is none is not proved. " +
               haltText(outcome, limits);
    case Status::NoneWithinTolerances:
        return "The search found no solution within the tolerances of its library. That there is none is not "
               "proved. " +
               haltText(outcome, limits);
    case Status::Stopped: break;
    }
    return haltText(outcome, limits) + (outcome.solution
                                            ? " The best solution found until then is given below; there may "
                                              "be a better one."
                                            : " No solution had been found until then; there may be one.");
}

void listPlaces(PrintLines& page, const std::string& lead, const std::vector<int>& places) {
    if (places.empty()) return;
    std::string text;
    for (const int place : places) text.append(text.empty() ? " " : ", ").append(std::to_string(place));
    wrap(page, lead + text + ".");
}

/// The relaxation takes the bounds of integer variables to whole numbers, which a user is told where it
/// matters.
std::string withFractions(const SolverInput& input) {
    const auto isWholeNumber = [](double bound) { return bound == std::floor(bound); };
    const auto integers = input.intIndex.span();
    const bool wholeBounds = std::all_of(integers.begin(), integers.end(), [&](int j) {
        return isWholeNumber(input.bounds(j).lower) && isWholeNumber(input.bounds(j).upper);
    });
    return std::string("when the integer variables may have fractions") +
           (wholeBounds ? "" : ", their bounds taken to whole numbers");
}

/// What is known without the integer requirements, where that explains the status.
void printReason(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    if (outcome.withoutWholeNumber) {
        const int j = *outcome.withoutWholeNumber;
        wrap(page, "No whole number is within the bounds of variable " + std::to_string(j) + " (" +
                       input.names(j) + ").");
    } else if (isInfeasible(outcome.relaxation)) {
        if (input.intCount() > 0) wrap(page, "Nor is there one " + withFractions(input) + ".");
        listPlaces(page, "Together with the bounds of the variables these constraints contradict each other:",
                   outcome.relaxation->conflict);
    } else if (outcome.status == Status::Infeasible) {
        wrap(page, "There are solutions " + withFractions(input) + ".");
    }
    if (!isUnbounded(outcome.relaxation)) return;
    if (outcome.status != Status::Unbounded)
        wrap(page, "The objective value can be improved without limit " + withFractions(input) + ".");
    listPlaces(page, "Variables that change without limit on the way:", outcome.relaxation->unlimited);
}

/// The gap as a share of the objective value.
std::string gapText(const Rational& gap, const Rational& objective) {
    if (gap == 0) return "0 %";
    if (objective == 0) return "-";
    return figure(exact(numberFrom(format(approximate(gap / abs(objective) * 100), "0.##")))) + " %";
}

void printSummary(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    page.line("");
    summaryLine(page, "Objective", input.objectiveFlag > 0 ? "Maximize" : "Minimize");
    if (!outcome.solution) return;
    const Rational& objective = outcome.solution->objective;
    summaryLine(page, "Objective value", figure(objective));
    std::optional<Rational> bound;
    if (isOptimal(outcome.relaxation)) bound = outcome.relaxation->objective;
    if (outcome.status == Status::Optimal) bound = objective;
    if (!bound) return;
    const Rational gap = abs(*bound - objective);
    summaryLine(page, "Best possible objective value", figure(*bound));
    summaryLine(page, "Gap between the two", figure(gap));
    summaryLine(page, "Gap in per cent of the objective value", gapText(gap, objective));
}

Cells numbers(int count) {
    Cells cells;
    for (int k = 1; k <= count; ++k) cells.push_back(std::to_string(k));
    return cells;
}

Cells figures(const std::vector<Rational>& values) {
    Cells cells;
    for (const Rational& value : values) cells.push_back(figure(value));
    return cells;
}

/// Numbers as they were typed.
Cells typed(std::span<const double> values) {
    Cells cells;
    for (const double value : values) cells.push_back(defaultText(value));
    return cells;
}

Cells types(const SolverInput& input) {
    const auto columns = input.intIndex.span();
    const std::set<int> integers(columns.begin(), columns.end());
    Cells cells;
    for (int j = 1; j <= input.n; ++j) {
        const bool binary = input.bounds(j).lower == 0 && input.bounds(j).upper == 1;
        cells.emplace_back(!integers.contains(j) ? "continuous" : binary ? "0-1" : "integer");
    }
    return cells;
}

void printVariables(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    if (input.n == 0 || !(outcome.solution || isOptimal(outcome.relaxation))) return;
    page.line("").line("VARIABLES");
    FigureTable table;
    table.column("", "No.", Side::Right, numbers(input.n));
    table.column("", "Name", Side::Left, {input.names.span().begin(), input.names.span().end()});
    table.column("", "Type", Side::Left, types(input));
    if (outcome.solution) table.column("", "Value", Side::Right, figures(outcome.solution->values));
    if (isOptimal(outcome.relaxation))
        table.column("Relaxed", "value", Side::Right, figures(outcome.relaxation->values));
    table.column("Objective", "coefficient", Side::Right, typed(input.objCoef.span()));
    if (isOptimal(outcome.relaxation))
        table.column("Reduced", "cost", Side::Right, figures(outcome.relaxation->reducedCosts));
    table.print(page);
}

Cells relations(const SolverInput& input) {
    Cells cells;
    for (const int sense : input.rowSense.span())
        cells.emplace_back(sense == 0 ? "=" : sense > 0 ? "<=" : ">=");
    return cells;
}

/// What is left of the right side.
Cells slacks(const SolverInput& input, const Solution& solution) {
    Cells cells;
    for (int i = 1; i <= input.m; ++i)
        cells.push_back(
            figure(abs(exact(input.rhs(i)) - solution.leftSides[static_cast<std::size_t>(i - 1)])));
    return cells;
}

void printConstraints(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    if (input.m == 0 || !(outcome.solution || isOptimal(outcome.relaxation))) return;
    page.line("").line("CONSTRAINTS");
    FigureTable table;
    table.column("", "No.", Side::Right, numbers(input.m));
    if (outcome.solution) table.column("", "Left side", Side::Right, figures(outcome.solution->leftSides));
    table.column("", "", Side::Left, relations(input));
    table.column("", "Right side", Side::Right, typed(input.rhs.span()));
    if (outcome.solution) table.column("", "Slack", Side::Right, slacks(input, *outcome.solution));
    if (isOptimal(outcome.relaxation))
        table.column("Dual", "value", Side::Right, figures(outcome.relaxation->dualValues));
    table.print(page);
}

void printRelaxation(PrintLines& page, const SolverInput& input, const Outcome& outcome) {
    if (!isOptimal(outcome.relaxation)) return;
    page.line("").line("CONTINUOUS RELAXATION");
    summaryLine(page, "Objective value of the relaxation", figure(outcome.relaxation->objective));
    wrap(page, input.intCount() == 0
                   ? "There are no integer variables: the relaxation is the problem itself."
                   : "This is the optimum " + withFractions(input) + ", proved in exact arithmetic.");
    wrap(page,
         "Reduced costs and dual values belong to it: the change of its objective value for one unit more "
         "of the variable or of the right side, so long as the same bounds and constraints bind.");
}

std::string secondsText(double seconds) {
    return format(seconds, "###,##0.00");
}

void printSearch(PrintLines& page, const Outcome& outcome, const StageSeconds& limits) {
    page.line("").line("SEARCH AND PROOF");
    summaryLine(page, "Nodes of the search", std::to_string(outcome.search.nodes));
    summaryLine(page, "Simplex iterations of the search", std::to_string(outcome.search.iterations));
    if (outcome.solution && outcome.status != Status::Optimal && outcome.search.bound)
        summaryLine(page, "Best objective value that the search holds possible",
                    figure(*outcome.search.bound));
    summaryLine(page, "Nodes of the proof", std::to_string(outcome.proofNodes));
    summaryLine(page, "Seconds without integer requirements", secondsText(outcome.used.relaxation));
    summaryLine(page, "Seconds of the search", secondsText(outcome.used.search));
    summaryLine(page, "Seconds of the proof", secondsText(outcome.used.proof));
    summaryLine(page, "Limits of the three in seconds",
                defaultText(limits.relaxation) + ", " + defaultText(limits.search) + ", " +
                    defaultText(limits.proof));
    if (outcome.solution)
        wrap(page, "The solution was held against the problem in exact arithmetic, all numbers taken as the "
                   "decimals "
                   "that they are: it keeps every bound, constraint and integer requirement.");
}

} // namespace

PrintLines report(const SolverInput& input, const Outcome& outcome, const StageSeconds& limits) {
    PrintLines page;
    page.line("STATUS: " + heading(outcome.status));
    wrap(page, statusText(outcome, limits));
    printReason(page, input, outcome);
    printSummary(page, input, outcome);
    printVariables(page, input, outcome);
    printConstraints(page, input, outcome);
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
