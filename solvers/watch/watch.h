#pragma once

#include <functional>
#include <string>

namespace vantore::watch {

/// A search in a process of its own, watched by the solver program that started it. Whatever becomes of the
/// search, the program lives to report what the search has told until then.

/// How a watched search ended.
enum class End {
    Done,        ///< It came to its end by itself.
    TimeLimit,   ///< It was ended when its time was over.
    Interrupted, ///< It was ended because the user asked for it, by Ctrl+C or SIGTERM.
    Failed,      ///< It crashed, was killed, or threw an exception.
};

/// Tells a message to whoever watches; a search calls it as often as it has something to tell.
using Tell = std::function<void(const std::string& message)>;

/// Runs `search` in a child process for at most `seconds`, and calls `hear` with each of its messages that
/// arrives whole, in their order. The child has all that this process had, and nothing that it changes but
/// its messages comes back. It doesn't outlive this process. std::system_error when no child can be made.
End run(const std::function<void(const Tell&)>& search, double seconds,
        const std::function<void(const std::string&)>& hear);

/// To be called first in the main of a solver program: from here on it ends with the program that has
/// started it, and Ctrl+C and SIGTERM wait for the next `run`.
void begin();

} // namespace vantore::watch
