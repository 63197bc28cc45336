#pragma once

namespace vantore {

/// The form of a Latin, Greek or Cyrillic letter in which its cases compare equal: its small letter, with the
/// sharp s, the long s and the final sigma as their plain forms. Any other character is its own.
char32_t caseFolded(char32_t letter);

} // namespace vantore
