#include "storage/Disks.h"

#include "frame/Log.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;
using json::Value;

namespace {

// What is no list, or an empty one, is a state all the same.
void FinishStates(const Value& value, std::byte* states, ReadCall&) {
    constexpr std::size_t kFirst = offsetof(CFG_STORAGE_STATES, nStatusList);
    if (value.elements().empty()) {
        SET_MEMBER(states, CFG_STORAGE_STATES, nStatusCount, 1);
        Store(states + kFirst, value.asInt());
    }
    SET_MEMBER(states, CFG_STORAGE_STATES, nStatus, Load<std::int32_t>(states + kFirst));
}

PART(kStates, CFG_STORAGE_STATES,
     {
         FIELD(nStatusCount),
         FIELD(nStatus),
         FIELD(nStatusList, "", Int).CountUncapped(AT(nStatusCount)),
     })
    .AfterRead(FinishStates);

// Of the first elements of a list, as many as a record has places, those that a test takes.
template <class Test>
std::int32_t CountOf(const Value& list, std::size_t places, const Test& test) {
    const auto elements = list.elements();
    return static_cast<std::int32_t>(std::count_if(
        elements.begin(), elements.begin() + static_cast<std::ptrdiff_t>(std::min(elements.size(), places)), test));
}

// ---- "RaidGroup" ----

#define RAID_ROWS(in)                                                                                                  \
    {                                                                                                                  \
        FIELD(szName, in "Name", Text), FIELD(nType, in "Type", Int), FIELD(stuStatus, in "Status", Record(kStates)),  \
            FIELD(nMemberCount),                                                                                       \
            FIELD(nMember, in "Member", Int).Count(AT(nMemberCount)).NullElement(Nulls::LeaveHole),                    \
            FIELD(nCapacity, in "Capacity", Int), FIELD(nTank, in "Tank", Int),                                        \
            FIELD(nRemainSpace, in "RemainSpace", Int),                                                                \
    }

PART(kBareRaid, CFG_RAID_GROUP_ITEM, RAID_ROWS(""));

const Value& RaidIn(const Value& element) noexcept {
    const Value& inner = element["Raid"];
    return inner.isNull() ? element : inner;
}

// Some devices leave out the object around an array's keys.
void ReadBareRaid(const Value& value, std::byte* record, ReadCall& call) {
    if (&RaidIn(value) == &value) ReadFields(kBareRaid, value, record, call);
}

PART(kRaidInGroup, CFG_RAID_GROUP_ITEM, RAID_ROWS("Raid/")).AfterRead(ReadBareRaid);

void CountRaids(const Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_RAID_GROUP_INFO, nCount,
               CountOf(value, ORRERY_RAIDS, [](const Value& element) { return !RaidIn(element)["Name"].isNull(); }));
}

// ---- "StoragePoolGroup", "StoragePositionGroup" ----

// What is no name leaves its place empty and does not count.
void CountPoolMembers(const Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_STORAGE_POOL_ITEM, nMemberCount,
               CountOf(value["StoragePool"]["Member"], ORRERY_STORAGE_POOL_MEMBERS,
                       [](const Value& member) { return member.isString(); }));
}

PART(kPool, CFG_STORAGE_POOL_ITEM,
     {
         FIELD(szName, "StoragePool/Name", Text),
         FIELD(nMemberCount),
         FIELD(szMember, "StoragePool/Member", Text),
         FIELD(nUsed, "StoragePool/Used", Int),
         FIELD(nCapacity, "StoragePool/Capacity", Int),
         FIELD(stuStatus, "StoragePool/Status", Record(kStates)),
         FIELD(nTank, "StoragePool/Tank", Int),
     })
    .AfterRead(CountPoolMembers);

PART(kPosition, CFG_STORAGE_POSITION_ITEM,
     {
         FIELD(szName, "StoragePosition/Name", Text),
         FIELD(szStoragePoolName, "StoragePosition/StoragePoolName", Text),
         FIELD(nUsed, "StoragePosition/Used", Int),
         FIELD(nCapacity, "StoragePosition/Capacity", Int),
         FIELD(stuStatus, "StoragePosition/Status", Record(kStates)),
     });

void CountPools(const Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_STORAGE_POOL_GROUP_INFO, nCount,
               CountOf(value, ORRERY_STORAGE_POOLS,
                       [](const Value& element) { return !element["StoragePool"]["Name"].isNull(); }));
}

void CountPositions(const Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_STORAGE_POSITION_GROUP_INFO, nCount,
               CountOf(value, ORRERY_STORAGE_POSITIONS,
                       [](const Value& element) { return !element["StoragePosition"]["Name"].isNull(); }));
}

PART(kHardDisk, CFG_HARD_DISK_ITEM,
     {
         FIELD(nChan, "Chan", Int),
         FIELD(nCapacity, "Capacity", Int),
         FIELD(nStatus, "Status", Int),
         FIELD(nUsedSatus, "UsedSatus", Int),
         FIELD(szRaidName, "RaidName", Text),
         FIELD(szType, "Type", Text),
         FIELD(nHotBack, "HotBack", Int),
         FIELD(nTank, "Tank", Int),
         FIELD(nRemainSpace, "RemainSpace", Int),
     });

} // namespace

TABLE(kRaidGroup, CFG_RAID_GROUP_INFO,
      {
          FIELD(nCount),
          FIELD(stuRaid, "", Record(kRaidInGroup)).Count(AT(nCount)),
      })
    .AfterRead(CountRaids);

// With places that do not count a list is shown whole, so that its rows know of no count.
TABLE(kStoragePoolGroup, CFG_STORAGE_POOL_GROUP_INFO,
      {
          FIELD(nCount),
          FIELD(stuPool, "", Record(kPool)),
      })
    .AfterRead(CountPools);

TABLE(kStoragePositionGroup, CFG_STORAGE_POSITION_GROUP_INFO,
      {
          FIELD(nCount),
          FIELD(stuPosition, "", Record(kPosition)),
      })
    .AfterRead(CountPositions);

TABLE(kHardDiskTank, CFG_HARD_DISK_TANK_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nDiskCount),
          FIELD(stuHardDisk, "HardDiskGroup/HardDisk", Record(kHardDisk)).Count(AT(nDiskCount)),
      });

TABLE(kRaids, CFG_RAID_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(szName, nullptr, MemberName).ConvertedRoom(2 * sizeof(CFG_RAID_INFO::szName) - 1),
          FIELD(nLevel, "Level", Int),
          FIELD(nMemberCount),
          FIELD(szMembers, "Members", Text).CountUncapped(AT(nMemberCount)),
      });

void LogRaidPack(Outcome outcome, const PackRequest&) noexcept {
    if (outcome != Outcome::OutOfMemory) return;
    LogSetPosition("StorageConfig", 1045, E_LOG_LEVEL_ERROR);
    LogTrace(E_LOG_CODE_NO_MEMORY, "Storage_Raid_Packet: malloc pszName failed");
}

} // namespace orrery
