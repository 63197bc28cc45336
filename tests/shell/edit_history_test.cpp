#include <gtest/gtest.h>

#include "shell/forms/edit_history.h"

namespace vantore {
namespace {

TEST(EditHistory, MayBeClearedByWhatItPutsBack) {
    EditHistory history;
    TextBox size("txtRows");
    size.setText("2");
    history.record({.box = &size, .before = "3", .after = "2"});
    size.onChange = [&history] { history.clear(); };
    history.undo();
    EXPECT_EQ(size.text(), "3");
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
}

} // namespace
} // namespace vantore
