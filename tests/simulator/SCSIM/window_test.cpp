#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "script/script_platform.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "simulator/SCSIM/SCSim.h"
#include "suite/module_list.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

using namespace scsim;

constexpr const char* scsimHead = "MessageBx \"SCSIM\": \"";

/// A steady channel whose levels reorder specified quantities at a point.
Problem kettles() {
    Problem problem;
    problem.title = "Kettles";
    problem.seed = 4711;
    problem.years = 2;
    problem.averageDemand = 100;
    problem.demandDeviation = 20;
    problem.price = 30;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = 1;
    problem.dayProfile.fill(90);
    for (const Level level : allLevels) {
        LevelData& data = problem.levels(level);
        data = {10, 1, 40, 20, 1, 0, 95, 2};
        data.smoothingConstant = .2;
        data.averagedDays = 10;
        data.forecastFrequency = 180;
        data.reorderParameters = Parameters::Specified;
        data.reorderQuantity = 600;
        data.reorderPoint = 700;
        data.orderInterval = 7;
        data.targetLevel = 2000;
        data.targetDays = 14;
        data.reviewTime = 5;
        problem.lanes(level) = {.5, 2, 0};
    }
    problem.factory = {4, 300, .2, 2, 0, 1};
    return problem;
}

std::string fileOf(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

/// The simulator with a problem open.
class ScsimWindow : public testing::Test {
  protected:
    void open(const Problem& problem) { open(fileOf(problem)); }
    void open(const std::string& file) {
        session.writeFile("SIM01.dat", file);
        session.open("SCSIM", "SIM01.dat", "OpenF");
    }

    std::string play(const std::string& script) { return session.play(script); }

    bool reportEnabled() { return play("show Report").find("visible enabled") != std::string::npos; }
    bool shown(const std::string& control) {
        return play("show " + control).find(": visible") != std::string::npos;
    }

    /// The text of a box, wherever it stands.
    std::string textOf(const std::string& box) {
        const std::string line = play("show " + box);
        const std::size_t quote = line.find('"');
        return line.substr(quote + 1, line.rfind('"') - quote - 1);
    }

    /// A script that selects the page of a control.
    static std::string page(int number) { return "tab " + std::to_string(number) + "\n"; }

    ModuleSession session;
};

void expectNoFaults(ModuleSession& session, const std::string& where) {
    EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << where;
}

TEST(ScsimWindows, HaveNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 4> screens = {
        {{800, 600}, {1024, 768}, {1280, 1024}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession session(width, height);
        session.play("module SCSIM");
        expectNoFaults(session, "start");
        session.writeFile("SIM01.dat", fileOf(kettles()));
        session.play("file SIM01.dat\npress OpenF");
        for (int page = 0; page < 8; ++page) {
            session.play("tab " + std::to_string(page));
            expectNoFaults(session, "page " + std::to_string(page));
        }
        session.play("tab 0\npress optSpecDem");
        expectNoFaults(session, "specified demand");
        for (const std::string suffix : {"R", "D", "W"})
            for (const std::string option :
                 {"MAForcst", "SpecForcst", "PeriodicReview", "PRSpec", "StockToDemand"}) {
                session.play("tab " + std::to_string(1 + std::string("RDW").find(suffix)) + "\npress " +
                             option + suffix);
                expectNoFaults(session, option + suffix);
            }
        session.play("answer 3\npress PlotDemand");
        expectNoFaults(session, "demand plot");
        session.play("press Continue1\npress Report");
        expectNoFaults(session, "options");
        session.play("answer 1\nanswer 1\npress cmdReport");
        expectNoFaults(session, "report");
        session.play("press cmdReturn\nanswer 1\nanswer 1\nanswer 1\npress cmdPlot");
        expectNoFaults(session, "plot");
    }
}

// Opening

TEST_F(ScsimWindow, ShowsNothingButStartAndExitBeforeAFileIsOpen) {
    play("module SCSIM");
    for (const char* hidden : {"Save", "Solve", "Report", "cmdPrintData", "cmdExcel", "PlotDemand", "Seed",
                               "SimLgth", "TitleBox", "Folder1", "Continue1", "PrintDem"})
        EXPECT_FALSE(shown(hidden)) << hidden;
    EXPECT_EQ(
        play("show OpenF\nshow Exit1\ntitle"),
        "OpenF: visible enabled \"&Start\"\nExit1: visible enabled \"E&xit\"\nSupply Channel Simulation\n");
    EXPECT_EQ(play("press Exit1"), "");
    EXPECT_TRUE(session.closed());
}

TEST_F(ScsimWindow, OpensOnTheGeneralPage) {
    open(kettles());
    EXPECT_TRUE(shown("Channel"));
    EXPECT_EQ(play("show OpenF\ntitle"), "OpenF: visible enabled \"&Open\"\nSCSIM - <io>SIM01.dat\n");
    EXPECT_FALSE(reportEnabled());
    EXPECT_TRUE(shown("Report"));
}

TEST_F(ScsimWindow, ShowsTheTwelveIndicesAndTheTypicalYear) {
    Problem problem = kettles();
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = month / 10.0;
    for (int day = 1; day <= daysPerYear; ++day) problem.dayProfile(day) = day;
    open(problem);
    EXPECT_EQ(
        session.grid("IndexGrid"),
        (std::vector<std::string>{" |  |  | ", "Month | 1 | 2 | 3", "Index | .1 | .2 | .3",
                                  "Month | 4 | 5 | 6", "Index | .4 | .5 | .6", "Month | 7 | 8 | 9",
                                  "Index | .7 | .8 | .9", "Month | 10 | 11 | 12", "Index | 1 | 1.1 | 1.2"}));
    const std::vector<std::string> demand = session.grid("DemGrid");
    ASSERT_EQ(demand.size(), 25U);
    EXPECT_TRUE(demand[1].starts_with("Mon. | 1 | 2 | 3 |"));
    EXPECT_TRUE(demand[2].starts_with("Demand | 1 | 2 | 3 |"));
    EXPECT_TRUE(demand[2].ends_with("| 29 | 30"));
    EXPECT_TRUE(demand[23].ends_with("| 29 | 30"));
    EXPECT_TRUE(demand[24].starts_with("Demand | 331 | 332 |"));
    EXPECT_TRUE(demand[24].ends_with("| 359 | 360"));
}

TEST_F(ScsimWindow, TellsOfAMissingFileAndMakesNone) {
    play("module SCSIM");
    const std::string told = play("file SIM09.dat\npress OpenF");
    EXPECT_TRUE(told.ends_with("MessageBx \"SCSIM\": \"File not found occurred in SCSIM, OpenF.\"\n"))
        << told;
    EXPECT_FALSE(session.fileExists("SIM09.dat"));
    EXPECT_FALSE(shown("Solve"));
}

/// The first three lines fill their boxes; the others keep what the file before has left.
TEST_F(ScsimWindow, KeepsWhatAShortFileHasFilled) {
    open(kettles());
    session.writeFile("SIM02.dat", "\"Short\"\r\n7,3,50,5,1,9\r\n2\r\n3\r\n");
    const std::string told = play("file SIM02.dat\npress OpenF");
    EXPECT_TRUE(
        told.ends_with("MessageBx \"SCSIM\": \"Input past end of file occurred in SCSIM, OpenF.\"\n"));
    EXPECT_EQ(textOf("TitleBox"), "Short");
    EXPECT_EQ(textOf("Seed"), "7");
    EXPECT_EQ(textOf("txtPrice"), "9");
    EXPECT_EQ(session.grid("IndexGrid")[2], "Index | 2 | 3 | 1");
    EXPECT_TRUE(session.grid("DemGrid")[2].starts_with("Demand | 90 |"));
    EXPECT_EQ(textOf("txtItemCostR"), "10");
    EXPECT_TRUE(shown("Solve"));
}

TEST_F(ScsimWindow, ShowsADemandProfileOnlyWhenItIsRead) {
    open(kettles());
    std::string file = fileOf(kettles());
    file = replaced(file.substr(0, file.find("\r\n90\r\n") + 100 * 4), "\r\n90", "\r\n77");
    session.writeFile("SIM02.dat", file);
    play("file SIM02.dat\npress OpenF");
    EXPECT_TRUE(session.grid("DemGrid")[2].starts_with("Demand | 90 |"));
}

TEST_F(ScsimWindow, OffersReportsOnceAFileHasBeenReadWhole) {
    session.writeFile("SIM02.dat", "\"Short\"");
    session.open("SCSIM", "SIM02.dat", "OpenF");
    EXPECT_FALSE(shown("Report"));
    session.writeFile("SIM01.dat", fileOf(kettles()));
    play("file SIM01.dat\npress OpenF");
    EXPECT_TRUE(shown("Report"));
}

TEST_F(ScsimWindow, SurvivesEveryDamagedFile) {
    play("module SCSIM");
    const std::vector<std::string> forms = damagedForms(fileOf(kettles()));
    for (std::size_t i = 0; i < forms.size(); i += 7) {
        session.writeFile("SIM02.dat", forms[i]);
        play("file SIM02.dat\npress OpenF\ntab 0");
        EXPECT_EQ(session.readFile("SIM02.dat"), forms[i]);
    }
}

// Limits

struct LimitCase {
    int page;
    const char* options; ///< pressed so that the box is shown
    const char* box;
    const char* below;
    const char* passing;
    const char* reset;
    const char* told; ///< empty where nothing is
};

std::vector<LimitCase> limitCases() {
    std::vector<LimitCase> cases = {
        {0, "optGenDem", "DemText", ".99", "1", "1", ""},
        {0, "optGenDem", "SDText", "-.01", "0", "0", ""},
        {0, "optGenDem", "GroText", "-1", "0", "0", ""},
        {0, "optSpecDem", "SpecGroText", "-1", "0", "0", ""},
        {1, "", "txtAvgFillTimeR", ".9", "1", "1", "Customer order fill time must be at least 1 day."},
        {2, "", "txtAvgFillTimeD", "0", "1", "1", "Retailer order fill time must be at least 1 day."},
        {3, "", "txtAvgFillTimeW", "", "1", "1", "Distributor order fill time must be at least 1 day."},
        {4, "", "txtAvgProdTimeP", "x", "1", "1", "Production time must be at least 1 day."},
        {7, "", "txtAvgTrnsTimeDR", ".5", "1", "1", "Transit time must be at least 1 day."},
        {7, "", "txtAvgTrnsTimeWD", ".5", "1", "1", "Transit time must be at least 1 day."},
        {7, "", "txtAvgTrnsTimeFW", ".5", "1", "1", "Transit time must be at least 1 day."},
        {4, "", "txtLotSize", ".5", "1", "1", ""},
        {4, "", "txtProdTimeSDP", "-1", "0", "0", ""},
        {6, "", "SimLgth", ".99", "1", " 1", "The simulation must be at least one year in length."},
        {6, "", "SimLgth", "20.01", "20", " 20", "The simulation cannot run longer than 20 years."},
    };
    constexpr std::array<std::array<const char*, 7>, 3> levels = {
        {{"EPForcstR", "MAForcstR", "SpecForcstR", "txtSmConsR", "txtNoPeriodsR", "txtForFreqR",
          "txtServLvlR"},
         {"EPForcstD", "MAForcstD", "SpecForcstD", "txtSmConsD", "txtNoPeriodsD", "txtForFreqD",
          "txtServLvlD"},
         {"EPForcstW", "MAForcstW", "SpecForcstW", "txtSmConsW", "txtNoPeriodsW", "txtForFreqW",
          "txtServLvlW"}}};
    constexpr std::array<const char*, 3> deviations = {"txtFillTimeSDR", "txtFillTimeSDD", "txtFillTimeSDW"};
    for (int k = 0; k < 3; ++k) {
        const auto& names = levels.at(static_cast<std::size_t>(k));
        cases.push_back({k + 1, names[0], names[3], "-.1", "1.7", "0", ""});
        cases.push_back({k + 1, names[1], names[4], "0", "1", "1", ""});
        cases.push_back({k + 1, names[2], names[5], "0", "1", "1", ""});
        cases.push_back({k + 1, "", names[6], "49.9", "50", "50", ""});
        cases.push_back({k + 1, "", deviations.at(static_cast<std::size_t>(k)), "-1", "0", "0", ""});
    }
    return cases;
}

TEST_F(ScsimWindow, SetsValuesBelowTheirLimitsBack) {
    open(kettles());
    for (const LimitCase& each : limitCases()) {
        play(page(each.page) + (*each.options == 0 ? "" : std::string("press ") + each.options));
        EXPECT_EQ(play(std::string("type ") + each.box + " " + each.passing), "") << each.box;
        EXPECT_EQ(textOf(each.box), each.passing);
        const std::string told = play(std::string("type ") + each.box + " \"" + each.below + "\"");
        EXPECT_EQ(told, *each.told == 0 ? "" : scsimHead + std::string(each.told) + "\"\n") << each.box;
        EXPECT_EQ(textOf(each.box), each.reset) << each.box;
    }
}

TEST_F(ScsimWindow, HasNoLimitsOnOtherFields) {
    open(kettles());
    EXPECT_EQ(play("tab 7\ntype txtTrnsTimeSDDR -3\ntype txtTransCostFW -3\ntab 1\ntype txtItemCostR -3\n"
                   "type txtROPR -3\ntab 6\ntype txtPrice -3\ntab 4\ntype txtItemCostP -3"),
              "");
    EXPECT_EQ(textOf("txtTrnsTimeSDDR"), "-3");
    EXPECT_EQ(textOf("txtROPR"), "-3");
}

TEST_F(ScsimWindow, TellsOfANumberBeyondTheRange) {
    open(kettles());
    EXPECT_EQ(play("tab 0\ntype DemText 1E400"),
              "MessageBx \"SCSIM\": \"Overflow occurred in SCSIM, DemText.\"\n");
}

// What makes results stale

TEST_F(ScsimWindow, OffersTheReportUntilAnInputChanges) {
    open(kettles());
    EXPECT_FALSE(reportEnabled());
    play("press Solve");
    EXPECT_TRUE(reportEnabled());
    for (const char* change :
         {"tab 6\ntype Seed 4711", "tab 6\ntype SimLgth 2", "tab 6\ntype txtPrice 30",
          "tab 0\ntype DemText 100", "tab 0\npress optGenDem", "tab 1\ntype txtItemCostR 10",
          "tab 1\npress EPForcstR", "tab 1\npress ROPSpecR", "tab 1\npress ReorderPointR",
          "tab 2\ntype txtROPD 700", "tab 2\ntype txtROPQuantD 600", "tab 3\ntype txtROPW 700",
          "tab 1\npress StockToDemandR\ntype txtSToDR 14", "tab 4\ntype txtPurCost 1",
          "tab 7\ntype txtTransCostDR 1", "tab 7\ntype txtTrnsTimeSDFW 0", "tab 0\ncell IndexGrid 2 1 1",
          "tab 0\ncurrent IndexGrid 2 1\nkey IndexGrid 27", "tab 0\npress optSpecDem\ncell DemGrid 2 1 90"}) {
        play(std::string(change) + "\ntab 5");
        EXPECT_FALSE(reportEnabled()) << change;
        play("tab 0\npress optGenDem\ncell IndexGrid 2 1 1\npress Solve");
        EXPECT_TRUE(reportEnabled()) << change;
    }
}

TEST_F(ScsimWindow, KeepsTheResultsWhereNothingReacts) {
    open(kettles());
    play("tab 2\npress StockToDemandD\ntab 3\npress StockToDemandW\npress Solve");
    for (const char* change :
         {"tab 6\ntype TitleBox Other", "tab 1\ntype txtROPR 1", "tab 1\ntype txtROPQuantR 1",
          "tab 2\ntype txtSToDD 3", "tab 3\ntype txtSToDW 3",
          "tab 0\ncurrent IndexGrid 1 1\nkey IndexGrid 53", "tab 0\ncurrent IndexGrid 2 1\nkey IndexGrid 44",
          "tab 0\ncurrent IndexGrid 2 1\nkey IndexGrid 34",
          "tab 0\ncurrent IndexGrid 2 1\nkey IndexGrid 13"}) {
        play(change);
        EXPECT_TRUE(reportEnabled()) << change;
    }
}

TEST_F(ScsimWindow, TakesKeysInValueRowsAlone) {
    open(kettles());
    play("tab 0\ncell IndexGrid 3 2 9\ncell IndexGrid 4 2 1.25\ncell IndexGrid 8 3 7");
    EXPECT_EQ(session.grid("IndexGrid")[3], "Month | 4 | 5 | 6");
    EXPECT_EQ(session.grid("IndexGrid")[4], "Index | 1 | 1.25 | 1");
    EXPECT_EQ(session.grid("IndexGrid")[8], "Index | 1 | 1 | 7");
    play("current IndexGrid 4 2\nkey IndexGrid 8");
    EXPECT_EQ(session.grid("IndexGrid")[4], "Index | 1 | 1.2 | 1");
}

// Options

TEST_F(ScsimWindow, ShowsTheBoxesOfTheDemandInUse) {
    open(kettles());
    play("tab 0");
    for (const char* generated : {"DemText", "lblDemText", "SDText", "GroText", "IndexGrid", "lblIndexGrid"})
        EXPECT_TRUE(shown(generated)) << generated;
    for (const char* specified : {"SpecGroText", "lblSpecGroText", "DemGrid", "lblDemGrid"})
        EXPECT_FALSE(shown(specified)) << specified;
    play("press optSpecDem");
    for (const char* generated : {"DemText", "lblDemText", "SDText", "GroText", "IndexGrid", "lblIndexGrid"})
        EXPECT_FALSE(shown(generated)) << generated;
    for (const char* specified : {"SpecGroText", "lblSpecGroText", "DemGrid", "lblDemGrid"})
        EXPECT_TRUE(shown(specified)) << specified;
}

TEST_F(ScsimWindow, ShowsTheBoxesOfTheMethodAndThePolicyInUse) {
    open(kettles());
    for (const std::string suffix : {"R", "D", "W"}) {
        play("tab " + std::to_string(1 + std::string("RDW").find(suffix)));
        const auto shows = [&](const std::vector<std::string>& visible,
                               const std::vector<std::string>& hidden) {
            for (const std::string& name : visible) EXPECT_TRUE(shown(name + suffix)) << name + suffix;
            for (const std::string& name : hidden) EXPECT_FALSE(shown(name + suffix)) << name + suffix;
        };
        shows({"txtSmCons", "lblSmCons"}, {"txtNoPeriods", "lblNoPeriods", "txtForFreq"});
        play("press MAForcst" + suffix);
        shows({"txtNoPeriods", "lblNoPeriods"}, {"txtSmCons", "txtForFreq", "lblForFreq"});
        play("press SpecForcst" + suffix);
        shows({"txtForFreq", "lblForFreq"}, {"txtSmCons", "txtNoPeriods"});
        shows({"ROPFrame", "txtROP", "lblROP", "txtROPQuant", "lblROPQuant"},
              {"PRFrame", "txtSToD", "txtStoDRevTime"});
        play("press PeriodicReview" + suffix);
        shows({"PRFrame", "txtPROrdInt", "txtPRMaxLvl"}, {"ROPFrame", "txtROP", "txtSToD"});
        EXPECT_NE(play("show PRCal" + suffix).find("selected"), std::string::npos);
        EXPECT_EQ(textOf("txtPROrdInt" + suffix), "xxx");
        EXPECT_EQ(textOf("txtPRMaxLvl" + suffix), "xxx");
        play("press StockToDemand" + suffix);
        shows({"txtSToD", "lblSToD", "txtStoDRevTime", "lblStoDRevTime"}, {"ROPFrame", "PRFrame"});
        play("press ReorderPoint" + suffix);
        EXPECT_EQ(textOf("txtROP" + suffix), "700");
        play("press ROPCal" + suffix);
        EXPECT_EQ(textOf("txtROP" + suffix), "xxx");
        EXPECT_EQ(textOf("txtROPQuant" + suffix), "xxx");
        play("type txtROP" + suffix + " 5\npress ROPSpec" + suffix);
        EXPECT_EQ(textOf("txtROP" + suffix), "5");
    }
}

TEST_F(ScsimWindow, SelectsAsTheFileSays) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).forecast = ForecastMethod::MovingAverage;
    problem.levels(Level::Distributor).policy = Policy::PeriodicReview;
    problem.levels(Level::Distributor).reviewParameters = Parameters::Specified;
    problem.levels(Level::Warehouse).policy = Policy::StockToDemand;
    open(problem);
    for (const char* selected : {"MAForcstR", "ROPSpecR", "PeriodicReviewD", "PRSpecD", "StockToDemandW"})
        EXPECT_NE(play(std::string("show ") + selected).find(" selected "), std::string::npos) << selected;
    for (const char* cleared : {"EPForcstR", "ROPCalR", "PRCalD", "ReorderPointD", "ReorderPointW"})
        EXPECT_EQ(play(std::string("show ") + cleared).find(" selected "), std::string::npos) << cleared;
    EXPECT_EQ(textOf("txtPROrdIntD"), "7");
}

