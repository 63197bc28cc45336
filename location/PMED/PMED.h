#pragma once

#include "location/PMED/exchange.h"
#include "location/PMED/plot.h"
#include "location/mark_column.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::pmed {

/// P-median location: the window collects points and the sites that may serve them, hands them to the solver
/// program, which chooses the sites, and shows what it has chosen.
class PMED : public ModuleFrame {
  public:
    explicit PMED(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void fillBlankCells() override;
    void solve() override;
    void printData() override;
    void restored() override;

  private:
    void addFields();
    void addCoordinates();
    void addSites();
    void addPlot();

    Coordinates coordinates() const;
    void nameCoordinates();
    int markCount() const;
    void toggleMark();
    void checkFacilityCount();

    Problem readControls() const;
    SitePlot beginPlot(const Problem& problem);
    void plot();

    TextBox* txtNoLoc = nullptr;
    Option* optLinear = nullptr;
    Option* optLatLon = nullptr;
    Control* lblVScale = nullptr;
    DataGrid* Grid = nullptr;
    PictureSurface* picOut = nullptr;
    Fields<Problem> scalars_;
    GridColumns<Site> sites_;
    MarkColumn candidates_;

    Assignment assignment_;
    bool hasOutcome_ = false; // the last Solve came to a report that can be printed and plotted
};

} // namespace vantore::pmed
