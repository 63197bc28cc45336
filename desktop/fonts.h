#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <string>
#include <string_view>

#include "shell/forms/control.h"

class QPaintDevice;

namespace vantore {

QString qtText(std::string_view utf8);
std::string utf8Text(const QString& text);

/// Lets the suite's font families stand for families that a system without them has: call it once, behind
/// the QApplication.
void substituteFonts();

/// The font for painting on `device` (nullptr: the screen) where a point is 96/72 of a unit or pixel,
/// whatever dots per inch the device claims: places are in pixels, and texts must keep their proportion to
/// them.
QFont qtFont(const Font& font, double zoom = 1, const QPaintDevice* device = nullptr);

/// The font, made smaller where that is needed for `text` to fit `room` in pixels of the screen. `flags` are
/// those of drawing: Qt::TextWordWrap, Qt::TextShowMnemonic.
QFont fitted(QFont font, const QString& text, QSizeF room, int flags);

} // namespace vantore
