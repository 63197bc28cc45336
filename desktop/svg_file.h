#pragma once

#include <QByteArray>
#include <filesystem>

#include "shell/forms/form.h"

namespace vantore {

/// A picture surface or chart as SVG, its view box in the surface's units. Works without a display too.
QByteArray svgOf(const Form& form, const Control& drawing);

/// Writes it to a file, replaced whole. RuntimeErrors as `replaceFile`.
void writeSvgFile(const Form& form, const Control& drawing, const std::filesystem::path& path);

} // namespace vantore
