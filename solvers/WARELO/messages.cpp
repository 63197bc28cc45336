#include "solvers/WARELO/messages.h"

#include <limits>
#include <sstream>
#include <stdexcept>

namespace vantore::warelo {

std::string toText(const Found& found) {
    std::ostringstream text;
    text.precision(std::numeric_limits<double>::max_digits10);
    text << found.cost << ' ' << found.bound << ' ' << found.allocation.size();
    for (const std::size_t warehouse : found.allocation) text << ' ' << warehouse;
    return text.str();
}

Found foundFrom(const std::string& text) {
    std::istringstream items(text);
    Found found;
    std::size_t customers = 0;
    items >> found.cost >> found.bound >> customers;
    for (std::size_t c = 0; c < customers && items; ++c) items >> found.allocation.emplace_back();
    if (!items) throw std::runtime_error("a message without its end");
    return found;
}

} // namespace vantore::warelo
