#pragma once

#include <filesystem>
#include <vector>

#include "location/WARELOCA/flows.h"
#include "solvers/WARELO/report.h"

namespace vantore::warelo {

/// What WARELO.EXE hands back.
struct Evaluation {
    PrintLines report;
    std::vector<wareloca::Flow> flows; ///< none where there is no plan
};

/// A case is searched for so many seconds at most. The search takes a second or two.
constexpr double usualSeconds = 60;

/// The case in FIL.DAT of a folder with the selection in OLDSOL.DAT there. std::runtime_error with a message
/// that names the file when one can't be read.
Case readCase(const std::filesystem::path& folder);

/// Allocates the customers of a case to its selected warehouses and plants at the least cost that is found
/// within so many seconds, in a process of its own; a request to stop ends it with the best so far.
Evaluation evaluate(const Case& problem, double seconds = usualSeconds);

} // namespace vantore::warelo
