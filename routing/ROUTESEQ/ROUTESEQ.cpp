#include "routing/ROUTESEQ/ROUTESEQ.h"

#include "routing/ROUTESEQ/method.h"
#include "routing/ROUTESEQ/report.h"
#include "routing/plot_steps.h"
#include "shell/base/number_text.h"
#include "shell/printing.h"

namespace vantore::routeseq {

namespace {

constexpr const char* boxTitle = "Stop sequencing";

const ModuleWording routeseqWording = {
    .name = "ROUTESEQ",
    .windowTitle = "Stop Sequencer",
    .filePrefix = "RSEQ",
    .openTitle = "Open stop sequencing data file",
    .saveTitle = "Save stop sequencing data",
    .filter = "Stop sequencing data (RSEQ*.dat)|RSEQ*.dat|",
    .prefixTitle = boxTitle,
    .arithmetic = {.highlighted = Message{"Highlighted column to be changed?", "ROUTESEQ"}},
    .printQuestion = {
        .text =
            "Select NO to print.  Alternately, choose YES to copy image to the clipboard. Then, paste the "
            "clipboard image to another program such as WORD or POWERPOINT and print.",
        .title = "Selection",
        .yesPrints = false}};

constexpr Rect gridPlace{120, 1530, 9360, 4800}; // twips of the design
constexpr Rect startPlace{1200, 1450, 7200, 4850};
constexpr Rect surfacePlace{0, 0, 9600, 6780};

} // namespace

ROUTESEQ::ROUTESEQ(Suite& suite) : ModuleFrame(suite, routeseqWording) {
    addControls();
    addStart("cmdOpen", startPlace);
    addDataButtons({});
    addReport();
    addPlot();
}

// Controls

void ROUTESEQ::addControls() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1700, .boxWidth = 7480};
    FieldColumn factors{.left = 120, .top = 540, .captionWidth = 1700, .boxWidth = 1100, .step = 370};
    FieldColumn depot{.left = 5000, .top = 540, .captionWidth = 500, .boxWidth = 1100, .step = 370};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    auto& txtCirFactor = addField(factors, "txtCirFactor", "Circuity factor:");
    auto& txtMapFactor = addField(factors, "txtMapFactor", "Map scaling factor:");
    addLabel("lblDepot", "Depot coordinates:", {3300, 570, 1650, 285}, {View::Start, View::Data});
    auto& txtDepotX = addField(depot, "txtDepotX", "X =");
    auto& txtDepotY = addField(depot, "txtDepotY", "Y =");
    txtCirFactor.tip = "Multiplier to straight line distance to estimate road, rail, etc. distance";
    txtMapFactor.tip = "Converts coordinates to miles or kilometers";
    txtDepotX.tip = "Horizontal coordinate";
    txtDepotY.tip = "Vertical coordinate";
    scalars_ = {scalarFields, {&txtLabel, &txtCirFactor, &txtMapFactor, &txtDepotX, &txtDepotY}};
    StopSequencingProblem defaults;
    defaults.label = "Enter label";
    scalars_.show(defaults);
    addLabel("lblStops", "STOP DATA", {120, 1255, 3000, 260}, {View::Data});
    Grid = &addRowGrid("Grid", gridPlace, mostStops).grid();
    stops_ = {*Grid,
              stopFields,
              {{"Point no.", 900}, {"Point label", 3600}, {"X coordinate", 1500}, {"Y coordinate", 1500}}};
}

void ROUTESEQ::addPlot() {
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
    routing::followSteps(*picOut, [this](char which, int times) { step(which, times); });
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    addButton("cmdPlot", "P&lot", buttonPlace(0, 4), {View::Data, View::Report}, [this] { plot(); });
    addPrintPlot();
}

// The problem

void ROUTESEQ::readProblem(ItemReader& reader) {
    const StopSequencingProblem problem = read(reader);
    scalars_.show(problem);
    setDataRows(*Grid, problem.stopCount);
    for (int i = 1; i <= problem.stopCount; ++i) stops_.put(i, problem.stops(i));
    sequence_.clear();
}

StopSequencingProblem ROUTESEQ::readControls() const {
    StopSequencingProblem problem;
    scalars_.take(problem);
    problem.stopCount = Grid->rowCount();
    for (int i = 1; i <= problem.stopCount; ++i) stops_.take(i, problem.stops(i));
    return problem;
}

// Solve

void ROUTESEQ::solve() {
    const StopSequencingProblem problem = readControls();
    if (problem.stopCount == 0)
        return backToData({"There are no stops specified for this problem.", boxTitle});
    const Points points(problem);
    const std::optional<std::string> way = askWay();
    if (!way) return;
    if (*way == "1") return showSequence(problem, shortSequence(points));
    if (const auto stops = askSequence(problem.stopCount)) showSequence(problem, *stops);
}

std::optional<std::string> ROUTESEQ::askWay() {
    while (true) {
        std::string answer = suite().inputBx(
            "Want to:\r\n(1) Compute route?\r\n(2) Specify the stop sequence?", "Computation choice", "1");
        if (answer.empty()) return std::nullopt;
        if (answer == "1" || answer == "2") return answer;
    }
}

std::optional<std::vector<int>> ROUTESEQ::askSequence(int stopCount) {
    std::vector<int> stops;
    for (int k = 1; k <= stopCount; ++k) {
        const std::string answer = suite().inputBx(joined("Stop ", k) + " is to be sequence number",
                                                   "Specified sequence", "Enter number");
        if (answer.empty()) return std::nullopt;
        if (const auto stop = specifiedStop(answer, stopCount)) stops.push_back(*stop);
    }
    return stops;
}

void ROUTESEQ::showSequence(const StopSequencingProblem& problem, const std::vector<int>& stops) {
    std::string sequence = sequenceText(stops);
    const double distance = routeDistance(problem, sequence);
    report->clear();
    for (ReportLine& line : reportLines({sequence, distance}, scale())) report->add(std::move(line));
    sequence_ = std::move(sequence);
    showView(View::Report);
}

void ROUTESEQ::printData() {
    print(dataJob(wording().name, std::vector<std::string>{"ROUTESEQ", "DATA FOR STOP SEQUENCER"},
                  dataPage(readControls())));
}

// Plot

void ROUTESEQ::plot() {
    plotted_ = {readControls()};
    vantage_.zoom = routing::usualZoom;
    redraw();
    showView(View::Plot);
    plotted_.numbers = suite().asksYes("Show point numbers?", "Question");
    redraw();
    plotted_.route = suite().asksYes("Show route and cost?", "Question") && !sequence_.empty();
    redraw();
}

/// The route is measured by the data as they stand: they may have changed since Solve.
void ROUTESEQ::redraw() {
    const StopMap map(plotted_.problem, vantage_);
    map.draw(*picOut, scale());
    if (plotted_.numbers) map.drawNumbers(*picOut, scale());
    if (plotted_.route)
        map.drawRoute(*picOut, scale(), {sequence_, routeDistance(plotted_.problem, sequence_)});
}

void ROUTESEQ::step(char step, int times) {
    for (int i = 0; i < times; ++i) vantage_ = routing::stepped(vantage_, step);
    redraw();
}

} // namespace vantore::routeseq
