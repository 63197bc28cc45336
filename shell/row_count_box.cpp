#include "shell/row_count_box.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/grid_rows.h"

namespace vantore {

namespace {

/// One character typed or taken away.
bool isKeystroke(const std::string& before, const std::string& after) {
    return std::max(before.size(), after.size()) - std::min(before.size(), after.size()) == 1;
}

/// A number beyond the double range counts as the largest.
double countOf(const std::string& text) {
    try {
        return std::nearbyint(val(text));
    } catch (const RuntimeError&) {
        return std::numeric_limits<double>::max();
    }
}

} // namespace

RowCountBox::RowCountBox(TextBox& box, std::vector<DataGrid*> grids, std::function<void()> onLimit)
    : box_(box), onLimit_(std::move(onLimit)) {
    for (DataGrid* grid : grids) followers_.push_back({grid, {}});
    box_.onChange = [this] { follow(); };
    box_.onLeave = [this] { settle(); };
}

void RowCountBox::settle() {
    for (Follower& follower : followers_) follower.cutRows.clear();
    show(std::to_string(first().rowCount));
}

void RowCountBox::show(const std::string& text) {
    showing_ = true;
    box_.setText(text);
    seen_ = text;
    showing_ = false;
}

void RowCountBox::follow() {
    const std::string typed = box_.text();
    if (showing_) return;
    if (!isKeystroke(seen_, typed))
        for (Follower& follower : followers_) follower.cutRows.clear();
    seen_ = typed;
    if (typed.find_first_of("0123456789") == std::string::npos) return;
    const double count = countOf(typed);
    if (count < 0 || count > first().rowLimit) {
        show(std::to_string(first().rowCount));
        if (count > 0) onLimit_();
        return;
    }
    for (Follower& follower : followers_) resize(follower, static_cast<int>(count));
}

void RowCountBox::resize(Follower& follower, int count) {
    DataGrid& grid = *follower.grid;
    const int before = std::min(grid.rowCount, grid.rows() - 1);
    if (count == grid.rowCount) return;
    for (int row = before; row > count; --row) {
        std::vector<std::string>& cells = follower.cutRows.emplace_back();
        for (int col = 1; col < grid.cols(); ++col) cells.push_back(grid.cell(row, col));
    }
    setDataRows(grid, count);
    for (int row = before + 1; row <= count && !follower.cutRows.empty(); ++row) {
        for (int col = 1; col < grid.cols(); ++col)
            grid.setCell(row, col, follower.cutRows.back().at(static_cast<std::size_t>(col - 1)));
        follower.cutRows.pop_back();
    }
}

} // namespace vantore