/// What no flag selects is cleared; the boxes that were shown stay.
TEST_F(ScsimWindow, ClearsOptionsThatAFileDoesntSelect) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).forecast = ForecastMethod::None;
    problem.levels(Level::Retailer).policy = Policy::None;
    open(problem);
    play("tab 1");
    for (const char* cleared : {"EPForcstR", "MAForcstR", "SpecForcstR", "ReorderPointR"})
        EXPECT_EQ(play(std::string("show ") + cleared).find(" selected "), std::string::npos) << cleared;
    EXPECT_TRUE(shown("txtSmConsR"));
    EXPECT_TRUE(shown("ROPFrameR"));
}

// Solve

std::vector<std::string> traceOf(const ModuleSession& session) {
    return lines(session.readFile("RESULTS"));
}

TEST_F(ScsimWindow, WritesTheTraceOfTheRun) {
    open(kettles());
    play("press Solve");
    const std::vector<std::string> trace = traceOf(session);
    ASSERT_EQ(trace.size(), 2U + 720U);
    EXPECT_TRUE(trace[1].starts_with("\"Day\",\"Demand\""));
    EXPECT_TRUE(trace[2].starts_with("1,"));
    EXPECT_TRUE(trace.back().starts_with("720,"));
    EXPECT_NE(session.readFile("RESULTS").find("\r\n"), std::string::npos);
}

