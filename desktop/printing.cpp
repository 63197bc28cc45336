#include "desktop/printing.h"

#include <QBuffer>
#include <QLocale>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <variant>

#include "drawing/drawing.h"
#include "drawing/drawing_export.h"
#include "drawing/fonts.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

constexpr double margin = 12.7;                    // millimetres
constexpr double hundredthsPerPoint = 2540.0 / 72; // hundredths of a millimetre
constexpr double pointsPerInch = 72;
constexpr double pixelsPerPoint = 96.0 / 72;
constexpr int pdfDotsPerInch = 1200;
constexpr double smallestShare = .8; // of a font's size
constexpr double pageNumberGap = 6;  // points, from the page's lower margin
const Font pageNumberFont{"Arial", 9, false};

/// Width and height of a line on paper, in points.
QSizeF sizeOnPaper(const QString& text, const Font& font) {
    return lineSize(text, font) / pixelsPerPoint;
}

/// The font in which one of the painter's units, a point, is a point.
Font inPoints(Font font, double share = 1) {
    font.size *= share / pixelsPerPoint;
    return font;
}

double widestLine(const PrintJob& job) {
    double widest = 0;
    for (const PrintOperation& operation : job.operations)
        if (const auto* line = std::get_if<PrintedLine>(&operation))
            widest = std::max(widest, sizeOnPaper(qtText(line->text), line->font).width());
    return widest;
}

QSizeF roomOf(const QPageLayout& layout) {
    return layout.paintRect(QPageLayout::Point).size();
}

/// The count of characters of `text` that fit the width, at least one; behind a blank where there is one in
/// the second half of them.
qsizetype fittingLength(const QString& text, const Font& font, double width) {
    qsizetype fits = 1;
    qsizetype beyond = text.size() + 1;
    while (beyond - fits > 1) {
        const qsizetype middle = fits + (beyond - fits) / 2;
        (sizeOnPaper(text.left(middle), font).width() <= width ? fits : beyond) = middle;
    }
    if (fits >= text.size()) return text.size();
    const qsizetype blank = text.lastIndexOf(' ', fits);
    return blank > fits / 2 ? std::min(blank + 1, fits) : fits;
}

/// Puts one line after another on pages.
class PageSetter {
  public:
    PageSetter(QSizeF room, double share) : room_(room), share_(share), pages_(1) {}

    void add(const PrintedLine& line) {
        Font font = line.font;
        font.size *= share_;
        QString rest = qtText(line.text);
        do {
            const qsizetype length = fittingLength(rest, font, room_.width());
            addRow({rest.left(length), font, line.colour, 0});
            rest = rest.mid(length);
        } while (!rest.isEmpty());
    }

    void add(const PrintedPicture& picture) { pages_.back().pictures.push_back(&picture); }

    std::vector<Page> pages() && { return std::move(pages_); }

  private:
    void addRow(PageLine row) {
        const double height = sizeOnPaper(row.text, row.font).height();
        if (top_ > 0 && top_ + height > room_.height()) {
            pages_.emplace_back();
            top_ = 0;
        }
        row.top = top_;
        row.font = inPoints(row.font);
        pages_.back().lines.push_back(std::move(row));
        top_ += height;
    }

    QSizeF room_;
    double share_;
    double top_ = 0;
    std::vector<Page> pages_;
};

/// Paints pages in points from the upper left corner of the printable area.
class PagePainter {
  public:
    explicit PagePainter(QPagedPaintDevice& device) : painter_(&device), room_(roomOf(device.pageLayout())) {
        if (!painter_.isActive()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
        painter_.scale(device.logicalDpiX() / pointsPerInch, device.logicalDpiY() / pointsPerInch);
    }

    void paint(const Page& page, const QString& number) {
        for (const PrintedPicture* picture : page.pictures) paint(*picture);
        for (const PageLine& line : page.lines) {
            painter_.setPen(qtColour(line.colour));
            drawLine(painter_, {0, line.top}, line.text, line.font);
        }
        painter_.setPen(Qt::black);
        const QRectF foot(0, room_.height() + pageNumberGap, room_.width(), margin);
        drawText(painter_, foot, Qt::AlignHCenter | Qt::TextDontClip, number, inPoints(pageNumberFont));
    }

    bool end() { return painter_.end(); }

  private:
    void paint(const PrintedPicture& picture) {
        const auto* drawing = dynamic_cast<const Drawing*>(picture.picture.drawing.get());
        if (drawing != nullptr) return paint(*drawing);
        const QImage image = imageOf(picture.picture);
        QSizeF size(picture.width / hundredthsPerPoint, picture.height / hundredthsPerPoint);
        if (size.width() > room_.width() || size.height() > room_.height())
            size.scale(room_, Qt::KeepAspectRatio);
        painter_.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
        if (!image.isNull()) painter_.drawImage(QRectF(QPointF(0, 0), size), image);
    }

    void paint(const Drawing& drawing) {
        const double zoom =
            drawing.size().scaled(room_, Qt::KeepAspectRatio).width() / drawing.size().width();
        painter_.save();
        painter_.scale(zoom, zoom);
        drawing.paint(painter_);
        painter_.restore();
    }

    QPainter painter_;
    QSizeF room_;
};

} // namespace

QPageLayout pageLayout(Orientation orientation) {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4),
            orientation == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape,
            QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter};
}

Printer::Area printableArea(const QPageLayout& layout) {
    const QSizeF room = roomOf(layout);
    return {room.width() * hundredthsPerPoint, room.height() * hundredthsPerPoint};
}

Orientation orientationOf(const PrintJob& job) {
    const bool wide = widestLine(job) * smallestShare > roomOf(pageLayout(Orientation::Portrait)).width();
    return wide ? Orientation::Landscape : job.orientation;
}

std::vector<Page> layOutPages(const PrintJob& job, QSizeF room) {
    const double widest = widestLine(job);
    PageSetter setter(room, widest > room.width() ? std::max(room.width() / widest, smallestShare) : 1);
    for (const PrintOperation& operation : job.operations)
        std::visit([&](const auto& content) { setter.add(content); }, operation);
    return std::move(setter).pages();
}

void printOn(QPagedPaintDevice& device, const PrintJob& job) {
    const std::vector<Page> pages = layOutPages(job, roomOf(device.pageLayout()));
    const QPageRanges wanted = device.pageRanges();
    PagePainter painter(device);
    bool first = true;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const auto number = static_cast<int>(i) + 1;
        if (!wanted.isEmpty() && !wanted.contains(number)) continue;
        if (!first && !device.newPage()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
        first = false;
        painter.paint(pages[i], QString("Page %1 of %2").arg(number).arg(pages.size()));
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
    writer.setPageLayout(pageLayout(orientationOf(job)));
    printOn(writer, job);
    return bytes;
}

} // namespace vantore
