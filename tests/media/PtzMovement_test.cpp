// What heads do without an operator.
#include "orrery/ptz.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "PtzAutoMovement" ----

constexpr const char* kName = "PtzAutoMovement";
constexpr Answer kRead{1, kNoLength};

struct Movements {
    explicit Movements(std::int32_t room, int fill = 0x11) : info(1), channels(static_cast<std::size_t>(room), fill) {
        Set(room, 99);
    }
    void Set(std::int32_t room, std::int32_t count) {
        info.Set(0, {reinterpret_cast<CFG_PTZ_AUTO_MOVEMENT_CHANNEL*>(channels.data()), room, count});
    }
    void SetCount(std::size_t channel, std::uint32_t count) {
        CFG_PTZ_AUTO_MOVEMENT_CHANNEL record = channels[channel];
        record.nCount = count;
        channels.Set(channel, record);
    }
    Answer Parse(const std::string& table) const { return ParseTable(kName, table, info); }
    std::string Text() const { return PackAll(kName, info); }

    Records<CFG_PTZ_AUTO_MOVEMENT_INFO> info;
    Records<CFG_PTZ_AUTO_MOVEMENT_CHANNEL> channels;
};

constexpr const char* kMovement =
    R"({"Enable":true,"TimeSection":"1 08:00:00-17:30:00","Function":"scan","TourId":2,"PatternId":3,"PresetId":4,)"
    R"("ScanId":5,"AutoHoming":{"Enable":true,"Time":6},"SnapshotEnable":true,"SnapshotDelayTime":7})";
constexpr const char* kMovementText =
    R"({ "AutoHoming" : { "Enable" : 1, "Time" : 6 }, "Enable" : 1, "Function" : "Scan", "PatternId" : 3, )"
    R"("PresetId" : 4, "ScanId" : 5, "SnapshotDelayTime" : 7, "SnapshotEnable" : 1, )"
    R"("TimeSection" : "1 08:00:00-17:30:00", "TourId" : 2 })";
constexpr const char* kStill =
    R"({ "AutoHoming" : { "Enable" : 0, "Time" : 0 }, "Enable" : 0, "Function" : "Tour", "PatternId" : 0, )"
    R"("PresetId" : 0, "ScanId" : 0, "SnapshotDelayTime" : 0, "SnapshotEnable" : 0, )"
    R"("TimeSection" : "0 00:00:00-00:00:00", "TourId" : 0 })";

TEST(PtzAutoMovement, ReadsAndWritesOneChannel) {
    const Movements movements(2);
    ASSERT_EQ(movements.Parse("[" + std::string(kMovement) + ",null]"), kRead);
    EXPECT_EQ(movements.info[0].nReturnChannel, 1);
    const CFG_PTZ_AUTO_MOVEMENT_CHANNEL channel = movements.channels[0];
    EXPECT_EQ(channel.nCount, 2u);
    const CFG_PTZ_AUTO_MOVEMENT& item = channel.stuItems[0];
    EXPECT_EQ(item.bEnable, 1u);
    EXPECT_EQ(item.stuTimeSection.dwMask, 1);
    EXPECT_EQ(item.stuTimeSection.nEndMin, 30);
    EXPECT_EQ(item.emFunction, CFG_PTZ_MOVEMENT_SCAN);
    EXPECT_EQ(item.nTourId, 2);
    EXPECT_EQ(item.nPatternId, 3);
    EXPECT_EQ(item.nPresetId, 4);
    EXPECT_EQ(item.nScanId, 5);
    EXPECT_EQ(item.bAutoHoming, 1u);
    EXPECT_EQ(item.nAutoHomingTime, 6);
    EXPECT_EQ(item.bSnapshotEnable, 1u);
    EXPECT_EQ(item.nSnapshotDelayTime, 7);
    EXPECT_EQ(channel.stuItems[1].nTourId, 0);          // cleared
    EXPECT_EQ(channel.stuItems[2].nTourId, 0x11111111); // left alone
    EXPECT_EQ(movements.channels[1].nCount, 0x11111111u);
    EXPECT_EQ(movements.Text(), "[ " + std::string(kMovementText) + ", " + kStill + " ]");
}

