#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

const std::string goodFile = "\"Dock hours\",2,2\r\n"
                             "2\r\n"
                             "1,\"<\",30\r\n"
                             "2,\"<\",45\r\n"
                             "1,1,2\r\n"
                             "1,2,1\r\n"
                             "2,1,1\r\n"
                             "2,2,3\r\n"
                             "3,1,-3\r\n"
                             "3,2,-4\r\n";

using Texts = std::vector<std::string>;

class LnprogWindow : public testing::Test {
  protected:
    void SetUp() override {
        session.writeFile("FLPDOCK.dat", goodFile);
        session.open("LNPROG", "FLPDOCK.dat");
    }

    /// The row of the grid, counted from the headings at 0.
    std::string row(std::size_t number) { return session.grid("Grid").at(number); }

    ModuleSession session;
};

TEST_F(LnprogWindow, ShowsTheFile) {
    EXPECT_EQ(session.grid("Grid"),
              (Texts{"Variable\\\\nContraint | X1 | X2 | Type,\\n<, =, > | RHS\\nValue", "1 | 2 | 1 | < | 30",
                     "2 | 1 | 3 | < | 45", "Obj. coef. | -3 | -4 |  | "}));
    EXPECT_EQ(session.play("show txtTitle\nshow txtRows\nshow txtCols\ntitle"),
              "txtTitle: visible enabled \"Dock hours\"\ntxtRows: visible enabled \"2\"\n"
              "txtCols: visible enabled \"2\"\nLNPROG - <io>FLPDOCK.dat\n");
}

TEST_F(LnprogWindow, WidensTheColumnsOfItsDesignToTheirTexts) {
    const auto& grid = dynamic_cast<const DataGrid&>(*session.module().find("Grid"));
    EXPECT_EQ(grid.colWidth(0), 1000);
    EXPECT_EQ(grid.colWidth(2), 450);
    EXPECT_EQ(grid.colWidth(grid.cols() - 2), 450 + 4 * 96); // "<, =, >" has four characters more than fit
    session.play("cell Grid 1 2 12345.5");
    EXPECT_EQ(grid.colWidth(2), 450 + 4 * 96);
    session.play("cell Grid 1 2 7");
    EXPECT_EQ(grid.colWidth(2), 450);
}

TEST_F(LnprogWindow, OffersInEachViewWhatBelongsThere) {
    const Texts dataControls = {"txtTitle", "txtRows",   "txtCols",      "Grid",
                                "cmdOpen",  "cmdSave",   "cmdPrintData", "cmdSolve",
                                "cmdExit",  "cmdResize", "cmdColArith",  "cmdExcel"};
    const Texts reportControls = {"rtbOut", "cmdPrintOut", "cmdContinue"};
    const auto expect = [&](bool data) {
        for (const std::string& name : dataControls)
            EXPECT_EQ(session.module().find(name)->shown(), data) << name;
        for (const std::string& name : reportControls)
            EXPECT_EQ(session.module().find(name)->shown(), !data) << name;
    };
    expect(true);
    session.play("press cmdSolve");
    expect(false);
    session.play("press cmdContinue");
    expect(true);
    session.play("press cmdPrintData");
    expect(false);
}

TEST_F(LnprogWindow, ReportsTheOptimum) {
    session.play("press cmdSolve");
    EXPECT_EQ(session.report(),
              (Texts{" LINEAR PROGRAMMING RESULTS", "", "Problem label: Dock hours", "", "SUMMARY OF RESULTS",
                     "", "  Basis        Activity Nonbasis     Opportunity",
                     "  variables    level    variables    cost", "  X(1)         9        --           --",
                     "  X(2)         12       --           --", "  --           --       X(3)         1",
                     "  --           --       X(4)         1", "", "Objective function value (Z) = 75"}));
}

TEST_F(LnprogWindow, ShowsTheReportInItsFonts) {
    session.play("press cmdSolve");
    const auto& lines = dynamic_cast<const ReportScreen&>(*session.module().find("rtbOut")).lines();
    ASSERT_EQ(lines.size(), 14U);
    EXPECT_EQ(lines[0].font.size, 10);
    EXPECT_EQ(lines[0].colour, 9);
    EXPECT_EQ(lines[1].font, (Font{"Courier New", 8, false}));
    EXPECT_EQ(lines[1].colour, 0);
}

