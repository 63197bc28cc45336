#include "shell/base/solver_progress.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

TEST(SolverProgress, IsTheLineThatWasWrittenLast) {
    const TemporaryFolder folder;
    EXPECT_EQ(readProgress(folder.path()), "");
    writeProgress(folder.path(), "Best plan so far: 9 routes, cost $120.00.");
    writeProgress(folder.path(), "Best plan so far: 8 routes, cost $99.50.");
    EXPECT_EQ(readProgress(folder.path()), "Best plan so far: 8 routes, cost $99.50.");
    removeProgress(folder.path());
    EXPECT_EQ(readProgress(folder.path()), "");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(SolverProgress, IsPassedOverWhereItCannotBeWritten) {
    const std::filesystem::path nowhere = "/nowhere/at/all";
    writeProgress(nowhere, "Best plan so far: 9 routes, cost $120.00.");
    EXPECT_EQ(readProgress(nowhere), "");
    removeProgress(nowhere);
}

} // namespace
} // namespace vantore::tests
