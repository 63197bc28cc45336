#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"
#include "shell/forms/palette.h"

namespace vantore {

struct ReportLine {
    std::string text;
    Font font;
    int colour = colour::black;

    bool operator==(const ReportLine&) const = default;
};

/// The report box: lines, each in a font and colour of its own, that a user can read, mark and copy.
class ReportScreen : public Control {
  public:
    using Control::Control;

    void clear() {
        lines_.clear();
        ++writing_;
    }

    /// Adds one line at the end.
    void add(ReportLine line) { lines_.push_back(std::move(line)); }

    const std::vector<ReportLine>& lines() const { return lines_; }

    /// The lines, each ended by CR LF.
    std::string shownText() const override {
        std::string text;
        for (const ReportLine& line : lines_) text += line.text + "\r\n";
        return text;
    }

    /// Another number whenever the report has been begun anew; lines are only added to one.
    int writing() const { return writing_; }

  private:
    int writing_ = 0;
    std::vector<ReportLine> lines_;
};

} // namespace vantore
