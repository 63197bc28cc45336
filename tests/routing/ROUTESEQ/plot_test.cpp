#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include "routing/ROUTESEQ/plot.h"
#include "tests/routing/ROUTESEQ/stops.h"
#include "tests/support/error_of.h"

namespace vantore::routeseq {
namespace {

using tests::stopsAt;

class Drawn {
  public:
    explicit Drawn(const StopSequencingProblem& problem, Scale scale = {}) : surface("picOut", {}, scale) {
        StopMap(problem, {}).draw(surface, scale);
    }

    bool text(double x, double y, const std::string& text) const {
        return std::ranges::any_of(surface.operations(), [&](const SurfaceOperation& operation) {
            const auto* held = std::get_if<SurfaceText>(&operation);
            return held != nullptr && held->text == text && std::abs(held->x - x) < 1 &&
                   std::abs(held->y - y) < 1;
        });
    }
    bool line(double x1, double y1, double x2, double y2) const {
        return std::ranges::any_of(surface.operations(), [&](const SurfaceOperation& operation) {
            const auto* held = std::get_if<SurfaceLine>(&operation);
            return held != nullptr && std::abs(held->x1 - x1) < 1 && std::abs(held->y1 - y1) < 1 &&
                   std::abs(held->x2 - x2) < 1 && std::abs(held->y2 - y2) < 1;
        });
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const SurfaceOperation& operation : surface.operations())
            if (const auto* held = std::get_if<SurfaceText>(&operation)) all.push_back(held->text);
        return all;
    }

    PictureSurface surface;
};

bool holds(const std::vector<std::string>& texts, const char* text) {
    return std::ranges::find(texts, text) != texts.end();
}

TEST(StopMapAxes, StandLeftOfAndBelowThePoints) {
    // 632 x 448: the points lie between 35.6 and 604.4, 30.4 and 433.6; ten ticks of 56.88 and 40.32.
    const Drawn drawn(stopsAt({0, 0}, {{632, 448}}));
    EXPECT_TRUE(drawn.line(35.6, 439.6, 604.4, 439.6));
    EXPECT_TRUE(drawn.line(29.6, 433.6, 29.6, 30.4));
    EXPECT_TRUE(drawn.line(92.48, 439.6, 92.48, 442.6));
    EXPECT_TRUE(drawn.line(26.6, 393.28, 29.6, 393.28));
    EXPECT_TRUE(drawn.text(92.48 - 5, 442.6, "63"));
    EXPECT_TRUE(drawn.text(604.4 - 7.5, 442.6, "632"));
    EXPECT_TRUE(drawn.text(35.6 - 2.5, 442.6, "0"));
    EXPECT_TRUE(drawn.text(26.6 - 15, 30.4 - 5, "448"));
    EXPECT_TRUE(drawn.text(26.6 - 10, 393.28 - 5, "45"));
}

TEST(StopMapAxes, AreLabelledInPowersOfTen) {
    const std::vector<std::string> far = Drawn(stopsAt({0, -20000}, {{1000, 99999}})).texts();
    EXPECT_TRUE(holds(far, "X coordinates in 10s"));
    EXPECT_TRUE(holds(far, "Y coordinates in 1000s") || holds(far, "Y coordinates in 100s"));
    EXPECT_TRUE(holds(far, "1000") || holds(far, "100"));
    EXPECT_TRUE(holds(Drawn(stopsAt({0, 0}, {{999, 1}})).texts(), "X coordinates in 1s"));
}

TEST(StopMapAxes, ShowAsManyPlacesAsTheirRangeRequires) {
    EXPECT_TRUE(holds(Drawn(stopsAt({0, 0}, {{5, 4}})).texts(), "4.5"));
    EXPECT_TRUE(holds(Drawn(stopsAt({0, 0}, {{.5, .4}})).texts(), ".45"));
    EXPECT_TRUE(holds(Drawn(stopsAt({0, 0}, {{10, 4}})).texts(), "9"));
    EXPECT_FALSE(holds(Drawn(stopsAt({0, 0}, {{10, 4}})).texts(), "9.0"));
}

TEST(StopMapAxes, HaveOneTickWhereThereIsNoRange) {
    const std::vector<std::string> street = Drawn(stopsAt({0, 7}, {{60, 7}, {30, 7}})).texts();
    EXPECT_EQ(std::ranges::count(street, "7.00"), 1);
    EXPECT_EQ(std::ranges::count(street, "60"), 1);
    EXPECT_FALSE(Drawn(stopsAt({3, 3}, {{3, 3}})).texts().empty());
}

TEST(StopMapHeading, CutsLongLabels) {
    StopSequencingProblem problem = stopsAt({0, 0}, {{3, 4}});
    problem.label = "An uncommonly long label of a problem";
    EXPECT_TRUE(Drawn(problem).text(8, 1, "Problem: An uncommonly long label"));
}

TEST(StopMapNumbers, StandAtEveryStopAndNotAtTheDepot) {
    const StopSequencingProblem problem = stopsAt({0, 0}, {{632, 448}, {0, 448}, {632, 0}});
    Drawn drawn(problem);
    const std::size_t before = drawn.texts().size();
    StopMap(problem, {}).drawNumbers(drawn.surface, {});
    std::vector<std::string> texts = drawn.texts();
    texts.erase(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(before));
    EXPECT_EQ(texts, (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_TRUE(std::ranges::any_of(drawn.surface.operations(), [](const SurfaceOperation& operation) {
        const auto* held = std::get_if<SurfaceText>(&operation);
        return held != nullptr && held->text == "2" && std::abs(held->x - 35.6) < 12 &&
               std::abs(held->y - 30.4) < 20;
    }));
}

TEST(StopMap, IsAsLargeAsItsScale) {
    const Drawn drawn(stopsAt({0, 0}, {{632, 448}}), {2, 1.5});
    EXPECT_TRUE(drawn.line(2 * 35.6, 1.5 * 439.6, 2 * 604.4, 1.5 * 439.6));
    const auto& circle = std::get<SurfaceCircle>(drawn.surface.operations().back());
    EXPECT_NEAR(circle.x, 2 * 604.4, 1E-9);
    EXPECT_NEAR(circle.y, 1.5 * 30.4, 1E-9);
    EXPECT_EQ(circle.radius, 6);
}

TEST(StopMap, RefusesASequenceOfOtherStops) {
    const StopSequencingProblem problem = stopsAt({0, 0}, {{3, 4}});
    PictureSurface surface("picOut", {}, {});
    EXPECT_EQ(vantore::tests::errorOf([&] {
                  StopMap(problem, {}).drawRoute(surface, {}, {" 1 2", 5});
              }),
              ErrorNumber::SubscriptOutOfRange);
}

} // namespace
} // namespace vantore::routeseq
