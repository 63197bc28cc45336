#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/window_steps.h"

class QFrame;
class QLabel;

namespace vantore {

/// A window that draws any form. It holds no state of its own but the widgets: after each step it reads the
/// form again.
///
/// Where the window is smaller than the form, or the user has made it larger, all is drawn smaller or larger
/// in proportion; nothing ever lies outside.
class FormWindow : public QWidget, public ViewContext {
  public:
    /// `parent`, where there is one, stays behind this window.
    FormWindow(Form& form, WindowSteps& steps, QWidget* parent);

    Form& form() override { return form_; }
    void act(const std::function<void()>& action) override;
    void left(TextBox& box) override;
    std::string outputFolder() const override { return steps_.outputFolder(); }

    /// Shows the form's current state, and moves the focus where the form wants it.
    void refresh();

    /// Size in pixels at zoom 1.
    QSize designSize() const;

    /// Size of the window on a screen: the design's, or where the screen is smaller as much of it as keeps
    /// the proportions. A form as large as the screen fills it.
    QSize sizeOn(const QRect& screen) const;

    /// Width and height of what the form's controls are drawn in.
    QWidget& canvas() const { return *canvas_; }

    /// The widget of a control, nullptr when there is none.
    QWidget* widgetOf(const Control& control) const;

    double zoom() const { return zoom_; }

    /// Called by `refresh` once the form has closed.
    std::function<void()> onClosed;

    /// A dialog keeps the other windows waiting. Escape closes it, Enter in its text box presses its first
    /// button, and a mnemonic letter its button without Alt.
    void behaveAsDialog();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void makeViews();
    void layOut();
    void syncViews();
    void syncColours();
    void syncNote();
    void settleFrame();
    void takeFocus();
    void leaveLeftBox();
    void leaveSoon();
    void pressDefault();
    bool pressLetter(const QString& letter);

    Form& form_;
    WindowSteps& steps_;
    QWidget* canvas_;
    QLabel* note_;
    QFrame* edge_;
    std::vector<std::unique_ptr<ControlView>> views_;
    double zoom_ = 1;
    int backColour_ = Form::buttonFace;
    TextBox* leftBox_ = nullptr;
    bool dialog_ = false;
};

} // namespace vantore
