#include "solvers/OPTMZR/timing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace vantore::optmzr {

namespace {

constexpr double never = std::numeric_limits<double>::infinity();
constexpr double leastExcess = 1E-06; // minutes, or hours, that count
constexpr double tick = 0x1p-24;      // minutes: by what a start is before or past a break's time

/// A span of starts in which the same breaks are taken at the same arrivals.
struct Phase {
    double from = 0;
    double until = never;
    double breakMinutes = 0;
    std::span<const double> arrivals; ///< minutes after the start, breaks included
};

/// Follows the route from phase to phase.
class Phases {
  public:
    Phases(const Clock& clock, const TimedRoute& route) : clock_(clock), route_(route) {
        phase_.from = clock.earliestStart;
        follow();
    }

    const Phase& now() const { return phase_; }

    /// False when no later start changes anything.
    bool next() {
        if (phase_.until == never) return false;
        phase_.from = phase_.until + tick;
        follow();
        return true;
    }

  private:
    void follow() {
        phase_.until = never;
        phase_.breakMinutes = 0;
        arrivals_.assign(route_.arrivals.begin(), route_.arrivals.end());
        phase_.arrivals = arrivals_;
        std::array<bool, router::breakCount> isTaken{};
        for (std::size_t i = 0; i < arrivals_.size(); ++i) {
            for (std::size_t k = 0; k < clock_.breaks.size(); ++k) {
                const double after = phase_.from + route_.arrivals[i] + phase_.breakMinutes;
                const double left = clock_.breaks[k].beginsAfter - after;
                if (isTaken[k]) continue;
                const bool isFirstLeg = i == 0; // on which a break is taken at its very time
                if (isFirstLeg ? left <= 0 : left < 0) {
                    isTaken[k] = true;
                    phase_.breakMinutes += clock_.breaks[k].duration;
                } else {
                    phase_.until = std::min(phase_.until, phase_.from + left - (isFirstLeg ? tick : 0));
                }
            }
            arrivals_[i] += phase_.breakMinutes;
        }
    }

    const Clock& clock_;
    const TimedRoute& route_;
    std::vector<double> arrivals_;
    Phase phase_;
};

/// Shows the phases in their order up to the latest return.
template <class Action>
void eachPhase(const Clock& clock, const TimedRoute& route, const Action& action) {
    Phases phases(clock, route);
    do {
        action(phases.now());
    } while (phases.now().from <= clock.latestReturn && phases.next());
}

/// The starts of a phase that keep all windows, and what is left when there are none.
class Windows {
  public:
    Windows(const Clock& clock, const TimedRoute& route, Phase phase)
        : route_(route), phase_(phase), latestReturn_(clock.latestReturn), wholeDays_(startsForWholeDays()) {}

    Timing best() const {
        const Window starts{std::max(phase_.from, wholeDays_.begin), std::min(phase_.until, wholeDays_.end)};
        if (starts.begin > starts.end) return leastExcess(starts);
        if (!hasSplitHours()) return timing(starts);
        const std::vector<Window> kept = startsForAllWindows(starts);
        return kept.empty() ? leastExcessOfSplitHours() : timing(kept.front());
    }

  private:
    Timing timing(Window starts) const {
        return {.start = starts.begin, .latestStart = starts.end, .breakMinutes = phase_.breakMinutes};
    }

    bool hasSplitHours() const {
        return std::any_of(route_.open.begin(), route_.open.end(),
                           [](const OpeningHours* open) { return open->areSplit(); });
    }

    /// The starts that would do if each stop were open from its first opening to its last closing.
    Window startsForWholeDays() const {
        Window starts{-never, latestReturn_ - phase_.arrivals.back()};
        for (std::size_t i = 0; i < route_.open.size(); ++i) {
            if (route_.open[i]->neverOpen()) continue;
            const Window day = route_.open[i]->wholeDay();
            starts.begin = std::max(starts.begin, day.begin - phase_.arrivals[i]);
            starts.end = std::min(starts.end, day.end - phase_.arrivals[i]);
        }
        return starts;
    }

