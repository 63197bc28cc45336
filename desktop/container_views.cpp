#include <QFrame>
#include <QGroupBox>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QTabBar>

#include "desktop/views.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int titleInset = 16;      // pixels at both sides of a frame's title together
constexpr double titleHeight = 240; // twips of the design that a frame's controls leave free
constexpr double smallestShare = .8;
constexpr double shareStep = .05;
constexpr int besideTabText = 10; // pixels at both sides of a tab's text together

/// Tabs that stand close together, so that many of them fit.
class CloseTabs : public QProxyStyle {
  public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        if (metric == PM_TabBarTabHSpace) return besideTabText;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// A frame with a caption around the controls that stand in it.
class GroupView : public ControlView {
  public:
    GroupView(ViewContext& context, Container& frame, QWidget* parent)
        : ControlView(context, frame, new QGroupBox(parent)), box_(static_cast<QGroupBox&>(*widget())) {
        box_.lower();
    }

    QWidget* page(int /*number*/) override { return widget(); }

  protected:
    void syncContent(const FormLayout& layout) override {
        const QSize room(box_.width() - titleInset, static_cast<int>(titleHeight * layout.y));
        const FittedText& shown = fitted(qtText(control().caption), room, Qt::TextShowMnemonic, layout);
        if (box_.title() != shown.text) box_.setTitle(shown.text);
        if (box_.font() != shown.font) box_.setFont(shown.font);
    }

  private:
    QGroupBox& box_;
};

/// Tabs over the page of the selected one. The tab bar lies over the pages, whose controls leave room for it.
class TabView : public ControlView {
  public:
    TabView(ViewContext& context, Container& tabs, QWidget* parent)
        : ControlView(context, tabs, new QWidget(parent)), tabs_(tabs), bar_(*new QTabBar(widget())),
          edge_(*new QFrame(widget())) {
        edge_.setFrameStyle(QFrame::StyledPanel);
        for (const std::string& caption : tabs.pages) {
            bar_.addTab(qtText(caption));
            pages_.push_back(new QWidget(widget()));
        }
        auto* style = new CloseTabs;
        style->setParent(&bar_);
        bar_.setStyle(style);
        bar_.setExpanding(false);
        bar_.setUsesScrollButtons(false);
        bar_.setElideMode(Qt::ElideRight);
        bar_.raise();
        widget()->setFocusProxy(&bar_);
        QObject::connect(&bar_, &QTabBar::currentChanged, &bar_, [&context, &tabs](int page) {
            context.act([&context, &tabs, page] { context.form().selectPage(tabs, page); });
        });
    }

    QWidget* page(int number) override { return pages_.at(static_cast<std::size_t>(number)); }

  protected:
    void syncContent(const FormLayout& layout) override {
        const QSignalBlocker quiet(bar_);
        syncCaptions(font(layout));
        bar_.setCurrentIndex(tabs_.selected);
        bar_.setGeometry(0, 0, widget()->width(), bar_.sizeHint().height());
        edge_.setGeometry(widget()->rect().adjusted(0, bar_.height() - 1, 0, 0));
        for (std::size_t i = 0; i < pages_.size(); ++i) {
            pages_[i]->setGeometry(widget()->rect());
            pages_[i]->setVisible(static_cast<int>(i) == tabs_.selected);
        }
    }

  private:
    void syncCaptions(const QFont& wanted) {
        for (int i = 0; i < bar_.count(); ++i) {
            const QString caption = qtText(tabs_.pages.at(static_cast<std::size_t>(i)));
            if (bar_.tabText(i) == caption) continue;
            bar_.setTabText(i, caption);
            bar_.setTabToolTip(i, QString(caption).remove('&'));
        }
        if (wanted == wanted_ && widget()->width() == width_) return;
        wanted_ = wanted;
        width_ = widget()->width();
        fitFont();
    }

    /// The wanted font, or the largest smaller one in which all captions are seen whole.
    void fitFont() {
        QFont font = wanted_;
        bar_.setFont(font);
        for (double share = 1 - shareStep; bar_.sizeHint().width() > width_ && share > smallestShare - .001;
             share -= shareStep) {
            font.setPointSizeF(wanted_.pointSizeF() * share);
            bar_.setFont(font);
        }
    }

    Container& tabs_;
    QTabBar& bar_;
    QFrame& edge_;
    std::vector<QWidget*> pages_;
    QFont wanted_;
    int width_ = 0;
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, Container& container, QWidget* parent) {
    if (container.pages.empty()) return std::make_unique<GroupView>(context, container, parent);
    return std::make_unique<TabView>(context, container, parent);
}

} // namespace vantore
