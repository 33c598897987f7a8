#include "Commands.h"
#include "orrery/alarm_caps.h"
#include "orrery/encode.h"

#include "orrery/calls.h"

#include <cctype>
#include <cstring>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

using orrery::Command;
using orrery::Commands;
using orrery::FindCommand;

constexpr const char* kReply = R"({ "result" : true, "params" : { "table" : { "Enable" : true } } })";

template <class Change>
std::string With(std::string_view name, Change change) {
    std::string text(name);
    for (char& c : text)
        c = static_cast<char>(change(static_cast<unsigned char>(c)));
    return text;
}

TEST(ParseData, NullArgumentsAndNoRoomAreRefusedUntouched) {
    unsigned char buffer[4] = {9, 9, 9, 9};
    std::uint32_t length = 5;
    EXPECT_EQ(CLIENT_ParseData(nullptr, kReply, buffer, 4, &length), 0);
    EXPECT_EQ(CLIENT_ParseData("PwdReset", nullptr, buffer, 4, &length), 0);
    EXPECT_EQ(CLIENT_ParseData("PwdReset", kReply, nullptr, 4, &length), 0);
    EXPECT_EQ(CLIENT_ParseData("PwdReset", kReply, buffer, 0, &length), 0);
    EXPECT_EQ(buffer[0], 9);
    EXPECT_EQ(length, 5u);
}

TEST(ParseData, UnknownCommandsAreRefusedUntouched) {
    for (const char* name :
         {"", "PwdReset ", " PwdReset", "PwdRese", "PwdResetX", "Nonsense", "PwdReset\n", "Alarm.", "\xC3\x84larm"}) {
        unsigned char buffer[4] = {9, 9, 9, 9};
        std::uint32_t length = 5;
        EXPECT_EQ(CLIENT_ParseData(name, kReply, buffer, 4, &length), 0) << name;
        EXPECT_EQ(buffer[0], 9);
        EXPECT_EQ(length, 5u);
        char text[] = "#";
        EXPECT_EQ(CLIENT_PacketData(name, buffer, 4, text, 1), 0) << name;
        EXPECT_EQ(text[0], '#');
    }
}

TEST(PacketData, NullArgumentsAreRefusedUntouched) {
    const std::uint32_t record = 1;
    char text[64] = "#";
    EXPECT_EQ(CLIENT_PacketData(nullptr, &record, 4, text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData("PwdReset", nullptr, 4, text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData("PwdReset", &record, 4, nullptr, sizeof text), 0);
    EXPECT_STREQ(text, "#");
}

TEST(Commands, LookUpFoldsAsciiLettersOnly) {
    for (const Command& command : Commands()) {
        EXPECT_EQ(FindCommand(command.name), &command);
        EXPECT_EQ(FindCommand(With(command.name, [](int c) { return std::tolower(c); })), &command) << command.name;
        EXPECT_EQ(FindCommand(With(command.name, [](int c) { return std::toupper(c); })), &command) << command.name;
        // The bit that tells small letters from capitals makes no pair of other characters.
        const std::string flipped = With(command.name, [](int c) { return c == '.' ? '.' ^ 0x20 : c; });
        if (flipped != command.name) {
            EXPECT_EQ(FindCommand(flipped), nullptr) << flipped;
        }
        EXPECT_EQ(FindCommand(std::string(command.name) + " "), nullptr);
        EXPECT_EQ(FindCommand(command.name.substr(1)), nullptr);
    }
}

TEST(Commands, TheRecordsBehindFoldedNames) {
    char text[64];
    const std::uint32_t on = 1;
    EXPECT_NE(CLIENT_PacketData("g3g4AUTOCHANGE", &on, 4, text, sizeof text), 0);
    EXPECT_STREQ(text, "{ \"Enable\" : true }\n");
    CFG_EX_ALARM_BOX_CAPS caps{};
    EXPECT_NE(CLIENT_ParseData("ALARM.GETEXALARMBOXCAPS",
                               R"({ "result" : true, "params" : { "caps" : { "AlarmIn" : 3 } } })", &caps, sizeof caps,
                               nullptr),
              0);
    EXPECT_EQ(caps.nAlarmIn, 3);
}

TEST(Commands, ACommandInSmallLettersDoesTheSame) {
    const char* const reply = R"({ "result" : true, "params" : { "table" :
        { "MainFormat" : [ { "VideoEnable" : true, "Video" : { "Width" : 704 } } ] } } })";
    const auto parse = [&](const char* command) {
        std::vector<unsigned char> bytes(sizeof(CFG_ENCODE_INFO));
        EXPECT_NE(CLIENT_ParseData(command, reply, bytes.data(), sizeof(CFG_ENCODE_INFO), nullptr), 0) << command;
        return bytes;
    };
    const auto record = parse("Encode");
    EXPECT_NE(record, std::vector<unsigned char>(sizeof(CFG_ENCODE_INFO)));
    EXPECT_EQ(parse("encode"), record);
    EXPECT_EQ(parse("ENCODE"), record);
    std::vector<unsigned char> bytes(sizeof(CFG_ENCODE_INFO));
    for (const char* other : {"Encode ", " Encode", "Encod", "Encode.", "encode.getCap"})
        EXPECT_EQ(CLIENT_ParseData(other, reply, bytes.data(), sizeof(CFG_ENCODE_INFO), nullptr), 0) << other;
}

