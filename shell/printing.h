#pragma once

#include <string>
#include <vector>

#include "shell/base/print_lines.h"
#include "shell/forms/print_job.h"

namespace vantore {

/// What goes to the printer, titled with the module and what it is. Sizes are the printer's, whatever the
/// screen.

/// A report: "Arial" 12 for the first line, "Courier New" 10 for the rest.
PrintJob reportJob(const std::string& module, const std::vector<std::string>& lines);

/// A print of input data: a blank line, the headings in "Arial" 14, a blank line, the page in "Courier
/// New" 12.
PrintJob dataJob(const std::string& module, const std::vector<std::string>& headings, const PrintLines& page);
PrintJob dataJob(const std::string& module, const std::string& heading, const PrintLines& page);

/// A print of input data that begins with its page, all in "Courier New" 12.
PrintJob plainJob(const std::string& module, const PrintLines& page);

} // namespace vantore
