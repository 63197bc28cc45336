#include "desktop/dialog_place.h"

#include <algorithm>
#include <vector>

namespace vantore {

namespace {

constexpr int gap = 8; // pixels, beside what is asked about

QRect onScreen(QRect place, const QRect& screen) {
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place;
}

/// Count of pixels of the look that are drawn on and lie under the dialog.
int inkUnder(const QRect& dialog, const AskedAbout& about) {
    if (about.look.isNull()) return 0;
    const double ratio = about.look.width() / static_cast<double>(std::max(1, about.place.width()));
    const QRect covered = dialog.intersected(about.place).translated(-about.place.topLeft());
    const QRect under = QRectF(QPointF(covered.topLeft()) * ratio, QSizeF(covered.size()) * ratio)
                            .toRect()
                            .intersected(about.look.rect());
    int ink = 0;
    for (int y = under.top(); y <= under.bottom(); ++y)
        for (int x = under.left(); x <= under.right(); ++x)
            ink += (about.look.pixel(x, y) & 0xFFFFFFU) != 0xFFFFFFU ? 1 : 0;
    return ink;
}

} // namespace

QRect dialogPlace(QSize dialog, QPoint middle, const QRect& screen, const AskedAbout& about) {
    const auto around = [&](QPoint centre) {
        QRect place(QPoint(0, 0), dialog);
        place.moveCenter(centre);
        return onScreen(place, screen);
    };
    const auto at = [&](int left, int top) { return onScreen({QPoint(left, top), dialog}, screen); };
    const QRect& p = about.place;
    const int right = p.right() - gap - dialog.width();
    const int bottom = p.bottom() - gap - dialog.height();
    const int top = around(middle).top();
    const int left = around(middle).left();
    const std::vector<QRect> places = {around(middle),
                                       at(p.right() + gap, top),
                                       at(p.left() - gap - dialog.width(), top),
                                       at(left, p.bottom() + gap),
                                       at(left, p.top() - gap - dialog.height()),
                                       at(right, bottom),
                                       at(p.left() + gap, bottom),
                                       at(right, p.top() + gap),
                                       at(p.left() + gap, p.top() + gap)};
    return *std::min_element(places.begin(), places.end(), [&](const QRect& a, const QRect& b) {
        return inkUnder(a, about) < inkUnder(b, about);
    });
}

} // namespace vantore
