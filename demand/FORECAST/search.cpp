#include "demand/FORECAST/search.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace vantore::forecast {

namespace {

constexpr int wholeConstant = 100; // hundredths

/// Combinations that run side by side: enough to keep the divider busy while each waits for its last level.
constexpr std::size_t lanes = 16;
using Lanes = std::array<double, lanes>;

/// A constant, and what it leaves to the past, lane by lane.
struct Weights {
    Lanes own{}, rest{};

    void set(std::size_t lane, double constant) {
        own[lane] = constant;
        rest[lane] = 1 - constant;
    }
};

struct LaneConstants {
    Weights level, trend, seasonal;
};

/// What all combinations of a search share.
struct Shared {
    std::span<const double> y; ///< period 1 is y[0]
    long long initialPeriods = 0;
    long long dataPeriods = 0;
    long long firstCounted = 0;  ///< first period whose error counts
    double start = 0;            ///< the first level, or the first forecast of the model of level only
    double trend = 0;            ///< the first trend
    std::vector<double> indices; ///< the last season of the initial periods, as far as the data reach
};

/// What a group of combinations ends in.
struct LaneOutcome {
    Lanes squared{};
    Lanes trouble{}; ///< 0, or not a number where any value of the lane wasn't finite
};

/// Adds 0 for finite values and what is not a number for all others. Once there it stays.
[[gnu::always_inline]] inline void notice(Lanes& trouble, const Lanes& values) {
    for (std::size_t i = 0; i < lanes; ++i) trouble[i] += values[i] * 0;
}

/// The state of the lanes from period to period, and the recursion with the operations of `fit` in the
/// same order. `levels` are the forecasts of the period before in the model of level only.
struct LaneState {
    Lanes levels{}, trends{}, errors{};

    [[gnu::always_inline]] inline void levelOnly(const LaneConstants& c, double before, double y) {
        for (std::size_t i = 0; i < lanes; ++i) {
            levels[i] = c.level.own[i] * before + c.level.rest[i] * levels[i];
            errors[i] = y - levels[i];
        }
    }

    [[gnu::always_inline]] inline void levelTrend(const LaneConstants& c, double y) {
        for (std::size_t i = 0; i < lanes; ++i) {
            const double expected = levels[i] + trends[i];
            const double level = c.level.own[i] * y + c.level.rest[i] * expected;
            trends[i] = c.trend.own[i] * (level - levels[i]) + c.trend.rest[i] * trends[i];
            levels[i] = level;
            errors[i] = y - expected;
        }
    }

    [[gnu::always_inline]] inline void levelSeasonal(const LaneConstants& c, Lanes& indices, double y) {
        for (std::size_t i = 0; i < lanes; ++i) {
            const double index = indices[i];
            const double level = c.level.own[i] * y / index + c.level.rest[i] * levels[i];
            errors[i] = y - levels[i] * index;
            indices[i] = c.seasonal.own[i] * y / level + c.seasonal.rest[i] * index;
            levels[i] = level;
        }
    }

