#include <gtest/gtest.h>

#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

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
