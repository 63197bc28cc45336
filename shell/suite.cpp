#include "shell/suite.h"

#include <algorithm>
#include <utility>

#include "shell/base/text_file.h"
#include "shell/dialog_form.h"

namespace vantore {

namespace {

std::filesystem::path inFolder(const std::string& folder, std::string_view name) {
    return existingSpelling(pathOf(folder) / pathOf(name));
}

} // namespace

Suite::Suite(Platform& outside, std::vector<ModuleEntry> modules)
    : platform(outside), modules_(std::move(modules)) {}

std::filesystem::path Suite::ioPath(std::string_view name) const {
    return inFolder(ioFolder, name);
}

std::filesystem::path Suite::installPath(std::string_view name) const {
    return inFolder(installFolder, name);
}

std::filesystem::path Suite::drvFile() const {
    return installPath("VANTORE.DRV");
}

void Suite::setScale(double width, double height) {
    constexpr double designWidth = 800; // pixels
    constexpr double designHeight = 600;
    constexpr double least = .5; // a window that is smaller or larger can't be seen
    constexpr double most = 20;
    scaleX = std::clamp(width / designWidth, least, most);
    scaleY = std::clamp(height / designHeight, least, most);
}

void Suite::messageBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                      double size) {
    MsgeBx dialog(scale(), prompt, title, size);
    dialog.layOut(platform.display, alignment);
    platform.dialogs.showModal(dialog);
}

int Suite::yesNoBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                   double size) {
    YNBx dialog(scale(), prompt, title, size);
    dialog.layOut(platform.display, alignment);
    platform.dialogs.showModal(dialog);
    if (!dialog.reply) throw Unanswered();
    return *dialog.reply;
}

std::string Suite::inputBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                           double size, const std::string& defaultText) {
    InptBx dialog(scale(), prompt, title, size, defaultText);
    dialog.layOut(platform.display, alignment);
    platform.dialogs.showModal(dialog);
    return dialog.reply;
}

void Suite::messageBx(const std::string& prompt, const std::string& title) {
    messageBx(prompt, title, "Center", dialogFontSize());
}

bool Suite::asksYes(const std::string& prompt, const std::string& title) {
    return yesNoBx(prompt, title, "Center", dialogFontSize()) == replyYes;
}

std::string Suite::inputBx(const std::string& prompt, const std::string& title,
                           const std::string& defaultText) {
    return inputBx(prompt, title, "Center", dialogFontSize(), defaultText);
}

} // namespace vantore
