#include "desktop/label_views.h"

#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <memory>

#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int frameTitleInset = 16;      // pixels at both sides of a frame's title together
constexpr double frameTitleHeight = 240; // twips of the design that a frame's controls leave free

/// The text, with places to break at behind the separators of a path where one is longer than a line.
QString breakable(const QString& text, const QFont& font, int width) {
    const QFontMetricsF metrics(font);
    for (const QString& word : text.split(QRegularExpression("\\s")))
        if (metrics.horizontalAdvance(word) > width) return QString(text).replace("/", "/\u200B");
    return text;
}

Qt::Alignment qtAlignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left: return Qt::AlignLeft | Qt::AlignTop;
    case Alignment::Centre: return Qt::AlignHCenter | Qt::AlignTop;
    case Alignment::Right: return Qt::AlignRight | Qt::AlignTop;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

} // namespace

LabelView::LabelView(ViewContext& context, Label& label, QWidget* parent)
    : ControlView(context, label, std::make_unique<QLabel>(parent).release()), data_(label),
      label_(static_cast<QLabel&>(*widget())) {
    label_.setTextFormat(Qt::PlainText);
    label_.setWordWrap(true);
}

void LabelView::syncContent(const Layout& layout) {
    const double size = data_.fontSize * context().form().scale().x * layout.zoom;
    const QString text =
        breakable(qtText(data_.caption), qtFont({.size = size, .bold = data_.bold}), label_.width());
    const QFont font = fittedFont(text, label_.size(), Qt::TextWordWrap, layout);
    if (label_.text() != text) label_.setText(text);
    if (label_.font() != font) label_.setFont(font);
    label_.setAlignment(qtAlignment(data_.alignment));
    const QColor colour = qtColour(data_.textColour);
    QPalette palette = label_.palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) == colour) return;
    palette.setColor(QPalette::Active, QPalette::WindowText, colour);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, colour);
    label_.setPalette(palette);
}

FrameView::FrameView(ViewContext& context, Frame& frame, QWidget* parent)
    : ControlView(context, frame, std::make_unique<QGroupBox>(parent).release()),
      box_(static_cast<QGroupBox&>(*widget())) {
    box_.lower();
}

void FrameView::syncContent(const Layout& layout) {
    const QString text = qtText(control().caption);
    const QFont font =
        fittedFont(text, QSize(box_.width() - frameTitleInset, static_cast<int>(frameTitleHeight * layout.y)),
                   Qt::TextShowMnemonic, layout);
    if (box_.title() != text) box_.setTitle(text);
    if (box_.font() != font) box_.setFont(font);
}

} // namespace vantore
