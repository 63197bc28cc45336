#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"
#include "tests/support/solver_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

constexpr const char* input =
    "\"Depots\",2,1,1\r\n2\r\n\"Ames\",0,0,100,1,500,1\r\n\"Bend\",40,0,200,1,300,1\r\n1,2\r\n";
constexpr const char* output = "2\r\n1,2\r\n2,2\r\n8300\r\n";

class PmedProgram : public testing::Test {
  protected:
    bool hasOutput() const { return fs::exists(folder.file("FOROUT")); }

    SolverFolder folder{PMED_PROGRAM};
};

TEST_F(PmedProgram, WritesWhatItHasChosen) {
    folder.put("FORRUN", input);
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(folder.contents("FOROUT"), output);
    EXPECT_EQ(folder.printed() + folder.complained(), "");
}

TEST_F(PmedProgram, FindsFilesInAnySpelling) {
    folder.put("ForRun", input);
    folder.put("ForOut", "old");
    EXPECT_EQ(folder.run(), 0);
    EXPECT_NE(folder.contents("ForOut"), "old");
}

TEST_F(PmedProgram, SaysWhatIsWrongAndLeavesNoOutput) {
    folder.put("FOROUT", "2\r\n1,1\r\n2,1\r\n5\r\n");
    EXPECT_EQ(folder.run(), 1);
    EXPECT_EQ(folder.complained(), "PMED.EXE: File not found\n");
    EXPECT_FALSE(hasOutput());
    folder.put("FORRUN", std::string(input).substr(0, 60));
    EXPECT_EQ(folder.run(), 1);
    EXPECT_EQ(folder.complained(), "PMED.EXE: FORRUN can't be read as a problem. Input past end of file.\n");
    EXPECT_FALSE(hasOutput());
}

TEST_F(PmedProgram, EndsWithAResultOrAReasonWhateverItReads) {
    for (const std::string& content : damagedForms(input)) {
        folder.put("FORRUN", content);
        const int status = folder.run();
        EXPECT_EQ(status == 0, hasOutput()) << content;
        EXPECT_EQ(status == 0, folder.complained().empty()) << folder.complained();
        EXPECT_TRUE(status == 0 || status == 1) << content;
    }
}

TEST_F(PmedProgram, LeavesNoPartOfAnOutput) {
    folder.put("FORRUN", input);
    const FullDisk full(8);
    EXPECT_EQ(folder.run(), 1);
    EXPECT_FALSE(hasOutput());
}

TEST_F(PmedProgram, FailsWhereItCannotWrite) {
    folder.put("FORRUN", input);
    fs::create_directory(folder.file("FOROUT"));
    EXPECT_EQ(folder.run(), 1);
    EXPECT_EQ(folder.complained(), "PMED.EXE: Path/File access error\n");
}

} // namespace
} // namespace vantore::tests
