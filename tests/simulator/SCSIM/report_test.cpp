#include "simulator/SCSIM/report.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

using Lines = std::vector<std::string>;

/// Two years of the same day, so that each figure can be worked out by hand; prices and costs are small whole
/// numbers.
class ReportTest : public testing::Test {
  protected:
    ReportTest() {
        problem.price = 5;
        for (const Level level : allLevels) {
            const double k = 1 + static_cast<double>(level);
            LevelData& data = problem.levels(level);
            data.itemValue = 10;
            data.carryingCost = 20;
            data.orderProcessingCost = 4 * k;
            data.orderFillingCost = .5;
            data.backOrderCost = k;
            problem.lanes(level).cost = k / 4;
            LevelDays& at = days.levels(level);
            at.salesForecast.fill(9.75); // counted as 9
            at.demandDue.fill(10 * k);
            at.receipts.fill(8 * k);
            at.onHand.fill(100.9);
            at.backOrders.fill(1.5); // counted as 1
            at.onOrder.fill(2000);
            at.orderCount.fill(2);
            at.stockOut.fill(3);
        }
        days.customerDemand.fill(11);
        days.production.fill(7);
        problem.factory.productionCost = 2;
        problem.factory.purchaseCost = 1.25;
        problem.levels(Level::Distributor).forecast = ForecastMethod::MovingAverage;
        problem.levels(Level::Distributor).policy = Policy::PeriodicReview;
        problem.levels(Level::Warehouse).forecast = ForecastMethod::Specified;
        problem.levels(Level::Warehouse).policy = Policy::StockToDemand;
    }

    Lines report(Subject subject, double first = 1, double last = 2) {
        return reportOf(problem, days, subject, {first, last}).lines();
    }

    Problem problem;
    Days days;
};

TEST_F(ReportTest, OfTheRetailer) {
    EXPECT_EQ(report(Subject::Retailer),
              (Lines{"* RETAILER REPORT FOR SIMULATED YEARS 1 THROUGH 2",
                     " Forecasting method: Exponential smoothing",
                     " Inventory control method: Reorder point",
                     "",
                     "*           Yearly       Simulated",
                     "*          average          period      PERFORMANCE STATISTICS",
                     "            3,960           7,920      Demand, units",
                     "            3,240           6,480      Sales Forecast, units",
                     "            3,600           7,200      Retailer sales to customers, units",
                     "           100.00                      Average inventory on hand, units",
                     "            36.00                      Inventory turnover ratio",
                     "                1                      Daily back orders, units",
                     "            90.00%                     Average demand filled on request",
                     "            1,080           2,160      Back order occurrences",
                     "            2,000                      Daily quantity on order, units",
                     "              720           1,440      Number of orders placed",
                     "*                                       FINANCIAL PERFORMANCE",
                     "       $18,000.00         $36,000      Retailer sales",
                     "         2,880.00           5,760      Cost to process distributor orders",
                     "         1,800.00           3,600      Cost for handling customer orders",
                     "           200.00             400      Cost for carrying inventory",
                     "         1,080.00           2,160      Cost for back orders",
                     "         5,960.00          11,920      Total cost",
                     "       $12,040.00         $24,080      Profit contribution"}));
}

TEST_F(ReportTest, OfTheDistributor) {
    EXPECT_EQ(report(Subject::Distributor, 2, 2),
              (Lines{"* DISTRIBUTOR REPORT FOR SIMULATED YEAR 2",
                     " Forecasting method: Moving average",
                     " Inventory control method: Periodic review",
                     "",
                     "*           Yearly       Simulated",
                     "*          average          period      PERFORMANCE STATISTICS",
                     "            3,240           3,240      Sales Forecast, units",
                     "            7,200           7,200      Distributor sales to retailer, units",
                     "           100.00                      Average inventory on hand, units",
                     "            72.00                      Inventory turnover ratio",
                     "                1                      Daily back orders, units",
                     "            95.00%                     Average demand filled on request",
                     "            1,080           1,080      Back order occurrences",
                     "            2,000                      Daily quantity on order, units",
                     "              720             720      Number of orders placed",
                     "*                                       FINANCIAL PERFORMANCE",
                     "         5,760.00           5,760      Cost to process warehouse orders ",
                     "         3,600.00           3,600      Cost for handling retailer orders",
                     "           200.00             200      Cost for carrying inventory",
                     "         2,160.00           2,160      Cost for back orders",
                     "           720.00             720      Cost for transport to retailer",
                     "       $12,440.00         $12,440      Total cost"}));
}

