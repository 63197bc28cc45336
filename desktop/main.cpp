#include <QApplication>
#include <QFileInfo>

#include "desktop/desktop_session.h"
#include "desktop/look.h"
#include "drawing/fonts.h"
#include "shell/base/install_folder.h"
#include "shell/base/text_file.h"
#include "suite/module_list.h"

namespace {

std::filesystem::path programFolder() {
    return vantore::pathOf(
        vantore::utf8Text(QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath()));
}

} // namespace

int main(int count, char** words) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(count, words);
    QApplication::setQuitOnLastWindowClosed(false); // the launcher's end is the program's
    vantore::setLook();
    vantore::DesktopSession session(vantore::installFolder(programFolder()), vantore::moduleList());
    return session.start() ? QApplication::exec() : 0;
}
