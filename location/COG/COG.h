#pragma once

#include <optional>

#include "location/COG/method.h"
#include "location/COG/plot.h"
#include "location/COG/problem.h"
#include "location/COG/report.h"
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
    void writeProblem(ItemWriter& writer) override;

  private:
    void addFields();
    void addButtons();
    void shapeGrid();

    void solve();
    void computeLocation(const Problem& problem);
    void specifyLocation(const Problem& problem);
    void printData();
    void plot();

    Problem readControls() const;
    void prepareSurface(View view, double height);
    bool solvable(const Problem& problem);

    TextBox* txtLabel = nullptr;
    TextBox* txtPowerFactor = nullptr;
    TextBox* txtMapFactor = nullptr;
    DataGrid* COGGrid = nullptr;
    PictureSurface* picOut = nullptr;
    Button* cmdPrintTB = nullptr;
    Button* cmdPlot = nullptr;

    Facility facility_; // all 0 until a Solve has produced a location
};

} // namespace vantore::cog
