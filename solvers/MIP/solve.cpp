#include "solvers/MIP/solve.h"

#include <CoinError.hpp>
#include <chrono>
#include <cmath>
#include <exception>
#include <string>
#include <utility>

#include "shell/base/number_text.h"
#include "solvers/MIP/check.h"
#include "solvers/MIP/relaxation.h"
#include "solvers/MIP/search.h"
#include "solvers/MIP/tightening.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr double objectiveTolerance = 1E-06; // of the largest term of the objective

/// One run: the problem, its limits and the clock.
class Run {
  public:
    Run(const SolverInput& input, const Limits& limits, Progress& progress, Care care)
        : input_(input), limits_(limits), progress_(progress), care_(care) {}

    void solve() {
        if (const auto fault = oversizedNumber(input_)) return end(Status::NotSolved, *fault);
        if (const auto fault = integerWithoutWholeNumber(input_)) return end(Status::Infeasible, *fault);
        LinearResult linear = relax(Care::Usual);
        if (linear.status == LinearStatus::Failed) linear = relax(Care::Strict);
        switch (linear.status) {
        case LinearStatus::Optimal: return input_.intCount() == 0 ? takeRelaxation(linear) : search();
        case LinearStatus::Infeasible: return reportInfeasible(linear);
        case LinearStatus::Unbounded: return reportUnbounded(linear);
        case LinearStatus::Stopped: return end(stopReason());
        case LinearStatus::Failed: break;
        }
        end(Status::NotSolved, "The simplex method could not go on with the numbers of this problem.");
    }

  private:
    double secondsLeft() const {
        const std::chrono::duration<double> used = std::chrono::steady_clock::now() - start_;
        return limits_.seconds - used.count();
    }

    void end(Status status, const std::string& reason = "") {
        progress_.update([&](Outcome& outcome) {
            outcome.status = status;
            outcome.reason = reason;
        });
    }

    Status stopReason() const { return progress_.stopping() ? Status::Interrupted : Status::TimeLimit; }

    LinearResult relax(Care care) {
        const LinearResult linear = solveRelaxation(input_, secondsLeft(), care, progress_);
        progress_.update([&](Outcome& outcome) {
            outcome.iterations += linear.iterations;
            if (linear.status != LinearStatus::Optimal) return;
            outcome.relaxation = linear.relaxation;
            outcome.bound = linear.relaxation.objective;
        });
        return linear;
    }

    /// Without integer variables the relaxation is the problem.
    void takeRelaxation(const LinearResult& linear) {
        Checked found = checked(input_, linear.relaxation.values);
        if (!found.solution) {
            const LinearResult again = relax(Care::Strict);
            if (again.status == LinearStatus::Optimal) found = checked(input_, again.relaxation.values);
        }
        if (!found.solution) return end(Status::NotSolved, failedCheck(found.fault));
        keepBest(input_, *found.solution, progress_);
        end(Status::Optimal);
    }

    void reportInfeasible(const LinearResult& linear) {
        progress_.update([&](Outcome& outcome) { outcome.conflict = linear.conflict; });
        end(Status::Infeasible,
            input_.intCount() == 0 ? "" : "Nor is there one when the integer variables may have fractions.");
    }

    /// Where the relaxation is unbounded the problem is so too, provided that it has any solution.
    /// Source: Meyer, "On the existence of optimal solutions to integer and mixed-integer programming
    /// problems" (1974).
    void reportUnbounded(const LinearResult& linear) {
        progress_.update([&](Outcome& outcome) { outcome.unlimited = linear.unlimited; });
        if (input_.intCount() == 0) return end(Status::Unbounded);
        const SearchResult any = searchOnce(care_, true);
        const bool solvable = takeSolution(any).empty() && progress_.outcome().solution;
        // Any solution will do here, and none is worth reporting.
        progress_.update([](Outcome& outcome) { outcome.solution.reset(); });
        if (solvable) return end(Status::Unbounded);
        const bool none = any.end == SearchEnd::Infeasible && tellsFractions();
        end(none ? Status::Infeasible : statusOf(any.end),
            "Without the integer requirements the problem is unbounded.");
    }

    static Status statusOf(SearchEnd end) {
        switch (end) {
        case SearchEnd::TimeLimit: return Status::TimeLimit;
        case SearchEnd::NodeLimit: return Status::NodeLimit;
        case SearchEnd::Interrupted: return Status::Interrupted;
        default: return Status::NotSolved;
        }
    }