TEST_F(ScsimWindow, ShowsAndSavesCalculatedParameters) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).reorderParameters = Parameters::Calculated;
    problem.levels(Level::Distributor).policy = Policy::PeriodicReview;
    problem.levels(Level::Distributor).reviewParameters = Parameters::Calculated;
    open(problem);
    play("press Solve\nfile SIM02.dat\npress Save");
    EXPECT_NE(textOf("txtROPR"), "700");
    ItemReader reader(session.readFile("SIM02.dat"));
    const Problem saved = read(reader);
    EXPECT_GT(saved.levels(Level::Retailer).reorderPoint, 100);
    EXPECT_GT(saved.levels(Level::Retailer).reorderQuantity, 100);
    EXPECT_GT(saved.levels(Level::Distributor).orderInterval, 1);
    EXPECT_GT(saved.levels(Level::Distributor).targetLevel, 100);
    EXPECT_EQ(textOf("txtROPQuantW"), "600");
}

TEST_F(ScsimWindow, RunsTheSameAgain) {
    Problem problem = kettles();
    problem.levels(Level::Distributor).averageFillTime = 3;
    problem.levels(Level::Distributor).fillTimeDeviation = 2;
    open(problem);
    play("press Solve");
    const std::string first = session.readFile("RESULTS");
    play("press Solve");
    EXPECT_EQ(session.readFile("RESULTS"), first);
    play("tab 6\ntype Seed 1\npress Solve");
    EXPECT_NE(session.readFile("RESULTS"), first);
}

