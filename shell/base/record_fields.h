#pragma once

#include <span>
#include <string>
#include <variant>

#include "shell/base/item_stream.h"

namespace vantore {

/// A member of a record that a problem file holds and a user edits: a text or a number.
template <class Record>
using Field = std::variant<std::string Record::*, double Record::*>;

/// Reads the members of a record in the order of a list. InputPastEnd when the file has no further item.
template <class Record>
void readFields(ItemReader& reader, Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        if (const auto* text = std::get_if<std::string Record::*>(&field)) {
            record.** text = reader.readString();
        } else {
            record.*std::get<double Record::*>(field) = reader.readNumber();
        }
    }
}

/// Writes the members of a record in the order of a list, its texts as they are.
template <class Record>
void writeFields(ItemWriter& writer, const Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        if (const auto* text = std::get_if<std::string Record::*>(&field)) {
            writer.string(record.**text);
        } else {
            writer.number(record.*std::get<double Record::*>(field));
        }
    }
}

/// Writes one row of a table as a line of its own, its texts as labels.
template <class Record>
void writeRow(ItemWriter& writer, const Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
        if (const auto* text = std::get_if<std::string Record::*>(&field)) {
            writer.label(record.**text);
        } else {
            writer.number(record.*std::get<double Record::*>(field));
        }
    }
    writer.endLine();
}

} // namespace vantore
