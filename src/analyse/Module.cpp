#include "analyse/Module.h"

namespace orrery {

using namespace record;

void modules::FinishModule(const json::Value& module, std::byte* record, ReadCall&) {
    const bool hasType = !module["SizeFilter"]["Type"].isNull();
    if (hasType && EqualsFolded(module["ByRatio"]["Type"].asString(), "ByRatio")) {
        SET_MEMBER(record, CFG_MODULE_INFO, byFilterType, CFG_FILTER_BY_RATIO);
    }
    const json::Value& size = module["ObjectImageSize"];
    if (!size["Width"].isNull() || !size["Height"].isNull()) {
        SET_MEMBER(record, CFG_MODULE_INFO, abObjectImageSize, 0);
    }
}

bool AreModulesFew(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_ANALYSEMODULES_INFO, nModuleNum) <= ORRERY_ANALYSE_MODULES;
}

} // namespace orrery
