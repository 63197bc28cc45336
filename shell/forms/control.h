#pragma once

#include <compare>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "shell/forms/grid_cells.h"

namespace vantore {

/// Factors from the 800x600 design to the screen: width / 800 and height / 600.
struct Scale {
    double x = 1;
    double y = 1;
};

/// A place in a window in twips (1/1440 inch, 15 to the pixel) of the 800x600 design.
struct Rect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
};

constexpr double twipsPerPixel = 15;

/// A font as the suite names it. The size is in points, already multiplied by the scale factor.
struct Font {
    std::string family = "MS Sans Serif";
    double size = 8;
    bool bold = false;

    auto operator<=>(const Font&) const = default;
};

/// A block of cells, both corners included.
struct CellBlock {
    int startRow = 1;
    int endRow = 1;
    int startCol = 1;
    int endCol = 1;
};

/// All that a user edits in a grid, and where he stands in it.
struct GridContent {
    GridCells cells;
    std::vector<double> colWidths, rowHeights; ///< twips of the design
    int rowCount = 0;
    int row = 1, col = 1; ///< the current cell
    CellBlock selection;

    /// Equal cells; moving in a grid changes nothing.
    bool operator==(const GridContent& other) const {
        return rowCount == other.rowCount && cells == other.cells;
    }
};

/// What a user can edit of a control: a box's text, whether a choice is selected, a grid's cells.
using Content = std::variant<std::monostate, std::string, bool, GridContent>;

class Container;

/// Anything in a window that has a name. What a user sees of it is data; whoever draws it reads the data
/// again after each step.
class Control {
  public:
    explicit Control(std::string controlName, Rect place = {})
        : name(std::move(controlName)), design(place) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Wants to be seen, in a shown container and on its selected page.
    bool shown() const;

    bool enabled() const { return !usable || usable(); }

    /// The caption or text that the control shows.
    virtual std::string shownText() const { return caption; }

    /// What a user can edit, and the same put back without telling anybody.
    virtual Content content() const { return {}; }
    virtual void restore(const Content& /*content*/) {}

    const std::string name;
    std::string caption; ///< An & marks the mnemonic letter.
    std::string tip;
    Rect design;
    std::function<bool()> seen;   ///< Asked whenever the control is drawn; empty: always seen.
    std::function<bool()> usable; ///< The same of being enabled.
    bool result = false;          ///< Shows a result: not the user's to edit, and no part of the history.
    double fontSize = 8;          ///< Design size in points; drawn at fontSize x scale.
    bool bold = false;
    int textColour = 0; ///< Palette number.
    const Container* container =
        nullptr;  ///< What it stands in. Its place counts from the window all the same.
    int page = 0; ///< The container's page, from 0.
};

/// A frame around other controls, or with pages a tab control of which one page is selected. Hiding it hides
/// what stands in it.
class Container : public Control {
  public:
    using Control::Control;

    std::vector<std::string> pages; ///< The captions; none in a frame.
    int selected = 0;
    std::function<void()> onSelect;
};

class Button : public Control {
  public:
    using Control::Control;

    std::function<void()> onPress;
};

/// What is selected or not.
class Choice : public Control {
  public:
    using Control::Control;

    Content content() const override { return result ? Content{} : Content{selected}; }
    void restore(const Content& content) override { selected = std::get<bool>(content); }

    bool selected = false;
    std::function<void()> onPress;
};

/// One of several choices; pressing it clears the other options on the same page of the same container.
class Option : public Choice {
  public:
    using Choice::Choice;

    bool rivals(const Option& other) const { return container == other.container && page == other.page; }
};

class CheckBox : public Choice {
  public:
    using Choice::Choice;
};

enum class Alignment { Left, Centre, Right };

class Label : public Control {
  public:
    using Control::Control;

    Alignment alignment = Alignment::Left;
    const Control* buddy = nullptr; ///< The box that the label names.
};

class DataGrid;

/// A cell of a grid.
struct CellReference {
    DataGrid* grid = nullptr;
    int row = 0;
    int col = 0;
};

class TextBox : public Control {
  public:
    using Control::Control;

    std::string shownText() const override { return text_; }
    Content content() const override { return result ? Content{} : Content{text_}; }
    void restore(const Content& content) override { text_ = std::get<std::string>(content); }

    const std::string& text() const { return text_; }

    /// Shows a text without telling anybody.
    void show(std::string text) { text_ = std::move(text); }

    /// Sets the text and tells `onChange`, also when the text is the same as before.
    void setText(std::string text);

    std::function<void()> onChange;
    std::function<void()> onLeave; ///< The focus moves away.

    bool selectsOnFocus = false; ///< All its text is marked when it gets the focus.

    /// The cell whose text the box shows, where it shows one: what a user types goes into the cell.
    std::optional<CellReference> cell;

  private:
    std::string text_;
};

/// A list of texts, one of which may be selected.
class ListBox : public Control {
  public:
    using Control::Control;

    std::string shownText() const override;

    std::vector<std::string> items;
    int selected = -1;              ///< From 0; -1 when none is.
    std::function<void()> onSelect; ///< Another item is selected.
    std::function<void()> onOpen;   ///< The selected item is double-clicked, or Enter pressed on it.
};

/// A drawing that only adorns a window, such as a module's start picture.
class Picture : public Control {
  public:
    using Control::Control;

    std::string image; ///< Name of the drawing, such as "COG".
};

} // namespace vantore
