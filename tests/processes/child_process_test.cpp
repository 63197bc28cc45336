#include "processes/child_process.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "shell/base/number_text.h"
#include "shell/base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

template <class Condition>
bool soon(const Condition& condition) {
    const auto start = Clock::now();
    while (Clock::now() - start < std::chrono::seconds(10)) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

class ChildProcessTest : public testing::Test {
  protected:
    std::unique_ptr<RunningProgram> started(const std::string& script,
                                            const std::vector<Programs::Variable>& variables = {}) {
        const fs::path path = folder.path() / "SOLVER.EXE";
        replaceFile(path, "#!/bin/sh\n" + script);
        fs::permissions(path, fs::perms::owner_all);
        return startProcess(path, folder.path(), variables);
    }

    /// How a script ends, interrupted once it has said that it is ready, if at all.
    ProgramEnd endOf(const std::string& script, int interrupts = 0) {
        const auto program = started(script);
        if (!program) return {};
        for (int k = 0; k < interrupts; ++k) {
            EXPECT_TRUE(soon([&] { return has("ready"); }));
            program->interrupt();
        }
        EXPECT_TRUE(soon([&] { return !program->running(); }));
        return program->end();
    }

    bool has(const std::string& name) const { return fs::exists(folder.path() / name); }
    std::string content(const std::string& name) const { return readTextFile(folder.path() / name); }

    TemporaryFolder folder;
};

TEST_F(ChildProcessTest, RunsInItsFolderWithTheAddedVariablesAndWithoutInput) {
    setenv("VANTORE_IO", "/old/", 1);
    setenv("VANTORE_KEPT", "kept", 1);
    const auto program = started("echo \"$VANTORE_IO $VANTORE_KEPT $# $(pwd) $(wc -c)\" > out\necho told\n",
                                 {{"VANTORE_IO", "/data/"}});
    unsetenv("VANTORE_IO");
    unsetenv("VANTORE_KEPT");
    ASSERT_NE(program, nullptr);
    EXPECT_TRUE(soon([&] { return !program->running(); }));
    EXPECT_EQ(content("out"), "/data/ kept 0 " + textOf(folder.path()) + " 0\n");
}

TEST_F(ChildProcessTest, TellsHowAProgramEnded) {
    EXPECT_EQ(endOf("exit 0").status, 0);
    const ProgramEnd failed = endOf("echo first >&2\necho 'no licence' >&2\necho >&2\nexit 3");
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.signal, 0);
    EXPECT_EQ(failed.lastError, "no licence");
    const ProgramEnd crashed = endOf("printf 'half a li' >&2\nkill -SEGV $$");
    EXPECT_EQ(crashed.signal, SIGSEGV);
    EXPECT_EQ(crashed.lastError, "half a li");
}

TEST_F(ChildProcessTest, KeepsTheLastLineOfAFlood) {
    const ProgramEnd end =
        endOf("head -c 30000000 /dev/zero | tr '\\0' 'x' >&2\necho >&2\necho 'disk full' >&2\nexit 1");
    EXPECT_EQ(end.lastError, "disk full");
    EXPECT_EQ(endOf("head -c 3000 /dev/zero | tr '\\0' 'x' >&2").lastError, std::string(500, 'x'));
    EXPECT_EQ(endOf("printf '\\344rger' >&2").lastError, "\u00e4rger");
}

TEST_F(ChildProcessTest, InterruptsAsATerminalDoes) {
    const ProgramEnd end =
        endOf("trap 'echo stopped > out; exit 0' INT\n: > ready\nwhile :; do sleep .02; done", 1);
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(content("out"), "stopped\n");
}

TEST_F(ChildProcessTest, InterruptsThoughThisProcessIgnoresIt) {
    const auto before = std::signal(SIGINT, SIG_IGN);
    EXPECT_EQ(endOf(": > ready\nexec sleep 100", 1).signal, SIGINT);
    std::signal(SIGINT, before);
}

TEST_F(ChildProcessTest, EndsAtTheSecondInterruptWhateverItIgnores) {
    const ProgramEnd end = endOf("trap '' INT TERM HUP QUIT\n: > ready\nwhile :; do sleep .02; done", 2);
    EXPECT_EQ(end.signal, SIGKILL);
}

TEST_F(ChildProcessTest, StartsNothingThatIsNoProgram) {
    EXPECT_EQ(startProcess(folder.path() / "MISSING.EXE", folder.path(), {}), nullptr);
    replaceFile(folder.path() / "PLAIN.EXE", "no program");
    EXPECT_EQ(startProcess(folder.path() / "PLAIN.EXE", folder.path(), {}), nullptr);
    fs::permissions(folder.path() / "PLAIN.EXE", fs::perms::owner_all);
    EXPECT_EQ(startProcess(folder.path() / "PLAIN.EXE", folder.path(), {}), nullptr);
    EXPECT_EQ(startProcess(folder.path(), folder.path(), {}), nullptr);
    EXPECT_EQ(startProcess("/bin/true", "/nowhere/at/all", {}), nullptr);
}

TEST_F(ChildProcessTest, EndsAProgramThatItsOwnerForgets) {
    auto program = started("trap '' INT TERM\necho $$ > id\n: > ready\nwhile :; do sleep .02; done");
    ASSERT_TRUE(soon([&] { return has("ready"); }));
    const auto id = static_cast<pid_t>(val(content("id")));
    EXPECT_EQ(kill(id, 0), 0);
    program.reset();
    EXPECT_NE(kill(id, 0), 0);
}

TEST_F(ChildProcessTest, EndsAProgramWithItsStarter) {
    prctl(PR_SET_CHILD_SUBREAPER, 1); // so that the orphan is ours to wait for
    const pid_t suite = fork();
    if (suite == 0) {
        const auto program =
            started("trap '' INT TERM\necho $$ > id\n: > ready\nwhile :; do sleep .02; done");
        while (true) pause();
    }
    ASSERT_TRUE(soon([&] { return has("ready"); }));
    const auto id = static_cast<pid_t>(val(content("id")));
    EXPECT_EQ(kill(id, 0), 0);
    kill(suite, SIGKILL);
    waitpid(suite, nullptr, 0);
    EXPECT_TRUE(soon([&] { return waitpid(id, nullptr, WNOHANG) == id; }));
}

} // namespace
} // namespace vantore::tests
