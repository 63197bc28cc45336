#include "tests/demand/FORECAST/plain_loops.h"

#include <cmath>

#include "shell/base/arithmetic.h"

namespace vantore::forecast::tests {

namespace {

struct Loops {
    explicit Loops(const Problem& problem)
        : model(problem.model == Model::None ? Model::Level : problem.model), n(problem.dataPeriods),
          N(static_cast<long long>(problem.initialPeriods)), E(problem.errorPeriods),
          L(static_cast<long long>(problem.seasonalLength)),
          f(problem.forecastPeriods == 0 ? 1 : static_cast<long long>(problem.forecastPeriods)) {
        for (int t = 1; t <= n; ++t) s.y(t) = problem.periods(t).value;
    }

    void initialise() {
        double sumY = 0, sumT = 0, sumTY = 0, sumTT = 0;
        for (long long t = 1; t <= N; ++t) {
            const auto d = static_cast<double>(t);
            sumY = finite(sumY + s.y(t));
            sumT += d;
            sumTY = finite(sumTY + d * s.y(t));
            sumTT += d * d;
        }
        const auto count = static_cast<double>(N);
        const double ybar = divide(sumY, count);
        if (model == Model::Level) {
            s.fitted(1) = ybar;
            for (long long t = 2; t <= N; ++t)
                s.fitted(t) = finite(alpha * s.y(t - 1) + (1 - alpha) * s.fitted(t - 1));
            return;
        }
        double b = 0;
        if (model == Model::LevelTrend || model == Model::LevelTrendSeasonal)
            b = divide(finite(sumTY - divide(sumT, count) * ybar * count),
                       sumTT - divide(sumT, count) * divide(sumT, count) * count);
        if (model == Model::LevelTrend) {
            s.trend(N) = b;
            s.level(N) = finite(ybar + b * (count - 1) / 2);
            s.level(N - 1) = finite(ybar + b * ((count - 1) / 2 - 1));
            return;
        }
        if (model == Model::LevelTrendSeasonal) s.trend(N) = b;
        double season = 0;
        for (long long t = N - L + 1; t <= N; ++t) season = finite(season + s.y(t));
        double s0 = divide(season, static_cast<double>(L));
        if (model == Model::LevelTrendSeasonal) s0 = finite(s0 + b * static_cast<double>(L - 1) / 2);
        for (long long t = N - L; t <= N; ++t)
            s.seasonal(t) = model == Model::LevelSeasonal
                                ? divide(s.y(t), s0)
                                : divide(s.y(t), finite(s0 - b * static_cast<double>(N - t)));
        if (model == Model::LevelSeasonal) {
            s.level(N) = divide(ybar, s.seasonal(N));
            s.level(N - 1) = divide(ybar, s.seasonal(N - 1));
        } else {
            s.level(N) = divide(finite(ybar + b * (count - 1) / 2), s.seasonal(N));
            s.level(N - 1) = divide(finite(ybar + b * ((count - 1) / 2 - 1)), s.seasonal(N - 1));
        }
    }

    void period(long long t, bool future) {
        auto& y = s.y;
        auto& level = s.level;
        auto& trend = s.trend;
        auto& seas = s.seasonal;
        auto& fcst = s.fitted;
        if (model == Model::Level) {
            fcst(t) = finite(alpha * y(t - 1) + (1 - alpha) * fcst(t - 1));
            if (future) y(t) = fcst(t);
        }
        if (model == Model::LevelTrend) {
            fcst(t) = finite(level(t - 1) + trend(t - 1));
            if (future) y(t) = fcst(t);
            level(t) = finite(alpha * y(t) + (1 - alpha) * (level(t - 1) + trend(t - 1)));
            trend(t) = finite(beta * (level(t) - level(t - 1)) + (1 - beta) * trend(t - 1));
        }
        if (model == Model::LevelSeasonal) {
            fcst(t) = finite(level(t - 1) * seas(t - L));
            if (future) y(t) = fcst(t);
            level(t) = finite(divide(finite(alpha * y(t)), seas(t - L)) + (1 - alpha) * level(t - 1));
            seas(t) = finite(divide(finite(gamma * y(t)), level(t)) + (1 - gamma) * seas(t - L));
        }
        if (model == Model::LevelTrendSeasonal) {
            fcst(t) = finite((level(t - 1) + trend(t - 1)) * seas(t - L));
            if (future) y(t) = fcst(t);
            level(t) = finite(divide(finite(alpha * y(t)), seas(t - L)) +
                              (1 - alpha) * (level(t - 1) + trend(t - 1)));
            seas(t) = finite(divide(finite(gamma * y(t)), level(t)) + (1 - gamma) * seas(t - L));
            trend(t) = finite(beta * (level(t) - level(t - 1)) + (1 - beta) * trend(t - 1));
        }
    }

