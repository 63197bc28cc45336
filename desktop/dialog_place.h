#pragma once

#include <QImage>
#include <QRect>

namespace vantore {

/// What a dialog asks about: its place on the screen and its look there.
struct AskedAbout {
    QRect place;
    QImage look;
};

/// Where a dialog of that size leaves most in sight of what it asks about: around `middle` where it covers
/// nothing there, else beside it where the screen has room, else over the emptiest of its corners.
QRect dialogPlace(QSize dialog, QPoint middle, const QRect& screen, const AskedAbout& about);

} // namespace vantore
