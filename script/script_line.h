#pragma once

#include <string>
#include <string_view>

namespace vantore {

/// One line of a script, read word by word from the left.
class ScriptLine {
  public:
    explicit ScriptLine(std::string_view line);

    /// True for an empty line and for a comment.
    bool empty() const { return rest_.empty() || rest_.front() == '#'; }

    /// The next word. PlatformFailure, naming what is missing, when there is none.
    std::string word(const char* meaning);

    /// The next word as a whole number from 0 to 1000000; PlatformFailure otherwise.
    int number(const char* meaning);

    /// The rest of the line as the last argument: blanks at its ends dropped, or what its double quotes hold.
    struct Text {
        std::string text;
        bool quoted = false;
    };
    Text rest();

    /// PlatformFailure when anything is left.
    void end() const;

  private:
    std::string_view rest_;
};

} // namespace vantore
