#include "desktop/programs.h"

#include <QProcess>
#include <QStandardPaths>

namespace vantore {

bool startSpreadsheetProgram() {
    struct Candidate {
        const char* name;
        QStringList arguments;
    };
    for (const Candidate& candidate :
         {Candidate{"libreoffice", {"--calc"}}, Candidate{"localc", {}}, Candidate{"soffice", {"--calc"}}}) {
        const QString path = QStandardPaths::findExecutable(candidate.name);
        if (!path.isEmpty() && QProcess::startDetached(path, candidate.arguments)) return true;
    }
    return false;
}

} // namespace vantore
