#pragma once

#include <string>

namespace vantore {

/// The day and the time of day as reports print them.
struct LocalTime {
    std::string date; ///< "01-31-2026"
    std::string time; ///< "17:05:00"
};

/// Now, where the user is.
LocalTime localTime();

} // namespace vantore
