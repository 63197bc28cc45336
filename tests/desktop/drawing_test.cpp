#include "drawing/drawing.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "drawing/chart_drawing.h"
#include "drawing/drawing_export.h"
#include "drawing/svg_file.h"
#include "shell/base/text_file.h"
#include "tests/desktop/sample_form.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

QColor pixel(const Form& form, const Control& drawing, int x, int y) {
    return imageOf(Drawing(form, drawing), 1).pixelColor(x, y);
}

TEST(Drawing, ShapesLieAtTheirUnitsInTheirColours) {
    SampleForm form;
    form.surface.box(10, 20, 60, 50, 12, true);
    form.surface.circle(150, 100, 20, 9, true);
    form.surface.line(0, 150, 200, 150, 2, 3);
    EXPECT_EQ(pixel(form, form.surface, 30, 30), QColor(255, 0, 0));
    EXPECT_EQ(pixel(form, form.surface, 150, 100), QColor(0, 0, 255));
    EXPECT_EQ(pixel(form, form.surface, 100, 150), QColor(0, 128, 0));
    EXPECT_EQ(pixel(form, form.surface, 250, 30), QColor(Qt::white));
}

TEST(Drawing, LaterOperationsCoverEarlierOnes) {
    SampleForm form;
    form.surface.box(10, 10, 50, 50, 12, true);
    form.surface.box(10, 10, 50, 50, 9, true);
    EXPECT_EQ(pixel(form, form.surface, 30, 30), QColor(0, 0, 255));
}

/// The rows of an image, from the first to the last, that hold a pixel darker than half.
std::pair<int, int> inkedRows(const QImage& image) {
    std::pair<int, int> rows{-1, -1};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) rows = {rows.first < 0 ? y : rows.first, y};
    return rows;
}

TEST(Drawing, ATextsPlaceIsTheTopLeftOfItsFirstCharacter) {
    SampleForm form;
    form.surface.font = {"Arial", 12, false}; // 16 units high
    form.surface.moveTo(20, 40);
    form.surface.print("Xg");
    const auto [first, last] = inkedRows(imageOf(Drawing(form, form.surface), 1));
    EXPECT_GE(first, 40);
    EXPECT_LE(first, 45);
    EXPECT_GE(last, 52);
    EXPECT_LE(last, 60);
}

TEST(Drawing, SvgHoldsTheTextsAndTheViewBox) {
    SampleForm form;
    form.surface.moveTo(20, 40);
    form.surface.print("Total cost < 5 & more");
    const QString svg = QString::fromUtf8(svgOf(Drawing(form, form.surface), "SAMPLE"));
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 300 200\"")) << svg.toStdString();
    EXPECT_TRUE(svg.contains(">Total cost &lt; 5 &amp; more</text>"));
    EXPECT_TRUE(svg.contains("font-family=\"'MS Sans Serif', 'Liberation Sans'"));
}

SampleForm& withChart(SampleForm& form) {
    form.chart.data = {"TIME SERIES DATA",
                       {"Time periods", 1, 24},
                       {"Data values", 0, 220},
                       {{"Data", SeriesKind::Line, 12, {{1, 10}, {12, 110}, {24, 220}}},
                        {"Forecast", SeriesKind::Points, 9, {{1, 20}, {24, 200}}}}};
    return form;
}

TEST(Drawing, AChartShowsTitleLabelsTicksAndLegend) {
    SampleForm form;
    const QString svg = QString::fromUtf8(svgOf(Drawing(form, withChart(form).chart), "SAMPLE"));
    for (const char* text : {">TIME SERIES DATA<", ">Time periods<", ">Data values<", ">Data<", ">Forecast<",
                             ">5<", ">20<", ">200<"})
        EXPECT_TRUE(svg.contains(text)) << text;
    EXPECT_FALSE(svg.contains(">24<")) << "only round ticks";
}

TEST(Drawing, AChartOfOneSeriesNeedsNoLegend) {
    SampleForm form;
    withChart(form).chart.data.series.pop_back();
    EXPECT_FALSE(QString::fromUtf8(svgOf(Drawing(form, form.chart), "SAMPLE")).contains(">Data<"));
}

/// Count of pixels of an image that have exactly this colour.
int pixelsOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

TEST(Drawing, AnEmptyChartHasItsAxesAndNoCurve) {
    SampleForm form;
    form.chart.data.title = "NOTHING YET";
    const QString svg = QString::fromUtf8(svgOf(Drawing(form, form.chart), "SAMPLE"));
    for (const char* text : {">NOTHING YET<", ">0.0<", ">1.0<"}) EXPECT_TRUE(svg.contains(text)) << text;
    EXPECT_EQ(pixelsOf(imageOf(Drawing(form, form.chart), 1), QColor(255, 0, 0)), 0);
}

TEST(Drawing, AChartOfASingleValueShowsItsBar) {
    SampleForm form;
    form.chart.data = {"t", {"x", 3, 3}, {"y", 5, 5}, {{"s", SeriesKind::Bars, 12, {{3, 5}}}}};
    const QString svg = QString::fromUtf8(svgOf(Drawing(form, form.chart), "SAMPLE"));
    for (const char* text : {">3.0<", ">5.0<"}) EXPECT_TRUE(svg.contains(text)) << text;
    form.chart.data.y = {"y", 0, 10};
    EXPECT_GT(pixelsOf(imageOf(Drawing(form, form.chart), 1), QColor(255, 0, 0)), 500);
}

