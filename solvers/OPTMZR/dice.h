#pragma once

#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace vantore::optmzr {

/// Chance, the same for the same seed with every compiler and library.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : random_(seed) {}

    /// A whole number from 0 to `count` - 1.
    int below(int count) { return static_cast<int>(random_() % static_cast<std::uint32_t>(count)); }

    template <class T>
    void shuffle(std::vector<T>& items) {
        for (std::size_t i = items.size(); i > 1; --i)
            std::swap(items[i - 1], items[static_cast<std::size_t>(below(static_cast<int>(i)))]);
    }

  private:
    std::mt19937 random_;
};

} // namespace vantore::optmzr
