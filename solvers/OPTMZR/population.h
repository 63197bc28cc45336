#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/route_value.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

/// A solution among others, as the local search left it.
struct Individual {
    Individual(int stopCount, Solution solution, const RouteValue& total, int missingVehicles);

    double penalised(const Penalties& penalties) const;

    Solution solution;
    std::vector<int> tour; ///< its routes one behind the other
    std::vector<int> next; ///< by stop: the stop behind it, 0 for the depot
    std::vector<int> previous;
    RouteValue total;
    int missingVehicles = 0;
    double cost = 0;                                           ///< with the present penalties
    std::vector<std::pair<double, const Individual*>> nearest; ///< the others by distance, the nearest first
};

/// The share of stops whose neighbours differ.
double brokenPairs(const Individual& a, const Individual& b);

/// Solutions of one kind, the feasible or the others, kept good and different from each other.
/// Source: Vidal, Crainic, Gendreau, Lahrichi and Rei, "A hybrid genetic algorithm for multidepot and
/// periodic vehicle routing problems" (2012).
class Population {
  public:
    /// Takes an individual in; from time to time those that are the worst and the most alike go.
    void add(std::unique_ptr<Individual> individual);

    /// The costs anew, and the order by them.
    void price(const Penalties& penalties);

    std::size_t size() const { return members_.size(); }
    const Individual& member(std::size_t index) const { return *members_[index]; }
    /// Rank by cost and by difference together, the least the best.
    double fitness(std::size_t index) const { return fitness_[index]; }
    void rank();

  private:
    void insertSorted(std::unique_ptr<Individual> individual);
    void removeWorst();

    std::vector<std::unique_ptr<Individual>> members_; ///< the cheapest first
    std::vector<double> fitness_;
};

} // namespace vantore::optmzr
