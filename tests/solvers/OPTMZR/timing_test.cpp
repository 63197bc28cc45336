#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/timing.h"

namespace vantore::optmzr::tests {
namespace {

router::Stop openAt(double begin1, double end1, double begin2 = 1, double end2 = 0) {
    router::Stop stop;
    stop.begin1 = begin1;
    stop.end1 = end1;
    stop.begin2 = begin2;
    stop.end2 = end2;
    return stop;
}

/// A route that reaches its stops 30, 70 and 120 minutes after its start, and the depot after 160.
class ThreeStops : public testing::Test {
  protected:
    void open(const std::vector<router::Stop>& stops) {
        hours_.clear();
        open_.clear();
        for (const router::Stop& stop : stops) hours_.emplace_back(stop);
        for (const OpeningHours& hours : hours_) open_.push_back(&hours);
    }

    TimedRoute route() const { return {arrivals_, open_}; }
    Timing timing() const { return bestTiming(clock_, route()); }

    static constexpr double all = 9999;
    Clock clock_{.earliestStart = 400, .latestReturn = 2000, .breaks = {}};
    std::vector<double> arrivals_{30, 70, 120, 160};
    std::vector<OpeningHours> hours_;
    std::vector<const OpeningHours*> open_;
};

TEST(OpeningHours, PutsWindowsTogetherThatTouch) {
    const OpeningHours whole(openAt(0, 1440, 1440, 9999));
    ASSERT_EQ(whole.windows().size(), 1U);
    EXPECT_EQ(whole.windows()[0].end, 9999);
    const OpeningHours within(openAt(100, 500, 200, 300));
    ASSERT_EQ(within.windows().size(), 1U);
    EXPECT_EQ(within.windows()[0].end, 500);
    const OpeningHours swapped(openAt(500, 600, 100, 200));
    ASSERT_TRUE(swapped.areSplit());
    EXPECT_EQ(swapped.windows()[0].begin, 100);
    EXPECT_EQ(swapped.wholeDay().end, 600);
    EXPECT_TRUE(OpeningHours(openAt(5, 4, 3, 2)).neverOpen());
    EXPECT_FALSE(OpeningHours(openAt(5, 5, 3, 2)).neverOpen());
}

TEST_F(ThreeStops, LeavesAsEarlyAsItMay) {
    open({openAt(0, all), openAt(0, all), openAt(0, all)});
    EXPECT_EQ(timing().start, 400);
    EXPECT_EQ(timing().latestStart, 1840);
    EXPECT_EQ(timing().excess(), 0);
}

TEST_F(ThreeStops, LeavesSoThatAllWindowsAreKept) {
    open({openAt(500, 600), openAt(520, 590), openAt(0, 660)});
    EXPECT_EQ(timing().start, 470);
    EXPECT_EQ(timing().latestStart, 520);
    clock_.latestReturn = 650;
    EXPECT_EQ(timing().latestStart, 490);
    EXPECT_EQ(timing().excess(), 0);
}

TEST_F(ThreeStops, PaysNoHeedToAStopThatNeverOpens) {
    open({openAt(0, all), openAt(500, 520), openAt(5, 4, 3, 2)});
    EXPECT_EQ(timing().start, 430);
    EXPECT_EQ(timing().latestStart, 450);
    EXPECT_EQ(timing().excess(), 0);
    clock_.breaks = {{20, 3000}};
    EXPECT_EQ(timing().latestStart, 450);
}

TEST_F(ThreeStops, MeasuresWhatItCannotKeep) {
    open({openAt(500, 600), openAt(0, 520), openAt(0, all)});
    EXPECT_EQ(timing().excess(), 20); // from 470 on the first, until 450 the second
    clock_.latestReturn = 500;
    EXPECT_EQ(timing().excess(), 130); // from 470 on the first, until 340 the return
    open({openAt(0, all), openAt(0, all), openAt(0, all)});
    EXPECT_EQ(timing().start, 400);
    EXPECT_EQ(timing().tooLate, 60);
    EXPECT_EQ(timing().tooEarly, 0);
}

TEST_F(ThreeStops, ChoosesAmongSeveralWindows) {
    open({openAt(440, 460, 700, 800), openAt(0, all), openAt(550, 560, 800, 900)});
    // the first stop's early window wants a start of 410 to 430, the last one's 430 to 440
    EXPECT_EQ(timing().start, 430);
    EXPECT_EQ(timing().latestStart, 430);
    open({openAt(440, 459, 700, 800), openAt(0, all), openAt(550, 560, 800, 900)});
    EXPECT_EQ(timing().start, 680);
    EXPECT_EQ(timing().latestStart, 770);
    open({openAt(440, 459, 700, 800), openAt(0, all), openAt(550, 560, 1000, 1100)});
    EXPECT_EQ(timing().excess(), 1);
}

TEST_F(ThreeStops, ReturnsBeforeABreakWhereItMay) {
    open({openAt(0, all), openAt(0, all), openAt(0, all)});
    clock_.breaks = {{20, 560}};
    EXPECT_EQ(timing().breakMinutes, 0); // back at its very time
    EXPECT_EQ(timing().start, 400);
    EXPECT_EQ(timing().latestStart, 400);
    clock_.breaks = {{20, 559}};
    EXPECT_EQ(timing().breakMinutes, 20);
}

TEST_F(ThreeStops, TakesABreakToMeetAWindow) {
    open({openAt(0, all), openAt(490, 495), openAt(0, all)});
    clock_.breaks = {{20, 430}};
    // at 400 the first stop is reached at 430, the break's very time, and so after it: the second at 490
    EXPECT_EQ(timing().start, 400);
    EXPECT_EQ(timing().latestStart, 405);
    EXPECT_EQ(timing().breakMinutes, 20);
    clock_.breaks = {{20, 431}};
    // before 401 the break comes on the way to the second stop
    EXPECT_EQ(timing().start, 400);
    EXPECT_EQ(timing().excess(), 0);
}

TEST_F(ThreeStops, KnowsThatOneBreakBringsTheNext) {
    open({openAt(0, all), openAt(0, all), openAt(0, all)});
    clock_.breaks = {{30, 500}, {15, 545}, {10, 700}};
    // the first on the way to the third stop, at 520, which makes it 550: the second too
    EXPECT_EQ(timing().breakMinutes, 45);
}

TEST_F(ThreeStops, WaitsForALaterPhaseWhereAnEarlierOneMissesAWindow) {
    open({openAt(0, all), openAt(0, all), openAt(700, 705)});
    clock_.breaks = {{20, 600}};
    // without the break a start from 580 on; but by then the third stop comes after 600
    EXPECT_EQ(timing().breakMinutes, 20);
    EXPECT_EQ(timing().excess(), 0);
    EXPECT_NEAR(timing().start, 560, 1E-06);
}

TEST_F(ThreeStops, MissesTheFewestTimesWhereItMustMissSome) {
    // the first and the third can be kept together, the second with neither
    open({openAt(500, 510), openAt(0, 480), openAt(590, 600)});
    Misses misses;
    const Timing timing = leastMisses(clock_, route(), all, misses);
    EXPECT_EQ(misses.count, 1);
    EXPECT_NEAR(misses.excess, 1, 1E-12); // 470 + 70 is 60 minutes late
    EXPECT_EQ(timing.start, 470);
    leastMisses(clock_, route(), 150, misses); // 160 minutes on the road
    EXPECT_EQ(misses.count, 2);
    EXPECT_NEAR(misses.excess, 1 + 10 / 60.0, 1E-12);
    clock_.latestReturn = 600;
    leastMisses(clock_, route(), all, misses);
    EXPECT_EQ(misses.count, 2);
    EXPECT_NEAR(misses.excess, 1.5, 1E-12);
}

TEST_F(ThreeStops, NamesTheStartsThatDecide) {
    open({openAt(500, 510), openAt(0, all), openAt(0, all)});
    const std::vector<double> starts = decisiveStarts(clock_, route());
    for (const double start : {400.0, 470.0, 480.0, 1840.0})
        EXPECT_TRUE(std::find(starts.begin(), starts.end(), start) != starts.end()) << start;
}

TEST_F(ThreeStops, ListTheStartsOfEachPhaseOnceAndInTheirOrder) {
    clock_.latestReturn = 700;
    clock_.breaks = {{20, 520}};
    open({openAt(0, all), openAt(0, all), openAt(0, all)});
    const std::vector<double> starts = decisiveStarts(clock_, route());
    // the break is due on the way to the third stop, to the second, to the first, and from the start on
    const double expected[] = {400, 450, 490, 520};
    for (const double start : expected)
        EXPECT_TRUE(std::any_of(starts.begin(), starts.end(), [&](double s) {
            return std::abs(s - start) < 1E-06;
        })) << start;
    EXPECT_TRUE(std::is_sorted(starts.begin(), starts.end()));
    EXPECT_TRUE(std::adjacent_find(starts.begin(), starts.end()) == starts.end());
}

/// A random route with its windows and breaks, all at whole minutes, so that halves of minutes and what is
/// just before or past them are all the starts that count.
class RandomDay {
  public:
    explicit RandomDay(Dice& dice) {
        clock_.earliestStart = dice.below(60);
        clock_.latestReturn = 150 + dice.below(200);
        for (int k = dice.below(4); k > 0; --k)
            clock_.breaks.push_back({double(1 + dice.below(20)), double(dice.below(250))});
        double after = 0;
        for (int stops = 1 + dice.below(4); stops > 0; --stops) {
            arrivals_.push_back(after += 1 + dice.below(40));
            const double begin1 = dice.below(150);
            const double end1 = begin1 + dice.below(60) - 5;
            const double begin2 = dice.below(250);
            hours_.emplace_back(openAt(begin1, end1, begin2, begin2 + dice.below(60) - 20));
        }
        arrivals_.push_back(after + 1 + dice.below(40));
        for (const OpeningHours& hours : hours_) open_.push_back(&hours);
    }

