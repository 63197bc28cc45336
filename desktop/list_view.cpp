#include "desktop/list_view.h"

#include <QListWidget>
#include <QSignalBlocker>

#include "drawing/fonts.h"

namespace vantore {

ListView::ListView(ViewContext& context, ListBox& list, QWidget* parent)
    : ControlView(context, list, new QListWidget(parent)), data_(list),
      list_(static_cast<QListWidget&>(*widget())) {
    QObject::connect(&list_, &QListWidget::itemSelectionChanged, &list_, [this, &context, &list] {
        context.act([&] { context.form().selectItem(list, list_.currentRow()); });
    });
    QObject::connect(&list_, &QListWidget::itemActivated, &list_, [&context, &list] {
        context.act([&context, &list] { context.form().openItem(list); });
    });
}

void ListView::syncContent(const FormLayout& layout) {
    const QSignalBlocker quiet(list_);
    QStringList items;
    for (const std::string& item : data_.items) items.append(qtText(item));
    QStringList before;
    for (int i = 0; i < list_.count(); ++i) before.append(list_.item(i)->text());
    if (items != before) {
        list_.clear();
        list_.addItems(items);
        for (int i = 0; i < list_.count(); ++i) list_.item(i)->setToolTip(tipWith(items.at(i), {}));
    }
    const QFont wanted = font(layout);
    if (list_.font() != wanted) list_.setFont(wanted);
    if (list_.currentRow() != data_.selected) list_.setCurrentRow(data_.selected);
}

} // namespace vantore
