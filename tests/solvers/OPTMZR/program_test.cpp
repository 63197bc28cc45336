#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>
#include <unistd.h>

#include "processes/child_process.h"
#include "shell/base/solver_progress.h"
#include "shell/base/text_file.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "solvers/OPTMZR/solve.h"
#include "tests/routing/ROUTER/random_problems.h"
#include "tests/solvers/OPTMZR/found.h"
#include "tests/support/module_session.h"
#include "tests/support/solver_processes.h"
#include "tests/support/temporary_folder.h"

namespace vantore::optmzr::tests {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using router::Plan;
using router::Problem;
using router::tests::RandomProblems;
using vantore::tests::contents;
using vantore::tests::damagedForms;
using vantore::tests::runSolver;
using vantore::tests::SolverRun;
using vantore::tests::TemporaryFolder;

const fs::path program = OPTMZR_PROGRAM;

std::string inputOf(const Problem& problem) {
    ItemWriter writer;
    router::write(problem, writer);
    return writer.text();
}

/// A problem that keeps the search busy for seconds.
Problem largeProblem() {
    return RandomProblems(61).next(router::mostStops);
}

/// A folder with a TEMP.DAT, and OPTMZR.EXE run on it.
class OptmzrProgram : public testing::Test {
  protected:
    void write(const std::string& text, const std::string& name = "TEMP.DAT") const {
        std::ofstream(folder_.path() / name, std::ios::binary) << text;
    }

    /// The exit status; what the program says on standard error is in `complained_`.
    int solve(const std::string& before = "") {
        const SolverRun run = runSolver(program, folder_.path(), before);
        complained_ = run.complained;
        EXPECT_EQ(run.printed, "");
        return run.status;
    }

    bool hasPlan() const { return fs::exists(folder_.path() / "ROUTE.DAT"); }

    Plan plan(const std::string& name = "ROUTE.DAT") const {
        ItemReader reader(readTextFile(folder_.path() / name));
        return router::readPlan(reader);
    }

    TemporaryFolder folder_;
    std::string complained_;
};

TEST_F(OptmzrProgram, WritesThePlanThatTheSearchFinds) {
    const Problem problem = RandomProblems(3).next(7);
    write(inputOf(problem));
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(complained_, "");
    EXPECT_EQ(contents(folder_.path() / "ROUTE.DAT"), textOf(found(problem).plan));
    EXPECT_EQ(readProgress(folder_.path()), "");
}

TEST_F(OptmzrProgram, FindsFilesInAnySpellingAndReplacesThePlanBefore) {
    const Problem problem = RandomProblems(4).next(3);
    write(inputOf(problem), "temp.dat");
    write("COMPUTED\r\n1,1,10,1,100,0\r\n9\r\n", "Route.Dat");
    EXPECT_EQ(solve(), 0);
    EXPECT_FALSE(fs::exists(folder_.path() / "Route.Dat"));
    EXPECT_TRUE(isWhole(problem, plan()));
}

TEST_F(OptmzrProgram, WritesAnEmptyPlanWithoutStops) {
    Problem problem = RandomProblems(5).next(3);
    problem.stops = {};
    write(inputOf(problem));
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(contents(folder_.path() / "ROUTE.DAT"), "COMPUTED\r\n");
}

TEST_F(OptmzrProgram, SaysWhyThereIsNoPlan) {
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "OPTMZR.EXE: File not found\n");
    Problem problem = RandomProblems(6).next(3);
    const std::string text = inputOf(problem);
    write(text.substr(0, text.size() / 2));
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "OPTMZR.EXE: TEMP.DAT can't be read as a problem. Input past end of file.\n");
    problem.vehicles = {};
    write(inputOf(problem));
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "OPTMZR.EXE: There is no vehicle for the routes.\n");
    problem = RandomProblems(6).next(3);
    problem.defaultSpeed = 0;
    write(inputOf(problem));
    EXPECT_EQ(solve(), 1);
    EXPECT_TRUE(complained_.ends_with("OPTMZR.EXE: Division by zero\n")) << complained_;
    EXPECT_FALSE(hasPlan());
}

TEST_F(OptmzrProgram, EndsWithAPlanOrAReasonWhateverItReads) {
    for (const std::string& text : damagedForms(inputOf(RandomProblems(8).next(3)))) {
        write(text);
        const int status = solve();
        ASSERT_TRUE(status == 0 || status == 1) << text;
        ASSERT_EQ(status == 0, hasPlan()) << text;
        ASSERT_EQ(status == 0, complained_.empty()) << text;
    }
}

