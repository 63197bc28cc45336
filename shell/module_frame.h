#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "shell/base/item_stream.h"
#include "shell/base/message.h"
#include "shell/base/print_lines.h"
#include "shell/base/runtime_error.h"
#include "shell/forms/print_job.h"
#include "shell/grid_rows.h"
#include "shell/module_wording.h"
#include "shell/size_box.h"
#include "shell/solver_run.h"
#include "shell/suite_window.h"

namespace vantore {

/// What a module's window shows. Result is what some modules show between the data and the report.
enum class View { Start, Data, Result, Report, Plot };

/// How a report file looks in the report box. Sizes are points of the design.
struct ReportStyle {
    Font title = {"Arial", 12, false};
    Font body = {"Courier New", 9, false};
    int titleColour = colour::lightBlue;
    bool starredHeadings = false; ///< A line that begins with "*" shows bold in colour 9 without the star.
};

/// The window of a module: the patterns that all modules share. A module adds its controls, tells in which
/// views each is seen, gives the frame its file's reader and writer, and overrides `solve` and `printData`.
class ModuleFrame : public SuiteWindow {
  public:
    ModuleFrame(Suite& suite, const ModuleWording& wording);

    View view() const { return view_; }
    const std::string& currentFile() const { return currentFile_; }

    void close() override;
    void interrupt() override;

  protected:
    // What a module gives; one without a problem file leaves the first three.

    /// The text of a new problem's file; empty where a missing file is an error.
    virtual std::string defaultSkeleton() const { return {}; }

    /// Reads a problem file and puts it into the controls. It reads whole before it puts anything.
    virtual void readProblem(ItemReader& /*reader*/) {}

    /// Writes the problem in the controls as the module's items.
    virtual void writeProblem(ItemWriter& /*writer*/) {}

    virtual void solve() {}
    virtual void printData() {}

    /// Fills the blanks of the grids before Save; by itself of every grid with rows.
    virtual void fillBlankCells();

    /// False, after a message of its own, when the problem can't be saved under that bare, upper-case name.
    virtual bool mayBeSavedAs(const std::string& /*upperCaseName*/) { return true; }

    /// False, after a message of its own, when the problem isn't fit to be written; the Save ends there.
    virtual bool mayBeWritten() { return true; }

    /// Column arithmetic on the grid in use.
    virtual void computeColumn();

    // The operations.

    void openProblem();
    bool saveProblem();
    void exitModule();
    void excelEdit();
    void addRow();
    void deleteRow();
    void continueToData() { showView(View::Data); }

    /// Tells a fault, and leads back to the data.
    void backToData(const Message& fault);

    /// Prints the plot or puts it on the clipboard, as the user answers.
    void printPlotImage();

    /// Prints the window as it stands, for a report that is a picture.
    void printWindowReport();

    /// The runs of the module's solver program.
    SolverRun solver;

    /// Writes a report to a file of `ioFolder`.
    void writeReportFile(const PrintLines& page, const std::string& name = "OUTPUT.DAT");

    /// Shows the report view with the lines of that file.
    void showReportFile(const ReportStyle& style = {}, const std::string& name = "OUTPUT.DAT");

    /// Shows the report view with these lines; the first is the title.
    void showReportLines(const std::vector<std::string>& lines, const ReportStyle& style = {});

    /// Prints OUTPUT.DAT, and these lines in the same way.
    virtual void printReport();
    void printReportLines(const std::vector<std::string>& lines);

    /// Prints a document and ends the job.
    void print(const PrintJob& job) { suite().platform.printer.print(job); }

    // The views.

    /// Makes a control be seen in these views alone; `when` adds a question that is asked in them.
    class Seen {
      public:
        explicit Seen(Control& control) : control_(control) {}
        void when(std::function<bool()> condition) const;

      private:
        Control& control_;
    };
    Seen seenIn(Control& control, std::initializer_list<View> views);

    /// Enters a view. Outcomes begin with the focus on Continue, the data with it on the grid.
    void showView(View view);

    /// A control that a user may use once a file is open.
    void enabledByOpen(Control& control);
    bool opened() const { return view_ != View::Start; }

    // Controls.

    /// A place of the button rows at the foot of the window: row 0 or 1, column 0 to 5.
    static Rect buttonPlace(int row, int column);

    Button& addButton(const std::string& name, const std::string& caption, Rect place,
                      std::initializer_list<View> views, std::function<void()> onPress);
    TextBox& addTextBox(const std::string& name, Rect place, const std::string& text = "");
    Label& addLabel(const std::string& name, const std::string& caption, Rect place,
                    std::initializer_list<View> views);

