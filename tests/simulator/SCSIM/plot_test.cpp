#include "simulator/SCSIM/plot.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

struct Drawn {
    std::string name;
    int colour;
    double value; ///< of the first point

    bool operator==(const Drawn&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Drawn& drawn) {
    return out << drawn.name << " " << drawn.colour << " " << drawn.value;
}

std::vector<Drawn> drawnIn(const ChartData& chart) {
    std::vector<Drawn> result;
    for (const ChartSeries& series : chart.series)
        result.push_back({series.name, series.colour, series.points.front().y});
    return result;
}

using Series = std::vector<Drawn>;

class PlotTest : public testing::Test {
  protected:
    PlotTest() {
        double figure = 1;
        days.customerDemand.fill(figure++);
        for (const Level level : allLevels) {
            LevelDays& at = days.levels(level);
            for (DaySeries* series :
                 {&at.demandDue, &at.salesForecast, &at.onHand, &at.backOrders, &at.orderQuantity})
                series->fill(figure++);
        }
        days.production.fill(figure);
    }

    ChartData chart(Subject subject, Measure measure, PlotPeriod period = PlotPeriod::Daily, double first = 1,
                    double last = 1) {
        return performanceChart(days, subject, measure, period, {first, last}, withDemand);
    }

    Days days;
    bool withDemand = false;
};

TEST_F(PlotTest, ShowsSalesAndForecastOfALevel) {
    EXPECT_EQ(drawnIn(chart(Subject::Retailer, Measure::Sales)),
              (Series{{"Daily sales", 12, 2}, {"Daily sales forecast", 9, 3}}));
    EXPECT_EQ(chart(Subject::Retailer, Measure::Sales).title, "DAILY RETAILER SALES FOR YEAR 1");
    EXPECT_EQ(chart(Subject::Distributor, Measure::Sales, PlotPeriod::Monthly, 1, 3).title,
              "DAILY DISTRIBUTOR SALES FOR YEARS 1 THROUGH 3");
    EXPECT_EQ(chart(Subject::Warehouse, Measure::Sales).title, "DAILY WAREHOUSE SALES FOR YEAR 1");
    EXPECT_EQ(drawnIn(chart(Subject::Warehouse, Measure::Sales))[0].value, 12);
}

TEST_F(PlotTest, LaysTheCustomersDemandOverTheRetailersSalesAlone) {
    withDemand = true;
    EXPECT_EQ(
        drawnIn(chart(Subject::Retailer, Measure::Sales)),
        (Series{{"Daily sales", 12, 2}, {"Daily sales forecast", 9, 3}, {"Daily customer demand", 7, 1}}));
    EXPECT_EQ(chart(Subject::Distributor, Measure::Sales).series.size(), 2U);
}

TEST_F(PlotTest, ShowsAveragesOfWeeksAndMonths) {
    withDemand = true;
    const ChartData monthly = chart(Subject::Retailer, Measure::Sales, PlotPeriod::Monthly);
    EXPECT_EQ(drawnIn(monthly), (Series{{"Average daily sales", 12, 2},
                                        {"Average daily sales forecast", 9, 3},
                                        {"Average daily customer demand", 7, 1}}));
    EXPECT_EQ(monthly.x, (ChartAxis{"Simulated time, months", 1, 12}));
}

TEST_F(PlotTest, ShowsTheOtherMeasuresOfALevel) {
    EXPECT_EQ(drawnIn(chart(Subject::Distributor, Measure::Inventory)),
              (Series{{"Average inventory", 9, 9}}));
    EXPECT_EQ(chart(Subject::Distributor, Measure::Inventory).title,
              "AVERAGE DISTRIBUTOR INVENTORY FOR YEAR 1");
    EXPECT_EQ(drawnIn(chart(Subject::Distributor, Measure::BackOrders)),
              (Series{{"Daily back orders", 10, 10}}));
    EXPECT_EQ(chart(Subject::Retailer, Measure::BackOrders).title, "AVERAGE RETAILER BACK ORDERS FOR YEAR 1");
    const ChartData all = chart(Subject::Warehouse, Measure::All, PlotPeriod::Weekly);
    EXPECT_EQ(all.title, "WAREHOUSE PERFORMANCE FOR YEAR 1");
    ASSERT_EQ(all.series.size(), 3U);
    EXPECT_EQ(all.series[0].name, "Average daily sales");
    EXPECT_EQ(all.series[1].name, "Average inventory");
    EXPECT_EQ(all.series[2].name, "Average daily back orders");
    EXPECT_EQ(all.series[2].colour, 10);
}

TEST_F(PlotTest, ShowsOrdersAsBars) {
    const ChartData orders = chart(Subject::Retailer, Measure::Orders);
    EXPECT_EQ(orders.title, "RETAIL REPLENISHMENT ORDERS PLACED ON DISTRIBUTOR FOR YEAR 1");
    EXPECT_EQ(drawnIn(orders), (Series{{"", 12, 6}}));
    EXPECT_EQ(orders.series[0].kind, SeriesKind::Bars);
    EXPECT_EQ(chart(Subject::Distributor, Measure::Orders).title,
              "DISTRIBUTOR REPLENISHMENT ORDERS PLACED ON WAREHOUSE FOR YEAR 1");
    EXPECT_EQ(chart(Subject::Warehouse, Measure::Orders).title,
              "WAREHOUSE REPLENISHMENT ORDERS PLACED ON FACTORY FOR YEAR 1");
    EXPECT_EQ(chart(Subject::Retailer, Measure::Sales).series[0].kind, SeriesKind::Line);
}

TEST_F(PlotTest, ShowsTheChannel) {
    EXPECT_EQ(drawnIn(chart(Subject::Channel, Measure::Sales)),
              (Series{{"Retail", 12, 2}, {"Distributor", 9, 7}, {"Warehouse", 10, 12}, {"Factory", 0, 17}}));
    EXPECT_EQ(chart(Subject::Channel, Measure::Sales).title, "DAILY SUPPLY CHANNEL SALES FOR YEAR 1");
    EXPECT_EQ(chart(Subject::Channel, Measure::Sales, PlotPeriod::Weekly).title,
              "AVERAGE DAILY SUPPLY CHANNEL SALES FOR YEAR 1");
    EXPECT_EQ(drawnIn(chart(Subject::Channel, Measure::Inventory)),
              (Series{{"Retail", 12, 4}, {"Distributor", 9, 9}, {"Warehouse", 10, 14}}));
    EXPECT_EQ(chart(Subject::Channel, Measure::Inventory).title, "SUPPLY CHANNEL INVENTORY FOR YEAR 1");
    EXPECT_EQ(drawnIn(chart(Subject::Channel, Measure::BackOrders)),
              (Series{{"Retail", 12, 5}, {"Distributor", 9, 10}, {"Warehouse", 10, 15}}));
    EXPECT_EQ(chart(Subject::Channel, Measure::BackOrders).title, "SUPPLY CHANNEL BACK ORDERS FOR YEAR 1");
}

TEST_F(PlotTest, ShowsTheFactory) {
    EXPECT_EQ(drawnIn(chart(Subject::Factory, Measure::Sales)), (Series{{"Daily sales", 12, 17}}));
    EXPECT_EQ(chart(Subject::Factory, Measure::Sales).title, "DAILY FACTORY SALES FOR YEAR 1");
}

TEST_F(PlotTest, HasNoOrdersOfTheChannelAndNothingButSalesOfTheFactory) {
    for (const Measure measure :
         {Measure::All, Measure::Sales, Measure::Inventory, Measure::BackOrders, Measure::Orders}) {
        for (const Subject level : {Subject::Retailer, Subject::Distributor, Subject::Warehouse})
            EXPECT_TRUE(isAvailable(level, measure));
        EXPECT_EQ(isAvailable(Subject::Channel, measure),
                  measure != Measure::All && measure != Measure::Orders);
        EXPECT_EQ(isAvailable(Subject::Factory, measure), measure == Measure::Sales);
    }
    EXPECT_EQ(tests::errorOf([&] { chart(Subject::Factory, Measure::All); }),
              ErrorNumber::InvalidProcedureCall);
}

/// Days 1 to 30 of the second year stand for themselves, the others for 0.
TEST_F(PlotTest, NumbersItsPointsThroughTheYears) {
    DaySeries& due = days.levels(Level::Retailer).demandDue;
    due.fill(0);
    for (int day = 1; day <= 30; ++day) due(360 + day) = day;
    const ChartData daily = chart(Subject::Retailer, Measure::Sales, PlotPeriod::Daily, 2, 2);
    ASSERT_EQ(daily.series[0].points.size(), 360U);
    EXPECT_EQ(daily.series[0].points[0], (ChartPoint{361, 1}));
    EXPECT_EQ(daily.series[0].points[359].x, 720);
    EXPECT_EQ(daily.x, (ChartAxis{"Simulated time, days", 361, 720}));
    EXPECT_EQ(daily.y, (ChartAxis{"Units", 0, 30}));
    const ChartData monthly = chart(Subject::Retailer, Measure::Sales, PlotPeriod::Monthly, 2, 3);
    ASSERT_EQ(monthly.series[0].points.size(), 24U);
    EXPECT_EQ(monthly.series[0].points[0], (ChartPoint{13, 15.5}));
    EXPECT_EQ(monthly.series[0].points[1], (ChartPoint{14, 0}));
}

/// Weeks are 6.923 days: days 1 to 7, 8 to 14, 15 to 21, 22 to 28, 29 to 35, 36 to 42, and then 43 to 48.
TEST_F(PlotTest, CutsAYearIntoFiftyTwoWeeks) {
    DaySeries& due = days.levels(Level::Retailer).demandDue;
    for (int day = 1; day <= 720; ++day) due(day) = day;
    const ChartData weekly = chart(Subject::Retailer, Measure::Sales, PlotPeriod::Weekly, 1, 2);
    const std::vector<ChartPoint>& points = weekly.series[0].points;
    ASSERT_EQ(points.size(), 104U);
    EXPECT_DOUBLE_EQ(points[0].y, 28 / 6.923076923);
    EXPECT_DOUBLE_EQ(points[6].y, (43 + 44 + 45 + 46 + 47 + 48) / 6.923076923);
    double total = 0;
    for (const ChartPoint& point : points) total += point.y * 6.923076923;
    EXPECT_NEAR(total, 720 * 721 / 2.0, 1E-6); // each day belongs to one week
    EXPECT_EQ(weekly.x, (ChartAxis{"Simulated time, weeks", 1, 104}));
}

TEST_F(PlotTest, ReachesBelow0OnlyWhereAFigureDoes) {
    days.levels(Level::Retailer).salesForecast(5) = -12;
    EXPECT_EQ(chart(Subject::Retailer, Measure::Sales).y, (ChartAxis{"Units", -12, 3}));
}

class DemandPlot : public PlotTest {
  protected:
    DemandPlot() {
        problem.years = 2;
        for (int day = 1; day <= 1080; ++day) days.customerDemand(day) = day;
    }

