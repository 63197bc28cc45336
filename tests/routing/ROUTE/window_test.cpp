#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

// At zoom .9 node 1 lies at (36, 434), node 2 at (604, 434), node 3 at (36, 30).
constexpr const char* problem = "\"Three towns\",1\r\n3\r\n\"1\",\"Ashby\",\"0\",\"0\"\r\n"
                                "\"2\",\"Bourne\",\"632\",\"0\"\r\n\"3\",\"Corby\",\"0\",\"448\"\r\n"
                                "2\r\n1,2,5\r\n2,3,7.25\r\n";

class RouteWindow : public testing::Test {
  protected:
    RouteWindow() {
        session.writeFile("RFL01.dat", problem);
        session.open("ROUTE", "RFL01.dat", "cmdOpenFile");
    }

    std::vector<std::string> surface() { return lines(session.play("surface")); }
    bool drawn(const std::string& operation) {
        const std::vector<std::string> operations = surface();
        return std::find(operations.begin(), operations.end(), operation) != operations.end();
    }

    ModuleSession session;
};

TEST_F(RouteWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.writeFile("RFL01.dat", problem);
        sized.open("ROUTE", "RFL01.dat", "cmdOpenFile");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press cmdSolve");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press cmdContinue\npress cmdPlot");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(RouteWindow, StartsWithItsDefaults) {
    ModuleSession fresh;
    EXPECT_EQ(fresh.play("module ROUTE\ntitle\nshow txtTitle\nshow txtOriginNo"),
              "Shortest route through a network\ntxtTitle: visible disabled \"Enter label\"\n"
              "txtOriginNo: visible disabled \"No.\"\n");
    EXPECT_EQ(fresh.module().find("txtOriginNo")->tip, "Number of the route origin");
}

TEST_F(RouteWindow, ShowsItsReportInTwoFonts) {
    session.play("press cmdSolve");
    const auto* report = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->lines().at(0).text, " SHORTEST ROUTE METHOD SOLUTION RESULTS");
    EXPECT_EQ(report->lines().at(0).font, (Font{"Arial", 12, true}));
    EXPECT_EQ(report->lines().at(0).colour, colour::lightBlue);
    EXPECT_EQ(report->lines().at(1).text, "");
    EXPECT_EQ(report->lines().at(2).text, "Three towns");
    EXPECT_EQ(report->lines().at(2).font, (Font{"Courier New", 9, false}));
    EXPECT_EQ(report->lines().at(2).colour, colour::black);
    EXPECT_EQ(session.report().back(), "     12.25 1 -> 2 -> 3 ");
}

TEST_F(RouteWindow, PrintsItsReport) {
    session.play("press cmdSolve\npress cmdPrintRtb");
    const std::vector<std::string> printed = lines(session.play("printer"));
    ASSERT_EQ(printed.size(), 11U);
    EXPECT_EQ(printed.front(), "print \"Three towns\" Arial 12 colour 0");
    EXPECT_EQ(printed[9], "print \"     12.25 1 -> 2 -> 3 \" Courier New 10 colour 0");
}

TEST_F(RouteWindow, PrintsItsData) {
    session.play("press cmdPrintData");
    const std::vector<std::string> printed = lines(session.play("printer"));
    ASSERT_EQ(printed.size(), 19U);
    EXPECT_EQ(printed[0], "print \"\" Courier New 12 colour 0");
    EXPECT_EQ(printed[1], "print \"ROUTE\" Arial 14 colour 0");
    EXPECT_EQ(printed[2], "print \"FINDS THE SHORTEST ROUTE THROUGH A NETWORK\" Arial 14 colour 0");
    EXPECT_EQ(printed[3], "print \"\" Courier New 12 colour 0");
    EXPECT_EQ(printed[4], "print \"Title: Three towns\" Courier New 12 colour 0");
    EXPECT_EQ(printed[17], "print \"    2    2 Bourne                  3  Corby                     7.25\" "
                           "Courier New 12 colour 0");
}

