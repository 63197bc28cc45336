#include "simulator/SCSIM/trace.h"

#include "shell/base/item_stream.h"

namespace vantore::scsim {

namespace {

struct Heading {
    const char* upper;
    const char* lower;
};

constexpr std::array<Heading, traceColumns> headings = {{{"   ", "Day"},
                                                         {"Daily ", "Demand"},
                                                         {"Customer", "Sales   "},
                                                         {"Retailer      ", "Sales forecast"},
                                                         {"Retailer", "Sales   "},
                                                         {"Retailer    ", "Inv. Onhand "},
                                                         {"Retailer   ", "Back orders"},
                                                         {"Retailer    ", "Qty on order"},
                                                         {"Retailer    ", "Shipmts recd"},
                                                         {"Distributor", "Demand     "},
                                                         {"Distributor   ", "Sales Forecast"},
                                                         {"Distributor", "Sales      "},
                                                         {"Distributor", "Inv. onhand"},
                                                         {"Distributor", "Back orders"},
                                                         {"Distributor ", "Qty on order"},
                                                         {"Distributor  ", "Shipmts rec'd"},
                                                         {"Warehouse", "Demand   "},
                                                         {"Warehouse     ", "Sales forecast"},
                                                         {"Warehouse", "Sales    "},
                                                         {"Warehouse  ", "Inv. onhand"},
                                                         {"Warehouse  ", "Back orders"},
                                                         {"Warehouse   ", "Qty on order"},
                                                         {"Warehouse    ", "Shipmts rec'd"},
                                                         {"Plant ", "Demand"},
                                                         {"Plant    ", "Acc. dem."},
                                                         {"Plant", "Sales"}}};

} // namespace

std::vector<std::string> traceHeading() {
    ItemWriter upper;
    ItemWriter lower;
    for (const Heading& heading : headings) {
        upper.string(heading.upper);
        lower.string(heading.lower);
    }
    return {upper.text(), lower.text()};
}

std::string traceLine(const TraceRow& row) {
    ItemWriter writer;
    for (const double value : row) writer.number(value);
    return writer.text();
}

} // namespace vantore::scsim
