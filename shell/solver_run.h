#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/forms/form.h"
#include "shell/suite.h"

namespace vantore {

/// What a module hands to its solver.
struct SolverJob {
    std::string program;              ///< of `installFolder`, such as "MIP.EXE"
    std::function<void()> writeInput; ///< writes the files of `ioFolder` that the solver reads
    std::vector<std::string> outputs; ///< the files there that it writes
};

/// The runs of a window's solver. What a run didn't write, or didn't write whole, is never taken for its
/// own: before a solver is started its old output is set aside. No two solvers run in one folder.
class SolverRun {
  public:
    /// `window` shows the run, and shows no button while `isRunning`; its name titles what is told.
    SolverRun(Suite& suite, Form& window) : suite_(suite), window_(window) {}

    /// Writes the solver's input. False, told to the user, while another solver runs in the folder.
    bool writeInput(const SolverJob& job);

    /// Writes the input once more, starts the program and waits for its end while the window stays alive, its
    /// buttons hidden. True when the output files are the run's own, or the old ones because the program
    /// can't be started; false, told to the user, when another solver is running or the run has failed.
    bool run(const SolverJob& job);

    bool isRunning() const { return program_ != nullptr; }

    /// Asks the solver to stop with its best; asked again, ends it at once.
    void interrupt();

  private:
    std::unique_ptr<FolderLock> lock();
    bool start(const SolverJob& job);
    void await(const std::string& program);
    bool succeeded(const SolverJob& job);
    void report(const std::string& fault);

    Suite& suite_;
    Form& window_;
    std::unique_ptr<RunningProgram> program_;
    bool interrupted_ = false;
};

} // namespace vantore
