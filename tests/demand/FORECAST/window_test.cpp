#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <utility>

#include "shell/base/text.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// The line through 10, 12, 14 has slope 2; then forecasts 16, 21 and, ahead, 21.75 and 24.
constexpr const char* trendProblem = "\"Drums\",5,3,2,2,\"N\",.1,.5,.5,0,0,2\r\n5\r\n\"Jan\",10\r\n"
                                     "\"Feb\",12\r\n\"Mar\",14\r\n\"Apr\",20\r\n\"May\",18\r\n";

ModuleSession& opened(ModuleSession& session, std::string_view content = trendProblem) {
    session.writeFile("FRC01.dat", content);
    session.open("FORECAST", "FRC01.dat");
    return session;
}

std::string told(std::initializer_list<const char*> texts) {
    std::string lines;
    for (const char* text : texts) lines += std::string("MessageBx \"FORECAST\": \"") + text + "\"\n";
    return lines;
}

constexpr const char* question =
    "InputBx \"FORECAST display\": \"Display:\\n(1) Data only\\n(2) Data and forecast\\n(3) Forecast only\" "
    "[\"1\"] -> ";

TEST(ForecastWindow, HasNoFaultsInAnyView) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession session(width, height);
        session.play("module FORECAST");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.writeFile("FRC01.dat", trendProblem);
        session.play("file FRC01.dat\npress cmdOpen");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("press cmdSolve");
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
        session.play("answer 2\npress cmdPlot");
        EXPECT_EQ(session.module().view(), View::Plot);
        EXPECT_EQ(formFaults(session.module()), std::vector<std::string>{}) << width;
    }
}

TEST(ForecastWindow, StartsWithNothingToTypeInto) {
    ModuleSession session;
    EXPECT_EQ(session.play("module FORECAST\nshow cmdOpen\ntype txtLabel x\npress cmdSolve\npress optLevel"),
              "cmdOpen: visible enabled \"&Start\"\nrefused: txtLabel is disabled\n"
              "refused: cmdSolve is hidden\nrefused: optLevel is hidden\n");
}

TEST(ForecastWindow, ShowsTheFileInItsControls) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(
        session.play("title\nshow txtLabel\nshow txtNoPrds\nshow txtIni\nshow txtErrPrds\nshow txtSearch\n"
                     "show txtSearchInc\nshow txtLvlCons\nshow txtSeasLen\nshow txtForPrds\n"
                     "show optLvlTrd\nshow optLevel\nshow cmdPlot"),
        "FORECAST - <io>FRC01.dat\ntxtLabel: visible enabled \"Drums\"\n"
        "txtNoPrds: visible enabled \"5\"\ntxtIni: visible enabled \"3\"\n"
        "txtErrPrds: visible enabled \"2\"\ntxtSearch: visible enabled \"N\"\n"
        "txtSearchInc: visible enabled \".1\"\ntxtLvlCons: visible enabled \".5\"\n"
        "txtSeasLen: visible enabled \"0\"\ntxtForPrds: visible enabled \"2\"\n"
        "optLvlTrd: visible enabled selected \"Level - Trend\"\n"
        "optLevel: visible enabled \"Level only\"\ncmdPlot: visible enabled \"P&lot data\"\n");
    EXPECT_EQ(
        session.grid("grdSeries"),
        (std::vector<std::string>{"Prd\\nno. | Period label | Time series\\ndata, units", "1 | Jan | 10",
                                  "2 | Feb | 12", "3 | Mar | 14", "4 | Apr | 20", "5 | May | 18"}));
}

