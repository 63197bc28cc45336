#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "solvers/WARELO/evaluate.h"
#include "tests/solvers/WARELO/cases.h"
#include "tests/solvers/WARELO/yardstick.h"

namespace vantore::warelo {
namespace {

using Lines = std::vector<std::string>;

/// The first number behind a caption at the head of a line; NaN where there is none.
double figureOf(const Lines& report, const std::string& caption) {
    const auto line = std::ranges::find_if(
        report, [&](const std::string& text) { return text.starts_with(" " + caption + "  "); });
    if (line == report.end()) return std::numeric_limits<double>::quiet_NaN();
    return val(replaced(line->substr(caption.size() + 1), ",", ""));
}

/// The warehouse of each customer by the lines of TEMP.DAT, which come in the customers' order.
std::vector<int> warehouseOf(const Case& problem, const std::vector<wareloca::Flow>& flows) {
    std::vector<int> rows(static_cast<std::size_t>(problem.customerCount) + 1);
    std::size_t next = 0;
    for (int c = 1; c <= problem.customerCount; ++c)
        if (problem.customers(c).sales > 0) rows[static_cast<std::size_t>(c)] = flows.at(next++).warehouse;
    EXPECT_EQ(next, flows.size());
    return rows;
}

constexpr std::array captions = {"Production",
                                 "Plant-warehouse transportation",
                                 "Warehouse-customer transportation",
                                 "Local delivery",
                                 "Handling",
                                 "Stock order processing",
                                 "Customer order processing",
                                 "Storage",
                                 "Capital tied up in inventory"};

void expectAgreement(const Case& problem) {
    const Evaluation evaluation = evaluate(problem);
    const Lines& report = evaluation.report.lines();
    const tests::PlainPlan plain = tests::plainPlan(problem, warehouseOf(problem, evaluation.flows));
    const auto near = [&](const std::string& caption, double expected) {
        EXPECT_NEAR(figureOf(report, caption), expected, .51 + 1E-6 * std::abs(expected)) << caption;
    };
    // Where two ways of supply cost the same, production and transport share the sum in another way.
    near("Total", plain.total);
    for (std::size_t i = 2; i < captions.size(); ++i) near(captions[i], plain.costs[i]);
    EXPECT_NEAR(figureOf(report, captions[0]) + figureOf(report, captions[1]),
                plain.costs[0] + plain.costs[1], 1.1 + 1E-6 * plain.total);
    near("Sales within it, cwt./yr.", plain.salesWithin);
    EXPECT_EQ(figureOf(report, "Customers within it"), plain.customersWithin);
    EXPECT_NEAR(figureOf(report, "Average distance of the sales, miles"), plain.averageMiles, .051);
    EXPECT_NEAR(figureOf(report, "Longest distance, miles"), plain.longestMiles, .051);
}

TEST(WareloReport, AgreesWithAPlainProgram) {
    std::mt19937 random(8);
    for (int i = 0; i < 1000; ++i) {
        expectAgreement(tests::randomCase(random, {.plants = 6, .warehouses = 5, .customers = 10}));
        if (testing::Test::HasFailure()) FAIL() << "problem " << i;
    }
}

TEST(WareloReport, AgreesWithAPlainProgramAtTheLimits) {
    std::mt19937 random(9);
    for (int i = 0; i < 3; ++i) expectAgreement(tests::randomCase(random, {}));
    expectAgreement(tests::baseCase());
}

/// A plant, a warehouse with it and a customer a hundred cwt. away.
Case smallCase() {
    Case problem = tests::freeCase();
    problem.plants(1) = {
        .x = 40, .y = 80, .location = "Ashby", .capacity = 2000, .productionCost = 20, .selection = mark};
    problem.warehouses(1) = {.x = 40,
                             .y = 80,
                             .location = "Ashby",
                             .storage = .06,
                             .handling = .5,
                             .stockOrderProcessing = 18,
                             .stockOrderSize = 400,
                             .customerOrderProcessing = 1.5,
                             .customerOrderSize = 10,
                             .localDelivery = 2,
                             .selection = mark};
    problem.customerCount = 2;
    problem.customers(1) = {.region = 1, .x = 40, .y = 80, .sales = 600, .location = "Ashby"};
    problem.customers(2) = {
        .region = 2, .x = 45, .y = 80, .sales = 400, .location = "Überlingen an der Straße"};
    problem.plantWarehouseFixed = .92;
    problem.plantWarehouseVariable = .002;
    problem.warehouseCustomerFixed = 5.45;
    problem.warehouseCustomerVariable = .0037;
    problem.capitalCost = 10;
    problem.productValue = 25;
    problem.inventoryConstant = 3;
    problem.inventoryExponent = .5;
    problem.desiredDistance = 300;
    return problem;
}

TEST(WareloReport, StandsAsALogisticsManagerReadsIt) {
    // 345.47 miles: 400 x (5.45 + .0037 x 345.47) = 2,691.30; inventory 3 x 31.62 = 94.87 cwt. worth
    // 2,371.71.
    const Lines report = evaluate(smallCase()).report.lines();
    const Lines expected = {
        " EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK",
        "",
        " Plants selected                1, used 1",
        " Warehouses selected            1, used 1",
        " Customers served               2",
        " Sales, cwt./yr.            1,000",
        "",
        " COST OF THE NETWORK",
        " Kind of cost                                  $/yr.        $/cwt.       %",
        " Production                                   20,000         20.00    77.3",
        " Plant-warehouse transportation                  920          0.92     3.6",
        " Warehouse-customer transportation             2,691          2.69    10.4",
        " Local delivery                                1,200          1.20     4.6",
        " Handling                                        500          0.50     1.9",
        " Stock order processing                           45          0.05     0.2",
        " Customer order processing                       150          0.15     0.6",
        " Storage                                         142          0.14     0.5",
        " Capital tied up in inventory                    237          0.24     0.9",
        " Total                                        25,886         25.89   100.0",
    };
    Lines head(report.begin(), report.begin() + static_cast<long>(expected.size()));
    EXPECT_EQ(head, expected);
}

TEST(WareloReport, TellsServiceTablesAndFarCustomers) {
    const Lines report = evaluate(smallCase()).report.lines();
    const auto service = std::ranges::find(report, " CUSTOMER SERVICE");
    ASSERT_NE(service, report.end());
    const Lines rest(service, report.end());
    const Lines expected = {
        " CUSTOMER SERVICE",
        " Desired distance from the warehouse, miles      300",
        " Sales within it, cwt./yr.                       600  60.0 %",
        " Customers within it                               1  of 2",
        " Average distance of the sales, miles          138.2",
        " Longest distance, miles                       345.5",
        "   Überlingen an der Straße, served from Ashby",
        "",
        " PLANTS SELECTED",
        " No. Plant                       Capacity  Production    Used   Production",
        "                                 cwt./yr.    cwt./yr.       %  cost, $/yr.",
        "   1 Ashby                          2,000       1,000    50.0       20,000",
        "",
        " WAREHOUSES USED",
        " No. Warehouse            Throughput Custo- Inventory",
        "                            cwt./yr.   mers      cwt.  Supplied from (cwt./yr.)",
        "   1 Ashby                     1,000      2        95  Ashby",
        "",
        " COSTS BY WAREHOUSE: GOODS AND TRANSPORTATION, $/yr.",
        " No. Warehouse                            Transport    Transport        Local",
        "                            Production  from plants to customers     delivery",
        "   1 Ashby                      20,000          920        2,691        1,200",
        "",
        " COSTS BY WAREHOUSE: HANDLING, ORDERS AND INVENTORY, $/yr.",
        " No. Warehouse                            Stock and      Storage   All costs,",
        "                              Handling cust. orders  and capital  both tables",
        "   1 Ashby                         500          195          379       25,886",
        "",
        " CUSTOMERS SERVED FROM BEYOND THE DESIRED DISTANCE",
        " No. Customer             Sales, cwt.   Served from               Miles",
        "   2 Überlingen an der St         400   Ashby                     345.5",
    };
    EXPECT_EQ(rest, expected);
}

TEST(WareloReport, SaysWhenNobodyIsFar) {
    Case problem = smallCase();
    problem.desiredDistance = 400;
    const Lines report = evaluate(problem).report.lines();
    EXPECT_EQ(report.back(), " None.");
    EXPECT_EQ(figureOf(report, "Customers within it"), 2);
}

TEST(WareloReport, NamesSelectedWarehousesThatStandIdle) {
    Case problem = smallCase();
    problem.warehouseCount = 2;
    problem.warehouses(2) = problem.warehouses(1);
    problem.warehouses(2).location = "Corfield";
    problem.warehouses(2).handling = 50;
    const Lines report = evaluate(problem).report.lines();
    std::string text;
    for (const std::string& line : report) text += line;
    EXPECT_NE(
        text.find(" Selected, but not used because the others serve its customers at less cost: Corfield"),
        std::string::npos)
        << text;
    EXPECT_NE(std::ranges::find(report, " Warehouses selected            2, used 1"), report.end());
}

TEST(WareloReport, ProvesASmallCaseWhole) {
    const Lines report = evaluate(smallCase()).report.lines();
    const auto total =
        std::ranges::find_if(report, [](const std::string& line) { return line.starts_with(" Total "); });
    ASSERT_GE(report.end() - total, 6);
    EXPECT_EQ(Lines(total + 1, total + 6),
              (Lines{"", " No allocation of the customers to these plants and warehouses costs less than",
                     " $25,885 a year, so that at most 0.000 % could be saved.", "", " CUSTOMER SERVICE"}));
}

TEST(WareloReport, SaysWhyThereIsNoPlan) {
    Case problem = smallCase();
    problem.plants(1).selection = "";
    const Evaluation evaluation = evaluate(problem);
    EXPECT_EQ(evaluation.report.lines(),
              (Lines{" EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK", "", " There is no plan.",
                     " No plant is selected.  Select at least one."}));
    EXPECT_TRUE(evaluation.flows.empty());
}

TEST(WareloReport, SaysThatTheTimeWasOver) {
    const Lines report = evaluate(tests::baseCase(), 0).report.lines();
    EXPECT_NE(std::ranges::find(report, " The search was stopped when its time was over."), report.end());
}

} // namespace
} // namespace vantore::warelo
