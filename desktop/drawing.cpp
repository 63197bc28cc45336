#include "desktop/drawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <variant>

#include "desktop/chart_drawing.h"
#include "desktop/fonts.h"
#include "shell/forms/visible_operations.h"

namespace vantore {

namespace {

/// Paints one operation after another.
class OperationPainter {
  public:
    explicit OperationPainter(QPainter& painter) : painter_(painter) {}

    void operator()(const SurfaceText& text) {
        const QFont font = qtFont(text.font, 1, painter_.device());
        const QFontMetricsF metrics(font, painter_.device());
        painter_.setFont(font);
        painter_.setPen(qtColour(text.colour));
        painter_.drawText(QPointF(text.x, text.y + metrics.ascent()), qtText(text.text));
    }

    void operator()(const SurfaceLine& line) {
        const bool slanted = line.x1 != line.x2 && line.y1 != line.y2;
        painter_.setRenderHint(QPainter::Antialiasing, slanted);
        painter_.setPen(QPen(qtColour(line.colour), line.width, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
    }

    void operator()(const SurfaceBox& box) {
        painter_.setRenderHint(QPainter::Antialiasing, false);
        outline(box.colour, box.filled);
        painter_.drawRect(QRectF(QPointF(box.x1, box.y1), QPointF(box.x2, box.y2)).normalized());
    }

    void operator()(const SurfaceCircle& circle) {
        painter_.setRenderHint(QPainter::Antialiasing, true);
        outline(circle.colour, circle.filled);
        painter_.drawEllipse(QPointF(circle.x, circle.y), circle.radius, circle.radius);
    }

  private:
    void outline(int colour, bool filled) {
        painter_.setPen(QPen(qtColour(colour), 1));
        painter_.setBrush(filled ? QBrush(qtColour(colour)) : QBrush(Qt::NoBrush));
    }

    QPainter& painter_;
};

} // namespace

QColor qtColour(int number) {
    return QColor::fromRgb(rgb(number));
}

void paintSurface(QPainter& painter, const PictureSurface& surface) {
    OperationPainter paint(painter);
    for (const SurfaceOperation& operation : visibleOperations(surface.operations()))
        std::visit(paint, operation);
}

QSizeF unitsOf(const Form& form, const Control& control) {
    return {control.design.width * form.scale().x / twipsPerPixel,
            control.design.height * form.scale().y / twipsPerPixel};
}

void paintDrawing(QPainter& painter, const Form& form, const Control& drawing) {
    const QRectF paper(QPointF(0, 0), unitsOf(form, drawing));
    painter.fillRect(paper, Qt::white);
    painter.setClipRect(paper);
    if (const auto* surface = dynamic_cast<const PictureSurface*>(&drawing)) {
        paintSurface(painter, *surface);
    } else if (const auto* chart = dynamic_cast<const Chart*>(&drawing)) {
        paintChart(painter, chart->data, paper.size(), std::min(form.scale().x, form.scale().y));
    }
}

} // namespace vantore