TEST(PtzAutoMovement, ReadsAndWritesManyChannels) {
    Movements movements(3);
    ASSERT_EQ(movements.Parse("[[{\"TourId\":1}],{},[{},{\"TourId\":2}],[{}]]"), kRead);
    EXPECT_EQ(movements.info[0].nReturnChannel, 4); // more than there is room for
    EXPECT_EQ(movements.channels[0].nCount, 1u);
    EXPECT_EQ(movements.channels[0].stuItems[0].nTourId, 1);
    EXPECT_EQ(movements.channels[1].nCount, 0u);
    EXPECT_EQ(movements.channels[2].nCount, 2u);
    EXPECT_EQ(movements.channels[2].stuItems[1].nTourId, 2);
    EXPECT_EQ(movements.Text(), kFailed);
    movements.Set(3, 2);
    std::string first = kStill;
    first.replace(first.rfind("0 }"), 1, "1");
    EXPECT_EQ(movements.Text(), "[ [ " + first + R"( ], "none" ])");
    movements.SetCount(0, 33);
    movements.SetCount(1, 1);
    EXPECT_EQ(movements.Text().substr(0, 14), R"([ "none", [ { )");
}

TEST(PtzAutoMovement, TellsAListOfListsByItsFirstElement) {
    const Movements one(2);
    ASSERT_EQ(one.Parse("[{},[{}]]"), kRead);
    EXPECT_EQ(one.info[0].nReturnChannel, 1);
    EXPECT_EQ(one.channels[0].nCount, 2u);
    ASSERT_EQ(one.Parse("[null,[{}]]"), kRead);
    EXPECT_EQ(one.info[0].nReturnChannel, 1);
    ASSERT_EQ(one.Parse("[[],[{}]]"), kRead);
    EXPECT_EQ(one.info[0].nReturnChannel, 2);
    EXPECT_EQ(one.channels[0].nCount, 0u);
    ASSERT_EQ(one.Parse("[]"), kRead);
    EXPECT_EQ(one.info[0].nReturnChannel, 1);
    EXPECT_EQ(one.channels[0].nCount, 0u);
}

TEST(PtzAutoMovement, EndsAChannelAtThirtyTwo) {
    std::string list = R"({"TourId":1})";
    for (int i = 2; i <= 34; ++i)
        list += R"(,{"TourId":)" + std::to_string(i) + "}";
    Movements movements(1);
    ASSERT_EQ(movements.Parse("[" + list + "]"), kRead);
    EXPECT_EQ(movements.channels[0].nCount, 32u);
    EXPECT_EQ(movements.channels[0].stuItems[31].nTourId, 32);
    movements.Set(1, 1);
    EXPECT_NE(movements.Text(), kFailed);
    for (const std::uint32_t count : {0u, 33u, 0xFFFFFFFFu}) {
        movements.SetCount(0, count);
        EXPECT_EQ(movements.Text(), kFailed) << count;
    }
}

TEST(PtzAutoMovement, NeedsChannelsThatStandInItsArray) {
    Movements movements(2, 0);
    movements.SetCount(0, 1);
    for (const std::int32_t count : {0, -1, 3, INT32_MIN}) {
        movements.Set(2, count);
        EXPECT_EQ(movements.Text(), kFailed) << count;
    }
    movements.info.Set(0, {nullptr, 2, 1});
    EXPECT_EQ(movements.Text(), kFailed);
    EXPECT_EQ(movements.Parse("[{}]"), kRefused);
    for (const std::int32_t room : {0, -1}) {
        movements.Set(room, 9);
        EXPECT_EQ(movements.Parse("[{\"TourId\":4}]"), kRead);
        EXPECT_EQ(movements.info[0].nReturnChannel, 1);
        EXPECT_EQ(movements.channels[0].stuItems[0].nTourId, 0);
    }
}

TEST(PtzAutoMovement, WritesSwitchesAsTheNumbersThatTheyHold) {
    Movements movements(1, 0);
    CFG_PTZ_AUTO_MOVEMENT_CHANNEL channel{};
    channel.nCount = 1;
    channel.stuItems[0].bEnable = 5;
    channel.stuItems[0].bAutoHoming = 6;
    channel.stuItems[0].bSnapshotEnable = 7;
    movements.channels.Set(0, channel);
    movements.Set(1, 1);
    const std::string text = movements.Text();
    EXPECT_NE(text.find(R"("AutoHoming" : { "Enable" : 6, "Time" : 0 }, "Enable" : 5,)"), std::string::npos);
    EXPECT_NE(text.find(R"("SnapshotEnable" : 7)"), std::string::npos);
    EXPECT_EQ(PackBytes(kName, movements.info.data(), movements.info.size(), text.size() + 1), text);
    EXPECT_EQ(PackBytes(kName, movements.info.data(), movements.info.size(), text.size()), kFailed);
}

