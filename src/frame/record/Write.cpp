#include "frame/record/Chosen.h"

#include <algorithm>
#include <bit>
#include <span>

namespace orrery::record {

namespace {

double LoadReal(const Field& field, const std::byte* at) noexcept {
    switch (field.cell) {
    case Cell::F32:
        return double{Load<float>(at)};
    case Cell::F64:
        return Load<double>(at);
    default:
        return static_cast<double>(LoadInteger(field.cell, at));
    }
}

// A real field written as an integer is truncated, and 0 where it does not fit.
std::int64_t LoadWhole(const Field& field, const std::byte* at) noexcept {
    if (field.cell != Cell::F32 && field.cell != Cell::F64) return LoadInteger(field.cell, at);
    const double number = LoadReal(field, at);
    return number > -2147483649.0 && number < 4294967296.0 ? static_cast<std::int64_t>(number) : 0;
}

struct Elements {
    const std::byte* first;
    std::uint32_t count;
};

Elements ElementsOf(const Field& field, const std::byte* record) noexcept {
    const std::byte* first = record + field.offset;
    std::int64_t room = field.dims[0];
    if (field.cell == Cell::Pointer) {
        first = Load<const std::byte*>(first);
        room = LoadSlot(field.capacity, record);
        if (first == nullptr) room = 0;
    }
    std::int64_t count = field.count.exists() && !field.fullCapacity ? LoadSlot(field.count, record) : room;
    // A count beyond the room ends at the room, whoever wrote it.
    count = std::clamp<std::int64_t>(count, 0, std::max<std::int64_t>(room, 0));
    if (field.untilEmpty) {
        const auto isEmpty = [&](std::int64_t i) { return first[i * field.elementSize] == std::byte{0}; };
        for (std::int64_t i = 0; i < count; ++i) {
            if (isEmpty(i)) count = i;
        }
    }
    return {first, static_cast<std::uint32_t>(count)};
}

bool IsMaskEmpty(const Field& field, const std::byte* at) noexcept {
    return std::all_of(at, at + field.size, [](std::byte b) { return b == std::byte{0}; });
}

void WriteBitMask(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    call.out.BeginArray();
    for (std::uint32_t word = 0; word < field.dims[0]; ++word) {
        for (auto bits = Load<std::uint32_t>(at + word * std::size_t{4}); bits != 0; bits &= bits - 1) {
            call.out.UInt(word * 32 + static_cast<std::uint32_t>(std::countr_zero(bits)));
        }
    }
    call.out.EndArray();
}

void WriteSwitches(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < field.dims[0]; ++i) {
        if (Load<std::int32_t>(at + i * std::size_t{4}) != 0) call.out.UInt(i);
    }
    call.out.EndArray();
}

// The row of a name table that a field's code writes.
const Name* NameAt(const Field& field, const std::byte* at) noexcept {
    const auto code = std::min<std::int64_t>(LoadInteger(field.cell, at), field.atMost);
    return field.names->RowOf(static_cast<std::int32_t>(code));
}

// One element as a value. What has no text of its own is null in its place.
void WriteElement(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    json::TextWriter& out = call.out;
    switch (field.writtenAs) {
    case Kind::None:
    case Kind::Size:
    case Kind::Presence:
    case Kind::MemberName:
    case Kind::MemberCode:
    case Kind::Date: // read only
    case Kind::UtcTime:
    case Kind::Supplied:
    case Kind::Custom:
        out.Null();
        break;
    case Kind::Bool: {
        const std::int64_t flag = LoadWhole(field, at);
        out.Bool(field.trueAtOne ? flag == 1 : flag != 0);
        break;
    }
    case Kind::Int:
        out.Int(static_cast<std::int32_t>(std::min(LoadWhole(field, at), field.atMost)));
        break;
    case Kind::UInt:
        out.UInt(static_cast<std::uint32_t>(std::min(LoadWhole(field, at), field.atMost)));
        break;
    case Kind::Real:
        out.Real(LoadReal(field, at));
        break;
    case Kind::Text:
    case Kind::RawText:
    case Kind::FullText:
        call.parser.SetJsonString(out, reinterpret_cast<const char*>(at), field.elementSize,
                                  field.writtenAs != Kind::RawText);
        break;
    case Kind::Names: {
        const Name* const row = NameAt(field, at);
        if (row != nullptr)
            row->clean ? out.CleanString(row->text) : out.String(row->text);
        else if (field.names->outside == NameTable::Outside::Text)
            out.String(field.names->outsideText);
        else
            out.Null();
        break;
    }
    case Kind::Record:
        WriteRecord(*field.table, at, call);
        break;
    case Kind::TimeSection:
        JsonParser::SetTimeSection(out, reinterpret_cast<const CFG_TIME_SECTION*>(at));
        break;
    case Kind::Schedule:
        JsonParser::SetTimeSchedule(out, reinterpret_cast<const CFG_TIME_SECTION*>(at), static_cast<int>(field.dims[0]),
                                    static_cast<int>(field.dims[1]));
        break;
    case Kind::HolidaySchedule:
        JsonParser::SetHolidaySchedule(out, reinterpret_cast<const CFG_TIME_SCHEDULE*>(at));
        break;
    case Kind::SectionList:
        JsonParser::SetTimeSectionList(out, reinterpret_cast<const CFG_TIME_SECTION*>(at),
                                       static_cast<int>(field.dims[0]));
        break;
    case Kind::NetTime:
        JsonParser::SetNetTime(out, reinterpret_cast<const NET_TIME*>(at));
        break;
    case Kind::NetTimeEx:
        JsonParser::SetNetTimeEx(out, reinterpret_cast<const NET_TIME_EX*>(at));
        break;
    case Kind::ClockTime:
        JsonParser::SetClockTime(out, reinterpret_cast<const NET_TIME*>(at));
        break;
    case Kind::SplitMode:
        if (!JsonParser::SetSplitMode(out, Load<std::int32_t>(at))) out.Null();
        break;
    case Kind::BitMask:
    case Kind::BitMaskLoose:
        WriteBitMask(field, at, call);
        break;
    case Kind::Switches:
        WriteSwitches(field, at, call);
        break;
    }
}

bool IsElementWritten(const Field& field, const std::byte* at) noexcept {
    if (field.kind == Kind::Record) return IsWritten(*field.table, at);
    if (field.writtenAs == Kind::Names && field.names->outside == NameTable::Outside::NoKey) {
        return NameAt(field, at) != nullptr;
    }
    return true;
}

void WriteLevels(const Field& field, int level, const std::byte* at, WriteCall& call) noexcept {
    if (level == field.rank) {
        if (IsElementWritten(field, at))
            WriteElement(field, at, call);
        else
            call.out.Null();
        return;
    }
    const std::uint32_t stride = StrideOf(field, level);
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < field.dims[level]; ++i) {
        WriteLevels(field, level + 1, at + std::size_t{i} * stride, call);
    }
    call.out.EndArray();
}

