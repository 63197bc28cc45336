#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <filesystem>
#include <vector>

#include "desktop/form_window.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

/// A further view of a module and the steps that lead there from the one before.
struct View {
    const char* name;
    const char* steps;
};

struct ModuleTour {
    const char* module;
    const char* file;
    std::vector<View> views;
};

const std::vector<ModuleTour>& tours() {
    static const std::vector<ModuleTour> all = {
        {"COG",
         "COG01.dat",
         {{"report", "answer 1\nanswer Yes\nanswer Yes\nanswer No\npress cmdSolve"},
          {"plot", "answer Yes\npress cmdPlot"}}},
        {"FORECAST", "FRC02.dat", {{"report", "press cmdSolve"}, {"plot", "answer 2\npress cmdPlot"}}},
        {"INPOL", "INV01.dat", {{"report", "press cmdSolve"}}},
        {"LAYOUT", "LOUT01.dat", {{"report", "press cmdSolve"}}},
        {"LNPROG", "FLP01.dat", {{"report", "press cmdSolve"}}},
        {"MIPROG", "ILP01.dat", {}},
        {"MULREG", "REG01.dat", {{"report", "press cmdSolve"}}},
        {"MULTICOG",
         "MCOG02.dat",
         {{"report", "answer 4\nanswer 1\npress cmdSolve"}, {"plot", "answer Yes\npress cmdPlot"}}},
        {"PMED", "PMED02.dat", {}},
        {"TRANLP", "TRAN01.dat", {{"result", "press cmdSolve"}, {"report", "press cmdReport"}}}};
    return all;
}

class NoSteps : public WindowSteps {
  public:
    void step(const std::function<void()>& action) override { action(); }
    std::string outputFolder() const override { return "/tmp"; }
};

struct Screen {
    int width, height;
    double larger; ///< the window's size against its design
};

const std::string longText = "A text that is longer than any place for it in a window has room to show: "
                             "so it is cut there, and comes whole as a tip when the pointer rests on it";

/// Puts a long text where a user can type one that is no number.
void typeLongTexts(Form& form) {
    for (const auto& control : form.controls()) {
        auto* box = dynamic_cast<TextBox*>(control.get());
        if (box != nullptr && box->name.find("abel") != std::string::npos) form.type(*box, longText);
        auto* grid = dynamic_cast<DataGrid*>(control.get());
        if (grid != nullptr && grid->shown() && !grid->numeric(1)) form.typeCell(*grid, 1, 1, longText);
    }
}

class ModuleWindows : public testing::TestWithParam<ModuleTour> {
  protected:
    void show(const std::string& name, const Screen& screen, Form& form) {
        NoSteps steps;
        FormWindow window(form, steps, nullptr);
        window.resize(designSize(form) * screen.larger);
        window.refresh();
        window.show();
        QApplication::processEvents();
        check(name, window);
        const QString shot = QString("%1-%2-%3x%4.png")
                                 .arg(GetParam().module, qtText(name))
                                 .arg(window.width())
                                 .arg(window.height());
        std::filesystem::create_directories("module_windows");
        window.grab().save("module_windows/" + shot);
    }

    static void check(const std::string& view, FormWindow& window) {
        const Form& form = window.form();
        for (const auto& control : form.controls()) {
            if (!control->shown()) continue;
            QWidget& widget = *window.widgetOf(*control);
            const std::string what = view + ", " + control->name;
            EXPECT_TRUE(widget.parentWidget()->rect().adjusted(-1, -1, 1, 1).contains(widget.geometry()))
                << what << " is cut";
            const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&widget);
            EXPECT_NE(heard->text(QAccessible::Name), "") << what << " has no name";
            const bool hasText = dynamic_cast<const Button*>(control.get()) != nullptr ||
                                 dynamic_cast<const Label*>(control.get()) != nullptr ||
                                 dynamic_cast<const TextBox*>(control.get()) != nullptr;
            const double points = qtFont({.size = control->fontSize * form.scale().x}).pointSizeF();
            EXPECT_TRUE(!hasText || widget.font().pointSizeF() >= .799 * points) << what << " is too small";
        }
    }
};

TEST_P(ModuleWindows, AreWholeAndNamedAtEverySize) {
    for (const Screen& screen : {Screen{800, 600, 1}, Screen{800, 600, 1.6}, Screen{1024, 768, 1},
                                 Screen{1920, 1080, 1}, Screen{1600, 1200, 1}}) {
        ModuleSession session(screen.width, screen.height);
        const std::filesystem::path sample =
            std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / GetParam().file;
        session.writeFile(GetParam().file, readTextFile(sample));
        session.play("module " + std::string(GetParam().module));
        show("start", screen, session.module());
        session.play("file " + std::string(GetParam().file) + "\npress cmdOpen");
        show("data", screen, session.module());
        typeLongTexts(session.module());
        show("long", screen, session.module());
        for (const View& view : GetParam().views) {
            session.play(view.steps);
            show(view.name, screen, session.module());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Suite, ModuleWindows, testing::ValuesIn(tours()),
                         [](const auto& info) { return info.param.module; });

} // namespace
} // namespace vantore::tests
