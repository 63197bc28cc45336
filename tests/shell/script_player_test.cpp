#include <gtest/gtest.h>

#include "shell/platform.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

std::string failureOf(const std::string& script) {
    ModuleSession session;
    try {
        session.play(script);
    } catch (const PlatformFailure& failure) {
        return failure.what();
    }
    return "";
}

TEST(ScriptPlayer, StopsWithTheLineAtFault) {
    EXPECT_EQ(failureOf("# a comment\n\njump high"), "line 3: unknown command jump");
    EXPECT_EQ(failureOf("module CHESS"), "line 1: unknown module CHESS");
    EXPECT_EQ(failureOf("press cmdOpen"), "line 1: no window is open");
    EXPECT_EQ(failureOf("module COG\nmodule COG"), "line 2: a module is open already");
    EXPECT_EQ(failureOf("module COG\npress cmdFly"), "line 2: unknown control cmdFly");
    EXPECT_EQ(failureOf("module COG\ntype cmdOpen x"), "line 2: cmdOpen is no text box");
    EXPECT_EQ(failureOf("module COG\ncurrent COGGrid one 2"), "line 2: one is no row");
}

TEST(ScriptPlayer, StopsAtAQuestionWithoutAnAnswer) {
    EXPECT_EQ(failureOf("module COG\nfile COG1.dat\npress cmdOpen\npress cmdExit"),
              "line 4: no answer for YesNoBx \"COG\": \"Save data?\"");
    EXPECT_TRUE(failureOf("module COG\npress cmdOpen").starts_with("line 2: no file for OpenDialog"));
}

TEST(ScriptPlayer, StopsWhenAnswersAreLeftOver) {
    EXPECT_EQ(failureOf("module COG\nanswer Yes"), "line 2: answers are left over at the end");
}

TEST(ScriptPlayer, StopsAtAnAnswerThatAQuestionDoesNotHave) {
    EXPECT_NE(failureOf("module COG\nfile COG1.dat\npress cmdOpen\nanswer Perhaps\npress cmdExit"), "");
}

TEST(ScriptPlayer, RefusesWhatAUserCanNotReach) {
    ModuleSession session;
    EXPECT_EQ(session.play("module COG\npress cmdSave\ntype txtLabel x"),
              "refused: cmdSave is hidden\nrefused: txtLabel is disabled\n");
}

TEST(ScriptPlayer, RefusesTheLauncherBehindAModule) {
    ModuleSession session;
    session.play("launcher\npress Continue");
    EXPECT_EQ(session.play("module COG\npress cmdHelp\npress COG1"),
              "refused: cmdHelp is disabled\nrefused: COG1 is disabled\n");
}

TEST(ScriptPlayer, TakesTheRestOfTheLineAsTheLastArgument) {
    ModuleSession session;
    session.play("module COG\nfile COG1.dat\npress cmdOpen");
    EXPECT_EQ(session.play("type txtLabel   5\" pipes, steel  \nshow txtLabel"),
              "txtLabel: visible enabled \"5\\\" pipes, steel\"\n");
    EXPECT_EQ(session.play("type txtLabel \"  kept  \"\nshow txtLabel"),
              "txtLabel: visible enabled \"  kept  \"\n");
    EXPECT_EQ(session.play("keys txtLabel end\nshow txtLabel"),
              "txtLabel: visible enabled \"  kept  end\"\n");
}

TEST(ScriptPlayer, TellsAnAnswerOfCancelFromTheWord) {
    ModuleSession session;
    session.play("module COG\nfile COG1.dat\npress cmdOpen\ncell COGGrid 1 4 5");
    const std::string told = session.play("select COGGrid 1 2 1 2\nanswer cancel\npress cmdArith\n"
                                          "answer \"cancel\"\npress cmdArith");
    EXPECT_NE(told.find("-> cancel\n"), std::string::npos);
    EXPECT_NE(told.find("-> \"cancel\"\n"), std::string::npos);
}

} // namespace
} // namespace vantore::tests
