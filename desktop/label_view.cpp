#include <QLabel>

#include "desktop/views.h"
#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double tolerance = 120; // twips by which a label may reach under its box

/// A label. One that stands to the left of a text box has its text on the box's line.
class LabelView : public ControlView {
  public:
    LabelView(ViewContext& context, Label& label, QWidget* parent)
        : ControlView(context, label, new QLabel(parent)), data_(label),
          label_(static_cast<QLabel&>(*widget())) {
        label_.setTextFormat(Qt::PlainText);
        label_.setWordWrap(true);
    }

  protected:
    QRect place(const FormLayout& layout) const override {
        QRect place = ControlView::place(layout);
        if (const Control* box = boxBeside())
            place.moveTop(layout.place(*box).center().y() - place.height() / 2);
        return place;
    }

    void syncContent(const FormLayout& layout) override {
        const QString text = breakable(qtText(data_.caption), font(layout), label_.width());
        const FittedText& shown = fitted(text, label_.size(), Qt::TextWordWrap, layout);
        // In a label that names a box an & would mark a letter.
        const QString plain = data_.buddy == nullptr ? shown.text : QString(shown.text).replace("&", "&&");
        if (label_.text() != plain) label_.setText(plain);
        if (label_.font() != shown.font) label_.setFont(shown.font);
        label_.setAlignment(qtAlignment(data_.alignment) |
                            (boxBeside() == nullptr ? Qt::AlignTop : Qt::AlignVCenter));
        if (data_.buddy != nullptr) label_.setBuddy(context().widgetOf(*data_.buddy));
        syncColour();
    }

  private:
    /// The text box on the label's right in its row, nullptr where there is none.
    const Control* boxBeside() const {
        const double middle = data_.design.top + data_.design.height / 2;
        for (const auto& control : context().form().controls()) {
            const Rect& box = control->design;
            const bool beside = box.left >= data_.design.right() - tolerance && middle > box.top &&
                                middle < box.bottom() && control->container == data_.container &&
                                control->page == data_.page;
            if (beside && control->shown() && dynamic_cast<const TextBox*>(control.get()) != nullptr)
                return control.get();
        }
        return nullptr;
    }

    void syncColour() {
        const QColor colour = qtColour(data_.textColour);
        QPalette palette = label_.palette();
        if (palette.color(QPalette::Active, QPalette::WindowText) == colour) return;
        palette.setColor(QPalette::Active, QPalette::WindowText, colour);
        palette.setColor(QPalette::Inactive, QPalette::WindowText, colour);
        label_.setPalette(palette);
    }

    const Label& data_;
    QLabel& label_;
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, Label& label, QWidget* parent) {
    return std::make_unique<LabelView>(context, label, parent);
}

} // namespace vantore
