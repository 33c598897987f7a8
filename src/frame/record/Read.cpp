#include "frame/record/Chosen.h"
#include "frame/record/ReadSteps.h"

#include <algorithm>

namespace orrery::record {

using json::Value;

Elements ElementsOf(const Field& field, std::byte* record, std::uint32_t listSize) noexcept {
    if (field.cell != Cell::Pointer) {
        std::int64_t room = field.dims[0];
        if (field.capacity.exists()) room = std::clamp<std::int64_t>(LoadSlot(field.capacity, record), 0, room);
        return {record + field.offset, static_cast<std::uint32_t>(room)};
    }
    auto* const first = Load<std::byte*>(record + field.offset);
    const std::int64_t room = field.owned ? listSize : LoadSlot(field.capacity, record);
    if (first == nullptr || room <= 0) return {nullptr, 0};
    return {first, static_cast<std::uint32_t>(std::min<std::int64_t>(room, UINT32_MAX))};
}

bool StartPointed(const Field& field, std::byte* at, ReadCall& call) noexcept {
    const Table& table = *field.table;
    if (!field.owned && !call.Keep(at, table.size)) return false;
    if (field.zeroed) std::memset(at, 0, table.size);
    if (table.hasDefaults && (field.zeroed || field.owned)) SetDefaults(table, at);
    return true;
}

namespace {

void ReadBitMask(const Field& field, const Value& value, std::byte* at) noexcept {
    const std::size_t bits = std::size_t{field.dims[0]} * 32;
    for (const Value& element : value.elements().first(std::min<std::size_t>(value.elements().size(), bits)))
        SetBit(field, at, element.asInt());
}

void ReadSwitches(const Field& field, const Value& value, std::byte* at) noexcept {
    const auto elements = value.elements();
    const auto count = std::min<std::size_t>(elements.size(), field.dims[0]);
    for (std::size_t i = 0; i < count; ++i) {
        const auto number = static_cast<std::uint32_t>(elements[i].asInt());
        if (number < field.dims[0]) Store<std::int32_t>(at + number * std::size_t{4}, 1);
    }
}

// The text that a field is read from, cut where it reads only the first bytes.
Value FirstBytesOf(const Field& field, const Value& value) noexcept {
    const bool isCut = field.firstBytes != 0 && value.isString() && value.asString().size() > field.firstBytes;
    return isCut ? Value::OfString(value.asString().substr(0, field.firstBytes)) : value;
}

} // namespace

void StartNamed(const Table& table, std::byte* at, ReadCall& call, std::string_view memberName) noexcept {
    if (table.startsWhenRead && table.hasDefaults) SetDefaults(table, at);
    if (const Field* const name = table.memberName; name != nullptr) {
        std::byte* const place = at + name->offset;
        if (name->kind == Kind::MemberCode) {
            if (const auto code = name->names->CodeOf(memberName)) StoreInteger(name->cell, place, *code);
        } else {
            call.parser.GetJsonString(Value::OfString(memberName), reinterpret_cast<char*>(place), name->elementSize,
                                      true);
        }
    }
}

namespace {

// A record, with the name under which it stands for those that keep it.
[[gnu::always_inline]] inline bool ReadNamed(const Table& table, const Value& value, std::byte* at, ReadCall& call,
                                             std::string_view memberName) noexcept {
    if (table.startsWhenRead || table.memberName != nullptr) StartNamed(table, at, call, memberName);
    return ReadFields(table, value, at, call);
}

} // namespace

bool ReadElement(const Field& field, const Value& value, std::byte* at, ReadCall& call,
                 std::string_view memberName) noexcept {
    switch (field.kind) {
    case Kind::None:
    case Kind::Size:
    case Kind::MemberName:
    case Kind::MemberCode:
    case Kind::Supplied:
    case Kind::Custom:
        break;
    case Kind::Presence:
        StoreInteger(field.cell, at, 1);
        break;
    case Kind::Bool:
        StoreInteger(field.cell, at, value.asBool() ? 1 : 0);
        break;
    case Kind::Int:
        StoreNumber(field.cell, at, value.asInt());
        break;
    case Kind::UInt:
        StoreNumber(field.cell, at, value.asUInt());
        break;
    case Kind::Real:
        StoreReal(field.cell, at, value.asDouble());
        break;
    case Kind::Text:
    case Kind::RawText:
        call.parser.GetJsonString(FirstBytesOf(field, value), reinterpret_cast<char*>(at), field.elementSize,
                                  field.kind == Kind::Text);
        break;
    case Kind::FullText:
        call.parser.GetConvertedText(value, reinterpret_cast<char*>(at), field.elementSize);
        break;
    case Kind::Names:
        if (const auto code = field.names->CodeOf(value.asString())) StoreInteger(field.cell, at, *code);
        break;
    case Kind::Record:
        return ReadNamed(*field.table, value, at, call, memberName);
    case Kind::TimeSection:
        JsonParser::GetTimeSection(value, reinterpret_cast<CFG_TIME_SECTION*>(at));
        break;
    case Kind::Schedule:
        JsonParser::GetTimeSchedule(value, reinterpret_cast<CFG_TIME_SECTION*>(at), static_cast<int>(field.dims[0]),
                                    static_cast<int>(field.dims[1]), nullptr);
        break;
    case Kind::HolidaySchedule:
        if (value.isArray()) JsonParser::GetHolidaySchedule(value, reinterpret_cast<CFG_TIME_SCHEDULE*>(at));
        break;
    case Kind::SectionList:
        JsonParser::GetTimeSectionList(value, reinterpret_cast<CFG_TIME_SECTION*>(at), static_cast<int>(field.dims[0]));
        break;
    case Kind::NetTime:
        JsonParser::GetNetTime(value, reinterpret_cast<NET_TIME*>(at));
        break;
    case Kind::NetTimeEx:
        JsonParser::GetNetTimeEx(value, reinterpret_cast<NET_TIME_EX*>(at));
        break;
    case Kind::ClockTime:
        JsonParser::GetClockTime(FirstBytesOf(field, value), reinterpret_cast<NET_TIME*>(at));
        break;
    case Kind::Date:
        JsonParser::GetDate(value, reinterpret_cast<NET_TIME*>(at));
        break;
    case Kind::UtcTime:
        JsonParser::GetUtcTime(value, reinterpret_cast<NET_TIME*>(at));
        break;
    case Kind::SplitMode:
        if (value.isString()) Store(at, JsonParser::GetSplitMode(value.asString()));
        break;
    case Kind::BitMask:
    case Kind::BitMaskLoose:
        ReadBitMask(field, value, at);
        break;
    case Kind::Switches:
        ReadSwitches(field, value, at);
        break;
    }
    return true;
}

namespace {

// A level of a list: `level` 0 is the member's first dimension. Returns the count that the rules give it.
std::int64_t ReadList(const Field& field, int level, const Value& value, Elements room, ReadCall& call) noexcept {
    const bool innermost = field.cell == Cell::Pointer || level + 1 == field.rank;
    const std::uint32_t stride = StrideOf(field, level);
    std::uint32_t used = 0;    // slots taken
    std::uint32_t counted = 0; // slots that count
    // False for an element that leaves a hole.
    const auto readSlot = [&](const Value& element, std::string_view memberName) {
        std::byte* const at = room.first + std::size_t{used} * stride;
        ++used;
        if (!innermost) {
            if (element.isArray()) ReadList(field, level + 1, element, {at, field.dims[level + 1]}, call);
            return true;
        }
        if (field.cell == Cell::Pointer && !StartPointed(field, at, call)) return true;
        if (field.amongKeys && field.table->hasDefaults) SetDefaults(*field.table, at);
        return ReadElement(field, element, at, call, memberName);
    };
    if (field.keyed) {
        for (const json::Member& member : value.members()) {
            if (used == room.room) break;
            const bool isElement = field.amongKeys ? member.value.members().size() > 0
                                                   : !member.value.isNull() || field.nulls == Nulls::Named;
            if (!isElement) continue;
            readSlot(member.value, member.key());
            ++counted;
        }
    } else if (value.type() == json::Type::Object) {
        // Its members have no place in a list, but each stands for an element that is not there.
        used = counted = std::min(value.size(), room.room);
    } else {
        auto elements = value.elements();
        // A day's sections are all but always read in one go.
        const bool areSections = innermost && field.kind == Kind::TimeSection && field.cell != Cell::Pointer;
        if (areSections && !call.refused) {
            const auto slots = elements.first(std::min<std::size_t>(elements.size(), room.room));
            const auto usual = JsonParser::GetUsualSections(slots, reinterpret_cast<CFG_TIME_SECTION*>(room.first));
            used = counted = static_cast<std::uint32_t>(usual);
            elements = elements.subspan(usual);
        }
        for (const Value& element : elements) {
            if (used == room.room || call.refused) break;
            if (element.isNull()) {
                if (field.nulls == Nulls::Stop) break;
                if (field.nulls == Nulls::CloseUp) continue;
                readSlot(element, {});
                if (field.nulls == Nulls::Count) ++counted;
                continue;
            }
            const Nulls taken = readSlot(element, {}) ? Nulls::Count : field.refused;
            if (taken == Nulls::Stop) break;
            if (taken == Nulls::CloseUp) --used;
            if (taken == Nulls::Count) ++counted;
        }
    }
    return field.countUncapped ? std::int64_t{value.size()} : std::int64_t{counted};
}

// A block for all elements of the list, cleared; none when there is no memory for it.
void MakeOwnedBlock(const Field& field, const Value& value, std::byte* record, ReadCall& call) noexcept {
    const std::uint32_t count = value.size();
    const std::uint32_t size = field.table->size;
    std::byte* block = nullptr;
    if (count > 0) {
        block = static_cast<std::byte*>(call.parser.text().arena().Allocate(std::size_t{count} * size));
        if (block == nullptr && call.noMemory != nullptr) call.noMemory(field);
    }
    if (block != nullptr) std::memset(block, 0, std::size_t{count} * size);
    Store(record + field.offset, block);
}

bool TakesList(const Field& field, const Value& value, std::uint32_t extent) noexcept {
    if (field.keyed) return value.type() == json::Type::Object || field.anyShape;
    if (field.exactly) return value.type() == json::Type::Array && value.size() == extent;
    return value.isArray() || field.anyShape;
}

// Below zero, zero or above zero as the node's key orders before, with or behind the member's, when the first eight
// bytes of both are the same. Those are all of most keys, and eight that overlap them tell of nearly all others.
int CompareTails(const Table& table, const Node& node, const json::Member& member) noexcept {
    const std::string_view key = table.keyOf(node);
    if (key.size() == member.keySize) {
        if (key.size() <= 8) return 0;
        if (key.size() <= 16) {
            const std::size_t last = key.size() - 8;
            if (std::memcmp(key.data() + last, member.keyText + last, 8) == 0) return 0;
        }
    }
    return json::CompareKeys(key, member.key());
}

void ReadCustom(const Field& field, const Value& value, std::byte* record, ReadCall& call) noexcept {
    if (field.custom->read != nullptr) field.custom->read(field, value, record, call);
}

[[gnu::always_inline]] inline void ReadPlainly(const Table& table, const Node& node, const Value& value,
                                               std::byte* record, ReadCall& call) noexcept {
    if (node.flag.exists()) StoreInteger(node.flag.cell, record + node.flag.offset, 1);
    std::byte* const at = record + node.offset;
    switch (node.readPlainly) {
    case Plainly::Switch:
        return Store(at, std::int32_t{value.asBool()});
    case Plainly::Number:
        return Store(at, value.asInt());
    case Plainly::Integer:
        if (node.kind == Kind::UInt) return StoreInteger(node.cell, at, value.asUInt());
        return StoreInteger(node.cell, at, node.kind == Kind::Bool ? std::int32_t{value.asBool()} : value.asInt());
    case Plainly::Fraction:
        return StoreReal(node.cell, at, value.asDouble());
    case Plainly::Local:
    case Plainly::Raw:
        call.parser.GetJsonString(value, reinterpret_cast<char*>(at), node.elementSize,
                                  node.readPlainly == Plainly::Local);
        return;
    case Plainly::Named:
        if (const auto code = table.namesOf(node).CodeOf(value.asString())) StoreInteger(node.cell, at, *code);
        return;
    case Plainly::Inner:
        ReadNamed(table.tableOf(node), value, at, call, {});
        return;
    case Plainly::Element:
        ReadElement(table.rows[node.row], value, at, call, {});
        return;
    case Plainly::Function:
    case Plainly::No:
        return;
    }
}

void ReadNodes(const Table& table, NodeRange range, const Value& object, std::byte* record, ReadCall& call) noexcept;

[[gnu::always_inline]] inline void ReadNodeHere(const Table& table, const Node& node, const Value& value,
                                                std::byte* record, ReadCall& call) noexcept {
    if (value.isNull() && !node.needsAbsent) return;
    if (node.readPlainly == Plainly::Function)
        ReadCustom(table.rows[node.row], value, record, call);
    else if (node.readPlainly != Plainly::No)
        ReadPlainly(table, node, value, record, call);
    else if (node.childCount > 0)
        ReadNodes(table, {node.firstChild, node.childCount, node.childLastAbsent}, value, record, call);
    else
        ReadField(table.rows[node.row], value, record, call);
}

// A merge of two sorted lists: the nodes of the object and the members that came. Several nodes may have one key.
void ReadNodes(const Table& table, NodeRange range, const Value& object, std::byte* record, ReadCall& call) noexcept {
    const Node* node = table.nodes + range.first;
    const Node* const end = node + range.count;
    for (const json::Member& member : object.members()) {
        const std::uint64_t prefix = json::KeyPrefix(member);
        for (; node != end && node->prefix <= prefix; ++node) {
            const int order = node->prefix < prefix ? -1 : CompareTails(table, *node, member);
            if (order > 0) break;
            if (order == 0)
                ReadNodeHere(table, *node, member.value, record, call);
            else if (node->needsAbsent)
                ReadNode(table, *node, json::kNull, record, call);
        }
        if (node == end) return;
    }
    for (const Node* const last = table.nodes + range.lastAbsent; node < last; ++node) {
        if (node->needsAbsent) ReadNode(table, *node, json::kNull, record, call);
    }
}

} // namespace

void ReadNode(const Table& table, const Node& node, const Value& value, std::byte* record, ReadCall& call) noexcept {
    ReadNodeHere(table, node, value, record, call);
}

bool IsOfType(OnlyType only, const Value& value) noexcept {
    switch (only) {
    case OnlyType::Any:
        return true;
    case OnlyType::String:
        return value.isString();
    case OnlyType::Bool:
        return value.isBool();
    case OnlyType::Integer:
        return value.isInt();
    case OnlyType::Unsigned:
        return value.isUInt();
    case OnlyType::Integral:
        return value.isIntegral();
    case OnlyType::Array:
        return value.type() == json::Type::Array;
    }
    return true;
}

void ReadField(const Field& field, const Value& value, std::byte* record, ReadCall& call) noexcept {
    if (!field.readable || (value.isNull() && !field.always)) return;
    if (!IsOfType(field.only, value)) return;
    if (field.readCondition.exists() && LoadSlot(field.readCondition, record) == 0) return;
    if (field.atLeast != 0 && value.elements().size() < field.atLeast) return;
    if (field.kind == Kind::Custom) return ReadCustom(field, value, record, call);
    if (field.wholeMember) {
        if (!value.isArray() && !field.anyShape) return;
        StoreSlot(field.flag, record, 1);
        ReadElement(field, value, record + field.offset, call, {});
    } else if (field.single) {
        std::byte* const at = SingleOf(field, record);
        if (at == nullptr || !call.Keep(at, field.table->size)) return;
        StoreSlot(field.flag, record, 1);
        ReadElement(field, value, at, call, {});
        StoreSlot(field.count, record, 1);
    } else if (field.rank > 0 || field.cell == Cell::Pointer) {
        if (field.owned) {
            if (!value.isArray()) return;
            MakeOwnedBlock(field, value, record, call);
        }
        const Elements room = ElementsOf(field, record, value.size());
        if (!TakesList(field, value, room.room)) return;
        if (field.allOrNone && (field.keyed ? value.members().size() : value.size()) > room.room) {
            call.overflowed = true;
            return;
        }
        StoreSlot(field.flag, record, 1);
        std::int64_t count = ReadList(field, 0, value, room, call);
        if (field.counted && room.first == nullptr)
            count = std::clamp<std::int64_t>(LoadSlot(field.capacity, record), 0, value.size());
        StoreSlot(field.count, record, count);
    } else {
        StoreSlot(field.flag, record, 1);
        ReadElement(field, value, record + field.offset, call, {});
    }
}

void StartFields(const Table& table, std::byte* record, ReadCall& call) noexcept {
    if (table.clearsFlags) ClearFlags(table, record);
    if (call.context != nullptr) {
        const auto* const context = static_cast<const std::byte*>(call.context);
        for (std::uint16_t i = 0; i < table.suppliedCount; ++i) {
            const Copy& copy = table.supplied[i];
            std::memcpy(record + copy.to, context + copy.from, copy.size);
        }
    }
}

bool ReadFields(const Table& table, const Value& value, std::byte* record, ReadCall& call) noexcept {
    if (table.guarded && Load<std::uint32_t>(record) != table.size) return false;
    if (table.takesFirst && value.type() == json::Type::Array) {
        // An array in an array is no object: it has no members.
        const Value& first = value[0];
        return ReadFields(table, first.type() == json::Type::Array ? json::kNull : first, record, call);
    }
    if (table.clearsFlags || table.suppliedCount > 0) StartFields(table, record, call);
    if (table.shape != Shape::Object) {
        const bool hasAll = value.type() == json::Type::Array && value.size() == table.self.count;
        if (table.shape == Shape::Tuple && !hasAll) return false;
        if (table.shape == Shape::LongTuple && value.size() < table.self.count) return false;
        const auto elements = value.elements();
        const Node* node = table.nodes + table.self.first;
        for (std::uint16_t i = 0; i < table.self.count; ++i, ++node) {
            // A null among the numbers reads as 0, as every other element of the wrong type does.
            const Value& element = i < elements.size() ? elements[i] : json::kNull;
            if (node->readPlainly == Plainly::Number)
                Store(record + node->offset, element.asInt());
            else
                ReadElement(table.rows[node->row], element, record + node->offset, call, {});
        }
    } else {
        for (std::uint16_t i = 0; i < table.self.count; ++i) {
            ReadField(table.rows[table.nodes[table.self.first + i].row], value, record, call);
            if (call.refused) return true;
        }
        ReadNodes(table, table.members, value, record, call);
    }
    if (table.fromRoot.count > 0) ReadRootFields(table, record, call);
    if (table.afterRead != nullptr) table.afterRead(value, record, call);
    return true;
}

void ReadRootFields(const Table& table, std::byte* record, ReadCall& call) noexcept {
    ReadNodes(table, table.fromRoot, call.root, record, call);
}

void ReadChosen(const Table& table, const Value& object, std::byte* record, ReadCall& call, RowChoice chosen) noexcept {
    for (const Field& row : table) {
        if (row.key != nullptr && chosen.takes(row, chosen.what)) ReadField(row, object[row.key], record, call);
    }
}

void ReadRecord(const Table& table, const Value& value, std::byte* record, ReadCall& call,
                std::string_view memberName) noexcept {
    if (table.hasDefaults && !table.startsWhenRead) SetDefaults(table, record);
    ReadNamed(table, value, record, call, memberName);
}

} // namespace orrery::record
