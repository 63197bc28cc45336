#include "desktop/dialog_window.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/fitted_text.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double inset = 150;        // twips
constexpr int reasonableLine = 40;   // characters
constexpr double largestShare = .6;  // of the screen, for the prompt
constexpr int endlessLine = 1 << 24; // pixels

/// Width of a text in lines of a reasonable length, no less than told.
int promptWidth(const QString& text, const QFont& font, int told) {
    const QFontMetrics metrics(font);
    const int whole = metrics.boundingRect(QRect(0, 0, endlessLine, endlessLine), 0, text).width() + 1;
    return std::max(told, std::min(whole, reasonableLine * metrics.averageCharWidth()));
}

} // namespace

DialogWindow::DialogWindow(DialogForm& form, WindowSteps& steps, QWidget* parent, double zoom)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      form_(form), steps_(steps), zoom_(zoom), prompt_(*new QLabel(this)) {
    setObjectName(qtText(form.name()));
    setWindowTitle(qtText(form.caption));
    for (const auto& control : form.controls()) {
        if (auto* label = dynamic_cast<Label*>(control.get())) showPrompt(*label);
        if (auto* box = dynamic_cast<TextBox*>(control.get())) addInput(*box);
        if (auto* button = dynamic_cast<Button*>(control.get())) addButton(*button);
    }
    layOut();
    if (form.focus != nullptr)
        if (auto* first = findChild<QWidget*>(qtText(form.focus->name))) first->setFocus();
}

int DialogWindow::pixels(double twips) const {
    return static_cast<int>(std::lround(twips / twipsPerPixel * zoom_));
}

QFont DialogWindow::fontOf(const Control& control) const {
    return qtFont({.size = control.fontSize, .bold = control.bold}, zoom_);
}

void DialogWindow::showPrompt(const Label& prompt) {
    const QFont font = fontOf(prompt);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize() * largestShare;
    const int told = pixels(prompt.design.width);
    int width = promptWidth(qtText(prompt.caption), font, told);
    QString text = breakable(qtText(prompt.caption), font, width);
    while (width < screen.width() &&
           fittedText(text, font, QSize(width, screen.height()), Qt::TextWordWrap).cut)
        text = breakable(qtText(prompt.caption), font, width = std::min(width * 5 / 4, screen.width()));
    widened_ = width > told;
    const FittedText shown = fittedText(text, font, QSize(width, screen.height()), Qt::TextWordWrap);
    prompt_.setObjectName(qtText(prompt.name));
    prompt_.setTextFormat(Qt::PlainText);
    prompt_.setWordWrap(true);
    prompt_.setFont(shown.font);
    prompt_.setText(shown.text);
    prompt_.setFixedWidth(width);
    prompt_.setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setAccessibleDescription(qtText(prompt.caption));
}

void DialogWindow::addInput(TextBox& box) {
    input_ = new QLineEdit(qtText(box.text()), this);
    input_->setObjectName(qtText(box.name));
    input_->setAccessibleName(accessibleDescription());
    input_->setMaxLength(std::numeric_limits<int>::max());
    input_->setFont(fontOf(box));
    input_->setMinimumSize(pixels(box.design.width), pixels(box.design.height));
    input_->selectAll(); // typing takes its place
    connect(input_, &QLineEdit::textEdited, this,
            [this, &box](const QString& text) { act([&] { form_.type(box, utf8Text(text)); }); });
}

void DialogWindow::addButton(Button& button) {
    auto* widget = new QPushButton(qtText(button.caption), this);
    widget->setObjectName(qtText(button.name));
    widget->setFont(fontOf(button));
    widget->setMinimumSize(pixels(button.design.width), pixels(button.design.height));
    widget->setDefault(buttons_.empty());
    connect(widget, &QPushButton::clicked, this, [this, &button] { act([&] { form_.press(button); }); });
    buttons_.push_back(widget);
}

/// The buttons of an input stand beside the prompt, those of the others under it.
void DialogWindow::layOut() {
    auto* box = new QDialogButtonBox(input_ == nullptr ? Qt::Horizontal : Qt::Vertical, this);
    for (QPushButton* button : buttons_) box->addButton(button, QDialogButtonBox::ActionRole);
    box->setCenterButtons(input_ == nullptr);
    buttons_.front()->setDefault(true);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(pixels(inset), pixels(inset), pixels(inset), pixels(inset));
    grid->addWidget(&prompt_, 0, 0, Qt::AlignTop);
    grid->setRowStretch(0, 1);
    if (input_ == nullptr) {
        grid->addWidget(box, 1, 0);
    } else {
        grid->addWidget(box, 0, 1, Qt::AlignTop);
        grid->addWidget(input_, 1, 0);
    }
    setMinimumSize(pixels(form_.width), widened_ ? 0 : pixels(form_.height));
    adjustSize();
    setFixedSize(size());
}

QPoint DialogWindow::toldMiddle() const {
    return QPointF((form_.left + form_.width / 2) / twipsPerPixel,
                   (form_.top + form_.height / 2) / twipsPerPixel)
        .toPoint();
}

void DialogWindow::act(const std::function<void()>& action) {
    steps_.step(action);
    if (form_.closed) done(Accepted);
}

void DialogWindow::reject() {
    act([this] { form_.close(); });
}

/// The mnemonic letter needs no Alt where no text box takes it.
void DialogWindow::keyPressEvent(QKeyEvent* event) {
    for (QPushButton* button : buttons_) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(button->text());
        const bool pressed = !event->text().isEmpty() && !mnemonic.isEmpty() &&
                             mnemonic == QKeySequence("Alt+" + event->text().toUpper());
        if (pressed) return button->click();
    }
    QDialog::keyPressEvent(event);
}

} // namespace vantore
