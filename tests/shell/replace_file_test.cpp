#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "shell/base/text_file.h"
#include "tests/support/error_of.h"
#include "tests/support/full_disk.h"
#include "tests/support/temporary_folder.h"

namespace {

/// Told of each flush to the disk, by its descriptor.
std::function<void(int)> onFlush;

} // namespace

/// Stands in for the system's, which it calls.
extern "C" int fsync(int descriptor) {
    if (onFlush) onFlush(descriptor);
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t largeFile = 4U << 20U; // bytes

void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string get(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

std::size_t entriesIn(const fs::path& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// A large file of one letter, so that a mixture of two saves shows.
bool isWhole(const std::string& content) {
    return content.size() == largeFile && content == std::string(largeFile, content.front());
}

/// Another program that saves a large file over and over, with another letter each time.
pid_t startSaving(const fs::path& path, int times) {
    const pid_t child = fork();
    if (child != 0) return child;
    try {
        for (int i = 0; times == 0 || i < times; ++i)
            replaceFile(path, std::string(largeFile, static_cast<char>('a' + (getpid() + i) % 26)));
    } catch (...) {
        _exit(EXIT_FAILURE);
    }
    _exit(EXIT_SUCCESS);
}

int statusOf(pid_t child) {
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

TEST(ReplaceFile, LeavesNothingBesideTheFile) {
    const TemporaryFolder folder;
    replaceFile(folder.path() / "a b \u00FC.dat", "one");
    replaceFile(folder.path() / "a b \u00FC.dat", "two");
    EXPECT_EQ(get(folder.path() / "a b \u00FC.dat"), "two");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, KeepsTheSpellingThatIsThere) {
    const TemporaryFolder folder;
    put(folder.path() / "Cog \u00FC.Dat", "old");
    replaceFile(folder.path() / "COG \u00DC.DAT", "new");
    EXPECT_EQ(get(folder.path() / "Cog \u00FC.Dat"), "new");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, FlushesTheFileBeforeItIsRenamedAndTheFolderAfterwards) {
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "COG.dat";
    put(path, "old");
    std::vector<std::string> flushes;
    onFlush = [&](int descriptor) {
        struct stat status {};
        fstat(descriptor, &status);
        const std::string what =
            S_ISDIR(status.st_mode) ? "folder" : std::to_string(status.st_size) + " bytes";
        flushes.push_back(what + " while the file is " + get(path));
    };
    replaceFile(path, "newer");
    onFlush = nullptr;
    EXPECT_EQ(flushes,
              (std::vector<std::string>{"5 bytes while the file is old", "folder while the file is newer"}));
}

TEST(ReplaceFile, LeavesNoDescriptorOpen) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "COG2.dat");
    replaceFile(folder.path() / "COG.dat", "");
    const std::size_t before = entriesIn("/proc/self/fd");
    for (int i = 0; i < 10; ++i) {
        put(folder.path() / ".COG.dat.17.tmp", "left");
        replaceFile(folder.path() / "COG.dat", "new");
        writeLines(folder.path() / "OUTPUT.DAT", {"line"});
        readTextFile(folder.path() / "OUTPUT.DAT");
        EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG2.dat", ""); }), ErrorNumber::PathFileAccess);
    }
    EXPECT_EQ(entriesIn("/proc/self/fd"), before);
}

TEST(ReplaceFile, KeepsTheOldFileWhenItFails) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "no" / "x", "a"); }), ErrorNumber::PathNotFound);
    put(folder.path() / "file", "no folder");
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "file" / "x", "a"); }), ErrorNumber::PathNotFound);
    fs::create_directory(folder.path() / "COG.dat");
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG.dat", "a"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / std::string(400, 'x'), "a"); }),
              ErrorNumber::BadFileName);
    EXPECT_EQ(entriesIn(folder.path()), 2U);
}

TEST(ReplaceFile, KeepsTheOldFileOnAFullDisk) {
    const TemporaryFolder folder;
    put(folder.path() / "COG.dat", "old");
    const FullDisk full(1000);
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG.dat", std::string(5000, 'n')); }),
              ErrorNumber::DiskFull);
    EXPECT_EQ(get(folder.path() / "COG.dat"), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, NeverReplacesAWriteProtectedFile) {
    const TemporaryFolder folder;
    put(folder.path() / "COG.dat", "old");
    for (const fs::perms mode : {fs::perms{0444}, fs::perms{0464}, fs::perms{0}}) {
        fs::permissions(folder.path() / "COG.dat", mode);
        EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG.dat", "new"); }),
                  ErrorNumber::PermissionDenied);
        EXPECT_EQ(fs::status(folder.path() / "COG.dat").permissions(), mode);
    }
    fs::permissions(folder.path() / "COG.dat", fs::perms{0600});
    EXPECT_EQ(get(folder.path() / "COG.dat"), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, NeverReplacesAFileInAWriteProtectedFolder) {
    const TemporaryFolder folder;
    put(folder.path() / "COG.dat", "old");
    fs::permissions(folder.path(), fs::perms{0555});
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "COG.dat", "new"); }), ErrorNumber::PermissionDenied);
    fs::permissions(folder.path(), fs::perms{0755});
    EXPECT_EQ(get(folder.path() / "COG.dat"), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

/// A user without a superuser's rights, while it lives.
class PlainUser {
  public:
    PlainUser() { changed_ = before_ == 0 && seteuid(nobody) == 0; }
    ~PlainUser() {
        if (changed_ && seteuid(before_) != 0) std::abort();
    }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;

  private:
    static constexpr uid_t nobody = 65534;
    uid_t before_ = geteuid();
    bool changed_ = false;
};

TEST(ReplaceFile, WritesNothingWhereTheUserMayNot) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "somebody's");
    put(folder.path() / "somebody's" / "COG.dat", "old");
    fs::permissions(folder.path(), fs::perms{0755});
    fs::permissions(folder.path() / "somebody's", fs::perms{0555});
    {
        const PlainUser user;
        for (const char* name : {"COG.dat", "COG2.dat"})
            EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "somebody's" / name, "new"); }),
                      ErrorNumber::PermissionDenied);
    }
    fs::permissions(folder.path() / "somebody's", fs::perms{0755});
    EXPECT_EQ(get(folder.path() / "somebody's" / "COG.dat"), "old");
    EXPECT_EQ(entriesIn(folder.path() / "somebody's"), 1U);
}

