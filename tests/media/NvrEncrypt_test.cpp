// "NvrEncrypt": a list, or a list of lists, of items inside records.
#include "orrery/encode.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kName = "NvrEncrypt";
using Nvrs = Records<CFG_NVR_ENCRYPT_INFO>;
constexpr std::uint32_t kOne = sizeof(CFG_NVR_ENCRYPT_INFO);
constexpr Answer kNothingRead{1, kNoLength};

constexpr const char* kItem = R"({"Enable":true,"MatchNvrEnable":true,"NvrAddress":"192.168.100.200","MatchPort":37777,
                                  "TalkPort":-1,"DevID":"cam/7"})";
constexpr const char* kItemText = R"({ "DevID" : "cam\/7", "Enable" : true, "MatchNvrEnable" : true, )"
                                  R"("MatchPort" : 37777, "NvrAddress" : "192.168.100.200", "TalkPort" : -1 })";
constexpr const char* kEmptyItemText = R"({ "DevID" : "", "Enable" : false, "MatchNvrEnable" : false, )"
                                       R"("MatchPort" : 0, "NvrAddress" : "", "TalkPort" : 0 })";

TEST(NvrEncrypt, HasTheLayoutThatClientsWereBuiltWith) {
    EXPECT_EQ(sizeof(CFG_NVR_ENCRYPT_ITEM), 4u + 4 + 16 + 4 + 4 + 32);
    EXPECT_EQ(sizeof(CFG_NVR_ENCRYPT_INFO), 4u + 4 + 4 * 64);
}

TEST(NvrEncrypt, ReadsAListIntoOneRecord) {
    const Nvrs records(2, 0x11);
    ASSERT_EQ(ParseTable(kName, "[" + std::string(kItem) + ",{}]", records, "", R"("channel":3,)"), (Answer{1, kOne}));
    const CFG_NVR_ENCRYPT_INFO record = records[0];
    EXPECT_EQ(record.nChannel, 3);
    EXPECT_EQ(record.nCount, 2u);
    EXPECT_EQ(record.stuItems[0].bEnable, 1u);
    EXPECT_EQ(record.stuItems[0].bMatchNvrEnable, 1u);
    EXPECT_STREQ(record.stuItems[0].szNvrAddress, "192.168.100.200");
    EXPECT_EQ(record.stuItems[0].nMatchPort, 37777);
    EXPECT_EQ(record.stuItems[0].nTalkPort, -1);
    EXPECT_STREQ(record.stuItems[0].szDevId, "cam/7");
    CFG_NVR_ENCRYPT_ITEM clear{};
    EXPECT_EQ(std::memcmp(&record.stuItems[1], &clear, sizeof clear), 0); // absent keys
    EXPECT_EQ(std::memcmp(&record.stuItems[3], &clear, sizeof clear), 0); // no element
    EXPECT_EQ(records[1].nCount, 0x11111111u);
    Nvrs one(1);
    one.Set(0, record);
    EXPECT_EQ(PackAll(kName, one), "[ " + std::string(kItemText) + ", " + kEmptyItemText + " ]");
}

TEST(NvrEncrypt, ReadsAListOfListsIntoARecordEach) {
    const Nvrs records(3, 0x11);
    ASSERT_EQ(
        ParseTable(kName, "[[" + std::string(kItem) + "],[{},{}," + kItem + "]]", records, "", R"("channel":-1,)"),
        (Answer{1, 0}));
    EXPECT_EQ(records[0].nChannel, -1);
    EXPECT_EQ(records[0].nCount, 1u);
    EXPECT_STREQ(records[0].stuItems[0].szDevId, "cam/7");
    EXPECT_EQ(records[1].nChannel, 0); // the reply's channel is the first record's
    EXPECT_EQ(records[1].nCount, 3u);
    EXPECT_STREQ(records[1].stuItems[2].szDevId, "cam/7");
    EXPECT_EQ(records[2].nCount, 0x11111111u);
}

