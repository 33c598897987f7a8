// "StorageGroup", "StorageDevGroup", "RecordToGroup", "MetaDataServer", "RemoteStorageLimit", "SpecialDirectoryDefine",
// and what files and logs can do.
#include "orrery/storage_groups.h"
#include "support/Call.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::test {
namespace {

// `[<make(0)>,<make(1)>,...]`
template <class Make>
std::string ListOf(int count, Make make) {
    std::string list = "[";
    for (int i = 0; i < count; ++i)
        (list += i > 0 ? "," : "") += make(i);
    return list + "]";
}

// One record bare, several as a list; null elements leave their record zero and count, an empty list is refused.
template <class R>
void ExpectOneOrMany(const char* command, const std::string& one, const std::string& another, const std::string& packed,
                     const std::string& blank, bool needsResult) {
    const Records<R> three(3, 0x11);
    ASSERT_EQ(ParseTable(command, "[" + one + ",null," + another + "," + one + "]", three), (Answer{1, 3 * sizeof(R)}));
    EXPECT_EQ(PackAll(command, three).find("[ " + packed + ", " + blank + ", "), 0u) << PackAll(command, three);
    const Records<R> single(1, 9, 0x11); // a part of a second record is none
    ASSERT_EQ(ParseTable(command, one, single), (Answer{1, sizeof(R)}));
    EXPECT_EQ(PackAll(command, single), packed);
    ASSERT_EQ(ParseTable(command, "[" + one + "]", single), (Answer{1, sizeof(R)}));
    EXPECT_EQ(PackAll(command, single), packed);
    for (const char* table : {"null", "[]", "7", "\"x\""}) {
        EXPECT_EQ(ParseTable(command, table, single), kRefused) << table;
        EXPECT_TRUE(single.isAll(0));
    }
    EXPECT_EQ(ParseDocument(command, "{", single), kRefused);
    const std::string refused = R"({"result":false,"params":{"table":)" + one + "}}";
    EXPECT_EQ(ParseDocument(command, refused, single), needsResult ? kRefused : (Answer{1, sizeof(R)}));
    EXPECT_EQ(ParseDocument(command, R"({"params":{"table":)" + one + "}}", single),
              needsResult ? kRefused : (Answer{1, sizeof(R)}));
    const Records<char> tooSmall(sizeof(R) - 1, 0x11);
    EXPECT_EQ(ParseTable(command, one, tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
    EXPECT_EQ(PackBytes(command, tooSmall.data(), tooSmall.size(), kAmple), kNotBegun);
}

// At exactly the capacity a text fails, or loses its newline.
template <class R>
void ExpectCapacity(const char* command, const R& record, bool losesItsNewline) {
    const std::string text = PackBytes(command, &record, sizeof record, kAmple);
    EXPECT_EQ(PackBytes(command, &record, sizeof record, text.size() + 1), text);
    EXPECT_EQ(PackBytes(command, &record, sizeof record, text.size()),
              losesItsNewline ? text.substr(0, text.size() - 1) : kFailed);
    EXPECT_EQ(PackBytes(command, &record, sizeof record, text.size() - 1), kFailed);
}

// ---- "StorageGroup" ----

constexpr const char* kStorageGroup = "StorageGroup";
constexpr std::uint32_t kGroupSize = sizeof(CFG_STORAGE_GROUP_INFO);

// The first record's size word is the caller's to set.
struct Groups : Records<CFG_STORAGE_GROUP_INFO> {
    explicit Groups(std::size_t count, std::uint32_t size = kGroupSize) : Records(count, 0x11) {
        std::memcpy(data(), &size, sizeof size);
    }
    const CFG_STORAGE_GROUP_INFO& at(std::size_t index) {
        copy = std::make_unique<CFG_STORAGE_GROUP_INFO>((*this)[index]);
        return *copy;
    }
    std::unique_ptr<CFG_STORAGE_GROUP_INFO> copy;
};

TEST(StorageGroup, GoesRoundWhole) {
    Groups groups(2);
    ASSERT_EQ(ParseTable(kStorageGroup,
                         R"([{"Name":"a","Memo":"b","FileHoldTime":3,"OverWrite":true,"RecordPathRule":"d",)"
                         R"("PicturePathRule":"e","Channels":[{"MaxPictures":6,"Path":"f"},null,{"Path":"g"}],)"
                         R"("CustomName":"h","SubDevices":[{"MaxPictures":-7,"Path":"i"}]}])",
                         groups),
              (Answer{1, kGroupSize}));
    const CFG_STORAGE_GROUP_INFO& group = groups.at(0);
    EXPECT_EQ(group.dwSize, kGroupSize);
    EXPECT_STREQ(group.szName, "a");
    EXPECT_STREQ(group.szMemo, "b");
    EXPECT_EQ(group.nFileHoldTime, 3);
    EXPECT_EQ(group.bOverWrite, 1u);
    EXPECT_STREQ(group.szRecordPathRule, "d");
    EXPECT_STREQ(group.szPicturePathRule, "e");
    EXPECT_EQ(group.nChannelCount, 3);
    EXPECT_EQ(group.stuChannels[0].nMaxPictures, 6);
    EXPECT_STREQ(group.stuChannels[0].szPath, "f");
    EXPECT_STREQ(group.stuChannels[1].szPath, "");
    EXPECT_STREQ(group.stuChannels[2].szPath, "g");
    EXPECT_STREQ(group.szCustomName, "h");
    EXPECT_EQ(group.nSubDeviceCount, 1);
    EXPECT_EQ(group.stuSubDevices[0].nMaxPictures, -7);
    EXPECT_STREQ(group.stuSubDevices[0].szPath, "i");
    for (const int i : {0, 1, 3, 1023}) { // whether the text tells of them or not
        EXPECT_EQ(group.stuChannels[i].dwSize, sizeof(CFG_STORAGE_GROUP_CHANNEL));
        EXPECT_EQ(group.stuSubDevices[i].dwSize, sizeof(CFG_STORAGE_GROUP_CHANNEL));
    }
    // Always a list.
    EXPECT_EQ(WithoutNewline(PackBytes(kStorageGroup, groups.data(), kGroupSize, kAmple)),
              R"([ { "Channels" : [ { "MaxPictures" : 6, "Path" : "f" }, { "MaxPictures" : 0, "Path" : "" }, )"
              R"({ "MaxPictures" : 0, "Path" : "g" } ], "CustomName" : "h", "FileHoldTime" : 3, "Memo" : "b", )"
              R"("Name" : "a", "OverWrite" : true, "PicturePathRule" : "e", "RecordPathRule" : "d", )"
              R"("SubDevices" : [ { "MaxPictures" : -7, "Path" : "i" } ] } ])");
}

TEST(StorageGroup, TakesAListAlone) {
    Groups groups(3);
    ASSERT_EQ(ParseTable(kStorageGroup, R"([{"Name":"a"},null,{"Name":"c"},{"Name":"d"}])", groups),
              (Answer{1, 3 * kGroupSize}));
    EXPECT_STREQ(groups.at(0).szName, "a");
    EXPECT_STREQ(groups.at(1).szName, ""); // a null has no keys
    EXPECT_EQ(groups.at(1).dwSize, 0x11111111u);
    EXPECT_EQ(groups.at(1).stuChannels[0].dwSize, sizeof(CFG_STORAGE_GROUP_CHANNEL));
    EXPECT_STREQ(groups.at(2).szName, "c");
    const Groups kept(1);
    for (const char* table : {"null", "[]", R"({"Name":"a"})", "7"}) {
        EXPECT_EQ(ParseTable(kStorageGroup, table, kept), (Answer{1, 0})) << table;
        EXPECT_EQ(kept.data()[4], 0x11);
    }
    for (const char* document : {"{", R"({"params":{"table":[{}]}})", R"({"result":false,"params":{"table":[{}]}})"})
        EXPECT_EQ(ParseDocument(kStorageGroup, document, kept), kRefused) << document;
    const std::string blank = R"({ "CustomName" : "", "FileHoldTime" : 0, "Memo" : "", "Name" : "", )"
                              R"("OverWrite" : false, "PicturePathRule" : "", "RecordPathRule" : "" })";
    Groups one(1);
    ASSERT_EQ(ParseTable(kStorageGroup, "[{}]", one), (Answer{1, kGroupSize}));
    EXPECT_EQ(PackAll(kStorageGroup, one), "[ " + blank + " ]"); // lists without elements have no key
    const CFG_STORAGE_GROUP_INFO& record = one.at(0);
    ExpectCapacity(kStorageGroup, record, false);
}

TEST(StorageGroup, AThousandAndTwentyFourChannels) {
    Groups groups(1);
    const auto element = [](int i) { return "{\"MaxPictures\":" + std::to_string(i + 1) + "}"; };
    for (const int count : {1024, 1025}) {
        const std::string list = ListOf(count, element);
        ASSERT_EQ(ParseTable(kStorageGroup, R"([{"Channels":)" + list + R"(,"SubDevices":)" + list + "}]", groups),
                  (Answer{1, kGroupSize}));
        EXPECT_EQ(groups.at(0).nChannelCount, 1024);
        EXPECT_EQ(groups.at(0).stuChannels[1023].nMaxPictures, 1024);
        EXPECT_EQ(groups.at(0).nSubDeviceCount, 1024);
        EXPECT_EQ(groups.at(0).stuSubDevices[1023].nMaxPictures, 1024);
        EXPECT_EQ(groups.at(0).stuSubDevices[1023].dwSize, sizeof(CFG_STORAGE_GROUP_CHANNEL));
    }
    auto record = std::make_unique<CFG_STORAGE_GROUP_INFO>(groups.at(0));
    const std::string full = Pack(kStorageGroup, *record);
    record->nChannelCount = 1025;
    record->nSubDeviceCount = 0x7FFFFFFF;
    EXPECT_EQ(Pack(kStorageGroup, *record), full);
    record->nChannelCount = 1023;
    EXPECT_NE(Pack(kStorageGroup, *record), full);
    const std::string longText(300, 'x');
    ASSERT_EQ(ParseTable(kStorageGroup,
                         R"([{"Name":")" + longText + R"(","Memo":")" + longText + R"(","CustomName":")" + longText
                             + R"(","RecordPathRule":")" + longText + R"(","PicturePathRule":")" + longText
                             + R"(","Channels":[{"Path":")" + longText + R"("}],"SubDevices":[{"Path":")" + longText
                             + "\"}]}]",
                         groups),
              (Answer{1, kGroupSize}));
    EXPECT_EQ(groups.at(0).szName, std::string(63, 'x'));
    EXPECT_EQ(groups.at(0).szMemo, std::string(127, 'x'));
    EXPECT_EQ(groups.at(0).szCustomName, std::string(63, 'x'));
    EXPECT_EQ(groups.at(0).szRecordPathRule, std::string(259, 'x'));
    EXPECT_EQ(groups.at(0).szPicturePathRule, std::string(259, 'x'));
    EXPECT_EQ(groups.at(0).stuChannels[0].szPath, std::string(31, 'x'));
    EXPECT_EQ(groups.at(0).stuSubDevices[0].szPath, std::string(31, 'x'));
}

TEST(StorageGroup, OnlyWhatFitsTheCallersSizeMoves) {
    // A caller of an older layout: the name, and half of the first channel.
    const std::uint32_t known = offsetof(CFG_STORAGE_GROUP_INFO, stuChannels) + 20;
    const Records<char> bytes(2 * known, 0x22);
    std::memcpy(bytes.data(), &known, sizeof known);
    ASSERT_EQ(ParseTable(kStorageGroup,
                         R"([{"Name":"a","Channels":[{"MaxPictures":5,"Path":"0123456789abcdef"}]},{"Name":"b"}])",
                         bytes),
              (Answer{1, 2 * known}));
    EXPECT_STREQ(bytes.data() + 4, "a");
    EXPECT_EQ(std::string(bytes.data() + known - 12, 12), "0123456789ab");
    EXPECT_STREQ(bytes.data() + known + 4, "b");
    // Without a count there are no channels to write.
    EXPECT_EQ(PackBytes(kStorageGroup, bytes.data(), known, kAmple),
              "[ { \"CustomName\" : \"\", \"FileHoldTime\" : 0, \"Memo\" : \"\", \"Name\" : \"a\", "
              "\"OverWrite\" : false, \"PicturePathRule\" : \"\", \"RecordPathRule\" : \"\" } ]\n");
    for (const std::uint32_t size : {0u, 3u, kGroupSize + 1}) {
        const Groups groups(1, size);
        EXPECT_EQ(ParseTable(kStorageGroup, "[{}]", groups), kRefused) << size;
        EXPECT_EQ(groups.data()[4], 0x11);
        EXPECT_EQ(PackBytes(kStorageGroup, groups.data(), groups.size(), 4096), kNotBegun) << size;
    }
}

// ---- The smaller commands ----

TEST(StorageDevGroup, GoesRoundWhole) {
    const auto parsed =
        Parse<CFG_STORAGE_DEV_GROUP_INFO>("StorageDevGroup", R"({"Name":"a","Index":2,"Members":["b",3,null,"d"]})");
    ASSERT_TRUE(parsed);
    EXPECT_STREQ(parsed->szName, "a");
    EXPECT_EQ(parsed->nIndex, 2);
    EXPECT_EQ(parsed->nMemberCount, 4);
    EXPECT_STREQ(parsed->szMembers[0], "b");
    EXPECT_STREQ(parsed->szMembers[1], "");
    EXPECT_STREQ(parsed->szMembers[3], "d");
    EXPECT_EQ(Pack("StorageDevGroup", *parsed), R"({ "Index" : 2, "Members" : [ "b", "", "", "d" ], "Name" : "a" })");
    ExpectOneOrMany<CFG_STORAGE_DEV_GROUP_INFO>("StorageDevGroup", R"({"Name":"x","Members":["y"]})", R"({"Index":1})",
                                                R"({ "Index" : 0, "Members" : [ "y" ], "Name" : "x" })",
                                                R"({ "Index" : 0, "Name" : "" })", true);
    ExpectCapacity("StorageDevGroup", *parsed, false);
}

TEST(StorageDevGroup, EndsAtItsRoom) {
    for (const int count : {31, 32, 33}) {
        const auto parsed = Parse<CFG_STORAGE_DEV_GROUP_INFO>(
            "StorageDevGroup", R"({"Members":)" + ListOf(count, [](int i) { return "\"" + std::to_string(i) + "\""; })
                                   + R"(,"Name":")" + std::string(32, 'n') + "\"}");
        EXPECT_EQ(parsed->nMemberCount, std::min(count, 32));
        EXPECT_STREQ(parsed->szMembers[31], count < 32 ? "" : "31");
        EXPECT_EQ(parsed->szName, std::string(31, 'n'));
        auto over = std::make_unique<CFG_STORAGE_DEV_GROUP_INFO>(*parsed);
        over->nMemberCount = 33;
        EXPECT_EQ(Pack("StorageDevGroup", *over) == Pack("StorageDevGroup", *parsed), count >= 32);
    }
    const auto longName =
        Parse<CFG_STORAGE_DEV_GROUP_INFO>("StorageDevGroup", R"({"Members":[")" + std::string(260, 'm') + "\"]}");
    EXPECT_EQ(longName->szMembers[0], std::string(259, 'm'));
}

TEST(RecordToGroup, GoesRoundWhole) {
    const auto parsed = Parse<CFG_RECORD_TO_GROUP_INFO>(
        "RecordToGroup", R"({"Channel":1,"Enable":true,"GroupName":")" + std::string(32, 'g') + R"(","Index":-3})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nChannel, 1);
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->szGroupName, std::string(31, 'g'));
    EXPECT_EQ(parsed->nIndex, -3);
    EXPECT_EQ(Pack("RecordToGroup", *parsed),
              R"({ "Channel" : 1, "Enable" : true, "GroupName" : ")" + std::string(31, 'g') + R"(", "Index" : -3 })");
    ExpectOneOrMany<CFG_RECORD_TO_GROUP_INFO>("RecordToGroup", R"({"Channel":4})", R"({"Index":1})",
                                              R"({ "Channel" : 4, "Enable" : false, "GroupName" : "", "Index" : 0 })",
                                              R"({ "Channel" : 0, "Enable" : false, "GroupName" : "", "Index" : 0 })",
                                              true);
    ExpectCapacity("RecordToGroup", *parsed, false);
}

TEST(MetaDataServer, GoesRoundWhole) {
    const std::string longText(300, 'x');
    const auto parsed = Parse<CFG_METADATA_SERVER_INFO>(
        "MetaDataServer", R"({"Enable":true,"Address":"a","Port":3,"UserName":"b","Password":"c","DeviceID":"d"})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szAddress, "a");
    EXPECT_EQ(parsed->nPort, 3);
    EXPECT_STREQ(parsed->szUserName, "b");
    EXPECT_STREQ(parsed->szPassword, "c");
    EXPECT_STREQ(parsed->szDeviceID, "d");
    const std::string packed = R"({ "Address" : "a", "DeviceID" : "d", "Enable" : true, "Password" : "c", )"
                               R"("Port" : 3, "UserName" : "b" })";
    EXPECT_EQ(Pack("MetaDataServer", *parsed), packed);
    const auto texts = Parse<CFG_METADATA_SERVER_INFO>(
        "MetaDataServer", R"({"Address":")" + longText + R"(","UserName":")" + longText + R"(","Password":")" + longText
                              + R"(","DeviceID":")" + longText + "\"}");
    EXPECT_EQ(texts->szAddress, std::string(255, 'x'));
    EXPECT_EQ(texts->szUserName, std::string(63, 'x'));
    EXPECT_EQ(texts->szPassword, std::string(63, 'x'));
    EXPECT_EQ(texts->szDeviceID, std::string(31, 'x'));
    ExpectOneOrMany<CFG_METADATA_SERVER_INFO>(
        "MetaDataServer", R"({"Enable":true,"Address":"a","Port":3,"UserName":"b","Password":"c","DeviceID":"d"})",
        "{}", packed,
        R"({ "Address" : "", "DeviceID" : "", "Enable" : false, "Password" : "", "Port" : 0, "UserName" : "" })",
        false);
    ExpectCapacity("MetaDataServer", *parsed, true);
}

TEST(RemoteStorageLimit, GoesRoundWhole) {
    const std::string week = WeekText(7, {{0, 0, "1 01:02:03-04:05:06"}, {6, 5, "7 08:09:10-11:12:13"}});
    const auto parsed = Parse<CFG_REMOTE_STORAGE_LIMIT_INFO>(
        "RemoteStorageLimit",
        R"({"Name":"a","FileLength":2,"Interval":3,"Channels":[4,null,-5],"TimeSchedule":)" + week + "}");
    ASSERT_TRUE(parsed);
    EXPECT_STREQ(parsed->szName, "a");
    EXPECT_EQ(parsed->nFileLength, 2);
    EXPECT_EQ(parsed->nInterval, 3);
    EXPECT_EQ(parsed->nChannelCount, 3);
    EXPECT_EQ(parsed->nChannels[0], 4);
    EXPECT_EQ(parsed->nChannels[1], 0);
    EXPECT_EQ(parsed->nChannels[2], -5);
    EXPECT_EQ(parsed->stuTimeSchedule[0][0].dwMask, 1); // a mask as it stands
    EXPECT_EQ(parsed->stuTimeSchedule[0][0].nEndSec, 6);
    EXPECT_EQ(parsed->stuTimeSchedule[6][5].dwMask, 7);
    EXPECT_EQ(parsed->stuTimeSchedule[6][5].nBeginHour, 8);
    EXPECT_EQ(Pack("RemoteStorageLimit", *parsed),
              R"({ "Channels" : [ 4, 0, -5 ], "FileLength" : 2, "Interval" : 3, "Name" : "a", "TimeSchedule" : )" + week
                  + " }");
    const std::string noWeek = WeekText(7);
    ExpectOneOrMany<CFG_REMOTE_STORAGE_LIMIT_INFO>(
        "RemoteStorageLimit", R"({"Channels":[9]})", R"({"Interval":1})",
        R"({ "Channels" : [ 9 ], "FileLength" : 0, "Interval" : 0, "Name" : "", "TimeSchedule" : )" + noWeek + " }",
        R"({ "FileLength" : 0, "Interval" : 0, "Name" : "", "TimeSchedule" : )" + noWeek + " }", false);
    ExpectCapacity("RemoteStorageLimit", *parsed, false);
}

TEST(RemoteStorageLimit, EndsAtItsRoom) {
    const auto parsed = Parse<CFG_REMOTE_STORAGE_LIMIT_INFO>(
        "RemoteStorageLimit", R"({"Channels":)" + ListOf(257, [](int i) { return std::to_string(i); }) + R"(,"Name":")"
                                  + std::string(128, 'n')
                                  + R"(","TimeSchedule":[["2 01:00:00-02:00:00","bad","3 01:00:00-02:00:00"]]})");
    EXPECT_EQ(parsed->nChannelCount, 256);
    EXPECT_EQ(parsed->nChannels[255], 255);
    EXPECT_EQ(parsed->szName, std::string(127, 'n'));
    EXPECT_EQ(parsed->stuTimeSchedule[0][0].dwMask, 2);
    EXPECT_EQ(parsed->stuTimeSchedule[0][2].dwMask, 0); // behind the first bad one
    auto over = std::make_unique<CFG_REMOTE_STORAGE_LIMIT_INFO>(*parsed);
    over->nChannelCount = 257;
    EXPECT_EQ(Pack("RemoteStorageLimit", *over), Pack("RemoteStorageLimit", *parsed));
}