TEST(ForecastWindow, ReportsTheForecast) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    EXPECT_EQ(session.report(),
              (std::vector<std::string>{
                  " TIME SERIES FORECASTING",
                  " Curve fitting and model validation",
                  "",
                  " MODEL TYPE: Trend",
                  " Level sm. const. = .50  Trend sm. const. = .50",
                  " Prd Period                                                    Sea-",
                  " no. label----------        Actual     Forecast       Trend   sonal        Error",
                  "   4 Apr                     20.00        16.00        3.00     .00         4.00",
                  "   5 May                     18.00        21.00        2.25     .00        -3.00",
                  "",
                  " THE FORECAST",
                  " MAD = 3.50 BIAS = .50 RMSE = 3.54",
                  " The forecasts for periods 6 to 7 are:",
                  " Period        Forecast",
                  "    6             21.75",
                  "    7             24.00",
              }));
    const auto* report = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    ASSERT_NE(report, nullptr);
    EXPECT_TRUE(report->lines().at(1).font.bold);
    EXPECT_EQ(report->lines().at(1).colour, colour::lightBlue);
    EXPECT_FALSE(report->lines().at(3).font.bold);
    EXPECT_EQ(report->lines().at(3).font.family, "Courier New");
    EXPECT_TRUE(session.readFile("OUTPUT.DAT").starts_with("* TIME SERIES FORECASTING\r\n* Curve fitting"));
    EXPECT_EQ(session.play("press cmdContinue\nshow cmdSolve\nshow txtSearch"),
              "cmdSolve: visible enabled \"&Solve\"\ntxtSearch: visible enabled \"N\"\n");
}

TEST(ForecastWindow, LeavesTheBoxesAsTypedAfterASearch) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("type txtSearch y\ntype txtLvlCons .77\npress cmdSolve\npress cmdContinue\n"
                           "show txtSearch\nshow txtLvlCons"),
              "txtSearch: visible enabled \"y\"\ntxtLvlCons: visible enabled \".77\"\n");
}

TEST(ForecastWindow, AsksForYesOrNoOnLeavingTheSearchBox) {
    ModuleSession session;
    opened(session);
    const std::string message = told({"Enter Y or N only"});
    EXPECT_EQ(session.play("type txtSearch maybe\nleave txtSearch"), message);
    EXPECT_EQ(session.play("type txtSearch YN\nleave txtSearch"), message);
    for (const char* text : {"y", "N", "n", "Y", "\"\""})
        EXPECT_EQ(session.play("type txtSearch " + std::string(text) + "\nleave txtSearch"), "") << text;
}

TEST(ForecastWindow, WarnsBeforeTheReportAndGoesOn) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(
        session.play("type txtNoPrds 4\ntype txtIni 2\ntype txtSeasLen 1\ntype txtForPrds 51\n"
                     "type txtLabel Drums, large\ntype txtTrendCons 0\npress cmdSolve\nshow cmdContinue"),
        told({"Initialization period must be at least 2 periods longer than the seasonal cycle.",
              "Initialization period should be at least 3 periods.",
              "A minimum of 5 data points should be used.", "No more than 50 future periods can be forecast.",
              "Problem label has a comma (,) in it.  Remove it.",
              "NOTICE: The trend smoothing constant is 0."}) +
            "cmdContinue: visible enabled \"&Continue\"\n");
    // The line through 10 and 12 gives forecasts 14 and 16; level 18 and trend .01 x 4 + .99 x 2 remain.
    EXPECT_EQ(session.report().back(), "   55            121.02");
}

TEST(ForecastWindow, StopsWhereTheDataMustBeMended) {
    ModuleSession session;
    opened(session);
    const std::string backAtData = "cmdContinue: hidden enabled \"&Continue\"\n";
    EXPECT_EQ(session.play("type txtLabel \"Drums \"large\"\"\npress cmdSolve\nshow cmdContinue"),
              told({"Problem label has a double quote mark (\\\") in it.  Remove it."}) + backAtData);
    EXPECT_EQ(session.play("type txtLabel Drums\ntype txtSearch Y\ntype txtSearchInc .004\npress cmdSolve\n"
                           "show cmdContinue"),
              told({"Search increment must be greater than 0."}) + backAtData);
    EXPECT_EQ(session.play("type txtSearchInc 1.5\npress optDECOMP\npress cmdSolve\nshow cmdContinue"),
              told({"Seasonal length must not be zero (0) if a seasonal model type is selected."}) +
                  backAtData);
    EXPECT_FALSE(session.fileExists("OUTPUT.DAT"));
}

