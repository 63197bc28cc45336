#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore::miprog {

namespace {

std::string counted(long long count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

/// The line that is wrong, quoted so far as a report has room for it.
std::string quoted(std::string_view item) {
    constexpr std::size_t room = 24;
    return "\"" + left(item, room) + (length(item) > room ? "...\"" : "\"");
}

/// The lines one after another; all that is wrong is told with the number of the line read last.
class Lines {
  public:
    explicit Lines(const std::vector<std::string>& lines) : lines_(lines) {}

    [[noreturn]] void fail(const std::string& why) const { throw MalformedInput(at_, why); }

    /// The next line, which should hold `what`.
    const std::string& next(const std::string& what) {
        ++at_;
        if (at_ > lines_.size()) fail("the file ends where " + what + " should be.");
        return lines_[at_ - 1];
    }

    bool more() const { return at_ < lines_.size(); }

    /// The `count` numbers of the next line.
    std::vector<double> numbers(long long count, const std::string& what) {
        std::vector<double> values;
        for (const std::string_view item : items(next(what))) values.push_back(number(item));
        if (static_cast<long long>(values.size()) != count)
            fail(what + ": " + counted(count, "number") + " should be here, not " +
                 std::to_string(values.size()) + ".");
        return values;
    }

    /// The `count` whole numbers from `least` to `most` of the next line.
    std::vector<int> wholes(long long count, int least, int most, const std::string& what) {
        std::vector<int> values;
        for (const double value : numbers(count, what)) {
            if (value != std::floor(value) || value < least || value > most)
                fail(what + ": " + defaultText(value) + " is no whole number from " + std::to_string(least) +
                     " to " + std::to_string(most) + ".");
            values.push_back(static_cast<int>(value));
        }
        return values;
    }

    /// The names in single quotes of the next line. A quote inside a name stands for itself.
    std::vector<std::string> names(long long count, const std::string& what) {
        std::string_view line = next(what);
        std::vector<std::string> result;
        while (line.find_first_not_of(' ') != std::string_view::npos) result.push_back(takeName(line));
        if (static_cast<long long>(result.size()) != count)
            fail(what + ": " + counted(count, "name") + " should be here, not " +
                 std::to_string(result.size()) + ".");
        return result;
    }

  private:
    /// What stands between the commas; nothing in a blank line.
    static std::vector<std::string_view> items(std::string_view line) {
        std::vector<std::string_view> result;
        if (line.find_first_not_of(" \t") == std::string_view::npos) return result;
        while (true) {
            const std::size_t comma = line.find(',');
            result.push_back(line.substr(0, comma));
            if (comma == std::string_view::npos) return result;
            line.remove_prefix(comma + 1);
        }
    }

    double number(std::string_view item) const {
        try {
            return numberFrom(item);
        } catch (const RuntimeError&) {
            fail(quoted(item) + " is no number.");
        }
    }

    /// Takes one name off the front of the line, and the comma behind it.
    std::string takeName(std::string_view& line) const {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (!line.starts_with('\'')) fail("a name in single quotes should be at " + quoted(line) + ".");
        for (std::size_t quote = line.find('\'', 1); quote != std::string_view::npos;
             quote = line.find('\'', quote + 1)) {
            const std::size_t behind = std::min(line.find_first_not_of(' ', quote + 1), line.size());
            if (behind < line.size() && line[behind] != ',') continue;
            std::string name(line.substr(1, quote - 1));
            line.remove_prefix(std::min(behind + 1, line.size()));
            return name;
        }
        fail("the name at " + quoted(line) + " has no single quote at its end.");
    }

    const std::vector<std::string>& lines_;
    std::size_t at_ = 0;
};

void readCounts(Lines& lines, SolverInput& input) {
    const auto flag = lines.wholes(1, -1, 1, "the objective flag");
    if (flag.front() == 0) lines.fail("the objective flag: it should be 1 or -1.");
    input.objectiveFlag = flag.front();
    const auto counts = lines.wholes(5, 0, std::max(mostSolverRows, mostSolverColumns),
                                     "the counts of constraints, variables, <, = and > constraints");
    input.m = counts[0];
    input.n = counts[1];
    if (static_cast<long long>(input.m) * input.n > mostSolverCoefficients)
        lines.fail(counted(input.m, "constraint") + " with " + counted(input.n, "variable") +
                   " are more than the solver takes.");
    input.lessCount = counts[2];
    input.equalCount = counts[3];
    input.greaterCount = counts[4];
}

void readRows(Lines& lines, SolverInput& input) {
    for (int i = 1; i <= input.m; ++i)
        for (const double value :
             lines.numbers(input.n, "the coefficients of constraint " + std::to_string(i)))
            input.coefs.add(value);
    for (const double value : lines.numbers(input.m, "the right-hand sides")) input.rhs.add(value);
    for (const int value : lines.wholes(input.m, -1, 1, "the sense codes")) input.rowSense.add(value);
    const auto senses = input.rowSense.span();
    const bool agree = std::count(senses.begin(), senses.end(), 1) == input.lessCount &&
                       std::count(senses.begin(), senses.end(), 0) == input.equalCount &&
                       std::count(senses.begin(), senses.end(), -1) == input.greaterCount;
    if (!agree) lines.fail("the sense codes: there are not as many of each as line 2 says.");
}

void readColumns(Lines& lines, SolverInput& input) {
    for (const double value : lines.numbers(input.n, "the objective coefficients")) input.objCoef.add(value);
    const auto pairs = lines.numbers(2LL * input.n, "the bounds of the variables");
    for (std::size_t at = 0; at < pairs.size(); at += 2) {
        if (pairs[at] > pairs[at + 1])
            lines.fail("the bounds of variable " + std::to_string(at / 2 + 1) + ": the lower one, " +
                       defaultText(pairs[at]) + ", is above the upper one, " + defaultText(pairs[at + 1]) +
                       ".");
        input.bounds.add({pairs[at], pairs[at + 1]});
    }
}

void readIntegers(Lines& lines, SolverInput& input) {
    const int count = lines.wholes(1, 0, input.n, "the number of integer variables").front();
    if (count == 0 && !lines.more()) return;
    const std::string what = "the columns of the integer variables";
    std::vector<int> columns = lines.wholes(count, 1, input.n, what);
    for (const int column : columns) input.intIndex.add(column);
    std::sort(columns.begin(), columns.end());
    const auto twice = std::adjacent_find(columns.begin(), columns.end());
    if (twice != columns.end()) lines.fail(what + ": " + std::to_string(*twice) + " stands there twice.");
}

} // namespace

MalformedInput::MalformedInput(std::size_t line, const std::string& why)
    : std::runtime_error("Line " + std::to_string(line) + ": " + why) {}

SolverInput readTemporaryLines(const std::vector<std::string>& text) {
    SolverInput input;
    Lines lines(text);
    readCounts(lines, input);
    for (std::string& name : lines.names(input.n, "the names of the variables"))
        input.names.add(std::move(name));
    readRows(lines, input);
    readColumns(lines, input);
    readIntegers(lines, input);
    while (lines.more())
        if (!trimmed(lines.next("nothing")).empty()) lines.fail("nothing should stand here any more.");
    return input;
}

} // namespace vantore::miprog
