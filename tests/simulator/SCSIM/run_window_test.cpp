#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "script/script_platform.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "suite/module_list.h"
#include "tests/simulator/SCSIM/scsim_window.h"

namespace vantore::tests {
namespace {

using namespace scsim;

TEST_F(ScsimWindow, WritesTheTraceOfTheRun) {
    open(kettles());
    play("press Solve");
    const std::vector<std::string> trace = traceOf(session);
    ASSERT_EQ(trace.size(), 2U + 720U);
    EXPECT_TRUE(trace[1].starts_with("\"Day\",\"Demand\""));
    EXPECT_TRUE(trace[2].starts_with("1,"));
    EXPECT_TRUE(trace.back().starts_with("720,"));
    EXPECT_NE(session.readFile("RESULTS").find("\r\n"), std::string::npos);
}

TEST_F(ScsimWindow, ShowsAndSavesCalculatedParameters) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).reorderParameters = Parameters::Calculated;
    problem.levels(Level::Distributor).policy = Policy::PeriodicReview;
    problem.levels(Level::Distributor).reviewParameters = Parameters::Calculated;
    open(problem);
    play("press Solve\nfile SIM02.dat\npress Save");
    EXPECT_NE(textOf("txtROPR"), "700");
    ItemReader reader(session.readFile("SIM02.dat"));
    const Problem saved = read(reader);
    EXPECT_GT(saved.levels(Level::Retailer).reorderPoint, 100);
    EXPECT_GT(saved.levels(Level::Retailer).reorderQuantity, 100);
    EXPECT_GT(saved.levels(Level::Distributor).orderInterval, 1);
    EXPECT_GT(saved.levels(Level::Distributor).targetLevel, 100);
    EXPECT_EQ(textOf("txtROPQuantW"), "600");
}

TEST_F(ScsimWindow, RunsTheSameAgain) {
    Problem problem = kettles();
    problem.levels(Level::Distributor).averageFillTime = 3;
    problem.levels(Level::Distributor).fillTimeDeviation = 2;
    open(problem);
    play("press Solve");
    const std::string first = session.readFile("RESULTS");
    play("press Solve");
    EXPECT_EQ(session.readFile("RESULTS"), first);
    play("tab 6\ntype Seed 1\npress Solve");
    EXPECT_NE(session.readFile("RESULTS"), first);
}

Problem askingForForecasts() {
    Problem problem = kettles();
    problem.years = 1;
    problem.levels(Level::Distributor).forecast = ForecastMethod::Specified;
    return problem;
}

TEST_F(ScsimWindow, AsksForSpecifiedForecasts) {
    open(askingForForecasts());
    EXPECT_EQ(play("answer 90\nanswer 95\nanswer abc\nanswer 1E2\npress Solve"),
              "InputBx \"\": \"Forecast of distributor average daily demand in units to initialize "
              "simulation.\" [\"\"] "
              "-> \"90\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day "
              "-179 into simulation\" [\"\"] -> \"95\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day  1 "
              "into simulation\" [\"\"] -> \"abc\"\n"
              "InputBx \"Specified daily forecast\": \"Forecast of distributor average daily demand in units "
              "at day  "
              "181 into simulation\" [\"\"] -> \"1E2\"\n");
    EXPECT_TRUE(reportEnabled());
    EXPECT_EQ(textOf("lblYear"), "");
}

TEST_F(ScsimWindow, StopsWhereAForecastIsCancelled) {
    open(askingForForecasts());
    play("answer 90\nanswer 95\nanswer 97\nanswer cancel\npress Solve");
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U + 179U);
    play("answer \"\"\npress Solve");
    EXPECT_EQ(traceOf(session).size(), 2U);
}

/// Answers every forecast prompt with 90, having looked at the day that the window tells.
class WatchingUser : public ScriptPlatform {
  public:
    explicit WatchingUser(std::ostream& out) : ScriptPlatform(out, 800, 600, false) {}

