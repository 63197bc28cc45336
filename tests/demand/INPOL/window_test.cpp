#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

std::string problem(const std::string& joint, const std::string& service, const std::string& sensitivity) {
    return "\"Parts\",2,3,\"" + joint + "\",\"" + service + "\",\"" + sensitivity +
           "\",60,2,\"N\"\r\n"
           "\"Filter\",100,10,4,0\r\n\"Pump\",100,10,4,0\r\n"
           "\"Filter\",9,1,.02,40,.5\r\n\"Pump\",9,1,.02,40,4\r\n"
           "\"Filter\",0,100,.95\r\n\"Pump\",0,100,.95\r\n";
}

ModuleSession& opened(ModuleSession& session, const std::string& content = problem("N", "Y", "Y")) {
    session.writeFile("INV01.dat", content);
    session.open("INPOL", "INV01.dat");
    return session;
}

constexpr const char* solveFailed = " occurred in INPOL, cmdSolve.\"";

TEST(InpolWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession session(width, height);
        session.play("module INPOL");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.writeFile("INV01.dat", problem("N", "Y", "Y"));
        session.play("file INV01.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("press cmdSolve");
        EXPECT_EQ(session.module().view(), View::Report);
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("answer 1\nanswer 1\nanswer 1\npress cmdPlot");
        EXPECT_EQ(session.module().view(), View::Plot);
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("press cmdContinue");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
    }
}

TEST(InpolWindow, ShowsAFileInItsBoxesAndGrids) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("show txtLabel\nshow txtNoPrd\nshow txtTimeFrame\nshow txtJointOrder\n"
                           "show txtServInd\nshow txtSen\nshow txtJointCost\nshow txtCycleTime\n"
                           "show txtOrderQuant\ntitle"),
              "txtLabel: visible enabled \"Parts\"\ntxtNoPrd: visible enabled \"2\"\n"
              "txtTimeFrame: visible enabled \"3\"\ntxtJointOrder: visible enabled \"N\"\n"
              "txtServInd: visible enabled \"Y\"\ntxtSen: visible enabled \"Y\"\n"
              "txtJointCost: visible enabled \"60\"\ntxtCycleTime: visible enabled \"2\"\n"
              "txtOrderQuant: visible enabled \"N\"\nINPOL - <io>INV01.dat\n");
    EXPECT_EQ(session.play("grid grdDemand\ngrid grdPrice\ngrid grdMisc"),
              "Prd\\nno. | Product label | Average\\ndemand | Std. dev.\\nof demand | Average\\nlead time | "
              "Std. dev.\\nof lead time\n"
              "1 | Filter | 100 | 10 | 4 | 0\n2 | Pump | 100 | 10 | 4 | 0\n"
              "Prd\\nno. | Product label | Unit\\nprice | Transport\\nrate | Carrying\\ncost | "
              "Order\\nproc. cost | Out-of-\\nstock cost\n"
              "1 | Filter | 9 | 1 | .02 | 40 | .5\n2 | Pump | 9 | 1 | .02 | 40 | 4\n"
              "Prd.\\nno. | Product label | Avg. initial\\ninventory | Order\\nquantity | Service\\nindex\n"
              "1 | Filter | 0 | 100 | .95\n2 | Pump | 0 | 100 | .95\n");
}

// The number of products

TEST(InpolWindow, LetsTheGridsFollowTheNumberOfProducts) {
    ModuleSession session;
    opened(session).play("type txtNoPrd 3\ncell grdMisc 3 4 .9");
    for (const char* grid : {"grdDemand", "grdPrice", "grdMisc"}) {
        const std::vector<std::string> rows = session.grid(grid);
        ASSERT_EQ(rows.size(), 4u) << grid;
        EXPECT_EQ(rows[3].substr(0, 4), "3 | ") << grid;
    }
    EXPECT_EQ(session.grid("grdMisc")[3], "3 |  |  |  | .9");
    session.play("type txtNoPrd 1");
    EXPECT_EQ(session.grid("grdPrice").size(), 2u);
    session.play("type txtNoPrd 2");
    EXPECT_EQ(session.grid("grdMisc")[2], "2 |  |  |  | ");
}

