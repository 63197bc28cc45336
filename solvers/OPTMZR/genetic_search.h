#pragma once

#include <functional>

#include "solvers/OPTMZR/local_search.h"
#include "solvers/OPTMZR/population.h"
#include "solvers/OPTMZR/split.h"

namespace vantore::optmzr {

/// What the local search made of a solution.
struct Found {
    const Solution& solution;
    const RouteValue& total;
    int violations = 0;
    bool isStrict = false; ///< the total's misses are counted
    int missingVehicles = 0;
};

/// Hybrid genetic search: tours are crossed, cut into routes, improved by the local search and kept in two
/// populations, of feasible plans and of others. Penalties follow the share of feasible plans. When nothing
/// better has come for long it begins anew, until its steps are used up.
/// Source: Vidal, "Hybrid genetic search for the CVRP: open-source implementation and SWAP* neighborhood"
/// (2022).
class GeneticSearch {
  public:
    GeneticSearch(const Instance& instance, std::function<void(const Found&)> onFound);

    void run();

    /// Goes on where no plan keeps all limits: as a plan is judged, the fewest limits broken come first.
    void runStrictly();

  private:
    /// How many of the last plans kept a kind of limit.
    struct Kept {
        int load = 0, minutes = 0, distance = 0, share = 0, vehicle = 0;
        int plans = 0;
    };

    void searchOn();
    void begin();
    void addRandom();
    void breed();
    const Individual& parent();
    std::vector<int> crossed(const std::vector<int>& a, const std::vector<int>& b);
    void sortAround(Solution& solution) const;
    void educate(Solution solution);
    void note(const RouteValue& total, int missing);
    void adaptPenalties();
    long long work() const { return search_.work() + split_.work(); }
    int effort() const;
    bool isOver() const;

    const Instance& instance_;
    std::function<void(const Found&)> onFound_;
    LocalSearch search_;
    Split split_;
    Population feasible_, infeasible_;
    Penalties penalties_;
    Kept kept_;
    Dice dice_{1};
    long long budget_;
    bool isStrict_ = false;
    int sinceBetter_ = 0; ///< plans since a better one, since it began anew
    int sinceBest_ = 0;   ///< plans since the best of all
    double best_;
    double bestSinceBegin_;
};

/// The penalties to begin with: an excess of the size of the largest load, of an hour or of the longest leg
/// costs what the dearest leg does.
Penalties firstPenalties(const Instance& instance);

} // namespace vantore::optmzr
