#include "shell/base/local_time.h"

#include <array>
#include <ctime>

namespace vantore {

namespace {

std::string timeText(const std::tm& time, const char* layout) {
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), layout, &time)};
}

} // namespace

LocalTime localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {timeText(local, "%m-%d-%Y"), timeText(local, "%H:%M:%S")};
}

} // namespace vantore