TEST(NvrEncrypt, ClearsTheRecordOfAnEmptyList) {
    const Nvrs records(3, 0x11);
    ASSERT_EQ(ParseTable(kName, "[[],null,[{}]]", records), (Answer{1, 0}));
    EXPECT_EQ(records[0].nCount, 0u);
    EXPECT_EQ(records[0].stuItems[3].nTalkPort, 0);
    EXPECT_EQ(records[1].nCount, 0u);
    EXPECT_EQ(records[1].stuItems[0].bEnable, 0u);
    EXPECT_EQ(records[2].nCount, 1u);
    const Nvrs nullFirst(2, 0x11);
    ASSERT_EQ(ParseTable(kName, "[null,[{}]]", nullFirst), (Answer{1, 0}));
    EXPECT_EQ(nullFirst[0].nCount, 0u);
    EXPECT_EQ(nullFirst[1].nCount, 1u);
}

TEST(NvrEncrypt, KeepsItsSwitchesAndPortsApart) {
    const Nvrs records(1, 0x11);
    ASSERT_EQ(ParseTable(kName, R"([{"Enable":true,"MatchPort":7},{"MatchNvrEnable":1,"TalkPort":8}])", records),
              (Answer{1, kOne}));
    CFG_NVR_ENCRYPT_INFO expected{};
    expected.nCount = 2;
    expected.stuItems[0].bEnable = 1;
    expected.stuItems[0].nMatchPort = 7;
    expected.stuItems[1].bMatchNvrEnable = 1;
    expected.stuItems[1].nTalkPort = 8;
    EXPECT_EQ(std::memcmp(records.data(), &expected, kOne), 0);
    EXPECT_EQ(Pack(kName, expected),
              R"([ { "DevID" : "", "Enable" : true, "MatchNvrEnable" : false, "MatchPort" : 7, "NvrAddress" : "", )"
              R"("TalkPort" : 0 }, { "DevID" : "", "Enable" : false, "MatchNvrEnable" : true, "MatchPort" : 0, )"
              R"("NvrAddress" : "", "TalkPort" : 8 } ])");
}

TEST(NvrEncrypt, CountsItemsThatAreNoObjects) {
    const Nvrs records(3, 0x11);
    ASSERT_EQ(ParseTable(kName, R"([{"MatchPort":1},null,7])", records), (Answer{1, kOne}));
    CFG_NVR_ENCRYPT_INFO expected{};
    expected.nCount = 3;
    expected.stuItems[0].nMatchPort = 1;
    EXPECT_EQ(std::memcmp(records.data(), &expected, kOne), 0);
    // The first element alone settles the form; an object among lists has a size, but no element.
    ASSERT_EQ(ParseTable(kName, R"([[{"MatchPort":1}],{"MatchPort":2},7])", records), (Answer{1, 0}));
    EXPECT_EQ(records[0].nCount, 1u);
    EXPECT_EQ(records[1].nCount, 1u);
    EXPECT_EQ(records[1].stuItems[0].nMatchPort, 0);
    EXPECT_EQ(records[2].nCount, 0u);
}

TEST(NvrEncrypt, DropsItemsBeyondTheFourth) {
    const Nvrs records(1, 0x11);
    ASSERT_EQ(ParseTable(kName, R"([{},{},{},{"MatchPort":4},{"MatchPort":5}])", records), (Answer{1, kOne}));
    EXPECT_EQ(records[0].nCount, 4u);
    EXPECT_EQ(records[0].stuItems[3].nMatchPort, 4);
}

TEST(NvrEncrypt, RefusesListsThatDoNotAllFit) {
    const Nvrs records(2, kOne - 1, 0x11);
    EXPECT_EQ(ParseTable(kName, "[[{}],[{}],[{}]]", records, "", R"("channel":6,)"), kRefused);
    EXPECT_EQ(records[0].nChannel, 6);
    EXPECT_EQ(records[0].nCount, 0x11111111u);
    EXPECT_EQ(records[1].nCount, 0x11111111u);
    EXPECT_EQ(ParseTable(kName, "[[{}],[{}]]", records), (Answer{1, 0}));
    EXPECT_EQ(records[1].nCount, 1u);
    EXPECT_EQ(records.data()[2 * kOne], 0x11);
}

TEST(NvrEncrypt, CutsLongTexts) {
    const Nvrs records(1);
    ASSERT_EQ(ParseTable(kName, R"([{"NvrAddress":"0123456789abcdefgh","DevID":"0123456789abcdef0123456789abcdefgh"}])",
                         records),
              (Answer{1, kOne}));
    EXPECT_STREQ(records[0].stuItems[0].szNvrAddress, "0123456789abcde");
    EXPECT_STREQ(records[0].stuItems[0].szDevId, "0123456789abcdef0123456789abcde");
}

