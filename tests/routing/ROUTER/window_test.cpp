#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <utility>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "shell/base/text.h"
#include "tests/support/error_of.h"
#include "tests/support/form_faults.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

using namespace router;

// At zoom .9 the depot lies at (36, 434), stop 1 at (604, 434), stop 2 at (36, 30).
constexpr const char* problem =
    "\"Round\",\"SW\",\"Depot\",0,0,0,480,1020,60,8,100,1,1,9999,9999,5,0,0,0,9999,0,9999,0,9999,0,9999\r\n"
    "2\r\n\"Mill\",\"D\",100,4,632,0,0,0,0,9999,9999,9999\r\n\"Quay\",\"D\",200,4,0,448,0,0,0,9999,9999,"
    "9999\r\n"
    "2\r\n\"Van\",1,2,900,80,50,.5,60,12,18\r\n\"Truck\",1,2,1900,80,50,.5,60,12,18\r\n"
    "0\r\n1\r\n100,300,200,50\r\n0\r\n0\r\n0\r\n";
constexpr const char* plan = "SPECIFIED\r\n1,2,300,1,900,480\r\n1\r\n2\r\n";
constexpr const char* asked = "InputBx \"Solution options\": \"Want to:\\n(1) Compute routes.\\n(2) Specify "
                              "routes.\" [\"1\"] -> ";
constexpr const char* labelAsked =
    "InputBx \"Report Label\": \"ENTER LABEL FOR THIS REPORT?\" [\"Untitled\"] -> ";

class RouterWindow : public testing::Test {
  protected:
    RouterWindow() {
        session.writeFile("RTR01.dat", problem);
        session.open("ROUTER", "RTR01.dat");
    }

    /// A control's state as `show` prints it, without its name.
    std::string shown(const std::string& control) {
        const std::string text = session.play("show " + control);
        return text.substr(control.size() + 2, text.size() - control.size() - 3);
    }

    bool visible(const std::string& control) { return shown(control).starts_with("visible"); }

    bool drawn(const std::string& operation) {
        const std::vector<std::string> operations = lines(session.play("surface"));
        return std::ranges::find(operations, operation) != operations.end();
    }

    void onPage(int page) { session.play("press cmdData\ntab " + std::to_string(page)); }

    ModuleSession session;
};

// The data editor

TEST_F(RouterWindow, HasNoFaultsOnAnyPageAndInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.writeFile("RTR01.dat", problem);
        sized.writeFile("ROUTE.DAT", plan);
        sized.open("ROUTER", "RTR01.dat");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press cmdData");
        for (int page = 0; page <= 8; ++page) {
            sized.play("tab " + std::to_string(page));
            EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width << " page " << page;
        }
        sized.play("press cmdContinueValid\npress cmdPlot");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press cmdContinuePlot\nanswer cancel\npress cmdSolve\nanswer A\npress cmdReport");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(RouterWindow, StartsWithItsDefaults) {
    ModuleSession fresh;
    EXPECT_EQ(fresh.play("module ROUTER\ntitle\nshow cmdOpen\nshow cmdData\nshow cmdSolve"),
              "Vehicle Routing and Scheduling\ncmdOpen: visible enabled \"&Start\"\n"
              "cmdData: hidden enabled \"&Data\"\ncmdSolve: hidden enabled \"&Solve\"\n");
    EXPECT_NE(fresh.play("show Label34")
                  .find("visible enabled \"Open a file to begin processing. Look for example files in the "
                        "directory "),
              std::string::npos);
    const std::vector<std::pair<const char*, const char*>> defaults = {
        {"txtLabel", "Enter label"}, {"txtCorner", "SW"},
        {"txtDepot", "Enter name"},  {"txtZone", "0"},
        {"txtReturnTime", "9999"},   {"txtDefaultSpeed", "30"},
        {"txtOtime", "9999"},        {"txtPercntPickup", "0"},
        {"txtXScaleFactor", "1"},    {"txtMaxDist", "9999"},
        {"txtDur1stBrk", "0"},       {"txtTimeAfter4", "9999"}};
    for (const auto& [name, text] : defaults) EXPECT_EQ(fresh.module().find(name)->shownText(), text) << name;
}

struct BoxWords {
    const char* box;
    const char* caption;
    const char* tip;
};

