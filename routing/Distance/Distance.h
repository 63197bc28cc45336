#pragma once

#include <string>

#include "routing/Distance/problem.h"
#include "routing/Distance/report.h"
#include "shell/module_frame.h"

namespace vantore::distance {

/// A calculator of distances on a grid or over the earth, with a running total.
class Distance : public ModuleFrame {
  public:
    explicit Distance(Suite& suite);

  protected:
    void restored() override;

  private:
    void addCoordinateTypes();
    void addDimensions();
    void addCoordinates();
    void addFactors();
    void addResults();
    void addButtons();

    void changeType();
    void changeDimension();
    void writeLabels();
    CoordinateType chosenType() const;
    Dimension chosenDimension() const;
    Problem readControls() const;

    void calculate();
    void calculateOnGrid(const Problem& problem);
    void calculateOverEarth(const Problem& problem);
    void show(const Shown& shown);
    void printWindow();

    Option* optLinear = nullptr;
    Option* optLatLng = nullptr;
    Option* optMiles = nullptr;
    Option* optKilometers = nullptr;
    Label* lblOrgLat = nullptr;
    Label* lblOrgLong = nullptr;
    Label* lblDestLat = nullptr;
    Label* lblDestLong = nullptr;
    Label* lblDistDim = nullptr;
    Label* lblCumDim = nullptr;
    TextBox* txtOrgLat = nullptr;
    TextBox* txtOrgLong = nullptr;
    TextBox* txtDestLat = nullptr;
    TextBox* txtDestLong = nullptr;
    TextBox* txtCircuityFactor = nullptr;
    TextBox* txtMapFactor = nullptr;
    TextBox* txtDistance = nullptr;
    TextBox* txtCumulative = nullptr;

    CoordinateType type_ = CoordinateType::LinearGrid; // of the running total
    Dimension dimension_ = Dimension::Miles;           // of the shown distance
    double total_ = 0;                                 // of the distances on the grid
};

} // namespace vantore::distance
