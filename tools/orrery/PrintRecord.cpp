#include "orrery/PrintRecord.h"

#include "orrery/Codes.h"
#include "orrery/Words.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace orrery::tool {

using namespace record;

namespace {

// Larger whole numbers are printed as texts: readers keep numbers as doubles.
constexpr std::int64_t kLargestExact = std::int64_t{1} << 53;

Node Bytes(const std::byte* at, std::size_t size) {
    constexpr char kHex[] = "0123456789abcdef";
    std::string hex;
    for (std::size_t i = 0; i < size; ++i) {
        hex += kHex[std::to_integer<unsigned>(at[i]) >> 4];
        hex += kHex[std::to_integer<unsigned>(at[i]) & 15];
    }
    return std::move(Node::Inline().Add("bytes", Node::Text(hex)));
}

// The text up to its terminator; as bytes when that would not tell all.
Node PrintText(const std::byte* at, std::size_t capacity) {
    const std::string_view text = TextAt(at, capacity);
    std::size_t used = capacity;
    while (used > 0 && at[used - 1] == std::byte{0})
        --used;
    if (used > text.size() || !IsUtf8(text)) return Bytes(at, used);
    return Node::Text(text);
}

template <class Float>
Node PrintReal(const std::byte* at) {
    const auto number = Load<Float>(at);
    if (std::isnan(number)) return Bytes(at, sizeof number);
    if (std::isinf(number)) return Node::Text(number < 0 ? "-inf" : "inf");
    char room[64];
    const auto shortest = [&](auto value) { return std::string(room, std::to_chars(room, room + 64, value).ptr); };
    std::string token = shortest(number);
    if constexpr (sizeof(Float) < sizeof(double)) {
        double back = 0;
        std::from_chars(token.data(), token.data() + token.size(), back);
        if (static_cast<Float>(back) != number) token = shortest(double{number});
    }
    if (token == "-0") token = "-0.0"; // the sign belongs to a real only
    return Node::Token(std::move(token));
}

Node PrintInteger(const Field& field, const std::byte* at) {
    if (field.cell == Cell::U64) {
        const auto number = Load<std::uint64_t>(at);
        return number > static_cast<std::uint64_t>(kLargestExact) ? Node::Text(std::to_string(number))
                                                                  : Node::Unsigned(number);
    }
    const std::int64_t number = LoadInteger(field.cell, at);
    if (number > kLargestExact || number < -kLargestExact) return Node::Text(std::to_string(number));
    if (!HasNames(field)) return Node::Number(number);
    Node code = Node::Inline();
    code.Add("code", Node::Number(number));
    const std::string name = NameOfCode(field, number);
    if (!name.empty()) code.Add("name", Node::Text(name));
    return code;
}

Node PrintElement(const Field& field, const std::byte* at, PrintOptions options) {
    switch (field.cell) {
    case Cell::Record:
        return PrintRecord(*field.table, at, options);
    case Cell::Char:
        return PrintText(at, field.elementSize);
    case Cell::F32:
        return PrintReal<float>(at);
    case Cell::F64:
        return PrintReal<double>(at);
    case Cell::Pointer:
        return Node::Null();
    default:
        return PrintInteger(field, at);
    }
}

Node PrintLevel(const Field& field, int level, const std::byte* at, std::uint32_t count, PrintOptions options) {
    const int rank = std::min<int>(field.rank, Field::kMaxRank);
    if (level >= rank) return PrintElement(field, at, options);
    std::size_t stride = field.elementSize;
    for (int i = rank - 1; i > level; --i)
        stride *= field.dims[i];
    Node list = Node::Array();
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t inner = level + 1 < rank ? field.dims[level + 1] : 1;
        list.Add(PrintLevel(field, level + 1, at + i * stride, inner, options));
    }
    return list;
}

// The items of a packed buffer, each with its head, its type's name and its type's record; up to the first that is cut
// off or of no known type.
Node PrintItems(const PackedItems& items, const std::byte* descriptor, PrintOptions options) {
    const auto* const first = Load<const std::byte*>(descriptor + items.pointer);
    if (first == nullptr) return Node::Null();
    const std::int64_t end = LoadSlot(items.bytes, descriptor);
    const std::int64_t count = LoadSlot(items.count, descriptor);
    Node list = Node::Array();
    std::int64_t offset = 0;
    for (std::int64_t i = 0; i < count && offset + items.head->size <= end; ++i) {
        const std::byte* const head = first + offset;
        const ItemType type = items.typeOf(static_cast<std::uint32_t>(LoadSlot(items.code, head)));
        const std::int64_t size = LoadSlot(items.size, head);
        if (type.table == nullptr || size < type.table->size || offset + items.head->size + size > end) break;
        Node item = Node::Object();
        item.Add("name", Node::Text(type.name))
            .Add("head", PrintRecord(*items.head, head, options))
            .Add("record", PrintRecord(*type.table, head + items.head->size, options));
        list.Add(std::move(item));
        offset += items.head->size + size;
    }
    return list;
}

