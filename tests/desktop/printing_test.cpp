#include "desktop/printing.h"

#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <gtest/gtest.h>

#include "desktop/drawing_export.h"
#include "desktop/fonts.h"
#include "desktop/print_window.h"
#include "shell/base/text_file.h"
#include "tests/support/error_of.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

constexpr QSizeF room(500, 700); // points
const Font courier{"Courier New", 12, false};

PrintJob jobOf(int lines, const std::string& text = "a line") {
    PrintJob job{.title = "COG"};
    for (int i = 1; i <= lines; ++i) job.print(text + " " + std::to_string(i), courier);
    return job;
}

/// The text of a PDF file, its blanks as many as characters of 12 point Courier would be.
std::string textOfPdf(const std::filesystem::path& file) {
    QProcess reader;
    reader.start("pdftotext", {"-fixed", "7.2", qtText(textOf(file)), "-"});
    reader.waitForFinished();
    return reader.readAllStandardOutput().toStdString();
}

int pagesOfPdf(const std::filesystem::path& file) {
    const std::string text = textOfPdf(file);
    return static_cast<int>(std::count(text.begin(), text.end(), '\f'));
}

TEST(Printing, LinesFlowDownThePages) {
    const PrintJob job = jobOf(120);
    const PagedDocument document = layOutPages(job, room);
    ASSERT_EQ(document.pages.size(), 3U);
    EXPECT_EQ(document.pages[0].lines[0].top, 0);
    EXPECT_EQ(document.pages[1].lines[0].top, 0);
    double before = -1;
    std::size_t count = 0;
    for (const Page& page : document.pages) {
        before = -1;
        for (const PageLine& line : page.lines) {
            EXPECT_GT(line.top, before);
            EXPECT_LT(line.top, room.height());
            before = line.top;
            ++count;
        }
    }
    EXPECT_EQ(count, 120U);
}

TEST(Printing, ALineIsAsHighAsItsFont) {
    PrintJob job{.title = "COG"};
    job.print("small", {"Courier New", 10, false});
    job.print("large", {"Arial", 20, false});
    job.print("end", courier);
    const PagedDocument document = layOutPages(job, room);
    const auto& lines = document.pages.at(0).lines;
    EXPECT_NEAR(lines[1].top, 11.33, .3); // Liberation Mono: 1.133 of the size
    EXPECT_NEAR(lines[2].top - lines[1].top, 23, .6);
}

TEST(Printing, TheFontsAreSmallerWhereTheWidestLineWouldBeCut) {
    const PrintJob narrow = jobOf(3);
    EXPECT_DOUBLE_EQ(layOutPages(narrow, room).fontShare, 1);
    const PrintJob wide = jobOf(3, std::string(98, 'x')); // 100 characters of 7.2 points
    EXPECT_NEAR(layOutPages(wide, room).fontShare, 500 / 720.0, .01);
}

TEST(Printing, APdfFileHoldsTheTextOnItsPages) {
    const TemporaryFolder folder;
    const QByteArray pdf = pdfOf(jobOf(120, "Total cost"));
    replaceFile(folder.path() / "x.pdf",
                std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    const std::string text = textOfPdf(folder.path() / "x.pdf");
    EXPECT_NE(text.find("Total cost 1\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Total cost 120\n"), std::string::npos);
    EXPECT_EQ(pagesOfPdf(folder.path() / "x.pdf"), 3);
}

TEST(Printing, ColumnsStayUnderEachOther) {
    const TemporaryFolder folder;
    PrintJob job{.title = "COG"};
    job.print("Point               dinate      Volume", courier);
    job.print("Ashby                 2.00       1,000", courier);
    const QByteArray pdf = pdfOf(job);
    replaceFile(folder.path() / "x.pdf",
                std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    const std::string text = textOfPdf(folder.path() / "x.pdf");
    EXPECT_NE(text.find("Point               dinate      Volume\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Ashby                 2.00       1,000\n"), std::string::npos) << text;
    EXPECT_EQ(text.find("Point"), text.find("Ashby") - text.find('\n') - 1) << "one left margin";
}

TEST(Printing, APictureStandsAtThePagesOriginInItsSize) {
    const TemporaryFolder folder;
    QImage red(40, 20, QImage::Format_ARGB32);
    red.fill(Qt::red);
    PrintJob job{.title = "COG", .orientation = Orientation::Landscape};
    job.operations.emplace_back(PrintedPicture{pictureOf(red), 10000, 5000}); // 100 by 50 mm
    const QByteArray pdf = pdfOf(job);
    const std::filesystem::path file = folder.path() / "x.pdf";
    replaceFile(file, std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    QProcess painter;
    painter.start("pdftoppm", {"-r", "25.4", "-png", "-singlefile", qtText(textOf(file)),
                               qtText(textOf(folder.path() / "x"))}); // a pixel a millimetre
    painter.waitForFinished();
    const QImage page(qtText(textOf(folder.path() / "x.png")));
    ASSERT_GT(page.width(), page.height());
    EXPECT_EQ(page.pixelColor(15, 15), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(110, 60), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(115, 30), QColor(Qt::white));
    EXPECT_EQ(page.pixelColor(60, 66), QColor(Qt::white));
    EXPECT_EQ(page.pixelColor(8, 8), QColor(Qt::white)) << "the margin";
}

TEST(Printing, ThePrintableAreaLiesBetweenTheMargins) {
    const Printer::Area upright = printableArea(pageLayout(Orientation::Portrait));
    const Printer::Area across = printableArea(pageLayout(Orientation::Landscape));
    EXPECT_NEAR(upright.width, across.height, 20);
    EXPECT_NEAR(upright.height, across.width, 20);
    EXPECT_GT(upright.height, upright.width);
    EXPECT_LT(upright.width, 19100); // A4 or Letter less twice 12.7 mm
}

TEST(PrintWindow, PrintsToTheFileThatTheUserNames) {
    const TemporaryFolder folder;
    const PrintJob job = jobOf(2, "Total cost");
    PrintWindow window(nullptr, job, qtText(textOf(folder.path())));
    auto* file = window.findChild<QLineEdit*>();
    EXPECT_EQ(utf8Text(file->text()), textOf(folder.path() / "COG.pdf"));
    auto* target = window.findChild<QComboBox*>();
    target->setCurrentIndex(target->findText("PDF file"));
    file->setText(qtText(textOf(folder.path() / "costs.pdf")));
    window.print();
    EXPECT_NE(textOfPdf(folder.path() / "costs.pdf").find("Total cost 2"), std::string::npos);
}

TEST(PrintWindow, AFileThatCanNotBeWrittenIsARuntimeError) {
    const PrintJob job = jobOf(1);
    PrintWindow window(nullptr, job, "/no/such/folder");
    auto* target = window.findChild<QComboBox*>();
    target->setCurrentIndex(target->findText("PDF file"));
    EXPECT_EQ(errorOf([&] { window.print(); }), ErrorNumber::PathNotFound);
}

} // namespace
} // namespace vantore::tests
