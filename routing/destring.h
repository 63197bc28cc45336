#pragma once

#include <string_view>

#include "shell/base/table.h"

namespace vantore::routing {

/// The numbers of a text, each by `val`, from index 1 on.
///
/// A separator at the very start is passed over, so that a text of numbers with a blank in front of each
/// gives just those numbers; two separators in a row give a 0 between them, one at the end a 0 behind it, and
/// an empty text gives a single 0. Overflow beyond the double range.

/// Numbers with blanks between them.
CountedTable<double> destring(std::string_view text);

/// Numbers with commas between them, as a user types them.
CountedTable<double> destring2(std::string_view text);

} // namespace vantore::routing
