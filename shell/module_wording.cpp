#include "shell/module_wording.h"

namespace vantore {

namespace {

constexpr const char* usualPrintQuestion = "Select YES to print.  Alternately, choose NO to copy image to "
                                           "the clipboard. Then, paste the clipboard image to "
                                           "another program such as WORD or POWERPOINT and print.";

} // namespace

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
    if (all.printQuestion.text.empty()) all.printQuestion.text = usualPrintQuestion;
    if (all.saveFilter.empty()) all.saveFilter = filter;
    return all;
}

} // namespace vantore