TEST_F(LnprogWindow, PrintsTheReport) {
    session.play("press cmdSolve\npress cmdPrintOut");
    const std::string printed = session.play("printer");
    EXPECT_TRUE(printed.starts_with("print \" LINEAR PROGRAMMING RESULTS\" Arial 12 colour 0\n"
                                    "print \"\" Courier New 10 colour 0\n"))
        << printed;
    EXPECT_TRUE(
        printed.ends_with("print \"Objective function value (Z) = 75\" Courier New 10 colour 0\nend\n"));
}

TEST_F(LnprogWindow, ShowsTheSetUpAsATableau) {
    session.play("press cmdPrintData");
    const Texts report = session.report();
    ASSERT_EQ(report.size(), 11U);
    EXPECT_EQ(report[0], std::string(31, ' ') + "LINEAR PROGRAMMING");
    EXPECT_EQ(report[3], " ");
    EXPECT_EQ(report[4], "PROBLEM SETUP");
    EXPECT_EQ(report[6], " Row  BASIS   VALUES         X(1)           X(2)           X(3)           X(4)");
    EXPECT_EQ(report[7], " 1    X(3)    30.            2.             1.             1.             0.");
    EXPECT_EQ(report[9], " 3    Z       0.             -3.            -4.            0.             0.");
    EXPECT_EQ(report[10], "");
}

// Typing

TEST_F(LnprogWindow, TakesOnlyRelationsInTheTypeColumn) {
    session.play("cell Grid 1 3 a>5,\ncell Grid 3 3 x=");
    EXPECT_EQ(row(1), "1 | 2 | 1 | > | 30");
    EXPECT_EQ(row(3), "Obj. coef. | -3 | -4 | = | ");
    session.play("current Grid 1 3\nkey Grid 8");
    EXPECT_EQ(row(1), "1 | 2 | 1 |  | 30");
}

TEST_F(LnprogWindow, TakesNoKeyUnderTheObjectivesRightSide) {
    session.play("cell Grid 3 4 12\nkey Grid 27\nkey Grid 8");
    EXPECT_EQ(row(3), "Obj. coef. | -3 | -4 |  | ");
}

TEST_F(LnprogWindow, TakesAnythingElsewhereButCommaQuoteAndEnter) {
    session.play("cell Grid 1 1 \"1,5\"x <\"\nkey Grid 13");
    EXPECT_EQ(row(1), "1 | 15x < | 1 | < | 30");
    session.play("current Grid 1 1\nkey Grid 8\nkey Grid 44\nkey Grid 34");
    EXPECT_EQ(row(1), "1 | 15x  | 1 | < | 30");
    session.play("key Grid 27");
    EXPECT_EQ(row(1), "1 |  | 1 | < | 30");
}

TEST_F(LnprogWindow, RefusesArithmeticInColumnsWithoutNumbers) {
    const std::string refused =
        "MessageBx \"LNPROG\": \"Column arithmetic does not apply to this column.\"\n";
    EXPECT_EQ(session.play("select Grid 1 3 2 3\npress cmdColArith"), refused);
    EXPECT_EQ(session.play("select Grid 1 0 2 0\npress cmdColArith"), refused);
}

TEST_F(LnprogWindow, ComputesRightSidesAndCoefficients) {
    session.play("select Grid 1 4 2 4\nanswer 3\nanswer 2\npress cmdColArith");
    session.play("select Grid 2 1 3 1\nanswer 2\nanswer .5\npress cmdColArith");
    EXPECT_EQ(row(1), "1 | 2 | 1 | < | 60");
    EXPECT_EQ(row(2), "2 | 1.5 | 3 | < | 90");
    EXPECT_EQ(row(3), "Obj. coef. | -2.5 | -4 |  | ");
    EXPECT_EQ(
        session.play("select Grid 1 1 2 1\nanswer 2\nanswer many\npress cmdColArith"),
        "InputBx \"Selections for Column Arithmetic\": \"Select the number of the appropriate "
        "action:\\n(1) Sum\\n(2) Add\\n(3) Multiply\\n(4) Exponentiate\\n(5) Replace\" [\"Enter a value\"] "
        "-> \"2\"\n"
        "InputBx \"Add value for Column Arithmetic\": \"The add value is?\" [\"Enter a value\"] -> "
        "\"many\"\nMessageBx \"LNPROG\": \"Type mismatch occurred in LNPROG, cmdColArith.\"\n");
}

// Sizes

