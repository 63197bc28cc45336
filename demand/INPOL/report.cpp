#include "demand/INPOL/report.h"

#include <string>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::inpol {

namespace {

constexpr int valueColumn = 32;
constexpr const char* wholeMask = "#,###,###,##0";
constexpr const char* moneyMask = "$#,###,###,##0";
constexpr const char* productCostMask = "$#,###,###,##0#";

std::string whole(Number value, const char* mask) {
    return format(wholePart(value + .5), mask);
}

std::string percent(Number fraction, const char* mask) {
    return format(100 * fraction, mask);
}

void printValue(PrintLines& page, const char* label, const std::string& value) {
    page.text(label).right(valueColumn, value).endLine();
}

void printCosts(PrintLines& page, const AnnualCosts& costs, const char* mask) {
    printValue(page, " Purchase cost", whole(costs.purchase, mask));
    printValue(page, " Transport cost", whole(costs.transport, mask));
    printValue(page, " Carrying cost", whole(costs.carrying, mask));
    printValue(page, " Order proc. cost", whole(costs.orderProcessing, mask));
    printValue(page, " Out-of-stk cost", whole(costs.outOfStock, mask));
    printValue(page, " Safety stk cost", whole(costs.safetyStock, mask));
    printValue(page, "   Total cost", whole(costs.total(), mask));
}

void printReturns(PrintLines& page, double turnover, double investment, double inStock) {
    printValue(page, " Turnover ratio", whole(turnover, wholeMask));
    printValue(page, " Investment", whole(investment, moneyMask));
    page.text(" Demand in-stock").right(valueColumn, percent(inStock, "#,###,###.#0")).text("%").endLine();
    page.line("");
}

void printReorderPoint(PrintLines& page, const StockingPolicies& policies) {
    page.line("Reorder Point Policy");
    printValue(page, " Average inventory", whole(policies.ropAvgInv, wholeMask));
    printValue(page, " Order quantity", whole(policies.ropQ, wholeMask));
    printValue(page, " Reorder point", whole(policies.reorderPoint, wholeMask));
    printReturns(page, policies.ropTurnover, policies.ropInvestment, policies.ropInStock);
    page.line("Estimated annual costs for reorder point policy");
    printCosts(page, policies.ropCosts, productCostMask);
    page.line("");
}

void printPeriodicReview(PrintLines& page, const StockingPolicies& policies) {
    page.line("Periodic Review Policy");
    printValue(page, " Average inventory", whole(policies.prAvgInv, wholeMask));
    printValue(page, " Order quantity", whole(policies.prQ, wholeMask));
    printValue(page, " Max level", whole(policies.maxLevel, wholeMask));
    printValue(page, " Order review time", format(policies.reviewTime, "#,###,###.#0"));
    printReturns(page, policies.prTurnover, policies.prInvestment, policies.prInStock);
    page.line("Estimated annual costs for periodic review policy");
    printCosts(page, policies.prCosts, productCostMask);
}

void printTotals(PrintLines& page, const char* policy, const AnnualCosts& costs, double investment) {
    page.line(policy);
    printCosts(page, costs, moneyMask);
    printValue(page, " Total investment", whole(investment, moneyMask));
}

constexpr const char* levelMask = "####.#0";
constexpr const char* tableMask = "##,###,###,##0";

void printTableHeading(PrintLines& page, int tab, const char* title, int product) {
    page.line("").text("*").tab(tab).text(title).endLine();
    page.text("*Product ").text(format(product, "##0")).endLine();
}

/// One row; the two figures in the middle come as texts, the last two as whole numbers.
void printTableRow(PrintLines& page, int level, Number inStock, const std::string& third,
                   const std::string& fourth, Number averageInventory, Number total) {
    page.right(9, format(serviceLevel(level).probability, levelMask)).right(20, percent(inStock, levelMask));
    page.right(34, third).right(48, fourth);
    page.right(62, whole(averageInventory, tableMask)).right(76, whole(total, tableMask)).endLine();
}

void printReorderPointTable(PrintLines& page, const Sensitivity& sensitivity, int product) {
    printTableHeading(page, 14, "Sensitivity Analysis Results For Reorder Point System", product);
    page.line(" Service    Service       Reorder       Reorder       Average         Total");
    page.line("   index   level, %      quantity         point     inventory       cost, $");
    for (int level = 2; level <= serviceLevels; ++level) {
        const SensitivityRow& row = sensitivity.rows(product, level);
        printTableRow(page, level, row.ropInStock, whole(row.ropQ, tableMask),
                      whole(row.reorderPoint, tableMask), row.ropAvgInv, row.ropTotal);
    }
}

void printPeriodicReviewTable(PrintLines& page, const Sensitivity& sensitivity, int product,
                              const std::string& timeUnit) {
    printTableHeading(page, 13, "Sensitivity Analysis Results For Periodic Review System", product);
    page.line(" Service    Service           Max        Review       Average         Total");
    page.line("   index   level, %         level      time, " + timeUnit + "     inventory       cost, $");
    for (int level = 2; level <= serviceLevels; ++level) {
        const SensitivityRow& row = sensitivity.rows(product, level);
        printTableRow(page, level, row.prInStock, whole(row.maxLevel, tableMask),
                      format(row.reviewTime, "###,###,###.#0"), row.prAvgInv, row.prTotal);
    }
}

constexpr std::array<ColumnHeading, 4> demandHeadings = {{{"Average", "demand"},
                                                          {"Std. dev.", "of demand"},
                                                          {"Average", "lead time"},
                                                          {"Std. dev.", "of lead time"}}};
constexpr std::array<ColumnHeading, 5> priceHeadings = {{{"Unit", "price"},
                                                         {"Transport", "rate"},
                                                         {"Carrying", "cost"},
                                                         {"Order", "proc. cost"},
                                                         {"Out-of-", "stock cost"}}};
constexpr std::array<ColumnHeading, 3> miscHeadings = {
    {{"Avg. initial", "inventory"}, {"Order", "quantity"}, {"Service", "index"}}};

struct PrintedTable {
    const char* title;
    std::array<const char*, 5> masks;
};

/// Titles and masks in the order of `productTables`.
constexpr std::array<PrintedTable, 3> printedTables = {
    {{"DEMAND/LEAD TIME DATA", {"##,###,##0", "##,###.#0", "#,###.##0", "#,###.##0"}},
     {"PRICE/COST DATA", {"#,###.#0", "#,###.#0", "#,###.#0", "#,###.#0", "#,###.#0"}},
     {"MISCELLANEOUS DATA", {"##,###,##0", "##,###,##0", "#,###.#0"}}}};

constexpr int labelColumn = 6;
constexpr std::size_t lastValueColumn = 76;

/// Where the values of a column end, so that the last column ends at the same place in all tables.
double valueEnd(std::size_t column, std::size_t columns) {
    const std::size_t width = columns > 4 ? 11 : 13;
    return static_cast<double>(lastValueColumn - width * (columns - 1 - column));
}

void printHeadings(PrintLines& page, const TableHeading& heading) {
    const auto values = heading.values;
    page.text(heading.number.upper);
    for (std::size_t k = 0; k < values.size(); ++k) page.right(valueEnd(k, values.size()), values[k].upper);
    page.endLine().text(heading.number.lower).tab(labelColumn).text("Product label");
    for (std::size_t k = 0; k < values.size(); ++k) page.right(valueEnd(k, values.size()), values[k].lower);
    page.endLine();
}

void printTable(PrintLines& page, const Problem& problem, std::size_t which) {
    const ProductTable& table = productTables.at(which);
    const PrintedTable& printed = printedTables.at(which);
    page.line("").line(printed.title);
    printHeadings(page, tableHeadings().at(which));
    for (int i = 1; i <= problem.productCount; ++i) {
        const Product& product = problem.products(i);
        page.right(4, format(i, "##0")).tab(labelColumn).text(product.*table.label());
        for (std::size_t k = 0; k < table.valueCount(); ++k)
            page.right(valueEnd(k, table.valueCount()), format(product.*table.value(k), printed.masks.at(k)));
        page.endLine();
    }
}

} // namespace

