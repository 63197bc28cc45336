#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "script/script_platform.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

std::string driverFile(const ModuleSession& session) {
    std::ifstream file(session.installFolder() / "VANTORE.DRV", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeDriverFile(const ModuleSession& session, const std::string& content) {
    std::ofstream(session.installFolder() / "VANTORE.DRV", std::ios::binary) << content;
}

TEST(Launcher, WritesTheDefaultFileAtTheFirstStart) {
    ModuleSession session;
    const std::string folder = session.installFolder().string();
    EXPECT_EQ(
        session.play("launcher\nshow txtDir"),
        "MessageBx \"VANTORE\": \"The default path for data files and solution results has been set to the "
        "installed directory for VANTORE, or " +
            folder +
            ".  To change it, press the Folder button on the next (Initialization) screen.\"\n"
            "MessageBx \"VANTORE\": \"A screen resolution less than 800x600 has been set.  Reset it by "
            "clicking the "
            "Screen button.\"\n"
            "MessageBx \"Critical\": \"Your VANTORE display resolution is now set at 0x0 and your Windows "
            "screen resolution is set at 800x600.  You must reset the screen resolution to make them the "
            "same.\"\n"
            "MessageBx \"Screen display properties\": \"Continue after the Display Properties box is "
            "closed.\"\n"
            "txtDir: visible enabled \"\"\n");
    EXPECT_EQ(driverFile(session), folder + "/\r\n 800           600 \r\n 0 \r\n");
}

TEST(Launcher, SettlesFolderAndScaleFromTheFile) {
    ModuleSession session;
    writeDriverFile(session, "/srv/data/\r\n 1600          1200 \r\n 1 \r\n");
    EXPECT_EQ(session.play("launcher\nshow txtDir"),
              "txtDir: visible enabled \"Input/output folder: /srv/data/\"\n");
    EXPECT_DOUBLE_EQ(session.launcher().scale().x, 2);
    EXPECT_DOUBLE_EQ(session.launcher().scale().y, 2);
}

TEST(Launcher, ReplacesAShortFileAndReadsTheDefaultOne) {
    ModuleSession session;
    writeDriverFile(session, "/srv/data/\r\n");
    const std::string folder = session.installFolder().string();
    EXPECT_TRUE(session.play("launcher\nshow txtDir")
                    .ends_with("txtDir: visible enabled \"Input/output folder: " + folder + "/\"\n"));
    // The set-up screen has taken the display's resolution for the default one.
    EXPECT_EQ(driverFile(session), folder + "/\r\n 800           600 \r\n 0 \r\n");
}

TEST(Launcher, CutsTheFolderAtAComma) {
    ModuleSession session;
    writeDriverFile(session, "/srv/a,b/\r\n 800  600\r\n1\r\n");
    // The rest of the line is taken for the width, so the numbers move by one.
    EXPECT_EQ(session.play("launcher\nshow txtDir"),
              "txtDir: visible enabled \"Input/output folder: /srv/a\"\n");
}

TEST(Launcher, TakesAWidthUnder800WithoutAWordOnceSetUp) {
    ModuleSession session;
    writeDriverFile(session, "/srv/\r\n 640           480 \r\n 1 \r\n");
    EXPECT_EQ(session.play("launcher"), "");
    EXPECT_DOUBLE_EQ(session.launcher().scale().x, .8);
}

TEST(Launcher, EndsWhenItsFolderCanNotBeWritten) {
    ModuleSession session;
    std::filesystem::remove_all(session.installFolder());
    EXPECT_EQ(session.play("launcher"),
              "MessageBx \"VANTORE\": \"Drives A through M are not available to accept output.  "
              "Make at least one of them accessible.\"\n");
    EXPECT_TRUE(session.ended());
}

TEST(Launcher, ReportsANumberThatIsTooLargeAndGoesOn) {
    ModuleSession session;
    writeDriverFile(session, "/srv/\r\n 1E999 600 \r\n 1 \r\n");
    EXPECT_EQ(session.play("launcher\nshow txtDir"),
              "MessageBx \"Error\": \"Overflow\"\ntxtDir: visible enabled \"Input/output folder: /srv/\"\n");
}

TEST(Launcher, SurvivesAnyDriverFile) {
    for (const std::string& content :
         {std::string(), std::string("\0\1\2", 3), std::string("\r\n\r\n\r\n"), std::string(",,,,"),
          std::string("/srv/\r\n 0 0 \r\n 1 \r\n"), std::string("/srv/\r\n -5 -7 \r\n 1 \r\n"),
          std::string("/srv/\r\n abc def\r\n x\r\n")}) {
        ModuleSession session;
        writeDriverFile(session, content);
        session.play("launcher");
        EXPECT_GT(session.launcher().scale().x, 0);
    }
}

TEST(Launcher, StaysDisabledBehindAModule) {
    ModuleSession session;
    session.play("module COG");
    EXPECT_FALSE(session.launcher().enabled);
    session.play("press cmdExit");
    EXPECT_TRUE(session.launcher().enabled);
    EXPECT_TRUE(session.closed());
}

TEST(Launcher, EmptiesTheClipboardAtTheEnd) {
    ModuleSession session;
    writeDriverFile(session, "/srv/\r\n 800 600 \r\n 1 \r\n");
    EXPECT_EQ(session.play("launcher\npress cmdExit\nclipboard"), "clipboard: empty\n");
    EXPECT_TRUE(session.ended());
}

TEST(Launcher, NamesTheManualInItsHelp) {
    ModuleSession session;
    writeDriverFile(session, "/srv/\r\n 800 600 \r\n 1 \r\n");
    const std::string told = session.play("launcher\npress cmdHelp");
    EXPECT_TRUE(told.starts_with("MessageBx \"Information\": "));
    for (const char* word : {"Vantore.Doc", "Vantore.Pdf", "README"})
        EXPECT_NE(told.find(word), std::string::npos) << word;
}

TEST(Launcher, OffersNoButtonOfAModuleThatTheSuiteLacks) {
    std::ostringstream transcript;
    ScriptPlatform user(transcript, 800, 600);
    Platform parts = user.parts();
    Suite suite(parts, {});
    const Launcher launcher(suite);
    ASSERT_NE(launcher.moduleButton("COG"), nullptr);
    EXPECT_FALSE(launcher.moduleButton("COG")->enabled());
}

} // namespace
} // namespace vantore::tests
