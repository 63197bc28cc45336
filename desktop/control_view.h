#pragma once

#include <QFont>
#include <QRect>
#include <QWidget>
#include <functional>
#include <memory>

#include "shell/forms/form.h"

namespace vantore {

/// From twips of a form's design to the pixels of its window.
struct Layout {
    double x = 1; ///< pixels of a twip
    double y = 1;
    double zoom = 1; ///< of fonts and of a surface's units

    QRect place(const Rect& design) const;
};

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
};

/// One control's widget. The control is the truth: `sync` shows its state again after each step.
class ControlView {
  public:
    ControlView(ViewContext& context, Control& control, QWidget* widget);
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const { return control_; }
    QWidget* widget() const { return widget_; }

    void sync(const Layout& layout);

  protected:
    /// Shows what is this kind's own. Place, visibility and tip are up to date.
    virtual void syncContent(const Layout& layout) = 0;

    ViewContext& context() const { return context_; }

    /// The control's font, as large as its design says or as `text` fits `room`.
    QFont fittedFont(const QString& text, QSize room, int flags, const Layout& layout);

  private:
    ViewContext& context_;
    Control& control_;
    QWidget* widget_; ///< Owned by the window's widget tree.

    struct FittedFont {
        QString text;
        QSize room;
        double size = 0;
        bool bold = false;
        QFont font;
    } fitted_;
};

/// The view for a control of any kind, on `parent`.
std::unique_ptr<ControlView> makeView(ViewContext& context, Control& control, QWidget* parent);

} // namespace vantore
