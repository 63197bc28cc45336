#include <gtest/gtest.h>

#include "shell/base/text.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// Column arithmetic on the volumes of three towns, rows 1 and 2 of them highlighted.
class ColumnArithmetic : public testing::Test {
  protected:
    ColumnArithmetic() {
        session_.writeFile("COG01.dat",
                           "\"Towns\",.5,1\r\n3\r\n\"A\",1,2,4,1\r\n\"B\",5,6,9,1\r\n\"C\",3,3,16,1\r\n");
        session_.open("COG", "COG01.dat");
    }

    /// The last line that is told.
    std::string told(const std::string& answers) {
        return lines(session_.play("select COGGrid 1 4 2 4\n" + answers + "press cmdArith")).back();
    }

    /// The volumes as the cells show them.
    std::string volumes() {
        std::string result;
        for (const std::string& row : session_.grid("COGGrid"))
            if (row.front() >= '1' && row.front() <= '3')
                result += row.substr(4, row.rfind(" | ") - 4) + "; ";
        return result;
    }

    ModuleSession session_;
};

TEST_F(ColumnArithmetic, SumsTheHighlightedRows) {
    EXPECT_EQ(told("answer 1\n"), "MessageBx \"COG\": \"The sum is:  13\"");
    EXPECT_EQ(volumes(), "A | 1 | 2 | 4; B | 5 | 6 | 9; C | 3 | 3 | 16; ");
}

TEST_F(ColumnArithmetic, AddsToTheHighlightedRows) {
    told("answer 2\nanswer -1.5\n");
    EXPECT_EQ(volumes(), "A | 1 | 2 | 2.5; B | 5 | 6 | 7.5; C | 3 | 3 | 16; ");
}

TEST_F(ColumnArithmetic, MultipliesTheHighlightedRows) {
    told("answer 3\nanswer 10\n");
    EXPECT_EQ(volumes(), "A | 1 | 2 | 40; B | 5 | 6 | 90; C | 3 | 3 | 16; ");
}

TEST_F(ColumnArithmetic, RaisesTheHighlightedRowsToAPower) {
    told("answer 4\nanswer .5\n");
    EXPECT_EQ(volumes(), "A | 1 | 2 | 2; B | 5 | 6 | 3; C | 3 | 3 | 16; ");
}

TEST_F(ColumnArithmetic, ReplacesTheHighlightedRowsByWhatIsTyped) {
    told("answer 5\nanswer 0.90 tons\n");
    EXPECT_EQ(volumes(), "A | 1 | 2 | 0.90 tons; B | 5 | 6 | 0.90 tons; C | 3 | 3 | 16; ");
}

TEST_F(ColumnArithmetic, TellsOfAValueThatCanNotBe) {
    const auto error = [](const char* text) {
        return "MessageBx \"COG\": \"" + std::string(text) + " occurred in COG, cmdArith.\"";
    };
    EXPECT_EQ(told("answer 2\nanswer ten\n"), error("Type mismatch"));
    EXPECT_EQ(told("answer 3\nanswer 1E308\n"), error("Overflow"));
    EXPECT_EQ(told("answer 2\nanswer -13\n").substr(0, 8), "InputBx ");
    EXPECT_EQ(told("answer 4\nanswer .5\n"), error("Invalid procedure call or argument"));
}

TEST_F(ColumnArithmetic, ChangesNothingWithoutAnAnswer) {
    for (const char* answers : {"answer cancel\n", "answer 0\n", "answer 6\n", "answer 22\n", "answer x\n",
                                "answer 2\nanswer cancel\n", "answer 5\nanswer \"\"\n"}) {
        told(answers);
        EXPECT_EQ(volumes(), "A | 1 | 2 | 4; B | 5 | 6 | 9; C | 3 | 3 | 16; ") << answers;
    }
}

} // namespace
} // namespace vantore::tests
