// Language and formats of a device.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_settings.h"

namespace orrery {

extern const record::TypedTable<CFG_LOCALES_INFO> kLocales;
extern const record::TypedTable<CFG_LANGUAGE_INFO> kLanguage;
extern const record::TypedTable<CFG_APP_EVENT_LANGUAGE_INFO> kAppEventLanguage;

} // namespace orrery
