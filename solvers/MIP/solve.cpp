#include "solvers/MIP/solve.h"

#include <chrono>
#include <functional>
#include <utility>

#include "solvers/MIP/messages.h"
#include "solvers/MIP/proof.h"

namespace vantore::mip {

using miprog::SolverInput;
using watch::End;
using watch::Tell;

namespace {

/// One run: the problem, and what is known of it so far.
class Run {
  public:
    Run(const SolverInput& input, const StageSeconds& limits)
        : input_(input), limits_(limits), model_(exactModel(input)) {}

    Outcome outcome() {
        conclude();
        return std::move(outcome_);
    }

  private:
    /// Goes through the stages until the outcome is known or the user has stopped one.
    void conclude() {
        outcome_.withoutWholeNumber = variableWithoutWholeNumber(model_);
        if (outcome_.withoutWholeNumber) return settle(Status::Infeasible);
        if (!relaxed()) return;
        if (const auto status = decidedByRelaxation()) return settle(*status);
        const bool ended = searched();
        if (isUnbounded() && outcome_.solution) return settle(Status::Unbounded);
        if (!ended) return;
        if (outcome_.relaxation && proved()) return settle(statusOfProof());
        if (isUnbounded()) return;
        if (claim_ == SearchEnd::Optimal && outcome_.solution)
            outcome_.status = Status::OptimalWithinTolerances;
        if (claim_ == SearchEnd::Infeasible && !outcome_.solution)
            outcome_.status = Status::NoneWithinTolerances;
    }

    /// What is proved needs no excuse. Of an unbounded problem no solution is worth telling.
    void settle(Status status) {
        outcome_.status = status;
        outcome_.halt.reset();
        if (status == Status::Unbounded) outcome_.solution.reset();
    }

    bool isUnbounded() const {
        return outcome_.relaxation && outcome_.relaxation->end == LinearEnd::Unbounded;
    }

    /// Where the relaxation is unbounded the problem is so too, provided that it has any solution: that is
    /// what search and proof look for then.
    /// Source: Meyer, "On the existence of optimal solutions to integer and mixed-integer programming
    /// problems" (1974).
    Model task() const { return isUnbounded() ? withoutObjective(model_) : model_; }

    /// Runs a stage in a process of its own; a stage that is halted is noted.
    End watched(Stage stage, double seconds, double& used, const std::function<void(const Tell&)>& work) {
        const auto start = std::chrono::steady_clock::now();
        const End end = watch::run(work, seconds, [this](const std::string& text) { hear(decoded(text)); });
        used = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        if (end != End::Done) outcome_.halt = Halt{stage, end};
        return end;
    }

    void hear(const Message& message) {
        if (const auto* found = std::get_if<FoundValues>(&message)) return take(found->values);
        if (const auto* progress = std::get_if<SearchProgress>(&message)) outcome_.search = *progress;
        if (const auto* end = std::get_if<SearchEnd>(&message)) claim_ = *end;
        if (const auto* progress = std::get_if<ProofProgress>(&message))
            outcome_.proofNodes = progress->nodes;
        if (const auto* relaxation = std::get_if<Relaxation>(&message)) outcome_.relaxation = *relaxation;
    }

    void take(const std::vector<Rational>& values) {
        auto solution = checked(input_, values);
        if (!solution) {
            foundWrong_ = true;
            return;
        }
        if (outcome_.solution && !better(input_, solution->objective, outcome_.solution->objective)) return;
        outcome_.solution = std::move(solution);
    }

    /// False when the user has stopped it.
    bool relaxed() {
        const End end = watched(Stage::Relaxation, limits_.relaxation, outcome_.used.relaxation,
                                [this](const Tell& tell) { tell(encoded(relax(model_))); });
        return end != End::Interrupted;
    }

    std::optional<Status> decidedByRelaxation() {
        if (!outcome_.relaxation) return std::nullopt;
        if (outcome_.relaxation->end == LinearEnd::Infeasible) return Status::Infeasible;
        if (input_.intCount() > 0) return std::nullopt;
        if (isUnbounded()) return Status::Unbounded;
        take(outcome_.relaxation->values);
        return outcome_.solution ? std::optional(Status::Optimal) : std::nullopt;
    }

    /// False when the search was stopped, and so is the run. A search that has broken down leaves all to the
    /// proof.
    bool searched() {
        const Model model = task();
        const auto work = [&model](const Tell& tell) {
            const SearchNews news{
                [&](const ExactPoint& point) { tell(encoded(FoundValues{problemValues(model, point)})); },
                [&](SearchProgress progress) {
                    if (progress.bound) *progress.bound /= model.costScale;
                    tell(encoded(progress));
                }};
            tell(encoded(search(model, news)));
        };
        const End end = watched(Stage::Search, limits_.search, outcome_.used.search, work);
        return end == End::Done || end == End::Failed;
    }

    /// True when the proof has come to its end: the solution is the best one, or there is none.
    bool proved() {
        const Model model = task();
        std::optional<Rational> best;
        if (outcome_.solution) best = outcome_.solution->objective * model.costScale;
        const auto work = [&](const Tell& tell) {
            const ProofNews news{
                [&](const ExactPoint& point) { tell(encoded(FoundValues{problemValues(model, point)})); },
                [&](long long nodes) { tell(encoded(ProofProgress{nodes})); }};
            prove(model, best, news);
        };
        const auto before = outcome_.solution ? std::optional(outcome_.solution->objective) : std::nullopt;
        const End end = watched(Stage::Proof, limits_.proof, outcome_.used.proof, work);
        const auto after = outcome_.solution ? std::optional(outcome_.solution->objective) : std::nullopt;
        if (before != after) claim_ = SearchEnd::Failed; // The proof has found what the search should have.
        if (end != End::Done || !foundWrong_) return end == End::Done;
        outcome_.halt = Halt{Stage::Proof, End::Failed};
        return false;
    }

    Status statusOfProof() const {
        if (!outcome_.solution) return Status::Infeasible;
        return isUnbounded() ? Status::Unbounded : Status::Optimal;
    }

    const SolverInput& input_;
    const StageSeconds& limits_;
    Model model_;
    SearchEnd claim_ = SearchEnd::Failed;
    bool foundWrong_ = false; ///< A stage has told a solution that is none.
    Outcome outcome_;
};

} // namespace

Outcome solve(const SolverInput& input, const StageSeconds& limits) {
    return Run(input, limits).outcome();
}

} // namespace vantore::mip