TEST(ForecastWindow, RefusesAPeriodLabelWithADoubleQuote) {
    ModuleSession session;
    opened(session, replaced(trendProblem, "\"Mar\"", "M\"ar"));
    EXPECT_EQ(session.play("press cmdSolve"),
              told({"Period identification has a single quote mark (\\\") in it.  Remove it."}));
}

TEST(ForecastWindow, BeepsWhereTheSeasonIsTooLongForTheInitialPeriods) {
    ModuleSession session;
    opened(session);
    // N = L + 2 just passes.
    EXPECT_EQ(session.play("press optLvlSea\ntype txtSeasLen 1\ntype txtSeaCons .5\npress cmdSolve"), "");
    EXPECT_EQ(
        session.play("press cmdContinue\ntype txtSeasLen 2\npress cmdSolve\nshow cmdSolve\nshow cmdPlot"),
        told({"Initialization period must be at least 2 periods longer than the seasonal cycle."}) +
            "beep\n" + told({"Initialization period must exceed seasonal length by at least 2 periods."}) +
            "cmdSolve: visible enabled \"&Solve\"\ncmdPlot: visible enabled \"P&lot data\"\n");
}

TEST(ForecastWindow, EndsARunTimeErrorInItsMessage) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(
        session.play("cell grdSeries 3 2 0\npress optLvlSea\ntype txtSeasLen 1\ntype txtSeaCons .5\n"
                     "press cmdSolve\nshow cmdContinue\nshow rtbOut\nshow cmdPrintTB\npress cmdContinue"),
        told({"Division by zero occurred in FORECAST, cmdSolve."}) +
            "cmdContinue: visible enabled \"&Continue\"\nrtbOut: visible enabled \"\"\n"
            "cmdPrintTB: hidden enabled \"&Print\"\n");
    EXPECT_EQ(session.play("press optLevel\ntype txtForPrds 300\npress cmdSolve\npress cmdContinue"),
              told({"No more than 50 future periods can be forecast.",
                    "Subscript out of range occurred in FORECAST, cmdSolve."}));
    EXPECT_EQ(session.play("type txtForPrds 1\ncell grdSeries 4 2 1E308\npress cmdSolve"),
              told({"Overflow occurred in FORECAST, cmdSolve."}));
}

TEST(ForecastWindow, TakesCellsByTheirNumericPrefix) {
    ModuleSession session;
    opened(session);
    session.play("cell grdSeries 4 2 20 drums\ncell grdSeries 5 2 many\npress cmdSolve");
    EXPECT_EQ(session.report().at(7),
              "   4 Apr                     20.00        16.00        3.00     .00         4.00");
    EXPECT_TRUE(session.report().at(8).starts_with("   5 May                       .00        21.00"));
}

TEST(ForecastWindow, TakesTheLevelModelWhereNoneIsChosen) {
    ModuleSession session;
    opened(session, replaced(trendProblem, "5,3,2,2,", "5,3,2,0,")).play("press cmdSolve");
    EXPECT_EQ(session.report().at(3), " MODEL TYPE: Level only");
    EXPECT_EQ(
        session.play("press cmdContinue\nfile FRC02.dat\npress cmdSave"),
        "SaveDialog \"Save forecasting data\" filter \"Time series forecasting (FRC*.dat)|FRC*.dat|\" -> "
        "FRC02.dat\n" +
            told({"No forecasting model type selected."}));
    EXPECT_FALSE(session.fileExists("FRC02.dat"));
    EXPECT_EQ(
        session.play("answer Yes\nfile FRC02.dat\npress cmdExit\nshow txtLabel"),
        "YesNoBx \"FORECAST\": \"Save data?\" -> Yes\n"
        "SaveDialog \"Save forecasting data\" filter \"Time series forecasting (FRC*.dat)|FRC*.dat|\" -> "
        "FRC02.dat\n" +
            told({"No forecasting model type selected."}) + "txtLabel: visible enabled \"Drums\"\n");
    EXPECT_FALSE(session.fileExists("FRC02.dat"));
    session.play("press optLevel\nfile FRC02.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("FRC02.dat"), replaced(trendProblem, "5,3,2,2,", "5,3,2,1,"));
}

TEST(ForecastWindow, ForgetsTheForecastWithTheNextFile) {
    ModuleSession session;
    opened(session).play("press cmdSolve\npress cmdContinue\nfile FRC01.dat\npress cmdOpen");
    EXPECT_EQ(session.play("show cmdPlot"), "cmdPlot: visible enabled \"P&lot data\"\n");
}

// The plots

TEST(ForecastPlot, ShowsTheDataWithoutAQuestionBeforeASolve) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("cell grdSeries 2 2 11.5\npress cmdPlot\nchart\nshow grfPlot\npress cmdContinue\n"
                           "show grfPlot"),
              "chart \"TIME SERIES DATA\"\nx \"Time periods\" 1 5\ny \"Data values\" 10 20\n"
              "series \"Data\" line colour 12: (1,10) (2,11.5) (3,14) (4,20) (5,18)\n"
              "grfPlot: visible enabled \"\"\ngrfPlot: hidden enabled \"\"\n");
}

