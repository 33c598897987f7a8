#include "analyse/RuleFrame.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/RuleClasses.h"
#include "analyse/RuleParts.h"
#include "frame/Deliver.h"
#include "frame/Log.h"
#include "frame/ReplySteps.h"

#include <algorithm>
#include <array>

namespace orrery {

using namespace record;
using json::Value;

TABLE(kRuleGeneral, CFG_RULE_GENERAL_INFO,
      {
          FIELD(byId),
          FIELD(nClass),
          FIELD(bReserved),
      });
TABLE(kRuleInfo, CFG_RULE_INFO,
      {
          FIELD(dwRuleType),
          FIELD(nRuleSize),
          FIELD(stuRuleGeneral, nullptr, Record(kRuleGeneral)),
      });
namespace {

ItemType TypeOf(const RuleBody& body) noexcept {
    const auto code = static_cast<std::int32_t>(body.code);
    const std::string_view name = RuleNameOf(code, false);
    const bool isNamed = RuleCodeFromName(name) == code;
    return {body.code, isNamed ? name : std::string_view(), body.table, body.isRead && isNamed};
}
using Rules = CFG_ANALYSERULES_INFO;

} // namespace

ItemType RuleTypeAt(std::uint32_t index) noexcept {
    return TypeOf(RuleBodies()[index]);
}
ItemType RuleTypeOf(std::uint32_t code) noexcept {
    const RuleBody* const body = FindRuleBody(code);
    return body == nullptr ? ItemType{} : TypeOf(*body);
}

constexpr PackedItems kRuleItems =
    RuleItems(offsetof(Rules, pRuleBuf), MakeSlot<decltype(Rules::nRuleCount)>(offsetof(Rules, nRuleCount)),
              MakeSlot<decltype(Rules::nRuleLen)>(offsetof(Rules, nRuleLen)));

TABLE(kAnalyseRules, CFG_ANALYSERULES_INFO,
      {
          FIELD(nRuleCount),
          FIELD(pRuleBuf).PointsTo(kRuleInfo),
          FIELD(nRuleLen),
      })
    .Describes(kRuleItems);

namespace {

constexpr std::uint32_t kHeadSize = sizeof(CFG_RULE_INFO);
constexpr std::size_t kGeneralAt = offsetof(CFG_RULE_INFO, stuRuleGeneral);
static_assert(kHeadSize == 528 && sizeof(CFG_RULE_GENERAL_INFO) == 520 && kGeneralAt == 8);

#define LOG_DETAIL(text)                                                                                               \
    (LogSetPosition("VideoAnalyseConfig", __LINE__, E_LOG_LEVEL_DETAIL), LogTrace(E_LOG_CODE_NONE, "%s", text))

// What the first pass learns of a rule. Code 0: the rule names no type.
struct Head {
    std::uint32_t code = 0;
    std::uint32_t size = 0;
    std::uint8_t id = 0;
    std::int32_t ruleClass = CFG_RULE_CLASS_NONE;
};

std::uint32_t CodeOf(const Value& type) noexcept {
    return static_cast<std::uint32_t>(RuleCodeFromName(type.asString()));
}

std::uint32_t CountOf(const Value& array) noexcept {
    return std::min<std::uint32_t>(array.size(), ORRERY_MOST_RULES);
}

std::int32_t ReadClass(const Value& value) noexcept {
    if (value.isNull()) {
        LOG_DETAIL("This class type is not exist!");
        return CFG_RULE_CLASS_NONE;
    }
    const std::int32_t ruleClass = RuleClassOf(value.asString());
    if (ruleClass == CFG_RULE_CLASS_NONE) LOG_DETAIL("This calss type is unknown!");
    return ruleClass;
}

// False for a type without a record.
bool ReadHead(const Value& rule, Head& head) noexcept {
    const Value& type = rule["Type"];
    if (type.isNull()) return true;
    head.code = CodeOf(type);
    head.size = RuleRecordSize(head.code);
    if (head.size == 0) return false;
    head.id = static_cast<std::uint8_t>(rule["Id"].asInt());
    head.ruleClass = ReadClass(rule["Class"]);
    return true;
}

// The item is clear.
bool Place(const Head& head, const Value& rule, std::byte* item, ReadCall& call) noexcept {
    const RuleBody* const body = FindRuleBody(head.code);
    if (body == nullptr || !body->isRead) {
        LOG_DETAIL("Unknown rules type");
        return false;
    }
    SET_MEMBER(item, CFG_RULE_INFO, dwRuleType, head.code);
    SET_MEMBER(item, CFG_RULE_INFO, nRuleSize, static_cast<std::int32_t>(head.size));
    SET_MEMBER(item + kGeneralAt, CFG_RULE_GENERAL_INFO, byId, head.id);
    SET_MEMBER(item + kGeneralAt, CFG_RULE_GENERAL_INFO, nClass, head.ruleClass);
    ParseRuleBody(head.code, rule, item + kHeadSize, call);
    return true;
}

CFG_ANALYSERULES_INFO LoadRules(const void* record) noexcept {
    return Load<CFG_ANALYSERULES_INFO>(static_cast<const std::byte*>(record));
}

Outcome ParseRules(const ParseRequest& request, Source source, const char* name) noexcept {
    if (request.bufferSize < sizeof(CFG_ANALYSERULES_INFO)) return Outcome::BufferTooSmall;
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    auto* const record = static_cast<std::byte*>(request.buffer);
    // The caller's descriptor keeps its count until all is read.
    CFG_ANALYSERULES_INFO rules = LoadRules(record);
    ReadCall call{document.parser, document.root};
    const Outcome outcome = ReadRuleArray(FindValue(source, name, document.root), rules, call);
    if (outcome != Outcome::Done) return outcome;
    if (document.arena.failed()) return Outcome::OutOfMemory;
    SET_MEMBER(record, CFG_ANALYSERULES_INFO, nRuleCount, rules.nRuleCount);
    if (request.returnedLength != nullptr) *request.returnedLength = sizeof(CFG_ANALYSERULES_INFO);
    return Outcome::Done;
}

} // namespace

std::uint32_t RuleArraySizeNeeded(const Value& array) noexcept {
    const std::uint32_t count = CountOf(array);
    std::uint32_t needed = count * kHeadSize;
    for (std::uint32_t i = 0; i < count; ++i) {
        const Value& type = array[i]["Type"];
        if (type.isNull()) continue;
        const std::uint32_t size = RuleRecordSize(CodeOf(type));
        if (size == 0) return 0;
        needed += size;
    }
    return needed;
}

bool ParseRuleBody(std::uint32_t code, const Value& rule, std::byte* body, ReadCall& call) noexcept {
    const RuleBody* const row = FindRuleBody(code);
    if (row == nullptr || body == nullptr) return false;
    ReadRecord(*row->table, rule, body, call);
    return true;
}

bool PackRuleBody(std::uint32_t code, const std::byte* general, const std::byte* body, bool writeLinkage,
                  WriteCall& call) noexcept {
    const RuleBody* const row = FindRuleBody(code);
    if (row == nullptr || body == nullptr) return false;
    rules::RuleItem item;
    item.sections = body + row->week;
    item.cleared = LoadSlot(row->cleared, body) != 0;
    item.code = code;
    item.general = general;
    const void* const outer = call.context;
    const bool outerLinked = call.linked;
    call.context = static_cast<const linkage::RuleWeek*>(&item);
    call.linked = writeLinkage;
    WriteRecord(*row->table, body, call);
    call.context = outer;
    call.linked = outerLinked;
    return true;
}

namespace {

// What becomes an item.
struct Item {
    Head head;
    const Value* rule;
};
struct Items {
    std::array<Item, ORRERY_MOST_RULES> all;
    std::size_t count = 0;
    std::int64_t needed = 0; // bytes

