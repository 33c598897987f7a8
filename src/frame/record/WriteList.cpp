// Lists of a record, and records that stand under their names.
#include "frame/record/PutValues.h"
#include "frame/record/WriteParts.h"

#include <algorithm>

namespace orrery::record {

namespace {

constexpr std::size_t kGrowthOfTexts = 3;   // as for every other text on its way out
constexpr std::size_t kGrowthAmongKeys = 4; // twice its length: a name must not lose its end

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

struct Elements {
    const std::byte* first;
    std::uint32_t count;
};

[[gnu::always_inline]] inline Elements ElementsOf(const Field& field, const std::byte* record) noexcept {
    const std::byte* first = record + field.offset;
    std::int64_t room = field.dims[0];
    if (field.cell == Cell::Pointer) {
        first = Load<const std::byte*>(first);
        room = LoadSlot(field.capacity, record);
        if (first == nullptr) room = 0;
    }
    std::int64_t count = room;
    if (field.count.exists() && !field.fullCapacity) {
        const bool isUsual = field.count.cell == Cell::I32;
        count = isUsual ? Load<std::int32_t>(record + field.count.offset) : LoadSlot(field.count, record);
    }
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

bool IsPlainNumber(const Field& field) noexcept {
    return field.writtenAs == Kind::Int && field.cell == Cell::I32 && field.atMost == Field::kNoLimit;
}

// An array of 32-bit numbers. Channels above all: the longest lists there are.
void WriteNumbers(const std::byte* at, std::uint32_t count, std::uint32_t stride, json::TextWriter& out) noexcept {
    out.BeginArray();
    std::uint32_t i = 0;
    json::Pen pen(out);
    for (; i < count && pen.has(json::kIntegerRoom); ++i, at += stride)
        pen.Element([at](char* to) { return json::PutDigits(to, Load<std::int32_t>(at)); });
    pen.Return(out);
    for (; i < count; ++i, at += stride)
        out.Int(Load<std::int32_t>(at));
    out.EndArray();
}

// Puts names and texts, up to the first element that finds no room, is converted or has no text; answers how many.
std::uint32_t PutWords(const Field& field, const Elements& elements, json::TextWriter& out, LocalText& text) noexcept {
    const bool areNames = field.writtenAs == Kind::Names && field.atMost == Field::kNoLimit;
    if (!areNames && field.writtenAs != Kind::Text && field.writtenAs != Kind::RawText) return 0;
    const TextWay way(field.writtenAs == Kind::Text, text);
    const std::size_t room = areNames ? kNameRoom : json::TextRoom(field.elementSize);
    const auto put = [&](char* to, const std::byte* at) -> char* {
        if (areNames) return PutNamed(to, *field.names, static_cast<std::int32_t>(LoadInteger(field.cell, at)));
        if (!way.copies) return nullptr;
        return json::PutText(to, reinterpret_cast<const char*>(at), field.elementSize, way.asciiOnly);
    };
    json::Pen pen(out);
    std::uint32_t i = 0;
    for (const std::byte* at = elements.first; i < elements.count && pen.has(room); ++i, at += field.elementSize) {
        if (!pen.TryElement([&](char* to) { return put(to, at); })) break;
    }
    pen.Return(out);
    return i;
}

} // namespace

std::span<const NamedRecord> SortedByName(const Table& table, const RecordList& records, std::size_t growth,
                                          LocalText& text) noexcept {
    NamedRecord* const entries = text.arena().Array<NamedRecord>(records.count);
    if (entries == nullptr) return {};
    const bool isKept = records.take == nullptr; // else the next record takes the place of its name
    const std::size_t ownRoom = table.memberName != nullptr ? table.memberName->convertedRoom : 0;
    std::uint32_t count = 0;
    for (std::uint32_t i = 0; i < records.count; ++i) {
        const std::byte* const at = records[i];
        if (!IsWrittenByName(table, at)) continue;
        const std::string_view name = MemberNameOf(table, at);
        const std::size_t room = ownRoom != 0 ? ownRoom : name.size() * growth / 2 + 1;
        const std::string_view utf8 = ToUtf8(name, room, text);
        entries[count++] = {isKept ? utf8 : Copied(utf8, text.arena()), i};
    }
    const auto isBefore = [](const NamedRecord& left, const NamedRecord& right) {
        const int order = left.name.compare(right.name);
        return order != 0 ? order < 0 : left.index < right.index;
    };
    // Records that came from a text as a rule stand as they did there.
    if (!std::is_sorted(entries, entries + count, isBefore)) std::sort(entries, entries + count, isBefore);
    std::uint32_t unique = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i + 1 == count || entries[i].name != entries[i + 1].name) entries[unique++] = entries[i];
    }
    return {entries, unique};
}