TEST(PtzAutoMovement, KnowsItsFunctions) {
    const char* const names[] = {"Tour", "Pattern", "Preset", "Scan"};
    for (const int code : {-1, 0, 1, 2, 3, 4, 5}) {
        Movements movements(1, 0);
        CFG_PTZ_AUTO_MOVEMENT_CHANNEL channel{};
        channel.nCount = 1;
        channel.stuItems[0].emFunction = code;
        movements.channels.Set(0, channel);
        movements.Set(1, 1);
        const bool isKnown = code >= 0 && code < 4;
        const std::string text = movements.Text();
        EXPECT_NE(text.find("\"Function\" : \"" + std::string(isKnown ? names[code] : "None") + '"'),
                  std::string::npos);
        ASSERT_EQ(movements.Parse(text), kRead);
        EXPECT_EQ(movements.channels[0].stuItems[0].emFunction, isKnown ? code : 4);
    }
}

TEST(PtzAutoMovement, NeedsAListThatWasNotRefused) {
    for (const char* table : {"null", "{}", "7"}) {
        const Movements movements(1);
        EXPECT_EQ(movements.Parse(table), kRefused) << table;
        EXPECT_EQ(movements.info[0].nReturnChannel, 99);
    }
    const Movements movements(1);
    EXPECT_EQ(ParseDocument(kName, R"({"params":{"table":[{}]}})", movements.info), kRead);
    EXPECT_EQ(ParseDocument(kName, R"({"result":false,"params":{"table":[{}]}})", movements.info), kRefused);
}

// ---- "IdleMotion", "StandingTime", "EnclosureTimeSchedule" ----

