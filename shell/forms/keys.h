#pragma once

namespace vantore::keys {

/// Character codes with a meaning of their own.
constexpr int backspace = 8;
constexpr int enter = 13;
constexpr int escape = 27;
constexpr int doubleQuote = 34;
constexpr int comma = 44;
constexpr int minus = 45;

} // namespace vantore::keys
