#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <vector>

#include "mathprog/TRANLP/TRANLP.h"
#include "script/script_platform.h"
#include "shell/base/text_file.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

using Lines = std::vector<std::string>;

const std::string twoByThree =
    "\"Coal\"\r\n2,3\r\n\"Pit one\",40\r\n\"Pit two\",35.5\r\n\"Works\",20\r\n\"Port\",30\r\n"
    "\"Town\",25.5\r\n1,1,4\r\n1,2,.5\r\n2,1,3.25\r\n2,3,6\r\n";

class TransportationWindow : public testing::Test {
  protected:
    TransportationWindow() {
        session.writeFile("TRAN.dat", twoByThree);
        session.open("TRANLP", "TRAN.dat");
    }

    ModuleSession session;
};

// The size of the matrix

TEST_F(TransportationWindow, KeepsRolesAtTheEndWhenItGrows) {
    session.play("type txtRows 4\ntype txtCols 5");
    EXPECT_EQ(session.grid("Grid"), (Lines{"From\\To | Works | Port | Town | T4 | Supply",
                                           "Pit one | 4 | .5 |  |  | 40", "Pit two | 3.25 |  | 6 |  | 35.5",
                                           "F3 |  |  |  |  | ", "Demand | 20 | 30 | 25.5 |  | "}));
}

TEST_F(TransportationWindow, KeepsRolesAtTheEndWhenItShrinks) {
    session.play("type txtRows 2\ntype txtCols 3");
    EXPECT_EQ(session.grid("Grid"),
              (Lines{"From\\To | Works | Port | Supply", "Pit one | 4 | .5 | 40", "Demand | 20 | 30 | "}));
}

TEST_F(TransportationWindow, RefusesMoreThanAHundredRowsOrColumns) {
    EXPECT_EQ(session.play("type txtRows 101\nshow txtRows"),
              "MessageBx \"Warning\": \"Maximum number of rows (100) has been exceeded\"\n"
              "txtRows: visible enabled \"3\"\n");
    EXPECT_EQ(session.play("type txtCols 1E+99\nshow txtCols"),
              "MessageBx \"Warning\": \"Maximum number of columns (100) has been exceeded\"\n"
              "txtCols: visible enabled \"4\"\n");
    EXPECT_EQ(session.play("type txtRows 100\ntype txtCols 100\nshow txtRows"),
              "txtRows: visible enabled \"100\"\n");
    EXPECT_EQ(session.grid("Grid").size(), 101U);
}