TEST_F(RouteWindow, NamesNodesByTheirNumbersHoweverTheseCome) {
    session.play("cell grdNodeData 1 3 3\ncell grdNodeData 1 5 9");
    EXPECT_EQ(session.grid("grdNodeData").at(1), "1 | 1 | Ashby | 3 | Corby | 9");
    session.play("current grdNodeData 2 1\npaste grdNodeData 1\\tx\\t9\nselect grdNodeData 1 1 2 1\n"
                 "answer 2\nanswer 1\npress cmdArith");
    EXPECT_EQ(session.grid("grdNodeData").at(1), "1 | 2 | Bourne | 3 | Corby | 9");
    EXPECT_EQ(session.grid("grdNodeData").at(2), "2 | 2 | Bourne | 9 |  | 7.25");
    session.play("current grdNodeData 1 1\nkey grdNodeData 27");
    EXPECT_EQ(session.grid("grdNodeData").at(1), "1 |  |  | 3 | Corby | 9");
    // Names typed over are left alone, and other columns bring none.
    session.play("cell grdNodeData 1 2 Anywhere\ncell grdNodeData 1 5 4");
    EXPECT_EQ(session.grid("grdNodeData").at(1), "1 |  | Anywhere | 3 | Corby | 4");
}

TEST_F(RouteWindow, ComputesColumnsOfNumbersAlone) {
    session.play("select grdNodeId 1 4 3 4\nanswer 3\nanswer 2\npress cmdArith");
    EXPECT_EQ(session.grid("grdNodeId").at(3), "3 | 3 | Corby | 0 | 896");
    const std::string refusal =
        "MessageBx \"ROUTE\": \"This column is not allowed for column arithmetic.\"\n";
    EXPECT_EQ(session.play("select grdNodeId 1 2 2 2\npress cmdArith"), refusal);
    EXPECT_EQ(session.play("select grdNodeData 1 4 2 4\npress cmdArith"), refusal);
    EXPECT_EQ(session.play("select grdNodeData 1 2 2 2\npress cmdArith"), refusal);
}

TEST_F(RouteWindow, AddsRowsToTheListInUse) {
    session.play("answer Yes\npress cmdAdd");
    EXPECT_EQ(session.grid("grdNodeId").back(), "4 |  |  |  | ");
    session.play("current grdNodeData 1 1\npress cmdDelete");
    EXPECT_EQ(session.grid("grdNodeData").size(), 2U);
    EXPECT_EQ(session.grid("grdNodeId").size(), 5U);
}

TEST_F(RouteWindow, FillsBlankNumbersAndNamesWhenItSaves) {
    session.play("insert grdNodeId\ninsert grdNodeData\nfile RFL02.dat\npress cmdSave");
    EXPECT_EQ(session.grid("grdNodeId").back(), "4 | 0 |   | 0 | 0");
    EXPECT_EQ(session.grid("grdNodeData").back(), "3 | 0 |  | 0 |  | 0");
    EXPECT_NE(
        session.readFile("RFL02.dat").find("\"0\",\" \",\"0\",\"0\"\r\n3\r\n1,2,5\r\n2,3,7.25\r\n0,0,0\r\n"),
        std::string::npos);
}

