#include "drawing/fonts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace vantore {

namespace {

constexpr double pixelsPerInch = 96;
constexpr double pointsPerInch = 72;

/// Lengths are measured at ten times the size: text metrics of small fonts are rounded to pixels.
constexpr double measuringZoom = 10;

double dotsPerInch() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? pixelsPerInch : screen->logicalDotsPerInchY();
}

QFont fontOf(const Font& font, double points) {
    QFont result(qtText(font.family));
    if (font.family.starts_with("Courier")) result.setStyleHint(QFont::Monospace);
    result.setPointSizeF(points);
    result.setBold(font.bold);
    return result;
}

QFontMetricsF measure(const Font& font) {
    return QFontMetricsF(qtFont(font, measuringZoom));
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

QFont qtFont(const Font& font, double zoom) {
    return fontOf(font, font.size * zoom * pixelsPerInch / dotsPerInch());
}

void drawText(QPainter& painter, const QRectF& room, int flags, const QString& text, const Font& font) {
    // The font is asked for in the size that it has on the device: one of another size, scaled by the
    // painter, would stay in the toolkit's cache and be taken for a font of the screen.
    const double zoom = painter.worldTransform().m11();
    const double pixels = font.size * pixelsPerInch / pointsPerInch * zoom;
    painter.save();
    painter.translate(room.topLeft());
    painter.scale(1 / zoom, 1 / zoom);
    painter.setFont(fontOf(font, pixels * pointsPerInch / painter.device()->logicalDpiY()));
    painter.drawText(QRectF(QPointF(0, 0), room.size() * zoom), flags, text);
    painter.restore();
}

void drawLine(QPainter& painter, QPointF place, const QString& text, const Font& font) {
    drawText(painter, QRectF(place, QSizeF(1, 1)), Qt::TextSingleLine | Qt::TextDontClip, text, font);
}

QSizeF lineSize(const QString& text, const Font& font) {
    const QFontMetricsF metrics = measure(font);
    return QSizeF(metrics.horizontalAdvance(text), metrics.lineSpacing()) / measuringZoom;
}

QString elided(const QString& text, const Font& font, double width) {
    const QFontMetricsF metrics = measure(font);
    const double room = width * measuringZoom;
    if (metrics.horizontalAdvance(text) <= room) return text;
    return metrics.elidedText(text, Qt::ElideRight, room);
}

} // namespace vantore
