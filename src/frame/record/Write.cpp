// Rows, records and the objects that they stand in.
#include "frame/record/Chosen.h"
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

#include <algorithm>
#include <array>

namespace orrery::record {

namespace {

// An object is opened at once where its place is open; if `write` finds nothing to put in it, what stands there is
// taken back, and that it was empty is the answer. Elsewhere it is opened with the first key inside it.
template <class Write>
bool WriteObject(std::string_view quotedKey, WriteCall& call, const Write& write) noexcept {
    OpenObject* const outer = call.object;
    json::TextWriter& out = call.out;
    if (!quotedKey.empty() && !outer->opened) {
        OpenObject inner{outer, quotedKey, false};
        call.object = &inner;
        write();
        call.object = outer;
        if (inner.opened) out.EndObject();
        return inner.opened;
    }
    const json::TextWriter::Place before = out.place();
    if (!quotedKey.empty()) out.RawKey(quotedKey);
    out.BeginObject();
    const std::size_t start = out.length();
    OpenObject inner{outer, {}, true};
    if (outer == nullptr || !outer->opened) call.object = &inner;
    write();
    call.object = outer;
    const bool isBare = out.length() == start;
    isBare ? out.TakeBack(before) : out.EndObject();
    return !isBare;
}

// The key of an object is written with the first key inside it.
void WriteUnlessBare(const Table& table, std::string_view key, const std::byte* at, WriteCall& call) noexcept {
    if (IsWritten(table, at)) WriteObject(key, call, [&] { WriteFields(table, at, call); });
}

// A record whose row says nothing of writing.
void WriteInner(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept {
    const Table& inner = table.tableOf(node);
    const std::string_view key = table.quotedKeyOf(node);
    const std::byte* const at = record + node.offset;
    if (node.unlessBare) return WriteUnlessBare(inner, key, at, call);
    call.Quoted(key);
    if (!IsWritten(inner, at)) return call.out.Null();
    WriteRecord(inner, at, call);
}

} // namespace

void WriteField(const Field& field, const std::byte* record, WriteCall& call) noexcept {
    // Members among the record's keys come with the keys.
    if (!field.writable || field.amongKeys || (field.linkage && !call.linked)) return;
    if (field.flag.exists() && LoadSlot(field.flag, record) == 0) return;
    if (field.condition.exists() && LoadSlot(field.condition, record) == 0) return;
    if (field.when != nullptr && !field.when(record)) return;
    if (field.kind == Kind::Custom) {
        if (field.custom->write != nullptr) field.custom->write(field, record, call);
        return;
    }
    const std::byte* const at = record + field.offset;
    if (field.wholeMember) {
        if (field.empty != Empty::Array && field.kind != Kind::Schedule && field.kind != Kind::SectionList
            && IsZero(at, field.size)) {
            if (field.empty == Empty::NoKey) return;
            call.Key();
            return call.out.Null();
        }
        call.Key();
        return WriteElement(field, at, call);
    }
    if (field.single) {
        const std::byte* const one = SingleOf(field, record);
        if (one == nullptr) return;
        call.Key();
        if (!IsWritten(*field.table, one)) return call.out.Null();
        return WriteElement(field, one, call);
    }
    if (field.rank > 0 || field.cell == Cell::Pointer) return WriteList(field, record, call);
    if (WritesNoKey(field.writtenAs)) return;
    // A double holds every 32-bit number exactly, and a fraction is neither 0 nor above it.
    if (field.hasUnless && LoadReal(field, at) == field.unless) return;
    if (field.notNegative && LoadReal(field, at) < 0) return;
    switch (field.writtenAs) {
    case Kind::Names:
        if (!IsElementWritten(field, at)) return;
        break;
    case Kind::SplitMode: {
        std::array<char, 32> room;
        const auto text = JsonParser::SplitModeText(Load<std::int32_t>(at), room);
        if (text.empty()) return;
        call.Key();
        return call.out.CleanString(text);
    }
    case Kind::Record:
        if (field.unlessBare) return WriteUnlessBare(*field.table, call.quotedKey, at, call);
        break;
    default:
        break;
    }
    call.Key();
    if (IsElementWritten(field, at))
        WriteElement(field, at, call);
    else
        call.out.Null();
}

void WriteNode(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept {
    const std::string_view key = table.quotedKeyOf(node);
    switch (node.way) {
    case Way::Nothing:
        return;
    case Way::Numbers:
    case Way::Tuple:
    case Way::Object:
    case Way::Inner:
        return WriteInner(table, node, record, call);
    case Way::Element:
        call.Quoted(key);
        return WriteElement(table.rows[node.row], record + node.offset, call);
    case Way::List:
        call.quotedKey = key;
        return WriteList(table.rows[node.row], record, call);
    case Way::Function: {
        const Field& field = table.rows[node.row];
        if (field.custom->write == nullptr) return;
        call.quotedKey = key;
        return field.custom->write(field, record, call);
    }
    default:
        break;
    }
    if (node.childCount == 0) {
        call.quotedKey = key;
        return WriteField(table.rows[node.row], record, call);
    }
    const bool isWritten = WriteObject(key, call, [&] {
        WriteNodes(table, {node.firstChild, node.childCount}, record, call);
    });
    if (isWritten || !node.staysNull) return;
    call.Quoted(key);
    call.out.Null();
}

void WriteCall::Open(OpenObject& closed) noexcept {
    if (closed.parent != nullptr && !closed.quotedKey.empty()) {
        if (!closed.parent->opened) Open(*closed.parent);
        out.RawKey(closed.quotedKey);
    }
    out.BeginObject();
    closed.opened = true;
}

bool IsWritten(const Table& table, const std::byte* record) noexcept {
    if (table.guarded && Load<std::uint32_t>(record) != table.size) return false;
    return table.writes == nullptr || table.writes(record);
}

void WriteFields(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    if (table.amongKeys != nullptr) return WriteAmongKeys(table, record, call);
    WriteNodes(table, table.members, record, call);
}

void WriteChosen(const Table& table, const std::byte* record, WriteCall& call, RowChoice chosen) noexcept {
    OpenObject inner{call.object, call.quotedKey, false};
    call.object = &inner;
    // Neighbours at once.
    NodeRange run{table.members.first, 0};
    const auto writeRun = [&] {
        if (run.count > 0) WriteNodes(table, run, record, call);
    };
    for (std::uint16_t i = 0; i < table.members.count; ++i) {
        const auto node = static_cast<std::uint16_t>(table.members.first + i);
        if (chosen.takes(table.rows[table.nodes[node].row], chosen.what)) {
            ++run.count;
            continue;
        }
        writeRun();
        run = {static_cast<std::uint16_t>(node + 1), 0};
    }
    writeRun();
    call.object = inner.parent;
    if (inner.opened) call.out.EndObject();
}

void WriteRecord(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    if (table.shape != Shape::Object) return WriteTuple(table, record, call);
    const auto outerKey = call.quotedKey;
    if (const json::Hand hand(call.out); table.isPlainObject() && hand.HasBehind(kMemberRoom)) [[likely]] {
        OpenObject* const outer = call.object;
        OpenObject inner{outer, {}, true};
        call.object = &inner;
        char* const at = hand.TakeForValue();
        const std::size_t place = hand.OffsetOf(at);
        char* const end = PutObject(table, table.members, record, call, at);
        hand.GiveBehindValue(end != nullptr ? end : json::Pen::PutNull(hand.PlaceOf(place)));
        call.object = outer;
        call.quotedKey = outerKey;
        return;
    }
    if (table.self.count == 0) {
        if (!WriteObject({}, call, [&] { WriteFields(table, record, call); })) call.out.Null();
        call.quotedKey = outerKey;
        return;
    }
    OpenObject object{call.object, {}, false};
    call.object = &object;
    const std::size_t before = call.out.length();
    for (std::uint16_t i = 0; i < table.self.count; ++i) {
        const Node& node = table.nodes[table.self.first + i];
        call.quotedKey = table.quotedKeyOf(node);
        WriteField(table.rows[node.row], record, call);
    }
    WriteFields(table, record, call);
    call.object = object.parent;
    if (object.opened)
        call.out.EndObject();
    else if (call.out.length() == before)
        call.out.Null();
    call.quotedKey = outerKey;
}

} // namespace orrery::record