    Timing leastExcess(Window starts) const {
        if (hasSplitHours()) return leastExcessOfSplitHours();
        return measured(std::clamp(starts.begin, phase_.from, std::max(phase_.from, phase_.until)));
    }

    std::vector<Window> startsForAllWindows(Window all) const {
        std::vector<Window> kept{all};
        std::vector<Window> narrowed;
        for (std::size_t i = 0; i < route_.open.size() && !kept.empty(); ++i) {
            if (!route_.open[i]->areSplit()) continue;
            narrowed.clear();
            for (const Window& starts : kept) {
                for (const Window& window : route_.open[i]->windows()) {
                    const double begin = std::max(starts.begin, window.begin - phase_.arrivals[i]);
                    const double end = std::min(starts.end, window.end - phase_.arrivals[i]);
                    if (begin <= end) narrowed.push_back({begin, end});
                }
            }
            kept.swap(narrowed);
        }
        return kept;
    }

    /// What a start misses; not all of it where that is `enough` already.
    Timing measured(double start, double enough = never) const {
        Timing result{.start = start, .latestStart = start, .breakMinutes = phase_.breakMinutes};
        result.tooLate = std::max(0.0, start + phase_.arrivals.back() - latestReturn_);
        for (std::size_t i = 0; i < route_.open.size() && result.excess() < enough; ++i) {
            if (route_.open[i]->neverOpen()) continue;
            const double arrival = start + phase_.arrivals[i];
            double early = never;
            double late = never;
            for (const Window& window : route_.open[i]->windows()) {
                if (arrival <= window.end) early = std::min(early, std::max(0.0, window.begin - arrival));
                if (arrival >= window.begin) late = std::min(late, std::max(0.0, arrival - window.end));
            }
            if (early <= late)
                result.tooEarly = std::max(result.tooEarly, early);
            else
                result.tooLate = std::max(result.tooLate, late);
        }
        return result;
    }

    Timing leastExcessOfSplitHours() const {
        Timing best = measured(phase_.from);
        const auto consider = [&](double start) {
            if (start <= phase_.from || start > phase_.until || start == never) return;
            const double least =
                std::max(0.0, wholeDays_.begin - start) + std::max(0.0, start - wholeDays_.end);
            if (least >= best.excess()) return;
            const Timing timing = measured(start, best.excess());
            if (timing.excess() < best.excess()) best = timing;
        };
        consider(phase_.until);
        consider(latestReturn_ - phase_.arrivals.back());
        for (std::size_t i = 0; i < route_.open.size(); ++i) {
            const std::span<const Window> windows = route_.open[i]->windows();
            for (const Window& window : windows) {
                consider(window.begin - phase_.arrivals[i]);
                consider(window.end - phase_.arrivals[i]);
            }
            // from there on the stop is too early for the second window rather than too late for the first
            if (windows.size() > 1) consider((windows[0].end + windows[1].begin) / 2 - phase_.arrivals[i]);
        }
        return best;
    }

