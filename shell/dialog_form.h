#pragma once

#include <optional>
#include <string>

#include "shell/forms/form.h"
#include "shell/platform.h"

namespace vantore {

constexpr int replyYes = 6;
constexpr int replyNo = 7;

/// One of the three dialogs through which the suite talks to its user. It closes itself by its buttons.
class DialogForm : public Form {
  public:
    enum class Kind { Message, Question, Input };

    DialogForm(Kind kind, std::string name, Scale scale, const std::string& prompt, const std::string& title,
               double fontSize);

    Kind kind() const { return kind_; }
    const std::string& prompt() const { return lblPrompt.caption; }

    /// Lays the dialog out for its prompt: the label keeps its width and grows to its text, the window grows
    /// with it and is centred vertically. Horizontally it stands at a quarter ("LEFT" in any case) or half
    /// of the room beside it. Places and font sizes are the screen's: the form's own scale is 1.
    void layOut(const Display& display, const std::string& alignment);

    double left = 0; ///< twips of the screen, set by layOut
    double top = 0;

  protected:
    virtual void placeControls() = 0;
    virtual void moveDown(double excess) = 0;
    Scale screenScale() const { return screenScale_; }

    Label& lblPrompt = add<Label>("lblPrompt");

  private:
    Kind kind_;
    Scale screenScale_;
};

/// `MsgeBx`: a message with one OK button.
class MsgeBx : public DialogForm {
  public:
    MsgeBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize);

    Button& cmdOK = add<Button>("cmdOK");

  protected:
    void placeControls() override;
    void moveDown(double excess) override;
};

/// `YNBx`: a question. Closed by its title bar or Escape it has no answer.
class YNBx : public DialogForm {
  public:
    YNBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize);

    std::optional<int> reply;
    Button& cmdYes = add<Button>("cmdYes");
    Button& cmdNo = add<Button>("cmdNo");

  protected:
    void placeControls() override;
    void moveDown(double excess) override;
};

/// `InptBx`: an input with a default. Closed by its title bar it counts as Cancel.
class InptBx : public DialogForm {
  public:
    InptBx(Scale scale, const std::string& prompt, const std::string& title, double fontSize,
           const std::string& defaultText);

    std::string reply; ///< Empty on Cancel.
    bool cancelled = true;
    TextBox& txtInput = add<TextBox>("txtInput");
    Button& cmdOK = add<Button>("cmdOK");
    Button& cmdCancel = add<Button>("cmdCancel");

  protected:
    void placeControls() override;
    void moveDown(double excess) override;
};

} // namespace vantore
