#include <gtest/gtest.h>

#include "shell/base/table.h"

namespace vantore {
namespace {

TEST(Table, ChecksItsBoundsOnEveryAccess) {
    Table<double, 1, 3> table;
    table(1) = 4;
    table(3) = 6;
    EXPECT_EQ(table(1) + table(2) + table(3), 10);
    EXPECT_THROW(table(0), RuntimeError);
    EXPECT_THROW(table(4), RuntimeError);
}

TEST(Table2, ChecksBothBoundsAndGivesItsRows) {
    Table2<int, 0, 2, 1, 4> table;
    table(2, 4) = 7;
    EXPECT_EQ(table.row(2)[3], 7);
    EXPECT_THROW(table(3, 1), RuntimeError);
    EXPECT_THROW(table(0, 0), RuntimeError);
    EXPECT_THROW(table.row(-1), RuntimeError);
}

} // namespace
} // namespace vantore
