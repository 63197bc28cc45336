#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/solver_progress.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "solvers/OPTMZR/solve.h"
#include "solvers/io_folder.h"
#include "solvers/watch/watch.h"
#include "solvers/whole_file.h"

namespace {

using namespace vantore;

router::Problem readProblem(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / router::solverInputFile;
    try {
        ItemReader reader(readTextFile(file));
        return router::read(reader);
    } catch (const RuntimeError& error) {
        if (error.number() == ErrorNumber::FileNotFound) throw;
        throw optmzr::Unsolvable(file.filename().string() + " can't be read as a problem. " + error.what() +
                                 ".");
    }
}

std::string progressLine(const router::Plan& plan, const optmzr::Judgement& judgement) {
    const std::string routes = plan.routeCount == 1 ? " route" : " routes";
    const std::string limits = judgement.violations == 1 ? " limit" : " limits";
    std::string line = "Best plan so far: " + std::to_string(plan.routeCount) + routes + ", cost $" +
                       format(judgement.cost, "###,##0.#0");
    if (judgement.violations > 0) line += ", beyond " + std::to_string(judgement.violations) + limits;
    return line + ".";
}

std::vector<std::string> linesOf(const router::Plan& plan) {
    ItemWriter writer;
    router::writePlan(plan, writer);
    return lines(writer.text());
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
        writeWhole(folder / router::planFile, linesOf(plan));
    } catch (const std::exception& error) {
        std::cerr << "OPTMZR.EXE: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
