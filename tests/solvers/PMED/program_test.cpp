#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "shell/base/text_file.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"
#include "tests/support/solver_processes.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

constexpr const char* input =
    "\"Depots\",2,1,1\r\n2\r\n\"Ames\",0,0,100,1,500,1\r\n\"Bend\",40,0,200,1,300,1\r\n1,2\r\n";
constexpr const char* output = "2\r\n1,2\r\n2,2\r\n8300\r\n";

/// A folder with a FORRUN, and PMED.EXE run on it.
class PmedProgram : public testing::Test {
  protected:
    void write(const std::string& text, const std::string& name = "FORRUN") const {
        std::ofstream(folder_.path() / name, std::ios::binary) << text;
    }

    /// The exit status; what the program says on standard error is in `complained_`.
    int solve() {
        const SolverRun run = runSolver(PMED_PROGRAM, folder_.path());
        complained_ = run.complained;
        EXPECT_EQ(run.printed, "");
        return run.status;
    }

    bool hasOutput() const { return fs::exists(folder_.path() / "FOROUT"); }

    TemporaryFolder folder_;
    std::string complained_;
};

TEST_F(PmedProgram, WritesWhatItHasChosen) {
    write(input);
    EXPECT_EQ(solve(), 0);
    EXPECT_EQ(contents(folder_.path() / "FOROUT"), output);
    EXPECT_EQ(complained_, "");
}

TEST_F(PmedProgram, FindsFilesInAnySpelling) {
    write(input, "ForRun");
    write("old", "ForOut");
    EXPECT_EQ(solve(), 0);
    EXPECT_FALSE(fs::exists(folder_.path() / "ForOut") && contents(folder_.path() / "ForOut") == "old");
}

TEST_F(PmedProgram, SaysWhatIsWrongAndLeavesNoOutput) {
    write("2\r\n1,1\r\n2,1\r\n5\r\n", "FOROUT");
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "PMED.EXE: File not found\n");
    EXPECT_FALSE(hasOutput());
    write(std::string(input).substr(0, 60));
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "PMED.EXE: FORRUN can't be read as a problem. Input past end of file.\n");
    EXPECT_FALSE(hasOutput());
}

TEST_F(PmedProgram, EndsWithAResultOrAReasonWhateverItReads) {
    for (const std::string& content : damagedForms(input)) {
        write(content);
        const int status = solve();
        EXPECT_EQ(status == 0, hasOutput()) << content;
        EXPECT_EQ(status == 0, complained_.empty()) << complained_;
        EXPECT_TRUE(status == 0 || status == 1) << content;
    }
}

TEST_F(PmedProgram, LeavesNoPartOfAnOutput) {
    write(input);
    const FullDisk full(8);
    const std::string command =
        "VANTORE_IO='" + folder_.path().string() + "/' '" PMED_PROGRAM "' 2>/dev/null";
    EXPECT_NE(std::system(command.c_str()), 0);
    EXPECT_FALSE(hasOutput());
}

TEST_F(PmedProgram, FailsWhereItCannotWrite) {
    write(input);
    fs::create_directory(folder_.path() / "FOROUT");
    EXPECT_EQ(solve(), 1);
    EXPECT_EQ(complained_, "PMED.EXE: Path/File access error\n");
}

} // namespace
} // namespace vantore::tests
