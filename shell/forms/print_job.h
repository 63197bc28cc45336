#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/palette.h"

namespace vantore {

/// What a captured picture shows, as its platform can draw it again in any size; opaque to all others.
class Redrawable {
  public:
    Redrawable() = default;
    virtual ~Redrawable() = default;
    Redrawable(const Redrawable&) = default;
    Redrawable& operator=(const Redrawable&) = default;
};

/// A picture of part of the screen: its size in pixels and the pixels 0xAARRGGBB, row by row. A platform
/// that has no screen takes pictures without pixels. On paper the drawing stands for the pixels, where there
/// is one.
struct CapturedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels = {};
    std::shared_ptr<const Redrawable> drawing = {};
};

enum class Orientation { Portrait, Landscape };

struct PrintedLine {
    std::string text;
    Font font;
    int colour = colour::black;
};

/// A picture painted at the printer's origin. The size is in hundredths of a millimetre.
struct PrintedPicture {
    CapturedPicture picture;
    double width = 0;
    double height = 0;
};

using PrintOperation = std::variant<PrintedLine, PrintedPicture>;

/// One document for the printer.
struct PrintJob {
    std::string title = {};
    Orientation orientation = Orientation::Portrait;
    std::vector<PrintOperation> operations = {};

    void print(std::string text, const Font& font) {
        operations.emplace_back(PrintedLine{std::move(text), font});
    }
};

} // namespace vantore