TEST(InpolWindow, IgnoresMoreThanFiftyProducts) {
    ModuleSession session;
    opened(session);
    for (const char* many : {"51", "60", "1E+300", "1E+999", "-1"}) {
        EXPECT_EQ(session.play("type txtNoPrd " + std::string(many) + "\nshow txtNoPrd"),
                  "txtNoPrd: visible enabled \"2\"\n");
        EXPECT_EQ(session.grid("grdDemand").size(), 3u) << many;
    }
    session.play("type txtNoPrd 50");
    EXPECT_EQ(session.grid("grdDemand").size(), 51u);
}

TEST(InpolWindow, LosesNoRowWhileACountIsTyped) {
    ModuleSession session;
    opened(session).play("type txtNoPrd 12\ncell grdDemand 12 1 Last");
    session.play("type txtNoPrd 1\ntype txtNoPrd 15"); // from 12 by 1 to 15
    EXPECT_EQ(session.grid("grdDemand")[2], "2 | Pump | 100 | 10 | 4 | 0");
    EXPECT_EQ(session.grid("grdDemand")[12], "12 | Last |  |  |  | ");
    EXPECT_EQ(session.grid("grdDemand").size(), 16u);
    EXPECT_EQ(session.play("type txtNoPrd \"\"\nleave txtNoPrd\nshow txtNoPrd"),
              "txtNoPrd: visible enabled \"15\"\n");
    EXPECT_EQ(session.grid("grdPrice")[2], "2 | Pump | 9 | 1 | .02 | 40 | 4");
}

TEST(InpolWindow, AppendsAProductByTheInsertKey) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("insert grdPrice\nshow txtNoPrd"), "txtNoPrd: visible enabled \"3\"\n");
    EXPECT_EQ(session.grid("grdDemand")[3], "3 |  |  |  |  | ");
    EXPECT_EQ(session.play("type txtNoPrd 50\ninsert grdMisc"),
              "MessageBx \"Add a Row\": \"Too many rows.  Limit is 50\"\n");
}

// Files

TEST(InpolWindow, MakesANewProblem) {
    ModuleSession session;
    session.open("INPOL", "INV77.dat");
    EXPECT_EQ(session.readFile("INV77.dat"), "\"Enter label\",1,1,\"N\",\"N\",\"N\",0,0,\"N\"\r\n"
                                             "\" \",0,0,0,0\r\n\" \",0,0,0,0,0\r\n\" \",0,0,0\r\n");
}

TEST(InpolWindow, SavesWhatItOpened) {
    ModuleSession session;
    opened(session).play("file INV02.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("INV02.dat"), problem("N", "Y", "Y"));
}

TEST(InpolWindow, FillsBlanksInAllThreeGridsOnSave) {
    ModuleSession session;
    opened(session).play("type txtNoPrd 3\nfile INV02.dat\npress cmdSave");
    EXPECT_EQ(session.grid("grdDemand")[3], "3 |   | 0 | 0 | 0 | 0");
    EXPECT_EQ(session.grid("grdPrice")[3], "3 |   | 0 | 0 | 0 | 0 | 0");
    EXPECT_EQ(session.grid("grdMisc")[3], "3 |   | 0 | 0 | 0");
}

TEST(InpolWindow, KeepsAProblemWithoutProducts) {
    const std::string none = "\"None\",0,3,\"N\",\"N\",\"N\",0,0,\"N\"\r\n";
    ModuleSession session;
    opened(session, none).play("file INV02.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("INV02.dat"), none);
    EXPECT_EQ(session.grid("grdMisc")[1], "0 |  |  |  | ");
    session.play("press cmdSolve");
    EXPECT_EQ(session.report().front(), "");
    EXPECT_EQ(session.report()[9], "   Total cost                $0");
}

TEST(InpolWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    const std::string good = problem("N", "N", "Y");
    std::vector<std::string> contents = damagedForms(good);
    for (const char* count : {"-1", "51", "1000000", "many", "1E+99", "1E+400"})
        contents.push_back(replaced(good, "\"Parts\",2,", "\"Parts\"," + std::string(count) + ","));
    for (const std::string& content : contents) {
        ModuleSession session;
        session.writeFile("INVBAD.dat", content);
        opened(session);
        const std::string told = session.play("file INVBAD.dat\npress cmdOpen\nshow txtLabel");
        const bool failed = told.find(" occurred in INPOL, cmdOpen.\"") != std::string::npos;
        if (failed) { // and nothing is lost
            EXPECT_TRUE(told.ends_with("txtLabel: visible enabled \"Parts\"\n"));
        }
        EXPECT_EQ(session.readFile("INVBAD.dat"), content);
        session.play("press cmdSolve");
        const std::string report = session.readFile("OUTPUT.DAT");
        EXPECT_EQ(report.find("inf"), std::string::npos) << content;
        EXPECT_EQ(report.find("nan"), std::string::npos) << content;
    }
}

TEST(InpolWindow, NamesWhatIsWrongWithAFile) {
    ModuleSession session;
    session.writeFile("INV51.dat", replaced(problem("N", "Y", "N"), "\"Parts\",2,", "\"Parts\",51,"));
    session.writeFile("INV00.dat", "");
    opened(session);
    EXPECT_NE(session.play("file INV51.dat\npress cmdOpen")
                  .find("MessageBx \"INPOL\": \"Subscript out of range occurred in INPOL, cmdOpen.\""),
              std::string::npos);
    EXPECT_NE(session.play("file INV00.dat\npress cmdOpen")
                  .find("MessageBx \"INPOL\": \"Input past end of file occurred in INPOL, cmdOpen.\""),
              std::string::npos);
}

TEST(InpolWindow, BorrowsATitleForExitAndTheSpreadsheet) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("press cmdExcel\nanswer No\nclose"),
              "MessageBx \"WARELOCA\": \"In EXCEL, open the template file GenlEdit.XLS in folder where "
              "VANTORE is installed.\"\nspreadsheet\nYesNoBx \"WARELOCA\": \"Save data?\" -> No\n");
}

