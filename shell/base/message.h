#pragma once

#include <string>

namespace vantore {

/// A text for the user and the title of its box; an empty title is the module's name.
struct Message {
    std::string text, title;
};

} // namespace vantore
