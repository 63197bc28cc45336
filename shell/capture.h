#pragma once

#include "shell/forms/print_job.h"
#include "shell/platform.h"

namespace vantore {

/// Window capture and printing of pictures.

/// A picture of a form's client area.
CapturedPicture captureClient(Display& display, const Form& form);

/// A picture of part of a window's client area; `area` in pixels, cut to the client area.
CapturedPicture captureWindow(Display& display, const Form& form, const Display::PixelRect& area);

/// A picture that owns its bitmap: width x height pixels 0xAARRGGBB, row by row. Pixels may be left out
/// (a platform without a screen); InvalidProcedureCall for any other count of pixels.
CapturedPicture createBitMapPicture(int width, int height, std::vector<std::uint32_t> pixels);

/// Adds the picture to a print job, as large as the page lets it be without changing its proportions, at
/// the printer's origin. A picture at least as high as wide makes the page portrait, else landscape.
void printPictureToFitPage(PrintJob& job, const Printer& printer, const CapturedPicture& picture);

} // namespace vantore
