#pragma once

#include <string>

#include "shell/column_arithmetic.h"
#include "shell/grid_rows.h"

namespace vantore {

/// The question of `PrintPlotImage`, and which answer prints. An empty text is the question that most modules
/// ask, an empty title the module's name.
struct PrintQuestion {
    std::string text = {};
    std::string title = {};
    bool yesPrints = true;
};

/// Where and by which name the user is led to the spreadsheet program.
struct SpreadsheetWording {
    std::string title = "Information";
    std::string templateName = "GenlEdit.XLS";
};

/// The words in which a module meets its user. Empty titles are the module's name.
struct ModuleWording {
    std::string name;             ///< "COG": titles of boxes, prefix of the window title
    std::string windowTitle = {}; ///< until a file is open; empty: the name
    std::string filePrefix = {};  ///< "COG": what a saved file's name begins with
    std::string openTitle = {};
    std::string saveTitle = {};
    std::string filter = {};
    std::string saveFilter = {};  ///< empty where it is the same as `filter`
    std::string prefixTitle = {}; ///< of "Use the prefix COG on the file name."
    std::string exitTitle = {};   ///< of the question "Save data?"
    RowTitles rows = {};          ///< of every grid that brings no titles of its own
    ArithmeticWording arithmetic = {};
    PrintQuestion printQuestion = {};
    std::string printFailure = {}; ///< told in place of a run-time error when a plot can't be printed
    SpreadsheetWording spreadsheet = {};

    /// The same with the module's name for each empty title.
    ModuleWording completed() const;
};

} // namespace vantore
