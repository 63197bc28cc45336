#pragma once

#include <map>
#include <string>
#include <string_view>

#include "shell/forms/data_grid.h"
#include "simulator/SCSIM/problem.h"

namespace vantore::scsim {

/// The controls that hold a problem as typed, by the names under which its items go through a file.
class ChannelControls {
  public:
    void add(TextBox& box) { boxes_[box.name] = &box; }
    void add(Option& option) { options_[option.name] = &option; }

    /// Shape the grids: months and indices by turns, three to a row; days and demands by turns, a month to
    /// two rows.
    void setIndexGrid(DataGrid& grid);
    void setDemandGrid(DataGrid& grid);

    /// SubscriptOutOfRange for a name that there is none of.
    TextBox& box(std::string_view name) const;
    Option& option(std::string_view name) const;

    /// The boxes of a level.
    TextBox& box(std::string_view name, Level level) const { return box(withSuffix(name, level)); }
    Option& option(std::string_view name, Level level) const { return option(withSuffix(name, level)); }

    /// Selects an option as if it had been pressed.
    void select(Option& option) const;

    /// Reads a problem file item by item into the controls, each telling of its change; what has been filled
    /// when the file ends too soon stays. The demand option isn't in the file.
    void fill(ItemReader& reader) const;

    /// The problem as it stands, numbers by `val`.
    Problem take() const;

    /// A problem with its choices alone.
    Problem takeChoices() const;

  private:
    friend class ItemsFilled;
    friend class ItemsTaken;

    template <class Items>
    Problem taken() const;

    static std::string withSuffix(std::string_view name, Level level);

    std::map<std::string, TextBox*, std::less<>> boxes_;
    std::map<std::string, Option*, std::less<>> options_;
    DataGrid* indexGrid_ = nullptr;
    DataGrid* demandGrid_ = nullptr;
};

/// True of the rows that hold values and take keys; the others hold the numbers of months or days.
bool isValueRow(int row);

} // namespace vantore::scsim
