#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/forms/chart.h"
#include "shell/forms/control.h"
#include "shell/forms/data_grid.h"
#include "shell/forms/edit_history.h"
#include "shell/forms/picture_surface.h"
#include "shell/forms/report_screen.h"

namespace vantore {

constexpr double moduleWindowWidth = 9600; ///< twips of the design
constexpr double moduleWindowHeight = 7200;

/// A window as data: its controls in tab order, and what a user can do to them.
///
/// The operations named after a user's actions (press, type, ...) do nothing on a control that isn't shown
/// or isn't enabled; whoever plays a user asks `accepts` first where it wants to say why.
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

    /// A user's actions.
    static bool accepts(const Control& control) { return control.shown() && control.enabled; }
    void press(Control& control);
    void type(TextBox& box, std::string text);
    void leave(TextBox& box);
    void select(DataGrid& grid, const CellBlock& block);
    void click(DataGrid& grid, int row, int col);
    void doubleClick(DataGrid& grid);
    void key(DataGrid& grid, int code);
    void insertKey(DataGrid& grid);
    void paste(DataGrid& grid, std::string_view tabbedText);
    static std::string copied(const DataGrid& grid);
    void selectPage(TabControl& tabs, int page);
    void undo();
    void redo();

    /// The title bar's close button.
    virtual void close() { closed = true; }

    /// Ctrl+C where no text is marked: stops what is running, where something is.
    virtual void interrupt() {}

    std::string caption;
    double width = moduleWindowWidth; ///< twips of the design
    double height = moduleWindowHeight;
    int backColour = buttonFace;
    bool enabled = true;
    bool visible = true;
    bool closed = false;      ///< The window is gone; its owner unloads it.
    Control* focus = nullptr; ///< Where the keyboard goes next; the drawer takes it and sets nullptr.
    std::string runningNote;  ///< Told to the user while a solver runs; empty otherwise.

    static constexpr int buttonFace = -1; ///< The system's colour of button faces as back colour.

  protected:
    template <class T, class... Arguments>
    T& add(std::string name, Arguments&&... arguments) {
        auto control = std::make_unique<T>(std::move(name), std::forward<Arguments>(arguments)...);
        T& reference = *control;
        controls_.push_back(std::move(control));
        return reference;
    }

    EditHistory& history() { return history_; }
    void setScale(Scale scale) { scale_ = scale; }

    /// Every handler of the window runs through here.
    virtual void run(const Control& control, const std::function<void()>& handler);

  private:
    Edit typeOver(DataGrid& grid, int row, int col, std::string_view text);

    std::string name_;
    Scale scale_;
    std::vector<std::unique_ptr<Control>> controls_;
    EditHistory history_;
};

} // namespace vantore
