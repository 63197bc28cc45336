#pragma once

#include <memory>
#include <vector>

#include "shell/forms/form.h"

namespace vantore {

/// The open windows of the suite, one over the other: the launcher, a screen or a module over it. A window
/// behind another takes no input.
class Windows {
  public:
    /// Opens a window over those that are open.
    void open(std::unique_ptr<Form> form);

    /// Lets the windows go that have closed; the one that comes to the front is told. Called after each of a
    /// user's steps.
    void unloadClosed();

    /// The window in front, nullptr when none is open.
    Form* front() const { return forms_.empty() ? nullptr : forms_.back().get(); }

    /// From the rear to the front.
    const std::vector<std::unique_ptr<Form>>& forms() const { return forms_; }

    bool empty() const { return forms_.empty(); }

    /// Lets all windows go, the front one first.
    void closeAll();

  private:
    std::vector<std::unique_ptr<Form>> forms_;
};

} // namespace vantore
