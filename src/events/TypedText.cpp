#include "events/TypedText.h"

#include "analyse/RuleFrame.h"
#include "analyse/TrafficFlow.h"
#include "events/EventParts.h"
#include "events/ReqRealPicture.h"
#include "events/TypedRecords.h"
#include "frame/Document.h"
#include "frame/Outside.h"

#include <algorithm>

namespace orrery {

using json::Value;

namespace events {

namespace {

constexpr TypedRow kRows[] = {
    {ORRERY_TYPED_VIDEO_STAT_SUMMARY, "VideoStatSummary", &kTypedStatSummary, false},
    {ORRERY_TYPED_VIDEO_ANALYSE_RULE, "VideoAnalyseRule", &kTypedRules, false},
    {ORRERY_TYPED_OBJECT_LIST, "ObjectList", &kObject, true},
    {ORRERY_TYPED_TRAFFIC_FLOW_STAT_INFO, "TrafficFlowStatInfo", &kTypedFlow, true},
    {ORRERY_TYPED_TRAFFIC_FLOW_STAT, "TrafficFlowStat", &orrery::kTrafficFlowStat, false},
    {ORRERY_TYPED_VIDEO_SYNOPSIS_ANALYSE_RULE, "VideoSynopsisAnalyseRule", &kTypedSynopsis, false},
};

} // namespace

std::span<const TypedRow> TypedRows() noexcept {
    return kRows;
}

const TypedRow* FindTyped(std::uint32_t code) noexcept {
    for (const TypedRow& row : kRows) {
        if (row.code == code) return &row;
    }
    return nullptr;
}

const TypedRow* FindTyped(std::string_view name) noexcept {
    for (const TypedRow& row : kRows) {
        if (row.name == name) return &row;
    }
    return nullptr;
}

} // namespace events

namespace {

using events::TypedRow;

// One key of a text, with the memory of what is handed over for it.
class Worker {
  public:
    Worker(const Value& root, std::size_t textSize, ORRERY_EVENT_CALLBACK callback, void* user) noexcept
        : root_(root), callback_(callback), user_(user) {
        arena_.Limit(kMostAnyway + kMostPerByte * textSize);
    }

    std::int32_t Run(const TypedRow& row) noexcept {
        const Value& value = root_[row.name];
        if (row.code == ORRERY_TYPED_VIDEO_ANALYSE_RULE) return Rules(row, value);
        return row.isList ? List(row, value) : One(row, value);
    }

  private:
    // As the events of a text.
    static constexpr std::size_t kMostAnyway = std::size_t{64} << 20;
    static constexpr std::size_t kMostPerByte = 64;

    std::byte* Block(std::size_t size) noexcept {
        auto* const block = arena_.Array<std::byte>(size);
        if (block != nullptr) std::memset(block, 0, size);
        return block;
    }
    std::int32_t HandOver(const TypedRow& row, const std::byte* record, std::size_t size) noexcept {
        orrery::HandOver(callback_, row.code, record, static_cast<std::uint32_t>(size), user_);
        return 1;
    }

    std::int32_t One(const TypedRow& row, const Value& value) noexcept {
        if (value.isNull()) return 0;
        std::byte* const record = Block(row.table->size);
        if (record == nullptr) return 0;
        if (row.code == ORRERY_TYPED_TRAFFIC_FLOW_STAT && !MakeExtraConfigs(record)) return 0;
        record::ReadRecord(*row.table, value, record, call_);
        const bool lacksItsBlock = row.code == ORRERY_TYPED_VIDEO_SYNOPSIS_ANALYSE_RULE && arena_.failed();
        return lacksItsBlock ? 0 : HandOver(row, record, row.table->size);
    }

