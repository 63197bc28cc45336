#include "desktop/print_window.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/file_dialogs.h"
#include "desktop/fonts.h"
#include "desktop/printing.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr int preferredWidth = 700; // pixels
constexpr int preferredHeight = 640;
constexpr int screenMargin = 60;

template <class Widget, class... Arguments>
Widget* make(Arguments&&... arguments) {
    return std::make_unique<Widget>(std::forward<Arguments>(arguments)...).release(); // the parent's own
}

QLabel* labelFor(const char* text, QWidget* buddy, QWidget* parent) {
    auto* label = make<QLabel>(text, parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace

PrintWindow::PrintWindow(QWidget* parent, const PrintJob& job, const QString& folder)
    : QDialog(parent), job_(job), paper_(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      target_(make<QComboBox>(this)),
      file_(make<QLineEdit>(QDir(folder).filePath(qtText(job.title) + ".pdf"), this)),
      browse_(make<QPushButton>("&Browse...", this)), pageNumber_(make<QLabel>(this)) {
    setWindowTitle("Print - " + qtText(job.title));
    paper_->setOutputFormat(QPrinter::PdfFormat);
    paper_->setPageLayout(pageLayout(job.orientation));
    preview_ = make<QPrintPreviewWidget>(paper_.get(), this);
    connect(preview_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { printOn(*printer, job_); });
    connect(preview_, &QPrintPreviewWidget::previewChanged, this, [this] { showPage(0); });
    connect(browse_, &QPushButton::clicked, this, [this] { browse(); });
    addTargets();
    layOut();
    targetChanged();
}

PrintWindow::~PrintWindow() = default;

void PrintWindow::addTargets() {
    const QString standard = QPrinterInfo::defaultPrinterName();
    for (const QString& name : QPrinterInfo::availablePrinterNames()) target_->addItem(name);
    target_->addItem("PDF file");
    target_->setCurrentIndex(std::max(0, standard.isEmpty() ? 0 : target_->findText(standard)));
    connect(target_, &QComboBox::currentIndexChanged, this, [this] { targetChanged(); });
}

void PrintWindow::layOut() {
    auto* all = make<QVBoxLayout>(this);
    auto* targets = make<QHBoxLayout>();
    targets->addWidget(labelFor("&To:", target_, this));
    targets->addWidget(target_);
    targets->addWidget(labelFor("&File:", file_, this));
    targets->addWidget(file_, 1);
    targets->addWidget(browse_);
    all->addLayout(targets);
    all->addWidget(preview_, 1);
    auto* buttons = make<QDialogButtonBox>(QDialogButtonBox::Cancel, this);
    auto* printButton = buttons->addButton("&Print", QDialogButtonBox::AcceptRole);
    printButton->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    auto* foot = make<QHBoxLayout>();
    foot->addWidget(makePager());
    foot->addWidget(buttons, 1);
    all->addLayout(foot);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    resize(std::min(preferredWidth, screen.width() - screenMargin),
           std::min(preferredHeight, screen.height() - screenMargin));
    printButton->setFocus();
}

QWidget* PrintWindow::makePager() {
    auto* pager = make<QWidget>(this);
    auto* row = make<QHBoxLayout>(pager);
    row->setContentsMargins(0, 0, 0, 0);
    const auto step = [&](const char* text, const char* tip, int by) {
        auto* button = make<QPushButton>(text, pager);
        button->setToolTip(tip);
        button->setAutoDefault(false);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, by] { showPage(by); });
    };
    step("Pre&vious", "Show the page before", -1);
    row->addWidget(pageNumber_);
    step("&Next", "Show the page behind", 1);
    return pager;
}

void PrintWindow::showPage(int by) {
    const int page = std::clamp(preview_->currentPage() + by, 1, std::max(1, preview_->pageCount()));
    if (by != 0) preview_->setCurrentPage(page);
    pageNumber_->setText(QString("Page %1 of %2").arg(page).arg(preview_->pageCount()));
}

bool PrintWindow::toFile() const {
    return target_->currentIndex() == target_->count() - 1;
}

void PrintWindow::targetChanged() {
    file_->setEnabled(toFile());
    browse_->setEnabled(toFile());
}

void PrintWindow::browse() {
    const QFileInfo file(file_->text());
    const auto chosen = chooseFile(this,
                                   {.kind = FileDialog::Kind::Save,
                                    .title = "Print to PDF file",
                                    .folder = utf8Text(file.absolutePath()),
                                    .filter = "PDF document (*.pdf)|*.pdf|"},
                                   file.fileName());
    if (chosen) file_->setText(qtText(*chosen));
}

bool PrintWindow::mayReplace(const QString& file) {
    if (!QFileInfo::exists(file)) return true;
    return QMessageBox::question(this, windowTitle(),
                                 file + " already exists.\nDo you want to replace it?") == QMessageBox::Yes;
}

void PrintWindow::accept() {
    if (toFile() && (file_->text().trimmed().isEmpty() || !mayReplace(file_->text()))) return;
    QDialog::accept();
}

void PrintWindow::print() {
    if (toFile()) {
        const QByteArray pdf = pdfOf(job_);
        return replaceFile(pathOf(utf8Text(file_->text().trimmed())),
                           std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(target_->currentText());
    if (!printer.isValid()) throw RuntimeError(ErrorNumber::DeviceUnavailable);
    printer.setDocName(qtText(job_.title));
    printer.setPageLayout(pageLayout(job_.orientation));
    printOn(printer, job_);
    if (printer.printerState() == QPrinter::Error) throw RuntimeError(ErrorNumber::DeviceUnavailable);
}

} // namespace vantore
