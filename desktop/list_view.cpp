#include <QListWidget>
#include <QSignalBlocker>

#include "desktop/views.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

/// A list of texts. A double click or Enter opens the selected one.
class ListView : public ControlView {
  public:
    ListView(ViewContext& context, ListBox& list, QWidget* parent)
        : ControlView(context, list, new QListWidget(parent)), data_(list),
          list_(static_cast<QListWidget&>(*widget())) {
        QObject::connect(&list_, &QListWidget::itemSelectionChanged, &list_, [this, &context] {
            context.act([&] { context.form().selectItem(data_, list_.currentRow()); });
        });
        QObject::connect(&list_, &QListWidget::itemActivated, &list_,
                         [this, &context] { context.act([&] { context.form().openItem(data_); }); });
    }

  protected:
    void syncContent(const FormLayout& layout) override {
        const QSignalBlocker quiet(list_);
        QStringList items;
        for (const std::string& item : data_.items) items.append(qtText(item));
        if (items != shown_) {
            list_.clear();
            list_.addItems(items);
            for (int i = 0; i < list_.count(); ++i) list_.item(i)->setToolTip(tipWith(items.at(i), {}));
            shown_ = items;
        }
        const QFont wanted = font(layout);
        if (list_.font() != wanted) list_.setFont(wanted);
        if (data_.selected < 0) list_.clearSelection();
        if (data_.selected >= 0 && list_.currentRow() != data_.selected) list_.setCurrentRow(data_.selected);
    }

  private:
    ListBox& data_;
    QListWidget& list_;
    QStringList shown_;
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, ListBox& list, QWidget* parent) {
    return std::make_unique<ListView>(context, list, parent);
}

} // namespace vantore
