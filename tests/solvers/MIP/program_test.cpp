#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>
#include <unistd.h>

#include "processes/child_process.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "tests/solvers/MIP/problems.h"
#include "tests/support/solver_processes.h"
#include "tests/support/temporary_folder.h"

namespace vantore::mip::tests {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;
using vantore::tests::contents;
using vantore::tests::runIn;
using vantore::tests::runSolver;
using vantore::tests::SolverRun;
using vantore::tests::TemporaryFolder;

const fs::path program = MIP_PROGRAM;

/// A folder with a TEMP.DAT, and MIP.EXE run on it.
class Program : public testing::Test {
  protected:
    void write(const Lines& lines, const std::string& name = "TEMP.DAT") const {
        writeLines(folder_.path() / name, lines);
    }

    /// The exit status; what the program prints is in `printed` and `complained`.
    int solve() {
        const SolverRun run = runSolver(program, folder_.path());
        printed_ = run.printed;
        complained_ = run.complained;
        return run.status;
    }

    Lines output() const { return readLines(folder_.path() / "OUTPUT.Dat"); }

    /// Solves these lines and gives the reason that the report tells.
    std::string reasonFor(const Lines& lines) {
        write(lines);
        EXPECT_EQ(solve(), 0);
        const Lines report = output();
        if (report.size() < 3 || report[0] != "STATUS: NOT SOLVED") return "no reason";
        EXPECT_EQ(report[1], "TEMP.DAT can't be read as a problem.");
        std::string reason;
        for (std::size_t i = 2; i < report.size(); ++i) reason += (i > 2 ? " " : "") + report[i];
        return reason;
    }

    TemporaryFolder folder_;
    std::string printed_, complained_;
};

const Lines crates = {"1",   "2,2,2,0,0", "'A','B'",         "3,2", "1,4", "12,16",
                      "1,1", "5,4",       "0,1E+30,0,1E+30", "2",   "1,2"};

TEST_F(Program, ReportsTheOptimumAndPrintsNothing) {
    write(crates);
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(output().front(), "STATUS: OPTIMAL");
    EXPECT_EQ(figureOf(output(), "Objective value"), 22);
    EXPECT_EQ(printed_ + complained_, "");
}

TEST_F(Program, EndsItsLinesAsAllTextFilesDo) {
    write(crates);
    solve();
    const std::string text = contents(folder_.path() / "OUTPUT.Dat");
    EXPECT_TRUE(text.starts_with("STATUS: OPTIMAL\r\nThe solution"));
    EXPECT_TRUE(text.ends_with(".\r\n"));
}

TEST_F(Program, FindsFilesInAnySpellingAndKeepsIt) {
    write(crates, "temp.dat");
    write({"old"}, "Output.DAT");
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(readLines(folder_.path() / "Output.DAT").front(), "STATUS: OPTIMAL");
    EXPECT_FALSE(fs::exists(folder_.path() / "OUTPUT.Dat"));
}

TEST_F(Program, TakesTheFolderFromTheDriverFileBesideItself) {
    fs::copy_file(program, folder_.path() / "MIP.EXE");
    fs::create_directory(folder_.path() / "data");
    write({folder_.path().string() + "/data/", " 1024          768 ", " 1 "}, "VANTORE.DRV");
    writeLines(folder_.path() / "data" / "TEMP.DAT", crates);
    EXPECT_EQ(runIn(folder_.path(), "env -u VANTORE_IO ./MIP.EXE"), 0);
    EXPECT_EQ(readLines(folder_.path() / "data" / "OUTPUT.Dat").front(), "STATUS: OPTIMAL");
}

TEST_F(Program, FailsWithoutAnyFolder) {
    fs::copy_file(program, folder_.path() / "MIP.EXE");
    EXPECT_EQ(runIn(folder_.path(), "env -u VANTORE_IO ./MIP.EXE 2>complained"), 1);
    EXPECT_EQ(contents(folder_.path() / "complained"), "MIP.EXE: File not found\n");
}

TEST_F(Program, FailsWhereItCannotWrite) {
    EXPECT_EQ(runIn(folder_.path(), "VANTORE_IO=/nowhere/at/all/ '" + program.string() + "' 2>complained"),
              1);
    EXPECT_EQ(contents(folder_.path() / "complained"), "MIP.EXE: Path not found\n");
    fs::create_directory(folder_.path() / "OUTPUT.Dat");
    write(crates);
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "MIP.EXE: Path/File access error\n");
}

