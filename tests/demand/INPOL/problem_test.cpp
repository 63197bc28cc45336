#include "demand/INPOL/problem.h"

#include <gtest/gtest.h>

#include "shell/base/text.h"
#include "tests/support/error_of.h"
#include "tests/support/module_session.h"

namespace vantore::inpol {
namespace {

using tests::errorOf;

constexpr const char* file = "\"Parts, small\",2,3,\"N\",\"y\",\"N\",12.5,.75,\"Y\"\r\n"
                             "\"Bolt\",120,30,2,.5\r\n\"Nut\",310,75,1.5,.25\r\n"
                             "\"Bolt M8\",8.4,.65,.005,45,3.25\r\n\" \",2.15,.2,.006,28,1.9\r\n"
                             "\"Bolt\",200,400,.95\r\n\"Nut\",500,1E+15,-.9\r\n";

Problem readText(std::string text) {
    ItemReader reader(std::move(text));
    return read(reader);
}

TEST(InventoryFile, ReadsWhatItWrites) {
    ItemWriter writer;
    write(readText(file), writer);
    EXPECT_EQ(writer.text(), file);
}

TEST(InventoryFile, HoldsAnswersAndThreeTables) {
    const Problem problem = readText(file);
    EXPECT_EQ(problem.label, "Parts, small");
    EXPECT_EQ(problem.productCount, 2);
    EXPECT_EQ(problem.timeFrame, 3);
    EXPECT_EQ(problem.jointCost, 12.5);
    EXPECT_EQ(problem.cycleTime, .75);
    EXPECT_FALSE(problem.jointlyOrdered());
    EXPECT_TRUE(problem.serviceIndexSpecified());
    EXPECT_TRUE(problem.orderQuantitySpecified());
    EXPECT_EQ(problem.products(1).demandLabel, "Bolt");
    EXPECT_EQ(problem.products(1).priceLabel, "Bolt M8");
    EXPECT_EQ(problem.products(2).sdLeadTime, .25);
    EXPECT_EQ(problem.products(2).stockoutCost, 1.9);
    EXPECT_EQ(problem.products(2).orderQuantity, 1E15);
    EXPECT_EQ(problem.products(2).serviceIndex, -.9);
}

TEST(InventoryFile, WritesALabelOfBlanksAsOneBlank) {
    Problem problem = readText(file);
    problem.products(1).demandLabel = "";
    problem.products(2).miscLabel = "  Nut ";
    ItemWriter writer;
    write(problem, writer);
    EXPECT_EQ(writer.text(),
              replaced(replaced(file, "\"Bolt\",120", "\" \",120"), "\"Nut\",500", "\"Nut\",500"));
}

TEST(InventoryFile, RefusesANumberOfProductsOutOfRange) {
    for (const char* count : {"51", "-1", "1000000", "many", "1E+99"}) {
        const std::string text = replaced(file, "\",2,3,", "\"," + std::string(count) + ",3,");
        EXPECT_EQ(errorOf([&] { readText(text); }), ErrorNumber::SubscriptOutOfRange) << count;
    }
}

TEST(InventoryFile, EndsInAnErrorWhereverItIsCut) {
    const std::string text = file;
    for (std::size_t end = 0; end <= text.rfind(','); ++end)
        EXPECT_EQ(errorOf([&] { readText(text.substr(0, end)); }), ErrorNumber::InputPastEnd) << end;
}

TEST(InventoryFile, OfANewProblemHasOneProduct) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1,1,\"N\",\"N\",\"N\",0,0,\"N\"\r\n"
                          "\" \",0,0,0,0\r\n\" \",0,0,0,0,0\r\n\" \",0,0,0\r\n");
    EXPECT_EQ(readText(skeleton()).productCount, 1);
}

} // namespace
} // namespace vantore::inpol