// `capacity` is how many bytes the text may become, its terminator included.
std::string_view ToUtf8(std::string_view local, std::size_t capacity, LocalText& text) noexcept {
    if (text.isCopy() || local.empty()) return local;
    char* const room = text.arena().Array<char>(capacity);
    if (room == nullptr) return {};
    const int size =
        text.ConvertLocalToUtf8(local.data(), static_cast<int>(local.size()), room, static_cast<int>(capacity));
    return {room, static_cast<std::size_t>(size)};
}

std::string_view Copied(std::string_view text, Arena& arena) noexcept {
    char* const room = arena.Array<char>(text.size());
    if (room == nullptr) return {};
    std::copy(text.begin(), text.end(), room);
    return {room, text.size()};
}

} // namespace

std::span<const NamedRecord> SortedByName(const Table& table, const RecordList& records, std::size_t growth,
                                          LocalText& text) noexcept {
    NamedRecord* const entries = text.arena().Array<NamedRecord>(records.count);
    if (entries == nullptr) return {};
    const bool isKept = records.take == nullptr; // else the next record takes the place of its name
    std::uint32_t count = 0;
    for (std::uint32_t i = 0; i < records.count; ++i) {
        const std::byte* const at = records[i];
        if (!IsWrittenByName(table, at)) continue;
        const std::string_view name = MemberNameOf(table, at);
        const std::string_view utf8 = ToUtf8(name, name.size() * growth / 2 + 1, text);
        entries[count++] = {isKept ? utf8 : Copied(utf8, text.arena()), i};
    }
    std::sort(entries, entries + count, [](const NamedRecord& left, const NamedRecord& right) {
        return left.name != right.name ? left.name < right.name : left.index < right.index;
    });
    std::uint32_t unique = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i + 1 == count || entries[i].name != entries[i + 1].name) entries[unique++] = entries[i];
    }
    return {entries, unique};
}

