#include "shell/base/install_folder.h"

#include <cstdlib>
#include <fstream>
#include <pwd.h>
#include <sstream>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "shell/base/runtime_error.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

fs::path variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

fs::path homeFolder() {
    if (fs::path home = variable("HOME"); home.is_absolute()) return home;
    const passwd* user = getpwuid(getuid());
    return user == nullptr ? fs::path("/") : fs::path(user->pw_dir);
}

fs::path userDataFolder() {
    if (fs::path data = variable("XDG_DATA_HOME"); data.is_absolute()) return data;
    return homeFolder() / ".local" / "share";
}

void copyTo(const fs::path& target, const fs::path& source) {
    std::ostringstream content;
    content << std::ifstream(source, std::ios::binary).rdbuf();
    replaceFile(target, content.str());
}

/// Copies what the folder hasn't yet: a sample that the user has changed stays as he left it.
void copyMissing(const fs::path& own, const fs::path& installed) {
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(installed, error)) {
        const fs::path target = own / entry.path().filename();
        if (!entry.is_regular_file(error) || fs::exists(existingSpelling(target), error)) continue;
        try {
            copyTo(target, entry.path());
        } catch (const RuntimeError&) {
            return; // a folder that takes one file no more takes none
        }
    }
}

/// Lets links of the folder lead to the programs, wherever they were installed last.
void linkPrograms(const fs::path& own, const fs::path& installed) {
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(installed, error)) {
        const fs::path link = own / entry.path().filename();
        const bool isLink = fs::is_symlink(link, error);
        if (isLink && fs::read_symlink(link, error) == entry.path()) continue;
        if (isLink) fs::remove(link, error);
        fs::create_symlink(entry.path(), link, error); // a program that the user put there himself stays
    }
}

} // namespace

std::string installFolder(const fs::path& programFolder) {
    const fs::path data = (programFolder / VANTORE_DATA_FROM_PROGRAM).lexically_normal();
    const fs::path solvers = (programFolder / VANTORE_SOLVERS_FROM_PROGRAM).lexically_normal();
    std::error_code error;
    if (!fs::is_directory(data, error)) return textOf(programFolder);
    const fs::path own = userDataFolder() / "vantore";
    fs::create_directories(own, error);
    copyMissing(own, data);
    linkPrograms(own, solvers);
    return textOf(own);
}

} // namespace vantore
