#include "desktop/exports.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QImage>
#include <gtest/gtest.h>

#include "desktop/drawing.h"
#include "desktop/fonts.h"
#include "shell/base/text_file.h"
#include "tests/desktop/next_dialog.h"
#include "tests/desktop/sample_form.h"
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
    withNextDialog([](QWidget& box) {
        auto* target = box.findChild<QComboBox*>();
        target->setCurrentIndex(target->count() - 1);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    printReport(place(), form, form.report);
    EXPECT_TRUE(readTextFile(folder.path() / "SAMPLE.pdf").starts_with("%PDF-"));
}

} // namespace
} // namespace vantore::tests
