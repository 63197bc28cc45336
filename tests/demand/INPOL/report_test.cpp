#include "demand/INPOL/report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantore::inpol {
namespace {

using Lines = std::vector<std::string>;

StockingPolicies policies() {
    StockingPolicies found;
    found.ropAvgInv = 132.5;
    found.ropQ = 1234567.4;
    found.reorderPoint = -12.5;
    found.ropTurnover = 39.12;
    found.ropInvestment = 1329;
    found.ropInStock = .99791;
    found.ropCosts = {46800, 5200, 1040, 9, 0, -309};
    found.prAvgInv = 140.29;
    found.prQ = 200;
    found.maxLevel = 640.29;
    found.reviewTime = .125;
    found.prTurnover = 37.06;
    found.prInvestment = 1402.94;
    found.prInStock = -.125;
    found.prCosts = {46800, 5200, 1040, 2600, 67, 419};
    return found;
}

const Lines periodicBlock = {"Periodic Review Policy",
                             " Average inventory          140",
                             " Order quantity             200",
                             " Max level                  640",
                             " Order review time          .13",
                             " Turnover ratio              37",
                             " Investment              $1,403",
                             " Demand in-stock         -12.50%",
                             "",
                             "Estimated annual costs for periodic review policy",
                             " Purchase cost          $46,800",
                             " Transport cost          $5,200",
                             " Carrying cost           $1,040",
                             " Order proc. cost        $2,600",
                             " Out-of-stk cost            $67",
                             " Safety stk cost           $419",
                             "   Total cost           $56,126"};

Lines together(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(ProductReport, ShowsBothPoliciesAndTheirCosts) {
    PrintLines page;
    printProduct(page, 1, policies(), false);
    const Lines reorderBlock = {"*                         COMPUTED STOCKING POLICIES",
                                "",
                                "* Product 1",
                                "Reorder Point Policy",
                                " Average inventory          133",
                                " Order quantity       1,234,567",
                                " Reorder point              -12",
                                " Turnover ratio              39",
                                " Investment              $1,329",
                                " Demand in-stock          99.79%",
                                "",
                                "Estimated annual costs for reorder point policy",
                                " Purchase cost          $46,800",
                                " Transport cost          $5,200",
                                " Carrying cost           $1,040",
                                " Order proc. cost           $09",
                                " Out-of-stk cost            $00",
                                " Safety stk cost          -$309",
                                "   Total cost           $52,740",
                                ""};
    EXPECT_EQ(page.lines(), together(reorderBlock, periodicBlock));
}

TEST(ProductReport, OfJointOrdersHasNoReorderPoint) {
    PrintLines page;
    printProduct(page, 12, policies(), true);
    EXPECT_EQ(page.lines(), together({"", "* Product 12"}, periodicBlock));
}

TEST(SummaryReport, ShowsCostsAndInvestment) {
    Summary summary;
    summary.ropCosts = {46800, 5200, 1040, 9, 0, -309};
    summary.prCosts = {1, 2, 3, 4, 5, 6};
    summary.ropInvestment = 1329.5;
    PrintLines page;
    printSummary(page, summary, false);
    const Lines reorder = {"",
                           "*                                SUMMARY DATA",
                           "Reorder point policy",
                           " Purchase cost          $46,800",
                           " Transport cost          $5,200",
                           " Carrying cost           $1,040",
                           " Order proc. cost            $9",
                           " Out-of-stk cost             $0",
                           " Safety stk cost          -$309",
                           "   Total cost           $52,740",
                           " Total investment        $1,330",
                           ""};
    const Lines periodic = {"Periodic review policy",          " Purchase cost               $1",
                            " Transport cost              $2", " Carrying cost               $3",
                            " Order proc. cost            $4", " Out-of-stk cost             $5",
                            " Safety stk cost             $6", "   Total cost               $21",
                            " Total investment            $0"};
    EXPECT_EQ(page.lines(), together(reorder, periodic));
    PrintLines joint;
    printSummary(joint, summary, true);
    EXPECT_EQ(joint.lines(), together({"", "*                                SUMMARY DATA"}, periodic));
}

Sensitivity table(bool joint) {
    Sensitivity sensitivity;
    sensitivity.jointlyOrdered = joint;
    sensitivity.productCount = 1;
    sensitivity.rows(1, 81) = {.ropInStock = .9905,
                               .ropQ = 200,
                               .ropAvgInv = 125.6,
                               .reorderPoint = 425.634,
                               .ropTotal = 54359,
                               .prInStock = .98,
                               .prAvgInv = 131.4,
                               .maxLevel = 1631.5,
                               .reviewTime = 2,
                               .prTotal = 54500};
    return sensitivity;
}

TEST(SensitivityReport, HasARowForEachServiceLevelFromTheSecond) {
    PrintLines page;
    printSensitivity(page, table(false), "wk");
    const Lines& lines = page.lines();
    ASSERT_EQ(lines.size(), 2 * (5 + 100u));
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
              (Lines{"", "*            Sensitivity Analysis Results For Reorder Point System", "*Product 1",
                     " Service    Service       Reorder       Reorder       Average         Total",
                     "   index   level, %      quantity         point     inventory       cost, $"}));
    EXPECT_EQ(lines[5], "     .51        .00             0             0             0             0");
    EXPECT_EQ(lines[5 + 79], "     .90      99.05           200           426           126        54,359");
    EXPECT_EQ(lines[104].substr(0, 8), "    1.00");
    EXPECT_EQ(lines[106], "*           Sensitivity Analysis Results For Periodic Review System");
    EXPECT_EQ(lines[108], " Service    Service           Max        Review       Average         Total");
    EXPECT_EQ(lines[109], "   index   level, %         level      time, wk     inventory       cost, $");
    EXPECT_EQ(lines[110 + 79], "     .90      98.00         1,632          2.00           131        54,500");
}

TEST(SensitivityReport, OfJointOrdersHasThePeriodicTableAlone) {
    PrintLines page;
    printSensitivity(page, table(true), "mo");
    ASSERT_EQ(page.lines().size(), 105u);
    EXPECT_EQ(page.lines()[1], "*           Sensitivity Analysis Results For Periodic Review System");
    EXPECT_EQ(page.lines()[4], "   index   level, %         level      time, mo     inventory       cost, $");
}

TEST(DataPrint, KeepsEveryValueAtItsPlaceBehindALongLabel) {
    Problem problem;
    problem.productCount = 1;
    Product& product = problem.products(1);
    product.demandLabel = "Hydraulic hose assembly, left-hand side";
    product.avgDemand = 12345678;
    product.sdDemand = 1.5;
    product.priceLabel = "Hose";
    product.carryingCost = .125;
    PrintLines page;
    printTables(page, problem);
    EXPECT_EQ(page.lines()[0], "");
    EXPECT_EQ(page.lines()[1], "DEMAND/LEAD TIME DATA");
    EXPECT_EQ(page.lines()[2], "Prd                          Average    Std. dev.      Average    Std. dev.");
    EXPECT_EQ(page.lines()[3], "no.  Product label            demand    of demand    lead time of lead time");
    EXPECT_EQ(page.lines()[4], "  1  Hydraulic hose assembly, left-hand side");
    EXPECT_EQ(page.lines()[5], "                          12,345,678         1.50         .000         .000");
    EXPECT_EQ(page.lines()[7], "PRICE/COST DATA");
    EXPECT_EQ(page.lines()[10],
              "  1  Hose                   .00        .00        .13        .00        .00");
}

} // namespace
} // namespace vantore::inpol
