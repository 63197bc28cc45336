#include "shell/forms/control.h"

#include <utility>

namespace vantore {

bool Control::shown() const {
    if (seen && !seen()) return false;
    if (container == nullptr) return true;
    const bool onPage = container->pages.empty() || container->selected == page;
    return onPage && container->shown();
}

void TextBox::setText(std::string text) {
    text_ = std::move(text);
    if (onChange) onChange();
}

std::string ListBox::shownText() const {
    const auto chosen = static_cast<std::size_t>(selected);
    return selected >= 0 && chosen < items.size() ? items[chosen] : std::string();
}

} // namespace vantore
