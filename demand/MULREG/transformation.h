#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantore::mulreg {

/// What can be done to a variable before the regression, by the numbers of the user's menu.
enum class Transformation { Multiply = 1, Power, NaturalLog, Add, Subtract, Divide };

/// The transformation of a menu's answer "1" to "6", blanks around it allowed; nothing for others.
std::optional<Transformation> transformationFor(std::string_view answer);

/// The question for the transformation's value A; nothing where it needs none.
std::optional<std::string> valueQuestion(Transformation transformation);

/// `x` transformed by A. Overflow beyond the double range; DivisionByZero for a divisor of 0 and for 0 to a
/// negative power; InvalidProcedureCall for the logarithm of 0 or less and for a negative value to a
/// fractional power.
double transformed(double x, Transformation transformation, double a);

} // namespace vantore::mulreg
