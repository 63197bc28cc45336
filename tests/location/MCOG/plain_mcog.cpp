#include "tests/location/MCOG/plain_mcog.h"

#include <array>
#include <cmath>

#include "tests/location/plain_page.h"

namespace vantore::mcog::tests {

namespace {

using vantore::tests::figure;
using vantore::tests::PlainPage;

struct Work {
    int n = 0, m = 0;
    double k = 0, total = 0;
    std::array<double, 501> x{}, y{}, volume{}, weight{};
    std::array<std::size_t, 501> assigned{};
    std::array<double, 21> fx{}, fy{}, cost{};
};

/// The place of one facility for count points (from 1) in arrays.
struct Single {
    int count = 0;
    std::array<double, 501> a{}, b{}, w{};
    double x = 0, y = 0, cost = 0;
};

void startAtTheMean(Single& s) {
    double sum = 0;
    double sumA = 0;
    double sumB = 0;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(s.count); ++i) {
        sumA += s.w[i] * s.a[i];
        sum += s.w[i];
        sumB += s.w[i] * s.b[i];
    }
    s.x = sumA / sum;
    s.y = sumB / sum;
}

/// Source of the step: the ratio of the squared gradient to the second derivative in its direction.
void locateOne(Single& s) {
    startAtTheMean(s);
    double previousX = s.x;
    double previousY = s.y;
    s.cost = 0;
    if (s.count == 1) return;
    double best = 1E+35;
    for (int repeat = 1; repeat <= 100; ++repeat) {
        double g1 = 0, g2 = 0, hxx = 0, hyy = 0, hxy = 0;
        s.cost = 0;
        for (std::size_t i = 1; i <= static_cast<std::size_t>(s.count); ++i) {
            const double dx = s.a[i] - s.x;
            const double dy = s.b[i] - s.y;
            const double r2 = dx * dx + dy * dy;
            if (r2 != 0) {
                const double r = std::sqrt(r2);
                const double t = s.w[i] / r;
                g1 -= t * dx;
                g2 -= t * dy;
                const double u = t / r2;
                hxx += u * (dy * dy);
                hyy += u * (dx * dx);
                hxy -= u * dx * dy;
                s.cost += s.w[i] * r;
            }
        }
        if (s.cost <= best) {
            if (s.cost == 0) s.cost = 0.0000001;
            if ((best - s.cost) / s.cost <= 0.000001) return;
            previousX = s.x;
            previousY = s.y;
            best = s.cost;
            double bend = hxx * (g1 * g1) + 2 * hxy * g1 * g2 + hyy * (g2 * g2);
            const double other = hxx * (g2 * g2) - 2 * hxy * g1 * g2 + hyy * (g1 * g1);
            if (std::fabs(bend) < std::fabs(other)) bend = other;
            if (bend < 1E-35) return;
            const double step = (g1 * g1 + g2 * g2) / bend;
            s.x -= step * g1;
            s.y -= step * g2;
        } else {
            const double wasX = s.x;
            const double wasY = s.y;
            s.x = (previousX + s.x) * 0.5;
            s.y = (previousY + s.y) * 0.5;
            previousX = wasX;
            previousY = wasY;
        }
    }
}

void relocateAll(Work& p) {
    p.total = 0;
    for (std::size_t j = 1; j <= static_cast<std::size_t>(p.m); ++j) {
        Single s;
        for (std::size_t i = 1; i <= static_cast<std::size_t>(p.n); ++i)
            if (p.assigned[i] == j) {
                ++s.count;
                const auto c = static_cast<std::size_t>(s.count);
                s.a[c] = p.x[i];
                s.b[c] = p.y[i];
                s.w[c] = p.weight[i];
            }
        p.cost[j] = 0;
        if (s.count > 0) {
            locateOne(s);
            p.fx[j] = s.x;
            p.fy[j] = s.y;
            p.cost[j] = s.cost;
        }
        p.total += p.k * p.cost[j];
    }
}

void assignAll(Work& p) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(p.n); ++i) {
        double least = 1E+35;
        for (std::size_t j = 1; j <= static_cast<std::size_t>(p.m); ++j) {
            const double d =
                (p.x[i] - p.fx[j]) * (p.x[i] - p.fx[j]) + (p.y[i] - p.fy[j]) * (p.y[i] - p.fy[j]);
            if (d < least) {
                least = d;
                p.assigned[i] = j;
            }
        }
    }
}

Work solved(const Problem& problem, int facilities) {
    Work p;
    p.n = problem.rowCount;
    p.m = facilities;
    p.k = problem.mapFactor;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(p.n); ++i) {
        const Point& point = problem.points(static_cast<int>(i));
        p.x[i] = point.x;
        p.y[i] = point.y;
        p.volume[i] = point.volume;
        p.weight[i] = point.volume * point.rate;
        p.assigned[i] = i - static_cast<std::size_t>(p.m) * ((i - 1) / static_cast<std::size_t>(p.m));
    }
    double best = 1E+35;
    while (true) {
        relocateAll(p);
        assignAll(p);
        if (p.total >= best) return p;
        best = p.total;
    }
}

void printLine(PlainPage& page, const Work& p, std::size_t j) {
    double volume = 0;
    bool any = false;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(p.n); ++i)
        if (p.assigned[i] == j) {
            volume += p.volume[i];
            any = true;
        }
    page.before(8, std::to_string(j));
    page.before(16, any ? figure(p.fx[j], 2) : " ------");
    page.before(26, any ? figure(p.fy[j], 2) : " ------");
    page.before(41, any ? figure(volume, 0) : "0");
    page.before(59, any ? figure(p.k * p.cost[j], 2) : ".00");
    page.end();
}

void printPoints(PlainPage& page, const Work& p, std::size_t j) {
    std::string numbers;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(p.n); ++i)
        if (p.assigned[i] == j) numbers += (numbers.empty() ? "" : ",") + std::to_string(i);
    page.before(8, std::to_string(j));
    page.at(11, numbers.substr(0, 57));
    page.end();
    for (std::size_t from = 57; from < numbers.size(); from += 57) {
        page.at(11, numbers.substr(from, 57));
        page.end();
    }
}

} // namespace

std::vector<std::string> plainReport(const Problem& problem, int facilities) {
    const Work p = solved(problem, facilities);
    PlainPage page;
    page.line(" MULTIPLE CENTER OF GRAVITY SOLUTION RESULTS");
    page.line("");
    page.line(" Problem label: " + problem.label);
    page.line("        X coor-   Y coor-");
    page.line(" Source  dinate    dinate         Volume              Cost");
    for (std::size_t j = 1; j <= static_cast<std::size_t>(p.m); ++j) printLine(page, p, j);
    page.line("  Total cost " + figure(p.total, 2));
    page.line("");
    page.line(" Source  Allocated demand points to source points");
    for (std::size_t j = 1; j <= static_cast<std::size_t>(p.m); ++j) printPoints(page, p, j);
    return page.lines;
}

} // namespace vantore::mcog::tests
