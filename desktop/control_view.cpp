#include "desktop/control_view.h"

#include <array>

#include "desktop/button_views.h"
#include "desktop/container_views.h"
#include "desktop/drawing_view.h"
#include "desktop/grid_view.h"
#include "desktop/label_view.h"
#include "desktop/list_view.h"
#include "desktop/picture_view.h"
#include "desktop/report_view.h"
#include "desktop/text_box_view.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

template <class Kind, class View>
std::unique_ptr<ControlView> viewIf(ViewContext& context, Control& control, QWidget* parent) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind == nullptr ? nullptr : std::make_unique<View>(context, *kind, parent);
}

std::unique_ptr<ControlView> containerView(ViewContext& context, Control& control, QWidget* parent) {
    auto* container = dynamic_cast<Container*>(&control);
    if (container == nullptr) return nullptr;
    if (container->pages.empty()) return std::make_unique<GroupView>(context, *container, parent);
    return std::make_unique<TabView>(context, *container, parent);
}

QString withoutMnemonic(const std::string& caption) {
    return qtText(caption).remove('&').simplified();
}

/// "Power Factor" of "txtPowerFactor".
QString wordsOf(const std::string& name) {
    QString words;
    for (const char letter : name) {
        const bool capital = letter >= 'A' && letter <= 'Z';
        if (capital && !words.isEmpty() && words.back().isLower()) words += ' ';
        if (capital || !words.isEmpty()) words += QLatin1Char(letter);
    }
    return words.isEmpty() ? qtText(name) : words;
}

const Label* labelOf(const Form& form, const Control& control) {
    for (const auto& each : form.controls()) {
        const auto* label = dynamic_cast<const Label*>(each.get());
        if (label != nullptr && label->buddy == &control && label->shown()) return label;
    }
    return nullptr;
}

QString nameOf(const Form& form, const Control& control) {
    if (!control.caption.empty()) return withoutMnemonic(control.caption);
    if (const Label* label = labelOf(form, control)) return withoutMnemonic(label->caption);
    return plainName(form, control);
}

} // namespace

QString plainName(const Form& form, const Control& control) {
    const auto is = [&](auto* kind) { return dynamic_cast<decltype(kind)>(&control) != nullptr; };
    const QString window = qtText(form.name());
    if (is(static_cast<const DataGrid*>(nullptr))) return window + " data";
    if (is(static_cast<const ReportScreen*>(nullptr))) return window + " report";
    if (is(static_cast<const PictureSurface*>(nullptr))) return window + " plot";
    if (is(static_cast<const Chart*>(nullptr))) return window + " plot";
    return wordsOf(control.name);
}

ControlView::ControlView(ViewContext& context, Control& control, QWidget* widget)
    : context_(context), control_(control), widget_(widget) {
    widget->setObjectName(qtText(control.name));
    widget->hide();
}

void ControlView::sync(const FormLayout& layout) {
    if (!control_.shown()) return widget_->hide();
    const QPoint origin = widget_->parentWidget()->mapTo(widget_->window(), QPoint(0, 0));
    widget_->setGeometry(place(layout).translated(-origin));
    widget_->setEnabled(control_.enabled());
    syncName();
    fitting_.result.cut = false;
    syncContent(layout);
    const QString tip = qtText(control_.tip);
    const QString shownTip = fitting_.result.cut ? tipWith(fitting_.text, tip) : tip;
    if (widget_->toolTip() != shownTip) widget_->setToolTip(shownTip);
    widget_->show();
}

void ControlView::syncName() {
    const QString name = nameOf(context_.form(), control_);
    if (widget_->accessibleName() != name) widget_->setAccessibleName(name);
}

QFont ControlView::font(const FormLayout& layout) const {
    const double size = control_.fontSize * context_.form().scale().x;
    return qtFont({.size = size, .bold = control_.bold}, layout.zoom);
}

const FittedText& ControlView::fitted(const QString& text, QSize room, int flags, const FormLayout& layout) {
    const QFont wanted = font(layout);
    const bool known = fitting_.text == text && fitting_.room == room && fitting_.font == wanted;
    if (known) {
        fitting_.result.cut = fitting_.result.text != text;
    } else {
        fitting_ = {text, room, wanted, fittedText(text, wanted, room, flags)};
    }
    return fitting_.result;
}

std::unique_ptr<ControlView> makeView(ViewContext& context, Control& control, QWidget* parent) {
    using Maker = std::unique_ptr<ControlView> (*)(ViewContext&, Control&, QWidget*);
    constexpr std::array<Maker, 12> makers = {
        viewIf<Button, ButtonView>,
        viewIf<TextBox, TextBoxView>,
        viewIf<Label, LabelView>,
        viewIf<DataGrid, GridControlView>,
        viewIf<Option, OptionView>,
        viewIf<CheckBox, CheckBoxView>,
        containerView,
        viewIf<ListBox, ListView>,
        viewIf<ReportScreen, ReportView>,
        viewIf<PictureSurface, DrawingView>,
        viewIf<Chart, DrawingView>,
        viewIf<Picture, PictureView>,
    };
    for (const Maker make : makers)
        if (auto view = make(context, control, parent)) return view;
    return nullptr;
}

} // namespace vantore
