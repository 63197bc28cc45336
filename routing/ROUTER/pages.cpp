#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "routing/ROUTER/ROUTER.h"
#include "shell/base/number_text.h"
#include "shell/forms/keys.h"

namespace vantore::router {

namespace {

/// The pages of the data editor in their order.
enum Page {
    parametersPage,
    stopsPage,
    vehiclesPage,
    distancesPage,
    zonesPage,
    zoneSpeedsPage,
    speedsPage,
    barriersPage,
    checkPage
};

struct PageWords {
    const char* caption;
    const char* continueButton;
};

constexpr std::array<PageWords, checkPage + 1> pageWords = {{{"Parameters", "cmdContinuePrm"},
                                                             {"Stops", "cmdContinueStops"},
                                                             {"Vehicles", "cmdContinueTrk"},
                                                             {"Specified distances", "cmdContinueDist"},
                                                             {"Speed zones", "cmdContinueZones"},
                                                             {"Zone-to-zone speeds", "cmdContinueZnSpeeds"},
                                                             {"Specified speeds", "cmdContinueSpeeds"},
                                                             {"Geographic barriers", "cmdContinueBar"},
                                                             {"Data check", "cmdContinueValid"}}};

// Twips of the design.
constexpr Rect editorPlace{60, 60, 9480, 6330};
constexpr double pageLeft = 240;
constexpr double pageTop = 600;
constexpr double pageWidth = 9120;
constexpr double pageBottom = 6270;
constexpr double headingHeight = 260;
constexpr double headingDrop = 60;
constexpr double rightLeft = 4860;
constexpr double fieldStep = 366;
constexpr double fieldHeight = 300;
constexpr double leftCaption = 3800;
constexpr double rightCaption = 3100;
constexpr double numberBox = 600;
constexpr double cornerBox = 400;
constexpr double breakBox = 550;
constexpr double rightBox = 1250;
constexpr double depotCaption = 1500;
constexpr double depotBox = 2850;

/// A box of the parameters: its name, its caption and its tip.
struct FieldWords {
    const char* name;
    const char* caption;
    const char* tip;
};

// In the order of the record's members, behind the label, the corner and the depot's name.
constexpr std::array<FieldWords, 7> depotFields = {
    {{"txtZone", "Located in zone", "Speed zone in which depot is located.  Default is 0."},
     {"txtDepotX", "Horizontal coordinate", "X coordinate for depot"},
     {"txtDepotY", "Vertical coordinate", "Y coordinate for depot."},
     {"txtEarlyStart", "Earliest starting time (min.)",
      "Earliest time that the vehicle may leave the depot."},
     {"txtReturnTime", "Latest return time (min.)", "Latest time that a vehicle may reurn to the depot"},
     {"txtDefaultSpeed", "Default vehicle speed (dist. per hour)",
      "Default speed of the vehicles if more specific speeds are not specified."},
     {"txtOtime", "After how many hours will overtime begin",
      "Time into a route after which overtime rates may apply."}}};
constexpr std::array<FieldWords, 5> routeFields = {
    {{"txtPercntPickup", "Percent of vehicle in use before allowing pickups",
      "0% means vehicle is empty before allowing pickups.  100% means pickups are allowed at any point on "
      "route regardless of remaining load on vehicle.  "},
     {"txtXScaleFactor", "Horizontal scaling factor",
      "Multipler to convert X coordinates to miles or kilometers.  May include a circuity factor."},
     {"txtYScaleFactor", "Vertical scaling factor",
      "Multipler to convert Y coordinates to miles or kilometers.  May include a circuity factor."},
     {"txtMaxTime", "Maximum TIME allowed on a route (hours)", "Controls length of a route."},
     {"txtMaxDist", "Maximum DISTANCE allowed on a route (dist.)", "Controls length of a route."}}};
constexpr std::array<FieldWords, 3> loadTimeFields = {
    {{"txtFixedTime", "Fixed time per stop", "Fixed coefficient of load time formula."},
     {"txtVarTimeperLb", "Variable time per stop:  By weight", "Variable coefficient of load time formula."},
     {"txtVarTimePerCube", "By cube", "Variable coefficient of load time formula."}}};

// Columns of a specified distance or speed.
constexpr int fromColumn = 1;
constexpr int toColumn = 3;

constexpr const char* stopsRowQuestion =
    "Insert at end of list?  If NO, insertion is at the designated GridStops row.";

} // namespace

void ROUTER::addPages() {
    SSTab = &addContainer("SSTab", "", editorPlace, {View::Data});
    Seen(*SSTab).when([this] { return editing_; });
    for (const PageWords& words : pageWords) SSTab->pages.emplace_back(words.caption);
    SSTab->onSelect = [this] {
        if (SSTab->selected == checkPage) checkData();
    };
    addParameters();
    addStops();
    addVehicles();
    addDistances();
    addZones();
    addZoneSpeeds();
    addSpeeds();
    addBarriers();
    addFindings();
    addPageButtons();
}

// Parameters

ModuleFrame::FieldColumn ROUTER::onParameters(double left, double top, double captionWidth,
                                              double boxWidth) const {
    return {.left = left,
            .top = top,
            .captionWidth = captionWidth,
            .boxWidth = boxWidth,
            .step = fieldStep,
            .boxHeight = fieldHeight,
            .container = SSTab,
            .page = parametersPage};
}

void ROUTER::addHeading(const std::string& name, const std::string& text, double left, double top, int page) {
    Label& heading = addLabel(name, text, {left, top, 4200, headingHeight}, {View::Data});
    heading.bold = true;
    heading.container = SSTab;
    heading.page = page;
}

void ROUTER::addParameters() {
    addGeneralFields();
    addBreakFields();
    const Problem defaults;
    general_.show(defaults);
    for (int k = 1; k <= breakCount; ++k) breaks_(k).show(defaults.breaks(k));
}

void ROUTER::addGeneralFields() {
    const double second = pageTop + fieldStep;
    FieldColumn title = onParameters(pageLeft, pageTop, 1200, 7800);
    FieldColumn corner = onParameters(pageLeft, second, leftCaption + numberBox - cornerBox, cornerBox);
    FieldColumn depot = onParameters(rightLeft, second + fieldStep, depotCaption, depotBox);
    std::vector<TextBox*> boxes = {
        &addField(title, "txtLabel", "Problem label"),
        &addField(corner, "txtCorner", "Grid corner with 0,0 coordinates (NW, SW, SE, or NE)"),
        &addField(depot, "txtDepot", "Depot description")};
    addHeading("lblDepotData", "DEPOT DATA", rightLeft, second + headingDrop, parametersPage);
    FieldColumn left = onParameters(pageLeft, corner.top, leftCaption, numberBox);
    FieldColumn right = onParameters(rightLeft, depot.top, rightCaption, rightBox);
    const auto addHeadingIn = [this](FieldColumn& column, const std::string& name, const std::string& text) {
        addHeading(name, text, column.left, column.top + headingDrop, parametersPage);
        column.top += column.step;
    };
    const auto addBlock = [&](FieldColumn& column, std::span<const FieldWords> fields) {
        for (const FieldWords& words : fields) {
            boxes.push_back(&addField(column, words.name, words.caption));
            boxes.back()->tip = words.tip;
        }
    };
    addBlock(right, depotFields);
    addHeadingIn(left, "lblGeneralData", "GENERAL DATA");
    addBlock(left, routeFields);
    addHeadingIn(left, "lblLoadTime", "LOAD/UNLOAD TIME FORMULA");
    addBlock(left, loadTimeFields);
    general_ = {generalFields, boxes};
}

void ROUTER::addBreakFields() {
    static constexpr std::array<const char*, breakCount> ordinals = {"1st", "2nd", "3rd", "4th"};
    const double top = pageTop + 10 * fieldStep + headingDrop;
    FieldColumn durations = onParameters(rightLeft, top, 2120, breakBox);
    FieldColumn starts = onParameters(rightLeft + 2800, top, 1000, breakBox);
    for (int k = 1; k <= breakCount; ++k) {
        const std::string ordinal = ordinals.at(static_cast<std::size_t>(k - 1));
        TextBox& duration =
            addField(durations, "txtDur" + ordinal + "Brk", "Duration of " + ordinal + " break (min.)");
        duration.tip = "Length of break time";
        TextBox& start = addField(starts, "txtTimeAfter" + std::to_string(k), "To begin after");
        start.tip = "Time after which break may begin in minutes.";
        breaks_(k) = {breakFields, {&duration, &start}};
    }
}

// The tables

RowTitles ROUTER::stopsTitles() const {
    RowTitles titles = usualTitles();
    titles.questionText = stopsRowQuestion;
    return titles;
}

GridRows& ROUTER::addSheet(const std::string& name, int page, int limit, const RowTitles& titles) {
    const double top = pageTop + headingHeight + 60;
    GridRows& rows = addRowGrid(name, {pageLeft, top, pageWidth, pageBottom - top}, limit, titles);
    DataGrid& grid = rows.grid();
    grid.container = SSTab;
    grid.page = page;
    Seen(grid).when([this] { return editing_; });
    grid.onKey = [&rows, &grid](int code) {
        const int lastRow = grid.rows() - 1;
        if (code != keys::enter || grid.rowCount() == 0 || grid.row() < lastRow) return rows.keyPress(code);
        rows.insertKey();
        grid.setCurrent(grid.rows() - 1, 1);
    };
    return rows;
}

void ROUTER::addStops() {
    addHeading("lblStopsPage", "Stops", pageLeft, pageTop, stopsPage);
    stops_ = {addSheet("GridStops", stopsPage, mostStops, stopsTitles()),
              stopFields,
              {{"Stop\r\nno.", 480},
               {"Stop description", 1650},
               {"Stop\r\ntype", 460},
               {"Weight", 720},
               {"Cube", 640},
               {"X coor-\r\ndinate", 720},
               {"Y coor-\r\ndinate", 720},
               {"Zone", 480},
               {"Load\r\ntime", 520},
               {"TW\r\nBegin1", 600},
               {"TW\r\nEnd1", 600},
               {"TW\r\nBegin2", 600},
               {"TW\r\nEnd2", 600}}};
}

void ROUTER::addVehicles() {
    addHeading("lblVehicles", "Vehicles", pageLeft, pageTop, vehiclesPage);
    vehicles_ = {addSheet("GridTrk", vehiclesPage, mostVehicles, stopsTitles()),
                 vehicleFields,
                 {{"Veh.\r\nno.", 480},
                  {"Vehicle description", 2200},
                  {"Veh.\r\ntype", 520},
                  {"No.", 520},
                  {"Cap. in \r\nweight", 760},
                  {"Cap. in\r\ncube", 760},
                  {"Vehicle\r\nfixed\r\ncost", 760},
                  {"Vehicle\r\ncost\r\nper mi.", 760},
                  {"Driver\r\nfixed\r\ncost", 760},
                  {"Driver\r\ncost\r\n per hr", 760},
                  {"Over-\r\ntime\r\ncost", 760}}};
}

Sheet<SpecifiedLeg> ROUTER::addLegs(const std::string& name, int page, const char* valueHeading) {
    GridRows& rows = addSheet(name, page, mostLegs, usualTitles());
    DataGrid& grid = rows.grid();
    grid.onKey = [this, &grid, type = grid.onKey](int code) {
        type(code);
        fillDescription(grid, grid.row(), grid.col());
    };
    return {rows,
            legFields,
            {{"No.", 560},
             {"Seq.\r\nno.", 640},
             {"Stop description", 2700},
             {"Seq.\r\nNo.", 640},
             {"Stop description", 2700},
             {valueHeading, 1200}}};
}

void ROUTER::addDistances() {
    addHeading("lblDistances", "Specified stop-to-stop distances", pageLeft, pageTop, distancesPage);
    distances_ = addLegs("GridDist", distancesPage, "Distance,\r\nmiles");
}

void ROUTER::addSpeeds() {
    addHeading("lblSpeeds", "Specified stop-to-stop speeds", pageLeft, pageTop, speedsPage);
    speeds_ = addLegs("GridSpeeds", speedsPage, "Speed,\r\nmph");
}

/// A stop number brings the stop's description with it, 0 the depot's.
void ROUTER::fillDescription(DataGrid& grid, int row, int col) {
    if (row < 1 || grid.rowCount() == 0 || (col != fromColumn && col != toColumn)) return;
    grid.setCell(row, col + 1, descriptionOf(val(grid.cell(row, col))));
}

/// Empty for a number that no stop has. Numbers are rounded as the record rounds them.
std::string ROUTER::descriptionOf(double stopNumber) const {
    const double number = std::nearbyint(stopNumber);
    if (number == depotNumber) return find("txtDepot")->shownText();
    if (number < 1 || number > stops_.count()) return "";
    return stops_.grid().cell(static_cast<int>(number), 1);
}

void ROUTER::addZones() {
    addHeading("lblZones", "Coordinates for speed zones:", pageLeft, pageTop, zonesPage);
    zones_ = {addSheet("GridZones", zonesPage, mostZones, usualTitles()),
              zoneFields,
              {{"Zone\r\nno.", 640}, {"Left", 1200}, {"Right", 1200}, {"Top", 1200}, {"Bottom", 1200}}};
}

void ROUTER::addZoneSpeeds() {
    addHeading("lblZoneSpeeds", "Zone-to-zone speeds", pageLeft, pageTop, zoneSpeedsPage);
    zoneSpeeds_ = {
        addSheet("GridZnSpds", zoneSpeedsPage, mostZoneSpeeds, stopsTitles()),
        zoneSpeedFields,
        {{"No.", 640}, {"Origin\r\nzone", 1200}, {"Destination\r\nzone", 1200}, {"Speed,\r\nmph", 1200}}};
}

void ROUTER::addBarriers() {
    RowTitles titles = usualTitles();
    titles.limit = "Add a Row";
    addHeading("lblBarriers", "Coordinates for barrier polygons", pageLeft, pageTop, barriersPage);
    barriers_ = {addSheet("GridBar", barriersPage, mostBarriers, titles),
                 barrierFields,
                 {{"No.", 560},
                  {"Northwest\r\nX", 1020},
                  {"Northwest\r\nY", 1020},
                  {"Northeast\r\nX", 1020},
                  {"Northeast\r\nY", 1020},
                  {"Southwest\r\nX", 1020},
                  {"Southwest\r\nY", 1020},
                  {"Southeast\r\nX", 1020},
                  {"Southeast\r\nY", 1020}}};
}

void ROUTER::addFindings() {
    rtbValid = &add<ReportScreen>("rtbValid", Rect{pageLeft, pageTop, pageWidth, pageBottom - pageTop});
    seenIn(*rtbValid, {View::Data});
    rtbValid->container = SSTab;
    rtbValid->page = checkPage;
}

/// The buttons under the pages, those of one page seen on it alone.
void ROUTER::addPageButtons() {
    const auto seenOn = [this](Button& button, Page first, Page last) {
        Seen(button).when(
            [this, first, last] { return editing_ && SSTab->selected >= first && SSTab->selected <= last; });
    };
    for (int page = 0; page <= checkPage; ++page)
        seenOn(addButton(pageWords.at(static_cast<std::size_t>(page)).continueButton,
                         "Continue &" + std::to_string(page + 1), buttonPlace(0, 0), {View::Data},
                         [this] { editing_ = false; }),
               static_cast<Page>(page), static_cast<Page>(page));
    seenOn(addButton("cmdAdd", "&Add row", buttonPlace(0, 1), {View::Data}, [this] { addRow(); }), stopsPage,
           barriersPage);
    seenOn(addButton("cmdDelete", "&Delete row", buttonPlace(0, 2), {View::Data}, [this] { deleteRow(); }),
           stopsPage, barriersPage);
    seenOn(addButton("cmdArithStops", "Colu&mn arithmetic", buttonPlace(0, 3), {View::Data},
                     [this] { computeColumn(); }),
           stopsPage, stopsPage);
}

} // namespace vantore::router
