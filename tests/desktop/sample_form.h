#pragma once

#include <QApplication>
#include <functional>

#include "desktop/form_window.h"
#include "shell/grid_rows.h"

namespace vantore::tests {

/// A window with one control of each kind.
class SampleForm : public Form {
  public:
    explicit SampleForm(Scale scale = {}) : Form("SAMPLE", scale) {
        caption = "SAMPLE - a window";
        lblName.caption = "Name of the problem:";
        txtName.onLeave = [this] { log += "left "; };
        lblName.buddy = &txtName;
        frame.caption = "Method";
        option1.caption = "&Exact";
        option2.caption = "&Heuristic";
        option1.container = option2.container = &frame;
        option1.selected = true;
        check.caption = "Show &numbers";
        tabs.pages = {"&Points", "&Costs"};
        onFirst.caption = "On the first page";
        onSecond.caption = "On the second page";
        onFirst.container = onSecond.container = &tabs;
        onSecond.page = 1;
        list.items = {"north", "south", "west"};
        list.onSelect = [this] { log += "selected "; };
        list.onOpen = [this] { log += "opened "; };
        surface.seen = [this] { return surfaceSeen; };
        cmdSolve.caption = "&Solve";
        cmdSolve.tip = "Finds the best plan";
        cmdSolve.onPress = [this] { log += "solved "; };
        shapeGrid();
        focus = &cmdSolve;
    }

    void interrupt() override { log += "interrupted "; }
    void close() override { log += "closed "; }

    std::string log;
    bool surfaceSeen = true;

    Label& lblName = add<Label>("lblName", Rect{120, 120, 2000, 270});
    TextBox& txtName = add<TextBox>("txtName", Rect{2200, 90, 3000, 315});
    Container& frame = add<Container>("frame", Rect{5400, 60, 4000, 700});
    Option& option1 = add<Option>("option1", Rect{5550, 300, 1600, 300});
    Option& option2 = add<Option>("option2", Rect{7300, 300, 1600, 300});
    CheckBox& check = add<CheckBox>("check", Rect{120, 480, 2400, 300});
    DataGrid& grid = add<DataGrid>("grid", Rect{120, 840, 4500, 2400});
    Container& tabs = add<Container>("tabs", Rect{4800, 840, 4600, 1200});
    Label& onFirst = add<Label>("onFirst", Rect{5000, 1400, 3000, 270});
    Label& onSecond = add<Label>("onSecond", Rect{5000, 1400, 3000, 270});
    ReportScreen& report = add<ReportScreen>("report", Rect{4800, 2100, 4600, 1140});
    PictureSurface& surface = add<PictureSurface>("surface", Rect{120, 3300, 4500, 3000}, scale());
    Chart& chart = add<Chart>("chart", Rect{4800, 3300, 4600, 3000});
    Button& cmdSolve = add<Button>("cmdSolve", Rect{120, 6450, 1510, 320});
    ListBox& list = add<ListBox>("list", Rect{2000, 6350, 1400, 800});
    Picture& picture = add<Picture>("picture", Rect{8000, 6350, 1400, 800});

  private:
    void shapeGrid() {
        grid.setCols(5);
        grid.setRows(41);
        grid.setRowHeight(0, 2 * designRowHeight);
        grid.setCell(0, 1, " \r\nLabel");
        grid.setCell(0, 2, "X coor-\r\ndinate");
        for (int row = 1; row < grid.rows(); ++row) grid.setCell(row, 0, std::to_string(row));
        grid.holdsNumbers = [](int col) { return col > 1; };
        grid.onKey = [this](int code) { cellKeyPress(grid, code); };
        grid.onInsertKey = [this] { log += "insert "; };
        grid.onCellClick = [this](int row, int col) {
            log += "click " + std::to_string(row) + "," + std::to_string(col) + " ";
        };
    }
};

/// Steps without a session: the action, then the window.
class PlainSteps : public WindowSteps {
  public:
    void step(const std::function<void()>& action) override {
        action();
        if (window != nullptr) window->refresh();
    }
    std::string outputFolder() const override { return folder; }

    FormWindow* window = nullptr;
    std::string folder = "/tmp";
};

/// A form in a window that is shown.
template <class AForm>
struct OpenWindow {
    explicit OpenWindow(AForm& form) : window(form, steps, nullptr) {
        steps.window = &window;
        window.resize(designSize(form));
        window.refresh();
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    template <class Widget = QWidget>
    Widget& widget(const Control& control) {
        return *static_cast<Widget*>(window.widgetOf(control));
    }

    PlainSteps steps;
    FormWindow window;
};

} // namespace vantore::tests