const std::vector<BoxWords> parameterWords = {
    {"txtLabel", "Problem label", ""},
    {"txtCorner", "Grid corner with 0,0 coordinates (NW, SW, SE, or NE)", ""},
    {"txtDepot", "Depot description", ""},
    {"txtZone", "Located in zone", "Speed zone in which depot is located.  Default is 0."},
    {"txtDepotX", "Horizontal coordinate", "X coordinate for depot"},
    {"txtDepotY", "Vertical coordinate", "Y coordinate for depot."},
    {"txtEarlyStart", "Earliest starting time (min.)", "Earliest time that the vehicle may leave the depot."},
    {"txtReturnTime", "Latest return time (min.)", "Latest time that a vehicle may reurn to the depot"},
    {"txtDefaultSpeed", "Default vehicle speed (dist. per hour)",
     "Default speed of the vehicles if more specific speeds are not specified."},
    {"txtOtime", "After how many hours will overtime begin",
     "Time into a route after which overtime rates may apply."},
    {"txtPercntPickup", "Percent of vehicle in use before allowing pickups",
     "0% means vehicle is empty before allowing pickups.  100% means pickups are allowed at any point on "
     "route regardless of remaining load on vehicle.  "},
    {"txtXScaleFactor", "Horizontal scaling factor",
     "Multipler to convert X coordinates to miles or kilometers.  May include a circuity factor."},
    {"txtYScaleFactor", "Vertical scaling factor",
     "Multipler to convert Y coordinates to miles or kilometers.  May include a circuity factor."},
    {"txtMaxTime", "Maximum TIME allowed on a route (hours)", "Controls length of a route."},
    {"txtMaxDist", "Maximum DISTANCE allowed on a route (dist.)", "Controls length of a route."},
    {"txtFixedTime", "Fixed time per stop", "Fixed coefficient of load time formula."},
    {"txtVarTimeperLb", "Variable time per stop:  By weight", "Variable coefficient of load time formula."},
    {"txtVarTimePerCube", "By cube", "Variable coefficient of load time formula."},
    {"txtDur1stBrk", "Duration of 1st break (min.)", "Length of break time"},
    {"txtDur2ndBrk", "Duration of 2nd break (min.)", "Length of break time"},
    {"txtDur3rdBrk", "Duration of 3rd break (min.)", "Length of break time"},
    {"txtDur4thBrk", "Duration of 4th break (min.)", "Length of break time"},
    {"txtTimeAfter1", "To begin after", "Time after which break may begin in minutes."},
    {"txtTimeAfter2", "To begin after", "Time after which break may begin in minutes."},
    {"txtTimeAfter3", "To begin after", "Time after which break may begin in minutes."},
    {"txtTimeAfter4", "To begin after", "Time after which break may begin in minutes."}};

/// What the label of a box says.
std::string captionOf(const Form& form, const Control& box) {
    for (const auto& control : form.controls())
        if (const auto* label = dynamic_cast<const Label*>(control.get()))
            if (label->buddy == &box) return label->caption;
    return "";
}

TEST_F(RouterWindow, NamesAndExplainsEachParameter) {
    onPage(0);
    for (const BoxWords& words : parameterWords) {
        const Control* box = session.module().find(words.box);
        ASSERT_NE(box, nullptr) << words.box;
        EXPECT_EQ(box->tip, words.tip) << words.box;
        EXPECT_EQ(captionOf(session.module(), *box), words.caption) << words.box;
    }
}

TEST_F(RouterWindow, HeadsTheGroupsOfParametersAndItsTables) {
    const std::vector<std::pair<int, const char*>> headings = {{0, "DEPOT DATA"},
                                                               {0, "GENERAL DATA"},
                                                               {0, "LOAD/UNLOAD TIME FORMULA"},
                                                               {3, "Specified stop-to-stop distances"},
                                                               {4, "Coordinates for speed zones:"},
                                                               {6, "Specified stop-to-stop speeds"},
                                                               {7, "Coordinates for barrier polygons"}};
    session.play("press cmdData");
    for (const auto& [page, heading] : headings) {
        session.play("tab " + std::to_string(page));
        EXPECT_TRUE(std::ranges::any_of(session.module().controls(), [&](const auto& control) {
            return control->shown() && control->shownText() == heading;
        })) << heading;
    }
}

TEST_F(RouterWindow, OpensANameThatIsNewWithEmptyTables) {
    session.play("file RTRNEW.dat\npress cmdOpen\npress cmdData\ntab 1");
    EXPECT_EQ(session.grid("GridStops").at(1), "0 |  |  |  |  |  |  |  |  |  |  |  | ");
    EXPECT_TRUE(session.readFile("RTRNEW.dat").ends_with("0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"));
}

TEST_F(RouterWindow, ShowsTheEditorInPlaceOfTheMainButtons) {
    const std::vector<std::string> mainButtons = {"cmdData",      "cmdPlot",   "cmdOpen",
                                                  "cmdSave",      "cmdSolve",  "cmdExit",
                                                  "cmdPrintData", "cmdReport", "cmdExcel"};
    for (const std::string& name : mainButtons) EXPECT_TRUE(visible(name)) << name;
    EXPECT_FALSE(visible("SSTab"));
    session.play("press cmdData");
    for (const std::string& name : mainButtons) EXPECT_FALSE(visible(name)) << name;
    EXPECT_TRUE(visible("SSTab"));
    const std::vector<std::string> ways = {"cmdContinuePrm",    "cmdContinueStops", "cmdContinueTrk",
                                           "cmdContinueDist",   "cmdContinueZones", "cmdContinueZnSpeeds",
                                           "cmdContinueSpeeds", "cmdContinueBar",   "cmdContinueValid"};
    for (std::size_t page = 0; page < ways.size(); ++page) {
        session.play("tab " + std::to_string(page));
        EXPECT_EQ(shown(ways[page]), "visible enabled \"Continue &" + std::to_string(page + 1) + "\"");
        EXPECT_EQ(visible("cmdAdd"), page >= 1 && page <= 7);
        EXPECT_EQ(visible("cmdDelete"), page >= 1 && page <= 7);
        EXPECT_EQ(visible("cmdArithStops"), page == 1);
        EXPECT_EQ(session.play("press " + ways[(page + 1) % ways.size()]),
                  "refused: " + ways[(page + 1) % ways.size()] + " is hidden\n");
        session.play("press " + ways[page]);
        EXPECT_TRUE(visible("cmdSolve"));
        session.play("press cmdData");
    }
}

