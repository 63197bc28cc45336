#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "shell/base/text.h"
#include "solvers/WARELO/evaluate.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"
#include "solvers/whole_file.h"

namespace {

using namespace vantore;

/// The evaluation of the folder's case, or the report that there is none.
warelo::Evaluation evaluated(const std::filesystem::path& folder) {
    wareloca::Case problem;
    try {
        problem = warelo::readCase(folder);
    } catch (const std::runtime_error& error) {
        return {warelo::reportWithoutPlan(error.what()), {}};
    }
    return warelo::evaluate(problem);
}

void write(const std::filesystem::path& folder, const warelo::Evaluation& evaluation) {
    ItemWriter flows;
    writeFlows(evaluation.flows, flows);
    writeWhole(folder / "TEMP.DAT", lines(flows.text()));
    writeWhole(folder / "OUTPUT.DAT", evaluation.report.lines());
}

} // namespace

/// WARELO.EXE: reads FIL.DAT and OLDSOL.DAT in the input/output folder, allocates the customers to the
/// selected warehouses and plants, reports to OUTPUT.DAT and hands the allocation to the map in TEMP.DAT. The
/// exit status is 1, with the reason on standard error, when these can't be written.
int main() {
    try {
        watch::begin();
        const std::filesystem::path folder = solverIoFolder();
        write(folder, evaluated(folder));
    } catch (const std::exception& error) {
        std::cerr << "WARELO.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