    ChartData plot(PlotPeriod period) { return demandChart(problem, days.customerDemand, period); }

    Problem problem;
};

TEST_F(DemandPlot, SumsTheDaysOfAPointFromPoint0On) {
    const ChartData monthly = plot(PlotPeriod::Monthly);
    ASSERT_EQ(monthly.series.size(), 1U);
    const std::vector<ChartPoint>& points = monthly.series[0].points;
    ASSERT_EQ(points.size(), 26U);
    EXPECT_EQ(points[0], (ChartPoint{0, 0}));
    EXPECT_EQ(points[1], (ChartPoint{1, 465}));          // 1 + ... + 30
    EXPECT_EQ(points[25], (ChartPoint{25, 735.5 * 30})); // days 721 to 750
    EXPECT_EQ(monthly.x, (ChartAxis{"Simulated time, months", 0, 25}));
    EXPECT_EQ(monthly.y, (ChartAxis{"Units", 0, 735.5 * 30}));
    EXPECT_EQ(monthly.series[0].colour, 12);
}

TEST_F(DemandPlot, TakesWeeksOfSevenDays) {
    const std::vector<ChartPoint> points = plot(PlotPeriod::Weekly).series[0].points;
    ASSERT_EQ(points.size(), 104U); // Int(720 / 7 + 1) = 103 and point 0
    EXPECT_EQ(points[2], (ChartPoint{2, 77}));
    EXPECT_EQ(plot(PlotPeriod::Daily).series[0].points.size(), 722U);
    EXPECT_EQ(plot(PlotPeriod::Daily).series[0].points[721], (ChartPoint{721, 721}));
}

TEST_F(DemandPlot, NamesTheDemandAndThePeriod) {
    EXPECT_EQ(plot(PlotPeriod::Daily).title, "STATISTICALLY GENERATED DAILY DEMAND PATTERN");
    EXPECT_EQ(plot(PlotPeriod::Weekly).title, "STATISTICALLY GENERATED WEEKLY DEMAND PATTERN");
    problem.demandSource = DemandSource::Specified;
    EXPECT_EQ(plot(PlotPeriod::Monthly).title, "SPECIFIED MONTHLY DEMAND PATTERN");
}

TEST(PlotPeriod, IsNamedByItsNumber) {
    EXPECT_EQ(periodOf("1"), PlotPeriod::Daily);
    EXPECT_EQ(periodOf("2"), PlotPeriod::Weekly);
    EXPECT_EQ(periodOf("3"), PlotPeriod::Monthly);
    for (const char* wrong : {"0", "4", "1.5", "month", "-1"}) EXPECT_EQ(periodOf(wrong), std::nullopt);
}

} // namespace
} // namespace vantore::scsim
