#include "desktop/look.h"

#include <QApplication>
#include <QIcon>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QWidget>
#include <algorithm>

#include "desktop/pictures.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr double dialogFontSize = 9; // points; of the file and print dialogs
constexpr double markShare = .8;     // of a line's height: the mark of an option or check box

/// Marks as large as the text beside them, however large the screen makes it.
class SuiteStyle : public QProxyStyle {
  public:
    SuiteStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight: break;
        default: return usual;
        }
        if (widget == nullptr) return usual;
        return std::max(usual, static_cast<int>(markShare * widget->fontMetrics().height()));
    }
};

} // namespace

void setLook() {
    QApplication::setStyle(new SuiteStyle); // the application's own
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setWindowIcon(QIcon(pictureFile("icon")));
    substituteFonts();
    QApplication::setFont(qtFont({.size = dialogFontSize}));
}

} // namespace vantore
