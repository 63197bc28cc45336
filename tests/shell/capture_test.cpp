#include <gtest/gtest.h>

#include <sstream>

#include "script/script_platform.h"
#include "shell/capture.h"
#include "tests/support/error_of.h"

namespace vantore::tests {
namespace {

const PrintedPicture& pictureOf(const PrintJob& job) {
    return std::get<PrintedPicture>(job.operations.front());
}

class Paper : public ScriptPlatform {
  public:
    Paper() : ScriptPlatform(out_, 800, 600) {}
    Area printableArea(Orientation orientation) const override {
        return orientation == Orientation::Portrait ? Area{20000, 30000} : Area{30000, 20000};
    }

  private:
    std::ostringstream out_;
};

TEST(PrintPictureToFitPage, TurnsThePageForAWidePicture) {
    PrintJob job;
    printPictureToFitPage(job, Paper(), {640, 480, {}});
    EXPECT_EQ(job.orientation, Orientation::Landscape);
    // 4 : 3 is narrower than the page's 3 : 2, so the height decides.
    EXPECT_DOUBLE_EQ(pictureOf(job).height, 20000);
    EXPECT_DOUBLE_EQ(pictureOf(job).width, 20000 * 4 / 3.0);
}

TEST(PrintPictureToFitPage, TakesTheFullWidthForAFlatPicture) {
    PrintJob job;
    printPictureToFitPage(job, Paper(), {400, 100, {}});
    EXPECT_DOUBLE_EQ(pictureOf(job).width, 30000);
    EXPECT_DOUBLE_EQ(pictureOf(job).height, 7500);
}

TEST(PrintPictureToFitPage, KeepsASquareUpright) {
    PrintJob job;
    printPictureToFitPage(job, Paper(), {100, 100, {}});
    EXPECT_EQ(job.orientation, Orientation::Portrait);
    EXPECT_DOUBLE_EQ(pictureOf(job).width, 20000);
}

TEST(PrintPictureToFitPage, CanNotFitAPictureWithoutHeight) {
    PrintJob job;
    EXPECT_EQ(errorOf([&] {
                  printPictureToFitPage(job, Paper(), {100, 0, {}});
              }),
              ErrorNumber::DivisionByZero);
}

TEST(CreateBitMapPicture, NeedsAllPixelsOrNone) {
    EXPECT_EQ(createBitMapPicture(2, 2, {1, 2, 3, 4}).pixels.size(), 4U);
    EXPECT_EQ(errorOf([] { createBitMapPicture(2, 2, {1, 2, 3}); }), ErrorNumber::InvalidProcedureCall);
}

TEST(CaptureWindow, CutsTheAreaToTheWindow) {
    Paper display;
    const Form form("Form", {1, 1});
    EXPECT_EQ(captureClient(display, form).width, 640);
    const CapturedPicture corner = captureWindow(display, form, {600, -10, 500, 100});
    EXPECT_EQ(corner.width, 40);
    EXPECT_EQ(corner.height, 100);
}

} // namespace
} // namespace vantore::tests
