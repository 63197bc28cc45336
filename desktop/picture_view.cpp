#include "desktop/pictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/views.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

/// Reads and draws its picture when it is first seen; later only what was drawn.
class Image : public QWidget {
  public:
    Image(QWidget* parent, const Picture& picture) : QWidget(parent), picture_(picture) {}

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const double ratio = devicePixelRatioF();
        if (drawn_.isNull() || drawn_.size() != size() * ratio) draw(ratio);
        QPainter(this).drawPixmap(0, 0, drawn_);
    }

  private:
    void draw(double ratio) {
        drawn_ = QPixmap(size() * ratio);
        drawn_.setDevicePixelRatio(ratio);
        drawn_.fill(Qt::transparent);
        QSvgRenderer renderer(pictureFile(picture_.image));
        QPainter painter(&drawn_);
        const QSizeF room = size();
        const QSizeF shape = QSizeF(renderer.defaultSize()).scaled(room, Qt::KeepAspectRatio);
        renderer.render(
            &painter,
            QRectF(QPointF((room.width() - shape.width()) / 2, (room.height() - shape.height()) / 2), shape));
    }

    const Picture& picture_;
    QPixmap drawn_;
};

class PictureView : public ControlView {
  public:
    PictureView(ViewContext& context, Picture& picture, QWidget* parent)
        : ControlView(context, picture, new Image(parent, picture)) {
        widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void syncContent(const FormLayout& /*layout*/) override {}
};

} // namespace

QString pictureFile(const std::string& name) {
    const QString file = QString(":/pictures/%1.svg").arg(qtText(name));
    return QFile::exists(file) ? file : QString(":/pictures/general.svg");
}

std::unique_ptr<ControlView> viewOf(ViewContext& context, Picture& picture, QWidget* parent) {
    return std::make_unique<PictureView>(context, picture, parent);
}

} // namespace vantore
