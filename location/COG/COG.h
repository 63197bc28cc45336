#pragma once

#include <optional>

#include "location/COG/method.h"
#include "location/COG/plot.h"
#include "location/COG/problem.h"
#include "location/COG/report.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::cog {

/// Single-site location by the centre-of-gravity method: the user watches the method cycle by cycle, or
/// types a location and has its cost computed.
class COG : public ModuleFrame {
  public:
    explicit COG(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;
    void printReport() override { printWindowReport(); }

  private:
    void addControls();
    void computeLocation(const Problem& problem);
    void showCycle(const Cycle& cycle, const Cycle& previous);
    void specifyLocation(const Problem& problem);
    void plot();

    Problem readControls() const;
    void prepareSurface(View view, double height);
    std::optional<Message> faultIn(const Problem& problem);

    PictureSurface* picOut = nullptr;
    Fields<Problem> scalars_;
    GridColumns<Point> points_;
    DataGrid* COGGrid = nullptr;

    Facility facility_;       // all 0 until a Solve has produced a location
    bool hasOutcome_ = false; // the last Solve came to a report that can be printed and plotted
};

} // namespace vantore::cog
