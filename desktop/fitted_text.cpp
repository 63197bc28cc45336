#include "desktop/fitted_text.h"

#include <QFontMetricsF>
#include <QRegularExpression>

namespace vantore {

namespace {

constexpr double smallestShare = .8;
constexpr double shrinkStep = .96;
constexpr double tolerance = .5; // pixels
constexpr double noLimit = 1e6;
constexpr int longestTip = 2000; // characters
const QString dots(QChar(0x2026));
const QRegularExpression breakPlace("(/|[^/]{12})");

bool fits(const QFont& font, const QString& text, QSizeF room, int flags) {
    const QRectF needed = QFontMetricsF(font).boundingRect(QRectF(0, 0, room.width(), noLimit), flags, text);
    return needed.width() <= room.width() + tolerance && needed.height() <= room.height() + tolerance;
}

/// The longest beginning of a text in several lines that fits with dots behind it.
QString cutBlock(const QString& text, const QFont& font, QSizeF room, int flags) {
    qsizetype fitting = 0;
    qsizetype beyond = text.size();
    while (beyond - fitting > 1) {
        const qsizetype middle = fitting + (beyond - fitting) / 2;
        (fits(font, text.left(middle) + dots, room, flags) ? fitting : beyond) = middle;
    }
    return text.left(fitting) + dots;
}

} // namespace

FittedText fittedText(const QString& text, const QFont& font, QSizeF room, int flags) {
    FittedText result{text, font};
    const double smallest = font.pointSizeF() * smallestShare;
    while (!fits(result.font, text, room, flags)) {
        const double size = result.font.pointSizeF();
        if (size > smallest) {
            result.font.setPointSizeF(std::max(size * shrinkStep, smallest));
            continue;
        }
        const bool oneLine = (flags & Qt::TextWordWrap) == 0 && !text.contains('\n');
        result.text = oneLine
                          ? QFontMetricsF(result.font).elidedText(text, Qt::ElideRight, room.width(), flags)
                          : cutBlock(text, result.font, room, flags);
        result.cut = result.text != text;
        break;
    }
    return result;
}

QString breakable(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(font);
    QString result;
    static const QRegularExpression words("\\S+|\\s+");
    for (auto found = words.globalMatch(text); found.hasNext();) {
        QString word = found.next().captured();
        if (metrics.horizontalAdvance(word) > width) word.replace(breakPlace, "\\1\u200B");
        result += word;
    }
    return result;
}

QString tipWith(const QString& text, const QString& tip) {
    QString shown = text.size() > longestTip ? text.left(longestTip) + dots : text;
    if (!tip.isEmpty()) shown += "\n" + tip;
    return "<qt>" + shown.toHtmlEscaped().replace("\n", "<br>") + "</qt>";
}

} // namespace vantore
