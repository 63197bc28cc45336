#include "desktop/programs.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <csignal>

#include "drawing/fonts.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

class QtProgram final : public RunningProgram {
  public:
    QtProgram(const QString& program, const QString& folder, const QProcessEnvironment& environment) {
        process_.setProgram(program);
        process_.setWorkingDirectory(folder);
        process_.setProcessEnvironment(environment);
        process_.setStandardInputFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start();
    }

    ~QtProgram() override {
        if (!running()) return;
        interrupt();
        process_.waitForFinished(-1);
    }
    QtProgram(const QtProgram&) = delete;
    QtProgram& operator=(const QtProgram&) = delete;

    bool started() { return process_.waitForStarted(-1); }

    bool running() override {
        if (process_.state() != QProcess::NotRunning) process_.waitForFinished(0);
        return process_.state() != QProcess::NotRunning;
    }

    void interrupt() override {
        if (const qint64 id = process_.processId(); id > 0) kill(static_cast<pid_t>(id), SIGINT);
    }

  private:
    QProcess process_;
};

struct Candidate {
    const char* name;
    QStringList arguments;
};

/// Starts the first of these programs that is installed.
bool startFirst(const std::vector<Candidate>& candidates) {
    for (const Candidate& candidate : candidates) {
        const QString path = QStandardPaths::findExecutable(candidate.name);
        if (!path.isEmpty() && QProcess::startDetached(path, candidate.arguments)) return true;
    }
    return false;
}

} // namespace

std::unique_ptr<RunningProgram> startProgram(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& environment) {
    const QString path = qtText(textOf(program));
    const QFileInfo file(path);
    if (!file.isFile() || !file.isExecutable()) return nullptr;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const Programs::Variable& variable : environment)
        variables.insert(qtText(variable.name), qtText(variable.value));
    auto running = std::make_unique<QtProgram>(path, qtText(textOf(folder)), variables);
    if (!running->started()) return nullptr;
    return running;
}

bool startSpreadsheetProgram() {
    return startFirst({{"libreoffice", {"--calc"}}, {"localc", {}}, {"soffice", {"--calc"}}});
}

bool startDisplaySettingsProgram() {
    return startFirst({{"gnome-control-center", {"display"}},
                       {"systemsettings", {"kcm_kscreen"}},
                       {"xfce4-display-settings", {}},
                       {"lxrandr", {}},
                       {"arandr", {}}});
}

} // namespace vantore
