#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/forms/visible_operations.h"
#include "tests/support/form_faults.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

const std::string twoTowns = "2\r\n"
                             "40,80,\"Ashby\",1000.04,20.16\r\n"
                             "41,90,\"Corfield\",500,19\r\n"
                             "3\r\n"
                             "40,80,\"Ashby\",.06,.5,18,400,1.5,10,2\r\n"
                             "42,85,\"Dunham\",.06,.5,18,400,1.5,10,2\r\n"
                             "41,90,\"Corfield\",.06,.5,18,400,1.5,10,2\r\n"
                             "2\r\n"
                             "1,40.1,80.1,300,\"Ashby\"\r\n"
                             "2,41,90.2,200,\"Überlingen\"\r\n"
                             ".92,.0034\r\n"
                             "10,25,3,.5\r\n"
                             "5.45,.0037\r\n";
const std::string bothSelected = "300\r\n2\r\n\"X\"\r\n\"X\"\r\n3\r\n\"X\"\r\n\" \"\r\n\"X\"\r\n";
const std::string map = "12600,6600,5200,2200,0\r\n1\r\n2\r\n40,80\r\n41,90\r\n\"A map\"\r\n0\r\n";

const std::string openDialog =
    "OpenDialog \"Open Lathern Soap Company data file\" filter \"Lathern Soap (LTH*.dat)|LTH*.dat|\" -> ";
const std::string saveDialog =
    "SaveDialog \"Save Lathern Soap Company data\" filter \"Lathern Soap (LTH*.dat)|LTH*.dat|\" -> ";

void put(const fs::path& path, const std::string& text) {
    replaceFile(path, text);
}

class WarelocaWindow : public testing::Test {
  protected:
    WarelocaWindow() {
        put(session.installFolder() / "FIL.DAT", twoTowns);
        put(session.installFolder() / "OLDSOL.DAT", bothSelected);
        put(session.installFolder() / "MAP.DAT", map);
        session.writeFile("LTH02.dat", twoTowns);
        session.open("WARELOCA", "LTH02.dat");
    }

    void takeSolver() const { fs::create_symlink(WARELO_PROGRAM, session.installFolder() / "WARELO.EXE"); }

    std::string show(const std::string& control) { return session.play("show " + control); }
    std::string plotted(const std::string& answers) {
        session.play(answers + "\npress cmdPlot");
        const std::string surface = session.play("surface");
        // Without the map's one line.
        return surface.substr(surface.find('\n') + 1);
    }

    ModuleSession session;
};

// The load

TEST_F(WarelocaWindow, CopiesTheBaseCaseOverWhatIsThere) {
    ModuleSession other;
    put(other.installFolder() / "FIL.DAT", "new case");
    put(other.installFolder() / "OLDSOL.DAT", "new selection");
    other.writeFile("FIL.DAT", "old");
    EXPECT_EQ(other.play("module WARELOCA\ntitle"), "Wareloca\n");
    EXPECT_EQ(other.readFile("FIL.DAT"), "new case");
    EXPECT_EQ(other.readFile("OLDSOL.DAT"), "new selection");
}

TEST_F(WarelocaWindow, TellsOnceWhenTheBaseCaseIsMissing) {
    ModuleSession other;
    EXPECT_EQ(other.play("module WARELOCA"),
              "MessageBx \"WARELOCA\": \"File not found occurred in Form, WARELOCA\"\n");
    EXPECT_EQ(other.play("show cmdOpen"), "cmdOpen: visible enabled \"&Start\"\n");
}

TEST_F(WarelocaWindow, PassesOverFilesThatMayNotBeReplaced) {
    ModuleSession other;
    put(other.installFolder() / "FIL.DAT", "new case");
    put(other.installFolder() / "OLDSOL.DAT", "new selection");
    other.writeFile("FIL.DAT", "kept");
    fs::permissions(other.ioFolder() / "FIL.DAT", fs::perms::owner_read);
    EXPECT_EQ(other.play("module WARELOCA"), "");
    EXPECT_EQ(other.readFile("FIL.DAT"), "kept");
    EXPECT_EQ(other.readFile("OLDSOL.DAT"), "new selection");
}

