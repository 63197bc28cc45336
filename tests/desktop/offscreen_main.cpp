#include <QApplication>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "desktop/look.h"

/// Runs the tests with an application that needs no display, or in real windows where QT_QPA_PLATFORM names
/// a window system.
int main(int count, char** words) {
    testing::InitGoogleTest(&count, words);
    std::vector<char*> arguments(words, words + count);
    std::string option = "-platform";
    std::string platform = qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toStdString();
    arguments.insert(arguments.end(), {option.data(), platform.data(), nullptr});
    auto argumentCount = static_cast<int>(arguments.size()) - 1;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argumentCount, arguments.data());
    vantore::setLook();
    return RUN_ALL_TESTS();
}
