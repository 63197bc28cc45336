#pragma once

#include <optional>
#include <string>
#include <vector>

#include "routing/ROUTESEQ/plot.h"
#include "routing/ROUTESEQ/points.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::routeseq {

/// The order in which a vehicle visits the stops of one route: computed, or specified and measured.
class ROUTESEQ : public ModuleFrame {
  public:
    explicit ROUTESEQ(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;
    void printReport() override { printWindowReport(); }

  private:
    void addControls();
    void addPlot();

    StopSequencingProblem readControls() const;
    std::optional<std::string> askWay();
    std::optional<std::vector<int>> askSequence(int stopCount);
    void showSequence(const StopSequencingProblem& problem, const std::vector<int>& stops);

    void plot();
    void redraw();
    void step(char step, int times);

    Fields<StopSequencingProblem> scalars_;
    GridColumns<Stop> stops_;
    DataGrid* Grid = nullptr;
    PictureSurface* picOut = nullptr;

    std::string sequence_; // of the last Solve; empty after Open

    /// What the plot shows.
    struct Plotted {
        StopSequencingProblem problem;
        bool numbers = false;
        bool route = false;
    };
    Plotted plotted_;
    routing::Vantage vantage_;
};

} // namespace vantore::routeseq
