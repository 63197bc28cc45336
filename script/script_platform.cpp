#include "script/script_platform.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

#include "processes/child_process.h"
#include "processes/folder_lock.h"
#include "script/transcript.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/dialog_form.h"

namespace vantore {

namespace {

constexpr std::chrono::milliseconds pollInterval{2};
constexpr double twipsPerPoint = 20;
constexpr double meanCharacterWidth = .55;    // of the font size
constexpr double lineSpacing = 1.25;          // of the font size
constexpr double pageWidth = 21000 - 2 * 635; // A4 with narrow margins, hundredths of a millimetre
constexpr double pageHeight = 29700 - 2 * 635;

} // namespace

ScriptPlatform::ScriptPlatform(std::ostream& out, int screenWidth, int screenHeight, bool strict)
    : out_(out), screenWidth_(screenWidth), screenHeight_(screenHeight), strict_(strict) {}

void ScriptPlatform::failed(const std::string& what) {
    if (strict_) throw PlatformFailure(what);
}

ScriptAnswer ScriptPlatform::nextAnswer(const std::string& question) {
    if (answers_.empty()) throw PlatformFailure("no answer for " + question);
    ScriptAnswer answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void ScriptPlatform::showModal(DialogForm& dialog) {
    const std::string head = inQuotes(dialog.caption) + ": " + inQuotes(dialog.prompt());
    if (auto* question = dynamic_cast<YNBx*>(&dialog)) return ask(*question, head);
    if (auto* input = dynamic_cast<InptBx*>(&dialog)) return ask(*input, head);
    auto& message = dynamic_cast<MsgeBx&>(dialog);
    message.press(message.cmdOK);
    out_ << "MessageBx " << head << '\n';
}

void ScriptPlatform::ask(YNBx& question, const std::string& head) {
    const ScriptAnswer answer = nextAnswer("YesNoBx " + head);
    const bool closes = answer.kind == ScriptAnswer::Kind::Close;
    const bool yes = equalIgnoringCase(answer.text, "Yes");
    const bool no = answer.kind == ScriptAnswer::Kind::Cancel || equalIgnoringCase(answer.text, "No");
    if (!closes && !yes && !no)
        throw PlatformFailure("YesNoBx " + head + " can't be answered " + inQuotes(answer.text));
    out_ << "YesNoBx " << head << " -> " << (closes ? "close" : yes ? "Yes" : "No") << '\n';
    if (closes) return question.close();
    question.press(yes ? question.cmdYes : question.cmdNo);
}

void ScriptPlatform::ask(InptBx& input, const std::string& head) {
    const std::string line = "InputBx " + head + " [" + inQuotes(input.txtInput.text()) + "]";
    const ScriptAnswer answer = nextAnswer(line);
    out_ << line << " -> ";
    switch (answer.kind) {
    case ScriptAnswer::Kind::Text:
        out_ << inQuotes(answer.text) << '\n';
        input.type(input.txtInput, answer.text);
        return input.press(input.cmdOK);
    case ScriptAnswer::Kind::Cancel: out_ << "cancel\n"; return input.press(input.cmdCancel);
    case ScriptAnswer::Kind::Close: out_ << "close\n"; return input.close();
    }
}

std::optional<std::string> ScriptPlatform::chooseFile(const FileDialog& dialog) {
    const std::string line =
        std::string(dialog.kind == FileDialog::Kind::Open ? "OpenDialog " : "SaveDialog ") +
        inQuotes(dialog.title) + " filter " + inQuotes(dialog.filter);
    if (files_.empty()) throw PlatformFailure("no file for " + line);
    const std::optional<std::string> name = std::move(files_.front());
    files_.pop_front();
    out_ << line << " -> " << name.value_or("cancel") << '\n';
    if (!name) return std::nullopt;
    const bool bare = name->find('/') == std::string::npos;
    return bare ? dialog.folder + *name : *name;
}

void ScriptPlatform::tellPrinted() {
    for (const PrintJob& job : jobs_) writePrintJob(out_, job);
    jobs_.clear();
}

void ScriptPlatform::tellClipboard() {
    out_ << "clipboard: ";
    if (clipboard_) {
        out_ << "picture " << clipboard_->width << 'x' << clipboard_->height << '\n';
    } else {
        out_ << "empty\n";
    }
}

Printer::Area ScriptPlatform::printableArea(Orientation orientation) const {
    if (orientation == Orientation::Portrait) return {pageWidth, pageHeight};
    return {pageHeight, pageWidth};
}

std::unique_ptr<RunningProgram> ScriptPlatform::start(const std::filesystem::path& program,
                                                      const std::filesystem::path& folder,
                                                      const std::vector<Variable>& environment) {
    out_.flush();
    auto process = startProcess(program, folder, environment);
    out_ << "run " << textOf(program.filename()) << (process ? "" : " failed") << '\n';
    return process;
}

std::unique_ptr<FolderLock> ScriptPlatform::lock(const std::filesystem::path& folder) {
    return lockFolder(folder);
}

bool ScriptPlatform::startSpreadsheet() {
    out_ << "spreadsheet\n";
    return true;
}

Extent ScriptPlatform::screen() const {
    return {screenWidth_ * twipsPerPixel, screenHeight_ * twipsPerPixel};
}

Extent ScriptPlatform::textExtent(const std::string& text, const Font& font, double width) const {
    const double character = std::max(font.size * twipsPerPoint * meanCharacterWidth, 1.0);
    const double perLine = std::max(std::floor(width / character), 1.0);
    Extent extent;
    for (const std::string& line : lines(text)) {
        const auto count = static_cast<double>(length(line));
        extent.width = std::max(extent.width, std::min(count, perLine) * character);
        extent.height += std::max(std::ceil(count / perLine), 1.0) * font.size * twipsPerPoint * lineSpacing;
    }
    return extent;
}

Display::PixelRect ScriptPlatform::clientArea(const Form& form) const {
    const auto pixels = [](double twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); };
    return {0, 0, pixels(form.width * form.scale().x), pixels(form.height * form.scale().y)};
}

CapturedPicture ScriptPlatform::capture(const Form& /*form*/, const PixelRect& area) {
    return {area.width, area.height, {}};
}

void ScriptPlatform::beep() {
    out_ << "beep\n";
}

void ScriptPlatform::processEvents() {
    std::this_thread::sleep_for(pollInterval);
}

} // namespace vantore
