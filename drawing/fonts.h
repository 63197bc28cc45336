#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <string>
#include <string_view>

#include "shell/forms/control.h"

class QPainter;

namespace vantore {

QString qtText(std::string_view utf8);
std::string utf8Text(const QString& text);

/// Lets the suite's font families stand for families that a system without them has: call it once, behind
/// the QApplication.
void substituteFonts();

/// The font on the screen, where a point is 96/72 of a pixel, whatever dots per inch the screen claims:
/// places are in pixels, and texts must keep their proportion to them.
QFont qtFont(const Font& font, double zoom = 1);

/// Paints a text into `room`, with Qt's flags of alignment and wrapping. A point is 96/72 of the painter's
/// unit on every device.
void drawText(QPainter& painter, const QRectF& room, int flags, const QString& text, const Font& font);

/// The same for a line of text whose first character has its top left corner at `place`.
void drawLine(QPainter& painter, QPointF place, const QString& text, const Font& font);

/// Width and height of a line of text, in units of which a point is 96/72, without a screen's rounding.
QSizeF lineSize(const QString& text, const Font& font);

/// The text, or as much of it as fits `width` units with "..." behind it.
QString elided(const QString& text, const Font& font, double width);

} // namespace vantore
