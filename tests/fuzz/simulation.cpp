#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "simulator/SCSIM/method.h"
#include "simulator/SCSIM/report.h"

namespace {

using namespace vantore;
using namespace vantore::scsim;

constexpr std::size_t levelLines = 375; // lines before those of the levels

/// The bytes are the lines of the levels on, behind a plain start; those that hold many lines are a whole
/// file.
std::string fileFrom(const std::string& bytes) {
    if (lines(bytes).size() > levelLines) return bytes;
    std::string file = "\"F\"\r\n1,1,100,20,5,10\r\n";
    for (int month = 1; month <= monthsPerYear; ++month) file += "1\r\n";
    file += "5\r\n";
    for (int day = 1; day <= daysPerYear; ++day) file += std::to_string(50 + day % 7) + "\r\n";
    return file + bytes;
}

void require(bool holds) {
    if (!holds) std::abort();
}

/// No figure is infinite or no number.
void checkFigures(const RunFigures& figures) {
    for (const Level level : allLevels) {
        const LevelDays& at = figures.days.levels(level);
        for (int day = firstDay; day <= daysPerYear; ++day)
            for (const DaySeries* series :
                 {&at.onHand, &at.backOrders, &at.onOrder, &at.salesForecast, &at.receipts})
                require(std::isfinite((*series)(day)));
    }
}

void simulateAndReport(const Problem& problem) {
    static RunFigures figures;
    UniformGenerator uniforms;
    int questions = 0;
    const Answers answers = {
        [&](const ForecastQuestion&) { return static_cast<double>(++questions * 7 % 150); },
        [](const OrdersQuestion&) { return false; }};
    try {
        simulate(problem, uniforms, answers, {}, figures);
        checkFigures(figures);
        for (const Subject subject : {Subject::Channel, Subject::Retailer, Subject::Distributor,
                                      Subject::Warehouse, Subject::Factory})
            reportOf(problem, figures.days, subject, {1, 1});
    } catch (const RuntimeError&) {
        // An error that the user is told.
    }
}

} // namespace

/// Reads a problem file from any bytes, writes it and reads it again: it must be the same. Then simulates a
/// year of it, which must end, with both kinds of demand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Problem problem;
    try {
        ItemReader reader(decoded(fileFrom({reinterpret_cast<const char*>(data), size})));
        problem = read(reader);
    } catch (const RuntimeError&) {
        return 0;
    }
    ItemWriter writer;
    write(problem, writer);
    ItemReader reader(writer.text());
    ItemWriter again;
    write(read(reader), again);
    require(again.text() == writer.text());
    problem = withinLimits(problem);
    problem.years = 1;
    for (const DemandSource source : {DemandSource::Generated, DemandSource::Specified}) {
        problem.demandSource = source;
        simulateAndReport(problem);
    }
    return 0;
}