TEST(ReplaceFile, FollowsLinksAndKeepsThePermissions) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "deep");
    put(folder.path() / "deep" / "real", "old");
    fs::permissions(folder.path() / "deep" / "real", fs::perms{0606});
    fs::create_symlink("deep/link", folder.path() / "link");
    fs::create_symlink("real", folder.path() / "deep" / "link");
    replaceFile(folder.path() / "link", "new");
    EXPECT_EQ(get(folder.path() / "deep" / "real"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "deep" / "link"));
    EXPECT_EQ(fs::status(folder.path() / "deep" / "real").permissions(), fs::perms{0606});
}

TEST(ReplaceFile, WritesWhereALinkLeadsThoughNothingIsThereYet) {
    const TemporaryFolder folder;
    fs::create_symlink("later", folder.path() / "link");
    replaceFile(folder.path() / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(get(folder.path() / "later"), "new");
}

TEST(ReplaceFile, RefusesALoopOfLinks) {
    const TemporaryFolder folder;
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    EXPECT_EQ(errorOf([&] { replaceFile(folder.path() / "a", "new"); }), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "a"));
    EXPECT_EQ(entriesIn(folder.path()), 2U);
}

TEST(ReplaceFile, RefusesWhatIsNoPlainFile) {
    const TemporaryFolder folder;
    const fs::path pipe = folder.path() / "COG.dat";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(errorOf([&] { replaceFile(pipe, "new"); }), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(ReplaceFile, RemovesWhatKilledWritersLeftOfTheSameFileOnly) {
    const TemporaryFolder folder;
    for (const char* name : {".COG.dat.17.tmp", ".COG.dat.4294967295.tmp"}) put(folder.path() / name, "half");
    const std::vector<std::string> others = {".COG2.dat.17.tmp", ".COG.dat.tmp", ".COG.dat.1x.tmp",
                                             ".COG.dat.17.tmp2", "COG.dat.17.tmp"};
    for (const std::string& name : others) put(folder.path() / name, "somebody's");
    replaceFile(folder.path() / "COG.dat", "new");
    EXPECT_EQ(entriesIn(folder.path()), others.size() + 1);
    for (const std::string& name : others) EXPECT_TRUE(fs::exists(folder.path() / name)) << name;
}

TEST(ReplaceFile, LeavesTheFileThatAnotherProgramIsWriting) {
    const TemporaryFolder folder;
    const fs::path beside = folder.path() / ".COG.dat.17.tmp";
    put(beside, "half");
    std::FILE* writer = std::fopen(beside.c_str(), "r+");
    ASSERT_EQ(flock(fileno(writer), LOCK_EX), 0);
    replaceFile(folder.path() / "COG.dat", "new");
    EXPECT_TRUE(fs::exists(beside));
    std::fclose(writer);
    replaceFile(folder.path() / "COG.dat", "newer");
    EXPECT_FALSE(fs::exists(beside));
}

TEST(ReplaceFile, LeavesAWholeFileWheneverItIsKilled) {
    constexpr int kills = 300;
    constexpr int longestDelay = 12000; // microseconds, some saves long
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "COG.dat";
    replaceFile(path, std::string(largeFile, 'z'));
    std::mt19937 random(1);
    int interrupted = 0;
    for (int i = 0; i < kills; ++i) {
        const pid_t child = startSaving(path, 0);
        usleep(static_cast<useconds_t>(random() % longestDelay));
        kill(child, SIGKILL);
        const int status = statusOf(child);
        ASSERT_TRUE(WIFSIGNALED(status));
        ASSERT_TRUE(isWhole(get(path))) << "after kill " << i;
        interrupted += entriesIn(folder.path()) > 1;
    }
    EXPECT_GT(interrupted, kills / 10) << "the kills must fall into saves";
    replaceFile(path, "end");
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, LetsTwoProgramsSaveOneFile) {
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "COG.dat";
    const pid_t one = startSaving(path, 40);
    const pid_t other = startSaving(path, 40);
    EXPECT_EQ(statusOf(one), 0);
    EXPECT_EQ(statusOf(other), 0);
    EXPECT_TRUE(isWhole(get(path)));
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

} // namespace
} // namespace vantore::tests
