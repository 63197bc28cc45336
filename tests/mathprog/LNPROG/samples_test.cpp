#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "mathprog/LNPROG/method.h"
#include "shell/base/text_file.h"

namespace vantore::lnprog {
namespace {

/// A sample problem, what it costs at best and the levels of its first variables there, as GLPK 5.0 has them.
struct Sample {
    std::string name;
    double optimum;
    std::vector<double> levels;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

class Samples : public testing::TestWithParam<Sample> {};

TEST_P(Samples, HaveTheOptimumOfAnotherSolver) {
    const Sample& sample = GetParam();
    const auto path = std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / (sample.name + ".dat");
    ItemReader reader(readTextFile(path));
    Simplex simplex;
    ASSERT_TRUE(std::holds_alternative<Optimal>(solve(simplex, read(reader))));
    EXPECT_NEAR(-simplex.tableau(simplex.objectiveRow(), 1), sample.optimum, 1E-6);
    int variable = 0;
    for (const double expected : sample.levels) {
        const auto row = basicRow(simplex, ++variable);
        EXPECT_NEAR(row ? simplex.tableau(*row, 1) : 0, expected, .001) << "variable " << variable;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, Samples,
    testing::Values(Sample{"FLP01", -16650, {0, 150, 150, 200, 0}},
                    Sample{"FLP02", 199.665921384, {577.306, 0, 173.198, 80.7624, 150, 0, 18.7338}},
                    Sample{"FLP03",
                           418800,
                           {2400, 2400, 2400, 2400, 2400, 2400, 0, 0, 500, 500, 0, 100, 1800, 1200, 900, 0,
                            200, 500}}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace vantore::lnprog
