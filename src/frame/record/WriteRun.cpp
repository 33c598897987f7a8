// The short way of writing: values whose rows say nothing of it, one after the other. All that it needs stands in the
// nodes.
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

namespace orrery::record {

namespace {

using json::Hand;
using json::Pen;

// The value of a scalar where there may be little room for it.
void WriteScalar(const Table& table, const Node& node, const std::byte* at, WriteCall& call) noexcept {
    const std::string_view key = table.quotedKeyOf(node);
    switch (node.way) {
    case Way::Switch:
    case Way::SwitchAtOne:
        call.Quoted(key);
        return call.out.Bool(LoadSwitch(node, at));
    case Way::Number:
        call.Quoted(key);
        return call.out.Int(Load<std::int32_t>(at));
    case Way::Integer:
        call.Quoted(key);
        if (node.kind == Kind::Bool) return call.out.Bool(LoadScalar(node, at) != 0);
        if (node.kind == Kind::Int) return call.out.Int(static_cast<std::int32_t>(LoadScalar(node, at)));
        return call.out.UInt(static_cast<std::uint32_t>(LoadScalar(node, at)));
    case Way::Fraction:
        call.Quoted(key);
        return call.out.Real(LoadFraction(node, at));
    case Way::Local:
    case Way::Raw:
        call.Quoted(key);
        call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(at), node.elementSize,
                                  node.way == Way::Local);
        return;
    case Way::Named: {
        const NameTable& names = table.namesOf(node);
        const Name* const row = NameOf(names, CodeAt(node, at));
        if (row != nullptr) {
            call.Quoted(key);
            return row->clean ? call.out.CleanString(row->text) : call.out.String(row->text);
        }
        if (names.outside == NameTable::Outside::NoKey) return;
        call.Quoted(key);
        return names.outside == NameTable::Outside::Text ? call.out.String(names.outsideText) : call.out.Null();
    }
    default:
        return;
    }
}

// A node by the writer itself, wherever that stands.
void WriteAny(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept {
    if (IsScalar(node))
        WriteScalar(table, node, record + node.offset, call);
    else
        WriteNode(table, node, record, call);
}

// The same from a place on that is held in a register.
[[gnu::noinline]] char* PutSlowly(const Table& table, const Node& node, const std::byte* record, WriteCall& call,
                                  char* at, std::size_t first) noexcept {
    const Hand hand(call.out);
    hand.Give(at, first, "{ ");
    WriteAny(table, node, record, call);
    return hand.Take();
}

} // namespace

char* PutNodes(const Table& table, const NodeRange& range, const std::byte* record, WriteCall& call, char* at,
               std::size_t first) noexcept {
    const Hand hand(call.out);
    const char* limit = hand.LimitFor(kMemberRoom);
    const Node* node = table.nodes + range.first;
    const Node* const end = node + range.count;
    const auto putSlowly = [&] {
        at = PutSlowly(table, *node, record, call, at, first);
        limit = hand.LimitFor(kMemberRoom);
    };
    // Whether a value finds room for so many bytes behind its key; at a place in front of the limit.
    const auto has = [&](std::size_t size) { return size < static_cast<std::size_t>(limit - at); };
    // An object inside this one.
    const auto putObject = [&](const Table& inner, const NodeRange& nodes, const std::byte* innerRecord,
                               bool staysNull) {
        const std::size_t place = hand.OffsetOf(at);
        char* const next = PutObject(inner, nodes, innerRecord, call, PutKey(at, table, *node));
        limit = hand.LimitFor(kMemberRoom);
        at = next != nullptr ? next : hand.PlaceOf(place);
        if (next == nullptr && staysNull) at = Pen::PutNull(PutKey(at, table, *node));
    };
    for (; node != end; ++node) {
        if (!IsLetOut(*node, record)) continue;
        const std::byte* const value = record + node->offset;
        if (at >= limit) [[unlikely]] {
            putSlowly();
            continue;
        }
        switch (node->way) {
        case Way::Switch:
            at = Pen::PutBool(PutKey(at, table, *node), Load<std::int32_t>(value) != 0);
            break;
        case Way::SwitchAtOne:
            at = Pen::PutBool(PutKey(at, table, *node), Load<std::int32_t>(value) == 1);
            break;
        case Way::NumberUnless:
            if (Load<std::int32_t>(value) == table.rows[node->row].unless) break;
            [[fallthrough]];
        case Way::Number:
            at = json::PutDigits(PutKey(at, table, *node), Load<std::int32_t>(value));
            break;
        case Way::Integer:
            at = PutInteger(PutKey(at, table, *node), *node, value);
            break;
        case Way::Fraction:
            at = json::PutReal(PutKey(at, table, *node), LoadFraction(*node, value));
            break;
        case Way::Local:
            if (const LocalText& texts = call.parser.text(); !texts.isCopy()) {
                if (texts.isCopyOfAscii() && has(json::TextRoom(node->elementSize))) {
                    const auto* const text = reinterpret_cast<const char*>(value);
                    if (char* const next = json::PutAscii(PutKey(at, table, *node), text, node->elementSize)) {
                        at = next;
                        break;
                    }
                }
                putSlowly();
                break;
            }
            [[fallthrough]];
        case Way::Raw:
            if (has(json::TextRoom(node->elementSize))) [[likely]]
                at = json::PutText(PutKey(at, table, *node), reinterpret_cast<const char*>(value), node->elementSize);
            else
                putSlowly();
            break;
        case Way::Named:
            if (char* const next = PutNamed(PutKey(at, table, *node), table.namesOf(*node), CodeAt(*node, value)))
                [[likely]]
                at = next;
            else
                putSlowly();
            break;
        case Way::Mask:
            // Most have a channel among the first.
            if ((node->staysNull || node->unlessBare) && Load<std::uint32_t>(value) == 0
                && IsZero(value, node->elementSize)) {
                if (node->staysNull) at = Pen::PutNull(PutKey(at, table, *node));
                break;
            }
            if (has(MaskRoom(node->elementSize))) [[likely]]
                at = PutMask(PutKey(at, table, *node), value, node->elementSize);
            else
                putSlowly();
            break;
        case Way::Numbers: {
            const Table& inner = table.tableOf(*node);
            if (has(NumbersRoom(inner))) [[likely]]
                at = PutNumbers(PutKey(at, table, *node), inner, value);
            else
                putSlowly();
            break;
        }
        case Way::Tuple:
            if (char* const next = PutTuple(table.tableOf(*node), value, call, PutKey(at, table, *node))) [[likely]]
                at = next;
            else
                putSlowly();
            break;
        case Way::Object: {
            const Table& inner = table.tableOf(*node);
            putObject(inner, inner.members, value, !node->unlessBare);
            break;
        }
        case Way::Element:
            hand.GiveForValue(PutKey(at, table, *node));
            WriteElement(table.rows[node->row], value, call);
            at = hand.Take();
            limit = hand.LimitFor(kMemberRoom);
            break;
        case Way::Function: {
            const Field& field = table.rows[node->row];
            if (field.custom->put != nullptr && has(field.custom->room)) {
                if (char* const next = field.custom->put(field, record, PutKey(at, table, *node))) {
                    at = next;
                    break;
                }
            }
            if (field.custom->write == nullptr) break;
            call.quotedKey = table.quotedKeyOf(*node);
            hand.Give(at, first, "{ ");
            field.custom->write(field, record, call);
            at = hand.Take();
            limit = hand.LimitFor(kMemberRoom);
            break;
        }
        case Way::List:
            if (char* const next = PutList(table, *node, record, call, at)) [[likely]] {
                at = next;
                limit = hand.LimitFor(kMemberRoom);
            } else {
                putSlowly();
            }
            break;
        case Way::Row:
            if (node->childCount > 0)
                putObject(table, {node->firstChild, node->childCount}, record, node->staysNull);
            else
                putSlowly();
            break;
        case Way::Inner:
            putSlowly();
            break;
        case Way::Nothing:
            break;
        default: // spares the jump a test of its range
            static_assert(static_cast<int>(Way::Nothing) == 18, "each way has its case");
            __builtin_unreachable();
        }
    }
    return at;
}

void WriteNodes(const Table& table, NodeRange range, const std::byte* record, WriteCall& call) noexcept {
    const Hand hand(call.out);
    const std::uint16_t end = range.first + range.count;
    for (; range.first != end; ++range.first) {
        if (call.object->opened && hand.HasBehind(kMemberRoom)) break;
        const Node& node = table.nodes[range.first];
        if (IsLetOut(node, record)) WriteAny(table, node, record, call);
    }
    range.count = end - range.first;
    if (range.count == 0) return;
    const bool isFirst = hand.isFirst();
    char* const start = hand.Take();
    const std::size_t first = isFirst ? hand.OffsetOf(start) : Hand::kNotFirst;
    char* const at = PutNodes(table, range, record, call, start, first);
    if (isFirst) std::memcpy(hand.PlaceOf(first), "{ ", 2);
    hand.Give(at, first, "{ ");
}

void WriteRecords(const Table& table, const std::byte* first, std::uint32_t count, std::uint32_t stride,
                  WriteCall& call) noexcept {
    json::TextWriter& out = call.out;
    if (table.shape != Shape::Object && table.isNumbers) {
        Pen pen(out);
        for (; count > 0 && pen.has(NumbersRoom(table)); --count, first += stride)
            pen.Element([&](char* to) { return PutNumbers(to, table, first); });
        pen.Return(out);
    }
    // An element that is an object takes its keys, also where the list itself is what an object yet to be opened holds.
    OpenObject element{call.object, {}, true};
    call.object = &element;
    for (; count > 0; --count, first += stride)
        WriteRecord(table, first, call);
    call.object = element.parent;
}

} // namespace orrery::record
