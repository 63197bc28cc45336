#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "suite/module_list.h"
#include "tests/support/full_disk.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t moreThanAnyProblem = 300'000'000; // bytes

/// The first of these buttons that the window in front has; empty when it has none.
std::string buttonOf(const ModuleSession& session, const std::vector<std::string>& names) {
    for (const std::string& name : names)
        if (session.module().find(name) != nullptr) return name;
    return "";
}

/// The letters with which the names of a module's files begin, from what its file dialog offers:
/// `filter "Center of gravity (COG*.dat)|COG*.dat|"`.
std::string prefixIn(const std::string& dialog) {
    const std::size_t from = dialog.find('|') + 1;
    return dialog.substr(from, dialog.find('*', from) - from);
}

/// What holds for the files of every module, shown on the first of the samples that come with the suite.
class FilesOfEveryModule : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        session.installBaseCase();
        session.play("module " + GetParam());
        open_ = buttonOf(session, {"cmdOpen", "cmdOpenFile", "OpenF"});
        if (open_.empty()) GTEST_SKIP() << "has no files";
        save_ = buttonOf(session, {"cmdSave", "Save"});
        prefix = prefixIn(session.play("file\npress " + open_));
        file = prefix + "77.dat"; // the sample's own name is one that the warehouse model doesn't save under
        fs::copy(fs::path(VANTORE_SOURCE_FOLDER) / "install" / (prefix + "01.dat"),
                 session.ioFolder() / file);
        content = session.readFile(file);
        filesBefore = fileCount();
    }

    std::string open(const std::string& name) { return session.play("file " + name + "\npress " + open_); }
    std::string save(const std::string& name) { return session.play("file " + name + "\npress " + save_); }

    std::ptrdiff_t fileCount() const { return std::distance(fs::directory_iterator(session.ioFolder()), {}); }

    ModuleSession session;
    std::string prefix;
    std::string file;
    std::string content;
    std::ptrdiff_t filesBefore = 0;

  private:
    std::string open_;
    std::string save_;
};

TEST_P(FilesOfEveryModule, StandWhenTheDiskIsFull) {
    open(file);
    const FullDisk full(16);
    const std::string told = save(file);
    EXPECT_NE(told.find("Disk full occurred in "), std::string::npos) << told;
    EXPECT_EQ(session.readFile(file), content);
    EXPECT_EQ(fileCount(), filesBefore);
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_P(FilesOfEveryModule, StandInAFolderThatForbidsWriting) {
    open(file);
    fs::permissions(session.ioFolder(), fs::perms::owner_write, fs::perm_options::remove);
    const std::string told = save(file);
    fs::permissions(session.ioFolder(), fs::perms::owner_write, fs::perm_options::add);
    EXPECT_NE(told.find(" occurred in "), std::string::npos) << told;
    EXPECT_EQ(session.readFile(file), content);
    EXPECT_EQ(session.module().view(), View::Data);
}

TEST_P(FilesOfEveryModule, MayHaveBlanksAndAnyLettersInTheirNames) {
    const std::string foreign = prefix + " Żółw & Söhne.dat";
    fs::rename(session.ioFolder() / file, session.ioFolder() / pathOf(foreign));
    const std::vector<std::string> opened = lines(open(foreign));
    ASSERT_EQ(opened.size(), 1U) << opened[1];
    EXPECT_EQ(session.module().view(), View::Data);
    const std::string other = prefix + " Ελλάδα 2.dat";
    const std::vector<std::string> saved = lines(save(other));
    EXPECT_EQ(saved.size(), 1U) << saved[1];
    EXPECT_EQ(session.readFile(other), content);
}

TEST_P(FilesOfEveryModule, AreSavedAsTheyWereOpened) {
    open(file);
    save(file);
    EXPECT_EQ(session.readFile(file), content);
}

TEST_P(FilesOfEveryModule, AreRefusedWhenTheyAreHuge) {
    fs::resize_file(session.ioFolder() / file, moreThanAnyProblem);
    const std::vector<std::string> told = lines(open(file));
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[1].find(" occurred in "), std::string::npos) << told[1];
    EXPECT_EQ(fs::file_size(session.ioFolder() / file), moreThanAnyProblem);
}

/// The sample cut behind each of many of its bytes, and with its bytes damaged.
TEST_P(FilesOfEveryModule, AreToldOfWhenTheyAreDamaged) {
    const std::size_t step = std::max<std::size_t>(1, content.size() / 40);
    for (std::size_t at = 0; at < content.size(); at += step) {
        std::string damaged = content;
        damaged[at] = at % 2 == 0 ? '"' : '\xff';
        for (const std::string& text : {content.substr(0, at), damaged}) {
            session.writeFile(file, text);
            const std::vector<std::string> told = lines(open(file));
            for (std::size_t i = 1; i < told.size(); ++i)
                EXPECT_TRUE(told[i].starts_with("MessageBx ")) << told[i];
            EXPECT_EQ(session.readFile(file), text);
        }
    }
    session.writeFile(file, content);
    EXPECT_EQ(lines(open(file)).size(), 1U);
    EXPECT_EQ(session.module().view(), View::Data);
}

std::vector<std::string> captions() {
    std::vector<std::string> result;
    for (const ModuleEntry& entry : moduleList()) result.push_back(entry.caption);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Suite, FilesOfEveryModule, testing::ValuesIn(captions()),
                         [](const auto& info) { return info.param; });

} // namespace
} // namespace vantore::tests
