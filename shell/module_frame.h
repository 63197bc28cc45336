#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "shell/base/item_stream.h"
#include "shell/base/print_lines.h"
#include "shell/base/runtime_error.h"
#include "shell/column_arithmetic.h"
#include "shell/forms/form.h"
#include "shell/grid_rows.h"
#include "shell/solver_run.h"
#include "shell/suite.h"

namespace vantore {

/// The names under which a module meets its user.
struct ModuleNames {
    std::string name;       ///< "COG": titles of boxes, prefix of the window title
    std::string filePrefix; ///< "COG": what a saved file's name begins with
    std::string openTitle;
    std::string saveTitle;
    std::string filter;
    std::string saveFilter; ///< empty where it is the same as `filter`
};

/// How a report file looks in the report box. Sizes are points of the design.
struct ReportStyle {
    Font title = {"Arial", 12, false};
    Font body = {"Courier New", 9, false};
    int titleColour = colour::lightBlue;
    bool starredHeadings = false; ///< A line that begins with "*" shows bold in colour 9 without the star.
};

/// The window of a module: the patterns that all modules share. A module adds its controls, tells in which
/// view each is seen, and gives the frame its file's reader and writer.
///
/// Every handler runs through `run`, which reports a run-time error with the literal of the control that was
/// used; no other place catches one.
class ModuleFrame : public Form {
  public:
    /// Result is what some modules show between the data and the report.
    enum class View { Start, Data, Result, Report, Plot };

    ModuleFrame(Suite& suite, ModuleNames names);

    View view() const { return view_; }
    const std::string& currentFile() const { return currentFile_; }

    void close() override;
    void interrupt() override;

  protected:
    // What a module gives.

    /// The text of a new problem's file.
    virtual std::string defaultSkeleton() const = 0;

    /// Reads a problem file and puts it into the controls. It reads whole before it puts anything.
    virtual void readProblem(ItemReader& reader) = 0;

    /// Writes the problem in the controls as the module's items.
    virtual void writeProblem(ItemWriter& writer) = 0;

    /// Fills the blanks of the main grid before Save, where the module has one.
    virtual void fillBlankCells();

    /// False, after a message of its own, when the problem can't be saved under that bare, upper-case name.
    virtual bool mayBeSavedAs(const std::string& /*upperCaseName*/) { return true; }

    /// False, after a message of its own, when the problem isn't fit to be written; the Save ends there.
    virtual bool mayBeWritten() { return true; }

    // The operations.

    void openProblem();
    bool saveProblem();
    void exitModule();
    void excelEdit(const std::string& boxTitle = "Information",
                   const std::string& templateName = "GenlEdit.XLS");
    void addRow();
    void deleteRow();
    void continueToData();
    void printPlotImage();

    /// Prints the window as it stands, for a report that is a picture.
    void printWindowReport(Button& printButton);

    void reportRuntimeError(const std::string& errorText, const std::string& place);

    /// The runs of the module's solver program.
    SolverRun solver;

    /// Writes a report to a file of `ioFolder`.
    void writeReportFile(const PrintLines& page, const std::string& name = "OUTPUT.DAT");

    /// Shows the report view with the lines of that file.
    void showReportFile(const ReportStyle& style = {}, const std::string& name = "OUTPUT.DAT");

    /// Shows the report view with these lines; the first is the title.
    void showReportLines(const std::vector<std::string>& lines, const ReportStyle& style = {});

    /// Prints OUTPUT.DAT: "Arial" 12 for the first line, "Courier New" 10 for the rest.
    void printReportFile();

    /// Prints these lines in the same way.
    void printReportLines(const std::vector<std::string>& lines);

    /// Prints a document and ends the job.
    void print(const PrintJob& job) { suite_.platform.printer.print(job); }

    /// A job that begins as every print of input data: a blank line, the title in "Arial" 14, a blank line.
    PrintJob dataPrint(const std::string& title) const;

    /// Adds a page's lines to a print of input data, in "Courier New" 12.
    static void printOn(PrintJob& job, const PrintLines& page);

    // The views.

    /// Makes a control visible in these views and hidden in the others.
    void seenIn(Control& control, std::initializer_list<View> views);

    /// Enters a view: each control is shown or hidden as `seenIn` tells.
    void showView(View view);

    /// The text boxes and options that a user may edit once a file is open.
    void enabledByOpen(Control& control);

    // Controls.

    /// A place of the button rows at the foot of the window: row 0 or 1, column 0 to 5.
    static Rect buttonPlace(int row, int column);

    Button& addButton(const std::string& name, const std::string& caption, Rect place,
                      std::initializer_list<View> views, std::function<void()> onPress);
    TextBox& addTextBox(const std::string& name, Rect place, const std::string& text = "");
    Label& addLabel(const std::string& name, const std::string& caption, Rect place,
                    std::initializer_list<View> views);

    /// The main grid: typing, Insert, Add row, Delete row and column arithmetic work on it.
    DataGrid& addMainGrid(const std::string& name, Rect place, int rowLimit);

    /// The start picture with the label under it, and the Open button at its usual place.
    void addStart(const std::string& openButton = "cmdOpen", Rect place = {1200, 1000, 7200, 5200});

    /// The report box at its usual place.
    ReportScreen& addReport(const std::string& name = "rtbOut");

    void setMainGrid(DataGrid& grid) { mainGrid_ = &grid; }
    DataGrid* mainGrid() const { return mainGrid_; }

    /// The literal that names the place in the box of a run-time error, for one control.
    void setErrorPlace(const Control& control, std::string place) {
        errorPlaces_[&control] = std::move(place);
    }

    void run(const Control& control, const std::function<void()>& handler) override;

    // Dialogs.

    void message(const std::string& text) { suite_.messageBx(text, names_.name); }
    void message(const std::string& text, const std::string& title) { suite_.messageBx(text, title); }

    Suite& suite() { return suite_; }
    const ModuleNames& names() const { return names_; }
    RowTitles rowTitles;
    ArithmeticWording arithmetic;

    /// The question of `printPlotImage`, and which answer prints.
    struct PrintQuestion {
        std::string text, title;
        bool yesPrints = true;
    };
    PrintQuestion printQuestion;

    std::string printFailure; ///< told in place of a run-time error when the plot can't be printed

    std::string exitTitle; ///< of the question "Save data?"; the module's name unless it sets another

    Button* cmdOpen = nullptr;
    Button* cmdExit = nullptr;
    Button* cmdContinue = nullptr;
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
    struct Seen {
        Control* control;
        std::vector<View> views;
    };
    class OnPaper;

    void printWindow();
    std::string readOrCreate();
    std::optional<std::string> chooseSaveName();
    void setCurrentFile(const std::string& path);
    FileDialog fileDialog(FileDialog::Kind kind) const;

    Suite& suite_;
    ModuleNames names_;
    std::string currentFile_;
    View view_ = View::Start;
    std::vector<Seen> seen_;
    std::vector<Control*> enabledByOpen_;
    std::unordered_map<const Control*, std::string> errorPlaces_;
    DataGrid* mainGrid_ = nullptr;
    bool closing_ = false;
};

} // namespace vantore