TEST(ForecastPlot, AsksWhatToShowUntilItKnows) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    EXPECT_EQ(session.play("answer 4\nanswer cancel\nanswer 1\npress cmdPlot\nchart"),
              std::string(question) + "\"4\"\n" + question + "cancel\n" + question + "\"1\"\n" +
                  "chart \"TIME SERIES DATA\"\nx \"Time periods\" 1 5\ny \"Data values\" 10 20\n"
                  "series \"Data\" line colour 12: (1,10) (2,12) (3,14) (4,20) (5,18)\n");
}

TEST(ForecastPlot, ShowsDataAndForecastAsTwoSeries) {
    ModuleSession session;
    opened(session).play("press cmdSolve");
    EXPECT_EQ(session.play("answer 2\npress cmdPlot\nchart"),
              std::string(question) + "\"2\"\n" +
                  "chart \"MODEL TYPE: Trend\"\nx \"Time periods\" 1 7\ny \"Data values\" 10 24\n"
                  "series \"Data\" line colour 12: (1,10) (2,12) (3,14) (4,20) (5,18)\n"
                  "series \"Forecast\" line colour 9: (4,16) (5,21) (6,21.75) (7,24)\n");
}

TEST(ForecastPlot, ShowsTheForecastAlone) {
    ModuleSession session;
    opened(session).play("press cmdSolve\npress cmdContinue");
    EXPECT_EQ(session.play("answer 3\npress cmdPlot\nchart"),
              std::string(question) + "\"3\"\n" +
                  "chart \"MODEL TYPE: Trend\"\nx \"Time periods\" 4 7\ny \"Data values\" 16 24\n"
                  "series \"Forecast\" line colour 9: (4,16) (5,21) (6,21.75) (7,24)\n");
}

TEST(ForecastPlot, GoesToThePrinterOrTheClipboard) {
    ModuleSession session;
    opened(session).play("press cmdPlot\nanswer Yes\npress cmdPrintPlot");
    EXPECT_EQ(
        session.play("printer\nclipboard\nshow cmdContinue"),
        "picture 640x480\nend\nclipboard: picture 640x480\ncmdContinue: visible enabled \"&Continue\"\n");
}

TEST(ForecastPlot, OfNoDataAtAllIsEmpty) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("type txtNoPrds 0\npress cmdPlot\nchart"),
              "chart \"TIME SERIES DATA\"\nx \"Time periods\" 0 1\ny \"Data values\" 0 1\n"
              "series \"Data\" line colour 12:\n");
}

// The series and its number of periods

