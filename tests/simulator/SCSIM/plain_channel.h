#pragma once

#include <array>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include "simulator/SCSIM/problem.h"

namespace vantore::tests {

/// The channel once more, as plainly as it can be told: arrays by day, one loop, no types of its own but
/// this. The record is read from the module, nothing else is.
class PlainChannel {
  public:
    /// Forecasts are taken from `forecasts` in turn; when there are none left the run stops. The question
    /// about many orders is answered with No.
    PlainChannel(const scsim::Problem& problem, std::deque<double> forecasts);

    /// 0 when it ended, 1 when it stopped, else the number of the error.
    int run();

    /// Day by day, the 26 figures of the trace.
    std::vector<std::array<double, 26>> trace;

    /// What the boxes show in the end, by level: Q, ROP, T, Max; a negative figure where none was calculated.
    double shown[3][4];

    /// The lines of a report: 0 the channel, 1 to 3 the levels, 4 the factory.
    std::vector<std::string> report(int what, int fromYear, int toYear) const;

    int uniformsDrawn = 0;

    static constexpr int size = 9361;
    using Series = std::vector<double>;
    Series custDemand, due[3], receipts[3], filled[3], onHand[3], backOrders[3], onOrder[3], stockOut[3],
        forecast[3], ordered[3], orderCount[3], production;

  private:
    double uniform();
    double random(double mean, double sd);
    void demGen();
    void forecastOf(int k, int d);
    bool nextAnswer(double& answer);
    void stepA(int k, int d, int transit);
    void stepB(int k, int d);
    bool guard(int k);
    void order(int k, int d, double q);
    void zTable();
    double quantity(int k, int d);
    void reviewCalculated(int k, int d);
    double sum(const Series& series, int fromYear, int toYear) const;
    void figure(std::string& line, double value, int decimals, const char* before, const char* behind,
                std::size_t end) const;
    void row(std::vector<std::string>& lines, double yearly, int yearlyDecimals, double period,
             const char* sign, const std::string& label) const;
    std::vector<std::string> levelReport(int k, int fromYear, int toYear) const;

    const scsim::Problem& p;
    std::deque<double> answers;
    std::mt19937 twister;
    double carrying[3], item[3];
    double inv[3], back[3], onOrd[3], demandSd[3], nextReview[3], t[3], maximum[3];
    long counter[3], limit[3];
    double safetyZ, lossTarget, prodDraw, accumDemand;
    int forecastCount;
    bool stop;
};

} // namespace vantore::tests
