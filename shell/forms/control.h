#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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

    bool operator==(const Font&) const = default;
};

class Frame;
class TabControl;

/// Anything in a window that has a name. What a user sees of it is data; whoever draws it reads the data
/// again after each step.
class Control {
  public:
    explicit Control(std::string controlName, Rect place = {})
        : name(std::move(controlName)), design(place) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Visible itself, in a shown frame, and on the selected page of its tab control.
    bool shown() const;

    /// The caption or text that the control shows.
    virtual std::string shownText() const { return caption; }

    const std::string name;
    std::string caption; ///< An & marks the mnemonic letter.
    std::string tip;
    Rect design;
    bool visible = true;
    bool enabled = true;
    double fontSize = 8; ///< Design size in points; drawn at fontSize x scale.
    bool bold = false;
    int textColour = 0; ///< Palette number.
    const Frame* frame =
        nullptr; ///< The frame it stands in. Its design place counts from the window all the same.
    const TabControl* tabs = nullptr; ///< The tab control on one of whose pages it stands.
    int page = 0;                     ///< The page, from 0.
};

/// A frame around other controls; hiding it hides them.
class Frame : public Control {
  public:
    using Control::Control;
};

/// A control of pages, one of which is selected.
class TabControl : public Control {
  public:
    using Control::Control;

    std::vector<std::string> pages; ///< The captions.
    int selected = 0;
    std::function<void()> onSelect;
};

class Button : public Control {
  public:
    using Control::Control;

    std::function<void()> onPress;
};

/// One of several choices; pressing it clears the other options of the same frame.
class Option : public Control {
  public:
    using Control::Control;

    bool selected = false;
    std::function<void()> onPress;
};

class CheckBox : public Control {
  public:
    using Control::Control;

    bool selected = false;
    std::function<void()> onPress;
};

enum class Alignment { Left, Centre, Right };

class Label : public Control {
  public:
    using Control::Control;

    Alignment alignment = Alignment::Left;
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

    const std::string& text() const { return text_; }

    /// Sets the text and tells `onChange`, also when the text is the same as before.
    void setText(std::string text);

    std::function<void()> onChange;
    std::function<void()> onLeave; ///< The focus moves away.

    /// The cell whose text the box shows, where it shows one: what a user types goes into the cell.
    std::optional<CellReference> cell;

  private:
    std::string text_;
};

/// A drawing that only adorns a window, such as a module's start picture.
class Picture : public Control {
  public:
    using Control::Control;

    std::string image; ///< Name of the drawing, such as "COG".
};

} // namespace vantore