TEST(ForecastSeries, FollowsTheNumberOfPeriodsAndLosesNothingOnTheWay) {
    ModuleSession session;
    opened(session).play("type txtNoPrds 2");
    EXPECT_EQ(session.grid("grdSeries").size(), 3U);
    session.play("type txtNoPrds \"\"\nkeys txtNoPrds 4");
    EXPECT_EQ(session.grid("grdSeries").back(), "4 | Apr | 20");
    session.play("type txtNoPrds \"\"\nkeys txtNoPrds 5\nleave txtNoPrds\ntype txtNoPrds 7");
    EXPECT_EQ(session.grid("grdSeries").at(5), "5 | May | 18");
    EXPECT_EQ(session.grid("grdSeries").back(), "7 |  | ");
    session.play("file FRC02.dat\npress cmdSave");
    EXPECT_TRUE(session.readFile("FRC02.dat").starts_with("\"Drums\",7,3,2,2,"));
    EXPECT_TRUE(session.readFile("FRC02.dat").ends_with("\"May\",18\r\n\" \",0\r\n\" \",0\r\n"));
}

TEST(ForecastSeries, IsLeftAsItIsByANumberBeyondItsLimit) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(
        session.play("type txtNoPrds 201\nshow txtNoPrds"),
        "MessageBx \"Add a Row\": \"Too many rows.  Limit is 200\"\ntxtNoPrds: visible enabled \"5\"\n");
    EXPECT_EQ(session.grid("grdSeries").back(), "5 | May | 18");
    session.play("type txtNoPrds 200");
    EXPECT_EQ(session.grid("grdSeries").size(), 201U);
    EXPECT_EQ(session.play("type txtNoPrds -3\nshow txtNoPrds"), "txtNoPrds: visible enabled \"200\"\n");
    session.play("type txtNoPrds 0");
    EXPECT_EQ(session.grid("grdSeries").back(), "0 |  | ");
}

TEST(ForecastSeries, TellsItsNumberAfterRowsAreAddedAndDeleted) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(session.play("insert grdSeries\nshow txtNoPrds"), "txtNoPrds: visible enabled \"6\"\n");
    EXPECT_EQ(session.grid("grdSeries").back(), "6 |  | ");
    session.play("current grdSeries 2 1\npress cmdDelete\npress cmdDelete");
    EXPECT_EQ(session.grid("grdSeries").at(2), "2 | Apr | 20");
    session.play("current grdSeries 1 1\nanswer No\npress cmdAdd");
    EXPECT_EQ(session.grid("grdSeries").at(1), "1 |  | ");
    EXPECT_EQ(session.play("show txtNoPrds"), "txtNoPrds: visible enabled \"5\"\n");
}

// Print and files

TEST(ForecastPrint, TellsTheData) {
    ModuleSession session;
    opened(session).play("press cmdPrintData");
    const std::vector<std::string> printed = lines(session.play("printer"));
    const std::vector<std::string> texts = {
        "",
        "                           FORECASTING DATA",
        "",
        "Problem label: Drums",
        "Number of data periods: 5",
        "Periods used for model initialization: 3",
        "Number of periods used to compute error statistics: 2",
        "Search for best smoothing constant (Y/N)? N",
        "Search increment: .1",
        "Level smoothing constant: .5",
        "Trend smoothing constant: .5",
        "Seasonal smoothing constant: 0",
        "Seasonal length (in periods): 0",
        "Number of periods to be forecast: 2",
        "Type of forecasting model: Exponential smoothing, Level-Trend",
        "Prd.                     Time series",
        " no. Period label        data, units",
        "   1 Jan                      10.000",
        "   2 Feb                      12.000",
        "   3 Mar                      14.000",
        "   4 Apr                      20.000",
        "   5 May                      18.000",
    };
    ASSERT_EQ(printed.size(), texts.size() + 1);
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(printed.at(i), "print \"" + texts.at(i) + "\" Courier New 12 colour 0");
}

TEST(ForecastPrint, TellsTheReport) {
    ModuleSession session;
    opened(session).play("press cmdSolve\npress cmdPrintTB");
    const std::string printed = session.play("printer");
    EXPECT_TRUE(printed.starts_with("print \"* TIME SERIES FORECASTING\" Arial 12 colour 0\n")) << printed;
    EXPECT_NE(printed.find("print \"    7             24.00\" Courier New 10 colour 0\nend\n"),
              std::string::npos);
}