    SearchResult searchOnce(Care care, bool anySolution) {
        const SearchTask task{{secondsLeft(), limits_.nodes}, care, anySolution};
        const SearchResult result = branchAndCut(input_, task, progress_);
        iterations_ += result.iterations;
        progress_.update([&](Outcome& outcome) {
            outcome.nodes = result.nodes;
            if (result.bound) outcome.bound = result.bound;
        });
        return result;
    }

    void search() {
        const int before = progress_.outcome().iterations;
        const bool concluded = conclude(searchOnce(care_, false));
        if (!concluded && care_ == Care::Usual && secondsLeft() > 0 && !progress_.stopping())
            conclude(searchOnce(Care::Strict, false));
        progress_.update([&](Outcome& outcome) { outcome.iterations = before + iterations_; });
    }

    /// Takes over what a search has found. False when the check doesn't bear out what the search claims.
    bool conclude(const SearchResult& result) {
        fault_ = takeSolution(result);
        switch (result.end) {
        case SearchEnd::Optimal:
        case SearchEnd::Infeasible:
            if (!provenBy(result)) break;
            if (result.end == SearchEnd::Optimal) return endOptimal();
            end(Status::Infeasible, "There are solutions when the integer variables may have fractions.");
            return true;
        case SearchEnd::Failed: break;
        default: end(statusOf(result.end)); return true;
        }
        endUnproved();
        return false;
    }

    /// The checked solutions agree with the search, and its arithmetic could tell a fraction from none.
    bool provenBy(const SearchResult& result) const {
        const Outcome outcome = progress_.outcome();
        if (outcome.solution.has_value() != (result.end == SearchEnd::Optimal)) return false;
        if (outcome.solution && !reaches(*outcome.solution, result.objective)) return false;
        return tellsFractions();
    }

    bool tellsFractions() const { return !hidesFractions(tightened(input_), integerTolerance); }

    bool endOptimal() {
        progress_.update([](Outcome& outcome) { outcome.bound = outcome.solution->objective; });
        end(Status::Optimal);
        return true;
    }

    /// Checks the search's solution, the continuous variables fitted to the rounded integer ones, and keeps
    /// it; says what is wrong with it otherwise.
    std::string takeSolution(const SearchResult& result) {
        if (result.values.empty()) return "";
        const Checked fitted = checked(input_, withIntegersFixed(input_, result.values, fittingSeconds));
        const Checked found = fitted.solution ? fitted : checked(input_, result.values);
        if (found.solution) keepBest(input_, *found.solution, progress_);
        return found.fault;
    }

    /// The checked solution is as good as the search says that the best one is.
    bool reaches(const Solution& solution, double claimed) const {
        const double scale = objectiveOf(input_, solution.values).scale;
        const double shortfall = input_.objectiveFlag * (claimed - solution.objective);
        return shortfall <= objectiveTolerance * scale;
    }

    void endUnproved() {
        // A bound that the check doesn't bear out is none.
        progress_.update([](Outcome& outcome) { outcome.bound.reset(); });
        if (progress_.outcome().solution) return end(Status::Unproved);
        end(Status::NotSolved,
            fault_.empty()
                ? "No solution was found, but the numbers of this problem are so far apart in size that "
                  "this proves nothing. Rescaling the problem may help."
                : failedCheck(fault_));
    }

    static std::string failedCheck(const std::string& fault) {
        return "The solution that was found doesn't hold when it is computed anew: " + fault;
    }

    static constexpr double fittingSeconds = 2; // for one linear program with the integers fixed

    const SolverInput& input_;
    const Limits& limits_;
    Progress& progress_;
    Care care_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    int iterations_ = 0;
    std::string fault_;
};

} // namespace

void solve(const SolverInput& input, const Limits& limits, Progress& progress, Care care) {
    const auto fail = [&progress](const std::string& reason) {
        progress.update([&](Outcome& outcome) {
            outcome.status = Status::NotSolved;
            outcome.reason = reason;
        });
    };
    try {
        Run(input, limits, progress, care).solve();
    } catch (const CoinError& error) {
        fail("The solver's library gave up: " + error.message() + ".");
    } catch (const std::exception& error) {
        fail(std::string("The solver gave up: ") + error.what() + ".");
    }
}

} // namespace vantore::mip
