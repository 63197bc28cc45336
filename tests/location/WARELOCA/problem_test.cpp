#include <gtest/gtest.h>

#include "location/WARELOCA/flows.h"
#include "location/WARELOCA/problem.h"
#include "location/WARELOCA/report.h"
#include "tests/support/error_of.h"

namespace vantore::wareloca {
namespace {

using tests::errorOf;

const std::string smallFile = "1\r\n"
                              "40.5,80.25,\"Ashby, OH\",1000.5,20.1\r\n"
                              "2\r\n"
                              "41,81,\"Corfield\",.0672,.46,18,400,1.79,9.05,1.9\r\n"
                              "42,82,\" \",0,0,0,0,0,0,0\r\n"
                              "1\r\n"
                              "7,43,83,250,\"Dunham\"\r\n"
                              ".92,.0034\r\n"
                              "12,26,11.3,.58\r\n"
                              "5.45,.0037\r\n";

Case caseFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Case& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

TEST(WarelocaFile, HoldsThreeTablesAndThreeLines) {
    const Case problem = caseFrom(smallFile);
    EXPECT_EQ(problem.plantCount, 1);
    EXPECT_EQ(problem.plants(1).x, 40.5);
    EXPECT_EQ(problem.plants(1).y, 80.25);
    EXPECT_EQ(problem.plants(1).location, "Ashby, OH");
    EXPECT_EQ(problem.plants(1).productionCost, 20.1);
    EXPECT_FALSE(problem.plants(1).selected());
    EXPECT_EQ(problem.warehouseCount, 2);
    EXPECT_EQ(problem.warehouses(1).storage, .0672);
    EXPECT_EQ(problem.warehouses(1).stockOrderSize, 400);
    EXPECT_EQ(problem.warehouses(1).customerOrderProcessing, 1.79);
    EXPECT_EQ(problem.warehouses(1).localDelivery, 1.9);
    EXPECT_EQ(problem.customerCount, 1);
    EXPECT_EQ(problem.customers(1).region, 7);
    EXPECT_EQ(problem.customers(1).sales, 250);
    EXPECT_EQ(problem.plantWarehouse().variable, .0034);
    EXPECT_EQ(problem.capitalCost, 12);
    EXPECT_EQ(problem.inventoryExponent, .58);
    EXPECT_EQ(problem.warehouseCustomer().fixed, 5.45);
}

TEST(WarelocaFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(written(caseFrom(smallFile)), smallFile);
}

TEST(WarelocaFile, BeginsWithoutRows) {
    EXPECT_EQ(skeleton(), "0\r\n0\r\n0\r\n0,0\r\n0,0,0,0\r\n0,0\r\n");
    EXPECT_EQ(written(caseFrom(skeleton())), skeleton());
}

TEST(WarelocaFile, RefusesCountsBeyondItsTables) {
    for (const char* text : {"7", "-1", "1000000", "six"})
        EXPECT_EQ(errorOf([&] { caseFrom(text); }), ErrorNumber::SubscriptOutOfRange) << text;
    EXPECT_EQ(errorOf([&] { caseFrom("0,49"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { caseFrom("0,0,192"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { caseFrom("0,0,0,0,0"); }), ErrorNumber::InputPastEnd);
}

TEST(WarelocaSelection, HoldsTheDistanceAndTheMarks) {
    Case problem = caseFrom(smallFile);
    problem.desiredDistance = 300;
    problem.warehouses(2).selection = mark;
    ItemWriter writer;
    writeSelection(problem, writer);
    EXPECT_EQ(writer.text(), "300\r\n1\r\n\" \"\r\n2\r\n\" \"\r\n\"X\"\r\n");
    Case other = caseFrom(smallFile);
    other.warehouses(1).selection = mark;
    ItemReader reader(writer.text());
    readSelection(other, reader);
    EXPECT_EQ(other.desiredDistance, 300);
    EXPECT_FALSE(other.plants(1).selected());
    EXPECT_FALSE(other.warehouses(1).selected());
    EXPECT_TRUE(other.warehouses(2).selected());
}

TEST(WarelocaSelection, PassesOverRowsThatTheCaseHasNot) {
    Case problem = caseFrom(smallFile);
    ItemReader reader("250,3,X,X,X,1,X");
    readSelection(problem, reader);
    EXPECT_TRUE(problem.plants(1).selected());
    EXPECT_FALSE(problem.plants(2).selected());
    EXPECT_TRUE(problem.warehouses(1).selected());
    EXPECT_FALSE(problem.warehouses(2).selected());
}

TEST(WarelocaSelection, RefusesWhatIsNone) {
    const auto errorFor = [](const std::string& text) {
        return errorOf([&] {
            Case problem;
            ItemReader reader(text);
            readSelection(problem, reader);
        });
    };
    EXPECT_EQ(errorFor(""), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorFor("300,7"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorFor("300,0,49"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorFor("300,2,X"), ErrorNumber::InputPastEnd);
}

const std::vector<Flow> flows = {{{40.5, 80}, 3, {41, 81.25}, 6, {42, 82}},
                                 {{30, 90}, 48, {31, 91}, 1, {32, 92}}};

TEST(WarelocaFlows, AreALineEach) {
    ItemWriter writer;
    writeFlows(flows, writer);
    EXPECT_EQ(writer.text(), "40.5,80,3,41,81.25,6,42,82\r\n30,90,48,31,91,1,32,92\r\n");
    ItemReader reader(writer.text());
    EXPECT_EQ(readFlows(reader), flows);
}

TEST(WarelocaFlows, RefuseRowsThatNoTableHas) {
    const auto errorFor = [](const std::string& text) {
        return errorOf([&] {
            ItemReader reader(text);
            readFlows(reader);
        });
    };
    EXPECT_EQ(errorFor(""), ErrorNumber{});
    EXPECT_EQ(errorFor("40,80,0,41,81,1,42,82"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorFor("40,80,49,41,81,1,42,82"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorFor("40,80,1,41,81,7,42,82"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorFor("40,80,1,41,81,6,42"), ErrorNumber::InputPastEnd);
    std::string many;
    for (int i = 0; i < mostCustomers; ++i) many += "40,80,1,41,81,1,42,82\n";
    EXPECT_EQ(errorFor(many), ErrorNumber{});
    EXPECT_EQ(errorFor(many + "40,80,1,41,81,1,42,82\n"), ErrorNumber::SubscriptOutOfRange);
}

TEST(WarelocaData, ArePrintedTableByTable) {
    Case problem = caseFrom(smallFile);
    problem.desiredDistance = 300;
    problem.plants(1).selection = mark;
    EXPECT_EQ(dataPage(problem).lines(),
              (std::vector<std::string>{
                  "Plant-warehouse transportation, fixed, $/cwt.: .92",
                  "Plant-warehouse transportation, variable, $/cwt./mi.: .0034",
                  "Warehouse-customer transportation, fixed, $/cwt.: 5.45",
                  "Warehouse-customer transportation, variable, $/cwt./mi.: .0037",
                  "Inventory estimating function, constant: 11.3",
                  "Inventory estimating function, exponent: .58",
                  "Capital cost, %/yr.: 12",
                  "Product value, $/cwt.: 26",
                  "Desired distance of customers from warehouse, miles: 300",
                  "",
                  "Plants:",
                  " No.  X Location                Capacity   Prod. cost",
                  "   1  X Ashby, OH                1,000.5         20.1",
                  "",
                  "Warehouses:",
                  "                               Sto-  Hand-  Stock order   Cust. order     Local",
                  " No.  X Location               rage   ling   cost    size   cost   size  deliv.",
                  "   1    Corfield             0.0672   0.46  18.00  400.00   1.79   9.05    1.90",
                  "   2                         0.0000   0.00   0.00    0.00   0.00   0.00    0.00",
                  "",
                  "Customers:",
                  " No.    Location             Region         Sales",
                  "   1    Dunham                    7           250",
              }));
}

} // namespace
} // namespace vantore::wareloca
