#pragma once

#include <array>
#include <optional>
#include <string>

#include "shell/base/message.h"
#include "shell/forms/data_grid.h"
#include "shell/suite.h"

namespace vantore {

/// The wording of column arithmetic, which differs by module, and only the wording. Empty titles are the
/// module's name.
struct ArithmeticWording {
    Message oneColumn = {"Highlight only one column.", ""};
    Message notApplicable = {"Column arithmetic does not apply to this column.", ""};
    std::optional<Message> highlighted =
        {}; ///< a question in place of the first test, where a module asks it
    std::string menuTitle = "Selections for Column Arithmetic";
    std::string menuDefault = "Enter a value";
    std::array<std::string, 4> valueTitles = {
        "Add value for Column Arithmetic", "Multiplier for Column Arithmetic",
        "Exponent for Column Arithmetic",
        "Replacement Value for Column Arithmetic"}; ///< add, multiply, exponentiate, replace
    std::string valueDefault = "Enter a value";
    std::string sumTitle = {};
};

/// `ColumnArithmetic` on the highlighted rows of the highlighted column, where it is a column of numbers:
/// sum, add, multiply, exponentiate, replace. TypeMismatch when a value other than a replacement is no
/// number; Overflow and the errors of `power`; the column is then as it was.
void columnArithmetic(Suite& suite, DataGrid& grid, const ArithmeticWording& wording);

} // namespace vantore
