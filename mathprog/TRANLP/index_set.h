#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vantore::tranlp {

/// A set of row or column numbers from 0 to 127, in two machine words.
class IndexSet {
  public:
    void add(int index) { word(index) |= bit(index); }
    void remove(int index) { word(index) &= ~bit(index); }
    bool has(int index) const {
        return (words_[static_cast<std::size_t>(index) / wordBits] & bit(index)) != 0;
    }

    bool empty() const { return (words_[0] | words_[1]) == 0; }
    int count() const { return std::popcount(words_[0]) + std::popcount(words_[1]); }

    /// The smallest number; the set must not be empty.
    int first() const {
        return words_[0] != 0 ? std::countr_zero(words_[0])
                              : static_cast<int>(wordBits) + std::countr_zero(words_[1]);
    }

    IndexSet& operator|=(const IndexSet& other) {
        words_[0] |= other.words_[0];
        words_[1] |= other.words_[1];
        return *this;
    }
    IndexSet& operator-=(const IndexSet& other) {
        words_[0] &= ~other.words_[0];
        words_[1] &= ~other.words_[1];
        return *this;
    }
    friend IndexSet operator&(const IndexSet& a, const IndexSet& b) {
        IndexSet both;
        both.words_ = {a.words_[0] & b.words_[0], a.words_[1] & b.words_[1]};
        return both;
    }
    friend IndexSet operator-(IndexSet a, const IndexSet& b) { return a -= b; }

    /// Calls `visit` with each number, in ascending order.
    template <class Visit>
    void forEach(Visit visit) const {
        for (std::size_t k = 0; k < words_.size(); ++k)
            for (std::uint64_t rest = words_[k]; rest != 0; rest &= rest - 1)
                visit(static_cast<int>(k * wordBits) + std::countr_zero(rest));
    }

    /// As `forEach`, but ends with true at the first number for which `visit` gives true.
    template <class Visit>
    bool anyOf(Visit visit) const {
        for (std::size_t k = 0; k < words_.size(); ++k)
            for (std::uint64_t rest = words_[k]; rest != 0; rest &= rest - 1)
                if (visit(static_cast<int>(k * wordBits) + std::countr_zero(rest))) return true;
        return false;
    }

  private:
    static constexpr std::size_t wordBits = 64;

    std::uint64_t& word(int index) { return words_[static_cast<std::size_t>(index) / wordBits]; }
    static std::uint64_t bit(int index) {
        return std::uint64_t{1} << (static_cast<std::size_t>(index) % wordBits);
    }

    std::array<std::uint64_t, 2> words_{};
};

} // namespace vantore::tranlp
