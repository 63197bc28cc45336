#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double margin = 120;     // twips, beside a control that reaches beyond its form
constexpr double noteFontSize = 8; // points of the design
constexpr int noteMargin = 3;      // pixels
constexpr int leaveDelay = 0;      // milliseconds
constexpr int mouseDelay = 40;
constexpr int frameDelay = 100;    // milliseconds, until a window manager has made its frame
constexpr int smallestWidth = 320; // pixels
constexpr int smallestHeight = 120;

} // namespace

FormWindow::FormWindow(Form& form, WindowSteps& steps, QWidget* parent)
    : QWidget(parent, Qt::Window), form_(form), steps_(steps),
      canvas_(std::make_unique<QWidget>(this).release()), note_(std::make_unique<QLabel>(this).release()),
      edge_(std::make_unique<QFrame>(this).release()) {
    setObjectName(qtText(form.name()));
    canvas_->setAutoFillBackground(true);
    note_->setObjectName("runningNote");
    note_->setAutoFillBackground(true);
    note_->setMargin(noteMargin);
    note_->hide();
    edge_->setFrameStyle(QFrame::Box | QFrame::Plain);
    edge_->setAttribute(Qt::WA_TransparentForMouseEvents);
    edge_->hide();
    setMinimumSize(std::min(smallestWidth, designSize().width()),
                   std::min(smallestHeight, designSize().height()));
    makeViews();
}

void FormWindow::makeViews() {
    QWidget* before = nullptr;
    for (const auto& control : form_.controls()) {
        views_.push_back(makeView(*this, *control, canvas_));
        QWidget* widget = views_.back()->widget();
        if (before != nullptr) setTabOrder(before, widget);
        before = widget;
    }
}

QSize FormWindow::designSize() const {
    double width = form_.width;
    double height = form_.height;
    for (const auto& control : form_.controls()) {
        if (control->design.right() > form_.width) width = std::max(width, control->design.right() + margin);
        if (control->design.bottom() > form_.height)
            height = std::max(height, control->design.bottom() + margin);
    }
    return {static_cast<int>(std::ceil(width * form_.scale().x / twipsPerPixel)),
            static_cast<int>(std::ceil(height * form_.scale().y / twipsPerPixel))};
}

QSize FormWindow::sizeOn(const QRect& screen) const {
    const QSize design = designSize();
    const bool fills = form_.width * form_.scale().x >= screen.width() * twipsPerPixel &&
                       form_.height * form_.scale().y >= screen.height() * twipsPerPixel;
    if (fills) return screen.size();
    const bool fits = design.width() <= screen.width() && design.height() <= screen.height();
    return fits ? design : design.scaled(screen.size(), Qt::KeepAspectRatio);
}

QWidget* FormWindow::widgetOf(const Control& control) const {
    for (const auto& view : views_)
        if (&view->control() == &control) return view->widget();
    return nullptr;
}

void FormWindow::behaveAsDialog() {
    dialog_ = true;
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowModality(Qt::ApplicationModal);
}

// The user's steps

void FormWindow::act(const std::function<void()>& action) {
    leaveLeftBox();
    steps_.step(action);
}

void FormWindow::left(TextBox& box) {
    if (leftBox_ == &box) return;
    leaveLeftBox();
    leftBox_ = &box;
    QTimer::singleShot(leaveDelay, this, [this] { leaveSoon(); });
}

/// Leaving may put up a message. While a mouse button is down that would take the release away from the
/// control that was pressed, so it waits; the press itself leaves the box first.
void FormWindow::leaveSoon() {
    if (QGuiApplication::mouseButtons() == Qt::NoButton) return leaveLeftBox();
    QTimer::singleShot(mouseDelay, this, [this] { leaveSoon(); });
}

