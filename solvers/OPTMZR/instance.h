#pragma once

#include <cstddef>
#include <vector>

#include "routing/ROUTER/problem.h"
#include "routing/ROUTER/travel.h"
#include "solvers/OPTMZR/timing.h"

namespace vantore::optmzr {

/// What is carried, in parts of the largest capacity.
struct Load {
    double weight = 0;
    double cube = 0;

    Load& operator+=(Load other) {
        weight += other.weight;
        cube += other.cube;
        return *this;
    }
    friend Load operator+(Load a, Load b) { return a += b; }
    friend Load operator-(Load a, Load b) { return {a.weight - b.weight, a.cube - b.cube}; }
};

/// A stop as the search sees it.
struct Customer {
    bool isPickup = false;
    Load delivered; ///< nothing for a pickup
    Load pickedUp;  ///< nothing for a delivery
    double minutes = 0;
    OpeningHours open;
    router::Place place; ///< from the depot, in parts of the farthest place's distance
};

/// Vehicles that differ in nothing that counts: one or more rows of the vehicle table.
struct Fleet {
    std::vector<int> rows;
    std::vector<int> numbers; ///< of vehicles of each row
    int available = 0;
    Load capacity;
    double fixedCost = 0; ///< a route, vehicle and driver
    double costPerDistance = 0;
    double costPerMinute = 0;
    double costPerOvertimeMinute = 0;
};

/// The problem as the search sees it: without units, so that miles or kilometres, pounds or tons, cents or
/// dollars make no difference. Distances are in parts of the longest leg, loads in parts of the largest
/// capacity, costs in parts of what the longest leg costs; times stay minutes. All of them are rounded to
/// binary fractions fine enough never to matter, so that sums are exact in any order.
struct Instance {
    Instance(const router::Problem& problem, const router::Travel& travel);

    int stopCount = 0;
    std::vector<Customer> customers; ///< by stop number, the depot first
    std::vector<Fleet> fleets;
    Clock clock;        ///< without breaks that fall due after the latest return
    Clock clockAtNight; ///< with those too, for routes that return late
    double maxMinutes = 0;
    double maxDistance = 0;
    double overtimeAfter = 0; ///< minutes
    double pickupShare = 1;   ///< of a capacity that deliveries may take when something is picked up
    double largestLoad = 0;   ///< of a stop

    bool clockMatters = false; ///< windows, splits or breaks that no limit of a route covers
    bool loadsMix = false;     ///< deliveries and pickups
    int stepsAStop = 1;        ///< that valuing a route takes, as a measure of time

    double distance(int from, int to) const { return legs_[place(from, to)].distance; }
    double minutes(int from, int to) const { return legs_[place(from, to)].minutes; }

    const Customer& customer(int stop) const { return customers[static_cast<std::size_t>(stop)]; }
    const Fleet& fleet(int index) const { return fleets[static_cast<std::size_t>(index)]; }
    int fleetCount() const { return static_cast<int>(fleets.size()); }

    /// What a leg costs in the regular hours of a vehicle.
    double legCost(const Fleet& fleet, int from, int to) const {
        return fleet.costPerDistance * distance(from, to) + fleet.costPerMinute * minutes(from, to);
    }

    /// A route's cost by its distance and its minutes, all told.
    double routeCost(const Fleet& fleet, double distance, double minutes) const {
        const double overtime = minutes > overtimeAfter ? minutes - overtimeAfter : 0;
        return fleet.fixedCost + fleet.costPerDistance * distance +
               fleet.costPerMinute * (minutes - overtime) + fleet.costPerOvertimeMinute * overtime;
    }

  private:
    struct Leg {
        double distance = 0;
        double minutes = 0;
    };
    std::size_t place(int from, int to) const {
        return static_cast<std::size_t>(from) * static_cast<std::size_t>(stopCount + 1) +
               static_cast<std::size_t>(to);
    }
    void measureLegs(const router::Travel& travel);
    void takeStops(const router::Problem& problem);
    void takePlaces(const router::Problem& problem);
    void takeFleets(const router::Problem& problem);
    void takeLimits(const router::Problem& problem);

    double distanceUnit_ = 1; ///< the problem's unit of distance, and so on
    Load loadUnit_{1, 1};
    std::vector<Leg> legs_; ///< from each place to each
};

} // namespace vantore::optmzr
