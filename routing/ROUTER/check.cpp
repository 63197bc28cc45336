#include "routing/ROUTER/check.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "shell/base/number.h"
#include "shell/base/number_text.h"

namespace vantore::router {

namespace {

constexpr double mostVolume = 999999; // that a total or a capacity may reach
constexpr double lastMinute = 10080;  // of a week
constexpr double mostVehiclesInAll = 200;
constexpr double wholePercent = 100;
constexpr double mostRegularHours = 168; // a week

/// Weight or cube.
struct Measure {
    double Stop::*volume;
    double Vehicle::*capacity;
};

constexpr Measure weight = {&Stop::weight, &Vehicle::weightCapacity};
constexpr Measure cube = {&Stop::cube, &Vehicle::cubeCapacity};

struct Totals {
    double delivered = 0;
    double pickedUp = 0;
    double capacity = 0;
};

double totalOf(const Problem& problem, Measure measure, std::string_view type) {
    Number total = 0;
    for (const Stop& stop : problem.stops.span())
        if (stop.type == type) total += stop.*measure.volume;
    return total;
}

Totals totalsOf(const Problem& problem, Measure measure) {
    Number capacity = 0;
    for (const Vehicle& vehicle : problem.vehicles.span())
        capacity += Number(vehicle.*measure.capacity) * vehicle.number;
    return {totalOf(problem, measure, delivery), totalOf(problem, measure, pickup), capacity};
}

/// Totals of weights are compared in single precision.
bool exceedsMostWeight(double total) {
    constexpr double wellBeyond = 2 * mostVolume;
    return static_cast<float>(std::clamp(total, -wellBeyond, wellBeyond)) > static_cast<float>(mostVolume);
}

double smallestCapacity(const Problem& problem, Measure measure) {
    double smallest = mostVolume;
    for (const Vehicle& vehicle : problem.vehicles.span())
        smallest = std::min(smallest, vehicle.*measure.capacity);
    return smallest;
}

class DataCheck {
  public:
    DataCheck(const Problem& problem, double depotRowZone) : problem_(problem), depotRowZone_(depotRowZone) {}

    Findings run() {
        checkIf(problem_.stops.count() == 0, "Number of stops is 0. Increase it.");
        checkWeights();
        checkCubes();
        checkDepotTimes();
        checkFleet();
        checkStopTypes();
        for (int n = 1; n <= problem_.stops.count(); ++n) checkWindows(n);
        checkRouteLimits();
        checkSmallestVehicle();
        checkEachVehicle();
        checkBreaks();
        checkSpeeds();
        checkLegs();
        checkZones();
        checkNames();
        checkCapacities();
        checkIf(problem_.stops.count() == 0, "There should be at least 1 stop in the stops file.");
        checkBarriers();
        if (findings_.violations == 0) print({"", "No violations detected"});
        print({"", "DATA VALIDATION CHECK COMPLETE"});
        return std::move(findings_);
    }

  private:
    void print(std::initializer_list<std::string> lines) {
        findings_.lines.insert(findings_.lines.end(), lines);
    }

    void checkIf(bool violated, const std::string& message) {
        if (!violated) return;
        print({message});
        ++findings_.violations;
    }

    void printTotal(const std::string& caption, double total) {
        print({caption + format(total, "#######0")});
    }

    void checkWeights() {
        const Totals totals = totalsOf(problem_, weight);
        printTotal("Total delivered stop weight- ", totals.delivered);
        printTotal("Total vehicle weight capacity- ", totals.capacity);
        printTotal("Total pickup stop weight-    ", totals.pickedUp);
        printTotal("Total vehicle weight capacity- ", totals.capacity);
        checkIf(totals.delivered > totals.capacity,
                "Total delivered stop weight exceeds total vehicle weight capacity.");
        checkIf(totals.pickedUp > totals.capacity,
                "Total pickup stop weight exceeds total vehicle weight capacity.");
        checkIf(exceedsMostWeight(totals.delivered),
                "Total delivered stop weight exceeds 999999. Reduce weight or rescale weights.");
        checkIf(exceedsMostWeight(totals.pickedUp),
                "Total pickup stop weight exceeds 999999. Reduce weight or rescale weights.");
        checkIf(exceedsMostWeight(totals.capacity),
                "Total vehicle weight capacity exceeds 999999. Reduce it.");
    }

