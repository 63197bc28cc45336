#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/moves.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace vantore::optmzr::tests {
namespace {

using router::tests::RandomProblems;
using Stops = std::vector<int>;
using Offer = std::pair<Stops, Stops>; ///< what route a and route b would become

Stops part(const Stops& stops, int from, int to) {
    return from > to ? Stops() : Stops(stops.begin() + from - 1, stops.begin() + to);
}

Stops turned(Stops stops) {
    std::reverse(stops.begin(), stops.end());
    return stops;
}

Stops joined(const std::vector<Stops>& parts) {
    Stops result;
    for (const Stops& each : parts) result.insert(result.end(), each.begin(), each.end());
    return result;
}

/// The stops behind a position.
Stops tail(const Stops& stops, int position) {
    return part(stops, position + 1, static_cast<int>(stops.size()));
}

/// Two routes of random lengths that have no stop in common, and every pair of places in them.
class Moves : public testing::Test {
  protected:
    /// Checks what a move of two routes offers for each stop of a and each place in b.
    template <class Move, class Expected>
    void expectBetween(const Move& move, const Expected& expected) {
        for (int trial = 0; trial < 40; ++trial) {
            draw();
            for (int i = 1; i <= routeA_.size(); ++i)
                for (int j = 0; j <= routeB_.size(); ++j)
                    expectOffers([&](const auto& accept) { return move(routeA_, i, routeB_, j, accept); },
                                 expected(a_, i, b_, j));
        }
    }

    /// Checks what a move within one route offers for each stop and each other place.
    template <class Move, class Expected>
    void expectWithin(const Move& move, const Expected& expected) {
        for (int trial = 0; trial < 40; ++trial) {
            draw();
            for (int i = 1; i <= routeA_.size(); ++i)
                for (int j = 0; j <= routeA_.size(); ++j) {
                    std::vector<Offer> offers;
                    for (const Stops& stops : expected(a_, i, j)) offers.emplace_back(stops, Stops());
                    expectOffers([&](const auto& accept) { return move(routeA_, i, j, accept); }, offers);
                }
        }
    }

  private:
    void draw() {
        const int count = problems_.from(1, 12);
        problem_ = problems_.next(count);
        instance_ = Instance(problem_, router::Travel(problem_));
        Stops stops;
        for (int stop = 1; stop <= count; ++stop) stops.push_back(stop);
        dice_.shuffle(stops);
        const int sizeA = problems_.from(1, count);
        a_ = part(stops, 1, sizeA);
        b_ = tail(stops, sizeA);
        routeA_.take(instance_, a_, {});
        routeB_.take(instance_, b_, {});
    }

    /// The offers must be these in this order, their sums those of their stops, and an offer that is taken
    /// the last.
    template <class Move>
    void expectOffers(const Move& move, const std::vector<Offer>& expected) {
        std::vector<Offer> offers;
        EXPECT_FALSE(move(Listener{*this, offers, -1}));
        ASSERT_EQ(offers, expected);
        for (std::size_t taken = 0; taken < expected.size(); ++taken) {
            offers.clear();
            EXPECT_TRUE(move(Listener{*this, offers, static_cast<int>(taken)}));
            EXPECT_EQ(offers.size(), taken + 1);
        }
    }

    /// Writes offers down and takes the one with this number.
    struct Listener {
        Moves& test;
        std::vector<Offer>& offers;
        int taken = 0;

        bool operator()(const Splice& newA) const { return (*this)(newA, Splice()); }
        bool operator()(const Splice& newA, const Splice& newB) const {
            offers.emplace_back(test.stopsOf(newA), test.stopsOf(newB));
            return static_cast<int>(offers.size()) == taken + 1;
        }
    };

    Stops stopsOf(const Splice& splice) const {
        Stops stops{99};
        splice.stops(stops);
        EXPECT_EQ(splice.empty(), stops.empty());
        const RouteSums sums = sumsOf(instance_, stops);
        EXPECT_EQ(splice.legs(instance_).distance, sums.distance);
        EXPECT_EQ(splice.legs(instance_).minutes, sums.minutes);
        EXPECT_EQ(splice.loads().delivered.weight, sums.delivered.weight);
        EXPECT_EQ(splice.loads().delivered.cube, sums.delivered.cube);
        EXPECT_EQ(splice.loads().pickedUp.weight, sums.pickedUp.weight);
        EXPECT_EQ(splice.loads().pickedUp.cube, sums.pickedUp.cube);
        return stops;
    }

