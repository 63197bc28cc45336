#include "tests/routing/ROUTESEQ/plain_sequencer.h"

#include <array>
#include <cmath>

namespace vantore::routeseq::tests {

namespace {

constexpr double huge = 9999999;
constexpr std::size_t places = 53;

/// All arrays are used from 1 on.
class PlainSequencer {
  public:
    explicit PlainSequencer(const StopSequencingProblem& problem)
        : n_(static_cast<std::size_t>(problem.stopCount) + 1) {
        x_[1] = static_cast<float>(problem.depotX);
        y_[1] = static_cast<float>(problem.depotY);
        for (std::size_t p = 2; p <= n_; ++p) {
            x_[p] = static_cast<float>(problem.stops(static_cast<int>(p) - 1).x);
            y_[p] = static_cast<float>(problem.stops(static_cast<int>(p) - 1).y);
        }
    }

    std::vector<int> run() {
        if (!wrap()) return {};
        measure();
        while (m_ < n_) {
            if (insert(true) || insert(false)) continue;
            return {};
        }
        while (seq_[1] != 1) {
            const std::size_t front = seq_[1];
            for (std::size_t k = 1; k < n_; ++k) seq_[k] = seq_[k + 1];
            seq_[n_] = front;
        }
        std::vector<int> stops;
        for (std::size_t k = 2; k <= n_; ++k) stops.push_back(static_cast<int>(seq_[k]) - 1);
        return stops;
    }

  private:
    double d(std::size_t i, std::size_t j) const {
        const double dx = double(x_[i]) - double(x_[j]);
        const double dy = double(y_[i]) - double(y_[j]);
        return std::sqrt(std::abs(dx * dx + dy * dy));
    }
    bool same(std::size_t i, std::size_t j) const { return x_[i] == x_[j] && y_[i] == y_[j]; }

    bool oneSided(std::size_t p, std::size_t q) const {
        double dx = double(x_[p]) - double(x_[q]);
        double dy = double(y_[p]) - double(y_[q]);
        if (std::abs(dx) < .0000001) dx = 0;
        if (std::abs(dy) < .0000001) dy = 0;
        bool belowMark = false;
        bool aboveMark = false;
        for (std::size_t r = 1; r <= n_; ++r) {
            if (same(r, p) || same(r, q)) continue;
            double e = 0;
            if (dx != 0) {
                const double slope = dy == 0 ? 0 : dy / dx;
                const double intercept =
                    dy == 0 ? double(y_[p])
                            : (double(y_[q]) * double(x_[p]) - double(y_[p]) * double(x_[q])) / dx;
                e = double(y_[r]) - (double(x_[r]) * slope + intercept);
            } else {
                e = double(x_[p]) - double(x_[r]);
            }
            if (std::abs(e) < .0000001) continue;
            if (e < 0)
                belowMark = true;
            else
                aboveMark = true;
            if (belowMark && aboveMark) return false;
        }
        return true;
    }

    bool wrap() {
        std::size_t start = 0;
        double minX = huge;
        double minY = huge;
        for (std::size_t c = 1; c <= n_; ++c)
            if (x_[c] < minX || (x_[c] == minX && y_[c] < minY)) {
                minX = x_[c];
                minY = y_[c];
                start = c;
            }
        if (start == 0) return false;
        seq_[1] = start;
        m_ = 1;
        for (std::size_t i = 1;; ++i) {
            const std::size_t current = seq_[i];
            const std::size_t previous = i == 1 ? 0 : seq_[i - 1];
            double best = huge;
            std::size_t next = 0;
            for (std::size_t c = 1; c <= n_; ++c) {
                if (c == current || c == previous || flag_[c]) continue;
                double distance = 0;
                if (!same(c, current)) {
                    distance = d(c, current);
                    if (!(distance < best)) continue;
                    if (!oneSided(current, c)) continue;
                }
                if (c == start) continue;
                best = distance;
                next = c;
            }
            if (next == 0 || i == n_) break;
            seq_[++m_] = next;
            flag_[next] = true;
        }
        flag_[start] = true;
        return true;
    }

    void measure() {
        length_ = d(seq_[m_], seq_[1]);
        for (std::size_t k = 1; k < m_; ++k) length_ += d(seq_[k], seq_[k + 1]);
    }

    bool beside(std::size_t a, std::size_t b, std::size_t k, std::size_t p) const {
        const double dx = double(x_[b]) - double(x_[a]);
        if (std::abs(dx) <= .00001)
            return (x_[k] <= x_[a] && x_[p] <= x_[a]) || (x_[k] >= x_[a] && x_[p] >= x_[a]);
        const double slope = (double(y_[b]) - double(y_[a])) / dx;
        const double intercept = (double(y_[a]) * double(x_[b]) - double(y_[b]) * double(x_[a])) / dx;
        const double lineK = slope * double(x_[k]) + intercept;
        const double lineP = slope * double(x_[p]) + intercept;
        return (y_[k] <= lineK && y_[p] <= lineP) || (y_[k] >= lineK && y_[p] >= lineP);
    }

    /// The sides are taken round the triangle: an almost upright one is where its first end is.
    bool triangleHoldsAPoint(std::size_t a, std::size_t b, std::size_t k) const {
        if (same(a, b) || same(b, k) || same(a, k)) return false;
        for (std::size_t p = 1; p <= n_; ++p) {
            if (p == a || p == b || p == k || same(p, a) || same(p, b) || same(p, k)) continue;
            if (beside(a, b, k, p) && beside(b, k, a, p) && beside(k, a, b, p)) return true;
        }
        return false;
    }

    bool insert(bool withContainment) {
        double bestLength = huge;
        double bestArea = huge;
        std::size_t bestPlace = 0;
        std::size_t bestPoint = 0;
        for (std::size_t i = 1; i <= m_; ++i) {
            const std::size_t a = i == 1 ? seq_[m_] : seq_[i - 1];
            const std::size_t b = seq_[i];
            for (std::size_t k = 1; k <= n_; ++k) {
                if (flag_[k]) continue;
                const double newLength = length_ - d(a, b) + d(a, k) + d(k, b);
                if (newLength > bestLength) continue;
                const double s = .5 * (d(a, b) + d(a, k) + d(k, b));
                const double area = std::sqrt(std::abs(s * (s - d(a, b)) * (s - d(a, k)) * (s - d(k, b))));
                if (newLength == bestLength && area >= bestArea) continue;
                if (withContainment && triangleHoldsAPoint(a, b, k)) continue;
                bestArea = newLength < bestLength ? huge : area;
                bestLength = newLength;
                bestPlace = i;
                bestPoint = k;
            }
        }
        if (bestPoint == 0) return false;
        length_ = bestLength;
        for (std::size_t k = m_; k >= bestPlace; --k) seq_[k + 1] = seq_[k];
        seq_[bestPlace] = bestPoint;
        flag_[bestPoint] = true;
        ++m_;
        return true;
    }

    std::size_t n_;
    std::size_t m_ = 0;
    double length_ = 0;
    std::array<float, places> x_{}, y_{};
    std::array<std::size_t, places> seq_{};
    std::array<bool, places> flag_{};
};

} // namespace

std::vector<int> plainSequence(const StopSequencingProblem& problem) {
    return PlainSequencer(problem).run();
}

} // namespace vantore::routeseq::tests