namespace {

constexpr std::size_t kGrowthOfTexts = 3;   // as for every other text on its way out
constexpr std::size_t kGrowthAmongKeys = 4; // twice its length: a name must not lose its end

bool IsPlainNumber(const Field& field) noexcept {
    return field.writtenAs == Kind::Int && field.cell == Cell::I32 && field.atMost == Field::kNoLimit;
}

// The elements of a list with a count of its own, or behind a pointer.
void WriteList(const Field& field, const std::byte* record, WriteCall& call) noexcept {
    const Elements elements = ElementsOf(field, record);
    const std::uint32_t stride = StrideOf(field, 0);
    const auto isWritten = [&](std::uint32_t i) {
        const std::byte* const at = elements.first + std::size_t{i} * stride;
        return field.keyed ? IsWrittenByName(*field.table, at) : IsElementWritten(field, at);
    };
    if (elements.count == 0) {
        if (field.empty == Empty::NoKey) return;
        call.Key();
        if (field.empty == Empty::Null) return call.out.Null();
        if (field.keyed) {
            call.out.BeginObject();
            return call.out.EndObject();
        }
        call.out.BeginArray();
        return call.out.EndArray();
    }
    std::uint32_t end = elements.count;
    if (field.skipped != Skipped::StaysNull) {
        // No place behind the last element that is written, and no key when there is none.
        while (end > 0 && !isWritten(end - 1))
            --end;
        if (end == 0) return;
    }
    if (field.keyed) {
        call.Key();
        return WriteByName(*field.table, {elements.first, end, stride}, call);
    }
    const int inner = field.cell == Cell::Pointer ? field.rank : 1;
    call.Key();
    call.out.BeginArray();
    if (IsPlainNumber(field) && inner == field.rank) {
        // Channels above all: the longest lists there are.
        for (std::uint32_t i = 0; i < end; ++i)
            call.out.Int(Load<std::int32_t>(elements.first + std::size_t{i} * stride));
        return call.out.EndArray();
    }
    for (std::uint32_t i = 0; i < end; ++i) {
        const std::byte* const at = elements.first + std::size_t{i} * stride;
        if (inner == field.rank || field.cell == Cell::Pointer) {
            if (IsElementWritten(field, at))
                WriteElement(field, at, call);
            else if (field.skipped != Skipped::ClosesUp)
                call.out.Null();
        } else {
            WriteLevels(field, inner, at, call);
        }
    }
    call.out.EndArray();
}

// The key of an object is written with the first key inside it.
void WriteUnlessBare(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    if (!IsWritten(*field.table, at)) return;
    OpenObject inner{call.object, call.quotedKey, false};
    call.object = &inner;
    WriteFields(*field.table, at, call);
    call.object = inner.parent;
    if (inner.opened) call.out.EndObject();
}

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
            && IsMaskEmpty(field, at)) {
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
    // A double holds every 32-bit number exactly, and a fraction is neither 0 nor above it.
    if (field.hasUnless && LoadReal(field, at) == field.unless) return;
    if (field.notNegative && LoadReal(field, at) < 0) return;
    switch (field.writtenAs) {
    case Kind::Size:
    case Kind::Presence:
    case Kind::MemberName:
    case Kind::MemberCode:
    case Kind::Date:
    case Kind::UtcTime:
        return;
    case Kind::Names:
        if (!IsElementWritten(field, at)) return;
        break;
    case Kind::SplitMode: {
        std::array<char, 32> room;
        const auto text = JsonParser::SplitModeText(Load<std::int32_t>(at), room);
        if (text.empty()) return;
        call.Key();
        return call.out.String(text);
    }
    case Kind::Record:
        if (field.unlessBare) return WriteUnlessBare(field, at, call);
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

std::int64_t LoadPlain(const Node& node, const std::byte* record) noexcept {
    return LoadInteger(node.cell, record + node.offset);
}

// A row whose words say nothing of writing. `key` is empty for a value that stands on its own.
void WritePlainly(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept {
    if (node.flag.exists() && LoadInteger(node.flag.cell, record + node.flag.offset) == 0) return;
    const std::string_view key = table.quotedKeyOf(node);
    const std::byte* const at = record + node.offset;
    switch (node.writePlainly) {
    case Plainly::Switch:
        return call.Bool(key, Load<std::int32_t>(at) != 0);
    case Plainly::Number:
        return call.Int(key, Load<std::int32_t>(at));
    case Plainly::Integer:
        if (node.kind == Kind::Bool) return call.Bool(key, LoadPlain(node, record) != 0);
        if (node.kind == Kind::Int) return call.Int(key, static_cast<std::int32_t>(LoadPlain(node, record)));
        call.Quoted(key);
        return call.out.UInt(static_cast<std::uint32_t>(LoadPlain(node, record)));
    case Plainly::Fraction:
        call.Quoted(key);
        return call.out.Real(node.cell == Cell::F32 ? double{Load<float>(at)} : Load<double>(at));
    case Plainly::Local:
    case Plainly::Raw:
        call.Quoted(key);
        call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(at), node.elementSize,
                                  node.writePlainly == Plainly::Local);
        return;
    case Plainly::Named: {
        const NameTable& names = table.namesOf(node);
        const Name* const row = names.RowOf(static_cast<std::int32_t>(LoadPlain(node, record)));
        if (row == nullptr) {
            if (names.outside == NameTable::Outside::NoKey) return;
            call.Quoted(key);
            return names.outside == NameTable::Outside::Text ? call.out.String(names.outsideText) : call.out.Null();
        }
        if (row->clean) return call.Clean(key, row->text);
        call.Quoted(key);
        return call.out.String(row->text);
    }
    case Plainly::Inner: {
        const Table& inner = table.tableOf(node);
        call.Quoted(key);
        if (!IsWritten(inner, at)) return call.out.Null();
        call.quotedKey = key;
        return WriteRecord(inner, at, call);
    }
    case Plainly::No:
    case Plainly::Element:
    case Plainly::Function:
        return;
    }
}

void WriteNodes(const Table& table, NodeRange range, const std::byte* record, WriteCall& call) noexcept {
    const Node* const end = table.nodes + range.first + range.count;
    for (const Node* node = table.nodes + range.first; node != end; ++node) {
        if (node->childCount == 0) {
            if (node->writePlainly != Plainly::No) {
                WritePlainly(table, *node, record, call);
                continue;
            }
            call.quotedKey = table.quotedKeyOf(*node);
            WriteField(table.rows[node->row], record, call);
            continue;
        }
        OpenObject inner{call.object, table.quotedKeyOf(*node), false};
        call.object = &inner;
        WriteNodes(table, {node->firstChild, node->childCount}, record, call);
        call.object = inner.parent;
        if (inner.opened) {
            call.out.EndObject();
        } else if (node->staysNull) {
            call.Quoted(table.quotedKeyOf(*node));
            call.out.Null();
        }
    }
}

// The record's keys and the names of its list in one order.
void WriteAmongKeys(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    const Field& list = *table.amongKeys;
    const Elements elements = ElementsOf(list, record);
    const RecordList records{elements.first, elements.count, list.elementSize};
    const auto named = SortedByName(*list.table, records, kGrowthAmongKeys, call.parser.text());
    auto next = named.begin();
    const auto writeNext = [&] {
        call.Member(next->name);
        WriteRecord(*list.table, records[next->index], call);
        ++next;
    };
    for (std::uint16_t i = 0; i < table.members.count; ++i) {
        const auto node = static_cast<std::uint16_t>(table.members.first + i);
        const std::string_view key = table.keyOf(table.nodes[node]);
        while (next != named.end() && next->name < key)
            writeNext();
        if (next == named.end() || next->name != key) WriteNodes(table, {node, 1}, record, call);
    }
    while (next != named.end())
        writeNext();
}

} // namespace

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

bool IsWrittenByName(const Table& table, const std::byte* record) noexcept {
    const Field* const name = table.memberName;
    if (name != nullptr && name->kind == Kind::MemberCode && name->names->outside != NameTable::Outside::Text
        && NameAt(*name, record + name->offset) == nullptr) {
        return false;
    }
    return IsWritten(table, record);
}

std::string_view MemberNameOf(const Table& table, const std::byte* record) noexcept {
    const Field* const name = table.memberName;
    if (name == nullptr) return {};
    const std::byte* const at = record + name->offset;
    if (name->kind != Kind::MemberCode) return TextAt(at, name->elementSize);
    const Name* const row = NameAt(*name, at);
    return row != nullptr ? row->text : name->names->outsideText;
}

void WriteByName(const Table& table, const RecordList& records, WriteCall& call) noexcept {
    call.out.BeginObject();
    for (const NamedRecord& entry : SortedByName(table, records, kGrowthOfTexts, call.parser.text())) {
        call.out.Key(entry.name);
        WriteRecord(table, records[entry.index], call);
    }
    call.out.EndObject();
}

void WriteFields(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    if (table.amongKeys != nullptr) return WriteAmongKeys(table, record, call);
    WriteNodes(table, table.members, record, call);
}

void WriteChosen(const Table& table, const std::byte* record, WriteCall& call, RowChoice chosen) noexcept {
    OpenObject inner{call.object, call.quotedKey, false};
    call.object = &inner;
    for (std::uint16_t i = 0; i < table.members.count; ++i) {
        const auto node = static_cast<std::uint16_t>(table.members.first + i);
        if (chosen.takes(table.rows[table.nodes[node].row], chosen.what)) WriteNodes(table, {node, 1}, record, call);
    }
    call.object = inner.parent;
    if (inner.opened) call.out.EndObject();
}

void WriteRecord(const Table& table, const std::byte* record, WriteCall& call) noexcept {
    const auto outerKey = call.quotedKey;
    if (table.shape != Shape::Object) {
        call.out.BeginArray();
        for (std::uint16_t i = 0; i < table.self.count; ++i) {
            const Node& node = table.nodes[table.self.first + i];
            const std::byte* const at = record + node.offset;
            if (node.writePlainly == Plainly::Number) {
                call.out.Int(Load<std::int32_t>(at));
                continue;
            }
            const Field& field = table.rows[node.row];
            if (IsElementWritten(field, at))
                WriteElement(field, at, call);
            else
                call.out.Null();
        }
        call.out.EndArray();
    } else {
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
    }
    call.quotedKey = outerKey;
}

} // namespace orrery::record
