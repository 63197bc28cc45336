#include "shell/dialog_form.h"

#include <algorithm>

#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr double labelInset = 150;
constexpr double questionHeight = 2220;
constexpr double messageLabelHeight = 750;
constexpr double messageLabelWidth = 3525;
constexpr double messageWidth = 3825;
constexpr double inputLabelHeight = 1215;
constexpr double inputBoxTop = 1360;
constexpr double messageButtonTop = 1200;
constexpr double messageButtonWidth = 1000;

} // namespace

DialogForm::DialogForm(Kind kind, std::string name, Scale scale, const std::string& prompt,
                       const std::string& title, double fontSize)
    : Form(std::move(name), Scale{}), kind_(kind), screenScale_(scale) {
    caption = title;
    lblPrompt.caption = prompt;
    lblPrompt.fontSize = fontSize;
    lblPrompt.design = {labelInset, labelInset, messageLabelWidth, messageLabelHeight};
}

void DialogForm::layOut(const Display& display, const std::string& alignment) {
    placeControls();
    const Font font{"MS Sans Serif", lblPrompt.fontSize, false};
    const Extent screen = display.screen();
    Extent room = display.textExtent(lblPrompt.caption, font, lblPrompt.design.width);
    // A very long prompt in large type would push the buttons off the screen; a wider label keeps them on it.
    while (height + room.height - lblPrompt.design.height > screen.height && width < screen.width) {
        width += lblPrompt.design.width / 4;
        lblPrompt.design.width += lblPrompt.design.width / 4;
        room = display.textExtent(lblPrompt.caption, font, lblPrompt.design.width);
    }
    if (const double excess = room.height - lblPrompt.design.height; excess > 0) {
        lblPrompt.design.height += excess;
        height += excess;
        moveDown(excess);
    }
    if (const double excess = room.width - lblPrompt.design.width; excess > 0) {
        lblPrompt.design.width += excess;
        width += excess;
    }
    left = std::max(0.0, (screen.width - width) / (equalIgnoringCase(alignment, "LEFT") ? 4 : 2));
    top = std::max(0.0, (screen.height - height) / 2);
}

MsgeBx::MsgeBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize)
    : DialogForm(Kind::Message, "MsgeBx", scale, prompt, title, fontSize) {
    cmdOK.caption = "OK";
    cmdOK.fontSize = fontSize;
    cmdOK.onPress = [this] { closed = true; };
    focus = &cmdOK;
}

void MsgeBx::placeControls() {
    width = messageWidth;
    height = questionHeight;
    cmdOK.design = {(messageWidth - messageButtonWidth) / 2, messageButtonTop, messageButtonWidth,
                    272 + 100 * screenScale().y};
}

void MsgeBx::moveDown(double excess) {
    cmdOK.design.top += excess;
}

YNBx::YNBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize)
    : DialogForm(Kind::Question, "YNBx", scale, prompt, title, fontSize) {
    cmdYes.caption = "&Yes";
    cmdNo.caption = "&No";
    cmdYes.fontSize = cmdNo.fontSize = fontSize;
    cmdYes.onPress = [this] {
        reply = replyYes;
        closed = true;
    };
    cmdNo.onPress = [this] {
        reply = replyNo;
        closed = true;
    };
    focus = &cmdYes;
}

void YNBx::placeControls() {
    width = messageWidth;
    height = questionHeight;
    const double buttonHeight = 272 + 100 * screenScale().y;
    const double gap = (messageWidth - 2 * messageButtonWidth) / 3;
    cmdYes.design = {gap, messageButtonTop, messageButtonWidth, buttonHeight};
    cmdNo.design = {2 * gap + messageButtonWidth, messageButtonTop, messageButtonWidth, buttonHeight};
}

void YNBx::moveDown(double excess) {
    cmdYes.design.top += excess;
    cmdNo.design.top += excess;
}

InptBx::InptBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize,
               const std::string& defaultText)
    : DialogForm(Kind::Input, "InptBx", scale, prompt, title, fontSize) {
    cmdOK.caption = "&OK";
    cmdCancel.caption = "&Cancel";
    txtInput.fontSize = cmdOK.fontSize = cmdCancel.fontSize = fontSize;
    txtInput.setText(defaultText);
    cmdOK.onPress = [this] {
        reply = txtInput.text();
        cancelled = false;
        closed = true;
    };
    cmdCancel.onPress = [this] { closed = true; };
    focus = &txtInput;
}

void InptBx::placeControls() {
    const Scale s = screenScale();
    width = 4300 * s.x;
    height = 2075 + 100 * s.y;
    lblPrompt.design = {labelInset, labelInset, 3000 * s.x, inputLabelHeight};
    const double buttonLeft = lblPrompt.design.width + 200 * s.x;
    cmdOK.design = {buttonLeft, 145 * s.y, 910 * s.x, 335 * s.y};
    cmdCancel.design = {buttonLeft, 560 * s.y, 910 * s.x, 335 * s.y};
    txtInput.design = {labelInset, inputBoxTop, 2500 * s.x, 185 + 100 * s.y};
}

void InptBx::moveDown(double excess) {
    txtInput.design.top += excess;
}

} // namespace vantore
