#include "shell/forms/picture_surface.h"

#include <utility>

#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr double characterWidth = 8; // units of the 800x600 design

} // namespace

PictureSurface::PictureSurface(std::string controlName, Rect place, Scale scale)
    : Control(std::move(controlName), place), scale_(scale) {}

void PictureSurface::clear() {
    operations_.clear();
    ++revision_;
}

void PictureSurface::draw(SurfaceOperation operation) {
    operations_.push_back(std::move(operation));
    ++revision_;
}

void PictureSurface::moveTo(double x, double y) {
    x_ = x;
    y_ = y;
}

PictureSurface& PictureSurface::print(std::string_view text) {
    draw(SurfaceText{x_, y_, std::string(text), font, ink});
    x_ += characterWidth * scale_.x * static_cast<double>(length(text));
    return *this;
}

PictureSurface& PictureSurface::print(std::string_view text, int colour) {
    ink = colour;
    return print(text);
}

void PictureSurface::line(double x1, double y1, double x2, double y2, int colour, double width) {
    draw(SurfaceLine{x1, y1, x2, y2, colour, width});
}

void PictureSurface::box(double x1, double y1, double x2, double y2, int colour, bool filled) {
    draw(SurfaceBox{x1, y1, x2, y2, colour, filled});
}

void PictureSurface::circle(double x, double y, double radius, int colour, bool filled) {
    draw(SurfaceCircle{x, y, radius, colour, filled});
}

} // namespace vantore
