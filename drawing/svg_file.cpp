#include "drawing/svg_file.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <array>
#include <memory>
#include <string_view>

#include "drawing/drawing.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr int dotsPerInch = 96;

/// Texts can't be measured without an application object. A program that has none gets one that needs no
/// display.
void needApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    static int count = 3;
    static std::string name = "vantore-script";
    static std::string option = "-platform";
    static std::string platform = "offscreen";
    static std::array<char*, 4> words = {name.data(), option.data(), platform.data(), nullptr};
    static const QApplication application(count, words.data());
    substituteFonts();
}

/// Names behind each family the ones that other systems have in its place.
QByteArray withFallbackFonts(QByteArray svg) {
    constexpr const char* sans = "'Liberation Sans', Helvetica, sans-serif";
    struct Family {
        const char* name;
        const char* others;
    };
    for (const Family& family : {Family{"Arial", sans}, Family{"MS Sans Serif", sans},
                                 Family{"Courier New", "'Liberation Mono', monospace"},
                                 Family{"Times Roman", "'Liberation Serif', serif"}}) {
        const QByteArray name(family.name);
        svg.replace("font-family=\"" + name + "\"",
                    "font-family=\"'" + name + "', " + QByteArray(family.others) + "\"");
    }
    return svg;
}

} // namespace

QByteArray svgOf(const Drawing& drawing, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const QSizeF size = drawing.size();
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(dotsPerInch);
    generator.setSize(size.toSize());
    generator.setViewBox(QRectF(QPointF(0, 0), size));
    generator.setTitle(title);
    generator.setDescription("Vantore");
    QPainter painter(&generator);
    drawing.paint(painter);
    painter.end();
    return withFallbackFonts(bytes);
}

void writeSvgFile(const Form& form, const Control& drawing, const std::filesystem::path& path) {
    needApplication();
    const QByteArray svg = svgOf(Drawing(form, drawing), qtText(form.caption));
    replaceFile(path, std::string_view(svg.constData(), static_cast<std::size_t>(svg.size())));
}

} // namespace vantore
