#pragma once

#include <string>
#include <vector>

#include "shell/base/print_lines.h"
#include "solvers/MIP/rational.h"

namespace vantore::mip {

/// The default text of an exact number: all its digits where it has no more than 15, else rounded to 10.
std::string figure(const Rational& value);

/// A table whose columns are as wide as what stands in them.
class FigureTable {
  public:
    enum class Side { Left, Right };

    /// A new column under two heading lines, each filled from the first row on.
    void column(std::string heading, std::string subheading, Side side, std::vector<std::string> cells);

    void print(PrintLines& page) const;

  private:
    struct Column {
        Side side;
        std::vector<std::string> cells; // the headings first
    };
    std::vector<Column> columns_;
};

} // namespace vantore::mip
