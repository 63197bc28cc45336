#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/text_file.h"
#include "solvers/MIP/report.h"
#include "solvers/MIP/solve.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"

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

/// Writes a report whole or leaves none behind.
void write(const std::filesystem::path& file, const PrintLines& report) {
    try {
        writeLines(file, report.lines());
    } catch (const std::exception&) {
        std::error_code ignored;
        const auto written = existingSpelling(file);
        if (std::filesystem::is_regular_file(written, ignored)) std::filesystem::remove(written, ignored);
        throw;
    }
}

} // namespace

/// MIP.EXE: reads TEMP.DAT in the input/output folder, solves the problem and reports to OUTPUT.Dat there.
/// The exit status is 1, with the reason on standard error, when the report can't be written.
int main() {
    try {
        watch::begin();
        const std::filesystem::path folder = solverIoFolder();
        write(folder / "OUTPUT.Dat", mip::reportBeforehand());
        write(folder / "OUTPUT.Dat", solved(folder / "TEMP.DAT"));
    } catch (const std::exception& error) {
        std::cerr << "MIP.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
