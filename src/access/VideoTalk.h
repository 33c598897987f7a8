// Intercoms of residential buildings.
#pragma once

#include "frame/record/Table.h"

#include "orrery/video_talk.h"

namespace orrery {

extern const record::TypedTable<CFG_BUILDING_INFO> kBuilding;
extern const record::TypedTable<CFG_BUILDING_EXTERNAL_INFO> kBuildingExternal;
extern const record::TypedTable<CFG_DIAL_RULE_INFO> kDialRule;
extern const record::TypedTable<CFG_VT_NO_ANSWER_FORWARD_INFO> kNoAnswerForward;
extern const record::TypedTable<CFG_VTO_CALL_INFO> kVtoCall;
extern const record::TypedTable<CFG_VTS_CALL_INFO> kVtsCall;
extern const record::TypedTable<CFG_DEV_LIST_INFO> kDevList;
extern const record::TypedTable<CFG_VIDEO_TALK_PHONE_GENERAL_INFO> kPhoneGeneral;
extern const record::TypedTable<CFG_VIDEO_TALK_PHONE_BASIC_INFO> kPhoneBasic;
extern const record::TypedTable<CFG_SHORTCUT_CALL_INFO> kShortcutCall;

// Whether the caller's record has room for a device.
bool HasRoomForDevices(const std::byte* record, std::uint32_t size);

} // namespace orrery
