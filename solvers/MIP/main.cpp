#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/text_file.h"
#include "solvers/MIP/outcome.h"
#include "solvers/MIP/report.h"
#include "solvers/MIP/supervision.h"
#include "solvers/io_folder.h"

namespace {

using namespace vantore;

constexpr double lastResortSeconds = 4 * mip::graceSeconds; // behind the time limit, for search and report

PrintLines solved(const std::filesystem::path& temporaryFile) {
    try {
        const miprog::SolverInput input = miprog::readTemporaryLines(readLines(temporaryFile));
        const mip::Limits limits;
        mip::endAfter(limits.seconds + lastResortSeconds);
        return mip::report(input, mip::supervise(input, limits), limits);
    } catch (const std::exception& error) {
        return mip::reportWithoutProblem(error.what());
    }
}

} // namespace

/// MIP.EXE: reads TEMP.DAT in the input/output folder, solves the problem and reports to OUTPUT.Dat there.
/// The exit status is 1, with the reason on standard error, when the report can't be written.
int main() {
    int status = EXIT_SUCCESS;
    try {
        mip::takeSignals();
        const std::filesystem::path folder = solverIoFolder();
        writeLines(folder / "OUTPUT.Dat", mip::reportBeforehand().lines());
        writeLines(folder / "OUTPUT.Dat", solved(folder / "TEMP.DAT").lines());
    } catch (const std::exception& error) {
        std::cerr << "MIP.EXE: " << error.what() << std::endl;
        status = EXIT_FAILURE;
    }
    // A search that didn't stop when it was told to may still be at work.
    std::_Exit(status);
}