TEST_F(RouterWindow, NamesAndExplainsItsButtons) {
    const auto expectWords = [this](const std::vector<BoxWords>& buttons) {
        for (const BoxWords& words : buttons) {
            EXPECT_EQ(shown(words.box), "visible enabled \"" + std::string(words.caption) + "\"");
            EXPECT_EQ(session.module().find(words.box)->tip, words.tip) << words.box;
        }
    };
    session.play("answer cancel\npress cmdSolve");
    expectWords({{"cmdData", "&Data", "Data editor"},
                 {"cmdReport", "Re&port", "Needs the routes of a solution: press Solve."},
                 {"cmdExcel", "&Excel edit", "Edit data in an Excel spreadsheet"}});
    session.play("press cmdPlot");
    expectWords({{"cmdContinuePlot", "&Continue", ""},
                 {"cmdZoom", "Zoo&m", "Adjust picture size"},
                 {"cmdStopId", "Stop &id.", "Show or hide the numbers of the stops"},
                 {"cmdZonesPlot", "&Zones", "Show or hide the speed zones"},
                 {"cmdClrRoute", "Clear ro&utes", "Delete the routes"}});
}

TEST_F(RouterWindow, CapsItsTables) {
    const std::vector<std::pair<const char*, const char*>> headings = {
        {"GridStops",
         "Stop\\nno. | Stop description | Stop\\ntype | Weight | Cube | X coor-\\ndinate | Y "
         "coor-\\ndinate | Zone | Load\\ntime | TW\\nBegin1 | TW\\nEnd1 | TW\\nBegin2 | TW\\nEnd2"},
        {"GridTrk",
         "Veh.\\nno. | Vehicle description | Veh.\\ntype | No. | Cap. in \\nweight | Cap. in\\ncube | "
         "Vehicle\\nfixed\\ncost | Vehicle\\ncost\\nper mi. | Driver\\nfixed\\ncost | "
         "Driver\\ncost\\n per hr | Over-\\ntime\\ncost"},
        {"GridDist",
         "No. | Seq.\\nno. | Stop description | Seq.\\nNo. | Stop description | Distance,\\nmiles"},
        {"GridZones", "Zone\\nno. | Left | Right | Top | Bottom"},
        {"GridZnSpds", "No. | Origin\\nzone | Destination\\nzone | Speed,\\nmph"},
        {"GridSpeeds", "No. | Seq.\\nno. | Stop description | Seq.\\nNo. | Stop description | Speed,\\nmph"}};
    for (const auto& [grid, heading] : headings) EXPECT_EQ(session.grid(grid).at(0), heading);
    EXPECT_EQ(session.grid("GridStops").at(1),
              "1 | Mill | D | 100 | 4 | 632 | 0 | 0 | 0 | 0 | 9999 | 9999 | 9999");
    EXPECT_EQ(session.grid("GridZones").at(1), "1 | 100 | 300 | 200 | 50");
}

TEST_F(RouterWindow, ChecksTheDataWheneverThatPageIsTurnedTo) {
    onPage(0);
    session.play("type txtMaxTime 0");
    EXPECT_EQ(session.play("tab 8"), "beep\n");
    EXPECT_NE(shown("rtbValid")
                  .find("\\nMaximum time allowed on route should be greater then 0.\\n\\nDATA "
                        "VALIDATION CHECK COMPLETE\\n\""),
              std::string::npos);
    session.play("tab 0\ntype txtMaxTime 9");
    EXPECT_EQ(session.play("tab 8"), "");
    EXPECT_NE(shown("rtbValid").find("\\n\\nNo violations detected\\n\\nDATA VALIDATION CHECK COMPLETE\\n\""),
              std::string::npos);
    session.play("press cmdContinueValid\nfile RTR01.dat\npress cmdOpen\npress cmdData");
    EXPECT_EQ(shown("rtbValid"), "visible enabled \"\"");
}

TEST_F(RouterWindow, ChecksTheDepotsZoneOnlySinceAReportOrPlot) {
    onPage(0);
    session.play("type txtZone 5");
    EXPECT_EQ(session.play("tab 8"), "");
    session.play("press cmdContinueValid\npress cmdPlot\npress cmdContinuePlot\npress cmdData\ntab 0");
    EXPECT_EQ(session.play("tab 8"), "beep\n");
    session.play("tab 0\ntype txtZone 0");
    EXPECT_EQ(session.play("tab 8"), "beep\n");
    session.writeFile("ROUTE.DAT", plan);
    session.play("press cmdContinueValid\nanswer cancel\npress cmdSolve\nanswer A\npress cmdReport\n"
                 "press cmdContinue\npress cmdData\ntab 0");
    EXPECT_EQ(session.play("tab 8"), "");
}

TEST_F(RouterWindow, FillsDescriptionsAsNumbersAreTyped) {
    for (const auto& [page, grid] : {std::pair(3, "GridDist"), std::pair(6, "GridSpeeds")}) {
        session.play(page == 3 ? "press cmdData\ntab 3" : "tab 6");
        const std::string name = grid;
        session.play("insert " + name + "\ncell " + name + " 1 1 2\ncell " + name + " 1 3 0\ncell " + name +
                     " 1 5 7.5");
        EXPECT_EQ(session.grid(name).at(1), "1 | 2 | Quay | 0 | Depot | 7.5");
        session.play("cell " + name + " 1 1 3\ncell " + name + " 1 3 1");
        EXPECT_EQ(session.grid(name).at(1), "1 | 3 |  | 1 | Mill | 7.5");
        session.play("key " + name + " 27");
        EXPECT_EQ(session.grid(name).at(1), "1 | 3 |  |  | Depot | 7.5");
        session.play("cell " + name + " 1 2 Pier");
        EXPECT_EQ(session.grid(name).at(1), "1 | 3 | Pier |  | Depot | 7.5");
    }
}

