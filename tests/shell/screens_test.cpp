#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/folder_screen.h"
#include "shell/setup_screen.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// A suite that has been set up, with VANTORE.DRV naming its own folder.
class Screens : public testing::Test {
  protected:
    Screens() { writeDriver(textOf(session.ioFolder()) + "/", "800           600", 1); }

    void writeDriver(const std::string& folder, const std::string& screen, int setupDone) const {
        std::ofstream(session.installFolder() / "VANTORE.DRV", std::ios::binary)
            << folder << "\r\n " << screen << " \r\n " << setupDone << " \r\n";
    }

    std::vector<std::string> driver() const { return readLines(session.installFolder() / "VANTORE.DRV"); }

    std::string play(const std::string& script) {
        return replaced(session.play(script), session.installFolder().string(), "<install>");
    }

    ModuleSession session;
};

constexpr const char* setTo = "MessageBx \"Critical\": \"Your VANTORE display resolution is now set at ";

TEST_F(Screens, LeaveTheLauncherAloneOnceTheSuiteIsSetUp) {
    EXPECT_EQ(play("launcher\nshow txtDir"), "txtDir: visible enabled \"Input/output folder: <io>\"\n");
}

TEST_F(Screens, SetUpTakesTheDisplaysResolution) {
    writeDriver("/srv/data/", "1024          768", 0);
    writeDriver(textOf(session.ioFolder()) + "/", "1024          768", 0);
    const std::string told = play("launcher\npress Continue");
    EXPECT_TRUE(told.starts_with(std::string(setTo) +
                                 "1024x768 and your Windows screen resolution is set at 800x600."))
        << told;
    EXPECT_EQ(driver(),
              (std::vector<std::string>{textOf(session.ioFolder()) + "/", " 800           600 ", " 0 "}));
    EXPECT_TRUE(session.fileExists("TMP"));
}

TEST_F(Screens, SetUpAsksWhetherToChangeAResolutionThatIsRight) {
    EXPECT_EQ(play("launcher\npress cmdScreen\nanswer No\npress Screen\npress CheckBox\npress Continue"),
              "YesNoBx \"VANTORE\": \"Your current screen resolution is set at 800x600.  Do you want to "
              "change it?\" "
              "-> No\n");
    EXPECT_EQ(driver().at(2), " 1 ");
    EXPECT_TRUE(session.closed());
}

TEST_F(Screens, SetUpIsDueAgainAfterTheScreenButton) {
    play("launcher\npress cmdScreen");
    EXPECT_EQ(driver().at(2), " 0 ");
    EXPECT_EQ(play("show CheckBox"), "CheckBox: visible enabled \"Do not show this message again\"\n");
}

TEST_F(Screens, SetUpWarnsOfAWideScreen) {
    ModuleSession wide(1600, 900);
    std::ofstream(wide.installFolder() / "VANTORE.DRV", std::ios::binary)
        << textOf(wide.ioFolder()) << "/\r\n 1024          768 \r\n 0 \r\n";
    const std::string told = wide.play("answer No\nlauncher");
    EXPECT_NE(
        told.find(
            "YesNoBx \"Question\": \"The current screen resolution of 1600x900 with and aspect ratio of "
            "1.77777777777778 will not likely produce a pleasing display."),
        std::string::npos)
        << told;
}

TEST_F(Screens, SetUpStaysWholeWhenItsQuestionIsClosed) {
    EXPECT_TRUE(play("launcher\npress cmdScreen\nanswer close\npress Screen").ends_with("-> close\n"));
    EXPECT_EQ(play("press Continue\nshow COG1"), "COG1: visible enabled \"COG\"\n");
}

TEST_F(Screens, SetUpNamesTheFolderInItsNotes) {
    play("launcher\npress cmdScreen");
    const std::vector<std::string> notes = session.report();
    EXPECT_EQ(notes.front(), "VANTORE SETUP");
    std::string all;
    for (const std::string& line : notes) all += line + " ";
    EXPECT_NE(all.find("<io>"), std::string::npos);
    EXPECT_NE(all.find("800x600"), std::string::npos);
}

