#include "suite/module_list.h"

#include <memory>

#include "demand/FORECAST/FORECAST.h"
#include "demand/INPOL/INPOL.h"
#include "demand/MULREG/MULREG.h"
#include "location/COG/COG.h"
#include "location/LAYOUT/LAYOUT.h"
#include "location/MCOG/MCOG.h"
#include "location/PMED/PMED.h"
#include "location/WARELOCA/WARELOCA.h"
#include "mathprog/LNPROG/Lnprog.h"
#include "mathprog/MIPROG/MIPROG.h"
#include "mathprog/TRANLP/TRANLP.h"
#include "routing/Distance/Distance.h"
#include "routing/ROUTE/ROUTE.h"
#include "routing/ROUTER/ROUTER.h"
#include "routing/ROUTESEQ/ROUTESEQ.h"
#include "simulator/SCSIM/SCSim.h"

namespace vantore {

namespace {

template <class Module>
ModuleEntry entry(const char* caption) {
    return {caption, [](Suite& suite) { return std::make_unique<Module>(suite); }};
}

} // namespace

std::vector<ModuleEntry> moduleList() {
    return {
        entry<forecast::FORECAST>("FORECAST"),
        entry<inpol::INPOL>("INPOL"),
        entry<cog::COG>("COG"),
        entry<layout::LAYOUT>("LAYOUT"),
        entry<mcog::MCOG>("MULTICOG"),
        entry<pmed::PMED>("PMED"),
        entry<wareloca::WARELOCA>("WARELOCA"),
        entry<tranlp::TRANLP>("TRANLP"),
        entry<lnprog::Lnprog>("LNPROG"),
        entry<miprog::MIPROG>("MIPROG"),
        entry<mulreg::MULREG>("MULREG"),
        entry<scsim::SCSim>("SCSIM"),
        entry<distance::Distance>("MILES"),
        entry<route::ROUTE>("ROUTE"),
        entry<routeseq::ROUTESEQ>("ROUTESEQ"),
        entry<router::ROUTER>("ROUTER"),
    };
}

} // namespace vantore
