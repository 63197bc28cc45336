#include "shell/launcher.h"

#include <algorithm>
#include <array>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/folder_screen.h"
#include "shell/setup_screen.h"

namespace vantore {

namespace {

constexpr Rect moduleButtonSize{0, 0, 1572, 492};
constexpr double narrowestScreen = 800; // pixels

struct ModuleButton {
    const char* name;
    const char* caption;
    double left, top;
    const char* tip;
};

constexpr std::array<ModuleButton, 16> moduleButtons = {{
    {"Forecast1", "FORECAST", 1680, 4200, "Time Series Forecasting"},
    {"Route1", "ROUTE", 1680, 4800, "Shortest Route Through a Network"},
    {"Routeseq1", "ROUTESEQ", 3360, 4800, "Sequence Stops on a Route"},
    {"ROUTER1", "ROUTER", 5040, 4800, "Vehicle Routing and Scheduling"},
    {"INPOL1", "INPOL", 6720, 4800, "Inventory Control"},
    {"COG1", "COG", 8400, 4800, "Single-Site Location by Center-of-Gravity Method"},
    {"MULTICOG1", "MULTICOG", 1680, 5400, "Multiple-Site Location by Multiple Center-of-Gravity Method"},
    {"PMED1", "PMED", 3360, 5400, "P-Median Facility Location"},
    {"WARELOCA1", "WARELOCA", 5040, 5400, "Location Model for the Lathern Soap Company Case Study"},
    {"LAYOUT1", "LAYOUT", 6720, 5400, "Warehouse Product Layout"},
    {"Miles1", "MILES", 8400, 5400, "Distance Calculator"},
    {"Tranlp1", "TRANLP", 1680, 6000, "Transportation Method Of Linear Programming"},
    {"Lnprog1", "LNPROG", 3360, 6000, "Simplex Method of Linear Programming"},
    {"Miprog1", "MIPROG", 5040, 6000, "Integer Programming"},
    {"Mulreg1", "MULREG", 6720, 6000, "Multiple Regression Analysis"},
    {"Scsim1", "SCSIM", 8400, 6000, "Supply chain simulator"},
}};

bool isBadFolder(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::BadFileName:
    case ErrorNumber::DeviceUnavailable:
    case ErrorNumber::PermissionDenied:
    case ErrorNumber::DiskNotReady:
    case ErrorNumber::PathFileAccess:
    case ErrorNumber::PathNotFound: return true;
    default: return false;
    }
}

/// Leaves no trace in the folder.
bool canWriteTo(const std::filesystem::path& folder) {
    const std::filesystem::path probe = folder / ".vantore-probe";
    try {
        replaceFile(probe, "");
    } catch (const RuntimeError&) {
        return false;
    }
    std::error_code ignored;
    std::filesystem::remove(probe, ignored);
    return true;
}

} // namespace

Launcher::Launcher(Suite& suite) : SuiteWindow(suite, "frmVantore") {
    caption = "VANTORE";
    fillScreen();
    addTitle();
    addModuleButtons();
    addCommands();
}

void Launcher::fillScreen() {
    const Extent screen = suite().platform.display.screen();
    width = screen.width / scale().x;
    height = screen.height / scale().y;
}

void Launcher::addTitle() {
    const auto title = [this](const char* name, const char* text, Rect place, double size, int colour) {
        auto& label = add<Label>(name, place);
        label.caption = text;
        label.fontSize = size;
        label.bold = true;
        label.textColour = colour;
        return &label;
    };
    title("lblTitleShadow", "VANTORE", {1730, 650, 5300, 1480}, 48, 8);
    title("lblTitle", "VANTORE", {1680, 600, 5300, 1480}, 48, 1);
    title("lblWindows", "for Windows", {1740, 2160, 3000, 520}, 16, 0);
    title("lblVersion", "Version 6.0", {1740, 2720, 3000, 330}, 10, 8);
    add<Picture>("imgTitle", Rect{7080, 500, 2892, 3400}).image = "launcher";
}

void Launcher::addModuleButtons() {
    for (const ModuleButton& row : moduleButtons) {
        auto& button =
            add<Button>(row.name, Rect{row.left, row.top, moduleButtonSize.width, moduleButtonSize.height});
        button.caption = row.caption;
        button.tip = row.tip;
        const auto& modules = suite().modules();
        const auto entry = std::find_if(modules.begin(), modules.end(), [&](const ModuleEntry& module) {
            return module.caption == row.caption;
        });
        if (entry != modules.end()) {
            button.onPress = [this, entry] { openModule(*entry); };
        } else {
            button.usable = [] { return false; };
        }
    }
}

void Launcher::addCommands() {
    txtDir_ = &add<Label>("txtDir", Rect{1680, 6600, 4452, 372});
    txtDir_->tip = "Click on Directory button to change";
    const auto command = [this](const char* name, const char* text, double left, double across,
                                const char* tip) {
        auto& button = add<Button>(name, Rect{left, 6600, across, 372});
        button.caption = text;
        button.tip = tip;
        return &button;
    };
    command("cmdHelp", "&Help", 6240, 732, "Sources for additional information")->onPress = [this] {
        showHelp();
    };
    command("cmdDir", "&Folder", 7080, 972, "Selects folder for data files")->onPress = [this] {
        openFolderScreen(suite());
    };
    command("cmdScreen", "&Screen", 8160, 972, "Sets display resolution for graphics")->onPress = [this] {
        setUpAgain();
    };
    command("cmdExit", "E&xit", 9240, 732, "Exit Vantore")->onPress = [this] { exit(); };
}