TEST(Drawing, BarsAreAsWideAsTheClosestTwoAllow) {
    const auto inked = [](const ChartAxis& x, const std::vector<ChartPoint>& bars) {
        SampleForm form;
        form.chart.data.x = x;
        form.chart.data.y = {"y", 0, 10};
        form.chart.data.series = {{"s", SeriesKind::Bars, 12, bars}};
        return pixelsOf(imageOf(Drawing(form, form.chart), 1), QColor(255, 0, 0));
    };
    const int two = inked({"x", -1, 2}, {{0, 5}, {1, 5}});
    EXPECT_NEAR(inked({"x", -10, 20}, {{0, 5}, {10, 5}}), two, .03 * two);
    EXPECT_NEAR(inked({"x", -1, 2}, {{0, 5}, {.5, 5}, {1.5, 0}}), two / 2, .03 * two);
}

TEST(Drawing, ATextThatLeavesThePaperIsCutAndKnownWhole) {
    SampleForm form;
    form.surface.moveTo(20, 40);
    form.surface.print("short");
    form.surface.moveTo(20, 80);
    form.surface.print(std::string(400, 'x'));
    const SurfacePage page(form.surface, unitsOf(form, form.surface));
    EXPECT_EQ(page.textAt({25, 45})->painted, "short");
    const PaintedText& cut = *page.textAt({30, 85});
    EXPECT_EQ(cut.whole.size(), 400);
    EXPECT_TRUE(cut.painted.endsWith(QChar(0x2026)));
    EXPECT_LE(cut.place.right(), unitsOf(form, form.surface).width());
    EXPECT_EQ(page.textAt({290, 45}), nullptr);
}

TEST(Drawing, ATextAtTheFootOfThePaperIsSeenWhole) {
    SampleForm form; // a surface of 300 by 200 units
    form.surface.font = {"Arial", 24, false};
    form.surface.moveTo(20, 185); // 37 units high
    form.surface.print("Xg");
    const auto [first, last] = inkedRows(imageOf(Drawing(form, form.surface), 1));
    EXPECT_GT(first, 155);
    EXPECT_GT(last - first, 22) << "four fifths of it at least";
    EXPECT_LT(last, 199);

    QImage paper(300, 200, QImage::Format_RGB32);
    QPainter painter(&paper);
    SurfacePage(form.surface, {300, 200}).paint(painter);
    EXPECT_EQ(painter.transform(), QTransform()) << "what is painted next is as large as before";
}

TEST(Drawing, AWindowIsDrawnWithItsLabelsWhereTheyStandToEachOther) {
    SampleForm form;
    form.lblName.design = {120, 2900, 2000, 270};
    form.surface.box(0, 0, 20, 20, 12, true);
    const std::optional<Drawing> drawing = Drawing::ofWindow(form);
    ASSERT_TRUE(drawing);
    const QString svg = QString::fromUtf8(svgOf(*drawing, "SAMPLE"));
    EXPECT_TRUE(svg.contains(">Name of the problem:</text>")) << svg.toStdString();
    EXPECT_EQ(imageOf(*drawing, 1).pixelColor(10, (3300 - 1400) / 15 + 10), QColor(255, 0, 0))
        << "under the highest label";
}

TEST(Drawing, NothingOfAWindowsDrawingLeavesItsPlace) {
    SampleForm form; // its surface is 300 by 200 units in a window of 640 by 480
    form.surface.box(0, 0, 2000, 2000, 12, true);
    EXPECT_NEAR(pixelsOf(imageOf(*Drawing::ofWindow(form), 1), QColor(255, 0, 0)), 300 * 200, 1000);
}

TEST(Drawing, TicksAreOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_DOUBLE_EQ(roundTick(0, 10, 10), 1);
    EXPECT_DOUBLE_EQ(roundTick(1, 24, 10), 5);
    EXPECT_DOUBLE_EQ(roundTick(0, 220, 10), 50);
    EXPECT_DOUBLE_EQ(roundTick(0, .013, 10), .002);
    EXPECT_DOUBLE_EQ(roundTick(-5e6, 5e6, 10), 1e6);
    EXPECT_DOUBLE_EQ(roundTick(7, 7, 10), 1);
}

TEST(Drawing, TheFilesEndingIsItsFormat) {
    SampleForm form;
    withChart(form);
    const TemporaryFolder folder;
    for (const char* name : {"chart.svg", "chart.PNG", "chart.pdf"})
        saveDrawing(Drawing(form, form.chart), "SAMPLE", folder.path() / name);
    const QImage png(QString::fromStdString((folder.path() / "chart.PNG").string()));
    EXPECT_EQ(png.size(), (unitsOf(form, form.chart) * 2).toSize());
    EXPECT_TRUE(readTextFile(folder.path() / "chart.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(readTextFile(folder.path() / "chart.svg").starts_with("<?xml"));
}

TEST(Drawing, PicturesKeepTheirPixels) {
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::white);
    image.setPixelColor(2, 1, QColor(1, 2, 3));
    const CapturedPicture picture = pictureOf(image);
    EXPECT_EQ(picture.width, 3);
    EXPECT_EQ(picture.pixels.at(5), 0xFF010203U);
    EXPECT_EQ(imageOf(picture), image);
}

} // namespace
} // namespace vantore::tests
