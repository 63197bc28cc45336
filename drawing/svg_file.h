#pragma once

#include <QByteArray>
#include <filesystem>

#include "drawing/drawing.h"

namespace vantore {

/// A drawing as SVG, its view box in the drawing's units.
QByteArray svgOf(const Drawing& drawing, const QString& title);

/// Writes a picture surface or chart of a form to a file, replaced whole. Works
/// without a display too. RuntimeErrors as `replaceFile`.
void writeSvgFile(const Form& form, const Control& drawing, const std::filesystem::path& path);

} // namespace vantore
