#pragma once

#include <optional>
#include <string>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/plot.h"
#include "routing/ROUTER/problem.h"
#include "routing/ROUTER/sheet.h"
#include "shell/fields.h"
#include "shell/module_frame.h"

namespace vantore::router {

/// Routes and schedules of the vehicles of one depot: the window collects the problem on nine pages, hands it
/// to the solver program or takes the user's own routes, and shows what a plan does as a report and on a map.
class ROUTER : public ModuleFrame {
  public:
    explicit ROUTER(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void solve() override;
    void printData() override;
    bool editable() const override { return editing_ && ModuleFrame::editable(); }
    std::string errorWords(const RuntimeError& error, const Control& control) const override;

  private:
    // The pages of the data editor.
    void addPages();
    void addParameters();
    void addGeneralFields();
    void addBreakFields();
    void addStops();
    void addVehicles();
    void addDistances();
    void addZones();
    void addZoneSpeeds();
    void addSpeeds();
    void addBarriers();
    void addFindings();
    void addPageButtons();
    FieldColumn onParameters(double left, double top, double captionWidth, double boxWidth) const;
    void addHeading(const std::string& name, const std::string& text, double left, double top, int page);
    GridRows& addSheet(const std::string& name, int page, int limit, const RowTitles& titles);
    Sheet<SpecifiedLeg> addLegs(const std::string& name, int page, const char* valueHeading);
    RowTitles usualTitles() const { return wording().rows; }
    RowTitles stopsTitles() const;

    // The main buttons and the plot's.
    void addButtons();
    void addPlot();
    void seenWhileNotEditing(const std::string& name);

    void showEditor() { editing_ = true; }
    void checkData();
    void fillDescription(DataGrid& grid, int row, int col);
    std::string descriptionOf(double stopNumber) const;
    Problem readControls() const;
    void writeSolverInput();

    bool specifyRoutes();
    std::optional<PlannedRoute> askRoute(int number, const Problem& problem);
    std::optional<std::string> ask(const std::string& question, const std::string& title,
                                   const std::string& answer);

    Plan readRoutes() const;
    void showReport();
    void plot();
    void redraw();
    void step(char step, int times);
    void clearRoutes();
    void warnOfBarriers(int warnings);

    Container* SSTab = nullptr;
    ReportScreen* rtbValid = nullptr;
    PictureSurface* picOut = nullptr;

    Fields<Problem> general_;
    Table<Fields<Break>, 1, breakCount> breaks_;
    Sheet<Stop> stops_;
    Sheet<Vehicle> vehicles_;
    Sheet<SpecifiedLeg> distances_;
    Sheet<Zone> zones_;
    Sheet<ZoneSpeed> zoneSpeeds_;
    Sheet<SpecifiedLeg> speeds_;
    Sheet<Barrier> barriers_;
    Button* cmdReport = nullptr;
    Button* cmdPlot = nullptr;

    bool editing_ = false;       // the pages are shown
    bool solveStarted_ = false;  // so that a report may be asked for
    bool reportShown_ = false;   // since the file was opened
    double depotRowZone_ = 0;    // of the stop table's row 0, since a report or plot has filled it
    int barrierWarnings_ = 0;    // of the last report
    std::optional<PlanMap> map_; // nothing until the first plot
    MapLayers layers_;
    routing::Vantage vantage_;
};

} // namespace vantore::router