TEST_F(LnprogWindow, HoldsItsSizesUntilResize) {
    session.play("type txtRows 3\ntype txtCols 3");
    EXPECT_EQ(session.grid("Grid").size(), 4U);
    session.play("press cmdResize\ntype txtRows 3\ntype txtCols 3");
    EXPECT_EQ(session.grid("Grid"),
              (Texts{"Variable\\\\nContraint | X1 | X2 | X3 | Type,\\n<, =, > | RHS\\nValue",
                     "1 | 2 | 1 |  | < | 30", "2 | 1 | 3 |  | < | 45", "3 |  |  |  |  | ",
                     "Obj. coef. | -3 | -4 |  |  | "}));
}

TEST_F(LnprogWindow, CutsTheTableAndKeepsItsRoles) {
    session.play("press cmdResize\ntype txtRows 1\ntype txtCols 1");
    EXPECT_EQ(session.grid("Grid"), (Texts{"Variable\\\\nContraint | X1 | Type,\\n<, =, > | RHS\\nValue",
                                           "1 | 2 | < | 30", "Obj. coef. | -3 |  | "}));
}

TEST_F(LnprogWindow, TakesTheLargestSizesAndRefusesLargerOnes) {
    session.play("press cmdResize\ntype txtRows 50\ntype txtCols 100");
    EXPECT_EQ(session.grid("Grid").size(), 52U);
    EXPECT_EQ(session.play("type txtRows 51\nshow txtRows"),
              "MessageBx \"LNPROG\": \"Maximum number of rows (50) has been exceeded\"\n"
              "txtRows: visible enabled \"50\"\n");
    EXPECT_EQ(session.play("type txtCols 1E+30\nshow txtCols"),
              "MessageBx \"LNPROG\": \"Maximum number of columns (100) has been exceeded\"\n"
              "txtCols: visible enabled \"100\"\n");
    EXPECT_EQ(session.grid("Grid").size(), 52U);
    EXPECT_EQ(row(1).substr(0, 10), "1 | 2 | 1 ");
}

TEST_F(LnprogWindow, RefusesANegativeSize) {
    EXPECT_EQ(session.play("press cmdResize\ntype txtRows -1\nshow txtRows\ntype txtCols -7\nshow txtCols"),
              "MessageBx \"LNPROG\": \"Subscript out of range occurred in LNPROG, txtRows.\"\n"
              "txtRows: visible enabled \"2\"\n"
              "MessageBx \"LNPROG\": \"Subscript out of range occurred in LNPROG, txtCols.\"\n"
              "txtCols: visible enabled \"2\"\n");
    EXPECT_EQ(session.grid("Grid").size(), 4U);
}

TEST_F(LnprogWindow, LetsNoSizeThatWasNotTakenStand) {
    EXPECT_EQ(session.play("type txtRows 1\nleave txtRows\nshow txtRows\n"
                           "press cmdResize\ntype txtCols \"\"\nleave txtCols\nshow txtCols"),
              "txtRows: visible enabled \"2\"\ntxtCols: visible enabled \"2\"\n");
    EXPECT_EQ(row(3), "Obj. coef. | -3 | -4 |  | ");
}

TEST_F(LnprogWindow, ReportsSizesThatTheGridHasNot) {
    EXPECT_EQ(
        session.play("type txtRows 9\npress cmdSolve\nfile FLPNEW.dat\npress cmdSave"),
        "MessageBx \"LNPROG\": \"Subscript out of range occurred in LNPROG, cmdSolve.\"\n"
        "SaveDialog \"Save linear programming data\" filter \"Linear programming (FLP*.dat)|FLP*.dat|\" -> "
        "FLPNEW.dat\nMessageBx \"LNPROG\": \"Subscript out of range occurred in LNPROG, cmdSave.\"\n");
    EXPECT_FALSE(session.fileExists("FLPNEW.dat"));
}

TEST_F(LnprogWindow, HoldsItsSizesAgainAfterOpen) {
    session.play("press cmdResize\ntype txtRows 5\nfile FLPDOCK.dat\npress cmdOpen\ntype txtRows 4");
    EXPECT_EQ(session.grid("Grid").size(), 4U);
}

// Files

