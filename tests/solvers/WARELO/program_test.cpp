#include <gtest/gtest.h>

#include <algorithm>

#include "location/WARELOCA/flows.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "tests/solvers/WARELO/cases.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"
#include "tests/support/solver_folder.h"

namespace vantore::warelo {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

const std::string title = " EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK";

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
        folder.put("FIL.DAT", case_);
        folder.put("OLDSOL.DAT", selection_);
    }

    Lines report() const { return readLines(folder.file("OUTPUT.DAT")); }

    /// The program gives a whole report, whatever these two files hold.
    void expectAReport() {
        ASSERT_EQ(folder.run(), 0) << folder.complained();
        ASSERT_GE(report().size(), 3U);
        EXPECT_EQ(report().front(), title);
        ItemReader flows(readTextFile(folder.file("TEMP.DAT")));
        EXPECT_NO_THROW(wareloca::readFlows(flows));
        const std::string text = folder.contents("OUTPUT.DAT");
        EXPECT_EQ(text.find("nan"), std::string::npos);
        EXPECT_EQ(text.find("inf\r"), std::string::npos);
    }

    tests::SolverFolder folder{WARELO_PROGRAM};
    std::string case_, selection_;
};

TEST_F(WareloProgram, ReportsAndHandsOverTheFlows) {
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(report().front(), title);
    EXPECT_EQ(folder.contents("TEMP.DAT"), "40,80,1,40,80,1,40,80\r\n40,80,1,40,80,1,40,80\r\n");
    EXPECT_EQ(folder.printed() + folder.complained(), "");
    EXPECT_TRUE(folder.contents("OUTPUT.DAT").starts_with(title + "\r\n"));
}

TEST_F(WareloProgram, FindsFilesInAnySpelling) {
    fs::rename(folder.file("FIL.DAT"), folder.file("fil.Dat"));
    fs::rename(folder.file("OLDSOL.DAT"), folder.file("oldsol.dat"));
    folder.put("Output.dat", "old");
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(readLines(folder.file("Output.dat")).front(), title);
    EXPECT_FALSE(fs::exists(folder.file("OUTPUT.DAT")));
}

TEST_F(WareloProgram, NamesTheFileThatItCannotRead) {
    fs::remove(folder.file("OLDSOL.DAT"));
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(report().back(), " OLDSOL.DAT can't be read: File not found.");
    folder.put("FIL.DAT", case_.substr(0, case_.size() / 2));
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(report().back(), " FIL.DAT can't be read: Input past end of file.");
    EXPECT_EQ(folder.contents("TEMP.DAT"), "");
    folder.put("FIL.DAT", "1000000\r\n");
    EXPECT_EQ(folder.run(), 0);
    EXPECT_EQ(report().back(), " FIL.DAT can't be read: Subscript out of range.");
}

TEST_F(WareloProgram, EndsWithAReportWhateverTheFilesHold) {
    for (const std::string& damaged : tests::damagedForms(case_)) {
        folder.put("FIL.DAT", damaged);
        expectAReport();
    }
    folder.put("FIL.DAT", case_);
    for (const std::string& damaged : tests::damagedForms(selection_)) {
        folder.put("OLDSOL.DAT", damaged);
        expectAReport();
    }
}

TEST_F(WareloProgram, FailsWithoutAnyFolder) {
    fs::copy_file(WARELO_PROGRAM, folder.file("WARELO.EXE"));
    EXPECT_EQ(folder.runCommand("env -u VANTORE_IO ./WARELO.EXE"), 1);
    EXPECT_EQ(folder.complained(), "WARELO.EXE: File not found\n");
}

TEST_F(WareloProgram, FailsWhereItCannotWrite) {
    fs::create_directory(folder.file("OUTPUT.DAT"));
    EXPECT_EQ(folder.run(), 1);
    EXPECT_EQ(folder.complained(), "WARELO.EXE: Path/File access error\n");
}

TEST_F(WareloProgram, LeavesNoHalfReportOnAFullDisk) {
    const tests::FullDisk disk(300); // enough for the flows
    EXPECT_EQ(folder.run(), 1);
    EXPECT_FALSE(fs::exists(folder.file("OUTPUT.DAT")));
}

TEST_F(WareloProgram, ServesAllCustomersOfTheBaseCase) {
    for (const char* name : {"FIL.DAT", "OLDSOL.DAT"})
        fs::copy_file(fs::path(VANTORE_SOURCE_FOLDER) / "install" / name, folder.file(name),
                      fs::copy_options::overwrite_existing);
    EXPECT_EQ(folder.run(), 0);
    ItemReader flows(readTextFile(folder.file("TEMP.DAT")));
    EXPECT_EQ(wareloca::readFlows(flows).size(), 191U);
}

} // namespace
} // namespace vantore::warelo
