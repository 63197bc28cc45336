#include "desktop/file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <filesystem>

#include "drawing/fonts.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

/// The parts of "label|pattern|label|pattern|".
QStringList filterParts(std::string_view filter) {
    return qtText(filter).split('|', Qt::SkipEmptyParts);
}

/// The label without the pattern that it repeats in brackets.
QString bareLabel(const QString& label) {
    const qsizetype bracket = label.lastIndexOf('(');
    return (bracket < 0 ? label : label.left(bracket)).trimmed();
}

/// "dat" of "COG*.dat"; empty when the ending isn't fixed.
QString endingOf(const QString& pattern) {
    const qsizetype point = pattern.lastIndexOf('.');
    const QString ending = point < 0 ? QString() : pattern.mid(point + 1);
    return ending.contains('*') || ending.contains('?') ? QString() : ending;
}

/// A dialog that understands a typed name as the suite's file names are understood.
class NameDialog : public QFileDialog {
  public:
    explicit NameDialog(QWidget* parent) : QFileDialog(parent) {
        connect(this, &QFileDialog::filterSelected, this, [this] { followFilter(); });
    }

    QString unasked; ///< the path that is saved over without a question

    QLineEdit* nameBox() const { return findChild<QLineEdit*>("fileNameEdit"); }

    void accept() override {
        QLineEdit* box = nameBox();
        const QString typed = box->text().trimmed();
        if (!typed.isEmpty() && !typed.startsWith('~')) {
            const QDir folder = directory();
            const std::string path = utf8Text(folder.absoluteFilePath(typed));
            const QString chosen = qtText(pathForName(path, utf8Text(ending())));
            setOption(QFileDialog::DontConfirmOverwrite, chosen == unasked);
            box->setText(folder.relativeFilePath(chosen));
        }
        QFileDialog::accept();
    }

  private:
    QString ending() const {
        const QString filter = selectedNameFilter();
        const QString patterns = filter.mid(filter.lastIndexOf('(') + 1).chopped(1);
        return endingOf(patterns.split(' ').first());
    }

    /// A name with the ending of one filter takes that of the filter chosen now.
    void followFilter() {
        const QFileInfo name(nameBox()->text());
        if (!name.suffix().isEmpty() && !ending().isEmpty() && nameFilters().size() > 2)
            nameBox()->setText(name.completeBaseName() + "." + ending());
    }
};

} // namespace

QStringList nameFilters(std::string_view filter) {
    const QStringList parts = filterParts(filter);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(';', ' ').simplified();
        filters.append(QString("%1 (%2)").arg(bareLabel(parts[i]), patterns));
    }
    return filters;
}

std::string pathForName(const std::string& path, const std::string& ending) {
    const std::filesystem::path spelled = existingSpelling(pathOf(path));
    std::error_code ignored;
    if (std::filesystem::exists(spelled, ignored) || ending.empty() || spelled.has_extension())
        return textOf(spelled);
    return textOf(existingSpelling(pathOf(path + "." + ending)));
}

std::optional<std::string> chooseFile(QWidget* parent, const FileDialog& dialog, Overwriting overwriting) {
    const bool saves = dialog.kind == FileDialog::Kind::Save;
    NameDialog box(parent);
    box.setOption(QFileDialog::DontUseNativeDialog);
    box.setOption(QFileDialog::DontUseCustomDirectoryIcons);
    box.setWindowTitle(qtText(dialog.title));
    box.setFileMode(QFileDialog::AnyFile);
    box.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setDirectory(dialog.folder.empty() ? QDir::currentPath() : qtText(dialog.folder));
    box.setNameFilters(nameFilters(dialog.filter) << "All files (*)");
    if (!dialog.name.empty()) box.selectFile(qtText(dialog.name));
    if (overwriting == Overwriting::ProposedUnasked)
        box.unasked = box.directory().absoluteFilePath(qtText(dialog.name));
    box.nameBox()->setFocus();
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
    return utf8Text(box.selectedFiles().first());
}

} // namespace vantore
