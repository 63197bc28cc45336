#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "location/WARELOCA/flows.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "solvers/WARELO/evaluate.h"

namespace {

using namespace vantore;

/// A case and, behind it, its selection. It is the same when it is written and read again.
wareloca::Case caseFrom(const std::string& text) {
    ItemReader reader(text);
    wareloca::Case problem = wareloca::read(reader);
    wareloca::readSelection(problem, reader);
    ItemWriter writer;
    wareloca::write(problem, writer);
    wareloca::writeSelection(problem, writer);
    ItemReader again(writer.text());
    wareloca::Case copy = wareloca::read(again);
    wareloca::readSelection(copy, again);
    ItemWriter copied;
    wareloca::write(copy, copied);
    wareloca::writeSelection(copy, copied);
    if (copied.text() != writer.text()) std::abort();
    return problem;
}

void evaluateAndPlot(const std::string& text) {
    const warelo::Evaluation evaluation = warelo::evaluate(caseFrom(text));
    for (const std::string& line : evaluation.report.lines()) {
        // Locations may hold any letters; the figures stand behind them.
        if (line.starts_with(" Total") && line.find_first_of("ni") != std::string::npos) std::abort();
        if (line.find("broke down") != std::string::npos) std::abort();
    }
    ItemWriter flows;
    wareloca::writeFlows(evaluation.flows, flows);
    ItemReader reader(flows.text());
    if (wareloca::readFlows(reader).size() != evaluation.flows.size()) std::abort();
}

} // namespace

/// Any bytes are a case with a selection that is evaluated or refused, and flows that are read or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = decoded({reinterpret_cast<const char*>(data), size});
    try {
        evaluateAndPlot(text);
    } catch (const RuntimeError&) {
    }
    try {
        ItemReader reader(text);
        wareloca::readFlows(reader);
    } catch (const RuntimeError&) {
    }
    return 0;
}
