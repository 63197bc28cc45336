#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "shell/base/install_folder.h"
#include "shell/base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

void put(const fs::path& path, const std::string& content) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

/// A suite installed for all users, and one user's home.
class InstalledForAll : public testing::Test {
  protected:
    InstalledForAll() {
        put(programs() / "vantore", "the program");
        put(prefix() / "share" / "vantore" / "COG01.dat", "sample");
        put(prefix() / "share" / "vantore" / "REG01.dat", "sample");
        put(prefix() / "libexec" / "vantore" / "MIP.EXE", "solver");
        fs::permissions(prefix() / "share" / "vantore" / "COG01.dat", fs::perms{0444});
        setenv("XDG_DATA_HOME", (folder_.path() / "data").c_str(), 1);
    }
    ~InstalledForAll() override { unsetenv("XDG_DATA_HOME"); }

    fs::path prefix() const { return folder_.path() / "usr"; }
    fs::path programs() const { return prefix() / "bin"; }
    fs::path own() const { return folder_.path() / "data" / "vantore"; }

    TemporaryFolder folder_;
};

TEST_F(InstalledForAll, GivesEachUserAFolderWithSamplesAndSolvers) {
    EXPECT_EQ(installFolder(programs()), own().string());
    EXPECT_EQ(readTextFile(own() / "COG01.dat"), "sample");
    EXPECT_EQ(readTextFile(own() / "REG01.dat"), "sample");
    EXPECT_EQ(readTextFile(own() / "MIP.EXE"), "solver");
    EXPECT_FALSE(fs::exists(own() / "vantore"));
    replaceFile(own() / "COG01.dat", "may be saved over");
}

TEST_F(InstalledForAll, LeavesWhatTheUserHasMadeOfIt) {
    installFolder(programs());
    replaceFile(own() / "COG01.dat", "changed");
    fs::rename(own() / "REG01.dat", own() / "reg01.DAT");
    fs::remove(own() / "MIP.EXE");
    put(own() / "MIP.EXE", "the user's own");
    installFolder(programs());
    EXPECT_EQ(readTextFile(own() / "COG01.dat"), "changed");
    EXPECT_FALSE(fs::exists(own() / "REG01.dat"));
    EXPECT_EQ(readTextFile(own() / "MIP.EXE"), "the user's own");
}

TEST_F(InstalledForAll, FindsTheSolversWhereverTheyAreInstalledNow) {
    installFolder(programs());
    fs::rename(prefix(), folder_.path() / "opt");
    installFolder(folder_.path() / "opt" / "bin");
    EXPECT_EQ(fs::read_symlink(own() / "MIP.EXE"),
              folder_.path() / "opt" / "libexec" / "vantore" / "MIP.EXE");
}

TEST_F(InstalledForAll, LiesBelowTheHomeWhereNothingElseIsSaid) {
    for (const char* none : {"", "relative/folder"}) {
        setenv("XDG_DATA_HOME", none, 1);
        const std::string home = std::getenv("HOME") == nullptr ? "" : std::getenv("HOME");
        setenv("HOME", folder_.path().c_str(), 1);
        EXPECT_EQ(installFolder(programs()), (folder_.path() / ".local" / "share" / "vantore").string());
        setenv("HOME", home.c_str(), 1);
    }
}

TEST_F(InstalledForAll, IsNamedThoughItCanNotBeMade) {
    put(folder_.path() / "data", "a file in its way");
    EXPECT_EQ(installFolder(programs()), own().string());
    EXPECT_FALSE(fs::exists(own()));
}

TEST(InstallFolder, IsThatOfTheProgramWhereItWasBuiltOrUnpacked) {
    const TemporaryFolder folder;
    put(folder.path() / "bin" / "COG01.dat", "sample");
    EXPECT_EQ(installFolder(folder.path() / "bin"), (folder.path() / "bin").string());
}

} // namespace
} // namespace vantore::tests
