#include "routing/ROUTER/report.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::router {

namespace {

constexpr std::size_t labelCharacters = 50;
constexpr std::size_t vehicleCharacters = 13;
constexpr std::size_t leavingCharacters = 20;
constexpr std::size_t stopCharacters = 15;

constexpr double hoursPerDay = 24;
constexpr double noon = 12;

constexpr double detailColumn = 5; // descriptions of stops
constexpr double weightUseColumn = 69;
constexpr double cubeUseColumn = 76;

using RouteFigure = std::function<double(int r)>;

/// A column of a table by routes: where its figures end, and their masks in the rows and in the total.
struct Column {
    double end;
    const char* mask;
    const char* totalMask;
    RouteFigure figure;
};

/// A time on the clock.
struct Clock {
    double day;
    double hour; // 1 to 12
    double minute;
    bool morning;
};

Clock clockAt(double minutes) {
    double hours = minutes / minutesPerHour;
    const double day = wholePart(hours / hoursPerDay) + 1;
    hours -= (day - 1) * hoursPerDay;
    const double hour = wholePart(hours);
    const double ofHalfDay = hour < noon ? hour : hour - noon;
    return {.day = day,
            .hour = ofHalfDay == 0 ? noon : ofHalfDay,
            .minute = wholePart(minutesPerHour * (hours - hour)),
            .morning = hour < noon};
}

std::string clockText(const Clock& clock, const char* hourMask = "00") {
    return format(clock.hour, hourMask) + ":" + format(clock.minute, "00") + (clock.morning ? "AM" : "PM");
}

/// What of a vehicle is in use: it drives out with what it delivers and comes home with what it picks up.
double weightUsed(const SimulatedRoute& route) {
    return std::max(route.deliveredWeight, route.pickupWeight);
}

double cubeUsed(const SimulatedRoute& route) {
    return std::max(route.deliveredCube, route.pickupCube);
}

/// A share of a capacity in use, as the text of a percentage.
std::string useText(double used, double capacity, const char* mask) {
    return format(divide(used, capacity), mask);
}

class Report {
  public:
    Report(const Outcome& outcome, const ReportHead& head)
        : outcome_(outcome), problem_(outcome.problem()), head_(head) {}

    PrintLines run() {
        printHead();
        printSummary();
        printVehicles();
        printCosts();
        for (int r = 1; r <= outcome_.routeCount(); ++r) {
            printDetail(r);
            printVolumes(r);
            printRouteSummary(r);
        }
        printViolations();
        return std::move(page_);
    }

  private:
    const SimulatedRoute& route(int r) const { return outcome_.simulated(r); }

    double sum(const RouteFigure& figure) const {
        double total = 0;
        for (int r = 1; r <= outcome_.routeCount(); ++r) total = finite(total + figure(r));
        return total;
    }

    void markIf(bool violated) {
        if (violated) page_.text("v");
    }

    void printHead();
    void printSummary();
    void printSummaryRow(int r);
    void printVehicles();
    void printVehicleRow(int r);
    void printVehicleTotals();
    void printCosts();
    void printDetail(int r);
    void printVisit(const Visit& visit);
    void printReturn(const Visit& visit);
    void printBreaks(const Visit& visit);
    void printVolumes(int r);
    void printVolumeRow(int r, int position);
    void printRouteSummary(int r);
    void printTimeAndDistance(int r);
    void printRouteCosts(const RouteCosts& costs);
    void printViolations();
    std::string stopName(int stop) const { return left(problem_.stops(stop).description, stopCharacters); }

