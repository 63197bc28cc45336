#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

constexpr const char* problem = "\"Two towns and a port\",.5,10\r\n3\r\n\"Ashby\",10,20,100,.5\r\n"
                                "\"Bourne\",40,20,100,.5\r\n\"Corby\",25,50,200,.5\r\n";

ModuleSession& opened(ModuleSession& session) {
    session.writeFile("COG01.dat", problem);
    session.open("COG", "COG01.dat");
    return session;
}

TEST(CogWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession session(width, height);
        opened(session).play("answer 1\nanswer No\npress cmdSolve");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("answer No\npress cmdPlot");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
    }
}

TEST(CogWindow, PrintsItsReportOnOnePage) {
    ModuleSession session;
    opened(session).play("answer 1\nanswer No\npress cmdSolve\npress cmdPrintTB");
    EXPECT_EQ(session.play("printer\nprinter"), "picture 640x480\nend\n");
}

TEST(CogWindow, PrintsItsData) {
    ModuleSession session;
    opened(session).play("press cmdPrintData");
    EXPECT_EQ(
        session.play("printer"),
        "print \"\" Courier New 12 colour 0\n"
        "print \"EXACT CENTER-OF-GRAVITY METHOD RESULTS\" Arial 14 colour 0\n"
        "print \"\" Courier New 12 colour 0\n"
        "print \"Title: Two towns and a port\" Courier New 12 colour 0\n"
        "print \"Power Factor: .5\" Courier New 12 colour 0\n"
        "print \"Map scaling factor: 10\" Courier New 12 colour 0\n"
        "print \"\" Courier New 12 colour 0\n"
        "print \"Point data:\" Courier New 12 colour 0\n"
        "print \"                    X coor-     Y coor-                         Transport\" Courier New 12 "
        "colour 0\n"
        "print \"Point               dinate      dinate         Volume           rate\" Courier New 12 "
        "colour 0\n"
        "print \"Ashby               10.00       20.00          100              .5000\" Courier New 12 "
        "colour 0\n"
        "print \"Bourne              40.00       20.00          100              .5000\" Courier New 12 "
        "colour 0\n"
        "print \"Corby               25.00       50.00          200              .5000\" Courier New 12 "
        "colour 0\n"
        "end\n");
}

TEST(CogWindow, PutsThePlotOnTheClipboard) {
    ModuleSession session;
    opened(session).play(
        "answer 1\nanswer No\npress cmdSolve\nanswer No\npress cmdPlot\nanswer No\npress cmdPrintPlot");
    EXPECT_EQ(session.play("clipboard\nprinter"), "clipboard: picture 640x480\n");
}

TEST(CogWindow, DrawsPointsFacilityAndFigures) {
    ModuleSession session;
    opened(session).play("answer 1\nanswer No\npress cmdSolve\nanswer No\npress cmdPlot");
    const std::vector<std::string> operations = lines(session.play("surface"));
    const auto holds = [&](const std::string& operation) {
        return std::find(operations.begin(), operations.end(), operation) != operations.end();
    };
    // Xmax = 40 and Ymax = 50: Ashby lies at (240 + 320 / 4, 390 - 320 x 2 / 5), the facility (25, 35) at
    // (440, 166).
    EXPECT_TRUE(holds("box 317 259 323 265 colour 0 filled"));
    EXPECT_TRUE(holds("circle 440 166 6 colour 12 filled"));
    EXPECT_TRUE(holds("line 320 262 440 166 colour 12"));
    EXPECT_TRUE(holds("text 40 80 \"25.00\" Arial 7 bold colour 0"));
    EXPECT_TRUE(holds("text 112 96 \"36,213.20\" Arial 7 bold colour 0"));
    EXPECT_TRUE(holds("text 400 416 \"X coordinates in 1s\" Arial 7 bold colour 0"));
}

TEST(CogWindow, KeepsTheFacilityOfTheLastLocationThatWasFound) {
    ModuleSession session;
    opened(session).play(
        "answer 2\nanswer 2.5\nanswer 7\npress cmdSolve\npress cmdContinue\nanswer 3\npress cmdSolve");
    session.play("answer No\npress cmdPlot");
    EXPECT_NE(session.play("surface").find("\"2.50\""), std::string::npos);
}

