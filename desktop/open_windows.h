#pragma once

#include <memory>
#include <vector>

#include "desktop/form_window.h"

namespace vantore {

/// The windows on the screen, the one in front last.
class OpenWindows {
  public:
    OpenWindows() = default;
    ~OpenWindows() { closeAll(); }
    OpenWindows(const OpenWindows&) = delete;
    OpenWindows& operator=(const OpenWindows&) = delete;

    /// Opens a window for the form over the one in front.
    FormWindow& open(Form& form, WindowSteps& steps);

    /// Takes the form's window away.
    void close(const Form& form);

    /// Takes all windows away, the one in front first: it belongs to the one behind it.
    void closeAll();

    FormWindow* find(const Form& form) const;
    FormWindow* front() const { return windows_.empty() ? nullptr : windows_.back().get(); }

    /// Brings all windows up to date with their forms.
    void refresh();

  private:
    std::vector<std::unique_ptr<FormWindow>> windows_;
};

} // namespace vantore
