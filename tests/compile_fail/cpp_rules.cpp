// A template of rules has no room for them in its record alone.
// must not compile: rules have parse_rules()
#include "orrery/analyse_modules.h"
#include "orrery/cpp.h"

#ifdef GOOD
using Wanted = orrery::templates::VideoInAnalyse_getTemplateModule;
#else
using Wanted = orrery::templates::VideoInAnalyse_getTemplateRule;
#endif

bool Read(const char* text) {
    return orrery::parse_template<Wanted>(text, CFG_RULE_CLASS_NORMAL).has_value();
}
