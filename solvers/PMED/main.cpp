#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "solvers/PMED/solve.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"
#include "solvers/whole_file.h"

namespace {

using namespace vantore;

pmed::SolverInput inputFrom(const std::filesystem::path& file) {
    ItemReader reader(readTextFile(file));
    try {
        return pmed::readInput(reader);
    } catch (const pmed::MalformedInput& fault) {
        throw pmed::MalformedInput(std::string("FORRUN can't be read as a problem. ") + fault.what());
    }
}

} // namespace

/// PMED.EXE: reads FORRUN in the input/output folder, chooses the sites and writes FOROUT there. The exit
/// status is 1, with the reason on standard error and no FOROUT, when FORRUN is no problem or FOROUT can't be
/// written.
int main() {
    try {
        watch::begin();
        const std::filesystem::path folder = solverIoFolder();
        removeFile(folder / "FOROUT");
        const pmed::SolverInput input = inputFrom(folder / "FORRUN");
        const pmed::Assignment chosen = pmed::solve(input);
        writeWhole(folder / "FOROUT", lines(pmed::assignmentText(chosen, input.problem.rowCount)));
    } catch (const std::exception& error) {
        std::cerr << "PMED.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
