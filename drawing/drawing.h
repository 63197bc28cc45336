#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <optional>
#include <variant>
#include <vector>

#include "shell/forms/chart.h"
#include "shell/forms/form.h"
#include "shell/forms/picture_surface.h"
#include "shell/forms/print_job.h"

class QPainter;

namespace vantore {

/// The colour of a palette number.
QColor qtColour(int number);

Qt::Alignment qtAlignment(Alignment alignment);

/// Size of a control's place in pixels at zoom 1, the units of a surface.
QSizeF unitsOf(const Form& form, const Control& control);

/// Where and how large the texts of a surface are painted.
struct PaintedText {
    QRectF place; ///< in the surface's units
    QString whole;
    QString painted; ///< with "..." where the whole text would leave the paper
};

/// What a surface holds as it is painted on paper of `size` units: a text that leaves the paper at the right
/// is cut with "...", and one that leaves it at the foot makes the drawing smaller, as far as to four fifths.
class SurfacePage {
  public:
    SurfacePage(const PictureSurface& surface, QSizeF size);

    /// Paints it in the surface's units, text upon text in the order in which it was put there. The paper
    /// isn't painted.
    void paint(QPainter& painter) const;

    /// The text at a place in units, nullptr where there is none.
    const PaintedText* textAt(QPointF place) const;

  private:
    std::vector<SurfaceOperation> operations_;
    std::vector<PaintedText> texts_; ///< in the order of the operations that are texts
    double share_ = 1;
};

/// A drawing that can be painted again in any size: what surfaces, charts and labels show, copied, so that it
/// outlives the next step of its form.
class Drawing : public Redrawable {
  public:
    /// A picture surface, a chart or a label, on white paper of the size of its place.
    Drawing(const Form& form, const Control& control);

    /// All surfaces, charts and labels that a form shows, where they stand to each other; nothing where it
    /// shows no surface and no chart.
    static std::optional<Drawing> ofWindow(const Form& form);

    /// In units: pixels of the 800x600 design times the scale factors.
    QSizeF size() const { return paper_.size(); }

    /// Paints the white paper from (0, 0) to `size` and the drawing on it.
    void paint(QPainter& painter) const;

  private:
    struct Text {
        QString text;
        Font font;
        int colour;
        Qt::Alignment alignment;
    };
    struct Part {
        QRectF place;
        std::variant<SurfacePage, ChartData, Text> content;
    };

    Drawing() = default;
    void add(const Form& form, const Control& control);
    void paintPart(QPainter& painter, const Part& part) const;

    std::vector<Part> parts_;
    QRectF paper_;
    double textScale_ = 1;
};

} // namespace vantore
