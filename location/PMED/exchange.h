#pragma once

#include <stdexcept>
#include <string>

#include "location/PMED/problem.h"

namespace vantore::pmed {

/// The files by which the module and its solver talk to each other.

/// What the solver is to do: FORRUN.
struct SolverInput {
    Problem problem;
    double sitesToLocate = 0;
};

/// Which point is served from which, by their numbers, and what that costs: FOROUT.
struct Assignment {
    Table<int, 1, mostPoints> servedBy;
    double totalCost = 0;
};

/// An input that is no problem to be solved; `what` tells why.
class MalformedInput : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

std::string inputText(const SolverInput& input);

/// The part of an input that holds the points, without its last line.
std::string pointsText(const Problem& problem);

/// MalformedInput where the items are no problem in which as many sites as asked for can be chosen.
SolverInput readInput(ItemReader& reader);

std::string assignmentText(const Assignment& assignment, int pointCount);

/// The assignment of so many points; its pairs come in any order. InputPastEnd for a short file,
/// SubscriptOutOfRange where a point isn't served or one that isn't there serves.
Assignment readAssignment(ItemReader& reader, int pointCount);

} // namespace vantore::pmed
