#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <optional>
#include <utility>

#include "desktop/exports.h"
#include "desktop/views.h"
#include "drawing/chart_drawing.h"
#include "drawing/drawing.h"

namespace vantore {

namespace {

constexpr int wheelNotch = 120; // eighths of a degree
constexpr double panStep = 25;  // pixels of the design
const QColor edgeColour(0xB4, 0xBA, 0xC0);

/// The white paper on the screen. Its menu copies the drawing as a picture, saves it as SVG, PNG or PDF and
/// prints it. Where a surface can be looked at from nearer, the wheel does so, and dragging moves what is
/// seen. A painted picture is kept until the drawing or the size changes, so that a window that is uncovered
/// or scrolled over needs no new drawing.
class Paper : public QWidget {
  public:
    Paper(QWidget* parent, ViewContext& context, Control& drawing)
        : QWidget(parent), context_(context), drawing_(drawing),
          surface_(dynamic_cast<PictureSurface*>(&drawing)) {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    void redraw(double zoom) {
        zoom_ = zoom;
        picture_ = {};
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const double ratio = devicePixelRatioF();
        if (picture_.isNull() || picture_.size() != size() * ratio) drawPicture(ratio);
        QPainter painter(this);
        painter.drawPixmap(0, 0, picture_);
        painter.setPen(edgeColour);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip || !page_) return QWidget::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        const PaintedText* text = page_->textAt(QPointF(help->pos()) / unitZoom());
        const bool cut = text != nullptr && text->painted != text->whole;
        QToolTip::showText(help->globalPos(), cut ? tipWith(text->whole, toolTip()) : toolTip(), this);
        return true;
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        QMenu menu;
        const AskingPlace asking{window(), context_.outputFolder()};
        const auto add = [&](const char* text, auto action) {
            menu.addAction(text, this, [this, action] { context_.act(action); });
        };
        add("&Copy picture", [&] { copyDrawing(context_.form(), drawing_); });
        add("&Save picture...", [&] { saveDrawingAs(asking, context_.form(), drawing_); });
        add("&Print...", [&] { printDrawing(asking, context_.form(), drawing_); });
        menu.exec(event->globalPos());
    }

    void wheelEvent(QWheelEvent* event) override {
        if (surface_ == nullptr || !surface_->onZoom) return event->ignore();
        turned_ += event->angleDelta().y();
        const int steps = turned_ / wheelNotch;
        turned_ -= steps * wheelNotch;
        if (steps != 0) context_.act([&] { context_.form().zoom(*surface_, steps); });
    }

    void mousePressEvent(QMouseEvent* event) override {
        dragged_ = event->position();
        if (event->button() == Qt::LeftButton && surface_ != nullptr && surface_->onPan)
            setCursor(Qt::ClosedHandCursor);
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        if (cursor().shape() != Qt::ClosedHandCursor) return;
        const QPointF way = (event->position() - dragged_) / (panStep * unitZoom());
        const QPoint steps(static_cast<int>(way.x()), static_cast<int>(way.y()));
        if (steps.isNull()) return;
        dragged_ += QPointF(steps) * panStep * unitZoom();
        context_.act([&] { context_.form().pan(*surface_, steps.x(), steps.y()); });
    }

    void mouseReleaseEvent(QMouseEvent* /*event*/) override { unsetCursor(); }

  private:
    /// Pixels of a unit: a surface is as large as its paper lets it be, a chart's letters keep their size.
    double unitZoom() const {
        const QSizeF units = unitsOf(context_.form(), drawing_);
        if (surface_ == nullptr || units.isEmpty()) return zoom_;
        return std::min(width() / units.width(), height() / units.height());
    }

    void drawPicture(double ratio) {
        picture_ = QPixmap(size() * ratio);
        picture_.setDevicePixelRatio(ratio);
        picture_.fill(Qt::white);
        QPainter painter(&picture_);
        painter.scale(unitZoom(), unitZoom());
        const QSizeF units = QSizeF(size()) / unitZoom();
        const Scale scale = context_.form().scale();
        if (surface_ == nullptr)
            return paintChart(painter, dynamic_cast<const Chart&>(drawing_).data, units,
                              std::min(scale.x, scale.y));
        page_.emplace(*surface_, units);
        page_->paint(painter);
    }

    ViewContext& context_;
    Control& drawing_;
    PictureSurface* surface_; ///< nullptr for a chart
    std::optional<SurfacePage> page_;
    QPixmap picture_;
    QPointF dragged_; ///< from where the drag still has to move the plot
    double zoom_ = 1;
    int turned_ = 0; ///< of the wheel, less than a notch
};

/// A picture surface or a chart in a window.
class DrawingView : public ControlView {
  public:
    DrawingView(ViewContext& context, Control& drawing, QWidget* parent)
        : ControlView(context, drawing, new Paper(parent, context, drawing)) {}

  protected:
    void syncContent(const FormLayout& layout) override {
        const bool zoomed = zoom_ != layout.zoom;
        zoom_ = layout.zoom;
        if (changed() || zoomed) static_cast<Paper&>(*widget()).redraw(layout.zoom);
    }

  private:
    bool changed() {
        if (const auto* chart = dynamic_cast<const Chart*>(&control()))
            return std::exchange(chart_, chart->data) != chart->data;
        const unsigned revision = dynamic_cast<const PictureSurface&>(control()).revision();
        return std::exchange(revision_, revision) != revision;
    }

    unsigned revision_ = 0; ///< as last shown
    ChartData chart_;
    double zoom_ = 0;
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, Chart& chart, QWidget* parent) {
    return std::make_unique<DrawingView>(context, chart, parent);
}

std::unique_ptr<ControlView> viewOf(ViewContext& context, PictureSurface& surface, QWidget* parent) {
    return std::make_unique<DrawingView>(context, surface, parent);
}

} // namespace vantore