// Solve

TEST(InpolWindow, ShowsHeadingsBoldWithoutTheirStars) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    const auto* report = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    ASSERT_NE(report, nullptr);
    const std::vector<ReportLine>& shown = report->lines();
    EXPECT_EQ(shown[0].text, "                         COMPUTED STOCKING POLICIES");
    EXPECT_TRUE(shown[0].font.bold);
    EXPECT_EQ(shown[0].colour, colour::lightBlue);
    EXPECT_EQ(shown[2].text, " Product 1");
    EXPECT_EQ(shown[3].text, "Reorder Point Policy");
    EXPECT_EQ(shown[3].font, (Font{"Courier New", 9, false}));
    EXPECT_EQ(shown[3].colour, colour::black);
    EXPECT_TRUE(session.readFile("OUTPUT.DAT").starts_with("*         "));
}

TEST(InpolWindow, GivesTheSameReportAgain) {
    for (const char* service : {"N", "Y"}) {
        ModuleSession session;
        opened(session, replaced(problem("N", service, "Y"), "40,.5", "40,0")).play("press cmdSolve");
        const std::string first = session.readFile("OUTPUT.DAT");
        session.play("press cmdContinue\npress cmdSolve");
        EXPECT_EQ(session.readFile("OUTPUT.DAT"), first);
        EXPECT_EQ(session.grid("grdPrice")[1], "1 | Filter | 9 | 1 | .02 | 40 | 0");
        EXPECT_EQ(session.grid("grdMisc")[1], "1 | Filter | 0 | 100 | .95");
    }
}

TEST(InpolWindow, KeepsTheJointLookupFromSolveToSolve) {
    // Cycle time 2: Q 200, Q x H = 40. Product 1: P = 1 - 40 / 50 = .2, so .7 is looked up and kept.
    ModuleSession session;
    opened(session, problem("Y", "N", "N")).play("press cmdSolve\npress cmdContinue");
    // With a stockout cost of 4 P is .9, but .7 is still looked up: z .5244, and the safety stock
    // .5244 x 24.4949 = 12.85 makes the average inventory 113.
    session.play("cell grdPrice 1 6 4\npress cmdSolve");
    EXPECT_EQ(session.report()[4], " Average inventory          113");
    ModuleSession fresh;
    opened(fresh, replaced(problem("Y", "N", "N"), "40,.5", "40,4")).play("press cmdSolve");
    EXPECT_EQ(fresh.report()[4], " Average inventory          100");
}