TEST_F(WarelocaWindow, LeavesTheBaseCaseWhereBothFoldersAreOne) {
    ModuleSession other;
    fs::create_directories(other.ioFolder());
    put(other.ioFolder() / "FIL.DAT", "case");
    put(other.ioFolder() / "OLDSOL.DAT", "selection");
    fs::remove_all(other.installFolder());
    fs::create_directory_symlink(other.ioFolder(), other.installFolder());
    EXPECT_EQ(other.play("module WARELOCA"), "");
    EXPECT_EQ(other.readFile("FIL.DAT"), "case");
}

// Opening

TEST_F(WarelocaWindow, ShowsTheTablesUnderTheirMasks) {
    EXPECT_EQ(session.grid("grdPlant"),
              (Lines{"No. | Selec-\\ntion | Plant location | Capacity,\\ncwt. | Production\\ncost, \\n$/cwt.",
                     "1 | X | Ashby | 1000.0 | 20.2", "2 | X | Corfield | 500.0 | 19.0"}));
    EXPECT_EQ(session.grid("grdWhse").at(2),
              "2 |  | Dunham | .0600 | .50 | 18.00 | 400.00 | 1.50 | 10.00 | 2.00");
    EXPECT_EQ(session.grid("grdWhse").at(0),
              "No. | Selec-\\ntion | Warehouse location | Storage,\\n$/$ | Handling,\\n$/cwt. | Stock "
              "order\\nprocessing,\\n$/order | Stock order\\nsize,\\ncwt./order | Customer "
              "order\\nprocessing,\\n$/order | Customer order\\nsize,\\ncwt./order | Local "
              "delivery\\nrate,\\n$/cwt.");
    EXPECT_EQ(session.grid("grdCust"), (Lines{"No. | Region\\nno. | Customer location | Sales,\\ncwt.",
                                              "1 | 1 | Ashby | 300", "2 | 2 | Überlingen | 200"}));
    EXPECT_EQ(session.play("title"), "WARELOCA - <io>LTH02.dat\n");
}

TEST_F(WarelocaWindow, ShowsTheFunctionsAndTheDistance) {
    session.play("tab 0");
    EXPECT_EQ(show("txtPWFixed"), "txtPWFixed: visible enabled \".92\"\n");
    EXPECT_EQ(show("txtWCVar"), "txtWCVar: visible enabled \".0037\"\n");
    EXPECT_EQ(show("txtCapital"), "txtCapital: visible enabled \"10\"\n");
    EXPECT_EQ(show("txtProdValue"), "txtProdValue: visible enabled \"25\"\n");
    EXPECT_EQ(show("txtConstant"), "txtConstant: visible enabled \"3\"\n");
    EXPECT_EQ(show("txtExp"), "txtExp: visible enabled \".5\"\n");
    EXPECT_EQ(show("txtServ"), "txtServ: visible enabled \"300\"\n");
    session.play("tab 1");
    EXPECT_EQ(show("txtServ"), "txtServ: hidden enabled \"300\"\n");
}

TEST_F(WarelocaWindow, BeginsWithTheUsualFunctions) {
    ModuleSession other;
    other.play("module WARELOCA");
    EXPECT_EQ(other.play("show txtPWFixed\nshow txtPWVar\nshow txtWCFixed\nshow txtWCVar"),
              "txtPWFixed: hidden disabled \"0.92\"\ntxtPWVar: hidden disabled \"0.0034\"\n"
              "txtWCFixed: hidden disabled \"5.45\"\ntxtWCVar: hidden disabled \"0.0037\"\n");
    EXPECT_EQ(other.play("show txtServ\nshow txtConstant\nshow txtExp\nshow txtCapital\nshow txtProdValue"),
              "txtServ: hidden disabled \"300\"\ntxtConstant: hidden disabled \"11.3\"\n"
              "txtExp: hidden disabled \"0.58\"\ntxtCapital: hidden disabled \"\"\n"
              "txtProdValue: hidden disabled \"\"\n");
}

