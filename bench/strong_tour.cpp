#include "bench/strong_tour.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

namespace vantore::routeseq {

namespace {

constexpr double leastGain = 1E-9; // what is less may be rounding

/// A tour that is made shorter step by step.
class ImprovedTour {
  public:
    ImprovedTour(const Points& points, std::vector<int> tour) : points_(points), tour_(std::move(tour)) {
        while (turnAPart() || moveAPart()) {
        }
    }

    double length() const { return tourLength(points_, tour_); }

  private:
    std::size_t size() const { return tour_.size(); }
    double step(std::size_t a, std::size_t b) const {
        return points_.distance(tour_[a % size()], tour_[b % size()]);
    }

    bool turnAPart() {
        for (std::size_t i = 0; i + 1 < size(); ++i)
            for (std::size_t j = i + 1; j < size(); ++j) {
                const double gain = step(i, i + 1) + step(j, j + 1) - step(i, j) - step(i + 1, j + 1);
                if (gain <= leastGain) continue;
                std::reverse(tour_.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                             tour_.begin() + static_cast<std::ptrdiff_t>(j) + 1);
                return true;
            }
        return false;
    }

    /// Takes one to three neighbours out and puts them, either way round, between two others.
    bool moveAPart() {
        for (std::size_t from = 0; from < size(); ++from) {
            for (std::size_t count = 1; count <= 3 && count + 2 < size(); ++count) {
                std::rotate(tour_.begin(), tour_.begin() + 1, tour_.end());
                if (moveFront(count)) return true;
                std::rotate(tour_.begin(), tour_.end() - 1, tour_.end());
            }
            std::rotate(tour_.begin(), tour_.begin() + 1, tour_.end());
        }
        return false;
    }

    bool moveFront(std::size_t count) {
        const double closed = step(size() - 1, 0) + step(count - 1, count) - step(size() - 1, count);
        for (std::size_t after = count; after + 1 < size(); ++after) {
            const double along = step(after, 0) + step(count - 1, after + 1) - step(after, after + 1);
            const double turned = step(after, count - 1) + step(0, after + 1) - step(after, after + 1);
            if (closed - std::min(along, turned) <= leastGain) continue;
            if (turned < along)
                std::reverse(tour_.begin(), tour_.begin() + static_cast<std::ptrdiff_t>(count));
            std::rotate(tour_.begin(), tour_.begin() + static_cast<std::ptrdiff_t>(count),
                        tour_.begin() + static_cast<std::ptrdiff_t>(after) + 1);
            return true;
        }
        return false;
    }

    const Points& points_;
    std::vector<int> tour_;
};

} // namespace

double tourLength(const Points& points, const std::vector<int>& tour) {
    double length = points.distance(tour.back(), tour.front());
    for (std::size_t i = 1; i < tour.size(); ++i) length += points.distance(tour[i - 1], tour[i]);
    return length;
}

double shortestTour(const Points& points) {
    const auto others = static_cast<std::size_t>(points.count() - 1);
    const std::size_t sets = std::size_t{1} << others;
    const double unreached = std::numeric_limits<double>::max();
    // The shortest way from point 1 through a set of others that ends at `last`.
    std::vector<double> shortest(sets * others, unreached);
    const auto point = [](std::size_t other) { return static_cast<int>(other) + 2; };
    for (std::size_t k = 0; k < others; ++k)
        shortest[(std::size_t{1} << k) * others + k] = points.distance(1, point(k));
    for (std::size_t set = 1; set < sets; ++set)
        for (std::size_t last = 0; last < others; ++last) {
            const double way = shortest[set * others + last];
            if (way == unreached) continue;
            for (std::size_t next = 0; next < others; ++next) {
                if ((set >> next & 1) != 0) continue;
                double& longer = shortest[(set | std::size_t{1} << next) * others + next];
                longer = std::min(longer, way + points.distance(point(last), point(next)));
            }
        }
    double best = unreached;
    for (std::size_t last = 0; last < others; ++last)
        best = std::min(best, shortest[(sets - 1) * others + last] + points.distance(point(last), 1));
    return best;
}

double strongTour(const Points& points, int starts) {
    std::mt19937 random(1);
    std::vector<int> tour(static_cast<std::size_t>(points.count()));
    std::iota(tour.begin(), tour.end(), 1);
    double best = std::numeric_limits<double>::max();
    for (int start = 0; start < starts; ++start) {
        std::shuffle(tour.begin(), tour.end(), random);
        best = std::min(best, ImprovedTour(points, tour).length());
    }
    return best;
}

} // namespace vantore::routeseq
