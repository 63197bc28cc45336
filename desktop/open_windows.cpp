#include "desktop/open_windows.h"

#include <algorithm>

namespace vantore {

FormWindow& OpenWindows::open(Form& form, WindowSteps& steps) {
    windows_.push_back(std::make_unique<FormWindow>(form, steps, front()));
    return *windows_.back();
}

void OpenWindows::close(const Form& form) {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& window) { return &window->form() == &form; });
    if (found == windows_.end()) return;
    const std::unique_ptr<FormWindow> window = std::move(*found);
    windows_.erase(found);
    window->hide();
}

void OpenWindows::closeAll() {
    while (!windows_.empty()) windows_.pop_back();
}

FormWindow* OpenWindows::find(const Form& form) const {
    for (const auto& window : windows_)
        if (&window->form() == &form) return window.get();
    return nullptr;
}

void OpenWindows::refresh() {
    // By index: leaving a text box may run a handler that opens a dialog.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->refresh();
}

} // namespace vantore
