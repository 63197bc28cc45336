#include "demand/MULREG/transformation.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"
#include "shell/base/text.h"

namespace vantore::mulreg {

std::optional<Transformation> transformationFor(std::string_view answer) {
    const std::string number = trimmed(answer);
    if (number.size() != 1 || number[0] < '1' || number[0] > '6') return std::nullopt;
    return static_cast<Transformation>(number[0] - '0');
}

std::optional<std::string> valueQuestion(Transformation transformation) {
    switch (transformation) {
    case Transformation::Multiply: return "The multiplier(A) is?";
    case Transformation::Power: return "The power(A) is?";
    case Transformation::Add: return "The value(A) to add is?";
    case Transformation::Subtract: return "The value(A) to subtract is?";
    case Transformation::Divide: return "The divisor(A) is?";
    case Transformation::NaturalLog: break;
    }
    return std::nullopt;
}

double transformed(double value, Transformation transformation, double a) {
    const Number x = value;
    switch (transformation) {
    case Transformation::Multiply: return a * x;
    case Transformation::Power: return power(x, a);
    case Transformation::NaturalLog: return naturalLog(x);
    case Transformation::Add: return a + x;
    case Transformation::Subtract: return x - a;
    case Transformation::Divide: return x / a;
    }
    return x;
}

} // namespace vantore::mulreg