    RandomProblems problems_{1997};
    Dice dice_{3};
    router::Problem problem_ = problems_.next(1);
    Instance instance_{problem_, router::Travel(problem_)};
    Stops a_, b_;
    SearchRoute routeA_{instance_, 0}, routeB_{instance_, 0};
};

TEST_F(Moves, RelocateUpToThreeStopsInBothDirections) {
    expectBetween([](const auto&... given) { return relocate(given...); },
                  [](const Stops& a, int i, const Stops& b, int j) {
                      std::vector<Offer> offers;
                      for (int last = i; last <= i + 2 && last <= static_cast<int>(a.size()); ++last) {
                          const Stops rest = joined({part(a, 1, i - 1), tail(a, last)});
                          const Stops run = part(a, i, last);
                          offers.emplace_back(rest, joined({part(b, 1, j), run, tail(b, j)}));
                          if (last > i)
                              offers.emplace_back(rest, joined({part(b, 1, j), turned(run), tail(b, j)}));
                      }
                      return offers;
                  });
}

TEST_F(Moves, RelocateUpToThreeStopsWithinTheirRoute) {
    expectWithin([](const auto&... given) { return relocateWithin(given...); },
                 [](const Stops& a, int i, int j) {
                     std::vector<Stops> offers;
                     for (int last = i; last <= i + 2 && last <= static_cast<int>(a.size()); ++last) {
                         if (j >= i && j <= last) break;
                         const Stops rest = joined({part(a, 1, i - 1), tail(a, last)});
                         const Stops run = part(a, i, last);
                         const int after = j < i ? j : j - (last - i + 1);
                         offers.push_back(joined({part(rest, 1, after), run, tail(rest, after)}));
                         if (last > i)
                             offers.push_back(joined({part(rest, 1, after), turned(run), tail(rest, after)}));
                     }
                     return offers;
                 });
}

TEST_F(Moves, ExchangeUpToTwoStopsBehindTheOtherPlace) {
    expectBetween(
        [](const auto&... given) { return exchange(given...); },
        [](const Stops& a, int i, const Stops& b, int j) {
            std::vector<Offer> offers;
            for (const auto& [mine, theirs] : {std::pair(1, 1), {1, 2}, {2, 1}, {2, 2}}) {
                const Stops leaving = part(a, i, std::min(i + mine - 1, static_cast<int>(a.size())));
                const Stops coming = part(b, j + 1, std::min(j + theirs, static_cast<int>(b.size())));
                if (static_cast<int>(leaving.size()) < mine || static_cast<int>(coming.size()) < theirs)
                    continue;
                offers.emplace_back(joined({part(a, 1, i - 1), coming, tail(a, i + mine - 1)}),
                                    joined({part(b, 1, j), leaving, tail(b, j + theirs)}));
            }
            return offers;
        });
}

TEST_F(Moves, ExchangeUpToTwoStopsBeforeTheOtherPlace) {
    expectBetween([](const auto&... given) { return exchangeBefore(given...); },
                  [](const Stops& a, int i, const Stops& b, int j) {
                      std::vector<Offer> offers;
                      for (const auto& [mine, theirs] : {std::pair(1, 1), {1, 2}, {2, 1}, {2, 2}}) {
                          if (mine > i || theirs > j - 1) continue;
                          offers.emplace_back(
                              joined({part(a, 1, i - mine), part(b, j - theirs, j - 1), tail(a, i)}),
                              joined({part(b, 1, j - theirs - 1), part(a, i - mine + 1, i), tail(b, j - 1)}));
                      }
                      return offers;
                  });
}

TEST_F(Moves, ExchangeTwoStopsOfOneRoute) {
    expectWithin([](const auto&... given) { return exchangeWithin(given...); },
                 [](const Stops& a, int i, int j) {
                     std::vector<Stops> offers;
                     if (j == 0 || i == j) return offers;
                     offers.push_back(a);
                     std::swap(offers[0][static_cast<std::size_t>(i - 1)],
                               offers[0][static_cast<std::size_t>(j - 1)]);
                     return offers;
                 });
}

TEST_F(Moves, ExchangeTailsOrJoinHeadToHeadAndTailToTail) {
    expectBetween(
        [](const auto&... given) { return exchangeTails(given...); },
        [](const Stops& a, int i, const Stops& b, int j) {
            return std::vector<Offer>{
                {joined({part(a, 1, i - 1), tail(b, j)}), joined({part(b, 1, j), tail(a, i - 1)})},
                {joined({part(a, 1, i), turned(part(b, 1, j))}), joined({turned(tail(a, i)), tail(b, j)})}};
        });
}

TEST_F(Moves, TurnThePartBetweenTwoStopsRound) {
    expectWithin([](const auto&... given) { return reverse(given...); },
                 [](const Stops& a, int i, int j) {
                     std::vector<Stops> offers;
                     if (j == 0) return offers;
                     offers.push_back(a);
                     const auto begin = offers[0].begin();
                     if (i < j) std::reverse(begin + i, begin + j);
                     if (j < i) std::reverse(begin + j - 1, begin + i - 1);
                     return offers;
                 });
}

TEST_F(Moves, TurnTheBeginningOrTheEndRound) {
    const auto move = [](const SearchRoute& a, int i, int /*j*/, const auto& accept) {
        return reverseEnds(a, i, accept);
    };
    expectWithin(move, [](const Stops& a, int i, int /*j*/) {
        return std::vector<Stops>{joined({turned(part(a, 1, i)), tail(a, i)}),
                                  joined({part(a, 1, i - 1), turned(tail(a, i - 1))})};
    });
}

} // namespace
} // namespace vantore::optmzr::tests
