#include "desktop/control_view.h"

#include <array>

#include "desktop/views.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

template <class Kind>
std::unique_ptr<ControlView> viewIf(ViewContext& context, Control& control, QWidget* parent) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind == nullptr ? nullptr : viewOf(context, *kind, parent);
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
    widget_->setEnabled(enabled());
    syncName();
    cutText_.clear();
    syncContent(layout);
    const QString tip = qtText(control_.tip);
    const QString shownTip = cutText_.isEmpty() ? tip : tipWith(cutText_, tip);
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
    if (!known) fitting_ = {text, room, wanted, fittedText(text, wanted, room, flags)};
    if (fitting_.result.cut) markCut(text);
    return fitting_.result;
}

std::unique_ptr<ControlView> makeView(ViewContext& context, Control& control, QWidget* parent) {
    using Maker = std::unique_ptr<ControlView> (*)(ViewContext&, Control&, QWidget*);
    constexpr std::array<Maker, 12> makers = {
        viewIf<Button>,       viewIf<TextBox>,        viewIf<Label>,     viewIf<DataGrid>,
        viewIf<Option>,       viewIf<CheckBox>,       viewIf<Container>, viewIf<ListBox>,
        viewIf<ReportScreen>, viewIf<PictureSurface>, viewIf<Chart>,     viewIf<Picture>,
    };
    for (const Maker make : makers)
        if (auto view = make(context, control, parent)) return view;
    return nullptr;
}

} // namespace vantore
