#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/palette.h"

namespace vantore {

enum class SeriesKind { Line, Bars, Points };

struct ChartPoint {
    double x, y;
};

struct ChartSeries {
    std::string name;
    SeriesKind kind = SeriesKind::Line;
    int colour = colour::lightRed;
    std::vector<ChartPoint> points;
};

/// An axis with its ends; the ticks between them are the drawer's, at round values.
struct ChartAxis {
    std::string label;
    double low = 0;
    double high = 1;
};

/// What a chart shows: all values finite.
struct ChartData {
    std::string title;
    ChartAxis x, y;
    std::vector<ChartSeries> series;
};

class Chart : public Control {
  public:
    using Control::Control;

    ChartData data;
};

} // namespace vantore
