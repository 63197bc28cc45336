#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace vantore::mip {

/// The branch that led to a node: on which column, which way, the fraction that it had and the cost before.
struct Branching {
    std::size_t column = 0;
    bool up = false;
    double fraction = 0;
    double cost = 0;
};

/// What rounding a variable has cost so far, for choosing what to branch on.
/// Source: Bénichou and others, "Experiments in mixed-integer linear programming" (1971).
class PseudoCosts {
  public:
    explicit PseudoCosts(std::size_t columns) : means_(columns) {}

    void learn(const Branching& branching, double cost) {
        const double distance = branching.up ? 1 - branching.fraction : branching.fraction;
        const double rate = std::max(cost - branching.cost, 0.0) / distance;
        means_[branching.column][branching.up ? 1 : 0].add(rate);
        overall_.add(rate);
    }

    /// How much a branch on the column promises; the higher the better.
    double score(std::size_t column, double fraction) const {
        constexpr double least = 1E-06;
        const double down = rate(column, 0) * fraction;
        const double up = rate(column, 1) * (1 - fraction);
        return std::max(down, least) * std::max(up, least);
    }

  private:
    struct Mean {
        double sum = 0;
        long count = 0;

        void add(double value) {
            sum += value;
            ++count;
        }
        double value() const { return count == 0 ? 1 : sum / static_cast<double>(count); }
    };

    double rate(std::size_t column, std::size_t way) const {
        const Mean& mean = means_[column].at(way);
        return mean.count == 0 ? overall_.value() : mean.value();
    }

    std::vector<std::array<Mean, 2>> means_;
    Mean overall_;
};

} // namespace vantore::mip
