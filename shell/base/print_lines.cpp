#include "shell/base/print_lines.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr double widestPosition = 32767;

} // namespace

PrintLines& PrintLines::text(std::string_view text) {
    current_ += text;
    used_ += static_cast<long long>(length(text));
    return *this;
}

PrintLines& PrintLines::number(double value) {
    return text(str(value) + " ");
}

PrintLines& PrintLines::tab(double position) {
    if (!(position <= widestPosition)) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const long long column = static_cast<long long>(std::nearbyint(std::max(position, 1.0)));
    if (used_ + 1 > column) endLine();
    return text(std::string(static_cast<std::size_t>(column - 1 - used_), ' '));
}

PrintLines& PrintLines::right(double position, std::string_view text) {
    tab(position - static_cast<double>(length(text)));
    return this->text(text);
}

PrintLines& PrintLines::endLine() {
    lines_.push_back(std::exchange(current_, {}));
    used_ = 0;
    return *this;
}

PrintLines& PrintLines::line(std::string_view text) {
    return this->text(text).endLine();
}

} // namespace vantore
