#include "shell/module_wording.h"

namespace vantore {

ModuleWording ModuleWording::completed() const {
    ModuleWording all = *this;
    std::string* const titles[] = {&all.windowTitle,
                                   &all.prefixTitle,
                                   &all.exitTitle,
                                   &all.rows.question,
                                   &all.rows.noRow,
                                   &all.rows.limit,
                                   &all.rows.noDelete,
                                   &all.rows.empty,
                                   &all.arithmetic.oneColumn.title,
                                   &all.arithmetic.notApplicable.title,
                                   &all.arithmetic.sumTitle,
                                   &all.printQuestion.title,
                                   &all.spreadsheet.title};
    for (std::string* title : titles)
        if (title->empty()) *title = name;
    if (all.arithmetic.highlighted && all.arithmetic.highlighted->title.empty())
        all.arithmetic.highlighted->title = name;
    if (all.saveFilter.empty()) all.saveFilter = filter;
    return all;
}

} // namespace vantore