TEST_F(Screens, FolderIsTakenAndNamedByTheLauncher) {
    const auto folder = session.ioFolder() / "data";
    std::filesystem::create_directory(folder);
    EXPECT_EQ(play("launcher\npress cmdDir\ntype txtDir " + folder.string() +
                   "\nanswer Yes\npress Apply\nshow txtDir"),
              "YesNoBx \"Question\": \"The directory for output will be <io>data/\" -> Yes\n"
              "txtDir: visible enabled \"Input/output folder: <io>data/\"\n");
    EXPECT_EQ(driver().front(), folder.string() + "/");
    EXPECT_TRUE(std::filesystem::exists(folder / "TMP"));
}

TEST_F(Screens, FolderStaysAsItIsOnNoAndOnClose) {
    const auto before = driver();
    play("launcher\npress cmdDir\ntype txtDir /usr/share\nanswer No\npress Apply\nanswer close\npress Apply");
    EXPECT_EQ(play("press Exit\nshow txtDir"), "txtDir: visible enabled \"Input/output folder: <io>\"\n");
    EXPECT_EQ(driver(), before);
}

TEST_F(Screens, FolderIsMadeWhereItIsMissing) {
    const auto folder = session.ioFolder() / "new" / "deep";
    const std::string told = play("launcher\npress cmdDir\ntype txtDir " + folder.string() +
                                  "\nanswer Yes\nanswer Yes\npress Apply");
    EXPECT_NE(told.find("YesNoBx \"Question\": \"Directory is not available.  Want to create it?\" -> Yes\n"),
              std::string::npos)
        << told;
    EXPECT_TRUE(std::filesystem::exists(folder / "TMP"));
    EXPECT_EQ(driver().front(), folder.string() + "/");
}

TEST_F(Screens, FolderThatCanNotBeMadeIsTold) {
    const auto before = driver();
    const std::string told =
        play("launcher\npress cmdDir\ntype txtDir no/such/folder\nanswer Yes\nanswer Yes\npress Apply");
    EXPECT_TRUE(
        told.ends_with("MessageBx \"Warning\": \"The directory could not be created.  Check form of the file "
                       "name used.\"\n"))
        << told;
    EXPECT_EQ(driver(), before);
    EXPECT_EQ(play("show Apply"), "Apply: visible enabled \"&Apply\"\n");
}

TEST_F(Screens, DefaultFolderIsTheInstalledOne) {
    EXPECT_EQ(play("launcher\npress cmdDir\npress Default\nshow txtDir"),
              "txtDir: visible enabled \"<install>/\"\n");
}

TEST_F(Screens, FolderListLeadsIntoFoldersAndBack) {
    std::filesystem::create_directories(session.ioFolder() / "spring" / "week1");
    play("launcher\npress cmdDir");
    Form& screen = *session.front();
    auto& list = dynamic_cast<ListBox&>(*screen.find("Dir1"));
    ASSERT_EQ(list.items, (std::vector<std::string>{"..", "spring"}));
    screen.selectItem(list, 1);
    EXPECT_EQ(play("show txtDir"), "txtDir: visible enabled \"<io>spring\"\n");
    screen.openItem(list);
    EXPECT_EQ(list.items, (std::vector<std::string>{"..", "week1"}));
    screen.selectItem(list, 0);
    screen.openItem(list);
    EXPECT_EQ(list.items, (std::vector<std::string>{"..", "spring"}));
}

TEST_F(Screens, OverlapNothingAndCutNoCaption) {
    play("launcher\npress cmdScreen");
    for (const std::string& fault : formFaults(*session.front())) ADD_FAILURE() << fault;
    play("press Folder");
    for (const std::string& fault : formFaults(*session.front())) ADD_FAILURE() << fault;
}

} // namespace
} // namespace vantore::tests
