#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QStyle>
#include <QStyleFactory>

#include "desktop/desktop_session.h"
#include "desktop/fonts.h"
#include "desktop/picture_view.h"
#include "suite/module_list.h"

namespace {

constexpr double dialogFontSize = 9; // points; of the file and print dialogs

/// The same look on every desktop: the forms' colours are made for a light one.
void setLook() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setWindowIcon(QIcon(vantore::pictureFile("icon")));
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    vantore::substituteFonts();
    QApplication::setFont(vantore::qtFont({.size = dialogFontSize}));
}

std::string installFolder() {
    return vantore::utf8Text(QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath());
}

} // namespace

int main(int count, char** words) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(count, words);
    setLook();
    vantore::DesktopSession session(installFolder(), vantore::moduleList());
    return session.start() ? QApplication::exec() : 1;
}