TEST(ForecastFiles, SaveWhatWasOpened) {
    ModuleSession session;
    opened(session);
    EXPECT_EQ(
        session.play("file DRUMS.dat\nfile FRC02.dat\npress cmdSave\ntitle"),
        "SaveDialog \"Save forecasting data\" filter \"Time series forecasting (FRC*.dat)|FRC*.dat|\" -> "
        "DRUMS.dat\nMessageBx \"FORECAST\": \"Use the prefix FRC on the file name.\"\n"
        "SaveDialog \"Save forecasting data\" filter \"Time series forecasting (FRC*.dat)|FRC*.dat|\" -> "
        "FRC02.dat\nFORECAST - <io>FRC02.dat\n");
    EXPECT_EQ(session.readFile("FRC02.dat"), trendProblem);
}

/// The problem as the window shows it.
std::string onScreen(ModuleSession& session) {
    return session.play("grid grdSeries\nshow txtLabel\nshow txtNoPrds\nshow txtSeasLen\nshow txtForPrds");
}

TEST(ForecastFiles, AreMetWithAMessageOrAProblemWhateverTheyHold) {
    int refused = 0;
    int solved = 0;
    for (const std::string& content : damagedForms(trendProblem)) {
        ModuleSession session;
        opened(session);
        const std::string before = onScreen(session);
        session.writeFile("FRCBAD.dat", content);
        const std::string answer = session.play("file FRCBAD.dat\npress cmdOpen");
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(session.readFile("FRCBAD.dat"), content);
        if (answer.find("MessageBx") != std::string::npos) {
            ++refused;
            EXPECT_NE(answer.find(" occurred in FORECAST, cmdOpen.\"\n"), std::string::npos) << answer;
            EXPECT_EQ(onScreen(session), before) << content;
        }
        const std::string verdict = session.play("press cmdSolve");
        if (session.module().view() == View::Report) {
            ++solved;
            EXPECT_TRUE(session.readFile("OUTPUT.DAT").starts_with("* TIME SERIES FORECASTING")) << content;
            EXPECT_EQ(session.readFile("OUTPUT.DAT").find("nan"), std::string::npos) << content;
            EXPECT_EQ(session.readFile("OUTPUT.DAT").find("inf"), std::string::npos) << content;
        } else {
            EXPECT_TRUE(verdict.starts_with("MessageBx \"FORECAST\": ")) << content << verdict;
            EXPECT_FALSE(session.fileExists("OUTPUT.DAT")) << content;
        }
    }
    EXPECT_GT(refused, 10);
    EXPECT_GT(solved, 10);
}

TEST(ForecastFiles, LoseNothingOfTheProblemOnScreenWhenTheyAreBad) {
    ModuleSession session;
    opened(session);
    session.writeFile("FRCBAD.dat", "\"Other\",5,3,2,2,\"N\",.1,.5,.5,0,0,2\r\n5\r\n\"Jan\",10\r\n");
    EXPECT_EQ(
        session.play("file FRCBAD.dat\npress cmdOpen\nshow txtLabel"),
        "OpenDialog \"Open forecasting data file\" filter \"Time series forecasting (FRC*.dat)|FRC*.dat|\" "
        "-> FRCBAD.dat\n" +
            told({"Input past end of file occurred in FORECAST, cmdOpen."}) +
            "txtLabel: visible enabled \"Drums\"\n");
    EXPECT_EQ(session.grid("grdSeries").back(), "5 | May | 18");
}

TEST(ForecastSamples, OpenAndSolveWithoutAWord) {
    for (const char* name : {"FRC01.dat", "FRC02.dat", "FRC03.dat"}) {
        ModuleSession session;
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              session.ioFolder());
        session.open("FORECAST", name);
        EXPECT_EQ(session.play("press cmdSolve\nshow cmdPlot"), "cmdPlot: visible enabled \"P&lot\"\n")
            << name;
    }
}

} // namespace
} // namespace vantore::tests
