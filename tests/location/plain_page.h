#pragma once

#include <string>
#include <vector>

namespace vantore::tests {

/// What the plain programs that the location modules are held against print on, with nothing of the suite.

/// A number in groups of three digits with so many decimals, taken to 15 significant digits and rounded half
/// away from 0; without decimals it has one digit at least.
std::string figure(double value, int decimals);

class PlainPage {
  public:
    /// Prints from a column on (from 1), on the next line where this one has passed it.
    void at(int column, const std::string& text);

    /// Prints so that the text ends before a column.
    void before(int column, const std::string& text);

    /// Prints behind what stands there.
    void add(const std::string& text) { line_ += text; }

    void end();
    void line(const std::string& text);

    std::vector<std::string> lines;

  private:
    std::string line_;
};

} // namespace vantore::tests