char* PutList(const Table& table, const Node& node, const std::byte* record, WriteCall& call, char* at) noexcept {
    const Field& field = table.rows[node.row];
    const bool isPointer = field.cell == Cell::Pointer;
    if (field.keyed || field.skipped != Skipped::StaysNull || field.rank != (isPointer ? 0 : 1)) return nullptr;
    const Elements elements = ElementsOf(field, record);
    if (elements.count == 0) {
        if (field.empty == Empty::NoKey) return at;
        char* const to = PutKey(at, table, node);
        if (field.empty == Empty::Null) return json::Pen::PutNull(to);
        std::memcpy(to, "[  ]", 4);
        return to + 4;
    }

    const json::Hand hand(call.out);
    const char* limit = hand.LimitFor(kMemberRoom);
    const std::byte* element = elements.first;
    const std::uint32_t stride = isPointer ? StrideOf(field, 0) : field.elementSize;
    std::uint32_t left = elements.count;
    char* to = PutKey(at, table, node);
    const std::size_t opened = hand.OffsetOf(to);
    // `put` answers the end of an element, or null for one that the writer has to write.
    const auto putEach = [&](auto put) {
        for (; left > 0 && to < limit; --left, element += stride) {
            char* const next = put(json::Hand::Separate(to));
            if (next == nullptr) break;
            to = next;
        }
    };
    switch (field.writtenAs) {
    case Kind::Int:
        if (IsPlainNumber(field))
            putEach([&](char* value) { return json::PutDigits(value, Load<std::int32_t>(element)); });
        break;
    case Kind::UInt:
        if (field.cell < Cell::F32)
            putEach([&](char* value) {
                const auto number = std::min(LoadInteger(field.cell, element), field.atMost);
                return json::PutDigits(value, static_cast<std::uint32_t>(number));
            });
        break;
    case Kind::Names:
        if (field.atMost != Field::kNoLimit) break;
        putEach([&](char* value) {
            return PutNamed(value, *field.names, static_cast<std::int32_t>(LoadInteger(field.cell, element)));
        });
        break;
    case Kind::Text:
    case Kind::RawText:
        if (const TextWay way(field.writtenAs == Kind::Text, call.parser.text()); way.copies && !isPointer) {
            putEach([&](char* value) -> char* {
                if (!hand.Has(value, json::TextRoom(field.elementSize))) return nullptr;
                return json::PutText(value, reinterpret_cast<const char*>(element), field.elementSize, way.asciiOnly);
            });
        }
        break;
    case Kind::Record:
        if (const Table& inner = *field.table; inner.isPlainObject()) {
            putEach([&](char* value) {
                const std::size_t place = hand.OffsetOf(value);
                char* const end = PutObject(inner, inner.members, element, call, value);
                limit = hand.LimitFor(kMemberRoom);
                return end != nullptr ? end : json::Pen::PutNull(hand.PlaceOf(place));
            });
        } else if (inner.shape != Shape::Object) {
            putEach([&](char* value) -> char* {
                if (!IsWritten(inner, element)) return json::Pen::PutNull(value);
                if (!inner.isNumbers) return PutTuple(inner, element, call, value);
                return hand.Has(value, NumbersRoom(inner)) ? PutNumbers(value, inner, element) : nullptr;
            });
        }
        break;
    default:
        break;
    }
    if (left > 0) {
        hand.Give(to, opened, "[ ");
        for (; left > 0; --left, element += stride) {
            if (IsElementWritten(field, element))
                WriteElement(field, element, call);
            else
                call.out.Null();
        }
        to = hand.Take();
    }
    std::memcpy(hand.PlaceOf(opened), "[ ", 2);
    return hand.Close(to, " ]");
}

void WriteList(const Field& field, const std::byte* record, WriteCall& call) noexcept {
    const Elements elements = ElementsOf(field, record);
    const bool isFlat = field.rank == 1 && field.cell != Cell::Pointer;
    const std::uint32_t stride = isFlat ? field.elementSize : StrideOf(field, 0);
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
    const int inner = field.cell == Cell::Pointer ? field.rank : 1;
    if (field.writtenAs == Kind::Record && !field.keyed && inner == field.rank && field.table->isAlwaysWritten()) {
        call.Key();
        call.out.BeginArray();
        WriteRecords(*field.table, elements.first, elements.count, stride, call);
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
    call.Key();
    if (IsPlainNumber(field) && inner == field.rank) return WriteNumbers(elements.first, end, stride, call.out);
    call.out.BeginArray();
    std::uint32_t i = 0;
    if (isFlat) i = PutWords(field, {elements.first, end}, call.out, call.parser.text());
    for (; i < end; ++i) {
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

} // namespace orrery::record
