#include <charconv>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "script/script_player.h"
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

bool takeScreen(std::string_view text, vantore::ScriptSettings& settings) {
    const std::size_t x = text.find('x');
    if (x == std::string_view::npos) return false;
    const auto number = [](std::string_view digits, int& value) {
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return result.ptr == digits.data() + digits.size() && value > 0 && value <= largestScreen;
    };
    return number(text.substr(0, x), settings.screenWidth) &&
           number(text.substr(x + 1), settings.screenHeight);
}

std::optional<Arguments> parse(std::span<char*> words) {
    Arguments arguments;
    arguments.settings.installFolder =
        vantore::textOf(std::filesystem::read_symlink("/proc/self/exe").parent_path());
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string_view word = words[i];
        const bool option = word == "--io" || word == "--install" || word == "--screen";
        if (!option) {
            const bool unknown = word.starts_with("-") && word != "-";
            if (unknown || !arguments.script.empty()) return std::nullopt;
            arguments.script = word;
            continue;
        }
        if (++i == words.size()) return std::nullopt;
        if (word == "--io") arguments.settings.ioFolder = folderOf(words[i]) + "/";
        if (word == "--install") arguments.settings.installFolder = folderOf(words[i]);
        if (word == "--screen" && !takeScreen(words[i], arguments.settings)) return std::nullopt;
    }
    if (arguments.script.empty()) return std::nullopt;
    return arguments;
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
    try {
        auto arguments = parse({words, static_cast<std::size_t>(count)});
        if (!arguments) {
            std::cerr << "usage: vantore-script [--io DIR] [--install DIR] [--screen WxH] SCRIPT\n";
            return wrongUsage;
        }
#ifdef VANTORE_DESKTOP
        arguments->settings.writeSvg = vantore::writeSvgFile;
#endif
        play(*arguments);
        return 0;
    } catch (const std::exception& failure) {
        std::cout.flush();
        std::cerr << "error: " << failure.what() << '\n';
        return 1;
    }
}
