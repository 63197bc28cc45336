#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "mathprog/MIPROG/MIPROG.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/launcher.h"
#include "suite/module_list.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

using Lines = std::vector<std::string>;

const std::string crates = "\"Crates\",\"MAX\"\r\n"
                           "2,2\r\n"
                           "\"X1\",\"X2\"\r\n"
                           "1\r\n"
                           "1,\"INT\"\r\n"
                           "\"Hours\",3,2,\"<\",12\r\n"
                           "\"Space\",1,4,\"<\",16\r\n"
                           "5,4\r\n";

const std::string openDialog =
    "OpenDialog \"Open integer programming data file\" filter \"Integer programming "
    "(ILP*.dat)|ILP*.dat|\" -> ";
const std::string tooManyRows = "MessageBx \"MIPROG\": \"Maximum number of rows (50) has been exceeded\"\n";
const std::string tooManyColumns =
    "MessageBx \"MIPROG\": \"Maximum number of columns (99) has been exceeded\"\n";
const std::string noMinus =
    "MessageBx \"MIPROG\": \"The minus (-) key is pressed.  A negative RHS value is not permitted.\"\n";
const std::string head = "Variable\\\\nConstraint | X1 | X2 | Type,\\n<, =, > | RHS\\nValue";

class MiprogWindow : public testing::Test {
  protected:
    MiprogWindow() {
        session.writeFile("ILP01.dat", crates);
        session.open("MIPROG", "ILP01.dat");
    }

    void takeSolver() const {
        std::filesystem::create_symlink(MIP_PROGRAM, session.installFolder() / "MIP.EXE");
    }

    Lines grid() { return session.grid("Grid"); }
    std::string show(const std::string& control) { return session.play("show " + control); }

    ModuleSession session;
};

