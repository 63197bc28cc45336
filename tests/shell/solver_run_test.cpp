#include "shell/solver_run.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "processes/folder_lock.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/launcher.h"
#include "shell/report_file.h"
#include "suite/module_list.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

const std::string problem = "P,MAX\r\n1,1\r\nX1\r\n0\r\nR,1,<,5\r\n1\r\n";

/// A module with a solver, which a test writes as a script of the shell. An old report lies there.
class SolverRunTest : public testing::Test {
  protected:
    SolverRunTest() {
        session.writeFile("ILP01.dat", problem);
        session.writeFile("OUTPUT.Dat", "an old report\r\n");
        session.open("MIPROG", "ILP01.dat");
    }

    void takeSolver(const std::string& script) const {
        const fs::path path = session.installFolder() / "MIP.EXE";
        replaceFile(path, "#!/bin/sh\nreport=\"$VANTORE_IO/OUTPUT.Dat\"\n" + script + "\n");
        fs::permissions(path, fs::perms::owner_all);
    }

    /// What is told of a Solve with that solver, behind the question.
    std::string solve(const std::string& script) {
        takeSolver(script);
        const std::string told = session.play("answer Yes\npress cmdSolve");
        const std::size_t run = told.find("run MIP.EXE\n");
        return run == std::string::npos ? told : told.substr(run + std::string("run MIP.EXE\n").size());
    }

    bool showsReport() { return session.module().view() == View::Report; }
    bool hasReport() const { return session.fileExists("OUTPUT.Dat"); }

    /// Nothing but the problem, and what the solver was given, is left in the folder.
    std::vector<std::string> leftFiles() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(session.ioFolder()))
            names.push_back(textOf(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

    ModuleSession session;
};

using Lines = std::vector<std::string>;

std::string told(const std::string& text) {
    return "MessageBx \"MIPROG\": \"" + text + "\"\n";
}

TEST_F(SolverRunTest, ShowsTheReportOfAGoodRun) {
    EXPECT_EQ(solve("echo STATUS > \"$report\""), "");
    EXPECT_TRUE(showsReport());
    EXPECT_EQ(session.report().back(), "STATUS");
    EXPECT_EQ(leftFiles(), (Lines{"ILP01.dat", "OUTPUT.Dat", "TEMP.DAT"}));
}

TEST_F(SolverRunTest, TellsOfASolverThatDiesAtOnce) {
    EXPECT_EQ(solve("echo 'error while loading shared libraries: libCbc.so.3' >&2; exit 127"),
              told("MIP.EXE ended with status 127.  It has given no report.\\n\\nerror while loading shared "
                   "libraries: libCbc.so.3"));
    EXPECT_FALSE(showsReport());
    EXPECT_EQ(leftFiles(), (Lines{"ILP01.dat", "TEMP.DAT"}));
}

TEST_F(SolverRunTest, TellsOfASolverThatExitsWithAStatusThoughItHasReported) {
    EXPECT_EQ(solve("echo STATUS > \"$report\"; exit 3"),
              told("MIP.EXE ended with status 3.  It has given no report."));
    EXPECT_FALSE(showsReport());
    EXPECT_FALSE(hasReport());
}

TEST_F(SolverRunTest, TellsOfASolverThatCrashesWithHalfAReport) {
    EXPECT_EQ(solve("printf 'STATUS: OPTIMAL\\r\\nObjective value 12' > \"$report\"; kill -SEGV $$"),
              told("MIP.EXE was ended by signal 11.  It has given no report."));
    EXPECT_FALSE(showsReport());
    EXPECT_FALSE(hasReport());
    EXPECT_EQ(session.play("show cmdSolve"), "cmdSolve: visible enabled \"&Solve\"\n");
}

TEST_F(SolverRunTest, TellsOfASolverThatWritesNothing) {
    EXPECT_EQ(solve("exit 0"), told("File not found occurred in MIPROG, cmdSolve."));
    EXPECT_FALSE(hasReport());
    EXPECT_EQ(solve("echo 'no room' >&2"), told("MIP.EXE has written no report.\\n\\nno room") +
                                               told("File not found occurred in MIPROG, cmdSolve."));
    EXPECT_FALSE(showsReport());
}

TEST_F(SolverRunTest, SaysThatAReportIsEmpty) {
    EXPECT_EQ(solve(": > \"$report\""), "");
    EXPECT_EQ(session.report().back(), "(The report is empty.)");
}

TEST_F(SolverRunTest, ShowsTheBeginningOfAHugeReportSoon) {
    takeSolver("yes 'a line of the report' | head -c 1000000000 > \"$report\"");
    session.play("answer Yes\npress cmdSolve");
    ASSERT_TRUE(showsReport());
    const auto* report = dynamic_cast<const ReportScreen*>(session.module().find("rtbOut"));
    EXPECT_EQ(report->lines().size(), 1 + mostReportLines + 1);
    EXPECT_EQ(report->lines().back().text, "... (the report is longer)");
    const auto start = Clock::now();
    session.play("press cmdContinue");
    readReport(session.ioFolder() / "OUTPUT.Dat");
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(3));
}

