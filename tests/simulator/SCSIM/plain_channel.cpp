#include "tests/simulator/SCSIM/plain_channel.h"

#include <cmath>
#include <cstdio>

#include "simulator/SCSIM/safety_table.h"

namespace vantore::tests {

using scsim::ForecastMethod;
using scsim::Level;
using scsim::Parameters;
using scsim::Policy;

namespace {

constexpr int day0 = 360; // the index of day 0

Level levelAt(int k) {
    return k == 0 ? Level::Retailer : k == 1 ? Level::Distributor : Level::Warehouse;
}

struct Failed {
    int number;
};

double& at(std::vector<double>& series, double index) {
    if (index < 0 || index >= PlainChannel::size) throw Failed{9};
    return series[static_cast<std::size_t>(index)];
}

double notBelowOne(double x) {
    return x < 1 ? 1 : x;
}

} // namespace

PlainChannel::PlainChannel(const scsim::Problem& problem, std::deque<double> forecasts)
    : p(problem), answers(std::move(forecasts)) {
    for (Series* series : {&custDemand, &production}) series->assign(size, 0);
    for (int k = 0; k < 3; ++k) {
        for (Series* series : {&due[k], &receipts[k], &filled[k], &onHand[k], &backOrders[k], &onOrder[k],
                               &stockOut[k], &forecast[k], &ordered[k], &orderCount[k]})
            series->assign(size, 0);
        const scsim::LevelData& data = p.levels(levelAt(k));
        carrying[k] = data.carryingCost;
        item[k] = data.itemValue;
        t[k] = data.orderInterval;
        maximum[k] = 0;
        inv[k] = back[k] = onOrd[k] = demandSd[k] = nextReview[k] = 0;
        counter[k] = 0;
        limit[k] = 100000;
        for (double& box : shown[k]) box = -1;
    }
    safetyZ = lossTarget = prodDraw = accumDemand = 0;
    forecastCount = 0;
    stop = false;
    twister.seed(static_cast<std::uint32_t>(static_cast<long long>(std::nearbyint(p.seed))));
}

double PlainChannel::uniform() {
    ++uniformsDrawn;
    return (static_cast<double>(twister() >> 9) + 0.5) * std::pow(2.0, -23);
}

double PlainChannel::random(double mean, double sd) {
    const double a = std::log(uniform());
    const double c = std::cos(uniform() * 6.283);
    const double z = std::pow(a * -2, 0.5) * c;
    const double result = std::floor(z * sd + mean);
    return result < 0 ? 0 : result;
}

void PlainChannel::demGen() {
    const double lastDay = (p.years + 1) * 360;
    if (p.demandSource == scsim::DemandSource::Generated) {
        const double i = p.averageDemand * p.growth / 100 / 360;
        double m = p.averageDemand - p.averageDemand * p.growth / 100;
        double s = 0;
        for (int d = -359; d <= lastDay; ++d) {
            const double e = d > 0 ? d : d + 360;
            const double y = std::fabs(e / 360 - std::trunc(e / 360)) * 360;
            for (int month = 1; month <= 12; ++month)
                if (y >= 30 * (month - 1) + 1 && y <= 30 * month) s = p.seasonalIndices(month);
            const double a = std::log(uniform());
            const double z = std::pow(a * -2, 0.5) * std::cos(uniform() * 6.283);
            m += i;
            double demand = std::floor(m * s + p.demandDeviation * z);
            if (demand < 0) demand = 0;
            at(custDemand, d + day0) = demand;
        }
        return;
    }
    double average = 0;
    for (int d = 1; d <= 360; ++d) average += p.dayProfile(d);
    average /= 360;
    const double i = average * p.profileGrowth / 100 / 360;
    double g = 0;
    for (int d = 1; d <= lastDay; ++d) {
        double y = std::fabs(d / 360.0 - std::trunc(d / 360.0)) * 360;
        if (y == 0) y = 360;
        g += i;
        const double demand = std::floor(p.dayProfile(std::lrint(y)) + g);
        at(custDemand, d + day0) = demand < 0 ? 0 : demand;
    }
    g = -(average * p.profileGrowth / 100);
    int k = 0;
    for (int d = -359; d <= 0; ++d) {
        k += 1;
        g += i;
        const double demand = std::floor(p.dayProfile(k) + g);
        at(custDemand, d + day0) = demand < 0 ? 0 : demand;
    }
}

bool PlainChannel::nextAnswer(double& answer) {
    if (answers.empty()) {
        stop = true;
        return false;
    }
    answer = answers.front();
    answers.pop_front();
    return true;
}

void PlainChannel::forecastOf(int k, int d) {
    const scsim::LevelData& data = p.levels(levelAt(k));
    Series& f = forecast[k];
    Series& e = k == 0 ? custDemand : ordered[k - 1];
    const int now = d + day0;
    if (data.forecast == ForecastMethod::ExponentialSmoothing) {
        if (d == -359) f[now] = 1;
        f[now + 1] = data.smoothingConstant * e[now] + (1 - data.smoothingConstant) * f[now];
    } else if (data.forecast == ForecastMethod::MovingAverage) {
        const double n = data.averagedDays;
        if (n - 359 > d) {
            f[now + 1] = 1;
        } else {
            double total = 0;
            for (long j = std::lrint(d - n + 1); j <= d; ++j) total += e[static_cast<std::size_t>(j + day0)];
            f[now + 1] = total / n;
        }
    } else if (d == -359) {
        forecastCount = 1;
        double answer;
        if (!nextAnswer(answer)) return;
        f[now] = f[now + 1] = answer;
    } else if (forecastCount * data.forecastFrequency - 360 != d) {
        f[now + 1] = f[now];
    } else if (d != p.years * 360) {
        forecastCount += 1;
        double answer;
        if (!nextAnswer(answer)) return;
        f[now + 1] = answer;
    }
    if (d >= -349) {
        double a = 0;
        for (int pass = 0; pass < 10; ++pass) a += std::pow(e[now] - f[now], 2);
        demandSd[k] = std::sqrt(a / 10);
    }
}

int PlainChannel::run() {
    try {
        demGen();
        int d = -360;
        while (360 * p.years > d) {
            d += 1;
            if (d > std::floor(360 * p.years)) break;
            const int now = d + day0;
            forecastOf(0, d);
            if (stop) return 1;
            const scsim::LevelData& r = p.levels(Level::Retailer);
            const scsim::LevelData& m = p.levels(Level::Distributor);
            const scsim::LevelData& w = p.levels(Level::Warehouse);
            const scsim::Lane& dr = p.lanes(Level::Retailer);
            const scsim::Lane& wd = p.lanes(Level::Distributor);
            const scsim::Lane& fw = p.lanes(Level::Warehouse);
            double fill = notBelowOne(random(r.averageFillTime, r.fillTimeDeviation));
            at(due[0], now + fill) += std::floor(custDemand[now]);
            stepA(0, d, 0);
            stepB(0, d);
            if (stop) return 1;
            forecastOf(1, d);
            if (stop) return 1;
            fill = notBelowOne(random(m.averageFillTime, m.fillTimeDeviation));
            double transit = notBelowOne(random(dr.averageTime, dr.timeDeviation));
            at(due[1], now + fill) += ordered[0][now];
            at(receipts[0], now + transit);
            stepA(1, d, static_cast<int>(transit));
            stepB(1, d);
            if (stop) return 1;
            forecastOf(2, d);
            if (stop) return 1;
            fill = notBelowOne(random(w.averageFillTime, w.fillTimeDeviation));
            transit = notBelowOne(random(wd.averageTime, wd.timeDeviation));
            prodDraw =
                notBelowOne(random(p.factory.averageProductionTime, p.factory.productionTimeDeviation));
            at(due[2], now + fill) += ordered[1][now];
            at(receipts[1], now + transit);
            stepA(2, d, static_cast<int>(transit));
            stepB(2, d);
            if (stop) return 1;
            transit = notBelowOne(random(fw.averageTime, fw.timeDeviation));
            prodDraw =
                notBelowOne(random(p.factory.averageProductionTime, p.factory.productionTimeDeviation));
            accumDemand += ordered[2][now];
            while (accumDemand >= p.factory.lotSize) {
                at(production, now + prodDraw) += std::floor(p.factory.lotSize);
                at(receipts[2], now + prodDraw + transit) += p.factory.lotSize;
                accumDemand -= p.factory.lotSize;
            }
            if (d < 1) continue;
            std::array<double, 26> line = {static_cast<double>(d), std::floor(custDemand[now]),
                                           filled[0][now]};
            std::size_t n = 3;
            for (int k = 0; k < 3; ++k)
                for (const double value : {forecast[k][now], due[k][now], inv[k], back[k], onOrd[k],
                                           receipts[k][now], ordered[k][now]})
                    line[n++] = value;
            line[24] = accumDemand;
            line[25] = production[now];
            trace.push_back(line);
        }
    } catch (const Failed& failed) {
        return failed.number;
    }
    return 0;
}

void PlainChannel::stepA(int k, int d, int transit) {
    const int now = d + day0;
    const double s = due[k][now];
    inv[k] += receipts[k][now];
    if (k == 0) onHand[k][now] = inv[k];
    if (receipts[k][now] <= onOrd[k])
        onOrd[k] -= receipts[k][now];
    else
        onOrd[k] = 0;
    onOrder[k][now] = onOrd[k];
    bool fourth = false;
    if (inv[k] >= back[k] + s) {
        inv[k] -= back[k] + s;
        filled[k][now] += back[k] + s;
        back[k] = 0;
    } else if (inv[k] > back[k] && inv[k] < back[k] + s) {
        filled[k][now] += inv[k];
        back[k] = back[k] + s - inv[k];
        if (s > inv[k]) stockOut[k][now] = s - inv[k];
        inv[k] = 0;
    } else if (inv[k] < back[k]) {
        back[k] = back[k] - inv[k] + s;
        if (s > inv[k]) stockOut[k][now] = s - inv[k];
        filled[k][now] += inv[k];
        inv[k] = 0;
    } else {
        back[k] += s;
        stockOut[k][now] = s;
        fourth = true;
    }
    backOrders[k][now] = back[k];
    if (k == 0 || !fourth) onHand[k][now] = inv[k];
    if (k > 0 && !fourth) at(receipts[k - 1], now + transit) += filled[k][now];
}

double PlainChannel::quantity(int k, int d) {
    if (k == 0 ? carrying[k] <= 0 : carrying[k] == 0) carrying[k] = 0.00001;
    if (k == 0 ? item[k] <= 0 : item[k] == 0) item[k] = 0.00001;
    const double under = 2 * forecast[k][d + day0] * 360 * p.levels(levelAt(k)).orderProcessingCost /
                         (carrying[k] / 100 * item[k]);
    if (under < 0) throw Failed{5};
    return notBelowOne(std::sqrt(under));
}

void PlainChannel::zTable() {
    if (lossTarget > 0.3989) {
        safetyZ = 0;
        return;
    }
    for (int i = 1; i <= 107; ++i) {
        const scsim::SafetyRow& a = scsim::safetyRow(i);
        const scsim::SafetyRow& b = scsim::safetyRow(i + 1);
        if (lossTarget > a.loss || lossTarget <= b.loss) continue;
        safetyZ = std::fabs(lossTarget - a.loss) <= std::fabs(lossTarget - b.loss) ? a.z : b.z;
        return;
    }
}

bool PlainChannel::guard(int k) {
    counter[k] += 1;
    if (counter[k] <= limit[k]) return true;
    stop = true; // the answer is No
    return false;
}

void PlainChannel::order(int k, int d, double q) {
    onOrd[k] += q;
    onOrder[k][d + day0] = onOrd[k];
    orderCount[k][d + day0] += 1;
    ordered[k][d + day0] += q;
}

void PlainChannel::stepB(int k, int d) {
    const scsim::LevelData& data = p.levels(levelAt(k));
    const double fc = forecast[k][d + day0];
    const double leads[3] = {
        p.levels(Level::Distributor).averageFillTime + p.lanes(Level::Retailer).averageTime,
        p.levels(Level::Warehouse).averageFillTime + p.lanes(Level::Distributor).averageTime,
        prodDraw + p.lanes(Level::Warehouse).averageTime};
    if (data.policy == Policy::ReorderPoint && data.reorderParameters == Parameters::Specified) {
        while (inv[k] + onOrd[k] - back[k] < data.reorderPoint) {
            if (!guard(k)) return;
            order(k, d, std::floor(k == 0 ? data.reorderQuantity + 0.5 : data.reorderQuantity));
        }
        limit[k] = 100000;
    } else if (data.policy == Policy::ReorderPoint && data.reorderParameters == Parameters::Calculated) {
        if (d <= -349) return;
        const double q = quantity(k, d);
        const double l = leads[k];
        shown[k][0] = std::floor(q);
        if (demandSd[k] * std::sqrt(l) == 0)
            lossTarget = 9E20;
        else
            lossTarget = q * (1 - data.inStockProbability / 100) / (demandSd[k] * std::sqrt(l));
        zTable();
        const double rop = notBelowOne(std::floor(fc * l + safetyZ * demandSd[k] * std::sqrt(l)));
        shown[k][1] = rop;
        while (inv[k] + onOrd[k] - back[k] < rop) {
            if (!guard(k)) return;
            order(k, d, std::floor(q + 0.5));
        }
        limit[k] = 100000;
    } else if (data.policy == Policy::PeriodicReview && data.reviewParameters == Parameters::Calculated) {
        reviewCalculated(k, d);
    } else if (data.policy == Policy::PeriodicReview && data.reviewParameters == Parameters::Specified) {
        if (d == -359) {
            t[k] = std::floor(data.orderInterval);
            maximum[k] = std::floor(data.targetLevel);
            nextReview[k] = -360 + t[k];
        }
        if (d != nextReview[k]) return;
        nextReview[k] += t[k];
        const double missing = maximum[k] - inv[k] - onOrd[k] + back[k];
        if (missing > 0) order(k, d, missing);
    } else if (data.policy == Policy::StockToDemand) {
        const double rv = k == 0 ? data.reviewTime : std::floor(data.reviewTime);
        if (d == -359) {
            nextReview[k] = rv - 360;
        } else if (d == nextReview[k]) {
            nextReview[k] += rv;
            const double missing = std::floor(fc * data.targetDays) - inv[k] - onOrd[k] + back[k];
            if (missing > 0) order(k, d, missing);
        }
    }
}

void PlainChannel::reviewCalculated(int k, int d) {
    const scsim::LevelData& data = p.levels(levelAt(k));
    const double upstreamFill = k == 0   ? p.levels(Level::Distributor).averageFillTime
                                : k == 1 ? p.levels(Level::Warehouse).averageFillTime
                                         : prodDraw;
    const double transit = p.lanes(levelAt(k)).averageTime;
    if (d == -359) {
        nextReview[k] = -345;
        maximum[k] = shown[k][3] = 0;
    }
    if (d < -348) return;
    if (d == nextReview[k]) {
        const double missing = maximum[k] - inv[k] - onOrd[k] + back[k];
        if (missing > 0) order(k, d, missing);
        const double q = quantity(k, d);
        double& fc = forecast[k][d + day0];
        if (fc == 0) fc = 0.00001;
        t[k] = notBelowOne(q / fc);
        const double fill = k == 1 ? data.averageFillTime : upstreamFill;
        const double spread = demandSd[k] * std::sqrt(t[k] + (fill + transit));
        lossTarget = spread == 0 ? 9E20 : q * (1 - data.inStockProbability / 100) / spread;
        zTable();
        const double v = t[k] + (upstreamFill + transit);
        maximum[k] = notBelowOne(std::floor(fc * v + safetyZ * demandSd[k] * std::sqrt(v) + 0.5));
        nextReview[k] = d + std::floor(t[k] + 0.5);
    }
    shown[k][2] = t[k];
    shown[k][3] = maximum[k];
}

// The reports

double PlainChannel::sum(const Series& series, int fromYear, int toYear) const {
    double total = 0;
    for (int d = (fromYear - 1) * 360 + 1; d <= toYear * 360; ++d)
        total += std::floor(series[static_cast<std::size_t>(d + day0)]);
    return total;
}

/// Puts a figure with commas so that it ends before column `end`; halves are rounded away from 0 behind 15
/// digits.
void PlainChannel::figure(std::string& line, double value, int decimals, const char* before,
                          const char* behind, std::size_t end) const {
    char digits[64];
    std::snprintf(digits, sizeof digits, "%.14e", std::fabs(value));
    std::string text(digits);
    const int exponent = std::stoi(text.substr(text.find('e') + 1));
    std::string all = text.substr(0, 1) + text.substr(2, 14);
    std::string wholePart = exponent < 0 ? "" : all.substr(0, static_cast<std::size_t>(exponent) + 1);
    std::string rest = exponent < 0 ? std::string(static_cast<std::size_t>(-exponent - 1), '0') + all
                                    : all.substr(static_cast<std::size_t>(exponent) + 1);
    rest += "000";
    std::string kept = wholePart + rest.substr(0, static_cast<std::size_t>(decimals));
    if (rest[static_cast<std::size_t>(decimals)] >= '5') {
        std::size_t i = kept.size();
        while (i > 0 && kept[i - 1] == '9') kept[--i] = '0';
        if (i > 0)
            ++kept[i - 1];
        else
            kept = "1" + kept;
    }
    while (static_cast<int>(kept.size()) < decimals) kept = "0" + kept;
    std::string units = kept.substr(0, kept.size() - static_cast<std::size_t>(decimals));
    const std::string cents = kept.substr(units.size());
    while (!units.empty() && units[0] == '0') units.erase(0, 1);
    for (int i = static_cast<int>(units.size()) - 3; i > 0; i -= 3)
        units.insert(static_cast<std::size_t>(i), ",");
    const bool zero = units.empty() && cents.find_first_not_of('0') == std::string::npos;
    if (decimals == 0 && units.empty()) units = "0";
    std::string shownText = std::string(before) + units + (decimals > 0 ? "." + cents : "");
    if (value < 0 && !zero && *behind == 0) shownText = "-" + shownText;
    while (line.size() + shownText.size() < end - 1) line += ' ';
    line += shownText + behind;
}

void PlainChannel::row(std::vector<std::string>& lines, double yearly, int yearlyDecimals, double period,
                       const char* sign, const std::string& label) const {
    std::string line;
    figure(line, yearly, yearlyDecimals, sign, "", 18);
    if (!std::isnan(period)) figure(line, period, 0, sign, "", 34);
    while (line.size() < 39) line += ' ';
    lines.push_back(line + label);
}

std::vector<std::string> PlainChannel::levelReport(int k, int a, int b) const {
    const double none = std::nan("");
    const double ny = b - a + 1;
    const scsim::LevelData& data = p.levels(levelAt(k));
    std::vector<std::string> lines;
    const char* method = data.forecast == ForecastMethod::ExponentialSmoothing ? "Exponential smoothing"
                         : data.forecast == ForecastMethod::MovingAverage      ? "Moving average"
                                                                               : "Specified forecast";
    const char* control = data.policy == Policy::ReorderPoint     ? "Reorder point"
                          : data.policy == Policy::PeriodicReview ? "Periodic review"
                                                                  : "Stock-to-demand";
    lines.push_back(std::string(" Forecasting method: ") + method);
    lines.push_back(std::string(" Inventory control method: ") + control);
    lines.push_back("");
    lines.push_back("*           Yearly       Simulated");
    lines.push_back("*          average          period      PERFORMANCE STATISTICS");
    const char* salesLabels[3] = {"Retailer sales to customers, units",
                                  "Distributor sales to retailer, units",
                                  "Warehouse sales to distributor, units"};
    const double demand = sum(custDemand, a, b), fc = sum(forecast[k], a, b), sales = sum(due[k], a, b);
    const double dInv = sum(onHand[k], a, b) / (ny * 360), dBo = sum(backOrders[k], a, b) / (ny * 360);
    const double out = sum(stockOut[k], a, b), dOo = sum(onOrder[k], a, b) / (ny * 360);
    const double no = sum(orderCount[k], a, b);
    if (k == 0) row(lines, demand / ny, 0, demand, "", "Demand, units");
    row(lines, fc / ny, 0, fc, "", "Sales Forecast, units");
    row(lines, sales / ny, 0, sales, "", salesLabels[k]);
    row(lines, dInv, 2, none, "", "Average inventory on hand, units");
    row(lines, sales / ny / (dInv == 0 ? 0.00001 : dInv), 2, none, "", "Inventory turnover ratio");
    row(lines, dBo, k == 2 ? 2 : 0, none, "", "Daily back orders, units");
    const double f = (1 - dBo * 360 / (sales / ny == 0 ? 0.00001 : sales / ny)) * 100;
    std::string line;
    if (f < 50) {
        line = std::string(13, ' ') + " <50%" + std::string(21, ' ') +
               (k == 2 ? "Average demand on request" : "Average demand filled on request");
    } else {
        figure(line, f, 2, "", "%", 18);
        line += std::string(39 - line.size(), ' ') + "Average demand filled on request";
    }
    lines.push_back(line);
    row(lines, out / ny, k == 2 ? 2 : 0, out, "", "Back order occurrences");
    row(lines, dOo, 0, none, "", "Daily quantity on order, units");
    row(lines, no / ny, 0, no, "", "Number of orders placed");
    lines.push_back("*" + std::string(38, ' ') + " FINANCIAL PERFORMANCE");
    if (k == 0) row(lines, sales / ny * p.price, 2, sales * p.price, "$", "Retailer sales");
    const char* processing[3] = {"Cost to process distributor orders", "Cost to process warehouse orders ",
                                 "Cost to process factory orders "};
    const char* handling[3] = {"Cost for handling customer orders", "Cost for handling retailer orders",
                               "Cost for handling distributor orders"};
    double yearly = 0, period = 0;
    const auto cost = [&](double y, double s, const char* label) {
        yearly += y;
        period += s;
        row(lines, y, 2, s, "", label);
    };
    cost(no / ny * data.orderProcessingCost, no * data.orderProcessingCost, processing[k]);
    cost(sales / ny * data.orderFillingCost, sales * data.orderFillingCost, handling[k]);
    cost(dInv * data.itemValue * data.carryingCost / 100,
         dInv * ny * data.itemValue * data.carryingCost / 100, "Cost for carrying inventory");
    cost(out / ny * data.backOrderCost, out * data.backOrderCost, "Cost for back orders");
    if (k > 0) {
        const double rate = p.lanes(levelAt(k - 1)).cost, moved = sum(receipts[k - 1], a, b);
        cost(moved / ny * rate, moved * rate,
             k == 1 ? "Cost for transport to retailer" : "Cost for transport to distributor");
    }
    row(lines, yearly, 2, period, k == 0 ? "" : "$", "Total cost");
    if (k == 0)
        row(lines, sales / ny * p.price - yearly, 2, sales * p.price - period, "$", "Profit contribution");
    return lines;
}

std::vector<std::string> PlainChannel::report(int what, int a, int b) const {
    const char* names[5] = {"SUPPLY CHANNEL", "RETAILER", "DISTRIBUTOR", "WAREHOUSE", "FACTORY"};
    std::string title = std::string("* ") + names[what] + " REPORT FOR SIMULATED YEAR";
    if (a == b)
        title += " " + std::to_string(a);
    else
        title += "S " + std::to_string(a) + (what == 1 ? " THROUGH " : " TO ") + std::to_string(b);
    std::vector<std::string> lines = {title};
    if (what >= 1 && what <= 3) {
        for (std::string& line : levelReport(what - 1, a, b)) lines.push_back(line);
        return lines;
    }
    const double ny = b - a + 1;
    const double made = sum(production, a, b);
    lines.push_back("*           Yearly       Simulated");
    lines.push_back(std::string("*          average          period      ") +
                    (what == 0 ? "FINANCIAL PERFORMANCE" : "PERFORMANCE STATISTICS"));
    if (what == 4) {
        row(lines, made / ny, 0, made, "", "Factory sales to warehouse, units");
        lines.push_back("*" + std::string(38, ' ') + " FINANCIAL PERFORMANCE");
        const double moved = sum(receipts[2], a, b);
        const double costs[3] = {p.factory.purchaseCost, p.factory.productionCost,
                                 p.lanes(Level::Warehouse).cost};
        const char* labels[3] = {"Cost of purchased materials", "Cost of production",
                                 "Cost for transport to warehouse"};
        double yearly = 0, period = 0;
        for (int i = 0; i < 3; ++i) {
            const double units = i == 2 ? moved : made;
            row(lines, units / ny * costs[i], 2, units * costs[i], "", labels[i]);
            yearly += units / ny * costs[i];
            period += units * costs[i];
        }
        row(lines, yearly, 2, period, "$", "Total cost");
        return lines;
    }
    double yearly = sum(due[0], a, b) / ny * p.price, period = sum(due[0], a, b) * p.price;
    row(lines, yearly, 2, period, "", "Revenue");
    const auto less = [&](double units, double rate, const char* label) {
        row(lines, units / ny * rate, 2, units * rate, "", label);
        yearly -= units / ny * rate;
        period -= units * rate;
    };
    const auto heading = [&](const char* text) {
        lines.push_back("");
        lines.push_back(std::string(39, ' ') + text);
    };
    less(made, p.factory.purchaseCost, "Cost of purchased goods");
    row(lines, yearly, 2, period, "", "Gross margin");
    lines.push_back("");
    less(made, p.factory.productionCost, "Production cost");
    const scsim::LevelData* level[3];
    for (int k = 0; k < 3; ++k) level[k] = &p.levels(levelAt(k));
    heading("Transportation costs:");
    const char* lanes[3] = {"  Distributor to retailer", "  Warehouse to distributor",
                            "  Factory to warehouse"};
    for (int k = 0; k < 3; ++k) less(sum(receipts[k], a, b), p.lanes(levelAt(k)).cost, lanes[k]);
    heading("Sales order handling cost for:");
    const char* sales[3] = {"  Customer orders", "  Retailer orders", "  Distributor orders"};
    for (int k = 0; k < 3; ++k) less(sum(due[k], a, b), level[k]->orderFillingCost, sales[k]);
    heading("Order processing cost for:");
    const char* orders[3] = {"  Orders to distributor", "  Orders to warehouses", "  Orders to factory"};
    for (int k = 0; k < 3; ++k) less(sum(orderCount[k], a, b), level[k]->orderProcessingCost, orders[k]);
    const char* owners[3] = {"  Retailer", "  Distributor", "  Warehouse"};
    heading("Inventory costs");
    for (int k = 0; k < 3; ++k) {
        const double dInv = sum(onHand[k], a, b) / (ny * 360);
        const double y = dInv * level[k]->itemValue * level[k]->carryingCost / 100;
        const double s = dInv * ny * level[k]->itemValue * level[k]->carryingCost / 100;
        row(lines, y, 2, s, "", owners[k]);
        yearly -= y;
        period -= s;
    }
    heading("Back order costs");
    for (int k = 0; k < 3; ++k) less(sum(stockOut[k], a, b), level[k]->backOrderCost, owners[k]);
    lines.push_back("");
    std::string line;
    figure(line, yearly, 2, yearly < 0 ? "($" : "$", yearly < 0 ? ")" : "", 18);
    figure(line, period, 0, period < 0 ? "($" : "$", period < 0 ? ")" : "", 34);
    while (line.size() < 39) line += ' ';
    lines.push_back(line + "Net profit contribution");
    return lines;
}

} // namespace vantore::tests
