// How much of a text the records of alarm devices hold.
#include "orrery/alarm_device_arming.h"
#include "orrery/alarm_device_faults.h"
#include "orrery/alarm_device_hardware.h"
#include "orrery/alarm_device_servers.h"
#include "orrery/alarm_device_vehicle.h"
#include "orrery/alarm_input.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orrery {
namespace {

// `around` is a table with % where the key stands, `place` finds its text in a record.
template <class R>
void ExpectRoom(const char* command, const char* key, std::size_t capacity, const char* (*place)(const R&),
                const std::string& around = "{ % }") {
    SCOPED_TRACE(command);
    SCOPED_TRACE(key);
    for (const std::size_t length : {capacity - 2, capacity - 1, capacity, 2 * capacity}) {
        std::string table = around;
        table.replace(table.find('%'), 1, '"' + std::string(key) + "\" : \"" + std::string(length, 'x') + '"');
        const auto a = test::Parse<R>(command, table);
        ASSERT_TRUE(a);
        EXPECT_EQ(place(*a), std::string(std::min(length, capacity - 1), 'x'));
    }
}

#define ROOM(command, record, key, capacity, ...)                                                                      \
    ExpectRoom<record>(command, key, capacity, [](const record& r) -> const char* { return r.__VA_ARGS__; })
#define ROOM_IN(around, command, record, key, capacity, ...)                                                           \
    ExpectRoom<record>(                                                                                                \
        command, key, capacity, [](const record& r) -> const char* { return r.__VA_ARGS__; }, around)

TEST(AlarmDeviceTexts, OfFaultsAndVehicles) {
    ROOM("RCEmergencyCall", CFG_RC_EMERGENCY_CALL_INFO, "Mode", 64, szMode);
    ROOM("RCEmergencyCall", CFG_RC_EMERGENCY_CALL_INFO, "AlarmType", 64, szAlarmType);
    ROOM("TemperatureAlarm", CFG_CLIMATE_ALARM_INFO, "Name", 128, szName);
    ROOM_IN("[ { % } ]", "VoiceAlert", CFG_VOICE_ALERT_INFO, "Text", 256, stuAlerts[0].szText);
    ROOM_IN("[ { % } ]", "BurnFull", CFG_BURN_FULL_INFO, "BurnDisk", 64, stuBurners[0].szBurnDisk);
}

TEST(AlarmDeviceTexts, OfServers) {
    ROOM("AlarmServer", CFG_ALARM_SERVER_INFO, "Protocol", 32, szProtocol);
    ROOM("AlarmServer", CFG_ALARM_SERVER_INFO, "Connection", 32, szConnection);
    ROOM("AlarmServer", CFG_ALARM_SERVER_INFO, "Address", 256, szAddress);
    ROOM("AlarmServer", CFG_ALARM_SERVER_INFO, "UserName", 64, szUserName);
    ROOM("AlarmServer", CFG_ALARM_SERVER_INFO, "Password", 64, szPassword);
    const char* const backup = R"({ "BackupAlarmServers" : [ { % } ] })";
    ROOM_IN(backup, "AlarmServer", CFG_ALARM_SERVER_INFO, "Protocol", 32, stuBackups[0].szProtocol);
    ROOM_IN(backup, "AlarmServer", CFG_ALARM_SERVER_INFO, "Connection", 32, stuBackups[0].szConnection);
    ROOM_IN(backup, "AlarmServer", CFG_ALARM_SERVER_INFO, "Address", 256, stuBackups[0].szAddress);
    ROOM_IN(backup, "AlarmServer", CFG_ALARM_SERVER_INFO, "UserName", 64, stuBackups[0].szUserName);
    ROOM_IN(backup, "AlarmServer", CFG_ALARM_SERVER_INFO, "Password", 64, stuBackups[0].szPassword);
    const char* const receiver = R"({ "Servers" : [ { % } ] })";
    ROOM_IN(receiver, "PSTNAlarmServer", CFG_PSTN_ALARM_SERVER_INFO, "Name", 128, stuServers[0].szName);
    ROOM_IN(receiver, "PSTNAlarmServer", CFG_PSTN_ALARM_SERVER_INFO, "Number", 32, stuServers[0].szNumber);
    ROOM_IN(receiver, "PSTNAlarmServer", CFG_PSTN_ALARM_SERVER_INFO, "Account", 32, stuServers[0].szAccount);
    const char* const mobile = R"({ "3G" : { % } })";
    ROOM_IN(mobile, "Wireless", CFG_WIRELESS_INFO, "APN", 32, szAPN);
    ROOM_IN(mobile, "Wireless", CFG_WIRELESS_INFO, "UserName", 64, szUserName);
    ROOM_IN(mobile, "Wireless", CFG_WIRELESS_INFO, "Password", 64, szPassword);
}

TEST(AlarmDeviceTexts, OfArmingAndHardware) {
    ROOM_IN(R"({ "Profiles" : [ { % } ] })", "CommGlobal", CFG_COMM_GLOBAL_INFO, "Name", 32, stuProfiles[0].szName);
    ROOM("AlarmSubSystem", CFG_ALARM_SUB_SYSTEM_INFO, "Name", 128, szName);
    ROOM("AnalogAlarm", CFG_ANALOG_ALARM_INFO, "Name", 64, szName);
    ROOM("AnalogAlarm", CFG_ANALOG_ALARM_INFO, "Type", 64, szType);
    ROOM("AlarmOut", CFG_ALARM_OUT_INFO, "Name", 64, szName);
    ROOM("AlarmOut", CFG_ALARM_OUT_INFO, "Type", 128, szType);
    ROOM("ExAlarmOut", CFG_EX_ALARM_OUT_INFO, "Name", 64, szName);
    ROOM("AlarmKeyboard", CFG_SERIAL_ALARM_DEVICE_INFO, "ProtocolName", 32, szProtocolName);
    ROOM("ExAlarm", CFG_ALARM_INPUT_INFO, "Name", 64, szName);
    ROOM("SCADADev", CFG_SCADA_DEV_INFO, "DevType", 64, szDevType);
    ROOM("SCADADev", CFG_SCADA_DEV_INFO, "DevName", 64, szDevName);
}

} // namespace
} // namespace orrery
