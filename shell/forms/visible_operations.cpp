#include "shell/forms/visible_operations.h"

#include <algorithm>
#include <utility>

namespace vantore {

namespace {

constexpr int paper = colour::brightWhite;

/// `wiper` prints in the paper's colour what `operation` has printed.
bool isWipedBy(const SurfaceOperation& operation, const SurfaceText& wiper) {
    const auto* text = std::get_if<SurfaceText>(&operation);
    if (text == nullptr) return false;
    SurfaceText inPaper = *text;
    inPaper.colour = paper;
    return inPaper == wiper;
}

} // namespace

std::vector<SurfaceOperation> visibleOperations(const std::vector<SurfaceOperation>& operations) {
    std::vector<SurfaceOperation> visible;
    for (const SurfaceOperation& operation : operations) {
        const auto* text = std::get_if<SurfaceText>(&operation);
        const bool wipes = text != nullptr && text->colour == paper;
        const auto isWiped = [text](const SurfaceOperation& earlier) { return isWipedBy(earlier, *text); };
        if (!wipes || std::erase_if(visible, isWiped) == 0) visible.push_back(operation);
    }
    return visible;
}

} // namespace vantore