void printProduct(PrintLines& page, int product, const StockingPolicies& policies, bool jointlyOrdered) {
    if (product == 1) page.text("*").tab(27).text("COMPUTED STOCKING POLICIES").endLine();
    page.line("").text("* Product ").text(format(product, "#0")).endLine();
    if (!jointlyOrdered) printReorderPoint(page, policies);
    printPeriodicReview(page, policies);
}

void printSummary(PrintLines& page, const Summary& summary, bool jointlyOrdered) {
    page.line("").text("*").tab(34).text("SUMMARY DATA").endLine();
    if (!jointlyOrdered) {
        printTotals(page, "Reorder point policy", summary.ropCosts, summary.ropInvestment);
        page.line("");
    }
    printTotals(page, "Periodic review policy", summary.prCosts, summary.prInvestment);
}

void printSensitivity(PrintLines& page, const Sensitivity& sensitivity, const std::string& timeUnit) {
    for (int product = 1; product <= sensitivity.productCount; ++product) {
        if (!sensitivity.jointlyOrdered) printReorderPointTable(page, sensitivity, product);
        printPeriodicReviewTable(page, sensitivity, product, timeUnit);
    }
}

const std::array<TableHeading, 3>& tableHeadings() {
    static const std::array<TableHeading, 3> headings = {
        {{{"Prd", "no."}, demandHeadings}, {{"Prd", "no."}, priceHeadings}, {{"Prd.", "no."}, miscHeadings}}};
    return headings;
}

void printTables(PrintLines& page, const Problem& problem) {
    for (std::size_t which = 0; which < productTables.size(); ++which) printTable(page, problem, which);
}

} // namespace vantore::inpol
