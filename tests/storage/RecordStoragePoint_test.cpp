// "RecordStoragePoint": the record of one channel, and an envelope that leads to those of all.
#include "orrery/recording.h"
#include "support/Call.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Point = CFG_RECORD_STORAGE_POINT_INFO;
using Item = CFG_RECORD_STORAGE_POINT_ITEM;
using Envelope = CFG_RECORD_STORAGE_POINT_CHANNELS;

constexpr const char* kPoint = "RecordStoragePoint";
constexpr const char* kSizeMessage = "_ParamConvert: invalid dwSize";

// What is written of an item of which only the number is set.
std::string ItemText(int local) {
    return R"({ "AutoSync" : false, "AutoSyncRange" : 0, "CompressBefore" : 0, "Local" : )" + std::to_string(local)
           + R"(, "LocalForEmergency" : false, "RealtimeCompress" : "", "Redundant" : "", "Remote" : "" })";
}

// ---- One channel ----

TEST(RecordStoragePoint, GoesRoundWhole) {
    const auto parsed = Parse<Point>(
        kPoint, R"({"TimingRecord":{"Local":1,"RealtimeCompress":"here","Redundant":"there","Remote":"far",)"
                R"("AutoSync":true,"AutoSyncRange":4000000000,"LocalForEmergency":true,"CompressBefore":3},)"
                R"("AlarmSnapShot":{"Local":-5,"AutoSyncRange":-1}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(Point));
    EXPECT_EQ(parsed->nCount, 2);
    const Item& alarm = parsed->stuItems[0]; // in the order of the names
    EXPECT_EQ(alarm.dwSize, sizeof(Item));
    EXPECT_EQ(alarm.emType, CFG_RECORD_STORAGE_ALARM_SNAPSHOT);
    EXPECT_EQ(alarm.nLocal, -5);
    EXPECT_EQ(alarm.nAutoSyncRange, 0u); // a negative one is none
    EXPECT_STREQ(alarm.szRemote, "");
    const Item& timing = parsed->stuItems[1];
    EXPECT_EQ(timing.dwSize, sizeof(Item));
    EXPECT_EQ(timing.emType, CFG_RECORD_STORAGE_TIMING_RECORD);
    EXPECT_EQ(timing.nLocal, 1);
    EXPECT_STREQ(timing.szRealtimeCompress, "here");
    EXPECT_STREQ(timing.szRedundant, "there");
    EXPECT_STREQ(timing.szRemote, "far");
    EXPECT_EQ(timing.bAutoSync, 1u);
    EXPECT_EQ(timing.nAutoSyncRange, 4000000000u);
    EXPECT_EQ(timing.bLocalForEmergency, 1u);
    EXPECT_EQ(timing.nCompressBefore, 3u);
    EXPECT_EQ(parsed->stuItems[2].dwSize, 0u);
    EXPECT_EQ(Pack(kPoint, *parsed),
              R"({ "AlarmSnapShot" : )" + ItemText(-5)
                  + R"(, "TimingRecord" : { "AutoSync" : true, "AutoSyncRange" : 4000000000, "CompressBefore" : 3, )"
                    R"("Local" : 1, "LocalForEmergency" : true, "RealtimeCompress" : "here", "Redundant" : "there", )"
                    R"("Remote" : "far" } })");
}

TEST(RecordStoragePoint, KnowsItsNames) {
    const char* const names[] = {"TimingRecord",        "ManualRecord",  "VideoDetectRecord", "AlarmRecord",
                                 "CardRecord",          "EventRecord",   "TimingSnapShot",    "ManualSnapShot",
                                 "VideoDetectSnapShot", "AlarmSnapShot", "CardSnapShot",      "EventSnapShot",
                                 "TimingExtra1Record"};
    for (int code = 0; code < 13; ++code) {
        std::string name = names[code];
        const auto parsed = Parse<Point>(kPoint, "{\"" + name + "\":{}}");
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->nCount, 1);
        EXPECT_EQ(parsed->stuItems[0].emType, code);
        EXPECT_EQ(Pack(kPoint, *parsed), "{ \"" + name + "\" : " + ItemText(0) + " }");
        for (char& c : name)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        EXPECT_EQ(Parse<Point>(kPoint, "{\"" + name + "\":{}}")->stuItems[0].emType, code) << name;
    }
    for (const char* name : {"Other", "", "TimingRecord ", "Timing"}) {
        const auto parsed = Parse<Point>(kPoint, std::string("{\"") + name + "\":{\"Local\":4}}");
        EXPECT_EQ(parsed->nCount, 1);
        EXPECT_EQ(parsed->stuItems[0].emType, CFG_RECORD_STORAGE_UNKNOWN) << name;
        EXPECT_EQ(parsed->stuItems[0].nLocal, 4);
        EXPECT_EQ(Pack(kPoint, *parsed), "null") << name;
    }
    for (const int code : {-1, 13, 14, 0x10000}) {
        const auto record = Cleared<Point>();
        record->nCount = 2;
        record->stuItems[0].emType = code;
        record->stuItems[1].emType = CFG_RECORD_STORAGE_CARD_RECORD;
        EXPECT_EQ(Pack(kPoint, *record), R"({ "CardRecord" : )" + ItemText(0) + " }") << code;
    }
}

