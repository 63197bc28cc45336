#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

// At zoom .9 the depot lies at (36, 434), the stops at (604, 434), (604, 30) and (36, 30).
constexpr const char* problem = "\"Three calls\",1,1,0,0\r\n3\r\n\"Mill\",632,0\r\n\"Inn\",632,448\r\n"
                                "\"Farm\",0,448\r\n";

class RouteseqWindow : public testing::Test {
  protected:
    RouteseqWindow() {
        session.writeFile("RSEQ01.dat", problem);
        session.open("ROUTESEQ", "RSEQ01.dat");
    }

    bool drawn(const std::string& operation) {
        const std::vector<std::string> operations = lines(session.play("surface"));
        return std::find(operations.begin(), operations.end(), operation) != operations.end();
    }
    void solve() { session.play("answer 1\npress cmdSolve"); }

    ModuleSession session;
};

TEST_F(RouteseqWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.writeFile("RSEQ01.dat", problem);
        sized.open("ROUTESEQ", "RSEQ01.dat");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("answer 1\npress cmdSolve");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("answer Yes\nanswer Yes\npress cmdPlot");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(RouteseqWindow, StartsWithItsDefaults) {
    ModuleSession fresh;
    EXPECT_EQ(fresh.play("module ROUTESEQ\ntitle\nshow txtLabel\nshow txtCirFactor\nshow txtMapFactor\n"
                         "show txtDepotX\nshow txtDepotY"),
              "Stop Sequencer\ntxtLabel: visible disabled \"Enter label\"\n"
              "txtCirFactor: visible disabled \"1\"\ntxtMapFactor: visible disabled \"1\"\n"
              "txtDepotX: visible disabled \"0\"\ntxtDepotY: visible disabled \"0\"\n");
}

TEST_F(RouteseqWindow, ShowsItsReport) {
    solve();
    EXPECT_EQ(session.report(), (std::vector<std::string>{"", "", " STOP SEQUENCE RESULTS",
                                                          "Stop sequence is:", "DEPOT 3 2 1 DEPOT",
                                                          "Total route distance =2,160.000"}));
}

TEST_F(RouteseqWindow, LeavesOutSpecifiedNumbersThatAreNoStop) {
    session.play("answer 2\nanswer 2\nanswer 9\nanswer none\npress cmdSolve");
    EXPECT_EQ(session.report().at(4), "DEPOT 2 DEPOT");
}

TEST_F(RouteseqWindow, KeepsTheEarlierResultWhenAQuestionIsCancelled) {
    solve();
    session.play("press cmdContinue\nanswer 2\nanswer 1\nanswer cancel\npress cmdSolve");
    EXPECT_EQ(session.module().view(), View::Data);
    session.play("answer No\nanswer Yes\npress cmdPlot");
    EXPECT_TRUE(drawn("line 36 434 36 30 colour 12"));
}

TEST_F(RouteseqWindow, RefusesMoreThanFiftyStopsBeforeItAsks) {
    std::string file = "\"Many\",1,1,0,0\r\n51\r\n";
    for (int i = 0; i < 51; ++i) file += "\"Stop\"," + std::to_string(i) + ",7\r\n";
    session.writeFile("RSEQ51.dat", file);
    session.play("file RSEQ51.dat\npress cmdOpen");
    EXPECT_EQ(session.play("press cmdSolve"),
              "MessageBx \"ROUTESEQ\": \"Subscript out of range occurred in ROUTESEQ, cmdSolve.\"\n");
}

TEST_F(RouteseqWindow, DrawsPointsNumbersAndRoute) {
    solve();
    EXPECT_EQ(session.play("answer Yes\nanswer Yes\npress cmdPlot"),
              "YesNoBx \"Question\": \"Show point numbers?\" -> Yes\n"
              "YesNoBx \"Question\": \"Show route and cost?\" -> Yes\n");
    EXPECT_TRUE(drawn("text 248 1 \"LOCATION OF POINTS\" Arial 10 bold colour 9"));
    EXPECT_TRUE(drawn("text 8 1 \"Problem: Three calls\" Arial 8 colour 0"));
    EXPECT_TRUE(drawn("box 31 429 41 439 colour 9 filled"));
    EXPECT_TRUE(drawn("circle 604 434 3 colour 0 filled"));
    EXPECT_TRUE(drawn("text 609 424 \"1\" Arial 8 colour 0"));
    EXPECT_TRUE(drawn("line 36 434 36 30 colour 12"));
    EXPECT_TRUE(drawn("line 36 30 604 30 colour 12"));
    EXPECT_TRUE(drawn("line 604 30 604 434 colour 12"));
    EXPECT_TRUE(drawn("line 604 434 36 434 colour 12"));
    EXPECT_TRUE(drawn("text 430 1 \"Total distance = 2,160.000\" Arial 8 colour 12"));
}

TEST_F(RouteseqWindow, DrawsWhatIsAskedFor) {
    solve();
    session.play("answer No\nanswer No\npress cmdPlot");
    EXPECT_TRUE(drawn("circle 604 434 3 colour 0 filled"));
    EXPECT_FALSE(drawn("text 609 424 \"1\" Arial 8 colour 0"));
    EXPECT_FALSE(drawn("line 36 434 36 30 colour 12"));
    // A closed question asks no further and leaves what is drawn.
    EXPECT_EQ(session.play("press cmdContinue\nanswer close\npress cmdPlot"),
              "YesNoBx \"Question\": \"Show point numbers?\" -> close\n");
    EXPECT_TRUE(drawn("circle 604 434 3 colour 0 filled"));
}

TEST_F(RouteseqWindow, ForgetsTheSequenceWhenAProblemIsOpened) {
    solve();
    session.play("press cmdContinue\nfile RSEQ01.dat\npress cmdOpen\nanswer No\nanswer Yes\npress cmdPlot");
    EXPECT_FALSE(drawn("line 36 434 36 30 colour 12"));
}

TEST_F(RouteseqWindow, MeasuresTheSequenceByThePresentData) {
    solve();
    session.play("press cmdContinue\ntype txtMapFactor 2\nanswer No\nanswer Yes\npress cmdPlot");
    EXPECT_TRUE(drawn("text 430 1 \"Total distance = 4,320.000\" Arial 8 colour 12"));
}

TEST_F(RouteseqWindow, MovesThePictureWithAllThatItShows) {
    solve();
    session.play("answer Yes\nanswer Yes\npress cmdPlot");
    auto* picture = dynamic_cast<PictureSurface*>(session.module().find("picOut"));
    ASSERT_NE(picture, nullptr);
    picture->onPan(1, 2);
    EXPECT_TRUE(drawn("line 61 484 61 80 colour 12") || drawn("line 61 80 629 80 colour 12"));
    EXPECT_TRUE(drawn("text 634 474 \"1\" Arial 8 colour 0"));
    picture->onPan(-1, -2);
    picture->onZoom(1);
    EXPECT_TRUE(drawn("circle 668 478 3 colour 0 filled"));
    picture->onZoom(-1);
    EXPECT_TRUE(drawn("circle 604 434 3 colour 0 filled"));
    // A fresh plot has the usual size.
    picture->onZoom(2);
    session.play("press cmdContinue\nanswer No\nanswer No\npress cmdPlot");
    EXPECT_TRUE(drawn("circle 604 434 3 colour 0 filled"));
}

TEST_F(RouteseqWindow, AsksBeforeItChangesAColumn) {
    session.play("select Grid 1 2 3 2\nanswer Yes\nanswer 2\nanswer 10\npress cmdArith");
    EXPECT_EQ(session.grid("Grid").at(1), "1 | Mill | 642 | 0");
    EXPECT_EQ(session.play("answer No\npress cmdArith"),
              "YesNoBx \"ROUTESEQ\": \"Highlighted column to be changed?\" -> No\n");
    EXPECT_EQ(session.play("select Grid 1 1 3 1\nanswer Yes\npress cmdArith"),
              "YesNoBx \"ROUTESEQ\": \"Highlighted column to be changed?\" -> Yes\n"
              "MessageBx \"ROUTESEQ\": \"Column arithmetic does not apply to this column.\"\n");
}

TEST_F(RouteseqWindow, PrintsReportDataAndPlot) {
    solve();
    EXPECT_EQ(session.play("press cmdPrintTB"),
              "MessageBx \"ROUTESEQ\": \"Printing...  Click OK to continue\"\n");
    EXPECT_EQ(session.play("printer"), "picture 640x480\nend\n");
    session.play("answer No\nanswer No\npress cmdPlot");
    EXPECT_TRUE(
        session.play("answer Yes\npress cmdPrintPlot")
            .starts_with("YesNoBx \"Selection\": \"Select NO to print.  Alternately, choose YES to copy"));
    EXPECT_EQ(session.play("printer\nclipboard"), "clipboard: picture 640x480\n");
    session.play("answer No\npress cmdPrintPlot");
    EXPECT_EQ(session.play("printer"), "picture 640x480\nend\n");
    session.play("press cmdContinue\npress cmdPrintData");
    const std::vector<std::string> printed = lines(session.play("printer"));
    ASSERT_EQ(printed.size(), 17U);
    EXPECT_EQ(printed[1], "print \"ROUTESEQ\" Arial 14 colour 0");
    EXPECT_EQ(printed[2], "print \"DATA FOR STOP SEQUENCER\" Arial 14 colour 0");
    EXPECT_EQ(printed[13], "print \"Mill                632.00      .00\" Courier New 12 colour 0");
}

TEST_F(RouteseqWindow, MeetsEveryDamagedFileWithAMessageOrAProblem) {
    for (const std::string& content : damagedForms(problem)) {
        session.writeFile("RSEQBAD.dat", content);
        session.play("file RSEQBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("RSEQBAD.dat"), content);
    }
}

TEST(RouteseqSamples, OpenSolveAndPlot) {
    for (const char* name : {"RSEQ01.dat", "RSEQ02.dat", "RSEQ03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("ROUTESEQ", name);
        session.play("answer 1\npress cmdSolve\nanswer Yes\nanswer Yes\npress cmdPlot");
        EXPECT_EQ(session.module().view(), View::Plot) << name;
    }
}

} // namespace
} // namespace vantore::tests
