#include "desktop/keyboard_keeper.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "desktop/open_windows.h"

namespace vantore {

KeyboardKeeper::KeyboardKeeper(const OpenWindows& windows) : windows_(windows) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyboardKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && watched->isWidgetType()) {
        const auto& widget = static_cast<QWidget&>(*watched);
        const bool popup = widget.windowType() == Qt::Popup || widget.windowType() == Qt::ToolTip;
        if (widget.isWindow() && !popup) QTimer::singleShot(0, this, [this] { giveBack(); });
    }
    return QObject::eventFilter(watched, event);
}

void KeyboardKeeper::giveBack() const {
    if (QApplication::activeWindow() != nullptr) return;
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* next = modal == nullptr ? windows_.front() : modal;
    if (next != nullptr && next->isVisible()) next->activateWindow();
}

} // namespace vantore
