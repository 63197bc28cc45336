#include "shell/size_box.h"

#include <cmath>
#include <limits>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

/// A number beyond the double range counts as the largest.
double sizeIn(const std::string& text) {
    try {
        return std::nearbyint(val(text));
    } catch (const RuntimeError&) {
        return std::numeric_limits<double>::max();
    }
}

bool isOneCharacterMore(const std::string& longer, const std::string& shorter) {
    return longer.size() == shorter.size() + 1 && longer.starts_with(shorter);
}

} // namespace

SizeBox::SizeBox(TextBox& box, std::vector<DataGrid*> grids, SizeRules rules)
    : box_(box), grids_(std::move(grids)), rules_(std::move(rules)) {
    box_.onChange = [this] { follow(); };
    box_.onLeave = [this] { settle(); };
}

void SizeBox::settle() {
    forget();
    seen_ = std::to_string(rules_.present());
    box_.show(seen_);
}

/// One character typed behind the text or taken off its end.
bool SizeBox::goesOn(const std::string& typed) const {
    return isOneCharacterMore(typed, seen_) || isOneCharacterMore(seen_, typed);
}

/// Where a size too small is told of, every text but the empty one is a size; elsewhere one without a digit
/// is none.
bool SizeBox::isSize(const std::string& typed) const {
    if (rules_.onShort) return !typed.empty();
    return typed.find_first_of("0123456789") != std::string::npos;
}

void SizeBox::putBack() {
    for (std::size_t i = 0; i < grids_.size(); ++i) grids_[i]->restore(before_.at(i));
}

void SizeBox::follow() {
    const std::string typed = box_.text();
    if (!goesOn(typed)) forget();
    seen_ = typed;
    if (!isSize(typed) || (rules_.takes && !rules_.takes())) return;
    if (before_.empty())
        for (const DataGrid* grid : grids_) before_.push_back(grid->content());
    putBack();
    const double size = sizeIn(typed);
    if (size >= rules_.least && size <= rules_.most) return rules_.shape(static_cast<int>(size));
    settle();
    const auto& tell = size > rules_.most ? rules_.onExcess : rules_.onShort;
    if (tell) tell();
}

} // namespace vantore
