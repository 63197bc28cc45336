#include "shell/forms/control.h"

#include <utility>

namespace vantore {

bool Control::shown() const {
    if (!visible) return false;
    if (frame != nullptr && !frame->shown()) return false;
    return tabs == nullptr || (tabs->shown() && tabs->selected == page);
}

void TextBox::setText(std::string text) {
    text_ = std::move(text);
    if (onChange) onChange();
}

} // namespace vantore
