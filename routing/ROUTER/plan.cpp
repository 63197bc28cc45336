#include "routing/ROUTER/plan.h"

#include <cmath>
#include <utility>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::router {

namespace {

int readWhole(ItemReader& reader) {
    return toInt32(reader.readNumber());
}

int readStop(ItemReader& reader) {
    const double number = numberFrom(reader.readString());
    if (number != std::trunc(number)) throw RuntimeError(ErrorNumber::TypeMismatch);
    return toInt32(number);
}

std::vector<int> readStops(ItemReader& reader, int count) {
    std::vector<int> stops;
    for (int i = 1; i <= count; ++i) stops.push_back(readStop(reader));
    return stops;
}

} // namespace

PlannedRoute plannedRoute(const Problem& problem, int vehicle, double start, std::vector<int> stops) {
    PlannedRoute route;
    route.vehicle = vehicle;
    route.weightCapacity = problem.vehicles(vehicle).weightCapacity;
    route.start = start;
    for (const int stop : stops) route.totalWeight = finite(route.totalWeight + problem.stops(stop).weight);
    route.stops = std::move(stops);
    return route;
}

Plan readPlan(ItemReader& reader) {
    Plan plan;
    plan.remark = reader.readString();
    while (!reader.atEnd()) {
        plan.routeCount = readWhole(reader);
        if (plan.routeCount < 1) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        const int stopCount = readWhole(reader);
        checkIndex(stopCount, 0, mostStopsPerRoute);
        PlannedRoute route;
        route.totalWeight = reader.readNumber();
        route.vehicle = readWhole(reader);
        route.weightCapacity = reader.readNumber();
        route.start = reader.readNumber();
        route.stops = readStops(reader, stopCount);
        if (!plan.hasTooManyRoutes()) plan.routes(plan.routeCount) = std::move(route);
    }
    return plan;
}

void writePlan(const Plan& plan, ItemWriter& writer) {
    writer.plain(plan.remark).endLine();
    for (int r = 1; r <= plan.routeCount; ++r) writeRoute(r, plan.routes(r), writer);
}

void writeRoute(int number, const PlannedRoute& route, ItemWriter& writer) {
    writer.number(number).number(route.stopCount()).number(route.totalWeight).number(route.vehicle);
    writer.number(route.weightCapacity).number(route.start).endLine();
    for (const int stop : route.stops) writer.number(stop).endLine();
}

} // namespace vantore::router
