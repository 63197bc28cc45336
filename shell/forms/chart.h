#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/palette.h"

namespace vantore {

enum class SeriesKind { Line, Bars, Points };

struct ChartPoint {
    double x, y;

    bool operator==(const ChartPoint&) const = default;
};

struct ChartSeries {
    std::string name;
    SeriesKind kind = SeriesKind::Line;
    int colour = colour::lightRed;
    std::vector<ChartPoint> points;

    bool operator==(const ChartSeries&) const = default;
};

/// An axis with its ends; the ticks between them are the drawer's, at round values.
struct ChartAxis {
    std::string label;
    double low = 0;
    double high = 1;

    bool operator==(const ChartAxis&) const = default;
};

/// What a chart shows: all values finite.
struct ChartData {
    std::string title;
    ChartAxis x, y;
    std::vector<ChartSeries> series;

    bool operator==(const ChartData&) const = default;
};

class Chart : public Control {
  public:
    using Control::Control;

    ChartData data;
};

} // namespace vantore