TEST_F(RouterWindow, DescribesTheStopThatANumberIsRoundedTo) {
    onPage(3);
    session.play("insert GridDist\ncell GridDist 1 1 1.5\ncell GridDist 1 3 .5");
    EXPECT_EQ(session.grid("GridDist").at(1), "1 | 1.5 | Quay | .5 | Depot | ");
    session.play("press cmdContinueDist\nfile RTR02.dat\npress cmdSave");
    EXPECT_NE(session.readFile("RTR02.dat").find("\r\n1\r\n2,\"Quay\",0,\"Depot\",0\r\n"), std::string::npos);
    session.play("press cmdData\ncell GridDist 1 1 1E30\ncell GridDist 1 3 -1E30");
    EXPECT_EQ(session.grid("GridDist").at(1), "1 | 1E30 |  | -1E30 |  | 0");
}

TEST_F(RouterWindow, FillsNothingIntoAnEmptyTable) {
    onPage(3);
    EXPECT_EQ(session.play("current GridDist 1 1\nkey GridDist 50"),
              "MessageBx \"ROUTER\": \"Add a row before entering data.\"\n");
    EXPECT_EQ(session.grid("GridDist").at(1), "0 |  |  |  |  | ");
}

TEST_F(RouterWindow, TakesEnterInTheLastRowForAFurtherRow) {
    onPage(1);
    session.play("current GridStops 1 4\nkey GridStops 13");
    EXPECT_EQ(session.grid("GridStops").size(), 3U);
    session.play("current GridStops 2 4\nkey GridStops 13\nkey GridStops 65");
    EXPECT_EQ(session.grid("GridStops").at(3), "3 | A |  |  |  |  |  |  |  |  |  |  | ");
}

/// A problem whose tables lack one row each of their limits.
std::string almostFull() {
    std::string text = skeleton();
    text.resize(text.find("\r\n") + 2);
    const auto rows = [&text](int count, const std::string& row) {
        text += std::to_string(count) + "\r\n";
        for (int i = 0; i < count; ++i) text += row + "\r\n";
    };
    rows(mostStops - 1, "a,D,1,1,1,1,0,0,0,1,2,3");
    rows(mostVehicles - 1, "a,1,1,1,1,1,1,1,1,1");
    rows(mostLegs - 1, "1,a,2,b,3");
    rows(mostZones - 1, "1,2,3,4");
    rows(mostZoneSpeeds - 1, "1,2,3");
    rows(mostLegs - 1, "1,a,2,b,3");
    rows(mostBarriers - 1, "1,2,3,4,5,6,7,8");
    return text;
}

TEST_F(RouterWindow, RefusesRowsBeyondEachLimit) {
    const std::vector<std::pair<std::string, std::string>> tables = {
        {"GridStops", "\"ROUTER\": \"Too many rows.  Limit is 61\""},
        {"GridTrk", "\"ROUTER\": \"Too many rows.  Limit is 75\""},
        {"GridDist", "\"ROUTER\": \"Too many rows.  Limit is 1000\""},
        {"GridZones", "\"ROUTER\": \"Too many rows.  Limit is 1000\""},
        {"GridZnSpds", "\"ROUTER\": \"Too many rows.  Limit is 1000\""},
        {"GridSpeeds", "\"ROUTER\": \"Too many rows.  Limit is 1000\""},
        {"GridBar", "\"Add a Row\": \"Too many rows.  Limit is 25\""}};
    session.writeFile("RTR02.dat", almostFull());
    session.play("file RTR02.dat\npress cmdOpen\npress cmdData");
    int page = 0;
    for (const auto& [grid, message] : tables) {
        session.play("tab " + std::to_string(++page));
        const std::size_t lines = session.grid(grid).size();
        EXPECT_EQ(session.play("insert " + grid), "");
        EXPECT_EQ(session.play("current " + grid + " 1 1\npress cmdAdd"), "MessageBx " + message + "\n");
        EXPECT_EQ(session.play("insert " + grid), "MessageBx " + message + "\n");
        EXPECT_EQ(session.grid(grid).size(), lines + 1);
    }
}

TEST_F(RouterWindow, TellsOfTheLimitAtEachEnterInTheLastRow) {
    session.writeFile("RTR02.dat", almostFull());
    session.play("file RTR02.dat\npress cmdOpen");
    onPage(1);
    session.play("insert GridStops\ncurrent GridStops 61 3");
    for (int time = 1; time <= 2; ++time)
        EXPECT_EQ(session.play("key GridStops 13"),
                  "MessageBx \"ROUTER\": \"Too many rows.  Limit is 61\"\n");
    EXPECT_EQ(session.grid("GridStops").size(), 62U);
}

TEST_F(RouterWindow, SavesAsManyRowsAsThereAreBeyondTheLimit) {
    session.writeFile("RTR02.dat", almostFull());
    session.play("file RTR02.dat\npress cmdOpen");
    onPage(7);
    session.play("insert GridBar\ninsert GridBar\npress cmdContinueBar\nfile RTR02.dat\npress cmdSave");
    EXPECT_NE(session.readFile("RTR02.dat").find("\r\n25\r\n1,2,3,4,5,6,7,8\r\n"), std::string::npos);
    EXPECT_EQ(lines(session.play("file RTR02.dat\npress cmdOpen")).size(), 1U);
}