TEST_F(Program, SaysWhichLineIsWrong) {
    const auto with = [](std::size_t line, const std::string& text) {
        Lines lines = crates;
        lines.at(line - 1) = text;
        return lines;
    };
    EXPECT_EQ(reasonFor(with(1, "2")), "Line 1: the objective flag: 2 is no whole number from -1 to 1.");
    EXPECT_EQ(reasonFor(with(1, "0")), "Line 1: the objective flag: it should be 1 or -1.");
    EXPECT_EQ(reasonFor(with(1, "maximise, please, all of it")), "Line 1: \"maximise\" is no number.");
    EXPECT_EQ(reasonFor(with(2, "2,2,2,0")), "Line 2: the counts of constraints, variables, <, = and > "
                                             "constraints: 5 numbers should be here, not 4.");
    EXPECT_EQ(reasonFor(with(2, "-2,2,2,0,0")), "Line 2: the counts of constraints, variables, <, = and > "
                                                "constraints: -2 is no whole number from 0 to 10000.");
    EXPECT_EQ(reasonFor(with(2, "10000,10000,10000,0,0")),
              "Line 2: 10000 constraints with 10000 variables are more than the solver takes.");
    EXPECT_EQ(reasonFor(with(3, "'A',B")), "Line 3: a name in single quotes should be at \"B\".");
    EXPECT_EQ(reasonFor(with(3, "'A','B")), "Line 3: the name at \"'B\" has no single quote at its end.");
    EXPECT_EQ(reasonFor(with(3, "'A'")),
              "Line 3: the names of the variables: 2 names should be here, not 1.");
    EXPECT_EQ(reasonFor(with(4, "3,2,1")),
              "Line 4: the coefficients of constraint 1: 2 numbers should be here, not 3.");
    EXPECT_EQ(reasonFor(with(5, "1,four")), "Line 5: \"four\" is no number.");
    EXPECT_EQ(reasonFor(with(5, "1,1E+999")), "Line 5: \"1E+999\" is no number.");
    EXPECT_EQ(reasonFor(with(6, "")), "Line 6: the right-hand sides: 2 numbers should be here, not 0.");
    EXPECT_EQ(reasonFor(with(7, "1,2")), "Line 7: the sense codes: 2 is no whole number from -1 to 1.");
    EXPECT_EQ(reasonFor(with(7, "1,-1")),
              "Line 7: the sense codes: there are not as many of each as line 2 says.");
    EXPECT_EQ(reasonFor(with(8, "5,,4")), "Line 8: \"\" is no number.");
    EXPECT_EQ(reasonFor(with(9, "0,1,5,2")),
              "Line 9: the bounds of variable 2: the lower one, 5, is above the upper one, 2.");
    EXPECT_EQ(reasonFor(with(10, "3")),
              "Line 10: the number of integer variables: 3 is no whole number from 0 to 2.");
    EXPECT_EQ(reasonFor(with(11, "1,1")),
              "Line 11: the columns of the integer variables: 1 stands there twice.");
    EXPECT_EQ(reasonFor(with(11, "1,3")),
              "Line 11: the columns of the integer variables: 3 is no whole number from 1 to 2.");
}

TEST_F(Program, SaysWhereTheFileEnds) {
    EXPECT_EQ(reasonFor({}), "Line 1: the file ends where the objective flag should be.");
    EXPECT_EQ(reasonFor({"1", "2,2,2,0,0", "'A','B'", "3,2"}),
              "Line 5: the file ends where the coefficients of constraint 2 should be.");
    Lines lines = crates;
    lines.pop_back();
    EXPECT_EQ(reasonFor(lines),
              "Line 11: the file ends where the columns of the integer variables should be.");
    lines = crates;
    lines.push_back("more");
    EXPECT_EQ(reasonFor(lines), "Line 12: nothing should stand here any more.");
}

TEST_F(Program, ReportsAMissingFile) {
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(output().back(), "File not found");
}

TEST_F(Program, SurvivesAnyBytes) {
    std::string bytes(4096, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 37 + i / 5);
    std::ofstream(folder_.path() / "TEMP.DAT", std::ios::binary) << bytes;
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(output().front(), "STATUS: NOT SOLVED");
}

TEST_F(Program, SettlesNumbersThatItsLibraryCannotStand) {
    write({"-1", "6,4,4,1,1", "'v','v','v','v'", "-1,-5.48,0,-2E+15", "-9.59,0,2.74,-12.33",
           "-.0000685,0,5,8.22", "0,0,9,12.33", "-6.85,0,0,0", "7,-9.59,4,-9.59",
           "7,5.48E-08,0,0,12.33,-8.22", "1,1,-1,0,1,1", "4.11,-5.48,0,5.48",
           "-1E+30,2.74,0,1E+30,-9.59E+15,1E+30,-6,1E+30", "4", "1,2,3,4"});
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(output().front(), "STATUS: UNBOUNDED");
}

TEST_F(Program, TakesALongerProblemThanTheWindowHas) {
    // 120 variables and constraints, each variable at most its number: the optimum is their sum
    constexpr int size = 120;
    ProblemText text;
    for (int j = 1; j <= size; ++j) {
        std::vector<double> row(size, 0);
        row[static_cast<std::size_t>(j - 1)] = 2;
        text.rows.push_back(row);
        text.relations += '<';
        text.rhs.push_back(2 * j + 1);
        text.objective.push_back(1);
        text.integers.push_back(j);
    }
    write(miprog::temporaryLines(text.input()));
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(output().front(), "STATUS: OPTIMAL");
    EXPECT_EQ(figureOf(output(), "Objective value"), size * (size + 1) / 2);
}

