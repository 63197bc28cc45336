#include "location/WARELOCA/problem.h"

#include "shell/base/text.h"

namespace vantore::wareloca {

namespace {

/// Reads a count and so many rows.
template <class Row, int Most>
int readRows(ItemReader& reader, Table<Row, 1, Most>& rows, std::span<const Field<Row>> items) {
    const int count = reader.readCount(Most);
    for (int i = 1; i <= count; ++i) readFields<Row>(reader, rows(i), items);
    return count;
}

template <class Row, int Most>
void writeRows(ItemWriter& writer, int count, const Table<Row, 1, Most>& rows,
               std::span<const Field<Row>> items) {
    writer.number(count).endLine();
    for (int i = 1; i <= count; ++i) writeRow<Row>(writer, rows(i), items);
}

void writeLine(ItemWriter& writer, const Case& problem, std::span<const Field<Case>> items) {
    writeFields<Case>(writer, problem, items);
    writer.endLine();
}

template <class Row, int Most>
void readMarks(ItemReader& reader, int count, Table<Row, 1, Most>& rows) {
    const int marks = reader.readCount(Most);
    for (int i = 1; i <= marks; ++i) {
        const std::string text = trimmed(reader.readString());
        if (i <= count) rows(i).selection = text.empty() ? "" : mark;
    }
}

template <class Row, int Most>
void writeMarks(ItemWriter& writer, int count, const Table<Row, 1, Most>& rows) {
    writer.number(count).endLine();
    for (int i = 1; i <= count; ++i) writer.string(rows(i).selected() ? mark : " ").endLine();
}

} // namespace

std::string skeleton() {
    ItemWriter writer;
    write(Case{}, writer);
    return writer.text();
}

Case read(ItemReader& reader) {
    Case problem;
    problem.plantCount = readRows<Plant>(reader, problem.plants, plantItems);
    problem.warehouseCount = readRows<Warehouse>(reader, problem.warehouses, warehouseItems);
    problem.customerCount = readRows<Customer>(reader, problem.customers, customerItems);
    readFields<Case>(reader, problem, supplyFields);
    readFields<Case>(reader, problem, inventoryFields);
    readFields<Case>(reader, problem, deliveryFields);
    return problem;
}

void write(const Case& problem, ItemWriter& writer) {
    writeRows<Plant>(writer, problem.plantCount, problem.plants, plantItems);
    writeRows<Warehouse>(writer, problem.warehouseCount, problem.warehouses, warehouseItems);
    writeRows<Customer>(writer, problem.customerCount, problem.customers, customerItems);
    writeLine(writer, problem, supplyFields);
    writeLine(writer, problem, inventoryFields);
    writeLine(writer, problem, deliveryFields);
}

void readSelection(Case& problem, ItemReader& reader) {
    problem.desiredDistance = reader.readNumber();
    readMarks(reader, problem.plantCount, problem.plants);
    readMarks(reader, problem.warehouseCount, problem.warehouses);
}

void writeSelection(const Case& problem, ItemWriter& writer) {
    writer.number(problem.desiredDistance).endLine();
    writeMarks(writer, problem.plantCount, problem.plants);
    writeMarks(writer, problem.warehouseCount, problem.warehouses);
}

} // namespace vantore::wareloca
