#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "shell/base/number_text.h"
#include "shell/base/record_fields.h"
#include "shell/base/table.h"
#include "shell/forms/control.h"

namespace vantore {

/// The text boxes of a record's members, in the order of the record's list of fields.
template <class Record>
class Fields {
  public:
    Fields() = default;
    Fields(std::span<const Field<Record>> fields, std::vector<TextBox*> boxes)
        : fields_(fields), boxes_(std::move(boxes)) {
        checkIndex(static_cast<long long>(boxes_.size()), static_cast<long long>(fields_.size()),
                   static_cast<long long>(fields_.size()));
    }

    /// Shows the members in their boxes, numbers as their default texts. Nobody is told.
    void show(const Record& record) const {
        for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->show(fieldText(record, fields_[i]));
    }

    /// The same, each box telling of its change.
    void set(const Record& record) const {
        for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setText(fieldText(record, fields_[i]));
    }

    /// Takes the members from their boxes, numbers by `val`.
    void take(Record& record) const {
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            if (const auto* text = std::get_if<std::string Record::*>(&fields_[i])) {
                record.** text = boxes_[i]->text();
            } else {
                setNumber(record, fields_[i], val(boxes_[i]->text()));
            }
        }
    }

  private:
    std::span<const Field<Record>> fields_;
    std::vector<TextBox*> boxes_;
};

} // namespace vantore
