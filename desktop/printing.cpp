#include "desktop/printing.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <variant>

#include "desktop/drawing.h"
#include "desktop/drawing_export.h"
#include "desktop/fonts.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

constexpr double margin = 12.7;                    // millimetres
constexpr double hundredthsPerPoint = 2540.0 / 72; // hundredths of a millimetre
constexpr double pointsPerInch = 72;
constexpr int pdfDotsPerInch = 1200;
constexpr double pixelsPerPoint = 96.0 / 72;
constexpr double smallestShare = .3;

/// Lengths are measured at ten times the size: text metrics of small fonts are rounded to pixels.
constexpr double measuringZoom = 10;

QFontMetricsF metricsOf(const Font& font) {
    return QFontMetricsF(qtFont(font, measuringZoom));
}

double inPoints(double measured) {
    return measured / measuringZoom / pixelsPerPoint;
}

double widestLine(const PrintJob& job) {
    double widest = 0;
    for (const PrintOperation& operation : job.operations)
        if (const auto* line = std::get_if<PrintedLine>(&operation))
            widest = std::max(widest, inPoints(metricsOf(line->font).horizontalAdvance(qtText(line->text))));
    return widest;
}

/// Paints pages in points from the upper left corner of the printable area.
class PagePainter {
  public:
    PagePainter(QPagedPaintDevice& device, double fontShare)
        : painter_(&device), device_(device), fontShare_(fontShare) {
        if (!painter_.isActive()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
        const double dots = device.logicalDpiX() / pointsPerInch;
        painter_.scale(dots, device.logicalDpiY() / pointsPerInch);
    }

    void paint(const Page& page) {
        for (const PrintedPicture* picture : page.pictures) paint(*picture);
        for (const PageLine& line : page.lines) paint(line);
    }

    bool end() { return painter_.end(); }

  private:
    void paint(const PrintedPicture& picture) {
        const QImage image = imageOf(picture.picture);
        const QSizeF room = device_.pageLayout().paintRect(QPageLayout::Point).size();
        QSizeF size(picture.width / hundredthsPerPoint, picture.height / hundredthsPerPoint);
        if (size.width() > room.width() || size.height() > room.height())
            size.scale(room, Qt::KeepAspectRatio);
        painter_.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
        if (!image.isNull()) painter_.drawImage(QRectF(QPointF(0, 0), size), image);
    }

    void paint(const PageLine& placed) {
        // One unit is one point here, so a font of n points is n units high: 72 to the inch, not 96.
        QFont font = qtFont(placed.line->font, fontShare_ / pixelsPerPoint, &device_);
        painter_.setFont(font);
        painter_.setPen(qtColour(placed.line->colour));
        const double ascent = inPoints(metricsOf(placed.line->font).ascent()) * fontShare_;
        painter_.drawText(QPointF(0, placed.top + ascent), qtText(placed.line->text));
    }

    QPainter painter_;
    QPagedPaintDevice& device_;
    double fontShare_;
};

} // namespace

QPageLayout pageLayout(Orientation orientation) {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4),
            orientation == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape,
            QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter};
}

Printer::Area printableArea(const QPageLayout& layout) {
    const QRectF room = layout.paintRect(QPageLayout::Point);
    return {room.width() * hundredthsPerPoint, room.height() * hundredthsPerPoint};
}

PagedDocument layOutPages(const PrintJob& job, QSizeF room) {
    PagedDocument document;
    const double widest = widestLine(job);
    if (widest > room.width()) document.fontShare = std::max(room.width() / widest, smallestShare);
    document.pages.emplace_back();
    double top = 0;
    for (const PrintOperation& operation : job.operations) {
        if (const auto* picture = std::get_if<PrintedPicture>(&operation)) {
            document.pages.back().pictures.push_back(picture);
            continue;
        }
        const auto& line = std::get<PrintedLine>(operation);
        const double height = inPoints(metricsOf(line.font).lineSpacing()) * document.fontShare;
        if (top > 0 && top + height > room.height()) {
            document.pages.emplace_back();
            top = 0;
        }
        document.pages.back().lines.push_back({&line, top});
        top += height;
    }
    return document;
}

void printOn(QPagedPaintDevice& device, const PrintJob& job) {
    const PagedDocument document = layOutPages(job, device.pageLayout().paintRect(QPageLayout::Point).size());
    PagePainter painter(device, document.fontShare);
    for (std::size_t i = 0; i < document.pages.size(); ++i) {
        if (i > 0 && !device.newPage()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
        painter.paint(document.pages[i]);
    }
    if (!painter.end()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
}

QByteArray pdfOf(const PrintJob& job) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    writer.setTitle(qtText(job.title));
    writer.setCreator("Vantore");
    writer.setPageLayout(pageLayout(job.orientation));
    printOn(writer, job);
    return bytes;
}

} // namespace vantore