TEST_F(RouterWindow, AsksWhereARowGoesInItsOwnWords) {
    const std::string usual = "YesNoBx \"ROUTER\": \"Insert at end of list?  If NO, insertion is at the "
                              "designated grid row.\" -> Yes\n";
    const std::string stops =
        "YesNoBx \"ROUTER\": \"Insert at end of list?  If NO, insertion is at the designated "
        "GridStops row.\" -> Yes\n";
    const std::vector<std::pair<std::string, std::string>> tables = {
        {"GridStops", stops},  {"GridTrk", stops},    {"GridDist", usual}, {"GridZones", usual},
        {"GridZnSpds", stops}, {"GridSpeeds", usual}, {"GridBar", usual}};
    session.play("press cmdData");
    int page = 0;
    for (const auto& [grid, question] : tables) {
        session.play("tab " + std::to_string(++page));
        session.play("current " + grid + " 1 1");
        EXPECT_EQ(session.play("answer Yes\npress cmdAdd"), question) << grid;
        session.play("current " + grid + " 0 0");
        EXPECT_EQ(session.play("press cmdAdd"),
                  "MessageBx \"ROUTER\": \"Select a grid row before adding a record\"\n");
        EXPECT_EQ(session.play("press cmdDelete"), "MessageBx \"ROUTER\": \"Select a row to delete.\"\n");
    }
}

TEST_F(RouterWindow, ComputesColumnsOfStopsFromTheThirdOn) {
    onPage(1);
    for (const char* block : {"1 1 2 1", "1 2 2 2"})
        EXPECT_EQ(session.play("select GridStops " + std::string(block) + "\npress cmdArithStops"),
                  "MessageBx \"ROUTER\": \"Column arithmetic does not apply to this column\"\n");
    EXPECT_EQ(session.play("select GridStops 1 3 2 4\npress cmdArithStops"),
              "MessageBx \"ROUTER\": \"Highlight only one column\"\n");
    session.play("select GridStops 1 3 2 3\nanswer 2\nanswer 5\npress cmdArithStops");
    EXPECT_EQ(session.grid("GridStops").at(2),
              "2 | Quay | D | 205 | 4 | 0 | 448 | 0 | 0 | 0 | 9999 | 9999 | 9999");
}

TEST_F(RouterWindow, UndoesWhatWasTypedWhileTheEditorIsOpen) {
    onPage(1);
    session.play("cell GridStops 1 1 Bakery\ntab 0\ntype txtCorner NE\nundo\nundo");
    EXPECT_EQ(session.grid("GridStops").at(1),
              "1 | Mill | D | 100 | 4 | 632 | 0 | 0 | 0 | 0 | 9999 | 9999 | 9999");
    EXPECT_EQ(session.module().find("txtCorner")->shownText(), "SW");
    session.play("redo\npress cmdContinueStops");
    EXPECT_FALSE(session.module().canUndo());
    session.play("press cmdData");
    EXPECT_TRUE(session.module().canUndo());
}

TEST_F(RouterWindow, SavesBlanksAsTheFileHoldsThem) {
    onPage(1);
    session.play("insert GridStops\npress cmdContinueStops\nfile RTR02.dat\npress cmdSave");
    EXPECT_NE(session.readFile("RTR02.dat").find("\r\n3\r\n"), std::string::npos);
    EXPECT_NE(session.readFile("RTR02.dat").find("\r\n\" \",\"0\",0,0,0,0,0,0,0,0,0,0\r\n2\r\n"),
              std::string::npos);
}

TEST_F(RouterWindow, RefusesStopNumbersBeyondSixteenBits) {
    onPage(3);
    session.play("insert GridDist\ncell GridDist 1 1 40000\npress cmdContinueDist");
    EXPECT_EQ(session.play("file RTR02.dat\npress cmdSave").find("Overflow occurred in ROUTER, cmdSave."),
              std::string("SaveDialog \"Save vehicle routing & scheduling data\" filter \"Vehicle routing & "
                          "scheduling (RTR*.dat)|RTR*.dat|\" -> RTR02.dat\nMessageBx \"ROUTER\": \"")
                  .size());
    EXPECT_FALSE(session.fileExists("RTR02.dat"));
}

TEST_F(RouterWindow, LeadsToItsOwnSpreadsheet) {
    EXPECT_EQ(lines(session.play("press cmdExcel")).at(0),
              "MessageBx \"Information\": \"In EXCEL, open the template file RouterEdit.XLS in folder where "
              "VANTORE is installed.\"");
}

TEST_F(RouterWindow, PrintsItsData) {
    session.play("press cmdPrintData");
    const std::vector<std::string> printed = lines(session.play("printer"));
    ASSERT_GT(printed.size(), 5U);
    EXPECT_EQ(printed[1], "print \"ROUTER\" Arial 14 colour 0");
    EXPECT_EQ(printed[2], "print \"Vehicle routing and scheduling data base\" Arial 14 colour 0");
    EXPECT_EQ(printed[4],
              "print \"                         --PARAMETERS AND LABELS--\" Courier New 12 colour 0");
    EXPECT_EQ(printed[5], "print \"Problem label - Round\" Courier New 12 colour 0");
}

// Solve

