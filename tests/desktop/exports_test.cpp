#include "desktop/exports.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QImage>
#include <QMenu>
#include <gtest/gtest.h>

#include "drawing/drawing_export.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"
#include "tests/desktop/next_dialog.h"
#include "tests/desktop/pdf_page.h"
#include "tests/desktop/sample_form.h"
#include "tests/support/error_of.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

class ExportsTest : public testing::Test {
  protected:
    AskingPlace place() const { return {nullptr, textOf(folder.path())}; }

    TemporaryFolder folder;
    SampleForm form{{1.28, 1.28}};
};

TEST_F(ExportsTest, AReportIsSavedLineByLine) {
    form.report.add({"RESULTS", {"Arial", 12, false}, colour::lightBlue});
    form.report.add({"Total      1,234.50", {"Courier New", 9, false}});
    answerFileDialog("costs");
    saveReportAs(place(), form, form.report);
    EXPECT_EQ(readTextFile(folder.path() / "costs.txt"), "RESULTS\r\nTotal      1,234.50\r\n");
}

TEST_F(ExportsTest, APlotIsSavedAsWhatItsNameSays) {
    form.surface.box(0, 0, 299, 199, 12, true);
    answerFileDialog("plot.png");
    saveDrawingAs(place(), form, form.surface);
    const QImage png(qtText(textOf(folder.path() / "plot.png")));
    EXPECT_EQ(png.pixelColor(100, 100), QColor(255, 0, 0));
    answerFileDialog("plot");
    saveDrawingAs(place(), form, form.surface);
    EXPECT_TRUE(readTextFile(folder.path() / "plot.svg").starts_with("<?xml"));
}

TEST_F(ExportsTest, TheNamesEndingFollowsTheChosenFormat) {
    withNextDialog([](QWidget& box) {
        auto* formats = box.findChild<QComboBox*>("fileTypeCombo");
        formats->setCurrentIndex(2);
        emit formats->activated(2);
        EXPECT_EQ(box.findChild<QLineEdit*>("fileNameEdit")->text(), "SAMPLE plot.pdf");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    saveDrawingAs(place(), form, form.surface);
}

TEST_F(ExportsTest, ACopiedPlotIsAPicture) {
    form.surface.box(0, 0, 299, 199, 9, true);
    copyDrawing(form, form.surface);
    EXPECT_EQ(QGuiApplication::clipboard()->image().pixelColor(50, 50), QColor(0, 0, 255));
}

TEST_F(ExportsTest, PrintingIsCancelledByEscape) {
    withNextDialog([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(printWithPreview(place(), PrintJob{.title = "COG"}));
}

TEST_F(ExportsTest, AReportIsPrintedInTheDesignsFonts) {
    form.report.add({"RESULTS", {"Arial", 12 * 1.28, false}});
    std::string proposed;
    printToPdf(folder.path() / "costs.pdf", &proposed);
    printReport(place(), form, form.report);
    EXPECT_EQ(proposed, textOf(folder.path() / "SAMPLE report.pdf"));
    const PdfPage page = readPdf(folder.path() / "costs.pdf");
    EXPECT_NEAR(page.place("RESULTS").height(), 12, 1.5) << "points";
}

TEST_F(ExportsTest, APlotIsPrintedAsLinesAndTexts) {
    form.surface.box(0, 0, 100, 100, 12);
    form.surface.moveTo(150, 50);
    form.surface.print("Facility");
    printToPdf(folder.path() / "plot.pdf");
    printDrawing(place(), form, form.surface);
    const PdfPage page = readPdf(folder.path() / "plot.pdf");
    EXPECT_FALSE(page.place("Facility").isNull()) << page.text;
    EXPECT_EQ(page.images, 0);
    EXPECT_NE(page.text.find("Page 1 of 1"), std::string::npos);
}

TEST_F(ExportsTest, TheMenusPrintAndTheButtonsGiveTheSamePage) {
    form.surface.design = {0, 0, 9520, 6372};
    form.surface.circle(150, 100, 20, 9, true);
    form.surface.moveTo(150, 50);
    form.surface.print("Facility");
    for (const auto& control : form.controls())
        if (control.get() != &form.surface) control->seen = [] { return false; };
    printToPdf(folder.path() / "menu.pdf");
    printDrawing(place(), form, form.surface);
    PrintJob job{.title = "SAMPLE", .orientation = Orientation::Landscape};
    const CapturedPicture picture{
        .width = 640, .height = 480, .drawing = std::make_shared<const Drawing>(*Drawing::ofWindow(form))};
    job.operations.emplace_back(PrintedPicture{picture, 20000, 15000});
    printToPdf(folder.path() / "button.pdf");
    printWithPreview(place(), job);
    EXPECT_EQ(imageOfPdf(folder.path() / "menu.pdf"), imageOfPdf(folder.path() / "button.pdf"));
    EXPECT_EQ(readPdf(folder.path() / "menu.pdf").place("Facility"),
              readPdf(folder.path() / "button.pdf").place("Facility"));
}

TEST_F(ExportsTest, APreviewLeavesTheFontsOfMenusAlone) {
    form.report.add({"RESULTS", {"MS Sans Serif", 9 * 1.28, false}});
    printToPdf(folder.path() / "x.pdf");
    printReport(place(), form, form.report);
    const QFont menuFont = QMenu().font();
    EXPECT_NEAR(QFontInfo(menuFont).pointSizeF(), menuFont.pointSizeF(), .5);
}

TEST_F(ExportsTest, AFileThatCanNotBeFinishedIsAnError) {
    const std::filesystem::path path = folder.path() / "costs.pdf";
    std::filesystem::create_symlink("/dev/full", path);
    printToPdf(path);
    EXPECT_EQ(errorOf([&] { printWithPreview(place(), PrintJob{.title = "COG"}); }), ErrorNumber::DiskFull);
}

} // namespace
} // namespace vantore::tests
