#pragma once

#include <memory>
#include <vector>

#include "desktop/form_window.h"

namespace vantore {

/// The windows that are open, the one in front last.
class Windows {
  public:
    /// Opens a window for the form over the one in front.
    FormWindow& open(Form& form, WindowSteps& steps);

    /// Takes the form's window away.
    void close(const Form& form);

    FormWindow* find(const Form& form) const;
    FormWindow* front() const { return windows_.empty() ? nullptr : windows_.back().get(); }

    /// Brings all windows up to date with their forms.
    void refresh();

  private:
    std::vector<std::unique_ptr<FormWindow>> windows_;
};

} // namespace vantore