    const Clock& clock() const { return clock_; }
    TimedRoute route() const { return {arrivals_, open_}; }

    /// What a start makes of the route: as `Timing`, and the times missed one by one.
    Timing at(double start, double maxMinutes, Misses& misses) const {
        Timing timing{.start = start, .latestStart = start};
        std::vector<bool> isTaken(clock_.breaks.size());
        misses = {};
        double now = start;
        for (std::size_t i = 0; i < arrivals_.size(); ++i) {
            now = start + arrivals_[i] + timing.breakMinutes;
            for (std::size_t k = 0; k < isTaken.size(); ++k) {
                const double due = clock_.breaks[k].beginsAfter;
                if (isTaken[k] || (i == 0 ? now < due : now <= due)) continue;
                isTaken[k] = true;
                timing.breakMinutes += clock_.breaks[k].duration;
                now += clock_.breaks[k].duration;
            }
            if (i < hours_.size()) visit(hours_[i], now, timing, misses);
        }
        timing.tooLate = std::max(timing.tooLate, now - clock_.latestReturn);
        miss(misses, now - clock_.latestReturn);
        miss(misses, now - start - maxMinutes);
        return timing;
    }

    template <class Action>
    void eachStart(const Action& action) const {
        constexpr double little = 1E-07;
        for (double start = clock_.earliestStart; start <= 300; start += .5)
            for (const double shift : {-little, 0.0, little})
                if (start + shift >= clock_.earliestStart) action(start + shift);
    }