TEST(RecordStoragePoint, ANullIsAnItemWithoutKeys) {
    const auto parsed = Parse<Point>(kPoint, R"({"EventRecord":{"Local":4},"CardRecord":null})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nCount, 2);
    EXPECT_EQ(parsed->stuItems[0].dwSize, sizeof(Item));
    EXPECT_EQ(parsed->stuItems[0].emType, CFG_RECORD_STORAGE_CARD_RECORD);
    EXPECT_EQ(parsed->stuItems[0].nLocal, 0);
    EXPECT_EQ(parsed->stuItems[1].emType, CFG_RECORD_STORAGE_EVENT_RECORD);
    EXPECT_EQ(Pack(kPoint, *parsed),
              R"({ "CardRecord" : )" + ItemText(0) + R"(, "EventRecord" : )" + ItemText(4) + " }");
}

TEST(RecordStoragePoint, TextsEndAtTheirFields) {
    const auto parsed =
        Parse<Point>(kPoint, R"({"CardRecord":{"Remote":")" + std::string(255, 'r') + R"(","Redundant":")"
                                 + std::string(256, 'd') + R"(","RealtimeCompress":7}})");
    EXPECT_EQ(parsed->stuItems[0].szRemote, std::string(255, 'r'));
    EXPECT_EQ(parsed->stuItems[0].szRedundant, std::string(255, 'd'));
    EXPECT_STREQ(parsed->stuItems[0].szRealtimeCompress, "");
}

TEST(RecordStoragePoint, KeepsThirtyTwoMembers) {
    std::string members = R"("a":null)"; // its name takes a place too
    for (int i = 10; i < 43; ++i)
        members += ",\"m" + std::to_string(i) + "\":{\"Local\":" + std::to_string(i) + "}";
    const auto parsed = Parse<Point>(kPoint, "{" + members + "}");
    EXPECT_EQ(parsed->nCount, 32);
    EXPECT_EQ(parsed->stuItems[0].emType, CFG_RECORD_STORAGE_UNKNOWN);
    EXPECT_EQ(parsed->stuItems[1].nLocal, 10);
    EXPECT_EQ(parsed->stuItems[31].nLocal, 40);
    const auto record = Cleared<Point>();
    for (auto& item : record->stuItems)
        item.emType = CFG_RECORD_STORAGE_UNKNOWN;
    record->stuItems[31].emType = CFG_RECORD_STORAGE_TIMING_RECORD;
    for (const int count : {32, 33, 0x7FFFFFFF}) {
        record->nCount = count;
        EXPECT_EQ(Pack(kPoint, *record), R"({ "TimingRecord" : )" + ItemText(0) + " }") << count;
    }
    for (const int count : {31, 0, -1}) {
        record->nCount = count;
        EXPECT_EQ(Pack(kPoint, *record), "null") << count;
    }
    // Of one kind the last stands.
    record->nCount = 32;
    record->stuItems[30].emType = CFG_RECORD_STORAGE_TIMING_RECORD;
    record->stuItems[31].nLocal = 8;
    EXPECT_EQ(Pack(kPoint, *record), R"({ "TimingRecord" : )" + ItemText(8) + " }");
}

