// The short way of writing: values whose rows say nothing of it, one after the other. All that it needs stands in the
// nodes.
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

namespace orrery::record {

namespace {

using json::Pen;
static_assert(kKeyTextSlack >= Pen::kPadding);

// What a key and any value but a text take at the most; a key's padding lies within the value's room.
constexpr std::size_t kRoom = kLongestPlainKey + kQuotesAndColon + kValueRoom;

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

// Where the pen's owner goes on, once the writer itself has written. It takes the pen by value, so that it need not
// leave its registers.
[[gnu::noinline]] Pen Slowly(Pen pen, const Table& table, const Node& node, const std::byte* record,
                             WriteCall& call) noexcept {
    pen.Return(call.out);
    if (IsScalar(node))
        WriteScalar(table, node, record + node.offset, call);
    else
        WriteNode(table, node, record, call);
    return Pen(call.out);
}

} // namespace

void WriteNodes(const Table& table, NodeRange range, const std::byte* record, WriteCall& call) noexcept {
    const Node* node = table.nodes + range.first;
    const Node* const end = node + range.count;
    for (; node != end && !call.object->opened; ++node) {
        if (IsLetOut(*node, record)) Slowly(Pen(call.out), table, *node, record, call);
    }
    Pen pen(call.out);
    for (; node != end; ++node) {
        if (!IsLetOut(*node, record)) continue;
        const std::byte* const at = record + node->offset;
        if (!pen.has(kRoom)) [[unlikely]] {
            pen = Slowly(pen, table, *node, record, call);
            continue;
        }
        const auto putKey = [&] { pen.PaddedKey(table.keyTexts + node->quotedAt, node->keySize + kQuotesAndColon); };
        const auto putNull = [&] {
            putKey();
            pen.Value([](char* to) { return Pen::PutNull(to); });
        };
        // The writer goes on, and then the pen again.
        const auto byWriter = [&](auto write) {
            pen.Return(call.out);
            write();
            pen = Pen(call.out);
        };
        const auto putObject = [&](const Table& inner, NodeRange nodes, const std::byte* innerRecord, bool staysNull) {
            const Pen before = pen;
            putKey();
            pen.BeginObject();
            const Pen inside = pen;
            byWriter([&] { WriteNodes(inner, nodes, innerRecord, call); });
            if (!pen.isAt(inside)) {
                if (pen.has(2)) [[likely]]
                    pen.EndObject();
                else
                    byWriter([&] { call.out.EndObject(); });
                return;
            }
            pen = before;
            if (staysNull) putNull();
        };
        switch (node->way) {
        case Way::Switch:
            putKey();
            pen.Value([=](char* to) { return Pen::PutBool(to, Load<std::int32_t>(at) != 0); });
            break;
        case Way::SwitchAtOne:
            putKey();
            pen.Value([=](char* to) { return Pen::PutBool(to, Load<std::int32_t>(at) == 1); });
            break;
        case Way::NumberUnless:
            if (Load<std::int32_t>(at) == table.rows[node->row].unless) break;
            [[fallthrough]];
        case Way::Number:
            putKey();
            pen.Value([=](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
            break;
        case Way::Integer:
            putKey();
            pen.Value([=](char* to) { return PutInteger(to, *node, at); });
            break;
        case Way::Fraction:
            putKey();
            pen.Value([=](char* to) { return json::PutReal(to, LoadFraction(*node, at)); });
            break;
        case Way::Local:
        case Way::Raw: {
            const Pen before = pen;
            if (pen.has(kRoom + json::TextRoom(node->elementSize))) [[likely]] {
                putKey();
                if (pen.TryValue([&](char* to) { return PutText(to, *node, at, call); })) break;
            }
            pen = Slowly(before, table, *node, record, call);
            break;
        }
        case Way::Named: {
            const Pen before = pen;
            putKey();
            if (!pen.TryValue([&](char* to) { return PutNamed(to, table.namesOf(*node), CodeAt(*node, at)); }))
                pen = Slowly(before, table, *node, record, call);
            break;
        }
        case Way::Mask:
            // Most have a channel among the first.
            if ((node->staysNull || node->unlessBare) && Load<std::uint32_t>(at) == 0
                && IsZero(at, node->elementSize)) {
                if (node->staysNull) putNull();
                break;
            }
            putKey();
            byWriter([&] { WriteMask(at, node->elementSize, call.out); });
            break;
        case Way::Numbers: {
            const Table& inner = table.tableOf(*node);
            putKey();
            if (pen.has(NumbersRoom(inner))) [[likely]]
                pen.Value([&](char* to) { return PutNumbers(to, inner, at); });
            else
                byWriter([&] { WriteTuple(inner, at, call); });
            break;
        }
        case Way::Tuple:
            putKey();
            byWriter([&] { WriteTuple(table.tableOf(*node), at, call); });
            break;
        case Way::Object: {
            const Table& inner = table.tableOf(*node);
            putObject(inner, inner.members, at, !node->unlessBare);
            break;
        }
        case Way::Inner:
            pen = Slowly(pen, table, *node, record, call);
            break;
        case Way::Element:
            putKey();
            byWriter([&] { WriteElement(table.rows[node->row], at, call); });
            break;
        case Way::Function: {
            const Field& field = table.rows[node->row];
            if (field.custom->write == nullptr) break;
            call.quotedKey = table.quotedKeyOf(*node);
            byWriter([&] { field.custom->write(field, record, call); });
            break;
        }
        case Way::List:
            call.quotedKey = table.quotedKeyOf(*node);
            byWriter([&] { WriteList(table.rows[node->row], record, call); });
            break;
        case Way::Row:
            if (node->childCount > 0) {
                putObject(table, {node->firstChild, node->childCount}, record, node->staysNull);
                break;
            }
            call.quotedKey = table.quotedKeyOf(*node);
            byWriter([&] { WriteField(table.rows[node->row], record, call); });
            break;
        case Way::Nothing:
            break;
        default: // spares the jump a test of its range
            static_assert(static_cast<int>(Way::Nothing) == 18, "each way has its case");
            __builtin_unreachable();
        }
    }
    pen.Return(call.out);
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
    const bool areObjects = table.isPlainObject();
    for (; count > 0; --count, first += stride) {
        if (!areObjects) {
            WriteRecord(table, first, call);
            continue;
        }
        const json::TextWriter::Place before = out.place();
        out.BeginObject();
        const std::size_t start = out.length();
        WriteNodes(table, table.members, first, call);
        if (out.length() != start) {
            out.EndObject();
        } else {
            out.TakeBack(before);
            out.Null();
        }
    }
    call.object = element.parent;
}

} // namespace orrery::record