TEST_F(RouteWindow, LeavesTheReportsHeadWhenACheckFails) {
    EXPECT_EQ(session.play("press cmdSolve\npress cmdContinue\ntype txtOriginNo 0\npress cmdSolve"),
              "MessageBx \"ROUTE\": \"ERROR: Origin node number is less than 1 or blank\"\n");
    EXPECT_EQ(session.readFile("OUTPUT.DAT"), "Three towns\r\nOrigin node number = 0 \r\n");
    EXPECT_EQ(session.readFile("OUT.DAT"), "");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(RouteWindow, EndsAnOriginBeyondItsRangeInItsOwnWords) {
    EXPECT_EQ(session.play("type txtOriginNo 32768\npress cmdSolve"),
              "MessageBx \"ROUTE\": \"Overflow occurrred in ROUTE, cmdSolve\"\n");
}

TEST_F(RouteWindow, StaysAtTheDataWhenTheOriginIsCutOff) {
    EXPECT_EQ(session.play("cell grdNodeData 1 5 0\npress cmdSolve"),
              "MessageBx \"ROUTE\": \"ERROR: The origin node is not connected to the network.\"\n");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(RouteWindow, DrawsTheFileThatWasOpened) {
    session.play("cell grdNodeId 2 3 9999\ntype txtOriginNo 3\npress cmdPlot");
    EXPECT_EQ(surface(), (std::vector<std::string>{
                             "line 36 434 604 434 colour 0", "line 604 434 36 30 colour 0",
                             "circle 36 434 3 colour 0 filled", "text 41 421 \"1\" Arial 8 bold colour 12",
                             "circle 604 434 3 colour 0 filled", "text 609 421 \"2\" Arial 8 colour 0",
                             "circle 36 30 3 colour 0 filled", "text 41 17 \"3\" Arial 8 colour 0"}));
    EXPECT_EQ(session.play("show cmdPath\nshow cmdZoom\nshow cmdPlot\nshow grdNodeId"),
              "cmdPath: visible enabled \"Solu&tion path\"\ncmdZoom: visible enabled \"&Zoom\"\n"
              "cmdPlot: hidden enabled \"P&lot\"\ngrdNodeId: hidden enabled \"\"\n");
}

TEST_F(RouteWindow, HighlightsThePathToADestination) {
    session.play("press cmdSolve\npress cmdContinue\npress cmdPlot");
    EXPECT_EQ(session.play("answer 3\npress cmdPath"),
              "InputBx \"Solution path\": \"Show solution path to which destination?\" "
              "[\"Enter destination number\"] -> \"3\"\n");
    EXPECT_TRUE(drawn("line 36 434 604 434 colour 12 width 3"));
    EXPECT_TRUE(drawn("line 604 434 36 30 colour 12 width 3"));
    EXPECT_TRUE(drawn("text 2 2 \"Total route cost: 12.25\" Arial 10 colour 12"));
    session.play("answer 2\npress cmdPath");
    EXPECT_TRUE(drawn("text 2 2 \"Total route cost: 5.00\" Arial 10 colour 12"));
    EXPECT_FALSE(drawn("line 604 434 36 30 colour 12 width 3"));
    const std::size_t operations = surface().size();
    session.play("answer 1\npress cmdPath\nanswer cancel\npress cmdPath\nanswer 44\npress cmdPath");
    EXPECT_EQ(surface().size(), operations);
    session.play("press cmdContinue\npress cmdPlot");
    EXPECT_EQ(surface().size(), 8U);
}

TEST_F(RouteWindow, RefusesThePathsOfAnotherProblem) {
    session.play("press cmdSolve\npress cmdContinue");
    session.writeFile("RFL02.dat", replaced(problem, "1,2,5", "1,2,6"));
    session.play("file RFL02.dat\npress cmdOpenFile\npress cmdPlot");
    EXPECT_EQ(
        lines(session.play("answer 2\npress cmdPath")).at(1),
        "MessageBx \"ROUTE\": \"The paths in OUT.DAT belong to another problem.  Solve this one first.\"");
    EXPECT_EQ(surface().size(), 8U);
    session.play(
        "press cmdContinue\nfile RFL01.dat\npress cmdOpenFile\npress cmdPlot\nanswer 2\npress cmdPath");
    EXPECT_TRUE(drawn("line 36 434 604 434 colour 12 width 3"));
}

TEST_F(RouteWindow, TellsWhenThereAreNoPaths) {
    EXPECT_EQ(lines(session.play("press cmdPlot\nanswer 2\npress cmdPath")).at(1),
              "MessageBx \"ROUTE\": \"File not found occurred in ROUTE, cmdPath.\"");
}

TEST_F(RouteWindow, MovesThePictureByItsSteps) {
    session.play("press cmdPlot");
    EXPECT_EQ(session.play("answer L\npress cmdZoom"),
              "InputBx \"Zoom control\": \"Change picture size:\\n+ to increase size\\n-  to decrease size\\n"
              "U to scroll up\\nD to scroll down\\nL to scroll left\\nR to scroll right\\n"
              "O to restore original picture size\" [\"Enter selection\"] -> \"L\"\n");
    EXPECT_TRUE(drawn("line 11 434 579 434 colour 0"));
    session.play("answer d\npress cmdZoom\nanswer +\npress cmdZoom");
    EXPECT_TRUE(drawn("circle -53 503 3 colour 0 filled"));
    session.play("answer Enter selection\npress cmdZoom\nanswer cancel\npress cmdZoom");
    EXPECT_TRUE(drawn("circle -53 503 3 colour 0 filled"));
    // A fresh plot has the usual size where the picture was moved to.
    session.play("press cmdContinue\npress cmdPlot");
    EXPECT_TRUE(drawn("circle 11 459 3 colour 0 filled"));
    session.play("answer O\npress cmdZoom");
    EXPECT_TRUE(drawn("circle 36 434 3 colour 0 filled"));
}

TEST_F(RouteWindow, TakesTheSameStepsFromWheelAndDrag) {
    session.play("press cmdSolve\npress cmdContinue\npress cmdPlot\nanswer 2\npress cmdPath");
    auto* picture = dynamic_cast<PictureSurface*>(session.module().find("picOut"));
    ASSERT_NE(picture, nullptr);
    picture->onPan(2, -1);
    EXPECT_TRUE(drawn("line 86 409 654 409 colour 12 width 3"));
    picture->onPan(-2, 1);
    picture->onZoom(1);
    EXPECT_TRUE(drawn("circle -28 478 3 colour 0 filled"));
    picture->onZoom(-1);
    EXPECT_TRUE(drawn("circle 36 434 3 colour 0 filled"));
    EXPECT_TRUE(drawn("text 2 2 \"Total route cost: 5.00\" Arial 10 colour 12"));
}

TEST_F(RouteWindow, PrintsItsPlot) {
    session.play("press cmdPlot\nanswer Yes\npress cmdPrintPlot");
    EXPECT_EQ(session.play("printer"), "picture 640x480\nend\n");
}

TEST_F(RouteWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        session.writeFile("RFLBAD.dat", content);
        session.play("file RFLBAD.dat\npress cmdOpenFile");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("RFLBAD.dat"), content);
        session.play("press cmdSolve\npress cmdContinue\npress cmdPlot\npress cmdContinue");
        EXPECT_EQ(session.module().view(), View::Data);
    }
}

