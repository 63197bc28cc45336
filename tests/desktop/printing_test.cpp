#include "desktop/printing.h"

#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <gtest/gtest.h>

#include "drawing/drawing_export.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"
#include "tests/desktop/pdf_page.h"
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
    const std::vector<Page> pages = layOutPages(job, room);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0].lines[0].top, 0);
    EXPECT_EQ(pages[1].lines[0].top, 0);
    double before = -1;
    std::size_t count = 0;
    for (const Page& page : pages) {
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
    const std::vector<Page> pages = layOutPages(job, room);
    const auto& lines = pages.at(0).lines;
    EXPECT_NEAR(lines[1].top, 11.33, .3); // Liberation Mono: 1.133 of the size
    EXPECT_NEAR(lines[2].top - lines[1].top, 23, .6);
}

/// The size of a page line's font on paper, in points.
double pointsOf(const PageLine& line) {
    return line.font.size * 96 / 72;
}

TEST(Printing, TheFontsAreSmallerWhereTheWidestLineWouldBeCut) {
    EXPECT_NEAR(pointsOf(layOutPages(jobOf(3), room)[0].lines[0]), 12, .01);
    const PrintJob wide = jobOf(3, std::string(78, 'x')); // 80 characters of 7.2 points
    EXPECT_NEAR(pointsOf(layOutPages(wide, room)[0].lines[0]), 12 * 500 / 576.0, .1);
}

TEST(Printing, ALineThatIsStillTooLongGoesOnUnderneath) {
    std::string words;
    for (int i = 100; i < 150; ++i) words += std::to_string(i) + " ";
    PrintJob job{.title = "COG"};
    job.print(words, courier); // 200 characters; 86 of them fit at four fifths
    job.print("end", courier);
    const auto lines = layOutPages(job, room)[0].lines;
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_NEAR(pointsOf(lines[0]), 9.6, .01);
    for (const PageLine& line : lines) EXPECT_LE(line.text.size(), 86);
    EXPECT_TRUE(lines[0].text.endsWith(' ')) << "cut between two words";
    EXPECT_EQ(utf8Text(lines[0].text + lines[1].text + lines[2].text), words);
    EXPECT_GT(lines[3].top, lines[2].top);
}

TEST(Printing, LinesTooWideForUprightPaperLieAcross) {
    EXPECT_EQ(orientationOf(jobOf(2)), Orientation::Portrait);
    EXPECT_EQ(orientationOf(jobOf(2, std::string(85, 'x'))), Orientation::Portrait) << "smaller is enough";
    EXPECT_EQ(orientationOf(jobOf(2, std::string(110, 'x'))), Orientation::Landscape);
}

TEST(Printing, EachPageHasItsNumberInTheLowerMargin) {
    const TemporaryFolder folder;
    const QByteArray pdf = pdfOf(jobOf(120));
    replaceFile(folder.path() / "x.pdf",
                std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    const std::string text = textOfPdf(folder.path() / "x.pdf");
    EXPECT_NE(text.find("Page 1 of 3"), std::string::npos);
    EXPECT_NE(text.find("Page 3 of 3"), std::string::npos);
    const QRectF number = readPdf(folder.path() / "x.pdf").place("Page");
    const QRectF paper = pageLayout(Orientation::Portrait).fullRect(QPageLayout::Point);
    EXPECT_GT(number.top(), paper.height() - 12.7 / 25.4 * 72);
    EXPECT_LT(number.bottom(), paper.height() - 12);
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

TEST(Printing, OnlyThePagesThatAreAskedForArePrinted) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "x.pdf";
    QPdfWriter writer(qtText(file.string()));
    writer.setPageLayout(pageLayout(Orientation::Portrait));
    writer.setPageRanges(QPageRanges::fromString("2-3"));
    printOn(writer, jobOf(200, "Total cost"));
    const std::string text = textOfPdf(file);
    EXPECT_EQ(pagesOfPdf(file), 2);
    for (const char* there : {"Page 2 of 4", "Page 3 of 4"})
        EXPECT_NE(text.find(there), std::string::npos) << text;
    EXPECT_EQ(text.find("Total cost 1\n"), std::string::npos) << "of the first page";
    EXPECT_EQ(text.find("Total cost 200\n"), std::string::npos) << "of the last";
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
    const QImage page = imageOfPdf(file);
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

} // namespace
} // namespace vantore::tests
