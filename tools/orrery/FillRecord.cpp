#include "orrery/FillRecord.h"

#include "orrery/Codes.h"
#include "orrery/Output.h"
#include "orrery/Suggest.h"
#include "orrery/Words.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <optional>

namespace orrery::tool {

using namespace record;
using json::Type;
using json::Value;

namespace {

// More than any client has behind its pointers.
constexpr std::int64_t kMostPointedTo = std::int64_t{1} << 20;
constexpr std::size_t kMostBytes = std::size_t{1} << 30;

[[noreturn]] void Fail(const std::string& path, const std::string& message) {
    throw FillError((path.empty() ? std::string() : path + ": ") + message);
}
[[noreturn]] void FailType(const std::string& path, const Value& value, const std::string& wanted) {
    Fail(path, wanted + " expected, not " + TypeName(value));
}

std::string Element(const std::string& path, std::size_t index) {
    return path + "[" + std::to_string(index) + "]";
}

// ---- Numbers ----

struct Whole {
    bool negative = false;
    std::uint64_t magnitude = 0;
};

bool IsSigned(Cell cell) {
    return cell == Cell::I8 || cell == Cell::I16 || cell == Cell::I32 || cell == Cell::I64;
}

// The number of a value when it is a whole one; 64-bit fields take texts as well.
std::optional<Whole> WholeOf(const Value& value, std::size_t cellSize) {
    constexpr double kLargestExact = 9007199254740992.0;
    switch (value.type()) {
    case Type::Int: {
        const std::int64_t number = value.asInt();
        return Whole{number < 0, static_cast<std::uint64_t>(std::abs(number))};
    }
    case Type::UInt:
        return Whole{false, value.asUInt()};
    case Type::Real: {
        const double number = value.asDouble();
        if (!(std::fabs(number) <= kLargestExact) || std::trunc(number) != number) return std::nullopt;
        return Whole{number < 0, static_cast<std::uint64_t>(std::fabs(number))};
    }
    case Type::String: {
        if (cellSize != 8) return std::nullopt;
        std::string_view digits = value.asString();
        Whole whole;
        if (!digits.empty() && digits[0] == '-') {
            whole.negative = true;
            digits.remove_prefix(1);
        }
        const char* const end = digits.data() + digits.size();
        const auto [stop, error] = std::from_chars(digits.data(), end, whole.magnitude);
        if (digits.empty() || error != std::errc() || stop != end) return std::nullopt;
        return whole;
    }
    default:
        return std::nullopt;
    }
}

void FillInteger(const Field& field, const Value& value, std::byte* at, const std::string& path) {
    const std::size_t size = field.elementSize;
    if (value.type() == Type::Bool && field.kind == Kind::Bool) {
        StoreInteger(field.cell, at, value.asBool() ? 1 : 0);
        return;
    }
    const auto whole = WholeOf(value, size);
    if (!whole && value.type() == Type::Real) {
        Fail(path, "not a whole number, or too large for one" + std::string(size == 8 ? " (write it as a text)" : ""));
    }
    if (!whole) FailType(path, value, size == 8 ? "a whole number, or one as a text," : "a whole number");
    const auto bits = static_cast<unsigned>(size * 8);
    const bool isSigned = IsSigned(field.cell);
    const std::uint64_t most = ~std::uint64_t{0} >> (64 - bits + (isSigned ? 1 : 0));
    const std::uint64_t limit = !whole->negative ? most : isSigned ? most + 1 : 0;
    if (whole->magnitude > limit) {
        Fail(path, (whole->negative ? "-" : "") + std::to_string(whole->magnitude) + " is out of range for "
                       + TypeWord(field.cell) + " (" + (isSigned ? "-" + std::to_string(most + 1) : "0") + " to "
                       + std::to_string(most) + ")");
    }
    const std::uint64_t stored = whole->negative ? ~whole->magnitude + 1 : whole->magnitude;
    StoreInteger(field.cell, at, static_cast<std::int64_t>(stored));
}

std::vector<std::byte> BytesOf(const Value& value, std::size_t capacity, const std::string& path) {
    const Value& hex = value["bytes"];
    if (value.size() != 1 || !hex.isString()) Fail(path, "an object here is { \"bytes\": \"hex digits\" }");
    const std::string_view digits = hex.asString();
    if (digits.size() % 2 != 0) Fail(path, "an odd number of hex digits");
    if (digits.size() / 2 > capacity) {
        Fail(path, std::to_string(digits.size() / 2) + " bytes; there is room for " + std::to_string(capacity));
    }
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        unsigned byte = 0;
        const auto [stop, error] = std::from_chars(digits.data() + i, digits.data() + i + 2, byte, 16);
        if (error != std::errc() || stop != digits.data() + i + 2) Fail(path, "not all hex digits");
        bytes.push_back(static_cast<std::byte>(byte));
    }
    return bytes;
}

void FillReal(const Field& field, const Value& value, std::byte* at, const std::string& path) {
    double number = 0;
    if (value.type() == Type::Object) {
        const auto bytes = BytesOf(value, field.elementSize, path);
        if (bytes.size() != field.elementSize) {
            Fail(path, "a real takes " + std::to_string(field.elementSize) + " bytes");
        }
        std::memcpy(at, bytes.data(), bytes.size());
        return;
    }
    if (value.type() == Type::Int || value.type() == Type::UInt || value.type() == Type::Real)
        number = value.asDouble();
    else if (value.asString() == "inf" || value.asString() == "-inf")
        number = value.asString()[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    else
        FailType(path, value, "a number");
    if (field.cell == Cell::F64) return Store(at, number);
    if (std::isfinite(number) && !std::isfinite(static_cast<float>(number))) Fail(path, "out of range for f32");
    Store(at, static_cast<float>(number));
}

// ---- Codes: 0, "NC", { "code": 0 } or { "code": 0, "name": "NC" } ----

std::int64_t CodeOf(const Field& field, const Value& name, const std::string& path) {
    if (!name.isString()) FailType(path, name, "a name");
    if (const auto code = CodeOfName(field, name.asString())) return *code;
    Fail(path, "no such name as " + Printable(Quoted(name.asString())) + DidYouMean(name.asString(), NamesOf(field)));
}

void FillCode(const Field& field, const Value& value, std::byte* at, const std::string& path) {
    if (value.isString()) return StoreInteger(field.cell, at, CodeOf(field, value, path));
    if (value.type() != Type::Object) return FillInteger(field, value, at, path);
    const Value& name = value["name"];
    const Value& code = value["code"];
    for (const json::Member& member : value.members()) {
        if (member.key() != "name" && member.key() != "code")
            Fail(path, "a code is { \"code\": number, \"name\": text }, not " + Printable(Quoted(member.key())));
    }
    if (name.isNull() && code.isNull()) Fail(path, "neither \"code\" nor \"name\"");
    if (code.isNull()) return StoreInteger(field.cell, at, CodeOf(field, name, path));
    FillInteger(field, code, at, path + ".code");
    // The name that is printed beside a code may read as another one.
    if (name.isNull() || NameOfCode(field, LoadInteger(field.cell, at)) == name.asString()) return;
    const std::int64_t named = CodeOf(field, name, path);
    if (named == LoadInteger(field.cell, at)) return;
    Fail(path, Printable(Quoted(name.asString())) + " is code " + std::to_string(named) + ", not "
                   + std::to_string(LoadInteger(field.cell, at)) + "; leave one of the two away");
}

// ---- Texts, lists, records ----

void FillText(const Field& field, const Value& value, std::byte* at, const std::string& path) {
    const std::size_t capacity = field.elementSize;
    if (value.type() == Type::Object) {
        const auto bytes = BytesOf(value, capacity, path);
        std::memcpy(at, bytes.data(), bytes.size());
        return;
    }
    if (!value.isString()) FailType(path, value, "a text");
    const std::string_view text = value.asString();
    if (text.size() > capacity) {
        Fail(path,
             "a text of " + std::to_string(text.size()) + " bytes; there is room for " + std::to_string(capacity));
    }
    std::memcpy(at, text.data(), text.size());
}

void FillFields(const Table& table, const Value& value, std::byte* record, Memory& memory, const std::string& path);

void FillElement(const Field& field, const Value& value, std::byte* at, Memory& memory, const std::string& path) {
    switch (field.cell) {
    case Cell::Record:
        return FillFields(*field.table, value, at, memory, path);
    case Cell::Char:
        return FillText(field, value, at, path);
    case Cell::F32:
    case Cell::F64:
        return FillReal(field, value, at, path);
    case Cell::Pointer:
        return;
    default:
        return HasNames(field) ? FillCode(field, value, at, path) : FillInteger(field, value, at, path);
    }
}

void FillLevel(const Field& field, int level, const Value& value, std::byte* at, Memory& memory,
               const std::string& path) {
    if (level == field.rank) return FillElement(field, value, at, memory, path);
    if (value.type() != Type::Array) FailType(path, value, "a list");
    if (value.size() > field.dims[level]) {
        Fail(path,
             "a list of " + std::to_string(value.size()) + "; there is room for " + std::to_string(field.dims[level]));
    }
    std::size_t stride = field.elementSize;
    for (int i = field.rank - 1; i > level; --i)
        stride *= field.dims[i];
    for (std::uint32_t i = 0; i < value.size(); ++i)
        FillLevel(field, level + 1, value[i], at + i * stride, memory, Element(path, i));
}

// Room for what the list, the count and the capacity promise, whichever promises most.
void FillPointer(const Field& field, const Value& value, std::byte* record, Memory& memory, const std::string& path) {
    if (value.isNull()) return;
    if (PointsToText(field)) {
        if (!value.isString()) FailType(path, value, "a text");
        const std::string_view text = value.asString();
        std::byte* const block = memory.Allocate(text.size() + 1);
        std::memcpy(block, text.data(), text.size());
        return Store(record + field.offset, block);
    }
    if (PointsToOne(field)) {
        std::byte* const block = memory.Allocate(field.table->size);
        SetSizeWords(*field.table, block);
        FillFields(*field.table, value, block, memory, path);
        if (field.capacity.exists() && LoadSlot(field.capacity, record) == 0) StoreSlot(field.capacity, record, 1);
        return Store(record + field.offset, block);
    }
    if (!value.isArray()) FailType(path, value, "a list");
    const std::int64_t given = value.size();
    if (field.capacity.exists() && LoadSlot(field.capacity, record) == 0) StoreSlot(field.capacity, record, given);
    const std::int64_t room = std::max({given, LoadSlot(field.count, record), LoadSlot(field.capacity, record)});
    if (room > kMostPointedTo) Fail(path, "a list of " + std::to_string(room) + " is more than this program makes");
    const Table& table = *field.table;
    std::byte* const first = memory.Allocate(static_cast<std::size_t>(std::max<std::int64_t>(room, 1)) * table.size);
    for (std::int64_t i = 0; i < room; ++i)
        SetSizeWords(table, first + i * table.size);
    for (std::uint32_t i = 0; i < value.size(); ++i) {
        std::byte* const at = first + std::size_t{i} * table.size;
        if (!PointsToNumbers(field))
            FillFields(table, value[i], at, memory, Element(path, i));
        else
            FillInteger(table.rows[0], value[i], at, Element(path, i));
    }
    Store(record + field.offset, first);
}

// Records without heads of the one type that the descriptor tells. What the descriptor leaves open of them is told
// there.
void FillBareItems(const Table& table, const PackedItems& items, const Value& value, std::byte* descriptor,
                   Memory& memory, const std::string& path) {
    if (value.isNull()) return;
    if (!value.isArray()) FailType(path, value, "a list");
    const ItemType type = items.typeOf(static_cast<std::uint32_t>(LoadSlot(items.code, descriptor)));
    if (type.table == nullptr && value.size() > 0)
        Fail(path, "no type of that " + SlotName(table, items.code) + " has a record");
    const auto tell = [&](const Slot& slot, std::int64_t number) {
        if (LoadSlot(slot, descriptor) == 0) StoreSlot(slot, descriptor, number);
    };
    tell(items.size, type.table == nullptr ? 0 : type.table->size);
    const std::int64_t stride = LoadSlot(items.size, descriptor);
    if (value.size() > 0 && (stride < type.table->size || stride > kMostPointedTo))
        Fail(path, "a " + SlotName(table, items.size) + " that does not hold " + type.table->record);
    const std::int64_t needed = stride * value.size();
    tell(items.count, value.size());
    tell(items.bytes, needed);
    const std::int64_t room = std::max(needed, LoadSlot(items.bytes, descriptor));
    std::byte* const first = memory.Allocate(static_cast<std::size_t>(std::max<std::int64_t>(room, 1)));
    for (std::uint32_t i = 0; i < value.size(); ++i)
        FillRecord(*type.table, value[i], first + i * stride, memory, Element(path, i));
    Store(descriptor + items.pointer, first);
}

// The items of a packed buffer, as PrintItems has them. The buffer is as large as they are.
void FillItems(const PackedItems& items, const Value& value, std::byte* descriptor, Memory& memory,
               const std::string& path) {
    if (!value.isArray()) FailType(path, value, "a list");
    if (value.isNull()) return;
    struct Item {
        const Table* table;
        std::size_t size;
    };
    std::vector<Item> sizes;
    std::size_t total = 0;
    const std::string codeName = SlotName(*items.head, items.code);
    const std::string sizeName = SlotName(*items.head, items.size);
    for (std::uint32_t i = 0; i < value.size(); ++i) {
        const Value& head = value[i]["head"];
        const std::string place = Element(path, i) + ".head.";
        const ItemType type = items.typeOf(head[codeName].asUInt());
        if (type.table == nullptr) Fail(place + codeName, "no type of that code has a record");
        const std::int64_t given = head[sizeName].isNull() ? type.table->size : head[sizeName].asInt();
        if (given < type.table->size || given > kMostPointedTo * std::int64_t{items.head->size})
            Fail(place + sizeName, "a size that does not hold " + std::string(type.table->record));
        sizes.push_back({type.table, static_cast<std::size_t>(given)});
        total += items.head->size + static_cast<std::size_t>(given);
    }
    std::byte* const first = memory.Allocate(std::max<std::size_t>(total, 1));
    std::byte* at = first;
    for (std::uint32_t i = 0; i < value.size(); ++i) {
        const std::string place = Element(path, i);
        for (const json::Member& member : value[i].members()) {
            if (member.key() == "head")
                FillRecord(*items.head, member.value, at, memory, place + ".head");
            else if (member.key() == "record")
                FillRecord(*sizes[i].table, member.value, at + items.head->size, memory, place + ".record");
            else if (member.key() != "name")
                memory.Unknown(member, place + "." + Printable(member.key()), "an item", {"name", "head", "record"});
        }
        StoreSlot(items.size, at, static_cast<std::int64_t>(sizes[i].size));
        at += items.head->size + sizes[i].size;
    }
    Store(descriptor + items.pointer, first);
    StoreSlot(items.bytes, descriptor, static_cast<std::int64_t>(total));
    if (LoadSlot(items.count, descriptor) == 0) StoreSlot(items.count, descriptor, value.size());
}

const Field* FindField(const Table& table, std::string_view name) {
    for (const Field& field : table) {
        if (field.size > 0 && !field.alias && name == field.name) return &field;
    }
    return nullptr;
}

void FillFields(const Table& table, const Value& value, std::byte* record, Memory& memory, const std::string& path) {
    if (value.type() != Type::Object)
        FailType(path, value, "an object with the fields of " + std::string(table.record));
    const auto pathOf = [&](std::string_view name) {
        return (path.empty() ? std::string() : path + ".") + Printable(name);
    };
    for (const json::Member& member : value.members()) {
        const Field* const field = FindField(table, member.key());
        if (field == nullptr) {
            std::vector<std::string_view> names;
            for (const Field& row : table) {
                if (row.size > 0 && !row.alias) names.push_back(row.name);
            }
            memory.Unknown(member, pathOf(member.key()), table.record, names);
            continue;
        }
        if (field->cell != Cell::Pointer)
            FillLevel(*field, 0, member.value, record + field->offset, memory, pathOf(field->name));
    }
    // Behind the counts and capacities that tell their room.
    for (const Field& field : table) {
        if (field.cell != Cell::Pointer || field.size == 0 || field.alias) continue;
        const PackedItems* const items = ItemsBehind(table);
        if (items != nullptr && items->head == nullptr)
            FillBareItems(table, *items, value[field.name], record, memory, pathOf(field.name));
        else if (items != nullptr)
            FillItems(*items, value[field.name], record, memory, pathOf(field.name));
        else
            FillPointer(field, value[field.name], record, memory, pathOf(field.name));
    }
}

} // namespace

void Memory::Unknown(const json::Member& member, const std::string& path, const char* record,
                     const std::vector<std::string_view>& names) {
    const std::string message = "no such field in " + std::string(record) + DidYouMean(member.key(), names);
    if (unknown_ == nullptr) Fail(path, message);
    explain::Finding& finding = unknown_->emplace_back();
    finding.kind = ORRERY_FINDING_UNKNOWN_KEY;
    finding.gravity = ORRERY_FINDING_LOST;
    finding.at = &member.value;
    finding.atKey = true;
    finding.path = path;
    finding.field = record;
    finding.message = message;
    if (const auto nearest = explain::Nearest(member.key(), names); !nearest.empty()) finding.nearest = nearest.front();
}

std::byte* Memory::Allocate(std::size_t size) {
    if (size > kMostBytes - used_) throw FillError("the lists behind pointers take more memory than this program uses");
    used_ += size;
    blocks_.push_back(std::make_unique<std::byte[]>(size)); // cleared, unlike make_unique_for_overwrite
    return blocks_.back().get();
}

void FillRecord(const Table& table, const Value& value, std::byte* record, Memory& memory, const std::string& path) {
    std::memset(record, 0, table.size);
    SetSizeWords(table, record);
    FillFields(table, value, record, memory, path);
}

std::vector<explain::Finding> PassedOver(const Table& table, const Value& value, const std::string& path) {
    std::vector<explain::Finding> notes;
    const auto isGiven = [&](const Slot& slot) { return !value[SlotName(table, slot)].isNull(); };
    for (const Field& field : table) {
        const Value& given = value[field.name];
        if (!IsStored(field) || given.isNull()) continue;
        const std::string place = (path.empty() ? std::string() : path + ".") + field.name;
        const bool isEmpty = given.type() == Type::Array && given.size() == 0;
        const auto without = [&](const char* what, const Slot& slot) {
            explain::Finding& note = notes.emplace_back();
            note.kind = ORRERY_FINDING_WRITES_NOTHING;
            note.gravity = ORRERY_FINDING_NOTE;
            note.at = &given;
            note.path = place;
            note.field = explain::FieldName(table, field);
            note.message = std::string("is given without its ") + what + " " + SlotName(table, slot);
        };
        if (field.count.exists() && !isGiven(field.count) && !isEmpty) without("count", field.count);
        if (field.writable && field.flag.exists() && !isGiven(field.flag) && !isEmpty) without("flag", field.flag);
        if (field.table == nullptr || (field.cell == Cell::Pointer && ItemsBehind(table) != nullptr)) continue;
        const auto inside = [&](const Value& record, const std::string& where) {
            std::ranges::move(PassedOver(*field.table, record, where), std::back_inserter(notes));
        };
        if (field.rank == 0 && field.cell == Cell::Record) inside(given, place);
        if (field.rank != 1 && field.cell != Cell::Pointer) continue;
        for (std::uint32_t i = 0; i < given.size(); ++i)
            inside(given[i], Element(place, i));
    }
    return notes;
}

void GiveRoom(const Table& table, std::byte* record, std::uint32_t count, Memory& memory) {
    for (const Field& field : table) {
        if (field.size == 0 || field.alias) continue;
        std::byte* const at = record + field.offset;
        const PackedItems* const items = field.cell == Cell::Pointer ? ItemsBehind(table) : nullptr;
        if (items != nullptr && items->head == nullptr) {
            continue; // of a type that only the text tells
        } else if (items != nullptr) {
            const std::size_t bytes = items->most * (items->head->size + std::size_t{items->LargestType()});
            Store(at, memory.Allocate(bytes));
            StoreSlot(items->bytes, record, static_cast<std::int64_t>(bytes));
        } else if (field.cell == Cell::Pointer) {
            const bool isOne = PointsToOne(field);
            if (PointsToText(field) || (isOne && !field.single)) continue; // the library makes these itself
            const std::uint32_t places = isOne ? 1 : count;
            std::byte* const first = memory.Allocate(std::size_t{places} * field.table->size);
            for (std::uint32_t i = 0; i < places; ++i) {
                std::byte* const element = first + std::size_t{i} * field.table->size;
                SetSizeWords(*field.table, element);
                GiveRoom(*field.table, element, count, memory);
            }
            Store(at, first);
            StoreSlot(field.capacity, record, places);
        } else if (field.cell == Cell::Record) {
            if (field.capacity.exists())
                StoreSlot(field.capacity, record, field.dims[0]); // an array that is lent whole
            for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
                GiveRoom(*field.table, at + std::size_t{i} * field.elementSize, count, memory);
        }
    }
}

std::uint32_t LongestList(const Value& root, std::string_view key) {
    std::uint32_t longest = 1;
    std::vector<const Value*> open{&root};
    if (key.empty()) longest = std::max(longest, root.size());
    while (!open.empty()) {
        const Value& value = *open.back();
        open.pop_back();
        for (const Value& element : value.elements()) {
            if (key.empty()) longest = std::max(longest, element.size());
            if (element.size() > 0) open.push_back(&element);
        }
        for (const json::Member& member : value.members()) {
            if (key.empty() || key == member.key()) longest = std::max(longest, member.value.size());
            if (member.value.size() > 0) open.push_back(&member.value);
        }
    }
    return longest;
}

bool GiveRoomAsRead(const Table& table, std::byte* record, const Value& root, Memory& memory) {
    const PackedItems* const items = BareItemsBehind(table);
    bool isGiven = false;
    std::int64_t longest = 0;
    for (const Field& field : table) {
        std::byte* const at = record + field.offset;
        if (field.cell == Cell::Record && field.table->hasPointers) {
            for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
                isGiven |= GiveRoomAsRead(*field.table, at + std::size_t{i} * field.elementSize, root, memory);
        }
        if (items == nullptr || field.offset != items->pointer || LoadSlot(items->size, record) <= 0) continue;
        if (longest == 0) longest = LongestList(root, field.key);
        const std::int64_t bytes = longest * LoadSlot(items->size, record);
        Store(at, memory.Allocate(static_cast<std::size_t>(bytes)));
        StoreSlot(items->bytes, record, bytes);
        isGiven = true;
    }
    return isGiven;
}

const char* TypeName(const Value& value) {
    switch (value.type()) {
    case Type::Null:
        return "null";
    case Type::Int:
    case Type::UInt:
    case Type::Real:
        return "a number";
    case Type::String:
        return "a text";
    case Type::Bool:
        return value.asBool() ? "true" : "false";
    case Type::Array:
        return "a list";
    case Type::Object:
        return "an object";
    }
    return "";
}

} // namespace orrery::tool