TEST_F(SolverRunTest, PutsTheOldReportBackWhereTheSolverCanNotBeStarted) {
    const std::string all = session.play("answer Yes\npress cmdSolve");
    EXPECT_TRUE(all.ends_with("run MIP.EXE failed\n")) << all;
    EXPECT_TRUE(showsReport());
    EXPECT_EQ(session.report().back(), "an old report");
    EXPECT_EQ(leftFiles(), (Lines{"ILP01.dat", "OUTPUT.Dat", "TEMP.DAT"}));
}

TEST_F(SolverRunTest, SetsTheOldReportAsideWhileTheSolverRuns) {
    EXPECT_EQ(solve("test -e \"$report\" || echo gone > \"$report\""), "");
    EXPECT_EQ(session.report().back(), "gone");
}

TEST_F(SolverRunTest, KeepsTheSpellingOfTheOldReportsName) {
    fs::rename(session.ioFolder() / "OUTPUT.Dat", session.ioFolder() / "Output.dat");
    EXPECT_EQ(solve("echo STATUS > \"$report\""), "");
    EXPECT_EQ(leftFiles(), (Lines{"ILP01.dat", "Output.dat", "TEMP.DAT"}));
    EXPECT_EQ(session.report().back(), "STATUS");
}

TEST_F(SolverRunTest, HoldsALockWhileTheSolverRuns) {
    EXPECT_EQ(solve("ls -A \"$VANTORE_IO\" | grep lock > \"$report\""), "");
    EXPECT_EQ(session.report().back(), ".vantore-solver.lock");
}

TEST_F(SolverRunTest, RefusesASecondRunInTheFolder) {
    takeSolver("echo STATUS > \"$report\"");
    auto other = lockFolder(session.ioFolder());
    EXPECT_EQ(session.play("press cmdSolve"), told("Another solver is running in this folder."));
    EXPECT_FALSE(session.fileExists("TEMP.DAT"));
    EXPECT_FALSE(showsReport());
    other.reset();
    EXPECT_EQ(solve("echo STATUS > \"$report\""), "");
    EXPECT_TRUE(showsReport());
}

/// A user who presses Ctrl+C as soon as the solver is ready and a text has been read in the note, and again
/// while it doesn't stop.
class ImpatientUser : public ScriptPlatform {
  public:
    ImpatientUser(std::ostream& out, fs::path ready, std::string awaited)
        : ScriptPlatform(out, 800, 600), ready_(std::move(ready)), awaited_(std::move(awaited)) {}

    void setBusyPointer(bool isBusy) override { busy = isBusy; }

