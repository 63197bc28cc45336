#include "solvers/MIP/supervision.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <ctime>
#include <memory>
#include <optional>
#include <thread>
#include <unistd.h>

#include "solvers/MIP/check.h"
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
    Care care = Care::Usual;
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

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// How a search ended for whoever watched over it.
enum class Watch { Done, Crashed, LeftAlone, LeftAloneByHand };

/// Waits for the end of the search, hands on an interrupt, and gives up when the search doesn't end in time.
Watch watch(Work& work) {
    const auto start = Clock::now();
    double giveUp = work.limits.seconds + graceSeconds;
    bool byHand = false;
    while (!work.done && !crashed && secondsSince(start) < giveUp) {
        if (!interrupted()) continue;
        byHand = true;
        work.progress.stop();
        giveUp = std::min(giveUp, secondsSince(start) + graceSeconds);
    }
    if (work.done) return Watch::Done;
    if (crashed) return Watch::Crashed;
    return byHand ? Watch::LeftAloneByHand : Watch::LeftAlone;
}

/// One search in a thread of its own, and what it has found however it ended.
struct Search {
    Watch end = Watch::Done;
    Outcome outcome;
};

Search searchWatched(const SolverInput& input, const Limits& limits, Care care) {
    const auto work = std::make_shared<Work>();
    work->input = input;
    work->limits = limits;
    work->care = care;
    crashed = false;
    std::thread thread([work] {
        searching = true;
        solve(work->input, work->limits, work->progress, work->care);
        work->done = true;
    });
    Search search;
    search.end = watch(*work);
    if (search.end == Watch::Done) {
        thread.join();
    } else {
        thread.detach();
    }
    search.outcome = work->progress.outcome();
    if (search.end == Watch::Crashed) search.outcome.status = Status::BrokenDown;
    if (search.end == Watch::LeftAlone) search.outcome.status = Status::TimeLimit;
    if (search.end == Watch::LeftAloneByHand) search.outcome.status = Status::Interrupted;
    return search;
}

/// Brings in a solution that an earlier search has found. Where it belies what the later one claims, nothing
/// is proved.
void takeInto(Outcome& outcome, const SolverInput& input, const Solution& found) {
    if (outcome.solution && !better(input, found.objective, outcome.solution->objective)) return;
    outcome.solution = found;
    if (outcome.status != Status::Optimal && outcome.status != Status::Infeasible) return;
    outcome.status = Status::Unproved;
    outcome.bound.reset();
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

void endAfter(double seconds) {
    std::signal(SIGALRM, SIG_DFL);
    alarm(static_cast<unsigned>(std::max(1.0, std::ceil(seconds))));
}

Outcome supervise(const SolverInput& input, const Limits& limits) {
    const auto start = Clock::now();
    Search search = searchWatched(input, limits, Care::Usual);
    if (search.end == Watch::Crashed) {
        const std::optional<Solution> found = search.outcome.solution;
        search = searchWatched(input, {limits.seconds - secondsSince(start), limits.nodes}, Care::Strict);
        if (found) takeInto(search.outcome, input, *found);
    }
    search.outcome.seconds = secondsSince(start);
    return search.outcome;
}

} // namespace vantore::mip
