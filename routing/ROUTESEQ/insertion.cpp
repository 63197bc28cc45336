#include "routing/ROUTESEQ/insertion.h"

#include <bitset>
#include <cmath>

namespace vantore::routeseq {

namespace {

constexpr double leastRun = .00001; // of a line that counts as sloped

/// True when both points are at or below the bound, or both at or above it.
bool onOneSide(double a, double boundOfA, double b, double boundOfB) {
    return (a <= boundOfA && b <= boundOfB) || (a >= boundOfA && b >= boundOfB);
}

/// True when k and p lie on the same side of the line through a and b, or on it.
bool onSameSide(const Point& a, const Point& b, const Point& k, const Point& p) {
    const double dx = b.x - a.x;
    if (std::abs(dx) <= leastRun) return onOneSide(k.x, a.x, p.x, a.x);
    const double slope = (b.y - a.y) / dx;
    const double intercept = (a.y * b.x - b.y * a.x) / dx;
    return onOneSide(k.y, slope * k.x + intercept, p.y, slope * p.x + intercept);
}

bool inTriangle(const Point& a, const Point& b, const Point& c, const Point& p) {
    return onSameSide(a, b, c, p) && onSameSide(b, c, a, p) && onSameSide(c, a, b, p);
}

/// By Heron's formula from the sides.
double triangleArea(double a, double b, double c) {
    const double s = .5 * (a + b + c);
    return std::sqrt(std::abs(s * (s - a) * (s - b) * (s - c)));
}

/// A point put between two neighbours of the tour.
struct Insertion {
    double length = beyondAll; ///< of the tour with it
    double area = beyondAll;
    std::size_t place = 0;
    int point = 0;
};

class GrowingTour {
  public:
    GrowingTour(const Points& points, std::vector<int> tour) : points_(points), tour_(std::move(tour)) {
        for (std::size_t i = 0; i < tour_.size(); ++i) {
            onTour_.set(static_cast<std::size_t>(tour_[i]));
            length_ += points_.distance(before(i), tour_[i]);
        }
    }

    bool complete() const { return static_cast<int>(tour_.size()) == points_.count(); }
    const std::vector<int>& tour() const { return tour_; }

    void insertBest() {
        Insertion best = bestInsertion(true);
        if (best.point == 0) best = bestInsertion(false);
        checkIndex(best.point, 1, points_.count());
        length_ = best.length;
        tour_.insert(tour_.begin() + static_cast<std::ptrdiff_t>(best.place), best.point);
        onTour_.set(static_cast<std::size_t>(best.point));
    }

  private:
    int before(std::size_t place) const { return place == 0 ? tour_.back() : tour_[place - 1]; }

    Insertion bestInsertion(bool emptyTriangles) const {
        Insertion best;
        for (std::size_t place = 0; place < tour_.size(); ++place)
            for (int k = 1; k <= points_.count(); ++k)
                if (!onTour_.test(static_cast<std::size_t>(k))) consider(place, k, emptyTriangles, best);
        return best;
    }

    void consider(std::size_t place, int k, bool emptyTriangles, Insertion& best) const {
        const int a = before(place);
        const int b = tour_[place];
        const double ab = points_.distance(a, b);
        const double ak = points_.distance(a, k);
        const double kb = points_.distance(k, b);
        const double length = length_ - ab + ak + kb;
        if (length > best.length) return;
        const bool shorter = length < best.length;
        const double area = triangleArea(ab, ak, kb);
        if (!shorter && area >= best.area) return;
        if (emptyTriangles && holdsAnother(a, b, k)) return;
        best = {length, shorter ? beyondAll : area, place, k};
    }

    bool holdsAnother(int a, int b, int k) const {
        if (points_.coincide(a, b) || points_.coincide(b, k) || points_.coincide(k, a)) return false;
        for (int p = 1; p <= points_.count(); ++p) {
            if (points_.coincide(p, a) || points_.coincide(p, b) || points_.coincide(p, k)) continue;
            if (inTriangle(points_(a), points_(b), points_(k), points_(p))) return true;
        }
        return false;
    }

    const Points& points_;
    std::vector<int> tour_;
    std::bitset<mostPoints + 1> onTour_;
    double length_ = 0;
};

} // namespace

std::vector<int> tourThroughAll(const Points& points, std::vector<int> tour) {
    GrowingTour growing(points, std::move(tour));
    while (!growing.complete()) growing.insertBest();
    return growing.tour();
}

} // namespace vantore::routeseq
