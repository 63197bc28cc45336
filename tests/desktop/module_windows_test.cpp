#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTabBar>
#include <filesystem>
#include <vector>

#include "desktop/form_window.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"
#include "tests/support/module_session.h"

namespace vantore::tests {
namespace {

namespace fs = std::filesystem;

/// A further view of a module and the steps that lead there from the one before.
struct View {
    const char* name;
    const char* steps;
};

struct ModuleTour {
    const char* module;
    std::vector<const char*> files; ///< samples; the first is the problem that is shown
    const char* open;               ///< the button that opens it; none where there are no files
    std::vector<View> views;
    const char* solver = nullptr; ///< the program that Solve runs, if any
};

const std::vector<ModuleTour>& tours() {
    static const std::vector<ModuleTour> all = {
        {"COG",
         {"COG01.dat"},
         "cmdOpen",
         {{"report", "answer 1\nanswer Yes\nanswer Yes\nanswer No\npress cmdSolve"},
          {"plot", "answer Yes\npress cmdPlot"}}},
        {"FORECAST",
         {"FRC02.dat"},
         "cmdOpen",
         {{"plotdata", "press cmdPlot"},
          {"report", "press cmdContinue\npress cmdSolve"},
          {"plot", "answer 2\npress cmdPlot"},
          {"forecast", "press cmdContinue\nanswer 3\npress cmdPlot"}}},
        {"INPOL",
         {"INV01.dat"},
         "cmdOpen",
         {{"report", "press cmdSolve"},
          {"plot", "answer 1\nanswer 1\nanswer 1\npress cmdPlot"},
          {"cost_by_inventory", "press cmdContinue\nanswer 1\nanswer 1\nanswer 2\npress cmdPlot"},
          {"inventory_by_level", "press cmdContinue\nanswer 1\nanswer 1\nanswer 3\npress cmdPlot"},
          {"inventory_by_service", "press cmdContinue\nanswer 1\nanswer 1\nanswer 4\npress cmdPlot"},
          {"review", "press cmdContinue\nanswer 2\nanswer 1\nanswer 3\npress cmdPlot"}}},
        {"LAYOUT", {"LOUT01.dat"}, "cmdOpen", {{"report", "press cmdSolve"}}},
        {"LNPROG", {"FLP01.dat"}, "cmdOpen", {{"report", "press cmdSolve"}}},
        {"MILES",
         {},
         nullptr,
         {{"degrees", "press optLatLng"},
          {"result", "type txtOrgLat 40.44\ntype txtOrgLong 80\ntype txtDestLat 41.88\n"
                     "type txtDestLong 87.63\npress cmdCalc"}}},
        {"MIPROG", {"ILP01.dat"}, "cmdOpen", {{"report", "answer Yes\npress cmdSolve"}}, "MIP.EXE"},
        {"MULREG",
         {"REG01.dat"},
         "cmdOpen",
         {{"report", "press cmdSolve"}, {"plot", "answer 1\nanswer 2\npress cmdPlotData"}}},
        {"MULTICOG",
         {"MCOG02.dat"},
         "cmdOpen",
         {{"report", "answer 4\nanswer 1\npress cmdSolve"}, {"plot", "answer Yes\npress cmdPlot"}}},
        {"PMED",
         {"PMED02.dat"},
         "cmdOpen",
         {{"report", "type txtNoLoc 4\npress cmdSolve"}, {"plot", "answer Yes\npress cmdPlot"}},
         "PMED.EXE"},
        {"ROUTE",
         {"RFL03.dat"},
         "cmdOpenFile",
         {{"report", "press cmdSolve"},
          {"plot", "press cmdContinue\npress cmdPlot"},
          {"path", "answer 1\npress cmdPath"},
          {"zoom", "answer +\npress cmdZoom"}}},
        {"ROUTER",
         {"RTR03.dat"},
         "cmdOpen",
         {{"page0", "press cmdData\ntab 0"},
          {"page1", "tab 1"},
          {"page2", "tab 2"},
          {"page3", "tab 3"},
          {"page4", "tab 4"},
          {"page5", "tab 5"},
          {"page6", "tab 6"},
          {"page7", "tab 7"},
          {"page8", "tab 8"},
          {"plot", "answer 1\npress cmdContinueValid\npress cmdSolve"},
          {"report", "press cmdContinuePlot\nanswer Plan A\npress cmdReport"}},
         "OPTMZR.EXE"},
        {"ROUTESEQ",
         {"RSEQ01.dat"},
         "cmdOpen",
         {{"report", "answer 1\npress cmdSolve"},
          {"plot", "press cmdContinue\nanswer Yes\nanswer Yes\npress cmdPlot"}}},
        {"SCSIM",
         {"SIM03.dat"},
         "OpenF",
         {{"page1", "tab 1"},
          {"page2", "tab 2"},
          {"page3", "tab 3"},
          {"page4", "tab 4"},
          {"page5", "tab 5"},
          {"page6", "tab 6"},
          {"page7", "tab 7"},
          {"demand", "answer 2\npress PlotDemand"},
          {"solved", "press Continue1\npress Solve"},
          {"reports", "press Report"},
          {"report", "answer 1\nanswer 4\npress cmdReport"},
          {"plot", "press cmdReturn\nanswer 3\nanswer 1\nanswer 4\npress cmdPlot"},
          {"sales", "press cmdReturn\npress RetOpt\npress SalesOpt\nanswer 2\nanswer 1\nanswer 4\n"
                    "answer Yes\npress cmdPlot"},
          {"inventory", "press cmdReturn\npress WhseOpt\npress InvOpt\nanswer 1\nanswer 2\nanswer 2\n"
                        "press cmdPlot"},
          {"orders", "press cmdReturn\npress DistOpt\npress OROpt\nanswer 1\nanswer 1\n"
                     "press cmdPlot"}}},
        {"TRANLP", {"TRAN01.dat"}, "cmdOpen", {{"result", "press cmdSolve"}, {"report", "press cmdReport"}}},
        {"WARELOCA",
         {"LTH01.dat"},
         "cmdOpen",
         {{"plants", "tab 0"},
          {"warehouses", "tab 1"},
          {"customers", "tab 2"},
          {"report", "press cmdSolve"},
          {"plot", "answer 5\nanswer Yes\nanswer Yes\npress cmdPlot"}},
         "WARELO.EXE"}};
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
                             "so it is cut there and comes whole as a tip when the pointer rests on it";

/// Puts a long text where a user can type one that is no number and no letter of a choice.
void typeLongTexts(Form& form) {
    for (const auto& control : form.controls()) {
        auto* box = dynamic_cast<TextBox*>(control.get());
        if (box != nullptr && (box->name.ends_with("abel") || box->name.ends_with("Title")))
            form.type(*box, longText);
        auto* grid = dynamic_cast<DataGrid*>(control.get());
        if (grid == nullptr || !grid->shown()) continue;
        for (int column = 1; column < grid->cols() && grid->rows() > 1; ++column)
            if (!grid->numeric(column) && grid->cell(1, column).size() > 1)
                form.typeCell(*grid, 1, column, longText);
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
        fs::create_directories("module_windows");
        window.grab().save("module_windows/" + shot);
    }

    static void check(const std::string& view, FormWindow& window) {
        for (const QTabBar* bar : window.findChildren<QTabBar*>())
            EXPECT_TRUE(!bar->isVisible() || bar->sizeHint().width() <= bar->width())
                << view << ": captions of tabs are cut";
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
        for (const char* file : GetParam().files)
            session.writeFile(file, readTextFile(fs::path(VANTORE_SOURCE_FOLDER) / "install" / file));
        if (GetParam().solver != nullptr)
            for (const char* file : {GetParam().solver, "MAP.DAT", "FIL.DAT", "OLDSOL.DAT"})
                fs::copy(fs::path(VANTORE_PROGRAM_FOLDER) / file, session.installFolder());
        session.play("module " + std::string(GetParam().module));
        show("start", screen, *session.front());
        if (GetParam().open != nullptr) {
            session.play("file " + std::string(GetParam().files.front()) + "\npress " + GetParam().open);
            show("data", screen, *session.front());
        }
        typeLongTexts(*session.front());
        show("long", screen, *session.front());
        for (const View& view : GetParam().views) {
            session.play(view.steps);
            show(view.name, screen, *session.front());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Suite, ModuleWindows, testing::ValuesIn(tours()),
                         [](const auto& info) { return info.param.module; });

} // namespace
} // namespace vantore::tests
