#include "location/WARELOCA/plot.h"

#include "location/point_plot.h"

namespace vantore::wareloca {

namespace {

constexpr MapArea mapArea{0, 32, 634, 428}; // as large as the surface

class MapPlot {
  public:
    MapPlot(PictureSurface& surface, Scale scale, const OutlineMap& map)
        : surface_(surface), scale_(scale), map_(map) {
        surface_.font = {"Arial", 8 * scale.x, false};
        surface_.ink = colour::black;
    }

    void mark(Place place) { drawPoint(surface_, scale_, on(place)); }

    void connect(Place from, Place to, int ink) {
        const PlotPoint a = on(from);
        const PlotPoint b = on(to);
        surface_.line(a.x * scale_.x, a.y * scale_.y, b.x * scale_.x, b.y * scale_.y, ink);
    }

    void name(Place place, const std::string& text) { printBeside(surface_, scale_, on(place), text); }

  private:
    PlotPoint on(Place place) const { return mapPlace(map_, mapArea, {place.x, place.y}); }

    PictureSurface& surface_;
    Scale scale_;
    const OutlineMap& map_;
};

template <class Row, int Most>
std::vector<Place> placesOf(int count, const Table<Row, 1, Most>& rows) {
    std::vector<Place> places;
    for (int i = 1; i <= count; ++i) places.push_back({rows(i).x, rows(i).y});
    return places;
}

} // namespace

void plotMap(PictureSurface& surface, Scale scale, const OutlineMap& map) {
    surface.clear();
    drawMap(surface, scale, map, mapArea);
}

void plotPlaces(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Place> places) {
    MapPlot plot(surface, scale, map);
    for (const Place place : places) plot.mark(place);
}

std::vector<Place> customerPlaces(const Case& problem) {
    return placesOf(problem.customerCount, problem.customers);
}

std::vector<Place> warehousePlaces(const Case& problem) {
    return placesOf(problem.warehouseCount, problem.warehouses);
}

std::vector<Place> plantPlaces(const Case& problem) {
    return placesOf(problem.plantCount, problem.plants);
}

void plotDeliveries(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Flow> flows,
                    const NameOf& warehouseName) {
    MapPlot plot(surface, scale, map);
    for (const Flow& flow : flows) {
        plot.connect(flow.customer, flow.from, colour::lightRed);
        if (warehouseName) plot.name(flow.from, warehouseName(flow.warehouse));
    }
}

void plotSupplies(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Flow> flows,
                  const NameOf& plantName) {
    MapPlot plot(surface, scale, map);
    for (const Flow& flow : flows) {
        plot.connect(flow.from, flow.source, colour::lightBlue);
        if (plantName) plot.name(flow.source, plantName(flow.plant));
    }
}

} // namespace vantore::wareloca
