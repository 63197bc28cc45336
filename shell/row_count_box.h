#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// A text box that tells and sets the count of a grid's data rows. The grid follows every change of the text;
/// what is no count yet (an empty text, a lone sign) leaves it as it is. Rows cut off while a smaller count
/// stands in the box come back with a larger one until the box is left: typing "25" over "18" passes
/// through "2".
class RowCountBox {
  public:
    /// Takes over the box's `onChange` and `onLeave`. `onLimit` reports a count above the grid's `rowLimit`;
    /// the box then shows the old count again.
    RowCountBox(TextBox& box, DataGrid& grid, std::function<void()> onLimit);
    RowCountBox(const RowCountBox&) = delete;
    RowCountBox& operator=(const RowCountBox&) = delete;

    /// Shows the grid's count and forgets the rows cut off: the rows have changed otherwise, or are settled.
    void settle();

  private:
    void follow();
    void resize(int count);
    void show(const std::string& text);

    TextBox& box_;
    DataGrid& grid_;
    std::function<void()> onLimit_;
    std::vector<std::vector<std::string>> cutRows_; // the highest row first
    bool showing_ = false;
};

} // namespace vantore
