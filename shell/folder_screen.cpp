#include "shell/folder_screen.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

namespace fs = std::filesystem;

constexpr const char* probeName = "TMP";

/// The folders in a folder, by name; hidden ones and what can't be read are left out.
std::vector<std::string> foldersIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const std::string name = textOf(entry->path().filename());
        if (entry->is_directory(ignored) && !name.starts_with('.')) names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string withSeparator(const std::string& folder) {
    return folder.ends_with('/') ? folder : folder + "/";
}

/// The folder without the separator at its end, unless it is the root.
std::string bare(std::string folder) {
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    return folder;
}

std::string parentOf(const std::string& folder) {
    return textOf(pathOf(folder).parent_path());
}

/// The volume on which a folder lies: the longest that its path begins with.
int volumeOf(const std::string& folder, const std::vector<std::string>& volumes) {
    int found = -1;
    std::size_t longest = 0;
    for (std::size_t i = 0; i < volumes.size(); ++i) {
        if (!withSeparator(folder).starts_with(withSeparator(volumes[i])) || volumes[i].size() < longest)
            continue;
        longest = volumes[i].size();
        found = static_cast<int>(i);
    }
    return found;
}

} // namespace

FolderScreen::FolderScreen(Suite& suite) : SuiteWindow(suite, "Drive") {
    caption = "Select directory for output";
    width = 6300;
    height = 4650;
    addLists();
    addButtons();
    txtDir->show(suite.ioFolder);
    listFolders(suite.ioFolder.empty() ? textOf(fs::current_path()) : bare(suite.ioFolder));
    focus = txtDir;
}

void FolderScreen::addLists() {
    const auto label = [this](const char* name, const char* text, Rect place) {
        auto& added = add<Label>(name, place);
        added.caption = text;
        return &added;
    };
    Label* drives = label("lblDrives", "Drives", {180, 150, 2400, 270});
    Drive1 = &add<ListBox>("Drive1", Rect{180, 420, 2400, 2700});
    Drive1->items = suite().platform.settings.volumes();
    Drive1->onSelect = [this] { changeVolume(); };
    drives->buddy = Drive1;
    Label* folders = label("lblFolders", "Folders", {2760, 150, 3360, 270});
    Dir1 = &add<ListBox>("Dir1", Rect{2760, 420, 3360, 2700});
    Dir1->onSelect = [this] {
        // The first item is the way back up.
        const std::string& name = Dir1->items.at(static_cast<std::size_t>(Dir1->selected));
        txtDir->show(name == ".." ? parentOf(folder_) : bare(withSeparator(folder_) + name));
    };
    Dir1->onOpen = [this] { openFolder(); };
    folders->buddy = Dir1;
    Label* chosen = label("lblDir", "Folder for output is", {180, 3270, 5940, 270});
    txtDir = &add<TextBox>("txtDir", Rect{180, 3540, 5940, 330});
    chosen->buddy = txtDir;
}

void FolderScreen::addButtons() {
    const auto button = [this](const char* name, const char* text, double left, double across) {
        auto& added = add<Button>(name, Rect{left, 4110, across, 372});
        added.caption = text;
        return &added;
    };
    button("Apply", "&Apply", 180, 1440)->onPress = [this] { apply(); };
    button("Default", "&Default", 1800, 1440)->onPress = [this] {
        suite().ioFolder = suite().installFolder + "/";
        txtDir->show(suite().ioFolder);
        listFolders(suite().installFolder);
    };
    button("Exit", "E&xit w/o change", 3420, 2700)->onPress = [this] { leave(); };
}

void FolderScreen::listFolders(const std::string& folder) {
    folder_ = folder;
    Dir1->items = foldersIn(pathOf(folder));
    if (parentOf(folder) != folder) Dir1->items.insert(Dir1->items.begin(), "..");
    Dir1->selected = -1;
    Drive1->selected = volumeOf(folder, Drive1->items);
}

void FolderScreen::changeVolume() {
    const std::string volume = Drive1->shownText();
    std::error_code error;
    if (!fs::is_directory(pathOf(volume), error))
        return message(
            "Device is unavailable.  Check for a open drive door, missing disk, or a corrupted disk.",
            errorTitle());
    listFolders(volume);
    txtDir->show(volume);
}

void FolderScreen::openFolder() {
    if (Dir1->selected < 0) return;
    listFolders(txtDir->text());
}

void FolderScreen::apply() {
    const std::string typed = trimmed(txtDir->text());
    if (typed.empty()) return message("No directory has been specified.", "Warning");
    const std::string before = suite().ioFolder;
    suite().ioFolder = withSeparator(typed);
    bool taken = false;
    try {
        if (suite().asksYes("The directory for output will be " + suite().ioFolder, "Question")) {
            takeFolder();
            taken = true;
        }
    } catch (const RuntimeError& error) {
        taken = handled(error);
    } catch (const Unanswered&) {
        // Nothing is changed.
    }
    if (taken) return leave();
    suite().ioFolder = before;
}

/// Tests that the folder can be written, and notes it. The probe stays in the folder.
void FolderScreen::takeFolder() {
    writeLines(pathOf(suite().ioFolder + probeName), {});
    writeDriverFile(suite().drvFile(), suite().driverSettings());
}

/// True when the folder could be taken all the same.
bool FolderScreen::handled(const RuntimeError& error) {
    switch (error.number()) {
    case ErrorNumber::PermissionDenied:
    case ErrorNumber::PathFileAccess:
        message("Writing to " + suite().ioFolder + " is denied", errorTitle());
        return false;
    case ErrorNumber::FileNotFound:
    case ErrorNumber::PathNotFound:
        if (suite().asksYes("Directory is not available.  Want to create it?", "Question") && createFolder())
            return true;
        message("The directory could not be created.  Check form of the file name used.", "Warning");
        return false;
    case ErrorNumber::DiskNotReady: message("Directory could not be found.", "Critical"); return false;
    default: message(std::string(error.what()) + " occurred in Apply, DRIVE.", "Error"); return false;
    }
}

bool FolderScreen::createFolder() {
    const fs::path folder = pathOf(suite().ioFolder);
    std::error_code error;
    if (!folder.is_absolute() || !(fs::create_directories(folder, error) || fs::is_directory(folder, error)))
        return false;
    try {
        takeFolder();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void FolderScreen::leave() {
    closed = true;
}

void openFolderScreen(Suite& suite) {
    suite.windows.open(std::make_unique<FolderScreen>(suite));
}

} // namespace vantore
