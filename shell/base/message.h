#pragma once

#include <string>

namespace vantore {

/// What a user is told: the text and the title of its box.
struct Message {
    std::string text, title;
};

} // namespace vantore