template <class R>
void ExpectOneOrMany(const char* command, const std::string& one, const std::string& text) {
    constexpr std::uint32_t size = sizeof(R);
    const Records<R> single(1, 0x11);
    EXPECT_EQ(ParseTable(command, one, single), (Answer{1, size}));
    EXPECT_EQ(PackAll(command, single), text);
    const Records<R> two(2, 3, 0x11);
    EXPECT_EQ(ParseTable(command, "[" + one + ",null," + one + "]", two), (Answer{1, 2 * size}));
    const Records<R> none(1, 0x11);
    EXPECT_EQ(ParseTable(command, "[]", none), (Answer{1, 0}));
    EXPECT_TRUE(none.isAll(0));
    for (const char* table : {"null", "7", "\"x\"", "true"}) {
        const Records<R> refused(1, 0x11);
        EXPECT_EQ(ParseTable(command, table, refused), kRefused) << command << table;
        EXPECT_TRUE(refused.isAll(0));
    }
    const Records<R> refused(1, 0x11);
    EXPECT_EQ(ParseDocument(command, R"({"params":{"table":)" + one + "}}", refused), kRefused);
    Records<R> wide(1, 3, 0);
    wide.Set(0, single[0]);
    EXPECT_EQ(PackAll(command, wide), "[ " + text + " ]");
    EXPECT_EQ(PackBytes(command, single.data(), size, text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes(command, single.data(), size, text.size() + 1), kFailed);
    EXPECT_EQ(PackAll(command, Records<R>(0, size - 1, 0)), kNotBegun);
}

TEST(IdleMotion, IsOneRecordOrAList) {
    ExpectOneOrMany<CFG_IDLE_MOTION_INFO>(
        "IdleMotion",
        R"({"Enable":true,"Timer":2,"Function":"PATTERN","PresetId":3,"ScanId":4,"TourId":5,"PatternId":6})",
        R"({ "Enable" : true, "Function" : "Pattern", "PatternId" : 6, "PresetId" : 3, "ScanId" : 4, "Timer" : 2, )"
        R"("TourId" : 5 })");
    const auto parsed = Parse<CFG_IDLE_MOTION_INFO>("IdleMotion", R"({"Timer":7,"Function":"Dance"})");
    EXPECT_EQ(parsed->nTimer, 7);
    EXPECT_EQ(parsed->emFunction, CFG_IDLE_NONE);
}

TEST(IdleMotion, KnowsItsFunctions) {
    const char* const names[] = {"None", "Preset", "Scan", "Tour", "Pattern"};
    for (const int code : {-1, 0, 1, 2, 3, 4, 5}) {
        CFG_IDLE_MOTION_INFO record{};
        record.emFunction = code;
        record.bEnable = 2; // only 1 is on
        const std::string text = Pack("IdleMotion", record);
        EXPECT_NE(text.find("\"Enable\" : false"), std::string::npos);
        const bool isKnown = code >= 0 && code < 5;
        EXPECT_EQ(text.find("\"Function\"") != std::string::npos, isKnown) << code;
        if (isKnown) {
            EXPECT_NE(text.find('"' + std::string(names[code]) + '"'), std::string::npos);
            EXPECT_EQ(Parse<CFG_IDLE_MOTION_INFO>("IdleMotion", text)->emFunction, code);
        }
    }
}

TEST(StandingTime, IsOneRecordOrAList) {
    ExpectOneOrMany<CFG_STANDING_TIME_INFO>("StandingTime", R"({"Enable":true,"Upperlimit":20,"Interval":30})",
                                            R"({ "Enable" : true, "Interval" : 30, "Upperlimit" : 20 })");
    CFG_STANDING_TIME_INFO record{2, 1, 3};
    EXPECT_EQ(Pack("StandingTime", record), R"({ "Enable" : false, "Interval" : 3, "Upperlimit" : 1 })");
}

std::string WeekText(const std::string& first) {
    std::string text = "[ ";
    for (int day = 0; day < 8; ++day) {
        text += day == 0 ? "[ " : ", [ ";
        for (int section = 0; section < 6; ++section)
            text += (section == 0 ? "" : ", ") + ('"' + (day + section == 0 ? first : "0 00:00:00-00:00:00")) + '"';
        text += " ]";
    }
    return text + " ]";
}

constexpr const char* kSchedule = "EnclosureTimeSchedule";

TEST(EnclosureTimeSchedule, IsOneRecordOrAList) {
    ExpectOneOrMany<CFG_ENCLOSURE_SCHEDULE_INFO>(
        kSchedule, R"({"Enclosure":[{"EnclosureID":7,"TimeSchedule":[["1 8:0:0-9:30:5"]]}],"Version":"V1"})",
        R"({ "Enclosure" : [ { "EnclosureID" : 7, "TimeSchedule" : )" + WeekText("1 08:00:00-09:30:05")
            + R"( } ], "Version" : "V1" })");
    const auto empty = Parse<CFG_ENCLOSURE_SCHEDULE_INFO>(kSchedule, "{}");
    EXPECT_TRUE(empty.isCleared());
    EXPECT_EQ(Pack(kSchedule, *empty), R"({ "Version" : "" })");
}

TEST(EnclosureTimeSchedule, TakesOneEnclosureWithoutItsList) {
    const auto parsed = Parse<CFG_ENCLOSURE_SCHEDULE_INFO>(
        kSchedule, R"({"Enclosure":{"EnclosureID":9,"TimeSchedule":[[],["1 1:2:3-4:5:6"]]}})");
    EXPECT_EQ(parsed->nCount, 1u);
    EXPECT_EQ(parsed->stuEnclosures[0].nEnclosureId, 9);
    EXPECT_EQ(parsed->stuEnclosures[0].stuTimeSchedule[1][0].nEndSec, 6);
    for (const char* none : {R"({"Enclosure":null})", R"({"Enclosure":5})", R"({"Enclosure":[]})"})
        EXPECT_EQ(Parse<CFG_ENCLOSURE_SCHEDULE_INFO>(kSchedule, none)->nCount, 0u) << none;
}

TEST(EnclosureTimeSchedule, EndsAtItsArray) {
    std::string list = R"({"EnclosureID":1})";
    for (int i = 2; i <= 130; ++i)
        list += R"(,{"EnclosureID":)" + std::to_string(i) + "}";
    const auto parsed = Parse<CFG_ENCLOSURE_SCHEDULE_INFO>(kSchedule, R"({"Enclosure":[)" + list + R"(],"Version":")"
                                                                          + std::string(70, 'v') + "\"}");
    EXPECT_EQ(parsed->nCount, 128u);
    EXPECT_EQ(parsed->stuEnclosures[127].nEnclosureId, 128);
    EXPECT_EQ(std::string(parsed->szVersion), std::string(63, 'v'));
    const std::string text = Pack(kSchedule, *parsed);
    parsed.record->nCount = 129;
    EXPECT_EQ(Pack(kSchedule, *parsed), text);
}

} // namespace
} // namespace orrery::test
