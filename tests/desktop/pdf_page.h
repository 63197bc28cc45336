#pragma once

#include <QImage>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <filesystem>
#include <string>

namespace vantore::tests {

/// The answer of a program of poppler about a PDF file.
inline QString askAboutPdf(const char* program, QStringList arguments, const std::filesystem::path& file) {
    QProcess reader;
    reader.start(program, arguments << QString::fromStdString(file.string()) << "-");
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

/// What the first page of a PDF file holds.
struct PdfPage {
    std::string text;
    QString words; ///< with their places
    qsizetype images = 0;

    /// Where a word stands, in points; null where it doesn't.
    QRectF place(const char* word) const {
        static const QString number = R"RE("([0-9.]+)")RE";
        const QRegularExpression pattern("xMin=" + number + " yMin=" + number + " xMax=" + number +
                                         " yMax=" + number + ">" + word + "<");
        const auto found = pattern.match(words);
        const auto value = [&](int i) { return found.captured(i).toDouble(); };
        return found.hasMatch() ? QRectF(QPointF(value(1), value(2)), QPointF(value(3), value(4))) : QRectF();
    }
};

inline PdfPage readPdf(const std::filesystem::path& file) {
    QProcess images;
    images.start("pdfimages", {"-list", QString::fromStdString(file.string())});
    images.waitForFinished();
    return {askAboutPdf("pdftotext", {"-layout"}, file).toStdString(),
            askAboutPdf("pdftotext", {"-bbox"}, file), images.readAllStandardOutput().count(" image ")};
}

/// The first page as a picture, a pixel a millimetre.
inline QImage imageOfPdf(const std::filesystem::path& file) {
    const QString target = QString::fromStdString(file.string());
    QProcess painter;
    painter.start("pdftoppm", {"-r", "25.4", "-png", "-singlefile", target, target});
    painter.waitForFinished();
    return QImage(target + ".png");
}

} // namespace vantore::tests
