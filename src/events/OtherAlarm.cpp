// Events of the device itself: alarm inputs, captures, presets, storage.
#include "analyse/EventTypeRegistry.h"
#include "events/OtherEvents.h"

namespace orrery::events {

using json::Value;

namespace {

constexpr Name kSensorRows[] = {
    {EVENT_SENSE_DOOR_MAGNETISM, "DoorMagnetism"},
    {EVENT_SENSE_PASSIVE_INFRARED, "PassiveInfrared"},
    {EVENT_SENSE_GAS, "GasSensor"},
    {EVENT_SENSE_SMOKE, "SmokingSensor"},
    {EVENT_SENSE_WATER, "WaterSensor"},
    {EVENT_SENSE_ACTIVE_INFRARED, "ActiveInfrared"},
    {EVENT_SENSE_GLASS, "GlassSensor"},
    {EVENT_SENSE_EMERGENCY_SWITCH, "EmergencySwitch"},
    {EVENT_SENSE_SHOCK, "ShockSensor"},
    {EVENT_SENSE_DOUBLE_METHOD, "DoubleMethod"},
    {EVENT_SENSE_THREE_METHOD, "ThreeMethod"},
    {EVENT_SENSE_TEMPERATURE, "TempSensor"},
    {EVENT_SENSE_HUMIDITY, "HumiditySensor"},
    {EVENT_SENSE_WIND, "WindSensor"},
    {EVENT_SENSE_CALL_BUTTON, "CallButton"},
    {EVENT_SENSE_GAS_PRESSURE, "GasPressure"},
    {EVENT_SENSE_GAS_CONCENTRATION, "GasConcentration"},
    {EVENT_SENSE_GAS_FLOW, "GasFlow"},
    {EVENT_SENSE_OTHER, "OtherSensor"},
    {EVENT_SENSE_OIL, "Oil"},
    {EVENT_SENSE_MILEAGE, "MileageSensor"},
    {EVENT_SENSE_URGENCY_BUTTON, "UrgencyButton"},
    {EVENT_SENSE_STEAL, "Steal"},
    {EVENT_SENSE_PERIMETER, "Perimeter"},
    {EVENT_SENSE_PREVENT_REMOVE, "PreventRemove"},
    {EVENT_SENSE_DOOR_BELL, "DoorBell"},
    {EVENT_SENSE_ALTER_VOLT, "AlterVolt"},
    {EVENT_SENSE_DIRECT_VOLT, "DirectVolt"},
    {EVENT_SENSE_ALTER_CURRENT, "AlterCur"},
    {EVENT_SENSE_DIRECT_CURRENT, "DirectCur"},
    {EVENT_SENSE_RSU_GENERAL, "RSUGeneral"},
    {EVENT_SENSE_RSU_DOOR, "RSUDoor"},
    {EVENT_SENSE_RSU_POWER_OFF, "RSUPowerOff"},
    {EVENT_SENSE_TEMP1500, "Temp1500"},
    {EVENT_SENSE_TEMP_DS18B20, "TempDS18B20"},
    {EVENT_SENSE_HUMIDITY1500, "Humidity1500"},
    {EVENT_SENSE_INFRARED, "Infrared"},
    {EVENT_SENSE_FIRE_ALARM, "FireAlarm"},
    {EVENT_SENSE_CO2, "CO2"},
    {EVENT_SENSE_SOUND, "Sound"},
    {EVENT_SENSE_PM25, "PM25"},
    {EVENT_SENSE_SF6, "SF6"},
    {EVENT_SENSE_O3, "O3"},
    {EVENT_SENSE_AMBIENT_LIGHT, "AmbientLight"},
};
static_assert(std::size(kSensorRows) == EVENT_SENSE_AMBIENT_LIGHT + 1);
constexpr NameTable kSensors = FoldedNames(kSensorRows).Unknown(EVENT_SENSE_UNKNOWN);

NAMES(kAnalogStatuses, kFolded.Unknown(EVENT_ANALOG_UNKNOWN),
      {
          {EVENT_ANALOG_NORMAL, "normal"},
          {EVENT_ANALOG_INVALID, "invalid"},
          {EVENT_ANALOG_UPPER1, "upper1"},
          {EVENT_ANALOG_UPPER1 + 1, "upper2"},
          {EVENT_ANALOG_UPPER1 + 2, "upper3"},
          {EVENT_ANALOG_UPPER4, "upper4"},
          {EVENT_ANALOG_LOWER1, "lower1"},
          {EVENT_ANALOG_LOWER1 + 1, "lower2"},
          {EVENT_ANALOG_LOWER1 + 2, "lower3"},
          {EVENT_ANALOG_LOWER4, "lower4"},
      });

NAMES(kSceneModes, kFolded,
      {
          {EVENT_SCENE_INDOOR, "Indoor"},
          {EVENT_SCENE_OUTDOOR, "Outdoor"},
      });

NAMES(kPassPictures, kFolded,
      {
          {EVENT_PASS_PICTURE_PASS, "Pass"},
          {EVENT_PASS_PICTURE_REAL, "Real"},
      });

// Another event by its name, which is cut as the field of a name would cut it.
void ReadEventName(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    constexpr std::size_t kLongestName = 63;
    Store(record + field.offset, RuleCodeFromName(value.asString().substr(0, kLongestName)));
}
constexpr CustomCodec kEventName{ReadEventName};

PART(kLinkSource, EVENT_LINK_SOURCE_INFO,
     {
         FIELD(szSrcEvent, "SrcEvent", Text),
         FIELD(stuSrcTime, "SrcTime", NetTimeEx),
         FIELD(nSrcChannel, "SrcChannel", Int),
     });

} // namespace

TABLE(kVideoMotion, DEV_EVENT_VIDEOMOTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_COMM_INFO,
      });
