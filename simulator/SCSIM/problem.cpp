#include "simulator/SCSIM/problem.h"

#include <algorithm>

namespace vantore::scsim {

namespace {

constexpr std::array<Limit, 28> limits = {{
    {"DemText", 1, ""},
    {"SDText", 0, ""},
    {"GroText", 0, ""},
    {"SpecGroText", 0, ""},
    {"txtAvgFillTimeR", 1, "Customer order fill time must be at least 1 day."},
    {"txtAvgFillTimeD", 1, "Retailer order fill time must be at least 1 day."},
    {"txtAvgFillTimeW", 1, "Distributor order fill time must be at least 1 day."},
    {"txtFillTimeSDR", 0, ""},
    {"txtFillTimeSDD", 0, ""},
    {"txtFillTimeSDW", 0, ""},
    {"txtServLvlR", 50, ""},
    {"txtServLvlD", 50, ""},
    {"txtServLvlW", 50, ""},
    {"txtSmConsR", 0, ""},
    {"txtSmConsD", 0, ""},
    {"txtSmConsW", 0, ""},
    {"txtNoPeriodsR", 1, ""},
    {"txtNoPeriodsD", 1, ""},
    {"txtNoPeriodsW", 1, ""},
    {"txtForFreqR", 1, ""},
    {"txtForFreqD", 1, ""},
    {"txtForFreqW", 1, ""},
    {"txtLotSize", 1, ""},
    {"txtAvgProdTimeP", 1, "Production time must be at least 1 day."},
    {"txtProdTimeSDP", 0, ""},
    {"txtAvgTrnsTimeDR", 1, "Transit time must be at least 1 day."},
    {"txtAvgTrnsTimeWD", 1, "Transit time must be at least 1 day."},
    {"txtAvgTrnsTimeFW", 1, "Transit time must be at least 1 day."},
}};

/// A flag of 1 selects its choice; any other clears it where it was selected.
class ItemsRead {
  public:
    explicit ItemsRead(ItemReader& reader) : reader_(reader) {}

    void text(std::string_view, std::string& value) { value = reader_.readString(); }
    void number(std::string_view, double& value) { value = reader_.readNumber(); }
    void seasonalIndex(int, double& value) { value = reader_.readNumber(); }
    void dayDemand(int, double& value) { value = reader_.readNumber(); }

    template <class Choice>
    void option(std::string_view, Choice& group, Choice choice) {
        if (reader_.readNumber() == 1)
            group = choice;
        else if (group == choice)
            group = Choice::None;
    }

    template <class Choice>
    void spareOption(std::string_view, const Choice&, Choice) {
        reader_.readNumber();
    }
    void spareNumber(std::string_view, double) { reader_.readNumber(); }

    void endLine() {}

  private:
    ItemReader& reader_;
};

class ItemsWritten {
  public:
    explicit ItemsWritten(ItemWriter& writer) : writer_(writer) {}

    void text(std::string_view, const std::string& value) { writer_.string(value); }
    void number(std::string_view, double value) { writer_.number(value); }
    void seasonalIndex(int, double value) { writer_.number(value); }
    void dayDemand(int, double value) { writer_.number(value); }

    template <class Choice>
    void option(std::string_view, Choice group, Choice choice) {
        writer_.number(group == choice ? 1 : 0);
    }
    template <class Choice>
    void spareOption(std::string_view name, Choice group, Choice choice) {
        option(name, group, choice);
    }
    void spareNumber(std::string_view name, double value) { number(name, value); }

    void endLine() { writer_.endLine(); }

  private:
    ItemWriter& writer_;
};

class ItemsLimited {
  public:
    void text(std::string_view, const std::string&) {}
    void number(std::string_view name, double& value) {
        if (const Limit* limit = limitOf(name)) value = std::max(value, limit->least);
    }
    void seasonalIndex(int, double) {}
    void dayDemand(int, double) {}

    template <class Choice>
    void option(std::string_view, Choice, Choice) {}
    template <class Choice>
    void spareOption(std::string_view, Choice, Choice) {}
    void spareNumber(std::string_view, double) {}

    void endLine() {}
};

} // namespace

char suffixOf(Level level) {
    return "RDW"[static_cast<std::size_t>(level)];
}

std::string_view laneSuffixOf(Level level) {
    return std::string_view("DRWDFW").substr(2 * static_cast<std::size_t>(level), 2);
}

const Limit* limitOf(std::string_view control) {
    const auto found = std::ranges::find(limits, control, &Limit::control);
    return found == limits.end() ? nullptr : &*found;
}

Problem withinLimits(Problem problem) {
    ItemsLimited items;
    passItems(problem, items);
    problem.years = std::clamp<double>(problem.years, leastYears, mostYears);
    return problem;
}

Problem read(ItemReader& reader) {
    Problem problem;
    ItemsRead items(reader);
    passItems(problem, items);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    ItemsWritten items(writer);
    passItems(problem, items);
}

} // namespace vantore::scsim
