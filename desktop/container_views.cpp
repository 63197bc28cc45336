#include "desktop/container_views.h"

#include <QFrame>
#include <QGroupBox>
#include <QSignalBlocker>
#include <QTabBar>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int titleInset = 16;      // pixels at both sides of a frame's title together
constexpr double titleHeight = 240; // twips of the design that a frame's controls leave free
constexpr double smallestShare = .8;

} // namespace

GroupView::GroupView(ViewContext& context, Container& frame, QWidget* parent)
    : ControlView(context, frame, new QGroupBox(parent)), box_(static_cast<QGroupBox&>(*widget())) {
    box_.lower();
}

void GroupView::syncContent(const FormLayout& layout) {
    const QSize room(box_.width() - titleInset, static_cast<int>(titleHeight * layout.y));
    const FittedText& shown = fitted(qtText(control().caption), room, Qt::TextShowMnemonic, layout);
    if (box_.title() != shown.text) box_.setTitle(shown.text);
    if (box_.font() != shown.font) box_.setFont(shown.font);
}

TabView::TabView(ViewContext& context, Container& tabs, QWidget* parent)
    : ControlView(context, tabs, new QWidget(parent)), tabs_(tabs), bar_(*new QTabBar(widget())),
      edge_(*new QFrame(widget())) {
    static_cast<QFrame&>(edge_).setFrameStyle(QFrame::StyledPanel);
    for (const std::string& caption : tabs.pages) {
        bar_.addTab(qtText(caption));
        pages_.push_back(new QWidget(widget()));
    }
    bar_.setExpanding(false);
    bar_.setUsesScrollButtons(false);
    bar_.setElideMode(Qt::ElideRight);
    bar_.raise();
    widget()->setFocusProxy(&bar_);
    QObject::connect(&bar_, &QTabBar::currentChanged, &bar_, [this](int page) {
        this->context().act([this, page] { this->context().form().selectPage(tabs_, page); });
    });
}

void TabView::syncContent(const FormLayout& layout) {
    const QSignalBlocker quiet(bar_);
    syncCaptions();
    const QFont wanted = font(layout);
    if (bar_.font() != wanted) bar_.setFont(wanted);
    if (bar_.sizeHint().width() > widget()->width()) {
        QFont smaller = wanted;
        smaller.setPointSizeF(wanted.pointSizeF() * smallestShare);
        bar_.setFont(smaller);
    }
    bar_.setCurrentIndex(tabs_.selected);
    bar_.setGeometry(0, 0, widget()->width(), bar_.sizeHint().height());
    edge_.setGeometry(widget()->rect().adjusted(0, bar_.height() - 1, 0, 0));
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        pages_[i]->setGeometry(widget()->rect());
        pages_[i]->setVisible(static_cast<int>(i) == tabs_.selected);
    }
}

void TabView::syncCaptions() {
    for (int i = 0; i < bar_.count(); ++i) {
        const QString caption = qtText(tabs_.pages.at(static_cast<std::size_t>(i)));
        if (bar_.tabText(i) == caption) continue;
        bar_.setTabText(i, caption);
        bar_.setTabToolTip(i, QString(caption).remove('&'));
    }
}

} // namespace vantore
