#include "shell/column_arithmetic.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore {

namespace {

enum class Action { Sum = 1, Add, Multiply, Exponentiate, Replace };

std::optional<Action> actionFor(const std::string& answer) {
    if (answer.size() != 1 || answer[0] < '1' || answer[0] > '5') return std::nullopt;
    return static_cast<Action>(answer[0] - '0');
}

bool mayCompute(Suite& suite, const DataGrid& grid, const ArithmeticWording& wording) {
    const CellBlock& block = grid.selection();
    if (wording.highlighted) {
        if (!suite.asksYes(wording.highlighted->text, wording.highlighted->title)) return false;
    } else if (block.startCol != block.endCol) {
        suite.messageBx(wording.oneColumn.text, wording.oneColumn.title);
        return false;
    }
    if (!grid.numeric(block.startCol)) {
        suite.messageBx(wording.notApplicable.text, wording.notApplicable.title);
        return false;
    }
    return true;
}

void reportSum(Suite& suite, const DataGrid& grid, const ArithmeticWording& wording, int firstRow) {
    double total = 0;
    for (int row = firstRow; row <= grid.selection().endRow; ++row)
        total = finite(total + val(grid.cell(row, grid.col())));
    suite.messageBx("The sum is: " + str(total), wording.sumTitle);
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

void columnArithmetic(Suite& suite, DataGrid& grid, const ArithmeticWording& wording) {
    if (!mayCompute(suite, grid, wording)) return;
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
    // All texts are computed before the first cell changes: a value that can't be leaves the column whole.
    std::vector<std::string> texts;
    for (int row = firstRow; row <= grid.selection().endRow; ++row)
        texts.push_back(changed(grid.cell(row, grid.col()), *action, value));
    int row = firstRow;
    for (std::string& text : texts) grid.setCell(row++, grid.col(), std::move(text));
}

} // namespace vantore
