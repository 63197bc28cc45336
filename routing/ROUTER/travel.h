#pragma once

#include <cstddef>
#include <vector>

#include "routing/ROUTER/detour.h"
#include "routing/ROUTER/problem.h"

namespace vantore::router {

/// The way from one stop to the next, or from or to the depot.
struct Leg {
    double distance = 0;
    double speed = 0;      ///< distance per hour
    int barriersEnded = 0; ///< barriers within which one of its ends lies
};

/// All legs of a problem, computed once.
///
/// The distance is the first one specified for the two stops, either way; .001 for stops at one place;
/// otherwise that of the straight line with the detours round all barriers. The speed is the first one
/// specified for the two stops, else for their zones, else the default.
class Travel {
  public:
    explicit Travel(const Problem& problem);

    /// Stops by their rows, 0 for the depot. SubscriptOutOfRange for any other number, Overflow where the
    /// distance is beyond the double range.
    const Leg& leg(int from, int to) const;

    /// The time that a leg takes. DivisionByZero for a speed of 0.
    static double hours(const Leg& leg);

  private:
    std::size_t place(int from, int to) const;
    Leg& at(int from, int to) { return legs_[place(from, to)]; }
    void measure(const Problem& problem);
    void specifyDistances(const Problem& problem);
    void specifySpeeds(const Problem& problem);

    int last_;
    std::vector<Leg> legs_;
};

} // namespace vantore::router
