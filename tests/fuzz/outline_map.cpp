#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "location/outline_map.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

/// Any bytes are a map that can be drawn, or a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantore;
    try {
        ItemReader reader(decoded({reinterpret_cast<const char*>(data), size}));
        PictureSurface surface("picOut", {}, {1, 1});
        drawMap(surface, {1, 1}, readMap(reader), {150, 44, 484, 327});
        for (const SurfaceOperation& operation : surface.operations()) {
            const auto& line = std::get<SurfaceLine>(operation);
            for (const double place : {line.x1, line.y1, line.x2, line.y2})
                if (!std::isfinite(place)) std::abort();
        }
    } catch (const RuntimeError&) {
    }
    return 0;
}