// Records without heads, all of the type that their descriptor tells.
Node PrintBareItems(const PackedItems& items, const std::byte* descriptor, PrintOptions options) {
    const auto* const first = Load<const std::byte*>(descriptor + items.pointer);
    if (first == nullptr) return Node::Null();
    const ItemType type = items.typeOf(static_cast<std::uint32_t>(LoadSlot(items.code, descriptor)));
    const std::int64_t stride = LoadSlot(items.size, descriptor);
    const std::int64_t count = type.table == nullptr || stride <= 0 ? 0 : LoadSlot(items.count, descriptor);
    Node list = Node::Array();
    for (std::int64_t i = 0; i < count && i * stride + type.table->size <= LoadSlot(items.bytes, descriptor); ++i)
        list.Add(PrintRecord(*type.table, first + i * stride, options));
    return list;
}

Node PrintPointer(const Field& field, const std::byte* record, PrintOptions options) {
    const auto* const first = Load<const std::byte*>(record + field.offset);
    if (first == nullptr) return Node::Null();
    if (PointsToText(field)) return PrintText(first, std::strlen(reinterpret_cast<const char*>(first)));
    if (PointsToOne(field)) return PrintRecord(*field.table, first, options);
    std::int64_t count = field.count.exists() && !options.all ? LoadSlot(field.count, record) : INT32_MAX;
    if (field.capacity.exists())
        count = std::min(count, LoadSlot(field.capacity, record));
    else
        count = LoadSlot(field.count, record);
    if (PointsToNumbers(field)) {
        Node list = Node::InlineArray();
        for (std::int64_t i = 0; i < count; ++i)
            list.Add(Node::Number(LoadInteger(NumberBehind(field), first + i * field.table->size)));
        return list;
    }
    return PrintRecords(*field.table, first, static_cast<std::size_t>(std::max<std::int64_t>(count, 0)), options);
}

// Whether a member says nothing that its record would not say without a text.
bool IsBlank(const Field& field, const std::byte* at) {
    if (field.kind == Kind::Size) return true;
    if (field.hasDefault && field.rank == 0 && field.cell != Cell::F32 && field.cell != Cell::F64)
        return LoadInteger(field.cell, at) == field.defaultValue;
    return std::all_of(at, at + field.size, [](std::byte byte) { return byte == std::byte{0}; });
}

} // namespace

Node PrintCell(const Field& field, const std::byte* at, PrintOptions options) {
    return PrintElement(field, at, options);
}

Node PrintBehind(const Table& table, const Field& pointer, const std::byte* record, PrintOptions options) {
    const PackedItems* const items = ItemsBehind(table);
    if (items == nullptr) return PrintPointer(pointer, record, options);
    return items->head == nullptr ? PrintBareItems(*items, record, options) : PrintItems(*items, record, options);
}

Node PrintRecord(const Table& table, const std::byte* record, PrintOptions options) {
    Node object = Node::Object();
    for (const Field& field : table) {
        if (field.alias || field.size == 0) continue; // no storage of its own
        if (options.brief && IsBlank(field, record + field.offset)) continue;
        if (field.cell == Cell::Pointer) {
            object.Add(field.name, PrintBehind(table, field, record, options));
            continue;
        }
        std::uint32_t count = field.rank > 0 ? field.dims[0] : 1;
        if (field.count.exists() && !options.all) {
            count = static_cast<std::uint32_t>(std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, count));
        }
        Node value = PrintLevel(field, 0, record + field.offset, count, options);
        const bool isNested = field.cell == Cell::Record || field.rank > 0;
        if (options.brief && isNested && value.size() == 0) continue;
        object.Add(field.name, std::move(value));
    }
    return object;
}

Node PrintRecords(const Table& table, const std::byte* first, std::size_t count, PrintOptions options) {
    Node list = Node::Array();
    for (std::size_t i = 0; i < count; ++i)
        list.Add(PrintRecord(table, first + i * table.size, options));
    return list;
}

} // namespace orrery::tool
