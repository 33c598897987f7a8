// What a device can analyse.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/analyse_caps.h"

namespace orrery {

extern const record::TypedTable<CFG_ANALYSECAPS_INFO> kAnalyseCaps;
extern const record::TypedTable<CFG_ANALYSECAPS_INFO_EX> kAnalyseCapsEx;
extern const record::TypedTable<CFG_AUDIOANALYSECAPS_INFO> kAudioAnalyseCaps;
extern const record::TypedTable<CFG_ANALYSEMODE_INFO> kAnalyseMode;
extern const record::TypedTable<CFG_ANALYSECHANNELS_INFO> kAnalyseChannels;
extern const record::TypedTable<CFG_REMOTEDEVICE_STATUS_INFO> kRemoteDeviceStatus;

// Tells the log where the text of analysis capabilities is no JSON.
void LogAnalyseCaps(Outcome outcome, const ParseRequest& request) noexcept;

} // namespace orrery
