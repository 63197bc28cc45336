#include "desktop/file_dialogs.h"

#include <gtest/gtest.h>

#include "drawing/fonts.h"
#include "shell/base/text_file.h"
#include "tests/desktop/next_dialog.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

TEST(FileDialogs, FiltersAreConverted) {
    EXPECT_EQ(nameFilters("Center of gravity (COG*.dat)|COG*.dat|"),
              QStringList{"Center of gravity (COG*.dat)"});
    EXPECT_EQ(nameFilters("Vehicle routing & scheduling (RTR*.dat)|RTR*.dat|"),
              QStringList{"Vehicle routing & scheduling (RTR*.dat)"});
    EXPECT_EQ(nameFilters("Picture|*.png;*.jpg|All files|*.*|"),
              (QStringList{"Picture (*.png *.jpg)", "All files (*.*)"}));
    EXPECT_EQ(nameFilters(""), QStringList());
}

TEST(FileDialogs, ATypedNameFindsItsFileInAnyCaseAndWithoutEnding) {
    const TemporaryFolder folder;
    const std::string path = textOf(folder.path()) + "/";
    replaceFile(folder.path() / "COG01.dat", "x");
    EXPECT_EQ(pathForName(path + "cog01.DAT", "dat"), path + "COG01.dat");
    EXPECT_EQ(pathForName(path + "cog01", "dat"), path + "COG01.dat");
    EXPECT_EQ(pathForName(path + "COG02", "dat"), path + "COG02.dat");
    EXPECT_EQ(pathForName(path + "COG02.txt", "dat"), path + "COG02.txt");
    EXPECT_EQ(pathForName(path + "COG02", ""), path + "COG02");
}

std::optional<std::string> typed(const FileDialog& dialog, const char* name) {
    answerFileDialog(name);
    return chooseFile(nullptr, dialog);
}

FileDialog cogDialog(FileDialog::Kind kind, const TemporaryFolder& folder) {
    return {.kind = kind,
            .title = "Open center-of-gravity data file",
            .folder = textOf(folder.path()) + "/",
            .filter = "Center of gravity (COG*.dat)|COG*.dat|",
            .name = ""};
}

TEST(FileDialogs, OpenTakesANameThatIsNotThereYet) {
    const TemporaryFolder folder;
    EXPECT_EQ(typed(cogDialog(FileDialog::Kind::Open, folder), "COGNEW.dat"),
              textOf(folder.path() / "COGNEW.dat"));
}

TEST(FileDialogs, EscapeCancels) {
    const TemporaryFolder folder;
    withNextDialog([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(chooseFile(nullptr, cogDialog(FileDialog::Kind::Open, folder)), std::nullopt);
}

TEST(FileDialogs, SaveAsksBeforeItTakesAFileThatIsThere) {
    const TemporaryFolder folder;
    replaceFile(folder.path() / "COG01.dat", "x");
    std::string question;
    withNextDialog([&](QWidget& box) {
        withNextDialog([&](QWidget& asked) {
            question = utf8Text(asked.property("text").toString());
            QTest::keyClick(&asked, Qt::Key_Escape);
            withNextDialog([](QWidget& again) { QTest::keyClick(&again, Qt::Key_Escape); });
        });
        auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(edit, "cog01.dat");
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_EQ(chooseFile(nullptr, cogDialog(FileDialog::Kind::Save, folder)), std::nullopt);
    EXPECT_NE(question.find("COG01.dat already exists"), std::string::npos) << question;
}

TEST(FileDialogs, SaveProposesTheOpenFileAndTakesItUnasked) {
    const TemporaryFolder folder;
    replaceFile(folder.path() / "COG01.dat", "x");
    FileDialog dialog = cogDialog(FileDialog::Kind::Save, folder);
    dialog.name = "COG01.dat";
    std::string proposed;
    withNextDialog([&](QWidget& box) {
        auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
        proposed = utf8Text(edit->text());
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_EQ(chooseFile(nullptr, dialog, Overwriting::ProposedUnasked), textOf(folder.path() / "COG01.dat"));
    EXPECT_EQ(proposed, "COG01.dat");
}

TEST(FileDialogs, AnotherFileThatIsThereIsAskedAboutAllTheSame) {
    const TemporaryFolder folder;
    replaceFile(folder.path() / "COG01.dat", "x");
    replaceFile(folder.path() / "COG02.dat", "x");
    FileDialog dialog = cogDialog(FileDialog::Kind::Save, folder);
    dialog.name = "COG01.dat";
    withNextDialog([](QWidget& box) {
        withNextDialog(answerYes);
        auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
        EXPECT_TRUE(QTest::qWaitFor([edit] { return edit->hasFocus(); }));
        edit->selectAll();
        QTest::keyClicks(edit, "COG02.dat");
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_EQ(chooseFile(nullptr, dialog, Overwriting::ProposedUnasked), textOf(folder.path() / "COG02.dat"));
}

TEST(FileDialogs, WithoutAFolderTheCurrentOneIsShown) {
    const TemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    FileDialog dialog = cogDialog(FileDialog::Kind::Open, folder);
    dialog.folder.clear();
    EXPECT_EQ(typed(dialog, "COGNEW.dat"), textOf(folder.path() / "COGNEW.dat"));
    std::filesystem::current_path(before);
}

} // namespace
} // namespace vantore::tests
