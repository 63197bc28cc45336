#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class DrawingViewTest : public testing::Test {
  protected:
    QColor pixel(int x, int y) { return paper.grab().toImage().pixelColor(x, y); }

    void turn(int eighths) {
        QWheelEvent wheel({50, 50}, paper.mapToGlobal(QPoint(50, 50)), {}, {0, eighths}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&paper, &wheel);
    }

    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&paper, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, paper.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&paper, &move);
        QTest::mouseRelease(&paper, Qt::LeftButton, {}, to);
    }

    SampleForm form;
    OpenWindow<SampleForm> open{form};
    QWidget& paper = open.widget(form.surface);
};

TEST_F(DrawingViewTest, WhatIsDrawnAndWipedIsSeen) {
    form.surface.box(0, 0, 299, 199, 12, true);
    open.window.refresh();
    EXPECT_EQ(pixel(100, 100), QColor(255, 0, 0));
    form.surface.clear();
    open.window.refresh();
    EXPECT_EQ(pixel(100, 100), QColor(Qt::white));
}

TEST_F(DrawingViewTest, ALargerWindowShowsASurfaceLarger) {
    form.surface.box(100, 100, 299, 199, 12, true);
    open.window.resize(1280, 960);
    EXPECT_GT(paper.width(), 450);
    EXPECT_EQ(pixel(paper.width() - 30, paper.height() / 2 + 40), QColor(255, 0, 0));
    EXPECT_EQ(pixel(110, 110), QColor(Qt::white)) << "the box begins at a third of the paper";
}

TEST_F(DrawingViewTest, ASurfaceIsShownWholeInAWindowOfAnotherShape) {
    form.surface.box(0, 190, 299, 199, 12, true);
    open.window.resize(1280, 480);
    bool seen = false;
    for (int y = 0; y < paper.height(); ++y) seen = seen || pixel(20, y) == QColor(255, 0, 0);
    EXPECT_TRUE(seen) << "what stands at its foot";
    form.surface.clear();
    form.surface.box(290, 0, 299, 199, 12, true);
    open.window.resize(640, 960);
    seen = false;
    for (int x = 0; x < paper.width(); ++x) seen = seen || pixel(x, 20) == QColor(255, 0, 0);
    EXPECT_TRUE(seen) << "what stands at its right";
}

TEST_F(DrawingViewTest, TheWheelZoomsByNotches) {
    std::string told;
    form.surface.onZoom = [&](int steps) { told += std::to_string(steps) + " "; };
    turn(120);
    turn(-240);
    turn(60);
    EXPECT_EQ(told, "1 -2 ");
    turn(60);
    EXPECT_EQ(told, "1 -2 1 ");
}

TEST_F(DrawingViewTest, DraggingMovesThePlotByStepsOf25) {
    std::string told;
    form.surface.onPan = [&](int right, int down) {
        told += std::to_string(right) + "," + std::to_string(down) + " ";
    };
    drag({100, 100}, {160, 70});
    EXPECT_EQ(told, "2,-1 ");
    drag({100, 100}, {110, 110});
    EXPECT_EQ(told, "2,-1 ") << "not yet a step";
}

TEST_F(DrawingViewTest, OtherDrawingsTakeNoWheelAndNoDrag) {
    turn(120);
    drag({100, 100}, {160, 70});
    EXPECT_EQ(form.log, "");
}

TEST_F(DrawingViewTest, ATextThatIsCutComesWholeAsATip) {
    form.surface.moveTo(20, 40);
    form.surface.print(std::string(100, 'x'));
    open.window.refresh();
    paper.grab();
    QHelpEvent help(QEvent::ToolTip, {30, 45}, paper.mapToGlobal(QPoint(30, 45)));
    QApplication::sendEvent(&paper, &help);
    EXPECT_EQ(QToolTip::text(), "<qt>" + QString(100, 'x') + "</qt>");
}

} // namespace
} // namespace vantore::tests
