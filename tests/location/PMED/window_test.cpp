#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

// The best single site is Cody, the best two are Bend and Cody.
constexpr const char* problem =
    "\"Feed depots\",2,1,1\r\n4\r\n\"Ames\",0,0,100,1,500,1\r\n\"Bend\",40,0,200,1,300,1\r\n"
    "\"Cody\",100,0,300,1,500,1\r\n\"Dent\",100,50,10,1,0,0\r\n";
constexpr const char* degrees = "\"Two towns\",1,1.2,2\r\n2\r\n\"Omaha\",95.9345,41.2565,100,1,500,1\r\n"
                                "\"Tulsa\",95.9928,36.154,200,1,300,1\r\n";
constexpr const char* map = "12600,6550,5370,2130,0\r\n1\r\n2\r\n49,123\r\n49,95\r\n\"A border\"\r\n0\r\n";

class PmedWindow : public testing::Test {
  protected:
    PmedWindow() {
        fs::create_symlink(PMED_PROGRAM, session.installFolder() / "PMED.EXE");
        session.writeFile("PMED01.dat", problem);
        session.open("PMED", "PMED01.dat");
    }

    bool drawn(const std::string& operation) {
        const std::vector<std::string> operations = lines(session.play("surface"));
        return std::find(operations.begin(), operations.end(), operation) != operations.end();
    }
    std::string solve(const std::string& facilities) {
        return session.play("type txtNoLoc " + facilities + "\npress cmdSolve");
    }
    void openDegrees() {
        session.writeFile("PMED02.dat", degrees);
        session.play("file PMED02.dat\npress cmdOpen");
    }
    void writeMap(const std::string& text) const {
        std::ofstream(session.installFolder() / "MAP.DAT", std::ios::binary) << text;
    }

    ModuleSession session;
};

TEST_F(PmedWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        fs::create_symlink(PMED_PROGRAM, sized.installFolder() / "PMED.EXE");
        sized.writeFile("PMED01.dat", problem);
        sized.open("PMED", "PMED01.dat");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press optLatLon");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press optLinear\ntype txtNoLoc 2\npress cmdSolve");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("answer Yes\npress cmdPlot");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(PmedWindow, StartsUnderItsTitle) {
    ModuleSession fresh;
    EXPECT_EQ(fresh.play("module PMED\ntitle\nshow optLinear\nshow lblVScale"),
              "Facility Location by P-Median Method\n"
              "optLinear: visible disabled selected \"Linear grid coordinates\"\n"
              "lblVScale: visible enabled \"Vertical scaling factor\"\n");
}

TEST_F(PmedWindow, SolvesByItsSolver) {
    // From Cody: 100 x 200 and 200 x 120 along the scaled axis, 10 x 50 up to Dent, and the fixed 500.
    EXPECT_EQ(solve("1"), "run PMED.EXE\n");
    EXPECT_EQ(session.report(),
              (std::vector<std::string>{" SOLUTION RESULTS FOR P-MEDIAN PROBLEM", "",
                                        " No. Facility name-      Volume Assigned node numbers",
                                        "   3 Cody                   610 1 2 3 4",
                                        "        Total               610", "", " Total cost: $45,000.00"}));
    EXPECT_EQ(session.readFile("FORRUN"), problem + std::string("1,3\r\n"));
    EXPECT_EQ(session.readFile("FOROUT"), "4\r\n1,3\r\n2,3\r\n3,3\r\n4,3\r\n45000\r\n");
    session.play("press cmdContinue");
    solve("2");
    // Bend and Cody: 100 x 80, 10 x 50 and 800.
    EXPECT_EQ(session.report().back(), " Total cost: $9,300.00");
}

TEST_F(PmedWindow, LeavesTheLastLineOfItsFileOutWhereTheProblemIsFaulty) {
    EXPECT_EQ(session.play("press cmdSolve\nshow cmdSolve"),
              "MessageBx \"PMED\": \"The number of sites for location is zero (0).\"\n"
              "cmdSolve: visible enabled \"&Solve\"\n");
    EXPECT_EQ(session.readFile("FORRUN"), problem);
}

