#include "shell/windows.h"

#include <gtest/gtest.h>

namespace vantore {
namespace {

class Pane : public Form {
  public:
    Pane() : Form("Pane", {}) {}
    void uncovered() override { ++timesUncovered; }
    int timesUncovered = 0;
};

Pane& openPane(Windows& windows) {
    auto pane = std::make_unique<Pane>();
    Pane& opened = *pane;
    windows.open(std::move(pane));
    return opened;
}

TEST(Windows, DisableTheWindowBehind) {
    Windows windows;
    const Pane& rear = openPane(windows);
    const Pane& front = openPane(windows);
    EXPECT_EQ(windows.front(), &front);
    EXPECT_FALSE(rear.enabled);
    EXPECT_TRUE(front.enabled);
}

TEST(Windows, TellTheOneThatComesToTheFront) {
    Windows windows;
    const Pane& rear = openPane(windows);
    Pane& front = openPane(windows);
    windows.unloadClosed();
    EXPECT_EQ(rear.timesUncovered, 0);
    front.closed = true;
    windows.unloadClosed();
    EXPECT_EQ(windows.front(), &rear);
    EXPECT_TRUE(rear.enabled);
    EXPECT_EQ(rear.timesUncovered, 1);
}

TEST(Windows, MayAllGo) {
    Windows windows;
    openPane(windows).closed = true;
    windows.unloadClosed();
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(windows.front(), nullptr);
}

} // namespace
} // namespace vantore
