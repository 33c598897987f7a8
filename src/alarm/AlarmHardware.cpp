#include "alarm/AlarmHardware.h"

#include "alarm/EventHandler.h"
#include "frame/Log.h"
#include "media/CommAttribute.h"

namespace orrery {

using namespace record;

TABLE(kAlarmOut, CFG_ALARM_OUT_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(szType, "Type", Text),
          FIELD(nMode, "Mode", Int),
          FIELD(nPulseDelay, "PulseDelay", Int),
          FIELD(nSlot, "Slot", Int).Absent(-1).WriteUnless(-1),
          FIELD(nLevel1, "Level1", Int).Absent(-1).WriteUnless(-1),
          FIELD(abLevel2),
          FIELD(nLevel2, "Level2", Int).SetsAndNeeds(AT(abLevel2)),
      });

TABLE(kExAlarmOut, CFG_EX_ALARM_OUT_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nMode, "Mode", Int),
      });

TABLE(kSerialAlarmDevice, CFG_SERIAL_ALARM_DEVICE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szProtocolName, "ProtocolName", Text),
          FIELD(nPort, "Port", Int),
          FIELD(nAddress, "Address", Int),
          FIELD(stuAttribute, "Attribute", Record(kCommAttribute)),
      });

TABLE(kFlashLight, CFG_FLASH_LIGHT_INFO,
      {
          FIELD(nEnable, "Enable", Int),
          FIELD(nBrightness, "Brightness", Int),
          FIELD(stuTimeSection, "TimeSection", TimeSection),
      });

TABLE(kScadaDev, CFG_SCADA_DEV_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szDevType, "DevType", Text),
          FIELD(szDevName, "DevName", Text),
          FIELD(nSlot, "Slot", Int),
          FIELD(nLevel, "Level", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

namespace {

constexpr const char* kLogSource = "AlarmConfig";

void LogBadParameters(int line) noexcept {
    LogSetPosition(kLogSource, line, E_LOG_LEVEL_ERROR);
    LogTrace(E_LOG_CODE_BAD_ARGUMENT, "Parameters invalid");
}

} // namespace

void LogScadaParse(Outcome outcome, const ParseRequest& request) noexcept {
    if (outcome == Outcome::BufferTooSmall || request.text[0] == '\0') return LogBadParameters(8365);
    if (outcome != Outcome::WrongShape) return;
    LogSetPosition(kLogSource, 8404, E_LOG_LEVEL_ERROR);
    LogTrace(E_LOG_CODE_WRONG_SHAPE, "Table in not array and object");
}

void LogScadaPack(Outcome outcome, const PackRequest& request) noexcept {
    if (outcome == Outcome::RecordTooSmall || request.textCapacity == 0) LogBadParameters(8420);
}

} // namespace orrery
