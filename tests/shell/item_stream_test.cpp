#include <gtest/gtest.h>

#include "shell/base/item_stream.h"
#include "shell/base/runtime_error.h"
#include "tests/support/error_of.h"

namespace vantore::tests {
namespace {

TEST(ItemReader, TakesItemsWithoutRegardToLineEnds) {
    ItemReader reader("\"Loose lines\"\n.5\r\n2,2\r\"A\"");
    EXPECT_EQ(reader.readString(), "Loose lines");
    EXPECT_EQ(reader.readNumber(), .5);
    EXPECT_EQ(reader.readNumber(), 2);
    EXPECT_EQ(reader.readNumber(), 2);
    EXPECT_EQ(reader.readString(), "A");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(errorOf([&] { reader.readString(); }), ErrorNumber::InputPastEnd);
}

TEST(ItemReader, KeepsCommasAndBlanksInsideQuotesOnly) {
    ItemReader reader("\" Depot, north \",  South gate  , 4 ,\"6\"\r\n");
    EXPECT_EQ(reader.readString(), " Depot, north ");
    EXPECT_EQ(reader.readString(), "South gate");
    EXPECT_EQ(reader.readNumber(), 4);
    EXPECT_EQ(reader.readNumber(), 6);
}

TEST(ItemReader, ReadsAnEmptyPlaceAsAnEmptyItem) {
    ItemReader reader("1,,3");
    EXPECT_EQ(reader.readNumber(), 1);
    EXPECT_EQ(reader.readString(), "");
    EXPECT_EQ(reader.readNumber(), 3);
}

TEST(ItemReader, TakesALoneQuoteToTheEndOfTheFile) {
    ItemReader reader("\"open, never closed\r\n1,2");
    EXPECT_EQ(reader.readString(), "open, never closed 1,2");
    EXPECT_TRUE(reader.atEnd());
}

TEST(ItemReader, DropsWhatStandsBehindAClosingQuote) {
    ItemReader reader("\"A\" or B,2\r\n\"C\"\r\n\"\"");
    EXPECT_EQ(reader.readString(), "A");
    EXPECT_EQ(reader.readNumber(), 2);
    EXPECT_EQ(reader.readString(), "C");
    EXPECT_FALSE(reader.atEnd());
    EXPECT_EQ(reader.readString(), "");
    EXPECT_TRUE(reader.atEnd());
}

TEST(ItemReader, EndsALineOnceAtCrLf) {
    ItemReader reader("1\r\n2\r\r3\n\n4\t\t \r\n");
    std::string items;
    while (!reader.atEnd()) items += reader.readString() + ";";
    EXPECT_EQ(items, "1;2;;3;;4;");
}

TEST(ItemReader, RoundsACount) {
    EXPECT_EQ(ItemReader("2.5").readCount(500), 2);
    EXPECT_EQ(ItemReader("500.4").readCount(500), 500);
    EXPECT_EQ(ItemReader("-.4").readCount(500), 0);
    EXPECT_EQ(errorOf([] { ItemReader("500.6").readCount(500); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { ItemReader("").readCount(500); }), ErrorNumber::InputPastEnd);
}

TEST(ItemReader, RefusesCountsThatCanNotBe) {
    for (const char* text : {"-1", "501", "1E+99", "1E+999", "many", "3 points", "\"\"", ","}) {
        ItemReader reader(text);
        EXPECT_EQ(errorOf([&] { reader.readCount(500); }), ErrorNumber::SubscriptOutOfRange) << text;
    }
    EXPECT_EQ(ItemReader("0").readCount(500), 0);
    EXPECT_EQ(ItemReader(" 500 ").readCount(500), 500);
}

TEST(ItemWriter, SeparatesItemsByCommas) {
    ItemWriter writer;
    writer.string("Depot, north").number(.5).number(-3).endLine().number(1E15).endLine();
    EXPECT_EQ(writer.text(), "\"Depot, north\",.5,-3\r\n1E+15\r\n");
}

TEST(ItemWriter, WritesALabelWithoutBlanksAtItsEnds) {
    ItemWriter writer;
    writer.label("  South gate ").label("").label("   ").endLine();
    EXPECT_EQ(writer.text(), "\"South gate\",\" \",\" \"\r\n");
}

TEST(ItemWriter, KeepsStringsReadable) {
    ItemWriter writer;
    writer.string("5\" pipe\r\nlong").endLine();
    EXPECT_EQ(writer.text(), "\"5' pipe long\"\r\n");
}

} // namespace
} // namespace vantore::tests
