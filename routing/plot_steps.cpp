#include "routing/plot_steps.h"

#include <cstdlib>
#include <string>

#include "shell/base/text.h"

namespace vantore::routing {

std::optional<char> askStep(Suite& suite) {
    const std::string answer =
        trimmed(suite.inputBx("Change picture size:\r\n+ to increase size\r\n-  to decrease size\r\n"
                              "U to scroll up\r\nD to scroll down\r\nL to scroll left\r\n"
                              "R to scroll right\r\nO to restore original picture size",
                              "Zoom control", "Enter selection"));
    if (answer.size() != 1) return std::nullopt;
    return answer.front();
}

void followSteps(PictureSurface& surface, const std::function<void(char step, int times)>& take) {
    surface.onZoom = [take](int steps) { take(steps > 0 ? '+' : '-', std::abs(steps)); };
    surface.onPan = [take](int right, int down) {
        take(right > 0 ? 'R' : 'L', std::abs(right));
        take(down > 0 ? 'D' : 'U', std::abs(down));
    };
}

} // namespace vantore::routing
