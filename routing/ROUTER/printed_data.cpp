#include "routing/ROUTER/printed_data.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::router {

namespace {

constexpr double numberEnd = 4; // of the row number
constexpr std::size_t descriptionCharacters = 15;
constexpr std::size_t typeCharacters = 2;

/// Where a member of a row is printed. Numbers stand right to the column under a mask; a text begins there,
/// cut to so many characters.
struct Place {
    double column;
    const char* mask = nullptr;
    std::size_t characters = descriptionCharacters;
};

template <class Row>
double numberOf(const Row& row, const Field<Row>& field) {
    if (const auto* whole = std::get_if<std::int16_t Row::*>(&field)) return row.**whole;
    return row.*std::get<double Row::*>(field);
}

class DataPage {
  public:
    explicit DataPage(const Problem& problem) : problem_(problem) {}

    PrintLines run() {
        printLabels();
        printDepot();
        printGeneral();
        printBreaks();
        printStops();
        printVehicles();
        printLegs(problem_.distances, "                 --SPECIFIED STOP-TO-STOP DISTANCES--",
                  "        STOP                STOP            DISTANCE",
                  "NO.  NO DESCRIPTION----  NO DESCRIPTION---- IN MILES", 53);
        printZones();
        printLegs(problem_.speeds, "                   --SPECIFIED STOP-TO-STOP SPEEDS--",
                  "        STOP                STOP            SPEED",
                  "NO.  NO DESCRIPTION----  NO DESCRIPTION---- IN MPH", 51);
        printBarriers();
        return std::move(page_);
    }

  private:
    void item(const std::string& caption, double value) { page_.line(caption + defaultText(value)); }

    void items(const std::string& first, double value, const std::string& second, double other) {
        page_.line(first + defaultText(value) + second + defaultText(other));
    }

    void heading(std::initializer_list<const char*> lines) {
        page_.line("");
        for (const char* line : lines) page_.line(line);
    }

    void printLabels();
    void printDepot();
    void printGeneral();
    void printBreaks();
    void printStops();
    void printVehicles();
    void printLegs(const CountedTable<SpecifiedLeg>& legs, const char* title, const char* upper,
                   const char* lower, double valueEnd);
    void printZones();
    void printBarriers();

    template <class Row>
    void printRows(const CountedTable<Row>& table, std::span<const Field<Row>> fields,
                   std::initializer_list<Place> places) {
        for (int i = 1; i <= table.count(); ++i) {
            page_.right(numberEnd, format(i, "##0"));
            auto field = fields.begin();
            for (const Place& place : places) printField(table(i), *field++, place);
            page_.endLine();
        }
    }

    template <class Row>
    void printField(const Row& row, const Field<Row>& field, const Place& place) {
        if (isText(field)) {
            page_.tab(place.column).text(left(fieldText(row, field), place.characters));
        } else {
            page_.right(place.column, format(numberOf(row, field), place.mask));
        }
    }

