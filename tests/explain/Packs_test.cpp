// What of records leaves no trace in their text is told, member by member, and nothing else is.
#include "explain/Explained.h"

#include "explain/Packs.h"
#include "support/CallerMemory.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include "orrery/access_control.h"
#include "orrery/alarm_input.h"
#include "orrery/device_settings.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace orrery::test {
namespace {

std::vector<Found> ExplainRecord(const char* command, const void* record, std::size_t size) {
    std::vector<Found> found;
    EXPECT_GE(ORRERY_ExplainRecord(command, record, static_cast<std::uint32_t>(size), Keep, &found), 0);
    return found;
}

TEST(ExplainedRecords, TellWhatWritesNothing) {
    const auto alarm = std::make_unique<CFG_ALARM_INPUT_INFO>();
    std::strcpy(alarm->szName, "door");
    alarm->bEnable = 1;
    EXPECT_TRUE(ExplainRecord("Alarm", alarm.get(), sizeof *alarm).empty());
    alarm->nChannel = 3;
    const auto found = ExplainRecord("Alarm", alarm.get(), sizeof *alarm);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].kind, ORRERY_FINDING_WRITES_NOTHING);
    EXPECT_EQ(found[0].word, "writes-nothing");
    EXPECT_EQ(found[0].gravity, ORRERY_FINDING_LOST);
    EXPECT_EQ(found[0].path, "nChannel");
    EXPECT_EQ(found[0].field, "CFG_ALARM_INPUT_INFO.nChannel");
    EXPECT_EQ(found[0].line, 0u);
    EXPECT_EQ(found[0].column, 0u);
}

TEST(ExplainedRecords, TellElementsBehindTheirCount) {
    CFG_NTP_INFO ntp{};
    ntp.nServerNum = 1;
    ntp.stuServers[0].nPort = 123;
    ntp.stuServers[2].nPort = 125;
    const auto found = ExplainRecord("NTP", &ntp, sizeof ntp);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].path, "stuServers[2]");
    EXPECT_EQ(found[0].field, "CFG_NTP_INFO.stuServers");
}

TEST(ExplainedRecords, TellRecordsThatTheTextHasNoPlaceFor) {
    CFG_NTP_INFO ntp[3] = {};
    ntp[0].nPort = 1;
    ntp[1].nPort = 2;
    const auto found = ExplainRecord("NTP", ntp, sizeof ntp);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].kind, ORRERY_FINDING_ELEMENTS_DROPPED);
    EXPECT_EQ(found[0].path, "[1]");
    EXPECT_EQ(found[0].lost, 2u);
    EXPECT_EQ(found[0].message, "3 records, of which the text holds the first only");
}

TEST(ExplainedRecords, TellCodesWithoutAName) {
    const auto doors = std::make_unique<CFG_ACCESS_CONTROL_INFO[]>(2);
    doors[0].emState = CFG_ACCESS_STATE_NORMAL;
    doors[1].emState = 99;
    const auto found = ExplainRecord("AccessControl", doors.get(), 2 * sizeof doors[0]);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].kind, ORRERY_FINDING_OUT_OF_RANGE);
    EXPECT_EQ(found[0].path, "[1].emState");
    EXPECT_EQ(found[0].message, "99 is no code: no name is written for it");
}

TEST(ExplainedRecords, TellWhyARecordIsRefused) {
    CFG_NTP_INFO ntp{};
    const auto found = ExplainRecord("NTP", &ntp, sizeof ntp - 1);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].kind, ORRERY_FINDING_REFUSED);
    EXPECT_EQ(found[0].gravity, ORRERY_FINDING_FATAL);
    EXPECT_EQ(found[0].message,
              "one record has " + std::to_string(sizeof ntp) + " bytes, there are " + std::to_string(sizeof ntp - 1));
    std::vector<Found> none;
    EXPECT_EQ(ORRERY_ExplainRecord("alarm.getAlarmCaps", &ntp, sizeof ntp, Keep, &none),
              ORRERY_EXPLAIN_UNKNOWN_COMMAND);
    EXPECT_EQ(ORRERY_ExplainRecord("NTP", nullptr, sizeof ntp, Keep, &none), ORRERY_EXPLAIN_BAD_ARGUMENT);
    EXPECT_TRUE(none.empty());
}

// What is told of a record agrees with what its pack does, whatever the command.
TEST(ExplainedRecords, OfEveryCommandAreRefusedWhereTheirPackIs) {
    constexpr std::uint32_t kMostBytes = 32768; // larger ones take long
    std::size_t packed = 0;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || !command.parses() || command.table->size > kMostBytes) continue;
        const std::uint32_t size = command.table->size;
        const auto record = std::make_unique<std::byte[]>(size);
        CallerMemory memory(4);
        memory.PrepareBuffer(command, record.get(), size);
        std::uint32_t length = 0;
        const std::string reply = ReplyText(command);
        RunParse(command, {reply.c_str(), record.get(), size, &length});
        std::vector<char> text(std::size_t{1} << 20);
        const bool isPacked =
            RunPack(command, {record.get(), size, text.data(), static_cast<std::uint32_t>(text.size())})
            == Outcome::Done;
        const std::vector<std::byte> before(record.get(), record.get() + size);
        const auto explained = explain::ExplainRecords(command, record.get(), size);
        EXPECT_EQ(explained.isRefused, !isPacked) << command.name;
        EXPECT_TRUE(std::equal(before.begin(), before.end(), record.get())) << command.name;
        packed += isPacked;
    }
    EXPECT_GT(packed, 100u);
}

} // namespace
} // namespace orrery::test