Problem askingForForecasts() {
    Problem problem = kettles();
    problem.years = 1;
    problem.levels(Level::Distributor).forecast = ForecastMethod::Specified;
    return problem;
}

TEST_F(ScsimWindow, AsksForSpecifiedForecasts) {
    open(askingForForecasts());
    EXPECT_EQ(play("answer 90\nanswer 95\nanswer abc\nanswer 1E2\npress Solve"),
              "InputBx \"\": \"Forecast of distributor average daily demand in units to initialize "
              "simulation.\" [\"\"] "
              "-> \"90\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day "
              "-179 into simulation\" [\"\"] -> \"95\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day  1 "
              "into simulation\" [\"\"] -> \"abc\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day  "
              "181 into simulation\" [\"\"] -> \"1E2\"\n");
    EXPECT_TRUE(reportEnabled());
    EXPECT_EQ(textOf("lblYear"), "");
}

TEST_F(ScsimWindow, StopsWhereAForecastIsCancelled) {
    open(askingForForecasts());
    play("answer 90\nanswer 95\nanswer 97\nanswer cancel\npress Solve");
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U + 179U);
    play("answer \"\"\npress Solve");
    EXPECT_EQ(traceOf(session).size(), 2U);
}

/// Answers every forecast prompt with 90, having looked at the day that the window tells.
class WatchingUser : public ScriptPlatform {
  public:
    explicit WatchingUser(std::ostream& out) : ScriptPlatform(out, 800, 600, false) {}

