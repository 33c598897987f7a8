// Replies as faulty devices and faulty clients of theirs make them: each fault is told, with its place, and nothing
// else is.
#include "explain/Explained.h"

#include <gtest/gtest.h>
#include <utility>

namespace orrery::test {
namespace {

struct Fault {
    const char* command;
    const char* text; // @ stands before the fault; it is not part of the text
    std::int32_t kind;
    std::int32_t gravity;
    const char* path;
    const char* field;
    const char* says; // in the message
    std::uint32_t lost = 0;
    const char* nearest = "";
};

void ExpectTold(const Fault& fault) {
    std::string text = fault.text;
    const std::size_t offset = text.find('@');
    ASSERT_NE(offset, std::string::npos) << fault.text;
    text.erase(offset, 1);
    const bool isTable = text.find("result") == std::string::npos && fault.command[0] != '\0';
    const std::string front = R"({"result":true,"params":{"table":)";
    const std::string whole = isTable ? front + text + "}}" : text;
    const auto found = fault.command[0] == '\0' ? ExplainEvents(whole) : Explain(fault.command, whole);
    ASSERT_EQ(found.size(), 1u) << fault.command << ' ' << whole << '\n'
                                << (found.empty() ? "" : found[0].message + "\n" + found.back().message);
    const Found& told = found[0];
    EXPECT_EQ(told.kind, fault.kind) << whole << '\n' << told;
    EXPECT_EQ(told.gravity, fault.gravity) << whole << '\n' << told;
    EXPECT_EQ(told.offset, offset + (isTable ? front.size() : 0)) << whole << '\n' << told;
    EXPECT_EQ(told.path, fault.path) << whole;
    EXPECT_EQ(told.field, fault.field) << whole;
    EXPECT_NE(told.message.find(fault.says), std::string::npos) << whole << '\n' << told;
    EXPECT_EQ(told.lost, fault.lost) << whole << '\n' << told;
    EXPECT_TRUE(fault.nearest[0] == '\0' || told.nearest == fault.nearest) << whole << '\n' << told.nearest;
}

constexpr auto kNote = ORRERY_FINDING_NOTE;
constexpr auto kLost = ORRERY_FINDING_LOST;
constexpr auto kFatal = ORRERY_FINDING_FATAL;

// The replies with which users came.
TEST(FaultyReplies, ThatUsersCameWith) {
    const Fault faults[] = {
        {"NTP", R"(@[{"Enable":true},{"Enable":false}])", ORRERY_FINDING_LIST_FOR_RECORD, kLost, "params.table", "",
         "a list of 2 where one record is read"},
        {"NTP", R"({"Enable":true,@"Prot":123})", ORRERY_FINDING_UNKNOWN_KEY, kLost, "params.table.Prot",
         "CFG_NTP_INFO", "nothing reads this key; the nearest that is read is \"Port\"", 0, "Port"},
        {"NTP", R"({"Port":@"123"})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Port", "CFG_NTP_INFO.nPort",
         "\"123\" where a number is read: it reads as 0"},
        {"AccessControl", R"({"State":@"Closed"})", ORRERY_FINDING_UNKNOWN_TEXT, kLost, "params.table.State",
         "CFG_ACCESS_CONTROL_INFO.emState", "it reads as -1", 0,
         "Normal, CloseAlways, OpenAlways, NoPersonNC, NoPersonNO"},
        {"Alarm", R"({"Name":@"1234567890123456789012345678901234567890123456789012345678901234567"})",
         ORRERY_FINDING_TEXT_CUT, kLost, "params.table.Name", "CFG_ALARM_INPUT_INFO.szName",
         "a text of 67 bytes where 63 bytes fit", 4},
        {"NTP", R"({"ServerList":@[{},{},{},{},{},{}]})", ORRERY_FINDING_ELEMENTS_DROPPED, kLost,
         "params.table.ServerList", "CFG_NTP_INFO.stuServers", "6 elements, room for 4: 2 are dropped", 2},
        {"NTP", R"({"Port":@4294967295})", ORRERY_FINDING_OUT_OF_RANGE, kLost, "params.table.Port",
         "CFG_NTP_INFO.nPort", "4294967295 is more than the field takes: it reads as 0"},
        {"Alarm", R"({"EventHandler":{"TimeSection":[[@"1 08:00:00-25:99:00"]]}})", ORRERY_FINDING_BAD_TIME, kNote,
         "params.table.EventHandler.TimeSection[0][0]", "CFG_EVENT_HANDLER_INFO.stuTimeSectionEx",
         "is no time of a day"},
        {"NTP", R"({"result":true,"params":{"table":{"Port":1}}}  @{"more":1})", ORRERY_FINDING_TRAILING_TEXT, kNote,
         "", "", "nobody reads what stands behind the document: \"{\\\"more\\\":1}\""},
        {"NTP", R"({"Port":@null})", ORRERY_FINDING_NULL, kNote, "params.table.Port", "CFG_NTP_INFO.nPort",
         "null: as if the key were absent"},
        {"PicInPic", R"({"Split4":@null})", ORRERY_FINDING_NULL, kNote, "params.table.Split4",
         "CFG_PICINPIC_INFO.pstuSplits", "null: an element without keys"},
        {"NTP", R"({@"Port":123,"Port":124})", ORRERY_FINDING_DUPLICATE_KEY, kLost, "params.table.Port", "",
         "the key stands again on line 1, and only its last value counts"},
        {"NTP", R"({"result":true,"error":@{"code":268632079,"message":"busy"},"params":{"table":{}}})",
         ORRERY_FINDING_DEVICE_ERROR, kNote, "error", "", "the device says: code 268632079, \"busy\""},
    };
    for (const Fault& fault : faults)
        ExpectTold(fault);
}

// Most of a week's periods are as they should be.
TEST(FaultyReplies, WithOnePeriodAmongGoodOnes) {
    const Fault faults[] = {
        {"Alarm",
         R"({"EventHandler":{"TimeSection":[["1 00:00:00-24:00:00","0 08:00:00-17:30:00",@"1 08:00:00-24:00:01"]]}})",
         ORRERY_FINDING_BAD_TIME, kNote, "params.table.EventHandler.TimeSection[0][2]",
         "CFG_EVENT_HANDLER_INFO.stuTimeSectionEx", "is no time of a day"},
        {"Alarm",
         R"({"EventHandler":{"TimeSection":[["1 00:00:00-23:59:59"],["1 00:00:00-23:59:59",@"1 08:00","1 25:0:0-9:0:0"]]}})",
         ORRERY_FINDING_BAD_TIME, kLost, "params.table.EventHandler.TimeSection[1][1]",
         "CFG_EVENT_HANDLER_INFO.stuTimeSectionEx", "the schedule ends here"},
        {"Alarm",
         R"({"EventHandler":{"TimeSection":[@["1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00",)"
         R"("1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00"]]}})",
         ORRERY_FINDING_ELEMENTS_DROPPED, kLost, "params.table.EventHandler.TimeSection[0]",
         "CFG_EVENT_HANDLER_INFO.stuTimeSectionEx", "7 elements, room for 6: 1 is dropped", 1},
        {"AccessTimeSchedule", R"({"TimeSchedule":[["1 00:00:00-24:00:00",@"1 24:00:00-60:00:00"]]})",
         ORRERY_FINDING_BAD_TIME, kNote, "params.table.TimeSchedule[0][1]",
         "CFG_ACCESS_TIME_SCHEDULE_INFO.stuTimeSection", "is no time of a day"},
        {"AccessTimeSchedule",
         R"({"TimeSchedule":[[],@["1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00",)"
         R"("1 00:00:00-01:00:00","1 00:00:00-01:00:00"]]})",
         ORRERY_FINDING_ELEMENTS_DROPPED, kLost, "params.table.TimeSchedule[1]",
         "CFG_ACCESS_TIME_SCHEDULE_INFO.stuTimeSection", "5 elements, room for 4: 1 is dropped", 1},
        {"MonitorWall",
         R"([{"PowerSchedule":["1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00",)"
         R"("1 00:00:00-01:00:00","1 00:00:00-01:00:00","1 00:00:00-01:00:00",@"1 00:60:00-01:00:00"]}])",
         ORRERY_FINDING_BAD_TIME, kNote, "params.table[0].PowerSchedule[6]", "CFG_MONITOR_WALL_INFO.stuPowerSchedule",
         "is no time of a day"},
    };
    for (const Fault& fault : faults)
        ExpectTold(fault);
}

TEST(FaultyReplies, ThatAreRefused) {
    const Fault faults[] = {
        {"NTP", R"({"result":true,"params":{"table":{"Port":@x}}})", ORRERY_FINDING_NOT_JSON, kFatal, "", "",
         "expected a value"},
        {"NTP", R"({"result":true,"params":{"table":{"Port":1}@)", ORRERY_FINDING_NOT_JSON, kFatal, "", "",
         "expected ',' or '}' in this object; the text ends here"},
        {"NTP", R"({"result":@false,"params":{"table":{}}})", ORRERY_FINDING_REFUSED, kFatal, "result", "",
         "\"result\" is false; the command wants true"},
        {"NTP", R"(@{"id":1,"results":true,"params":{"table":{}}})", ORRERY_FINDING_REFUSED, kFatal, "result", "",
         "there is no \"result\"; the command wants true"},
        {"VideoInZoom", R"({"result":@"yes","params":{"table":[]}})", ORRERY_FINDING_REFUSED, kFatal, "result", "",
         "the command wants a number other than 0"},
        {"NTP", R"({"result":true,"params":@{}})", ORRERY_FINDING_NO_VALUE, kFatal, "params.table", "",
         "there is nothing here"},
        {"AccessControl", R"(@"open")", ORRERY_FINDING_WRONG_SHAPE, kFatal, "params.table", "",
         "\"open\" where the command takes an object, or a list of records"},
        {"WorkState", R"(@[])", ORRERY_FINDING_NO_VALUE, kFatal, "params.table", "", "the list is empty: no record"},
        {"VideoAnalyseRule", R"([{"Type":@"CrossLineDetektion"}])", ORRERY_FINDING_UNKNOWN_ITEM, kFatal,
         "params.table[0].Type", "", "no rule is of the type \"CrossLineDetektion\"", 0, "CrossLineDetection"},
        {"NTP", R"(@["result"])", ORRERY_FINDING_WRONG_SHAPE, kFatal, "", "", "the reply is a list, not an object"},
    };
    for (const Fault& fault : faults)
        ExpectTold(fault);
}

TEST(FaultyReplies, OfPicturesInsideThePicture) {
    const Fault faults[] = {
        {"PicInPic", R"({"Split1":[],"Extend":[{"Split9":[{@"Enabel":true}]}]})", ORRERY_FINDING_UNKNOWN_KEY, kLost,
         "params.table.Extend[0].Split9[0].Enabel", "CFG_PICINPIC_TOP", "the nearest that is read is \"Enable\"", 0,
         "Enable"},
        {"PicInPic", R"({"Extend":[{"Extend":@[{"Split9":[]}]}]})", ORRERY_FINDING_WRONG_SHAPE, kLost,
         "params.table.Extend[0].Extend", "", "records inside a further record: nothing of them is read"},
        {"PicInPic", R"({"Extend":@{"Split9":[]}})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Extend", "",
         "an object where a list of records is read: nothing of it is read"},
        {"PicInPic", R"({"Extend":[{},@null]})", ORRERY_FINDING_NULL, kNote, "params.table.Extend[1]", "",
         "null: a record without keys"},
    };
    for (const Fault& fault : faults)
        ExpectTold(fault);
    const std::string further =
        R"({"result":true,"params":{"table":{"Split1":[],"Extend":[{"Split4":[]},{"Split9":[]}]}}})";
    const auto dropped = Explain("PicInPic", further, 2);
    ASSERT_EQ(dropped.size(), 1u);
    EXPECT_EQ(dropped[0].kind, ORRERY_FINDING_ELEMENTS_DROPPED);
    EXPECT_EQ(dropped[0].path, "params.table.Extend");
    EXPECT_EQ(dropped[0].lost, 1u);
    EXPECT_TRUE(Explain("PicInPic", further, 3).empty());
}

TEST(FaultyReplies, OfWhichAPartIsLost) {
    const Fault faults[] = {
        {"NTP", R"({"Enable":@"false"})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Enable",
         "CFG_NTP_INFO.bEnable", "\"false\" where true or false is read: it reads as true"},
        {"NTP", R"({"Port":@123.5})", ORRERY_FINDING_OUT_OF_RANGE, kLost, "params.table.Port", "CFG_NTP_INFO.nPort",
         "123.5 is no whole number: it reads as 123"},
        {"NTP", R"({"UpdatePeriod":@-1})", ORRERY_FINDING_OUT_OF_RANGE, kLost, "params.table.UpdatePeriod",
         "CFG_NTP_INFO.nUpdatePeriod", "-1 is below 0: it reads as 0"},
        {"NTP", R"({"Address":@["pool"]})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Address",
         "CFG_NTP_INFO.szAddress", "a list where a text is read: the field stays empty"},
        {"NTP", R"({"ServerList":@{"Enable":true}})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.ServerList",
         "CFG_NTP_INFO.stuServers", "an object where a list is read"},
        {"NTP", R"({"ServerList":[@5]})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.ServerList[0]",
         "CFG_NTP_INFO.stuServers", "5 where an object is read"},
        {"Locales", R"({"TimeFormat":@"12345678901234567890123456789012"})", ORRERY_FINDING_TEXT_CUT, kLost,
         "params.table.TimeFormat", "CFG_LOCALES_INFO.szTimeFormat", "a text of 32 bytes where 31 bytes fit", 1},
        {"DVRIP", R"({"StreamPolicy":@7})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.StreamPolicy",
         "CFG_DVRIP_INFO.emStreamPolicy", "7 where a text is read"},
        {"AccessControl", R"([{"Name":"A"},{@"name":"B"}])", ORRERY_FINDING_UNKNOWN_KEY, kLost, "params.table[1].name",
         "CFG_ACCESS_CONTROL_INFO", "the nearest that is read is \"Name\"", 0, "Name"},
        {"AccessControl", R"({"FirstEnter":{@"Enabled":true}})", ORRERY_FINDING_UNKNOWN_KEY, kLost,
         "params.table.FirstEnter.Enabled", "CFG_ACCESS_CONTROL_INFO", "the nearest that is read is \"Enable\"", 0,
         "Enable"},
        {"AccessControl", R"({"FirstEnter":@true})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.FirstEnter", "",
         "true where an object is read"},
        {"Alarm", R"({"EventHandler":{"TimeSection":[[@"1 08:00"]]}})", ORRERY_FINDING_BAD_TIME, kLost,
         "params.table.EventHandler.TimeSection[0][0]", "CFG_EVENT_HANDLER_INFO.stuTimeSectionEx", "is no period like"},
        {"Alarm", R"({"EventHandler":{"RecordEnable":@"on"}})", ORRERY_FINDING_WRONG_TYPE, kLost,
         "params.table.EventHandler.RecordEnable", "CFG_EVENT_HANDLER_INFO.bRecordEnable", "it reads as true"},
        {"GPS", R"({"SupportModes":["A",@17]})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.SupportModes[1]",
         "CFG_GPS_INFO.szSupportModes", "17 where a text is read"},
        {"GPS", R"(@[{"SaveDays":1},{"SaveDays":2}])", ORRERY_FINDING_ELEMENTS_DROPPED, kLost, "params.table", "",
         "a list of 2 where one record is read: the first is taken", 1},
        {"", R"({"Event":[{"Code":@"CrosLineDetection","Data":{}}]})", ORRERY_FINDING_UNKNOWN_ITEM, kLost,
         "Event[0].Code", "", "the event is passed over", 0, "CrossLineDetection"},
        {"", R"({"Event":[@{"Code":"CrossLineDetection"}]})", ORRERY_FINDING_UNKNOWN_ITEM, kLost, "Event[0]", "",
         "the event has no \"Data\": the event is passed over"},
        {"", R"({"Event":[{"Code":"CrossLineDetection","Action":@"Begin","Data":{}}]})", ORRERY_FINDING_UNKNOWN_TEXT,
         kLost, "Event[0].Action", "", "the event acts as the one before", 0, "Pulse, Start, Stop"},
        {"", R"({"Event":[{"Code":"CrossLineDetection","Data":{@"Evnet":1}}]})", ORRERY_FINDING_UNKNOWN_KEY, kLost,
         "Event[0].Data.Evnet", "DEV_EVENT_CROSSLINEDETECTION_INFO", "nothing reads this key"},
        {"", R"({"EventList":@{}})", ORRERY_FINDING_WRONG_SHAPE, kLost, "EventList", "", "no event is read"},
        {"VideoAnalyseRule", R"([{"Type":"CrossLineDetection","Enable":@"no"}])", ORRERY_FINDING_WRONG_TYPE, kLost,
         "params.table[0].Enable", "CFG_RULE_CROSSLINE_INFO.bRuleEnable", "it reads as true"},
        {"PtzTour", R"([{"Name":@3}])", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table[0].Name", "CFG_PTZ_TOUR.szName",
         "3 where a text is read"},
        {"AudioDetect", R"([{"MinVolume":100,"MaxVolume":@101}])", ORRERY_FINDING_OUT_OF_RANGE, kNote,
         "params.table[0].MaxVolume", "CFG_AUDIO_DETECT_INFO.nMaxVolume",
         "101 is none of 0 to 100; it is stored as it stands"},
        {"AudioDetect", R"([{"MinVolume":@-1}])", ORRERY_FINDING_OUT_OF_RANGE, kNote, "params.table[0].MinVolume",
         "CFG_AUDIO_DETECT_INFO.nMinVolume", "-1 is none of 0 to 100"},
        {"NAS", R"([{"Name":"a","Protocol":@"NFX"}])", ORRERY_FINDING_UNKNOWN_TEXT, kLost, "params.table[0].Protocol",
         "CFG_NAS_INFO.emProtocol", "\"NFX\" names no code: it reads as -1", 0, "FTP, SMB, ISCSI, NFS"},
        {"MonitorTour", R"({"Interval":@"5"})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Interval",
         "CFG_MONITOR_TOUR_INFO.nInterval", "\"5\" where a number is read: it reads as 0"},
        {"VideoOut", R"({"Color":@[1]})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.Color", "",
         "a list where an object is read"},
        {"VideoOut", R"({"Margin":@[1,2,3,4,5]})", ORRERY_FINDING_ELEMENTS_DROPPED, kLost, "params.table.Margin",
         "CFG_VIDEO_OUT_INFO.nMargin", "5 elements, room for 4: 1 is dropped", 1},
        {"TrafficGlobal", R"({"EnableRedList":@"yes"})", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table.EnableRedList",
         "CFG_TRAFFICGLOBAL_INFO.bEnableRedList", "it reads as true"},
        {"Encode", R"(@[{"MainFormat":[]}])", ORRERY_FINDING_LIST_FOR_RECORD, kLost, "params.table", "",
         "a list of 1 where one record is read"},
        {"VideoAnalyseGlobal", R"({"Scene":{@"Typ":"Normal"}})", ORRERY_FINDING_UNKNOWN_KEY, kLost,
         "params.table.Scene.Typ", "CFG_ANALYSEGLOBAL_INFO", "the nearest that is read is \"Type\"", 0, "Type"},
        {"Record", R"(@{"PreRecord":1})", ORRERY_FINDING_WRONG_SHAPE, kFatal, "params.table", "",
         "an object where the command takes a list of records"},
        {"VideoDiagnosisProfile", R"({"A":{@"VideoDither":{}}})", ORRERY_FINDING_UNKNOWN_KEY, kLost,
         "params.table.A.VideoDither", "CFG_DIAGNOSIS_PROFILE", "nothing reads this key"},
        {"WorkState", R"([{"State":1},{"State":@{}}])", ORRERY_FINDING_WRONG_TYPE, kLost, "params.table[1].State",
         "CFG_WORK_STATE_INFO.nState", "an object where a number is read: it reads as 0"},
    };
    for (const Fault& fault : faults)
        ExpectTold(fault);
}

} // namespace
} // namespace orrery::test
