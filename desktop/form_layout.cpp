#include "desktop/form_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantore {

namespace {

constexpr double margin = 120; // twips, beside a control that reaches beyond its form

template <class... Kinds>
bool isOneOf(const Control& control) {
    return ((dynamic_cast<const Kinds*>(&control) != nullptr) || ...);
}

bool takesRoom(const Control& control) {
    const auto* container = dynamic_cast<const Container*>(&control);
    if (container != nullptr) return !container->pages.empty();
    return isOneOf<DataGrid, ReportScreen, PictureSurface, Chart, ListBox>(control);
}

bool isPicture(const Control& control) {
    return isOneOf<Picture>(control);
}

/// The controls that take the extra room, and the frames around them.
std::vector<const Control*> stretchingControls(const Form& form) {
    std::vector<const Control*> found;
    for (const auto& kind : {takesRoom, isPicture}) {
        for (const auto& control : form.controls())
            if (control->shown() && kind(*control)) found.push_back(control.get());
        if (!found.empty()) break;
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        const Control* outer = found[i]->container;
        if (outer != nullptr && std::find(found.begin(), found.end(), outer) == found.end())
            found.push_back(outer);
    }
    return found;
}

} // namespace

QSize designSize(const Form& form) {
    double width = form.width;
    double height = form.height;
    for (const auto& control : form.controls()) {
        if (control->design.right() > form.width) width = std::max(width, control->design.right() + margin);
        if (control->design.bottom() > form.height)
            height = std::max(height, control->design.bottom() + margin);
    }
    return {static_cast<int>(std::ceil(width * form.scale().x / twipsPerPixel)),
            static_cast<int>(std::ceil(height * form.scale().y / twipsPerPixel))};
}

FormLayout::Direction::Direction(std::vector<Span> stretching, double extra)
    : stretching_(std::move(stretching)), extra_(extra) {
    std::sort(stretching_.begin(), stretching_.end(),
              [](const Span& a, const Span& b) { return a.start < b.start; });
    if (!stretching_.empty()) total_ = covered(std::numeric_limits<double>::max());
}

/// How much of what lies before a position stretches.
double FormLayout::Direction::covered(double position) const {
    double covered = 0;
    double reached = std::numeric_limits<double>::lowest();
    for (const Span& span : stretching_) {
        covered += std::max(0.0, std::min(span.end, position) - std::max(span.start, reached));
        reached = std::max(reached, span.end);
    }
    return covered;
}

double FormLayout::Direction::stretched(double position) const {
    return position + extra_ * covered(position) / total_;
}

double FormLayout::Direction::shift(const Span& control) const {
    if (stretching_.empty()) return extra_ / 2;
    double shift = 0;
    for (const Span& span : stretching_)
        if (span.end <= (control.start + control.end) / 2)
            shift = std::max(shift, stretched(span.end) - span.end);
    return shift;
}

FormLayout::FormLayout(const Form& form, QSize window) : stretching_(stretchingControls(form)) {
    const QSizeF design = designSize(form);
    zoom = std::min({1.0, window.width() / design.width(), window.height() / design.height()});
    x = form.scale().x * zoom / twipsPerPixel;
    y = form.scale().y * zoom / twipsPerPixel;
    std::vector<Direction::Span> columns, rows;
    for (const Control* control : stretching_) {
        columns.push_back({control->design.left, control->design.right()});
        rows.push_back({control->design.top, control->design.bottom()});
    }
    across_ = Direction(std::move(columns), (window.width() - design.width() * zoom) / x);
    down_ = Direction(std::move(rows), (window.height() - design.height() * zoom) / y);
}

bool FormLayout::stretches(const Control& control) const {
    return std::find(stretching_.begin(), stretching_.end(), &control) != stretching_.end();
}

QRect FormLayout::place(const Control& control) const {
    Rect r = control.design;
    if (stretches(control)) {
        r = {across_.stretched(r.left), down_.stretched(r.top), 0, 0};
        r.width = across_.stretched(control.design.right()) - r.left;
        r.height = down_.stretched(control.design.bottom()) - r.top;
    } else {
        // What stands in a frame of fixed size moves with the frame.
        const Control* mover = &control;
        while (mover->container != nullptr && !stretches(*mover->container)) mover = mover->container;
        r.left += across_.shift({mover->design.left, mover->design.right()});
        r.top += down_.shift({mover->design.top, mover->design.bottom()});
    }
    const QPoint topLeft(static_cast<int>(std::lround(r.left * x)), static_cast<int>(std::lround(r.top * y)));
    const QPoint end(static_cast<int>(std::lround(r.right() * x)),
                     static_cast<int>(std::lround(r.bottom() * y)));
    return {topLeft, end - QPoint(1, 1)};
}

} // namespace vantore
