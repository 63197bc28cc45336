#pragma once

#include <optional>

#include "location/MCOG/method.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::mcog {

/// Location of several facilities by the centre-of-gravity method: the module finds the locations and which
/// points each serves, or computes what those that the user specifies cost.
class MCOG : public ModuleFrame {
  public:
    explicit MCOG(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;

  private:
    void addControls();
    void addPlot();

    std::optional<int> askFacilityCount(int pointCount);
    std::optional<std::string> facilityCountFault(double count, int pointCount) const;
    Plan askPlan(const Problem& problem, int facilityCount);
    double askNumber(const std::string& prompt);
    int askFacility(const std::string& prompt, int facilityCount);
    void plot();

    Problem readControls() const;

    Fields<Problem> scalars_;
    GridColumns<Point> points_;
    DataGrid* Grid = nullptr;
    PictureSurface* picOut = nullptr;
    Plan plan_; ///< of the last Solve
};

} // namespace vantore::mcog
