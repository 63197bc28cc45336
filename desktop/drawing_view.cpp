#include "desktop/drawing_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <memory>

#include "drawing/drawing.h"
#include "desktop/drawing_menu.h"

namespace vantore {

namespace {

/// The paper on the screen. A painted picture is kept until the drawing or the size changes, so that a
/// window that is uncovered or scrolled over needs no new drawing.
class Paper : public QWidget {
  public:
    Paper(QWidget* parent, ViewContext& context, Control& drawing)
        : QWidget(parent), context_(context), drawing_(drawing) {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    void redraw() {
        picture_ = {};
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const double ratio = devicePixelRatioF();
        if (picture_.isNull() || picture_.size() != size() * ratio) drawPicture(ratio);
        QPainter painter(this);
        painter.drawPixmap(0, 0, picture_);
        painter.setPen(QColor(0xB4, 0xBA, 0xC0));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        showDrawingMenu(this, event->globalPos(), context_, drawing_);
    }

  private:
    void drawPicture(double ratio) {
        picture_ = QPixmap(size() * ratio);
        picture_.setDevicePixelRatio(ratio);
        picture_.fill(Qt::white);
        const QSizeF units = unitsOf(context_.form(), drawing_);
        if (units.isEmpty()) return;
        QPainter painter(&picture_);
        painter.scale(width() / units.width(), height() / units.height());
        Drawing(context_.form(), drawing_).paint(painter);
    }

    ViewContext& context_;
    Control& drawing_;
    QPixmap picture_;
};

} // namespace

DrawingView::DrawingView(ViewContext& context, Control& drawing, QWidget* parent)
    : ControlView(context, drawing, std::make_unique<Paper>(parent, context, drawing).release()) {}

bool DrawingView::changed() {
    if (const auto* chart = dynamic_cast<const Chart*>(&control())) {
        if (chart->data == chart_) return false;
        chart_ = chart->data;
        return true;
    }
    const auto& surface = dynamic_cast<const PictureSurface&>(control());
    if (surface.operations() == operations_) return false;
    operations_ = surface.operations();
    return true;
}

void DrawingView::syncContent(const Layout& /*layout*/) {
    if (changed()) static_cast<Paper&>(*widget()).redraw();
}

} // namespace vantore
