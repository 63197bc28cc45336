#include "solvers/WARELO/report.h"

#include <algorithm>
#include <array>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::warelo {

namespace {

constexpr const char* title = " EVALUATION OF THE LATHERN SOAP COMPANY'S NETWORK";
constexpr std::size_t locationCharacters = 20;
constexpr std::size_t pageCharacters = 78;

struct KindName {
    CostKind kind;
    const char* name;
};

constexpr std::array<KindName, costKinds> kindNames = {
    {{CostKind::Production, "Production"},
     {CostKind::PlantWarehouse, "Plant-warehouse transportation"},
     {CostKind::WarehouseCustomer, "Warehouse-customer transportation"},
     {CostKind::LocalDelivery, "Local delivery"},
     {CostKind::Handling, "Handling"},
     {CostKind::StockOrders, "Stock order processing"},
     {CostKind::CustomerOrders, "Customer order processing"},
     {CostKind::Storage, "Storage"},
     {CostKind::Capital, "Capital tied up in inventory"}}};

std::string whole(double amount) {
    return format(amount, "###,###,###,##0");
}

std::string percent(double share) {
    return format(100 * share, "##0.0");
}

double shareOf(double part, double all) {
    return all > 0 ? part / all : 0;
}

double salesOf(const Case& problem, const Plan& plan) {
    double sales = 0;
    for (const Plan::ServedCustomer& served : plan.customers) sales += problem.customers(served.row).sales;
    return sales;
}

void printText(PrintLines& page, const std::string& text) {
    for (const std::string& line : wrapped(text, pageCharacters)) page.line(" " + line);
}

/// A row's number and its location, which begin the rows of the tables.
void printHead(PrintLines& page, int row, const std::string& location) {
    page.right(5, whole(row)).tab(6).text(left(location, locationCharacters));
}

void printSize(PrintLines& page, const Case& problem, const Plan& plan, double sales) {
    int plantsSelected = 0, plantsUsed = 0, warehousesSelected = 0;
    for (int p = 1; p <= problem.plantCount; ++p) {
        if (problem.plants(p).selected()) ++plantsSelected;
        if (plan.output(p) > 0) ++plantsUsed;
    }
    for (int w = 1; w <= problem.warehouseCount; ++w)
        if (problem.warehouses(w).selected()) ++warehousesSelected;
    const auto line = [&](const char* caption, double count, const std::string& more) {
        page.text(" ").text(caption).right(34, whole(count)).text(more).endLine();
    };
    page.line("");
    line("Plants selected", plantsSelected, ", used " + whole(plantsUsed));
    line("Warehouses selected", warehousesSelected,
         ", used " + whole(static_cast<double>(plan.warehouses.size())));
    line("Customers served", static_cast<double>(plan.customers.size()), "");
    line("Sales, cwt./yr.", sales, "");
}

void printCosts(PrintLines& page, const Costs& costs, double sales) {
    const double total = costs.total();
    const auto line = [&](const char* name, double cost) {
        page.text(" ").text(name).right(53, whole(cost)).right(67, format(shareOf(cost, sales), "##,##0.00"));
        page.right(75, percent(shareOf(cost, total))).endLine();
    };
    page.line("").line(" COST OF THE NETWORK");
    page.text(" Kind of cost").right(53, "$/yr.").right(67, "$/cwt.").right(75, "%").endLine();
    for (const KindName& kind : kindNames) line(kind.name, costs(kind.kind));
    line("Total", total);
}

void printProof(PrintLines& page, const Proof& proof, double total) {
    page.line("");
    const double bound = std::min(proof.bound, total);
    printText(page, "No allocation of the customers to these plants and warehouses costs less than $" +
                        whole(wholePart(bound)) + " a year, so that at most " +
                        format(100 * shareOf(total - bound, total), "##0.000") + " % could be saved.");
    if (!proof.halt.empty()) printText(page, proof.halt);
}

void printService(PrintLines& page, const Case& problem, const Plan& plan, double sales) {
    double withinSales = 0, salesMiles = 0;
    int within = 0;
    const Plan::ServedCustomer* farthest = &plan.customers.front();
    for (const Plan::ServedCustomer& served : plan.customers) {
        const double amount = problem.customers(served.row).sales;
        salesMiles += amount * served.miles;
        if (served.miles > farthest->miles) farthest = &served;
        if (served.miles > problem.desiredDistance) continue;
        withinSales += amount;
        ++within;
    }
    const auto line = [&](const char* caption, const std::string& text, const std::string& more) {
        page.text(" ").text(caption).right(53, text).text(more).endLine();
    };
    page.line("").line(" CUSTOMER SERVICE");
    line("Desired distance from the warehouse, miles", defaultText(problem.desiredDistance), "");
    line("Sales within it, cwt./yr.", whole(withinSales), "  " + percent(shareOf(withinSales, sales)) + " %");
    line("Customers within it", whole(within), "  of " + whole(static_cast<double>(plan.customers.size())));
    line("Average distance of the sales, miles", format(shareOf(salesMiles, sales), "###,##0.0"), "");
    line("Longest distance, miles", format(farthest->miles, "###,##0.0"), "");
    page.line("   " + problem.customers(farthest->row).location + ", served from " +
              problem.warehouses(farthest->warehouse).location);
}

void printPlants(PrintLines& page, const Case& problem, const Plan& plan) {
    page.line("").line(" PLANTS SELECTED");
    page.text(" No. Plant").right(42, "Capacity").right(54, "Production").right(62, "Used");
    page.right(75, "Production").endLine();
    page.right(42, "cwt./yr.").right(54, "cwt./yr.").right(62, "%").right(75, "cost, $/yr.").endLine();
    for (int p = 1; p <= problem.plantCount; ++p) {
        const Plant& plant = problem.plants(p);
        if (!plant.selected()) continue;
        const double output = plan.output(p);
        printHead(page, p, plant.location);
        page.right(42, whole(plant.capacity)).right(54, whole(output));
        page.right(62, percent(shareOf(output, plant.capacity)));
        page.right(75, whole(output * plant.productionCost)).endLine();
    }
}

std::string sourcesOf(const Case& problem, const Plan& plan, const Plan::OpenWarehouse& open) {
    std::string sources;
    for (const int plant : open.plants) {
        if (!sources.empty()) sources += "; ";
        sources += problem.plants(plant).location;
        if (open.plants.size() > 1) sources += " " + whole(plan.shipped(plant, open.row));
    }
    return sources;
}

void printThroughputs(PrintLines& page, const Case& problem, const Plan& plan) {
    constexpr double sourcesColumn = 56;
    constexpr std::size_t sourcesCharacters = 24;
    page.line("").line(" WAREHOUSES USED");
    page.text(" No. Warehouse").right(37, "Throughput").right(44, "Custo-").right(54, "Inventory").endLine();
    page.right(37, "cwt./yr.").right(44, "mers").right(54, "cwt.").tab(sourcesColumn);
    page.text("Supplied from (cwt./yr.)").endLine();
    for (const Plan::OpenWarehouse& open : plan.warehouses) {
        printHead(page, open.row, problem.warehouses(open.row).location);
        page.right(37, whole(open.throughput)).right(44, whole(open.customers));
        page.right(54, whole(inventory(problem, open.throughput)));
        for (const std::string& line : wrapped(sourcesOf(problem, plan, open), sourcesCharacters))
            page.tab(sourcesColumn).text(line).endLine();
    }
}

/// A table of costs by warehouse: its columns, each with the kinds that it adds up.
struct CostColumn {
    const char* first;
    const char* second;
    std::vector<CostKind> kinds;
};

void printWarehouseCosts(PrintLines& page, const Case& problem, const Plan& plan, const char* heading,
                         const std::vector<CostColumn>& columns) {
    constexpr double firstEnd = 39;
    constexpr double step = 13;
    page.line("").line(heading);
    page.text(" No. Warehouse");
    double end = firstEnd;
    for (const CostColumn& column : columns) page.right(end, column.first), end += step;
    page.endLine();
    end = firstEnd;
    for (const CostColumn& column : columns) page.right(end, column.second), end += step;
    page.endLine();
    for (const Plan::OpenWarehouse& open : plan.warehouses) {
        printHead(page, open.row, problem.warehouses(open.row).location);
        end = firstEnd;
        for (const CostColumn& column : columns) {
            double cost = 0;
            for (const CostKind kind : column.kinds) cost += open.costs(kind);
            page.right(end, whole(cost));
            end += step;
        }
        page.endLine();
    }
}

void printIdle(PrintLines& page, const Case& problem, const Plan& plan) {
    std::string idle;
    for (int w = 1; w <= problem.warehouseCount; ++w) {
        const bool used = std::ranges::any_of(plan.warehouses,
                                              [w](const Plan::OpenWarehouse& open) { return open.row == w; });
        if (!problem.warehouses(w).selected() || used) continue;
        idle += (idle.empty() ? "" : "; ") + problem.warehouses(w).location;
    }
    if (idle.empty()) return;
    page.line("");
    printText(page, "Selected, but not used because the others serve its customers at less cost: " + idle);
}

void printFarCustomers(PrintLines& page, const Case& problem, const Plan& plan) {
    page.line("").line(" CUSTOMERS SERVED FROM BEYOND THE DESIRED DISTANCE");
    bool any = false;
    for (const Plan::ServedCustomer& served : plan.customers) {
        if (served.miles <= problem.desiredDistance) continue;
        if (!any) page.text(" No. Customer").right(38, "Sales, cwt.").tab(41).text("Served from");
        if (!any) page.right(72, "Miles").endLine();
        any = true;
        const Customer& customer = problem.customers(served.row);
        printHead(page, served.row, customer.location);
        page.right(38, whole(customer.sales)).tab(41);
        page.text(left(problem.warehouses(served.warehouse).location, locationCharacters));
        page.right(72, format(served.miles, "##,##0.0")).endLine();
    }
    if (!any) page.line(" None.");
}

} // namespace

