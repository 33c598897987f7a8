// Encryption of streams, and between cameras and recorders.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/encode.h"

namespace orrery {

extern const record::TypedTable<CFG_ENCODE_ENCRYPT_INFO> kEncodeEncrypt;
extern const record::TypedTable<CFG_NVR_ENCRYPT_INFO> kNvrEncrypt;

// One record's list stands bare, or inside an outer list for all channels; of several records devices take none.
Form NvrEncryptForm(const std::byte* first, std::uint32_t count);

} // namespace orrery
