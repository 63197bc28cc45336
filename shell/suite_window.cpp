#include "shell/suite_window.h"

#include <exception>
#include <new>

namespace vantore {

void SuiteWindow::run(const Control& control, const std::function<void()>& handler) {
    if (!handler) return;
    try {
        handler();
    } catch (const Unanswered&) {
        // What asked has stopped; the window is as it was.
    } catch (const PlatformFailure&) {
        throw;
    } catch (const std::bad_alloc&) {
        reportFailure("Out of memory" + errorPlace(control));
    } catch (const RuntimeError& error) {
        reportFailure(errorWords(error, control) + errorPlace(control));
    } catch (const std::exception& error) {
        reportFailure(error.what() + errorPlace(control));
    }
}

void SuiteWindow::reportFailure(const std::string& text) {
    message(text, errorTitle());
    suite_.platform.dialogs.failed(text);
}

std::string SuiteWindow::errorPlace(const Control& control) const {
    return " occurred in " + errorTitle() + ", " + control.name + ".";
}

} // namespace vantore