void FormWindow::leaveLeftBox() {
    if (leftBox_ == nullptr) return;
    TextBox& box = *leftBox_;
    leftBox_ = nullptr;
    if (box.onLeave && !form_.closed) steps_.step([this, &box] { form_.leave(box); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form decides, and its owner takes the window away
    if (form_.enabled) act([this] { form_.close(); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return act([this] { form_.interrupt(); });
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (dialog_ && event->key() == Qt::Key_Escape) return act([this] { form_.close(); });
    if (dialog_ && enter) return pressDefault();
    if (dialog_ && pressLetter(event->text())) return;
    QWidget::keyPressEvent(event);
}

/// In a dialog the mnemonic letter needs no Alt where no text box takes it.
bool FormWindow::pressLetter(const QString& letter) {
    const auto has = [&](const Control& control) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(qtText(control.caption));
        return !mnemonic.isEmpty() && mnemonic == QKeySequence("Alt+" + letter.toUpper());
    };
    for (const auto& control : form_.controls()) {
        auto* button = dynamic_cast<Button*>(control.get());
        if (button == nullptr || letter.isEmpty() || !has(*button)) continue;
        act([this, button] { form_.press(*button); });
        return true;
    }
    return false;
}

void FormWindow::pressDefault() {
    for (const auto& control : form_.controls())
        if (auto* button = dynamic_cast<Button*>(control.get()))
            return act([this, button] { form_.press(*button); });
}

// Showing the form

void FormWindow::refresh() {
    const QString title = qtText(form_.caption);
    if (windowTitle() != title) setWindowTitle(title);
    syncColours();
    syncNote();
    layOut();
    canvas_->setEnabled(form_.enabled);
    syncViews();
    takeFocus();
    if (form_.closed && onClosed) onClosed();
}

void FormWindow::layOut() {
    const int strip = note_->isHidden() ? 0 : note_->sizeHint().height();
    const QSize room(width(), height() - strip);
    const QSize design = designSize();
    zoom_ = std::min(room.width() / static_cast<double>(design.width()),
                     room.height() / static_cast<double>(design.height()));
    canvas_->setGeometry(0, 0, room.width(), room.height());
    note_->setGeometry(0, room.height(), room.width(), strip);
    edge_->setGeometry(rect());
}

void FormWindow::syncViews() {
    const Layout layout{form_.scale().x * zoom_ / twipsPerPixel, form_.scale().y * zoom_ / twipsPerPixel,
                        zoom_};
    for (const auto& view : views_) view->sync(layout);
}

void FormWindow::syncColours() {
    if (form_.backColour == backColour_) return;
    backColour_ = form_.backColour;
    QPalette palette = QApplication::palette();
    if (backColour_ != Form::buttonFace) palette.setColor(QPalette::Window, qtColour(backColour_));
    canvas_->setPalette(palette);
}

void FormWindow::syncNote() {
    const double scale = std::min(form_.scale().x, form_.scale().y);
    const QFont font = qtFont({.size = noteFontSize * scale});
    if (note_->font() != font) note_->setFont(font);
    note_->setText(qtText(form_.runningNote));
    note_->setVisible(!form_.runningNote.empty());
}

void FormWindow::takeFocus() {
    Control* wanted = form_.focus;
    form_.focus = nullptr;
    if (wanted == nullptr || !Form::accepts(*wanted)) return;
    QWidget* widget = widgetOf(*wanted);
    if (widget == nullptr) return;
    widget->setFocus(Qt::OtherFocusReason);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll(); // typing takes its place
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) {
    layOut();
    syncViews();
}

void FormWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (focusWidget() == nullptr || focusWidget() == this) focusNextChild();
    QTimer::singleShot(frameDelay, this, [this] { settleFrame(); });
}

/// A window that no window manager has framed draws an edge of its own, else it can't be told from the
/// window behind it. A frame takes room; what would then lie off the screen is drawn smaller.
void FormWindow::settleFrame() {
    const bool framed = windowHandle() != nullptr && !windowHandle()->frameMargins().isNull();
    edge_->setVisible(!framed);
    edge_->raise();
    const QRect room = screen()->availableGeometry();
    const QSize excess(frameGeometry().right() - room.right(), frameGeometry().bottom() - room.bottom());
    if (framed && !dialog_ && !isMaximized() && (excess.width() > 0 || excess.height() > 0))
        resize(width() - std::max(0, excess.width()), height() - std::max(0, excess.height()));
}

} // namespace vantore