TEST(SpecialDirectoryDefine, GoesRoundWhole) {
    const std::string longText(300, 'x');
    const auto parsed = Parse<CFG_SPECIAL_DIR_INFO>(
        "SpecialDirectoryDefine",
        R"({"BackgroudImageDirectory":"a","WindowIconDirectory":"b","EventVoiceDirectory":"c"})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_SPECIAL_DIR_INFO));
    EXPECT_STREQ(parsed->szBackgroudImageDirectory, "a");
    EXPECT_STREQ(parsed->szWindowIconDirectory, "b");
    EXPECT_STREQ(parsed->szEventVoiceDirectory, "c");
    EXPECT_EQ(Pack("SpecialDirectoryDefine", *parsed),
              R"({ "BackgroudImageDirectory" : "a", "EventVoiceDirectory" : "c", "WindowIconDirectory" : "b" })");
    const auto texts = Parse<CFG_SPECIAL_DIR_INFO>(
        "SpecialDirectoryDefine", R"({"BackgroudImageDirectory":")" + longText + R"(","WindowIconDirectory":")"
                                      + longText + R"(","EventVoiceDirectory":")" + longText + "\"}");
    EXPECT_EQ(texts->szBackgroudImageDirectory, std::string(259, 'x'));
    EXPECT_EQ(texts->szWindowIconDirectory, std::string(259, 'x'));
    EXPECT_EQ(texts->szEventVoiceDirectory, std::string(259, 'x'));
    for (const char* document :
         {"{", R"({"params":{"table":{}}})", R"({"result":false,"params":{"table":{}}})", R"({"result":true})"}) {
        const auto refused = ParseDocument<CFG_SPECIAL_DIR_INFO>("SpecialDirectoryDefine", document);
        EXPECT_FALSE(refused) << document;
        EXPECT_TRUE(refused.isCleared());
    }
    ExpectCapacity("SpecialDirectoryDefine", *parsed, false);
}

