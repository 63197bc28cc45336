#include "tests/support/module_session.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore::tests {

ModuleSession::ModuleSession(int screenWidth, int screenHeight) {
    std::filesystem::create_directory(ioFolder());
    std::filesystem::create_directory(installFolder());
    ScriptSettings settings;
    settings.ioFolder = textOf(ioFolder()) + "/";
    settings.installFolder = textOf(installFolder());
    settings.screenWidth = screenWidth;
    settings.screenHeight = screenHeight;
    player_ = std::make_unique<ScriptPlayer>(settings, transcript_);
}

std::string ModuleSession::play(std::string_view script) {
    transcript_.str({});
    std::istringstream text{std::string(script)};
    player_->play(text);
    return replaced(transcript_.str(), textOf(ioFolder()) + "/", "<io>");
}

void ModuleSession::open(std::string_view module, std::string_view file, std::string_view openButton) {
    play("module " + std::string(module) + "\nfile " + std::string(file) + "\npress " +
         std::string(openButton));
}

std::vector<std::string> ModuleSession::grid(std::string_view name) {
    return lines(play("grid " + std::string(name)));
}

std::vector<std::string> ModuleSession::report() {
    std::vector<std::string> result = lines(play("report"));
    for (std::string& line : result) line = withoutFirst(line, 2);
    return result;
}

void ModuleSession::writeFile(std::string_view name, std::string_view content) {
    std::ofstream file(ioFolder() / pathOf(name), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file) throw std::runtime_error("can't write a test file");
}

void ModuleSession::installBaseCase() {
    for (const char* name : {"FIL.DAT", "OLDSOL.DAT", "MAP.DAT"})
        std::filesystem::copy(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install" / name,
                              installFolder());
}

std::string ModuleSession::readFile(std::string_view name) const {
    std::ifstream file(existingSpelling(ioFolder() / pathOf(name)), std::ios::binary);
    if (!file) throw std::runtime_error("no file " + std::string(name));
    return {std::istreambuf_iterator<char>(file), {}};
}

bool ModuleSession::fileExists(std::string_view name) const {
    return std::filesystem::exists(existingSpelling(ioFolder() / pathOf(name)));
}

namespace {

void addCuts(std::vector<std::string>& forms, const std::string& good) {
    for (std::size_t at = 0; at < good.size(); ++at)
        if (good[at] == ',' || good[at] == '\n' || good[at] == '"') forms.push_back(good.substr(0, at));
}

void addWrongCounts(std::vector<std::string>& forms, const std::string& good) {
    for (const char* wrong : {"-1", "1000000", "1E+99", "many", "1E+400", ""}) {
        std::string form;
        for (const std::string& line : lines(good)) {
            const bool number = line.find_first_not_of("0123456789") == std::string::npos;
            form.append(number ? wrong : line).append("\r\n");
        }
        forms.push_back(form);
    }
}

} // namespace

std::vector<std::string> damagedForms(std::string_view goodFile) {
    const std::string good(goodFile);
    std::vector<std::string> forms = {"",
                                      "\"",
                                      "\"\"\"",
                                      ",,,,",
                                      "\r\n\r\n",
                                      std::string(64, '\0'),
                                      "\xFF\xFE\x00\x01",
                                      good + good,
                                      replaced(good, "\"", ""),
                                      replaced(good, ",", "\""),
                                      replaced(good, "\r\n", "\n"),
                                      replaced(good, "\r\n", "\r"),
                                      replaced(good, "0", "1E+308"),
                                      replaced(good, "1", "-1E+308")};
    addCuts(forms, good);
    addWrongCounts(forms, good);
    return forms;
}

} // namespace vantore::tests
