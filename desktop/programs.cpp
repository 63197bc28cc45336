#include "desktop/programs.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <vector>

namespace vantore {

namespace {

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
