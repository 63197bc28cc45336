#include "desktop/label_view.h"

#include <QLabel>

#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

LabelView::LabelView(ViewContext& context, Label& label, QWidget* parent)
    : ControlView(context, label, new QLabel(parent)), data_(label), label_(static_cast<QLabel&>(*widget())) {
    label_.setTextFormat(Qt::PlainText);
    label_.setWordWrap(true);
}

bool LabelView::besideBox() const {
    if (dynamic_cast<const TextBox*>(data_.buddy) == nullptr) return false;
    const double middle = data_.design.top + data_.design.height / 2;
    return middle > data_.buddy->design.top && middle < data_.buddy->design.bottom();
}

QRect LabelView::place(const FormLayout& layout) const {
    QRect place = ControlView::place(layout);
    if (!besideBox()) return place;
    const QRect box = layout.place(*data_.buddy);
    const int middle = (box.top() + box.bottom()) / 2;
    const int height = std::max(place.height(), box.height());
    return {place.left(), middle - height / 2, place.width(), height};
}

void LabelView::syncContent(const FormLayout& layout) {
    const QString text = breakable(qtText(data_.caption), font(layout), label_.width());
    const FittedText& shown = fitted(text, label_.size(), Qt::TextWordWrap, layout);
    // Beside its box a label's & would mark a letter.
    const QString plain = data_.buddy == nullptr ? shown.text : QString(shown.text).replace("&", "&&");
    if (label_.text() != plain) label_.setText(plain);
    if (label_.font() != shown.font) label_.setFont(shown.font);
    label_.setAlignment(qtAlignment(data_.alignment) | (besideBox() ? Qt::AlignVCenter : Qt::AlignTop));
    if (data_.buddy != nullptr) label_.setBuddy(context().widgetOf(*data_.buddy));
    syncColour();
}

void LabelView::syncColour() {
    const QColor colour = qtColour(data_.textColour);
    QPalette palette = label_.palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) == colour) return;
    palette.setColor(QPalette::Active, QPalette::WindowText, colour);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, colour);
    label_.setPalette(palette);
}

} // namespace vantore
