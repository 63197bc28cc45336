#include "simulator/SCSIM/channel_controls.h"

#include <array>

#include "shell/base/number_text.h"

namespace vantore::scsim {

namespace {

constexpr int monthsInRow = 3;
constexpr int indexRows = 9;
constexpr int demandRows = 25;

/// A cell of one of the grids.
struct Place {
    int row, col;
};

Place indexPlace(int month) {
    return {2 * ((month - 1) / monthsInRow) + 2, (month - 1) % monthsInRow + 1};
}

Place demandPlace(int day) {
    return {2 * ((day - 1) / daysPerMonth) + 2, (day - 1) % daysPerMonth + 1};
}

void captionRows(DataGrid& grid, const std::string& numbers, const std::string& values) {
    for (int row = 1; row < grid.rows(); ++row) grid.setCell(row, 0, isValueRow(row) ? values : numbers);
}

} // namespace

bool isValueRow(int row) {
    return row > 0 && row % 2 == 0;
}

/// Puts each item of a file into its control as soon as it is read; the demands of the days all together.
class ItemsFilled {
  public:
    ItemsFilled(const ChannelControls& controls, ItemReader& reader) : controls_(controls), reader_(reader) {}

    void text(std::string_view name, const std::string&) {
        controls_.box(name).setText(reader_.readString());
    }
    void number(std::string_view name, double) {
        controls_.box(name).setText(defaultText(reader_.readNumber()));
    }
    void seasonalIndex(int month, double) {
        const auto [row, col] = indexPlace(month);
        controls_.indexGrid_->setCell(row, col, defaultText(reader_.readNumber()));
    }
    void dayDemand(int day, double) {
        demands_(day) = defaultText(reader_.readNumber());
        if (day < daysPerYear) return;
        for (int each = 1; each <= daysPerYear; ++each) {
            const auto [row, col] = demandPlace(each);
            controls_.demandGrid_->setCell(row, col, demands_(each));
        }
    }
    template <class Choice>
    void option(std::string_view name, Choice, Choice) {
        Option& option = controls_.option(name);
        if (reader_.readNumber() == 1)
            controls_.select(option);
        else
            option.selected = false;
    }
    template <class Choice>
    void spareOption(std::string_view, Choice, Choice) {
        reader_.readNumber();
    }
    void spareNumber(std::string_view, double) { reader_.readNumber(); }
    void endLine() {}

  private:
    const ChannelControls& controls_;
    ItemReader& reader_;
    Table<std::string, 1, daysPerYear> demands_;
};

/// Takes the choices alone: no number stands in their way.
class ChoicesTaken {
  public:
    explicit ChoicesTaken(const ChannelControls& controls) : controls_(controls) {}

    void text(std::string_view, std::string&) {}
    void number(std::string_view, double&) {}
    void seasonalIndex(int, double&) {}
    void dayDemand(int, double&) {}
    template <class Choice>
    void option(std::string_view name, Choice& group, Choice choice) {
        if (controls_.option(name).selected)
            group = choice;
        else if (group == choice)
            group = Choice::None;
    }
    template <class Choice>
    void spareOption(std::string_view, Choice, Choice) {}
    void spareNumber(std::string_view, double) {}
    void endLine() {}

  protected:
    const ChannelControls& controls_;
};

class ItemsTaken : public ChoicesTaken {
  public:
    using ChoicesTaken::ChoicesTaken;

    void text(std::string_view name, std::string& value) { value = controls_.box(name).text(); }
    void number(std::string_view name, double& value) { value = val(controls_.box(name).text()); }
    void seasonalIndex(int month, double& value) {
        const auto [row, col] = indexPlace(month);
        value = val(controls_.indexGrid_->cell(row, col));
    }
    void dayDemand(int day, double& value) {
        const auto [row, col] = demandPlace(day);
        value = val(controls_.demandGrid_->cell(row, col));
    }
};

void ChannelControls::setIndexGrid(DataGrid& grid) {
    indexGrid_ = &grid;
    grid.setRows(indexRows);
    grid.setCols(monthsInRow + 1);
    captionRows(grid, "Month", "Index");
    for (int month = 1; month <= monthsPerYear; ++month) {
        const auto [row, col] = indexPlace(month);
        grid.setCell(row - 1, col, std::to_string(month));
    }
}

void ChannelControls::setDemandGrid(DataGrid& grid) {
    demandGrid_ = &grid;
    grid.setRows(demandRows);
    grid.setCols(daysPerMonth + 1);
    captionRows(grid, "Mon.", "Demand");
    for (int day = 1; day <= daysPerYear; ++day) {
        const auto [row, col] = demandPlace(day);
        grid.setCell(row - 1, col, std::to_string(col));
    }
}

std::string ChannelControls::withSuffix(std::string_view name, Level level) {
    return std::string(name) + suffixOf(level);
}

TextBox& ChannelControls::box(std::string_view name) const {
    const auto found = boxes_.find(name);
    if (found == boxes_.end()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return *found->second;
}

Option& ChannelControls::option(std::string_view name) const {
    const auto found = options_.find(name);
    if (found == options_.end()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return *found->second;
}

void ChannelControls::select(Option& option) const {
    for (const auto& [name, other] : options_)
        if (other->rivals(option)) other->selected = false;
    option.selected = true;
    if (option.onPress) option.onPress();
}

void ChannelControls::fill(ItemReader& reader) const {
    Problem order;
    ItemsFilled items(*this, reader);
    passItems(order, items);
}

Problem ChannelControls::take() const {
    return taken<ItemsTaken>();
}

Problem ChannelControls::takeChoices() const {
    return taken<ChoicesTaken>();
}

template <class Items>
Problem ChannelControls::taken() const {
    Problem problem;
    Items items(*this);
    passItems(problem, items);
    if (option("optSpecDem").selected) problem.demandSource = DemandSource::Specified;
    return problem;
}

} // namespace vantore::scsim