TEST_F(PmedWindow, TellsWhatTheSolverSays) {
    const std::string told = solve("4");
    EXPECT_NE(
        told.find("run PMED.EXE\nMessageBx \"PMED\": \"PMED.EXE ended with status 1.  It has given no "
                  "report.\\n\\nPMED.EXE: FORRUN can't be read as a problem. More sites are to be located "
                  "than the 3 that are candidates.\""),
        std::string::npos)
        << told;
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(PmedWindow, ShowsNoReportWithoutAResult) {
    solve("1");
    session.play("press cmdContinue");
    fs::remove(session.installFolder() / "PMED.EXE");
    fs::remove(session.ioFolder() / "FOROUT");
    EXPECT_EQ(solve("2"), "run PMED.EXE failed\n"
                          "MessageBx \"PMED\": \"File not found occurred in PMED, cmdSolve\"\n");
    EXPECT_EQ(session.play("report\nshow cmdContinue\nshow cmdPlot\nshow cmdPrintTB"),
              "cmdContinue: visible enabled \"&Continue\"\ncmdPlot: hidden enabled \"P&lot\"\n"
              "cmdPrintTB: hidden enabled \"&Print\"\n");
}

TEST_F(PmedWindow, RefusesAResultOfAnotherProblem) {
    fs::remove(session.installFolder() / "PMED.EXE");
    session.writeFile("FOROUT", "2\r\n1,1\r\n2,1\r\n5\r\n");
    EXPECT_EQ(solve("1"), "run PMED.EXE failed\n"
                          "MessageBx \"PMED\": \"Subscript out of range occurred in PMED, cmdSolve\"\n");
}

TEST_F(PmedWindow, NamesTheCoordinatesByTheirKind) {
    session.play("press optLatLon");
    EXPECT_EQ(session.grid("Grid").at(0),
              "Point\\nno. | Point label | Longi-\\ntude | Lati-\\ntude | Volume | "
              "Transport\\nrate | Fixed\\ncost | Candidate\\nsites");
    EXPECT_EQ(session.play("show lblVScale"), "lblVScale: visible enabled \"Circuity factor\"\n");
    session.play("undo");
    EXPECT_EQ(session.play("show lblVScale"), "lblVScale: visible enabled \"Vertical scaling factor\"\n");
    EXPECT_NE(session.grid("Grid").at(0).find("X coor-"), std::string::npos);
    session.play("redo\npress optLinear");
    EXPECT_NE(session.grid("Grid").at(0).find("Y coor-"), std::string::npos);
}

TEST_F(PmedWindow, OpensDegreesWithTwoDecimals) {
    session.play("type txtNoLoc 2");
    openDegrees();
    EXPECT_EQ(session.grid("Grid").at(1), "1 | Omaha | 95.93 | 41.26 | 100 | 1 | 500 | X");
    EXPECT_EQ(session.grid("Grid").at(2), "2 | Tulsa | 95.99 | 36.15 | 200 | 1 | 300 | X");
    EXPECT_EQ(session.play("show txtNoLoc\nshow optLatLon"),
              "txtNoLoc: visible enabled \"\"\n"
              "optLatLon: visible enabled selected \"Latitude/Longitude coordinates\"\n");
    session.play("file PMED01.dat\npress cmdOpen");
    EXPECT_EQ(session.play("show optLinear"),
              "optLinear: visible enabled selected \"Linear grid coordinates\"\n");
}

TEST_F(PmedWindow, MarksCandidatesByKeys) {
    const auto marks = [&] {
        std::string text;
        const std::vector<std::string> rows = session.grid("Grid");
        for (std::size_t row = 1; row < rows.size(); ++row) text += rows[row].ends_with("X") ? 'X' : '-';
        return text;
    };
    EXPECT_EQ(marks(), "XXX-");
    session.play("current Grid 4 7\nkey Grid 32\ncurrent Grid 1 7\nkey Grid 120");
    EXPECT_EQ(marks(), "-XXX");
    session.play("undo");
    EXPECT_EQ(marks(), "XXXX");
    // Escape empties as in other cells, Enter does nothing.
    session.play("current Grid 1 7\nkey Grid 27\nkey Grid 27\ncurrent Grid 2 7\nkey Grid 13");
    EXPECT_EQ(marks(), "-XXX");
    session.play("cell Grid 1 7 X\ncell Grid 2 7 X");
    EXPECT_EQ(marks(), "XXXX");
    // Typed elsewhere an X is an X.
    session.play("current Grid 4 1\nkey Grid 88");
    EXPECT_EQ(session.grid("Grid").at(4).substr(0, 9), "4 | DentX");
}

TEST_F(PmedWindow, MarksNothingWithoutRows) {
    session.writeFile("PMED00.dat", "\"None\",1,1,1\r\n0\r\n");
    session.play("file PMED00.dat\npress cmdOpen\ncurrent Grid 1 7");
    EXPECT_EQ(session.play("key Grid 88"),
              "MessageBx \"Information\": \"Add a row before entering data.\"\n");
    EXPECT_EQ(session.grid("Grid").at(1), "0 |  |  |  |  |  |  | ");
}

TEST_F(PmedWindow, AllowsFifteenMarksAndFifteenFacilities) {
    std::string file = "\"Many\",1,1,1\r\n16\r\n";
    for (int i = 1; i <= 16; ++i) file += "\"P\",1,2,3,4,5," + std::string(i < 15 ? "1" : "0") + "\r\n";
    session.writeFile("PMED16.dat", file);
    session.play("file PMED16.dat\npress cmdOpen\ncurrent Grid 15 7\nkey Grid 88\ncurrent Grid 16 7");
    EXPECT_EQ(session.play("key Grid 88"),
              "MessageBx \"PMED\": \"There may be no more than 15 candidate sites\"\n");
    EXPECT_EQ(session.play("type txtNoLoc 15\nleave txtNoLoc"), "");
    EXPECT_EQ(
        session.play("type txtNoLoc 16\nleave txtNoLoc\nshow txtNoLoc"),
        "MessageBx \"PMED\": \"More facilities are to be located than the 15 selected candidate sites.\"\n"
        "MessageBx \"PMED\": \"More facilities are to be located than the maximum of 15 allowed.\"\n"
        "txtNoLoc: visible enabled \"\"\n");
}

TEST_F(PmedWindow, LeavesTheMarksAloneWhenItSaves) {
    session.play("current Grid 4 5\nkey Grid 27\nfile PMED02.dat\npress cmdSave");
    EXPECT_EQ(session.grid("Grid").at(4), "4 | Dent | 100 | 50 | 10 | 0 | 0 | ");
    EXPECT_TRUE(session.readFile("PMED02.dat").ends_with("\"Dent\",100,50,10,0,0,0\r\n"));
    EXPECT_TRUE(session.readFile("PMED02.dat").starts_with(std::string(problem).substr(0, 60)));
}

TEST_F(PmedWindow, KeepsArithmeticToItsColumnsOfNumbers) {
    EXPECT_EQ(session.play("select Grid 1 7 2 7\npress cmdArith\nselect Grid 1 1 2 1\npress cmdArith"),
              "MessageBx \"PMED\": \"Column arithmetic does not apply to this column.\"\n"
              "MessageBx \"PMED\": \"Column arithmetic does not apply to this column.\"\n");
    session.play("select Grid 1 6 2 6\nanswer 3\nanswer 2\npress cmdArith");
    EXPECT_EQ(session.grid("Grid").at(1), "1 | Ames | 0 | 0 | 100 | 1 | 1000 | X");
}

TEST_F(PmedWindow, DrawsOnAxes) {
    solve("2");
    EXPECT_EQ(session.play("answer Yes\npress cmdPlot"),
              "YesNoBx \"PMED\": \"Want to show point numbers?\" -> Yes\n");
    // Xmax = 100, Ymax = 50: Bend at (240 + 128, 390), served by itself; Dent at (560, 70), by Cody.
    EXPECT_TRUE(drawn("text 248 3 \"LOCATION OF POINTS\" MS Sans Serif 10 bold colour 9"));
    EXPECT_TRUE(drawn("text 80 32 \"Feed depots\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 372 384 \" 2 \" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("box 365 387 371 393 colour 0 filled"));
    EXPECT_TRUE(drawn("circle 368 390 6 colour 12 filled"));
    EXPECT_FALSE(drawn("circle 240 390 6 colour 12 filled"));
    EXPECT_TRUE(drawn("line 560 70 560 390 colour 12"));
    EXPECT_TRUE(drawn("line 240 390 368 390 colour 12"));
    EXPECT_TRUE(drawn("text 8 64 \"Facility X, Y\" Arial 7 bold colour 9"));
    EXPECT_TRUE(drawn("text 8 96 \"2-       40.00,        .00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 8 112 \"3-      100.00,        .00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(drawn("text 112 128 \"$9,300.00\" Arial 7 bold colour 0"));
}

TEST_F(PmedWindow, DrawsDegreesOverTheMap) {
    writeMap(map);
    openDegrees();
    solve("1");
    session.play("answer No\npress cmdPlot");
    // The border's ends: 300 and 3100 of 6050 hundredths from the west on 448 units behind 186, 470 of 3240
    // on 302.
    EXPECT_TRUE(drawn("line 208 100 416 100 colour 8"));
    EXPECT_FALSE(drawn("text 400 416 \"X coordinates in 1s\" Arial 7 bold colour 0"));
    EXPECT_NE(session.play("surface").find("circle "), std::string::npos);
}

TEST_F(PmedWindow, TellsOfAMapThatIsMissingOrDamaged) {
    openDegrees();
    solve("1");
    EXPECT_EQ(session.play("press cmdPlot"),
              "MessageBx \"PMED\": \"File not found occurred in PMED, cmdPlot.\"\n");
    const std::array<std::pair<const char*, const char*>, 4> damages = {
        {{"", "Input past end of file"},
         {"12600,6550,5370,2130,0\r\n-1\r\n", "Subscript out of range"},
         {"12600,6550,5370,2130,0\r\n1000000\r\n", "Subscript out of range"},
         {"12600,6550,30,30,0\r\n0\r\n\"No height\"\r\n0\r\n", "Division by zero"}}};
    for (const auto& [content, error] : damages) {
        writeMap(content);
        session.play("press cmdContinue");
        solve("1");
        EXPECT_EQ(session.play("press cmdPlot"),
                  "MessageBx \"PMED\": \"" + std::string(error) + " occurred in PMED, cmdPlot.\"\n");
        EXPECT_EQ(session.module().view(), View::Plot);
    }
}

TEST_F(PmedWindow, PrintsItsData) {
    session.play("type txtNoLoc 2\npress cmdPrintData");
    const std::string page = session.play("printer");
    for (const char* line :
         {"print \"P-MEDIAN LOCATION DATA\" Arial 14 colour 0", "\"Title: Feed depots\"",
          "\"Number of facilities to locate: 2\"", "\"Horizontal scaling factor: 2\"",
          "\"Vertical scaling factor: 1\"",
          "\"Ames                  .00       .00         100    1.0000         500         X\"",
          "\"Dent               100.00     50.00          10    1.0000           0\""})
        EXPECT_NE(page.find(line), std::string::npos) << line << "\n" << page;
    session.play("press optLatLon\npress cmdPrintData");
    EXPECT_NE(session.play("printer").find("\"Circuity factor: 1\""), std::string::npos);
}

TEST_F(PmedWindow, TellsOfAFullDiskAndKeepsTheOldFile) {
    {
        const FullDisk full(16);
        EXPECT_NE(
            session.play("file PMED01.dat\npress cmdSave").find("\"Disk full occurred in cmdSave, PMED\""),
            std::string::npos);
        EXPECT_EQ(session.readFile("PMED01.dat"), problem);
        EXPECT_EQ(solve("1"), "MessageBx \"PMED\": \"Disk full occurred in PMED, cmdSolve\"\n");
    }
    solve("1");
    fs::remove(session.ioFolder() / "OUTPUT.DAT");
    EXPECT_EQ(session.play("press cmdPrintTB"),
              "MessageBx \"PMED\": \"File not found occurred in cmdPrint, PMED\"\n");
}

TEST_F(PmedWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        session.writeFile("PMEDBAD.dat", content);
        session.play("file PMEDBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("PMEDBAD.dat"), content);
    }
}

TEST_F(PmedWindow, MeetsEveryDamagedResultWithAMessageOrAReport) {
    fs::remove(session.installFolder() / "PMED.EXE");
    for (const std::string& content : damagedForms("4\r\n1,2\r\n2,2\r\n3,2\r\n4,2\r\n45600\r\n")) {
        session.writeFile("FOROUT", content);
        solve("1");
        EXPECT_EQ(session.module().view(), View::Report) << content;
        session.play("press cmdContinue");
    }
}

TEST_F(PmedWindow, OpensAndSavesAFileWhateverItsLetters) {
    session.writeFile("PMED Münster Süd.dat", problem);
    session.play("file PMED Münster Süd.dat\npress cmdOpen\nfile PMED Łódź 2.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("PMED Łódź 2.dat"), problem);
}

TEST_F(PmedWindow, OpensAndSolvesTheSamples) {
    for (const char* name : {"PMED01.dat", "PMED02.dat", "PMED03.dat"}) {
        fs::copy(fs::path(VANTORE_SOURCE_FOLDER) / "install" / name, session.ioFolder(),
                 fs::copy_options::overwrite_existing);
        session.play("file " + std::string(name) + "\npress cmdOpen");
        EXPECT_EQ(solve("3"), "run PMED.EXE\n") << name;
        EXPECT_GE(session.report().size(), 9U) << name;
        session.play("press cmdContinue");
    }
}

} // namespace
} // namespace vantore::tests
