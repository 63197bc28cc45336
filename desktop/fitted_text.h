#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

class QWidget;

namespace vantore {

/// A text as it is shown in a place: in its font, in one smaller by a fifth at most, or cut with "...".
struct FittedText {
    QString text;
    QFont font;
    bool cut = false;
};

/// `flags` are those of drawing: Qt::TextWordWrap, Qt::TextShowMnemonic.
FittedText fittedText(const QString& text, const QFont& font, QSizeF room, int flags);

/// The text with places to break at in words that are wider than a line: behind the separators of a path and
/// every few letters.
QString breakable(const QString& text, const QFont& font, double width);

/// A tip that shows `text`, broken into lines, before what else there is to tell. A very long text is cut.
QString tipWith(const QString& text, const QString& tip);

} // namespace vantore
