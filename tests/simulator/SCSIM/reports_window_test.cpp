#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "shell/base/text.h"
#include "tests/simulator/SCSIM/scsim_window.h"

namespace vantore::tests {
namespace {

using namespace scsim;

class ScsimReports : public ScsimWindow {
  protected:
    ScsimReports() {
        open(kettles());
        play("press Solve\npress Report");
    }

    std::string plotted(const std::string& choices,
                        const std::string& answers = "answer 3\nanswer 1\nanswer 2\n") {
        play("press cmdContinue\npress Report\n" + choices + "\n" + answers + "press cmdPlot");
        return lines(play("chart"))[0];
    }
};

TEST_F(ScsimReports, BeginWithTheChannel) {
    EXPECT_EQ(play("title"), "Simulation results\n");
    for (const char* selected : {"SCRepOpt", "SCOpt", "SalesOpt"})
        EXPECT_NE(play(std::string("show ") + selected).find(" selected "), std::string::npos) << selected;
    for (const char* hidden : {"SumReport", "PerfGph", "cmdPrint", "cmdReturn"})
        EXPECT_FALSE(shown(hidden)) << hidden;
}

TEST_F(ScsimReports, ShowAReportWithItsFile) {
    EXPECT_EQ(play("press WhseRepOpt\nanswer 2\nanswer 2\npress cmdReport"),
              "InputBx \"SCSIM\": \"The report is to begin with year?\" [\"1\"] -> \"2\"\n"
              "InputBx \"SCSIM\": \"The report is to end with year?\" [\"2\"] -> \"2\"\n");
    const std::vector<std::string> file = lines(session.readFile("OUTPUT.DAT"));
    std::vector<std::string> shownLines = session.report();
    ASSERT_EQ(shownLines.size(), file.size());
    EXPECT_EQ(file[0], "* WAREHOUSE REPORT FOR SIMULATED YEAR 2");
    EXPECT_EQ("*" + shownLines[0], file[0]);
    EXPECT_EQ("*" + shownLines[4], file[4]);
    EXPECT_EQ(shownLines[6], file[6]);
    for (const char* hidden : {"ReportFrame", "PlotFrame", "cmdReport", "cmdPlot"})
        EXPECT_FALSE(shown(hidden)) << hidden;
}

TEST_F(ScsimReports, ColourTheHeadings) {
    play("answer 1\nanswer 1\npress cmdReport");
    const auto& box = dynamic_cast<const ReportScreen&>(*session.module().find("SumReport"));
    EXPECT_EQ(box.lines()[0].font, (Font{"Arial", 12, false}));
    EXPECT_EQ(box.lines()[0].colour, 9);
    EXPECT_EQ(box.lines()[1].font, (Font{"Courier New", 9, false}));
    EXPECT_EQ(box.lines()[1].colour, 9);
    EXPECT_EQ(box.lines()[3].colour, 0);
}

TEST_F(ScsimReports, AskForYearsUntilTheyFit) {
    const std::string told =
        play("answer 2\nanswer 3\nanswer 1\nanswer -4\nanswer 2.5\nanswer 2\npress cmdReport");
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 6);
    EXPECT_EQ(session.report()[0], " SUPPLY CHANNEL REPORT FOR SIMULATED YEARS 1 TO 2");
}

TEST_F(ScsimReports, StayWithTheOptionsWhereNoYearIsGiven) {
    play("answer \"\"\npress cmdReport\nanswer 1\nanswer cancel\npress cmdReport\nanswer cancel\npress "
         "cmdPlot\n"
         "answer 1\nanswer cancel\npress cmdPlot");
    EXPECT_TRUE(shown("ReportFrame"));
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST_F(ScsimReports, ReturnToTheOptionsAsTheyWereDesigned) {
    play("press FactRepOpt\npress FactOpt\nanswer 1\nanswer 1\npress cmdReport\npress cmdReturn");
    for (const char* selected : {"SCRepOpt", "SCOpt", "SalesOpt"})
        EXPECT_NE(play(std::string("show ") + selected).find(" selected "), std::string::npos) << selected;
    for (const char* cleared : {"FactRepOpt", "FactOpt"})
        EXPECT_EQ(play(std::string("show ") + cleared).find(" selected "), std::string::npos) << cleared;
}

TEST_F(ScsimReports, OpenTheMeasuresThatASubjectHas) {
    const auto open = [this] {
        std::string letters;
        for (const char* name : {"AllOpt", "SalesOpt", "InvOpt", "BOOpt", "OROpt"})
            letters += play(std::string("show ") + name).find("enabled") != std::string::npos &&
                               play(std::string("show ") + name).find("disabled") == std::string::npos
                           ? "+"
                           : "-";
        return letters;
    };
    EXPECT_EQ(open(), "-+++-");
    for (const char* level : {"RetOpt", "DistOpt", "WhseOpt"}) {
        play(std::string("press ") + level);
        EXPECT_EQ(open(), "+++++") << level;
    }
    play("press InvOpt\npress FactOpt");
    EXPECT_EQ(open(), "-+---");
    EXPECT_NE(play("show SalesOpt").find(" selected "), std::string::npos);
    EXPECT_EQ(play("show InvOpt").find(" selected "), std::string::npos);
}

TEST_F(ScsimReports, TellThatAnOptionIsntAvailable) {
    EXPECT_EQ(play("press RetOpt\npress AllOpt\npress SCOpt\npress cmdPlot"),
              "MessageBx \"SCSIM\": \"This option is not available.\"\n");
    EXPECT_TRUE(shown("PlotFrame"));
}

TEST_F(ScsimReports, PlotWhatIsChosen) {
    EXPECT_EQ(plotted("press SCOpt"), "chart \"AVERAGE DAILY SUPPLY CHANNEL SALES FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press SCOpt\npress BOOpt"),
              "chart \"SUPPLY CHANNEL BACK ORDERS FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press DistOpt\npress InvOpt"),
              "chart \"AVERAGE DISTRIBUTOR INVENTORY FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press WhseOpt\npress AllOpt"),
              "chart \"WAREHOUSE PERFORMANCE FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press FactOpt"), "chart \"DAILY FACTORY SALES FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(plotted("press RetOpt\npress OROpt", "answer 1\nanswer 2\n"),
              "chart \"RETAIL REPLENISHMENT ORDERS PLACED ON DISTRIBUTOR FOR YEARS 1 THROUGH 2\"");
    EXPECT_EQ(lines(play("chart"))[1], "x \"Simulated time, days\" 1 720");
    for (const char* hidden : {"ReportFrame", "PlotFrame2", "cmdPlot"}) EXPECT_FALSE(shown(hidden)) << hidden;
    EXPECT_TRUE(shown("PerfGph"));
}

