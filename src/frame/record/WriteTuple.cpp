// Records that stand as arrays of their values.
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

namespace orrery::record {

namespace {

using json::Pen;

// Puts the scalars from `node` on as elements of an array, up to the first node that is none or finds no room, is
// converted or has no text, which it answers.
const Node* PutElements(Pen& place, const Table& table, const Node* node, const Node* end, const std::byte* record,
                        const WriteCall& call) noexcept {
    Pen pen = place; // in registers
    for (; node != end && pen.has(kValueRoom); ++node) {
        const std::byte* const at = record + node->offset;
        switch (node->way) {
        case Way::Switch:
        case Way::SwitchAtOne:
            pen.Element([=](char* to) { return Pen::PutBool(to, LoadSwitch(*node, at)); });
            continue;
        case Way::Number:
            pen.Element([=](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
            continue;
        case Way::Integer:
            pen.Element([=](char* to) { return PutInteger(to, *node, at); });
            continue;
        case Way::Fraction:
            pen.Element([=](char* to) { return json::PutReal(to, LoadFraction(*node, at)); });
            continue;
        case Way::Local:
        case Way::Raw:
            if (pen.has(json::TextRoom(node->elementSize))
                && pen.TryElement([&](char* to) { return PutText(to, *node, at, call); }))
                continue;
            break;
        case Way::Named:
            if (pen.TryElement([&](char* to) { return PutNamed(to, table.namesOf(*node), CodeAt(*node, at)); }))
                continue;
            break;
        default:
            break;
        }
        break;
    }
    place = pen;
    return node;
}

} // namespace

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
            next = Pen::PutBool(to, LoadSwitch(*node, value));
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
    const Node* node = table.nodes + table.self.first;
    const Node* const end = node + table.self.count;
    const auto outerKey = call.quotedKey;
    Pen pen(call.out);
    const auto byWriter = [&](auto write) {
        pen.Return(call.out);
        write();
        pen = Pen(call.out);
    };
    pen.has(2) ? pen.BeginArray() : byWriter([&] { call.out.BeginArray(); });
    for (;;) {
        node = PutElements(pen, table, node, end, record, call);
        if (node == end) break;
        byWriter([&] {
            const Field& field = table.rows[node->row];
            const std::byte* const at = record + node->offset;
            if (IsElementWritten(field, at))
                WriteElement(field, at, call);
            else
                call.out.Null();
        });
        ++node;
    }
    pen.has(2) ? pen.EndArray() : byWriter([&] { call.out.EndArray(); });
    pen.Return(call.out);
    call.quotedKey = outerKey;
}

} // namespace orrery::record
