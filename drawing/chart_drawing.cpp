#include "drawing/chart_drawing.h"

#include <QAreaSeries>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPainter>
#include <QScatterSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double titleSize = 11; // points
constexpr double labelSize = 9;
constexpr double tickSize = 8;
constexpr double pointSize = 7; // pixels
constexpr double lineWidth = 1.8;
constexpr double barShare = .7; // of the distance between two bars
constexpr int chartMargin = 8;  // pixels
constexpr int mostTicks = 10;
constexpr int leastTicks = 2;
constexpr double besideAxis = 90;     // pixels of titles, labels and legend along an axis
constexpr double tickRoomAcross = 30; // pixels of a label under the axis
constexpr double tickRoomUp = 24;     // pixels of a label beside it
constexpr double pointsEdge = .03;    // of an axis, so that a point at its end is drawn whole
constexpr double leastShare = 1E-6;   // of a value: the length of an axis whose ends are equal

QFont chartFont(double points, double scale, bool bold = false) {
    return qtFont({.family = "Arial", .size = points * scale, .bold = bold});
}

/// Decimals that tell neighbouring ticks apart.
int tickDecimals(double tick) {
    return std::clamp(static_cast<int>(-std::floor(std::log10(tick) + 1e-9)), 0, 9);
}

/// The ends of an axis as drawn: two that are equal are parted, and `edge` of the length is added at both
/// ends.
ChartAxis drawnAxis(const ChartAxis& axis, double edge) {
    ChartAxis drawn = axis;
    if (!(axis.high > axis.low)) drawn.high = axis.low + std::max(1.0, std::abs(axis.low) * leastShare);
    const double margin = (drawn.high - drawn.low) * edge;
    drawn.low -= margin;
    drawn.high += margin;
    return drawn;
}

/// As many ticks as have room for their labels: those without it are shown as dots.
int mostTicksOn(double length, double room, double scale) {
    return std::clamp(static_cast<int>((length - besideAxis * scale) / (room * scale)), leastTicks,
                      mostTicks);
}

struct AxisLook {
    Qt::Alignment side;
    int mostTicks;
    double scale; ///< of its texts
    double edge;  ///< share of its length that is added at both ends
};

QValueAxis* addAxis(QChart& chart, const ChartAxis& ends, const AxisLook& look) {
    auto* item = new QValueAxis(&chart);
    const ChartAxis axis = drawnAxis(ends, look.edge);
    const double tick = roundTick(axis.low, axis.high, look.mostTicks);
    item->setRange(axis.low, axis.high);
    item->setTickType(QValueAxis::TicksDynamic);
    item->setTickAnchor(std::ceil(axis.low / tick) * tick);
    item->setTickInterval(tick);
    item->setLabelFormat(QString("%.%1f").arg(tickDecimals(tick)));
    item->setTitleText(qtText(axis.label).toHtmlEscaped());
    item->setTitleFont(chartFont(labelSize, look.scale));
    item->setLabelsFont(chartFont(tickSize, look.scale));
    item->setGridLinePen(QPen(QColor(0xE2, 0xE2, 0xE2), 1));
    item->setLinePen(QPen(QColor(0x60, 0x60, 0x60), 1));
    item->setLabelsColor(Qt::black);
    item->setTitleBrush(Qt::black);
    chart.addAxis(item, look.side);
    return item;
}

QList<QPointF> pointsOf(const ChartSeries& series) {
    QList<QPointF> points;
    points.reserve(static_cast<qsizetype>(series.points.size()));
    for (const ChartPoint& point : series.points) points.append({point.x, point.y});
    return points;
}

/// The outline of bars that stand on 0 around their x, as wide as the closest two allow.
QList<QPointF> barOutline(const std::vector<ChartPoint>& points) {
    double step = 1;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double apart = std::abs(points[i].x - points[i - 1].x);
        if (apart > 0) step = i == 1 ? apart : std::min(step, apart);
    }
    const double half = step * barShare / 2;
    QList<QPointF> outline;
    for (const ChartPoint& point : points)
        outline << QPointF(point.x - half, 0) << QPointF(point.x - half, point.y)
                << QPointF(point.x + half, point.y) << QPointF(point.x + half, 0);
    return outline;
}

QAbstractSeries* makeSeries(QChart& chart, const ChartSeries& series, double scale) {
    const QColor colour = qtColour(series.colour);
    if (series.kind == SeriesKind::Points) {
        auto* points = new QScatterSeries(&chart);
        points->setMarkerSize(pointSize * scale);
        points->setColor(colour);
        points->setBorderColor(colour);
        points->replace(pointsOf(series));
        return points;
    }
    auto* line = new QLineSeries(&chart);
    line->setPen(QPen(colour, lineWidth * scale));
    if (series.kind == SeriesKind::Line) {
        line->replace(pointsOf(series));
        return line;
    }
    line->replace(barOutline(series.points));
    auto* bars = new QAreaSeries(line);
    line->setParent(bars);
    bars->setParent(&chart);
    bars->setBrush(colour);
    bars->setPen(QPen(colour, 1));
    return bars;
}

void addSeries(QChart& chart, const ChartData& data, QValueAxis* x, QValueAxis* y, double scale) {
    for (const ChartSeries& series : data.series) {
        QAbstractSeries* item = makeSeries(chart, series, scale);
        item->setName(qtText(series.name).toHtmlEscaped());
        chart.addSeries(item);
        item->attachAxis(x);
        item->attachAxis(y);
    }
}

} // namespace

double roundTick(double low, double high, int most) {
    const double span = high - low;
    if (!(span > 0)) return 1;
    const double magnitude = std::pow(10, std::floor(std::log10(span / most)));
    for (const double step : {1.0, 2.0, 5.0})
        if (span / (step * magnitude) <= most) return step * magnitude;
    return 10 * magnitude;
}

void paintChart(QPainter& painter, const ChartData& data, QSizeF size, double scale) {
    QGraphicsScene scene(QRectF(QPointF(0, 0), size));
    QChart& chart = *new QChart();
    scene.addItem(&chart);
    chart.setBackgroundVisible(false);
    chart.layout()->setContentsMargins(0, 0, 0, 0);
    chart.setMargins(QMargins(chartMargin, chartMargin, chartMargin, chartMargin));
    chart.setTitleFont(chartFont(titleSize, scale, true));
    chart.setTitleBrush(Qt::black);
    chart.setTitle(qtText(data.title).toHtmlEscaped());
    chart.legend()->setVisible(data.series.size() > 1);
    chart.legend()->setAlignment(Qt::AlignBottom);
    chart.legend()->setFont(chartFont(tickSize, scale));
    const bool points = std::ranges::any_of(
        data.series, [](const ChartSeries& series) { return series.kind == SeriesKind::Points; });
    const double edge = points ? pointsEdge : 0;
    QValueAxis* x = addAxis(chart, data.x,
                            {Qt::AlignBottom, mostTicksOn(size.width(), tickRoomAcross, scale), scale, edge});
    QValueAxis* y =
        addAxis(chart, data.y, {Qt::AlignLeft, mostTicksOn(size.height(), tickRoomUp, scale), scale, edge});
    addSeries(chart, data, x, y, scale);
    chart.resize(size);
    chart.layout()->activate();
    painter.setRenderHint(QPainter::Antialiasing, true);
    scene.render(&painter, QRectF(QPointF(0, 0), size), QRectF(QPointF(0, 0), size));
}

} // namespace vantore