    void showModal(DialogForm& dialog) override {
        days.push_back(year->caption);
        queueAnswer({ScriptAnswer::Kind::Text, "90"});
        ScriptPlatform::showModal(dialog);
    }

    const Control* year = nullptr;
    std::vector<std::string> days;
};

TEST(ScsimRun, ShowsTheDayWhileItAsks) {
    const TemporaryFolder folder;
    std::ostringstream transcript;
    WatchingUser user(transcript);
    Platform parts = user.parts();
    Suite suite(parts, moduleList());
    suite.ioFolder = textOf(folder.path()) + "/";
    replaceFile(folder.path() / "SIM01.dat", fileOf(askingForForecasts()));
    suite.windows.open(std::make_unique<SCSim>(suite));
    Form& form = *suite.windows.front();
    user.year = form.find("lblYear");
    user.queueFile("SIM01.dat");
    form.press(*form.find("OpenF"));
    form.press(*form.find("Solve"));
    EXPECT_EQ(user.days, (std::vector<std::string>{"Warming up, day 1", "Warming up, day 180",
                                                   "Warming up, day 360", "Simulated year 1, day 180"}));
    EXPECT_EQ(user.year->caption, "");
}

Problem endlessOrders() {
    Problem problem = kettles();
    problem.levels(Level::Retailer).reorderQuantity = 0;
    return problem;
}

TEST_F(ScsimWindow, AsksWhetherToOrderOn) {
    open(endlessOrders());
    const std::string told = play("answer Yes\nanswer No\npress Solve");
    EXPECT_TRUE(told.starts_with("YesNoBx \"SCSIM\": \"Long computational times are being encountered"));
    EXPECT_NE(told.find("as to \\n\\n(1) the demand standard deviation,\\n(2) the in-stock"),
              std::string::npos);
    EXPECT_TRUE(told.ends_with("for a while longer?\" -> No\n"));
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 2);
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U);
}

TEST_F(ScsimWindow, StopsWhereTheQuestionIsClosed) {
    open(endlessOrders());
    play("answer close\npress Solve");
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U);
}

TEST_F(ScsimWindow, LeavesTheReportAsItIsWhereARunStops) {
    open(askingForForecasts());
    play("answer 90\nanswer 95\nanswer 97\nanswer 98\npress Solve\nanswer cancel\npress Solve");
    EXPECT_TRUE(reportEnabled());
}

TEST_F(ScsimWindow, TellsARunTimeErrorAndKeepsTheTraceUpToIt) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).averageFillTime = 8990; // day 11 is due beyond day 9000
    open(problem);
    EXPECT_EQ(play("press Solve"),
              "MessageBx \"SCSIM\": \"Subscript out of range occurred in Solve, SCSIM.\"\n");
    EXPECT_EQ(traceOf(session).size(), 2U + 10U);
    EXPECT_FALSE(reportEnabled());
}

TEST_F(ScsimWindow, TellsWhereTheTraceCannotBeWritten) {
    open(kettles());
    std::filesystem::create_directory(session.ioFolder() / "RESULTS");
    EXPECT_EQ(play("press Solve"),
              "MessageBx \"SCSIM\": \"Path/File access error occurred in Solve, SCSIM.\"\n");
    EXPECT_FALSE(reportEnabled());
}

TEST_F(ScsimWindow, TellsAFullDisk) {
    open(kettles());
    std::filesystem::create_symlink("/dev/full", session.ioFolder() / "RESULTS");
    EXPECT_EQ(play("press Solve"), "MessageBx \"SCSIM\": \"Disk full occurred in Solve, SCSIM.\"\n");
    EXPECT_FALSE(reportEnabled());
}

// Undo

TEST_F(ScsimWindow, TakesARunBackWithItsParameters) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).reorderParameters = Parameters::Calculated;
    problem.levels(Level::Retailer).reorderPoint = 0;
    open(problem);
    play("press Solve");
    EXPECT_NE(textOf("txtROPR"), "0");
    play("undo");
    EXPECT_EQ(textOf("txtROPR"), "0");
    EXPECT_FALSE(reportEnabled());
}

TEST_F(ScsimWindow, ShowsTheBoxesThatBelongToWhatUndoPutsBack) {
    open(kettles());
    play("tab 1\npress MAForcstR\npress StockToDemandR\ntab 0\npress optSpecDem\nundo");
    EXPECT_TRUE(shown("DemText"));
    play("undo\ntab 1");
    EXPECT_TRUE(shown("ROPFrameR"));
    play("undo");
    EXPECT_TRUE(shown("txtSmConsR"));
    play("redo\ntab 1");
    EXPECT_TRUE(shown("txtNoPeriodsR"));
}

