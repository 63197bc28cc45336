#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "location/WARELOCA/flows.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "tests/solvers/WARELO/cases.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"
#include "tests/support/solver_processes.h"
#include "tests/support/temporary_folder.h"

namespace vantore::warelo {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using tests::contents;
using tests::runIn;
using tests::runSolver;

const fs::path program = WARELO_PROGRAM;
const std::string title = " EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK";

void put(const fs::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A folder with a case of two customers, and WARELO.EXE run on it.
class WareloProgram : public testing::Test {
  protected:
    WareloProgram() {
        wareloca::Case problem = tests::freeCase();
        problem.customerCount = 2;
        problem.customers(2) = problem.customers(1);
        problem.customers(2).sales = 90;
        problem.customers(2).location = "Überlingen, am See";
        ItemWriter caseItems, selection;
        write(problem, caseItems);
        writeSelection(problem, selection);
        case_ = caseItems.text();
        selection_ = selection.text();
        put(folder_.path() / "FIL.DAT", case_);
        put(folder_.path() / "OLDSOL.DAT", selection_);
    }

    int evaluate() const { return runSolver(program, folder_.path()).status; }

    fs::path file(const std::string& name) const { return folder_.path() / name; }
    Lines report() const { return readLines(file("OUTPUT.DAT")); }

    /// The program gives a whole report, whatever these two files hold.
    void expectAReport() const {
        ASSERT_EQ(evaluate(), 0) << contents(file("complained"));
        ASSERT_GE(report().size(), 3U);
        EXPECT_EQ(report().front(), title);
        ItemReader flows(readTextFile(file("TEMP.DAT")));
        EXPECT_NO_THROW(wareloca::readFlows(flows));
        const std::string text = contents(file("OUTPUT.DAT"));
        EXPECT_EQ(text.find("nan"), std::string::npos);
        EXPECT_EQ(text.find("inf\r"), std::string::npos);
    }

    tests::TemporaryFolder folder_;
    std::string case_, selection_;
};

TEST_F(WareloProgram, ReportsAndHandsOverTheFlows) {
    EXPECT_EQ(evaluate(), 0);
    EXPECT_EQ(report().front(), title);
    EXPECT_EQ(contents(file("TEMP.DAT")), "40,80,1,40,80,1,40,80\r\n40,80,1,40,80,1,40,80\r\n");
    EXPECT_EQ(contents(file("printed")) + contents(file("complained")), "");
    EXPECT_TRUE(contents(file("OUTPUT.DAT")).starts_with(title + "\r\n"));
}

TEST_F(WareloProgram, FindsFilesInAnySpelling) {
    fs::rename(file("FIL.DAT"), file("fil.Dat"));
    fs::rename(file("OLDSOL.DAT"), file("oldsol.dat"));
    put(file("Output.dat"), "old");
    EXPECT_EQ(evaluate(), 0);
    EXPECT_EQ(readLines(file("Output.dat")).front(), title);
    EXPECT_FALSE(fs::exists(file("OUTPUT.DAT")));
}

TEST_F(WareloProgram, NamesTheFileThatItCannotRead) {
    fs::remove(file("OLDSOL.DAT"));
    EXPECT_EQ(evaluate(), 0);
    EXPECT_EQ(report().back(), " OLDSOL.DAT can't be read: File not found.");
    put(file("FIL.DAT"), case_.substr(0, case_.size() / 2));
    EXPECT_EQ(evaluate(), 0);
    EXPECT_EQ(report().back(), " FIL.DAT can't be read: Input past end of file.");
    EXPECT_EQ(contents(file("TEMP.DAT")), "");
    put(file("FIL.DAT"), "1000000\r\n");
    EXPECT_EQ(evaluate(), 0);
    EXPECT_EQ(report().back(), " FIL.DAT can't be read: Subscript out of range.");
}

TEST_F(WareloProgram, EndsWithAReportWhateverTheFilesHold) {
    for (const std::string& damaged : tests::damagedForms(case_)) {
        put(file("FIL.DAT"), damaged);
        expectAReport();
    }
    put(file("FIL.DAT"), case_);
    for (const std::string& damaged : tests::damagedForms(selection_)) {
        put(file("OLDSOL.DAT"), damaged);
        expectAReport();
    }
}

TEST_F(WareloProgram, FailsWithoutAnyFolder) {
    fs::copy_file(program, file("WARELO.EXE"));
    EXPECT_EQ(runIn(folder_.path(), "env -u VANTORE_IO ./WARELO.EXE 2>complained"), 1);
    EXPECT_EQ(contents(file("complained")), "WARELO.EXE: File not found\n");
}

TEST_F(WareloProgram, FailsWhereItCannotWrite) {
    fs::create_directory(file("OUTPUT.DAT"));
    EXPECT_EQ(evaluate(), 1);
    EXPECT_EQ(contents(file("complained")), "WARELO.EXE: Path/File access error\n");
}

TEST_F(WareloProgram, LeavesNoHalfReportOnAFullDisk) {
    const tests::FullDisk disk(300); // enough for the flows
    EXPECT_EQ(evaluate(), 1);
    EXPECT_FALSE(fs::exists(file("OUTPUT.DAT")));
}

TEST_F(WareloProgram, ServesAllCustomersOfTheBaseCase) {
    for (const char* name : {"FIL.DAT", "OLDSOL.DAT"})
        fs::copy_file(fs::path(VANTORE_SOURCE_FOLDER) / "install" / name, file(name),
                      fs::copy_options::overwrite_existing);
    EXPECT_EQ(runIn(folder_.path(),
                    "VANTORE_IO='" + folder_.path().string() + "/' timeout 60 '" + program.string() + "'"),
              0);
    ItemReader flows(readTextFile(file("TEMP.DAT")));
    EXPECT_EQ(wareloca::readFlows(flows).size(), 191U);
}

} // namespace
} // namespace vantore::warelo