TEST(CogWindow, OffersNoPlotOfASolveThatCameToNothing) {
    ModuleSession session;
    opened(session).play("answer 1\nanswer No\npress cmdSolve\npress cmdContinue");
    EXPECT_EQ(
        session.play("answer 2\nanswer 500\npress cmdSolve\nshow cmdPlot\nshow cmdPrintTB\nshow cmdContinue"),
        "InputBx \"Solution options\": \"Facility coordinates:\\n(1) Compute them\\n(2) Specify them\" "
        "[\"1\"] -> \"2\"\n"
        "InputBx \"\": \"Specified X coordinate is?\" [\"Enter value\"] -> \"500\"\n"
        "cmdPlot: hidden enabled \"P&lot\"\ncmdPrintTB: hidden enabled \"&Print\"\n"
        "cmdContinue: visible enabled \"&Continue\"\n");
}

TEST(CogWindow, OffersNoPlotOfACycleThatFailed) {
    ModuleSession session;
    session.writeFile("COG01.dat", "\"None\",.5,1\r\n1\r\n\"A\",1,2,0,1\r\n");
    session.open("COG", "COG01.dat");
    const std::string told =
        session.play("answer 1\nanswer Yes\npress cmdSolve\nshow cmdPlot\nshow cmdContinue");
    EXPECT_TRUE(told.ends_with("\"Division by zero occurred in COG Solver.\"\n"
                               "cmdPlot: hidden enabled \"P&lot\"\n"
                               "cmdContinue: visible enabled \"&Continue\"\n"))
        << told;
}

TEST(CogWindow, DrawsAFacilityThatCostsNothing) {
    ModuleSession session;
    session.writeFile("COG01.dat", "\"One\",.5,1\r\n1\r\n\"A\",1,0,5,1\r\n");
    session.open("COG", "COG01.dat");
    session.play("answer 2\nanswer 1\nanswer 0\npress cmdSolve\nanswer No\npress cmdPlot");
    EXPECT_NE(session.play("surface").find("circle 560 390 6 colour 12 filled"), std::string::npos);
}

TEST(CogWindow, EndsAnOverflowInAMessage) {
    ModuleSession session;
    opened(session);
    const std::string told =
        session.play("type txtPowerFactor 400\nanswer 1\npress cmdSolve\nshow cmdContinue");
    EXPECT_NE(told.find("MessageBx \"COG\": \"Overflow occurred in COG Solver.\"\ncmdContinue: visible"),
              std::string::npos)
        << told;
}

TEST(CogWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        ModuleSession session;
        session.writeFile("COG01.dat", problem);
        session.writeFile("COGBAD.dat", content);
        session.open("COG", "COG01.dat");
        session.play("file COGBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("COGBAD.dat"), content);
    }
}

TEST(CogWindow, OpensAFileWhateverItsLetters) {
    ModuleSession session;
    session.writeFile("COG M\xC3\xBCnster Nord.dat", problem);
    session.open("COG", "COG M\xC3\xBCnster Nord.dat");
    EXPECT_EQ(
        session.play("title\nfile COG \xC5\x81\xC3\xB3\x64\xC5\xBA 2.dat\npress cmdSave\ntitle"),
        "COG - <io>COG M\xC3\xBCnster Nord.dat\n"
        "SaveDialog \"Save center-of-gravity data\" filter \"Center of gravity (COG*.dat)|COG*.dat|\" -> "
        "COG \xC5\x81\xC3\xB3\x64\xC5\xBA 2.dat\nCOG - <io>COG \xC5\x81\xC3\xB3\x64\xC5\xBA 2.dat\n");
    EXPECT_EQ(session.readFile("COG \xC5\x81\xC3\xB3\x64\xC5\xBA 2.dat"), problem);
}

TEST(CogSamples, OpenAndSolve) {
    for (const char* name : {"COG01.dat", "COG02.dat", "COG03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("COG", name);
        const std::string told =
            session.play("answer 1\nanswer Yes\nanswer No\npress cmdSolve\nshow cmdPlot");
        EXPECT_TRUE(told.ends_with("cmdPlot: visible enabled \"P&lot\"\n")) << told;
    }
}

} // namespace
} // namespace vantore::tests
