#include "frame/json/Value.h"

#include "frame/json/WalkStack.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>

namespace orrery::json {

const Value kNull;

static_assert(sizeof(Value) <= Arena::kSpareSize);

namespace {

constexpr std::uint32_t kLinearSearchLimit = 8;
constexpr unsigned kFirstGrowth = 2; // 4 elements
constexpr unsigned kLastGrowth = 31;

Value& NobodyReads(Arena& arena) noexcept {
    return *new (arena.Spare()) Value;
}

// Index of the first member whose key is not below `key`.
std::uint32_t LowerBound(const Member* members, std::uint32_t count, std::string_view key) noexcept {
    const std::uint64_t prefix = KeyPrefix(key);
    std::uint32_t first = 0;
    while (count > 0) {
        const std::uint32_t half = count / 2;
        const std::string_view other = members[first + half].key();
        const std::uint64_t otherPrefix = KeyPrefix(other);
        const bool below = otherPrefix != prefix ? otherPrefix < prefix : CompareKeys(other, key) < 0;
        first = below ? first + half + 1 : first;
        count = below ? count - half - 1 : half;
    }
    return first;
}

// Room for more than `size` entries, a power of two so that growing entry by entry copies each only a few times. Null
// when there is none to be had.
template <class Entry>
Entry* Enlarge(Arena& arena, const Entry* old, std::uint32_t oldSize, std::uint32_t size,
               std::uint8_t& growth) noexcept {
    const unsigned needed = std::max(kFirstGrowth, static_cast<unsigned>(std::bit_width(size)));
    if (needed > kLastGrowth) {
        arena.MarkFailed();
        return nullptr;
    }
    Entry* const room = arena.Array<Entry>(std::size_t{1} << needed);
    if (room == nullptr) return nullptr;
    if (oldSize > 0) std::memcpy(static_cast<void*>(room), old, oldSize * sizeof(Entry));
    growth = static_cast<std::uint8_t>(needed);
    return room;
}

} // namespace

bool Value::ConvertToBool() const noexcept {
    switch (type_) {
    case Type::Int:
        return payload_.number != 0;
    case Type::UInt:
        return payload_.unsignedNumber != 0;
    case Type::Real:
        return payload_.real != 0.0; // true for NaN
    case Type::String:
    case Type::Array:
    case Type::Object:
        return size_ != 0;
    case Type::Bool:
        return payload_.flag;
    case Type::Null:
        break;
    }
    return false;
}

std::int32_t Value::ConvertToInt() const noexcept {
    switch (type_) {
    case Type::Int:
        return payload_.number;
    case Type::UInt:
        // The largest int itself counts as out of range: clients of the devices know it as "no number".
        return payload_.unsignedNumber < 2147483647U ? static_cast<std::int32_t>(payload_.unsignedNumber) : 0;
    case Type::Real:
        return payload_.real >= -2147483648.0 && payload_.real <= 2147483647.0
                   ? static_cast<std::int32_t>(payload_.real)
                   : 0;
    case Type::Bool:
        return payload_.flag ? 1 : 0;
    default:
        return 0;
    }
}

std::uint32_t Value::ConvertToUInt() const noexcept {
    switch (type_) {
    case Type::Int:
        return payload_.number > 0 ? static_cast<std::uint32_t>(payload_.number) : 0;
    case Type::UInt:
        return payload_.unsignedNumber;
    case Type::Real:
        return payload_.real >= 0.0 && payload_.real <= 4294967295.0 ? static_cast<std::uint32_t>(payload_.real) : 0;
    case Type::Bool:
        return payload_.flag ? 1 : 0;
    default:
        return 0;
    }
}

double Value::ConvertToDouble() const noexcept {
    switch (type_) {
    case Type::Int:
        return payload_.number;
    case Type::UInt:
        return payload_.unsignedNumber;
    case Type::Real:
        return payload_.real;
    case Type::Bool:
        return payload_.flag ? 1.0 : 0.0;
    default:
        return 0.0;
    }
}

const Value& Value::operator[](std::string_view key) const noexcept {
    if (type_ != Type::Object) return kNull;
    const Member* const members = payload_.members;
    if (size_ <= kLinearSearchLimit) {
        for (const Member *member = members, *end = members + size_; member != end; ++member) {
            if (member->keySize == key.size() && member->key() == key) return member->value;
        }
        return kNull;
    }
    const std::uint32_t index = LowerBound(members, size_, key);
    return index < size_ && members[index].key() == key ? members[index].value : kNull;
}

std::uint32_t Value::Capacity() const noexcept {
    return growth_ == 0 ? size_ : std::uint32_t{1} << growth_;
}

Value& Value::At(Arena& arena, std::string_view key) noexcept {
    if (type_ != Type::Object) *this = OfObject(nullptr, 0);
    // Most writers add their members in key order.
    const bool append = size_ == 0 || CompareKeys(payload_.members[size_ - 1].key(), key) < 0;
    const std::uint32_t index = append ? size_ : LowerBound(payload_.members, size_, key);
    if (!append && payload_.members[index].key() == key) return payload_.members[index].value;
    if (key.size() > std::numeric_limits<std::uint32_t>::max()) {
        arena.MarkFailed();
        return NobodyReads(arena);
    }
    char* const text = arena.Array<char>(key.size() + kKeySlack);
    if (text == nullptr) return NobodyReads(arena);
    std::memset(text + key.size(), 0, kKeySlack);
    if (!key.empty()) std::memcpy(text, key.data(), key.size());
    if (size_ == Capacity()) {
        Member* const room = Enlarge(arena, payload_.members, size_, size_, growth_);
        if (room == nullptr) return NobodyReads(arena);
        payload_.members = room;
    }
    Member* const place = payload_.members + index;
    std::memmove(static_cast<void*>(place + 1), place, (size_ - index) * sizeof(Member));
    ++size_;
    new (place) Member{text, static_cast<std::uint32_t>(key.size()), Value{}};
    return place->value;
}

Value& Value::At(Arena& arena, std::uint32_t index) noexcept {
    if (type_ != Type::Array) *this = OfArray(nullptr, 0);
    if (index < size_) return payload_.elements[index];
    if (index >= Capacity()) {
        Value* const room = Enlarge(arena, payload_.elements, size_, index, growth_);
        if (room == nullptr) return NobodyReads(arena);
        payload_.elements = room;
    }
    std::uninitialized_fill(payload_.elements + size_, payload_.elements + index + 1, Value{});
    size_ = index + 1;
    return payload_.elements[index];
}

int ArrayDepth(const Value& value, unsigned sampleShift, Arena& arena) noexcept {
    struct Level {
        const Value* array;
        std::uint64_t next; // index of the sample under way
        int depth;          // the least so far
    };
    WalkStack<Level, 16> levels(arena);
    const Value* current = &value;
    for (;;) {
        int depth;
        if (current->type() == Type::Array && current->size() > 0) {
            if (!levels.Push({current, 0, 0})) return 0;
            current = current->elements().data();
            continue;
        }
        depth = current->type() == Type::Null ? -1 : 0; // an empty array too: its absent first element is null
        for (;;) {
            if (levels.empty()) return depth;
            Level& level = levels.top();
            const bool leading = level.next == 0;
            if (!leading && depth == 0) {
                level.depth = 0;
            } else {
                level.depth = leading ? depth : std::min(level.depth, depth);
                const std::uint32_t size = level.array->size();
                level.next += (sampleShift < 32 ? size >> sampleShift : 0) + std::uint64_t{1};
                if (level.next < size) {
                    current = &level.array->elements()[level.next];
                    break;
                }
            }
            depth = level.depth + 1;
            levels.Pop();
        }
    }
}

} // namespace orrery::json