TEST_F(RouterWindow, OffersReportsOnceASolveHasBegun) {
    EXPECT_EQ(shown("cmdReport"), "visible disabled \"Re&port\"");
    session.play("answer cancel\npress cmdSolve");
    EXPECT_EQ(shown("cmdReport"), "visible enabled \"Re&port\"");
    EXPECT_EQ(session.readFile("TEMP.DAT"), problem);
    session.play("file RTR01.dat\npress cmdOpen");
    EXPECT_EQ(shown("cmdReport"), "visible enabled \"Re&port\"");
}

TEST_F(RouterWindow, GoesOnWithTheOldRoutesWhereTheSolverCannotBeStarted) {
    session.writeFile("ROUTE.DAT", plan);
    EXPECT_EQ(session.play("answer 1\npress cmdSolve"),
              std::string(asked) + "\"1\"\nrun OPTMZR.EXE failed\n");
    EXPECT_EQ(session.module().view(), View::Plot);
    EXPECT_TRUE(drawn("line 604 434 36 30 colour 0"));
}

TEST_F(RouterWindow, WritesTheRoutesThatWereAnswered) {
    EXPECT_EQ(
        session.play("answer 2\nanswer 2\nanswer 2\nanswer 500\nanswer 1\nanswer 2,1\nanswer 1\nanswer "
                     "cancel\npress cmdSolve"),
        std::string(asked) +
            "\"2\"\nInputBx \"Specify routes\": \"How many routes will there be?\" [\"Enter number\"] -> "
            "\"2\"\nInputBx \"Vehicle type\": \"For route 1, the vehicle type is?\" [\"Enter type\"] -> "
            "\"2\"\nInputBx \"Starting time\": \"For route 1, the route starting time in minutes is?\" "
            "[\"Enter time in minutes\"] -> \"500\"\nInputBx \"Number of stops\": \"Number of stops on "
            "route 1 is?\" [\"Enter number of stops\"] -> \"1\"\nInputBx \"Stops\": \"The stops in sequence "
            "for route 1 are?\" [\"Enter stops, e.g. 2,3,5\"] -> \"2,1\"\nInputBx \"Vehicle type\": \"For "
            "route 2, the vehicle type is?\" [\"Enter type\"] -> \"1\"\nInputBx \"Starting time\": \"For "
            "route 2, the route starting time in minutes is?\" [\"Enter time in minutes\"] -> cancel\n");
    EXPECT_EQ(session.readFile("ROUTE.DAT"), "SPECIFIED\r\n1,1,200,2,1900,500\r\n2\r\n");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(RouterWindow, EndsWhereAnAnswerNamesNothing) {
    const std::string fault =
        "MessageBx \"ROUTER\": \"Subscript out of range occurred in ROUTER, cmdSolve.\"";
    const std::vector<std::string> answers = {
        "answer 3\nanswer 0\nanswer 1\nanswer 1",   // no such vehicle
        "answer 1\nanswer 0\nanswer 1\nanswer 3",   // no such stop
        "answer 1\nanswer 0\nanswer 2\nanswer 1",   // fewer stops than said
        "answer 1\nanswer 0\nanswer -1\nanswer 1",  // a count that can't be
        "answer 1\nanswer 0\nanswer 162\nanswer 1", // more stops than a route takes
    };
    for (const std::string& answer : answers) {
        EXPECT_EQ(lines(session.play("answer 2\nanswer 1\n" + answer + "\npress cmdSolve")).back(), fault)
            << answer;
        EXPECT_EQ(session.readFile("ROUTE.DAT"), "SPECIFIED\r\n");
    }
}

// Report

TEST_F(RouterWindow, ShowsItsReportInTwoFonts) {
    session.writeFile("ROUTE.DAT", plan);
    EXPECT_EQ(session.play("answer cancel\npress cmdSolve\nanswer First\npress cmdReport"),
              std::string(asked) + "cancel\n" + labelAsked + "\"First\"\n");
    const auto* report = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->lines().at(0),
              (ReportLine{" ROUTER SOLUTION REPORT", {"Arial", 12, false}, colour::lightBlue}));
    EXPECT_EQ(report->lines().at(1), (ReportLine{"Label- First", {"Courier New", 9, false}, colour::black}));
    EXPECT_EQ(shown("cmdContinue"), "visible enabled \"&Continue\"");
    EXPECT_TRUE(visible("cmdPrintRtb"));
    EXPECT_FALSE(visible("lblBarrierWarning"));
    session.play("press cmdContinue");
    EXPECT_TRUE(visible("cmdReport"));
    EXPECT_EQ(shown("cmdContinue"), "hidden enabled \"&Continue\"");
    session.play("file RTR01.dat\npress cmdOpen");
    EXPECT_EQ(shown("cmdContinue"), "hidden disabled \"&Continue\"");
}

