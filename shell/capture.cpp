#include "shell/capture.h"

#include <algorithm>
#include <utility>

#include "shell/base/arithmetic.h"
#include "shell/base/runtime_error.h"

namespace vantore {

CapturedPicture captureClient(Display& display, const Form& form) {
    return captureWindow(display, form, display.clientArea(form));
}

CapturedPicture captureWindow(Display& display, const Form& form, const Display::PixelRect& area) {
    const Display::PixelRect client = display.clientArea(form);
    Display::PixelRect inside;
    inside.left = std::clamp(area.left, 0, client.width);
    inside.top = std::clamp(area.top, 0, client.height);
    inside.width = std::clamp(area.width, 0, client.width - inside.left);
    inside.height = std::clamp(area.height, 0, client.height - inside.top);
    CapturedPicture picture = display.capture(form, inside);
    CapturedPicture owned = createBitMapPicture(picture.width, picture.height, std::move(picture.pixels));
    owned.drawing = std::move(picture.drawing);
    return owned;
}

CapturedPicture createBitMapPicture(int width, int height, std::vector<std::uint32_t> pixels) {
    const bool sized = width >= 0 && height >= 0;
    if (!sized || (!pixels.empty() &&
                   pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return {.width = width, .height = height, .pixels = std::move(pixels)};
}

void printPictureToFitPage(PrintJob& job, const Printer& printer, const CapturedPicture& picture) {
    job.orientation = picture.height >= picture.width ? Orientation::Portrait : Orientation::Landscape;
    const Printer::Area page = printer.printableArea(job.orientation);
    const double pictureRatio = divide(picture.width, picture.height);
    const double printerRatio = divide(page.width, page.height);
    PrintedPicture printed{picture, page.width, page.height};
    if (pictureRatio >= printerRatio) {
        printed.height = divide(page.width, pictureRatio);
    } else {
        printed.width = page.height * pictureRatio;
    }
    job.operations.emplace_back(std::move(printed));
}

} // namespace vantore