TEST(InpolWindow, LeavesWhatItPrintedBeforeAFailure) {
    ModuleSession session;
    opened(session, replaced(problem("N", "Y", "N"), "\"Pump\",0,100,.95", "\"Pump\",0,100,95"));
    EXPECT_EQ(session.play("press cmdSolve\nshow cmdSolve"),
              "MessageBx \"INPOL\": \"Subscript out of range occurred in INPOL, cmdSolve.\"\n"
              "cmdSolve: visible enabled \"&Solve\"\n");
    const std::vector<std::string> left = lines(session.readFile("OUTPUT.DAT"));
    ASSERT_EQ(left.size(), 37u); // the block of product 1
    EXPECT_TRUE(left.back().starts_with("   Total cost"));
}

TEST(InpolWindow, MeetsZerosInCellsWithAMessage) {
    for (const char* cell :
         {"grdDemand 1 2 0", "grdDemand 1 2 abc", "grdPrice 1 4 0", "grdPrice 1 4 x.1", "grdPrice 1 5 0"}) {
        ModuleSession session;
        opened(session);
        EXPECT_EQ(session.play("cell " + std::string(cell) + "\npress cmdSolve"),
                  "MessageBx \"INPOL\": \"Division by zero" + std::string(solveFailed) + "\n")
            << cell;
        EXPECT_EQ(session.module().view(), View::Data);
    }
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("cell grdPrice 1 2 0\ncell grdPrice 1 3 none\npress cmdSolve"),
              "MessageBx \"INPOL\": \"Division by zero" + std::string(solveFailed) + "\n");
}

std::string failure(const char* error) {
    return "MessageBx \"INPOL\": \"" + std::string(error) + solveFailed + "\n";
}

/// What a Solve leaves: a report or what was told instead.
struct Solved {
    std::string told, report;

    bool operator==(const Solved&) const = default;
};

/// Solves with one cell changed and opens the problem again. A report holds figures only, and there is either
/// a report or the message of a run-time error.
Solved solvedWith(ModuleSession& session, const std::string& place, const char* text) {
    session.writeFile("OUTPUT.DAT", "");
    session.play("cell " + place + " " + text);
    Solved solved{session.play("press cmdSolve"), {}};
    if (session.module().view() == View::Report) {
        EXPECT_EQ(solved.told, "") << place << " " << text;
        solved.report = session.readFile("OUTPUT.DAT");
        EXPECT_NE(solved.report.find("SUMMARY DATA"), std::string::npos) << place << " " << text;
        EXPECT_EQ(solved.report.find("inf"), std::string::npos) << place << " " << text;
        EXPECT_EQ(solved.report.find("nan"), std::string::npos) << place << " " << text;
        session.play("press cmdContinue");
    } else {
        EXPECT_EQ(session.module().view(), View::Data);
        constexpr std::array<const char*, 4> errors = {
            "Overflow", "Division by zero", "Subscript out of range", "Invalid procedure call or argument"};
        EXPECT_TRUE(std::any_of(errors.begin(), errors.end(),
                                [&](const char* error) { return solved.told == failure(error); }))
            << place << " " << text << ": " << solved.told;
    }
    session.play("file INV01.dat\npress cmdOpen");
    return solved;
}

TEST(InpolWindow, SolvesOrTellsWhateverACellHolds) {
    constexpr std::array<std::pair<const char*, int>, 3> grids = {
        {{"grdDemand", 5}, {"grdPrice", 6}, {"grdMisc", 4}}};
    int computed = 0;
    int told = 0;
    for (const char* joint : {"N", "Y"})
        for (const char* service : {"N", "Y"}) {
            ModuleSession session;
            opened(session, problem(joint, service, "Y"));
            for (const auto& [grid, lastColumn] : grids)
                for (int col = 2; col <= lastColumn; ++col)
                    for (const char* text : {"1E+308", "-1E+308", "1E-308", "1E+400", "abc", "-7"}) {
                        const std::string place = std::string(grid) + " 2 " + std::to_string(col);
                        const Solved solved = solvedWith(session, place, text);
                        (solved.report.empty() ? told : computed) += 1;
                        if (text == std::string("abc")) {
                            EXPECT_EQ(solved, solvedWith(session, place, "0")) << place;
                        } else if (text == std::string("1E+400")) {
                            EXPECT_EQ(solved.told, failure("Overflow")) << place;
                        }
                    }
        }
    EXPECT_GT(computed, 50);
    EXPECT_GT(told, 50);
}

