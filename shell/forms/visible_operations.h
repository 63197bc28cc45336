#pragma once

#include <vector>

#include "shell/forms/picture_surface.h"

namespace vantore {

/// What is left to be drawn of a surface: a text that is printed again at the same place in the paper's
/// colour is wiped by that, and neither is drawn. To draw the one over the other would leave the grey edges
/// of its letters. What is drawn several times in the same way is drawn once, where it was last: lines and
/// letters drawn over themselves lose their smooth edges.
std::vector<SurfaceOperation> visibleOperations(const std::vector<SurfaceOperation>& operations);

} // namespace vantore
