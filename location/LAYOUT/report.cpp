#include "location/LAYOUT/report.h"

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::layout {

namespace {

constexpr int pageWidth = 80; // characters
constexpr std::size_t labelCharacters = 15;

void printTitle(PrintLines& page, Rule rule) {
    if (rule == Rule::Popularity) {
        page.line(" LAYOUT BY ITEM POPULARITY");
        return;
    }
    const std::string title = rule == Rule::Size ? "LAYOUT BY ITEM SIZE" : "LAYOUT BY CUBE-PER-ORDER INDEX";
    page.tab((pageWidth - static_cast<double>(length(title))) / 2).text(title).endLine();
}

void printHeading(PrintLines& page, Rule rule) {
    page.line("                                       Item      Item                 Required");
    if (rule == Rule::CubePerOrder) {
        page.line("                         No. of      sales,      size,   Cube-per-      space,");
        page.line("Rank Product name    orders/yr.       units    cu. ft. order index     cu. ft.");
    } else {
        page.line("                         No. of      sales,      size,  Inventory       space,");
        page.line("Rank Product name    orders/yr.       units    cu. ft.      turns      cu. ft.");
    }
}

void printProduct(PrintLines& page, Rule rule, int rank, const RankedProduct& ranked) {
    const Product& product = ranked.product;
    page.right(5, format(rank, "###0")).tab(6);
    page.text(rule == Rule::Popularity ? left(product.label, labelCharacters) : product.label);
    page.right(32, format(product.orders, "###,###,##0"));
    page.right(44, format(product.sales, "###,###,##0"));
    page.right(55, format(product.size, "###,###.#0"));
    if (rule == Rule::CubePerOrder) {
        page.right(67, format(ranked.cubePerOrder, "###,###,##0"));
    } else {
        page.right(66, format(product.turns, "###,###.#0"));
    }
    page.right(79, format(ranked.space, "###,###,##0")).endLine();
}

} // namespace

PrintLines reportOn(Rule rule, const std::vector<RankedProduct>& ranked) {
    PrintLines page;
    printTitle(page, rule);
    printHeading(page, rule);
    int rank = 0;
    for (const RankedProduct& product : ranked) printProduct(page, rule, ++rank, product);
    return page;
}

PrintLines dataPage(const Problem& problem, const std::string& rule) {
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line("Layout by: " + rule);
    page.line("Layout data:");
    page.line("                 Item sales  Item size,   Inventory         No. of");
    page.line("Product label     units/yr.     cu. ft.       turns     orders/yr.");
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Product& product = problem.products(i);
        page.text(product.label);
        page.right(28, format(product.sales, "###,###,##0"));
        page.right(40, format(product.size, "###,###.#0"));
        page.right(52, format(product.turns, "###,###.#0"));
        page.right(67, format(product.orders, "###,###,##0")).endLine();
    }
    return page;
}

} // namespace vantore::layout