// Plot

TEST(InpolWindow, PlotsOnlyASensitivityRun) {
    ModuleSession session;
    opened(session, problem("N", "Y", "N")).play("press cmdSolve");
    EXPECT_EQ(
        session.play("press cmdPlot"),
        "MessageBx \"INPOL\": \"No results are available for plotting.  Call for a sensitivity analysis "
        "and resolve the problem.\"\n");
    EXPECT_EQ(session.module().view(), View::Report);
}

TEST(InpolWindow, AsksWhatToPlotUntilItKnows) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    const std::string system = "InputBx \"Plot of results\": \"Plot for:\\n(1) Reorder point system\\n(2) "
                               "Periodic review system\" [\"1\"] -> ";
    const std::string product = "InputBx \"Plot of results\": \"Which product number to plot?\" [\"1\"] -> ";
    EXPECT_EQ(session.play("answer 3\nanswer cancel\nanswer 2\nanswer \"\"\nanswer 3\nanswer 2\nanswer 3\n"
                           "press cmdPlot"),
              system + "\"3\"\n" + system + "cancel\n" + system + "\"2\"\n" + product + "\"\"\n" + product +
                  "\"3\"\n" + product + "\"2\"\n" +
                  "InputBx \"Plot of results\": \"Want to plot:\\n(1) Total costs against service level\\n"
                  "(2) Total costs against average inventory\\n(3) Average inventory against max level\\n"
                  "(4) Average inventory against service level\" [\"1\"] -> \"3\"\n");
    const std::vector<std::string> chart = lines(session.play("chart"));
    ASSERT_EQ(chart.size(), 4u);
    EXPECT_EQ(chart[0], "chart \"PERIODIC REVIEW SYSTEM, PRODUCT 2\"");
    // Max level 600 + z x 24.494897 with z .0125 to 2.575: 600.306 cut to 600.3, up to 663.074.
    EXPECT_TRUE(chart[1].starts_with("x \"Max level ( 600.3+)\" 0 62.77")) << chart[1];
    // Average inventory 100 + z x 24.494897.
    EXPECT_TRUE(chart[2].starts_with("y \"Average inventory level\" 100.306")) << chart[2];
    EXPECT_EQ(std::count(chart[3].begin(), chart[3].end(), '('), 99);
}

TEST(InpolWindow, AsksOfTheReorderPointInItsOwnWords) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    EXPECT_NE(session.play("answer 1\nanswer 1\nanswer 4\npress cmdPlot")
                  .find("(3) Average inventory against reorder point quantity"),
              std::string::npos);
    EXPECT_TRUE(session.play("chart").starts_with("chart \"REORDER POINT SYSTEM, PRODUCT 1\"\n"
                                                  "x \"Service level, % ("));
}

TEST(InpolWindow, PlotsThePeriodicSystemOfJointOrdersWithoutAsking) {
    ModuleSession session;
    opened(session, problem("Y", "Y", "Y")).play("press cmdSolve");
    const std::string told = session.play("answer 1\nanswer 1\npress cmdPlot");
    EXPECT_TRUE(told.starts_with("InputBx \"Plot of results\": \"Which product number")) << told;
    EXPECT_TRUE(session.play("chart").starts_with("chart \"PERIODIC REVIEW SYSTEM, PRODUCT 1\"\n"));
}

TEST(InpolWindow, StaysAtTheReportWhenNoCurveIsChosen) {
    ModuleSession session;
    opened(session).play("press cmdSolve\nanswer 1\nanswer 1\nanswer cancel\npress cmdPlot");
    EXPECT_EQ(session.module().view(), View::Report);
}

TEST(InpolWindow, ReturnsToTheDataWhenThereIsNoSuchProduct) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    EXPECT_NE(session.play("answer 1\nanswer 0\nanswer 1\npress cmdPlot")
                  .find("MessageBx \"INPOL\": \"Subscript out of range occurred in INPOL, cmdPlot.\""),
              std::string::npos);
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST(InpolWindow, ForgetsTheRunOfAnEarlierSolve) {
    ModuleSession session;
    opened(session).play("press cmdSolve\npress cmdContinue\ntype txtSen n\npress cmdSolve");
    EXPECT_NE(session.play("press cmdPlot").find("No results are available"), std::string::npos);
}

