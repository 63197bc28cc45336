#pragma once

#include <QRect>
#include <QSize>
#include <vector>

#include "shell/forms/form.h"

namespace vantore {

/// Size in pixels of a form's design, with room for every control.
QSize designSize(const Form& form);

/// Where the controls of a form stand in a window. A window smaller than the design shows all smaller, in
/// proportion. In a larger one controls and letters keep their size, and the extra room goes to the grids,
/// reports, drawings and lists, or where there are none to the pictures; what stands below or behind them
/// moves.
class FormLayout {
  public:
    FormLayout() = default;
    FormLayout(const Form& form, QSize window);

    /// The place of a control in pixels of the window.
    QRect place(const Control& control) const;

    double zoom = 1; ///< of fonts and of a surface's units; at most 1
    double x = 1;    ///< pixels of a twip
    double y = 1;

  private:
    /// One direction: what stretches lies between `start` and `end`, in twips.
    class Direction {
      public:
        struct Span {
            double start, end;
        };

        Direction() = default;
        Direction(std::vector<Span> stretching, double extra);

        /// Where an end of something that stretches comes to lie.
        double stretched(double position) const;

        /// By how much a control of fixed size moves: as far as what stretches before it.
        double shift(const Span& control) const;

      private:
        double covered(double position) const;

        std::vector<Span> stretching_;
        double total_ = 1;
        double extra_ = 0;
    };

    bool stretches(const Control& control) const;

    std::vector<const Control*> stretching_;
    Direction across_, down_;
};

} // namespace vantore
