#pragma once

#include "location/WARELOCA/problem.h"
#include "location/outline_map.h"
#include "shell/fields.h"
#include "shell/grid_columns.h"
#include "shell/module_frame.h"

namespace vantore::wareloca {

/// The warehouse location case: the user selects plants and warehouses and sets the costs, the solver program
/// evaluates the network and reports, and the map shows it.
class WARELOCA : public ModuleFrame {
  public:
    explicit WARELOCA(Suite& suite);

  protected:
    std::string defaultSkeleton() const override { return skeleton(); }
    void readProblem(ItemReader& reader) override;
    void writeProblem(ItemWriter& writer) override { write(readControls(), writer); }
    void fillBlankCells() override;
    bool mayBeSavedAs(const std::string& upperCaseName) override;
    void solve() override;
    void printData() override;

  private:
    void addPlantPage();
    void addCostFunctions();
    void addWarehousePage();
    void addCustomerPage();
    void addOutcomes();
    DataGrid& addTable(const std::string& name, int page, double height);
    void addSelectionColumn(DataGrid& grid);

    void copyBaseCase();
    void putProblem(const Case& problem);
    Case readControls() const;
    void plot();
    void plotSolution(const OutlineMap& map, bool withPlants);

    Container* Tabs = nullptr;
    DataGrid* grdPlant = nullptr;
    DataGrid* grdWhse = nullptr;
    DataGrid* grdCust = nullptr;
    PictureSurface* picOut = nullptr;
    GridColumns<Plant> plants_;
    GridColumns<Warehouse> warehouses_;
    GridColumns<Customer> customers_;
    Fields<Case> scalars_;

    Case opened_; ///< as it was read: the coordinates are in no column
};

} // namespace vantore::wareloca
