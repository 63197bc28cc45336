#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "shell/base/runtime_error.h"
#include "shell/base/text_file.h"
#include "tests/support/error_of.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string get(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t entriesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(ReadTextFile, FindsANameWhateverTheCaseOfItsLetters) {
    const TemporaryFolder folder;
    put(folder.path() / "Output.Dat", "abc");
    EXPECT_EQ(readTextFile(folder.path() / "OUTPUT.DAT"), "abc");
}

TEST(ReadTextFile, SaysWhyAFileCanNotBeRead) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { readTextFile(folder.path() / "none"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(errorOf([&] { readTextFile(folder.path() / "no" / "folder"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(errorOf([&] { readTextFile(folder.path()); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(errorOf([&] { readTextFile(folder.path() / std::string(400, 'x')); }),
              ErrorNumber::BadFileName);
}

TEST(ReadTextFile, RefusesAFileThatNoProblemCanBe) {
    const TemporaryFolder folder;
    put(folder.path() / "huge", "");
    fs::resize_file(folder.path() / "huge", 300ULL * 1024 * 1024); // sparse: it takes no room
    EXPECT_EQ(errorOf([&] { readTextFile(folder.path() / "huge"); }), ErrorNumber::PathFileAccess);
}

TEST(WriteLines, EndsEachLineByCrLfAndKeepsTheSpelling) {
    const TemporaryFolder folder;
    put(folder.path() / "output.dat", "old");
    writeLines(folder.path() / "OUTPUT.DAT", {"a", "", "b"});
    EXPECT_EQ(get(folder.path() / "output.dat"), "a\r\n\r\nb\r\n");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, LeavesNothingBesideTheFile) {
    const TemporaryFolder folder;
    replaceFile(folder.path() / "a b \xC3\xBC.dat", "one");
    replaceFile(folder.path() / "a b \xC3\xBC.dat", "two");
    EXPECT_EQ(get(folder.path() / "a b \xC3\xBC.dat"), "two");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, KeepsTheOldFileWhenItFails) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "no" / "x", "a"); }), ErrorNumber::PathNotFound);
    fs::create_directory(folder.path() / "COG.dat");
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG.dat", "a"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, FollowsALinkAndKeepsThePermissions) {
    const TemporaryFolder folder;
    put(folder.path() / "real", "old");
    fs::permissions(folder.path() / "real", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real", folder.path() / "link");
    replaceFile(folder.path() / "link", "new");
    EXPECT_EQ(get(folder.path() / "real"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(fs::status(folder.path() / "real").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

} // namespace
} // namespace vantore::tests