TEST(StorageCaps, ReadAllKeys) {
    const auto files = ParseDocument<CFG_FILE_MANAGER_CAPS>(
        "FileManager.getCaps", R"({"result":true,"params":{"caps":{"MaxUploadFileSize":5}}})");
    ASSERT_TRUE(files);
    EXPECT_EQ(files.length, sizeof(CFG_FILE_MANAGER_CAPS));
    EXPECT_EQ(files->nMaxUploadFileSize, 5);
    const auto log = ParseDocument<CFG_LOG_CAPS>(
        "log.getCaps", R"({"result":true,"params":{"caps":{"MaxSize":1,"MaxPageSize":2,"SupportStartNo":true,)"
                       R"("SupportTypeFilter":false,"SupportTimeFilter":"x"}}})");
    ASSERT_TRUE(log);
    EXPECT_EQ(log.length, sizeof(CFG_LOG_CAPS));
    EXPECT_EQ(log->nMaxSize, 1);
    EXPECT_EQ(log->nMaxPageSize, 2);
    EXPECT_EQ(log->bSupportStartNo, 1);
    EXPECT_EQ(log->bSupportTypeFilter, 0);
    EXPECT_EQ(log->bSupportTimeFilter, 1); // a text that is not empty
    const auto type =
        ParseDocument<CFG_LOG_CAPS>("log.getCaps", R"({"result":true,"params":{"caps":{"SupportTypeFilter":true}}})");
    EXPECT_EQ(type->bSupportTypeFilter, 1);
    EXPECT_EQ(type->bSupportTimeFilter, 0);
    for (const char* command : {"FileManager.getCaps", "log.getCaps"}) {
        for (const char* document : {R"({"params":{"caps":{}}})", R"({"result":false,"params":{"caps":{}}})",
                                     R"({"result":true,"params":{"table":{}}})"}) {
            const auto refused = ParseDocument<CFG_LOG_CAPS>(command, document);
            EXPECT_FALSE(refused) << document;
            EXPECT_TRUE(refused.isCleared());
        }
        EXPECT_EQ(PackBytes(command, &*log, sizeof *log, 4096), kNotBegun);
    }
}

} // namespace
} // namespace orrery::test