    const Problem& problem_;
    PrintLines page_;
};

void DataPage::printLabels() {
    page_.line("                         --PARAMETERS AND LABELS--");
    page_.line("Problem label - " + problem_.label);
    page_.line("Grid corner with 0,0 coordinates (NW, SW, SE, or NE) - " + problem_.corner);
}

void DataPage::printDepot() {
    page_.line("DEPOT DATA");
    page_.line("Depot description - " + problem_.depotDescription + "  Located in zone - " +
               defaultText(problem_.depotZone));
    items("Horizontal coordinate - ", problem_.depotX, "  Vertical coordinate - ", problem_.depotY);
    items("Earliest starting time (min) - ", problem_.earliestStart, "  Latest return time (min) - ",
          problem_.latestReturn);
    item("Default vehicle speed (miles per hour) - ", problem_.defaultSpeed);
    item("After how many clock hours will overtime begin - ", problem_.overtimeAfter);
}

void DataPage::printGeneral() {
    page_.line("GENERAL DATA");
    item("Percent of vehicle in use before allowing pickups - ", problem_.pickupPercent);
    items("Horizontal scaling factor - ", problem_.horizontalScale, "  Vertical scaling factor - ",
          problem_.verticalScale);
    item("Maximum TIME allowed on a route (hours) - ", problem_.maxTime);
    item("Maximum DISTANCE allowed on a route (miles) - ", problem_.maxDistance);
    page_.line("LOAD/UNLOAD TIME FORMULA");
    item("Fixed time per stop - ", problem_.fixedStopTime);
    items("Variable time per stop by weight - ", problem_.timePerWeight, "  By cube - ",
          problem_.timePerCube);
}

void DataPage::printBreaks() {
    static constexpr std::array<const char*, breakCount> ordinals = {"1st", "2nd", "3rd", "4th"};
    page_.line("BREAK TIMES");
    int k = 1;
    for (const char* ordinal : ordinals) {
        const Break& pause = problem_.breaks(k++);
        items(std::string("Duration of ") + ordinal + " break (minutes) - ", pause.duration,
              "  To begin after - ", pause.beginsAfter);
    }
}

void DataPage::printStops() {
    heading({"                            --STOP DATA--",
             "    STOP                LOAD VOLUME   -COORDINATES-    LOAD ---TIME WINDOWS----",
             "NO. DESCRIPTION     TY  WGHT   CUBE    HCRD    VCRD ZN TIME BEG1 END1 BEG2 END2"});
    printRows<Stop>(problem_.stops, stopFields,
                    {{5},
                     {.column = 21, .characters = typeCharacters},
                     {29, "####0"},
                     {36, "####0"},
                     {44, "####.#0"},
                     {52, "####.#0"},
                     {55, "#0"},
                     {60, "###0"},
                     {65, "###0"},
                     {70, "###0"},
                     {75, "###0"},
                     {80, "###0"}});
}

void DataPage::printVehicles() {
    heading({"                          --VEHICLE DATA--",
             "                                          ---VEHICLE---  ----DRIVER----   OVER",
             "    VEHICLE                 --CAPACITY---   FIXED PER MI   FIXED PER HR   TIME",
             "NO. DESCRIPTION      TP  NO WEIGHT   CUBE    COST   COST    COST   COST   COST"});
    printRows<Vehicle>(problem_.vehicles, vehicleFields,
                       {{5},
                        {24, "#0"},
                        {28, "##0"},
                        {35, "#####0"},
                        {42, "#####0"},
                        {50, "####.#0"},
                        {57, "###.#0"},
                        {65, "####.#0"},
                        {72, "###.#0"},
                        {79, "###.#0"}});
}

void DataPage::printLegs(const CountedTable<SpecifiedLeg>& legs, const char* title, const char* upper,
                         const char* lower, double valueEnd) {
    heading({title, upper, lower});
    printRows<SpecifiedLeg>(legs, legFields, {{8, "##0"}, {9}, {28, "##0"}, {29}, {valueEnd, "#####.#0"}});
}

void DataPage::printZones() {
    heading({"                     --SPEED ZONES DEFINITION--", "    -----------COORDINATES---------",
             "NO.    LEFT   RIGHT     TOP  BOTTOM"});
    printRows<Zone>(problem_.zones, zoneFields,
                    {{12, "####.#0"}, {20, "####.#0"}, {28, "####.#0"}, {36, "####.#0"}});
    heading({"                       --ZONE-TO-ZONE SPEEDS--", "    ORIGIN DESTINATION  SPEED",
             "NO.   ZONE        ZONE    MPH"});
    printRows<ZoneSpeed>(problem_.zoneSpeeds, zoneSpeedFields, {{11, "###0"}, {23, "###0"}, {30, "####.0"}});
}

void DataPage::printBarriers() {
    heading({"                         --BARRIERS DEFINITION--",
             "    ---NORTHWEST--- ---NORTHEAST--- ---SOUTHWEST--- ---SOUTHEAST---",
             "    --COORDINATES-- --COORDINATES-- --COORDINATES-- --COORDINATES--",
             "NO. HORIZTL VERTICL HORIZTL VERTICL HORIZTL VERTICL HORIZTL VERTICL"});
    printRows<Barrier>(problem_.barriers, barrierFields,
                       {{12, "####.#0"},
                        {20, "####.#0"},
                        {28, "####.#0"},
                        {36, "####.#0"},
                        {44, "####.#0"},
                        {52, "####.#0"},
                        {60, "####.#0"},
                        {68, "####.#0"}});
}

} // namespace

PrintLines dataPage(const Problem& problem) {
    return DataPage(problem).run();
}

} // namespace vantore::router