    void processEvents() override {
        ScriptPlatform::processEvents();
        EXPECT_TRUE(busy) << "while the solver runs";
        notes += module->runningNote.substr(0, module->runningNote.find(',')) +
                 module->runningNote.substr(module->runningNote.find(".  ")) + "\n";
        constexpr int patience = 50;
        constexpr std::size_t enough = 100000; // letters of notes, where the text never comes
        const bool isRead = notes.find(awaited_) != std::string::npos || notes.size() > enough;
        if (isRead && fs::exists(ready_) && ++steps % patience == 1) module->interrupt();
    }

    ModuleFrame* module = nullptr;
    bool busy = false;
    int steps = 0;
    std::string notes;

  private:
    fs::path ready_;
    std::string awaited_;
};

/// Presses Solve for a user who interrupts; what the transcript says.
std::string solveInterrupted(ModuleSession& session, std::string& notes, const std::string& awaited = "") {
    std::ostringstream transcript;
    ImpatientUser user(transcript, session.ioFolder() / "ready", awaited);
    Platform parts = user.parts();
    Suite suite(parts, moduleList());
    suite.ioFolder = textOf(session.ioFolder()) + "/";
    suite.installFolder = textOf(session.installFolder());
    Launcher launcher(suite);
    launcher.press(*launcher.moduleButton("MIPROG"));
    user.module = dynamic_cast<ModuleFrame*>(suite.windows.front());
    user.queueFile("ILP01.dat");
    user.module->press(*user.module->find("cmdOpen"));
    user.queueAnswer({.text = "Yes"});
    user.module->press(*user.module->find("cmdSolve"));
    notes = user.notes;
    EXPECT_EQ(user.module->runningNote, "");
    EXPECT_FALSE(user.busy);
    return transcript.str();
}

TEST_F(SolverRunTest, EndsASolverThatIgnoresEverySignalAtTheSecondCtrlC) {
    takeSolver("trap '' INT TERM HUP QUIT\n: > \"$VANTORE_IO/ready\"\nwhile :; do sleep .02; done");
    std::string notes;
    const auto start = Clock::now();
    EXPECT_TRUE(solveInterrupted(session, notes)
                    .ends_with(told("MIP.EXE was ended by signal 9.  It has given no report.")));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
    const std::size_t first =
        notes.find("MIP.EXE is running.  Press Ctrl+C to stop it with the best solution so far.");
    const std::size_t second = notes.find("MIP.EXE is stopping.  Press Ctrl+C again to end it at once.");
    EXPECT_NE(first, std::string::npos) << notes;
    EXPECT_NE(second, std::string::npos) << notes;
    EXPECT_LT(first, second);
}

TEST_F(SolverRunTest, ShowsWhatAnInterruptedSolverReports) {
    takeSolver(
        "trap 'echo best > \"$report\"; exit 0' INT\n: > \"$VANTORE_IO/ready\"\nwhile :; do sleep .02; done");
    std::string notes;
    EXPECT_TRUE(solveInterrupted(session, notes).ends_with("run MIP.EXE\n"));
    EXPECT_EQ(session.readFile("OUTPUT.Dat"), "best\n");
}

TEST_F(SolverRunTest, ShowsHowFarTheSolverHasCome) {
    takeSolver("trap 'echo best > \"$report\"; exit 0' INT\n"
               "echo 'Best cost so far 12 $' > \"$VANTORE_IO/PROGRESS.DAT\"\n"
               ": > \"$VANTORE_IO/ready\"\nwhile :; do sleep .02; done");
    std::string notes;
    const std::string progress = "  Best cost so far 12 $";
    solveInterrupted(session, notes, progress);
    EXPECT_NE(notes.find(progress), std::string::npos) << notes;
    EXPECT_FALSE(session.fileExists("PROGRESS.DAT"));
}

