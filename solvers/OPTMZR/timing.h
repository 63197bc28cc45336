#pragma once

#include <array>
#include <span>
#include <vector>

#include "routing/ROUTER/problem.h"

namespace vantore::optmzr {

/// A span of time, its ends included. All times are minutes from 00:00 of day 1.
struct Window {
    double begin = 0;
    double end = 0;
};

/// When a stop may be served: its time windows in their order, those that touch put together. Without any the
/// stop is late at all times.
class OpeningHours {
  public:
    OpeningHours() = default;
    explicit OpeningHours(const router::Stop& stop);

    std::span<const Window> windows() const { return {windows_.data(), count_}; }
    bool areSplit() const { return count_ > 1; }
    bool neverOpen() const { return count_ == 0; }
    /// From the first opening to the last closing.
    Window wholeDay() const { return {windows_[0].begin, windows_[count_ - 1].end}; }

  private:
    std::array<Window, 2> windows_{};
    std::size_t count_ = 0;
};

/// What the clock does to all routes alike.
struct Clock {
    double earliestStart = 0;
    double latestReturn = 0;
    std::vector<router::Break> breaks; ///< in their order, those without duration left out
};

/// A route as the clock sees it: how many minutes after its start it would reach each stop, and the depot at
/// last, if no break fell due, and when the stops are open.
struct TimedRoute {
    std::span<const double> arrivals;          ///< of the stops and the depot
    std::span<const OpeningHours* const> open; ///< of the stops
};

/// The best time to start a route. Every start from `start` to `latestStart` is as good.
struct Timing {
    double start = 0;
    double latestStart = 0;
    double breakMinutes = 0;
    double tooEarly = 0; ///< the most minutes by which an arrival comes before its window
    double tooLate = 0;  ///< the most minutes by which an arrival, or the return, comes late

    double excess() const { return tooEarly + tooLate; }
};

/// Limits that are broken: how many, and by how much.
struct Misses {
    int count = 0;
    double excess = 0; ///< times in hours, loads and distances in parts of the limit

    Misses& operator+=(const Misses& other) {
        count += other.count;
        excess += other.excess;
        return *this;
    }
};

/// The start that keeps all time windows with the shortest breaks; where there is none, one with the least
/// excess. A vehicle never waits, so a later start moves every arrival and at certain starts brings a break
/// forward; between those the arrivals keep their distances and each window allows one span of starts.
Timing bestTiming(const Clock& clock, const TimedRoute& route);

/// All starts at which a window of the route begins or ends to be kept, or a break falls due: no start is
/// better than the best of them.
std::vector<double> decisiveStarts(const Clock& clock, const TimedRoute& route);

/// Where not all times can be kept: the start that misses the fewest of them, windows, the latest return and
/// `maxMinutes` on the road, and these by least.
Timing leastMisses(const Clock& clock, const TimedRoute& route, double maxMinutes, Misses& misses);

} // namespace vantore::optmzr
