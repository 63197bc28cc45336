#include "tests/mathprog/TRANLP/plain_labelling.h"

#include <algorithm>
#include <optional>

namespace vantore::tests {

namespace {

using tranlp::CellTable;
using tranlp::PlaceTable;
using tranlp::toUnits;

constexpr int root = 1000;

struct Breakthrough {
    int row, col;
};

class PlainLabelling {
  public:
    PlainLabelling(tranlp::Tableau& tableau, int chainLimit, const tranlp::AugmentationWatch& watch)
        : M(tableau.rows), N(tableau.cols), L(chainLimit), unitsLeft(tableau.unitsLeft),
          needLeft(tableau.needLeft), reduced(tableau.reduced), alloc(tableau.alloc), watch_(watch) {}

    void run() {
        reduceRows();
        reduceColumns();
        allocate();
        while (startLabels()) {
            const std::optional<Breakthrough> reached = spreadLabels();
            if (reached)
                augment(*reached);
            else if (!changeDuals())
                return;
        }
    }

  private:
    void reduceRows() {
        for (int i = 1; i <= M && N > 0; ++i) {
            double least = reduced(i, 1);
            for (int j = 2; j <= N; ++j)
                if (reduced(i, j) < least) least = reduced(i, j);
            for (int j = 1; j <= N; ++j) reduced(i, j) -= least;
        }
    }

    void reduceColumns() {
        for (int j = 1; j <= N && M > 0; ++j) {
            double least = reduced(1, j);
            for (int i = 2; i <= M; ++i)
                if (reduced(i, j) < least) least = reduced(i, j);
            for (int i = 1; i <= M; ++i) reduced(i, j) -= least;
        }
    }

    void allocate() {
        for (int i = 1; i <= M; ++i)
            for (int j = 1; j <= N; ++j) {
                alloc(i, j) = 0;
                if (reduced(i, j) > 0) continue;
                alloc(i, j) = std::min(unitsLeft(i), needLeft(j));
                unitsLeft(i) = toUnits(std::int64_t{unitsLeft(i)} - alloc(i, j));
                needLeft(j) = toUnits(std::int64_t{needLeft(j)} - alloc(i, j));
            }
    }

    bool startLabels() {
        rowFlow.fill(0);
        rowLabel.fill(0);
        colFlow.fill(0);
        colLabel.fill(0);
        bool supplyRemains = false;
        for (int i = 1; i <= M; ++i)
            if (unitsLeft(i) > 0) {
                rowFlow(i) = unitsLeft(i);
                rowLabel(i) = -root;
                supplyRemains = true;
            }
        return supplyRemains;
    }

    std::optional<Breakthrough> spreadLabels() {
        bool scanned = true;
        while (scanned) {
            scanned = false;
            for (int i = 1; i <= M; ++i) {
                if (rowLabel(i) >= 0) continue;
                rowLabel(i) = -rowLabel(i);
                scanned = true;
                for (int j = 1; j <= N; ++j)
                    if (reduced(i, j) == 0 && colFlow(j) == 0) {
                        colFlow(j) = rowFlow(i);
                        colLabel(j) = -i;
                        if (needLeft(j) > 0) return Breakthrough{i, j};
                    }
            }
            for (int j = 1; j <= N; ++j) {
                if (colLabel(j) >= 0) continue;
                colLabel(j) = -colLabel(j);
                scanned = true;
                for (int i = 1; i <= M; ++i)
                    if (reduced(i, j) == 0 && alloc(i, j) > 0 && rowFlow(i) == 0) {
                        rowFlow(i) = std::min(alloc(i, j), colFlow(j));
                        rowLabel(i) = -j;
                    }
            }
        }
        return std::nullopt;
    }

    void augment(Breakthrough reached) {
        int j = reached.col;
        int r = reached.row;
        colLabel(j) = r;
        const std::int32_t A = std::min(needLeft(j), colFlow(j));
        if (watch_) watch_(r, j, A);
        needLeft(j) -= A;
        for (int link = 0; link < L; ++link) {
            r = colLabel(j);
            alloc(r, j) = toUnits(std::int64_t{alloc(r, j)} + A);
            const int next = rowLabel(r);
            if (next >= root) break;
            alloc(r, next) -= A;
            j = next;
        }
        unitsLeft(r) -= A;
    }

    std::optional<double> smallestReachable() const {
        std::optional<double> delta;
        for (int i = 1; i <= M; ++i)
            for (int j = 1; j <= N; ++j)
                if (rowLabel(i) > 0 && colLabel(j) < 1 && (!delta || reduced(i, j) < *delta))
                    delta = reduced(i, j);
        return delta;
    }

    bool changeDuals() {
        const std::optional<double> delta = smallestReachable();
        if (!delta) return false;
        for (int i = 1; i <= M; ++i)
            if (rowLabel(i) > 0)
                for (int j = 1; j <= N; ++j) reduced(i, j) -= *delta;
        for (int j = 1; j <= N; ++j)
            if (colLabel(j) > 0)
                for (int i = 1; i <= M; ++i) reduced(i, j) += *delta;
        return true;
    }

    const int M, N, L;
    PlaceTable<std::int32_t>& unitsLeft;
    PlaceTable<std::int32_t>& needLeft;
    CellTable<double>& reduced;
    CellTable<std::int32_t>& alloc;
    PlaceTable<std::int32_t> rowFlow, colFlow;
    PlaceTable<int> rowLabel, colLabel;
    const tranlp::AugmentationWatch& watch_;
};

} // namespace

void labelPlainly(tranlp::Tableau& tableau, int chainLimit, const tranlp::AugmentationWatch& watch) {
    PlainLabelling(tableau, chainLimit, watch).run();
}

} // namespace vantore::tests
