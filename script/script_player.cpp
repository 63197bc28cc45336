#include "script/script_player.h"

#include "script/transcript.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "suite/module_list.h"

namespace vantore {

namespace {

/// A text in which \\t and \\n stand for tab and line end.
std::string withMarksAsLineEnds(std::string_view text) {
    return replaced(replaced(text, "\\t", "\t"), "\\n", "\n");
}

void requireCell(const DataGrid& grid, int row, int col) {
    if (row < grid.rows() && col < grid.cols()) return;
    throw PlatformFailure(grid.name + " has no cell " + std::to_string(row) + " " + std::to_string(col));
}

} // namespace

ScriptPlayer::ScriptPlayer(const ScriptSettings& settings, std::ostream& out)
    : out_(out), platform_(out, settings.screenWidth, settings.screenHeight, settings.strict),
      parts_(platform_.parts()), suite_(parts_, moduleList()), svgWriter_(settings.writeSvg) {
    suite_.installFolder = settings.installFolder;
    suite_.screenWidth = settings.screenWidth;
    suite_.screenHeight = settings.screenHeight;
    suite_.setScale(settings.screenWidth, settings.screenHeight);
    settleQuietly(settings);
    makeLauncher();
}

void ScriptPlayer::makeLauncher() {
    suite_.windows.closeAll();
    auto launcher = std::make_unique<Launcher>(suite_);
    launcher_ = launcher.get();
    suite_.windows.open(std::move(launcher));
}

/// Takes the folder of the settings, else of VANTORE.DRV, else the install folder, without a word.
void ScriptPlayer::settleQuietly(const ScriptSettings& settings) {
    suite_.ioFolder = settings.ioFolder;
    if (!suite_.ioFolder.empty()) return;
    try {
        suite_.ioFolder = DriverReader(suite_.drvFile()).readFolder();
    } catch (const RuntimeError&) {
        suite_.ioFolder = suite_.installFolder + "/";
    }
}

const std::map<std::string, ScriptPlayer::Command, std::less<>>& ScriptPlayer::commands() {
    static const std::map<std::string, Command, std::less<>> table = {
        {"launcher", &ScriptPlayer::startLauncher},
        {"module", &ScriptPlayer::openModule},
        {"file", &ScriptPlayer::queueFile},
        {"answer", &ScriptPlayer::queueAnswer},
        {"press", &ScriptPlayer::press},
        {"type", &ScriptPlayer::type},
        {"keys", &ScriptPlayer::typeKeys},
        {"leave", &ScriptPlayer::leave},
        {"cell", &ScriptPlayer::typeCell},
        {"current", &ScriptPlayer::makeCurrent},
        {"select", &ScriptPlayer::selectBlock},
        {"click", &ScriptPlayer::clickCell},
        {"doubleclick", &ScriptPlayer::doubleClickCell},
        {"paste", &ScriptPlayer::paste},
        {"copy", &ScriptPlayer::copy},
        {"undo", &ScriptPlayer::undo},
        {"redo", &ScriptPlayer::redo},
        {"key", &ScriptPlayer::pressKey},
        {"insert", &ScriptPlayer::pressInsert},
        {"tab", &ScriptPlayer::selectPage},
        {"show", &ScriptPlayer::show},
        {"grid", &ScriptPlayer::showGrid},
        {"report", &ScriptPlayer::showReport},
        {"surface", &ScriptPlayer::showSurface},
        {"chart", &ScriptPlayer::showChart},
        {"printer", &ScriptPlayer::showPrinter},
        {"clipboard", &ScriptPlayer::showClipboard},
        {"title", &ScriptPlayer::showTitle},
        {"svg", &ScriptPlayer::writeSvg},
        {"close", &ScriptPlayer::closeWindow},
    };
    return table;
}

void ScriptPlayer::play(std::istream& script) {
    const std::string text(std::istreambuf_iterator<char>(script), {});
    int number = 0;
    for (const std::string& line : lines(decoded(text))) {
        ++number;
        try {
            step(line);
        } catch (const std::exception& failure) {
            throw PlatformFailure("line " + std::to_string(number) + ": " + failure.what());
        }
    }
    if (platform_.answersLeft() > 0)
        throw PlatformFailure("line " + std::to_string(number) + ": answers are left over at the end");
}

void ScriptPlayer::step(std::string_view text) {
    ScriptLine line(text);
    if (line.empty()) return;
    const std::string word = line.word("command");
    const auto command = commands().find(word);
    if (command == commands().end()) throw PlatformFailure("unknown command " + word);
    (this->*command->second)(line);
    suite_.windows.unloadClosed();
    if (suite_.windows.empty()) launcher_ = nullptr;
}

// Windows and controls

/// The window that the script's user has before him; the launcher only once the script has started it.
Form& ScriptPlayer::inUse() {
    Form* front = suite_.windows.front();
    if (front != nullptr && (front != launcher_ || launched_)) return *front;
    throw PlatformFailure("no window is open");
}

Control& ScriptPlayer::control(ScriptLine& line) {
    const std::string name = line.word("control");
    inUse();
    const auto& forms = suite_.windows.forms();
    for (auto form = forms.rbegin(); form != forms.rend(); ++form) {
        if (form->get() == launcher_ && !launched_) continue;
        owner_ = form->get();
        if (Control* found = owner_->find(name)) return *found;
    }
    throw PlatformFailure("unknown control " + name);
}

template <class T>
T& ScriptPlayer::controlOf(ScriptLine& line, const char* kind) {
    Control& found = control(line);
    auto* wanted = dynamic_cast<T*>(&found);
    if (wanted == nullptr) throw PlatformFailure(found.name + " is no " + kind);
    return *wanted;
}

/// The window's control of that kind: the one that is shown, else the first.
template <class T>
T& ScriptPlayer::onlyOne(const char* kind) {
    T* first = nullptr;
    for (const auto& each : inUse().controls()) {
        auto* wanted = dynamic_cast<T*>(each.get());
        if (wanted == nullptr) continue;
        if (wanted->shown()) return *wanted;
        if (first == nullptr) first = wanted;
    }
    if (first == nullptr) throw PlatformFailure(std::string("the window has no ") + kind);
    return *first;
}

/// The window's control with pages: the one that is shown, else the first.
Container& ScriptPlayer::tabControl() {
    Container* first = nullptr;
    for (const auto& each : inUse().controls()) {
        auto* container = dynamic_cast<Container*>(each.get());
        if (container == nullptr || container->pages.empty()) continue;
        if (container->shown()) return *container;
        if (first == nullptr) first = container;
    }
    if (first == nullptr) throw PlatformFailure("the window has no tab control");
    return *first;
}

bool ScriptPlayer::refuses(const Control& control) {
    if (Form::accepts(control) && owner_->enabled) return false;
    out_ << "refused: " << control.name << (control.shown() ? " is disabled" : " is hidden") << '\n';
    platform_.failed(control.name + " was refused");
    return true;
}

void ScriptPlayer::startLauncher(ScriptLine& line) {
    line.end();
    makeLauncher();
    launched_ = true;
    launcher_->load();
}

void ScriptPlayer::openModule(ScriptLine& line) {
    const std::string name = line.word("module");
    line.end();
    if (suite_.windows.empty()) throw PlatformFailure("the program has ended");
    if (suite_.windows.front() != launcher_) throw PlatformFailure("a module is open already");
    Button* button = launcher_->moduleButton(name);
    if (button == nullptr) throw PlatformFailure("unknown module " + name);
    owner_ = launcher_;
    if (!refuses(*button)) launcher_->press(*button);
}

void ScriptPlayer::closeWindow(ScriptLine& line) {
    line.end();
    inUse().close();
}

void ScriptPlayer::showTitle(ScriptLine& line) {
    line.end();
    out_ << inUse().caption << '\n';
}

// Answers

void ScriptPlayer::queueFile(ScriptLine& line) {
    const ScriptLine::Text name = line.rest();
    const bool cancels = name.text == "cancel" && !name.quoted;
    platform_.queueFile(cancels ? std::nullopt : std::optional(name.text));
}

void ScriptPlayer::queueAnswer(ScriptLine& line) {
    const ScriptLine::Text answer = line.rest();
    const bool bare = !answer.quoted;
    if (bare && answer.text == "cancel") return platform_.queueAnswer({ScriptAnswer::Kind::Cancel, {}});
    if (bare && answer.text == "close") return platform_.queueAnswer({ScriptAnswer::Kind::Close, {}});
    platform_.queueAnswer({ScriptAnswer::Kind::Text, answer.text});
}

// A user's actions

void ScriptPlayer::press(ScriptLine& line) {
    Control& pressed = control(line);
    line.end();
    const bool presses =
        dynamic_cast<Button*>(&pressed) != nullptr || dynamic_cast<Choice*>(&pressed) != nullptr;
    if (!presses) throw PlatformFailure(pressed.name + " can't be pressed");
    if (!refuses(pressed)) owner_->press(pressed);
}

void ScriptPlayer::type(ScriptLine& line) {
    auto& box = controlOf<TextBox>(line, "text box");
    if (!refuses(box)) owner_->type(box, line.rest().text);
}

void ScriptPlayer::typeKeys(ScriptLine& line) {
    auto& box = controlOf<TextBox>(line, "text box");
    if (refuses(box)) return;
    for (const std::string& character : characters(line.rest().text))
        owner_->type(box, box.text() + character);
}

void ScriptPlayer::leave(ScriptLine& line) {
    auto& box = controlOf<TextBox>(line, "text box");
    line.end();
    owner_->leave(box);
}

ScriptPlayer::Cell ScriptPlayer::cell(ScriptLine& line) {
    auto& grid = controlOf<DataGrid>(line, "grid");
    const int row = line.number("row");
    const int col = line.number("column");
    requireCell(grid, row, col);
    return {grid, row, col};
}

void ScriptPlayer::typeCell(ScriptLine& line) {
    const Cell at = cell(line);
    if (refuses(at.grid)) return;
    owner_->select(at.grid, {.startRow = at.row, .endRow = at.row, .startCol = at.col, .endCol = at.col});
    owner_->typeCell(at.grid, at.row, at.col, line.rest().text);
}

void ScriptPlayer::makeCurrent(ScriptLine& line) {
    const Cell at = cell(line);
    line.end();
    owner_->select(at.grid, {.startRow = at.row, .endRow = at.row, .startCol = at.col, .endCol = at.col});
}

void ScriptPlayer::selectBlock(ScriptLine& line) {
    const Cell first = cell(line);
    const int endRow = line.number("row");
    const int endCol = line.number("column");
    line.end();
    requireCell(first.grid, endRow, endCol);
    owner_->select(first.grid,
                   {.startRow = first.row, .endRow = endRow, .startCol = first.col, .endCol = endCol});
}

void ScriptPlayer::clickCell(ScriptLine& line) {
    const Cell at = cell(line);
    line.end();
    if (!refuses(at.grid)) owner_->click(at.grid, at.row, at.col);
}

void ScriptPlayer::doubleClickCell(ScriptLine& line) {
    const Cell at = cell(line);
    line.end();
    if (!refuses(at.grid)) owner_->doubleClick(at.grid, at.row, at.col);
}

void ScriptPlayer::pressKey(ScriptLine& line) {
    auto& grid = controlOf<DataGrid>(line, "grid");
    const int code = line.number("character code");
    line.end();
    if (!refuses(grid)) owner_->key(grid, code);
}

void ScriptPlayer::pressInsert(ScriptLine& line) {
    auto& grid = controlOf<DataGrid>(line, "grid");
    line.end();
    if (!refuses(grid)) owner_->insertKey(grid);
}

void ScriptPlayer::paste(ScriptLine& line) {
    auto& grid = controlOf<DataGrid>(line, "grid");
    if (!refuses(grid)) owner_->paste(grid, withMarksAsLineEnds(line.rest().text));
}

void ScriptPlayer::copy(ScriptLine& line) {
    const auto& grid = controlOf<DataGrid>(line, "grid");
    line.end();
    out_ << "copied: " << replaced(replaced(Form::copied(grid), "\t", "\\t"), "\n", "\\n") << '\n';
}

void ScriptPlayer::undo(ScriptLine& line) {
    line.end();
    inUse().undo();
}

void ScriptPlayer::redo(ScriptLine& line) {
    line.end();
    inUse().redo();
}

void ScriptPlayer::selectPage(ScriptLine& line) {
    const int page = line.number("page");
    line.end();
    auto& tabs = tabControl();
    if (page >= static_cast<int>(tabs.pages.size()))
        throw PlatformFailure("there is no page " + std::to_string(page));
    inUse().selectPage(tabs, page);
}

// What the transcript tells

void ScriptPlayer::show(ScriptLine& line) {
    const Control& shown = control(line);
    line.end();
    out_ << stateLine(shown) << '\n';
}

void ScriptPlayer::showGrid(ScriptLine& line) {
    writeGrid(out_, controlOf<DataGrid>(line, "grid"));
}

void ScriptPlayer::showReport(ScriptLine& line) {
    line.end();
    writeReport(out_, onlyOne<ReportScreen>("report box"));
}

void ScriptPlayer::showSurface(ScriptLine& line) {
    line.end();
    vantore::writeSurface(out_, onlyOne<PictureSurface>("picture surface"));
}

void ScriptPlayer::showChart(ScriptLine& line) {
    line.end();
    vantore::writeChart(out_, onlyOne<Chart>("chart").data);
}

void ScriptPlayer::showPrinter(ScriptLine& line) {
    line.end();
    platform_.tellPrinted();
}

void ScriptPlayer::showClipboard(ScriptLine& line) {
    line.end();
    platform_.tellClipboard();
}

void ScriptPlayer::writeSvg(ScriptLine& line) {
    const std::string name = line.rest().text;
    if (name.empty()) throw PlatformFailure("missing file name");
    if (!svgWriter_) throw PlatformFailure("this build can't draw; svg needs one with the desktop");
    const Control* drawing = nullptr;
    for (const auto& each : inUse().controls()) {
        const bool draws = dynamic_cast<PictureSurface*>(each.get()) != nullptr ||
                           dynamic_cast<Chart*>(each.get()) != nullptr;
        if (draws && (drawing == nullptr || each->shown())) drawing = each.get();
    }
    if (drawing == nullptr) throw PlatformFailure("the window has neither picture surface nor chart");
    const bool bare = name.find('/') == std::string::npos;
    svgWriter_(inUse(), *drawing, pathOf(bare ? suite_.ioFolder + name : name));
}

} // namespace vantore
