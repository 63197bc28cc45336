#include "shell/setup_screen.h"

#include <array>
#include <memory>
#include <utility>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/folder_screen.h"

namespace vantore {

namespace {

constexpr const char* probeName = "TMP";
constexpr int wantedDotsPerInch = 96;
constexpr double widestRatio = 1.4; // of width to height
constexpr std::size_t noteCharacters = 108;

// Pages of the system's display settings.
constexpr int settingsPage = 4;
constexpr int themePageOfVista = 2;
constexpr int themePage = 5;

const Font headingFont{"Arial", 11, true};
const Font noteFont{"Arial", 9, false};

std::string resolutionText(double width, double height) {
    return defaultText(width) + "x" + defaultText(height);
}

std::string resolutionText(Settings::Resolution resolution) {
    return resolutionText(resolution.width, resolution.height);
}

} // namespace

SetupScreen::SetupScreen(Suite& suite) : SuiteWindow(suite, "IniSetup") {
    caption = "Initialization";
    height = 6900;
    addControls();
    suite.setupOpen = true;
}

void SetupScreen::addControls() {
    notes_ = &add<ReportScreen>("TextBox", Rect{120, 120, 9228, 6250});
    checkBox_ = &add<CheckBox>("CheckBox", Rect{252, 6480, 5200, 330});
    checkBox_->caption = "Do not show this message again";
    const auto button = [this](const char* name, const char* text, double left, double across) {
        auto& added = add<Button>(name, Rect{left, 6450, across, 372});
        added.caption = text;
        return &added;
    };
    button("Folder", "&Folder", 6600, 780)->onPress = [this] { openFolderScreen(suite()); };
    screen_ = button("Screen", "&Screen", 7440, 780);
    screen_->onPress = [this] { setScreen(); };
    continue_ = button("Continue", "&Continue", 8280, 972);
    continue_->onPress = [this] { finish(); };
}

void SetupScreen::load() {
    checkBox_->selected = suite().setupDone != 0;
    fillNotes();
    focus = continue_;
    run(*screen_, [this] {
        checkFolderName();
        checkResolution();
        checkDotsPerInch();
        checkLanguage();
        checkTheme();
    });
}

// The notes

void SetupScreen::addHeading(const std::string& text) {
    Font font = headingFont;
    font.size *= suite().scaleX;
    notes_->add({text, font, colour::lightBlue});
}

void SetupScreen::addParagraph(const std::string& text) {
    Font font = noteFont;
    font.size *= suite().scaleX;
    for (const std::string& line : wrapped(text, noteCharacters)) notes_->add({line, font, colour::black});
    notes_->add({"", font, colour::black});
}

void SetupScreen::fillNotes() {
    const auto note = [this](const char* heading, const std::string& text) {
        addHeading(heading);
        addParagraph(text);
    };
    notes_->clear();
    addHeading("VANTORE SETUP");
    addParagraph(
        "For proper VANTORE operation, initialize Windows and VANTORE settings.  Carefully observe the "
        "setup instructions that follow.");
    note("Language option and date format",
         "Numbers and dates must be in the format of English (United States), dates as MM/dd/yyyy.");
    note(
        "Windows display theme",
        "The display theme must be Windows Classic.  On a system without such themes nothing is to be done.");
    note(
        "Screen resolution",
        "The resolution that VANTORE is set to and that of the screen must be the same.  VANTORE is set to " +
            suite().screenSetting +
            ".  A resolution of 1024x768 works well.  True colour and 96 DPI are required.  A wide-screen "
            "monitor "
            "must not stretch the picture.");
    note("Input/output folder",
         "The folder for problem files and results must have a single name without spaces.  It is now " +
             suite().ioFolder + ", and VANTORE is installed in " + suite().installFolder +
             ".  On a network the folder must differ from the installed one.");
    note("Documentation", "A user's manual, Vantore.pdf, lies in the installed folder.");
    note("Excel Editing", "The spreadsheet templates hold macros.  Set the macro security of the spreadsheet "
                          "program to medium, and "
                          "allow the macros when a template is opened.");
    note("Samples", "Sample data files lie in the installed folder.");
    note("Miscellaneous", "Auto hide the bottom task bar, if one is used.");
}

// The checks

void SetupScreen::checkFolderName() {
    const std::string folder = trimmed(suite().ioFolder);
    if (folder.find(' ') == std::string::npos) return;
    message("There is a space found in the input/output folder name called " + folder +
                ".  Rename the folder without a space(s) and keep the name size to no more than 8 "
                "characters.  If "
                "you want to change the folder name, click on the Folder button below.",
            "Input/Output folder name");
}

void SetupScreen::checkResolution() {
    suite().screenSetting = resolutionText(suite().screenWidth, suite().screenHeight);
    if (suite().screenSetting != resolutionText(suite().platform.settings.resolution())) setScreen();
}

void SetupScreen::checkDotsPerInch() {
    const int dotsPerInch = suite().platform.settings.dotsPerInch();
    if (dotsPerInch == wantedDotsPerInch) return;
    message(
        joined("The DPI value in Windows is ", dotsPerInch) +
            " and needs to be changed to Normal-size fonts (96 DPI).  This is done through the Control Panel "
            "in "
            "Windows.  Click on the Advanced button in the dialog box that will appear when OK is clicked.  "
            "Choose the 96 DPI setting from the selection window.  Other DPI settings will cause the maps "
            "not to "
            "be displayed properly.  You will need to restart your computer for the change to take effect.",
        "DPI setting");
    openDisplaySettings(settingsPage);
}

void SetupScreen::checkLanguage() {
    const std::optional<std::string> language = suite().platform.settings.language();
    if (!language)
        return message(
            "Unable to detect the language Windows is using.  Make sure that the language is set to "
            "English (United States).",
            "Information");
    if (*language != "English")
        message("The language detected is not English (United States), which may cause improper data "
                "formatting and "
                "associated running errors.  Change the language choice in Windows Control Panel and select "
                "Language Options.  Restart VANTORE.",
                "Language");
}

void SetupScreen::checkTheme() {
    if (suite().themeAsked == ThemeCheck::Asked || !suite().platform.settings.themed()) return;
    message("A non-preferred Display Theme is running.  Change it to a Windows Classic theme.",
            "Windows Theme");
    suite().themeAsked = ThemeCheck::Found;
    setScreen();
}

// The Screen operation

void SetupScreen::setScreen() {
    try {
        if (suite().themeAsked != ThemeCheck::Found) {
            takeResolution();
            keepResolution();
            testFolder();
        }
        askAboutTheme();
    } catch (const RuntimeError& error) {
        if (error.number() == ErrorNumber::PermissionDenied || error.number() == ErrorNumber::PathFileAccess)
            return message("Writing to " + suite().ioFolder + " is denied", errorTitle());
        message(std::string(error.what()) +
                    " occurred in the screen setup.  Repeat screen setup by clicking the Screen button.",
                "Error");
    }
}

void SetupScreen::openDisplaySettings(int page) {
    suite().platform.settings.openDisplaySettings(page);
    suite().messageBx("Continue after the Display Properties box is closed.", "Screen display properties",
                      "Left", 8 * suite().scaleX);
}

void SetupScreen::takeResolution() {
    display_ = suite().platform.settings.resolution();
    if (suite().screenWidth != display_.width || suite().screenHeight != display_.height) {
        message("Your VANTORE display resolution is now set at " +
                    resolutionText(suite().screenWidth, suite().screenHeight) +
                    " and your Windows screen resolution is set at " + resolutionText(display_) +
                    ".  You must reset the screen resolution to make them the same.",
                "Critical");
        return changeResolution();
    }
    if (suite().asksYes("Your current screen resolution is set at " + resolutionText(display_) +
                            ".  Do you want to change it?",
                        errorTitle()))
        changeResolution();
}

/// Lets the user change the display's resolution, and takes the one that it has then.
void SetupScreen::changeResolution() {
    openDisplaySettings(settingsPage);
    display_ = suite().platform.settings.resolution();
    suite().screenWidth = display_.width;
    suite().screenHeight = display_.height;
}

/// The new scale factors take effect at the next start.
void SetupScreen::keepResolution() {
    const auto keep = [this] {
        writeDriverFile(suite().drvFile(),
                        {suite().installFolder + "/", suite().screenWidth, suite().screenHeight, 0});
    };
    keep();
    const double ratio = divide(display_.width, display_.height);
    if (ratio <= widestRatio) return;
    if (!suite().asksYes(
            "The current screen resolution of " + resolutionText(display_) +
                joined(" with and aspect ratio of ", ratio) +
                " will not likely produce a pleasing display.  Select a resolution where the aspect "
                "ratio is less than 1.4, for example, 1024/768 = 1.33.  Want to reset the resolution "
                "now?",
            "Question"))
        return;
    changeResolution();
    keep();
}

/// The probe stays in the folder. Before the first choice of a folder the install folder stands for it.
void SetupScreen::testFolder() {
    const std::string folder = suite().ioFolder.empty() ? suite().installFolder + "/" : suite().ioFolder;
    writeLines(pathOf(folder + probeName), {});
    writeDriverFile(suite().drvFile(), {folder, suite().screenWidth, suite().screenHeight, 0});
}

void SetupScreen::askAboutTheme() {
    if (suite().themeAsked != ThemeCheck::Found && !suite().platform.settings.themed()) return;
    if (suite().asksYes("Windows Display Theme should be Windows Classic.  Want to change it?",
                        errorTitle())) {
        const bool vista = suite().asksYes("Is your computer operating system Windows Vista?", errorTitle());
        suite().platform.settings.openDisplaySettings(vista ? themePageOfVista : themePage);
        suite().messageBx("Continue after closing the Display Properties box", errorTitle(), "Left",
                          8 * suite().scaleX);
    }
    suite().themeAsked = ThemeCheck::Asked;
}

// The end

void SetupScreen::close() {
    run(*continue_, [this] { finish(); });
}

/// Notes in VANTORE.DRV whether the notes are due at the next start; its first two lines stay as they are.
void SetupScreen::finish() {
    closed = true;
    suite().setupOpen = false;
    suite().setupDone = checkBox_->selected ? 1 : 0;
    std::vector<std::string> driver = readLines(suite().drvFile());
    driver.resize(2);
    driver.push_back(str(suite().setupDone) + " ");
    std::string content;
    for (const std::string& line : driver) content.append(line).append("\r\n");
    replaceFile(suite().drvFile(), content);
}

void openSetupScreen(Suite& suite) {
    auto screen = std::make_unique<SetupScreen>(suite);
    SetupScreen& opened = *screen;
    suite.windows.open(std::move(screen));
    opened.load();
}

} // namespace vantore
