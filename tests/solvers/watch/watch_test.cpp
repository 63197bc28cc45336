#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "solvers/watch/watch.h"

namespace vantore::watch::tests {
namespace {

using Clock = std::chrono::steady_clock;
constexpr double plenty = 20; // seconds

struct Heard {
    End end = End::Done;
    std::vector<std::string> messages;
    double seconds = 0;
};

Heard heard(const std::function<void(const Tell&)>& search, double seconds = plenty) {
    Heard result;
    const auto start = Clock::now();
    result.end =
        run(search, seconds, [&](const std::string& message) { result.messages.push_back(message); });
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return result;
}

[[noreturn]] void waitForEver() {
    while (true) pause();
}

/// Sends this process a signal after a moment, from a process of its own.
class Later {
  public:
    explicit Later(int signal) : child_(fork()) {
        if (child_ != 0) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        kill(getppid(), signal);
        _exit(0);
    }
    ~Later() { waitpid(child_, nullptr, 0); }
    Later(const Later&) = delete;
    Later& operator=(const Later&) = delete;

  private:
    pid_t child_;
};

TEST(Watch, HearsWhatASearchTellsInItsOrder) {
    const Heard result = heard([](const Tell& tell) {
        tell("one");
        tell("");
        tell(std::string(300000, 'x'));
    });
    EXPECT_EQ(result.end, End::Done);
    EXPECT_EQ(result.messages, (std::vector<std::string>{"one", "", std::string(300000, 'x')}));
}

TEST(Watch, EndsASearchAtItsTimeLimitAndKeepsWhatItTold) {
    const Heard result = heard(
        [](const Tell& tell) {
            tell("best so far");
            waitForEver();
        },
        .3);
    EXPECT_EQ(result.end, End::TimeLimit);
    EXPECT_EQ(result.messages, std::vector<std::string>{"best so far"});
    EXPECT_GE(result.seconds, .3);
    EXPECT_LT(result.seconds, 2);
}

TEST(Watch, EndsASearchThatTellsWithoutEnd) {
    const Heard result = heard(
        [](const Tell& tell) {
            while (true) tell(std::string(1000, 'x'));
        },
        .3);
    EXPECT_EQ(result.end, End::TimeLimit);
    EXPECT_LT(result.seconds, 2);
}

TEST(Watch, EndsASearchOnCtrlCAndOnTermination) {
    for (const int signal : {SIGINT, SIGTERM}) {
        const Later later(signal);
        const Heard result = heard([](const Tell& tell) {
            tell("best so far");
            waitForEver();
        });
        EXPECT_EQ(result.end, End::Interrupted);
        EXPECT_EQ(result.messages, std::vector<std::string>{"best so far"});
        EXPECT_LT(result.seconds, 2);
    }
}

TEST(Watch, LeavesItToTheParentWhenToStop) {
    // Ctrl+C in a terminal goes to parent and child alike.
    const Heard result = heard([](const Tell& tell) {
        raise(SIGINT);
        raise(SIGTERM);
        tell("still here");
    });
    EXPECT_EQ(result.end, End::Done);
    EXPECT_EQ(result.messages, std::vector<std::string>{"still here"});
}

TEST(Watch, OutlivesACrashOfTheSearch) {
    for (const int signal : {SIGSEGV, SIGABRT, SIGKILL, SIGFPE}) {
        const Heard result = heard([signal](const Tell& tell) {
            tell("best so far");
            std::signal(signal, SIG_DFL);
            raise(signal);
        });
        EXPECT_EQ(result.end, End::Failed);
        EXPECT_EQ(result.messages, std::vector<std::string>{"best so far"});
    }
}

TEST(Watch, FailsWhereTheSearchThrowsOrExits) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(heard([](const Tell&) { throw std::runtime_error("no pivot"); }).end, End::Failed);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "no pivot\n");
    EXPECT_EQ(heard([](const Tell&) { _exit(3); }).end, End::Failed);
}

TEST(Watch, TakesNothingOfAMessageThatWasCutShort) {
    const Heard result = heard([](const Tell& tell) {
        tell("whole");
        const itimerval soon{{}, {0, 20000}};
        setitimer(ITIMER_REAL, &soon, nullptr);
        while (true) tell(std::string(1U << 27U, 'x')); // much more than the pipe takes at once
    });
    EXPECT_EQ(result.end, End::Failed);
    ASSERT_FALSE(result.messages.empty());
    EXPECT_EQ(result.messages.front(), "whole");
    for (std::size_t i = 1; i < result.messages.size(); ++i) EXPECT_EQ(result.messages[i].size(), 1U << 27U);
}

/// Waits for the end of a process whose starter has gone.
bool endsSoon(pid_t process) {
    const auto start = Clock::now();
    while (Clock::now() - start < std::chrono::seconds(5)) {
        if (waitpid(process, nullptr, WNOHANG) == process) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

TEST(Watch, LeavesNoSearchBehindWhenTheProgramIsKilled) {
    prctl(PR_SET_CHILD_SUBREAPER, 1); // so that the orphan is ours to wait for
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t program = fork();
    if (program == 0) {
        run(
            [&](const Tell&) {
                const pid_t search = getpid();
                if (write(ends[1], &search, sizeof search) != sizeof search) _exit(1);
                waitForEver();
            },
            plenty, [](const std::string&) {});
        _exit(0);
    }
    pid_t search = 0;
    ASSERT_EQ(read(ends[0], &search, sizeof search), static_cast<ssize_t>(sizeof search));
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    EXPECT_TRUE(endsSoon(search));
    close(ends[0]);
    close(ends[1]);
}

TEST(Watch, EndsAProgramWithItsStarter) {
    prctl(PR_SET_CHILD_SUBREAPER, 1); // so that the orphan is ours to wait for
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t starter = fork();
    if (starter == 0) {
        if (fork() == 0) {
            begin();
            const pid_t program = getpid();
            if (write(ends[1], &program, sizeof program) != sizeof program) _exit(1);
            waitForEver();
        }
        waitForEver();
    }
    pid_t program = 0;
    ASSERT_EQ(read(ends[0], &program, sizeof program), static_cast<ssize_t>(sizeof program));
    kill(starter, SIGKILL);
    waitpid(starter, nullptr, 0);
    EXPECT_TRUE(endsSoon(program));
    close(ends[0]);
    close(ends[1]);
}

} // namespace
} // namespace vantore::watch::tests