template <class Condition>
bool soon(const Condition& condition) {
    const auto start = Clock::now();
    while (Clock::now() - start < std::chrono::seconds(10)) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

TEST_F(SolverRunTest, LeavesNoSolverBehindWhenTheSuiteIsKilled) {
    takeSolver("echo $$ > \"$VANTORE_IO/id\"\n: > \"$VANTORE_IO/ready\"\nsleep .5\n: > \"$VANTORE_IO/late\"");
    prctl(PR_SET_CHILD_SUBREAPER, 1); // so that the orphan is ours to wait for
    const pid_t suite = fork();
    if (suite == 0) {
        session.play("answer Yes\npress cmdSolve");
        _exit(0);
    }
    ASSERT_TRUE(soon([&] { return session.fileExists("ready"); }));
    const auto solver = static_cast<pid_t>(val(session.readFile("id")));
    kill(suite, SIGKILL);
    waitpid(suite, nullptr, 0);
    EXPECT_TRUE(soon([&] { return waitpid(solver, nullptr, WNOHANG) == solver; }));
    EXPECT_FALSE(session.fileExists("late"));
    EXPECT_EQ(solve("echo STATUS > \"$report\""), ""); // the dead suite's lock counts for nothing
}

// Reports of any size

class ReportFile : public testing::Test {
  protected:
    Lines read(const std::string& content) const {
        replaceFile(folder_.path() / "OUTPUT.DAT", content);
        return readReport(folder_.path() / "output.dat");
    }

    TemporaryFolder folder_;
};

TEST_F(ReportFile, IsReadAsAnyTextFile) {
    EXPECT_EQ(read("one\r\ntwo\n\rfour"), (Lines{"one", "two", "", "four"}));
    EXPECT_EQ(read("\xEF\xBB\xBFone\r\n"), Lines{"one"});
    EXPECT_EQ(read("\xE4rger\r\n"), Lines{"\u00e4rger"});
    EXPECT_THROW(readReport(folder_.path() / "missing"), RuntimeError);
    EXPECT_THROW(readReport(folder_.path()), RuntimeError);
}

TEST_F(ReportFile, IsCutAfterAHundredThousandLines) {
    std::string all;
    for (std::size_t i = 0; i < mostReportLines; ++i) all += "x\r\n";
    EXPECT_EQ(read(all).size(), mostReportLines);
    EXPECT_EQ(read(all).back(), "x");
    const Lines longer = read(all + "y");
    EXPECT_EQ(longer.size(), mostReportLines + 1);
    EXPECT_EQ(longer.back(), "... (the report is longer)");
}

TEST_F(ReportFile, HasItsLinesCutAfterTenThousandCharacters) {
    const std::string full(mostLineCharacters, 'x');
    EXPECT_EQ(read(full + "\r\nnext"), (Lines{full, "next"}));
    EXPECT_EQ(read(full + "y\r\nnext"), (Lines{full + " ... (the line is longer)", "next"}));
    std::string wide;
    for (std::size_t i = 0; i < mostLineCharacters; ++i) wide += "\u20ac";
    EXPECT_EQ(read(wide), Lines{wide});
    EXPECT_EQ(read(wide + "\u20ac"), Lines{wide + " ... (the line is longer)"});
    EXPECT_TRUE(read("\u00e4" + wide + wide) ==
                Lines{"\u00e4" + left(wide, mostLineCharacters - 1) + " ... (the line is longer)"});
    EXPECT_EQ(read(std::string(20000000, 'x') + "\r\nnext"),
              (Lines{full + " ... (the line is longer)", "next"}));
}

TEST_F(ReportFile, IsCutWhereItsLinesTogetherAreTooLong) {
    std::string all;
    const std::string line = std::string(mostLineCharacters, 'x') + "\n";
    for (int i = 0; i < 2000; ++i) all += line;
    const Lines lines = read(all);
    EXPECT_LT(lines.size(), 2000U);
    EXPECT_EQ(lines.back(), "... (the report is longer)");
}

} // namespace
} // namespace vantore::tests
