#include "simulator/SCSIM/Reports.h"

#include <algorithm>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/text_file.h"

namespace vantore::scsim {

namespace {

const ModuleWording reportsWording = {.name = "SCSIM", .windowTitle = "Simulation results"};

// Points of the design, and of the printer.
constexpr double titleSize = 12;
constexpr double bodySize = 9;
constexpr double printedBodySize = 10;

// Twips of the design.
constexpr double optionsTop = 240;
constexpr double optionsWidth = 4440;
constexpr double optionsHeight = 2400;
constexpr double plotOptionsTop = 2880;
constexpr double leftColumn = 240;
constexpr double rightColumn = 4920;
constexpr double optionStep = 400;

struct ReportText {
    std::string text;
    bool heading;
};

/// A leading star marks a heading and isn't shown.
ReportText shownText(const std::string& line) {
    const bool heading = line.starts_with('*');
    return {heading ? line.substr(1) : line, heading};
}

template <class Choices>
auto chosen(const Choices& choices) {
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [](const auto& choice) { return choice.option->selected; });
    return (found == choices.end() ? choices.begin() : found)->meaning;
}

} // namespace

Reports::Reports(Suite& suite, Problem problem, const Days& days, std::string years)
    : ModuleFrame(suite, reportsWording), problem_(std::move(problem)), days_(days),
      years_(std::move(years)) {
    addReportOptions();
    addPlotOptions();
    addMeasures();
    addReport("SumReport");
    PerfGph = &add<Chart>("PerfGph", Rect{120, 120, 9360, 6135});
    seenIn(*PerfGph, {View::Plot});
    addButtons();
    startAnew();
}

// Controls

Option& Reports::addChoice(const std::string& name, const std::string& text, const Container& group,
                           int row) {
    const Rect place = {group.design.left + 240, group.design.top + 320 + row * optionStep,
                        optionsWidth - 480, 300};
    return addOption(name, text, place, group);
}

void Reports::addReportOptions() {
    const Container& frame =
        addContainer("ReportFrame", "Report results options",
                     {leftColumn, optionsTop, optionsWidth, optionsHeight}, {View::Data});
    const auto add = [&](const char* name, const char* text, Subject subject) {
        reported_.push_back({&addChoice(name, text, frame, static_cast<int>(reported_.size())), subject});
    };
    add("SCRepOpt", "Supply chain summary", Subject::Channel);
    add("RetRepOpt", "Retailer only", Subject::Retailer);
    add("DistRepOpt", "Distributor only", Subject::Distributor);
    add("WhseRepOpt", "Warehouse only", Subject::Warehouse);
    add("FactRepOpt", "Factory only", Subject::Factory);
}

void Reports::addPlotOptions() {
    const Container& frame =
        addContainer("PlotFrame", "Graph results options",
                     {leftColumn, plotOptionsTop, optionsWidth, optionsHeight}, {View::Data});
    const auto add = [&](const char* name, const char* text, Subject subject) {
        plotted_.push_back({&addChoice(name, text, frame, static_cast<int>(plotted_.size())), subject});
    };
    add("SCOpt", "Supply chain", Subject::Channel);
    add("RetOpt", "Retailer", Subject::Retailer);
    add("DistOpt", "Distributor", Subject::Distributor);
    add("WhseOpt", "Warehouse", Subject::Warehouse);
    add("FactOpt", "Factory", Subject::Factory);
    plotted_.back().option->onPress = [this] {
        for (const Meant<Measure>& measure : measures_)
            measure.option->selected = measure.meaning == Measure::Sales;
    };
}

/// Which measures are open depends on whose plot it is; one that isn't stays selected where it was.
void Reports::addMeasures() {
    const Container& frame =
        addContainer("PlotFrame2", "Graphical choices",
                     {rightColumn, plotOptionsTop, optionsWidth, optionsHeight}, {View::Data});
    const auto add = [&](const char* name, const char* text, Measure measure) {
        Option& option = addChoice(name, text, frame, static_cast<int>(measures_.size()));
        option.usable = [this, measure] { return isAvailable(plottedSubject(), measure); };
        measures_.push_back({&option, measure});
    };
    add("AllOpt", "Sales, inventory, and back orders", Measure::All);
    add("SalesOpt", "Sales only", Measure::Sales);
    add("InvOpt", "Inventory only", Measure::Inventory);
    add("BOOpt", "Back orders only", Measure::BackOrders);
    add("OROpt", "Replenishment orders", Measure::Orders);
}

