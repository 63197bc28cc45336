#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "shell/module_frame.h"
#include "simulator/SCSIM/plot.h"
#include "simulator/SCSIM/report.h"

namespace vantore::scsim {

/// The results of a run, over the simulator's window: five reports and the plots, for any span of years.
class Reports : public ModuleFrame {
  public:
    /// `years` is the length of the run as the user reads it. `days` outlive the window.
    Reports(Suite& suite, Problem problem, const Days& days, std::string years);

    void close() override { closed = true; }

  private:
    void addReportOptions();
    void addPlotOptions();
    void addMeasures();
    void addButtons();
    Option& addChoice(const std::string& name, const std::string& caption, const Container& group, int row);

    void makeReport();
    void showLines(const std::vector<std::string>& lines);
    void plot();
    void printResults();
    void startAnew();

    std::optional<PlotPeriod> askPeriod();
    std::optional<Span> askSpan(const std::string& begin, const std::string& end);
    Subject plottedSubject() const;

    Problem problem_;
    const Days& days_;
    std::string years_;

    /// A choice and what it stands for.
    template <class Meaning>
    struct Meant {
        Option* option;
        Meaning meaning;
    };
    std::vector<Meant<Subject>> reported_, plotted_;
    std::vector<Meant<Measure>> measures_;
    Chart* PerfGph = nullptr;
};

} // namespace vantore::scsim
