#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>

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

/// Answers the toolkit's own question, such as whether a file is to be replaced.
inline void answerYes(QWidget& question) {
    static_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
}

/// Prints what the next preview shows into a PDF file, and tells the file that was proposed.
inline void printToPdf(const std::filesystem::path& path, std::string* proposed = nullptr) {
    withNextDialog([path, proposed](QWidget& preview) {
        withNextDialog([path, proposed](QWidget& box) {
            auto* printers = box.findChild<QComboBox*>("printers");
            printers->setCurrentIndex(printers->count() - 1);
            auto* edit = box.findChild<QLineEdit*>("filename");
            if (proposed != nullptr) *proposed = edit->text().toStdString();
            edit->setText(QString::fromStdString(path.string()));
            if (std::filesystem::exists(path)) withNextDialog(answerYes);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        for (QAction* action : preview.findChildren<QAction*>())
            if (action->shortcut() == QKeySequence::Print) action->trigger();
    });
}

} // namespace vantore::tests
