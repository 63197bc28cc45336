#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "shell/base/number_text.h"
#include "shell/base/record_fields.h"
#include "shell/base/text.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// A column's caption, its lines apart by CR LF, its width in twips of the design, and the mask under which
/// its numbers are put; without one they are default texts.
struct ColumnHeading {
    std::string caption;
    double width = designColWidth;
    std::string mask = {};
};

/// Shapes a grid to columns with these headings, column 0 first. The heading row is as high as its longest
/// caption has lines.
void shapeColumns(DataGrid& grid, const std::vector<ColumnHeading>& headings);

/// The columns of a grid whose rows are records: column 1 on hold the members of the record's list of fields.
template <class Record>
class GridColumns {
  public:
    GridColumns() = default;

    /// `headings` begin with that of column 0, the row number.
    GridColumns(DataGrid& grid, std::span<const Field<Record>> fields,
                const std::vector<ColumnHeading>& headings)
        : grid_(&grid), fields_(fields) {
        shapeColumns(grid, headings);
        for (const ColumnHeading& heading : headings) masks_.push_back(heading.mask);
        grid.holdsNumbers = [fields](int col) {
            return col >= 1 && col <= static_cast<int>(fields.size()) &&
                   !isText(fields[static_cast<std::size_t>(col - 1)]);
        };
    }

    /// Puts a record into a row, numbers under their columns' masks.
    void put(int row, const Record& record) const {
        for (std::size_t i = 0; i < fields_.size(); ++i)
            grid_->setCell(row, static_cast<int>(i) + 1, shown(record, fields_[i], masks_[i + 1]));
    }

    /// Takes a record from a row: texts without blanks at their ends, numbers by `val`. Overflow for a whole
    /// number beyond 16 bits.
    void take(int row, Record& record) const {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            const std::string& cell = grid_->cell(row, static_cast<int>(i) + 1);
            if (const auto* text = std::get_if<std::string Record::*>(&fields_[i])) {
                record.** text = trimmed(cell);
            } else {
                setNumber(record, fields_[i], val(cell));
            }
        }
    }

  private:
    static std::string shown(const Record& record, const Field<Record>& field, const std::string& mask) {
        const auto* number = std::get_if<double Record::*>(&field);
        return number != nullptr && !mask.empty() ? format(record.**number, mask) : fieldText(record, field);
    }

    DataGrid* grid_ = nullptr;
    std::span<const Field<Record>> fields_;
    std::vector<std::string> masks_; ///< by column, column 0 first
};

} // namespace vantore
