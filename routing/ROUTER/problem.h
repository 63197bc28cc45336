#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "shell/base/item_stream.h"
#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::router {

constexpr int mostStops = 61;
constexpr int mostVehicles = 75; ///< rows of the vehicle table, each a type of vehicle
constexpr int mostLegs = 1000;   ///< specified distances, and specified speeds
constexpr int mostZones = 1000;
constexpr int mostZoneSpeeds = 1000;
constexpr int mostBarriers = 25;
constexpr int breakCount = 4;

constexpr int depotNumber = 0; ///< where a stop number may stand for the depot
constexpr int minutesPerHour = 60;

constexpr const char* delivery = "D"; ///< types of a stop
constexpr const char* pickup = "P";

/// A driver's break. It is due from `beginsAfter` on the clock on: minutes from 00:00 of day 1.
struct Break {
    double duration = 0; ///< minutes
    double beginsAfter = 9999;
};

/// A stop, known by its row in the table. Coordinates are in units of the grid, times in minutes from 00:00
/// of day 1.
struct Stop {
    std::string description;
    std::string type; ///< "D" or "P" when it is right
    double weight = 0;
    double cube = 0;
    double x = 0;
    double y = 0;
    double zone = 0;     ///< number of its speed zone, 0 for none
    double loadTime = 0; ///< minutes; 0 leaves it to the load time formula
    double begin1 = 0;   ///< time windows
    double end1 = 0;
    double begin2 = 0;
    double end2 = 0;
};

/// A type of vehicle, known by its row in the table. Costs are in $.
struct Vehicle {
    std::string description;
    double type = 0;   ///< a label of the user's
    double number = 0; ///< how many there are
    double weightCapacity = 0;
    double cubeCapacity = 0;
    double fixedCost = 0;   ///< a route
    double costPerMile = 0; ///< a unit of distance
    double driverFixedCost = 0;
    double driverCostPerHour = 0;
    double overtimeCost = 0; ///< an hour
};

/// The distance or speed that a user specifies for the way between two stops, either way.
struct SpecifiedLeg {
    std::int16_t from = 0; ///< numbers of stops, or `depotNumber`
    std::string fromDescription;
    std::int16_t to = 0;
    std::string toDescription;
    double value = 0; ///< a distance, or a distance per hour
};

/// The rectangle in which a zone is drawn. Which zone a stop lies in is the stop's own to tell.
struct Zone {
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
};

/// The speed of all ways between two zones, either way.
struct ZoneSpeed {
    double origin = 0;
    double destination = 0;
    double speed = 0; ///< distance per hour
};

/// A polygon of four corners that no way leads through.
struct Barrier {
    double northwestX = 0;
    double northwestY = 0;
    double northeastX = 0;
    double northeastY = 0;
    double southwestX = 0;
    double southwestY = 0;
    double southeastX = 0;
    double southeastY = 0;
};

/// One depot, its stops and its vehicles. Times of day are in minutes from 00:00 of day 1; distances are in
/// miles or kilometres, as the scaling factors make them from the grid's units. The initial values are those
/// of a new problem.
struct Problem {
    std::string label = "Enter label";
    std::string corner = "SW"; ///< of the map, in which the coordinates are 0,0: NW, SW, SE or NE
    std::string depotDescription = "Enter name";
    double depotZone = 0;
    double depotX = 0;
    double depotY = 0;
    double earliestStart = 0;
    double latestReturn = 9999;
    double defaultSpeed = 30;    ///< distance per hour
    double overtimeAfter = 9999; ///< hours into a route
    double pickupPercent = 0;    ///< of a vehicle in use before pickups are allowed
    double horizontalScale = 1;  ///< distance per unit of the grid
    double verticalScale = 1;
    double maxTime = 9999; ///< of a route, hours
    double maxDistance = 9999;
    double fixedStopTime = 0; ///< the load time formula, minutes
    double timePerWeight = 0;
    double timePerCube = 0;
    Table<Break, 1, breakCount> breaks;

    CountedTable<Stop> stops;
    CountedTable<Vehicle> vehicles;
    CountedTable<SpecifiedLeg> distances;
    CountedTable<Zone> zones;
    CountedTable<ZoneSpeed> zoneSpeeds;
    CountedTable<SpecifiedLeg> speeds;
    CountedTable<Barrier> barriers;
};

inline constexpr std::array<Field<Problem>, 18> generalFields = {
    &Problem::label,         &Problem::corner,        &Problem::depotDescription, &Problem::depotZone,
    &Problem::depotX,        &Problem::depotY,        &Problem::earliestStart,    &Problem::latestReturn,
    &Problem::defaultSpeed,  &Problem::overtimeAfter, &Problem::pickupPercent,    &Problem::horizontalScale,
    &Problem::verticalScale, &Problem::maxTime,       &Problem::maxDistance,      &Problem::fixedStopTime,
    &Problem::timePerWeight, &Problem::timePerCube};
inline constexpr std::array<Field<Break>, 2> breakFields = {&Break::duration, &Break::beginsAfter};
inline constexpr std::array<Field<Stop>, 12> stopFields = {
    &Stop::description, &Stop::type,     &Stop::weight, &Stop::cube, &Stop::x,      &Stop::y,
    &Stop::zone,        &Stop::loadTime, &Stop::begin1, &Stop::end1, &Stop::begin2, &Stop::end2};
inline constexpr std::array<Field<Vehicle>, 10> vehicleFields = {
    &Vehicle::description,       &Vehicle::type,        &Vehicle::number,      &Vehicle::weightCapacity,
    &Vehicle::cubeCapacity,      &Vehicle::fixedCost,   &Vehicle::costPerMile, &Vehicle::driverFixedCost,
    &Vehicle::driverCostPerHour, &Vehicle::overtimeCost};
inline constexpr std::array<Field<SpecifiedLeg>, 5> legFields = {
    &SpecifiedLeg::from, &SpecifiedLeg::fromDescription, &SpecifiedLeg::to, &SpecifiedLeg::toDescription,
    &SpecifiedLeg::value};
inline constexpr std::array<Field<Zone>, 4> zoneFields = {&Zone::left, &Zone::right, &Zone::top,
                                                          &Zone::bottom};
inline constexpr std::array<Field<ZoneSpeed>, 3> zoneSpeedFields = {
    &ZoneSpeed::origin, &ZoneSpeed::destination, &ZoneSpeed::speed};
inline constexpr std::array<Field<Barrier>, 8> barrierFields = {
    &Barrier::northwestX, &Barrier::northwestY, &Barrier::northeastX, &Barrier::northeastY,
    &Barrier::southwestX, &Barrier::southwestY, &Barrier::southeastX, &Barrier::southeastY};

/// The depot as a stop: its name, its zone and its place.
Stop depotStop(const Problem& problem);

/// The text of a new problem's file.
std::string skeleton();

/// Reads the items of a problem file, or of the solver's input, which is the same. InputPastEnd for a short
/// file, SubscriptOutOfRange for a table of more rows than it may have, Overflow for a stop number of a
/// specified distance or speed beyond 16 bits.
Problem read(ItemReader& reader);

/// Writes the items; labels of rows without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

} // namespace vantore::router