    void checkCubes() {
        const Totals totals = totalsOf(problem_, cube);
        const double larger = std::max(totals.delivered, totals.pickedUp);
        printTotal("Total delivered stop cube-   ", totals.delivered);
        printTotal("Total vehicle cube capacity-   ", totals.capacity);
        printTotal("Total pickup stop cube-      ", totals.pickedUp);
        printTotal("Total vehicle cube capacity-   ", totals.capacity);
        checkIf(larger > totals.capacity, "Total stop cube exceeds total vehicle cube capacity.");
        checkIf(larger > mostVolume, "Total stop cube exceeds 999999. Reduce cube or rescale cube volume.");
        checkIf(totals.capacity > mostVolume, "Total vehicle cube capacity exceeds 999999. Reduce it.");
    }

    void checkDepotTimes() {
        const auto isOutsideWeek = [](double time) { return time < 0 || time > lastMinute; };
        checkIf(problem_.earliestStart > problem_.latestReturn,
                "Earliest starting time exceeds latest return time.");
        checkIf(isOutsideWeek(problem_.earliestStart),
                "Earliest starting time is less than 0 or greater than 10080.");
        checkIf(isOutsideWeek(problem_.latestReturn),
                "Latest return time is less than 0 or greater than 10080.");
    }

    void checkFleet() {
        Number vehicles = 0;
        for (const Vehicle& vehicle : problem_.vehicles.span()) vehicles += vehicle.number;
        checkIf(problem_.vehicles.count() > mostVehicles,
                "Number of vehicle types exceeds 75. Reduce the number.");
        checkIf(vehicles > mostVehiclesInAll, "Total number of vehicles exceeds 200. Reduce the number.");
        checkIf(problem_.defaultSpeed <= 0, "Default speed is less than or equal to 0. Increase it.");
    }

    void checkStopTypes() {
        for (int n = 1; n <= problem_.stops.count(); ++n) {
            const std::string& type = problem_.stops(n).type;
            checkIf(type != pickup && type != delivery,
                    joined("Stop ", n) + " is not D or P type. Change it.");
        }
    }

    void checkWindows(int n) {
        const Stop& stop = problem_.stops(n);
        const std::string which = joined("For stop ", n);
        checkIf(stop.end1 < stop.begin1,
                which + " time windows - Begining time 1 exceeds ending time 1. Correct it.");
        checkIf(stop.end2 < stop.begin2,
                which + " time windows - Begining time 2 exceeds ending time 2. Correct it.");
        checkIf(stop.begin2 < stop.end1,
                which + " time windows - Ending time 2 exceeds Beginning time 2. Correct it.");
        checkIf(stop.end1 == 0, which + " time window - do not set Ending time 1 to 0.");
        checkIf(stop.end2 == 0, which + " time window - do not set Ending time 2 to 0.");
        checkIf(stop.end1 == stop.begin1,
                which + " time window - do not set Beginning time 1 equal to Ending time 1.");
    }

    void checkRouteLimits() {
        checkIf(problem_.maxTime == 0, "Maximum time allowed on route should be greater then 0.");
        checkIf(problem_.maxDistance == 0, "Maximum distance allowed on route should be greater than 0.");
        checkIf(problem_.horizontalScale == 0, "Horizontal caling factor must be greater than 0.");
        checkIf(problem_.verticalScale == 0, "Vertical scaling factor must be greater than 0.");
        checkIf(problem_.pickupPercent > wholePercent,
                "Percent of vehicle in use before allowing pickups must not exceed 100.");
        checkIf(problem_.overtimeAfter == 0, "Time to begin overtime should be greater than 0.");
        checkIf(problem_.overtimeAfter > mostRegularHours,
                "Time to begin overtime should not exceed 168 hours.");
    }

    void checkSmallestVehicle() {
        const double smallestWeight = smallestCapacity(problem_, weight);
        const double smallestCube = smallestCapacity(problem_, cube);
        for (int n = 1; n <= problem_.stops.count(); ++n) {
            const Stop& stop = problem_.stops(n);
            checkIf(stop.weight > smallestWeight,
                    joined("The weight of stop ", n) +
                        " exceeds the weight capacity of the smallest vehicle.");
            checkIf(stop.cube > smallestCube,
                    joined("The cube of stop ", n) + " exceeds the cubic capacity of the smallest vehicle.");
        }
    }

    void checkEachVehicle() {
        for (int n = 1; n <= problem_.stops.count(); ++n)
            for (int j = 1; j <= problem_.vehicles.count(); ++j) {
                const Stop& stop = problem_.stops(n);
                const Vehicle& vehicle = problem_.vehicles(j);
                const auto warning = [&](const std::string& measure) {
                    return joined("Warning: Stop ", n) +
                           joined(" " + measure + " exceeds the capacity of vehicle type ", j) +
                           "  This could cause a problem.";
                };
                checkIf(stop.weight > vehicle.weightCapacity, warning("weight"));
                checkIf(stop.cube > vehicle.cubeCapacity, warning("cube"));
            }
    }