    void Add(const Head& head, const Value& rule) noexcept {
        all[count++] = {head, &rule};
        needed += head.size;
    }
};

// `counted` rules, of which some may take no item.
Outcome PlaceItems(Items& items, std::uint32_t counted, CFG_ANALYSERULES_INFO& rules, ReadCall& call) noexcept {
    rules.nRuleCount = static_cast<std::int32_t>(counted);
    if (std::int64_t{counted} * kHeadSize + items.needed > rules.nRuleLen) return Outcome::BufferTooSmall;
    if (rules.pRuleBuf == nullptr) return counted == 0 ? Outcome::Done : Outcome::BadArguments;
    auto* at = reinterpret_cast<std::byte*>(rules.pRuleBuf);
    const std::byte* const end = at + rules.nRuleLen;
    // Each item is cleared just before it is read, while it is at hand, and what is behind the last one afterwards. A
    // buffer that no cache holds is cleared at once: the C library then passes the cache, in a third of the time that
    // items one by one take.
    constexpr std::int32_t kMostAtHand = std::int32_t{24} << 20;
    const bool isClear = rules.nRuleLen > kMostAtHand;
    if (isClear) std::memset(at, 0, static_cast<std::size_t>(rules.nRuleLen));
    Outcome outcome = Outcome::Done;
    for (std::size_t i = 0; i < items.count && outcome == Outcome::Done; ++i) {
        const Item& item = items.all[i];
        const std::size_t size = kHeadSize + std::size_t{item.head.size};
        if (!isClear) std::memset(at, 0, size);
        if (!Place(item.head, *item.rule, at, call)) outcome = Outcome::BadItem;
        at += size;
    }
    if (!isClear) std::memset(at, 0, static_cast<std::size_t>(end - at));
    return outcome;
}

} // namespace

Outcome ReadRuleArray(const Value& array, CFG_ANALYSERULES_INFO& rules, ReadCall& call) noexcept {
    const std::uint32_t count = CountOf(array);
    rules.nRuleCount = static_cast<std::int32_t>(count);
    Items items;
    for (std::uint32_t i = 0; i < count; ++i) {
        Head head;
        if (!ReadHead(array[i], head)) return Outcome::BadItem;
        items.Add(head, array[i]);
    }
    return PlaceItems(items, count, rules, call);
}

Outcome ReadRuleTemplate(const Value& rules, CFG_ANALYSERULES_INFO& into, ReadCall& call) noexcept {
    const auto members = rules.members();
    const std::uint32_t count = CountOf(rules);
    Items items;
    for (std::uint32_t i = 0; i < count && i < members.size(); ++i) {
        const Value& rule = members[i].value;
        Head head;
        if (!rule["Type"].isNull() && !rule["Class"].isNull()) {
            head.code = CodeOf(rule["Type"]);
            head.size = RuleRecordSize(head.code);
            if (head.size == 0) return Outcome::BadItem;
            head.ruleClass = *kTemplateClasses.CodeOf(rule["Class"].asString());
        }
        if (!rule.isNull()) items.Add(head, rule);
    }
    return PlaceItems(items, std::min<std::uint32_t>(count, static_cast<std::uint32_t>(members.size())), into, call);
}

Outcome WriteRuleArray(const CFG_ANALYSERULES_INFO& rules, WriteCall& call) noexcept {
    call.out.BeginArray();
    const auto* const first = reinterpret_cast<const std::byte*>(rules.pRuleBuf);
    std::int64_t offset = 0;
    for (std::int32_t i = 0; i < rules.nRuleCount && first != nullptr; ++i) {
        if (offset + kHeadSize >= rules.nRuleLen) return Outcome::RecordTooSmall;
        const std::byte* const item = first + offset;
        const RuleBody* const body = FindRuleBody(MEMBER(item, CFG_RULE_INFO, dwRuleType));
        if (body == nullptr) return Outcome::BadItem;
        const std::int64_t size = MEMBER(item, CFG_RULE_INFO, nRuleSize);
        if (size < body->size || offset + kHeadSize + size > rules.nRuleLen) return Outcome::RecordTooSmall;
        if (!PackRuleBody(body->code, item + kGeneralAt, item + kHeadSize, true, call)) return Outcome::BadItem;
        offset += kHeadSize + size;
    }
    call.out.EndArray();
    return Outcome::Done;
}

Outcome ParseAnalyseRules(const ParseRequest& request) noexcept {
    return ParseRules(request, Source::Table, "");
}

Outcome ParseFrameRules(const ParseRequest& request) noexcept {
    return ParseRules(request, Source::Top, "VideoAnalyseRule");
}

Outcome PackAnalyseRules(const PackRequest& request) noexcept {
    if (request.recordSize < sizeof(CFG_ANALYSERULES_INFO)) return Outcome::RecordTooSmall;
    const CFG_ANALYSERULES_INFO rules = LoadRules(request.record);
    const auto write = [&](json::TextWriter& out) {
        WrittenText written(out);
        const Outcome outcome = WriteRuleArray(rules, written.call);
        const Outcome ended = written.End();
        return outcome == Outcome::Done ? ended : outcome;
    };
    const Outcome outcome = DeliverText(write, Capacity::Loose, request);
    if (outcome != Outcome::Done || rules.nRuleCount == 0) return outcome;
    // A device takes the empty list that stands there now as "no rules", but the caller had something else in mind.
    return rules.nRuleCount < 0 || rules.pRuleBuf == nullptr ? Outcome::NotAccepted : Outcome::Done;
}

} // namespace orrery
