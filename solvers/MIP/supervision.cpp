#include "solvers/MIP/supervision.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <memory>
#include <thread>
#include <unistd.h>

#include "solvers/MIP/progress.h"
#include "solvers/MIP/solve.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr long pollNanoseconds = 5'000'000;

sigset_t interrupts() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    return set;
}

/// Waits a moment for an interrupt.
bool interrupted() {
    const sigset_t set = interrupts();
    const timespec moment{0, pollNanoseconds};
    return sigtimedwait(&set, nullptr, &moment) > 0;
}

/// What the search's thread works on. It owns all of it, for it may outlive whoever started it.
struct Work {
    SolverInput input;
    Limits limits;
    Progress progress;
    std::atomic<bool> done = false;
};

/// Set in the thread that searches; a crash elsewhere is none of the search's.
thread_local bool searching = false;
std::atomic<bool> crashed = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set it");

/// A thread that has crashed can't go on, but it can wait until the report has been written.
void holdCrashedSearch(int signal) {
    if (!searching) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
        return;
    }
    crashed = true;
    while (true) pause();
}

Outcome abandoned(const Work& work, bool byHand) {
    Outcome outcome = work.progress.outcome();
    outcome.status = byHand ? Status::Interrupted : Status::TimeLimit;
    if (crashed) outcome.status = Status::BrokenDown;
    return outcome;
}

} // namespace

void takeSignals() {
    // Whoever started the program may have had these signals ignored, and ignored ones never arrive.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    const sigset_t set = interrupts();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    for (const int crash : {SIGABRT, SIGSEGV, SIGFPE, SIGILL, SIGBUS}) std::signal(crash, holdCrashedSearch);
}

Outcome supervise(const SolverInput& input, const Limits& limits) {
    using Clock = std::chrono::steady_clock;
    const auto work = std::make_shared<Work>();
    work->input = input;
    work->limits = limits;
    const auto start = Clock::now();
    const auto used = [start] { return std::chrono::duration<double>(Clock::now() - start).count(); };
    std::thread search([work] {
        searching = true;
        solve(work->input, work->limits, work->progress);
        work->done = true;
    });
    double giveUp = limits.seconds + graceSeconds;
    bool byHand = false;
    while (!work->done && !crashed && used() < giveUp) {
        if (!interrupted()) continue;
        byHand = true;
        work->progress.stop();
        giveUp = std::min(giveUp, used() + graceSeconds);
    }
    Outcome outcome;
    if (work->done) {
        search.join();
        outcome = work->progress.outcome();
    } else {
        search.detach();
        outcome = abandoned(*work, byHand);
    }
    outcome.seconds = used();
    return outcome;
}

} // namespace vantore::mip
