#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

constexpr const char* problem =
    "\"Two towns and a port\",10\r\n4\r\n\"Ashby\",10,20,100,.5\r\n"
    "\"Port\",40,50,300,.5\r\n\"Ashby east\",10,24,100,.5\r\n\"Pier\",40,48,200,.5\r\n";

class McogWindow : public testing::Test {
  protected:
    McogWindow() {
        session.writeFile("MCOG01.dat", problem);
        session.open("MULTICOG", "MCOG01.dat");
    }

    bool drawn(const std::string& operation) {
        const std::vector<std::string> operations = lines(session.play("surface"));
        return std::find(operations.begin(), operations.end(), operation) != operations.end();
    }
    void solve() { session.play("answer 2\nanswer 1\npress cmdSolve"); }

    ModuleSession session;
};

TEST_F(McogWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.writeFile("MCOG01.dat", problem);
        sized.open("MULTICOG", "MCOG01.dat");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("answer 2\nanswer 1\npress cmdSolve");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("answer Yes\npress cmdPlot");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(McogWindow, SpecifiesLocationsAndAllocation) {
    session.play("answer 2\nanswer 2\nanswer 10\nanswer 20\nanswer 40\nanswer 50\n"
                 "answer 1\nanswer 2\nanswer 1\nanswer 2\npress cmdSolve");
    const std::vector<std::string> report = session.report();
    // 100 x .5 x 4 x 10 and 200 x .5 x 2 x 10.
    EXPECT_EQ(report.at(5), "      1   10.00     20.00            200          2,000.00");
    EXPECT_EQ(report.at(6), "      2   40.00     50.00            500          2,000.00");
    EXPECT_EQ(report.at(7), "  Total cost 4,000.00");
}

TEST_F(McogWindow, AsksAgainForAFacilityThatIsNone) {
    const std::string told = session.play(
        "answer 1\nanswer 2\nanswer cancel\nanswer 5\nanswer 1\nanswer 2\nanswer 1\nanswer cancel\n"
        "answer 1\nanswer 1.4\npress cmdSolve");
    EXPECT_NE(told.find("\"Point 2 is to be assigned to facility number? \" [\"Enter number\"] -> \"2\"\n"
                        "MessageBx \"MULTICOG\": \"There is no facility 2.\"\n"
                        "InputBx \"\": \"Point 2 is"),
              std::string::npos)
        << told;
    EXPECT_NE(told.find("MessageBx \"MULTICOG\": \"There is no facility 0.\""), std::string::npos);
    // The cancelled X coordinate is 0.
    EXPECT_EQ(session.report().at(5).substr(0, 26), "      1     .00      5.00 ");
}

TEST_F(McogWindow, RoundsAFractionalNumberOfFacilities) {
    EXPECT_EQ(
        session.play("answer .5\nanswer 20.6\nanswer 2.5\nanswer cancel\npress cmdSolve"),
        "InputBx \"\": \"Desired number of facility locations (Max. =  20)?\" [\"Enter number\"] -> "
        "\".5\"\nMessageBx \"MULTICOG\": \"Desired number of facilities is less than 1.\"\n"
        "InputBx \"\": \"Desired number of facility locations (Max. =  20)?\" [\"Enter number\"] -> "
        "\"20.6\"\nMessageBx \"MULTICOG\": \"Desired number of facilities exceeds the maximum allowed.\"\n"
        "InputBx \"\": \"Desired number of facility locations (Max. =  20)?\" [\"Enter number\"] -> "
        "\"2.5\"\nInputBx \"Solution options\": \"Want to:\\n(1) Compute the facility locations?\\n(2) "
        "Specify them?\" [\"1\"] -> cancel\n");
    EXPECT_EQ(session.module().view(), View::Data);
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(McogWindow, EndsSolveAtAnAnswerThatIsNoOption) {
    session.play("answer 2\nanswer 3\npress cmdSolve\nanswer 2\nanswer .9\npress cmdSolve");
    EXPECT_EQ(session.module().view(), View::Data);
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
    session.play("answer 2\nanswer 1.9\npress cmdSolve");
    EXPECT_EQ(session.module().view(), View::Report);
}

TEST_F(McogWindow, TellsOfRunTimeErrorsInItsOwnWords) {
    EXPECT_NE(session.play("answer 2\nanswer one\npress cmdSolve")
                  .find("MessageBx \"MULTICOG\": \"Type mismatch occurred in MCOG, cmdSOLVE\""),
              std::string::npos);
    session.writeFile("MCOGBAD.dat", "\"A\"");
    EXPECT_NE(session.play("file MCOGBAD.dat\npress cmdOpen")
                  .find("MessageBx \"MULTICOG\": \"Input past end of file occurred in cmdOpen, MCOG\""),
              std::string::npos);
}

TEST_F(McogWindow, DividesByZeroWherePointsHaveNoVolume) {
    EXPECT_NE(session.play("cell Grid 1 4 0\ncell Grid 3 4 0\nanswer 2\nanswer 1\npress cmdSolve")
                  .find("MessageBx \"MULTICOG\": \"Division by zero occurred in MCOG, cmdSOLVE\""),
              std::string::npos);
}

TEST_F(McogWindow, DrawsPointsFacilitiesLinesAndFigures) {
    session.play("answer 3\nanswer 2\nanswer 10\nanswer 20\nanswer 0\nanswer 0\nanswer 40\nanswer 50\n"
                 "answer 1\nanswer 3\nanswer 1\nanswer 3\npress cmdSolve");
    EXPECT_EQ(session.play("answer Yes\npress cmdPlot"),
              "YesNoBx \"Question\": \"Want to show point numbers?\" -> Yes\n");
    // Xmax = 40 and Ymax = 50: Ashby lies at (240 + 320 / 4, 390 - 320 x 2 / 5), its facility on it.
    EXPECT_TRUE(drawn("text 248 3 \"LOCATION OF POINTS\" Arial 10 bold colour 9"));
    EXPECT_TRUE(drawn("text 8 16 \"Problem: \" Arial 7 bold colour 9"));
    EXPECT_TRUE(drawn("text 80 16 \"Two towns and a\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 324 256 \" 1 \" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("box 317 259 323 265 colour 0 filled"));
    EXPECT_TRUE(drawn("circle 320 262 6 colour 12 filled"));
    EXPECT_TRUE(drawn("circle 560 70 6 colour 12 filled"));
    EXPECT_FALSE(drawn("circle 240 390 6 colour 12 filled"));
    EXPECT_TRUE(drawn("line 320 236 320 262 colour 12"));
    EXPECT_TRUE(drawn("line 560 82 560 70 colour 12"));
    EXPECT_TRUE(drawn("text 8 32 \"Facility X, Y\" Arial 7 bold colour 9"));
    EXPECT_TRUE(drawn("text 8 48 \"coordinates are:\" Arial 7 bold colour 9"));
    EXPECT_TRUE(drawn("text 8 64 \"1-       10.00,      20.00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 8 80 \"2-      ------,     ------\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 8 96 \"3-       40.00,      50.00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 8 112 \"Total cost = \" Arial 7 bold colour 9"));
    EXPECT_TRUE(drawn("text 112 112 \"4,000.00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 400 416 \"X coordinates in 1s\" Arial 7 bold colour 0"));
}

TEST_F(McogWindow, DrawsAFacilityThatServesTheLastPointAlone) {
    session.play("answer 2\nanswer 2\nanswer 10\nanswer 20\nanswer 40\nanswer 48\n"
                 "answer 1\nanswer 1\nanswer 1\nanswer 2\npress cmdSolve\nanswer No\npress cmdPlot");
    EXPECT_TRUE(drawn("circle 560 82 6 colour 12 filled"));
    EXPECT_TRUE(drawn("text 8 80 \"2-       40.00,      48.00\" Arial 7 bold colour 0"));
}

TEST_F(McogWindow, LeavesThePlotWithoutNumbersWhenNoneAreWanted) {
    solve();
    session.play("answer No\npress cmdPlot");
    EXPECT_FALSE(drawn("text 324 256 \" 1 \" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("box 317 259 323 265 colour 0 filled"));
}

TEST_F(McogWindow, PrintsPlotReportAndData) {
    solve();
    session.play("press cmdPrintTB");
    EXPECT_TRUE(session.play("printer").starts_with(
        "print \" MULTIPLE CENTER OF GRAVITY SOLUTION RESULTS\" Arial 12 colour 0\n"));
    EXPECT_NE(session.play("answer No\npress cmdPlot\nanswer Yes\npress cmdPrintPlot")
                  .find("YesNoBx \"Question\": \"Select YES to print."),
              std::string::npos);
    EXPECT_EQ(session.play("printer"), "picture 640x480\nend\n");
    session.play("press cmdContinue\npress cmdPrintData");
    const std::string page = session.play("printer");
    EXPECT_NE(page.find("print \"MULTIPLE CENTER OF GRAVITY DATA\" Arial 14"), std::string::npos) << page;
    EXPECT_NE(page.find("print \"Map scaling factor: 10\""), std::string::npos);
    EXPECT_NE(page.find("print \"Ashby               10.00       20.00          100              .5000\""),
              std::string::npos);
}

TEST_F(McogWindow, KeepsArithmeticToItsColumnsOfNumbers) {
    EXPECT_EQ(session.play("select Grid 1 1 2 1\npress cmdArith"),
              "MessageBx \"MULTICOG\": \"Column arithmetic does not apply to this column.\"\n");
    EXPECT_EQ(session.play("select Grid 1 4 2 4\nanswer 2\nanswer 5\npress cmdArith"),
              "InputBx \"Column Arithmetic\": \"Select the number of the appropriate action:\\n(1) Sum\\n(2) "
              "Add\\n(3) Multiply\\n(4) Exponentiate\\n(5) Replace\" [\"Enter selection\"] -> \"2\"\n"
              "InputBx \"Column Arithmetic\": \"The add value is?\" [\"Enter a value\"] -> \"5\"\n");
    EXPECT_EQ(session.grid("Grid").at(1), "1 | Ashby | 10 | 20 | 105 | .5");
}

TEST_F(McogWindow, TellsOfAFullDiskAndKeepsTheOldFile) {
    const FullDisk full(16);
    EXPECT_NE(session.play("file MCOG01.dat\npress cmdSave").find("Disk full occurred in MULTICOG, cmdSave."),
              std::string::npos);
    EXPECT_EQ(session.readFile("MCOG01.dat"), problem);
    EXPECT_NE(session.play("answer 2\nanswer 1\npress cmdSolve").find("Disk full occurred in MCOG, cmdSOLVE"),
              std::string::npos);
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(McogWindow, TellsOfAReportThatCanNotBeWritten) {
    std::filesystem::create_directory(session.ioFolder() / "OUTPUT.DAT");
    EXPECT_NE(session.play("answer 2\nanswer 1\npress cmdSolve")
                  .find("\"Path/File access error occurred in MCOG, cmdSOLVE\""),
              std::string::npos);
}

TEST_F(McogWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        session.writeFile("MCOGBAD.dat", content);
        session.play("file MCOGBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("MCOGBAD.dat"), content);
    }
}

TEST_F(McogWindow, OpensAndSavesAFileWhateverItsLetters) {
    session.writeFile("MCOG Münster Süd.dat", problem);
    session.play("file MCOG Münster Süd.dat\npress cmdOpen\nfile MCOG Łódź 2.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("MCOG Łódź 2.dat"), problem);
}

TEST(McogSamples, OpenAndSolve) {
    for (const char* name : {"MCOG01.dat", "MCOG02.dat", "MCOG03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("MULTICOG", name);
        session.play("answer 2\nanswer 1\npress cmdSolve\nanswer Yes\npress cmdPlot");
        EXPECT_EQ(session.module().view(), View::Plot) << name;
    }
}

} // namespace
} // namespace vantore::tests
