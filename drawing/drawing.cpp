#include "drawing/drawing.h"

#include <QPainter>
#include <algorithm>

#include "drawing/chart_drawing.h"
#include "drawing/fonts.h"
#include "shell/forms/visible_operations.h"

namespace vantore {

namespace {

constexpr double smallestShare = .8; // of its size to which a drawing is made smaller for its lowest text

/// Paints one operation after another.
class OperationPainter {
  public:
    OperationPainter(QPainter& painter, const std::vector<PaintedText>& texts)
        : painter_(painter), nextText_(texts.begin()) {}

    void operator()(const SurfaceText& text) {
        painter_.setPen(qtColour(text.colour));
        drawLine(painter_, {text.x, text.y}, (nextText_++)->painted, text.font);
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
    std::vector<PaintedText>::const_iterator nextText_;
};

QRectF placeOf(const Form& form, const Control& control) {
    return {QPointF(control.design.left * form.scale().x, control.design.top * form.scale().y) /
                twipsPerPixel,
            unitsOf(form, control)};
}

} // namespace

QColor qtColour(int number) {
    return QColor::fromRgb(rgb(number));
}

Qt::Alignment qtAlignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left: return Qt::AlignLeft;
    case Alignment::Centre: return Qt::AlignHCenter;
    case Alignment::Right: return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

QSizeF unitsOf(const Form& form, const Control& control) {
    return {control.design.width * form.scale().x / twipsPerPixel,
            control.design.height * form.scale().y / twipsPerPixel};
}

SurfacePage::SurfacePage(const PictureSurface& surface, QSizeF size)
    : operations_(visibleOperations(surface.operations())) {
    double lowest = size.height();
    for (const SurfaceOperation& operation : operations_) {
        const auto* text = std::get_if<SurfaceText>(&operation);
        if (text == nullptr) continue;
        const QString whole = qtText(text->text);
        const QString painted = elided(whole, text->font, size.width() - text->x);
        const QRectF place({text->x, text->y}, lineSize(painted, text->font));
        texts_.push_back({place, whole, painted});
        const bool seen = !surface.onZoom && place.bottom() <= size.height() / smallestShare;
        if (seen) lowest = std::max(lowest, place.bottom());
    }
    share_ = size.height() > 0 ? size.height() / lowest : 1;
}

void SurfacePage::paint(QPainter& painter) const {
    painter.save();
    painter.scale(share_, share_);
    OperationPainter paint(painter, texts_);
    for (const SurfaceOperation& operation : operations_) std::visit(paint, operation);
    painter.restore();
}

const PaintedText* SurfacePage::textAt(QPointF place) const {
    const auto found = std::find_if(texts_.rbegin(), texts_.rend(), [&](const PaintedText& text) {
        return text.place.contains(place / share_);
    });
    return found == texts_.rend() ? nullptr : &*found;
}

Drawing::Drawing(const Form& form, const Control& control) {
    add(form, control);
    paper_ = placeOf(form, control);
}

std::optional<Drawing> Drawing::ofWindow(const Form& form) {
    Drawing drawing;
    for (const auto& control : form.controls())
        if (control->shown()) drawing.add(form, *control);
    const bool labelsOnly = std::all_of(drawing.parts_.begin(), drawing.parts_.end(), [](const Part& part) {
        return std::holds_alternative<Text>(part.content);
    });
    if (labelsOnly) return std::nullopt;
    for (const Part& part : drawing.parts_) drawing.paper_ |= part.place;
    return drawing;
}

void Drawing::add(const Form& form, const Control& control) {
    textScale_ = std::min(form.scale().x, form.scale().y);
    const QRectF place = placeOf(form, control);
    if (const auto* surface = dynamic_cast<const PictureSurface*>(&control)) {
        parts_.push_back({place, SurfacePage(*surface, place.size())});
    } else if (const auto* chart = dynamic_cast<const Chart*>(&control)) {
        parts_.push_back({place, chart->data});
    } else if (const auto* label = dynamic_cast<const Label*>(&control)) {
        const Font font{.size = label->fontSize * form.scale().x, .bold = label->bold};
        parts_.push_back(
            {place, Text{qtText(label->caption), font, label->textColour, qtAlignment(label->alignment)}});
    }
}

void Drawing::paint(QPainter& painter) const {
    painter.fillRect(QRectF(QPointF(0, 0), size()), Qt::white);
    for (const Part& part : parts_) {
        painter.save();
        painter.translate(part.place.topLeft() - paper_.topLeft());
        painter.setClipRect(QRectF(QPointF(0, 0), part.place.size()), Qt::IntersectClip);
        paintPart(painter, part);
        painter.restore();
    }
}

void Drawing::paintPart(QPainter& painter, const Part& part) const {
    if (const auto* page = std::get_if<SurfacePage>(&part.content)) return page->paint(painter);
    if (const auto* chart = std::get_if<ChartData>(&part.content))
        return paintChart(painter, *chart, part.place.size(), textScale_);
    const auto& text = std::get<Text>(part.content);
    painter.setPen(qtColour(text.colour));
    drawText(painter, QRectF(QPointF(0, 0), part.place.size()),
             Qt::TextWordWrap | static_cast<int>(text.alignment), text.text, text.font);
}

} // namespace vantore