TEST_F(ReportTest, OfTheWarehouse) {
    EXPECT_EQ(report(Subject::Warehouse),
              (Lines{"* WAREHOUSE REPORT FOR SIMULATED YEARS 1 TO 2",
                     " Forecasting method: Specified forecast",
                     " Inventory control method: Stock-to-demand",
                     "",
                     "*           Yearly       Simulated",
                     "*          average          period      PERFORMANCE STATISTICS",
                     "            3,240           6,480      Sales Forecast, units",
                     "           10,800          21,600      Warehouse sales to distributor, units",
                     "           100.00                      Average inventory on hand, units",
                     "           108.00                      Inventory turnover ratio",
                     "             1.00                      Daily back orders, units",
                     "            96.67%                     Average demand filled on request",
                     "         1,080.00           2,160      Back order occurrences",
                     "            2,000                      Daily quantity on order, units",
                     "              720           1,440      Number of orders placed",
                     "*                                       FINANCIAL PERFORMANCE",
                     "         8,640.00          17,280      Cost to process factory orders ",
                     "         5,400.00          10,800      Cost for handling distributor orders",
                     "           200.00             400      Cost for carrying inventory",
                     "         3,240.00           6,480      Cost for back orders",
                     "         2,880.00           5,760      Cost for transport to distributor",
                     "       $20,360.00         $40,720      Total cost"}));
}

TEST_F(ReportTest, OfTheFactory) {
    EXPECT_EQ(report(Subject::Factory),
              (Lines{"* FACTORY REPORT FOR SIMULATED YEARS 1 TO 2", "*           Yearly       Simulated",
                     "*          average          period      PERFORMANCE STATISTICS",
                     "            2,520           5,040      Factory sales to warehouse, units",
                     "*                                       FINANCIAL PERFORMANCE",
                     "         3,150.00           6,300      Cost of purchased materials",
                     "         5,040.00          10,080      Cost of production",
                     "         6,480.00          12,960      Cost for transport to warehouse",
                     "       $14,670.00         $29,340      Total cost"}));
}

TEST_F(ReportTest, OfTheChannel) {
    EXPECT_EQ(
        report(Subject::Channel),
        (Lines{"* SUPPLY CHANNEL REPORT FOR SIMULATED YEARS 1 TO 2", "*           Yearly       Simulated",
               "*          average          period      FINANCIAL PERFORMANCE",
               "        18,000.00          36,000      Revenue",
               "         3,150.00           6,300      Cost of purchased goods",
               "        14,850.00          29,700      Gross margin", "",
               "         5,040.00          10,080      Production cost", "",
               "                                       Transportation costs:",
               "           720.00           1,440        Distributor to retailer",
               "         2,880.00           5,760        Warehouse to distributor",
               "         6,480.00          12,960        Factory to warehouse", "",
               "                                       Sales order handling cost for:",
               "         1,800.00           3,600        Customer orders",
               "         3,600.00           7,200        Retailer orders",
               "         5,400.00          10,800        Distributor orders", "",
               "                                       Order processing cost for:",
               "         2,880.00           5,760        Orders to distributor",
               "         5,760.00          11,520        Orders to warehouses",
               "         8,640.00          17,280        Orders to factory", "",
               "                                       Inventory costs",
               "           200.00             400        Retailer",
               "           200.00             400        Distributor",
               "           200.00             400        Warehouse", "",
               "                                       Back order costs",
               "         1,080.00           2,160        Retailer",
               "         2,160.00           4,320        Distributor",
               "         3,240.00           6,480        Warehouse", "",
               // 14850 - 5040 - 10080 - 10800 - 17280 - 600 - 6480
               "      ($35,430.00)       ($70,860)     Net profit contribution"}));
}

