#pragma once

#include <string>

#include "shell/forms/print_job.h"

class QWidget;

namespace vantore {

/// Over which window a user is asked something, and the folder that is offered.
struct AskingPlace {
    QWidget* window;
    std::string folder;
};

/// Shows a document and prints it, to a printer of the system or into a PDF file. False when the user
/// cancels. RuntimeErrors: DeviceUnavailable for a printer or file that can't be written, DiskFull for a file
/// that could not be finished.
bool printWithPreview(const AskingPlace& place, const PrintJob& job);

} // namespace vantore
