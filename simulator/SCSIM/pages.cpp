#include <utility>

#include "shell/base/number_text.h"
#include "simulator/SCSIM/SCSim.h"

namespace vantore::scsim {

namespace {

constexpr const char* uncalculated = "xxx";

/// The pages of the tab control in their order.
enum Page {
    demandPage,
    retailerPage,
    distributorPage,
    warehousePage,
    factoryPage,
    generalPage,
    startPage,
    transportPage
};

int pageOf(Level level) {
    return retailerPage + static_cast<int>(level);
}

std::string named(const std::string& name, Level level) {
    return name + suffixOf(level);
}

// Twips of the design.
constexpr Rect folderPlace{120, 120, 9360, 6240};
constexpr double pageTop = 620;
constexpr double pageLeft = 240;
constexpr double levelCaption = 3350;
constexpr double levelBox = 800;
constexpr double rightLeft = 4560;
constexpr double rightWidth = 4800;
constexpr double optionHeight = 300;
constexpr double optionStep = 320;

} // namespace

/// The words and names of a policy with two parameters.
struct SCSim::ParameterFrame {
    const char* frame;
    const char* caption;
    Policy policy;
    const char* calculate;
    const char* calculateCaption;
    const char* specify;
    const char* firstBox;
    const char* firstCaption;
    const char* secondBox;
    const char* secondCaption;
};

void SCSim::addPages() {
    shownForecast_ =
        PerLevel<ForecastMethod>({ForecastMethod::ExponentialSmoothing, ForecastMethod::ExponentialSmoothing,
                                  ForecastMethod::ExponentialSmoothing});
    shownPolicy_ = PerLevel<Policy>({Policy::ReorderPoint, Policy::ReorderPoint, Policy::ReorderPoint});
    Folder1 = &addContainer("Folder1", "", folderPlace, {View::Data});
    Folder1->pages = {"Demand",         "Retailer/Level 1", "Distributor/Level 2", "Warehouse/Level 3",
                      "Factory/Source", "General",          "Initialization",      "Transportation"};
    Folder1->selected = generalPage;
    addDemandPage();
    for (const Level level : allLevels) addLevelPage(level);
    addFactoryPage();
    addGeneralPage();
    addInitializationPage();
    addTransportPage();
}

ModuleFrame::FieldColumn SCSim::onPage(int page, double top, double captionWidth, double boxWidth) const {
    return {.left = pageLeft,
            .top = top,
            .captionWidth = captionWidth,
            .boxWidth = boxWidth,
            .container = Folder1,
            .page = page};
}

/// A box whose every change is held against its limit and makes the results stale.
TextBox& SCSim::addBox(FieldColumn& column, const std::string& name, const std::string& text) {
    TextBox& box = addField(column, name, text);
    box.onChange = [this, &box] { checkLimit(box); };
    channel_.add(box);
    return box;
}

/// Shows a box and its label only under a condition.
void SCSim::showWhen(const TextBox& box, const std::function<bool()>& condition) {
    for (const auto& control : controls()) {
        const auto* label = dynamic_cast<const Label*>(control.get());
        if (control.get() == &box || (label != nullptr && label->buddy == &box))
            Seen(*control).when(condition);
    }
}

/// An option that makes the results stale when it is selected.
Option& SCSim::addChoice(const std::string& name, const std::string& text, Rect place, const Container& group,
                         int page, std::function<void()> onSelect) {
    Option& option = addOption(name, text, place, group, page);
    option.onPress = [this, onSelect = std::move(onSelect)] {
        dropResults();
        onSelect();
    };
    channel_.add(option);
    return option;
}

DataGrid& SCSim::addValueGrid(const std::string& name, Rect place) {
    DataGrid& grid = addGrid(name, place);
    grid.container = Folder1;
    grid.page = demandPage;
    grid.holdsNumbers = [](int) { return true; };
    grid.onKey = [this, &grid](int code) { typeInGrid(grid, code); };
    return grid;
}

void SCSim::addInitializationPage() {
    FieldColumn title = onPage(startPage, pageTop, 3000, 5400);
    FieldColumn column = onPage(startPage, pageTop + title.step, 3000, 1200);
    TextBox& titleBox = addField(title, "TitleBox", "Title");
    titleBox.show("Press start button and select a file name to begin");
    channel_.add(titleBox);
    TextBox& seed = addBox(column, "Seed", "Seed value");
    seed.show("123456");
    seed.onChange = [this, &seed] {
        dropResults();
        uniforms_.reseed(val(seed.text()));
    };
    uniforms_.reseed(val(seed.text()));
    addBox(column, "SimLgth", "Length of simulation run, years").onChange = [this] { checkYears(); };
    addBox(column, "txtPrice", "Product selling price, $/unit");
}

void SCSim::addDemandPage() {
    constexpr double optionWidth = 2600;
    constexpr double fieldsTop = pageTop + 440;
    const auto place = [](double left) { return Rect{left, pageTop, optionWidth, optionHeight}; };
    addChoice("optGenDem", "Generate daily demand", place(pageLeft), *Folder1, demandPage, [this] {
        shownDemand_ = DemandSource::Generated;
    }).selected = true;
    addChoice("optSpecDem", "Specify daily demand", place(pageLeft + optionWidth), *Folder1, demandPage,
              [this] { shownDemand_ = DemandSource::Specified; });
    const auto generated = [this] { return shownDemand_ == DemandSource::Generated; };
    const auto specified = [this] { return shownDemand_ == DemandSource::Specified; };

    FieldColumn column = onPage(demandPage, fieldsTop, 3300, 1000);
    showWhen(addBox(column, "DemText", "Average daily demand"), generated);
    showWhen(addBox(column, "SDText", "Standard deviation of daily demand"), generated);
    TextBox& growth = addBox(column, "GroText", "Annual growth increment, %");
    showWhen(growth, generated);
    FieldColumn specColumn = onPage(demandPage, fieldsTop, 3300, 1000);
    TextBox& specGrowth = addBox(specColumn, "SpecGroText", "Annual growth increment, %");
    showWhen(specGrowth, specified);
    growth.show("0.0");
    specGrowth.show("0.0");

    const auto addCaption = [this](const std::string& name, const std::string& text, double top,
                                   const std::function<bool()>& condition) {
        Label& label = addLabel(name, text, {pageLeft, top, 5400, 260}, {View::Data});
        label.container = Folder1;
        label.page = demandPage;
        Seen(label).when(condition);
    };
    addCaption("lblIndexGrid", "Monthly seasonal indices (mean=1)", column.top + 60, generated);
    DataGrid& indices = addValueGrid("IndexGrid", {pageLeft, column.top + 340, 4200, 2300});
    channel_.setIndexGrid(indices);
    Seen(indices).when(generated);
    addCaption("lblDemGrid", "Specified typical daily demand profile (without growth)", specColumn.top + 60,
               specified);
    DataGrid& demands = addValueGrid("DemGrid", {pageLeft, specColumn.top + 340, 9100, 4420});
    channel_.setDemandGrid(demands);
    demands.setColWidth(0, 800);
    for (int day = 1; day <= daysPerMonth; ++day) demands.setColWidth(day, 560);
    Seen(demands).when(specified);
}

void SCSim::addLevelPage(Level level) {
    addLevelCosts(level);
    addForecast(level);
    addPolicy(level);
}

void SCSim::addLevelCosts(Level level) {
    static constexpr PerLevel<const char*> customers({"Customer", "Retailer", "Distributor"});
    static constexpr PerLevel<const char*> withinTexts({"customer", "retailer", "distributor"});
    static constexpr PerLevel<const char*> backOrders(
        {"Back order cost, $/unit", "Backorder cost, $/unit", "Backorder cost, $/unit"});
    const std::string customer = customers(level);
    FieldColumn column = onPage(pageOf(level), pageTop, levelCaption, levelBox);
    const auto add = [&](const char* name, const std::string& text) {
        addBox(column, named(name, level), text);
    };
    add("txtItemCost", "Item value in inventory, $/unit");
    add("txtHandling", customer + " order filling cost, $/unit");
    add("txtPurOrdProc", "Purchase order processing cost, $/order");
    add("txtInvCarCost", "Inventory carrying cost, %/yr.");
    add("txtAvgFillTime", std::string("Avg. ") + withinTexts(level) + " order fill time, days");
    add("txtFillTimeSD", customer + " order fill time std. dev., days");
    add("txtServLvl", "In-stock probability, %");
    add("txtBOC", backOrders(level));
}

void SCSim::addForecast(Level level) {
    constexpr double top = pageTop - 40;
    Container& frame = addContainer(named("ForecastFrame", level), "Forecasting method",
                                    {rightLeft, top, rightWidth, 1740}, {View::Data});
    frame.container = Folder1;
    frame.page = pageOf(level);
    constexpr double boxTop = top + 280 + 3 * optionStep + 60; // the three boxes stand in one place
    double optionTop = top + 280;
    const auto add = [&](const char* option, const char* text, ForecastMethod method, const char* box,
                         const char* parameter) {
        addChoice(named(option, level), text, {rightLeft + 120, optionTop, 3600, optionHeight}, frame, 0,
                  [this, level, method] { shownForecast_(level) = method; })
            .selected = method == ForecastMethod::ExponentialSmoothing;
        optionTop += optionStep;
        FieldColumn column = {.left = rightLeft + 120,
                              .top = boxTop,
                              .captionWidth = 2400,
                              .boxWidth = 1000,
                              .container = &frame};
        TextBox& shown = addBox(column, named(box, level), parameter);
        showWhen(shown, [this, level, method] { return shownForecast_(level) == method; });
        return &shown;
    };
    add("EPForcst", "Exponential smoothing", ForecastMethod::ExponentialSmoothing, "txtSmCons",
        "Smoothing constant");
    add("MAForcst", "Moving average", ForecastMethod::MovingAverage, "txtNoPeriods", "Number of periods");
    add("SpecForcst", "Specified forecast", ForecastMethod::Specified, "txtForFreq",
        "Forecast frequency, days")
        ->tip = "Use 0 for all days of the simulation.";
}

void SCSim::addPolicy(Level level) {
    constexpr double top = pageTop + 1780;
    Container& frame = addContainer(named("PolicyFrame", level), "Reorder policy",
                                    {rightLeft, top, rightWidth, 3900}, {View::Data});
    frame.container = Folder1;
    frame.page = pageOf(level);
    double optionTop = top + 280;
    const auto add = [&](const char* name, const char* text, Policy policy) {
        addChoice(named(name, level), text, {rightLeft + 120, optionTop, 4500, optionHeight}, frame, 0,
                  [this, level, policy] {
                      shownPolicy_(level) = policy;
                      if (policy == Policy::PeriodicReview) channel_.select(channel_.option("PRCal", level));
                  })
            .selected = policy == Policy::ReorderPoint;
        optionTop += optionStep;
    };
    add("ReorderPoint", "Reorder point control method", Policy::ReorderPoint);
    add("PeriodicReview", "Periodic review control method", Policy::PeriodicReview);
    add("StockToDemand", "Stock-to-demand control method", Policy::StockToDemand);
    addParameters(level, frame,
                  {.frame = "ROPFrame",
                   .caption = "Reorder point",
                   .policy = Policy::ReorderPoint,
                   .calculate = "ROPCal",
                   .calculateCaption = "Calculate inventory control parameters (Q, ROP)",
                   .specify = "ROPSpec",
                   .firstBox = "txtROPQuant",
                   .firstCaption = "Reorder quantity (Q), units",
                   .secondBox = "txtROP",
                   .secondCaption = "Reorder point quantity (ROP), units"});
    addParameters(level, frame,
                  {.frame = "PRFrame",
                   .caption = "Periodic review",
                   .policy = Policy::PeriodicReview,
                   .calculate = "PRCal",
                   .calculateCaption = "Calculate inventory control parameters (T, Max)",
                   .specify = "PRSpec",
                   .firstBox = "txtPROrdInt",
                   .firstCaption = "Order interval (T), days",
                   .secondBox = "txtPRMaxLvl",
                   .secondCaption = "Target level (Max), units"});
    addStockToDemand(level, frame);
}

/// The frame of a policy whose two parameters are calculated or specified. The calculated ones show as
/// unknown until a run has calculated them.
void SCSim::addParameters(Level level, const Container& policies, const ParameterFrame& wording) {
    const Rect place = {rightLeft + 120, policies.design.top + 1340, rightWidth - 240, 2000};
    Container& frame = addContainer(named(wording.frame, level), wording.caption, place, {View::Data});
    frame.container = &policies;
    Seen(frame).when([this, level, policy = wording.policy] { return shownPolicy_(level) == policy; });
    const double left = place.left + 120;
    const auto optionPlace = [&](double top) { return Rect{left, place.top + top, 4200, optionHeight}; };
    FieldColumn column = {
        .left = left, .top = place.top + 980, .captionWidth = 2700, .boxWidth = 1500, .container = &frame};
    TextBox& first = addBox(column, named(wording.firstBox, level), wording.firstCaption);
    TextBox& second = addBox(column, named(wording.secondBox, level), wording.secondCaption);
    addChoice(named(wording.calculate, level), wording.calculateCaption, optionPlace(260), frame, 0,
              [&first, &second] {
                  first.show(uncalculated);
                  second.show(uncalculated);
              })
        .selected = wording.policy == Policy::ReorderPoint;
    addChoice(named(wording.specify, level), "Specify inventory control parameters", optionPlace(580), frame,
              0, [] {});
    if (wording.policy == Policy::ReorderPoint && level == Level::Retailer)
        first.onChange = second.onChange = nullptr;
}

void SCSim::addStockToDemand(Level level, const Container& policies) {
    FieldColumn column = {.left = rightLeft + 240,
                          .top = policies.design.top + 1440,
                          .captionWidth = 2700,
                          .boxWidth = 1500,
                          .container = &policies};
    const auto stockToDemand = [this, level] { return shownPolicy_(level) == Policy::StockToDemand; };
    TextBox& days = addBox(column, named("txtSToD", level), "Target days of inventory");
    if (level != Level::Retailer) days.onChange = nullptr;
    showWhen(days, stockToDemand);
    showWhen(addBox(column, named("txtStoDRevTime", level), "Review time in days"), stockToDemand);
}

void SCSim::addFactoryPage() {
    FieldColumn column = onPage(factoryPage, pageTop, 3350, 1200);
    addBox(column, "txtItemCostP", "Production cost, $/unit");
    addBox(column, "txtLotSize", "Minimum production lot size, units");
    addBox(column, "txtHandlingP", "Warehouse order filling cost, $/unit");
    addBox(column, "txtAvgProdTimeP", "Avg. production time, days");
    addBox(column, "txtProdTimeSDP", "Production time std. dev., days");
    addBox(column, "txtPurCost", "Purchase cost, $/unit");
}

void SCSim::addGeneralPage() {
    auto& picture = add<Picture>("Channel", Rect{pageLeft, pageTop, 9120, 5600});
    picture.image = "channel";
    picture.container = Folder1;
    picture.page = generalPage;
}

void SCSim::addTransportPage() {
    addLane(Level::Retailer, "Transport between Distributor and Retailer", pageTop);
    addLane(Level::Distributor, "Transport between Warehouse and Distributor", pageTop + 1760);
    addLane(Level::Warehouse, "Transport between Factory and Warehouse", pageTop + 3520);
}

void SCSim::addLane(Level level, const std::string& text, double top) {
    const std::string suffix(laneSuffixOf(level));
    Container& frame = addContainer("Transport" + suffix, text, {pageLeft, top, 5200, 1660}, {View::Data});
    frame.container = Folder1;
    frame.page = transportPage;
    FieldColumn column = {.left = pageLeft + 240,
                          .top = top + 300,
                          .captionWidth = 3000,
                          .boxWidth = 1200,
                          .container = &frame};
    addBox(column, "txtTransCost" + suffix, "Cost, $/unit");
    addBox(column, "txtAvgTrnsTime" + suffix, "Avg. time in-transit, days");
    addBox(column, "txtTrnsTimeSD" + suffix, "Transit time std. dev., days");
}

} // namespace vantore::scsim
