#include "simulator/SCSIM/method.h"

#include <algorithm>
#include <cmath>

#include "shell/base/arithmetic.h"
#include "simulator/SCSIM/demand.h"
#include "simulator/SCSIM/forecast.h"

namespace vantore::scsim {

namespace {

/// Lots of a day that are made one by one; more would take for ever and are made at once.
constexpr double mostSingleLots = 100000;

void add(double& total, double amount) {
    total = finite(total + amount);
}

void clear(Days& days, int last) {
    const auto clearSeries = [last](DaySeries& series) {
        const auto all = series.span();
        std::fill_n(all.begin(), last - DaySeries::first + 1, 0.0);
    };
    clearSeries(days.production);
    for (const Level level : allLevels) {
        LevelDays& at = days.levels(level);
        for (DaySeries* series : {&at.demandDue, &at.receipts, &at.filled, &at.onHand, &at.backOrders,
                                  &at.onOrder, &at.stockOut, &at.orderQuantity, &at.orderCount})
            clearSeries(*series);
    }
}

/// The day that lies `time` days behind `day`.
int dayAfter(int day, double time) {
    if (!(day + time <= lastDayOfTables)) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return day + static_cast<int>(time);
}

/// One run, from its start to its end.
class Channel {
  public:
    Channel(const Problem& problem, UniformGenerator& uniforms, const Answers& answers, RunFigures& run)
        : problem_(problem), uniforms_(uniforms), run_(run), days_(run.days),
          forecasts_(problem, answers, run.days),
          replenishments_{{{Level::Retailer, problem.levels(Level::Retailer), answers, safety_},
                           {Level::Distributor, problem.levels(Level::Distributor), answers, safety_},
                           {Level::Warehouse, problem.levels(Level::Warehouse), answers, safety_}}} {}

    void simulateDay(int day);
    TraceRow traceRow(int day) const;

  private:
    void passRetailerDay(int day);
    void passDistributorDay(int day);
    void passWarehouseDay(int day);
    void passFactoryDay(int day);

    double fillTime(Level level);
    double transitTime(Level to);
    double productionTime();

    Filling fillDemand(int day, Level level);
    void ship(const Filling& filling, Level to, int arrival);
    void replenish(int day, Level level);
    Outlook outlookOf(int day, Level level) const;

