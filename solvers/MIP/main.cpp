#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/text_file.h"
#include "solvers/MIP/report.h"
#include "solvers/MIP/solve.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"
#include "solvers/whole_file.h"

namespace {

using namespace vantore;

/// The problem, or the report that there is none.
PrintLines solved(const std::filesystem::path& temporaryFile) {
    miprog::SolverInput input;
    try {
        input = miprog::readTemporaryLines(readLines(temporaryFile));
    } catch (const std::exception& error) {
        return mip::reportWithoutProblem(error.what());
    }
    return mip::report(input, mip::solve(input, mip::usualLimits), mip::usualLimits);
}

} // namespace

/// MIP.EXE: reads TEMP.DAT in the input/output folder, solves the problem and reports to OUTPUT.Dat there.
/// The exit status is 1, with the reason on standard error, when the report can't be written.
int main() {
    try {
        watch::begin();
        const std::filesystem::path folder = solverIoFolder();
        writeWhole(folder / "OUTPUT.Dat", mip::reportBeforehand().lines());
        writeWhole(folder / "OUTPUT.Dat", solved(folder / "TEMP.DAT").lines());
    } catch (const std::exception& error) {
        std::cerr << "MIP.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