    void showModal(DialogForm& dialog) override {
        days.push_back(year->caption);
        queueAnswer({ScriptAnswer::Kind::Text, "90"});
        ScriptPlatform::showModal(dialog);
    }

    const Control* year = nullptr;
    std::vector<std::string> days;
};

TEST(ScsimRun, ShowsTheDayWhileItAsks) {
    const TemporaryFolder folder;
    std::ostringstream transcript;
    WatchingUser user(transcript);
    Platform parts = user.parts();
    Suite suite(parts, moduleList());
    suite.ioFolder = textOf(folder.path()) + "/";
    replaceFile(folder.path() / "SIM01.dat", fileOf(askingForForecasts()));
    suite.windows.open(std::make_unique<SCSim>(suite));
    Form& form = *suite.windows.front();
    user.year = form.find("lblYear");
    user.queueFile("SIM01.dat");
    form.press(*form.find("OpenF"));
    form.press(*form.find("Solve"));
    EXPECT_EQ(user.days, (std::vector<std::string>{"Warming up, day 1", "Warming up, day 180",
                                                   "Warming up, day 360", "Simulated year 1, day 180"}));
    EXPECT_EQ(user.year->caption, "");
}

Problem endlessOrders() {
    Problem problem = kettles();
    problem.levels(Level::Retailer).reorderQuantity = 0;
    return problem;
}

TEST_F(ScsimWindow, AsksWhetherToOrderOn) {
    open(endlessOrders());
    const std::string told = play("answer Yes\nanswer No\npress Solve");
    EXPECT_TRUE(told.starts_with("YesNoBx \"SCSIM\": \"Long computational times are being encountered"));
    EXPECT_NE(told.find("as to \\n\\n(1) the demand standard deviation,\\n(2) the in-stock"),
              std::string::npos);
    EXPECT_TRUE(told.ends_with("for a while longer?\" -> No\n"));
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 2);
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U);
}

TEST_F(ScsimWindow, StopsWhereTheQuestionIsClosed) {
    open(endlessOrders());
    play("answer close\npress Solve");
    EXPECT_FALSE(reportEnabled());
    EXPECT_EQ(traceOf(session).size(), 2U);
}

TEST_F(ScsimWindow, LeavesTheReportAsItIsWhereARunStops) {
    open(askingForForecasts());
    play("answer 90\nanswer 95\nanswer 97\nanswer 98\npress Solve\nanswer cancel\npress Solve");
    EXPECT_TRUE(reportEnabled());
}

TEST_F(ScsimWindow, TellsARunTimeErrorAndKeepsTheTraceUpToIt) {
    Problem problem = kettles();
    problem.levels(Level::Retailer).averageFillTime = 8990; // day 11 is due beyond day 9000
    open(problem);
    EXPECT_EQ(play("press Solve"),
              "MessageBx \"SCSIM\": \"Subscript out of range occurred in Solve, SCSIM.\"\n");
    EXPECT_EQ(traceOf(session).size(), 2U + 10U);
    EXPECT_FALSE(reportEnabled());
}

TEST_F(ScsimWindow, TellsWhereTheTraceCannotBeWritten) {
    open(kettles());
    std::filesystem::create_directory(session.ioFolder() / "RESULTS");
    EXPECT_EQ(play("press Solve"),
              "MessageBx \"SCSIM\": \"Path/File access error occurred in Solve, SCSIM.\"\n");
    EXPECT_FALSE(reportEnabled());
}

TEST_F(ScsimWindow, TellsAFullDisk) {
    open(kettles());
    std::filesystem::create_symlink("/dev/full", session.ioFolder() / "RESULTS");
    EXPECT_EQ(play("press Solve"), "MessageBx \"SCSIM\": \"Disk full occurred in Solve, SCSIM.\"\n");
    EXPECT_FALSE(reportEnabled());
}

} // namespace
} // namespace vantore::tests
