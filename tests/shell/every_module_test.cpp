#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "suite/module_list.h"
#include "tests/support/form_faults.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

struct Screen {
    int width, height;
};

constexpr std::array<Screen, 3> screens = {{{800, 600}, {1024, 768}, {1920, 1080}}};

/// What holds for every module of the suite, at every screen size.
class EveryModule : public testing::TestWithParam<std::string> {};

/// The button that opens a file; empty for a module that makes no new problems.
std::string openButton(const Form& form) {
    for (const char* name : {"cmdOpen", "cmdOpenFile"})
        if (form.find(name) != nullptr) return name;
    return "";
}

std::string together(const std::vector<std::string>& faults) {
    std::string text;
    for (const std::string& fault : faults) text += fault + "\n";
    return text;
}

TEST_P(EveryModule, HasAWindowWithoutFaultsBeforeAFileIsOpen) {
    for (const Screen screen : screens) {
        ModuleSession session(screen.width, screen.height);
        session.installBaseCase();
        session.play("module " + GetParam());
        EXPECT_EQ(together(formFaults(session.module())), "") << screen.width << "x" << screen.height;
    }
}

TEST_P(EveryModule, HasAWindowWithoutFaultsOnANewProblem) {
    for (const Screen screen : screens) {
        ModuleSession session(screen.width, screen.height);
        session.installBaseCase();
        session.play("module " + GetParam());
        const std::string open = openButton(session.module());
        if (open.empty()) GTEST_SKIP() << "makes no new problems";
        session.play("file NEW.dat\npress " + open);
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(together(formFaults(session.module())), "") << screen.width << "x" << screen.height;
    }
}

TEST_P(EveryModule, AsksNothingWhenItIsLeftBeforeAFileIsOpen) {
    ModuleSession session;
    session.installBaseCase();
    EXPECT_EQ(session.play("module " + GetParam() + "\nclose"), "");
    EXPECT_TRUE(session.closed());
    EXPECT_TRUE(session.launcher().enabled);
}

TEST_P(EveryModule, SurvivesAFileThatHoldsAnythingAtAll) {
    for (const std::string& content :
         damagedForms("\"Label\",1,2,3\r\n2\r\n\"A\",1,2,3,4\r\n\"B\",1,2,3,4\r\n")) {
        ModuleSession session;
        session.installBaseCase();
        session.writeFile("BAD.dat", content);
        session.play("module " + GetParam());
        const std::string open = openButton(session.module());
        if (open.empty()) GTEST_SKIP() << "makes no new problems";
        const std::vector<std::string> told = lines(session.play("file BAD.dat\npress " + open));
        EXPECT_EQ(session.readFile("BAD.dat"), content);
        ASSERT_TRUE(!told.empty() && told.size() <= 2 && told[0].starts_with("OpenDialog ")) << content;
        if (told.size() == 2) {
            EXPECT_TRUE(told[1].starts_with("MessageBx ")) << told[1];
            EXPECT_NE(told[1].find(" occurred in "), std::string::npos) << told[1];
        }
        // The window goes on as if nothing had been.
        EXPECT_EQ(lines(session.play("file NEW.dat\npress " + open)).size(), 1U);
        EXPECT_EQ(session.module().view(), View::Data);
        EXPECT_EQ(together(formFaults(session.module())), "") << content;
    }
}

std::vector<std::string> captions() {
    std::vector<std::string> result;
    for (const ModuleEntry& entry : moduleList()) result.push_back(entry.caption);
    return result;
}

TEST(ModuleViews, TakeTheFocusToWhereTheUserGoesOn) {
    ModuleSession session;
    session.writeFile("COG01.dat", readTextFile(VANTORE_SOURCE_FOLDER "/install/COG01.dat"));
    session.open("COG", "COG01.dat");
    EXPECT_EQ(session.module().focus->name, "COGGrid");
    session.play("answer 1\nanswer No\npress cmdSolve");
    EXPECT_EQ(session.module().focus->name, "cmdContinue");
    session.play("press cmdContinue");
    EXPECT_EQ(session.module().focus->name, "COGGrid");
}

INSTANTIATE_TEST_SUITE_P(Suite, EveryModule, testing::ValuesIn(captions()),
                         [](const auto& info) { return info.param; });

TEST(LauncherWindow, HasNoFaultsAtAnyScreenSize) {
    for (const Screen screen : screens) {
        ModuleSession session(screen.width, screen.height);
        EXPECT_EQ(together(formFaults(session.launcher())), "") << screen.width << "x" << screen.height;
    }
}

} // namespace
} // namespace vantore::tests
