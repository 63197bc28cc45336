#pragma once

#include <array>
#include <string>
#include <vector>

#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::forecast {

constexpr int mostPeriods = 200;
constexpr int mostForecasts = 50;

/// The models by their numbers in the file; None until the user has chosen one.
enum class Model { None, Level, LevelTrend, LevelSeasonal, LevelTrendSeasonal, Decomposition };

bool isSmoothing(Model model);
bool hasTrend(Model model);

/// True of the smoothing models with seasonal indices, which the decomposition isn't.
bool smoothsSeasons(Model model);

/// The model's name in reports and plots; empty for None.
std::string nameOf(Model model);

struct Period {
    std::string label;
    double value = 0;
};

/// The record. Counts of periods are whole numbers, constants and increment have two decimals.
struct Problem {
    std::string label;
    int dataPeriods = 0;       ///< n
    double initialPeriods = 0; ///< N, the periods that initialise the model
    double errorPeriods = 0;   ///< E, the last periods, over which errors are measured
    Model model = Model::None;
    std::string search; ///< "Y" or "y" searches for the constants
    double searchIncrement = 0;
    double levelConstant = 0;    ///< alpha
    double trendConstant = 0;    ///< beta
    double seasonalConstant = 0; ///< gamma
    double seasonalLength = 0;   ///< L, periods
    double forecastPeriods = 0;  ///< f
    Table<Period, 1, mostPeriods> periods;

    bool searches() const { return search == "Y" || search == "y"; }
};

/// The members that the user edits in boxes. In the file the count of periods follows the first of them, the
/// model's number the third.
inline constexpr std::array<Field<Problem>, 10> boxFields = {
    &Problem::label,           &Problem::initialPeriods, &Problem::errorPeriods,  &Problem::search,
    &Problem::searchIncrement, &Problem::levelConstant,  &Problem::trendConstant, &Problem::seasonalConstant,
    &Problem::seasonalLength,  &Problem::forecastPeriods};
inline constexpr std::array<Field<Period>, 2> periodFields = {&Period::label, &Period::value};

/// `value` rounded to the whole number or to the two decimals that the record holds.
double roundedCount(double value);
double roundedConstant(double value);

/// The record as it is held: counts and constants rounded.
void roundFigures(Problem& problem);

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for a count of periods
/// outside 0 to 200. A model number outside 1 to 5 reads as None.
Problem read(ItemReader& reader);

/// Writes the items; period labels without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

/// What the user is told before a forecast: texts in their order. `stops` when the last of them ends the
/// Solve; the others are warnings.
struct Verdict {
    std::vector<std::string> texts;
    bool stops = false;
};

Verdict validate(const Problem& problem);

} // namespace vantore::forecast
