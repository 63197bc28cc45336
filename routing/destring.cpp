#include "routing/destring.h"

#include "shell/base/number_text.h"

namespace vantore::routing {

namespace {

CountedTable<double> numbersBetween(char separator, std::string_view text) {
    if (text.starts_with(separator)) text.remove_prefix(1);
    CountedTable<double> numbers;
    for (;;) {
        const std::size_t end = text.find(separator);
        numbers.add(val(text.substr(0, end)));
        if (end == std::string_view::npos) return numbers;
        text.remove_prefix(end + 1);
    }
}

} // namespace

CountedTable<double> destring(std::string_view text) {
    return numbersBetween(' ', text);
}

CountedTable<double> destring2(std::string_view text) {
    return numbersBetween(',', text);
}

} // namespace vantore::routing
