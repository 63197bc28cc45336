#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/module_frame.h"
#include "simulator/SCSIM/channel_controls.h"
#include "simulator/SCSIM/method.h"
#include "simulator/SCSIM/plot.h"

namespace vantore::scsim {

/// Supply chain simulator: one product through retailer, distributor, warehouse and factory, day by day, for
/// up to twenty years. The problem lives in the controls; the figures of the last run stay for the reports.
class SCSim : public ModuleFrame {
  public:
    explicit SCSim(Suite& suite);

  protected:
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(channel_.take(), writer); }
    void solve() override;
    void printData() override;
    void restored() override;

  private:
    struct ParameterFrame;

    // The pages, in pages.cpp.
    void addPages();
    void addInitializationPage();
    void addDemandPage();
    void addLevelPage(Level level);
    void addLevelCosts(Level level);
    void addForecast(Level level);
    void addPolicy(Level level);
    void addParameters(Level level, const Container& policies, const ParameterFrame& wording);
    void addStockToDemand(Level level, const Container& policies);
    void addFactoryPage();
    void addGeneralPage();
    void addTransportPage();
    void addLane(Level level, const std::string& caption, double top);
    void addButtons();

    FieldColumn onPage(int page, double top, double captionWidth, double boxWidth) const;
    TextBox& addBox(FieldColumn& column, const std::string& name, const std::string& caption);
    void showWhen(const TextBox& box, const std::function<bool()>& condition);
    Option& addChoice(const std::string& name, const std::string& caption, Rect place, const Container& group,
                      int page, std::function<void()> onSelect);
    DataGrid& addValueGrid(const std::string& name, Rect place);

    // What a change of an input leads to.
    void checkLimit(TextBox& box);
    void checkYears();
    void typeInGrid(DataGrid& grid, int code);
    void dropResults() { resultsStand_ = false; }

    Ending runDays(const Problem& problem, std::vector<std::string>& trace);
    Answers answersOn(const int& today);
    void showProgress(const std::string& day);
    void showReports();
    void plotDemand();

    ChannelControls channel_;
    Container* Folder1 = nullptr;
    Chart* demandPlot_ = nullptr;
    Label* lblYear = nullptr; ///< how far the run is while it asks

    /// The choices whose boxes are shown: those selected last, also where a file has cleared them.
    DemandSource shownDemand_ = DemandSource::Generated;
    PerLevel<ForecastMethod> shownForecast_;
    PerLevel<Policy> shownPolicy_;

    UniformGenerator uniforms_; ///< goes on from the last run where a demand plot needs it
    RunFigures figures_;
    bool resultsStand_ = false; ///< nothing has changed since the last run
    bool reportOffered_ = false;
};

} // namespace vantore::scsim
