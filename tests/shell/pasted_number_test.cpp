#include "shell/base/pasted_number.h"

#include <gtest/gtest.h>

namespace vantore {
namespace {

struct Reading {
    const char* pasted;
    const char* withPoint; ///< in a locale with a decimal point; empty where it is no number
    const char* withComma;
};

class PastedNumber : public testing::TestWithParam<Reading> {};

TEST_P(PastedNumber, IsReadAsTheLocaleWritesIt) {
    const Reading& reading = GetParam();
    EXPECT_EQ(pastedNumber(reading.pasted, {'.'}).value_or(""), reading.withPoint);
    EXPECT_EQ(pastedNumber(reading.pasted, {','}).value_or(""), reading.withComma);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PastedNumber,
    testing::Values(Reading{"12", "12", "12"}, Reading{"1,5", "1.5", "1.5"}, Reading{"1.5", "1.5", "1.5"},
                    Reading{"1,234", "1234", "1.234"}, Reading{"1.234", "1.234", "1234"},
                    Reading{"1.234,5", "1234.5", "1234.5"}, Reading{"1,234.5", "1234.5", "1234.5"},
                    Reading{"1 234,5", "1234.5", "1234.5"}, Reading{"1'234.50", "1234.50", "1234.50"},
                    Reading{"1\u202F234\u00A0567", "1234567", "1234567"},
                    Reading{"12,345,678", "12345678", "12345678"}, Reading{"-,25", "-.25", "-.25"},
                    Reading{" 7 ", "7", "7"}, Reading{"1,5E+03", "1.5E+03", "1.5E+03"},
                    Reading{"\u22123", "-3", "-3"}, Reading{"1,23,4", "", ""}, Reading{"1.2.3", "", ""},
                    Reading{"1,234 567", "", ""}, Reading{"$5", "", ""}, Reading{"", "", ""},
                    Reading{"North", "", ""}, Reading{"1234,567,8", "", ""}, Reading{",", "", ""}));

} // namespace
} // namespace vantore