void Reports::addButtons() {
    addButton("cmdReport", "&Report", buttonPlace(0, 0), {View::Data}, [this] { makeReport(); });
    addButton("cmdPlot", "&Graph", buttonPlace(0, 1), {View::Data}, [this] { plot(); });
    cmdPrintPlot = &addButton("cmdPrint", "&Print", buttonPlace(0, 2), {View::Report, View::Plot},
                              [this] { printResults(); });
    auto& cmdReturn = addButton("cmdReturn", "Retur&n", buttonPlace(0, 3), {View::Report, View::Plot},
                                [this] { startAnew(); });
    cmdReturn.tip = "Back to the options.";
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(0, 5),
                             {View::Data, View::Report, View::Plot}, [this] { close(); });
}

/// The option screen with the selections of its design.
void Reports::startAnew() {
    for (const Meant<Subject>& subject : reported_)
        subject.option->selected = subject.meaning == Subject::Channel;
    for (const Meant<Subject>& subject : plotted_)
        subject.option->selected = subject.meaning == Subject::Channel;
    for (const Meant<Measure>& measure : measures_)
        measure.option->selected = measure.meaning == Measure::Sales;
    showView(View::Data);
}

Subject Reports::plottedSubject() const {
    return chosen(plotted_);
}

// Questions

/// None where an answer is empty. An end beyond the run is asked again, an end before the start with the
/// start.
std::optional<Span> Reports::askSpan(const std::string& begin, const std::string& end) {
    while (true) {
        const std::string first = suite().inputBx(begin, wording().name, "1");
        if (first.empty()) return std::nullopt;
        Span span = {.first = std::max(val(first), 1.0), .last = 0};
        do {
            const std::string last = suite().inputBx(end, wording().name, years_);
            if (last.empty()) return std::nullopt;
            span.last = val(last);
        } while (span.last > problem_.years);
        if (span.last >= span.first) return span;
    }
}

std::optional<PlotPeriod> Reports::askPeriod() {
    while (true) {
        const std::string answer =
            suite().inputBx("Select time period for the plot:\r\n(1) Daily\r\n(2) Weekly\r\n(3) Monthly",
                            wording().name, "3");
        if (answer.empty()) return std::nullopt;
        if (const std::optional<PlotPeriod> period = periodOf(answer)) return period;
        message("Incorrect input. Try again.");
    }
}

// Report

void Reports::makeReport() {
    const std::optional<Span> span =
        askSpan("The report is to begin with year?", "The report is to end with year?");
    if (!span) return;
    const Busy busy(suite());
    writeReportFile(reportOf(problem_, days_, chosen(reported_), *span));
    showLines(readLines(suite().ioPath("OUTPUT.DAT")));
}

void Reports::showLines(const std::vector<std::string>& lines) {
    showView(View::Report);
    report->clear();
    const double scale = suite().scaleX;
    bool first = true;
    for (const std::string& line : lines) {
        const auto [text, heading] = shownText(line);
        const Font font =
            first ? Font{"Arial", titleSize * scale, false} : Font{"Courier New", bodySize * scale, false};
        report->add({text, font, first || heading ? colour::lightBlue : colour::black});
        first = false;
    }
}

// Plot

void Reports::plot() {
    const Subject subject = plottedSubject();
    const Measure measure = chosen(measures_);
    if (!isAvailable(subject, measure)) return message("This option is not available.");
    const std::optional<PlotPeriod> period = measure == Measure::Orders ? PlotPeriod::Daily : askPeriod();
    if (!period) return;
    const std::optional<Span> span =
        askSpan("The plot is to begin with year?", "The plot is to end with year?");
    if (!span) return;
    const bool mayOverlay = subject == Subject::Retailer && measure == Measure::Sales;
    const bool withDemand = mayOverlay && suite().asksYes("Overlay customer demand?", wording().name);
    PerfGph->data = performanceChart(days_, subject, measure, *period, *span, withDemand);
    showView(View::Plot);
}

// Print

void Reports::printResults() {
    if (view() == View::Plot) return printPlotImage();
    PrintJob job{.title = wording().name};
    bool first = true;
    for (const std::string& line : readLines(suite().ioPath("OUTPUT.DAT"))) {
        const auto [text, heading] = shownText(line);
        job.print(text,
                  first ? Font{"Arial", titleSize, heading} : Font{"Courier New", printedBodySize, heading});
        first = false;
    }
    print(job);
}

} // namespace vantore::scsim
