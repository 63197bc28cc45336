#include "desktop/control_view.h"

#include <array>
#include <cmath>

#include "desktop/button_views.h"
#include "desktop/drawing_view.h"
#include "drawing/fonts.h"
#include "desktop/grid_view.h"
#include "desktop/label_views.h"
#include "desktop/picture_view.h"
#include "desktop/report_view.h"
#include "desktop/tab_view.h"
#include "desktop/text_box_view.h"

namespace vantore {

namespace {

template <class Kind, class View>
std::unique_ptr<ControlView> viewIf(ViewContext& context, Control& control, QWidget* parent) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind == nullptr ? nullptr : std::make_unique<View>(context, *kind, parent);
}

} // namespace

QRect Layout::place(const Rect& design) const {
    const auto left = static_cast<int>(std::lround(design.left * x));
    const auto top = static_cast<int>(std::lround(design.top * y));
    const auto right = static_cast<int>(std::lround(design.right() * x));
    const auto bottom = static_cast<int>(std::lround(design.bottom() * y));
    return {left, top, right - left, bottom - top};
}

ControlView::ControlView(ViewContext& context, Control& control, QWidget* widget)
    : context_(context), control_(control), widget_(widget) {
    widget->setObjectName(qtText(control.name));
    widget->hide();
}

void ControlView::sync(const Layout& layout) {
    if (!control_.shown()) {
        widget_->hide();
        return;
    }
    widget_->setGeometry(layout.place(control_.design));
    widget_->setEnabled(control_.enabled);
    const QString tip = qtText(control_.tip);
    if (widget_->toolTip() != tip) widget_->setToolTip(tip);
    syncContent(layout);
    widget_->show();
}

QFont ControlView::fittedFont(const QString& text, QSize room, int flags, const Layout& layout) {
    const double size = control_.fontSize * context_.form().scale().x * layout.zoom;
    const bool known = fitted_.text == text && fitted_.room == room && fitted_.size == size &&
                       fitted_.bold == control_.bold && !fitted_.font.family().isEmpty();
    if (known) return fitted_.font;
    const QFont font = qtFont({.size = size, .bold = control_.bold});
    fitted_ = {text, room, size, control_.bold, fitted(font, text, room, flags)};
    return fitted_.font;
}

std::unique_ptr<ControlView> makeView(ViewContext& context, Control& control, QWidget* parent) {
    using Maker = std::unique_ptr<ControlView> (*)(ViewContext&, Control&, QWidget*);
    constexpr std::array<Maker, 12> makers = {
        viewIf<Button, ButtonView>,       viewIf<TextBox, TextBoxView>,
        viewIf<Label, LabelView>,         viewIf<DataGrid, GridControlView>,
        viewIf<Option, OptionView>,       viewIf<CheckBox, CheckBoxView>,
        viewIf<Frame, FrameView>,         viewIf<TabControl, TabView>,
        viewIf<ReportScreen, ReportView>, viewIf<PictureSurface, DrawingView>,
        viewIf<Chart, DrawingView>,       viewIf<Picture, PictureView>,
    };
    for (const Maker make : makers)
        if (auto view = make(context, control, parent)) return view;
    return nullptr;
}

} // namespace vantore
