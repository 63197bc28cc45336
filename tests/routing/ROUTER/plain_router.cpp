#include "tests/routing/ROUTER/plain_router.h"

#include <cmath>
#include <string_view>

#include "shell/base/number_text.h"

namespace vantore::router::tests {

namespace {

// Text

std::size_t lettersIn(const std::string& text) {
    std::size_t count = 0;
    for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
    return count;
}

std::string firstLetters(const std::string& text, std::size_t most) {
    std::string cut;
    for (const char c : text) {
        const bool begins = (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
        if (begins && lettersIn(cut) == most) break;
        cut += c;
    }
    return cut;
}

/// A line that is being written, column by column from 1.
class Paper {
  public:
    void put(const std::string& text) { line_ += text; }

    void tab(std::size_t column) {
        if (lettersIn(line_) + 1 > column) end();
        while (lettersIn(line_) + 1 < column) line_ += ' ';
    }

    void rightTo(std::size_t column, const std::string& text) {
        const std::size_t letters = lettersIn(text);
        tab(column > letters ? column - letters : 1);
        put(text);
    }

    void end() {
        lines_.push_back(line_);
        line_.clear();
    }

    void line(const std::string& text) {
        put(text);
        end();
    }

    const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
    std::string line_;
};

/// "07:05AM", with the day behind it on request.
struct TimeOfDay {
    explicit TimeOfDay(double minutes) {
        double h = minutes / 60;
        while (h >= 24 * day) ++day;
        while (h < 24 * (day - 1)) --day;
        h -= 24 * (day - 1);
        hour = std::floor(h);
        minute = std::floor(60 * (h - hour));
        half = hour < 12 ? "AM" : "PM";
        if (hour >= 12) hour -= 12;
        if (hour == 0) hour = 12;
    }

    std::string text(const char* hourMask) const {
        return format(hour, hourMask) + ":" +
               (minute < 10 ? "0" + format(minute, "0") : format(minute, "#0")) + std::string(half);
    }

    double day = 1;
    double hour = 0;
    double minute = 0;
    std::string_view half;
};

// Distances

struct Point {
    double x, y;
};

char kindOf(Point a, Point b) {
    if (a.x == b.x && a.y == b.y) return 'P';
    if (a.x == b.x) return 'V';
    return a.y == b.y ? 'H' : 'S';
}

bool between(double value, double one, double other) {
    return (one <= value && value <= other) || (other <= value && value <= one);
}

class PlainMap {
  public:
    explicit PlainMap(const Problem& problem) : problem_(problem) {}

    Point place(int stop) const {
        if (stop == 0) return {problem_.depotX, problem_.depotY};
        return {problem_.stops(stop).x, problem_.stops(stop).y};
    }

    double zone(int stop) const { return stop == 0 ? problem_.depotZone : problem_.stops(stop).zone; }

    double distance(int a, int b, int* warnings = nullptr) const {
        for (int k = 1; k <= problem_.distances.count(); ++k)
            if (joins(problem_.distances(k), a, b)) return problem_.distances(k).value;
        const Point from = place(a);
        const Point to = place(b);
        if (std::abs(from.x - to.x) < .00001 && std::abs(from.y - to.y) < .00001) return .001;
        double extra = 0;
        for (int k = 1; k <= problem_.barriers.count(); ++k)
            extra += detour(problem_.barriers(k), from, to, warnings);
        return scaled(from, to) + extra;
    }

    double speed(int a, int b) const {
        double found = problem_.defaultSpeed;
        for (int k = problem_.zoneSpeeds.count(); k >= 1; --k) {
            const ZoneSpeed& row = problem_.zoneSpeeds(k);
            if ((row.origin == zone(a) && row.destination == zone(b)) ||
                (row.origin == zone(b) && row.destination == zone(a)))
                found = row.speed;
        }
        for (int k = problem_.speeds.count(); k >= 1; --k)
            if (joins(problem_.speeds(k), a, b)) found = problem_.speeds(k).value;
        return found;
    }

  private:
    static bool joins(const SpecifiedLeg& row, int a, int b) {
        return (row.from == a && row.to == b) || (row.from == b && row.to == a);
    }

    double scaled(Point a, Point b) const {
        const double x = (a.x - b.x) * problem_.horizontalScale;
        const double y = (a.y - b.y) * problem_.verticalScale;
        return std::sqrt(x * x + y * y);
    }

    /// Where the lines through a-b and start-end meet; false where they don't.
    static bool meet(Point a, Point b, Point start, Point end, Point& at) {
        const char way = kindOf(a, b);
        const char edge = kindOf(start, end);
        const double m = (b.y - a.y) / (b.x - a.x);
        const double c = a.y - m * a.x;
        const double n = (end.y - start.y) / (end.x - start.x);
        const double d = start.y - n * start.x;
        if (edge == 'P') {
            at = {9999, 9999};
        } else if (way == edge && (way != 'S' || m == n)) {
            return false;
        } else if (edge == 'V') {
            at = {start.x, way == 'H' ? a.y : m * start.x + c};
        } else if (way == 'V') {
            at = {a.x, edge == 'H' ? start.y : n * a.x + d};
        } else if (edge == 'H') {
            at = {(start.y - c) / m, start.y};
        } else if (way == 'H') {
            at = {(a.y - d) / n, a.y};
        } else {
            at.x = (d - c) / (m - n);
            at.y = m * at.x + c;
        }
        return true;
    }

    double detour(const Barrier& barrier, Point a, Point b, int* warnings) const {
        const Point northwest = {barrier.northwestX, barrier.northwestY};
        const Point northeast = {barrier.northeastX, barrier.northeastY};
        const Point southwest = {barrier.southwestX, barrier.southwestY};
        const Point southeast = {barrier.southeastX, barrier.southeastY};
        const Point start[5] = {{0, 0}, southeast, southwest, northeast, southeast};
        const Point end[5] = {{0, 0}, southwest, northwest, northwest, northeast};
        double len[5] = {}, dist[5] = {}, perimeter = 0;
        Point at[5] = {};
        bool crossed[5] = {};
        int count = 0;
        for (int i = 1; i <= 4; ++i) {
            len[i] = scaled(start[i], end[i]);
            perimeter += len[i];
            const char kind = kindOf(start[i], end[i]);
            if (kind == kindOf(a, b) && kind == 'V' && a.x == start[i].x) return 0;
            if (kind == kindOf(a, b) && kind == 'H' && a.y == start[i].y) return 0;
            crossed[i] = meet(a, b, start[i], end[i], at[i]) && between(at[i].x, a.x, b.x) &&
                         between(at[i].y, a.y, b.y) && between(at[i].x, start[i].x, end[i].x) &&
                         between(at[i].y, start[i].y, end[i].y);
            if (crossed[i]) dist[i] = scaled(start[i], at[i]);
            count += crossed[i] ? 1 : 0;
        }
        if (count == 1 && warnings != nullptr) ++*warnings;
        if (count < 2) return 0;
        for (int i = 2; i <= 4 && count > 2; ++i)
            if (crossed[i - 1] && crossed[i]) crossed[i] = false;
        int i = 1;
        while (!crossed[i]) ++i;
        int j = i + 1;
        while (!crossed[j]) ++j;
        const double d = wayRound(10 * i + j, len, dist);
        const double chord = scaled(at[i], at[j]);
        return d < perimeter - d ? d - chord : perimeter - d - chord;
    }

    static double wayRound(int pair, const double* len, const double* dist) {
        switch (pair) {
        case 12: return len[1] - dist[1] + dist[2];
        case 13: return len[1] - dist[1] + len[2] + len[3] - dist[3];
        case 14: return len[1] - dist[1] + len[2] + len[3] + len[4] - dist[4];
        case 23: return len[2] - dist[2] + len[3] - dist[3];
        case 24: return len[2] - dist[2] + len[3] + len[4] - dist[4];
        default: return dist[3] + len[4] - dist[4];
        }
    }

    const Problem& problem_;
};

// A route

struct PlainStop {
    int stop = 0;
    double distance = 0, minutes = 0, arrival = 0, departure = 0, load = 0;
    std::vector<double> breaks; // durations of those that fire before it
};

struct PlainRoute {
    double deliveredWeight = 0, deliveredCube = 0, pickupWeight = 0, pickupCube = 0;
    double run = 0, stem = 0, stopTime = 0, breakTime = 0, distance = 0, start = 0, back = 0;
    double mileage = 0, vehicleTotal = 0, regular = 0, overtime = 0, driverTotal = 0, cost = 0;
    std::vector<PlainStop> stops; // the return last
};

class PlainRouter {
  public:
    PlainRouter(const Problem& problem, const Plan& plan) : problem_(problem), plan_(plan), map_(problem) {}

    PlainReport report(const std::string& label, const std::string& date, const std::string& time) {
        for (int r = 1; r <= plan_.routeCount; ++r) routes_.push_back(drive(plan_.routes(r)));
        head(label, date, time);
        summary();
        vehicles();
        costs();
        for (std::size_t r = 1; r <= routes_.size(); ++r) {
            schedule(r);
            volumes(r);
            routeSummary(r);
        }
        violations();
        out_.lines = paper_.lines();
        return out_;
    }

  private:
    double loadTime(const Stop& stop) const {
        if (stop.loadTime > 0) return stop.loadTime;
        return problem_.fixedStopTime + stop.weight * problem_.timePerWeight +
               stop.cube * problem_.timePerCube;
    }

    PlainRoute drive(const PlannedRoute& planned) {
        PlainRoute route;
        route.start = planned.start;
        double clock = planned.start;
        bool taken[5] = {};
        const std::size_t n = planned.stops.size();
        for (std::size_t leg = 1; leg <= n + 1; ++leg) {
            const int from = leg == 1 ? 0 : planned.stops[leg - 2];
            const int to = leg == n + 1 ? 0 : planned.stops[leg - 1];
            PlainStop visit;
            visit.stop = to;
            visit.distance = map_.distance(from, to, &out_.barrierWarnings);
            const double v = map_.speed(from, to);
            visit.minutes = 60 * visit.distance / v;
            route.run += visit.distance / v;
            if (leg == 1 || leg == n + 1) route.stem += visit.distance / v;
            route.distance += visit.distance;
            clock = leg == 1 ? route.start + 60 * route.run : clock + visit.minutes;
            for (int k = 1; k <= 4; ++k) {
                const Break& pause = problem_.breaks(k);
                const bool due = leg == 1 ? clock >= pause.beginsAfter : clock > pause.beginsAfter;
                if (taken[k] || !due) continue;
                taken[k] = true;
                clock += pause.duration;
                route.breakTime += pause.duration / 60;
                visit.breaks.push_back(pause.duration);
            }
            visit.arrival = clock;
            if (to != 0) {
                visit.load = loadTime(problem_.stops(to));
                clock += visit.load;
                route.stopTime += visit.load / 60;
                load(route, problem_.stops(to));
            }
            visit.departure = clock;
            route.stops.push_back(visit);
        }
        route.back = clock;
        pay(route, problem_.vehicles(planned.vehicle));
        return route;
    }

    static void load(PlainRoute& route, const Stop& stop) {
        (stop.type == "D" ? route.deliveredWeight : route.pickupWeight) += stop.weight;
        (stop.type == "D" ? route.deliveredCube : route.pickupCube) += stop.cube;
    }

    void pay(PlainRoute& route, const Vehicle& vehicle) const {
        const double m = route.back - route.start;
        const double over = m < 60 * problem_.overtimeAfter ? 0 : m - 60 * problem_.overtimeAfter;
        route.mileage = route.distance * vehicle.costPerMile;
        route.vehicleTotal = vehicle.fixedCost + route.mileage;
        route.regular = (m - over) / 60 * vehicle.driverCostPerHour;
        route.overtime = over / 60 * vehicle.overtimeCost;
        route.driverTotal = route.regular + route.overtime + vehicle.driverFixedCost;
        route.cost = route.vehicleTotal + route.driverTotal;
    }

    double costToServe(std::size_t r, std::size_t p) const {
        const PlainRoute& route = routes_[r - 1];
        const PlannedRoute& planned = plan_.routes(static_cast<int>(r));
        const std::size_t n = planned.stops.size();
        if (n == 1) return route.cost;
        const int before = p == 1 ? 0 : planned.stops[p - 2];
        const int here = planned.stops[p - 1];
        const int after = p == n ? 0 : planned.stops[p];
        const double d1 = map_.distance(before, here), s1 = map_.speed(before, here);
        const double d2 = map_.distance(here, after), s2 = map_.speed(here, after);
        const double d3 = map_.distance(before, after), s3 = map_.speed(before, after);
        const double saved = d1 / s1 + d2 / s2 - d3 / s3 + loadTime(problem_.stops(here)) / 60;
        const Vehicle& vehicle = problem_.vehicles(planned.vehicle);
        const double h = (route.back - route.start) / 60;
        const double h2 = h - saved;
        const double o = problem_.overtimeAfter;
        double rate = vehicle.overtimeCost;
        if (h <= o)
            rate = vehicle.driverCostPerHour;
        else if (h2 < o)
            rate = (o - h2) / saved * vehicle.driverCostPerHour + (h - o) / saved * vehicle.overtimeCost;
        return rate * saved + vehicle.costPerMile * (d1 + d2 - d3);
    }

    void head(const std::string& label, const std::string& date, const std::string& time) {
        paper_.line(" ROUTER SOLUTION REPORT");
        paper_.line("Label- " + firstLetters(label, 50));
        paper_.line("Date- " + date);
        paper_.line("Time- " + time);
        paper_.line(" ");
        paper_.line("                        *** SUMMARY REPORT ***");
        paper_.line(" ");
    }

    void field(std::size_t column, double value, const char* mask, int flag = 0, bool broken = false) {
        paper_.rightTo(column, format(value, mask));
        mark(flag, broken);
    }

    void mark(int flag, bool broken) {
        if (!broken) return;
        flags_[flag] = true;
        if (flag != 7) paper_.put("v");
    }

    void summary() {
        paper_.line("TIME/DISTANCE/COST INFORMATION");
        paper_.line(" ");
        paper_.line("       Route   Run  Stop   Brk  Stem");
        paper_.line("Route  time, time, time, time, time,   Start  Return No of   Route     Route");
        paper_.line("  no      hr    hr    hr    hr    hr    time    time stops dist,Mi    cost,$");
        double total = 0, run = 0, stop = 0, pause = 0, stem = 0, stops = 0, distance = 0, cost = 0;
        for (std::size_t r = 1; r <= routes_.size(); ++r) {
            const PlainRoute& route = routes_[r - 1];
            const double whole = route.run + route.stopTime + route.breakTime;
            const double visits = static_cast<double>(route.stops.size() - 1);
            field(5, static_cast<double>(r), "##0");
            field(13, whole, "####.0", 1, whole > problem_.maxTime);
            field(19, route.run, "###.0");
            field(25, route.stopTime, "###.0");
            field(31, route.breakTime, "###.0");
            field(37, route.stem, "###.0");
            paper_.tab(38);
            paper_.put(TimeOfDay(route.start).text("00"));
            mark(2, route.start < problem_.earliestStart);
            paper_.tab(46);
            paper_.put(TimeOfDay(route.back).text("00"));
            mark(3, route.back > problem_.latestReturn);
            field(59, visits, "###0");
            field(67, route.distance, "  #####0", 4, route.distance > problem_.maxDistance);
            field(77, route.cost, "#####.#0");
            paper_.end();
            total += whole, run += route.run, stop += route.stopTime, pause += route.breakTime;
            stem += route.stem, stops += visits, distance += route.distance, cost += route.cost;
        }
        paper_.put("Total ");
        field(13, total, "####.0");
        field(19, run, "####.0");
        field(25, stop, "####.0");
        field(31, pause, "####.0");
        field(37, stem, "####.0");
        field(59, stops, "##0");
        field(67, distance, "   ####0");
        field(77, cost, " ######.#0");
        paper_.end();
    }

    void vehicles() {
        paper_.line("VEHICLE INFORMATION");
        paper_.line(" ");
        paper_.line("Route Veh Weight Delvry Pickup Weight   Cube Delvry Pickup   Cube Vehicle");
        paper_.line("  no  typ capcty weight weight   util capcty   cube   cube   util description");
        double capacity[2] = {}, delivered[2] = {}, picked[2] = {}, used[2] = {};
        for (std::size_t r = 1; r <= routes_.size(); ++r) {
            const PlainRoute& route = routes_[r - 1];
            const int k = plan_.routes(static_cast<int>(r)).vehicle;
            const Vehicle& vehicle = problem_.vehicles(k);
            const double caps[2] = {vehicle.weightCapacity, vehicle.cubeCapacity};
            const double dels[2] = {route.deliveredWeight, route.deliveredCube};
            const double picks[2] = {route.pickupWeight, route.pickupCube};
            field(6, static_cast<double>(r), "##0 ");
            field(10, k, "##0");
            for (std::size_t i = 0; i < 2; ++i) {
                const std::size_t at = 17 + 28 * i;
                const double use = dels[i] > picks[i] ? dels[i] : picks[i];
                field(at, caps[i], i == 0 ? "#####0" : " #####0");
                field(at + 7, dels[i], i == 0 ? "#####0" : " #####0", 5 + static_cast<int>(i),
                      dels[i] > caps[i]);
                field(at + 14, picks[i], "#####0");
                field(at + 21, use / caps[i], "####.0%");
                capacity[i] += caps[i], delivered[i] += dels[i], picked[i] += picks[i], used[i] += use;
            }
            paper_.line(" " + firstLetters(vehicle.description, 13));
        }
        paper_.put("Total");
        for (std::size_t i = 0; i < 2; ++i) {
            const std::size_t at = 17 + 28 * i;
            field(at, capacity[i], i == 0 ? "#####0" : " #####0");
            field(at + 7, delivered[i], "######0");
            field(at + 14, picked[i], "######0");
            field(at + 21, used[i] / capacity[i], "####.0%");
        }
        paper_.end();
    }

    void costs() {
        paper_.line(" ");
        paper_.line("DETAILED COST INFORMATION");
        paper_.line("");
        paper_.line("     --------Vehicle------------  ------------Driver----------------");
        paper_.line("Route     Total    Fixed  Mileage    Total    Fixed  Regular Overtime");
        paper_.line("  no     cost,$   cost,$   cost,$   cost,$   cost,$   time,$   time,$");
        double sums[7] = {};
        for (std::size_t r = 1; r <= routes_.size(); ++r) {
            const PlainRoute& route = routes_[r - 1];
            const Vehicle& vehicle = problem_.vehicles(plan_.routes(static_cast<int>(r)).vehicle);
            const double row[7] = {route.vehicleTotal, vehicle.fixedCost,       route.mileage,
                                   route.driverTotal,  vehicle.driverFixedCost, route.regular,
                                   route.overtime};
            field(6, static_cast<double>(r), "##0");
            for (std::size_t i = 0; i < 7; ++i) {
                field(16 + 9 * i, row[i], "########.#0");
                sums[i] += row[i];
            }
            paper_.end();
        }
        paper_.put("Total ");
        for (std::size_t i = 0; i < 7; ++i) field(16 + 9 * i, sums[i], "######.#0");
        paper_.end();
    }

    std::string name(int stop) const { return firstLetters(problem_.stops(stop).description, 15); }

    void schedule(std::size_t r) {
        const PlainRoute& route = routes_[r - 1];
        const Vehicle& vehicle = problem_.vehicles(plan_.routes(static_cast<int>(r)).vehicle);
        const TimeOfDay start(route.start);
        paper_.line("");
        paper_.line("              *** DETAIL REPORT ON ROUTE NUMBER " + std::to_string(r) + " ***");
        paper_.line(" ");
        paper_.line("A " + firstLetters(vehicle.description, 20) + " leaves at " + start.text("#0") +
                    " on day " + defaultText(start.day) + " from the depot at " + problem_.depotDescription);
        paper_.line(" ");
        paper_.line("                                            Stop   Drive Distance Time");
        paper_.line("    Stop             Arrive      Depart     time to stop  to stop wind");
        paper_.line(" No description        time Day    time Day  Min     Min    Miles met?");
        for (const PlainStop& visit : route.stops) {
            for (const double minutes : visit.breaks)
                paper_.line("                   -->Break " + defaultText(minutes) + " minutes");
            row(visit);
        }
    }

    void row(const PlainStop& visit) {
        const TimeOfDay arrival(visit.arrival);
        const TimeOfDay departure(visit.departure);
        if (visit.stop == 0) {
            paper_.put("   Depot");
        } else {
            field(4, visit.stop, "##0");
            paper_.put(" " + name(visit.stop));
        }
        paper_.tab(21);
        paper_.put(arrival.text("00"));
        field(32, arrival.day, "#0");
        if (visit.stop == 0) {
            paper_.put(" -------  --  ---");
        } else {
            paper_.put(" " + departure.text("00"));
            field(44, departure.day, "#0");
            field(49, visit.load, "####0");
        }
        field(57, visit.minutes, "#####.0");
        field(66, visit.distance, "#####0");
        if (visit.stop != 0) {
            const Stop& stop = problem_.stops(visit.stop);
            const bool met = (stop.begin1 <= visit.arrival && visit.arrival <= stop.end1) ||
                             (stop.begin2 <= visit.arrival && visit.arrival <= stop.end2);
            paper_.put(met ? "  YES" : "   NO");
            mark(7, !met);
            out_.missedWindows += met ? 0 : 1;
        }
        paper_.end();
    }

    void volumes(std::size_t r) {
        const PlainRoute& route = routes_[r - 1];
        const Vehicle& vehicle = problem_.vehicles(plan_.routes(static_cast<int>(r)).vehicle);
        paper_.line("");
        paper_.line("    Stop              Stop volume   Inc cost to serve stop  Capacity in use");
        paper_.line(" No description      Weight   Cube      In $  In $/unit      Weight   Cube");
        double weight = route.deliveredWeight;
        double cube = route.deliveredCube;
        field(69, weight / vehicle.weightCapacity, "###.0%");
        field(76, cube / vehicle.cubeCapacity, "###.0%");
        paper_.end();
        for (std::size_t p = 1; p < route.stops.size(); ++p) {
            const Stop& stop = problem_.stops(route.stops[p - 1].stop);
            const double sign = stop.type == "D" ? -1 : 1;
            weight += sign * stop.weight;
            cube += sign * stop.cube;
            const double cost = costToServe(r, p);
            field(4, route.stops[p - 1].stop, "##0");
            paper_.put(" " + name(route.stops[p - 1].stop));
            field(28, stop.weight, "####0");
            field(35, stop.cube, "####0");
            field(45, cost, "#####.#0");
            if (stop.weight == 0)
                paper_.rightTo(56, "---");
            else
                field(56, cost / stop.weight, "#####.0");
            field(69, 100 * (weight / vehicle.weightCapacity), "###.0");
            field(76, 100 * (cube / vehicle.cubeCapacity), "###.0");
            paper_.end();
        }
        paper_.line("Totals Weight: Del = " + format(route.deliveredWeight, "#####0") +
                    " Pickups = " + format(route.pickupWeight, "#####0") +
                    " Cube: Del = " + format(route.deliveredCube, "#####0") +
                    " Pickups = " + format(route.pickupCube, "#####0"));
    }

    void timeAndDistance(const std::string& left, double hours, const std::string& middle, double miles,
                         const std::string& end) {
        paper_.put(left);
        field(28, hours, "####.0");
        paper_.put(middle);
        field(67, miles, "####0");
        paper_.line(end);
    }

    void routeSummary(std::size_t r) {
        const PlainRoute& route = routes_[r - 1];
        const Vehicle& vehicle = problem_.vehicles(plan_.routes(static_cast<int>(r)).vehicle);
        const double first = route.stops.front().distance;
        const double last = route.stops.back().distance;
        paper_.line("Route time:                      Distance:");
        timeAndDistance("  Driving", route.run, " hr    To 1st stop      ", first, " mi");
        timeAndDistance("  Load/unload        ", route.stopTime, "       From last stop   ", last, "");
        timeAndDistance("  Break              ", route.breakTime, "       On route         ",
                        route.distance - first - last, "");
        timeAndDistance("    Total            ", route.run + route.stopTime + route.breakTime,
                        " hr      Total", route.distance, " mi");
        paper_.line("");
        timeAndDistance("  Max allowed        ", problem_.maxTime, " hr    Max allowed      ",
                        problem_.maxDistance, " mi");
        paper_.line("");
        paper_.line("Route costs:");
        const auto cost = [this](const char* what, double dollars, const char* mask) {
            paper_.put(what);
            field(34, dollars, mask);
            paper_.end();
        };
        cost("  Driver (reg time)", route.regular, "$######.#0");
        cost("  Driver (over time)", route.overtime, "######.#0");
        cost("  Vehicle (mileage)", route.mileage, "######.#0");
        cost("  Fixed", vehicle.fixedCost + vehicle.driverFixedCost, "######.#0");
        cost("               Total", route.cost, "$######.#0");
    }

    static std::vector<std::string> textOf(int flag) {
        switch (flag) {
        case 1:
            return {"Total clock time on the route has been exceeded.  Possible reasons are:", "",
                    "   (1) Too many stops may be assigned to the route",
                    "   (2) All stops may not be able to be reached within allowable speed and distance.  "
                    "Check speeds."};
        case 2:
            return {
                "Earliest start time is not being met.  Possible reasons are:", "",
                "   (1) Route starts too early.  Increase starting time on route.",
                "   (2) Not enough time between 12:01am and the first stop time window.",
                "       Increase speed or change time windows to allow the earliest start time to be met."};
        case 3:
            return {"Latest return time is not being met.  Possible reasons are:", "",
                    "   (1) Too many stops are assigned to the route.", "   (2) Speeds are too low.",
                    "   (3) A latest return time has not been assigned."};
        case 4:
            return {"Total distance on the route has been exceeded.  Possible causes are:", "",
                    "   (1) Too many stops on the route.",
                    "   (2) A stop is too far from the depot to meet this restriction.",
                    "   (3) The maximum distance restriction is too limiting for this problem."};
        case 5:
            return {"Vehicle weight capacity has been exceeded.  Possible causes are:", "",
                    "   (1) Too many stops or the wrong mix of stops on the route.",
                    "   (2) A single stop may have a weight greater than the vehicle capacity.",
                    "   (3) Vehicle weight capacity has been understated for the problem."};
        case 6:
            return {"Vehicle cube capacity has been exceeded.  Possible causes are:", "",
                    "   (1) Too many stops or the wrong mix of stops on the route.",
                    "   (2) A single stop may have a cubic volume greater than the vehicle capacity.",
                    "   (3) Vehicle cubic capacity has been understated for the problem."};
        default:
            return {"One or more stop time windows have been exceeded.  Possible causes are:",
                    "",
                    "   (1) It is not possible to reach the stop given the vehicle speed,",
                    "       distance to the stop from the depot, and width and placement",
                    "       of the time window.",
                    "   (2) Time window is too narrow or misspecified.",
                    "   (3) Stop sequence on route causes a time window violation."};
        }
    }

    void violations() {
        int lowest = 0;
        for (int flag = 7; flag >= 1; --flag)
            if (flags_[flag]) lowest = flag;
        for (int flag = 1; flag <= 7; ++flag) {
            if (!flags_[flag]) continue;
            paper_.line("");
            paper_.line("VIOLATIONS");
            paper_.line("");
            for (const std::string& line : textOf(lowest)) paper_.line(line);
        }
    }

    const Problem& problem_;
    const Plan& plan_;
    PlainMap map_;
    std::vector<PlainRoute> routes_;
    bool flags_[8] = {};
    Paper paper_;
    PlainReport out_;
};

} // namespace

PlainReport plainReport(const Problem& problem, const Plan& plan, const std::string& label,
                        const std::string& date, const std::string& time) {
    return PlainRouter(problem, plan).report(label, date, time);
}

} // namespace vantore::router::tests