TEST(Commands, TheseAreServed) {
    const std::set<std::string_view> bothWays = {"G3G4AutoChange",
                                                 "CabinLedTimeSchedule",
                                                 "PwdReset",
                                                 "Alarm",
                                                 "NetAlarm",
                                                 "MotionDetect",
                                                 "LossDetect",
                                                 "BlindDetect",
                                                 "StorageNotExist",
                                                 "StorageFailure",
                                                 "StorageLowSpace",
                                                 "NetAbort",
                                                 "IPConflict",
                                                 "MacConflict",
                                                 "PSTNBreakLine",
                                                 "Encode",
                                                 "EncodePlan",
                                                 "EncodeAdapt",
                                                 "SmartEncode",
                                                 "EncodeEncrypt",
                                                 "NvrEncrypt",
                                                 "CompressPlay",
                                                 "StroboscopicLamp",
                                                 "Network",
                                                 "RTSP",
                                                 "Multicast",
                                                 "DVRIP",
                                                 "Mobile",
                                                 "Email",
                                                 "STP",
                                                 "AIOAppConfig",
                                                 "WLan",
                                                 "Https",
                                                 "VideoAnalyseRule",
                                                 "AudioAnalyseRule"};
    const std::set<std::string_view> parseOnly = {"alarm.getAlarmCaps",      "alarm.getExAlarmCaps",
                                                  "alarm.getExAlarmBoxCaps", "AnalogAlarm.getCaps",
                                                  "LowRateWPAN.getCaps",     "IVSFramRule"};
    for (const auto name : bothWays) {
        const Command* const command = FindCommand(name);
        ASSERT_NE(command, nullptr) << name;
        EXPECT_TRUE(command->parses() && command->packs()) << name;
    }
    for (const auto name : parseOnly) {
        const Command* const command = FindCommand(name);
        ASSERT_NE(command, nullptr) << name;
        EXPECT_TRUE(command->parses() && !command->packs()) << name;
    }
}

TEST(Commands, ACommandOfOneDirectionTouchesNothingInTheOther) {
    for (const Command& command : Commands()) {
        std::vector<unsigned char> bytes(command.table->size, 9);
        const auto size = static_cast<std::uint32_t>(bytes.size());
        const std::string name(command.name);
        if (!command.packs()) {
            char text[] = "#";
            EXPECT_EQ(CLIENT_PacketData(name.c_str(), bytes.data(), size, text, sizeof text), 0) << name;
            EXPECT_STREQ(text, "#");
        }
        if (!command.parses()) {
            EXPECT_EQ(CLIENT_ParseData(name.c_str(), kReply, bytes.data(), size, nullptr), 0) << name;
            EXPECT_EQ(bytes, std::vector<unsigned char>(size, 9));
        }
    }
}

std::int32_t Ignore(std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) {
    ADD_FAILURE() << "no event is decoded";
    return 0;
}

TEST(EventExports, NullArgumentsAreRefused) {
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData(nullptr, 5, Ignore, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData("{ }", 5, nullptr, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseDataByCallback(nullptr, 5, Ignore, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseDataByCallback("{ }", 5, nullptr, nullptr), 0);
    char output[4] = "abc";
    const char* const any = "x";
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(nullptr, 1, any, any, output, 4), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(any, 1, nullptr, any, output, 4), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(any, 1, any, nullptr, output, 4), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(any, 1, any, any, nullptr, 4), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(any, 1, any, any, output, 0), 0);
    EXPECT_STREQ(output, "abc");
}

} // namespace
