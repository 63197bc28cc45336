#include "shell/row_count_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/grid_rows.h"

namespace vantore {

RowCountBox::RowCountBox(TextBox& box, DataGrid& grid, std::function<void()> onLimit)
    : box_(box), grid_(grid), onLimit_(std::move(onLimit)) {
    box_.onChange = [this] { follow(); };
    box_.onLeave = [this] { settle(); };
}

void RowCountBox::settle() {
    cutRows_.clear();
    show(std::to_string(grid_.rowCount));
}

void RowCountBox::show(const std::string& text) {
    showing_ = true;
    box_.setText(text);
    showing_ = false;
}

void RowCountBox::follow() {
    const std::string typed = box_.text();
    if (showing_ || typed.find_first_of("0123456789") == std::string::npos) return;
    show(std::to_string(grid_.rowCount)); // stands where the new count can't be taken
    const double count = std::nearbyint(val(typed));
    if (count > grid_.rowLimit) return onLimit_();
    if (count < 0) return;
    show(typed);
    resize(static_cast<int>(count));
}

void RowCountBox::resize(int count) {
    const int before = std::min(grid_.rowCount, grid_.rows() - 1);
    if (count == grid_.rowCount) return;
    for (int row = before; row > count; --row) {
        std::vector<std::string>& cells = cutRows_.emplace_back();
        for (int col = 1; col < grid_.cols(); ++col) cells.push_back(grid_.cell(row, col));
    }
    setDataRows(grid_, count);
    for (int row = before + 1; row <= count && !cutRows_.empty(); ++row) {
        for (int col = 1; col < grid_.cols(); ++col)
            grid_.setCell(row, col, cutRows_.back().at(static_cast<std::size_t>(col - 1)));
        cutRows_.pop_back();
    }
}

} // namespace vantore
