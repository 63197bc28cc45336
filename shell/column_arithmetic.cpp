#include "shell/column_arithmetic.h"

#include <algorithm>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore {

namespace {

enum class Action { Sum = 1, Add, Multiply, Exponentiate, Replace };

std::optional<Action> actionFor(const std::string& answer) {
    if (answer.size() != 1 || answer[0] < '1' || answer[0] > '5') return std::nullopt;
    return static_cast<Action>(answer[0] - '0');
}

bool mayCompute(Suite& suite, const DataGrid& grid, const ArithmeticWording& wording,
                const std::function<bool(int)>& holdsNumbers) {
    if (wording.highlighted) return suite.asksYes(wording.highlighted->text, wording.highlighted->title);
    const CellBlock& block = grid.selection();
    if (block.startCol != block.endCol) {
        suite.messageBx(wording.oneColumn.text, wording.oneColumn.title);
        return false;
    }
    if (!holdsNumbers(block.startCol)) {
        suite.messageBx(wording.notApplicable.text, wording.notApplicable.title);
        return false;
    }
    return true;
}

void reportSum(Suite& suite, const DataGrid& grid, const ArithmeticWording& wording, int firstRow) {
    double total = 0;
    for (int row = firstRow; row <= grid.selection().endRow; ++row)
        total = finite(total + val(grid.cell(row, grid.col())));
    suite.messageBx("The sum is: " + str(total), wording.module);
}

std::string askValue(Suite& suite, Action action, const ArithmeticWording& wording) {
    static const std::array<std::string, 4> prompts = {"The add value is?", "The multiplier is?",
                                                       "The exponent is?", "The replacement value is?"};
    const auto which = static_cast<std::size_t>(action) - static_cast<std::size_t>(Action::Add);
    return suite.inputBx(prompts.at(which), wording.valueTitles.at(which), wording.valueDefault);
}

std::string changed(const std::string& text, Action action, const std::string& value) {
    switch (action) {
    case Action::Add: return defaultText(finite(val(text) + numberFrom(value)));
    case Action::Multiply: return defaultText(finite(val(text) * numberFrom(value)));
    case Action::Exponentiate: return defaultText(power(val(text), numberFrom(value)));
    default: return value;
    }
}

} // namespace

ArithmeticWording ArithmeticWording::usual(const std::string& module) {
    ArithmeticWording wording;
    wording.module = module;
    wording.oneColumn = {"Highlight only one column.", module};
    wording.notApplicable = {"Column arithmetic does not apply to this column.", module};
    return wording;
}

void columnArithmetic(Suite& suite, DataGrid& grid, const ArithmeticWording& wording,
                      const std::function<bool(int col)>& holdsNumbers) {
    if (!mayCompute(suite, grid, wording, holdsNumbers)) return;
    const std::string answer =
        suite.inputBx("Select the number of the appropriate action:\r\n(1) Sum\r\n(2) Add\r\n"
                      "(3) Multiply\r\n(4) Exponentiate\r\n(5) Replace",
                      wording.menuTitle, wording.menuDefault);
    const std::optional<Action> action = actionFor(answer);
    if (!action) return;
    const int firstRow = std::max(grid.selection().startRow, 1);
    if (*action == Action::Sum) return reportSum(suite, grid, wording, firstRow);
    const std::string value = askValue(suite, *action, wording);
    if (value.empty()) return;
    for (int row = firstRow; row <= grid.selection().endRow; ++row)
        grid.setCell(row, grid.col(), changed(grid.cell(row, grid.col()), *action, value));
}

} // namespace vantore
