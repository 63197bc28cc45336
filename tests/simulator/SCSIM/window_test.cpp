#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/base/text.h"
#include "tests/simulator/SCSIM/scsim_window.h"
#include "tests/support/form_faults.h"

namespace vantore::tests {
namespace {

using namespace scsim;

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

} // namespace
} // namespace vantore::tests
