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
