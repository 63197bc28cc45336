#include "routing/ROUTESEQ/plot.h"

#include <algorithm>
#include <cmath>

#include "routing/destring.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::routeseq {

using routing::MapPoint;
using routing::SurfacePoint;

namespace {

// Units of the design.
constexpr double stopRadius = 3;
constexpr double halfDepot = 5;
constexpr double margin = 8;
constexpr double headingTop = 1;
constexpr double captionTop = 15;
constexpr double titleLeft = 248;
constexpr double distanceLeft = 430;
constexpr double xCaptionLeft = 500;
constexpr double axisGap = 6; // between the outermost points and an axis
constexpr double tickLength = 3;
constexpr double tickSpace = 40; // that a tick's text needs along the axis
constexpr double characterWidth = 5;
constexpr double halfLine = 5;

constexpr double textSize = 8; // points
constexpr double titleSize = 10;
constexpr double tickSize = 7;
constexpr int mostTicks = 10;
constexpr std::size_t labelCharacters = 24;

/// The coordinates that an axis covers.
struct Range {
    double least = 0;
    double most = 0;

    double at(int tick, int ticks) const {
        return ticks == 0 ? least : least + (most - least) * tick / ticks;
    }

    /// The power of ten in which the axis is labelled: its ticks have three digits before the point at most.
    double unit() const {
        const double largest = std::max(std::abs(least), std::abs(most));
        double unit = 1;
        while (largest / unit >= 1000) unit *= 10;
        return unit;
    }
};

Range rangeOf(const std::vector<MapPoint>& points, double MapPoint::*coordinate) {
    const auto [least, most] = std::ranges::minmax(points, {}, coordinate);
    return {least.*coordinate, most.*coordinate};
}

std::string tickText(const Range& range, int tick, int ticks) {
    const double span = (range.most - range.least) / range.unit();
    const char* mask = span >= mostTicks ? "##0" : span >= 1 ? "#.0" : ".#0";
    return format(range.at(tick, ticks) / range.unit(), mask);
}

/// Steps between the ticks of an axis of that length.
int ticksFor(double length) {
    return std::min(static_cast<int>(length / tickSpace), mostTicks);
}

/// Draws in units of the design.
class Pen {
  public:
    Pen(PictureSurface& surface, Scale scale) : surface_(surface), scale_(scale) {}

    void line(SurfacePoint from, SurfacePoint to, int colour = colour::black) {
        surface_.line(from.x * scale_.x, from.y * scale_.y, to.x * scale_.x, to.y * scale_.y, colour);
    }

    void text(SurfacePoint at, const std::string& text, int colour = colour::black) {
        surface_.moveTo(at.x * scale_.x, at.y * scale_.y);
        surface_.print(text, colour);
    }

    void font(double points, bool bold = false) { surface_.font = {"Arial", points * scale_.x, bold}; }

  private:
    PictureSurface& surface_;
    Scale scale_;
};

/// The axes stand left of and below the points, and move and grow with them.
class Axes {
  public:
    Axes(const std::vector<MapPoint>& points, const routing::PlotTransform& place)
        : x_(rangeOf(points, &MapPoint::x)), y_(rangeOf(points, &MapPoint::y)), place_(place),
          left_(place({x_.least, y_.least}).x - axisGap), bottom_(place({x_.least, y_.least}).y + axisGap) {}

    void draw(Pen& pen) const {
        pen.font(tickSize);
        drawX(pen);
        drawY(pen);
        pen.text({margin, captionTop}, "Y coordinates in" + str(y_.unit()) + "s");
        pen.text({xCaptionLeft, captionTop}, "X coordinates in" + str(x_.unit()) + "s");
    }

