#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "desktop/report_view.h"
#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double noteFontSize = 8; // points of the design
constexpr int noteMargin = 3;      // pixels
constexpr int leaveDelay = 0;      // milliseconds
constexpr int mouseDelay = 40;
constexpr int frameDelay = 100;    // milliseconds, until a window manager has made its frame
constexpr int smallestWidth = 320; // pixels
constexpr int smallestHeight = 120;

} // namespace

FormWindow::FormWindow(Form& form, WindowSteps& steps, QWidget* parent)
    : QWidget(parent, Qt::Window), form_(form), steps_(steps), canvas_(*new QWidget(this)),
      note_(*new QLabel(this)), edge_(*new QFrame(this)) {
    setObjectName(qtText(form.name()));
    canvas_.setAutoFillBackground(true);
    note_.setObjectName("runningNote");
    note_.setAutoFillBackground(true);
    note_.setMargin(noteMargin);
    note_.hide();
    edge_.setFrameStyle(QFrame::Box | QFrame::Plain);
    edge_.setAttribute(Qt::WA_TransparentForMouseEvents);
    edge_.hide();
    setMinimumSize(QSize(smallestWidth, smallestHeight).boundedTo(designSize(form)));
    makeShortcuts();
    makeViews();
}

/// Undo and redo work wherever the focus is.
void FormWindow::makeShortcuts() {
    const auto add = [this](const QKeySequence& keys, void (Form::*step)()) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, step] { act([this, step] { (form_.*step)(); }); });
    };
    add(Qt::CTRL | Qt::Key_Z, &Form::undo);
    add(Qt::CTRL | Qt::Key_Y, &Form::redo);
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &Form::redo);
}

void FormWindow::makeViews() {
    QWidget* before = nullptr;
    for (const auto& control : form_.controls()) {
        QWidget* widget = viewOf(*control).widget();
        if (before != nullptr) setTabOrder(before, widget);
        before = widget;
    }
}

/// The control's view, made on the page of its container.
ControlView& FormWindow::viewOf(Control& control) {
    if (const auto known = viewOf_.find(&control); known != viewOf_.end()) return *known->second;
    QWidget* parent = &canvas_;
    for (const auto& each : form_.controls())
        if (each.get() == control.container) parent = viewOf(*each).page(control.page);
    views_.push_back(makeView(*this, control, parent));
    viewOf_[&control] = views_.back().get();
    return *views_.back();
}

QSize FormWindow::sizeOn(const QRect& screen) const {
    const QSize design = designSize(form_);
    const bool fills = form_.width * form_.scale().x >= screen.width() * twipsPerPixel &&
                       form_.height * form_.scale().y >= screen.height() * twipsPerPixel;
    if (fills) return screen.size();
    const bool fits = design.width() <= screen.width() && design.height() <= screen.height();
    return fits ? design : design.scaled(screen.size(), Qt::KeepAspectRatio);
}

QWidget* FormWindow::widgetOf(const Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second->widget();
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
    if (!scrollReport(event)) QWidget::keyPressEvent(event);
}

/// A report is read with the keys at once, though its Continue button has the focus.
bool FormWindow::scrollReport(QKeyEvent* event) {
    const auto keys = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
    if (std::find(keys.begin(), keys.end(), event->key()) == keys.end()) return false;
    for (const auto& view : views_)
        if (auto* report = dynamic_cast<ReportBox*>(view->widget()); report != nullptr && report->isVisible())
            return QApplication::sendEvent(report, event);
    return false;
}

// Showing the form

void FormWindow::refresh() {
    const QString title = qtText(form_.caption);
    if (windowTitle() != title) setWindowTitle(title);
    syncColours();
    syncNote();
    canvas_.setEnabled(form_.enabled);
    syncViews();
    takeFocus();
}

void FormWindow::syncViews() {
    canvas_.setGeometry(rect());
    edge_.setGeometry(rect());
    layout_ = FormLayout(form_, size());
    for (const auto& view : views_) view->sync(layout_);
}

void FormWindow::syncColours() {
    if (form_.backColour == backColour_) return;
    backColour_ = form_.backColour;
    QPalette palette = QApplication::palette();
    if (backColour_ != Form::buttonFace) palette.setColor(QPalette::Window, qtColour(backColour_));
    canvas_.setPalette(palette);
}

/// The note stands at the foot, where the buttons are that can't be pressed while it is there.
void FormWindow::syncNote() {
    const QFont font = qtFont({.size = noteFontSize * std::min(form_.scale().x, form_.scale().y)});
    if (note_.font() != font) note_.setFont(font);
    note_.setText(qtText(form_.runningNote));
    note_.setVisible(!form_.runningNote.empty());
    const int strip = note_.sizeHint().height();
    note_.setGeometry(0, height() - strip, width(), strip);
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
    syncViews();
    syncNote();
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
    edge_.setVisible(!framed);
    edge_.raise();
    const QRect room = screen()->availableGeometry();
    const QSize excess(frameGeometry().right() - room.right(), frameGeometry().bottom() - room.bottom());
    if (framed && !isMaximized() && (excess.width() > 0 || excess.height() > 0))
        resize(width() - std::max(0, excess.width()), height() - std::max(0, excess.height()));
}

} // namespace vantore
