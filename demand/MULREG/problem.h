#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::mulreg {

constexpr int mostObservations = 999;
constexpr int columnCount = 5;

/// What a data column is in the equation.
namespace role {
constexpr const char* dependent = "D";
constexpr const char* independent = "I";
constexpr const char* unused = "U";
} // namespace role

struct Variable {
    std::string label;
    std::string type = role::unused; ///< a role as the user typed it
};

struct Problem {
    std::string label;
    Table<Variable, 1, columnCount> variables;
    std::string stepwise; ///< "Y" reports the steps
    double enteringLevel = 0;
    double leavingLevel = 0;
    std::string errorAnalysis; ///< "Y" adds the error analysis
    int observationCount = 0;  ///< n
    Table2<double, 1, mostObservations, 1, columnCount> data;
};

/// The members that the user edits in boxes, in their order in the file; the variables follow the label.
inline constexpr std::array<Field<Problem>, 5> boxFields = {&Problem::label, &Problem::stepwise,
                                                            &Problem::enteringLevel, &Problem::leavingLevel,
                                                            &Problem::errorAnalysis};

/// The text of a new problem's file. Its F-levels, 4 and 3.9, are the customary ones of stepwise programs.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for a count of
/// observations outside 0 to 999.
Problem read(ItemReader& reader);

/// Writes the items; an empty type as "U".
void write(const Problem& problem, ItemWriter& writer);

/// The label of the variable in a column from 1 to 5, "Var. #1" style where it is empty.
std::string variableName(const Problem& problem, int column);

/// The first reason why the problem can't be solved.
std::optional<std::string> fault(const Problem& problem);

/// The columns of the independent variables in their order, then that of the dependent one.
std::vector<int> usedColumns(const Problem& problem);

/// The observations as the computation takes them: the dependent variable is the last of p.
struct Observations {
    int count = 0;         ///< n
    int variableCount = 0; ///< p
    Table2<double, 1, mostObservations, 1, columnCount> x;
};

/// The lines of the observations' working file: one an observation, the used columns' values in the order of
/// `usedColumns`.
std::string observationsText(const Problem& problem);

/// Reads `count` observations of `variableCount` values each. InputPastEnd for a short file,
/// SubscriptOutOfRange for more than 999 observations or 5 variables.
Observations readObservations(ItemReader& reader, int count, int variableCount);

} // namespace vantore::mulreg
