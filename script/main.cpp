#include <charconv>
#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "script/script_player.h"
#include "shell/base/install_folder.h"
#include "shell/base/text_file.h"
#ifdef VANTORE_DESKTOP
#include "drawing/svg_file.h"
#endif

namespace {

constexpr int wrongUsage = 2;
constexpr int largestScreen = 20000; // pixels

struct Arguments {
    vantore::ScriptSettings settings;
    std::string script;
};

std::string folderOf(std::string_view text) {
    const auto path = std::filesystem::absolute(vantore::pathOf(text)).lexically_normal();
    std::string folder = vantore::textOf(path);
    while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
    return folder;
}

constexpr const char* usage =
    "usage: vantore-script [--io DIR] [--install DIR] [--screen WxH] [--strict] SCRIPT\n"
    "       vantore-script --help | --version\n";

bool takeScreen(std::string_view text, vantore::ScriptSettings& settings) {
    const std::size_t x = text.find('x');
    if (x == std::string_view::npos) return false;
    const auto number = [](std::string_view digits, int& value) {
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return error == std::errc() && end == digits.data() + digits.size() && value > 0 &&
               value <= largestScreen;
    };
    return number(text.substr(0, x), settings.screenWidth) &&
           number(text.substr(x + 1), settings.screenHeight);
}

/// Takes an option and its value; false when there is no such option or the value can't be.
bool takeOption(std::string_view option, std::string_view value, vantore::ScriptSettings& settings) {
    if (option == "--screen") return takeScreen(value, settings);
    if (value.empty()) return false;
    if (option == "--io") settings.ioFolder = folderOf(value) + "/";
    if (option == "--install") settings.installFolder = folderOf(value);
    return option == "--io" || option == "--install";
}

std::optional<Arguments> parse(std::span<char*> words) {
    Arguments arguments;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--strict") {
            arguments.settings.strict = true;
        } else if (word.starts_with("-") && word != "-") {
            if (++i == words.size() || !takeOption(word, words[i], arguments.settings)) return std::nullopt;
        } else {
            if (!arguments.script.empty()) return std::nullopt;
            arguments.script = word;
        }
    }
    if (arguments.script.empty()) return std::nullopt;
    if (arguments.settings.installFolder.empty())
        arguments.settings.installFolder =
            vantore::installFolder(std::filesystem::read_symlink("/proc/self/exe").parent_path());
    return arguments;
}

bool isOnlyWord(std::span<char*> words, std::string_view word) {
    return words.size() == 2 && words[1] == word;
}

/// The transcript must have reached whoever reads it.
void flushTranscript() {
    std::cout.flush();
    if (!std::cout) throw vantore::PlatformFailure("the transcript can't be written");
}

void play(const Arguments& arguments) {
    vantore::ScriptPlayer player(arguments.settings, std::cout);
    if (arguments.script == "-") return player.play(std::cin);
    std::ifstream script(vantore::pathOf(arguments.script), std::ios::binary);
    if (!script || std::filesystem::is_directory(vantore::pathOf(arguments.script)))
        throw vantore::PlatformFailure("line 0: the script " + arguments.script + " can't be read");
    player.play(script);
}

} // namespace

int main(int count, char** words) {
    const std::span<char*> line(words, static_cast<std::size_t>(count));
    try {
        std::signal(SIGPIPE, SIG_IGN); // a reader that has gone is told as a failed write
        if (isOnlyWord(line, "--help")) {
            std::cout << usage;
        } else if (isOnlyWord(line, "--version")) {
            std::cout << "vantore-script " VANTORE_VERSION "\n";
        } else {
            auto arguments = parse(line);
            if (!arguments) {
                std::cerr << usage;
                return wrongUsage;
            }
#ifdef VANTORE_DESKTOP
            arguments->settings.writeSvg = vantore::writeSvgFile;
#endif
            play(*arguments);
        }
        flushTranscript();
        return 0;
    } catch (const std::exception& failure) {
        std::cout.flush();
        std::cerr << "error: " << failure.what() << '\n';
        return 1;
    }
}
