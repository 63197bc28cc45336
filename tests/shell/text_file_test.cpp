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

TEST(ReadTextFile, FindsANameWhateverTheCaseOfItsLetters) {
    const TemporaryFolder folder;
    put(folder.path() / "Output.Dat", "abc");
    EXPECT_EQ(readTextFile(folder.path() / "OUTPUT.DAT"), "abc");
}

TEST(ExistingSpelling, FindsAccentedLettersWhateverTheirCase) {
    const TemporaryFolder folder;
    put(folder.path() / "COG M\u00fcnster \u0395\u03bb\u03bb\u03ac\u03c2.dat", "");
    EXPECT_EQ(existingSpelling(folder.path() / "cog M\u00dcNSTER \u0395\u039b\u039b\u0386\u03a3.DAT"),
              folder.path() / "COG M\u00fcnster \u0395\u03bb\u03bb\u03ac\u03c2.dat");
}

TEST(ExistingSpelling, PrefersTheExactOneAndThenTheFirstInTheAlphabet) {
    const TemporaryFolder folder;
    for (const char* name : {"cog1.DAT", "COG1.dat", "cog1.dat", "Cog1.dat"}) put(folder.path() / name, name);
    for (const char* name : {"cog1.DAT", "COG1.dat", "cog1.dat", "Cog1.dat"})
        EXPECT_EQ(readTextFile(folder.path() / name), name);
    EXPECT_EQ(readTextFile(folder.path() / "COG1.DAT"), "COG1.dat");
}

TEST(ExistingSpelling, TellsNamesApartThatAreNoUtf8) {
    const TemporaryFolder folder;
    put(folder.path() / "\xFE.dat", "other");
    EXPECT_EQ(existingSpelling(folder.path() / "\xFF.dat"), folder.path() / "\xFF.dat");
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
    EXPECT_FALSE(fs::exists(folder.path() / "OUTPUT.DAT"));
}

} // namespace
} // namespace vantore::tests
