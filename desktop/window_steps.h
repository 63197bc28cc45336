#pragma once

#include <functional>
#include <string>

namespace vantore {

/// How a window tells that its user has done something. The desktop runs the action, reports what it
/// throws, and brings all windows up to date behind it.
class WindowSteps {
  public:
    virtual ~WindowSteps() = default;
    virtual void step(const std::function<void()>& action) = 0;

    /// Where a user's files go unless they name another folder.
    virtual std::string outputFolder() const = 0;
};

} // namespace vantore
