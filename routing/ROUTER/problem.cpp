#include "routing/ROUTER/problem.h"

#include <span>

namespace vantore::router {

namespace {

template <class Row>
CountedTable<Row> readTable(ItemReader& reader, int most, std::span<const Field<Row>> fields) {
    CountedTable<Row> table;
    for (int left = reader.readCount(most); left > 0; --left) {
        Row row;
        readFields(reader, row, fields);
        table.add(std::move(row));
    }
    return table;
}

template <class Row>
void writeTable(ItemWriter& writer, const CountedTable<Row>& table, std::span<const Field<Row>> fields) {
    writer.number(table.count()).endLine();
    for (const Row& row : table.span()) writeRow(writer, row, fields);
}

} // namespace

Stop depotStop(const Problem& problem) {
    Stop depot;
    depot.description = problem.depotDescription;
    depot.zone = problem.depotZone;
    depot.x = problem.depotX;
    depot.y = problem.depotY;
    return depot;
}

std::string skeleton() {
    ItemWriter writer;
    write(Problem{}, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    readFields<Problem>(reader, problem, generalFields);
    for (Break& pause : problem.breaks.span()) readFields<Break>(reader, pause, breakFields);
    problem.stops = readTable<Stop>(reader, mostStops, stopFields);
    problem.vehicles = readTable<Vehicle>(reader, mostVehicles, vehicleFields);
    problem.distances = readTable<SpecifiedLeg>(reader, mostLegs, legFields);
    problem.zones = readTable<Zone>(reader, mostZones, zoneFields);
    problem.zoneSpeeds = readTable<ZoneSpeed>(reader, mostZoneSpeeds, zoneSpeedFields);
    problem.speeds = readTable<SpecifiedLeg>(reader, mostLegs, legFields);
    problem.barriers = readTable<Barrier>(reader, mostBarriers, barrierFields);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writeFields<Problem>(writer, problem, generalFields);
    for (const Break& pause : problem.breaks.span()) writeFields<Break>(writer, pause, breakFields);
    writer.endLine();
    writeTable<Stop>(writer, problem.stops, stopFields);
    writeTable<Vehicle>(writer, problem.vehicles, vehicleFields);
    writeTable<SpecifiedLeg>(writer, problem.distances, legFields);
    writeTable<Zone>(writer, problem.zones, zoneFields);
    writeTable<ZoneSpeed>(writer, problem.zoneSpeeds, zoneSpeedFields);
    writeTable<SpecifiedLeg>(writer, problem.speeds, legFields);
    writeTable<Barrier>(writer, problem.barriers, barrierFields);
}

} // namespace vantore::router
