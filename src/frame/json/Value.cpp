#include "frame/json/Value.h"

#include "frame/json/WalkStack.h"

#include <algorithm>

namespace orrery::json {

const Value kNull;

namespace {

constexpr std::uint32_t kLinearSearchLimit = 8;

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
        const std::uint64_t prefix = KeyPrefix(key);
        for (const Member *member = members, *end = members + size_; member != end; ++member) {
            if (member->keySize != key.size() || KeyPrefix(*member) != prefix) continue;
            if (key.size() <= 8 || member->key() == key) return member->value;
        }
        return kNull;
    }
    const std::uint32_t index = LowerBound(members, size_, key);
    return index < size_ && members[index].key() == key ? members[index].value : kNull;
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
