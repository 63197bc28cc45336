#include "desktop/drawing_menu.h"

#include <QMenu>

#include "desktop/exports.h"

namespace vantore {

void showDrawingMenu(QWidget* paper, QPoint place, ViewContext& context, const Control& drawing) {
    QMenu menu;
    const AskingPlace asking{paper->window(), context.outputFolder()};
    const auto add = [&](const char* text, auto action) {
        menu.addAction(text, paper, [&context, action] { context.act(action); });
    };
    add("&Copy picture", [&] { copyDrawing(context.form(), drawing); });
    add("&Save picture...", [&] { saveDrawingAs(asking, context.form(), drawing); });
    add("&Print...", [&] { printDrawing(asking, context.form(), drawing); });
    menu.exec(place);
}

} // namespace vantore
