#pragma once

#include "mathprog/MIPROG/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::miprog {

/// The first line of the results, in the box and on paper; the solver's report follows it.
constexpr const char* resultsTitle = " MIXED INTEGER LINEAR PROGRAMMING RESULTS";

/// The input data as a page: the matrix in panels of as many columns as a line has room for.
PrintLines inputPage(const Problem& problem);

} // namespace vantore::miprog
