#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/fitted_text.h"
#include "desktop/form_layout.h"

namespace vantore {

/// What a view needs of its window.
class ViewContext {
  public:
    virtual ~ViewContext() = default;
    virtual Form& form() = 0;

    /// Runs a user's action and brings the windows up to date.
    virtual void act(const std::function<void()>& action) = 0;

    /// The focus has left a text box; its `onLeave` comes before the user's next action.
    virtual void left(TextBox& box) = 0;

    /// Where a user's files go unless they name another folder.
    virtual std::string outputFolder() const = 0;

    /// The widget of a control, nullptr when there is none.
    virtual QWidget* widgetOf(const Control& control) const = 0;
};

/// One control's widget. The control is the truth: `sync` shows its state again after each step.
class ControlView {
  public:
    ControlView(ViewContext& context, Control& control, QWidget* widget);
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    const Control& control() const { return control_; }
    QWidget* widget() const { return widget_; }

    void sync(const FormLayout& layout);

    /// What the controls of a container's page stand on.
    virtual QWidget* page(int /*number*/) { return nullptr; }

  protected:
    /// Shows what is this kind's own. Place and name are up to date; visibility follows.
    virtual void syncContent(const FormLayout& layout) = 0;

    virtual bool enabled() const { return control_.enabled(); }

    /// Where the control stands in the window.
    virtual QRect place(const FormLayout& layout) const { return layout.place(control_); }

    ViewContext& context() const { return context_; }

    /// The control's font as its design says.
    QFont font(const FormLayout& layout) const;

    /// `text` in the control's font, smaller or cut where it doesn't fit `room`. The tip shows a cut one
    /// whole.
    const FittedText& fitted(const QString& text, QSize room, int flags, const FormLayout& layout);

    /// The tip shows this text whole: it can't be seen so.
    void markCut(const QString& text) { cutText_ = text; }

  private:
    void syncName();

    ViewContext& context_;
    Control& control_;
    QWidget* widget_; ///< Owned by the window's widget tree.

    struct Fitting {
        QString text;
        QSize room;
        QFont font;
        FittedText result;
    } fitting_;
    QString cutText_;
};

/// The view for a control of any kind, on `parent`.
std::unique_ptr<ControlView> makeView(ViewContext& context, Control& control, QWidget* parent);

/// What a screen reader calls a control that has neither caption nor label.
QString plainName(const Form& form, const Control& control);

} // namespace vantore