// Save and leave

TEST_F(ScsimWindow, SavesWhatIsTypedAsNumbers) {
    open(kettles());
    play("tab 6\ntype TitleBox The \"best\" kettles\ntype txtPrice 1E2x\ntab 0\ncell IndexGrid 2 2 n/a");
    const std::string told = play("file KETTLE.dat\nfile sim2.dat\npress Save");
    EXPECT_NE(told.find("MessageBx \"SCSIM\": \"Use the prefix SIM on the file name.\""), std::string::npos);
    const std::vector<std::string> file = lines(session.readFile("sim2.dat"));
    EXPECT_EQ(file[0], "\"The 'best' kettles\"");
    EXPECT_EQ(file[1], "4711,2,100,20,0,100");
    EXPECT_EQ(file[3], "0");
    EXPECT_EQ(play("title"), "SCSIM - <io>sim2.dat\n");
}

TEST_F(ScsimWindow, SavesUnderNamesWithBlanksAndOtherLetters) {
    open(kettles());
    play("file sim kettles größe.dat\npress Save");
    EXPECT_EQ(session.readFile("sim kettles größe.dat"), fileOf(kettles()));
}

TEST_F(ScsimWindow, AsksToSaveWhenItIsLeft) {
    open(kettles());
    EXPECT_EQ(play("answer No\npress Exit1"), "YesNoBx \"SCSIM\": \"Save data?\" -> No\n");
    EXPECT_TRUE(session.closed());
}

// Demand plot

constexpr const char* demandQuestion = "InputBx \"SCSIM\": \"Select time period for demand plot:\\n(1) "
                                       "Daily\\n(2) Weekly\\n(3) Monthly\" [\"3\"] -> ";

TEST_F(ScsimWindow, PlotsTheDemand) {
    Problem problem = kettles();
    problem.demandDeviation = 0;
    open(problem);
    EXPECT_EQ(play("answer 3\npress PlotDemand"), std::string(demandQuestion) + "\"3\"\n");
    const std::vector<std::string> chart = lines(play("chart"));
    EXPECT_EQ(chart[0], "chart \"STATISTICALLY GENERATED MONTHLY DEMAND PATTERN\"");
    EXPECT_EQ(chart[1], "x \"Simulated time, months\" 0 25");
    EXPECT_EQ(chart[2], "y \"Units\" 0 3000");
    EXPECT_TRUE(chart[3].starts_with("series \"\" line colour 12: (0,0) (1,3000) (2,3000)"));
    for (const char* hidden : {"Folder1", "Save", "OpenF", "Solve", "PlotDemand", "Seed"})
        EXPECT_FALSE(shown(hidden)) << hidden;
    for (const char* visible : {"Continue1", "PrintDem", "GraphDemand", "Report", "Exit1"})
        EXPECT_TRUE(shown(visible)) << visible;
    EXPECT_FALSE(reportEnabled());
    play("press Continue1");
    EXPECT_TRUE(reportEnabled());
    EXPECT_TRUE(shown("Folder1"));
    EXPECT_FALSE(shown("GraphDemand"));
}

TEST_F(ScsimWindow, AsksForThePeriodOfTheDemandPlotUntilItIsOne) {
    open(kettles());
    const std::string question = demandQuestion;
    EXPECT_EQ(play("answer 4\nanswer 2\npress PlotDemand"),
              question + "\"4\"\n" + scsimHead + "Incorrect input. Try again.\"\n" + question + "\"2\"\n");
    EXPECT_EQ(lines(play("chart"))[1], "x \"Simulated time, weeks\" 0 103");
    play("press Continue1\nanswer cancel\npress PlotDemand");
    EXPECT_TRUE(shown("Folder1"));
    EXPECT_TRUE(reportEnabled());
}

TEST_F(ScsimWindow, GoesOnWithTheRandomNumbersFromPlotToPlot) {
    open(kettles());
    const auto plot = [this] {
        play("answer 1\npress PlotDemand");
        const std::string chart = play("chart");
        play("press Continue1");
        return chart;
    };
    const std::string first = plot();
    EXPECT_NE(plot(), first);
    play("tab 6\ntype Seed 4711");
    EXPECT_EQ(plot(), first);
}

TEST_F(ScsimWindow, PrintsTheDemandPlot) {
    open(kettles());
    play("answer 1\npress PlotDemand");
    EXPECT_NE(play("answer Yes\npress PrintDem\nprinter").find("picture "), std::string::npos);
    EXPECT_NE(play("answer No\npress PrintDem\nclipboard").find("clipboard: picture 640x480"),
              std::string::npos);
}

TEST_F(ScsimWindow, PrintsTheDatabase) {
    open(kettles());
    const std::vector<std::string> printed = lines(play("press cmdPrintData\nprinter"));
    EXPECT_EQ(printed[0],
              "print \"                              SIMULATION DATABASE\" Times Roman 10 colour 0");
    EXPECT_EQ(printed[2], "print \"Title: Kettles\" Times Roman 10 colour 0");
    EXPECT_EQ(printed.back(), "end");
}

// Reports

class ScsimReports : public ScsimWindow {
  protected:
    ScsimReports() {
        open(kettles());
        play("press Solve\npress Report");
    }

    std::string plotted(const std::string& choices,
                        const std::string& answers = "answer 3\nanswer 1\nanswer 2\n") {
        play("press cmdContinue\npress Report\n" + choices + "\n" + answers + "press cmdPlot");
        return lines(play("chart"))[0];
    }
};

TEST_F(ScsimReports, BeginWithTheChannel) {
    EXPECT_EQ(play("title"), "Simulation results\n");
    for (const char* selected : {"SCRepOpt", "SCOpt", "SalesOpt"})
        EXPECT_NE(play(std::string("show ") + selected).find(" selected "), std::string::npos) << selected;
    for (const char* hidden : {"SumReport", "PerfGph", "cmdPrint", "cmdReturn"})
        EXPECT_FALSE(shown(hidden)) << hidden;
}