TEST_F(OptmzrProgram, FailsWhereItCannotWrite) {
    write(inputOf(RandomProblems(9).next(3)));
    fs::create_directory(folder_.path() / "ROUTE.DAT");
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "OPTMZR.EXE: Path/File access error\n");
}

TEST_F(OptmzrProgram, LeavesNoHalfPlanOnAFullDisk) {
    write(inputOf(RandomProblems(10).next(5)));
    EXPECT_EQ(solve("ulimit -f 0; trap '' XFSZ; "), 1);
    EXPECT_FALSE(hasPlan());
}

/// A run of OPTMZR.EXE on a problem that keeps it busy, with the signals that a test sends.
class BusyOptmzr : public OptmzrProgram {
  protected:
    void SetUp() override {
        write(inputOf(problem_));
        running_ = startProcess(program, folder_.path(), {{"VANTORE_IO", folder_.path().string() + "/"}});
        ASSERT_TRUE(running_);
        ASSERT_TRUE(soon([this] { return !readProgress(folder_.path()).empty(); }));
        ASSERT_TRUE(running_->running());
    }

    template <class Condition>
    static bool soon(const Condition& condition) {
        const auto start = Clock::now();
        while (Clock::now() - start < std::chrono::seconds(30)) {
            if (condition()) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }

    /// The processes in which OPTMZR.EXE works, the search at last.
    std::vector<pid_t> processes() const {
        return vantore::tests::solverProcesses(folder_.path(), "OPTMZR.EXE");
    }

    void awaitEnd() {
        EXPECT_TRUE(soon([this] { return !running_->running(); }));
    }

    void expectAWholePlan() {
        EXPECT_EQ(running_->end().status, 0);
        ASSERT_TRUE(hasPlan());
        EXPECT_TRUE(isWhole(problem_, plan()));
        EXPECT_LT(plan().routeCount, router::mostStops); // more than one route for each stop
        EXPECT_EQ(readProgress(folder_.path()), "");
    }

    Problem problem_ = largeProblem();
    std::unique_ptr<RunningProgram> running_;
};

TEST_F(BusyOptmzr, TellsHowFarItHasCome) {
    const std::string line = readProgress(folder_.path());
    EXPECT_TRUE(line.starts_with("Best plan so far: ")) << line;
    EXPECT_NE(line.find(" routes, cost $"), std::string::npos) << line;
    EXPECT_FALSE(hasPlan());
    running_->interrupt();
    awaitEnd();
}

TEST_F(BusyOptmzr, StopsOnCtrlCWithTheBestPlanSoFar) {
    running_->interrupt();
    const auto start = Clock::now();
    awaitEnd();
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
    expectAWholePlan();
}

TEST_F(BusyOptmzr, WritesTheBestPlanThoughTheSearchCrashes) {
    ASSERT_EQ(processes().size(), 2U);
    kill(processes().back(), SIGSEGV);
    awaitEnd();
    expectAWholePlan();
}

TEST_F(BusyOptmzr, LeavesNothingRunningAndNoPlanWhenItIsKilled) {
    ASSERT_EQ(processes().size(), 2U);
    kill(processes().front(), SIGKILL);
    awaitEnd();
    EXPECT_TRUE(soon([this] { return processes().empty(); }));
    EXPECT_FALSE(hasPlan());
}

TEST(Solve, EndsInTimeWithTheBestPlanSoFar) {
    const Problem problem = largeProblem();
    int told = 0;
    const auto start = Clock::now();
    const Plan plan =
        solve(problem, 1, [&told](const Plan& /*plan*/, const Judgement& /*judgement*/) { ++told; });
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
    EXPECT_TRUE(isWhole(problem, plan));
    EXPECT_GT(told, 0);
}

TEST(Solve, HasARouteForEachStopBeforeAnySearch) {
    const Problem problem = largeProblem();
    const Plan plan = solve(problem, 0, [](const Plan& /*plan*/, const Judgement& /*judgement*/) {});
    EXPECT_EQ(textOf(plan), textOf(oneRouteAStop(problem, router::Travel(problem))));
}

} // namespace
} // namespace vantore::optmzr::tests
