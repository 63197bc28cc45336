#include "desktop/drawing_export.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <cstring>
#include <string_view>

#include "desktop/drawing.h"
#include "desktop/fonts.h"
#include "desktop/svg_file.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr double savedPixelsPerUnit = 2; // sharp in print and on dense screens
constexpr double pointsPerUnit = .75;    // 96 units to the inch
constexpr int pdfDotsPerInch = 1200;
constexpr double unitsPerInch = 96;

QByteArray pngOf(const Form& form, const Control& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    imageOf(form, drawing, savedPixelsPerUnit).save(&buffer, "PNG");
    return bytes;
}

/// One page of the drawing's size.
QByteArray pdfOf(const Form& form, const Control& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    writer.setTitle(qtText(form.caption));
    writer.setPageSize(QPageSize(unitsOf(form, drawing) * pointsPerUnit, QPageSize::Point));
    writer.setPageMargins({});
    QPainter painter(&writer);
    painter.scale(pdfDotsPerInch / unitsPerInch, pdfDotsPerInch / unitsPerInch);
    paintDrawing(painter, form, drawing);
    painter.end();
    return bytes;
}

} // namespace

QImage imageOf(const Form& form, const Control& drawing, double pixelsPerUnit) {
    const QSizeF size = unitsOf(form, drawing) * pixelsPerUnit;
    QImage image(size.toSize(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    paintDrawing(painter, form, drawing);
    return image;
}

CapturedPicture pictureOf(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    CapturedPicture picture{pixels.width(), pixels.height(), {}};
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

void saveDrawing(const Form& form, const Control& drawing, const std::filesystem::path& path) {
    const std::string ending = lowerCase(textOf(path.extension()));
    if (ending != ".png" && ending != ".pdf") return writeSvgFile(form, drawing, path);
    const QByteArray bytes = ending == ".png" ? pngOf(form, drawing) : pdfOf(form, drawing);
    replaceFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace vantore