TEST_F(ScsimReports, ShowAReportWithItsFile) {
    EXPECT_EQ(play("press WhseRepOpt\nanswer 2\nanswer 2\npress cmdReport"),
              "InputBx \"SCSIM\": \"The report is to begin with year?\" [\"1\"] -> \"2\"\n"
              "InputBx \"SCSIM\": \"The report is to end with year?\" [\"2\"] -> \"2\"\n");
    const std::vector<std::string> file = lines(session.readFile("OUTPUT.DAT"));
    std::vector<std::string> shownLines = session.report();
    ASSERT_EQ(shownLines.size(), file.size());
    EXPECT_EQ(file[0], "* WAREHOUSE REPORT FOR SIMULATED YEAR 2");
    EXPECT_EQ("*" + shownLines[0], file[0]);
    EXPECT_EQ("*" + shownLines[4], file[4]);
    EXPECT_EQ(shownLines[6], file[6]);
    for (const char* hidden : {"ReportFrame", "PlotFrame", "cmdReport", "cmdPlot"})
        EXPECT_FALSE(shown(hidden)) << hidden;
}

TEST_F(ScsimReports, ColourTheHeadings) {
    play("answer 1\nanswer 1\npress cmdReport");
    const auto& box = dynamic_cast<const ReportScreen&>(*session.module().find("SumReport"));
    EXPECT_EQ(box.lines()[0].font, (Font{"Arial", 12, false}));
    EXPECT_EQ(box.lines()[0].colour, 9);
    EXPECT_EQ(box.lines()[1].font, (Font{"Courier New", 9, false}));
    EXPECT_EQ(box.lines()[1].colour, 9);
    EXPECT_EQ(box.lines()[3].colour, 0);
}

TEST_F(ScsimReports, AskForYearsUntilTheyFit) {
    const std::string told =
        play("answer 2\nanswer 3\nanswer 1\nanswer -4\nanswer 2.5\nanswer 2\npress cmdReport");
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 6);
    EXPECT_EQ(session.report()[0], " SUPPLY CHANNEL REPORT FOR SIMULATED YEARS 1 TO 2");
}

TEST_F(ScsimReports, StayWithTheOptionsWhereNoYearIsGiven) {
    play("answer \"\"\npress cmdReport\nanswer 1\nanswer cancel\npress cmdReport\nanswer cancel\npress "
         "cmdPlot\n"
         "answer 1\nanswer cancel\npress cmdPlot");
    EXPECT_TRUE(shown("ReportFrame"));
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(ScsimReports, ReturnToTheOptionsAsTheyWereDesigned) {
    play("press FactRepOpt\npress FactOpt\nanswer 1\nanswer 1\npress cmdReport\npress cmdReturn");
    for (const char* selected : {"SCRepOpt", "SCOpt", "SalesOpt"})
        EXPECT_NE(play(std::string("show ") + selected).find(" selected "), std::string::npos) << selected;
    for (const char* cleared : {"FactRepOpt", "FactOpt"})
        EXPECT_EQ(play(std::string("show ") + cleared).find(" selected "), std::string::npos) << cleared;
}

TEST_F(ScsimReports, OpenTheMeasuresThatASubjectHas) {
    const auto open = [this] {
        std::string letters;
        for (const char* name : {"AllOpt", "SalesOpt", "InvOpt", "BOOpt", "OROpt"})
            letters += play(std::string("show ") + name).find("enabled") != std::string::npos &&
                               play(std::string("show ") + name).find("disabled") == std::string::npos
                           ? "+"
                           : "-";
        return letters;
    };
    EXPECT_EQ(open(), "-+++-");
    for (const char* level : {"RetOpt", "DistOpt", "WhseOpt"}) {
        play(std::string("press ") + level);
        EXPECT_EQ(open(), "+++++") << level;
    }
    play("press InvOpt\npress FactOpt");
    EXPECT_EQ(open(), "-+---");
    EXPECT_NE(play("show SalesOpt").find(" selected "), std::string::npos);
    EXPECT_EQ(play("show InvOpt").find(" selected "), std::string::npos);
}

TEST_F(ScsimReports, TellThatAnOptionIsntAvailable) {
    EXPECT_EQ(play("press RetOpt\npress AllOpt\npress SCOpt\npress cmdPlot"),
              "MessageBx \"SCSIM\": \"This option is not available.\"\n");
    EXPECT_TRUE(shown("PlotFrame"));
}

TEST_F(ScsimReports, PlotWhatIsChosen) {
    EXPECT_EQ(plotted("press SCOpt"), "chart \"AVERAGE DAILY SUPPLY CHANNEL SALES FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press SCOpt\npress BOOpt"),
              "chart \"SUPPLY CHANNEL BACK ORDERS FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press DistOpt\npress InvOpt"),
              "chart \"AVERAGE DISTRIBUTOR INVENTORY FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press WhseOpt\npress AllOpt"),
              "chart \"WAREHOUSE PERFORMANCE FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press FactOpt"), "chart \"DAILY FACTORY SALES FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press RetOpt\npress OROpt", "answer 1\nanswer 2\n"),
              "chart \"RETAIL REPLENISHMENT ORDERS PLACED ON DISTRIBUTOR FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(lines(play("chart"))[1], "x \"Simulated time, days\" 1 720");
    for (const char* hidden : {"ReportFrame", "PlotFrame2", "cmdPlot"}) EXPECT_FALSE(shown(hidden)) << hidden;
    EXPECT_TRUE(shown("PerfGph"));
}