TEST_F(ScsimReports, AskForTheOverlayOfTheRetailersSales) {
    const std::string years = "answer 2\nanswer 1\nanswer 1\n";
    EXPECT_EQ(play("press RetOpt\n" + years + "answer Yes\npress cmdPlot"),
              "InputBx \"SCSIM\": \"Select time period for the plot:\\n(1) Daily\\n(2) Weekly\\n(3) "
              "Monthly\" [\"3\"] -> "
              "\"2\"\n"
              "InputBx \"SCSIM\": \"The plot is to begin with year?\" [\"1\"] -> \"1\"\n"
              "InputBx \"SCSIM\": \"The plot is to end with year?\" [\"2\"] -> \"1\"\n"
              "YesNoBx \"SCSIM\": \"Overlay customer demand?\" -> Yes\n");
    EXPECT_EQ(lines(play("chart")).size(), 3U + 3U);
    play("press cmdReturn\npress RetOpt\n" + years + "answer No\npress cmdPlot");
    EXPECT_EQ(lines(play("chart")).size(), 3U + 2U);
    play("press cmdReturn\npress RetOpt\n" + years + "answer close\npress cmdPlot");
    EXPECT_TRUE(shown("PlotFrame"));
}

TEST_F(ScsimReports, AskForThePeriodOfAPlotUntilItIsOne) {
    const std::string told = play("answer 0\nanswer 1\nanswer 1\nanswer 1\npress cmdPlot");
    EXPECT_NE(told.find("MessageBx \"SCSIM\": \"Incorrect input. Try again.\"\nInputBx \"SCSIM\": \"Select"),
              std::string::npos);
    EXPECT_EQ(lines(play("chart"))[0], "chart \"DAILY SUPPLY CHANNEL SALES FOR YEAR 1\"");
}

TEST_F(ScsimReports, PrintAReportWithBoldHeadings) {
    play("press RetRepOpt\nanswer 1\nanswer 1\npress cmdReport\npress cmdPrint");
    const std::vector<std::string> printed = lines(play("printer"));
    EXPECT_EQ(printed[0], "print \" RETAILER REPORT FOR SIMULATED YEAR 1\" Arial 12 bold colour 0");
    EXPECT_EQ(printed[1], "print \" Forecasting method: Exponential smoothing\" Courier New 10 colour 0");
    EXPECT_EQ(printed[4], "print \"           Yearly       Simulated\" Courier New 10 bold colour 0");
    EXPECT_EQ(printed.back(), "end");
}

TEST_F(ScsimReports, PrintAPlotOrPutItOnTheClipboard) {
    play("answer 3\nanswer 1\nanswer 1\npress cmdPlot");
    EXPECT_NE(play("answer No\npress cmdPrint\nclipboard").find("clipboard: picture"), std::string::npos);
    EXPECT_NE(play("answer Yes\npress cmdPrint\nprinter").find("picture "), std::string::npos);
}

TEST_F(ScsimReports, LeadBackToTheSimulator) {
    play("press cmdContinue");
    EXPECT_EQ(play("title"), "SCSIM - <io>SIM01.dat\n");
    EXPECT_TRUE(reportEnabled());
    play("press Report\nclose");
    EXPECT_EQ(play("title"), "SCSIM - <io>SIM01.dat\n");
}

TEST_F(ScsimReports, TellWhereTheReportCannotBeWritten) {
    std::filesystem::create_symlink("/dev/full", session.ioFolder() / "OUTPUT.DAT");
    EXPECT_TRUE(play("answer 1\nanswer 1\npress cmdReport")
                    .ends_with("MessageBx \"SCSIM\": \"Disk full occurred in SCSIM, cmdReport.\"\n"));
    EXPECT_TRUE(shown("ReportFrame"));
}

TEST_F(ScsimReports, PriceAsTheBoxesStand) {
    play("press cmdContinue\ntab 2\ntype txtROPQuantD 1\nanswer 1\npress PlotDemand\npress Continue1\ntab 6\n"
         "type txtPrice 31\nanswer 1\npress PlotDemand\npress Continue1\npress Report\nanswer 1\nanswer "
         "1\npress "
         "cmdReport");
    const std::string revenue = session.report()[3];
    play("press cmdContinue\ntab 6\ntype txtPrice 62\nanswer 1\npress PlotDemand\npress Continue1\npress "
         "Report\n"
         "answer 1\nanswer 1\npress cmdReport");
    const auto first = [](const std::string& line) { return std::stod(replaced(line, ",", "")); };
    EXPECT_EQ(first(session.report()[3]), 2 * first(revenue));
}

} // namespace
} // namespace vantore::tests
