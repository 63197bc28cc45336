#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/base/pasted_number.h"
#include "shell/forms/chart.h"
#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"
#include "shell/forms/history.h"
#include "shell/forms/picture_surface.h"
#include "shell/forms/report_screen.h"

namespace vantore {

constexpr double moduleWindowWidth = 9600; ///< twips of the design
constexpr double moduleWindowHeight = 7200;

/// A window as data: its controls in tab order, and what a user can do to them.
///
/// The operations named after a user's actions (press, type, ...) do nothing on a control that isn't shown
/// or isn't enabled; whoever plays a user asks `accepts` first where it wants to say why. All of them run
/// the window's handlers through `run`, and what they change can be undone.
class Form {
  public:
    Form(std::string name, Scale scale);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    Scale scale() const { return scale_; }
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    /// The control of that name without regard to case, nullptr when there is none.
    Control* find(std::string_view name) const;

    static bool accepts(const Control& control) { return control.shown() && control.enabled(); }

    // A user's actions. One on a cell outside its grid does nothing.

    void press(Control& control);
    void type(TextBox& box, const std::string& text);
    void leave(TextBox& box);
    void select(DataGrid& grid, const CellBlock& block);
    void click(DataGrid& grid, int row, int col);
    void doubleClick(DataGrid& grid, int row, int col);

    /// One character typed into the current cell.
    void key(DataGrid& grid, int code);

    /// The Enter key: its character, then the cell below becomes current.
    void enterKey(DataGrid& grid);

    /// Replaces a cell's text by one typed key by key.
    void typeCell(DataGrid& grid, int row, int col, std::string_view text);

    void insertKey(DataGrid& grid);

    /// Pastes lines of tab-separated cells at the current cell, each typed key by key, a number in a column
    /// of numbers as `marks` and the user's habits write it. All of them or none.
    void paste(DataGrid& grid, std::string_view tabbedText, NumberMarks marks = {});

    /// The highlighted block as lines of tab-separated cells.
    static std::string copied(const DataGrid& grid);

    void selectPage(Container& tabs, int page);
    void selectItem(ListBox& list, int item);
    void openItem(ListBox& list);

    /// Looks at a plot from nearer (steps above 0) or farther, and moves what is seen.
    void zoom(PictureSurface& surface, int steps);
    void pan(PictureSurface& surface, int stepsRight, int stepsDown);

    /// Takes the last action back, or makes it again, wherever the focus is.
    void undo();
    void redo();
    bool canUndo() const { return editable() && history_.canUndo(); }
    bool canRedo() const { return editable() && history_.canRedo(); }

    /// The title bar's close button.
    virtual void close() { closed = true; }

    /// Ctrl+C where no text is marked: stops what is running, where something is.
    virtual void interrupt() {}

    /// The window has come to the front again.
    virtual void uncovered() {}

    std::string caption;
    double width = moduleWindowWidth; ///< twips of the design
    double height = moduleWindowHeight;
    int backColour = buttonFace;
    bool enabled = true;
    bool closed = false;      ///< The window is gone; its owner unloads it.
    Control* focus = nullptr; ///< Where the keyboard goes next; the drawer takes it and sets nullptr.
    const Control* askedAbout = nullptr; ///< What a dialog should leave in sight.
    std::string runningNote;             ///< Told to the user while a solver runs; empty otherwise.

    static constexpr int buttonFace = -1; ///< The system's colour of button faces as back colour.

  protected:
    template <class T, class... Arguments>
    T& add(std::string name, Arguments&&... arguments) {
        auto control = std::make_unique<T>(std::move(name), std::forward<Arguments>(arguments)...);
        T& reference = *control;
        controls_.push_back(std::move(control));
        return reference;
    }

    void setScale(Scale scale) { scale_ = scale; }

    /// Forgets what could be undone: another problem has been opened.
    void forgetHistory();

    /// The window shows what a user edits, so that a change taken back can be seen.
    virtual bool editable() const { return true; }

    /// A state has been put back by undo or redo.
    virtual void restored() {}

    /// Every handler of the window runs through here.
    virtual void run(const Control& control, const std::function<void()>& handler);

  private:
    FormState state() const;
    void act(const EditedField& field, const std::function<void()>& handler);
    void actAside(Control& control, const std::function<void()>& handler);
    void putBack(const History::Target& target);
    void reveal(const Control& control);
    static void pasteCells(DataGrid& grid, const std::vector<std::vector<std::string>>& cells,
                           NumberMarks marks);

    std::string name_;
    Scale scale_;
    std::vector<std::unique_ptr<Control>> controls_;
    History history_;
    int epoch_ = 0; ///< rises when the history is forgotten
};

} // namespace vantore