TEST_F(WarelocaWindow, MakesACaseWithoutRows) {
    EXPECT_EQ(session.play("file LTHNEW.dat\npress cmdOpen"), openDialog + "LTHNEW.dat\n");
    EXPECT_EQ(session.readFile("LTHNEW.dat"), "0\r\n0\r\n0\r\n0,0\r\n0,0,0,0\r\n0,0\r\n");
    EXPECT_EQ(session.grid("grdPlant").at(1), "0 |  |  |  | ");
    session.play("press cmdSolve");
    EXPECT_EQ(session.readFile("FIL.DAT"), "0\r\n0\r\n0\r\n0,0\r\n0,0,0,0\r\n0,0\r\n");
}

TEST_F(WarelocaWindow, TellsThatTheSelectionIsMissingAndOpensTheCase) {
    fs::remove(session.ioFolder() / "OLDSOL.DAT");
    EXPECT_EQ(session.play("type txtServ 250\nfile LTH02.dat\npress cmdOpen"),
              openDialog + "LTH02.dat\nMessageBx \"WARELOCA\": \"OLDSOL.DAT file not found in cmdOpen, "
                           "WARELOCA.  Reinstall it from setup program.\"\n");
    EXPECT_EQ(session.grid("grdPlant").at(1), "1 |  | Ashby | 1000.0 | 20.2");
    EXPECT_EQ(show("txtServ"), "txtServ: visible enabled \"250\"\n");
}

