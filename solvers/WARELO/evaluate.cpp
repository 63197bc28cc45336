#include "solvers/WARELO/evaluate.h"

#include <functional>
#include <stdexcept>
#include <string>

#include "shell/base/text_file.h"
#include "solvers/WARELO/messages.h"
#include "solvers/WARELO/network.h"
#include "solvers/WARELO/search.h"
#include "solvers/watch/watch.h"

namespace vantore::warelo {

namespace {

/// Reads one file, its name in front of what is wrong with it.
void readFile(const std::filesystem::path& folder, const std::string& name,
              const std::function<void(ItemReader&)>& read) {
    try {
        ItemReader reader(readTextFile(existingSpelling(folder / name)));
        read(reader);
    } catch (const RuntimeError& error) {
        throw std::runtime_error(name + " can't be read: " + error.what() + ".");
    }
}

std::string haltOf(watch::End end) {
    switch (end) {
    case watch::End::Done: return {};
    case watch::End::TimeLimit: return "The search was stopped when its time was over.";
    case watch::End::Interrupted: return "The search was stopped by the user.";
    case watch::End::Failed: return "The search broke down; this is the best that it had found.";
    }
    return {};
}

} // namespace

Case readCase(const std::filesystem::path& folder) {
    Case problem;
    readFile(folder, "FIL.DAT", [&](ItemReader& reader) { problem = wareloca::read(reader); });
    readFile(folder, "OLDSOL.DAT", [&](ItemReader& reader) { wareloca::readSelection(problem, reader); });
    return problem;
}

Evaluation evaluate(const Case& problem, double seconds) {
    if (const auto fault = faultIn(problem)) return {reportWithoutPlan(*fault), {}};
    const Network network = networkOf(problem);
    Found best;
    const watch::End end = watch::run(
        [&network](const watch::Tell& tell) {
            search(network, [&tell](const Found& found) { tell(toText(found)); });
        },
        seconds, [&best](const std::string& text) { best = foundFrom(text); });
    const std::string halt = haltOf(end);
    if (best.allocation.empty()) return {reportWithoutPlan(halt), {}};
    const Plan plan = planOf(problem, network, best.allocation);
    return {report(problem, plan, {best.bound, halt}), flowsOf(problem, plan)};
}

} // namespace vantore::warelo
