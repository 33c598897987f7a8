#include "analyse/RuleGroups.h"

#include "alarm/EventHandler.h"
#include "analyse/EventTypeRegistry.h"
#include "analyse/Module.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/RuleCodes.h"
#include "analyse/RuleFrame.h"
#include "analyse/Scene.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;
using json::Value;

namespace {

using Group = CFG_RULE_GROUP_INFO;
using Scene = CFG_VIDEOINANALYSE_SCENE_INFO;

// ---- The rules of a group ----

// A group's type and stride are known when its rows are read.
void ReadRules(const Field&, const Value& value, std::byte* group, ReadCall& call) {
    auto* const buffer = MEMBER(group, Group, pRuleBuf);
    const auto room = MEMBER(group, Group, nRuleBufLen);
    const auto stride = MEMBER(group, Group, nRuleStride);
    if (buffer == nullptr || room < 1 || stride < 1) return;
    const auto rules = value.elements();
    const std::size_t count = std::min(static_cast<std::size_t>(room / stride), rules.size());
    for (std::size_t i = 0; i < count; ++i) {
        auto* const body = reinterpret_cast<std::byte*>(buffer) + i * static_cast<std::size_t>(stride);
        std::memset(body, 0, static_cast<std::size_t>(stride));
        ParseRuleBody(MEMBER(group, Group, dwRuleType), rules[i], body, call);
    }
    SET_MEMBER(group, Group, nRuleNum, static_cast<std::int32_t>(count));
}

void WriteRules(const Field&, const std::byte* group, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    const auto* const buffer = reinterpret_cast<const std::byte*>(MEMBER(group, Group, pRuleBuf));
    const std::int64_t count = MEMBER(group, Group, nRuleNum);
    const std::int64_t stride = MEMBER(group, Group, nRuleStride);
    const std::int64_t room = MEMBER(group, Group, nRuleBufLen);
    const auto code = MEMBER(group, Group, dwRuleType);
    const RuleBody* const body = FindRuleBody(code);
    if (buffer != nullptr && body != nullptr && count > 0 && stride > 0 && room >= count * stride) {
        const bool isLinked = MEMBER(group, Group, bHasEventHandler) == 0;
        const CFG_RULE_GENERAL_INFO general{};
        for (std::int64_t i = 0; i < count && i * stride + body->size <= room; ++i)
            PackRuleBody(code, reinterpret_cast<const std::byte*>(&general), buffer + i * stride, isLinked, call);
    }
    call.out.EndArray();
}
constexpr CustomCodec kRules{ReadRules, WriteRules};

// The linkage goes out with the group's schedule over its own: a holiday that only the linkage has stays behind the
// week.
void WriteLinkage(const Field&, const std::byte* group, WriteCall& call) {
    if (MEMBER(group, Group, bHasEventHandler) == 0) return;
    auto* const linkage = call.parser.text().arena().Array<std::byte>(sizeof(CFG_EVENT_HANDLER_INFO));
    if (linkage == nullptr) return;
    std::memcpy(linkage, group + offsetof(Group, stuEventHandler), sizeof(CFG_EVENT_HANDLER_INFO));
    const std::byte* const schedule = group + offsetof(Group, stuTimeSchedule);
    std::byte* const written = linkage + offsetof(CFG_EVENT_HANDLER_INFO, stuTimeSectionEx);
    constexpr std::size_t kWeekAt = offsetof(CFG_TIME_SCHEDULE, stuTimeSection);
    if (MEMBER(schedule, CFG_TIME_SCHEDULE, bEnableHoliday) != 0)
        std::memcpy(written, schedule, sizeof(CFG_TIME_SCHEDULE));
    else
        std::memcpy(written + kWeekAt, schedule + kWeekAt,
                    sizeof(CFG_TIME_SECTION[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]));
    call.Key();
    WriteRecord(kEventHandler, linkage, call);
}
constexpr CustomCodec kLinkage{nullptr, WriteLinkage};

constexpr PackedItems kGroupItems{
    .pointer = offsetof(Group, pRuleBuf),
    .count = MakeSlot<decltype(Group::nRuleNum)>(offsetof(Group, nRuleNum)),
    .bytes = MakeSlot<decltype(Group::nRuleBufLen)>(offsetof(Group, nRuleBufLen)),
    .code = MakeSlot<decltype(Group::dwRuleType)>(offsetof(Group, dwRuleType)),
    .size = MakeSlot<decltype(Group::nRuleStride)>(offsetof(Group, nRuleStride)),
    .typeCount = kRuleTypes,
    .typeAt = RuleTypeAt,
    .typeOf = RuleTypeOf,
};
struct UInt8 {
    std::uint8_t value;
};
PART(kUInt8, UInt8,
     {
         FIELD(value, "", UInt),
     });
PART(kRuleGroup, CFG_RULE_GROUP_INFO,
     {
         FIELD(dwRuleType).Coded(kRuleCodes),
         FIELD(nRuleStride),
         FIELD(bEnable, "Enable", Bool),
         FIELD(bHasEventHandler),
         FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).SetsAndNeeds(AT(bHasEventHandler)).ReadOnly(),
         FIELD(stuTimeSchedule, "EventHandler/TimeSection", HolidaySchedule).ReadOnly(),
         MakeVirtual("EventHandler", Custom(kLinkage)),
         FIELD(nRuleNum),
         FIELD(pRuleBuf, "Rule", Custom(kRules)).PointsTo(kUInt8),
         FIELD(nRuleBufLen),
     })
    .Describes(kGroupItems);