TEST_F(RouteWindow, MakesANewProblemWithABlankRowInEachList) {
    session.play("file RFLNEW.dat\npress cmdOpenFile");
    EXPECT_EQ(session.readFile("RFLNEW.dat"),
              "\"Enter label\",0\r\n1\r\n\"0\",\" \",\"0\",\"0\"\r\n1\r\n0,0,0\r\n");
    EXPECT_EQ(session.grid("grdNodeId").size(), 2U);
}

TEST_F(RouteWindow, OpensMoreArcsThanItSolves) {
    std::string file = "\"Many\",1\r\n1\r\n\"1\",\"A\",\"1\",\"1\"\r\n2000\r\n";
    for (int i = 0; i < 2000; ++i) file += "1,2,3\r\n";
    session.writeFile("RFLMANY.dat", file);
    session.play("file RFLMANY.dat\npress cmdOpenFile");
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"ROUTE\": \"ERROR: There are more than 900 arcs in the network.\"\n");
    EXPECT_EQ(session.play("current grdNodeData 5 1\npress cmdAdd"),
              "MessageBx \"Add a Row\": \"Too many rows.  Limit is 2000\"\n");
}

TEST(RouteSamples, OpenSolveAndPlot) {
    for (const char* name : {"RFL01.dat", "RFL02.dat", "RFL03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("ROUTE", name, "cmdOpenFile");
        EXPECT_EQ(session.play("press cmdSolve"), "") << name;
        EXPECT_EQ(session.module().view(), View::Report) << name;
        EXPECT_EQ(session.play("press cmdContinue\npress cmdPlot"), "") << name;
        EXPECT_EQ(session.module().view(), View::Plot) << name;
    }
}

} // namespace
} // namespace vantore::tests
