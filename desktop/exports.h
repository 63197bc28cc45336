#pragma once

#include "desktop/print_preview.h"
#include "shell/forms/form.h"

namespace vantore {

/// What a window offers beyond its own buttons: reports as text files, drawings as pictures, both printed
/// with a preview. Each asks where to; nothing happens when the user cancels.

void saveReportAs(const AskingPlace& place, const Form& form, const ReportScreen& report);
void printReport(const AskingPlace& place, const Form& form, const ReportScreen& report);

void copyDrawing(const Form& form, const Control& drawing);
void saveDrawingAs(const AskingPlace& place, const Form& form, const Control& drawing);
void printDrawing(const AskingPlace& place, const Form& form, const Control& drawing);

} // namespace vantore
