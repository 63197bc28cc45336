#include "location/COG/report.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/print_lines.h"

namespace vantore::cog {

namespace {

constexpr double margin = 8;               // units of the design
constexpr double lineHeight = 16;          // units of the design
constexpr std::size_t costCharacters = 20; // that fit behind the coordinates in the column
constexpr int rowsOfTable = 19;
constexpr double overflowRowTop = 400;

bool isWhole(double value) {
    return value - wholePart(value) == 0;
}

std::string iterationText(int number) {
    if (number <= 9) return "        " + format(number, "###0");
    if (number <= 99) return "       " + format(number, "##00");
    if (number <= 999) return "      " + format(number, "#000");
    return "     " + format(number, "0000");
}

std::string coordinateText(double value, bool firstRow) {
    if (!isWhole(value)) return format(value, "#,###.##0");
    return format(value, firstRow ? "#,###,##0" : "###,##0");
}

std::string costText(double value, bool firstRow) {
    if (isWhole(value)) return format(value, "###,###,##0");
    return format(value, firstRow ? "###,###,###.00" : "###,###,###.#0");
}

std::string rowText(const Cycle& cycle) {
    const bool firstRow = cycle.number == 0;
    PrintLines row;
    row.text(iterationText(cycle.number));
    row.right(26, coordinateText(cycle.location.x, firstRow));
    row.right(41, coordinateText(cycle.location.y, firstRow));
    const std::string cost = costText(cycle.cost, firstRow);
    if (cost.size() <= costCharacters) {
        row.right(61, cost);
    } else {
        row.text(" " + cost);
    }
    if (firstRow) row.text(" <-- COG");
    return row.endLine().lines().front();
}

} // namespace

void printHeading(PictureSurface& surface, Scale scale, const std::string& label) {
    surface.font = {"MS Sans Serif", 10 * scale.x, true};
    surface.moveTo(margin * scale.x, 8 * scale.y);
    surface.print("EXACT CENTER-OF-GRAVITY METHOD RESULTS", colour::lightBlue);
    surface.font = {"Courier New", 8 * scale.x, false};
    surface.moveTo(margin * scale.x, 32 * scale.y);
    surface.print("Title: ", colour::lightBlue).print(label, colour::black);
}

void printTableHeading(PictureSurface& surface, Scale scale) {
    surface.moveTo(margin * scale.x, 48 * scale.y);
    surface.print("Iteration   X coordinate   Y coordinate                Cost", colour::lightBlue);
}

void printCycle(PictureSurface& surface, Scale scale, const Cycle& cycle, const Cycle& previous) {
    double top = (cycle.number + 4) * lineHeight;
    if (cycle.number > rowsOfTable) {
        top = overflowRowTop;
        surface.moveTo(margin * scale.x, top * scale.y);
        surface.print(rowText(previous), colour::brightWhite);
    }
    surface.moveTo(margin * scale.x, top * scale.y);
    surface.print(rowText(cycle), colour::black);
}

void printSpecified(PictureSurface& surface, Scale scale, const std::string& x, const std::string& y,
                    double cost) {
    surface.moveTo(margin * scale.x, 48 * scale.y);
    surface.print("Specified coordinates are: ", colour::lightBlue);
    surface.print("X = " + x + ", Y = " + y, colour::black);
    surface.moveTo(margin * scale.x, 64 * scale.y);
    surface.print("Total cost is: ", colour::lightBlue);
    surface.print(format(cost, "###,###,###,###.#0"), colour::black);
}

} // namespace vantore::cog
