#include "analyse/RuleParts.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleClasses.h"
#include "frame/record/Engine.h"

namespace orrery::rules {

namespace {

// ---- What stands in the item's head ----

const RuleItem* ItemOf(const WriteCall& call) {
    return static_cast<const RuleItem*>(static_cast<const linkage::RuleWeek*>(call.context));
}

void WriteClass(const Field&, const std::byte*, WriteCall& call) {
    const RuleItem* const item = ItemOf(call);
    if (item == nullptr) return; // a record on its own has no head
    call.Key();
    call.out.String(RuleClassName(MEMBER(item->general, CFG_RULE_GENERAL_INFO, nClass)));
}

void WriteId(const Field&, const std::byte*, WriteCall& call) {
    const RuleItem* const item = ItemOf(call);
    if (item == nullptr) return;
    call.Key();
    call.out.UInt(MEMBER(item->general, CFG_RULE_GENERAL_INFO, byId));
}

void WriteType(const Field&, const std::byte*, WriteCall& call) {
    const RuleItem* const item = ItemOf(call);
    if (item == nullptr) return;
    call.Key();
    call.out.String(RuleNameOf(static_cast<std::int32_t>(item->code), true));
}

// ---- Limits of speed: the text has the lower one first ----

template <bool Descending, bool Unsigned>
void ReadSpeeds(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.size() < 2) return;
    for (std::uint32_t i = 0; i < 2; ++i) {
        const json::Value& number = value[Descending ? 1 - i : i];
        std::byte* const at = record + field.offset + i * std::size_t{4};
        if constexpr (Unsigned)
            Store(at, number.asUInt());
        else
            Store(at, number.asInt());
    }
}

template <bool Descending, bool Unsigned>
void WriteSpeeds(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < 2; ++i) {
        const std::byte* const at = record + field.offset + (Descending ? 1 - i : i) * std::size_t{4};
        if constexpr (Unsigned)
            call.out.UInt(Load<std::uint32_t>(at));
        else
            call.out.Int(Load<std::int32_t>(at));
    }
    call.out.EndArray();
}

void WriteNull(const Field&, const std::byte*, WriteCall& call) {
    call.Key();
    call.out.Null();
}

} // namespace

constexpr CustomCodec kClassCodec{nullptr, WriteClass};
constexpr CustomCodec kIdCodec{nullptr, WriteId};
constexpr CustomCodec kTypeCodec{nullptr, WriteType};
constexpr CustomCodec kNoConfigCodec{nullptr, WriteNull};

constexpr CustomCodec kSpeedsAscending{ReadSpeeds<false, false>, WriteSpeeds<false, false>};
constexpr CustomCodec kSpeedsDescending{ReadSpeeds<true, false>, WriteSpeeds<true, false>};
constexpr CustomCodec kUnsignedSpeedsDescending{ReadSpeeds<true, true>, WriteSpeeds<true, true>};

} // namespace orrery::rules
