#include "script/transcript.h"

#include <cmath>
#include <variant>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

std::string withLineEndsAsMarks(std::string_view text) {
    return replaced(replaced(replaced(text, "\r\n", "\n"), "\r", "\n"), "\n", "\\n");
}

std::string unit(double value) {
    return defaultText(std::nearbyint(value));
}

std::string fontText(const Font& font) {
    return font.family + " " + defaultText(font.size) + (font.bold ? " bold" : "");
}

std::string colourText(int colour) {
    return " colour " + std::to_string(colour);
}

std::string isSelected(const Control& control) {
    const auto* choice = dynamic_cast<const Choice*>(&control);
    return choice != nullptr && choice->selected ? " selected" : "";
}

struct OperationText {
    std::string operator()(const SurfaceText& t) const {
        return "text " + unit(t.x) + " " + unit(t.y) + " " + inQuotes(t.text) + " " + fontText(t.font) +
               colourText(t.colour);
    }
    std::string operator()(const SurfaceLine& l) const {
        return "line " + unit(l.x1) + " " + unit(l.y1) + " " + unit(l.x2) + " " + unit(l.y2) +
               colourText(l.colour) + (l.width == 1 ? "" : " width " + defaultText(l.width));
    }
    std::string operator()(const SurfaceBox& b) const {
        return "box " + unit(b.x1) + " " + unit(b.y1) + " " + unit(b.x2) + " " + unit(b.y2) +
               colourText(b.colour) + (b.filled ? " filled" : "");
    }
    std::string operator()(const SurfaceCircle& c) const {
        return "circle " + unit(c.x) + " " + unit(c.y) + " " + unit(c.radius) + colourText(c.colour) +
               (c.filled ? " filled" : "");
    }
    std::string operator()(const PrintedLine& line) const {
        return "print " + inQuotes(line.text) + " " + fontText(line.font) + colourText(line.colour);
    }
    std::string operator()(const PrintedPicture& picture) const {
        return "picture " + std::to_string(picture.picture.width) + "x" +
               std::to_string(picture.picture.height);
    }
};

const char* kindText(SeriesKind kind) {
    switch (kind) {
    case SeriesKind::Line: return "line";
    case SeriesKind::Bars: return "bars";
    case SeriesKind::Points: return "points";
    }
    return "";
}

} // namespace

std::string inQuotes(std::string_view text) {
    return "\"" + replaced(withLineEndsAsMarks(text), "\"", "\\\"") + "\"";
}

std::string stateLine(const Control& control) {
    return control.name + ": " + (control.shown() ? "visible" : "hidden") +
           (control.enabled() ? " enabled" : " disabled") + isSelected(control) + " " +
           inQuotes(control.shownText());
}

void writeGrid(std::ostream& out, const DataGrid& grid) {
    for (int row = 0; row < grid.rows(); ++row) {
        for (int col = 0; col < grid.cols(); ++col)
            out << (col > 0 ? " | " : "") << withLineEndsAsMarks(grid.cell(row, col));
        out << '\n';
    }
}

void writeReport(std::ostream& out, const ReportScreen& report) {
    for (const ReportLine& line : report.lines()) out << "| " << line.text << '\n';
}

void writeSurface(std::ostream& out, const PictureSurface& surface) {
    for (const SurfaceOperation& operation : surface.operations())
        out << std::visit(OperationText{}, operation) << '\n';
}

void writeChart(std::ostream& out, const ChartData& chart) {
    out << "chart " << inQuotes(chart.title) << '\n';
    const auto axis = [&out](const char* name, const ChartAxis& a) {
        out << name << ' ' << inQuotes(a.label) << ' ' << defaultText(a.low) << ' ' << defaultText(a.high)
            << '\n';
    };
    axis("x", chart.x);
    axis("y", chart.y);
    for (const ChartSeries& series : chart.series) {
        out << "series " << inQuotes(series.name) << ' ' << kindText(series.kind) << colourText(series.colour)
            << ':';
        for (const ChartPoint& p : series.points)
            out << " (" << defaultText(p.x) << ',' << defaultText(p.y) << ')';
        out << '\n';
    }
}

void writePrintJob(std::ostream& out, const PrintJob& job) {
    for (const PrintOperation& operation : job.operations)
        out << std::visit(OperationText{}, operation) << '\n';
    out << "end\n";
}

} // namespace vantore
