#include "shell/forms/visible_operations.h"

#include <algorithm>
#include <set>
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

std::vector<SurfaceOperation> withoutRepeats(const std::vector<SurfaceOperation>& operations) {
    std::set<SurfaceOperation> later;
    std::vector<SurfaceOperation> once;
    for (auto operation = operations.rbegin(); operation != operations.rend(); ++operation)
        if (later.insert(*operation).second) once.push_back(*operation);
    std::ranges::reverse(once);
    return once;
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
    return withoutRepeats(visible);
}

} // namespace vantore