TEST(InpolWindow, CapturesThePlot) {
    ModuleSession session;
    opened(session).play("press cmdSolve\nanswer 1\nanswer 1\nanswer 1\npress cmdPlot");
    EXPECT_EQ(
        session.play("answer Yes\npress cmdPrintPlot\nclipboard\nprinter"),
        "YesNoBx \"INPOL\": \"Select YES to print.  For a higher resolution picture, choose NO. Then, "
        "paste, edit, and print the captured Windows' clipboard image from another program such as WORD "
        "or POWERPOINT.\" -> Yes\nclipboard: picture 640x480\npicture 640x480\nend\n");
}

// Printing

TEST(InpolWindow, PrintsItsReport) {
    ModuleSession session;
    opened(session).play("press cmdSolve\npress cmdPrintTB");
    const std::vector<std::string> printed = lines(session.play("printer"));
    EXPECT_EQ(printed[0], "print \"*                         COMPUTED STOCKING POLICIES\" Arial 12 colour 0");
    EXPECT_EQ(printed[3], "print \"Reorder Point Policy\" Courier New 10 colour 0");
    EXPECT_EQ(printed.back(), "end");
}

TEST(InpolWindow, PrintsItsData) {
    ModuleSession session;
    opened(session).play("press cmdPrintData");
    std::vector<std::string> printed = lines(session.play("printer"));
    ASSERT_FALSE(printed.empty());
    EXPECT_EQ(printed.back(), "end");
    printed.pop_back();
    for (std::string& line : printed) {
        const std::string font = "\" Courier New 12 colour 0";
        ASSERT_TRUE(line.ends_with(font)) << line;
        line = withoutFirst(line.substr(0, line.size() - font.size()), std::string("print \"").size());
    }
    const std::vector<std::string> expected = {
        "                         INVENTORY CONTROL DATA",
        "",
        "Problem label Parts",
        "Number of products 2",
        "Time frame (1=Calendar days, 2=Working days, 3=Weeks, 4=Months, 5=Year) 3",
        "Are the items jointly ordered (Y/N)? N",
        "Are the service indices specified (Y/N)? Y",
        "Do you want a sensitivity analysis (Y/N)? Y",
        "",
        "JOINT-ORDER PARAMETERS",
        "Joint-order procurement cost 60",
        "Order cycle time in Time Frame units 2",
        "",
        "INDIVIDUAL-ORDER PARAMETER",
        "Are the order quantities to be specified (Y/N)? N",
        "",
        "DEMAND/LEAD TIME DATA",
        "Prd                          Average    Std. dev.      Average    Std. dev.",
        "no.  Product label            demand    of demand    lead time of lead time",
        "  1  Filter                      100        10.00        4.000         .000",
        "  2  Pump                        100        10.00        4.000         .000",
        "",
        "PRICE/COST DATA",
        "Prd                        Unit  Transport   Carrying      Order    Out-of-",
        "no.  Product label        price       rate       cost proc. cost stock cost",
        "  1  Filter                9.00       1.00        .02      40.00        .50",
        "  2  Pump                  9.00       1.00        .02      40.00       4.00",
        "",
        "MISCELLANEOUS DATA",
        "Prd.                                 Avg. initial        Order      Service",
        "no.  Product label                      inventory     quantity        index",
        "  1  Filter                                     0          100          .95",
        "  2  Pump                                       0          100          .95"};
    EXPECT_EQ(printed, expected);
}

// Samples

TEST(InpolSamples, OpenAndSolve) {
    for (const char* name : {"INV01.dat", "INV02.dat", "INV03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        const std::string content = session.readFile(name);
        session.open("INPOL", name);
        EXPECT_EQ(session.play("press cmdSolve\nshow cmdPlot"), "cmdPlot: visible enabled \"P&lot\"\n");
        session.play("press cmdContinue\nfile INV99.dat\npress cmdSave");
        EXPECT_EQ(session.readFile("INV99.dat"), content);
    }
}

} // namespace
} // namespace vantore::tests
