#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "mathprog/LNPROG/method.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore::lnprog {
namespace {

std::vector<std::string> words(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> result;
    for (std::string word; stream >> word;) result.push_back(word);
    return result;
}

/// Reads a problem in MPS form, of constraints and nonnegative variables alone, as the method's own record.
class MpsReader {
  public:
    explicit MpsReader(const std::filesystem::path& path) {
        std::string section;
        for (const std::string& line : readLines(path)) {
            if (line.empty() || line.starts_with('*')) continue;
            const std::vector<std::string> items = words(line);
            if (!line.starts_with(' ')) {
                section = items.at(0);
            } else if (section == "ROWS") {
                addRow(items.at(0), items.at(1));
            } else {
                addValues(section, items);
            }
        }
        putObjective();
    }

    Problem problem;

  private:
    void addRow(const std::string& type, const std::string& name) {
        if (type == "N") {
            objective_ = name;
            return;
        }
        const std::map<std::string, std::string> relations = {{"L", "<"}, {"E", "="}, {"G", ">"}};
        rows_[name] = ++problem.constraints;
        problem.rows(problem.constraints).relation = relations.at(type);
    }

    /// A column's or right-hand side's name, then pairs of a row and a value.
    void addValues(const std::string& section, const std::vector<std::string>& items) {
        for (std::size_t at = 1; at + 1 < items.size(); at += 2) {
            const std::string& row = items.at(at);
            const double value = numberFrom(items.at(at + 1));
            if (section == "RHS") {
                problem.rows(rows_.at(row)).rightSide = value;
            } else if (section == "COLUMNS" && row == objective_) {
                costs_[variable(items.front())] = value;
            } else if (section == "COLUMNS") {
                problem.coefficients(rows_.at(row), variable(items.front())) = value;
            } else {
                throw std::runtime_error("a section that the method has no place for: " + section);
            }
        }
    }

    int variable(const std::string& name) {
        const auto [place, isNew] = columns_.try_emplace(name, problem.variables + 1);
        if (isNew) ++problem.variables;
        return place->second;
    }

    void putObjective() {
        for (const auto& [variable, cost] : costs_)
            problem.coefficients(problem.objectiveRow(), variable) = cost;
    }

    std::string objective_;
    std::map<std::string, int> rows_, columns_;
    std::map<int, double> costs_;
};

TEST(NetlibProblems, AfiroReachesItsPublishedOptimum) {
    const MpsReader reader(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "tests/data/netlib/afiro.mps");
    ASSERT_EQ(reader.problem.constraints, 27);
    ASSERT_EQ(reader.problem.variables, 32);
    Simplex simplex;
    ASSERT_TRUE(std::holds_alternative<Optimal>(solve(simplex, reader.problem)));
    constexpr double published = -4.6475314286E+02; // Netlib LP collection, readme
    EXPECT_NEAR(-simplex.tableau(simplex.objectiveRow(), 1) / published, 1, 1E-6);
}

} // namespace
} // namespace vantore::lnprog
