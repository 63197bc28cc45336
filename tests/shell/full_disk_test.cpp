#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// No file may grow beyond `bytes` while it lives: what a full disk is to a program.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int) = SIG_DFL;
};

constexpr const char* problem = "\"Two towns\",.5,1\r\n2\r\n\"A\",1,2,3,4\r\n\"B\",5,6,7,8\r\n";

TEST(FullDisk, IsToldAndTheOldFileStands) {
    ModuleSession session;
    session.writeFile("COG01.dat", problem);
    session.open("COG", "COG01.dat");
    const FullDisk full(16);
    EXPECT_EQ(session.play("file COG01.dat\npress cmdSave"),
              "SaveDialog \"Save center-of-gravity data\" filter \"Center of gravity (COG*.dat)|COG*.dat|\" "
              "-> COG01.dat\n"
              "MessageBx \"COG\": \"Disk full occurred in COG, cmdSave.\"\n");
    EXPECT_EQ(session.readFile("COG01.dat"), problem);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(session.ioFolder()), {}), 1);
}

TEST(FullDisk, KeepsTheWindowOpenWhenExitCanNotSave) {
    ModuleSession session;
    session.writeFile("COG01.dat", problem);
    session.open("COG", "COG01.dat");
    const FullDisk full(16);
    session.play("answer Yes\nfile COG02.dat\npress cmdExit");
    ASSERT_FALSE(session.closed());
    EXPECT_FALSE(session.fileExists("COG02.dat"));
}

TEST(MissingFolder, IsToldAtSave) {
    ModuleSession session;
    session.writeFile("COG01.dat", problem);
    session.open("COG", "COG01.dat");
    const std::string told = session.play("file /no/such/folder/COG01.dat\npress cmdSave");
    EXPECT_NE(told.find("MessageBx \"COG\": \"Path not found occurred in COG, cmdSave.\""), std::string::npos)
        << told;
}

} // namespace
} // namespace vantore::tests
