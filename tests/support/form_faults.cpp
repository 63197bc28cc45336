#include "tests/support/form_faults.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "shell/base/text.h"
#include "tests/support/text_width.h"

namespace vantore::tests {

namespace {

constexpr double tolerance = 1;       // twips
constexpr double buttonPadding = 160; // twips of the screen: border and focus frame, both sides
constexpr double markerWidth = 300;   // twips of the screen: the circle or box of an option

bool overlap(const Rect& a, const Rect& b) {
    return a.left + tolerance < b.right() && b.left + tolerance < a.right() &&
           a.top + tolerance < b.bottom() && b.top + tolerance < a.bottom();
}

/// A frame or tab control holds other controls by design.
bool holds(const Control& outer, const Control& inner) {
    for (const Container* around = inner.container; around != nullptr; around = around->container)
        if (around == &outer) return true;
    return false;
}

/// A title and its shadow stand one over the other.
bool isShadow(const Control& control) {
    return control.name.ends_with("Shadow");
}

double linesNeeded(const Control& control, const Scale& scale) {
    double needed = 0;
    for (const std::string& line : lines(control.caption)) {
        const double width = textWidth(line, control.fontSize * scale.x, control.bold);
        needed += std::max(1.0, std::ceil(width / (control.design.width * scale.x)));
    }
    return needed;
}

bool captionFits(const Control& control, const Scale& scale) {
    const double width = control.design.width * scale.x;
    const double height = control.design.height * scale.y;
    const double points = control.fontSize * scale.x;
    const double text = textWidth(control.caption, points, control.bold);
    if (dynamic_cast<const Button*>(&control) != nullptr)
        return text + buttonPadding <= width && lineHeight(points) <= height;
    if (dynamic_cast<const Option*>(&control) != nullptr ||
        dynamic_cast<const CheckBox*>(&control) != nullptr)
        return text + markerWidth * scale.x <= width && lineHeight(points) <= height;
    if (dynamic_cast<const Label*>(&control) != nullptr)
        return linesNeeded(control, scale) * lineHeight(points) <= height + tolerance;
    if (dynamic_cast<const TextBox*>(&control) != nullptr) return lineHeight(points) <= height;
    return true;
}

void checkNames(const Form& form, std::vector<std::string>& faults) {
    std::set<std::string> names;
    for (const auto& control : form.controls()) {
        if (control->name.empty()) faults.push_back("a control has no name");
        if (!names.insert(lowerCase(control->name)).second)
            faults.push_back("two controls are named " + control->name);
    }
}

void checkPlace(const Form& form, const Control& control, std::vector<std::string>& faults) {
    const Rect& r = control.design;
    const bool inside = r.left >= 0 && r.top >= 0 && r.right() <= form.width + tolerance &&
                        r.bottom() <= form.height + tolerance && r.width > 0 && r.height > 0;
    if (!inside) faults.push_back(control.name + " leaves the window");
    if (!captionFits(control, form.scale()))
        faults.push_back("the caption of " + control.name + " doesn't fit");
    const Container* outer = control.container;
    if (outer != nullptr &&
        !(r.left >= outer->design.left && r.right() <= outer->design.right() + tolerance &&
          r.top >= outer->design.top && r.bottom() <= outer->design.bottom() + tolerance))
        faults.push_back(control.name + " leaves " + outer->name);
}

} // namespace

std::vector<std::string> formFaults(const Form& form) {
    std::vector<std::string> faults;
    checkNames(form, faults);
    std::vector<const Control*> shown;
    for (const auto& control : form.controls())
        if (control->shown()) shown.push_back(control.get());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        checkPlace(form, *shown[i], faults);
        for (std::size_t k = 0; k < i; ++k) {
            const Control& a = *shown[k];
            const Control& b = *shown[i];
            if (overlap(a.design, b.design) && !holds(a, b) && !holds(b, a) && !isShadow(a))
                faults.push_back(a.name + " and " + b.name + " overlap");
        }
    }
    return faults;
}

} // namespace vantore::tests
