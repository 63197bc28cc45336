#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "shell/base/item_stream.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

/// Reads any bytes as items, then writes the items and reads them again: they must be the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantore;
    ItemReader reader(decoded({reinterpret_cast<const char*>(data), size}));
    ItemWriter writer;
    std::vector<std::string> items;
    try {
        while (true) {
            items.push_back(reader.readString());
            writer.string(items.back());
        }
    } catch (const RuntimeError& end) {
        if (end.number() != ErrorNumber::InputPastEnd) std::abort();
    }
    ItemReader again(writer.text());
    for (const std::string& item : items)
        if (again.readString() != replaced(item, "\"", "'")) std::abort();
    return 0;
}
