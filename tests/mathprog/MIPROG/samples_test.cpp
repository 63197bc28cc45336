#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// A sample and its optimum, as GLPK 5.0 finds it too.
struct Sample {
    const char* file;
    double optimum;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.file;
}

class MiprogSample : public testing::TestWithParam<Sample> {
  protected:
    static std::string content(const std::string& name) {
        std::ifstream file(VANTORE_SOURCE_FOLDER "/install/" + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_P(MiprogSample, IsWrittenAsTheModuleWritesIt) {
    ModuleSession session;
    session.writeFile(GetParam().file, content(GetParam().file));
    session.open("MIPROG", GetParam().file);
    session.play("file ILPCOPY.dat\npress cmdSave");
    EXPECT_EQ(session.readFile("ILPCOPY.dat"), content(GetParam().file));
}

TEST_P(MiprogSample, HasTheOptimumThatAnotherSolverFinds) {
    ModuleSession session;
    std::filesystem::create_symlink(MIP_PROGRAM, session.installFolder() / "MIP.EXE");
    session.writeFile(GetParam().file, content(GetParam().file));
    session.open("MIPROG", GetParam().file);
    session.play("answer Yes\npress cmdSolve");
    const std::vector<std::string> report = session.report();
    EXPECT_EQ(report.at(1), "STATUS: OPTIMAL");
    const std::string label = "Objective value ";
    const auto line = std::find_if(report.begin(), report.end(),
                                   [&](const std::string& text) { return text.starts_with(label); });
    ASSERT_NE(line, report.end());
    EXPECT_NEAR(val(replaced(line->substr(label.size()), ",", "")), GetParam().optimum, 1E-06);
}

INSTANTIATE_TEST_SUITE_P(Install, MiprogSample,
                         testing::Values(Sample{"ILP01.dat", 16393.65}, // furniture in whole units
                                         Sample{"ILP02.dat", 554},      // capital budgeting
                                         Sample{"ILP03.dat", 57175}),   // fixed-charge location
                         [](const auto& info) { return std::string(info.param.file).substr(0, 5); });

} // namespace
} // namespace vantore::tests