TEST_F(RouterWindow, GoesBackToTheDataWithoutALabel) {
    session.writeFile("ROUTE.DAT", plan);
    session.play("answer cancel\npress cmdSolve");
    EXPECT_EQ(session.play("answer cancel\npress cmdReport"), std::string(labelAsked) + "cancel\n");
    EXPECT_EQ(session.module().view(), View::Data);
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(RouterWindow, TellsErrorsOfAReportWithTheirNumbers) {
    session.play("answer cancel\npress cmdSolve");
    session.writeFile("ROUTE.DAT", "x\n1,1,0,1,900,480\n3\n");
    EXPECT_EQ(session.play("answer A\npress cmdReport"),
              std::string(labelAsked) +
                  "\"A\"\nMessageBx \"ROUTER\": \"9 Subscript out of range occurred in ROUTER,cmdReport\"\n");
    session.writeFile("ROUTE.DAT", "");
    EXPECT_EQ(session.play("press cmdReport"),
              "MessageBx \"ROUTER\": \"62 Input past end of file occurred in ROUTER,cmdReport\"\n");
    session.writeFile("ROUTE.DAT", "x\n1,1,0,1,900,480\nMill\n");
    EXPECT_EQ(session.play("press cmdReport"),
              "MessageBx \"ROUTER\": \"13 Type mismatch occurred in ROUTER,cmdReport\"\n");
}

TEST_F(RouterWindow, BeepsForEachMissedWindow) {
    session.writeFile("ROUTE.DAT", plan);
    onPage(1);
    session.play(
        "cell GridStops 1 10 5\ncell GridStops 1 11 6\ncell GridStops 1 12 7\npress cmdContinueStops");
    EXPECT_EQ(session.play("answer cancel\npress cmdSolve\nanswer A\npress cmdReport"),
              std::string(asked) + "cancel\n" + labelAsked + "\"A\"\nbeep\n");
}

std::string manyRoutes(int count) {
    std::string text = "x\r\n";
    for (int r = 1; r <= count; ++r) text += std::to_string(r) + ",1,0,1,900,480\r\n1\r\n";
    return text;
}

TEST_F(RouterWindow, ReportsAndPlotsNoMoreThanTwoHundredRoutes) {
    session.play("answer cancel\npress cmdSolve");
    session.writeFile("ROUTE.DAT", manyRoutes(201));
    EXPECT_EQ(session.play("press cmdPlot"),
              "MessageBx \"ROUTER\": \"Too many routes to plot.  Revise problem.\"\n");
    EXPECT_EQ(session.module().view(), View::Data);
    session.play("answer A\npress cmdReport");
    EXPECT_EQ(session.report(),
              std::vector<std::string>{"** The number of routes exceeds 200. This report cannot be printed "
                                       "accurately. Revise the problem **"});
    session.play("press cmdContinue");
    session.writeFile("ROUTE.DAT", manyRoutes(200));
    EXPECT_EQ(session.play("press cmdPlot"), "");
    EXPECT_EQ(session.module().view(), View::Plot);
}

// Plot

TEST_F(RouterWindow, PlotsThePointsAloneWithoutRoutes) {
    EXPECT_EQ(session.play("press cmdPlot"), "");
    EXPECT_EQ(session.play("surface"),
              "box 29 427 42 440 colour 9 filled\ncircle 604 434 3 colour 12 filled\n"
              "circle 36 30 3 colour 12 filled\n");
    EXPECT_FALSE(visible("cmdSolve"));
    session.play("press cmdContinuePlot");
    EXPECT_TRUE(visible("cmdSolve"));
}

TEST_F(RouterWindow, ShowsAndHidesNumbersAndZones) {
    session.play("press cmdPlot\npress cmdStopId\npress cmdZonesPlot");
    EXPECT_TRUE(drawn("text 44 424 \"Depot\" Arial 8 colour 0"));
    EXPECT_TRUE(drawn("text 609 424 \"1\" Arial 8 colour 0"));
    EXPECT_TRUE(drawn("box 126 254 306 389 colour 15 filled"));
    EXPECT_TRUE(drawn("box 126 254 306 389 colour 9"));
    session.play("press cmdStopId\npress cmdZonesPlot");
    EXPECT_EQ(lines(session.play("surface")).size(), 3U);
    session.play("press cmdStopId\npress cmdContinuePlot\npress cmdPlot");
    EXPECT_EQ(lines(session.play("surface")).size(), 3U);
}

TEST_F(RouterWindow, ZoomsAndKeepsThePanForTheNextPlot) {
    session.play("press cmdPlot\nanswer +\npress cmdZoom\nanswer R\npress cmdZoom\nanswer d\npress cmdZoom");
    EXPECT_TRUE(drawn("circle 693 503 3 colour 12 filled"));
    EXPECT_EQ(
        session.play("answer \"\"\npress cmdZoom"),
        "InputBx \"Zoom control\": \"Change picture size:\\n+ to increase size\\n-  to decrease size\\nU to "
        "scroll up\\nD to scroll down\\nL to scroll left\\nR to scroll right\\nO to restore original picture "
        "size\" [\"Enter selection\"] -> \"\"\n");
    session.play("press cmdContinuePlot\npress cmdPlot");
    EXPECT_TRUE(drawn("circle 629 459 3 colour 12 filled"));
    auto& surface = dynamic_cast<PictureSurface&>(*session.module().find("picOut"));
    session.module().pan(surface, -1, -1);
    EXPECT_TRUE(drawn("circle 604 434 3 colour 12 filled"));
    session.module().zoom(surface, 1);
    EXPECT_TRUE(drawn("circle 668 478 3 colour 12 filled"));
}

TEST_F(RouterWindow, ClearsRoutesForGood) {
    session.writeFile("ROUTE.DAT", plan);
    session.play("press cmdPlot");
    EXPECT_TRUE(drawn("line 36 434 604 434 colour 0"));
    EXPECT_EQ(session.play("press cmdClrRoute"), "");
    EXPECT_EQ(lines(session.play("surface")).size(), 3U);
    EXPECT_FALSE(session.fileExists("ROUTE.DAT"));
    EXPECT_EQ(session.play("press cmdClrRoute"), "");
}

TEST_F(RouterWindow, TellsErrorsOfAPlotByItsName) {
    session.writeFile("ROUTE.DAT", "x\n1,1,0,1,900,480\n3\n");
    EXPECT_EQ(session.play("press cmdPlot"),
              "MessageBx \"ROUTER\": \"Subscript out of range occurred in cmdPlot of ROUTER\"\n");
    EXPECT_EQ(lines(session.play("answer 1\npress cmdSolve")).back(),
              "MessageBx \"ROUTER\": \"Subscript out of range occurred in cmdPlot of ROUTER\"");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(RouterWindow, WarnsOfStopsWithinABarrier) {
    session.writeFile("ROUTE.DAT", plan);
    onPage(7);
    session.play(
        "insert GridBar\npaste GridBar 600\\t20\\t700\\t20\\t600\\t-20\\t700\\t-20\npress cmdContinueBar");
    EXPECT_EQ(session.play("press cmdPlot"), "beep\nbeep\n");
    const std::string warning =
        "text 2 2 \"*** A POINT LIES WITHIN A BARRIER. CORRECT THIS. ***\" Arial 10 bold colour 12";
    EXPECT_TRUE(drawn(warning));
    EXPECT_EQ(session.play("answer O\npress cmdZoom").find("beep"), std::string::npos);
    EXPECT_TRUE(drawn(warning));
    session.play("press cmdClrRoute");
    EXPECT_FALSE(drawn(warning));
    session.writeFile("ROUTE.DAT", plan);
    session.play("press cmdContinuePlot\nanswer cancel\npress cmdSolve");
    EXPECT_EQ(session.play("answer A\npress cmdReport"), std::string(labelAsked) + "\"A\"\nbeep\nbeep\n");
    EXPECT_EQ(shown("lblBarrierWarning"),
              "visible enabled \"*** A POINT LIES WITHIN A BARRIER. CORRECT THIS. ***\"");
    EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{});
    session.play("press cmdContinue");
    onPage(7);
    session.play("current GridBar 1 1\npress cmdDelete\npress cmdContinueBar");
    EXPECT_EQ(session.play("answer A\npress cmdReport"), std::string(labelAsked) + "\"A\"\n");
    EXPECT_FALSE(visible("lblBarrierWarning"));
}

TEST_F(RouterWindow, AsksWhetherToPrintThePlot) {
    session.play("press cmdPlot");
    EXPECT_EQ(
        lines(session.play("answer No\npress cmdPrintPlot")).at(0),
        "YesNoBx \"ROUTER\": \"Select YES to print.  Alternately, choose NO to copy image to the clipboard\" "
        "-> No");
}

// Damaged files and places that can't be written

TEST_F(RouterWindow, MeetsADamagedPlanWithAMessageAtMost) {
    session.play("answer cancel\npress cmdSolve");
    for (const std::string& content : damagedForms(plan)) {
        session.writeFile("ROUTE.DAT", content);
        const std::vector<std::string> plotted = lines(session.play("press cmdPlot"));
        ASSERT_LE(plotted.size(), 1U) << content;
        if (plotted.empty()) {
            session.play("press cmdContinuePlot");
        } else {
            EXPECT_TRUE(plotted[0].starts_with("MessageBx \"ROUTER\": ")) << plotted[0];
        }
        EXPECT_EQ(session.module().view(), View::Data) << content;
        EXPECT_EQ(session.readFile("ROUTE.DAT"), content);
    }
}

bool isReadable(const std::string& content) {
    return errorOf([&] {
               ItemReader reader(decoded(content));
               readPlan(reader);
           }) == ErrorNumber{};
}

TEST_F(RouterWindow, ReportsADamagedPlanOrTellsWhyNot) {
    session.play("answer cancel\npress cmdSolve");
    int reports = 0;
    for (const std::string& content : damagedForms(plan)) {
        session.writeFile("ROUTE.DAT", content);
        const std::string told =
            session.play(isReadable(content) ? "answer A\npress cmdReport" : "press cmdReport");
        const bool reported = session.module().view() == View::Report;
        EXPECT_NE(reported, told.find(" occurred in ROUTER,cmdReport") != std::string::npos) << content;
        if (reported) session.play("press cmdContinue");
        reports += reported ? 1 : 0;
    }
    EXPECT_GT(reports, 0); // other line ends are no damage
}

TEST_F(RouterWindow, TellsOfAFullDiskAtEachOfItsFiles) {
    session.writeFile("ROUTE.DAT", plan);
    session.play("answer cancel\npress cmdSolve");
    const FullDisk full(16);
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"ROUTER\": \"Disk full occurred in ROUTER, cmdSolve.\"\n");
    EXPECT_EQ(lines(session.play("answer A\npress cmdReport")).back(),
              "MessageBx \"ROUTER\": \"61 Disk full occurred in ROUTER,cmdReport\"");
    EXPECT_EQ(session.module().view(), View::Data);
    EXPECT_EQ(session.readFile("ROUTE.DAT"), plan);
}

TEST_F(RouterWindow, TellsWhenRoutesCannotBeDeleted) {
    std::filesystem::create_directories(session.ioFolder() / "ROUTE.DAT" / "full");
    std::filesystem::rename(session.ioFolder() / "ROUTE.DAT", session.ioFolder() / "aside");
    session.play("press cmdPlot");
    std::filesystem::rename(session.ioFolder() / "aside", session.ioFolder() / "ROUTE.DAT");
    EXPECT_EQ(session.play("press cmdClrRoute"),
              "MessageBx \"ROUTER\": \"Path/File access error occurred in ROUTER, cmdClrRoute.\"\n");
}

} // namespace
} // namespace vantore::tests
