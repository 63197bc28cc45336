#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/text.h"
#include "solvers/MIP/report.h"
#include "solvers/MIP/solve.h"

namespace {

using namespace vantore;

constexpr int mostSolvedSize = 12; // constraints and variables
constexpr mip::StageSeconds tinyLimits{.relaxation = 1, .search = .2, .proof = .2};

/// The library's own assertions fire on coefficients that are worlds apart, which is a failure of the search
/// that MIP.EXE lives with. Here a stage that breaks down is a finding.
bool isModerate(const miprog::SolverInput& input) {
    constexpr double most = 1E6;
    constexpr double least = 1E-6;
    const auto moderate = [](double value) {
        return value == 0 || (std::abs(value) <= most && std::abs(value) >= least);
    };
    return std::ranges::all_of(input.coefs.span(), moderate) &&
           std::ranges::all_of(input.rhs.span(), moderate) &&
           std::ranges::all_of(input.objCoef.span(), moderate);
}

/// Solves the problem; whatever is reported as its solution must be one. The variables have plain names, so
/// that the report's only letters are its own.
void solveAndReport(miprog::SolverInput input) {
    input.names = {};
    for (int j = 1; j <= input.n; ++j) input.names.add("v");
    const mip::Outcome outcome = mip::solve(input, tinyLimits);
    if (outcome.halt && outcome.halt->cause == watch::End::Failed) std::abort();
    if (outcome.solution && !mip::checked(input, outcome.solution->values)) std::abort();
    if (outcome.status == mip::Status::Optimal && !outcome.solution) std::abort();
    const PrintLines page = mip::report(input, outcome, tinyLimits);
    for (const std::string& line : page.lines())
        if (line.find("nan") != std::string::npos || line.find("inf") != std::string::npos) std::abort();
}

} // namespace

/// Reads any bytes as TEMP.DAT. What is a problem is the same when it is written and read again, and is
/// solved.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const std::string text = decoded({reinterpret_cast<const char*>(data), size});
        const miprog::SolverInput input = miprog::readTemporaryLines(lines(text));
        const auto written = miprog::temporaryLines(input);
        if (miprog::temporaryLines(miprog::readTemporaryLines(written)) != written) std::abort();
        if (input.m <= mostSolvedSize && input.n <= mostSolvedSize && isModerate(input))
            solveAndReport(input);
    } catch (const miprog::MalformedInput&) {
        // Told to the user, line by line.
    }
    return 0;
}