    void checkBreaks() {
        const auto begin = [this](int number) { return problem_.breaks(number).beginsAfter; };
        checkIf(begin(2) < begin(1), "Second break time start is less than the first. Correct it.");
        checkIf(begin(3) < begin(2), "Third break time start is less than the second. Correct it.");
        checkIf(begin(4) < begin(3), "Fourth break time start is less than the third. Correct it.");
        const auto isTooLong = [&](int number) {
            return begin(number + 1) - begin(number) < problem_.breaks(number).duration;
        };
        checkIf(isTooLong(1), "Second break time may begin before the first has been completed. Shorten 1st "
                              "break duration or extend beginning of second break time.");
        checkIf(isTooLong(2), "Third break time may begin before the second has been completed. Shorten 2nd "
                              "break duration or extend beginning of third break time.");
        checkIf(isTooLong(3), "Fourth break time may begin before the third has been completed. Shorten 3rd "
                              "break duration or extend beginning of fourth break time.");
    }

    void checkSpeeds() {
        for (int k = 1; k <= problem_.speeds.count(); ++k)
            checkIf(problem_.speeds(k).value == 0,
                    joined("Specific speed number ", k) + " must be greater than 0.");
        for (const ZoneSpeed& speed : problem_.zoneSpeeds.span())
            checkIf(speed.speed == 0, joined("Speed between zone ", speed.origin) +
                                          joined(" and zone ", speed.destination) +
                                          " must be greater than 0.");
    }

    void checkLegs() {
        const auto isUnlisted = [this](const SpecifiedLeg& leg) {
            return std::max(leg.from, leg.to) > problem_.stops.count();
        };
        for (int k = 1; k <= problem_.distances.count(); ++k)
            checkIf(isUnlisted(problem_.distances(k)),
                    joined("Specified distance ", k) + " not in stop list.");
        for (int k = 1; k <= problem_.speeds.count(); ++k)
            checkIf(isUnlisted(problem_.speeds(k)), joined("Specified speed ", k) + " not in stop list.");
    }

    void checkZones() {
        for (int n = depotNumber; n <= problem_.stops.count(); ++n) {
            const double zone = n == depotNumber ? depotRowZone_ : problem_.stops(n).zone;
            checkIf(zone > problem_.zones.count(),
                    joined("Stop ", n) +
                        " has a speed zone number greater than the number of defined speed zones.");
        }
    }

    /// One message for each comma and each apostrophe.
    void checkName(const std::string& name, const std::string& place) {
        for (const char c : name)
            checkIf(c == ',' || c == '\'', "THERE IS A COMMA (,) AND/OR AN APOSTROPHE (') IN " + place);
    }

    void checkNames() {
        checkName(problem_.label, "PROBLEM LABEL. ELIMINATE THEM.");
        checkName(problem_.depotDescription, "THE DEPOT NAME. ELIMINATE IT.");
        for (int n = 1; n <= problem_.stops.count(); ++n)
            checkName(problem_.stops(n).description, joined("STOP ", n) + " DESCRIPTION. ELIMINATE IT.");
    }

    void checkCapacities() {
        for (int j = 1; j <= problem_.vehicles.count(); ++j) {
            checkIf(problem_.vehicles(j).weightCapacity == 0,
                    joined("Vehcile type ", j) + " must have a weight capacity greater than 0");
            checkIf(problem_.vehicles(j).cubeCapacity == 0,
                    joined("Vehicle type ", j) + " must have a cube capacity greater than 0");
        }
        checkIf(problem_.vehicles.count() == 0,
                "There should be at least 1 vehicle type specified in the vehicle file.");
    }

    void checkBarriers() {
        for (int k = 1; k <= problem_.barriers.count(); ++k) {
            const Barrier& barrier = problem_.barriers(k);
            checkIf(barrier.northwestX == 0 && barrier.southwestX == 0,
                    joined("For barrier number ", k) +
                        ", both northwest and southwest horizontal coordinates must not be zero.");
        }
    }

    const Problem& problem_;
    double depotRowZone_;
    Findings findings_;
};

} // namespace

Findings check(const Problem& problem, double depotRowZone) {
    return DataCheck(problem, depotRowZone).run();
}

} // namespace vantore::router