TEST_F(ScsimReports, AskForTheOverlayOfTheRetailersSales) {
    const std::string years = "answer 2\nanswer 1\nanswer 1\n";
    EXPECT_EQ(play("press RetOpt\n" + years + "answer Yes\npress cmdPlot"),
              "InputBx \"SCSIM\": \"Select time period for the plot:\\n(1) Daily\\n(2) Weekly\\n(3) "
              "Monthly\" [\"3\"] -> "
              "\"2\"\n"
              "InputBx \"SCSIM\": \"The plot is to begin with year?\" [\"1\"] -> \"1\"\n"
              "InputBx \"SCSIM\": \"The plot is to end with year?\" [\"2\"] -> \"1\"\n"
              "YesNoBx \"SCSIM\": \"Overlay customer demand?\" -> Yes\n");
    EXPECT_EQ(lines(play("chart")).size(), 3U + 3U);
    play("press cmdReturn\npress RetOpt\n" + years + "answer No\npress cmdPlot");
    EXPECT_EQ(lines(play("chart")).size(), 3U + 2U);
    play("press cmdReturn\npress RetOpt\n" + years + "answer close\npress cmdPlot");
    EXPECT_TRUE(shown("PlotFrame"));
}

TEST_F(ScsimReports, AskForThePeriodOfAPlotUntilItIsOne) {
    const std::string told = play("answer 0\nanswer 1\nanswer 1\nanswer 1\npress cmdPlot");
    EXPECT_NE(told.find("MessageBx \"SCSIM\": \"Incorrect input. Try again.\"\nInputBx \"SCSIM\": \"Select"),
              std::string::npos);
    EXPECT_EQ(lines(play("chart"))[0], "chart \"DAILY SUPPLY CHANNEL SALES FOR YEAR 1\"");
}

TEST_F(ScsimReports, PrintAReportWithBoldHeadings) {
    play("press RetRepOpt\nanswer 1\nanswer 1\npress cmdReport\npress cmdPrint");
    const std::vector<std::string> printed = lines(play("printer"));
    EXPECT_EQ(printed[0], "print \" RETAILER REPORT FOR SIMULATED YEAR 1\" Arial 12 bold colour 0");
    EXPECT_EQ(printed[1], "print \" Forecasting method: Exponential smoothing\" Courier New 10 colour 0");
    EXPECT_EQ(printed[4], "print \"           Yearly       Simulated\" Courier New 10 bold colour 0");
    EXPECT_EQ(printed.back(), "end");
}

TEST_F(ScsimReports, PrintAPlotOrPutItOnTheClipboard) {
    play("answer 3\nanswer 1\nanswer 1\npress cmdPlot");
    EXPECT_NE(play("answer No\npress cmdPrint\nclipboard").find("clipboard: picture"), std::string::npos);
    EXPECT_NE(play("answer Yes\npress cmdPrint\nprinter").find("picture "), std::string::npos);
}

TEST_F(ScsimReports, LeadBackToTheSimulator) {
    play("press cmdContinue");
    EXPECT_EQ(play("title"), "SCSIM - <io>SIM01.dat\n");
    EXPECT_TRUE(reportEnabled());
    play("press Report\nclose");
    EXPECT_EQ(play("title"), "SCSIM - <io>SIM01.dat\n");
}

TEST_F(ScsimReports, TellWhereTheReportCannotBeWritten) {
    std::filesystem::create_symlink("/dev/full", session.ioFolder() / "OUTPUT.DAT");
    EXPECT_TRUE(play("answer 1\nanswer 1\npress cmdReport")
                    .ends_with("MessageBx \"SCSIM\": \"Disk full occurred in SCSIM, cmdReport.\"\n"));
    EXPECT_TRUE(shown("ReportFrame"));
}

TEST_F(ScsimReports, PriceAsTheBoxesStand) {
    play("press cmdContinue\ntab 2\ntype txtROPQuantD 1\nanswer 1\npress PlotDemand\npress Continue1\ntab 6\n"
         "type txtPrice 31\nanswer 1\npress PlotDemand\npress Continue1\npress Report\nanswer 1\nanswer "
         "1\npress "
         "cmdReport");
    const std::string revenue = session.report()[3];
    play("press cmdContinue\ntab 6\ntype txtPrice 62\nanswer 1\npress PlotDemand\npress Continue1\npress "
         "Report\n"
         "answer 1\nanswer 1\npress cmdReport");
    const auto first = [](const std::string& line) { return std::stod(replaced(line, ",", "")); };
    EXPECT_EQ(first(session.report()[3]), 2 * first(revenue));
}

// Samples

std::string sample(const std::string& name) {
    return readTextFile(pathOf(std::string(VANTORE_SOURCE_FOLDER) + "/install/" + name));
}

double spreadOf(const std::vector<double>& values) {
    double total = 0, squares = 0;
    for (const double value : values) {
        total += value;
        squares += value * value;
    }
    const auto count = static_cast<double>(values.size());
    return squares / count - total / count * (total / count);
}

TEST(ScsimSamples, SwingMoreAndMoreUpTheChannel) {
    ModuleSession session;
    session.writeFile("SIM03.dat", sample("SIM03.dat"));
    session.open("SCSIM", "SIM03.dat", "OpenF");
    session.play("press Solve");
    constexpr std::array<std::size_t, 4> demandsInTrace = {1, 9, 16, 23};
    std::array<std::vector<double>, 4> demands;
    const std::vector<std::string> trace = traceOf(session);
    for (std::size_t i = 2; i < trace.size(); ++i) {
        ItemReader reader(trace[i]);
        for (std::size_t column = 0; column < 26; ++column) {
            const double value = reader.readNumber();
            for (std::size_t k = 0; k < 4; ++k)
                if (column == demandsInTrace.at(k)) demands.at(k).push_back(value);
        }
    }
    ASSERT_EQ(demands[0].size(), 4U * 360U);
    for (std::size_t k = 1; k < 4; ++k)
        EXPECT_GT(spreadOf(demands.at(k)), 2 * spreadOf(demands.at(k - 1))) << k;
}

TEST(ScsimSamples, AreReadAndRunWhole) {
    for (const char* name : {"SIM01.dat", "SIM02.dat", "SIM03.dat"}) {
        ModuleSession session;
        session.writeFile(name, sample(name));
        session.open("SCSIM", name, "OpenF");
        EXPECT_EQ(session.play("tab 0\npress optSpecDem\npress Solve\npress optGenDem\npress Solve"), "");
        session.play(std::string("file ") + name + "\npress Save");
        EXPECT_EQ(lines(session.readFile(name)).size(), 389U);
    }
}

} // namespace
} // namespace vantore::tests