TEST(RecordStoragePoint, AMissingTableGivesZeros) {
    for (const char* document :
         {"{}", R"({"result":true})", R"({"params":{"table":null}})", R"({"params":{"table":[]}})",
          R"({"params":{"table":[{"CardRecord":{}}]}})", R"({"params":{"table":7}})"}) {
        const auto parsed = ParseDocument<Point>(kPoint, document);
        EXPECT_TRUE(parsed) << document;
        EXPECT_EQ(parsed.length, sizeof(Point));
        EXPECT_TRUE(parsed.isCleared());
    }
    const auto refused = ParseDocument<Point>(kPoint, R"({"result":false,"params":{"table":{"CardRecord":{}}}})");
    EXPECT_TRUE(refused); // read all the same
    EXPECT_EQ(refused->nCount, 1);
    const auto broken = ParseDocument<Point>(kPoint, "{");
    EXPECT_FALSE(broken);
    EXPECT_TRUE(broken.isCleared());
    const Records<char> tooSmall(sizeof(Point) - 1, 0x11);
    EXPECT_EQ(ParseDocument(kPoint, "{}", tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
    const auto record = Cleared<Point>();
    EXPECT_EQ(PackBytes(kPoint, record.get(), sizeof(Point) - 1, 99), kNotBegun);
    EXPECT_EQ(PackBytes(kPoint, record.get(), sizeof(Point), 5), "null"); // its newline gives way
    EXPECT_EQ(PackBytes(kPoint, record.get(), sizeof(Point), 4), kFailed);
}

// ---- All channels ----

// Channels of the caller's, behind guarded memory, and an envelope that leads to them.
struct Channels {
    explicit Channels(std::size_t count, int fill = 0x11) : points(count, fill) {
        envelope.dwSize = sizeof envelope;
        envelope.nChannelCount = static_cast<std::int32_t>(count);
        envelope.pstuChannels = reinterpret_cast<Point*>(points.data());
    }
    Answer Parse(const std::string& table) { return ParseText(R"({"params":{"table":)" + table + "}}"); }
    Answer ParseText(const std::string& text) {
        std::uint32_t length = kNoLength;
        const auto done = CLIENT_ParseData(kPoint, text.c_str(), &envelope, sizeof envelope, &length);
        return {done, length};
    }
    std::string Pack() const { return WithoutNewline(PackBytes(kPoint, &envelope, sizeof envelope, kAmple)); }

    Records<Point> points;
    Envelope envelope{};
};

constexpr Answer kRead{1, sizeof(Envelope)};

TEST(RecordStoragePointChannels, GoRoundAsAList) {
    Channels channels(3);
    ASSERT_EQ(channels.Parse(R"([{"CardRecord":{"Local":4}},null,{"AlarmRecord":{"Local":5},"Other":{}},{}])"), kRead);
    EXPECT_EQ(channels.envelope.nChannelCount, 3); // the fourth has no room
    EXPECT_EQ(channels.envelope.dwSize, sizeof(Envelope));
    EXPECT_EQ(channels.points[0].nCount, 1);
    EXPECT_EQ(channels.points[0].stuItems[0].nLocal, 4);
    EXPECT_EQ(channels.points[0].stuItems[1].nLocal, 0); // cleared
    EXPECT_EQ(channels.points[1].nCount, 0);
    EXPECT_EQ(channels.points[2].nCount, 2);
    EXPECT_EQ(channels.points[2].stuItems[1].emType, CFG_RECORD_STORAGE_UNKNOWN);
    EXPECT_EQ(channels.Pack(),
              R"([ { "CardRecord" : )" + ItemText(4) + R"( }, null, { "AlarmRecord" : )" + ItemText(5) + " } ]");
}

TEST(RecordStoragePointChannels, TheSmallerOfRoomAndListCounts) {
    Channels channels(3);
    ASSERT_EQ(channels.Parse(R"([{"CardRecord":{}}])"), kRead);
    EXPECT_EQ(channels.envelope.nChannelCount, 1);
    EXPECT_EQ(channels.points[1].nCount, 0x11111111); // not reached
    for (const char* table : {"null", "[]", "7", R"({"CardRecord":{}})"}) {
        Channels none(2);
        ASSERT_EQ(none.Parse(table), kRead) << table;
        EXPECT_EQ(none.envelope.nChannelCount, 0) << table;
        EXPECT_TRUE(none.points.isAll(0x11));
    }
    for (const std::int32_t count : {0, -1, INT32_MIN}) {
        Channels none(1);
        none.envelope.nChannelCount = count;
        ASSERT_EQ(none.Parse("[{}]"), kRead);
        EXPECT_EQ(none.envelope.nChannelCount, 0);
        EXPECT_TRUE(none.points.isAll(0x11));
    }
    Channels nowhere(1);
    nowhere.envelope.pstuChannels = nullptr;
    ASSERT_EQ(nowhere.Parse("[{}]"), kRead);
    EXPECT_EQ(nowhere.envelope.nChannelCount, 0);
}

TEST(RecordStoragePointChannels, FailWithTheirText) {
    Channels channels(1);
    EXPECT_EQ(channels.ParseText("{"), kRefused);
    EXPECT_EQ(channels.envelope.nChannelCount, 1);
    EXPECT_TRUE(channels.points.isAll(0x11));
    EXPECT_EQ(channels.ParseText(R"({"result":false,"params":{"table":[{}]}})"), kRead); // read all the same
    EXPECT_EQ(channels.points[0].nCount, 0);
}

TEST(RecordStoragePointChannels, OnlyWhatTheCallerKnowsOfTheEnvelopeCounts) {
    // Nothing but the word itself: no channels, no failure.
    Channels word(1);
    word.envelope.dwSize = 4;
    const LogLines log;
    EXPECT_EQ(word.Parse("[{}]"), kRead);
    EXPECT_EQ(word.envelope.nChannelCount, 1); // not the caller's
    EXPECT_TRUE(word.points.isAll(0x11));
    EXPECT_EQ(word.Pack(), kFailed);
    // The count and not all of the pointer.
    for (const std::uint32_t size : {8u, static_cast<std::uint32_t>(offsetof(Envelope, pstuChannels)) + 4}) {
        Channels part(1);
        part.envelope.dwSize = size;
        EXPECT_EQ(part.Parse("[{}]"), kRead);
        EXPECT_EQ(part.envelope.nChannelCount, 0);
        EXPECT_TRUE(part.points.isAll(0x11));
        part.envelope.nChannelCount = 1;
        part.envelope.pstuChannels = reinterpret_cast<Point*>(part.points.data());
        EXPECT_EQ(part.Pack(), kFailed);
    }
    // A newer caller's envelope: what this library knows of it.
    for (const std::uint32_t size : {17u, 4096u, 0xFFFFFFFFu}) {
        Channels newer(1);
        newer.envelope.dwSize = size;
        EXPECT_EQ(newer.Parse(R"([{"CardRecord":{"Local":6}}])"), kRead) << size;
        EXPECT_EQ(newer.envelope.dwSize, size);
        EXPECT_EQ(newer.envelope.nChannelCount, 1);
        EXPECT_EQ(newer.Pack(), R"([ { "CardRecord" : )" + ItemText(6) + " } ]");
    }
    EXPECT_TRUE(log.texts(E_LOG_LEVEL_ERROR).empty());
}

TEST(RecordStoragePointChannels, ASizeWordBelowItselfIsToldOnBothWays) {
    for (const std::uint32_t size : {0u, 3u}) {
        Channels channels(1);
        channels.envelope.dwSize = size;
        {
            const LogLines log;
            EXPECT_EQ(channels.Parse("[{}]"), kRead);
            EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, kSizeMessage), 2); // in and out
        }
        EXPECT_EQ(channels.envelope.nChannelCount, 1); // nothing moved
        EXPECT_TRUE(channels.points.isAll(0x11));
        const LogLines log;
        EXPECT_EQ(channels.Pack(), kFailed);
        EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, kSizeMessage), 1);
    }
}

