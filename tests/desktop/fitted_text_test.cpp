#include "desktop/fitted_text.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

#include "drawing/fonts.h"

namespace vantore::tests {
namespace {

const QFont arial() {
    return qtFont({"Arial", 12, false});
}

double widthOf(const FittedText& text) {
    return QFontMetricsF(text.font).horizontalAdvance(text.text);
}

TEST(FittedText, KeepsItsFontWhereItFits) {
    const FittedText text = fittedText("Solve", arial(), {100, 30}, 0);
    EXPECT_EQ(text.text, "Solve");
    EXPECT_EQ(text.font, arial());
    EXPECT_FALSE(text.cut);
}

TEST(FittedText, IsSmallerByAFifthAtMost) {
    const double whole = widthOf({"Column Arithmetic", arial()});
    const FittedText smaller = fittedText("Column Arithmetic", arial(), {whole * .85, 30}, 0);
    EXPECT_FALSE(smaller.cut);
    EXPECT_LT(smaller.font.pointSizeF(), arial().pointSizeF());
    const FittedText cut = fittedText("Column Arithmetic", arial(), {whole * .5, 30}, 0);
    EXPECT_TRUE(cut.cut);
    EXPECT_NEAR(cut.font.pointSizeF(), .8 * arial().pointSizeF(), .01);
    EXPECT_TRUE(cut.text.startsWith("Colu"));
    EXPECT_TRUE(cut.text.endsWith(QChar(0x2026)));
    EXPECT_LE(widthOf(cut), whole * .5 + 1);
}

TEST(FittedText, InSeveralLinesIsCutWhereTheRoomEnds) {
    const QString words = QString("word ").repeated(100);
    const FittedText cut = fittedText(words, arial(), {100, 40}, Qt::TextWordWrap);
    EXPECT_TRUE(cut.cut);
    EXPECT_GT(cut.text.size(), 20);
    EXPECT_LE(
        QFontMetricsF(cut.font).boundingRect(QRectF(0, 0, 100, 1000), Qt::TextWordWrap, cut.text).height(),
        41);
}

TEST(BreakableText, HasPlacesToBreakAtInWordsThatAreTooWide) {
    const QString path = breakable("to /home/planner/data now", arial(), 60);
    EXPECT_EQ(path, QString::fromUtf8("to /\u200Bhome/\u200Bplanner/\u200Bdata now"));
    EXPECT_EQ(breakable("rows and/or columns", arial(), 200), "rows and/or columns");
    EXPECT_TRUE(breakable(QString(100, 'x'), arial(), 60).contains(QChar(0x200B)));
}

TEST(Tip, ShowsTheTextBeforeWhatElseThereIsToTell) {
    EXPECT_EQ(tipWith("a < b", "Any name"), "<qt>a &lt; b<br>Any name</qt>");
    EXPECT_LT(tipWith(QString(100000, 'x'), {}).size(), 3000);
}

} // namespace
} // namespace vantore::tests
