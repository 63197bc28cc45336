#pragma once

#include <QDialog>

#include "desktop/window_steps.h"
#include "shell/dialog_form.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantore {

/// A message, question or input on the screen, of the size that its form says or as large as its texts need.
/// Enter presses its first button, a mnemonic letter its button, also without Alt; Escape and the title bar
/// close it.
class DialogWindow : public QDialog {
  public:
    /// `zoom`: how much smaller than its design it is, as the window behind it.
    DialogWindow(DialogForm& form, WindowSteps& steps, QWidget* parent, double zoom);

    /// The middle of the place on the screen that the form asks for.
    QPoint toldMiddle() const;

    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void showPrompt(const Label& prompt);
    void addInput(TextBox& box);
    void addButton(Button& button);
    void layOut();
    void act(const std::function<void()>& action);
    QFont fontOf(const Control& control) const;
    int pixels(double twips) const;

    DialogForm& form_;
    WindowSteps& steps_;
    double zoom_;
    QLabel& prompt_;
    QLineEdit* input_ = nullptr;
    std::vector<QPushButton*> buttons_;
    bool widened_ = false; ///< the prompt needs more width than told
};

} // namespace vantore
