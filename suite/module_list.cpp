#include "suite/module_list.h"

#include <memory>

#include "location/COG/COG.h"
#include "mathprog/MIPROG/MIPROG.h"

namespace vantore {

namespace {

template <class Module>
ModuleEntry entry(const char* caption) {
    return {caption, [](Suite& suite) { return std::make_unique<Module>(suite); }};
}

} // namespace

std::vector<ModuleEntry> moduleList() {
    return {
        entry<cog::COG>("COG"),
        entry<miprog::MIPROG>("MIPROG"),
    };
}

} // namespace vantore
