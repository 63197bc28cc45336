#pragma once

#include <functional>
#include <optional>

#include "routing/plot_transform.h"
#include "shell/forms/picture_surface.h"
#include "shell/suite.h"

namespace vantore::routing {

/// How a user changes what is seen of a routing module's plot.

/// Asks for a step of the vantage, as `stepped` takes it; nothing where the answer is no single character.
std::optional<char> askStep(Suite& suite);

/// Lets zooming and moving the plot itself do the same steps, so many times each.
void followSteps(PictureSurface& surface, const std::function<void(char step, int times)>& take);

} // namespace vantore::routing