    const TimedRoute& route_;
    Phase phase_;
    double latestReturn_;
    Window wholeDays_;
};

/// What there is where no breaks are.
Phase onlyPhase(const Clock& clock, const TimedRoute& route) {
    return {.from = clock.earliestStart, .arrivals = route.arrivals};
}

/// From which on some stop, or the depot, is reached late by as much as the start is later.
double latestStart(const Clock& clock, const TimedRoute& route) {
    double latest = clock.latestReturn - route.arrivals.back();
    for (std::size_t i = 0; i < route.open.size(); ++i)
        if (!route.open[i]->neverOpen())
            latest = std::min(latest, route.open[i]->wholeDay().end - route.arrivals[i]);
    return latest;
}

/// Tells the starts of a phase at which a window begins or ends to be kept.
template <class Action>
void eachDecisiveStart(const Clock& clock, const TimedRoute& route, const Phase& phase,
                       const Action& action) {
    action(phase.from);
    const auto consider = [&](double start) {
        if (start > phase.from && start <= phase.until) action(start);
    };
    if (phase.until < never) consider(phase.until);
    consider(clock.latestReturn - phase.arrivals.back());
    for (std::size_t i = 0; i < route.open.size(); ++i) {
        for (const Window& window : route.open[i]->windows()) {
            consider(window.begin - phase.arrivals[i]);
            consider(window.end - phase.arrivals[i]);
        }
    }
}

/// Minutes from a clock to the nearest time at which a stop is open.
double minutesOutside(const OpeningHours& open, double clock) {
    double least = never;
    for (const Window& window : open.windows())
        least = std::min(least, std::max({0.0, window.begin - clock, clock - window.end}));
    return open.neverOpen() ? 0 : least;
}

/// The times that a start misses; not all of them where they are more than `most`.
Misses missesAt(const Clock& clock, const TimedRoute& route, const Phase& phase, double start,
                double maxMinutes, int most) {
    Misses misses;
    const auto miss = [&misses](double minutes) {
        if (minutes <= leastExcess) return;
        ++misses.count;
        misses.excess += minutes / router::minutesPerHour;
    };
    for (std::size_t i = 0; i < route.open.size() && misses.count <= most; ++i)
        miss(minutesOutside(*route.open[i], start + phase.arrivals[i]));
    miss(start + phase.arrivals.back() - clock.latestReturn);
    miss(phase.arrivals.back() - maxMinutes);
    return misses;
}

} // namespace

OpeningHours::OpeningHours(const router::Stop& stop) {
    std::array<Window, 2> given{Window{stop.begin1, stop.end1}, Window{stop.begin2, stop.end2}};
    if (given[1].begin < given[0].begin) std::swap(given[0], given[1]);
    for (const Window& window : given) {
        if (window.begin > window.end) continue;
        if (count_ > 0 && window.begin <= windows_[count_ - 1].end)
            windows_[count_ - 1].end = std::max(windows_[count_ - 1].end, window.end);
        else
            windows_[count_++] = window;
    }
}

Timing bestTiming(const Clock& clock, const TimedRoute& route) {
    if (clock.breaks.empty()) return Windows(clock, route, onlyPhase(clock, route)).best();
    Phases phases(clock, route);
    Timing best = Windows(clock, route, phases.now()).best();
    // A later start never makes the breaks shorter, so that the first phase without excess is the best one.
    const double latest = latestStart(clock, route);
    while (best.excess() > phases.now().from - latest && best.excess() > 0 && phases.next()) {
        const Timing timing = Windows(clock, route, phases.now()).best();
        if (timing.excess() < best.excess()) best = timing;
    }
    return best;
}

Timing leastMisses(const Clock& clock, const TimedRoute& route, double maxMinutes, Misses& misses) {
    Timing best;
    misses.count = std::numeric_limits<int>::max();
    eachPhase(clock, route, [&](const Phase& phase) {
        eachDecisiveStart(clock, route, phase, [&](double start) {
            const Misses now = missesAt(clock, route, phase, start, maxMinutes, misses.count);
            if (now.count > misses.count ||
                (now.count == misses.count && now.excess >= misses.excess - leastExcess))
                return;
            misses = now;
            best = {.start = start, .latestStart = start, .breakMinutes = phase.breakMinutes};
        });
    });
    return best;
}

std::vector<double> decisiveStarts(const Clock& clock, const TimedRoute& route) {
    std::vector<double> starts;
    eachPhase(clock, route, [&](const Phase& phase) {
        eachDecisiveStart(clock, route, phase, [&](double start) { starts.push_back(start); });
    });
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    return starts;
}

} // namespace vantore::optmzr
