#pragma once

#include <QDialog>
#include <QString>
#include <memory>

#include "shell/forms/print_job.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;

namespace vantore {

/// Shows a document before it is printed, and prints it to a printer of the system or into a PDF file.
class PrintWindow : public QDialog {
  public:
    /// `folder`: where a PDF file goes unless the user names another place.
    PrintWindow(QWidget* parent, const PrintJob& job, const QString& folder);
    ~PrintWindow() override;

    /// Prints where the user has chosen to. RuntimeErrors: DeviceUnavailable for a printer, those of
    /// `replaceFile` for a file.
    void print();

  protected:
    void accept() override;

  private:
    void addTargets();
    void layOut();
    QWidget* makePager();
    void browse();
    void targetChanged();
    void showPage(int page);
    bool toFile() const;
    bool mayReplace(const QString& file);

    const PrintJob& job_;
    std::unique_ptr<QPrinter> paper_; ///< what the preview paints on
    QPrintPreviewWidget* preview_ = nullptr;
    QComboBox* target_;
    QLineEdit* file_;
    QPushButton* browse_;
    QLabel* pageNumber_;
};

} // namespace vantore
