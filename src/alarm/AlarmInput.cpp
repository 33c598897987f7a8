#include "alarm/AlarmInput.h"

#include "alarm/EventHandler.h"
#include "alarm/SensorNames.h"
#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kSensorTypes, kFolded.Unknown(CFG_SENSOR_NORMALLY_OPEN).OutsideWrites("NO"),
      {
          {CFG_SENSOR_NORMALLY_CLOSED, "NC"},
          {CFG_SENSOR_NORMALLY_OPEN, "NO"},
      });

NAMES(kEnableControls, kFolded.Unknown(CFG_ENABLE_NORMAL),
      {
          {CFG_ENABLE_NORMAL, "Normal"},
          {CFG_ENABLE_ALWAYS, "EnableAlways"},
          {CFG_ENABLE_DISABLE_ONCE, "DisableOnce"},
          {CFG_ENABLE_DISABLE_ALWAYS, "DisableAlways"},
      });

// Inputs of the device itself keep their week in the linkage as well, those of extension boxes do not.
template <const TypedTable<CFG_EVENT_HANDLER_INFO>& Linkage>
struct AlarmInputRows {
    using R = CFG_ALARM_INPUT_INFO;
    static constexpr Field rows[] = {
        FIELD(nChannel, "params/channel", Int).FromRoot(),
        FIELD(bEnable, "Enable", Bool),
        FIELD(szName, "Name", Text),
        FIELD(nSensorType, "SensorType", Names(kSensorTypes)),
        FIELD(stuEventHandler, "EventHandler", Nested<CFG_EVENT_HANDLER_INFO>{&Linkage}).Always(),
        FIELD(abDeviceID, "ID", Presence),
        FIELD(szDeviceID, "ID", Text),
        FIELD(nPole, "Pole", Int),
        FIELD(emSenseMethod, "SenseMethod", Names(kSenseMethods)).Absent(EM_SENSE_UNKNOWN),
        FIELD(emEnableControl, "EnableControl", Names(kEnableControls)),
        FIELD(nDisableDelay, "DisableDelay", Int),
        FIELD(emDefenceAreaType, "DefenceAreaType", Names(kDefenceAreaTypes)),
        FIELD(nEnableDelay, "EnableDelay", Int),
        FIELD(nSlot, "Slot", Int).Absent(-1).WriteUnless(-1),
        FIELD(nLevel1, "Level1", Int).Absent(-1).WriteUnless(-1),
        FIELD(abLevel2),
        FIELD(nLevel2, "Level2", Int).Absent(-1).SetsAndNeeds(AT(abLevel2)),
    };
};

} // namespace

constexpr TypedTable<CFG_ALARM_INPUT_INFO> kAlarmInput =
    MakeTable<AlarmInputRows<kEventHandlerWeek>>("CFG_ALARM_INPUT_INFO");
constexpr TypedTable<CFG_ALARM_INPUT_INFO> kExAlarm = MakeTable<AlarmInputRows<kEventHandler>>("CFG_ALARM_INPUT_INFO");

TABLE(kNetAlarm, CFG_NET_ALARM_INFO,
      {
          FIELD(nChannel),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szName, "Name", Text),
          FIELD(nSensorType, "SensorType", Names(kSensorTypes)),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)).Always(),
      });

TABLE(kLossDetect, CFG_LOSS_DETECT_INFO,
      {
          FIELD(nChannel),
          FIELD(bEnable, "Enable", Bool).TrueAtOne(),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)).Always(),
      });

TABLE(kBlindDetect, CFG_BLIND_DETECT_INFO,
      {
          FIELD(nChannel),
          FIELD(bEnable, "Enable", Bool).TrueAtOne(),
          FIELD(nLevel, "Level", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)).Always(),
      });

TABLE(kStorageAlarm, CFG_STORAGE_ALARM_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kStorageLowSpace, CFG_STORAGE_LOWSPACE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nLowerLimit, "LowerLimit", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

} // namespace orrery
