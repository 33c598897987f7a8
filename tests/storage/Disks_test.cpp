// "RaidGroup", "StoragePoolGroup", "StoragePositionGroup", "HardDiskTank", "Raid".
#include "orrery/storage_disks.h"
#include "support/Call.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

// Under the command's name at the top of the reply.
template <class R>
Parsed<R> ParseTop(const std::string& command, const std::string& value) {
    return ParseDocument<R>(command.c_str(), "{\"" + command + "\":" + value + "}");
}

// A missing value gives a record of zeros, and "result" is not looked at; only a text that is none fails.
template <class R>
void ExpectZerosWithoutAValue(const std::string& command) {
    for (const std::string& document :
         {std::string("{}"), "{\"" + command + "\":null}", "{\"result\":false,\"" + command + "\":[]}",
          "{\"" + command + "\":7}", "{\"" + command + "\":{\"0\":{\"Name\":\"a\"}}}",
          std::string(R"({"result":true,"params":{"table":[{"Name":"a"}]}})")}) {
        const auto parsed = ParseDocument<R>(command.c_str(), document);
        EXPECT_TRUE(parsed) << document;
        EXPECT_EQ(parsed.length, sizeof(R));
        EXPECT_TRUE(parsed.isCleared()) << document;
    }
    const auto broken = ParseDocument<R>(command.c_str(), "{");
    EXPECT_FALSE(broken);
    EXPECT_EQ(broken.length, kNoLength);
    EXPECT_TRUE(broken.isCleared());
    const Records<char> tooSmall(sizeof(R) - 1, 0x11);
    EXPECT_EQ(ParseDocument(command.c_str(), "{\"" + command + "\":[]}", tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
}

// ---- "RaidGroup" ----

constexpr const char* kRaidGroup = "RaidGroup";
using RaidGroup = CFG_RAID_GROUP_INFO;

TEST(RaidGroup, GoesRoundWhole) {
    const auto parsed = ParseTop<RaidGroup>(
        kRaidGroup, R"([{"Raid":{"Name":"one","Type":2,"Status":[3,4],"Member":[5,6,7],"Capacity":8,"Tank":9,)"
                    R"("RemainSpace":10}},{"Name":"two","Type":11,"Status":[12],"Member":[13],"Capacity":14,"Tank":15,)"
                    R"("RemainSpace":-16}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(RaidGroup));
    EXPECT_EQ(parsed->nCount, 2);
    const CFG_RAID_GROUP_ITEM& one = parsed->stuRaid[0];
    EXPECT_STREQ(one.szName, "one");
    EXPECT_EQ(one.nType, 2);
    EXPECT_EQ(one.stuStatus.nStatusCount, 2);
    EXPECT_EQ(one.stuStatus.nStatus, 3);
    EXPECT_EQ(one.stuStatus.nStatusList[0], 3);
    EXPECT_EQ(one.stuStatus.nStatusList[1], 4);
    EXPECT_EQ(one.nMemberCount, 3);
    EXPECT_EQ(one.nMember[0], 5);
    EXPECT_EQ(one.nMember[2], 7);
    EXPECT_EQ(one.nCapacity, 8);
    EXPECT_EQ(one.nTank, 9);
    EXPECT_EQ(one.nRemainSpace, 10);
    const CFG_RAID_GROUP_ITEM& two = parsed->stuRaid[1]; // without the object around its keys
    EXPECT_STREQ(two.szName, "two");
    EXPECT_EQ(two.nType, 11);
    EXPECT_EQ(two.stuStatus.nStatusCount, 1);
    EXPECT_EQ(two.stuStatus.nStatus, 12);
    EXPECT_EQ(two.nMemberCount, 1);
    EXPECT_EQ(two.nMember[0], 13);
    EXPECT_EQ(two.nCapacity, 14);
    EXPECT_EQ(two.nTank, 15);
    EXPECT_EQ(two.nRemainSpace, -16);
    EXPECT_EQ(Pack(kRaidGroup, *parsed),
              R"({ "RaidGroup" : [ { "Raid" : { "Capacity" : 8, "Member" : [ 5, 6, 7 ], "Name" : "one", )"
              R"("RemainSpace" : 10, "Status" : [ 3, 4 ], "Tank" : 9, "Type" : 2 } }, { "Raid" : { "Capacity" : 14, )"
              R"("Member" : [ 13 ], "Name" : "two", "RemainSpace" : -16, "Status" : [ 12 ], "Tank" : 15, )"
              R"("Type" : 11 } } ] })");
    ExpectZerosWithoutAValue<RaidGroup>(kRaidGroup);
}

TEST(RaidGroup, AnElementWithoutANameLeavesAGapInTheCount) {
    const auto parsed =
        ParseTop<RaidGroup>(kRaidGroup, R"([{"Raid":{"Name":"first"}},{"Raid":{"Type":5}},{"Raid":{"Name":"third"}}])");
    EXPECT_EQ(parsed->nCount, 2);
    EXPECT_STREQ(parsed->stuRaid[0].szName, "first");
    EXPECT_STREQ(parsed->stuRaid[1].szName, "");
    EXPECT_EQ(parsed->stuRaid[1].nType, 5); // in its own place
    EXPECT_STREQ(parsed->stuRaid[2].szName, "third");
    const auto bare = ParseTop<RaidGroup>(
        kRaidGroup, R"([null,{"Name":null},7,{"Name":""},{"Raid":null,"Name":"fifth"},{"Raid":{},"Name":"sixth"},)"
                    R"({"Raid":5,"Name":"seventh"}])");
    EXPECT_EQ(bare->nCount, 2); // an empty name is one; beside a "Raid" no other key counts
    EXPECT_STREQ(bare->stuRaid[4].szName, "fifth");
    EXPECT_STREQ(bare->stuRaid[5].szName, "");
    EXPECT_STREQ(bare->stuRaid[6].szName, "");
}

TEST(RaidGroup, SixteenElementsHaveAPlace) {
    std::string list = R"({"Name":"0"})";
    for (int i = 1; i < 17; ++i)
        list += ",{\"Name\":\"" + std::to_string(i) + "\"}";
    const auto parsed = ParseTop<RaidGroup>(kRaidGroup, "[" + list + "]");
    EXPECT_EQ(parsed->nCount, 16);
    EXPECT_STREQ(parsed->stuRaid[15].szName, "15");
    auto record = std::make_unique<RaidGroup>(*parsed);
    const std::string full = Pack(kRaidGroup, *record);
    for (const int count : {17, 0x7FFFFFFF}) {
        record->nCount = count;
        EXPECT_EQ(Pack(kRaidGroup, *record), full);
    }
    record->nCount = 1;
    EXPECT_EQ(Pack(kRaidGroup, *record),
              R"({ "RaidGroup" : [ { "Raid" : { "Capacity" : 0, "Name" : "0", "RemainSpace" : 0, )"
              R"("Status" : null, "Tank" : 0, "Type" : 0 } } ] })");
    for (const int count : {0, -1}) {
        record->nCount = count;
        EXPECT_EQ(Pack(kRaidGroup, *record), R"({ "RaidGroup" : null })") << count;
    }
}

TEST(RaidGroup, AnEmptyListOfStatesIsOneState) {
    const auto statusOf = [](const std::string& text) {
        return ParseTop<RaidGroup>(kRaidGroup, R"([{"Raid":{"Status":)" + text + "}}]")->stuRaid[0].stuStatus;
    };
    EXPECT_EQ(statusOf("[]").nStatusCount, 1);
    EXPECT_EQ(statusOf("[]").nStatus, 0);
    EXPECT_EQ(statusOf("null").nStatusCount, 0); // no key at all
    EXPECT_EQ(statusOf("7").nStatusCount, 1);
    EXPECT_EQ(statusOf("7").nStatus, 7);
    EXPECT_EQ(statusOf("7").nStatusList[0], 7);
    EXPECT_EQ(statusOf("[null,8]").nStatusCount, 2);
    EXPECT_EQ(statusOf("[null,8]").nStatus, 0);
    EXPECT_EQ(statusOf("[null,8]").nStatusList[1], 8);
    std::string many = "1";
    for (int i = 2; i < 18; ++i)
        many += "," + std::to_string(i);
    const CFG_STORAGE_STATES states = statusOf("[" + many + "]");
    EXPECT_EQ(states.nStatusCount, 17); // as told; the list ends at its room
    EXPECT_EQ(states.nStatus, 1);
    EXPECT_EQ(states.nStatusList[15], 16);
    const auto bare = ParseTop<RaidGroup>(kRaidGroup, R"([{"Name":"a","Status":[]}])");
    EXPECT_EQ(bare->stuRaid[0].stuStatus.nStatusCount, 1);
    // The list is written, not the first of it apart.
    auto record = std::make_unique<RaidGroup>();
    record->nCount = 1;
    record->stuRaid[0].stuStatus.nStatusCount = 17;
    record->stuRaid[0].stuStatus.nStatus = 99;
    record->stuRaid[0].stuStatus.nStatusList[15] = 5;
    EXPECT_NE(Pack(kRaidGroup, *record).find(R"("Status" : [ 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5 ])"),
              std::string::npos);
}

TEST(RaidGroup, MembersKeepTheirPlaces) {
    const auto parsed = ParseTop<RaidGroup>(
        kRaidGroup, R"([{"Raid":{"Name":"a","Member":[1,null,3]}},{"Raid":{"Member":["x",2.9,true]}},)"
                    R"({"Raid":{"Member":{"0":1}}}])");
    EXPECT_EQ(parsed->stuRaid[0].nMemberCount, 2);
    EXPECT_EQ(parsed->stuRaid[0].nMember[0], 1);
    EXPECT_EQ(parsed->stuRaid[0].nMember[1], 0);
    EXPECT_EQ(parsed->stuRaid[0].nMember[2], 3);
    EXPECT_EQ(parsed->stuRaid[1].nMemberCount, 3); // each group counts its own
    EXPECT_EQ(parsed->stuRaid[1].nMember[0], 0);
    EXPECT_EQ(parsed->stuRaid[1].nMember[1], 2);
    EXPECT_EQ(parsed->stuRaid[1].nMember[2], 1);
    EXPECT_EQ(parsed->stuRaid[2].nMemberCount, 0);
    std::string many = "1";
    for (int i = 2; i < 18; ++i)
        many += "," + std::to_string(i);
    const auto full = ParseTop<RaidGroup>(kRaidGroup, R"([{"Name":"a","Member":[)" + many + "]}]");
    EXPECT_EQ(full->stuRaid[0].nMemberCount, 16);
    EXPECT_EQ(full->stuRaid[0].nMember[15], 16);
    auto record = std::make_unique<RaidGroup>(*full);
    const std::string text = Pack(kRaidGroup, *record);
    record->stuRaid[0].nMemberCount = 17;
    EXPECT_EQ(Pack(kRaidGroup, *record), text);
}

TEST(RaidGroup, ANameEndsAtItsField) {
    for (const std::size_t size : {126u, 127u, 128u}) {
        const std::string item = "{\"Name\":\"" + std::string(size, 'n') + "\"}";
        const auto parsed = ParseTop<RaidGroup>(kRaidGroup, "[" + item + ",{\"Raid\":" + item + "}]");
        EXPECT_EQ(parsed->stuRaid[0].szName, std::string(std::min<std::size_t>(size, 127), 'n'));
        EXPECT_EQ(parsed->stuRaid[1].szName, std::string(std::min<std::size_t>(size, 127), 'n'));
    }
}

TEST(RaidGroup, LosesItsNewlineAtTheCapacity) {
    const auto record = Cleared<RaidGroup>();
    const std::string text = R"({ "RaidGroup" : null })";
    EXPECT_EQ(PackBytes(kRaidGroup, record.get(), sizeof(RaidGroup), text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes(kRaidGroup, record.get(), sizeof(RaidGroup), text.size() + 1), text);
    EXPECT_EQ(PackBytes(kRaidGroup, record.get(), sizeof(RaidGroup), text.size()), kFailed);
    EXPECT_EQ(PackBytes(kRaidGroup, record.get(), sizeof(RaidGroup) - 1, 99), kNotBegun);
}

// ---- "StoragePoolGroup", "StoragePositionGroup" ----

TEST(StoragePoolGroup, ReadsAllKeys) {
    const auto parsed = ParseTop<CFG_STORAGE_POOL_GROUP_INFO>(
        "StoragePoolGroup",
        R"([{"StoragePool":{"Name":"a","Member":["b","c"],"Used":3,"Capacity":4,"Status":[5,6],"Tank":7}},)"
        R"({"StoragePool":{"Used":8}},{"Name":"d","Used":9},{"StoragePool":{"Name":"e","Status":[]}}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_STORAGE_POOL_GROUP_INFO));
    EXPECT_EQ(parsed->nCount, 2);
    const CFG_STORAGE_POOL_ITEM& first = parsed->stuPool[0];
    EXPECT_STREQ(first.szName, "a");
    EXPECT_EQ(first.nMemberCount, 2);
    EXPECT_STREQ(first.szMember[0], "b");
    EXPECT_STREQ(first.szMember[1], "c");
    EXPECT_EQ(first.nUsed, 3);
    EXPECT_EQ(first.nCapacity, 4);
    EXPECT_EQ(first.stuStatus.nStatusCount, 2);
    EXPECT_EQ(first.stuStatus.nStatus, 5);
    EXPECT_EQ(first.stuStatus.nStatusList[1], 6);
    EXPECT_EQ(first.nTank, 7);
    EXPECT_EQ(parsed->stuPool[1].nUsed, 8);
    EXPECT_STREQ(parsed->stuPool[2].szName, ""); // no object around its keys
    EXPECT_EQ(parsed->stuPool[2].nUsed, 0);
    EXPECT_STREQ(parsed->stuPool[3].szName, "e");
    EXPECT_EQ(parsed->stuPool[3].stuStatus.nStatusCount, 1);
    ExpectZerosWithoutAValue<CFG_STORAGE_POOL_GROUP_INFO>("StoragePoolGroup");
    const auto record = Cleared<CFG_STORAGE_POOL_GROUP_INFO>();
    EXPECT_EQ(PackBytes("StoragePoolGroup", record.get(), sizeof *record, 99), kNotBegun); // a reply alone
}

TEST(StoragePoolGroup, MembersThatAreNoTextsAreSkipped) {
    const auto parsed = ParseTop<CFG_STORAGE_POOL_GROUP_INFO>(
        "StoragePoolGroup", R"([{"StoragePool":{"Name":"a","Member":["b",7,null,"","e"]}}])");
    EXPECT_EQ(parsed->stuPool[0].nMemberCount, 3);
    EXPECT_STREQ(parsed->stuPool[0].szMember[0], "b");
    EXPECT_STREQ(parsed->stuPool[0].szMember[1], "");
    EXPECT_STREQ(parsed->stuPool[0].szMember[4], "e");
    std::string members = "\"0\"";
    std::string pools = R"({"StoragePool":{"Name":"0"}})";
    for (int i = 1; i < 17; ++i) {
        members += ",\"" + std::to_string(i) + "\"";
        pools += R"(,{"StoragePool":{"Name":")" + std::to_string(i) + R"("}})";
    }
    const auto full = ParseTop<CFG_STORAGE_POOL_GROUP_INFO>("StoragePoolGroup", R"([{"StoragePool":{"Member":[)"
                                                                                    + members + R"(],"Name":")"
                                                                                    + std::string(128, 'n') + "\"}}]");
    EXPECT_EQ(full->stuPool[0].nMemberCount, 16);
    EXPECT_STREQ(full->stuPool[0].szMember[15], "15");
    EXPECT_EQ(full->stuPool[0].szName, std::string(127, 'n'));
    const auto many = ParseTop<CFG_STORAGE_POOL_GROUP_INFO>("StoragePoolGroup", "[" + pools + "]");
    EXPECT_EQ(many->nCount, 16);
    EXPECT_STREQ(many->stuPool[15].szName, "15");
}

TEST(StoragePoolGroup, AMembersNameEndsAtItsField) {
    const auto parsed = ParseTop<CFG_STORAGE_POOL_GROUP_INFO>("StoragePoolGroup",
                                                              R"([{"StoragePool":{"Member":[")" + std::string(127, 'a')
                                                                  + "\",\"" + std::string(128, 'b') + "\",\"c\"]}}]");
    EXPECT_EQ(parsed->stuPool[0].szMember[0], std::string(127, 'a'));
    EXPECT_EQ(parsed->stuPool[0].szMember[1], std::string(127, 'b'));
    EXPECT_STREQ(parsed->stuPool[0].szMember[2], "c");
    EXPECT_EQ(parsed->nCount, 0); // it has members, but no name
}

TEST(StoragePositionGroup, NamesEndAtTheirFields) {
    for (const std::size_t size : {127u, 128u}) {
        const auto parsed = ParseTop<CFG_STORAGE_POSITION_GROUP_INFO>(
            "StoragePositionGroup", R"([{"StoragePosition":{"Name":")" + std::string(size, 'n')
                                        + R"(","StoragePoolName":")" + std::string(size, 'p') + "\"}}]");
        EXPECT_EQ(parsed->stuPosition[0].szName, std::string(127, 'n'));
        EXPECT_EQ(parsed->stuPosition[0].szStoragePoolName, std::string(127, 'p'));
    }
}

TEST(StoragePositionGroup, ReadsAllKeys) {
    const auto parsed = ParseTop<CFG_STORAGE_POSITION_GROUP_INFO>(
        "StoragePositionGroup",
        R"([{"StoragePosition":{"Used":1}},null,{"StoragePosition":{"Name":"a","StoragePoolName":"b","Used":3,)"
        R"("Capacity":4,"Status":[5,6,7]}}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_STORAGE_POSITION_GROUP_INFO));
    EXPECT_EQ(parsed->nCount, 1);
    EXPECT_EQ(parsed->stuPosition[0].nUsed, 1);
    const CFG_STORAGE_POSITION_ITEM& third = parsed->stuPosition[2];
    EXPECT_STREQ(third.szName, "a");
    EXPECT_STREQ(third.szStoragePoolName, "b");
    EXPECT_EQ(third.nUsed, 3);
    EXPECT_EQ(third.nCapacity, 4);
    EXPECT_EQ(third.stuStatus.nStatusCount, 3);
    EXPECT_EQ(third.stuStatus.nStatus, 5);
    EXPECT_EQ(third.stuStatus.nStatusList[2], 7);
    std::string positions = R"({"StoragePosition":{"Name":"0"}})";
    for (int i = 1; i < 17; ++i)
        positions += R"(,{"StoragePosition":{"Name":")" + std::to_string(i) + R"("}})";
    const auto many = ParseTop<CFG_STORAGE_POSITION_GROUP_INFO>("StoragePositionGroup", "[" + positions + "]");
    EXPECT_EQ(many->nCount, 16);
    EXPECT_STREQ(many->stuPosition[15].szName, "15");
    ExpectZerosWithoutAValue<CFG_STORAGE_POSITION_GROUP_INFO>("StoragePositionGroup");
    const auto record = Cleared<CFG_STORAGE_POSITION_GROUP_INFO>();
    EXPECT_EQ(PackBytes("StoragePositionGroup", record.get(), sizeof *record, 99), kNotBegun); // a reply alone
}

// ---- "HardDiskTank" ----

constexpr const char* kTank = "HardDiskTank";

TEST(HardDiskTank, GoesRoundWhole) {
    const auto parsed = ParseTop<CFG_HARD_DISK_TANK_INFO>(
        kTank, R"({"Name":"a","HardDiskGroup":{"HardDisk":[{"Chan":1,"Capacity":2,"Status":3,"UsedSatus":4,)"
               R"("RaidName":"b","Type":"c","HotBack":5,"Tank":6,"RemainSpace":7},null,{"Chan":-8}]}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_HARD_DISK_TANK_INFO));
    EXPECT_STREQ(parsed->szName, "a");
    EXPECT_EQ(parsed->nDiskCount, 3);
    const CFG_HARD_DISK_ITEM& disk = parsed->stuHardDisk[0];
    EXPECT_EQ(disk.nChan, 1);
    EXPECT_EQ(disk.nCapacity, 2);
    EXPECT_EQ(disk.nStatus, 3);
    EXPECT_EQ(disk.nUsedSatus, 4);
    EXPECT_STREQ(disk.szRaidName, "b");
    EXPECT_STREQ(disk.szType, "c");
    EXPECT_EQ(disk.nHotBack, 5);
    EXPECT_EQ(disk.nTank, 6);
    EXPECT_EQ(disk.nRemainSpace, 7);
    EXPECT_EQ(parsed->stuHardDisk[2].nChan, -8);
    const auto empty = [](int chan) {
        return R"({ "Capacity" : 0, "Chan" : )" + std::to_string(chan)
               + R"(, "HotBack" : 0, "RaidName" : "", "RemainSpace" : 0, "Status" : 0, "Tank" : 0, "Type" : "", )"
                 R"("UsedSatus" : 0 })";
    };
    EXPECT_EQ(Pack(kTank, *parsed),
              R"({ "HardDiskTank" : { "HardDiskGroup" : { "HardDisk" : [ { "Capacity" : 2, "Chan" : 1, )"
              R"("HotBack" : 5, "RaidName" : "b", "RemainSpace" : 7, "Status" : 3, "Tank" : 6, "Type" : "c", )"
              R"("UsedSatus" : 4 }, )"
                  + empty(0) + ", " + empty(-8) + R"( ] }, "Name" : "a" } })");
}

TEST(HardDiskTank, EndsAtItsRoom) {
    std::string disks = R"({"Chan":1})";
    for (int i = 2; i < 66; ++i)
        disks += ",{\"Chan\":" + std::to_string(i) + "}";
    const auto parsed = ParseTop<CFG_HARD_DISK_TANK_INFO>(
        kTank, R"({"HardDiskGroup":{"HardDisk":[)" + disks + R"(]},"Name":")" + std::string(128, 'n') + "\"}");
    EXPECT_EQ(parsed->nDiskCount, 64);
    EXPECT_EQ(parsed->stuHardDisk[63].nChan, 64);
    EXPECT_EQ(parsed->szName, std::string(127, 'n'));
    const auto texts = ParseTop<CFG_HARD_DISK_TANK_INFO>(kTank, R"({"HardDiskGroup":{"HardDisk":[{"RaidName":")"
                                                                    + std::string(128, 'r') + R"(","Type":")"
                                                                    + std::string(32, 't') + "\"}]}}");
    EXPECT_EQ(texts->stuHardDisk[0].szRaidName, std::string(127, 'r'));
    EXPECT_EQ(texts->stuHardDisk[0].szType, std::string(31, 't'));
    auto record = std::make_unique<CFG_HARD_DISK_TANK_INFO>(*parsed);
    const std::string full = Pack(kTank, *record);
    record->nDiskCount = 65;
    EXPECT_EQ(Pack(kTank, *record), full);
}

TEST(HardDiskTank, NeedsItsOwnKey) {
    for (const char* document : {"{", "{}", R"({"HardDiskTank":null})", R"({"result":true,"params":{"table":{}}})"}) {
        const auto parsed = ParseDocument<CFG_HARD_DISK_TANK_INFO>(kTank, document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared());
    }
    const auto refused =
        ParseDocument<CFG_HARD_DISK_TANK_INFO>(kTank, R"({"result":false,"HardDiskTank":{"Name":"x"}})");
    ASSERT_TRUE(refused);
    EXPECT_STREQ(refused->szName, "x");
    const std::string text = R"({ "HardDiskTank" : { "Name" : "x" } })"; // no disks, no key
    EXPECT_EQ(Pack(kTank, *refused), text);
    EXPECT_EQ(PackBytes(kTank, &*refused, sizeof *refused, text.size() + 1), text); // its newline gives way
    EXPECT_EQ(PackBytes(kTank, &*refused, sizeof *refused, text.size()), kFailed);
    EXPECT_EQ(PackBytes(kTank, &*refused, sizeof *refused - 1, 4096), kNotBegun);
}

// ---- "Raid" ----

constexpr const char* kRaid = "Raid";
constexpr std::uint32_t kRaidSize = sizeof(CFG_RAID_INFO);

// The first record's size word is the caller's to set.
struct Raids : Records<CFG_RAID_INFO> {
    explicit Raids(std::size_t count, std::uint32_t size = kRaidSize) : Records(count, 0x11) { SetWord(size); }
    void SetWord(std::uint32_t size) const { std::memcpy(data(), &size, sizeof size); }
};

TEST(Raid, GoesRoundByName) {
    const Raids raids(3);
    ASSERT_EQ(
        ParseTable(kRaid, R"({"b":{"Level":5,"Members":["x","y"]},"a":{"Level":-1},"c":null,"d":7,"e":{}})", raids),
        (Answer{1, 3 * kRaidSize}));
    EXPECT_EQ(raids[0].dwSize, kRaidSize);
    EXPECT_STREQ(raids[0].szName, "a");
    EXPECT_EQ(raids[0].nLevel, -1);
    EXPECT_EQ(raids[0].nMemberCount, 0);
    EXPECT_STREQ(raids[1].szName, "b");
    EXPECT_EQ(raids[1].nLevel, 5);
    EXPECT_EQ(raids[1].nMemberCount, 2);
    EXPECT_STREQ(raids[1].szMembers[0], "x");
    EXPECT_STREQ(raids[1].szMembers[1], "y");
    EXPECT_STREQ(raids[2].szName, "d"); // a null takes no place, what is no object has no keys
    EXPECT_EQ(raids[2].nLevel, 0);
    EXPECT_EQ(PackAll(kRaid, raids),
              R"({ "a" : { "Level" : -1 }, "b" : { "Level" : 5, "Members" : [ "x", "y" ] }, "d" : { "Level" : 0 } })");
}

TEST(Raid, NamesOfAnyLengthGoRound) {
    for (const std::size_t size : {0u, 1u, 2u, 63u}) {
        const Raids raids(1);
        const std::string name(size, 'n');
        ASSERT_EQ(ParseTable(kRaid, "{\"" + name + "\":{\"Level\":1}}", raids), (Answer{1, kRaidSize}));
        EXPECT_EQ(raids[0].szName, name);
        EXPECT_EQ(PackAll(kRaid, raids), "{ \"" + name + "\" : { \"Level\" : 1 } }");
    }
    const Raids raids(1);
    ASSERT_EQ(ParseTable(kRaid,
                         "{\"" + std::string(64, 'n') + R"(":{"Members":[")" + std::string(259, 'm') + "\",\""
                             + std::string(260, 'm') + "\",3]}}",
                         raids),
              (Answer{1, kRaidSize}));
    EXPECT_EQ(raids[0].szName, std::string(63, 'n'));
    EXPECT_EQ(raids[0].szMembers[0], std::string(259, 'm'));
    EXPECT_EQ(raids[0].szMembers[1], std::string(259, 'm'));
    EXPECT_STREQ(raids[0].szMembers[2], "");
    EXPECT_EQ(raids[0].nMemberCount, 3);
}

TEST(Raid, CountsMembersBeyondTheirRoom) {
    std::string members = "\"0\"";
    for (int i = 1; i < 33; ++i)
        members += ",\"" + std::to_string(i) + "\"";
    const Raids raids(1);
    ASSERT_EQ(ParseTable(kRaid, R"({"a":{"Members":[)" + members + "]}}", raids), (Answer{1, kRaidSize}));
    EXPECT_EQ(raids[0].nMemberCount, 33); // as told
    EXPECT_STREQ(raids[0].szMembers[31], "31");
    const std::string text = PackAll(kRaid, raids);
    EXPECT_NE(text.find(R"("30", "31" ] })"), std::string::npos); // and written as far as there is room
    ASSERT_EQ(ParseTable(kRaid, R"({"a":{"Members":{"0":"x"}}})", raids), (Answer{1, kRaidSize}));
    EXPECT_EQ(raids[0].nMemberCount, 0); // no list
}

TEST(Raid, OfOneNameTheLastStands) {
    const Raids raids(2);
    ASSERT_EQ(ParseTable(kRaid, R"({"a":{"Level":1},"b":{"Level":2}})", raids), (Answer{1, 2 * kRaidSize}));
    CFG_RAID_INFO second = raids[1];
    std::strcpy(second.szName, "a");
    std::memcpy(raids.data() + kRaidSize, &second, sizeof second);
    EXPECT_EQ(PackAll(kRaid, raids), R"({ "a" : { "Level" : 2 } })");
}

TEST(Raid, OnlyWhatFitsTheCallersSizeMoves) {
    // A caller that knows the name and the level.
    const std::uint32_t known = offsetof(CFG_RAID_INFO, nMemberCount);
    const Records<char> bytes(2 * known + 5, 0x22);
    std::memcpy(bytes.data(), &known, sizeof known);
    ASSERT_EQ(ParseTable(kRaid, R"({"a":{"Level":1,"Members":["x"]},"b":{"Level":2},"c":{"Level":3}})", bytes),
              (Answer{1, 2 * known}));
    const auto level = [&](std::size_t at) {
        std::int32_t number;
        std::memcpy(&number, bytes.data() + at + offsetof(CFG_RAID_INFO, nLevel), sizeof number);
        return number;
    };
    EXPECT_STREQ(bytes.data() + 4, "a");
    EXPECT_EQ(level(0), 1);
    EXPECT_STREQ(bytes.data() + known + 4, "b");
    EXPECT_EQ(level(known), 2);
    EXPECT_EQ(bytes[known], 0x22);     // the second record's own word
    EXPECT_EQ(bytes[2 * known], 0x22); // behind both
    EXPECT_EQ(PackBytes(kRaid, bytes.data(), bytes.size(), 4096),
              "{ \"a\" : { \"Level\" : 1 }, \"b\" : { \"Level\" : 2 } }\n");
    // A newer caller's records lie further apart.
    const std::uint32_t newer = kRaidSize + 8;
    const Records<char> wide(2 * newer, 0x22);
    std::memcpy(wide.data(), &newer, sizeof newer);
    ASSERT_EQ(ParseTable(kRaid, R"({"a":{},"b":{}})", wide), (Answer{1, 2 * newer}));
    EXPECT_STREQ(wide.data() + newer + 4, "b");
    EXPECT_EQ(wide[kRaidSize], 0x22);
}

TEST(Raid, SizesThatNoRecordHasAreRefused) {
    for (const std::uint32_t size : {0u, 1u, 3u, kRaidSize + 1, 0x80000000u}) {
        const Raids raids(1, size);
        const LogLines log;
        EXPECT_EQ(ParseTable(kRaid, R"({"a":{}})", raids), kRefused) << size;
        EXPECT_EQ(raids[0].nLevel, 0x11111111);
        EXPECT_EQ(PackBytes(kRaid, raids.data(), raids.size(), 4096), kNotBegun) << size;
        const bool isTold = size > 0 && size < 4; // not even the word itself
        EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, "_ParamConvert: invalid dwSize"), isTold ? 2 : 0) << size;
    }
}

TEST(Raid, AMissingTableSucceedsWithoutRecords) {
    const Raids raids(1);
    for (const char* table : {"null", "[]", "[{\"Level\":1}]", "7", "{}"}) {
        EXPECT_EQ(ParseTable(kRaid, table, raids), (Answer{1, 0})) << table;
        EXPECT_EQ(raids[0].nLevel, 0x11111111);
    }
    for (const char* document :
         {"{", R"({"params":{"table":{"a":{}}}})", R"({"result":false,"params":{"table":{"a":{}}}})"})
        EXPECT_EQ(ParseDocument(kRaid, document, raids), kRefused) << document;
}

// Keeps where the last line came from, and its code, too.
class LastLine : public LogLines {
  public:
    void SetPosition(const char* itsFile, int itsNumber, E_LOG_LEVEL level) override {
        file = itsFile;
        number = itsNumber;
        LogLines::SetPosition(itsFile, itsNumber, level);
    }
    void TraceOut(int zero, int itsCode, const char* format, char*& arguments) override {
        code = static_cast<std::uint32_t>(itsCode);
        LogLines::TraceOut(zero, itsCode, format, arguments);
    }
    std::string file;
    int number = 0;
    std::uint32_t code = 0;
};

TEST(Raid, TellsTheLogThatThereIsNoMemory) {
    // More names than fit a call's own stack.
    constexpr std::size_t kNames = 512;
    const Raids raids(kNames);
    std::string table = R"({"a0":{}})";
    for (std::size_t i = 1; i < kNames; ++i)
        table.insert(table.size() - 1, ",\"a" + std::to_string(i) + "\":{}");
    ASSERT_EQ(ParseTable(kRaid, table, raids), (Answer{1, kNames * kRaidSize}));
    std::vector<char> text(std::size_t{1} << 16);
    const auto room = static_cast<std::uint32_t>(text.size());
    {
        HeapWatch heap;
        ASSERT_EQ(CLIENT_PacketData(kRaid, raids.data(), raids.size(), text.data(), room), 1);
        ASSERT_GT(heap.allocations(), 0u);
    }
    const LastLine log;
    {
        HeapWatch heap;
        heap.FailFrom(1);
        EXPECT_EQ(CLIENT_PacketData(kRaid, raids.data(), raids.size(), text.data(), room), 0);
    }
    EXPECT_EQ(log.texts(E_LOG_LEVEL_ERROR), std::vector<std::string>{"Storage_Raid_Packet: malloc pszName failed"});
    EXPECT_EQ(log.file, "StorageConfig");
    EXPECT_EQ(log.number, 1045);
    EXPECT_EQ(log.code, 0x90000002u);
    EXPECT_EQ(text[0], '\0');
    // Nothing else is told.
    EXPECT_EQ(CLIENT_PacketData(kRaid, raids.data(), raids.size(), text.data(), 5), 0);
    EXPECT_EQ(log.texts(E_LOG_LEVEL_ERROR).size(), 1u);
}

} // namespace
} // namespace orrery::test