  private:
    static void miss(Misses& misses, double minutes) {
        if (minutes < 1E-05) return;
        ++misses.count;
        misses.excess += minutes / 60;
    }

    static void visit(const OpeningHours& hours, double now, Timing& timing, Misses& misses) {
        if (hours.neverOpen()) return;
        double early = 1E+09, late = 1E+09;
        for (const Window& window : hours.windows()) {
            if (now <= window.end) early = std::min(early, std::max(0.0, window.begin - now));
            if (now >= window.begin) late = std::min(late, std::max(0.0, now - window.end));
        }
        miss(misses, std::min(early, late));
        if (early <= late)
            timing.tooEarly = std::max(timing.tooEarly, early);
        else
            timing.tooLate = std::max(timing.tooLate, late);
    }

    Clock clock_;
    std::vector<double> arrivals_;
    std::vector<OpeningHours> hours_;
    std::vector<const OpeningHours*> open_;
};

TEST(BestTiming, IsAsGoodAsAnyStart) {
    Dice dice(12);
    int kept = 0;
    for (int trial = 0; trial < 400; ++trial) {
        const RandomDay day(dice);
        const Timing timing = bestTiming(day.clock(), day.route());
        Misses misses;
        double least = 1E+09, shortest = 1E+09;
        day.eachStart([&](double start) {
            const Timing at = day.at(start, 1E+06, misses);
            if (at.excess() < least - 1E-05) shortest = 1E+09;
            if (at.excess() < least + 1E-05) shortest = std::min(shortest, at.breakMinutes);
            least = std::min(least, at.excess());
        });
        ASSERT_NEAR(timing.excess(), least, 1E-05) << "day " << trial;
        for (const double start :
             {timing.start, (timing.start + timing.latestStart) / 2, timing.latestStart}) {
            const double before = std::max(start - 1E-07, day.clock().earliestStart);
            const double excess =
                std::min(day.at(start, 1E+06, misses).excess(), day.at(before, 1E+06, misses).excess());
            ASSERT_NEAR(excess, least, 1E-05) << "day " << trial << ", start " << start;
        }
        if (least > 0) continue;
        ++kept;
        ASSERT_EQ(timing.breakMinutes, shortest) << "day " << trial;
    }
    EXPECT_GT(kept, 80);
    EXPECT_LT(kept, 320);
}

TEST(LeastMisses, AreThoseOfTheBestStart) {
    Dice dice(13);
    for (int trial = 0; trial < 400; ++trial) {
        const RandomDay day(dice);
        const double maxMinutes = 40 + dice.below(100);
        Misses found, least{1000, 0}, at;
        const Timing timing = leastMisses(day.clock(), day.route(), maxMinutes, found);
        day.eachStart([&](double start) {
            day.at(start, maxMinutes, at);
            if (at.count < least.count || (at.count == least.count && at.excess < least.excess)) least = at;
        });
        ASSERT_EQ(found.count, least.count) << "day " << trial;
        ASSERT_NEAR(found.excess, least.excess, 1E-05) << "day " << trial;
        day.at(timing.start + 1E-08, maxMinutes, at);
        Misses before;
        day.at(timing.start, maxMinutes, before);
        ASSERT_EQ(std::min(at.count, before.count), least.count) << "day " << trial;
    }
}

} // namespace
} // namespace vantore::optmzr::tests
