#include <gtest/gtest.h>

#include "shell/forms/visible_operations.h"

namespace vantore::tests {
namespace {

struct Surface : PictureSurface {
    Surface() : PictureSurface("picOut", {}, {1, 1}) { font = {"Courier New", 8, false}; }
};

void printAt(PictureSurface& surface, double x, double y, const char* text, int colour) {
    surface.moveTo(x, y);
    surface.print(text, colour);
}

std::vector<std::string> visibleTexts(const PictureSurface& surface) {
    std::vector<std::string> texts;
    for (const SurfaceOperation& operation : visibleOperations(surface.operations()))
        if (const auto* text = std::get_if<SurfaceText>(&operation)) texts.push_back(text->text);
    return texts;
}

TEST(VisibleOperations, LeaveOutWhatAnOverprintInThePapersColourWipes) {
    Surface picOut;
    printAt(picOut, 8, 400, "row 20", colour::black);
    printAt(picOut, 8, 400, "row 20", colour::brightWhite);
    printAt(picOut, 8, 400, "row 21", colour::black);
    EXPECT_EQ(visibleTexts(picOut), std::vector<std::string>{"row 21"});
    EXPECT_EQ(picOut.operations().size(), 3U);
}

TEST(VisibleOperations, WipeEveryTextPrintedBefore) {
    Surface picOut;
    for (const int ink : {colour::black, colour::lightBlue, colour::brightWhite})
        printAt(picOut, 8, 400, "row", ink);
    EXPECT_TRUE(visibleTexts(picOut).empty());
    printAt(picOut, 8, 400, "row", colour::black);
    EXPECT_EQ(visibleTexts(picOut), std::vector<std::string>{"row"});
}

TEST(VisibleOperations, KeepWhatIsElsewhereOrReadsOtherwise) {
    Surface picOut;
    printAt(picOut, 8, 384, "row", colour::black);
    printAt(picOut, 16, 400, "row", colour::black);
    printAt(picOut, 8, 400, "raw", colour::black);
    picOut.font.bold = true;
    printAt(picOut, 8, 400, "row", colour::black);
    picOut.font.bold = false;
    picOut.line(8, 400, 80, 400, colour::black);
    printAt(picOut, 8, 400, "row", colour::brightWhite);
    EXPECT_EQ(visibleOperations(picOut.operations()), picOut.operations());
}

TEST(VisibleOperations, KeepTheirOrder) {
    Surface picOut;
    printAt(picOut, 8, 8, "first", colour::black);
    printAt(picOut, 8, 400, "wiped", colour::black);
    picOut.circle(1, 2, 3, colour::black, true);
    printAt(picOut, 8, 400, "wiped", colour::brightWhite);
    printAt(picOut, 8, 16, "last", colour::black);
    const auto visible = visibleOperations(picOut.operations());
    ASSERT_EQ(visible.size(), 3U);
    EXPECT_EQ(visible[0], picOut.operations()[0]);
    EXPECT_EQ(visible[1], picOut.operations()[2]);
    EXPECT_EQ(visible[2], picOut.operations()[4]);
}

TEST(VisibleOperations, DrawARepeatedOneWhereItWasLast) {
    Surface picOut;
    picOut.line(0, 0, 8, 8, colour::lightRed);
    printAt(picOut, 8, 8, "Ashby", colour::black);
    picOut.line(0, 8, 8, 8, colour::lightRed);
    printAt(picOut, 8, 8, "Ashby", colour::black);
    picOut.line(0, 0, 8, 8, colour::lightRed, 2);
    const auto visible = visibleOperations(picOut.operations());
    ASSERT_EQ(visible.size(), 4U);
    EXPECT_EQ(visible[0], picOut.operations()[0]);
    EXPECT_EQ(visible[1], picOut.operations()[2]);
    EXPECT_EQ(visible[2], picOut.operations()[3]);
    EXPECT_EQ(visible[3], picOut.operations()[4]);
}

} // namespace
} // namespace vantore::tests