Button* Launcher::moduleButton(std::string_view moduleCaption) const {
    for (const ModuleButton& row : moduleButtons)
        if (equalIgnoringCase(row.caption, moduleCaption)) return dynamic_cast<Button*>(find(row.name));
    return nullptr;
}

void Launcher::openModule(const ModuleEntry& entry) {
    suite().windows.open(entry.create(suite()));
}

void Launcher::setUpAgain() {
    suite().setupDone = 0;
    writeDriverFile(suite().drvFile(), suite().driverSettings());
    openSetupScreen(suite());
}

// The start

void Launcher::load() {
    suite().installDrive.fill(0);
    suite().ioFolder.clear();
    suite().screenWidth = suite().screenHeight = suite().setupDone = 0;
    suite().scaleX = suite().scaleY = 1;
    std::error_code ignored;
    std::filesystem::current_path(pathOf(suite().installFolder), ignored);
    const Attempt attempt = readDriverFile();
    if (attempt == Attempt::NoFolder) {
        suite().messageBx(
            "Drives A through M are not available to accept output.  Make at least one of them accessible.",
            "VANTORE");
        return exit();
    }
    if (attempt == Attempt::FirstRun)
        suite().messageBx(
            "The default path for data files and solution results has been set to the installed directory "
            "for VANTORE, or " +
                suite().installFolder +
                ".  To change it, press the Folder button on the next (Initialization) screen.",
            "VANTORE");
    markInstallDrive();
    settleScale();
    if (suite().setupDone == 0) openSetupScreen(suite());
}

DriverSettings Launcher::defaultSettings() const {
    return {.ioFolder = suite().installFolder + "/"};
}

Launcher::Attempt Launcher::readDriverFile() {
    if (!canWriteTo(pathOf(suite().installFolder))) return Attempt::NoFolder;
    try {
        return readSettings(DriverReader(suite().drvFile()));
    } catch (const RuntimeError& error) {
        const bool missing = error.number() == ErrorNumber::FileNotFound;
        const bool cutShort = error.number() == ErrorNumber::InputPastEnd;
        return missing || cutShort ? replaceDriverFile(error.number()) : attemptAfter(error);
    }
}

/// A missing or short file gives way to the default file. Only the short one is read again.
Launcher::Attempt Launcher::replaceDriverFile(ErrorNumber reason) {
    try {
        writeDriverFile(suite().drvFile(), defaultSettings());
        if (reason == ErrorNumber::FileNotFound) return Attempt::FirstRun;
        return readSettings(DriverReader(suite().drvFile()));
    } catch (const RuntimeError& error) {
        return attemptAfter(error);
    }
}

Launcher::Attempt Launcher::attemptAfter(const RuntimeError& error) {
    if (isBadFolder(error.number())) return Attempt::NoFolder;
    suite().messageBx(error.what(), "Error");
    return Attempt::Read;
}

Launcher::Attempt Launcher::readSettings(DriverReader reader) {
    // A value that can't be taken is reported, and reading goes on with the next one.
    const auto trapped = [this](auto& target, auto read) {
        try {
            target = read();
        } catch (const RuntimeError& error) {
            if (error.number() == ErrorNumber::InputPastEnd) throw;
            suite().messageBx(error.what(), "Error");
        }
    };
    trapped(suite().ioFolder, [&] { return reader.readFolder(); });
    trapped(suite().screenWidth, [&] { return reader.readNumber(); });
    trapped(suite().screenHeight, [&] { return reader.readNumber(); });
    trapped(suite().setupDone, [&] { return reader.readNumber(); });
    showFolder();
    return Attempt::Read;
}

void Launcher::showFolder() {
    if (!suite().ioFolder.empty()) txtDir_->caption = "Input/output folder: " + suite().ioFolder;
}

void Launcher::markInstallDrive() {
    const std::string letter = upperCase(left(suite().installFolder, 1));
    if (letter.size() == 1 && letter[0] >= 'A' && letter[0] <= 'M')
        suite().installDrive.at(static_cast<std::size_t>(letter[0] - 'A')) = 1;
}

void Launcher::settleScale() {
    if (suite().setupDone == 0 && suite().screenWidth < narrowestScreen) {
        suite().messageBx(
            "A screen resolution less than 800x600 has been set.  Reset it by clicking the Screen button.",
            "VANTORE");
        suite().screenSetting = "NO SETTING";
    } else {
        suite().screenSetting = defaultText(suite().screenWidth) + "x" + defaultText(suite().screenHeight);
        suite().setScale(suite().screenWidth, suite().screenHeight);
    }
    setScale(suite().scale());
    fillScreen();
}

void Launcher::showHelp() {
    suite().messageBx(
        "The modules are described in the user's manual, Vantore.Doc and Vantore.Pdf, in the folder where "
        "VANTORE is installed.  A file called README in the same folder, if present, contains late changes "
        "and other information.  Address technical problems to the maintainers named in README.",
        "Information");
}

void Launcher::exit() {
    try {
        suite().platform.clipboard.clear();
    } catch (const std::exception&) {
        // The program ends all the same.
    }
    closed = true;
}

} // namespace vantore
