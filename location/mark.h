#pragma once

namespace vantore {

/// What stands in a cell of a column of marks, and in a file, where a row is marked. Other rows have nothing
/// there.
inline constexpr const char* mark = "X";

} // namespace vantore
