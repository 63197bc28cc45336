#include "solvers/OPTMZR/swap_star.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace vantore::optmzr {

namespace {

/// A place of a stop in another route.
struct Insertion {
    double cost = beyondReach;
    int after = 0; ///< position behind which the stop comes
};

/// The cheapest places of a stop in another route, the cheapest first.
using Insertions = std::array<Insertion, 3>;

/// What changes of a route's legs cost it, at the rate of its last hour.
class MarginalCosts {
  public:
    MarginalCosts(const Instance& instance, const SearchRoute& route)
        : instance_(instance), route_(route), perDistance_(instance.fleet(route.fleet()).costPerDistance),
          perMinute_(route.sums().minutes > instance.overtimeAfter
                         ? instance.fleet(route.fleet()).costPerOvertimeMinute
                         : instance.fleet(route.fleet()).costPerMinute) {}

    double removalGain(int position) const {
        return detour(route_.stop(position - 1), route_.stop(position), route_.stop(position + 1));
    }

    double insertionCost(int stop, int after) const {
        return detour(route_.stop(after), stop, route_.stop(after + 1));
    }

    /// The cheapest places of each stop of another route, by its position there.
    std::vector<Insertions> cheapestPlaces(const SearchRoute& other) const {
        std::vector<Insertions> result(static_cast<std::size_t>(other.size()) + 1);
        for (int p = 1; p <= other.size(); ++p) {
            Insertions& best = result[static_cast<std::size_t>(p)];
            for (int after = 0; after <= route_.size(); ++after) {
                const Insertion place{insertionCost(other.stop(p), after), after};
                if (place.cost >= best[2].cost) continue;
                best[2] = place;
                if (best[2].cost < best[1].cost) std::swap(best[1], best[2]);
                if (best[1].cost < best[0].cost) std::swap(best[0], best[1]);
            }
        }
        return result;
    }

    /// The cheapest place of a stop in the route without the stop at position `removed`.
    Insertion placeWithout(int removed, int stop, const Insertions& places) const {
        Insertion best{detour(route_.stop(removed - 1), stop, route_.stop(removed + 1)), removed - 1};
        for (const Insertion& place : places) {
            if (place.after == removed || place.after == removed - 1) continue;
            if (place.cost < best.cost) best = place;
            break;
        }
        return best;
    }

  private:
    double leg(int from, int to) const {
        return perDistance_ * instance_.distance(from, to) + perMinute_ * instance_.minutes(from, to);
    }
    double detour(int before, int stop, int after) const {
        return leg(before, stop) + leg(stop, after) - leg(before, after);
    }

    const Instance& instance_;
    const SearchRoute& route_;
    double perDistance_;
    double perMinute_;
};

/// What the overload of a route grows by when one stop takes the place of another.
double addedLoad(const Instance& instance, const RouteJudge& judge, const SearchRoute& route, int in,
                 int out) {
    const Customer& coming = instance.customer(in);
    const Customer& leaving = instance.customer(out);
    RouteSums sums = route.sums();
    sums.delivered = sums.delivered + coming.delivered - leaving.delivered;
    sums.pickedUp = sums.pickedUp + coming.pickedUp - leaving.pickedUp;
    return judge.bound(instance.fleet(route.fleet()), sums).load - route.value().load;
}

/// A route with the stop at `removed` taken out and another route's stop put behind position `after`.
Splice exchanged(const SearchRoute& route, int removed, const SearchRoute& other, int position, int after) {
    Splice result;
    if (after < removed) {
        result.forward(route, 1, after).forward(other, position, position);
        result.forward(route, after + 1, removed - 1).forward(route, removed + 1, route.size());
    } else {
        result.forward(route, 1, removed - 1).forward(route, removed + 1, after);
        result.forward(other, position, position).forward(route, after + 1, route.size());
    }
    return result;
}

} // namespace

Splice SwapStar::newA(const SearchRoute& a, const SearchRoute& b) const {
    return exchanged(a, positionA, b, positionB, afterA);
}

Splice SwapStar::newB(const SearchRoute& a, const SearchRoute& b) const {
    return exchanged(b, positionB, a, positionA, afterB);
}

std::optional<SwapStar> bestSwap(const Instance& instance, const RouteJudge& judge, const SearchRoute& a,
                                 const SearchRoute& b) {
    const MarginalCosts costsA(instance, a);
    const MarginalCosts costsB(instance, b);
    const std::vector<Insertions> placesInA = costsA.cheapestPlaces(b);
    const std::vector<Insertions> placesInB = costsB.cheapestPlaces(a);
    const double loadPenalty = judge.penalties().load;
    const double mostGainOfLoads = (a.value().load + b.value().load) * loadPenalty;
    std::optional<SwapStar> best;
    double least = -leastGain;
    for (int i = 1; i <= a.size(); ++i) {
        for (int j = 1; j <= b.size(); ++j) {
            const Insertion inA = costsA.placeWithout(i, b.stop(j), placesInA[static_cast<std::size_t>(j)]);
            const Insertion inB = costsB.placeWithout(j, a.stop(i), placesInB[static_cast<std::size_t>(i)]);
            double change = inA.cost + inB.cost - costsA.removalGain(i) - costsB.removalGain(j);
            if (change >= least + mostGainOfLoads) continue;
            change += loadPenalty * (addedLoad(instance, judge, a, b.stop(j), a.stop(i)) +
                                     addedLoad(instance, judge, b, a.stop(i), b.stop(j)));
            if (change >= least) continue;
            least = change;
            best = SwapStar{i, j, inA.after, inB.after};
        }
    }
    return best;
}

} // namespace vantore::optmzr
