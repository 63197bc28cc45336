#pragma once

namespace vantore {

/// Starts LibreOffice Calc with an empty document; false when it isn't installed.
bool startSpreadsheetProgram();

/// Shows the desktop's display settings; false where none of the known programs is installed.
bool startDisplaySettingsProgram();

} // namespace vantore
