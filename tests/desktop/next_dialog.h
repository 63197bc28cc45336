#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>

namespace vantore::tests {

/// Does something to the dialog that comes up next, while the caller waits for its end.
inline void withNextDialog(const std::function<void(QWidget&)>& action) {
    constexpr int interval = 30; // milliseconds
    QTimer::singleShot(interval, [action] {
        if (QWidget* dialog = QApplication::activeModalWidget()) return action(*dialog);
        withNextDialog(action);
    });
}

/// Types a name into the next file dialog and presses Enter.
inline void answerFileDialog(const char* name) {
    withNextDialog([name](QWidget& box) {
        auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

} // namespace vantore::tests
