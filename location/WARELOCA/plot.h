#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "location/WARELOCA/flows.h"
#include "location/WARELOCA/problem.h"
#include "location/outline_map.h"

namespace vantore::wareloca {

/// The plots over the outline map. All throw what `mapPlace` throws.

/// Clears the surface and draws the map.
void plotMap(PictureSurface& surface, Scale scale, const OutlineMap& map);

/// Marks places in black.
void plotPlaces(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Place> places);

std::vector<Place> customerPlaces(const Case& problem);
std::vector<Place> warehousePlaces(const Case& problem);
std::vector<Place> plantPlaces(const Case& problem);

/// The name of a warehouse or a plant by its row, printed beside it; empty where no names are wanted.
using NameOf = std::function<std::string(int row)>;

/// Draws a line from each customer to his warehouse.
void plotDeliveries(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Flow> flows,
                    const NameOf& warehouseName);

/// Draws a line from each customer's warehouse to the plant that supplies it for him.
void plotSupplies(PictureSurface& surface, Scale scale, const OutlineMap& map, std::span<const Flow> flows,
                  const NameOf& plantName);

} // namespace vantore::wareloca
