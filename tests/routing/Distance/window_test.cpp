#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

class DistanceWindow : public testing::Test {
  protected:
    DistanceWindow() { session.play("module MILES"); }

    void type(const char* originLat, const char* originLong, const char* lat, const char* longitude) {
        session.play(std::string("type txtOrgLat ") + originLat + "\ntype txtOrgLong " + originLong +
                     "\ntype txtDestLat " + lat + "\ntype txtDestLong " + longitude);
    }
    std::string text(const std::string& name) { return session.module().find(name)->shownText(); }
    std::string tip(const std::string& name) { return session.module().find(name)->tip; }

    ModuleSession session;
};

TEST_F(DistanceWindow, HasNoFaultsAtAnyScreenSize) {
    constexpr std::array<std::pair<int, int>, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};
    for (const auto& [width, height] : screens) {
        ModuleSession sized(width, height);
        sized.play("module MILES");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
        sized.play("press optLatLng\npress optKilometers");
        EXPECT_EQ(formFaults(sized.module()), std::vector<std::string>{}) << width;
    }
}

TEST_F(DistanceWindow, NamesItsCoordinatesByTheirType) {
    EXPECT_EQ(session.play("title"), "Distance estimator\n");
    EXPECT_EQ(tip("lblOrgLat"), "");
    session.play("press optLatLng");
    EXPECT_EQ(text("lblDestLat"), "Latitude in degrees");
    EXPECT_EQ(text("lblOrgLong"), "Longitude in degrees");
    EXPECT_EQ(tip("lblOrgLat"), "West latitudes are + and East latitudes are -.");
    EXPECT_EQ(tip("lblDestLong"), "North longitudes are + and South longitudes are -.");
    session.play("press optLinear");
    EXPECT_EQ(text("lblDestLat"), "Vertical coordinate");
    EXPECT_EQ(text("lblOrgLong"), "Horizontal coordinate");
    EXPECT_EQ(tip("lblDestLong"), "");
}

TEST_F(DistanceWindow, ExplainsItsFactors) {
    EXPECT_EQ(tip("txtCircuityFactor"),
              "Multiplier to convert straight line distcance to road, rail, or street distance");
    EXPECT_EQ(tip("txtMapFactor"),
              "Multiplier to convert map coordinates to miles.  Conversion to kilometers "
              "is selectable.  Use 1 for latitudes and longitudes.");
    EXPECT_EQ(tip("optKilometers"), "Converts mileage data to kilometers");
}

TEST_F(DistanceWindow, KeepsTheTotalOnTheGridBeyondItsTwoPlaces) {
    type("0", "0", "0", ".004");
    session.play("type txtCircuityFactor 1\npress cmdCalc\npress cmdCalc");
    EXPECT_EQ(text("txtDistance"), ".00");
    EXPECT_EQ(text("txtCumulative"), ".01");
    session.play("press optMiles\npress optLinear");
    EXPECT_EQ(text("txtDistance"), ".00");
    session.play("press cmdCalc");
    EXPECT_EQ(text("txtCumulative"), ".01");
}

TEST_F(DistanceWindow, BeginsANewTotalWhenTheTypeIsTakenBack) {
    type("0", "0", "0", "10");
    session.play("press optLatLng\npress cmdCalc\nundo");
    EXPECT_EQ(text("lblOrgLat"), "Vertical coordinate");
    EXPECT_EQ(text("txtCumulative"), "");
    session.play("press cmdCalc");
    EXPECT_EQ(text("txtCumulative"), "12.00");
}

TEST_F(DistanceWindow, FollowsADimensionThatIsTakenBack) {
    session.play("press optKilometers\nundo");
    EXPECT_EQ(text("lblDistDim"), "Miles");
    EXPECT_EQ(text("lblCumDim"), "Miles");
}

TEST_F(DistanceWindow, GivesUpOnOppositePlaces) {
    session.play("press optLatLng");
    type("0", "0", "0", "10");
    session.play("press cmdCalc");
    const std::string shown = text("txtDistance");
    type(".5", "0", "-.4", "179.7");
    EXPECT_EQ(session.play("press cmdCalc"),
              "MessageBx \"DISTANCE\": \"The points are too nearly opposite each other on the globe.\"\n");
    EXPECT_EQ(text("txtDistance"), shown);
}

TEST_F(DistanceWindow, EndsAnOverflowInAMessage) {
    type("1E200", "0", "0", "0");
    EXPECT_EQ(session.play("press cmdCalc"),
              "MessageBx \"DISTANCE\": \"Overflow occurred in DISTANCE, cmdCalc.\"\n");
    EXPECT_EQ(text("txtCumulative"), "0");
}

TEST_F(DistanceWindow, PrintsItself) {
    EXPECT_EQ(session.play("press cmdPrint"), "");
    EXPECT_EQ(session.play("printer"), "picture 640x480\nend\n");
}

TEST_F(DistanceWindow, MarksACoordinateWhenItGetsTheFocus) {
    for (const char* name : {"txtOrgLat", "txtOrgLong", "txtDestLat", "txtDestLong"})
        EXPECT_TRUE(dynamic_cast<const TextBox*>(session.module().find(name))->selectsOnFocus) << name;
}

TEST_F(DistanceWindow, LeavesWithoutAQuestion) {
    EXPECT_EQ(session.play("press cmdCalc\npress cmdExit"), "");
    EXPECT_TRUE(session.closed());
}

} // namespace
} // namespace vantore::tests
