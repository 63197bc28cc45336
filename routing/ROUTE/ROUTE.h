#pragma once

#include <optional>
#include <string>

#include "routing/ROUTE/plot.h"
#include "routing/ROUTE/problem.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::route {

/// The cheapest paths from one node of a network to all others, as a report and on a map.
class ROUTE : public ModuleFrame {
  public:
    explicit ROUTE(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void fillBlankCells() override;
    void computeColumn() override;
    void solve() override;
    void printData() override;

  private:
    void addControls();
    void addNodeList();
    void addArcList();
    void addPlot();

    void fillName(int row, int col);
    NodeNames namesInList() const;
    RouteNetwork readControls() const;

    void plot();
    void redraw();
    void askPath();
    void askZoom();
    void step(char step, int times);

    TextBox* txtTitle = nullptr;
    TextBox* txtOriginNo = nullptr;
    DataGrid* grdNodeId = nullptr;
    DataGrid* grdNodeData = nullptr;
    PictureSurface* picOut = nullptr;
    GridColumns<NodeRow> nodes_;
    GridColumns<ArcRow> arcs_;

    std::string openedFile_;        // what the plot shows
    bool solved_ = false;           // since that file was opened
    std::optional<NetworkMap> map_; // nothing until the first plot
    std::optional<Path> shownPath_; // highlighted on it
    routing::Vantage vantage_;
};

} // namespace vantore::route
