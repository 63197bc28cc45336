#pragma once

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/window_steps.h"

class QFrame;
class QLabel;

namespace vantore {

/// A window that draws any form. It holds no state of its own but the widgets: after each step it reads the
/// form again.
class FormWindow : public QWidget, public ViewContext {
  public:
    /// `parent`, where there is one, stays behind this window.
    FormWindow(Form& form, WindowSteps& steps, QWidget* parent);

    Form& form() override { return form_; }
    void act(const std::function<void()>& action) override;
    void left(TextBox& box) override;
    std::string outputFolder() const override { return steps_.outputFolder(); }
    QWidget* widgetOf(const Control& control) const override;

    /// Shows the form's current state, and moves the focus where the form wants it.
    void refresh();

    /// Size of the window on a screen: the design's, or where the screen is smaller as much of it as keeps
    /// the proportions. A form as large as the screen fills it.
    QSize sizeOn(const QRect& screen) const;

    /// What the form's controls are drawn in.
    QWidget& canvas() const { return canvas_; }

    double zoom() const { return layout_.zoom; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void makeShortcuts();
    void makeViews();
    ControlView& viewOf(Control& control);
    void syncViews();
    void syncColours();
    void syncNote();
    void settleFrame();
    void takeFocus();
    void leaveLeftBox();
    void leaveSoon();
    bool scrollReport(QKeyEvent* event);

    Form& form_;
    WindowSteps& steps_;
    QWidget& canvas_;
    QLabel& note_;
    QFrame& edge_;
    std::vector<std::unique_ptr<ControlView>> views_; ///< a container before what stands in it
    std::unordered_map<const Control*, ControlView*> viewOf_;
    FormLayout layout_;
    int backColour_ = Form::buttonFace;
    TextBox* leftBox_ = nullptr;
};

} // namespace vantore
