#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "mathprog/TRANLP/method.h"
#include "mathprog/TRANLP/report.h"

namespace vantore::tranlp {
namespace {

ProblemFile readText(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

ErrorNumber errorOf(const std::string& text) {
    try {
        readText(text);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return ErrorNumber::CancelSelected;
}

const std::string twoByTwo = "\"Two by two\"\r\n2,2\r\n\"A\",5.5\r\n\" \",7\r\n\"x, y\",6\r\n\"z\",6.5\r\n"
                             "1,1,.25\r\n1,2,-3\r\n2,2,1E+20\r\n";

TEST(TransportationFile, ComesBackAsItWas) {
    EXPECT_EQ(written(readText(twoByTwo).problem), twoByTwo);
}

TEST(TransportationFile, LeavesOutCostsOfZero) {
    const ProblemFile file = readText("\"L\"\n1,2\n\"A\",1\n\"x\",1\n\"y\",0\n1,1,0\n");
    EXPECT_EQ(file.named(1, 1), 1);
    EXPECT_EQ(file.named(1, 2), 0);
    EXPECT_EQ(written(file.problem), "\"L\"\r\n1,2\r\n\"A\",1\r\n\"x\",1\r\n\"y\",0\r\n");
}

TEST(TransportationFile, RefusesCountsAndCellsThatCantBe) {
    for (const char* text : {"\"L\",-1,2", "\"L\",103,2", "\"L\",2,1000000", "\"L\",many,2",
                             "\"L\",1,1,\"A\",1,\"x\",1,0,1,5", "\"L\",1,1,\"A\",1,\"x\",1,1,2,5",
                             "\"L\",1,1,\"A\",1,\"x\",1,-1,1,5", "\"L\",1,1,\"A\",1,\"x\",1,one,1,5"})
        EXPECT_EQ(errorOf(text), ErrorNumber::SubscriptOutOfRange) << text;
}

TEST(TransportationFile, IsShortWhereverItIsCut) {
    for (std::size_t at = 0; at < twoByTwo.rfind("1,2,"); ++at)
        if (twoByTwo[at] == ',' || twoByTwo[at] == '\r') {
            const ErrorNumber error = errorOf(twoByTwo.substr(0, at));
            // No cost need be named, so that a cut between lines of costs isn't seen.
            const bool whole = twoByTwo[at] == '\r' && at >= twoByTwo.find("\r\n1,1,");
            EXPECT_EQ(error, whole ? ErrorNumber::CancelSelected : ErrorNumber::InputPastEnd) << at;
        }
}

TEST(TransportationFile, SkeletonHasFourSourcesAndFourSinks) {
    const Problem problem = readText(skeleton()).problem;
    EXPECT_EQ(problem.label, "Enter label");
    EXPECT_EQ(problem.sources, 4);
    EXPECT_EQ(problem.sinks, 4);
    EXPECT_EQ(problem.sourceName(4), "F4");
    EXPECT_EQ(problem.sinkName(1), "T1");
}

std::string installedFile(const std::string& name) {
    std::ifstream file(VANTORE_SOURCE_FOLDER "/install/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(TransportationSamples, AreWrittenAsSaveWritesThem) {
    for (const char* name : {"TRAN01.dat", "TRAN02.dat", "TRAN03.dat"}) {
        const std::string text = installedFile(name);
        ASSERT_FALSE(text.empty()) << name;
        EXPECT_EQ(written(readText(text).problem), text) << name;
    }
}

TEST(TransportationSamples, AreEvenOrHaveCapacityToSpare) {
    const Problem stores = readText(installedFile("TRAN02.dat")).problem;
    EXPECT_EQ(stores.sources, 10);
    EXPECT_EQ(stores.sinks, 15);
    EXPECT_EQ(cheapestPlan(stores).totalAllocated, 4500);
    const Problem breweries = readText(installedFile("TRAN03.dat")).problem;
    EXPECT_EQ(cheapestPlan(breweries).totalAllocated, 7450);
}

TEST(TransportationReport, AddsCellCostsAsSinglePrecisionFloats) {
    Problem problem;
    problem.sources = problem.sinks = 1;
    problem.supply(1) = problem.demand(1) = 100000;
    problem.cost(1, 1) = 1234.56789;
    const auto lines = reportLines(problem, cheapestPlan(problem)).lines();
    // 123456789 as a 32-bit float is 123456792.
    EXPECT_NE(lines.at(6).find("123,456,789.00"), std::string::npos) << lines.at(6);
    EXPECT_NE(lines.at(7).find("123,456,792.00"), std::string::npos) << lines.at(7);
}

TEST(TransportationReport, RefusesACellCostBeyondSinglePrecision) {
    Problem problem;
    problem.sources = problem.sinks = 1;
    problem.supply(1) = problem.demand(1) = 1;
    problem.cost(1, 1) = 1E+39;
    EXPECT_THROW(reportLines(problem, cheapestPlan(problem)), RuntimeError);
}

TEST(TransportationReport, RoundsSlackToWholeUnits) {
    Problem problem;
    problem.sources = problem.sinks = 1;
    problem.supply(1) = 7.5;
    problem.demand(1) = 5;
    problem.cost(1, 1) = 1;
    const auto lines = reportLines(problem, cheapestPlan(problem)).lines();
    EXPECT_EQ(lines.at(8), " Source capacity =          8");
    EXPECT_EQ(lines.at(9), " Slack capacity  =          2");
}

} // namespace
} // namespace vantore::tranlp