    // Room for the lanes behind the eighth, as many as the text's own "Config" has: that of the flow is not looked at.
    bool MakeExtraConfigs(std::byte* record) noexcept {
        const std::size_t lanes = root_["Config"].elements().size();
        if (lanes <= ORRERY_FLOW_LANES) return true;
        const std::size_t extra = lanes - ORRERY_FLOW_LANES;
        std::byte* const block = Block(extra * sizeof(CFG_TRAFFICFLOW_LANE));
        if (block == nullptr) return false;
        SET_MEMBER(record, CFG_TRAFFICFLOWSTAT_INFO, nExtraMax, static_cast<std::int32_t>(extra));
        SET_MEMBER(record, CFG_TRAFFICFLOWSTAT_INFO, pExtraConfigs, reinterpret_cast<CFG_TRAFFICFLOW_LANE*>(block));
        return true;
    }

    std::int32_t List(const TypedRow& row, const Value& value) noexcept {
        const auto elements = value.elements();
        if (elements.empty()) return 1;
        // Objects stand one behind the other; lanes keep their places.
        const bool closesUp = row.code == ORRERY_TYPED_OBJECT_LIST;
        const std::size_t size = row.table->size;
        if (elements.size() > UINT32_MAX / size) return 0; // more bytes than a callback can be told of
        std::byte* const records = Block(elements.size() * size);
        if (records == nullptr) return 0;
        std::size_t used = 0;
        for (const Value& element : elements) {
            if (element.isNull() && closesUp) continue;
            record::ReadRecord(*row.table, element, records + used++ * size, call_);
        }
        return HandOver(row, records, used * size);
    }

    std::int32_t Rules(const TypedRow& row, const Value& value) noexcept {
        std::byte* const record = Block(row.table->size);
        if (record == nullptr) return 0;
        const std::uint32_t size = RuleArraySizeNeeded(value);
        if (size == 0) {
            HandOver(row, record, row.table->size);
            return 0;
        }
        CFG_ANALYSERULES_INFO rules{};
        rules.nRuleLen = static_cast<std::int32_t>(size);
        rules.pRuleBuf = arena_.Array<std::uint8_t>(size);
        if (rules.pRuleBuf == nullptr) return 0;
        const Outcome outcome = ReadRuleArray(value, rules, call_);
        SET_MEMBER(record, EVENT_RULE_TABLE, dwHead, static_cast<std::uint32_t>(rules.nRuleCount));
        SET_MEMBER(record, EVENT_RULE_TABLE, pRuleBuf, rules.pRuleBuf);
        SET_MEMBER(record, EVENT_RULE_TABLE, nRuleBufLen, rules.nRuleLen);
        HandOver(row, record, row.table->size);
        return outcome == Outcome::Done ? 1 : 0;
    }

    const Value& root_;
    ORRERY_EVENT_CALLBACK callback_;
    void* user_;
    StackArena<std::size_t{8} << 10> arena_;
    LocalText text_{arena_};
    JsonParser parser_{text_};
    record::ReadCall call_{parser_, root_};
};

} // namespace

std::int32_t DeliverTyped(const char* text, ORRERY_EVENT_CALLBACK callback, void* user) noexcept {
    Document document;
    if (document.Parse(text) != Outcome::Done) return 0;
    const std::size_t size = std::string_view(text).size();
    const auto run = [&](const TypedRow& row) { return Worker(document.root, size, callback, user).Run(row); };
    std::int32_t result = 0;
    // Rules come before all else: what follows is told in their terms.
    const auto members = document.root.members();
    for (const json::Member& member : members) {
        const TypedRow* const row = events::FindTyped(member.key());
        if (row != nullptr && row->code == ORRERY_TYPED_VIDEO_ANALYSE_RULE) result = run(*row);
    }
    for (const json::Member& member : members) {
        if (member.key() == "Event" || member.key() == "EventList") {
            result = DeliverEvents(text, callback, user);
            continue;
        }
        const TypedRow* const row = events::FindTyped(member.key());
        if (row != nullptr && row->code != ORRERY_TYPED_VIDEO_ANALYSE_RULE) result = run(*row);
    }
    return result;
}

} // namespace orrery
