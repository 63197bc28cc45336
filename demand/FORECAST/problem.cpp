#include "demand/FORECAST/problem.h"

#include <cmath>

#include "shell/base/number_text.h"

namespace vantore::forecast {

namespace {

constexpr double leastInitialPeriods = 3;
constexpr int leastDataPeriods = 5;
constexpr int modelCount = 5;

Model modelOf(double number) {
    const double whole = std::nearbyint(number);
    return whole >= 1 && whole <= modelCount ? static_cast<Model>(static_cast<int>(whole)) : Model::None;
}

/// One step of the validation. It adds what it has to say, and gives true when the Solve must stop.
using Check = bool (*)(const Problem& problem, std::vector<std::string>& texts);

bool checkCounts(const Problem& problem, std::vector<std::string>& texts) {
    if (problem.seasonalLength + 2 > problem.initialPeriods)
        texts.emplace_back(
            "Initialization period must be at least 2 periods longer than the seasonal cycle.");
    if (problem.initialPeriods < leastInitialPeriods)
        texts.emplace_back("Initialization period should be at least 3 periods.");
    if (problem.dataPeriods < leastDataPeriods)
        texts.emplace_back("A minimum of 5 data points should be used.");
    if (problem.forecastPeriods < 1) texts.emplace_back("Forecast at least one period into the future.");
    if (problem.forecastPeriods > mostForecasts)
        texts.emplace_back("No more than 50 future periods can be forecast.");
    return false;
}

bool checkLabel(const Problem& problem, std::vector<std::string>& texts) {
    for (const char character : problem.label) {
        if (character == ',') texts.emplace_back("Problem label has a comma (,) in it.  Remove it.");
        if (character != '"') continue;
        texts.emplace_back("Problem label has a double quote mark (\") in it.  Remove it.");
        return true;
    }
    return false;
}

bool checkPeriodLabels(const Problem& problem, std::vector<std::string>& texts) {
    for (int t = 1; t <= problem.dataPeriods; ++t) {
        if (problem.periods(t).label.find('"') == std::string::npos) continue;
        // The wording says single where it means double; users know it so.
        texts.emplace_back("Period identification has a single quote mark (\") in it.  Remove it.");
        return true;
    }
    return false;
}

bool checkConstants(const Problem& problem, std::vector<std::string>& texts) {
    if (problem.searches() || !isSmoothing(problem.model)) return false;
    if (problem.levelConstant == 0) texts.emplace_back("NOTICE: The level smoothing constant is 0.");
    if (hasTrend(problem.model) && problem.trendConstant == 0)
        texts.emplace_back("NOTICE: The trend smoothing constant is 0.");
    if (smoothsSeasons(problem.model) && problem.seasonalConstant == 0)
        texts.emplace_back("NOTICE: The seasonal smoothing constant is 0.");
    return false;
}

bool checkIncrement(const Problem& problem, std::vector<std::string>& texts) {
    if (!problem.searches() || !isSmoothing(problem.model)) return false;
    if (problem.searchIncrement > 1) texts.emplace_back("Search increment must not be greater than 1.");
    if (problem.searchIncrement > 0) return false;
    texts.emplace_back("Search increment must be greater than 0.");
    return true;
}

bool checkSeason(const Problem& problem, std::vector<std::string>& texts) {
    const bool needsSeason = smoothsSeasons(problem.model) || problem.model == Model::Decomposition;
    if (!needsSeason || problem.seasonalLength != 0) return false;
    texts.emplace_back("Seasonal length must not be zero (0) if a seasonal model type is selected.");
    return true;
}

} // namespace

bool isSmoothing(Model model) {
    return model != Model::None && model != Model::Decomposition;
}

bool hasTrend(Model model) {
    return model == Model::LevelTrend || model == Model::LevelTrendSeasonal;
}

bool smoothsSeasons(Model model) {
    return model == Model::LevelSeasonal || model == Model::LevelTrendSeasonal;
}

std::string nameOf(Model model) {
    switch (model) {
    case Model::Level: return "Level only";
    case Model::LevelTrend: return "Trend";
    case Model::LevelSeasonal: return "Seasonal";
    case Model::LevelTrendSeasonal: return "Trend-Seasonal";
    case Model::Decomposition: return "Time Series Decomposition";
    default: return "";
    }
}

double roundedCount(double value) {
    return val(format(value, "##0"));
}

double roundedConstant(double value) {
    return val(format(value, "#.#0"));
}

void roundFigures(Problem& problem) {
    for (const auto count : {&Problem::initialPeriods, &Problem::errorPeriods, &Problem::seasonalLength,
                             &Problem::forecastPeriods})
        problem.*count = roundedCount(problem.*count);
    for (const auto constant : {&Problem::searchIncrement, &Problem::levelConstant, &Problem::trendConstant,
                                &Problem::seasonalConstant})
        problem.*constant = roundedConstant(problem.*constant);
}

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.dataPeriods = 1;
    problem.initialPeriods = 6;
    problem.errorPeriods = 6;
    problem.model = Model::Level;
    problem.search = "Y";
    problem.searchIncrement = .1;
    problem.levelConstant = problem.trendConstant = problem.seasonalConstant = .1;
    problem.seasonalLength = 4;
    problem.forecastPeriods = 1;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    const std::span<const Field<Problem>> fields = boxFields;
    readFields(reader, problem, fields.first(1));
    reader.readCount(mostPeriods); // The count in the second line, which the rows follow, says it again.
    readFields(reader, problem, fields.subspan(1, 2));
    problem.model = modelOf(reader.readNumber());
    readFields(reader, problem, fields.subspan(3));
    problem.dataPeriods = reader.readCount(mostPeriods);
    for (int t = 1; t <= problem.dataPeriods; ++t)
        readFields<Period>(reader, problem.periods(t), periodFields);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    const std::span<const Field<Problem>> fields = boxFields;
    writeFields(writer, problem, fields.first(1));
    writer.number(problem.dataPeriods);
    writeFields(writer, problem, fields.subspan(1, 2));
    writer.number(static_cast<int>(problem.model));
    writeFields(writer, problem, fields.subspan(3));
    writer.endLine().number(problem.dataPeriods).endLine();
    for (int t = 1; t <= problem.dataPeriods; ++t) writeRow<Period>(writer, problem.periods(t), periodFields);
}

Verdict validate(const Problem& problem) {
    Verdict verdict;
    for (const Check check :
         {checkCounts, checkLabel, checkPeriodLabels, checkConstants, checkIncrement, checkSeason})
        if (check(problem, verdict.texts)) {
            verdict.stops = true;
            break;
        }
    return verdict;
}

} // namespace vantore::forecast
