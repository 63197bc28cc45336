#include "demand/INPOL/plot.h"

#include <algorithm>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::inpol {

namespace {

constexpr int firstPlotted = 2;
constexpr int lastPlotted = 100;

/// Where the search for the least value starts; the search for the largest starts at 0.
constexpr double leastFrom = 9E20;

constexpr const char* costLabel = "Total Cost, $";
constexpr const char* inventoryLabel = "Average inventory level";
constexpr const char* serviceLabel = "Service level, %";

struct Range {
    double least = leastFrom;
    double most = 0;

    void take(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
};

/// A row as the chosen system sees it.
struct Figures {
    Number service, cost, inventory, orderPoint;
};

Figures figuresOf(const SensitivityRow& row, PlottedSystem system) {
    if (system == PlottedSystem::ReorderPoint)
        return {100 * row.ropInStock, row.ropTotal, row.ropAvgInv, row.reorderPoint};
    return {100 * row.prInStock, row.prTotal, row.prAvgInv, row.maxLevel};
}

ChartPoint pointOf(const Figures& figures, PlottedCurve curve) {
    switch (curve) {
    case PlottedCurve::CostByService: return {figures.service, figures.cost};
    case PlottedCurve::CostByInventory: return {figures.inventory, figures.cost};
    case PlottedCurve::InventoryByOrderPoint: return {figures.orderPoint, figures.inventory};
    case PlottedCurve::InventoryByService: break;
    }
    return {figures.service, figures.inventory};
}

const char* horizontalLabel(PlottedSystem system, PlottedCurve curve) {
    if (curve == PlottedCurve::CostByInventory) return inventoryLabel;
    if (curve != PlottedCurve::InventoryByOrderPoint) return serviceLabel;
    return system == PlottedSystem::ReorderPoint ? "Reorder point quantity" : "Max level";
}

bool showsCost(PlottedCurve curve) {
    return curve == PlottedCurve::CostByService || curve == PlottedCurve::CostByInventory;
}

/// Takes the axis' start off all horizontal values and gives the start.
double shiftToStart(std::vector<ChartPoint>& points, Number least) {
    const Number start = wholePart(100 * least) / 100;
    for (ChartPoint& point : points) point.x = point.x - start;
    return start;
}

} // namespace

ChartData curveOf(const Sensitivity& sensitivity, PlottedSystem system, int product, PlottedCurve curve) {
    ChartSeries series;
    Range horizontal;
    Range vertical;
    for (int level = firstPlotted; level <= lastPlotted; ++level) {
        series.points.push_back(pointOf(figuresOf(sensitivity.rows(product, level), system), curve));
        horizontal.take(series.points.back().x);
        vertical.take(series.points.back().y);
    }
    const double start = shiftToStart(series.points, horizontal.least);
    ChartData chart;
    chart.title = joined(system == PlottedSystem::ReorderPoint ? "REORDER POINT SYSTEM, PRODUCT "
                                                               : "PERIODIC REVIEW SYSTEM, PRODUCT ",
                         product);
    const std::string label = std::string(horizontalLabel(system, curve)) + " (";
    chart.x = {joined(label, start) + "+)", 0, 0};
    for (const ChartPoint& point : series.points) chart.x.high = std::max(chart.x.high, point.x);
    chart.y = {showsCost(curve) ? costLabel : inventoryLabel, vertical.least, vertical.most};
    series.name = chart.y.label;
    chart.series.push_back(std::move(series));
    return chart;
}

} // namespace vantore::inpol
