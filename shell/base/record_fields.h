#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "shell/base/arithmetic.h"
#include "shell/base/item_stream.h"
#include "shell/base/number_text.h"

namespace vantore {

/// A member of a record that a problem file holds and a user edits: a text, a number or a whole number of 16
/// bits.
template <class Record>
using Field = std::variant<std::string Record::*, double Record::*, std::int16_t Record::*>;

/// True of a text, false of the numbers.
template <class Record>
bool isText(const Field<Record>& field) {
    return std::holds_alternative<std::string Record::*>(field);
}

/// A member as its cell or box shows it: numbers as their default texts.
template <class Record>
std::string fieldText(const Record& record, const Field<Record>& field) {
    if (const auto* text = std::get_if<std::string Record::*>(&field)) return record.**text;
    if (const auto* whole = std::get_if<std::int16_t Record::*>(&field)) return defaultText(record.**whole);
    return defaultText(record.*std::get<double Record::*>(field));
}

/// Gives a number among the members its value. Overflow for a whole one beyond 16 bits.
template <class Record>
void setNumber(Record& record, const Field<Record>& field, double value) {
    if (const auto* whole = std::get_if<std::int16_t Record::*>(&field)) {
        record.** whole = toInt16(value);
    } else {
        record.*std::get<double Record::*>(field) = value;
    }
}

/// Reads the members of a record in the order of a list. InputPastEnd when the file has no further item,
/// Overflow for a whole number beyond 16 bits.
template <class Record>
void readFields(ItemReader& reader, Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        if (const auto* text = std::get_if<std::string Record::*>(&field)) {
            record.** text = reader.readString();
        } else {
            setNumber(record, field, reader.readNumber());
        }
    }
}

/// Writes the members of a record in the order of a list, its texts as they are.
template <class Record>
void writeFields(ItemWriter& writer, const Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        const std::string text = fieldText(record, field);
        isText(field) ? writer.string(text) : writer.plain(text);
    }
}

/// Writes one row of a table as a line of its own, its texts as labels.
template <class Record>
void writeRow(ItemWriter& writer, const Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        const std::string text = fieldText(record, field);
        isText(field) ? writer.label(text) : writer.plain(text);
    }
    writer.endLine();
}

} // namespace vantore
