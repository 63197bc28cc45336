#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/palette.h"

namespace vantore {

/// What a surface holds, in its units: pixels of the 800x600 design times the scale factors, from the top
/// left corner.
struct SurfaceText {
    double x, y; ///< Top left corner of the first character.
    std::string text;
    Font font;
    int colour;

    auto operator<=>(const SurfaceText&) const = default;
};

struct SurfaceLine {
    double x1, y1, x2, y2;
    int colour;
    double width = 1;

    auto operator<=>(const SurfaceLine&) const = default;
};

struct SurfaceBox {
    double x1, y1, x2, y2;
    int colour;
    bool filled = false;

    auto operator<=>(const SurfaceBox&) const = default;
};

struct SurfaceCircle {
    double x, y, radius;
    int colour;
    bool filled = false;

    auto operator<=>(const SurfaceCircle&) const = default;
};

using SurfaceOperation = std::variant<SurfaceText, SurfaceLine, SurfaceBox, SurfaceCircle>;

/// A surface to print texts and draw on. Nothing is taken off but by clearing it.
class PictureSurface : public Control {
  public:
    PictureSurface(std::string controlName, Rect place, Scale scale);

    void clear();

    /// Font and colour of the texts printed from now on. They last until they are set anew.
    Font font;
    int ink = colour::black;

    /// Where the next text is printed.
    void moveTo(double x, double y);

    /// Prints at the current position; a further text continues the line, 8 x scale units for each
    /// character before it.
    PictureSurface& print(std::string_view text);
    PictureSurface& print(std::string_view text, int colour);

    void line(double x1, double y1, double x2, double y2, int colour, double width = 1);
    void box(double x1, double y1, double x2, double y2, int colour, bool filled = false);
    void circle(double x, double y, double radius, int colour, bool filled = false);

    const std::vector<SurfaceOperation>& operations() const { return operations_; }

    /// Another number whenever something has been drawn or wiped.
    unsigned revision() const { return revision_; }

    /// A plot that can be looked at from nearer or farther, and moved: what the user's steps do. Empty in
    /// others.
    std::function<void(int steps)> onZoom;
    std::function<void(int stepsRight, int stepsDown)> onPan;

  private:
    void draw(SurfaceOperation operation);

    Scale scale_;
    unsigned revision_ = 0;
    double x_ = 0;
    double y_ = 0;
    std::vector<SurfaceOperation> operations_;
};

} // namespace vantore
