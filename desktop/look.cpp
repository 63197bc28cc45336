#include "desktop/look.h"

#include <QApplication>
#include <QIcon>
#include <QStyle>
#include <QStyleFactory>

#include "desktop/fonts.h"
#include "desktop/picture_view.h"

namespace vantore {

namespace {

constexpr double dialogFontSize = 9; // points; of the file and print dialogs

} // namespace

void setLook() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setWindowIcon(QIcon(pictureFile("icon")));
    substituteFonts();
    QApplication::setFont(qtFont({.size = dialogFontSize}));
}

} // namespace vantore
