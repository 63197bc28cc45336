#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "shell/base/number_text.h"
#include "shell/base/solver_progress.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "solvers/OPTMZR/solve.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"

namespace {

using namespace vantore;

router::Problem readProblem(const std::filesystem::path& folder) {
    ItemReader reader(readTextFile(folder / router::solverInputFile));
    return router::read(reader);
}

std::string progressLine(const router::Plan& plan, const optmzr::Judgement& judgement) {
    const std::string routes = plan.routeCount == 1 ? " route" : " routes";
    const std::string limits = judgement.violations == 1 ? " limit" : " limits";
    std::string line = "Best plan so far: " + std::to_string(plan.routeCount) + routes + ", cost $" +
                       format(judgement.cost, "###,##0.#0");
    if (judgement.violations > 0) line += ", beyond " + std::to_string(judgement.violations) + limits;
    return line + ".";
}

void removeFile(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto present = existingSpelling(file);
    if (std::filesystem::is_regular_file(present, ignored)) std::filesystem::remove(present, ignored);
}

/// Writes the plan whole or leaves none behind.
void write(const std::filesystem::path& file, const router::Plan& plan) {
    ItemWriter writer;
    router::writePlan(plan, writer);
    try {
        writeLines(file, lines(writer.text()));
    } catch (const std::exception&) {
        removeFile(file);
        throw;
    }
}

} // namespace

/// OPTMZR.EXE: reads TEMP.DAT in the input/output folder, looks for the best plan and writes it to ROUTE.DAT
/// there. The exit status is 1, with the reason on standard error and no ROUTE.DAT, when there is no problem
/// to be read, no plan that can be followed, or no way to write it.
int main() {
    try {
        watch::begin();
        const std::filesystem::path folder = solverIoFolder();
        removeFile(folder / router::planFile);
        const router::Problem problem = readProblem(folder);
        const auto tell = [&folder](const router::Plan& plan, const optmzr::Judgement& judgement) {
            writeProgress(folder, progressLine(plan, judgement));
        };
        const router::Plan plan = optmzr::solve(problem, optmzr::usualSeconds, tell);
        removeProgress(folder);
        write(folder / router::planFile, plan);
    } catch (const std::exception& error) {
        std::cerr << "OPTMZR.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
