#include "desktop/report_view.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class ReportViewTest : public testing::Test {
  protected:
    void add(const std::string& text, const Font& font, int colour = 0) {
        form.report.add({text, font, colour});
        open.window.refresh();
    }

    SampleForm form;
    OpenWindow<SampleForm> open{form};
    ReportBox& box = open.widget<ReportBox>(form.report);
    const Font title{"Arial", 12, false};
    const Font body{"Courier New", 9, false};
};

TEST_F(ReportViewTest, EachLineHasItsOwnFontAndColour) {
    add("RESULTS", title, colour::lightBlue);
    add("", body);
    add("Total      1,234.50", body);
    ASSERT_EQ(box.document()->blockCount(), 3);
    const QTextBlock first = box.document()->firstBlock();
    const QTextBlock last = box.document()->lastBlock();
    const QFont lastFont = last.begin().fragment().charFormat().font();
    EXPECT_EQ(first.text(), "RESULTS");
    EXPECT_EQ(first.begin().fragment().charFormat().foreground().color(), QColor(0, 0, 255));
    EXPECT_EQ(first.begin().fragment().charFormat().font().family(), "Arial");
    EXPECT_EQ(last.text(), "Total      1,234.50");
    EXPECT_EQ(lastFont.resolve(box.document()->defaultFont()).family(), "Courier New");
}

TEST_F(ReportViewTest, ANewReportTakesTheOldOnesPlace) {
    add("first", title);
    add("second", body);
    form.report.clear();
    add("other", title);
    EXPECT_EQ(box.toPlainText(), "other");
}

TEST_F(ReportViewTest, LongLinesAreNotWrapped) {
    add(std::string(200, 'x'), body);
    EXPECT_EQ(box.document()->firstBlock().layout()->lineCount(), 1);
    EXPECT_GT(box.horizontalScrollBar()->maximum(), 0);
}

TEST_F(ReportViewTest, AnEqualNumberOfOtherLinesIsSeenAsAChange) {
    add("cost 10", body);
    form.report.clear();
    add("cost 11", body);
    EXPECT_EQ(box.toPlainText(), "cost 11");
}

TEST_F(ReportViewTest, MarkedTextIsCopiedElseControlCIsTheWindows) {
    add("RESULTS", title);
    add("Total", body);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(form.log, "interrupted ");
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "RESULTS\nTotal");
    EXPECT_EQ(form.log, "interrupted ");
}

TEST_F(ReportViewTest, LinesThatAreAddedFollowTheOthers) {
    add("RESULTS", title);
    add("one", body);
    add("two", body);
    EXPECT_EQ(box.toPlainText(), "RESULTS\none\ntwo");
}

TEST_F(ReportViewTest, AHundredThousandLinesAreShownInSeconds) {
    QElapsedTimer timer;
    timer.start();
    form.report.add({"RESULTS", title});
    for (int i = 0; i < 100000; ++i) form.report.add({std::string(80, 'x'), body});
    form.report.add({std::string(10000, 'y'), body});
    open.window.refresh();
    QApplication::processEvents();
    open.window.grab();
    EXPECT_LT(timer.elapsed(), 8000);
    timer.start();
    open.window.refresh();
    EXPECT_LT(timer.elapsed(), 200) << "nothing has changed";
}

TEST_F(ReportViewTest, NothingCanBeTyped) {
    add("RESULTS", title);
    box.setFocus();
    QTest::keyClicks(&box, "abc");
    EXPECT_EQ(box.toPlainText(), "RESULTS");
}

} // namespace
} // namespace vantore::tests
