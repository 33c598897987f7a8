#include "later/Parking.h"

#include "alarm/EventHandler.h"
#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kStrobeControls, kFolded,
      {
          {CFG_STROBE_TRUST_LIST, "TrafficTrustList"},
          {CFG_STROBE_ALL_SNAP_CAR, "AllSnapCar"},
          {CFG_STROBE_ORDER, "Order"},
      });

NAMES(kVoiceContents, kFolded,
      {
          {CFG_VOICE_TIPS, "Tips"},
          {CFG_VOICE_PLATE, "Plate"},
      });

NAMES(kRainBrushModes, kFolded.OutsideWrites("Unknown"),
      {
          {CFG_RAIN_BRUSH_MANUAL, "Manual"},
          {CFG_RAIN_BRUSH_TIMING, "Timing"},
          {CFG_RAIN_BRUSH_AUTO, "Auto"},
      });

NAMES(kArrowDirections, kFolded,
      {
          {CFG_ARROW_LEFT, "Left"},
          {CFG_ARROW_RIGHT, "Right"},
      });

NAMES(kRolls, kFolded,
      {
          {CFG_ROLL_DISABLE, "Disable"},
          {CFG_ROLL_ENABLE, "Enable"},
      });

// Numbers that stand one below their codes, so that 0 can tell of a number that is none.
void ReadLevel(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    const bool isLevel = value.isInt() && (value.asInt() == 0 || value.asInt() == 1);
    SET_MEMBER(record, CFG_RAIN_BRUSH_MODE_INFO, emEnableMode,
               isLevel ? value.asInt() + 1 : CFG_RAIN_BRUSH_LEVEL_UNKNOWN);
}
void WriteLevel(const Field&, const std::byte* record, WriteCall& call) {
    const std::int32_t level = MEMBER(record, CFG_RAIN_BRUSH_MODE_INFO, emEnableMode);
    if (level != CFG_RAIN_BRUSH_LEVEL_0 && level != CFG_RAIN_BRUSH_LEVEL_1) return;
    call.Key();
    call.out.Int(level - 1);
}
constexpr CustomCodec kLevel{ReadLevel, WriteLevel, "1"};

// Devices announce the text in small letters and send it under a key with a capital.
void ReadAuthorization(const json::Value& screen, std::byte* record, ReadCall& call) {
    if (screen["authorization"].isNull()) return;
    call.parser.GetJsonString(screen["Authorization"],
                              reinterpret_cast<char*>(record + offsetof(CFG_PARKING_SCREEN_INFO, szAuthorization)),
                              sizeof(CFG_PARKING_SCREEN_INFO::szAuthorization), true);
}

PART(kEckLed, CFG_ECK_LED,
     {
         FIELD(szSpeed, "Speed", Text),
         FIELD(szCustomData, "CustomData", Text),
     });

PART(kGuideArrow, CFG_GUIDE_ARROW,
     {
         FIELD(szText, "Text", Text),
         FIELD(emDirection, "Direction", Names(kArrowDirections)),
         FIELD(szPosition, "Position", Text),
         FIELD(emRoll, "Roll", Names(kRolls)),
     });

PART(kLightColor, CFG_PARKING_LIGHT_COLOR,
     {
         FIELD(nRed, "Red", Int),
         FIELD(nBlue, "Bule", Int),
         FIELD(nGreen, "Green", Int),
     });

PART(kSpaceLights, CFG_PARKING_SPACE_LIGHTS,
     {
         FIELD(stuSpaceFree, "SpaceFree", Record(kLightColor)),
         FIELD(stuSpaceFull, "SpaceFull", Record(kLightColor)),
         FIELD(stuSpaceOrder, "SpaceOrder", Record(kLightColor)),
     });

} // namespace

TABLE(kWorkState, CFG_WORK_STATE_INFO,
      {
          FIELD(dwReserved),
          FIELD(nState, "State", Int),
          FIELD(nMatchMode, "MatchMode", Int),
      });

