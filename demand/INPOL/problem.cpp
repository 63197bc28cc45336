#include "demand/INPOL/problem.h"

#include <array>
#include <cmath>

#include "shell/base/text.h"

namespace vantore::inpol {

namespace {

struct TimeFrame {
    double periodsPerYear;
    const char* unit;
};

constexpr int calendarDays = 1;
constexpr int years = 5;
constexpr std::array<TimeFrame, years> timeFrames = {
    {{365, "da"}, {250, "da"}, {52, "wk"}, {12, "mo"}, {1, "yr"}}};

/// The time frame that a number stands for, from 1 on; years for any other number.
const TimeFrame& timeFrameOf(double number) {
    const double nearest = std::nearbyint(number);
    const bool known = nearest >= calendarDays && nearest <= years;
    return timeFrames.at(static_cast<std::size_t>(known ? nearest : years) - 1);
}

bool isYes(const std::string& answer) {
    return upperCase(answer) == "Y";
}

} // namespace

bool Problem::jointlyOrdered() const {
    return isYes(jointOrderAnswer);
}

bool Problem::serviceIndexSpecified() const {
    return isYes(serviceIndexAnswer);
}

bool Problem::wantsSensitivity() const {
    return isYes(sensitivityAnswer);
}

bool Problem::orderQuantitySpecified() const {
    return isYes(orderQuantityAnswer);
}

double periodsPerYear(double timeFrame) {
    return timeFrameOf(timeFrame).periodsPerYear;
}

std::string timeUnit(double timeFrame) {
    return timeFrameOf(timeFrame).unit;
}

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.productCount = 1;
    problem.timeFrame = calendarDays;
    problem.jointOrderAnswer = problem.serviceIndexAnswer = "N";
    problem.sensitivityAnswer = problem.orderQuantityAnswer = "N";
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    const std::span<const Field<Problem>> fields = boxFields;
    readFields(reader, problem, fields.first(1));
    problem.productCount = reader.readCount(mostProducts);
    readFields(reader, problem, fields.subspan(1));
    for (const ProductTable& table : productTables)
        for (int i = 1; i <= problem.productCount; ++i) readFields(reader, problem.products(i), table.fields);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    const std::span<const Field<Problem>> fields = boxFields;
    writeFields(writer, problem, fields.first(1));
    writer.number(problem.productCount);
    writeFields(writer, problem, fields.subspan(1));
    writer.endLine();
    for (const ProductTable& table : productTables)
        for (int i = 1; i <= problem.productCount; ++i) writeRow(writer, problem.products(i), table.fields);
}

} // namespace vantore::inpol