TEST_F(WarelocaWindow, LosesNothingToABadFile) {
    const Lines before = session.grid("grdWhse");
    for (const std::string& form : damagedForms(twoTowns)) {
        session.writeFile("LTHBAD.dat", form);
        const std::string told = session.play("file LTHBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.readFile("LTHBAD.dat"), form);
        if (told.find("MessageBx") != std::string::npos) {
            EXPECT_NE(told.find(" occurred in WARELOCA, cmdOpen\""), std::string::npos) << told;
            EXPECT_EQ(session.grid("grdWhse"), before) << form;
        }
        session.play("file LTH02.dat\npress cmdOpen");
    }
}

TEST_F(WarelocaWindow, OpensACaseWithoutMarksWhereTheSelectionIsBad) {
    const Lines unmarked = {session.grid("grdPlant").at(0), "1 |  | Ashby | 1000.0 | 20.2",
                            "2 |  | Corfield | 500.0 | 19.0"};
    for (const std::string& form : damagedForms(bothSelected)) {
        session.writeFile("OLDSOL.DAT", form);
        const std::string told = session.play("file LTH02.dat\npress cmdOpen");
        if (told.find("MessageBx") != std::string::npos) {
            EXPECT_NE(told.find(" occurred in WARELOCA, cmdOpen\""), std::string::npos) << told;
            EXPECT_EQ(session.grid("grdPlant"), unmarked) << form;
        }
        session.writeFile("OLDSOL.DAT", bothSelected);
        session.play("file LTH02.dat\npress cmdOpen");
    }
}

// Selecting and typing

TEST_F(WarelocaWindow, TurnsMarksOverByClicksAndKeys) {
    session.play("tab 0\nclick grdPlant 1 1\nclick grdPlant 2 2\nclick grdPlant 0 1");
    EXPECT_EQ(session.grid("grdPlant").at(1), "1 |  | Ashby | 1000.0 | 20.2");
    EXPECT_EQ(session.grid("grdPlant").at(2), "2 | X | Corfield | 500.0 | 19.0");
    session.play("current grdPlant 2 2\nkey grdPlant 32");
    EXPECT_EQ(session.grid("grdPlant").at(2), "2 | X | Corfield  | 500.0 | 19.0");
    session.play("tab 1\ncurrent grdWhse 2 1\nkey grdWhse 120");
    EXPECT_EQ(session.grid("grdWhse").at(2).substr(0, 14), "2 | X | Dunham");
    session.play("key grdWhse 8");
    EXPECT_EQ(session.grid("grdWhse").at(2).substr(0, 13), "2 |  | Dunham");
}

TEST_F(WarelocaWindow, ClearsAMarkByEscapeAndKeepsItUnderEnter) {
    session.play("tab 0\ncurrent grdPlant 1 1\nkey grdPlant 27\nkey grdPlant 27\nkey grdPlant 13");
    EXPECT_EQ(session.grid("grdPlant").at(1).substr(0, 6), "1 |  |");
    session.play("current grdPlant 2 1\nkey grdPlant 13");
    EXPECT_EQ(session.grid("grdPlant").at(2).substr(0, 7), "2 | X |");
    session.play("current grdPlant 1 1\npaste grdPlant X\\n");
    EXPECT_EQ(session.grid("grdPlant").at(1).substr(0, 7), "1 | X |");
}

TEST_F(WarelocaWindow, UndoesAMark) {
    session.play("tab 0\nclick grdPlant 1 1");
    session.module().undo();
    EXPECT_EQ(session.grid("grdPlant").at(1).substr(0, 7), "1 | X |");
}

TEST_F(WarelocaWindow, NeitherAddsNorDeletesRowsNorHandsOn) {
    session.play("tab 0\ncurrent grdPlant 1 2\ninsert grdPlant");
    EXPECT_EQ(session.grid("grdPlant").size(), 3U);
    for (const char* button : {"cmdAdd", "cmdDelete", "cmdExcel"})
        EXPECT_EQ(session.module().find(button), nullptr) << button;
}

TEST_F(WarelocaWindow, ComputesOnTheTableThatIsShown) {
    EXPECT_EQ(show("cmdColArith"), "cmdColArith: visible enabled \"Colu&mn arithmetic\"\n");
    session.play("tab 2\nselect grdCust 1 3 2 3\nanswer 3\nanswer 2\npress cmdColArith");
    EXPECT_EQ(session.grid("grdCust").at(2), "2 | 2 | Überlingen | 400");
    EXPECT_EQ(session.play("tab 1\ncurrent grdWhse 1 2\npress cmdColArith"),
              "MessageBx \"WARELOCA\": \"Column arithmetic does not apply to this column.\"\n");
    EXPECT_EQ(session.play("current grdWhse 1 1\npress cmdColArith"),
              "MessageBx \"WARELOCA\": \"Column arithmetic does not apply to this column.\"\n");
    EXPECT_EQ(session.play("select grdWhse 1 3 1 4\npress cmdColArith"),
              "MessageBx \"WARELOCA\": \"Highlight only one column\"\n");
    const std::string sum = session.play("tab 0\nselect grdPlant 1 3 2 3\nanswer 1\npress cmdColArith");
    EXPECT_NE(sum.find("\"The sum is:  1500\""), std::string::npos) << sum;
}

// Saving

TEST_F(WarelocaWindow, RefusesTheBaseCasesNameInAnyCase) {
    EXPECT_EQ(session.play("file Lth01.Dat\nfile SOAP.dat\nfile LTH03.dat\npress cmdSave"),
              saveDialog + "Lth01.Dat\nMessageBx \"WARELOCA\": \"Choose a file number other than 01.\"\n" +
                  saveDialog +
                  "SOAP.dat\nMessageBx \"WARELOCA\": \"Use the prefix LTH on the file name.\"\n" +
                  saveDialog + "LTH03.dat\n");
    EXPECT_FALSE(session.fileExists("Lth01.Dat"));
}

TEST_F(WarelocaWindow, SavesWhatTheCellsShowWithTheHiddenCoordinates) {
    session.play("tab 2\ncell grdCust 1 2\ncell grdCust 2 3 2x\ntab 1\ncell grdWhse 1 3\nfile LTH03.dat\n"
                 "press cmdSave");
    EXPECT_EQ(session.readFile("LTH03.dat"),
              replaced(replaced(replaced(replaced(twoTowns, "1000.04,20.16", "1000,20.2"),
                                         "80.1,300,\"Ashby\"", "80.1,300,\" \""),
                                "90.2,200", "90.2,2"),
                       "40,80,\"Ashby\",.06", "40,80,\"Ashby\",0"));
    EXPECT_EQ(session.grid("grdCust").at(1), "1 | 1 |   | 300");
}

TEST_F(WarelocaWindow, SavesWhatItOpens) {
    session.play(
        "file LTH04.dat\npress cmdSave\nfile LTH04.dat\npress cmdOpen\nfile LTH05.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("LTH05.dat"), session.readFile("LTH04.dat"));
}

TEST_F(WarelocaWindow, KeepsTheOldFileOnAFullDisk) {
    session.writeFile("LTH06.dat", twoTowns);
    const FullDisk disk(100);
    const std::string told = session.play("file LTH06.dat\npress cmdSave");
    EXPECT_NE(told.find("MessageBx \"WARELOCA\": \"Disk full occurred in WARELOCA, cmdSave.\""),
              std::string::npos)
        << told;
    EXPECT_EQ(session.readFile("LTH06.dat"), twoTowns);
}

// Solve

TEST_F(WarelocaWindow, WritesTheCaseAndTheSelectionForTheSolver) {
    session.writeFile("OUTPUT.DAT", " AN OLD REPORT\r\n\r\n line\r\n");
    session.play("tab 0\nclick grdPlant 2 1\ntype txtServ 250 miles");
    EXPECT_EQ(session.play("press cmdSolve"), "run WARELO.EXE failed\n");
    EXPECT_EQ(session.readFile("FIL.DAT"), replaced(twoTowns, "1000.04,20.16", "1000,20.2"));
    EXPECT_EQ(session.readFile("OLDSOL.DAT"),
              "250\r\n2\r\n\"X\"\r\n\" \"\r\n3\r\n\"X\"\r\n\" \"\r\n\"X\"\r\n");
    EXPECT_EQ(session.report(), (Lines{" AN OLD REPORT", "", " line"}));
}

TEST_F(WarelocaWindow, ShowsTheSolversReport) {
    takeSolver();
    EXPECT_EQ(session.play("press cmdSolve"), "run WARELO.EXE\n");
    const Lines report = session.report();
    EXPECT_EQ(report.at(0), " EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK");
    EXPECT_EQ(report.at(4), " Customers served               2");
    EXPECT_EQ(show("cmdPlot"), "cmdPlot: visible enabled \"P&lot\"\n");
    EXPECT_EQ(show("grdPlant").substr(0, 16), "grdPlant: hidden");
    EXPECT_EQ(session.readFile("TEMP.DAT"), "40.1,80.1,1,40,80,1,40,80\r\n41,90.2,3,41,90,2,41,90\r\n");
    session.play("press CmdContinue\ntab 0");
    EXPECT_EQ(show("grdPlant").substr(0, 17), "grdPlant: visible");
    EXPECT_EQ(show("cmdColArith").substr(0, 20), "cmdColArith: visible");
}

TEST_F(WarelocaWindow, ShowsWhyThereIsNoPlan) {
    takeSolver();
    session.play("tab 0\nclick grdPlant 1 1\nclick grdPlant 2 1\npress cmdSolve");
    EXPECT_EQ(session.report().back(), " No plant is selected.  Select at least one.");
    EXPECT_EQ(session.readFile("TEMP.DAT"), "");
}

TEST_F(WarelocaWindow, TellsWhenTheDiskIsFull) {
    takeSolver();
    const FullDisk disk(100);
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"WARELOCA\": \"Disk full occurred in WARELOCA, cmdSolve.\"\n");
}

TEST_F(WarelocaWindow, PrintsTheReportAndTheData) {
    session.writeFile("OUTPUT.DAT", " A REPORT\r\n line\r\n");
    session.play("press cmdSolve\npress cmdPrintOut");
    EXPECT_EQ(session.play("printer"),
              "print \" A REPORT\" Arial 12 colour 0\nprint \" line\" Courier New 10 colour 0\nend\n");
    session.play("press cmdContinue\npress cmdPrintData");
    const std::string data = session.play("printer");
    EXPECT_TRUE(data.starts_with("print \"\" Courier New 12 colour 0\n"
                                 "print \"WAREHOUSE LOCATION CASE DATA\" Arial 14 colour 0\n"))
        << data;
    EXPECT_NE(data.find("print \"   2  X Corfield"), std::string::npos);
}

// Plot

const std::string displays =
    "InputBx \"Wareloca\": \"Select type of display\\n(1) Customers\\n(2) Warehouses\\n(3) "
    "Plants\\n(4) Solution w/ warehouses\\n(5) Solution w/ warehouses and plants\" [\"1\"]";

class WarelocaMap : public WarelocaWindow {
  protected:
    WarelocaMap() {
        session.writeFile("OUTPUT.DAT", " A REPORT\r\n");
        session.play("press cmdSolve");
        session.writeFile("TEMP.DAT", "40,80,3,41,90,1,40,80\r\n41,85,3,41,90,1,40,80\r\n");
    }
};

TEST_F(WarelocaMap, AsksWhatToShow) {
    EXPECT_EQ(session.play("answer 1\npress cmdPlot"), displays + " -> \"1\"\n");
    EXPECT_EQ(show("picOut").substr(0, 15), "picOut: visible");
    EXPECT_EQ(show("cmdPrintPlot").substr(0, 21), "cmdPrintPlot: visible");
    // (12600 - 8000) / 6000 x 634 and 32 + (5200 - 4000) / 3000 x 428
    EXPECT_TRUE(session.play("surface").starts_with("line 486 203 380 189 colour 8\nbox "));
}

TEST_F(WarelocaMap, MarksCustomersWarehousesOrPlants) {
    EXPECT_EQ(plotted("answer 1"), "box 482 199 488 205 colour 0 filled\n"
                                   "box 375 186 381 192 colour 0 filled\n");
    session.play("press cmdContinue\npress cmdSolve");
    EXPECT_EQ(plotted("answer 2"), "box 483 200 489 206 colour 0 filled\n"
                                   "box 430 172 436 178 colour 0 filled\n"
                                   "box 377 186 383 192 colour 0 filled\n");
    session.play("press cmdContinue\npress cmdSolve");
    EXPECT_EQ(plotted("answer  3 "), "box 483 200 489 206 colour 0 filled\n"
                                     "box 377 186 383 192 colour 0 filled\n");
}

TEST_F(WarelocaMap, ShowsTheMapAloneWithoutAnAnswer) {
    EXPECT_EQ(plotted("answer cancel"), "");
    session.play("press cmdContinue\npress cmdSolve");
    EXPECT_EQ(plotted("answer 6"), "");
    session.play("press cmdContinue\npress cmdSolve");
    EXPECT_EQ(plotted("answer close"), "");
    EXPECT_EQ(show("picOut").substr(0, 15), "picOut: visible");
}

TEST_F(WarelocaMap, DrawsTheDeliveries) {
    EXPECT_EQ(session.play("answer 4\nanswer No\npress cmdPlot"),
              displays + " -> \"4\"\nYesNoBx \"WARELOCA\": \"Show warehouse labels?\" -> No\n");
    const std::string surface = session.play("surface");
    EXPECT_EQ(surface.substr(surface.find('\n') + 1),
              "line 486 203 380 189 colour 12\nline 433 189 380 189 colour 12\n");
}

TEST_F(WarelocaMap, NamesTheWarehousesBesideThem) {
    EXPECT_EQ(plotted("answer 4\nanswer Yes"),
              "line 486 203 380 189 colour 12\ntext 386 183 \"Corfield\" Arial 8 colour 0\n"
              "line 433 189 380 189 colour 12\ntext 386 183 \"Corfield\" Arial 8 colour 0\n");
}

TEST_F(WarelocaMap, DrawsTheSuppliesBehindTheDeliveries) {
    EXPECT_EQ(session.play("answer 5\nanswer No\nanswer Yes\npress cmdPlot"),
              displays + " -> \"5\"\nYesNoBx \"WARELOCA\": \"Show warehouse labels?\" -> No\n"
                         "YesNoBx \"WARELOCA\": \"Show plant labels?\" -> Yes\n");
    const std::string surface = session.play("surface");
    EXPECT_EQ(surface.substr(surface.find('\n') + 1),
              "line 486 203 380 189 colour 12\nline 433 189 380 189 colour 12\n"
              "line 380 189 486 203 colour 9\ntext 492 197 \"Ashby\" Arial 8 colour 0\n"
              "line 380 189 486 203 colour 9\ntext 492 197 \"Ashby\" Arial 8 colour 0\n");
}

TEST_F(WarelocaMap, NamesThePlaceOfAFaultyFile) {
    session.writeFile("TEMP.DAT", "40,80,3,41,90,1,40\r\n");
    EXPECT_NE(
        session.play("answer 4\npress cmdPlot").find("Input past end of file occurred in WARELOCA, cmdPlot."),
        std::string::npos);
    session.play("press cmdContinue\npress cmdSolve");
    fs::remove(session.ioFolder() / "TEMP.DAT");
    EXPECT_NE(session.play("answer 5\npress cmdPlot").find("File not found occurred in WARELOCA, cmdPlot."),
              std::string::npos);
    session.play("press cmdContinue\npress cmdSolve");
    session.writeFile("TEMP.DAT", "40,80,48,41,90,1,40,80\r\n"); // the case has 3 warehouses
    EXPECT_NE(session.play("answer 4\nanswer Yes\npress cmdPlot")
                  .find("Subscript out of range occurred in WARELOCA, cmdPlot."),
              std::string::npos);
}

TEST_F(WarelocaMap, MeetsAnyMapFileWithAMessage) {
    for (const std::string& form : damagedForms(map)) {
        put(session.installFolder() / "MAP.DAT", form);
        try {
            const std::string told = session.play("press cmdPlot");
            EXPECT_NE(told.find(" occurred in WARELOCA, cmdPlot.\""), std::string::npos) << told;
        } catch (const PlatformFailure&) {
            // The map could be drawn: what to show on it was asked.
            session.play("press cmdContinue\npress cmdSolve");
        }
    }
    fs::remove(session.installFolder() / "MAP.DAT");
    EXPECT_EQ(session.play("press cmdPlot"),
              "MessageBx \"WARELOCA\": \"File not found occurred in WARELOCA, cmdPlot.\"\n");
    EXPECT_EQ(show("rtbOut").substr(0, 15), "rtbOut: visible");
}

TEST_F(WarelocaMap, DrawsARepeatedLabelOnce) {
    session.play("answer 4\nanswer Yes\npress cmdPlot");
    const auto* surface = dynamic_cast<const PictureSurface*>(session.module().find("picOut"));
    const auto visible = visibleOperations(surface->operations());
    EXPECT_EQ(std::ranges::count_if(visible,
                                    [](const SurfaceOperation& operation) {
                                        return std::holds_alternative<SurfaceText>(operation);
                                    }),
              1);
}

TEST_F(WarelocaMap, PrintsThePlot) {
    session.play("answer 1\npress cmdPlot");
    EXPECT_EQ(
        session.play("answer No\npress cmdPrintPlot"),
        "YesNoBx \"WARELOCA\": \"Select YES to print.  Alternately, choose NO to copy image to the "
        "clipboard. "
        "Then, paste the clipboard image to another program such as WORD or POWERPOINT and print.\" -> No\n");
    EXPECT_EQ(session.play("clipboard").substr(0, 18), "clipboard: picture");
}

// The window

TEST(WarelocaLook, HasNoFaultOnAnyPageAndInAnyView) {
    ModuleSession session;
    fs::create_directories(session.installFolder());
    for (const char* name : {"FIL.DAT", "OLDSOL.DAT", "MAP.DAT"})
        fs::copy_file(fs::path(VANTORE_SOURCE_FOLDER) / "install" / name, session.installFolder() / name);
    fs::copy_file(fs::path(VANTORE_SOURCE_FOLDER) / "install/LTH01.dat", session.ioFolder() / "LTH01.dat");
    fs::create_symlink(WARELO_PROGRAM, session.installFolder() / "WARELO.EXE");
    session.open("WARELOCA", "LTH01.dat");
    for (const char* page : {"tab 0", "tab 1", "tab 2"}) {
        session.play(page);
        EXPECT_EQ(formFaults(session.module()), Lines{}) << page;
    }
    session.play("press cmdSolve");
    EXPECT_EQ(formFaults(session.module()), Lines{});
    session.play("answer 5\nanswer Yes\nanswer Yes\npress cmdPlot");
    EXPECT_EQ(formFaults(session.module()), Lines{});
    EXPECT_GT(session.play("surface").size(), 100000U);
}

} // namespace
} // namespace vantore::tests