TEST_F(Program, FailsWhereTheFolderMayNotBeWritten) {
    // a folder where not even root may make a file
    EXPECT_EQ(runIn(folder_.path(), "VANTORE_IO=/sys/ '" + program.string() + "' 2>complained"), 1);
    EXPECT_EQ(contents(folder_.path() / "complained"), "MIP.EXE: Permission denied\n");
}

TEST_F(Program, FailsOnAFullDiskAndLeavesNoHalfReport) {
    write(crates);
    fs::create_symlink("/dev/full", folder_.path() / "OUTPUT.Dat");
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "MIP.EXE: Disk full\n");
    fs::remove(folder_.path() / "OUTPUT.Dat");
    // The disk takes what is written beforehand, and half the report.
    EXPECT_EQ(runIn(folder_.path(), "ulimit -f 1; trap '' XFSZ; VANTORE_IO='" + folder_.path().string() +
                                        "/' '" + program.string() + "' 2>complained"),
              1);
    EXPECT_EQ(contents(folder_.path() / "complained"), "MIP.EXE: Disk full\n");
    EXPECT_FALSE(fs::exists(folder_.path() / "OUTPUT.Dat"));
}

/// A run of MIP.EXE on a problem that keeps it busy, with the signals that a test sends.
class BusyProgram : public Program {
  protected:
    void SetUp() override {
        write(miprog::temporaryLines(marketSplit()));
        running_ = startProcess(program, folder_.path(), {{"VANTORE_IO", folder_.path().string() + "/"}});
        ASSERT_TRUE(running_);
        std::this_thread::sleep_for(std::chrono::seconds(1));
        ASSERT_TRUE(running_->running());
        EXPECT_EQ(output().back(), "The solver was ended before it could report.");
    }

    /// The processes in which MIP.EXE works, those that it has started at last.
    std::vector<pid_t> processes() const {
        return vantore::tests::solverProcesses(folder_.path(), "MIP.EXE");
    }

    void awaitEnd() {
        const auto start = Clock::now();
        while (running_->running() && Clock::now() - start < std::chrono::seconds(30))
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_FALSE(running_->running());
    }

    std::unique_ptr<RunningProgram> running_;
};

TEST_F(BusyProgram, StopsOnCtrlCWithTheBestSolutionSoFar) {
    running_->interrupt();
    const auto start = Clock::now();
    awaitEnd();
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(running_->end().status, 0);
    EXPECT_EQ(output().at(0), "STATUS: STOPPED");
    EXPECT_EQ(output().at(1), "The search was stopped by the user. The best solution found until then is");
    EXPECT_GT(figureOf(output(), "Objective value"), 0);
}

TEST_F(BusyProgram, StopsOnTermination) {
    ASSERT_EQ(processes().size(), 2U);
    kill(processes().front(), SIGTERM);
    awaitEnd();
    EXPECT_EQ(output().at(1), "The search was stopped by the user. The best solution found until then is");
}

TEST_F(BusyProgram, ReportsTheBestSolutionThoughSearchAndProofCrash) {
    for (const int signal : {SIGSEGV, SIGKILL}) {
        ASSERT_EQ(processes().size(), 2U);
        kill(processes().back(), signal);
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }
    awaitEnd();
    EXPECT_EQ(running_->end().status, 0);
    EXPECT_EQ(output().at(0), "STATUS: STOPPED");
    EXPECT_EQ(output().at(1), "The proof broke down. The best solution found until then is given below;");
    EXPECT_GT(figureOf(output(), "Objective value"), 0);
}

TEST_F(BusyProgram, LeavesNothingRunningWhenItIsKilled) {
    const std::vector<pid_t> both = processes();
    ASSERT_EQ(both.size(), 2U);
    kill(both.front(), SIGKILL);
    awaitEnd();
    const auto start = Clock::now();
    while (!processes().empty() && Clock::now() - start < std::chrono::seconds(5))
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(processes().empty());
    EXPECT_EQ(running_->end().signal, SIGKILL);
    EXPECT_EQ(output().back(), "The solver was ended before it could report.");
}

TEST_F(Program, StopsOnCtrlCThoughItsStarterIgnoresIt) {
    write(miprog::temporaryLines(marketSplit()));
    const std::string command = "VANTORE_IO='" + folder_.path().string() +
                                "/' sh -c 'trap \"\" INT; exec \"" + program.string() +
                                "\"' & sleep 1; kill -INT $!; wait $!";
    EXPECT_EQ(runIn(folder_.path(), command), 0);
    EXPECT_EQ(output().at(0), "STATUS: STOPPED");
}

} // namespace
} // namespace vantore::mip::tests
