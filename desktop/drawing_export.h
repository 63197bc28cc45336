#pragma once

#include <QImage>
#include <filesystem>

#include "shell/forms/form.h"
#include "shell/forms/print_job.h"

namespace vantore {

/// A drawing as a picture with `pixelsPerUnit` pixels for each unit of the surface.
QImage imageOf(const Form& form, const Control& drawing, double pixelsPerUnit);

/// The same as a picture for a print job.
CapturedPicture pictureOf(const QImage& image);
QImage imageOf(const CapturedPicture& picture);

/// Writes a drawing as SVG, PNG or PDF, as the ending of the file's name says; SVG for any other ending.
/// RuntimeErrors as `replaceFile`.
void saveDrawing(const Form& form, const Control& drawing, const std::filesystem::path& path);

} // namespace vantore
