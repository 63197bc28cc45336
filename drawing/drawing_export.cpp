#include "drawing/drawing_export.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <cstring>
#include <string_view>

#include "drawing/drawing.h"
#include "drawing/fonts.h"
#include "drawing/svg_file.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr double savedPixelsPerUnit = 2; // sharp in print and on dense screens
constexpr double pointsPerUnit = .75;    // 96 units to the inch
constexpr int pdfDotsPerInch = 1200;
constexpr double unitsPerInch = 96;

QByteArray pngOf(const Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    imageOf(drawing, savedPixelsPerUnit).save(&buffer, "PNG");
    return bytes;
}

/// One page of the drawing's size.
QByteArray pdfOf(const Drawing& drawing, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    writer.setTitle(title);
    writer.setPageSize(QPageSize(drawing.size() * pointsPerUnit, QPageSize::Point));
    writer.setPageMargins({});
    QPainter painter(&writer);
    painter.scale(pdfDotsPerInch / unitsPerInch, pdfDotsPerInch / unitsPerInch);
    drawing.paint(painter);
    painter.end();
    return bytes;
}

} // namespace

QImage imageOf(const Drawing& drawing, double pixelsPerUnit) {
    QImage image((drawing.size() * pixelsPerUnit).toSize(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    drawing.paint(painter);
    return image;
}

CapturedPicture pictureOf(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    CapturedPicture picture{.width = pixels.width(), .height = pixels.height()};
    const auto width = static_cast<std::size_t>(pixels.width());
    picture.pixels.resize(width * static_cast<std::size_t>(pixels.height()));
    for (int row = 0; row < pixels.height(); ++row)
        std::memcpy(&picture.pixels[width * static_cast<std::size_t>(row)], pixels.constScanLine(row),
                    width * sizeof(std::uint32_t));
    return picture;
}

QImage imageOf(const CapturedPicture& picture) {
    if (picture.pixels.empty()) return {};
    QImage image(picture.width, picture.height, QImage::Format_ARGB32);
    const auto width = static_cast<std::size_t>(picture.width);
    for (int row = 0; row < picture.height; ++row)
        std::memcpy(image.scanLine(row), &picture.pixels[width * static_cast<std::size_t>(row)],
                    width * sizeof(std::uint32_t));
    return image;
}

void saveDrawing(const Drawing& drawing, const std::string& title, const std::filesystem::path& path) {
    const std::string ending = lowerCase(textOf(path.extension()));
    const QByteArray bytes = ending == ".png"   ? pngOf(drawing)
                             : ending == ".pdf" ? pdfOf(drawing, qtText(title))
                                                : svgOf(drawing, qtText(title));
    replaceFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace vantore
