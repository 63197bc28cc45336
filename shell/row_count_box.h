#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// A text box that tells and sets the count of data rows of one or several grids. They follow every change of
/// the text; what is no count yet (an empty text, a lone sign) leaves them as they are. Rows cut off while a
/// smaller count stands in the box come back with a larger one until the box is left: typing "25" over "18"
/// passes through "2".
class RowCountBox {
  public:
    /// Takes over the box's `onChange` and `onLeave`. The grids have equal counts and limits. `onLimit`
    /// reports a count above the `rowLimit`; the box then shows the old count again.
    RowCountBox(TextBox& box, std::vector<DataGrid*> grids, std::function<void()> onLimit);
    RowCountBox(const RowCountBox&) = delete;
    RowCountBox& operator=(const RowCountBox&) = delete;

    /// Shows the count of the first grid and forgets the rows cut off: the rows have changed otherwise, or
    /// are settled.
    void settle();

  private:
    /// A grid with the rows cut off it, the highest row first.
    struct Follower {
        DataGrid* grid;
        std::vector<std::vector<std::string>> cutRows;
    };

    void follow();
    static void resize(Follower& follower, int count);
    void show(const std::string& text);
    const DataGrid& first() const { return *followers_.front().grid; }

    TextBox& box_;
    std::vector<Follower> followers_;
    std::function<void()> onLimit_;
    std::string seen_; // the text of the last change
    bool showing_ = false;
};

} // namespace vantore
