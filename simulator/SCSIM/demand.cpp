#include "simulator/SCSIM/demand.h"

#include <algorithm>
#include <cmath>

#include "shell/base/arithmetic.h"

namespace vantore::scsim {

namespace {

int lastGeneratedDay(const Problem& problem) {
    return toInt16(wholePart((problem.years + 1) * daysPerYear));
}

/// What is left of a day number without its whole years: 0 on the last day of a year, and often a rounding
/// error off a whole number.
double dayOfYear(int day) {
    const double years = static_cast<double>(day) / daysPerYear;
    return std::abs(years - truncated(years)) * daysPerYear;
}

double wholeDemand(double demand) {
    return std::max(wholePart(finite(demand)), 0.0);
}

/// The index of the month that a day of the year falls in; what lies between two months, or on no day at all,
/// keeps the index of the day before.
class Season {
  public:
    explicit Season(const Table<double, 1, monthsPerYear>& indices) : indices_(indices) {}

    double on(double dayOfYear) {
        if (dayOfYear < 1) return index_;
        const int month = static_cast<int>((dayOfYear - 1) / daysPerMonth) + 1;
        if (dayOfYear <= month * daysPerMonth) index_ = indices_(month);
        return index_;
    }

  private:
    const Table<double, 1, monthsPerYear>& indices_;
    double index_ = 0;
};

void fillGenerated(const Problem& problem, UniformGenerator& uniforms, DaySeries& customerDemand) {
    const double step = problem.averageDemand * problem.growth / 100 / daysPerYear;
    double mean = problem.averageDemand - problem.averageDemand * problem.growth / 100;
    Season season(problem.seasonalIndices);
    for (int day = firstDay; day <= lastGeneratedDay(problem); ++day) {
        const double index = season.on(dayOfYear(day > 0 ? day : day + daysPerYear));
        const double noise = problem.demandDeviation * normalDeviate(uniforms);
        mean += step;
        customerDemand(day) = wholeDemand(mean * index + noise);
    }
}

void fillSpecified(const Problem& problem, DaySeries& customerDemand) {
    double total = 0;
    for (const double demand : problem.dayProfile.span()) total += demand;
    const double average = finite(total) / daysPerYear;
    const double step = average * problem.profileGrowth / 100 / daysPerYear;
    double growth = 0;
    for (int day = 1; day <= lastGeneratedDay(problem); ++day) {
        const double past = dayOfYear(day);
        growth += step;
        customerDemand(day) =
            wholeDemand(problem.dayProfile(past == 0 ? daysPerYear : toInt16(past)) + growth);
    }
    growth = -(average * problem.profileGrowth / 100);
    for (int day = firstDay; day <= 0; ++day) {
        growth += step;
        customerDemand(day) = wholeDemand(problem.dayProfile(day + daysPerYear) + growth);
    }
}

} // namespace

void generateDemand(const Problem& problem, UniformGenerator& uniforms, DaySeries& customerDemand) {
    if (problem.demandSource == DemandSource::Generated)
        fillGenerated(problem, uniforms, customerDemand);
    else
        fillSpecified(problem, customerDemand);
}

} // namespace vantore::scsim