TEST_F(LnprogWindow, SavesWhatItOpened) {
    session.play("file FLPCOPY.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("FLPCOPY.dat"), goodFile);
}

TEST_F(LnprogWindow, MakesANewProblem) {
    session.play("file FLPNEW.dat\npress cmdOpen");
    EXPECT_EQ(session.readFile("FLPNEW.dat"), "\"Enter label\",1,1\r\n1\r\n1,\"\",0\r\n");
    EXPECT_EQ(session.grid("Grid").size(), 3U);
    EXPECT_EQ(session.play("press cmdSolve"), "");
    EXPECT_EQ(session.report().back(), "Objective function value (Z) = 0");
}

TEST_F(LnprogWindow, LosesNothingToABadFile) {
    const Texts before = session.grid("Grid");
    for (const std::string& content : damagedForms(goodFile)) {
        ModuleSession fresh;
        fresh.writeFile("FLPDOCK.dat", goodFile);
        fresh.writeFile("FLPBAD.dat", content);
        fresh.open("LNPROG", "FLPDOCK.dat");
        const std::string played = fresh.play("file FLPBAD.dat\npress cmdOpen");
        const bool refused = played.find("MessageBx") != std::string::npos;
        if (refused) {
            EXPECT_TRUE(played.ends_with(" occurred in LNPROG, cmdOpen.\"\n")) << played;
            EXPECT_EQ(fresh.grid("Grid"), before) << content;
        }
        fresh.play("press cmdSolve");
        EXPECT_EQ(fresh.readFile("FLPBAD.dat"), content);
    }
}

TEST_F(LnprogWindow, NamesWhatIsWrongWithAFile) {
    const auto messageFor = [&](const std::string& content) {
        session.writeFile("FLPBAD.dat", content);
        const std::string played = session.play("file FLPBAD.dat\npress cmdOpen");
        return played.substr(std::min(played.find('\n') + 1, played.size()));
    };
    const std::string place = " occurred in LNPROG, cmdOpen.\"\n";
    EXPECT_EQ(messageFor(""), "MessageBx \"LNPROG\": \"Input past end of file" + place);
    EXPECT_EQ(messageFor("\"A\",51,2\r\n"), "MessageBx \"LNPROG\": \"Subscript out of range" + place);
    EXPECT_EQ(messageFor("\"A\",-1,2\r\n"), "MessageBx \"LNPROG\": \"Subscript out of range" + place);
    EXPECT_EQ(messageFor("\"A\",1,1000000\r\n"), "MessageBx \"LNPROG\": \"Subscript out of range" + place);
    EXPECT_EQ(messageFor(goodFile + "4,1,1"), "MessageBx \"LNPROG\": \"Subscript out of range" + place);
    EXPECT_EQ(messageFor(goodFile + "1,1"), "MessageBx \"LNPROG\": \"Input past end of file" + place);
    EXPECT_EQ(messageFor(goodFile + "1,1,1E+999"), "MessageBx \"LNPROG\": \"Overflow" + place);
    EXPECT_EQ(messageFor(goodFile), "");
}

TEST_F(LnprogWindow, ReportsAnOverflowAndStaysWithItsData) {
    EXPECT_EQ(
        session.play("cell Grid 1 1 1E-300\ncell Grid 2 1 1E-300\ncell Grid 1 4 1E300\ncell Grid 3 1 -9\n"
                     "press cmdSolve\nshow cmdSolve"),
        "MessageBx \"LNPROG\": \"Overflow occurred in LNPROG, cmdSolve.\"\n"
        "cmdSolve: visible enabled \"&Solve\"\n");
}

TEST_F(LnprogWindow, TellsOfTheSpreadsheet) {
    EXPECT_EQ(
        session.play("press cmdExcel"),
        "MessageBx \"Information\": \"In EXCEL, open the template file GenlEdit.XLS in folder where VANTORE "
        "is installed.\"\nspreadsheet\n");
}

TEST(LnprogWindowPlaces, HaveNoFaultsInAnyView) {
    for (const auto& [width, height] :
         std::array<std::pair<int, int>, 3>{{{800, 600}, {1024, 768}, {1920, 1080}}}) {
        ModuleSession session(width, height);
        session.writeFile("FLPDOCK.dat", goodFile);
        session.play("module LNPROG");
        EXPECT_EQ(formFaults(session.module()), Texts{}) << "start " << width;
        session.play("file FLPDOCK.dat\npress cmdOpen");
        EXPECT_EQ(formFaults(session.module()), Texts{}) << "data " << width;
        session.play("press cmdSolve");
        EXPECT_EQ(session.module().view(), View::Report);
        EXPECT_EQ(formFaults(session.module()), Texts{}) << "report " << width;
    }
}

} // namespace
} // namespace vantore::tests
