#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "location/PMED/report.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "solvers/PMED/solve.h"

namespace {

using namespace vantore;

/// What the solver chooses is an assignment that its module reads and reports.
void solveAndReport(const std::string& text) {
    ItemReader input(text);
    const pmed::SolverInput problem = pmed::readInput(input);
    ItemReader result(pmed::assignmentText(pmed::solve(problem), problem.problem.rowCount));
    const pmed::Assignment assignment = pmed::readAssignment(result, problem.problem.rowCount);
    if (!std::isfinite(assignment.totalCost)) std::abort();
    if (pmed::reportOn(problem.problem, assignment).lines().size() < 7) std::abort();
}

} // namespace

/// Any bytes are an input that is solved or one that isn't, and a result that is reported or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = decoded({reinterpret_cast<const char*>(data), size});
    try {
        solveAndReport(text);
    } catch (const pmed::MalformedInput&) {
    } catch (const RuntimeError&) { // costs beyond the double range
    }
    try {
        ItemReader result(text);
        pmed::Problem problem;
        problem.rowCount = 4;
        pmed::reportOn(problem, pmed::readAssignment(result, problem.rowCount));
    } catch (const RuntimeError&) {
    }
    return 0;
}