  private:
    void drawX(Pen& pen) const {
        const double begin = place_({x_.least, y_.least}).x;
        const double end = place_({x_.most, y_.least}).x;
        const int ticks = ticksFor(end - begin);
        pen.line({begin, bottom_}, {end, bottom_});
        for (int tick = 0; tick <= ticks; ++tick) {
            const double at = place_({x_.at(tick, ticks), y_.least}).x;
            const std::string text = tickText(x_, tick, ticks);
            pen.line({at, bottom_}, {at, bottom_ + tickLength});
            pen.text({at - static_cast<double>(length(text)) * characterWidth / 2, bottom_ + tickLength},
                     text);
        }
    }

    void drawY(Pen& pen) const {
        const double begin = place_({x_.least, y_.least}).y;
        const double end = place_({x_.least, y_.most}).y;
        const int ticks = ticksFor(begin - end);
        pen.line({left_, begin}, {left_, end});
        for (int tick = 0; tick <= ticks; ++tick) {
            const double at = place_({x_.least, y_.at(tick, ticks)}).y;
            const std::string text = tickText(y_, tick, ticks);
            const double width = static_cast<double>(length(text)) * characterWidth;
            pen.line({left_ - tickLength, at}, {left_, at});
            pen.text({left_ - tickLength - width, at - halfLine}, text);
        }
    }

    Range x_, y_;
    const routing::PlotTransform& place_;
    double left_, bottom_;
};

std::vector<MapPoint> pointsOf(const StopSequencingProblem& problem) {
    std::vector<MapPoint> points = {{problem.depotX, problem.depotY}};
    for (int i = 1; i <= problem.stopCount; ++i) points.push_back({problem.stops(i).x, problem.stops(i).y});
    return points;
}

void drawHeading(Pen& pen, const std::string& label) {
    pen.font(titleSize, true);
    pen.text({titleLeft, headingTop}, "LOCATION OF POINTS", colour::lightBlue);
    pen.font(textSize);
    pen.text({margin, headingTop}, "Problem: " + left(label, labelCharacters));
}

} // namespace

StopMap::StopMap(const StopSequencingProblem& problem, routing::Vantage vantage)
    : label_(problem.label), points_(pointsOf(problem)), place_(points_, vantage) {}

void StopMap::draw(PictureSurface& surface, Scale scale) const {
    surface.clear();
    Pen pen(surface, scale);
    drawHeading(pen, label_);
    Axes(points_, place_).draw(pen);
    const SurfacePoint depot = place_(points_.front());
    surface.box((depot.x - halfDepot) * scale.x, (depot.y - halfDepot) * scale.y,
                (depot.x + halfDepot) * scale.x, (depot.y + halfDepot) * scale.y, colour::lightBlue, true);
    for (std::size_t stop = 1; stop < points_.size(); ++stop) {
        const SurfacePoint at = place_(points_[stop]);
        surface.circle(at.x * scale.x, at.y * scale.y, stopRadius * scale.x, colour::black, true);
    }
}

void StopMap::drawNumbers(PictureSurface& surface, Scale scale) const {
    Pen pen(surface, scale);
    pen.font(textSize);
    for (std::size_t stop = 1; stop < points_.size(); ++stop) {
        const SurfacePoint at = place_(points_[stop]);
        pen.text({at.x + stopRadius + 2, at.y - 2 * halfLine}, format(static_cast<double>(stop), "##0"));
    }
}

void StopMap::drawRoute(PictureSurface& surface, Scale scale, const MeasuredSequence& sequence) const {
    Pen pen(surface, scale);
    const SurfacePoint depot = place_(points_.front());
    SurfacePoint at = depot;
    const CountedTable<double> stops = routing::destring(sequence.text);
    for (const double number : stops.span()) {
        const int stop = toInt32(number);
        checkIndex(stop, 0, static_cast<int>(points_.size()) - 1);
        const SurfacePoint next = place_(points_[static_cast<std::size_t>(stop)]);
        pen.line(at, next, colour::lightRed);
        at = next;
    }
    pen.line(at, depot, colour::lightRed);
    pen.font(textSize);
    pen.text({distanceLeft, headingTop},
             "Total distance = " + format(sequence.distance, "###,###,###,###.##0"), colour::lightRed);
}

} // namespace vantore::routeseq