std::string together(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

// Opening

TEST_F(MiprogWindow, ShowsTheProblem) {
    EXPECT_EQ(grid(), (Lines{head, "Hours | 3 | 2 | < | 12", "Space | 1 | 4 | < | 16",
                             "Var. type | INT |  |  | ", "Obj. coef. | 5 | 4 |  | "}));
    EXPECT_EQ(show("txtTitle"), "txtTitle: visible enabled \"Crates\"\n");
    EXPECT_EQ(show("optMax"), "optMax: visible enabled selected \"Maximize\"\n");
    EXPECT_EQ(session.play("title"), "MIPROG - <io>ILP01.dat\n");
}

TEST_F(MiprogWindow, FitsItsColumnsToTheirHeadings) {
    session.writeFile("ILP02.dat", "P,MIN\n1,2\nXWarehouse,X2\n0\nR,1,1,<,1\n1,1\n");
    session.play("file ILP02.dat\npress cmdOpen");
    const auto* grid = dynamic_cast<const DataGrid*>(session.module().find("Grid"));
    EXPECT_EQ(grid->colWidth(1), 700 + 6 * 96);
    EXPECT_EQ(grid->colWidth(2), 700);
    EXPECT_EQ(grid->colWidth(0), 1000 + 5 * 96); // "Obj. coef."
    session.play("current Grid 1 1\ntype txtConLabel A constraint of much importance");
    EXPECT_EQ(grid->colWidth(0), 1000 + (31 - 5) * 96);
}

TEST_F(MiprogWindow, MakesANewProblem) {
    EXPECT_EQ(session.play("file ILPNEW.dat\npress cmdOpen"), openDialog + "ILPNEW.dat\n");
    EXPECT_EQ(grid(), (Lines{"Variable\\\\nConstraint | X1 | Type,\\n<, =, > | RHS\\nValue", "1 | 0 |  | 0",
                             "Var. type |  |  | ", "Obj. coef. | 0 |  | "}));
    EXPECT_EQ(session.readFile("ILPNEW.dat"),
              "\"Enter label\",\"MAX\"\r\n1,1\r\n\"X1\"\r\n0\r\n\"1\",0,\"\",0\r\n0\r\n");
}

TEST_F(MiprogWindow, OpensAProblemWithoutConstraintsAndVariables) {
    session.writeFile("ILPNONE.dat", "Nothing,MIN\r\n0,0\r\n0\r\n");
    session.play("file ILPNONE.dat\npress cmdOpen");
    EXPECT_EQ(grid(), (Lines{"Variable\\\\nConstraint | Type,\\n<, =, > | RHS\\nValue", "Var. type |  | ",
                             "Obj. coef. |  | "}));
    session.play("answer No\npress cmdSolve");
    EXPECT_EQ(session.readFile("TEMP.DAT"), "-1\r\n0,0,0,0,0\r\n\r\n\r\n\r\n\r\n\r\n0\r\n\r\n");
    session.play("type txtRows 1\ntype txtCols 1");
    EXPECT_EQ(grid().at(1), "1 |  |  | ");
}

TEST_F(MiprogWindow, LosesNothingToABadFile) {
    const std::string before = together(grid());
    for (const std::string& form : damagedForms(crates)) {
        session.writeFile("ILPBAD.dat", form);
        const std::string told = session.play("file ILPBAD.dat\npress cmdOpen");
        const bool bad = told.find("MessageBx") != std::string::npos;
        EXPECT_EQ(session.readFile("ILPBAD.dat"), form);
        if (bad) {
            EXPECT_NE(told.find(" occurred in MIPROG, cmdOpen.\""), std::string::npos) << told;
            EXPECT_EQ(together(grid()), before) << form;
        }
        session.play("file ILP01.dat\npress cmdOpen");
    }
}

TEST_F(MiprogWindow, RefusesAFileThatIsTooLarge) {
    session.writeFile("ILPBIG.dat", "P,MAX\r\n51,2\r\n");
    EXPECT_EQ(session.play("file ILPBIG.dat\npress cmdOpen"),
              openDialog + "ILPBIG.dat\nMessageBx \"MIPROG\": \"Subscript out of range occurred in MIPROG, "
                           "cmdOpen.\"\n");
    session.writeFile("ILPBIG.dat", "P,MAX\r\n2,100\r\n");
    EXPECT_NE(session.play("file ILPBIG.dat\npress cmdOpen").find("Subscript out of range"),
              std::string::npos);
}

// Typing

TEST_F(MiprogWindow, CyclesTypesByClicksInTheirRowOnly) {
    session.play(
        "click Grid 3 1\nclick Grid 3 2\nclick Grid 1 1\nclick Grid 3 3\nclick Grid 3 0\nclick Grid 4 1");
    EXPECT_EQ(grid().at(3), "Var. type | 0,1 | INT |  | ");
    session.play("click Grid 3 1\nclick Grid 3 2");
    EXPECT_EQ(grid().at(3), "Var. type |  | 0,1 |  | ");
    session.play("current Grid 3 1\nkey Grid 32");
    EXPECT_EQ(grid().at(3), "Var. type | INT | 0,1 |  | ");
}

TEST_F(MiprogWindow, TakesRelationsOnlyInTheTypeColumn) {
    session.play("cell Grid 1 3 x<5,>");
    EXPECT_EQ(grid().at(1), "Hours | 3 | 2 | <> | 12");
    session.play("current Grid 1 3\nkey Grid 8");
    EXPECT_EQ(grid().at(1), "Hours | 3 | 2 | < | 12");
    session.play("key Grid 27\nkey Grid 61");
    EXPECT_EQ(grid().at(1), "Hours | 3 | 2 | = | 12");
}

TEST_F(MiprogWindow, RefusesAMinusInARightHandSide) {
    EXPECT_EQ(session.play("cell Grid 2 4 -7.5-"), noMinus + noMinus);
    EXPECT_EQ(grid().at(2), "Space | 1 | 4 | < | 7.5");
    EXPECT_EQ(session.play("cell Grid 2 2 -7"), "");
    EXPECT_EQ(grid().at(2), "Space | 1 | -7 | < | 7.5");
}

TEST_F(MiprogWindow, AppendsNoRowOnInsert) {
    session.play("insert Grid");
    EXPECT_EQ(grid().size(), 5U);
}

TEST_F(MiprogWindow, NamesTheSelectedConstraintAndVariable) {
    session.play("current Grid 2 1");
    EXPECT_EQ(show("txtConLabel"), "txtConLabel: visible enabled \"Space\"\n");
    EXPECT_EQ(show("txtVarLabel"), "txtVarLabel: visible enabled \"X1\"\n");
    session.play("type txtVarLabel XTruck\ntype txtConLabel Floor");
    EXPECT_EQ(grid().at(0), "Variable\\\\nConstraint | XTruck | X2 | Type,\\n<, =, > | RHS\\nValue");
    EXPECT_EQ(grid().at(2).substr(0, 9), "Floor | 1");
    session.play("current Grid 4 4\ntype txtConLabel Nothing\ntype txtVarLabel Nothing");
    EXPECT_EQ(grid().at(4).substr(0, 10), "Obj. coef.");
    EXPECT_EQ(grid().at(0), "Variable\\\\nConstraint | XTruck | X2 | Type,\\n<, =, > | RHS\\nValue");
    session.play("current Grid 3 3");
    EXPECT_EQ(show("txtConLabel"), "txtConLabel: visible enabled \"\"\n");
}

TEST_F(MiprogWindow, UndoesALabelWhereItWasGiven) {
    session.play("current Grid 1 1\ntype txtVarLabel XTruck\ncurrent Grid 2 2");
    Form& form = session.module();
    form.undo();
    EXPECT_EQ(grid().at(0), head);
    form.redo();
    EXPECT_EQ(grid().at(0), "Variable\\\\nConstraint | XTruck | X2 | Type,\\n<, =, > | RHS\\nValue");
}

TEST_F(MiprogWindow, UndoesAClickOnAType) {
    session.play("click Grid 3 1");
    session.module().undo();
    EXPECT_EQ(grid().at(3), "Var. type | INT |  |  | ");
}

TEST_F(MiprogWindow, LeavesTheTypeOutOfColumnArithmetic) {
    session.play("select Grid 1 1 4 1\nanswer 3\nanswer 10\npress cmdColArith");
    EXPECT_EQ(grid(), (Lines{head, "Hours | 30 | 2 | < | 12", "Space | 10 | 4 | < | 16",
                             "Var. type | INT |  |  | ", "Obj. coef. | 50 | 4 |  | "}));
    EXPECT_EQ(session.play("current Grid 1 3\npress cmdColArith"),
              "MessageBx \"MIPROG\": \"Column arithmetic does not apply to this column.\"\n");
    const std::string sum = session.play("select Grid 1 4 2 4\nanswer 1\npress cmdColArith");
    EXPECT_NE(sum.find("MessageBx \"MIPROG\": \"The sum is:  28\""), std::string::npos) << sum;
}

// Sizes

TEST_F(MiprogWindow, KeepsCellsByTheirRoleWhenItsSizeChanges) {
    session.play("type txtRows 3\ntype txtCols 3");
    EXPECT_EQ(grid(), (Lines{"Variable\\\\nConstraint | X1 | X2 | X3 | Type,\\n<, =, > | RHS\\nValue",
                             "Hours | 3 | 2 |  | < | 12", "Space | 1 | 4 |  | < | 16", "3 |  |  |  |  | ",
                             "Var. type | INT |  |  |  | ", "Obj. coef. | 5 | 4 |  |  | "}));
    session.play("type txtRows 1\ntype txtCols 1");
    EXPECT_EQ(grid(), (Lines{"Variable\\\\nConstraint | X1 | Type,\\n<, =, > | RHS\\nValue",
                             "Hours | 3 | < | 12", "Var. type | INT |  | ", "Obj. coef. | 5 |  | "}));
}

TEST_F(MiprogWindow, RefusesSizesBeyondItsLimits) {
    EXPECT_EQ(session.play("type txtRows 51"), tooManyRows);
    EXPECT_EQ(show("txtRows"), "txtRows: visible enabled \"2\"\n");
    EXPECT_EQ(session.play("type txtCols 100"), tooManyColumns);
    EXPECT_EQ(show("txtCols"), "txtCols: visible enabled \"2\"\n");
    EXPECT_EQ(grid().size(), 5U);
    EXPECT_EQ(session.play("type txtRows 50\ntype txtCols 99"), "");
    EXPECT_EQ(grid().size(), 53U);
    EXPECT_EQ(grid().at(50).substr(0, 5), "50 | ");
}

TEST_F(MiprogWindow, DoesNothingForASizeThatIsNone) {
    for (const char* text : {"\"\"", "0", "-3", "many"}) {
        EXPECT_EQ(session.play("type txtRows " + std::string(text)), "");
        EXPECT_EQ(grid().size(), 5U);
    }
    session.play("leave txtRows");
    EXPECT_EQ(show("txtRows"), "txtRows: visible enabled \"2\"\n");
    session.play("type txtCols \"\"\npress cmdResize");
    EXPECT_EQ(show("txtCols"), "txtCols: visible enabled \"2\"\n");
}

TEST_F(MiprogWindow, LosesNoCellsWhileASizeIsTypedDigitByDigit) {
    session.play("type txtRows 1\ntype txtRows 12");
    EXPECT_EQ(grid().at(2), "Space | 1 | 4 | < | 16");
    session.play("type txtCols 1\ntype txtCols 10");
    EXPECT_EQ(grid().at(1).substr(0, 13), "Hours | 3 | 2");
    session.play("type txtRows 5");
    EXPECT_EQ(session.play("type txtRows 55"), tooManyRows);
    EXPECT_EQ(show("txtRows"), "txtRows: visible enabled \"12\"\n");
    EXPECT_EQ(grid().size(), 15U);
}

// Saving

TEST_F(MiprogWindow, SavesWhatItShows) {
    session.play(
        "type txtTitle Boxes\npress optMin\ncell Grid 1 2 \"\"\ncell Grid 2 3 \"\"\ncell Grid 2 4 \"\"");
    session.play("click Grid 3 2\nclick Grid 3 2\nfile ILP02.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("ILP02.dat"),
              "\"Boxes\",\"MIN\"\r\n2,2\r\n\"X1\",\"X2\"\r\n2\r\n1,\"INT\"\r\n"
              "2,\"0,1\"\r\n\"Hours\",3,0,\"<\",12\r\n\"Space\",1,4,\"\",0\r\n5,4\r\n");
    EXPECT_EQ(grid().at(1), "Hours | 3 | 0 | < | 12");
    EXPECT_EQ(grid().at(2), "Space | 1 | 4 |  | 0");
    EXPECT_EQ(grid().at(3), "Var. type | INT | 0,1 |  | ");
}

TEST_F(MiprogWindow, SavesAFileAsItWasOpened) {
    session.play("file ILP02.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("ILP02.dat"), crates);
}

// Solving

TEST_F(MiprogWindow, ShowsTheSolversReport) {
    takeSolver();
    const std::string told = session.play("answer Yes\npress cmdSolve");
    EXPECT_TRUE(told.ends_with("Continue with execution?\" -> Yes\nrun MIP.EXE\n")) << told;
    const Lines report = session.report();
    EXPECT_EQ(report.at(0), " MIXED INTEGER LINEAR PROGRAMMING RESULTS");
    EXPECT_EQ(report.at(1), "STATUS: OPTIMAL");
    const auto value = std::find_if(report.begin(), report.end(),
                                    [](const auto& line) { return line.starts_with("Objective value "); });
    ASSERT_NE(value, report.end());
    EXPECT_TRUE(value->ends_with(" 22")); // v1 = 2, v2 = 3
    EXPECT_EQ(together(readLines(session.ioFolder() / "OUTPUT.Dat")),
              together(Lines(report.begin() + 1, report.end())));
}

TEST_F(MiprogWindow, PrintsTheReportUnderItsHead) {
    takeSolver();
    session.play("answer Yes\npress cmdSolve");
    const std::string printed = session.play("press cmdPrintOut\nprinter");
    EXPECT_TRUE(printed.starts_with("print \" MIXED INTEGER LINEAR PROGRAMMING RESULTS\" Arial 12 colour 0\n"
                                    "print \"STATUS: OPTIMAL\" Courier New 10 colour 0\n"))
        << printed;
    EXPECT_TRUE(printed.ends_with("end\n"));
}

TEST_F(MiprogWindow, ColoursTheHeadOfTheReport) {
    takeSolver();
    session.play("answer Yes\npress cmdSolve");
    const auto* box = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    ASSERT_GT(box->lines().size(), 2U);
    EXPECT_EQ(box->lines().at(0).colour, colour::lightBlue);
    EXPECT_EQ(box->lines().at(1).colour, colour::black);
    EXPECT_EQ(box->lines().at(1).font.family, "Courier New");
}

TEST_F(MiprogWindow, StartsNothingOnNo) {
    takeSolver();
    const std::string told = session.play("answer No\npress cmdSolve\nshow cmdSolve");
    EXPECT_EQ(told.find("run "), std::string::npos);
    EXPECT_TRUE(told.ends_with("cmdSolve: visible enabled \"&Solve\"\n"));
    EXPECT_TRUE(session.fileExists("TEMP.DAT"));
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(MiprogWindow, ReportsAMissingSolverWithoutAnyReport) {
    const std::string told = session.play("answer Yes\npress cmdSolve\nshow cmdSolve\nshow Grid");
    EXPECT_TRUE(
        told.ends_with("run MIP.EXE failed\nMessageBx \"MIPROG\": \"File not found occurred in MIPROG, "
                       "cmdSolve.\"\ncmdSolve: visible enabled \"&Solve\"\nGrid: visible enabled \"\"\n"))
        << told;
}

TEST_F(MiprogWindow, WritesNothingWithARelationMissing) {
    const std::string told = session.play("cell Grid 2 3 \"\"\npress cmdSolve");
    EXPECT_EQ(told, "MessageBx \"MIPROG\": \"Error in variable type.  Check input data.\"\n");
    EXPECT_FALSE(session.fileExists("TEMP.DAT"));
}

TEST_F(MiprogWindow, ReportsANumberThatIsTooLarge) {
    EXPECT_EQ(session.play("cell Grid 1 1 1E999\npress cmdSolve"),
              "MessageBx \"MIPROG\": \"Overflow occurred in MIPROG, cmdSolve.\"\n");
    EXPECT_FALSE(session.fileExists("TEMP.DAT"));
}

// Print data

TEST_F(MiprogWindow, PrintsItsInputData) {
    session.play("press cmdPrintData");
    EXPECT_EQ(
        session.report(),
        (Lines{"                         INPUT DATA", "", "Problem label: Crates", "Objective: Maximize", "",
               "Variable/               X1          X2        Type         RHS", "Constraint",
               "Hours                    3           2           <          12",
               "Space                    1           4           <          16", "Var. type              INT",
               "Obj. coef.               5           4"}));
    EXPECT_EQ(readLines(session.ioFolder() / "OUTPUT.DAT").front(), "                         INPUT DATA");
    session.play("press cmdContinue");
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_F(MiprogWindow, PrintsAWideProblemInPanelsThatLineUp) {
    session.play(
        "type txtCols 7\ncell Grid 1 6 -12345678901234567\ncell Grid 2 7 1E-300\npress cmdPrintData");
    const Lines report = session.report();
    EXPECT_EQ(report.at(5), "Variable/               X1          X2          X3          X4          X5");
    EXPECT_EQ(report.at(12), "Variable/               X6          X7        Type         RHS");
    EXPECT_EQ(report.at(14), "Hours          -1.2346E+16           0           <          12");
    EXPECT_EQ(report.at(15), "Space                    0      1E-300           <          16");
}

// The window

TEST_F(MiprogWindow, HasNoFaultsInAnyView) {
    struct Screen {
        int width, height;
    };
    for (const Screen screen : std::array<Screen, 3>{{{800, 600}, {1024, 768}, {1920, 1080}}}) {
        ModuleSession each(screen.width, screen.height);
        each.writeFile("ILP01.dat", crates);
        each.writeFile("OUTPUT.Dat", "STATUS\r\n");
        each.play("module MIPROG");
        EXPECT_EQ(together(formFaults(each.module())), "");
        each.play("file ILP01.dat\npress cmdOpen");
        EXPECT_EQ(together(formFaults(each.module())), "");
        each.play("answer Yes\npress cmdSolve");
        EXPECT_EQ(each.module().view(), View::Report);
        EXPECT_EQ(together(formFaults(each.module())), "");
    }
}

TEST_F(MiprogWindow, OffersInEachViewWhatBelongsThere) {
    session.writeFile("OUTPUT.Dat", "STATUS\r\n");
    const auto visible = [this] {
        std::string names;
        for (const auto& control : session.module().controls())
            if (control->shown() && dynamic_cast<const Button*>(control.get()) != nullptr)
                names += control->name + " ";
        return names;
    };
    EXPECT_EQ(visible(), "cmdOpen cmdSave cmdSolve cmdPrintData cmdExit cmdColArith cmdExcel cmdResize ");
    session.play("answer Yes\npress cmdSolve");
    EXPECT_EQ(visible(), "cmdContinue cmdPrintOut ");
    session.play("press cmdContinue\npress cmdExcel");
    EXPECT_EQ(visible(), "cmdOpen cmdSave cmdSolve cmdPrintData cmdExit cmdColArith cmdExcel cmdResize ");
}

/// A user who watches the solver for a while and presses Ctrl+C.
class WatchingUser : public ScriptPlatform {
  public:
    explicit WatchingUser(std::ostream& out) : ScriptPlatform(out, 800, 600) {}

    void processEvents() override {
        ScriptPlatform::processEvents();
        note = module->runningNote;
        for (const auto& control : module->controls())
            buttonsSeen =
                buttonsSeen || (control->shown() && dynamic_cast<Button*>(control.get()) != nullptr);
        if (++steps == stepsOfPatience) module->interrupt();
    }

    static constexpr int stepsOfPatience = 500; // of at least 2 ms
    ModuleFrame* module = nullptr;
    int steps = 0;
    bool buttonsSeen = false;
    std::string note;
};

TEST_F(MiprogWindow, StaysAliveWhileTheSolverRunsAndStopsItOnCtrlC) {
    takeSolver();
    std::filesystem::copy_file(VANTORE_SOURCE_FOLDER "/tests/data/market_split/ILPSPLIT.dat",
                               session.ioFolder() / "ILP02.dat");
    std::ostringstream transcript;
    WatchingUser user(transcript);
    Platform parts = user.parts();
    Suite suite(parts, moduleList());
    suite.ioFolder = textOf(session.ioFolder()) + "/";
    suite.installFolder = textOf(session.installFolder());
    Launcher launcher(suite);
    launcher.press(*launcher.moduleButton("MIPROG"));
    user.module = dynamic_cast<ModuleFrame*>(suite.windows.front());
    user.queueFile("ILP02.dat");
    user.module->press(*user.module->find("cmdOpen"));
    user.queueAnswer({.text = "Yes"});
    user.module->press(*user.module->find("cmdSolve"));
    EXPECT_GE(user.steps, WatchingUser::stepsOfPatience);
    EXPECT_FALSE(user.buttonsSeen);
    EXPECT_TRUE(user.note.starts_with("MIP.EXE is stopping, 0:0")) << user.note;
    EXPECT_EQ(user.module->runningNote, "");
    EXPECT_EQ(user.module->view(), View::Report);
    const auto* report = dynamic_cast<const ReportScreen*>(user.module->find("rtbOut"));
    EXPECT_EQ(report->lines().at(1).text, "STATUS: STOPPED");
}

} // namespace
} // namespace vantore::tests