TEST_F(TransportationWindow, DoesNothingOnAnEmptySizeBox) {
    EXPECT_EQ(session.play("type txtRows \"\"\nshow txtRows"), "txtRows: visible enabled \"\"\n");
    EXPECT_EQ(session.grid("Grid").size(), 4U);
    session.play("file TRANB.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("TRANB.dat"), twoByThree);
}

TEST_F(TransportationWindow, ReportsASizeWithoutRoomForTheDemandRow) {
    for (const char* size : {"0", "-7", "many"})
        EXPECT_EQ(session.play("type txtRows " + std::string(size) + "\nshow txtRows"),
                  "MessageBx \"TRANLP\": \"Subscript out of range occurred in TRANLP, txtRows.\"\n"
                  "txtRows: visible enabled \"3\"\n");
    EXPECT_EQ(session.grid("Grid").size(), 4U);
}

TEST_F(TransportationWindow, TakesNoKeysWithoutSources) {
    session.play("type txtRows 1");
    EXPECT_EQ(session.grid("Grid"),
              (Lines{"From\\To | Works | Port | Town | Supply", "Demand | 20 | 30 | 25.5 | "}));
    EXPECT_EQ(session.play("current Grid 1 1\nkey Grid 53"),
              "MessageBx \"Information\": \"Add a row before entering data.\"\n");
    session.play("press cmdSolve");
    EXPECT_EQ(session.grid("GridOut").back(), "Demand | 0 | 0 | 0 | ");
}

TEST_F(TransportationWindow, UndoesASizeAndACell) {
    session.play("type txtRows 4");
    Form& form = session.module();
    form.undo();
    EXPECT_EQ(session.grid("Grid").size(), 4U);
    session.play("cell Grid 1 1 77");
    form.undo();
    EXPECT_EQ(session.grid("Grid").at(1), "Pit one | 4 | .5 |  | 40");
}

// Labels

TEST_F(TransportationWindow, ShowsAndWritesTheLabelsOfTheCurrentCell) {
    EXPECT_EQ(session.play("current Grid 2 3\nshow txtRowLabel\nshow txtColLabel"),
              "txtRowLabel: visible enabled \"Pit two\"\ntxtColLabel: visible enabled \"Town\"\n");
    EXPECT_EQ(session.play("current Grid 1 1\nshow txtRowLabel\nshow txtColLabel"),
              "txtRowLabel: visible enabled \"Pit one\"\ntxtColLabel: visible enabled \"Works\"\n");
    session.play("current Grid 2 3");
    session.play("type txtRowLabel Pit 2\nkeys txtColLabel !");
    EXPECT_EQ(session.grid("Grid").at(0), "From\\To | Works | Port | Town! | Supply");
    EXPECT_EQ(session.grid("Grid").at(2), "Pit 2 | 3.25 |  | 6 | 35.5");
}

TEST_F(TransportationWindow, WritesNoLabelOnAHeadingLine) {
    const Lines before = session.grid("Grid");
    session.play("current Grid 0 2\ntype txtRowLabel A\ncurrent Grid 2 0\ntype txtColLabel B");
    EXPECT_EQ(session.grid("Grid"), before);
    EXPECT_EQ(session.play("current Grid 0 2\nshow txtRowLabel"), "txtRowLabel: visible enabled \"\"\n");
}

TEST_F(TransportationWindow, UndoesALabelInItsOwnRow) {
    session.play("current Grid 1 1\ntype txtRowLabel Pit A\ncurrent Grid 2 1");
    Form& form = session.module();
    form.undo();
    EXPECT_EQ(session.grid("Grid").at(1), "Pit one | 4 | .5 |  | 40");
    EXPECT_EQ(session.grid("Grid").at(2), "Pit two | 3.25 |  | 6 | 35.5");
    EXPECT_EQ(session.play("show txtRowLabel"), "txtRowLabel: visible enabled \"Pit one\"\n");
    form.redo();
    EXPECT_EQ(session.grid("Grid").at(1), "Pit A | 4 | .5 |  | 40");
}

// Typing, arithmetic, the spreadsheet

TEST_F(TransportationWindow, TakesKeysAsEveryGridDoes) {
    session.play("cell Grid 1 1 1,2\"3x\nkey Grid 8\nkey Grid 13");
    EXPECT_EQ(session.grid("Grid").at(1), "Pit one | 123 | .5 |  | 40");
    session.play("key Grid 27");
    EXPECT_EQ(session.grid("Grid").at(1), "Pit one |  | .5 |  | 40");
}

TEST_F(TransportationWindow, AppliesArithmeticToAllColumnsOfNumbers) {
    EXPECT_EQ(session.play("select Grid 1 4 2 4\nanswer 1\npress cmdColArith"),
              "InputBx \"Column Arithmetic\": \"Select the number of the appropriate action:\\n(1) Sum\\n(2) "
              "Add\\n(3) Multiply\\n(4) Exponentiate\\n(5) Replace\" [\"Enter selection\"] -> \"1\"\n"
              "MessageBx \"TRANLP\": \"The sum is:  75.5\"\n");
    session.play("select Grid 1 1 3 1\nanswer 3\nanswer 2\npress cmdColArith");
    EXPECT_EQ(session.grid("Grid").at(3), "Demand | 40 | 30 | 25.5 | ");
    EXPECT_EQ(session.play("select Grid 1 1 2 2\npress cmdColArith"),
              "MessageBx \"Information\": \"Highlight only one column.\"\n");
    EXPECT_EQ(session.play("select Grid 1 0 2 0\npress cmdColArith"),
              "MessageBx \"TRANLP\": \"Column arithmetic does not apply to this column.\"\n");
}

TEST_F(TransportationWindow, FillsBlanksButNotTheCornerWhenItSaves) {
    session.play("file TRANB.dat\npress cmdSave");
    EXPECT_EQ(session.grid("Grid"),
              (Lines{"From\\To | Works | Port | Town | Supply", "Pit one | 4 | .5 | 0 | 40",
                     "Pit two | 3.25 | 0 | 6 | 35.5", "Demand | 20 | 30 | 25.5 | "}));
    EXPECT_EQ(session.readFile("TRANB.dat"), twoByThree);
}

// Views

TEST_F(TransportationWindow, GoesFromDataToResultsToReportAndBack) {
    session.play("press cmdSolve");
    EXPECT_EQ(session.module().view(), View::Result);
    EXPECT_EQ(session.play("show GridOut\nshow Label6\nshow Label7\nshow Grid\nshow cmdSolve\nshow "
                           "txtTotalCost\npress cmdPrintReport"),
              "GridOut: visible enabled \"\"\nLabel6: visible enabled \"Results\"\n"
              "Label7: visible enabled \"Total cost:\"\nGrid: hidden enabled \"\"\n"
              "cmdSolve: hidden enabled \"&Solve\"\ntxtTotalCost: visible enabled \"72\"\n"
              "refused: cmdPrintReport is hidden\n");
    session.play("press cmdReport");
    EXPECT_EQ(session.module().view(), View::Report);
    EXPECT_EQ(session.report().at(2), " Problem label: Coal");
    session.play("press cmdContinue");
    EXPECT_EQ(session.module().view(), View::Data);
    EXPECT_EQ(session.grid("Grid").at(1), "Pit one | 4 | .5 |  | 40");
}

TEST_F(TransportationWindow, GivesTheResultsGridTheShapeAndHeadingsOfTheData) {
    session.play("press cmdSolve\npress cmdContinue\ntype txtCols 2\npress cmdSolve");
    EXPECT_EQ(session.grid("GridOut"),
              (Lines{"From\\To | Works | Supply", "Pit one | 0 | 0", "Pit two | 20 | 20", "Demand | 20 | "}));
    const auto& grid = dynamic_cast<const DataGrid&>(*session.module().find("GridOut"));
    EXPECT_EQ(grid.colWidth(0), 800);
}

TEST_F(TransportationWindow, StaysInTheDataWhenUnitsOverflow) {
    EXPECT_EQ(session.play("cell Grid 1 4 9E+9\npress cmdSolve"),
              "MessageBx \"TRANLP\": \"Overflow occurred in TRANLP, cmdSolve.\"\n");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(TransportationWindow, ReportsAProblemWithoutRoomForTheBalancingColumn) {
    std::string text = "\"Full\"\r\n1,102\r\n\"A\",500\r\n";
    for (int j = 1; j <= 102; ++j) text += "\"T" + std::to_string(j) + "\",1\r\n";
    session.writeFile("TRANFULL.dat", text);
    EXPECT_NE(session.play("file TRANFULL.dat\npress cmdOpen\npress cmdSolve")
                  .find("MessageBx \"TRANLP\": \"Subscript out of range occurred in TRANLP, cmdSolve.\"\n"),
              std::string::npos);
}

TEST_F(TransportationWindow, PrintsReportAndData) {
    const std::string report = session.play("press cmdSolve\npress cmdReport\npress cmdPrintReport\nprinter");
    EXPECT_TRUE(report.starts_with("print \" TRANSPORTATION METHOD RESULTS\" Arial 12 colour 0\n"
                                   "print \"\" Courier New 10 colour 0\n"));
    const std::string data = session.play("press cmdContinue\npress cmdPrintData\nprinter");
    EXPECT_TRUE(data.starts_with("print \"\" Courier New 12 colour 0\n"
                                 "print \"********* TRANLP INPUT DATA *********\" Arial 14 colour 0\n"
                                 "print \"\" Courier New 12 colour 0\n"
                                 "print \"Problem label: Coal\" Courier New 12 colour 0\n"));
    EXPECT_NE(data.find("print \"Pit one         Port                     .50                   30\" "),
              std::string::npos)
        << data;
    EXPECT_NE(data.find("print \"Source capacity = 36\" "), std::string::npos);
}

// Files

TEST_F(TransportationWindow, LosesNothingToABadFile) {
    const Lines before = session.grid("Grid");
    for (const std::string& content : damagedForms(twoByThree)) {
        session.writeFile("TRANBAD.dat", content);
        const std::string told = session.play("file TRANBAD.dat\npress cmdOpen");
        if (told.find("MessageBx") == std::string::npos) { // still a problem; the grid shows it
            session.play("press cmdSolve\npress cmdReport\npress cmdContinue");
            session.play("file TRAN.dat\npress cmdOpen");
        }
        ASSERT_EQ(session.grid("Grid"), before) << content;
    }
}

TEST_F(TransportationWindow, TellsWhatIsWrongWithABadFile) {
    const auto told = [&](const std::string& content) {
        session.writeFile("TRANBAD.dat", content);
        const std::string transcript = session.play("file TRANBAD.dat\npress cmdOpen");
        return transcript.substr(transcript.find('\n') + 1);
    };
    EXPECT_EQ(told(""), "MessageBx \"TRANLP\": \"Input past end of file occurred in TRANLP, cmdOpen.\"\n");
    const std::string outOfRange =
        "MessageBx \"TRANLP\": \"Subscript out of range occurred in TRANLP, cmdOpen.\"\n";
    EXPECT_EQ(told("\"L\"\r\n-1,2\r\n"), outOfRange);
    EXPECT_EQ(told("\"L\"\r\n2,1000000\r\n"), outOfRange);
    EXPECT_EQ(told(twoByThree + "3,1,5\r\n"), outOfRange);
    EXPECT_EQ(told(twoByThree + "2,1,1E+999\r\n"),
              "MessageBx \"TRANLP\": \"Overflow occurred in TRANLP, cmdOpen.\"\n");
}

TEST_F(TransportationWindow, ForgetsTheProblemBeforeWhenItOpensAnother) {
    session.writeFile("TRANONE.dat", "\"One\"\r\n1,1\r\n\"A\",2\r\n\"x\",2\r\n");
    session.play("current Grid 3 4\nkey Grid 57\ncurrent Grid 3 1\ntype txtRowLabel Needs");
    session.play("file TRANONE.dat\npress cmdOpen");
    EXPECT_EQ(session.grid("Grid"), (Lines{"From\\To | x | Supply", "A |  | 2", "Demand | 2 | "}));
    EXPECT_EQ(session.play("show txtRows\nshow txtCols\nshow txtProbLabel"),
              "txtRows: visible enabled \"2\"\ntxtCols: visible enabled \"2\"\n"
              "txtProbLabel: visible enabled \"One\"\n");
}

// Rows added in the grid

/// A window of its own, with the answers of a user who is asked.
class AnsweredWindow {
  public:
    AnsweredWindow() : user_(transcript_, 800, 600), parts_(user_.parts()), suite_(parts_, {}) {
        suite_.ioFolder = suite_.installFolder = textOf(folder_.path()) + "/";
        window_ = std::make_unique<tranlp::TRANLP>(suite_);
        user_.queueFile("TRANNEW.dat");
        window_->press(*window_->find("cmdOpen"));
        transcript_.str({});
    }

    DataGrid& grid() { return dynamic_cast<DataGrid&>(*window_->find("Grid")); }

    std::string doubleClick(int row, const char* answer = nullptr) {
        transcript_.str({});
        if (answer != nullptr) user_.queueAnswer({.text = answer});
        window_->doubleClick(grid(), row, 2);
        return transcript_.str();
    }

    std::string insert() {
        transcript_.str({});
        window_->insertKey(grid());
        return transcript_.str();
    }

    void type(int row, int col, const std::string& text) { grid().setCell(row, col, text); }
    std::string rows() { return dynamic_cast<TextBox&>(*window_->find("txtRows")).text(); }

  private:
    TemporaryFolder folder_;
    std::ostringstream transcript_;
    ScriptPlatform user_;
    Platform parts_;
    Suite suite_;
    std::unique_ptr<tranlp::TRANLP> window_;
};

TEST(TransportationRows, AreAddedAtTheEndByADoubleClick) {
    AnsweredWindow window;
    EXPECT_EQ(window.doubleClick(2, "Yes"),
              "YesNoBx \"TRANLP\": \"Insert at end of list?  If no, insertion is at the designated grid "
              "row.\" -> Yes\n");
    EXPECT_EQ(window.rows(), "6");
    EXPECT_EQ(window.grid().cell(5, 0), "F5");
    EXPECT_EQ(window.grid().cell(6, 0), "Demand");
}

TEST(TransportationRows, AreInsertedAtTheDesignatedRow) {
    AnsweredWindow window;
    window.type(2, 0, "Leeds");
    window.type(2, 1, "7");
    window.type(4, 5, "12");
    window.doubleClick(2, "No");
    EXPECT_EQ(window.grid().cell(2, 0), "F2");
    EXPECT_EQ(window.grid().cell(2, 1), "");
    EXPECT_EQ(window.grid().cell(3, 0), "Leeds");
    EXPECT_EQ(window.grid().cell(3, 1), "7");
    EXPECT_EQ(window.grid().cell(4, 0), "F4");
    EXPECT_EQ(window.grid().cell(5, 0), "F5");
    EXPECT_EQ(window.grid().cell(5, 5), "12");
    EXPECT_EQ(window.grid().cell(6, 0), "Demand");
}

TEST(TransportationRows, StandInFrontOfTheDemandRow) {
    AnsweredWindow window;
    window.type(5, 1, "90");
    window.doubleClick(5, "No");
    EXPECT_EQ(window.grid().cell(5, 0), "F5");
    EXPECT_EQ(window.grid().cell(5, 1), "");
    EXPECT_EQ(window.grid().cell(6, 1), "90");
}

TEST(TransportationRows, AreNotAddedOnTheHeadingLine) {
    AnsweredWindow window;
    EXPECT_EQ(window.doubleClick(0),
              "MessageBx \"Information\": \"Select a grid row before adding a record.\"\n");
}

TEST(TransportationRows, EndAtThirty) {
    AnsweredWindow window;
    for (int row = 5; row <= 30; ++row) EXPECT_EQ(window.insert(), "");
    EXPECT_EQ(window.rows(), "31");
    EXPECT_EQ(window.insert(), "MessageBx \"Add a Row\": \"Too many rows.  Limit is 30\"\n");
    EXPECT_EQ(window.doubleClick(3), "MessageBx \"Add a Row\": \"Too many rows.  Limit is 30\"\n");
    EXPECT_EQ(window.grid().rows(), 32);
}

// The looks

TEST(TransportationForm, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession session(width, height);
        session.writeFile("TRAN.dat", twoByThree);
        session.play("module TRANLP");
        for (const char* step : {"title", "file TRAN.dat\npress cmdOpen", "press cmdSolve", "press cmdReport",
                                 "press cmdContinue"}) {
            session.play(step);
            EXPECT_EQ(formFaults(session.module()), Lines{}) << step << " at " << width;
        }
    }
}

TEST(TransportationForm, TellsInTipsWhatTheSizesCount) {
    ModuleSession session;
    session.play("module TRANLP");
    EXPECT_EQ(session.module().find("txtRows")->tip, "No. of matrix rows including demand row");
    EXPECT_EQ(session.module().find("txtCols")->tip, "No. of colums including supply column");
    EXPECT_EQ(
        session.play("show txtRows\nshow txtCols\nshow Grid"),
        "txtRows: visible disabled \"5\"\ntxtCols: visible disabled \"5\"\nGrid: hidden enabled \"\"\n");
}

} // namespace
} // namespace vantore::tests
