#include "storage/Burning.h"

#include "frame/record/Engine.h"

#include <cstring>

namespace orrery {

using namespace record;

namespace {

NAMES(kPacks, kFolded.Unknown(CFG_BURN_PACK_UNKNOWN).OutsideWrites("UNKNOWN"),
      {
          {CFG_BURN_PACK_QVAV, "QVAV"},
          {CFG_BURN_PACK_PS, "PS"},
          {CFG_BURN_PACK_ASF, "ASF"},
          {CFG_BURN_PACK_MP4, "MP4"},
          {CFG_BURN_PACK_TS, "TS"},
      });

NAMES(kModes, kFolded.Unknown(CFG_BURN_MODE_UNKNOWN).OutsideWrites("Unknown"),
      {
          {CFG_BURN_MODE_SYNC, "Sync"},
          {CFG_BURN_MODE_TURN, "Turn"},
          {CFG_BURN_MODE_CYCLE, "Cycle"},
      });

} // namespace

TABLE(kBurnRecordFormat, CFG_BURN_RECORD_FORMAT_INFO,
      {
          FIELD(emRecordPack, "RecordPack", Names(kPacks)),
      });

TABLE(kMultiBurn, CFG_MULTI_BURN_INFO,
      {
          FIELD(bEnable, "Enable", Bool).Only(OnlyType::Bool),
          FIELD(bDataCheck, "DataCheck", Bool).Only(OnlyType::Bool),
          FIELD(szDataCheckSpeed, "DataCheckSpeed", Text),
      });

TABLE(kBurnPlan, CFG_BURN_PLAN_INFO,
      {
          FIELD(nSessionId, "SessionId", Int),
          FIELD(nMaxDevices),
          FIELD(nDeviceCount),
          FIELD(nMaxChannels),
          FIELD(nChannelCount),
          FIELD(emRecordpack, "Recordpack", Names(kPacks)),
          FIELD(emMode, "Mode", Names(kModes)),
          FIELD(stuStarttime, "Starttime", NetTime),
          FIELD(pnDevices, "Devices", Int32s).Capacity(AT(nMaxDevices)).Count(AT(nDeviceCount)),
          FIELD(pnChannels, "Channels", Int32s).Capacity(AT(nMaxChannels)).Count(AT(nChannelCount)),
      });

void ClearBurnPlan(std::byte* record) {
    const auto plan = Load<CFG_BURN_PLAN_INFO>(record);
    std::memset(record, 0, sizeof plan);
    SET_MEMBER(record, CFG_BURN_PLAN_INFO, nMaxDevices, plan.nMaxDevices);
    SET_MEMBER(record, CFG_BURN_PLAN_INFO, nMaxChannels, plan.nMaxChannels);
    SET_MEMBER(record, CFG_BURN_PLAN_INFO, pnDevices, plan.pnDevices);
    SET_MEMBER(record, CFG_BURN_PLAN_INFO, pnChannels, plan.pnChannels);
}

TABLE(kBurnManagerCaps, CFG_BURN_MANAGER_CAPS,
      {
          FIELD(bSupportMultiBurn, "SupportMultiBurn", Bool).Only(OnlyType::Bool),
          FIELD(nMultiBurnGroups, "MultiBurnGroups", Int),
      });

} // namespace orrery
