#pragma once

namespace vantore {

/// Starts LibreOffice Calc with an empty document; false when it isn't installed.
bool startSpreadsheetProgram();

} // namespace vantore
