#include "later/Home.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kHomeStates, kFolded.Unknown(CFG_HOME_STATE_UNKNOWN).OutsideWrites(""),
      {
          {CFG_HOME_STATE_CLOSE, "Close"},
          {CFG_HOME_STATE_OPEN, "Open"},
      });

NAMES(kLightTypes, kFolded.Unknown(CFG_LIGHT_UNKNOWN).OutsideWrites(""),
      {
          {CFG_LIGHT_COMMON, "CommLight"},
          {CFG_LIGHT_LEVEL, "LevelLight"},
      });

NAMES(kScenes, kFolded.Unknown(CFG_SCENE_UNKNOWN).OutsideWrites(""),
      {
          {CFG_SCENE_AT_HOME, "AtHome"},
          {CFG_SCENE_LEAVE_HOME, "LeaveHome"},
          {CFG_SCENE_IN_SLEEPING, "InSleeping"},
      });

PART(kCommAddress, CFG_COMM_ADDRESS,
     {
         FIELD(nCount),
         FIELD(nAddress, "Address", Int).Count(AT(nCount)),
     });

PART(kSceneProfile, CFG_SCENE_PROFILE,
     {
         FIELD(szBrand, "Brand", Text),
         FIELD(nSceneId, "SceneID", Int),
         FIELD(stuComm, "Comm", Record(kCommAddress)).WriteUnlessBare(),
         FIELD(emName, "Name", Names(kScenes)),
     });

// Devices tell a curtain from what else hangs on its bus by this key, though they never send it.
void WriteCurtain(const Field&, const std::byte*, WriteCall& call) {
    call.Key();
    call.out.String("Curtain");
}

constexpr CustomCodec kCurtainType{nullptr, WriteCurtain};

#define HOME_DEVICE                                                                                                    \
    FIELD(szDeviceId, "DeviceID", Text), FIELD(szName, "Name", Text), FIELD(szBrand, "Brand", Text),                   \
        FIELD(stuComm, "Comm", Record(kCommAddress)).WriteUnlessBare()

} // namespace

TABLE(kLight, CFG_LIGHT_INFO,
      {
          HOME_DEVICE,
          FIELD(nPosId, "PosID", Int),
          FIELD(stuPoint, "Point", Record(kPoint)),
          FIELD(emState, "State", Names(kHomeStates)).Always(),
          FIELD(nRange, "Range", Int),
          FIELD(emType, "Type", Names(kLightTypes)),
      });

TABLE(kCurtain, CFG_CURTAIN_INFO,
      {
          HOME_DEVICE,
          FIELD(nPosId, "PosID", Int),
          FIELD(stuPoint, "Point", Record(kPoint)),
          FIELD(emState, "State", Names(kHomeStates)).Always(),
          MakeVirtual("Type", Custom(kCurtainType)),
      });

TABLE(kFreshAir, CFG_FRESH_AIR_INFO, {HOME_DEVICE});

TABLE(kGroundHeat, CFG_GROUND_HEAT_INFO,
      {
          HOME_DEVICE,
          FIELD(emState, "State", Names(kHomeStates)).Always(),
          FIELD(nRange, "Range", Int),
      });

TABLE(kSceneMode, CFG_SCENE_MODE_INFO,
      {
          FIELD(nCurrentProfileId, "CurrentProfileID", Int),
          FIELD(nProfileCount),
          FIELD(stuProfiles, "Profiles", Record(kSceneProfile)).Count(AT(nProfileCount)),
      });

} // namespace orrery
