#include "shell/forms/form.h"

#include <algorithm>

#include "shell/base/text.h"

namespace vantore {

namespace {

/// The fields of a text whose lines hold tab-separated cells.
std::vector<std::vector<std::string>> tabbedCells(std::string_view text) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : lines(text)) {
        auto& cells = rows.emplace_back();
        std::size_t start = 0;
        for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', start)) {
            cells.push_back(line.substr(start, tab - start));
            start = tab + 1;
        }
        cells.push_back(line.substr(start));
    }
    return rows;
}

constexpr int escapeKey = 27;

} // namespace

Form::Form(std::string name, Scale scale) : name_(std::move(name)), scale_(scale) {}

Control* Form::find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [name](const auto& control) {
        return equalIgnoringCase(control->name, name);
    });
    return found == controls_.end() ? nullptr : found->get();
}

void Form::run(const Control& /*control*/, const std::function<void()>& handler) {
    if (handler) handler();
}

void Form::press(Control& control) {
    if (!accepts(control)) return;
    history_.breakMerging();
    if (auto* button = dynamic_cast<Button*>(&control)) return run(control, button->onPress);
    if (auto* box = dynamic_cast<CheckBox*>(&control)) {
        box->selected = !box->selected;
        return run(control, box->onPress);
    }
    auto* option = dynamic_cast<Option*>(&control);
    if (option == nullptr) return;
    for (const auto& other : controls_)
        if (auto* rival = dynamic_cast<Option*>(other.get());
            rival != nullptr && rival->frame == option->frame)
            rival->selected = false;
    option->selected = true;
    run(control, option->onPress);
}

void Form::type(TextBox& box, std::string text) {
    if (!accepts(box)) return;
    const std::string before = box.text();
    run(box, [&] { box.setText(std::move(text)); });
    if (!box.cell) return history_.record({.box = &box, .before = before, .after = box.text()});
    const auto [grid, row, col] = *box.cell;
    grid->setCell(row, col, box.text());
    history_.record({.grid = grid, .row = row, .col = col, .before = before, .after = box.text()});
}

void Form::leave(TextBox& box) {
    run(box, box.onLeave);
}

void Form::select(DataGrid& grid, const CellBlock& block) {
    history_.breakMerging();
    run(grid, [&] { grid.select(block); });
}

void Form::click(DataGrid& grid, int row, int col) {
    if (!accepts(grid)) return;
    select(grid, {.startRow = row, .endRow = row, .startCol = col, .endCol = col});
    const std::string before = grid.cell(row, col);
    run(grid, [&] {
        if (grid.onCellClick) grid.onCellClick(row, col);
    });
    if (row >= grid.rows() || col >= grid.cols()) return;
    history_.record({.grid = &grid, .row = row, .col = col, .before = before, .after = grid.cell(row, col)});
}

void Form::doubleClick(DataGrid& grid) {
    if (accepts(grid)) run(grid, grid.onDoubleClick);
}

void Form::key(DataGrid& grid, int code) {
    const int row = grid.row();
    const int col = grid.col();
    if (row < 1 || col < 1 || row >= grid.rows() || col >= grid.cols()) return;
    const std::string before = grid.text();
    run(grid, [&] {
        if (grid.onKey) grid.onKey(code);
    });
    history_.record({.grid = &grid, .row = row, .col = col, .before = before, .after = grid.cell(row, col)});
}

void Form::insertKey(DataGrid& grid) {
    history_.clear();
    run(grid, grid.onInsertKey);
}

void Form::paste(DataGrid& grid, std::string_view tabbedText) {
    // A grid without rows says so once, not for every character.
    if (grid.growsByRows && grid.rowCount <= 0) return key(grid, escapeKey);
    const CellBlock origin = grid.selection();
    std::vector<Edit> edits;
    int row = origin.startRow;
    for (const auto& cells : tabbedCells(tabbedText)) {
        if (row >= grid.rows() && grid.growsByRows && grid.rowCount < grid.rowLimit) insertKey(grid);
        int col = origin.startCol;
        for (const std::string& cell : cells) {
            if (row < 1 || col < 1 || row >= grid.rows() || col >= grid.cols()) break;
            Edit edit = typeOver(grid, row, col, cell);
            if (edit.after != edit.before) edits.push_back(std::move(edit));
            ++col;
        }
        ++row;
    }
    history_.recordStep(std::move(edits));
    if (origin.startRow < grid.rows() && origin.startCol < grid.cols())
        grid.setCurrent(origin.startRow, origin.startCol);
}

/// Types a text in place of what a cell holds, key by key, so that the cell's own rules decide.
Edit Form::typeOver(DataGrid& grid, int row, int col, std::string_view text) {
    grid.setCurrent(row, col);
    Edit edit{.grid = &grid, .row = row, .col = col, .before = grid.text(), .after = {}};
    run(grid, [&] {
        if (!grid.onKey) return;
        grid.onKey(escapeKey);
        for (const char32_t point : codePoints(text)) grid.onKey(static_cast<int>(point));
    });
    edit.after = grid.cell(row, col);
    return edit;
}

std::string Form::copied(const DataGrid& grid) {
    const CellBlock& block = grid.selection();
    std::string text;
    for (int row = block.startRow; row <= block.endRow; ++row) {
        for (int col = block.startCol; col <= block.endCol; ++col)
            text.append(col > block.startCol ? "\t" : "").append(grid.cell(row, col));
        text += "\n";
    }
    return text;
}

void Form::selectPage(TabControl& tabs, int page) {
    if (!accepts(tabs) || page < 0 || page >= static_cast<int>(tabs.pages.size())) return;
    tabs.selected = page;
    run(tabs, tabs.onSelect);
}

void Form::undo() {
    history_.undo();
}

void Form::redo() {
    history_.redo();
}

} // namespace vantore