PrintLines report(const Case& problem, const Plan& plan, const Proof& proof) {
    PrintLines page;
    page.line(title);
    const double sales = salesOf(problem, plan);
    const Costs costs = plan.costs();
    printSize(page, problem, plan, sales);
    printCosts(page, costs, sales);
    printProof(page, proof, costs.total());
    printService(page, problem, plan, sales);
    printPlants(page, problem, plan);
    printThroughputs(page, problem, plan);
    printIdle(page, problem, plan);
    printWarehouseCosts(page, problem, plan, " COSTS BY WAREHOUSE: GOODS AND TRANSPORTATION, $/yr.",
                        {{"", "Production", {CostKind::Production}},
                         {"Transport", "from plants", {CostKind::PlantWarehouse}},
                         {"Transport", "to customers", {CostKind::WarehouseCustomer}},
                         {"Local", "delivery", {CostKind::LocalDelivery}}});
    printWarehouseCosts(page, problem, plan, " COSTS BY WAREHOUSE: HANDLING, ORDERS AND INVENTORY, $/yr.",
                        {{"", "Handling", {CostKind::Handling}},
                         {"Stock and", "cust. orders", {CostKind::StockOrders, CostKind::CustomerOrders}},
                         {"Storage", "and capital", {CostKind::Storage, CostKind::Capital}},
                         {"All costs,",
                          "both tables",
                          {CostKind::Production, CostKind::PlantWarehouse, CostKind::WarehouseCustomer,
                           CostKind::LocalDelivery, CostKind::Handling, CostKind::StockOrders,
                           CostKind::CustomerOrders, CostKind::Storage, CostKind::Capital}}});
    printFarCustomers(page, problem, plan);
    return page;
}

PrintLines reportWithoutPlan(const std::string& reason) {
    PrintLines page;
    page.line(title).line("");
    printText(page, "There is no plan.");
    printText(page, reason);
    return page;
}

} // namespace vantore::warelo