    const Outcome& outcome_;
    const Problem& problem_;
    const ReportHead& head_;
    PrintLines page_;
};

void Report::printHead() {
    page_.line(" ROUTER SOLUTION REPORT");
    page_.line("Label- " + left(head_.label, labelCharacters));
    page_.line("Date- " + head_.printed.date);
    page_.line("Time- " + head_.printed.time);
    page_.line(" ");
    page_.tab(25).text("*** SUMMARY REPORT ***").endLine();
    page_.line(" ");
}

// Times and distances

void Report::printSummary() {
    page_.line("TIME/DISTANCE/COST INFORMATION");
    page_.line(" ");
    page_.tab(8).text("Route   Run  Stop   Brk  Stem").endLine();
    page_.line("Route  time, time, time, time, time,   Start  Return No of   Route     Route");
    page_.line("  no      hr    hr    hr    hr    hr    time    time stops dist,Mi    cost,$");
    for (int r = 1; r <= outcome_.routeCount(); ++r) printSummaryRow(r);
    const auto total = [this](double end, const char* mask, const RouteFigure& figure) {
        page_.right(end, format(sum(figure), mask));
    };
    page_.text("Total ");
    total(13, "####.0", [this](int r) { return route(r).totalTime(); });
    total(19, "####.0", [this](int r) { return route(r).runTime; });
    total(25, "####.0", [this](int r) { return route(r).stopTime; });
    total(31, "####.0", [this](int r) { return route(r).breakTime; });
    total(37, "####.0", [this](int r) { return route(r).stemTime; });
    total(59, "##0", [this](int r) { return outcome_.planned(r).stopCount(); });
    total(67, "   ####0", [this](int r) { return route(r).distance; });
    total(77, " ######.#0", [this](int r) { return route(r).costs.total; });
    page_.endLine();
}

void Report::printSummaryRow(int r) {
    const SimulatedRoute& route = outcome_.simulated(r);
    page_.right(5, format(r, "##0"));
    page_.right(13, format(route.totalTime(), "####.0"));
    markIf(route.violations.time);
    page_.right(19, format(route.runTime, "###.0"));
    page_.right(25, format(route.stopTime, "###.0"));
    page_.right(31, format(route.breakTime, "###.0"));
    page_.right(37, format(route.stemTime, "###.0"));
    page_.tab(38).text(clockText(clockAt(route.start)));
    markIf(route.violations.earliestStart);
    page_.tab(46).text(clockText(clockAt(route.returned)));
    markIf(route.violations.latestReturn);
    page_.right(59, format(outcome_.planned(r).stopCount(), "###0"));
    page_.right(67, format(route.distance, "  #####0"));
    markIf(route.violations.distance);
    page_.right(77, format(route.costs.total, "#####.#0")).endLine();
}

// Vehicles

void Report::printVehicles() {
    page_.line("VEHICLE INFORMATION");
    page_.line(" ");
    page_.line("Route Veh Weight Delvry Pickup Weight   Cube Delvry Pickup   Cube Vehicle");
    page_.line("  no  typ capcty weight weight   util capcty   cube   cube   util description");
    for (int r = 1; r <= outcome_.routeCount(); ++r) printVehicleRow(r);
    printVehicleTotals();
}

void Report::printVehicleRow(int r) {
    const SimulatedRoute& route = outcome_.simulated(r);
    const Vehicle& vehicle = outcome_.vehicle(r);
    page_.right(6, format(r, "##0 "));
    page_.right(10, format(outcome_.planned(r).vehicle, "##0"));
    page_.right(17, format(vehicle.weightCapacity, "#####0"));
    page_.right(24, format(route.deliveredWeight, "#####0"));
    markIf(route.violations.weight);
    page_.right(31, format(route.pickupWeight, "#####0"));
    page_.right(38, useText(weightUsed(route), vehicle.weightCapacity, "####.0%"));
    page_.right(45, format(vehicle.cubeCapacity, " #####0"));
    page_.right(52, format(route.deliveredCube, " #####0"));
    markIf(route.violations.cube);
    page_.right(59, format(route.pickupCube, "#####0"));
    page_.right(66, useText(cubeUsed(route), vehicle.cubeCapacity, "####.0%"));
    page_.tab(66).text(" " + left(vehicle.description, vehicleCharacters)).endLine();
}

void Report::printVehicleTotals() {
    const double weightCapacity = sum([this](int r) { return outcome_.vehicle(r).weightCapacity; });
    const double cubeCapacity = sum([this](int r) { return outcome_.vehicle(r).cubeCapacity; });
    page_.text("Total").right(17, format(weightCapacity, "#####0"));
    page_.right(24, format(sum([this](int r) { return route(r).deliveredWeight; }), "######0"));
    page_.right(31, format(sum([this](int r) { return route(r).pickupWeight; }), "######0"));
    page_.right(38, useText(sum([this](int r) { return weightUsed(route(r)); }), weightCapacity, "####.0%"));
    page_.right(45, format(cubeCapacity, " #####0"));
    page_.right(52, format(sum([this](int r) { return route(r).deliveredCube; }), "######0"));
    page_.right(59, format(sum([this](int r) { return route(r).pickupCube; }), "######0"));
    page_.right(66, useText(sum([this](int r) { return cubeUsed(route(r)); }), cubeCapacity, "####.0%"));
    page_.endLine();
}

// Costs

void Report::printCosts() {
    const auto cost = [this](double RouteCosts::*part) {
        return [this, part](int r) { return route(r).costs.*part; };
    };
    const std::array<Column, 7> columns = {{{16, "########.#0", "######.#0", cost(&RouteCosts::vehicleTotal)},
                                            {25, "######.#0", "######.#0", cost(&RouteCosts::vehicleFixed)},
                                            {34, "######.#0", "######.#0", cost(&RouteCosts::mileage)},
                                            {43, "######.#0", "######.#0", cost(&RouteCosts::driverTotal)},
                                            {52, "######.#0", "######.#0", cost(&RouteCosts::driverFixed)},
                                            {61, "######.#0", "######.#0", cost(&RouteCosts::regular)},
                                            {70, "######.#0", "######.#0", cost(&RouteCosts::overtime)}}};
    page_.line(" ");
    page_.line("DETAILED COST INFORMATION");
    page_.line("");
    page_.tab(6).text("--------Vehicle------------  ------------Driver----------------").endLine();
    page_.line("Route     Total    Fixed  Mileage    Total    Fixed  Regular Overtime");
    page_.line("  no     cost,$   cost,$   cost,$   cost,$   cost,$   time,$   time,$");
    for (int r = 1; r <= outcome_.routeCount(); ++r) {
        page_.right(6, format(r, "##0"));
        for (const Column& column : columns) page_.right(column.end, format(column.figure(r), column.mask));
        page_.endLine();
    }
    page_.text("Total ");
    for (const Column& column : columns)
        page_.right(column.end, format(sum(column.figure), column.totalMask));
    page_.endLine();
}

// The detail of a route

void Report::printDetail(int r) {
    const Clock start = clockAt(route(r).start);
    page_.line("");
    page_.tab(15).text(joined("*** DETAIL REPORT ON ROUTE NUMBER ", r) + " ***").endLine();
    page_.line(" ");
    page_.line("A " + left(outcome_.vehicle(r).description, leavingCharacters) + " leaves at " +
               clockText(start, "#0") + joined(" on day ", start.day) + " from the depot at " +
               problem_.depotDescription);
    page_.line(" ");
    page_.tab(45).text("Stop   Drive Distance Time").endLine();
    page_.line("    Stop             Arrive      Depart     time to stop  to stop wind");
    page_.line(" No description        time Day    time Day  Min     Min    Miles met?");
    for (const Visit& visit : route(r).visits) {
        printBreaks(visit);
        visit.stop == depotNumber ? printReturn(visit) : printVisit(visit);
    }
}

void Report::printBreaks(const Visit& visit) {
    for (const int number : visit.breaks)
        page_.tab(20).text(joined("-->Break ", problem_.breaks(number).duration) + " minutes").endLine();
}

void Report::printVisit(const Visit& visit) {
    const Clock arrival = clockAt(visit.arrival);
    const Clock departure = clockAt(visit.departure);
    page_.right(4, format(visit.stop, "##0")).tab(detailColumn).text(stopName(visit.stop));
    page_.tab(21).text(clockText(arrival)).right(32, format(arrival.day, "#0"));
    page_.tab(33).text(clockText(departure)).right(44, format(departure.day, "#0"));
    page_.right(49, format(visit.stopTime, "####0"));
    page_.right(57, format(visit.driveMinutes, "#####.0"));
    page_.right(66, format(visit.leg.distance, "#####0"));
    page_.text(visit.isInWindow ? "  YES" : "   NO").endLine();
}

void Report::printReturn(const Visit& visit) {
    const Clock arrival = clockAt(visit.arrival);
    page_.text("   Depot").tab(21).text(clockText(arrival)).right(32, format(arrival.day, "#0"));
    page_.text(" -------  --  ---");
    page_.right(57, format(visit.driveMinutes, "#####.0"));
    page_.right(66, format(visit.leg.distance, "#####0")).endLine();
}

// Volumes and what it costs to serve a stop

void Report::printVolumes(int r) {
    const Vehicle& vehicle = outcome_.vehicle(r);
    const SimulatedRoute& route = outcome_.simulated(r);
    page_.line("");
    page_.tab(5)
        .text("Stop")
        .tab(22)
        .text(" Stop volume   Inc cost to serve stop  Capacity in use")
        .endLine();
    page_.text(" No description").tab(22).text("Weight   Cube");
    page_.tab(40).text(" In $  In $/unit      Weight   Cube").endLine();
    page_.right(weightUseColumn, useText(route.deliveredWeight, vehicle.weightCapacity, "###.0%"));
    page_.right(cubeUseColumn, useText(route.deliveredCube, vehicle.cubeCapacity, "###.0%")).endLine();
    for (int position = 1; position <= outcome_.planned(r).stopCount(); ++position)
        printVolumeRow(r, position);
    page_.text("Totals Weight: Del = " + format(route.deliveredWeight, "#####0"));
    page_.text(" Pickups = " + format(route.pickupWeight, "#####0"));
    page_.text(" Cube: Del = " + format(route.deliveredCube, "#####0"));
    page_.text(" Pickups = " + format(route.pickupCube, "#####0")).endLine();
}

void Report::printVolumeRow(int r, int position) {
    constexpr double percent = 100;
    const Vehicle& vehicle = outcome_.vehicle(r);
    const Visit& visit = route(r).visits.at(static_cast<std::size_t>(position - 1));
    const Stop& stop = problem_.stops(visit.stop);
    const double cost = outcome_.costToServe(r, position);
    page_.right(4, format(visit.stop, "##0")).tab(detailColumn).text(stopName(visit.stop));
    page_.right(28, format(stop.weight, "####0")).right(35, format(stop.cube, "####0"));
    page_.right(45, format(cost, "#####.#0"));
    if (stop.weight == 0) {
        page_.tab(53).text("---");
    } else {
        page_.right(56, format(divide(cost, stop.weight), "#####.0"));
    }
    page_.right(weightUseColumn,
                format(percent * divide(visit.weightOnBoard, vehicle.weightCapacity), "###.0"));
    page_.right(cubeUseColumn, format(percent * divide(visit.cubeOnBoard, vehicle.cubeCapacity), "###.0"));
    page_.endLine();
}

// The route as a whole

void Report::printRouteSummary(int r) {
    printTimeAndDistance(r);
    printRouteCosts(route(r).costs);
}

void Report::printTimeAndDistance(int r) {
    const SimulatedRoute& route = outcome_.simulated(r);
    const double first = route.visits.front().leg.distance;
    const double last = route.visits.back().leg.distance;
    const auto time = [this](const char* caption, double hours) -> PrintLines& {
        return page_.text(caption).right(28, format(hours, "####.0"));
    };
    const auto distance = [this](double column, const char* caption, double miles) -> PrintLines& {
        return page_.tab(column).text(caption).right(67, format(miles, "####0"));
    };
    page_.text("Route time:").tab(34).text("Distance:").endLine();
    time("  Driving", route.runTime).text(" hr    ");
    distance(35, "To 1st stop      ", first).text(" mi").endLine();
    time("  Load/unload        ", route.stopTime);
    distance(35, "From last stop   ", last).endLine();
    time("  Break              ", route.breakTime);
    distance(35, "On route         ", route.distance - first - last).endLine();
    time("    Total            ", route.totalTime()).text(" hr ");
    distance(37, "Total", route.distance).text(" mi").endLine();
    page_.line("");
    time("  Max allowed        ", problem_.maxTime).text(" hr ");
    distance(35, "Max allowed      ", problem_.maxDistance).text(" mi").endLine();
    page_.line("");
}

void Report::printRouteCosts(const RouteCosts& costs) {
    const auto cost = [this](const char* caption, double dollars, const char* mask) {
        page_.text(caption).right(34, format(dollars, mask)).endLine();
    };
    page_.line("Route costs:");
    cost("  Driver (reg time)", costs.regular, "$######.#0");
    cost("  Driver (over time)", costs.overtime, "######.#0");
    cost("  Vehicle (mileage)", costs.mileage, "######.#0");
    cost("  Fixed", costs.vehicleFixed + costs.driverFixed, "######.#0");
    page_.tab(16);
    cost("Total", costs.total, "$######.#0");
}

// Violations

using Lines = std::vector<const char*>;

struct Violation {
    bool RouteViolations::*flag;
    Lines text;
};

const std::array<Violation, 7> violationTexts = {
    {{&RouteViolations::time,
      {"Total clock time on the route has been exceeded.  Possible reasons are:", "",
       "   (1) Too many stops may be assigned to the route",
       "   (2) All stops may not be able to be reached within allowable speed and distance.  Check speeds."}},
     {&RouteViolations::earliestStart,
      {"Earliest start time is not being met.  Possible reasons are:", "",
       "   (1) Route starts too early.  Increase starting time on route.",
       "   (2) Not enough time between 12:01am and the first stop time window.",
       "       Increase speed or change time windows to allow the earliest start time to be met."}},
     {&RouteViolations::latestReturn,
      {"Latest return time is not being met.  Possible reasons are:", "",
       "   (1) Too many stops are assigned to the route.", "   (2) Speeds are too low.",
       "   (3) A latest return time has not been assigned."}},
     {&RouteViolations::distance,
      {"Total distance on the route has been exceeded.  Possible causes are:", "",
       "   (1) Too many stops on the route.",
       "   (2) A stop is too far from the depot to meet this restriction.",
       "   (3) The maximum distance restriction is too limiting for this problem."}},
     {&RouteViolations::weight,
      {"Vehicle weight capacity has been exceeded.  Possible causes are:", "",
       "   (1) Too many stops or the wrong mix of stops on the route.",
       "   (2) A single stop may have a weight greater than the vehicle capacity.",
       "   (3) Vehicle weight capacity has been understated for the problem."}},
     {&RouteViolations::cube,
      {"Vehicle cube capacity has been exceeded.  Possible causes are:", "",
       "   (1) Too many stops or the wrong mix of stops on the route.",
       "   (2) A single stop may have a cubic volume greater than the vehicle capacity.",
       "   (3) Vehicle cubic capacity has been understated for the problem."}},
     {&RouteViolations::timeWindows,
      {"One or more stop time windows have been exceeded.  Possible causes are:", "",
       "   (1) It is not possible to reach the stop given the vehicle speed,",
       "       distance to the stop from the depot, and width and placement", "       of the time window.",
       "   (2) Time window is too narrow or misspecified.",
       "   (3) Stop sequence on route causes a time window violation."}}}};

/// Each kind of violation tells the text of the first kind that there is.
void Report::printViolations() {
    const Lines* told = nullptr;
    for (const Violation& violation : violationTexts) {
        bool found = false;
        for (int r = 1; r <= outcome_.routeCount(); ++r) found = found || route(r).violations.*violation.flag;
        if (!found) continue;
        if (told == nullptr) told = &violation.text;
        for (const char* line : {"", "VIOLATIONS", ""}) page_.line(line);
        for (const char* line : *told) page_.line(line);
    }
}

} // namespace

PrintLines reportPage(const Outcome& outcome, const ReportHead& head) {
    return Report(outcome, head).run();
}

PrintLines tooManyRoutesPage() {
    PrintLines page;
    page.line(
        "** The number of routes exceeds 200. This report cannot be printed accurately. Revise the problem "
        "**");
    return page;
}

} // namespace vantore::router