TABLE(kParkingScreen, CFG_PARKING_SCREEN_INFO,
      {
          FIELD(szIpAddr, "ipAddr", Text).Only(OnlyType::String),
          FIELD(nPort, "port", Int),
          FIELD(szAuthorization, "authorization", Text).WriteOnly(),
          FIELD(szDeviceNo, "deviceNo", Text).Only(OnlyType::String),
          FIELD(bEnable, "enable", Bool).Only(OnlyType::Bool),
      })
    .AfterRead(ReadAuthorization);

TABLE(kParkingCellStatus, CFG_PARKING_CELL_STATUS,
      {
          FIELD(nCellNumber, "cellNumber", Int),
          FIELD(nCellType, "cellType", Int),
      });

TABLE(kLanesStateReport, CFG_LANES_STATE_REPORT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nPeriod, "Period", Int),
      });

TABLE(kRainBrushMode, CFG_RAIN_BRUSH_MODE_INFO,
      {
          FIELD(emMode, "Mode", Names(kRainBrushModes)).Only(OnlyType::String),
          FIELD(emEnableMode, "EnableMode", Custom(kLevel)),
          FIELD(nPort, "Port", Int).Only(OnlyType::Integer).Absent(-2).WriteUnless(-2),
          FIELD(nSensitivity, "Sensitivity", Int).WriteUnless(0),
      });

TABLE(kTrafficStrobe, CFG_TRAFFIC_STROBE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nControlTypeCount),
          FIELD(emControlType, "ControlType", Names(kStrobeControls)).Count(AT(nControlTypeCount)),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
          FIELD(stuEventHandlerClose, "EventHandlerClose", Record(kEventHandler)).Always(),
          FIELD(bAllSnapCar, "AllSnapCar", Bool),
      });

TABLE(kTrafficVoice, CFG_TRAFFIC_VOICE_INFO,
      {
          FIELD(nEnableCount),
          FIELD(emEnable, "Enable", Names(kVoiceContents)).Count(AT(nEnableCount)),
          FIELD(szNormalCar, "NormalCar", Text),
          FIELD(szTrustCar, "TrustCar", Text),
          FIELD(szSuspiciousCar, "SuspiciousCar", Text),
      });

TABLE(kAutoStartupDelay, CFG_AUTO_STARTUP_DELAY_INFO,
      {
          FIELD(bEnable, "Enable", Bool).Only(OnlyType::Bool),
          FIELD(nDelay, "Delay", Int).Only(OnlyType::Integer),
      });

TABLE(kEck, CFG_ECK_INFO,
      {
          FIELD(szWorkMode, "WorkMode", Text),
          FIELD(szStrobeMode, "StrobeMode", Text),
          FIELD(bForceOffline, "ForceOffline", Bool).Only(OnlyType::Bool),
          FIELD(bLoopSense, "LoopSense", Bool).Only(OnlyType::Bool),
          FIELD(stuLed, "LED", Record(kEckLed)),
      });

TABLE(kGuideScreen, CFG_GUIDE_SCREEN_INFO,
      {
          FIELD(nArrowCount),
          FIELD(stuArrows, "Arrow", Record(kGuideArrow)).Count(AT(nArrowCount)),
      });

TABLE(kParkingFilter, CFG_PARKING_FILTER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nTrustListCount),
          FIELD(szTrustList, "TrustList", Text).Count(AT(nTrustListCount)),
          FIELD(nType, "Type", Int).WriteOnly(),
      });

TABLE(kParkingLightGroup, CFG_PARKING_LIGHT_GROUP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bAcceptNetCtrl, "AcceptNetCtrl", Bool),
          FIELD(nLanes, "Lanes", Int),
      })
    .TakesFirst();

TABLE(kParkOutLight, CFG_PARK_OUT_LIGHT_INFO,
      {
          FIELD(stuNormalSpace, "NormalSpace", Record(kSpaceLights)),
          FIELD(stuSpecialSpace, "SpecialSpace", Record(kSpaceLights)),
      });

} // namespace orrery
