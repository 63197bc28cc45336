#pragma once

#include "shell/forms/form.h"
#include "shell/forms/print_job.h"

class QWidget;

namespace vantore {

/// What a window offers beyond its own buttons: reports as text files, drawings as pictures, both printed
/// with a preview. Each asks where to; nothing happens when the user cancels.

/// Over which window it asks, and the folder that it offers.
struct AskingPlace {
    QWidget* window;
    std::string folder;
};

void saveReportAs(const AskingPlace& place, const Form& form, const ReportScreen& report);
void printReport(const AskingPlace& place, const Form& form, const ReportScreen& report);

void copyDrawing(const Form& form, const Control& drawing);
void saveDrawingAs(const AskingPlace& place, const Form& form, const Control& drawing);
void printDrawing(const AskingPlace& place, const Form& form, const Control& drawing);

/// Shows a document with its preview and prints it. False when the user cancels; RuntimeErrors as
/// `PrintWindow::print`.
bool printWithPreview(const AskingPlace& place, const PrintJob& job);

} // namespace vantore
