#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "mathprog/TRANLP/method.h"
#include "tests/mathprog/TRANLP/plain_labelling.h"

namespace {

using namespace vantore;

constexpr unsigned mostFuzzedPlaces = 12;

/// Takes small problems out of bytes: supplies and demands from -64 to 191, costs of very different size.
class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    unsigned next() { return at_ < size_ ? data_[at_++] : 0; }
    double units() { return static_cast<int>(next()) - 64; }
    double cost() {
        const unsigned byte = next();
        return std::ldexp(static_cast<int>(byte % 16) - 3, (static_cast<int>(byte / 16) - 8) * 9);
    }

  private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

tranlp::Problem problemFrom(Bytes bytes) {
    tranlp::Problem problem;
    problem.sources = static_cast<int>(bytes.next() % mostFuzzedPlaces);
    problem.sinks = static_cast<int>(bytes.next() % mostFuzzedPlaces);
    for (int i = 1; i <= problem.sources; ++i) problem.supply(i) = bytes.units();
    for (int j = 1; j <= problem.sinks; ++j) problem.demand(j) = bytes.units();
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j) problem.cost(i, j) = bytes.cost();
    return problem;
}

} // namespace

/// The labelling method ends, and gives what its plain loops give.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const tranlp::Problem problem = problemFrom({data, size});
    tranlp::Tableau fast = tranlp::balanced(problem);
    tranlp::Tableau plain = fast;
    tranlp::label(fast);
    tests::labelPlainly(plain, problem.sources * problem.sinks);
    for (int i = 1; i <= fast.rows; ++i)
        for (int j = 1; j <= fast.cols; ++j) {
            const bool real = i <= problem.sources && j <= problem.sinks;
            if (real && fast.alloc(i, j) != plain.alloc(i, j)) std::abort();
            if (fast.reduced(i, j) != plain.reduced(i, j)) std::abort();
        }
    return 0;
}
