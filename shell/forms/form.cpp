#include "shell/forms/form.h"

#include <algorithm>

#include "shell/base/text.h"
#include "shell/forms/keys.h"

namespace vantore {

namespace {

using TabbedCells = std::vector<std::vector<std::string>>;

/// The fields of a text whose lines hold tab-separated cells.
TabbedCells tabbedCells(std::string_view text) {
    TabbedCells rows;
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

std::size_t widest(const TabbedCells& cells) {
    std::size_t count = 0;
    for (const auto& row : cells) count = std::max(count, row.size());
    return count;
}

void typeOver(DataGrid& grid, int row, int col, std::string_view text) {
    grid.setCurrent(row, col);
    if (!grid.onKey) return;
    grid.onKey(keys::escape);
    for (const char32_t point : codePoints(text)) grid.onKey(static_cast<int>(point));
}

void edited(const DataGrid& grid) {
    if (grid.onEdit) grid.onEdit();
}

bool has(const DataGrid& grid, int row, int col) {
    return row >= 0 && col >= 0 && row < grid.rows() && col < grid.cols();
}

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

// What can be undone

FormState Form::state() const {
    FormState state;
    state.reserve(controls_.size());
    for (const auto& control : controls_) state.push_back(control->content());
    return state;
}

void Form::forgetHistory() {
    history_.clear();
    ++epoch_;
}

/// An action that may change what the user edits: a step that can be taken back.
void Form::act(const EditedField& field, const std::function<void()>& handler) {
    if (!accepts(*field.control)) return;
    FormState before = state();
    const int epoch = epoch_;
    history_.begin(before);
    run(*field.control, handler);
    FormState after = state();
    if (epoch == epoch_ && after != before) history_.record(std::move(after), field);
}

/// An action that is no step of its own; what it changes goes with the step before it.
void Form::actAside(Control& control, const std::function<void()>& handler) {
    if (!accepts(control)) return;
    history_.breakMerging();
    const int epoch = epoch_;
    run(control, handler);
    if (epoch == epoch_) history_.amend(state());
}

void Form::undo() {
    if (canUndo()) putBack(history_.undo());
}

void Form::redo() {
    if (canRedo()) putBack(history_.redo());
}

void Form::putBack(const History::Target& target) {
    for (std::size_t i = 0; i < controls_.size(); ++i)
        if (!std::holds_alternative<std::monostate>(target.state[i])) controls_[i]->restore(target.state[i]);
    if (target.control == nullptr) return restored();
    reveal(*target.control);
    run(*target.control, [this] { restored(); });
}

/// Brings a control's page to the front and gives it the focus.
void Form::reveal(const Control& control) {
    for (const auto& each : controls_) {
        auto* container = dynamic_cast<Container*>(each.get());
        for (const Control* inner = &control; inner != nullptr; inner = inner->container)
            if (container != nullptr && inner->container == container && !container->pages.empty())
                container->selected = inner->page;
        if (each.get() == &control) focus = each.get();
    }
}

// A user's actions

void Form::press(Control& control) {
    history_.breakMerging();
    const EditedField field{.control = &control, .single = false};
    if (auto* button = dynamic_cast<Button*>(&control)) return act(field, button->onPress);
    auto* choice = dynamic_cast<Choice*>(&control);
    if (choice == nullptr) return;
    act(field, [this, choice] {
        const auto* option = dynamic_cast<const Option*>(choice);
        if (option != nullptr)
            for (const auto& other : controls_)
                if (auto* rival = dynamic_cast<Option*>(other.get());
                    rival != nullptr && rival->rivals(*option))
                    rival->selected = false;
        choice->selected = option != nullptr || !choice->selected;
        if (choice->onPress) choice->onPress();
    });
}

void Form::type(TextBox& box, const std::string& text) {
    if (!accepts(box)) return;
    if (!box.cell) return act({.control = &box}, [&] { box.setText(text); });
    const auto [grid, row, col] = *box.cell;
    act({.control = grid, .row = row, .col = col}, [&, grid = grid, row = row, col = col] {
        box.setText(text);
        grid->setCell(row, col, box.text());
        edited(*grid);
    });
}

void Form::leave(TextBox& box) {
    actAside(box, box.onLeave);
}

void Form::select(DataGrid& grid, const CellBlock& block) {
    if (!has(grid, block.startRow, block.startCol) || !has(grid, block.endRow, block.endCol)) return;
    actAside(grid, [&] { grid.select(block); });
}

void Form::click(DataGrid& grid, int row, int col) {
    if (!has(grid, row, col)) return;
    select(grid, {.startRow = row, .endRow = row, .startCol = col, .endCol = col});
    act({.control = &grid, .row = row, .col = col}, [&grid, row, col] {
        if (grid.onCellClick) grid.onCellClick(row, col);
        edited(grid);
    });
}

void Form::doubleClick(DataGrid& grid, int row, int col) {
    if (!has(grid, row, col)) return;
    select(grid, {.startRow = row, .endRow = row, .startCol = col, .endCol = col});
    act({.control = &grid, .single = false}, grid.onDoubleClick);
}

void Form::key(DataGrid& grid, int code) {
    const int row = grid.row();
    const int col = grid.col();
    if (row < 1 || col < 1 || !has(grid, row, col)) return;
    act({.control = &grid, .row = row, .col = col}, [&grid, code] {
        if (grid.onKey) grid.onKey(code);
        edited(grid);
    });
}

void Form::enterKey(DataGrid& grid) {
    const int row = grid.row();
    const int col = grid.col();
    key(grid, keys::enter);
    const bool stays = grid.row() == row && grid.col() == col;
    if (stays && row + 1 < grid.rows())
        select(grid, {.startRow = row + 1, .endRow = row + 1, .startCol = col, .endCol = col});
}

void Form::typeCell(DataGrid& grid, int row, int col, std::string_view text) {
    if (!has(grid, row, col)) return;
    history_.breakMerging();
    act({.control = &grid, .row = row, .col = col}, [&] {
        typeOver(grid, row, col, text);
        edited(grid);
    });
}

void Form::insertKey(DataGrid& grid) {
    act({.control = &grid, .single = false}, grid.onInsertKey);
}

void Form::paste(DataGrid& grid, std::string_view tabbedText, NumberMarks marks) {
    const TabbedCells cells = tabbedCells(tabbedText);
    if (cells.empty()) return;
    act({.control = &grid, .single = false}, [&] {
        const CellBlock origin = grid.selection();
        const int lastRow = origin.startRow + static_cast<int>(cells.size()) - 1;
        const int lastCol = origin.startCol + static_cast<int>(widest(cells)) - 1;
        if (origin.startRow < 1 || origin.startCol < 1) return;
        if (grid.makesRoom && !grid.makesRoom(lastRow, lastCol)) return;
        if (lastRow >= grid.rows() || lastCol >= grid.cols()) return;
        pasteCells(grid, cells, marks);
        grid.setCurrent(origin.startRow, origin.startCol);
        edited(grid);
    });
}

void Form::pasteCells(DataGrid& grid, const TabbedCells& cells, NumberMarks marks) {
    const CellBlock origin = grid.selection();
    int row = origin.startRow;
    for (const auto& line : cells) {
        int col = origin.startCol;
        for (const std::string& text : line) {
            typeOver(grid, row, col, grid.numeric(col) ? pastedNumber(text, marks).value_or(text) : text);
            ++col;
        }
        ++row;
    }
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

void Form::selectPage(Container& tabs, int page) {
    if (page < 0 || page >= static_cast<int>(tabs.pages.size())) return;
    actAside(tabs, [&tabs, page] {
        tabs.selected = page;
        if (tabs.onSelect) tabs.onSelect();
    });
}

void Form::selectItem(ListBox& list, int item) {
    if (item < 0 || item >= static_cast<int>(list.items.size())) return;
    actAside(list, [&list, item] {
        list.selected = item;
        if (list.onSelect) list.onSelect();
    });
}

void Form::openItem(ListBox& list) {
    actAside(list, list.onOpen);
}

void Form::zoom(PictureSurface& surface, int steps) {
    actAside(surface, [&] {
        if (surface.onZoom) surface.onZoom(steps);
    });
}

void Form::pan(PictureSurface& surface, int stepsRight, int stepsDown) {
    actAside(surface, [&] {
        if (surface.onPan) surface.onPan(stepsRight, stepsDown);
    });
}

} // namespace vantore
