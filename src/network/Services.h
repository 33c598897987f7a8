// Services of a device on its network.
#pragma once

#include "frame/record/Table.h"

#include "orrery/network_services.h"

namespace orrery {

extern const record::TypedTable<CFG_MOBILE_INFO> kMobile;
extern const record::TypedTable<CFG_EMAIL_INFO> kEmail;
extern const record::TypedTable<CFG_STP_INFO> kStp;
extern const record::TypedTable<CFG_AIO_APP_INFO> kAioApp;
extern const record::TypedTable<CFG_LOWRATEWPAN_CAPS> kLowRateWpanCaps;
extern const record::TypedTable<CFG_HTTPS_INFO> kHttps;

} // namespace orrery
