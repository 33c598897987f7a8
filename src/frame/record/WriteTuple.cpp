// Records that stand as arrays of their values.
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

namespace orrery::record {

char* PutTuple(const Table& table, const std::byte* record, const WriteCall& call, char* at) noexcept {
    const json::Hand hand(call.out);
    const char* const limit = hand.LimitFor(kMemberRoom);
    const Node* node = table.nodes + table.self.first;
    const Node* const end = node + table.self.count;
    char* next = at;
    for (; node != end; ++node) {
        if (next >= limit) return nullptr;
        const std::byte* const value = record + node->offset;
        char* const to = json::Hand::Separate(next);
        switch (node->way) {
        case Way::Switch:
        case Way::SwitchAtOne:
            next = json::Pen::PutBool(to, LoadSwitch(*node, value));
            break;
        case Way::Number:
            next = json::PutDigits(to, Load<std::int32_t>(value));
            break;
        case Way::Integer:
            next = PutInteger(to, *node, value);
            break;
        case Way::Fraction:
            next = json::PutReal(to, LoadFraction(*node, value));
            break;
        case Way::Local:
        case Way::Raw:
            if (!hand.Has(to, json::TextRoom(node->elementSize))) return nullptr;
            next = PutText(to, *node, value, call);
            break;
        case Way::Named:
            next = PutNamed(to, table.namesOf(*node), CodeAt(*node, value));
            break;
        default:
            return nullptr;
        }
        if (next == nullptr) return nullptr;
    }
    std::memcpy(at, "[ ", 2);
    if (next == at) next += 2;
    return hand.Has(next, 2) ? hand.Close(next, " ]") : nullptr;
}

void WriteTuple(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    if (const json::Hand hand(call.out); hand.HasBehind(kMemberRoom)) {
        if (char* const end = PutTuple(table, record, call, hand.TakeForValue())) return hand.GiveBehindValue(end);
    }
    const auto outerKey = call.quotedKey;
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < table.self.count; ++i) {
        const Field& field = table.rows[table.nodes[table.self.first + i].row];
        const std::byte* const at = record + field.offset;
        if (IsElementWritten(field, at))
            WriteElement(field, at, call);
        else
            call.out.Null();
    }
    call.out.EndArray();
    call.quotedKey = outerKey;
}

} // namespace orrery::record
