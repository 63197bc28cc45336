#include "location/WARELOCA/flows.h"

#include "location/WARELOCA/problem.h"

namespace vantore::wareloca {

namespace {

Place readPlace(ItemReader& reader) {
    const double x = reader.readNumber();
    return {x, reader.readNumber()};
}

int readRow(ItemReader& reader, int most) {
    const int row = reader.readCount(most);
    checkIndex(row, 1, most);
    return row;
}

} // namespace

std::vector<Flow> readFlows(ItemReader& reader) {
    std::vector<Flow> flows;
    while (!reader.atEnd()) {
        checkIndex(static_cast<long long>(flows.size()) + 1, 1, mostCustomers);
        Flow& flow = flows.emplace_back();
        flow.customer = readPlace(reader);
        flow.warehouse = readRow(reader, mostWarehouses);
        flow.from = readPlace(reader);
        flow.plant = readRow(reader, mostPlants);
        flow.source = readPlace(reader);
    }
    return flows;
}

void writeFlows(const std::vector<Flow>& flows, ItemWriter& writer) {
    for (const Flow& flow : flows) {
        writer.number(flow.customer.x).number(flow.customer.y);
        writer.number(flow.warehouse).number(flow.from.x).number(flow.from.y);
        writer.number(flow.plant).number(flow.source.x).number(flow.source.y).endLine();
    }
}

} // namespace vantore::wareloca
