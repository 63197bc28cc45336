#include "desktop/drawing.h"

#include <QImage>
#include <gtest/gtest.h>

#include "desktop/chart_drawing.h"
#include "desktop/drawing_export.h"
#include "desktop/svg_file.h"
#include "shell/base/text_file.h"
#include "tests/desktop/sample_form.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

QColor pixel(const Form& form, const Control& drawing, int x, int y) {
    return imageOf(form, drawing, 1).pixelColor(x, y);
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
    const auto [first, last] = inkedRows(imageOf(form, form.surface, 1));
    EXPECT_GE(first, 40);
    EXPECT_LE(first, 45);
    EXPECT_GE(last, 52);
    EXPECT_LE(last, 60);
}

TEST(Drawing, SvgHoldsTheTextsAndTheViewBox) {
    SampleForm form;
    form.surface.moveTo(20, 40);
    form.surface.print("Total cost < 5 & more");
    const QString svg = QString::fromUtf8(svgOf(form, form.surface));
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
    const QString svg = QString::fromUtf8(svgOf(form, withChart(form).chart));
    for (const char* text : {">TIME SERIES DATA<", ">Time periods<", ">Data values<", ">Data<", ">Forecast<",
                             ">5<", ">20<", ">200<"})
        EXPECT_TRUE(svg.contains(text)) << text;
    EXPECT_FALSE(svg.contains(">24<")) << "only round ticks";
}

TEST(Drawing, AChartOfOneSeriesNeedsNoLegend) {
    SampleForm form;
    withChart(form).chart.data.series.pop_back();
    EXPECT_FALSE(QString::fromUtf8(svgOf(form, form.chart)).contains(">Data<"));
}

TEST(Drawing, AnEmptyChartAndOneOfASingleValueAreDrawn) {
    SampleForm form;
    EXPECT_FALSE(imageOf(form, form.chart, 1).isNull());
    form.chart.data = {"t", {"x", 3, 3}, {"y", 5, 5}, {{"s", SeriesKind::Bars, 12, {{3, 5}}}}};
    EXPECT_FALSE(imageOf(form, form.chart, 1).isNull());
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
        saveDrawing(form, form.chart, folder.path() / name);
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
