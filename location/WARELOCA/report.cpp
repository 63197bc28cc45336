#include "location/WARELOCA/report.h"

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::wareloca {

namespace {

constexpr std::size_t locationCharacters = 20;

/// Row number, selection and location, which begin every row.
void printHead(PrintLines& page, int row, const std::string& selection, const std::string& location) {
    page.right(5, format(row, "##0")).tab(7).text(selection);
    page.tab(9).text(left(location, locationCharacters));
}

void printScalars(PrintLines& page, const Case& problem) {
    page.line(joined("Plant-warehouse transportation, fixed, $/cwt.: ", problem.plantWarehouseFixed));
    page.line(
        joined("Plant-warehouse transportation, variable, $/cwt./mi.: ", problem.plantWarehouseVariable));
    page.line(joined("Warehouse-customer transportation, fixed, $/cwt.: ", problem.warehouseCustomerFixed));
    page.line(joined("Warehouse-customer transportation, variable, $/cwt./mi.: ",
                     problem.warehouseCustomerVariable));
    page.line(joined("Inventory estimating function, constant: ", problem.inventoryConstant));
    page.line(joined("Inventory estimating function, exponent: ", problem.inventoryExponent));
    page.line(joined("Capital cost, %/yr.: ", problem.capitalCost));
    page.line(joined("Product value, $/cwt.: ", problem.productValue));
    page.line(joined("Desired distance of customers from warehouse, miles: ", problem.desiredDistance));
}

void printPlants(PrintLines& page, const Case& problem) {
    page.line("").line("Plants:");
    page.text(" No.  X Location").right(41, "Capacity").right(54, "Prod. cost").endLine();
    for (int i = 1; i <= problem.plantCount; ++i) {
        const Plant& plant = problem.plants(i);
        printHead(page, i, plant.selection, plant.location);
        page.right(41, format(plant.capacity, "##,###,##0.0"))
            .right(54, format(plant.productionCost, "##0.0"));
        page.endLine();
    }
}

void printWarehouses(PrintLines& page, const Case& problem) {
    page.line("").line("Warehouses:");
    page.right(36, "Sto-").right(43, "Hand-").right(56, "Stock order").right(70, "Cust. order");
    page.right(80, "Local").endLine();
    page.text(" No.  X Location").right(36, "rage").right(43, "ling").right(50, "cost").right(58, "size");
    page.right(65, "cost").right(72, "size").right(80, "deliv.").endLine();
    for (int i = 1; i <= problem.warehouseCount; ++i) {
        const Warehouse& warehouse = problem.warehouses(i);
        printHead(page, i, warehouse.selection, warehouse.location);
        page.right(36, format(warehouse.storage, "0.0000")).right(43, format(warehouse.handling, "##0.00"));
        page.right(50, format(warehouse.stockOrderProcessing, "##0.00"));
        page.right(58, format(warehouse.stockOrderSize, "##0.00"));
        page.right(65, format(warehouse.customerOrderProcessing, "##0.00"));
        page.right(72, format(warehouse.customerOrderSize, "##0.00"));
        page.right(80, format(warehouse.localDelivery, "##0.00")).endLine();
    }
}

void printCustomers(PrintLines& page, const Case& problem) {
    page.line("").line("Customers:");
    page.text(" No.    Location").right(36, "Region").right(50, "Sales").endLine();
    for (int i = 1; i <= problem.customerCount; ++i) {
        const Customer& customer = problem.customers(i);
        printHead(page, i, "", customer.location);
        page.right(36, format(customer.region, "##0")).right(50, format(customer.sales, "##,###,##0"));
        page.endLine();
    }
}

} // namespace

PrintLines dataPage(const Case& problem) {
    PrintLines page;
    printScalars(page, problem);
    printPlants(page, problem);
    printWarehouses(page, problem);
    printCustomers(page, problem);
    return page;
}

} // namespace vantore::wareloca
