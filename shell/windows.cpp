#include "shell/windows.h"

#include <utility>

namespace vantore {

void Windows::open(std::unique_ptr<Form> form) {
    if (Form* covered = front()) covered->enabled = false;
    forms_.push_back(std::move(form));
}

void Windows::unloadClosed() {
    const Form* before = front();
    std::erase_if(forms_, [](const auto& form) { return form->closed; });
    Form* now = front();
    if (now == nullptr || now == before) return;
    now->enabled = true;
    now->uncovered();
}

void Windows::closeAll() {
    while (!forms_.empty()) forms_.pop_back();
}

} // namespace vantore
