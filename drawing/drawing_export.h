#pragma once

#include <QImage>
#include <filesystem>
#include <string>

#include "drawing/drawing.h"

namespace vantore {

/// A drawing as a picture with `pixelsPerUnit` pixels for each of its units.
QImage imageOf(const Drawing& drawing, double pixelsPerUnit);

/// The same as a picture for a print job.
CapturedPicture pictureOf(const QImage& image);
QImage imageOf(const CapturedPicture& picture);

/// Writes a drawing as SVG, PNG or PDF, as the ending of the file's name says; SVG for any other ending.
/// RuntimeErrors as `replaceFile`.
void saveDrawing(const Drawing& drawing, const std::string& title, const std::filesystem::path& path);

} // namespace vantore
