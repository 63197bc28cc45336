#pragma once

#include <string>
#include <variant>
#include <vector>

#include "solvers/MIP/relaxation.h"
#include "solvers/MIP/search.h"

namespace vantore::mip {

/// What the stages of a run, each in a process of its own, tell the program that reports.

struct FoundValues {
    std::vector<Rational> values; ///< of a solution, in the problem's units
};

struct ProofProgress {
    long long nodes = 0;
};

using Message = std::variant<FoundValues, SearchProgress, SearchEnd, ProofProgress, Relaxation>;

std::string encoded(const Message& message);

/// std::runtime_error for a text that is no message.
Message decoded(const std::string& text);

} // namespace vantore::mip
