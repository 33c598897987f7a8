// Stream formats and what tunes them.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/encode.h"

namespace orrery {

extern const record::TypedTable<CFG_ENCODE_INFO> kEncode;
extern const record::TypedTable<CFG_ENCODE_PLAN_INFO> kEncodePlan;
extern const record::TypedTable<CFG_ENCODE_ADAPT_INFO> kEncodeAdapt;
extern const record::TypedTable<CFG_SMART_ENCODE_INFO> kSmartEncode;
extern const record::TypedTable<CFG_COMPRESS_PLAY_INFO> kCompressPlay;

// A request for all channels is told by the sign of the reply's "channel", whatever its table looks like.
Take EncodeTakes(const json::Value& root);

} // namespace orrery
