#include "shell/printing.h"

#include <gtest/gtest.h>

#include "shell/base/number_text.h"

namespace vantore {
namespace {

using Lines = std::vector<std::string>;

/// Each line of a document with its font, such as "Arial 12: TITLE".
Lines linesOf(const PrintJob& job) {
    Lines lines;
    for (const PrintOperation& operation : job.operations) {
        const auto& [text, font, colour] = std::get<PrintedLine>(operation);
        lines.push_back(font.family + str(font.size) + (font.bold ? " bold: " : ": ") + text);
    }
    return lines;
}

PrintLines pageOf(const std::string& line) {
    PrintLines page;
    page.line(line);
    return page;
}

TEST(PrintedReport, HasItsTitleInLargerLetters) {
    const PrintJob job = reportJob("COG", {"TITLE", "a line", "another"});
    EXPECT_EQ(job.title, "COG report");
    EXPECT_EQ(job.orientation, Orientation::Portrait);
    EXPECT_EQ(linesOf(job), (Lines{"Arial 12: TITLE", "Courier New 10: a line", "Courier New 10: another"}));
}

TEST(PrintedData, HasItsHeadingsBetweenBlankLines) {
    const PrintJob job = dataJob("COG", "DATA", pageOf("a line"));
    EXPECT_EQ(job.title, "COG data");
    EXPECT_EQ(linesOf(job),
              (Lines{"Courier New 12: ", "Arial 14: DATA", "Courier New 12: ", "Courier New 12: a line"}));
    EXPECT_EQ(linesOf(plainJob("COG", pageOf("a line"))), Lines{"Courier New 12: a line"});
}

} // namespace
} // namespace vantore
