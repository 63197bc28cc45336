#include "processes/folder_lock.h"

#include <csignal>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

long filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

TEST(FolderLock, KeepsASecondOneOutUntilItGoes) {
    const TemporaryFolder folder;
    auto first = lockFolder(folder.path());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(filesIn(folder.path()), 1);
    EXPECT_EQ(lockFolder(folder.path()), nullptr);
    first.reset();
    EXPECT_EQ(filesIn(folder.path()), 0);
    EXPECT_NE(lockFolder(folder.path()), nullptr);
}

TEST(FolderLock, HoldsForItsFolderAlone) {
    const TemporaryFolder folder, other;
    const auto first = lockFolder(folder.path());
    EXPECT_NE(lockFolder(other.path()), nullptr);
}

TEST(FolderLock, OfAKilledProcessIsNone) {
    const TemporaryFolder folder;
    const pid_t holder = fork();
    if (holder == 0) {
        const auto lock = lockFolder(folder.path());
        writeLines(folder.path() / "locked", {});
        while (true) pause();
    }
    while (!fs::exists(folder.path() / "locked")) usleep(1000);
    EXPECT_EQ(lockFolder(folder.path()), nullptr);
    kill(holder, SIGKILL);
    waitpid(holder, nullptr, 0);
    EXPECT_EQ(filesIn(folder.path()), 2); // the dead process has left its file
    EXPECT_NE(lockFolder(folder.path()), nullptr);
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(FolderLock, LetsARunTryWhereNoFileCanBeMade) {
    EXPECT_NE(lockFolder("/nowhere/at/all"), nullptr);
}

} // namespace
} // namespace vantore::tests