TEST(RecordStoragePointChannels, WithoutItemsHaveNoPlaceAtTheEnd) {
    Channels channels(4, 0);
    EXPECT_EQ(channels.Pack(), "null");
    auto second = std::make_unique<Point>();
    second->nCount = 2;
    second->stuItems[0].emType = CFG_RECORD_STORAGE_UNKNOWN;
    second->stuItems[1].emType = CFG_RECORD_STORAGE_EVENT_RECORD;
    channels.points.Set(1, *second);
    second->nCount = 1; // of no kind that has a name
    channels.points.Set(2, *second);
    const std::string text = R"([ null, { "EventRecord" : )" + ItemText(0) + " } ]";
    EXPECT_EQ(channels.Pack(), text);
    // A text of exactly the capacity loses its newline.
    EXPECT_EQ(PackBytes(kPoint, &channels.envelope, sizeof(Envelope), text.size() + 1), text);
    EXPECT_EQ(PackBytes(kPoint, &channels.envelope, sizeof(Envelope), text.size()), kFailed);
    for (const std::int32_t count : {0, -1}) {
        channels.envelope.nChannelCount = count;
        EXPECT_EQ(channels.Pack(), kFailed);
    }
    channels.envelope.nChannelCount = 1;
    channels.envelope.pstuChannels = nullptr;
    EXPECT_EQ(channels.Pack(), kFailed);
}

TEST(RecordStoragePointChannels, TheExactSizeTellsThemFromARecord) {
    Channels channels(1);
    std::uint32_t length = kNoLength;
    char room[2 * sizeof(Envelope)];
    std::memcpy(room, &channels.envelope, sizeof channels.envelope);
    constexpr std::uint32_t kEnvelope = sizeof(Envelope);
    for (const std::uint32_t size : {kEnvelope - 1, kEnvelope + 1}) {
        EXPECT_EQ(CLIENT_ParseData(kPoint, R"({"params":{"table":[{}]}})", room, size, &length), 0);
        EXPECT_EQ(PackBytes(kPoint, room, size, 99), kNotBegun);
    }
    EXPECT_EQ(length, kNoLength);
    EXPECT_TRUE(channels.points.isAll(0x11));
}

} // namespace
} // namespace orrery::test