    const Problem& problem_;
    UniformGenerator& uniforms_;
    RunFigures& run_;
    Days& days_;
    Forecasts forecasts_;
    SafetyFactor safety_;
    PerLevel<Stock> stocks_;
    std::array<Replenishment, levelCount> replenishments_;
    double productionTime_ = 0; ///< the latest drawn
    double awaitingLot_ = 0;    ///< ordered from the factory and not yet a lot
};

void Channel::simulateDay(int day) {
    passRetailerDay(day);
    passDistributorDay(day);
    passWarehouseDay(day);
    passFactoryDay(day);
}

void Channel::passRetailerDay(int day) {
    forecasts_.forecast(Level::Retailer, day);
    LevelDays& retailer = days_.levels(Level::Retailer);
    add(retailer.demandDue(dayAfter(day, fillTime(Level::Retailer))), wholePart(days_.customerDemand(day)));
    fillDemand(day, Level::Retailer);
    replenish(day, Level::Retailer);
}

void Channel::passDistributorDay(int day) {
    forecasts_.forecast(Level::Distributor, day);
    const double filled = fillTime(Level::Distributor);
    const double transit = transitTime(Level::Retailer);
    add(days_.levels(Level::Distributor).demandDue(dayAfter(day, filled)),
        days_.levels(Level::Retailer).orderQuantity(day));
    ship(fillDemand(day, Level::Distributor), Level::Retailer, dayAfter(day, transit));
    replenish(day, Level::Distributor);
}

void Channel::passWarehouseDay(int day) {
    forecasts_.forecast(Level::Warehouse, day);
    const double filled = fillTime(Level::Warehouse);
    const double transit = transitTime(Level::Distributor);
    productionTime_ = productionTime();
    add(days_.levels(Level::Warehouse).demandDue(dayAfter(day, filled)),
        days_.levels(Level::Distributor).orderQuantity(day));
    ship(fillDemand(day, Level::Warehouse), Level::Distributor, dayAfter(day, transit));
    replenish(day, Level::Warehouse);
}

/// Whole lots out of what the warehouse has ordered. All lots of a day take the same
/// times.
void Channel::passFactoryDay(int day) {
    const double transit = transitTime(Level::Warehouse);
    productionTime_ = productionTime();
    add(awaitingLot_, days_.levels(Level::Warehouse).orderQuantity(day));
    const double lot = problem_.factory.lotSize;
    const auto make = [&](double lots) {
        add(days_.production(dayAfter(day, productionTime_)), lots * wholePart(lot));
        add(days_.levels(Level::Warehouse).receipts(dayAfter(day, productionTime_ + transit)), lots * lot);
    };
    if (awaitingLot_ > mostSingleLots * lot) {
        const double rest = std::fmod(awaitingLot_, lot);
        make((awaitingLot_ - rest) / lot);
        awaitingLot_ = rest;
    }
    for (; awaitingLot_ >= lot; awaitingLot_ -= lot) make(1);
}

double leastOneDay(double time) {
    return std::max(time, 1.0);
}

double Channel::fillTime(Level level) {
    const LevelData& data = problem_.levels(level);
    return leastOneDay(randomDays(uniforms_, data.averageFillTime, data.fillTimeDeviation));
}

double Channel::transitTime(Level to) {
    const Lane& lane = problem_.lanes(to);
    return leastOneDay(randomDays(uniforms_, lane.averageTime, lane.timeDeviation));
}

double Channel::productionTime() {
    const FactoryData& factory = problem_.factory;
    return leastOneDay(randomDays(uniforms_, factory.averageProductionTime, factory.productionTimeDeviation));
}

/// At the levels above the retailer a stock that was left untouched isn't recorded: its day reads 0.
Filling Channel::fillDemand(int day, Level level) {
    LevelDays& at = days_.levels(level);
    Stock& stock = stocks_(level);
    receive(stock, at.receipts(day));
    at.onOrder(day) = stock.onOrder;
    const Filling filling = fill(stock, at.demandDue(day));
    at.filled(day) = filling.shipped;
    at.stockOut(day) = filling.stockOut;
    at.backOrders(day) = stock.backOrders;
    if (level == Level::Retailer || !filling.untouched) at.onHand(day) = stock.onHand;
    return filling;
}

void Channel::ship(const Filling& filling, Level to, int arrival) {
    if (!filling.untouched) add(days_.levels(to).receipts(arrival), filling.shipped);
}

void Channel::replenish(int day, Level level) {
    Replenishment& replenishment = replenishments_.at(static_cast<std::size_t>(level));
    replenishment.order(day, outlookOf(day, level), stocks_(level), days_.levels(level));
    run_.calculated(level) = replenishment.calculated();
}

/// The warehouse looks ahead by the production time drawn last, not by its mean. The distributor's reviews
/// set their loss target by its own fill time in place of the warehouse's.
Outlook Channel::outlookOf(int day, Level level) const {
    const double transit = problem_.lanes(level).averageTime;
    const auto fillTimeOf = [this](Level at) { return problem_.levels(at).averageFillTime; };
    Outlook outlook = {days_.levels(level).salesForecast(day), forecasts_.demandDeviation(level), 0, 0};
    if (level == Level::Retailer) outlook.leadTime = fillTimeOf(Level::Distributor) + transit;
    if (level == Level::Distributor) outlook.leadTime = fillTimeOf(Level::Warehouse) + transit;
    if (level == Level::Warehouse) outlook.leadTime = productionTime_ + transit;
    outlook.lossLeadTime =
        level == Level::Distributor ? fillTimeOf(Level::Distributor) + transit : outlook.leadTime;
    return outlook;
}

TraceRow Channel::traceRow(int day) const {
    const double customers = wholePart(days_.customerDemand(day));
    const LevelDays& r = days_.levels(Level::Retailer);
    const LevelDays& d = days_.levels(Level::Distributor);
    const LevelDays& w = days_.levels(Level::Warehouse);
    const Stock& inR = stocks_(Level::Retailer);
    const Stock& inD = stocks_(Level::Distributor);
    const Stock& inW = stocks_(Level::Warehouse);
    return {static_cast<double>(day),
            customers,
            r.filled(day),
            r.salesForecast(day),
            r.demandDue(day),
            inR.onHand,
            inR.backOrders,
            inR.onOrder,
            r.receipts(day),
            r.orderQuantity(day),
            d.salesForecast(day),
            d.demandDue(day),
            inD.onHand,
            inD.backOrders,
            inD.onOrder,
            d.receipts(day),
            d.orderQuantity(day),
            w.salesForecast(day),
            w.demandDue(day),
            inW.onHand,
            inW.backOrders,
            inW.onOrder,
            w.receipts(day),
            w.orderQuantity(day),
            awaitingLot_,
            days_.production(day)};
}

} // namespace

int lastDayOf(const Problem& problem) {
    return toInt16(wholePart(daysPerYear * problem.years));
}

Ending simulate(const Problem& problem, UniformGenerator& uniforms, const Answers& answers,
                const Watchers& watchers, RunFigures& run) {
    if (problem.factory.lotSize < 1) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    uniforms.reseed(problem.seed);
    run.calculated = {};
    generateDemand(problem, uniforms, run.days.customerDemand);
    const int last = lastDayOf(problem);
    clear(run.days, last);
    Channel channel(problem, uniforms, answers, run);
    try {
        for (int day = firstDay; day <= last; ++day) {
            if (watchers.dayStarts) watchers.dayStarts(day);
            channel.simulateDay(day);
            if (day >= 1 && watchers.trace) watchers.trace(channel.traceRow(day));
        }
    } catch (const RunStopped&) {
        return Ending::Stopped;
    }
    return Ending::Complete;
}

} // namespace vantore::scsim
