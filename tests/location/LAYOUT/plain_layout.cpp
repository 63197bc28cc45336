#include "tests/location/LAYOUT/plain_layout.h"

#include <array>
#include <utility>

#include "tests/location/plain_page.h"

namespace vantore::layout::tests {

namespace {

using vantore::tests::figure;
using vantore::tests::PlainPage;

constexpr int most = mostProducts + 1;

struct Rows {
    int count = 0;
    int method = 0;
    std::vector<std::string> label = std::vector<std::string>(most);
    std::array<double, most> sales{}, size{}, turns{}, orders{}, index{};
};

Rows rowsOf(const Problem& problem) {
    Rows rows;
    rows.count = problem.rowCount;
    rows.method = static_cast<int>(problem.rule);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(rows.count); ++i) {
        const Product& product = problem.products(static_cast<int>(i));
        rows.label[i] = product.label;
        rows.sales[i] = product.sales;
        rows.size[i] = product.size;
        rows.turns[i] = product.turns;
        rows.orders[i] = product.orders;
        if (rows.method == 3)
            rows.index[i] = (product.size * product.sales / product.turns * 365) / product.orders;
    }
    return rows;
}

bool inPlace(const Rows& rows, std::size_t j) {
    if (rows.method == 1) return rows.orders[j] <= rows.orders[j - 1];
    if (rows.method == 2) return rows.size[j] >= rows.size[j - 1];
    return rows.index[j] >= rows.index[j - 1];
}

void sortRows(Rows& rows) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(rows.count); ++i)
        for (std::size_t j = i; j >= 2 && !inPlace(rows, j); --j) {
            std::swap(rows.label[j], rows.label[j - 1]);
            std::swap(rows.sales[j], rows.sales[j - 1]);
            std::swap(rows.size[j], rows.size[j - 1]);
            std::swap(rows.turns[j], rows.turns[j - 1]);
            std::swap(rows.orders[j], rows.orders[j - 1]);
            std::swap(rows.index[j], rows.index[j - 1]);
        }
}

void printHeading(PlainPage& page, int method) {
    if (method == 1) page.line(" LAYOUT BY ITEM POPULARITY");
    if (method == 2) page.line(std::string(29, ' ') + "LAYOUT BY ITEM SIZE");
    if (method == 3) page.line(std::string(24, ' ') + "LAYOUT BY CUBE-PER-ORDER INDEX");
    page.line("                                       Item      Item                 Required");
    page.line(method == 3 ? "                         No. of      sales,      size,   Cube-per-      space,"
                          : "                         No. of      sales,      size,  Inventory       space,");
    page.line(method == 3 ? "Rank Product name    orders/yr.       units    cu. ft. order index     cu. ft."
                          : "Rank Product name    orders/yr.       units    cu. ft.      turns      cu. ft.");
}

} // namespace

std::vector<std::string> plainReport(const Problem& problem) {
    Rows rows = rowsOf(problem);
    sortRows(rows);
    PlainPage page;
    printHeading(page, rows.method);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(rows.count); ++i) {
        page.before(5, std::to_string(i));
        page.at(6, rows.method == 1 ? rows.label[i].substr(0, 15) : rows.label[i]);
        page.before(32, figure(rows.orders[i], 0));
        page.before(44, figure(rows.sales[i], 0));
        page.before(55, figure(rows.size[i], 2));
        if (rows.method == 3) page.before(67, figure(rows.index[i], 0));
        if (rows.method != 3) page.before(66, figure(rows.turns[i], 2));
        page.before(79, figure(rows.sales[i] * rows.size[i] / rows.turns[i], 0));
        page.end();
    }
    return page.lines;
}

} // namespace vantore::layout::tests
