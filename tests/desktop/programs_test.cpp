#include "desktop/programs.h"

#include <QThread>
#include <filesystem>
#include <gtest/gtest.h>

#include "shell/base/text_file.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

class ProgramsTest : public testing::Test {
  protected:
    fs::path script(const std::string& text) {
        const fs::path path = folder.path() / "SOLVER.EXE";
        replaceFile(path, "#!/bin/sh\n" + text);
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }

    static void waitFor(RunningProgram& program) {
        for (int i = 0; i < 500 && program.running(); ++i) QThread::msleep(10);
        EXPECT_FALSE(program.running());
    }

    TemporaryFolder folder;
};

TEST_F(ProgramsTest, AProgramRunsInItsFolderWithTheAddedVariables) {
    const auto program = startProgram(script("echo \"$VANTORE_IO $# $(pwd)\" > out.txt\n"), folder.path(),
                                      {{"VANTORE_IO", "/data/"}});
    ASSERT_NE(program, nullptr);
    waitFor(*program);
    EXPECT_EQ(readTextFile(folder.path() / "out.txt"), "/data/ 0 " + textOf(folder.path()) + "\n");
}

TEST_F(ProgramsTest, AnInterruptIsThatOfATerminal) {
    const auto program = startProgram(
        script("trap 'echo stopped > out.txt; exit 0' INT\n: > ready.txt\nwhile :; do sleep .02; done\n"),
        folder.path(), {});
    ASSERT_NE(program, nullptr);
    for (int i = 0; i < 500 && !fs::exists(folder.path() / "ready.txt"); ++i) QThread::msleep(10);
    EXPECT_TRUE(program->running());
    program->interrupt();
    waitFor(*program);
    EXPECT_EQ(readTextFile(folder.path() / "out.txt"), "stopped\n");
}

TEST_F(ProgramsTest, WhatCanNotBeStartedIsNoProgram) {
    EXPECT_EQ(startProgram(folder.path() / "MISSING.EXE", folder.path(), {}), nullptr);
    replaceFile(folder.path() / "PLAIN.EXE", "no program");
    EXPECT_EQ(startProgram(folder.path() / "PLAIN.EXE", folder.path(), {}), nullptr);
    EXPECT_EQ(startProgram(folder.path(), folder.path(), {}), nullptr);
}

} // namespace
} // namespace vantore::tests
