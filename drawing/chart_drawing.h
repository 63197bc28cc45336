#pragma once

#include <QSizeF>

#include "shell/forms/chart.h"

class QPainter;

namespace vantore {

/// The round distance (1, 2 or 5 times a power of ten) that puts at most `most` ticks between the ends of an
/// axis. 1 when the ends are the same.
double roundTick(double low, double high, int most);

/// Paints a chart into the rectangle from (0, 0) to `size`. `scale` multiplies the size of its texts.
void paintChart(QPainter& painter, const ChartData& chart, QSizeF size, double scale);

} // namespace vantore
