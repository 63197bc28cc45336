#include "solvers/PMED/solve.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "shell/base/arithmetic.h"
#include "shell/base/double_double.h"
#include "shell/base/number.h"
#include "solvers/great_circle.h"

namespace vantore::pmed {

namespace {

/// The site that serves a point, of those chosen so far.
struct Service {
    int candidate = 0;                                         ///< its place among the candidates
    double distance = std::numeric_limits<double>::infinity(); ///< none before the first site is chosen
};

/// Looks at all choices of sites, one site after another in the order of their numbers.
class Enumeration {
  public:
    explicit Enumeration(const SolverInput& input)
        : problem_(input.problem), pointCount_(static_cast<std::size_t>(input.problem.rowCount)) {
        for (int i = 1; i <= problem_.rowCount; ++i)
            if (problem_.sites(i).candidate) addCandidate(i);
        choose(0, static_cast<std::size_t>(input.sitesToLocate), std::vector<Service>(pointCount_), 0);
    }

    Assignment best() const {
        Assignment assignment;
        int point = 0;
        for (const Service& service : bestServices_)
            assignment.servedBy(++point) = numbers_[static_cast<std::size_t>(service.candidate)];
        assignment.totalCost = bestCost_->value();
        return assignment;
    }

  private:
    void addCandidate(int number) {
        const Site& candidate = problem_.sites(number);
        std::vector<double>& distances = distances_.emplace_back();
        std::vector<DoubleDouble>& costs = costs_.emplace_back();
        for (int i = 1; i <= problem_.rowCount; ++i) {
            const Site& point = problem_.sites(i);
            distances.push_back(distance(problem_, point, candidate));
            costs.push_back(DoubleDouble(point.volume) * point.rate * distances.back());
        }
        numbers_.push_back(number);
    }

    /// Tries every choice of `left` further sites from candidate `first` on; none but those chosen before
    /// serve the points as `services` says, at these fixed costs.
    void choose(std::size_t first, std::size_t left, const std::vector<Service>& services,
                DoubleDouble fixedCosts) {
        if (left == 0) return compare(services, fixedCosts);
        for (std::size_t next = first; next + left <= numbers_.size(); ++next)
            choose(next + 1, left - 1, withSite(services, next),
                   fixedCosts + problem_.sites(numbers_[next]).fixedCost);
    }

    std::vector<Service> withSite(std::vector<Service> services, std::size_t candidate) const {
        for (std::size_t point = 0; point < pointCount_; ++point) {
            const double distance = distances_[candidate][point];
            if (distance < services[point].distance)
                services[point] = {static_cast<int>(candidate), distance};
        }
        return services;
    }

    void compare(const std::vector<Service>& services, DoubleDouble fixedCosts) {
        DoubleDouble cost = fixedCosts;
        for (std::size_t point = 0; point < pointCount_; ++point)
            cost += costs_[static_cast<std::size_t>(services[point].candidate)][point];
        if (bestCost_ && !(cost < *bestCost_)) return;
        bestCost_ = cost;
        bestServices_ = services;
    }

    const Problem& problem_;
    std::size_t pointCount_;
    std::vector<int> numbers_; // of the candidates; the same order below
    std::vector<std::vector<double>> distances_;
    std::vector<std::vector<DoubleDouble>> costs_;
    std::optional<DoubleDouble> bestCost_;
    std::vector<Service> bestServices_;
};

} // namespace

double distance(const Problem& problem, const Site& from, const Site& to) {
    if (problem.coordinates == Coordinates::Degrees)
        return Number(greatCircleMiles({from.y, from.x}, {to.y, to.x})) * problem.vScale;
    const Number across = (Number(from.x) - to.x) * problem.hScale;
    const Number up = (Number(from.y) - to.y) * problem.vScale;
    return finite(std::hypot(across, up));
}

Assignment solve(const SolverInput& input) {
    return Enumeration(input).best();
}

} // namespace vantore::pmed