    [[gnu::always_inline]] inline void levelTrendSeasonal(const LaneConstants& c, Lanes& indices, double y) {
        for (std::size_t i = 0; i < lanes; ++i) {
            const double index = indices[i];
            const double expected = levels[i] + trends[i];
            const double level = c.level.own[i] * y / index + c.level.rest[i] * expected;
            errors[i] = y - expected * index;
            indices[i] = c.seasonal.own[i] * y / level + c.seasonal.rest[i] * index;
            trends[i] = c.trend.own[i] * (level - levels[i]) + c.trend.rest[i] * trends[i];
            levels[i] = level;
        }
    }
};

template <Model model>
[[gnu::always_inline]] inline void step(LaneState& state, const LaneConstants& c, Lanes& indices,
                                        const Shared& shared, long long t) {
    const double y = shared.y[static_cast<std::size_t>(t - 1)];
    if constexpr (model == Model::Level) state.levelOnly(c, shared.y[static_cast<std::size_t>(t - 2)], y);
    if constexpr (model == Model::LevelTrend) state.levelTrend(c, y);
    if constexpr (model == Model::LevelSeasonal) state.levelSeasonal(c, indices, y);
    if constexpr (model == Model::LevelTrendSeasonal) state.levelTrendSeasonal(c, indices, y);
}

/// Runs a group of combinations from its first period to its last. `season` is room for the indices of one
/// season, used round and round.
template <Model model>
[[gnu::always_inline]] inline void runLanes(const Shared& shared, const LaneConstants& constants,
                                            std::vector<Lanes>& season, LaneOutcome& outcome) {
    const LaneConstants c = constants;
    LaneState state;
    Lanes squared{}, trouble{};
    state.levels.fill(shared.start);
    state.trends.fill(shared.trend);
    for (std::size_t i = 0; i < shared.indices.size(); ++i) season[i].fill(shared.indices[i]);
    if constexpr (model == Model::Level)
        for (long long t = 2; t <= shared.initialPeriods; ++t) step<model>(state, c, season[0], shared, t);
    std::size_t at = 0;
    for (long long t = shared.initialPeriods + 1; t <= shared.dataPeriods; ++t) {
        step<model>(state, c, season[at], shared, t);
        if (t < shared.firstCounted)
            notice(trouble, state.errors);
        else
            for (std::size_t i = 0; i < lanes; ++i) squared[i] += state.errors[i] * state.errors[i];
        if (++at >= shared.indices.size()) at = 0;
    }
    for (std::size_t i = 0; i < shared.indices.size(); ++i) notice(trouble, season[i]);
    notice(trouble, state.levels);
    notice(trouble, state.trends);
    notice(trouble, squared);
    outcome.squared = squared;
    outcome.trouble = trouble;
}

using Runner = void (*)(const Shared&, const LaneConstants&, std::vector<Lanes>&, LaneOutcome&);

template <Model model>
void run(const Shared& shared, const LaneConstants& c, std::vector<Lanes>& season, LaneOutcome& outcome) {
    runLanes<model>(shared, c, season, outcome);
}

// The same code for wider vectors where the machine has them. Windows doesn't align its stack for them.
#if defined(__x86_64__) && !defined(_WIN32)
template <Model model>
[[gnu::target("avx2")]] void runWide(const Shared& shared, const LaneConstants& c, std::vector<Lanes>& season,
                                     LaneOutcome& outcome) {
    runLanes<model>(shared, c, season, outcome);
}

template <Model model>
Runner runner() {
    return __builtin_cpu_supports("avx2") ? runWide<model> : run<model>;
}
#else
template <Model model>
Runner runner() {
    return run<model>;
}
#endif

Runner runnerFor(Model model) {
    switch (model) {
    case Model::LevelTrend: return runner<Model::LevelTrend>();
    case Model::LevelSeasonal: return runner<Model::LevelSeasonal>();
    case Model::LevelTrendSeasonal: return runner<Model::LevelTrendSeasonal>();
    default: return runner<Model::Level>();
    }
}

/// `series` has been fitted, so that its initial components stand and its periods lie within the tables.
Shared sharedOf(const Series& series, const Setting& setting) {
    Shared shared;
    shared.y = series.y.span();
    shared.initialPeriods = setting.initialPeriods;
    shared.dataPeriods = setting.dataPeriods;
    shared.firstCounted = setting.dataPeriods + 1;
    while (shared.firstCounted > setting.initialPeriods + 1 && setting.counts(shared.firstCounted - 1))
        --shared.firstCounted;
    if (setting.model == Model::Level) {
        shared.start = series.fitted(1);
        return shared;
    }
    shared.start = series.level(setting.initialPeriods);
    shared.trend = series.trend(setting.initialPeriods);
    if (!smoothsSeasons(setting.model)) return shared;
    const long long reach = std::min(setting.seasonalLength, setting.dataPeriods - setting.initialPeriods);
    for (long long i = 1; i <= reach; ++i)
        shared.indices.push_back(series.seasonal(setting.initialPeriods - setting.seasonalLength + i));
    return shared;
}

/// The search itself, group by group in the order of the combinations.
class GroupSearch {
  public:
    GroupSearch(const Series& series, const Setting& setting, const ConstantGrid& grid)
        : series_(series), setting_(setting), grid_(grid), shared_(sharedOf(series, setting)),
          run_(runnerFor(setting.model)), season_(std::max<std::size_t>(shared_.indices.size(), 1)) {}

    Best best() {
        for (int first = 0; first < grid_.size(); first += static_cast<int>(lanes)) runGroup(first);
        return best_;
    }

  private:
    void runGroup(int first) {
        const int count = std::min(static_cast<int>(lanes), grid_.size() - first);
        for (std::size_t i = 0; i < lanes; ++i)
            setLane(i, grid_.at(first + std::min(static_cast<int>(i), count - 1)));
        run_(shared_, constants_, season_, outcome_);
        for (int i = 0; i < count; ++i) take(first + i, static_cast<std::size_t>(i));
    }

    void setLane(std::size_t lane, const Hundredths& hundredths) {
        const Constants c = inUse(hundredths);
        constants_.level.set(lane, c.level);
        constants_.trend.set(lane, c.trend);
        constants_.seasonal.set(lane, c.seasonal);
    }

    void take(int combination, std::size_t lane) {
        double squared = outcome_.squared[lane];
        if (outcome_.trouble[lane] != 0) {
            Series own = series_;
            squared = fit(own, setting_, inUse(grid_.at(combination))).squared;
            ++best_.redone;
        }
        if (squared >= best_.squared) return;
        best_.hundredths = grid_.at(combination);
        best_.squared = squared;
    }

    const Series& series_;
    const Setting& setting_;
    const ConstantGrid& grid_;
    Shared shared_;
    Runner run_;
    std::vector<Lanes> season_;
    LaneConstants constants_;
    LaneOutcome outcome_;
    Best best_;
};

} // namespace

Constants inUse(const Hundredths& hundredths) {
    const auto constant = [](int value) {
        return static_cast<double>(value == 0 ? .01F : static_cast<float>(value) / wholeConstant);
    };
    return {constant(hundredths[0]), constant(hundredths[1]), constant(hundredths[2])};
}

ConstantGrid::ConstantGrid(Model model, int increment) : increment_(increment) {
    if (increment < 1) return;
    const int values = wholeConstant / increment + 1;
    counts_ = {values, hasTrend(model) ? values : 1, smoothsSeasons(model) ? values : 1};
}

Hundredths ConstantGrid::at(int combination) const {
    const int beyondSeasonal = combination / counts_[2];
    return {beyondSeasonal / counts_[1] * increment_, beyondSeasonal % counts_[1] * increment_,
            combination % counts_[2] * increment_};
}

Best search(Series& series, const Setting& setting, const ConstantGrid& grid) {
    if (grid.size() == 0) return {};
    // What is wrong with every combination is told by the first.
    fit(series, setting, inUse(grid.at(0)));
    const Best best = GroupSearch(series, setting, grid).best();
    fit(series, setting, inUse(grid.at(grid.size() - 1)));
    return best;
}

} // namespace vantore::forecast
