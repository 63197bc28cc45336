#include "location/weighted_points.h"

#include "shell/base/number_text.h"

namespace vantore {

std::optional<Message> rangeFault(const WeightedPoint& point, const PointRanges& ranges) {
    for (const PointRange& range : ranges) {
        const double value = point.*range.value;
        if (value < range.least || value > range.most) return Message{range.text, range.title};
    }
    return std::nullopt;
}

std::optional<Message> rangeFault(std::span<const WeightedPoint> points, const PointRanges& ranges) {
    int number = 0;
    for (const WeightedPoint& point : points) {
        ++number;
        if (const auto fault = rangeFault(point, ranges))
            return Message{joined(fault->text + "  Check point ", number), fault->title};
    }
    return std::nullopt;
}

void printPoints(PrintLines& page, std::span<const WeightedPoint> points) {
    page.line("Point data:");
    page.line("                    X coor-     Y coor-                         Transport");
    page.line("Point               dinate      dinate         Volume           rate");
    for (const WeightedPoint& point : points) {
        page.text(point.label);
        page.tab(21).text(format(point.x, "##,###.#0")).tab(33).text(format(point.y, "##,###.#0"));
        page.tab(48).text(format(point.volume, "###,###,##0"));
        page.tab(65).text(format(point.rate, "##,###.###0")).endLine();
    }
}

} // namespace vantore
