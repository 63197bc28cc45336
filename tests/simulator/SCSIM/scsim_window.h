#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulator/SCSIM/SCSim.h"
#include "tests/support/module_session.h"

namespace vantore::tests {

inline constexpr const char* scsimHead = "MessageBx \"SCSIM\": \"";

/// A steady channel whose levels reorder specified quantities at a point.
scsim::Problem kettles();

/// The text of a problem's file.
std::string fileOf(const scsim::Problem& problem);

/// The lines of the trace that the last run has left.
std::vector<std::string> traceOf(const ModuleSession& session);

/// The simulator with a problem open.
class ScsimWindow : public testing::Test {
  protected:
    void open(const scsim::Problem& problem) { open(fileOf(problem)); }
    void open(const std::string& file) {
        session.writeFile("SIM01.dat", file);
        session.open("SCSIM", "SIM01.dat", "OpenF");
    }

    std::string play(const std::string& script) { return session.play(script); }

    bool reportEnabled() { return play("show Report").find("visible enabled") != std::string::npos; }
    bool shown(const std::string& control) {
        return play("show " + control).find(": visible") != std::string::npos;
    }

    /// The text of a box, wherever it stands.
    std::string textOf(const std::string& box) {
        const std::string line = play("show " + box);
        const std::size_t quote = line.find('"');
        return line.substr(quote + 1, line.rfind('"') - quote - 1);
    }

    /// A script that selects the page of a control.
    static std::string page(int number) { return "tab " + std::to_string(number) + "\n"; }

    ModuleSession session;
};

} // namespace vantore::tests