TABLE(kAlarmLocal, DEV_EVENT_ALARMLOCAL_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_COMM_INFO,
      });
TABLE(kMultiSceneSwitch, DEV_EVENT_MULTISCENESWITCH_INFO,
      {
          EV_HEAD_A,
          EV_ACTION,
      });

TABLE(kAnalogAlarm, DEV_EVENT_ANALOGALARM_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          FIELD(nIndex, "Index", Int).FromRoot(),
          FIELD(emSenseMethod, "SenseMethod", Names(kSensors)),
          FIELD(emStatus, "status", Names(kAnalogStatuses)).Absent(EVENT_ANALOG_UNKNOWN),
          FIELD(dValue, "value", Real),
          FIELD(stuTime, "time", UtcTime),
          EV_FLAG_MASK,
          EV_ACTION,
      });

TABLE(kVideoBlind, DEV_EVENT_VIDEOBLIND_INFO,
      {
          EV_HEAD_A,
          EV_FILE_TIME,
      });
TABLE(kSnapByTime, DEV_EVENT_SNAPBYTIME_INFO,
      {
          EV_HEAD_A,
          EV_FILE_TIME,
      });
TABLE(kSnapManual, DEV_EVENT_SNAPMANUAL_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_REPEAT,
          EV_FLAG_MASK,
      });

TABLE(kVideoStatic, DEV_EVENT_VIDEOSTATIC_INFO,
      {
          EV_HEAD_C,
          FIELD(emMode, "Mode", Names(kSceneModes)),
          EV_ACTION,
      });
TABLE(kVideoTiming, DEV_EVENT_VIDEOTIMING_INFO,
      {
          EV_HEAD_C,
          EV_ACTION,
      });

TABLE(kPicInfo, DEV_EVENT_PICINFO_INFO,
      {
          EV_HEAD_C,
          FIELD(stuTime, "Time", NetTimeEx),
          FIELD(nType, "Type", Custom(kEventName)),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nSpeedHighLine, "SpeedHighLine", Int),
          FIELD(nDisk, "Disk", Int),
          FIELD(nCluster, "Cluster", Int),
          FIELD(nPartition, "Partition", Int),
          FIELD(szHappenAddress, "HappenAddress", Text),
          FIELD(szPicID, "PicID", Text),
          FIELD(szPlate, "Plate", Text),
      });

// The preset's name, unlike a rule's, always ends in a terminator.
TABLE(kPtzPreset, DEV_EVENT_PTZPRESET_INFO,
      {
          EV_HEAD_A,
          FIELD(szName, "Name", Text).Alias(),
          FIELD(fPosition, "Position", Real).AtLeast(3),
          FIELD(nPresetID, "PresetID", Int),
      });

TABLE(kSceneChange, DEV_EVENT_SCENECHANGE_INFO,
      {
          EV_CHANNEL,
          EV_ACTION,
          EV_TIME_STAMP,
          EV_UTC,
          EV_ID,
          EV_FILE_INFO,
          EV_REPEAT,
          EV_FLAG_MASK,
      });

TABLE(kLinkSD, DEV_EVENT_LINKSD_INFO,
      {
          EV_HEAD_C,
          FIELD(pSrcInfo, "SrcInfo", OwnedRecord(kLinkSource)),
          FIELD(stuStartTime, "StartTime", NetTimeEx),
          FIELD(stuEndTime, "EndTime", NetTimeEx),
          FIELD(nPresetID, "PresetID", Int),
      });

TABLE(kPassChange, DEV_EVENT_PASSCHANGE_INFO,
      {
          EV_HEAD_A,
          FIELD(nPresetID, "PresetID", Int),
          FIELD(nGroupID, "GroupID", Int),
          FIELD(nCountInGroup, "CountInGroup", Int),
          FIELD(nIndexInGroup, "IndexInGroup", Int),
          FIELD(emPictureType, "PictureType", Names(kPassPictures)),
      });

} // namespace orrery::events
