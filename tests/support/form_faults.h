#pragma once

#include <string>
#include <vector>

#include "shell/forms/form.h"

namespace vantore::tests {

/// What is wrong with a window as it stands: a control without a name or with another's, one that leaves the
/// window, two visible ones that overlap, a caption that doesn't fit. Empty when all is well.
std::vector<std::string> formFaults(const Form& form);

} // namespace vantore::tests
