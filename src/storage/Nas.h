// "NAS": storage in the network.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/storage_nas.h"

namespace orrery {

extern const record::TypedTable<CFG_NAS_INFO> kNas;

// A list in the table or, of older devices, one storage at the top of the reply.
Outcome ParseNas(const ParseRequest& request) noexcept;

} // namespace orrery