TEST(NvrEncrypt, KeepsTheChannelWhateverElseThereIs) {
    for (const char* document :
         {R"({"result":true,"params":{"channel":7,"table":null}})", R"({"result":true,"params":{"channel":7}})",
          R"({"result":true,"params":{"channel":7,"table":[]}})",
          R"({"result":true,"params":{"channel":7,"table":{}}})",
          R"({"result":true,"params":{"channel":7,"table":"x"}})",
          R"({"result":true,"params":{"channel":7,"table":[1,2]}})"}) {
        const Nvrs records(1, 0x11);
        EXPECT_EQ(ParseDocument(kName, document, records), kNothingRead) << document;
        EXPECT_EQ(records[0].nChannel, 7) << document;
        EXPECT_EQ(records[0].nCount, 0x11111111u) << document;
    }
    const Nvrs refused(1, 0x11);
    EXPECT_EQ(ParseDocument(kName, R"({"result":false,"params":{"channel":7,"table":[{}]}})", refused), kRefused);
    EXPECT_EQ(refused[0].nChannel, 7);
    EXPECT_EQ(refused[0].nCount, 0x11111111u);
    const Nvrs broken(1, 0x11);
    EXPECT_EQ(ParseDocument(kName, R"({"params":{"channel":7})", broken), kRefused);
    EXPECT_TRUE(broken.isAll(0x11));
}

TEST(NvrEncrypt, NeedsAWholeRecord) {
    const Nvrs part(0, kOne - 1, 0x11);
    EXPECT_EQ(ParseTable(kName, "[{}]", part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
    EXPECT_EQ(PackAll(kName, part), kNotBegun);
}

// ---- The text ----

CFG_NVR_ENCRYPT_INFO WithItems(std::int32_t channel, std::uint32_t count) {
    CFG_NVR_ENCRYPT_INFO record{};
    record.nChannel = channel;
    record.nCount = count;
    return record;
}

TEST(NvrEncrypt, WritesOneRecordAsAListOrInsideAnOuterOne) {
    const std::string item = kEmptyItemText;
    for (const std::int32_t channel : {0, 3, -2, INT32_MIN})
        EXPECT_EQ(Pack(kName, WithItems(channel, 1)), "[ " + item + " ]") << channel;
    EXPECT_EQ(Pack(kName, WithItems(-1, 2)), "[ [ " + item + ", " + item + " ] ]");
    for (const std::uint32_t count : {4u, 5u, 0xFFFFFFFFu}) {
        EXPECT_EQ(Pack(kName, WithItems(0, count)), "[ " + item + ", " + item + ", " + item + ", " + item + " ]");
    }
    EXPECT_EQ(Pack(kName, WithItems(0, 0)), "null");
    EXPECT_EQ(Pack(kName, WithItems(-1, 0)), "null");
    Nvrs nearlyTwo(1, kOne - 1, 0);
    nearlyTwo.Set(0, WithItems(0, 1));
    EXPECT_EQ(PackAll(kName, nearlyTwo), "[ " + item + " ]");
}

TEST(NvrEncrypt, WritesNothingOfSeveralRecords) {
    for (const std::size_t count : {2u, 3u, 9u}) {
        for (const std::int32_t channel : {0, -1}) {
            Nvrs records(count);
            for (std::size_t i = 0; i < count; ++i)
                records.Set(i, WithItems(channel, 2));
            EXPECT_EQ(PackAll(kName, records), "null") << count;
        }
    }
}

TEST(NvrEncrypt, FillsItsTextToTheLastByte) {
    const CFG_NVR_ENCRYPT_INFO record = WithItems(0, 1);
    const std::string text = "[ " + std::string(kEmptyItemText) + " ]\n";
    const auto pack = [&](std::size_t capacity) { return PackBytes(kName, &record, sizeof record, capacity); };
    EXPECT_EQ(pack(text.size() + 1), text);
    EXPECT_EQ(pack(text.size()), text); // no room is left for a terminator
    EXPECT_EQ(pack(text.size() - 1), kFailed);
}

} // namespace
} // namespace orrery::test