// ---- The groups of a scene ----

void ReadGroups(const Field& field, const Value& value, std::byte* scene, ReadCall& call) {
    std::uint32_t count = 0;
    for (const json::Member& member : value.members()) {
        if (count == field.dims[0]) break;
        const auto code = static_cast<std::uint32_t>(RuleCodeFromName(member.key()));
        const std::uint32_t size = RuleRecordSize(code);
        if (code == 0 || size == 0) continue;
        std::byte* const group = scene + field.offset + count++ * sizeof(Group);
        SET_MEMBER(group, Group, dwRuleType, code);
        SET_MEMBER(group, Group, nRuleStride, static_cast<std::int32_t>(size));
        ReadRecord(kRuleGroup, member.value, group, call);
    }
    StoreSlot(field.count, scene, count);
}

// A group on its way out.
struct NamedGroup {
    std::string_view name;
    const std::byte* group;
};

void WriteGroups(const Field& field, const std::byte* scene, WriteCall& call) {
    const auto count =
        static_cast<std::uint32_t>(std::clamp<std::int64_t>(LoadSlot(field.count, scene), 0, field.dims[0]));
    call.Key();
    if (count == 0) return call.out.Null();
    // In the order of their names; of equal names the last comes last.
    NamedGroup groups[ORRERY_RULE_GROUPS];
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::byte* const group = scene + field.offset + i * sizeof(Group);
        const std::string_view name = RuleNameOf(static_cast<std::int32_t>(MEMBER(group, Group, dwRuleType)), true);
        std::uint32_t at = i;
        for (; at > 0 && groups[at - 1].name > name; --at)
            groups[at] = groups[at - 1];
        groups[at] = {name, group};
    }
    call.out.BeginObject();
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i + 1 < count && groups[i].name == groups[i + 1].name) continue;
        call.out.Key(groups[i].name);
        WriteRecord(kRuleGroup, groups[i].group, call);
    }
    call.out.EndObject();
}
constexpr CustomCodec kGroups{
    ReadGroups, WriteGroups,
    R"({"FireDetection":{"Enable":true,"Rule":[]},"MoveDetection":{"Enable":false,"Rule":[]}})"};

PART(kGroupScene, CFG_VIDEOINANALYSE_SCENE_INFO,
     {
         FIELD(stuGlobal, "Global", Record(kAnalyseGlobal)),
         FIELD(stuModule, "Module", Record(kAnalyseModules)),
         FIELD(stuRuleGroups, "Rules", Custom(kGroups)).PointsTo(kRuleGroup).Count(AT(nRuleGroupNum)),
         FIELD(nRuleGroupNum),
     });

} // namespace

TABLE(kRuleGroups, CFG_VIDEOINANALYSE_RULES_INFO,
      {
          FIELD(nSceneNum),
          FIELD(stuScenes, "", Record(kGroupScene)).Count(AT(nSceneNum)).WriteEmpty(Empty::Array),
      });

void ClearRuleGroups(std::byte* record) {
    using All = CFG_VIDEOINANALYSE_RULES_INFO;
    struct Callers {
        std::uint8_t* buffer;
        std::int32_t room;
    };
    Callers callers[ORRERY_ANALYSE_SCENES][ORRERY_RULE_GROUPS];
    const auto groupAt = [&](std::size_t scene, std::size_t group) {
        return record + offsetof(All, stuScenes) + scene * sizeof(Scene) + offsetof(Scene, stuRuleGroups)
               + group * sizeof(Group);
    };
    for (std::size_t scene = 0; scene < ORRERY_ANALYSE_SCENES; ++scene) {
        for (std::size_t group = 0; group < ORRERY_RULE_GROUPS; ++group) {
            const std::byte* const at = groupAt(scene, group);
            callers[scene][group] = {MEMBER(at, Group, pRuleBuf), MEMBER(at, Group, nRuleBufLen)};
        }
    }
    std::memset(record, 0, sizeof(All));
    for (std::size_t scene = 0; scene < ORRERY_ANALYSE_SCENES; ++scene) {
        for (std::size_t group = 0; group < ORRERY_RULE_GROUPS; ++group) {
            std::byte* const at = groupAt(scene, group);
            SET_MEMBER(at, Group, pRuleBuf, callers[scene][group].buffer);
            SET_MEMBER(at, Group, nRuleBufLen, callers[scene][group].room);
        }
    }
}

} // namespace orrery
