#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/base/text.h"
#include "tests/simulator/SCSIM/scsim_window.h"

namespace vantore::tests {
namespace {

using namespace scsim;

constexpr const char* demandQuestion = "InputBx \"SCSIM\": \"Select time period for demand plot:\\n(1) "
                                       "Daily\\n(2) Weekly\\n(3) Monthly\" [\"3\"] -> ";

TEST_F(ScsimWindow, PlotsTheDemand) {
    Problem problem = kettles();
    problem.demandDeviation = 0;
    open(problem);
    EXPECT_EQ(play("answer 3\npress PlotDemand"), std::string(demandQuestion) + "\"3\"\n");
    const std::vector<std::string> chart = lines(play("chart"));
    EXPECT_EQ(chart[0], "chart \"STATISTICALLY GENERATED MONTHLY DEMAND PATTERN\"");
    EXPECT_EQ(chart[1], "x \"Simulated time, months\" 0 25");
    EXPECT_EQ(chart[2], "y \"Units\" 0 3000");
    EXPECT_TRUE(chart[3].starts_with("series \"\" line colour 12: (0,0) (1,3000) (2,3000)"));
    for (const char* hidden : {"Folder1", "Save", "OpenF", "Solve", "PlotDemand", "Seed"})
        EXPECT_FALSE(shown(hidden)) << hidden;
    for (const char* visible : {"Continue1", "PrintDem", "GraphDemand", "Report", "Exit1"})
        EXPECT_TRUE(shown(visible)) << visible;
    EXPECT_FALSE(reportEnabled());
    play("press Continue1");
    EXPECT_TRUE(reportEnabled());
    EXPECT_TRUE(shown("Folder1"));
    EXPECT_FALSE(shown("GraphDemand"));
}

TEST_F(ScsimWindow, AsksForThePeriodOfTheDemandPlotUntilItIsOne) {
    open(kettles());
    const std::string question = demandQuestion;
    EXPECT_EQ(play("answer 4\nanswer 2\npress PlotDemand"),
              question + "\"4\"\n" + scsimHead + "Incorrect input. Try again.\"\n" + question + "\"2\"\n");
    EXPECT_EQ(lines(play("chart"))[1], "x \"Simulated time, weeks\" 0 103");
    play("press Continue1\nanswer cancel\npress PlotDemand");
    EXPECT_TRUE(shown("Folder1"));
    EXPECT_TRUE(reportEnabled());
}

TEST_F(ScsimWindow, GoesOnWithTheRandomNumbersFromPlotToPlot) {
    open(kettles());
    const auto plot = [this] {
        play("answer 1\npress PlotDemand");
        const std::string chart = play("chart");
        play("press Continue1");
        return chart;
    };
    const std::string first = plot();
    EXPECT_NE(plot(), first);
    play("tab 6\ntype Seed 4711");
    EXPECT_EQ(plot(), first);
}

TEST_F(ScsimWindow, PrintsTheDemandPlot) {
    open(kettles());
    play("answer 1\npress PlotDemand");
    EXPECT_NE(play("answer Yes\npress PrintDem\nprinter").find("picture "), std::string::npos);
    EXPECT_NE(play("answer No\npress PrintDem\nclipboard").find("clipboard: picture 640x480"),
              std::string::npos);
}

TEST_F(ScsimWindow, PrintsTheDatabase) {
    open(kettles());
    const std::vector<std::string> printed = lines(play("press cmdPrintData\nprinter"));
    EXPECT_EQ(printed[0],
              "print \"                              SIMULATION DATABASE\" Times Roman 10 colour 0");
    EXPECT_EQ(printed[2], "print \"Title: Kettles\" Times Roman 10 colour 0");
    EXPECT_EQ(printed.back(), "end");
}

} // namespace
} // namespace vantore::tests