TEST_F(ReportTest, TellsAGainWithoutParentheses) {
    problem.price = 15; // 10 x 3600 more
    EXPECT_EQ(report(Subject::Channel, 1, 1).back(),
              "          $570.00            $570      Net profit contribution");
    problem.price = 14.84166666666666667; // 570 less
    EXPECT_EQ(report(Subject::Channel, 1, 1).back(),
              "             $.00              $0      Net profit contribution");
}

TEST_F(ReportTest, TellsALossOfTheRetailerWithAMinus) {
    problem.price = 1;
    EXPECT_EQ(report(Subject::Retailer, 1, 1).back(),
              "       -$2,360.00         -$2,360      Profit contribution");
}

constexpr std::size_t turnoverLine = 10;
constexpr std::size_t fillLine = 12;

/// Back orders of 5 a day are half of sales of 10, a bit more is below 50 %.
TEST_F(ReportTest, DoesntTellAFillBelowHalf) {
    LevelDays& retailer = days.levels(Level::Retailer);
    retailer.backOrders.fill(5);
    EXPECT_EQ(report(Subject::Retailer)[fillLine],
              "            50.00%                     Average demand filled on request");
    retailer.backOrders.fill(6);
    EXPECT_EQ(report(Subject::Retailer)[fillLine],
              "              <50%                     Average demand filled on request");
    days.levels(Level::Warehouse).backOrders.fill(30);
    EXPECT_EQ(report(Subject::Warehouse)[fillLine - 1],
              "              <50%                     Average demand on request");
}

TEST_F(ReportTest, TellsALevelWithoutSalesAndStock) {
    LevelDays& retailer = days.levels(Level::Retailer);
    retailer.demandDue.fill(0);
    EXPECT_EQ(report(Subject::Retailer)[turnoverLine],
              "              .00                      Inventory turnover ratio");
    EXPECT_EQ(report(Subject::Retailer)[fillLine].substr(13, 5), " <50%");
    retailer.backOrders.fill(0);
    EXPECT_EQ(report(Subject::Retailer)[fillLine].substr(0, 18), "           100.00%");
    retailer.demandDue.fill(1);
    retailer.onHand.fill(0);
    EXPECT_EQ(report(Subject::Retailer)[turnoverLine],
              "    36,000,000.00                      Inventory turnover ratio");
}

TEST_F(ReportTest, CountsTheDaysOfItsYearsAlone) {
    days.production.fill(0);
    days.production(360) = 1000;
    days.production(361) = 2;
    days.production(720) = 40;
    days.production(721) = 1000;
    EXPECT_EQ(report(Subject::Factory, 2, 2)[3].substr(0, 34), "               42              42 ");
}

TEST_F(ReportTest, EndsInAnErrorBeyondTheTablesAndTheRange) {
    EXPECT_EQ(tests::errorOf([&] { report(Subject::Factory, 1, 26); }), ErrorNumber::SubscriptOutOfRange);
    days.production.fill(1E306);
    EXPECT_EQ(tests::errorOf([&] { report(Subject::Factory); }), ErrorNumber::Overflow);
}

TEST(Span, CountsWholeDaysOfBrokenYears) {
    EXPECT_EQ((Span{1.5, 2.25}).firstDay(), 181);
    EXPECT_EQ((Span{1.5, 2.25}).lastDay(), 810);
    EXPECT_EQ((Span{1.001, 1.001}).firstDay(), 2);
    EXPECT_EQ((Span{1.001, 1.001}).lastDay(), 360);
    EXPECT_EQ((Span{1.5, 2.25}).years(), 1.75);
}

} // namespace
} // namespace vantore::scsim
