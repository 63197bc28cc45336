#include "desktop/fonts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QScreen>
#include <algorithm>

namespace vantore {

namespace {

constexpr double pixelsPerInch = 96;
constexpr double smallestFont = 4;  // points
constexpr double leastPoints = .01; // a printer has many dots to the inch
constexpr double shrinkStep = .96;
constexpr double noLimit = 1e6;

double dotsPerInch(const QPaintDevice* device) {
    if (device != nullptr) return device->logicalDpiY();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? pixelsPerInch : screen->logicalDotsPerInchY();
}

bool fits(const QFont& font, const QString& text, QSizeF room, int flags) {
    const QRectF needed = QFontMetricsF(font).boundingRect(QRectF(0, 0, room.width(), noLimit), flags, text);
    return needed.width() <= room.width() + .5 && needed.height() <= room.height() + .5;
}

} // namespace

QString qtText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string utf8Text(const QString& text) {
    return text.toStdString();
}

void substituteFonts() {
    QFont::insertSubstitution("Arial", "Liberation Sans");
    QFont::insertSubstitution("MS Sans Serif", "Liberation Sans");
    QFont::insertSubstitution("Courier New", "Liberation Mono");
    QFont::insertSubstitution("Times Roman", "Liberation Serif");
}

QFont qtFont(const Font& font, double zoom, const QPaintDevice* device) {
    QFont result(qtText(font.family));
    if (font.family.starts_with("Courier")) result.setStyleHint(QFont::Monospace);
    const double points = font.size * zoom * pixelsPerInch / dotsPerInch(device);
    result.setPointSizeF(std::max(points, leastPoints));
    result.setBold(font.bold);
    return result;
}

QFont fitted(QFont font, const QString& text, QSizeF room, int flags) {
    while (font.pointSizeF() > smallestFont && !fits(font, text, room, flags))
        font.setPointSizeF(font.pointSizeF() * shrinkStep);
    return font;
}

} // namespace vantore