    /// Where captions with their boxes stand, row by row: twips of the design.
    struct FieldColumn {
        double left, top;
        double captionWidth, boxWidth;
        double step = 420;
        double boxHeight = 315;
        const Container* container = nullptr;
        int page = 0;
    };

    /// A caption (named after the box, "lblLabel" of "txtLabel") with its box; the column goes on under it.
    TextBox& addField(FieldColumn& column, const std::string& name, const std::string& caption);

    Container& addContainer(const std::string& name, const std::string& caption, Rect place,
                            std::initializer_list<View> views);

    /// An option or a check box in a container.
    Option& addOption(const std::string& name, const std::string& caption, Rect place, const Container& group,
                      int page = 0);

    DataGrid& addGrid(const std::string& name, Rect place, std::initializer_list<View> views = {View::Data});

    /// A grid with rows that a user adds and deletes.
    GridRows& addRowGrid(const std::string& name, Rect place, int limit);
    GridRows& addRowGrid(const std::string& name, Rect place, int limit, const RowTitles& titles);

    /// A box that sets the size of these grids.
    SizeBox& addSizeBox(TextBox& box, std::vector<DataGrid*> grids, SizeRules rules);

    /// A box that sets the count of a grid's rows.
    SizeBox& addRowCountBox(TextBox& box, GridRows& rows, std::function<void()> onExcess);

    /// The start picture with the label under it, and the Open button at its usual place.
    void addStart(const std::string& openButton = "cmdOpen", Rect place = {1200, 1000, 7200, 5200},
                  const std::string& label = "lblStart");

    /// Save, Solve, Print data, Exit and Excel edit at their usual places, and those that grids with rows
    /// have. An empty name leaves one out.
    struct DataButtons {
        std::string arithmetic = "cmdArith";
        std::string printData = "cmdPrintData";
        bool rows = true;        ///< Add row and Delete row
        bool spreadsheet = true; ///< Excel edit
        Rect arithmeticPlace = buttonPlace(1, 2);
        Rect excelPlace = buttonPlace(1, 3);
    };
    void addDataButtons(const DataButtons& buttons);

    /// Continue in these views, and the report's print button.
    void addOutcomeButtons(std::initializer_list<View> views, const std::string& printReport);

    /// The print button of the plot.
    void addPrintPlot();

    /// The report box at its usual place.
    ReportScreen& addReport(const std::string& name = "rtbOut");

    /// The grid that a user selected or typed in last where it is shown, else the first shown one; nullptr
    /// when there is none.
    DataGrid* activeGrid() const;

    /// The rows of that grid, nullptr where it has none of its own.
    GridRows* activeRows() const;

    /// The literal that names the place in the box of a run-time error, for one control.
    void setErrorPlace(const Control& control, std::string place) {
        errorPlaces_[&control] = std::move(place);
    }

    void run(const Control& control, const std::function<void()>& handler) override;
    bool editable() const override { return view_ == View::Data; }
    void restored() override;
    std::string errorTitle() const override { return wording_.name; }
    std::string errorPlace(const Control& control) const override;

    // Dialogs.

    using SuiteWindow::message;
    void message(const std::string& text) { message(text, wording_.name); }

    const ModuleWording& wording() const { return wording_; }

    Button* cmdOpen = nullptr;
    Button* cmdSave = nullptr;
    Button* cmdSolve = nullptr;
    Button* cmdExit = nullptr;
    Button* cmdContinue = nullptr;
    Button* cmdPrintReport = nullptr;
    Button* cmdPrintPlot = nullptr;
    ReportScreen* report = nullptr;

    /// The hourglass for as long as it lives.
    class Busy {
      public:
        explicit Busy(Suite& suite) : display_(suite.platform.display) { display_.setBusyPointer(true); }
        ~Busy() { display_.setBusyPointer(false); }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

      private:
        Display& display_;
    };

  private:
    class OnPaper;

    void printWindow();
    std::string readOrCreate() const;
    std::optional<std::string> chooseSaveName();
    void setCurrentFile(const std::string& path);
    FileDialog fileDialog(FileDialog::Kind kind) const;
    void forgetTyping(const Control* except = nullptr);

    ModuleWording wording_;
    std::string currentFile_;
    View view_ = View::Start;
    std::vector<DataGrid*> grids_; ///< that a user edits
    DataGrid* lastGrid_ = nullptr;
    std::vector<std::unique_ptr<GridRows>> rows_;
    std::vector<std::unique_ptr<SizeBox>> sizeBoxes_;
    std::vector<const Control*> offPaper_; ///< buttons that aren't printed
    std::unordered_map<const Control*, std::string> errorPlaces_;
};

} // namespace vantore
