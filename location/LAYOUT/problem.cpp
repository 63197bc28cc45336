#include "location/LAYOUT/problem.h"

namespace vantore::layout {

namespace {

Rule ruleOf(double number) {
    for (const Rule rule : {Rule::Size, Rule::CubePerOrder})
        if (number == static_cast<double>(rule)) return rule;
    return Rule::Popularity;
}

} // namespace

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.rowCount = 1;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    problem.label = reader.readString();
    problem.rule = ruleOf(reader.readNumber());
    problem.rowCount = reader.readCount(mostProducts);
    for (int i = 1; i <= problem.rowCount; ++i)
        readFields<Product>(reader, problem.products(i), productFields);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writer.string(problem.label).number(static_cast<double>(problem.rule)).endLine();
    writer.number(problem.rowCount).endLine();
    for (int i = 1; i <= problem.rowCount; ++i) writeRow<Product>(writer, problem.products(i), productFields);
}

std::optional<Message> fault(const Problem& problem) {
    for (int i = 1; i <= problem.rowCount; ++i)
        if (problem.products(i).turns == 0) return Message{"No item inventory turns should be 0", ""};
    return std::nullopt;
}

} // namespace vantore::layout
