#include "desktop/tab_view.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionTab>
#include <algorithm>
#include <memory>
#include <vector>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int captionPadding = 14; // pixels beside a caption, both sides together
constexpr int linePadding = 8;     // above and below
constexpr int selectedRise = 2;    // the selected tab stands that much higher
const QColor edgeColour(0xB4, 0xBA, 0xC0);
const QColor selectedColour(0xFB, 0xFC, 0xFD);
const QColor otherColour(0xDD, 0xE1, 0xE5);
const QColor focusColour(0x1C, 0x5F, 0xB4);

class TabStrip : public QWidget {
  public:
    TabStrip(QWidget* parent, ViewContext& context, TabControl& tabs)
        : QWidget(parent), context_(context), tabs_(tabs) {
        setFocusPolicy(Qt::TabFocus);
    }

    void refresh(const QFont& font) {
        setFont(font);
        captions_.clear();
        for (const std::string& page : tabs_.pages) captions_.push_back(qtText(page));
        layOut();
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(edgeColour);
        painter.setBrush(selectedColour);
        painter.drawRect(rect().adjusted(0, height_ - 1, -1, -1));
        for (int i = 0; i < count(); ++i)
            if (i != tabs_.selected) paintTab(painter, i);
        if (tabs_.selected >= 0 && tabs_.selected < count()) paintTab(painter, tabs_.selected);
    }

    void mousePressEvent(QMouseEvent* event) override {
        for (int i = 0; i < count(); ++i)
            if (tab(i).contains(event->position().toPoint())) return select(i);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Left) return select(std::max(0, tabs_.selected - 1));
        if (event->key() == Qt::Key_Right) return select(std::min(count() - 1, tabs_.selected + 1));
        QWidget::keyPressEvent(event);
    }

    void focusInEvent(QFocusEvent* /*event*/) override { update(); }
    void focusOutEvent(QFocusEvent* /*event*/) override { update(); }

  private:
    int count() const { return static_cast<int>(captions_.size()); }
    QRect tab(int index) const { return places_.at(static_cast<std::size_t>(index)); }

    void select(int page) {
        setFocus(Qt::MouseFocusReason);
        context_.act([this, page] { context_.form().selectPage(tabs_, page); });
    }

    void layOut() {
        const QFontMetrics metrics(font());
        std::vector<int> widths;
        int total = 0;
        for (const QString& caption : captions_) {
            widths.push_back(metrics.horizontalAdvance(caption) + captionPadding);
            total += widths.back();
        }
        const bool fits = total <= width();
        height_ = (fits ? 1 : 2) * metrics.lineSpacing() + linePadding;
        places_.clear();
        int left = 0;
        for (int i = 0; i < count(); ++i) {
            const int right =
                fits ? left + widths.at(static_cast<std::size_t>(i)) : width() * (i + 1) / count();
            places_.emplace_back(left, 0, right - left, height_);
            left = right;
        }
    }

    void paintTab(QPainter& painter, int index) const {
        const bool selected = index == tabs_.selected;
        const QRect place = tab(index).adjusted(0, selected ? 0 : selectedRise, -1, selected ? 1 : -1);
        painter.fillRect(place, selected ? selectedColour : otherColour);
        painter.setPen(edgeColour);
        painter.drawLine(place.bottomLeft() - QPoint(0, selected ? 1 : 0), place.topLeft());
        painter.drawLine(place.topLeft(), place.topRight());
        painter.drawLine(place.topRight(), place.bottomRight() - QPoint(0, selected ? 1 : 0));
        const QRect room = place.adjusted(3, 1, -3, -1);
        painter.setPen(isEnabled() ? Qt::black : Qt::gray);
        const int flags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
        const QString& caption = captions_.at(static_cast<std::size_t>(index));
        painter.setFont(fitted(font(), caption, room.size(), Qt::TextWordWrap));
        painter.drawText(room, flags, caption);
        if (!selected || !hasFocus()) return;
        painter.setPen(QPen(focusColour, 2));
        painter.drawLine(place.left() + 1, place.top() + 1, place.right() - 1, place.top() + 1);
    }

    ViewContext& context_;
    TabControl& tabs_;
    std::vector<QString> captions_;
    std::vector<QRect> places_;
    int height_ = 0;
};

} // namespace

TabView::TabView(ViewContext& context, TabControl& tabs, QWidget* parent)
    : ControlView(context, tabs, std::make_unique<TabStrip>(parent, context, tabs).release()) {
    widget()->lower();
}

void TabView::syncContent(const Layout& layout) {
    const double size = control().fontSize * context().form().scale().x * layout.zoom;
    static_cast<TabStrip&>(*widget()).refresh(qtFont({.size = size, .bold = control().bold}));
}

} // namespace vantore
