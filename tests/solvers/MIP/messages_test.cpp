#include "solvers/MIP/messages.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace vantore::mip::tests {
namespace {

TEST(Messages, ArriveAsTheyWereSent) {
    const auto found = std::get<FoundValues>(decoded(encoded(FoundValues{{Rational(-1, 3), 0, 7}})));
    EXPECT_EQ(found.values, (std::vector<Rational>{Rational(-1, 3), 0, 7}));
    const auto progress =
        std::get<SearchProgress>(decoded(encoded(SearchProgress{12, 3456789012LL, Rational(5, 2)})));
    EXPECT_EQ(progress.nodes, 12);
    EXPECT_EQ(progress.iterations, 3456789012LL);
    EXPECT_EQ(progress.bound, Rational(5, 2));
    EXPECT_FALSE(std::get<SearchProgress>(decoded(encoded(SearchProgress{}))).bound);
    EXPECT_EQ(std::get<SearchEnd>(decoded(encoded(SearchEnd::Infeasible))), SearchEnd::Infeasible);
    EXPECT_EQ(std::get<ProofProgress>(decoded(encoded(ProofProgress{99}))).nodes, 99);
}

TEST(Messages, CarryAWholeRelaxation) {
    const Relaxation sent{.end = LinearEnd::Unbounded,
                          .objective = Rational(9, 4),
                          .values = {1, 2},
                          .reducedCosts = {3, 4},
                          .dualValues = {Rational(1, 7)},
                          .conflict = {1, 5},
                          .unlimited = {2}};
    const auto got = std::get<Relaxation>(decoded(encoded(sent)));
    EXPECT_EQ(got.end, sent.end);
    EXPECT_EQ(got.objective, sent.objective);
    EXPECT_EQ(got.values, sent.values);
    EXPECT_EQ(got.reducedCosts, sent.reducedCosts);
    EXPECT_EQ(got.dualValues, sent.dualValues);
    EXPECT_EQ(got.conflict, sent.conflict);
    EXPECT_EQ(got.unlimited, sent.unlimited);
}

TEST(Messages, AreRefusedWhenTheyAreNone) {
    EXPECT_THROW(decoded(""), std::runtime_error);
    EXPECT_THROW(decoded("7 1 2"), std::runtime_error);
    EXPECT_THROW(decoded("0 3 1 2"), std::runtime_error);
}

} // namespace
} // namespace vantore::mip::tests
