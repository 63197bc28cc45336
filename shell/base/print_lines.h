#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantore {

/// A page of fixed-pitch text, printed item by item.
///
/// Positions count characters from 1. Items follow each other directly. `tab` goes to a position of the
/// line, or of the next line where the next free position is already beyond it.
class PrintLines {
  public:
    /// Prints a text behind what stands on the line. It holds no line ends.
    PrintLines& text(std::string_view text);

    /// Prints a number without a mask: a sign blank or minus, its default text, one blank behind.
    PrintLines& number(double value);

    /// Moves to a position; one below 1 counts as 1, a fractional one is rounded, ties to even.
    PrintLines& tab(double position);

    /// Prints a text so that its last character stands at position - 1.
    PrintLines& right(double position, std::string_view text);

    /// Ends the line. A line that nothing was printed on is empty.
    PrintLines& endLine();

    /// One whole line; `line("")` is an empty one.
    PrintLines& line(std::string_view text);

    /// The lines ended so far.
    const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
    std::string current_;
    long long used_ = 0; // characters in current_
};

} // namespace vantore
