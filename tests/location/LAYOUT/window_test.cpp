#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "tests/support/form_faults.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

constexpr const char* problem =
    "\"Spare parts\",1\r\n3\r\n\"Bolts\",1200,2.5,8,340\r\n\"Nuts\",800,.75,6,410\r\n"
    "\"Washers\",450,4,5,340\r\n";

class LayoutWindow : public testing::Test {
  protected:
    LayoutWindow() {
        session.writeFile("LOUT01.dat", problem);
        session.open("LAYOUT", "LOUT01.dat");
    }

    ModuleSession session;
};

TEST_F(LayoutWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.writeFile("LOUT01.dat", problem);
        sized.open("LAYOUT", "LOUT01.dat");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press cmdSolve");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(LayoutWindow, StartsWithItsDefaults) {
    ModuleSession fresh;
    EXPECT_EQ(fresh.play("module LAYOUT\ntitle\nshow txtLabel\nshow optPop\nshow optSize\nshow optCPO"),
              "Product layout in a warehouse\ntxtLabel: visible disabled \"Enter label\"\n"
              "optPop: visible disabled selected \"Order frequency (popularity)\"\n"
              "optSize: visible disabled \"Item size (cube)\"\n"
              "optCPO: visible disabled \"Cube-per-order index\"\n");
    EXPECT_EQ(fresh.module().find("fraLayout")->tip, "Select layout method");
}

TEST_F(LayoutWindow, SelectsTheRuleOfTheFile) {
    session.writeFile("LOUT02.dat", "\"B\",2\r\n0\r\n");
    session.writeFile("LOUT03.dat", "\"C\",3\r\n0\r\n");
    EXPECT_NE(session.play("file LOUT02.dat\npress cmdOpen\nshow optSize").find("selected"),
              std::string::npos);
    EXPECT_NE(session.play("file LOUT03.dat\npress cmdOpen\nshow optCPO").find("selected"),
              std::string::npos);
    EXPECT_NE(session.play("file LOUT01.dat\npress cmdOpen\nshow optPop").find("selected"),
              std::string::npos);
    EXPECT_EQ(session.play("show optCPO"), "optCPO: visible enabled \"Cube-per-order index\"\n");
}

TEST_F(LayoutWindow, ReportsByTheRuleThatIsSelected) {
    session.play("press cmdSolve");
    EXPECT_EQ(session.report().at(4).substr(0, 9), "   1 Nuts");
    session.play("press cmdContinue\npress optSize\npress cmdSolve");
    EXPECT_EQ(session.report().at(5).substr(0, 10), "   2 Bolts");
    session.play("press cmdContinue\npress optCPO\npress cmdSolve");
    EXPECT_EQ(session.report().at(0), "                        LAYOUT BY CUBE-PER-ORDER INDEX");
    EXPECT_EQ(session.readFile("OUTPUT.DAT").substr(0, 30), "                        LAYOUT");
}