    void combination() {
        initialise();
        for (long long t = N + 1; t <= n; ++t) period(t, false);
        sumError = sumAbsolute = sumSquared = 0;
        for (long long t = N + 1; t <= n; ++t) {
            s.error(t) = finite(s.y(t) - s.fitted(t));
            if (!(static_cast<double>(t) > static_cast<double>(n) - E)) continue;
            sumError = finite(sumError + s.error(t));
            sumAbsolute = finite(sumAbsolute + std::abs(s.error(t)));
            sumSquared = finite(sumSquared + s.error(t) * s.error(t));
        }
    }

    static double inUse(int hundredths) {
        const float constant = static_cast<float>(hundredths) / 100.0F;
        return constant == 0 ? .01F : constant;
    }

    struct Range {
        int from, to, step;
    };

    void grid(Range a, Range b, Range g) {
        bestSquared = 1E+38;
        best = {};
        for (int i = a.from; i <= a.to; i += a.step)
            for (int j = b.from; j <= b.to; j += b.step)
                for (int k = g.from; k <= g.to; k += g.step) {
                    alpha = inUse(i);
                    beta = inUse(j);
                    gamma = inUse(k);
                    combination();
                    if (sumSquared < bestSquared) {
                        bestSquared = sumSquared;
                        best = {i, j, k};
                    }
                }
    }

    void searchGrid(double increment) {
        const int step = static_cast<int>(std::nearbyint(100 * (increment == 0 ? .1 : increment)));
        if (step < 1) return;
        const Range all{0, 100, step};
        const Range none{0, 0, 1};
        const bool trend = model == Model::LevelTrend || model == Model::LevelTrendSeasonal;
        const bool seasons = model == Model::LevelSeasonal || model == Model::LevelTrendSeasonal;
        grid(all, trend ? all : none, seasons ? all : none);
    }

    void once(const Hundredths& h) { grid({h[0], h[0], 1}, {h[1], h[1], 1}, {h[2], h[2], 1}); }

    void ahead() {
        for (long long t = n + 1; t <= n + f; ++t) period(t, true);
    }

    Model model;
    long long n, N;
    double E;
    long long L, f;
    Series s;
    double alpha = 0, beta = 0, gamma = 0;
    double sumError = 0, sumAbsolute = 0, sumSquared = 0;
    double bestSquared = 1E+38;
    Hundredths best{};
};

int hundredthsOf(double constant) {
    return static_cast<int>(std::nearbyint(100 * (constant == 0 ? .01 : constant)));
}

} // namespace

PlainResult plainForecast(const Problem& problem) {
    Loops loops(problem);
    PlainResult result;
    Hundredths constants{hundredthsOf(problem.levelConstant), hundredthsOf(problem.trendConstant),
                         hundredthsOf(problem.seasonalConstant)};
    if (problem.searches()) {
        loops.searchGrid(problem.searchIncrement);
        result.best = constants = loops.best;
        result.bestSquared = loops.bestSquared;
        loops.ahead();
    }
    loops.once(constants);
    loops.ahead();
    result.series = loops.s;
    result.constants = {loops.alpha, loops.beta, loops.gamma};
    result.errors.mad = divide(loops.sumAbsolute, loops.E);
    result.errors.bias = divide(loops.sumError, loops.E);
    result.errors.rmse = squareRoot(divide(loops.sumSquared, loops.E));
    return result;
}

Best plainSearch(const Problem& problem) {
    Loops loops(problem);
    loops.searchGrid(problem.searchIncrement);
    return {loops.best, loops.bestSquared};
}

} // namespace vantore::forecast::tests
