#pragma once

#include <QColor>
#include <QSizeF>

#include "shell/forms/chart.h"
#include "shell/forms/form.h"
#include "shell/forms/picture_surface.h"

class QPainter;

namespace vantore {

/// The colour of a palette number.
QColor qtColour(int number);

/// Paints what the surface holds, in the surface's units, text upon text in the order in which it was put
/// there. The paper isn't painted.
void paintSurface(QPainter& painter, const PictureSurface& surface);

/// Size of a control's place in pixels at zoom 1, the units of a surface.
QSizeF unitsOf(const Form& form, const Control& control);

/// Paints a picture surface or a chart with its white paper into the rectangle from (0, 0) to
/// `unitsOf(form, drawing)`. Anything else leaves the paper white.
void paintDrawing(QPainter& painter, const Form& form, const Control& drawing);

} // namespace vantore
