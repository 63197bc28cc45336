#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "script/script_platform.h"
#include "shell/base/text_file.h"
#include "shell/launcher.h"
#include "shell/module_frame.h"
#include "suite/module_list.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {
namespace {

using Random = std::mt19937;

int below(Random& random, int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

const std::vector<std::string> texts = {"",  "7", "12", "3.5", "-2", "1E400",  "North", "Y", "0",    "99",
                                        "<", "=", "D",  "I",   "U",  "a,b\"c", "5",     "1", "1000", "2"};

const std::string& anyText(Random& random) {
    return texts[static_cast<std::size_t>(below(random, static_cast<int>(texts.size())))];
}

/// A user who answers whatever is asked.
class AnsweringUser : public ScriptPlatform {
  public:
    AnsweringUser(std::ostream& out, Random& random) : ScriptPlatform(out, 800, 600), random_(random) {}

    void showModal(DialogForm& dialog) override {
        if (dialog.kind() == DialogForm::Kind::Question)
            queueAnswer(answer(below(random_, 2) ? "Yes" : "No"));
        if (dialog.kind() == DialogForm::Kind::Input)
            queueAnswer(answer(std::to_string(below(random_, 6)))); // most menus have five or six items
        ScriptPlatform::showModal(dialog);
    }

    std::optional<std::string> chooseFile(const FileDialog& dialog) override {
        return dialog.folder + "NEW.dat";
    }

  private:
    /// One question in ten is closed without an answer.
    ScriptAnswer answer(const std::string& text) {
        if (below(random_, 10) == 0) return {ScriptAnswer::Kind::Close, {}};
        return {.text = text};
    }

    Random& random_;
};

FormState stateOf(const Form& form) {
    FormState state;
    for (const auto& control : form.controls()) state.push_back(control->content());
    return state;
}

/// Buttons that change the data and stay in the data view.
const std::vector<std::string> editing = {"cmdAdd",       "cmdDelete", "cmdArith",     "cmdColArith",
                                          "cmdTransform", "cmdResize", "cmdArithStops"};

void useGrid(Form& form, DataGrid& grid, Random& random) {
    const int row = below(random, grid.rows());
    const int col = below(random, grid.cols());
    form.select(grid, {.startRow = row, .endRow = row, .startCol = col, .endCol = col});
    switch (below(random, 7)) {
    case 0: return form.typeCell(grid, row, col, anyText(random));
    case 1: return form.key(grid, 'A' + below(random, 26));
    case 2: return form.insertKey(grid);
    case 3: return form.paste(grid, anyText(random) + "\t" + anyText(random) + "\n" + anyText(random));
    case 4: return form.click(grid, row, col);
    case 5: return form.doubleClick(grid, row, col);
    default: return form.enterKey(grid);
    }
}

void useBox(Form& form, TextBox& box, Random& random) {
    if (below(random, 3) == 0) {
        form.leave(box);
    } else if (below(random, 2) == 0) {
        form.type(box, box.text() + std::to_string(below(random, 10)));
    } else {
        form.type(box, anyText(random));
    }
}

void act(Form& form, Random& random) {
    std::vector<Control*> reached;
    for (const auto& control : form.controls())
        if (Form::accepts(*control)) reached.push_back(control.get());
    Control& control = *reached[static_cast<std::size_t>(below(random, static_cast<int>(reached.size())))];
    if (auto* grid = dynamic_cast<DataGrid*>(&control)) return useGrid(form, *grid, random);
    if (auto* box = dynamic_cast<TextBox*>(&control)) return useBox(form, *box, random);
    if (auto* tabs = dynamic_cast<Container*>(&control); tabs != nullptr && !tabs->pages.empty())
        return form.selectPage(*tabs, below(random, static_cast<int>(tabs->pages.size())));
    const bool presses = dynamic_cast<Choice*>(&control) != nullptr ||
                         std::find(editing.begin(), editing.end(), control.name) != editing.end();
    if (presses) form.press(control);
}

class UndoOfModule : public testing::TestWithParam<std::string> {};

TEST_P(UndoOfModule, LeadsBackToTheStartAndForthToTheEnd) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Random random(seed);
        const TemporaryFolder folder;
        std::ostringstream transcript;
        AnsweringUser user(transcript, random);
        Platform parts = user.parts();
        Suite suite(parts, moduleList());
        suite.ioFolder = suite.installFolder = textOf(folder.path()) + "/";
        // The simulator makes no file for a name that isn't there.
        if (GetParam() == "SCSIM")
            std::filesystem::copy_file(VANTORE_SOURCE_FOLDER "/install/SIM01.dat", folder.path() / "NEW.dat");
        Launcher launcher(suite);
        launcher.press(*launcher.moduleButton(GetParam()));
        auto& module = dynamic_cast<ModuleFrame&>(*suite.windows.front());
        Control* open = module.find("cmdOpen");
        if (open == nullptr) open = module.find("cmdOpenFile");
        if (open == nullptr) open = module.find("OpenF");
        if (open != nullptr) module.press(*open);
        if (Control* editor = module.find("cmdData")) module.press(*editor);
        const FormState start = stateOf(module);
        for (int i = 0; i < 1000 && module.view() == View::Data; ++i) act(module, random);
        ASSERT_EQ(module.view(), View::Data);
        const FormState end = stateOf(module);
        EXPECT_FALSE(start == end) << "seed " << seed;
        int steps = 0;
        for (; module.canUndo(); ++steps) module.undo();
        EXPECT_TRUE(stateOf(module) == start) << "seed " << seed;
        EXPECT_GT(steps, 20) << "seed " << seed;
        for (; module.canRedo(); --steps) module.redo();
        EXPECT_TRUE(stateOf(module) == end) << "seed " << seed;
        EXPECT_EQ(steps, 0);
    }
}

std::vector<std::string> captions() {
    std::vector<std::string> names;
    for (const ModuleEntry& module : moduleList()) names.push_back(module.caption);
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, UndoOfModule, testing::ValuesIn(captions()),
                         [](const auto& test) { return test.param; });

} // namespace
} // namespace vantore::tests
