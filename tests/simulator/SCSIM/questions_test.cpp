#include "simulator/SCSIM/questions.h"

#include <gtest/gtest.h>

namespace vantore::scsim {
namespace {

using Kind = ForecastQuestion::Kind;

TEST(ForecastQuestion, NamesTheLevelAndTheDay) {
    EXPECT_EQ(textOf({Level::Retailer, Kind::Initial, -359}),
              "Forecast of daily demand in units to initialize simulation.");
    EXPECT_EQ(textOf({Level::Distributor, Kind::Initial, -359}),
              "Forecast of distributor average daily demand in units to initialize simulation.");
    EXPECT_EQ(textOf({Level::Warehouse, Kind::Initial, -359}),
              "Forecast of warehouse average daily demand in units to initialize simulation.");
    EXPECT_EQ(textOf({Level::Retailer, Kind::Period, 181}),
              "Forecast of average daily demand in units at day  181 into simulation");
    EXPECT_EQ(textOf({Level::Distributor, Kind::Period, -179}),
              "Forecast of distributor average daily demand in units at day -179 into simulation");
    EXPECT_EQ(textOf({Level::Warehouse, Kind::Period, 1}),
              "Forecast of warehouse average daily demand in units at day  1 into simulation");
    EXPECT_EQ(textOf({Level::Retailer, Kind::Constant, -359}),
              "Constant forecast of daily demand on retailer in units throughout simulation.");
    EXPECT_EQ(textOf({Level::Distributor, Kind::Constant, -359}),
              "Constant forecast of average daily demand on distributor in units throughout simulation.");
    EXPECT_EQ(textOf({Level::Warehouse, Kind::Constant, -359}),
              "Constant forecast of average daily demand on warehouse in units throughout simulation.");
}

TEST(ForecastQuestion, HasATitleOnlyDuringTheRun) {
    EXPECT_EQ(titleOf({Level::Retailer, Kind::Initial, -359}), "");
    EXPECT_EQ(titleOf({Level::Retailer, Kind::Constant, -359}), "");
    EXPECT_EQ(titleOf({Level::Retailer, Kind::Period, 1}), "Specified daily forecast");
}

std::string specifiedText(const std::string& whose) {
    return "Long computational times are being encountered to build a reasonable order size.  To reduce the "
           "computational time, respecify the " +
           whose +
           " data inputs, especially as to \r\n\r\n(1) the demand standard deviation,\r\n(2) the in-stock "
           "probability,\r\n(3) the choice of the inventory control method, and\r\n(4) the specified "
           "inventory "
           "control values.\r\nDo you wish to continue computing for a while longer?";
}

TEST(OrdersQuestion, SpeaksOfTheRetailerForTheWarehouseTooWhereValuesAreSpecified) {
    EXPECT_EQ(textOf({Level::Retailer, Parameters::Specified, 1, 2}), specifiedText("Retailer's"));
    EXPECT_EQ(textOf({Level::Distributor, Parameters::Specified, 1, 2}), specifiedText("Distributor's"));
    EXPECT_EQ(textOf({Level::Warehouse, Parameters::Specified, 1, 2}), specifiedText("Retailer's"));
}

TEST(OrdersQuestion, TellsCalculatedValues) {
    const auto text = [](const std::string& whose) {
        return "The reorder point at 1,234,567 is so high and the optimal order quantity so low at 3 that "
               "long "
               "computational times are being encountered to build a reasonable order size.  To reduce the "
               "computational time, respecify the " +
               whose +
               " data inputs, especially as to \r\n\r\n(1) the demand standard deviation,\r\n(2) the "
               "in-stock "
               "probability, and\r\n(3) the choice of the inventory control method.\r\nDo you wish to "
               "continue "
               "computing for a while longer?";
    };
    EXPECT_EQ(textOf({Level::Retailer, Parameters::Calculated, 1234567, 2.5}), text("Retailer's"));
    EXPECT_EQ(textOf({Level::Distributor, Parameters::Calculated, 1234567, 2.5}), text("Distributor's"));
    EXPECT_EQ(textOf({Level::Warehouse, Parameters::Calculated, 1234567, 2.5}), text("Warehouse's"));
}

} // namespace
} // namespace vantore::scsim
