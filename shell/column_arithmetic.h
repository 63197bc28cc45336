#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "shell/base/message.h"
#include "shell/forms/data_grid.h"
#include "shell/suite.h"

namespace vantore {

/// The wording of column arithmetic, which differs by module, and only the wording.
struct ArithmeticWording {
    std::string module;                 ///< the module's name, title of "The sum is: "
    Message oneColumn;                  ///< more than one column is highlighted
    Message notApplicable;              ///< the column holds no numbers
    std::optional<Message> highlighted; ///< a question instead of both tests, where a module asks it
    std::string menuTitle = "Selections for Column Arithmetic";
    std::string menuDefault = "Enter a value";
    std::array<std::string, 4> valueTitles = {
        "Add value for Column Arithmetic", "Multiplier for Column Arithmetic",
        "Exponent for Column Arithmetic",
        "Replacement Value for Column Arithmetic"}; ///< add, multiply, exponentiate, replace
    std::string valueDefault = "Enter a value";

    /// The wording that most modules share, with the module's name as title.
    static ArithmeticWording usual(const std::string& module);
};

/// `ColumnArithmetic` on the highlighted rows of the highlighted column: sum, add, multiply, exponentiate,
/// replace. `holdsNumbers` tells of a column whether arithmetic applies to it. TypeMismatch when a value
/// other than a replacement is no number; Overflow and the errors of `power`.
void columnArithmetic(Suite& suite, DataGrid& grid, const ArithmeticWording& wording,
                      const std::function<bool(int col)>& holdsNumbers);

} // namespace vantore
