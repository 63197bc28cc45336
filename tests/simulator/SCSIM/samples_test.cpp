#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "tests/simulator/SCSIM/scsim_window.h"

namespace vantore::tests {
namespace {

using namespace scsim;

std::string sample(const std::string& name) {
    return readTextFile(pathOf(std::string(VANTORE_SOURCE_FOLDER) + "/install/" + name));
}

double spreadOf(const std::vector<double>& values) {
    double total = 0, squares = 0;
    for (const double value : values) {
        total += value;
        squares += value * value;
    }
    const auto count = static_cast<double>(values.size());
    return squares / count - total / count * (total / count);
}

TEST(ScsimSamples, SwingMoreAndMoreUpTheChannel) {
    ModuleSession session;
    session.writeFile("SIM03.dat", sample("SIM03.dat"));
    session.open("SCSIM", "SIM03.dat", "OpenF");
    session.play("press Solve");
    constexpr std::array<std::size_t, 4> demandsInTrace = {1, 9, 16, 23};
    std::array<std::vector<double>, 4> demands;
    const std::vector<std::string> trace = traceOf(session);
    for (std::size_t i = 2; i < trace.size(); ++i) {
        ItemReader reader(trace[i]);
        for (std::size_t column = 0; column < 26; ++column) {
            const double value = reader.readNumber();
            for (std::size_t k = 0; k < 4; ++k)
                if (column == demandsInTrace.at(k)) demands.at(k).push_back(value);
        }
    }
    ASSERT_EQ(demands[0].size(), 4U * 360U);
    for (std::size_t k = 1; k < 4; ++k)
        EXPECT_GT(spreadOf(demands.at(k)), 2 * spreadOf(demands.at(k - 1))) << k;
}

TEST(ScsimSamples, AreReadAndRunWhole) {
    for (const char* name : {"SIM01.dat", "SIM02.dat", "SIM03.dat"}) {
        ModuleSession session;
        session.writeFile(name, sample(name));
        session.open("SCSIM", name, "OpenF");
        EXPECT_EQ(session.play("tab 0\npress optSpecDem\npress Solve\npress optGenDem\npress Solve"), "");
        session.play(std::string("file ") + name + "\npress Save");
        EXPECT_EQ(lines(session.readFile(name)).size(), 389U);
    }
}

} // namespace
} // namespace vantore::tests
