#include "routing/Distance/Distance.h"

#include "routing/Distance/method.h"
#include "routing/Distance/report.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/capture.h"

namespace vantore::distance {

namespace {

const ModuleWording distanceWording = {.name = "DISTANCE", .windowTitle = "Distance estimator"};

constexpr const char* latitudeTip = "West latitudes are + and East latitudes are -.";
constexpr const char* longitudeTip = "North longitudes are + and South longitudes are -.";

} // namespace

Distance::Distance(Suite& suite) : ModuleFrame(suite, distanceWording) {
    addCoordinateTypes();
    addDimensions();
    addCoordinates();
    addFactors();
    addResults();
    addButtons();
    writeLabels();
    showView(View::Data);
}

// Controls

void Distance::addCoordinateTypes() {
    const Container& frame =
        addContainer("fraCoordinateType", "COORDINATE TYPE", {120, 120, 4560, 840}, {View::Data});
    optLinear = &addOption("optLinear", "Linear grid", {360, 450, 1800, 330}, frame);
    optLatLng = &addOption("optLatLng", "Latitude/Longitude", {2220, 450, 2340, 330}, frame);
    optLinear->selected = true;
    for (Option* option : {optLinear, optLatLng}) option->onPress = [this] { changeType(); };
}

void Distance::addDimensions() {
    const Container& frame = addContainer("fraDimension", "DIMENSION", {4920, 120, 4560, 840}, {View::Data});
    optMiles = &addOption("optMiles", "Miles", {5160, 450, 1800, 330}, frame);
    optKilometers = &addOption("optKilometers", "Kilometers", {7020, 450, 2340, 330}, frame);
    optKilometers->tip = "Converts mileage data to kilometers";
    optMiles->selected = true;
    for (Option* option : {optMiles, optKilometers}) option->onPress = [this] { changeDimension(); };
}

void Distance::addCoordinates() {
    const Container& frame =
        addContainer("fraCoordinateInputs", "COORDINATE INPUTS", {120, 1080, 9360, 1320}, {View::Data});
    const auto place = [&](const char* name, const char* caption, double top) {
        addLabel(name, caption, {360, top + 30, 2100, 285}, {View::Data}).container = &frame;
    };
    const auto box = [&](const char* name, double left, double top, Label*& label) {
        FieldColumn column{
            .left = left, .top = top, .captionWidth = 1860, .boxWidth = 1400, .container = &frame};
        TextBox& added = addField(column, name, "");
        added.selectsOnFocus = true;
        label = static_cast<Label*>(find(std::string("lbl") + (name + 3)));
        return &added;
    };
    place("lblOrigin", "Origin coordinates:", 1410);
    txtOrgLat = box("txtOrgLat", 2520, 1410, lblOrgLat);
    txtOrgLong = box("txtOrgLong", 6060, 1410, lblOrgLong);
    place("lblDestination", "Destination coordinates:", 1860);
    txtDestLat = box("txtDestLat", 2520, 1860, lblDestLat);
    txtDestLong = box("txtDestLong", 6060, 1860, lblDestLong);
}

void Distance::addFactors() {
    FieldColumn circuity{.left = 360, .top = 2580, .captionWidth = 1500, .boxWidth = 1200};
    FieldColumn map{.left = 4200, .top = 2580, .captionWidth = 1860, .boxWidth = 1200};
    txtCircuityFactor = &addField(circuity, "txtCircuityFactor", "Circuity factor");
    txtMapFactor = &addField(map, "txtMapFactor", "Map scaling factor");
    txtCircuityFactor->tip =
        "Multiplier to convert straight line distcance to road, rail, or street distance";
    txtMapFactor->tip = "Multiplier to convert map coordinates to miles.  Conversion to kilometers is "
                        "selectable.  Use 1 for latitudes and longitudes.";
    txtCircuityFactor->show("1.20");
    txtMapFactor->show("1");
}

void Distance::addResults() {
    addLabel("lblResult", "RESULT:", {360, 3120, 1500, 285}, {View::Data}).bold = true;
    FieldColumn shown{.left = 360, .top = 3450, .captionWidth = 1980, .boxWidth = 1800};
    const auto dimension = [this](const char* name, double top) {
        return &addLabel(name, "", {4320, top + 30, 1500, 285}, {View::Data});
    };
    lblDistDim = dimension("lblDistDim", shown.top);
    txtDistance = &addField(shown, "txtDistance", "Distance");
    lblCumDim = dimension("lblCumDim", shown.top);
    txtCumulative = &addField(shown, "txtCumulative", "Cumulative distance");
    txtCumulative->show("0");
    txtDistance->result = txtCumulative->result = true;
}

void Distance::addButtons() {
    auto& picture = add<Picture>("Image1", Rect{6000, 3000, 3360, 2400});
    picture.image = "MILES";
    addButton("cmdCalc", "&Calculate", buttonPlace(1, 0), {View::Data}, [this] { calculate(); });
    addButton("cmdPrint", "&Print", buttonPlace(1, 1), {View::Data}, [this] { printWindow(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(1, 5), {View::Data}, [this] { exitModule(); });
}

// Coordinate type and dimension

CoordinateType Distance::chosenType() const {
    return optLatLng->selected ? CoordinateType::LatitudeLongitude : CoordinateType::LinearGrid;
}

Dimension Distance::chosenDimension() const {
    return optKilometers->selected ? Dimension::Kilometers : Dimension::Miles;
}

void Distance::changeType() {
    if (type_ == chosenType()) return;
    type_ = chosenType();
    total_ = 0;
    txtDistance->show("");
    txtCumulative->show("");
    writeLabels();
}

/// The total keeps its figure.
void Distance::changeDimension() {
    if (dimension_ == chosenDimension()) return;
    dimension_ = chosenDimension();
    txtDistance->show("");
    writeLabels();
}

void Distance::restored() {
    ModuleFrame::restored();
    changeType();
    changeDimension();
}

void Distance::writeLabels() {
    const bool earth = type_ == CoordinateType::LatitudeLongitude;
    for (Label* label : {lblOrgLat, lblDestLat}) {
        label->caption = earth ? "Latitude in degrees" : "Vertical coordinate";
        label->tip = earth ? latitudeTip : "";
    }
    for (Label* label : {lblOrgLong, lblDestLong}) {
        label->caption = earth ? "Longitude in degrees" : "Horizontal coordinate";
        label->tip = earth ? longitudeTip : "";
    }
    for (Label* label : {lblDistDim, lblCumDim})
        label->caption = dimension_ == Dimension::Miles ? "Miles" : "Kilometers";
}

// Calculation

Problem Distance::readControls() const {
    return {.type = type_,
            .dimension = dimension_,
            .origin = {val(txtOrgLat->text()), val(txtOrgLong->text())},
            .destination = {val(txtDestLat->text()), val(txtDestLong->text())},
            .circuityFactor = val(txtCircuityFactor->text()),
            .mapFactor = val(txtMapFactor->text())};
}

void Distance::calculate() {
    const Problem problem = readControls();
    if (const auto found = fault(problem)) return message(*found);
    if (type_ == CoordinateType::LinearGrid) return calculateOnGrid(problem);
    calculateOverEarth(problem);
}

void Distance::calculateOnGrid(const Problem& problem) {
    const double distance = linearDistance(problem);
    total_ = finite(total_ + distance);
    show(shownOnGrid(distance, total_));
}

void Distance::calculateOverEarth(const Problem& problem) {
    const auto distance = earthDistance(problem, [this](const std::string& text) { message(text); });
    if (!distance) return message("The points are too nearly opposite each other on the globe.");
    show(shownOverEarth(*distance, txtCumulative->text()));
}

void Distance::show(const Shown& shown) {
    txtDistance->show(shown.distance);
    txtCumulative->show(shown.total);
}

void Distance::printWindow() {
    PrintJob job{.title = caption};
    printPictureToFitPage(job, suite().platform.printer, captureClient(suite().platform.display, *this));
    print(job);
}

} // namespace vantore::distance