TEST_F(LayoutWindow, StopsAtTurnsOfZeroWithNothingChanged) {
    EXPECT_EQ(session.play("cell Grid 2 4 none\npress cmdSolve\nshow cmdSolve"),
              "MessageBx \"LAYOUT\": \"No item inventory turns should be 0\"\n"
              "cmdSolve: visible enabled \"&Solve\"\n");
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(LayoutWindow, ShowsNoReportOfTheProblemBeforeWhenARankingFails) {
    session.play("press cmdSolve\npress cmdContinue");
    EXPECT_EQ(session.play("cell Grid 3 5 0\npress optCPO\npress cmdSolve\nreport\nshow cmdContinue"),
              "MessageBx \"LAYOUT\": \"Division by zero occurred in LAYOUT, cmdSolve.\"\n"
              "cmdContinue: visible enabled \"&Continue\"\n");
    EXPECT_EQ(session.readFile("OUTPUT.DAT"), "");
    EXPECT_EQ(session.play("press cmdContinue\nshow cmdSolve"), "cmdSolve: visible enabled \"&Solve\"\n");
}

TEST_F(LayoutWindow, PrintsItsData) {
    session.play("press optCPO\npress cmdPrintData");
    EXPECT_EQ(session.play("printer"),
              "print \"\" Courier New 12 colour 0\n"
              "print \"PRODUCT LAYOUT IN A WAREHOUSE\" Arial 14 colour 0\n"
              "print \"\" Courier New 12 colour 0\n"
              "print \"Title: Spare parts\" Courier New 12 colour 0\n"
              "print \"Layout by: Cube-per-order index\" Courier New 12 colour 0\n"
              "print \"Layout data:\" Courier New 12 colour 0\n"
              "print \"                 Item sales  Item size,   Inventory         No. of\" Courier New 12 "
              "colour 0\n"
              "print \"Product label     units/yr.     cu. ft.       turns     orders/yr.\" Courier New 12 "
              "colour 0\n"
              "print \"Bolts                 1,200        2.50        8.00            340\" Courier New 12 "
              "colour 0\n"
              "print \"Nuts                    800         .75        6.00            410\" Courier New 12 "
              "colour 0\n"
              "print \"Washers                 450        4.00        5.00            340\" Courier New 12 "
              "colour 0\n"
              "end\n");
}

TEST_F(LayoutWindow, NamesItselfInTheMessagesOfItsRows) {
    EXPECT_EQ(session.play("current Grid 0 1\npress cmdAdd\npress cmdDelete"),
              "MessageBx \"LAYOUT\": \"Select a grid row before adding a record.\"\n"
              "MessageBx \"LAYOUT\": \"Select a row to be deleted.\"\n");
    std::string full = "\"Full\",1\r\n500\r\n";
    for (int i = 0; i < 500; ++i) full += "\"P\",1,2,3,4\r\n";
    session.writeFile("LOUT02.dat", full);
    EXPECT_NE(session.play("file LOUT02.dat\npress cmdOpen\ncurrent Grid 1 1\npress cmdAdd")
                  .find("MessageBx \"LAYOUT\": \"Too many rows.  Limit is 500\""),
              std::string::npos);
    EXPECT_NE(session.play("press cmdSolve\nreport").find("|  500 P "), std::string::npos);
}

TEST_F(LayoutWindow, TakesTheRuleBackWithUndo) {
    session.play("press optSize\nundo");
    EXPECT_NE(session.play("show optPop").find("selected"), std::string::npos);
    session.play("redo");
    EXPECT_NE(session.play("show optSize").find("selected"), std::string::npos);
}

TEST_F(LayoutWindow, TellsOfAFullDiskAndKeepsTheOldFile) {
    const FullDisk full(16);
    EXPECT_NE(session.play("file LOUT01.dat\npress cmdSave").find("Disk full occurred in LAYOUT, cmdSave."),
              std::string::npos);
    EXPECT_EQ(session.readFile("LOUT01.dat"), problem);
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"LAYOUT\": \"Disk full occurred in LAYOUT, cmdSolve.\"\n");
}

TEST_F(LayoutWindow, TellsOfAFolderThatCanNotBeWritten) {
    std::filesystem::create_directory(session.ioFolder() / "OUTPUT.DAT");
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"LAYOUT\": \"Path/File access error occurred in LAYOUT, cmdSolve.\"\n");
}

TEST_F(LayoutWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        session.writeFile("LOUTBAD.dat", content);
        session.play("file LOUTBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("LOUTBAD.dat"), content);
    }
}

TEST_F(LayoutWindow, OpensAndSavesAFileWhateverItsLetters) {
    session.writeFile("LOUT Großes Lager.dat", problem);
    session.play("file LOUT Großes Lager.dat\npress cmdOpen\nfile LOUT Łódź 2.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("LOUT Łódź 2.dat"), problem);
}

TEST(LayoutSamples, OpenAndSolve) {
    for (const char* name : {"LOUT01.dat", "LOUT02.dat", "LOUT03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("LAYOUT", name);
        EXPECT_EQ(session.play("press cmdSolve"), "") << name;
        EXPECT_GT(session.report().size(), 8U) << name;
    }
}

} // namespace
} // namespace vantore::tests
