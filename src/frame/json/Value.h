// One value of a JSON document. Values are plain 16-byte words over an arena: they own nothing, copy freely and stay
// valid as long as the arena and, for texts without escapes, the parsed text itself. A copy shares its elements and
// members with the original.
//
// Devices send whatever they like, so nothing here ever fails: a look-up that misses yields null, a conversion of an
// unfitting type yields zero, false or empty.
#pragma once

#include "frame/Arena.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#define ORRERY_SSE2 1
#else
#define ORRERY_SSE2 0
#endif

namespace orrery::json {

enum class Type : std::uint8_t { Null, Int, UInt, Real, String, Bool, Array, Object };

struct Member;

class Value {
  public:
    constexpr Value() noexcept : type_(Type::Null), size_(0), payload_{} {}
    static Value OfInt(std::int32_t number) noexcept {
        Value value(Type::Int);
        value.payload_.number = number;
        return value;
    }
    static Value OfUInt(std::uint32_t number) noexcept {
        Value value(Type::UInt);
        value.payload_.unsignedNumber = number;
        return value;
    }
    static Value OfReal(double number) noexcept {
        Value value(Type::Real);
        value.payload_.real = number;
        return value;
    }
    static Value OfBool(bool flag) noexcept {
        Value value(Type::Bool);
        value.payload_.flag = flag;
        return value;
    }
    // The text must outlive the value.
    static Value OfString(std::string_view text) noexcept {
        Value value(Type::String, static_cast<std::uint32_t>(text.size()));
        value.payload_.text = text.data();
        return value;
    }
    // Elements and members must outlive the value; members are in ascending key order without duplicates.
    static Value OfArray(Value* elements, std::uint32_t count) noexcept {
        Value value(Type::Array, count);
        value.payload_.elements = elements;
        return value;
    }
    static Value OfObject(Member* members, std::uint32_t count) noexcept {
        Value value(Type::Object, count);
        value.payload_.members = members;
        return value;
    }

    // Makes a value at `at` by a single store, where the hot path makes and reads one at once: a value put together
    // piece by piece, and copied before all pieces have arrived, stalls the processor.
    static void PutNull(void* at) noexcept { Put(at, Type::Null, 0, 0); }
    static void PutInt(void* at, std::int32_t number) noexcept {
        Put(at, Type::Int, 0, Leading(static_cast<std::uint32_t>(number), 4));
    }
    static void PutUInt(void* at, std::uint32_t number) noexcept { Put(at, Type::UInt, 0, Leading(number, 4)); }
    static void PutReal(void* at, double number) noexcept {
        Put(at, Type::Real, 0, std::bit_cast<std::uint64_t>(number));
    }
    static void PutBool(void* at, bool flag) noexcept { Put(at, Type::Bool, 0, Leading(flag, 1)); }
    static void PutString(void* at, const char* text, std::size_t size) noexcept {
        Put(at, Type::String, static_cast<std::uint32_t>(size), Address(text));
    }
    static void PutArray(void* at, const Value* elements, std::size_t count) noexcept {
        Put(at, Type::Array, static_cast<std::uint32_t>(count), Address(elements));
    }
    static void PutObject(void* at, const Member* members, std::size_t count) noexcept {
        Put(at, Type::Object, static_cast<std::uint32_t>(count), Address(members));
    }

    Type type() const noexcept { return type_; }
    bool isNull() const noexcept { return type_ == Type::Null; }
    // Null passes for both, as the device's "nothing here" is an empty list and an empty object alike.
    bool isArray() const noexcept { return type_ == Type::Array || type_ == Type::Null; }
    bool isObject() const noexcept { return type_ == Type::Object || type_ == Type::Null; }
    bool isString() const noexcept { return type_ == Type::String; }
    bool isBool() const noexcept { return type_ == Type::Bool; }
    bool isInt() const noexcept { return type_ == Type::Int; }
    bool isUInt() const noexcept { return type_ == Type::UInt; }
    bool isIntegral() const noexcept { return isInt() || isUInt() || isBool(); }

    // Elements of an array or members of an object; 0 for anything else.
    std::uint32_t size() const noexcept { return type_ >= Type::Array ? size_ : 0; }

    bool asBool() const noexcept { return type_ == Type::Bool ? payload_.flag : ConvertToBool(); }
    std::int32_t asInt() const noexcept { return type_ == Type::Int ? payload_.number : ConvertToInt(); }
    std::uint32_t asUInt() const noexcept { return type_ == Type::UInt ? payload_.unsignedNumber : ConvertToUInt(); }
    double asDouble() const noexcept { return type_ == Type::Real ? payload_.real : ConvertToDouble(); }
    // A string's text, "true" or "false" for a bool, empty for everything else: digits of a number never come back.
    std::string_view asString() const noexcept {
        if (type_ == Type::String) return {payload_.text, size_};
        if (type_ == Type::Bool) return payload_.flag ? "true" : "false";
        return {};
    }

    // The member of that name, or a null value.
    const Value& operator[](std::string_view key) const noexcept;
    // The element at that index, or a null value.
    const Value& operator[](std::uint32_t index) const noexcept;

    // Empty for anything that is not an array or not an object.
    std::span<const Value> elements() const noexcept {
        return type_ == Type::Array ? std::span<const Value>{payload_.elements, size_} : std::span<const Value>{};
    }
    std::span<const Member> members() const noexcept;

  private:
    friend struct Member;

    union Payload {
        std::int32_t number;
        std::uint32_t unsignedNumber;
        double real;
        bool flag;
        const char* text;
        Value* elements;
        Member* members;
    };

    static constexpr bool kLittle = std::endian::native == std::endian::little;

    // A number of `bytes` bytes as the first of a payload's eight.
    static std::uint64_t Leading(std::uint64_t number, unsigned bytes) noexcept {
        return kLittle ? number : number << (64 - 8 * bytes);
    }
    static std::uint64_t Address(const void* at) noexcept {
        return Leading(reinterpret_cast<std::uintptr_t>(at), sizeof at);
    }
    static void PutWords(void* at, std::uint64_t first, std::uint64_t second) noexcept {
#if ORRERY_SSE2
        _mm_storeu_si128(static_cast<__m128i*>(at),
                         _mm_set_epi64x(static_cast<std::int64_t>(second), static_cast<std::int64_t>(first)));
#else
        const std::uint64_t words[2] = {first, second};
        std::memcpy(at, words, sizeof words);
#endif
    }
    static void Put(void* at, Type type, std::uint32_t size, std::uint64_t payload) noexcept {
        const auto code = static_cast<std::uint64_t>(type);
        PutWords(at, kLittle ? code | std::uint64_t{size} << 32 : code << 56 | size, payload);
    }

    explicit Value(Type type, std::uint32_t size = 0) noexcept : type_(type), size_(size), payload_{} {}

    bool ConvertToBool() const noexcept;
    std::int32_t ConvertToInt() const noexcept;
    std::uint32_t ConvertToUInt() const noexcept;
    double ConvertToDouble() const noexcept;

    Type type_;
    std::uint32_t size_;
    Payload payload_;
};

static_assert(sizeof(Value) == 16);

struct Member {
    const char* keyText; // kKeySlack bytes may be loaded, however short the key is
    std::uint32_t keySize;
    Value value;

    std::string_view key() const noexcept { return {keyText, keySize}; }
    // The key of a member at `at`, by a single store as well.
    static void PutKey(void* at, const char* text, std::uint32_t size) noexcept {
        Value::PutWords(at, Value::Address(text), Value::Leading(size, sizeof size));
    }
};

static_assert(sizeof(Member) == 32);
inline constexpr std::size_t kKeySlack = 8;

// A number of a text's bytes, the first one uppermost, so that numbers order like texts.
template <class Number>
Number BigEndian(const char* text) noexcept {
    Number bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    if constexpr (std::endian::native == std::endian::big) return bytes;
    if constexpr (sizeof bytes == 8) return __builtin_bswap64(bytes);
    if constexpr (sizeof bytes == 4) return __builtin_bswap32(bytes);
    return __builtin_bswap16(static_cast<std::uint16_t>(bytes));
}

// Keys are ordered by their bytes, taken as unsigned: below zero, zero or above zero as memcmp tells it.
inline int CompareKeys(std::string_view left, std::string_view right) noexcept {
    const std::size_t common = left.size() < right.size() ? left.size() : right.size();
    const int order = common == 0 ? 0 : std::memcmp(left.data(), right.data(), common);
    if (order != 0) return order;
    return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
}

// The first eight bytes of a key as a number that orders like the key, but for what follows them.
constexpr std::uint64_t KeyPrefix(std::string_view key) noexcept {
    const std::size_t size = key.size();
    if (std::is_constant_evaluated()) {
        std::uint64_t prefix = 0;
        for (std::size_t i = 0; i < 8; ++i)
            prefix = prefix << 8 | (i < size ? static_cast<unsigned char>(key[i]) : 0u);
        return prefix;
    }
    // Nothing behind a short key may be looked at, so its two ends are loaded, which overlap.
    if (size >= 8) return BigEndian<std::uint64_t>(key.data());
    const unsigned unused = static_cast<unsigned>(8 - size) * 8;
    if (size >= 4) {
        return std::uint64_t{BigEndian<std::uint32_t>(key.data())} << 32
               | std::uint64_t{BigEndian<std::uint32_t>(key.data() + size - 4)} << unused;
    }
    if (size >= 2) {
        return std::uint64_t{BigEndian<std::uint16_t>(key.data())} << 48
               | std::uint64_t{BigEndian<std::uint16_t>(key.data() + size - 2)} << unused;
    }
    return size == 0 ? 0 : std::uint64_t{static_cast<unsigned char>(key[0])} << 56;
}

// The same of a member's key, which is loaded without a look at its length.
inline std::uint64_t KeyPrefix(const char* key, std::size_t size) noexcept {
    const auto bytes = BigEndian<std::uint64_t>(key);
    return size >= 8 ? bytes : bytes & ~(~std::uint64_t{0} >> (8 * size));
}
inline std::uint64_t KeyPrefix(const Member& member) noexcept {
    return KeyPrefix(member.keyText, member.keySize);
}

// The shared null value that misses yield.
extern const Value kNull;

inline const Value& Value::operator[](std::uint32_t index) const noexcept {
    return type_ == Type::Array && index < size_ ? payload_.elements[index] : kNull;
}

inline std::span<const Member> Value::members() const noexcept {
    return type_ == Type::Object ? std::span<const Member>{payload_.members, size_} : std::span<const Member>{};
}

// The number of array levels of a value: 0 for a scalar or an object, -1 for null, for an array one more than the least
// of its elements, where the first scalar after the leading element settles it. A long array is sampled at every
// ((size >> sampleShift) + 1)-th element rather than walked, so a scalar between two samples goes unnoticed. The arena
// holds the way back up from great depths; 0 when it is exhausted.
int ArrayDepth(const Value& value, unsigned sampleShift, Arena& arena) noexcept;

} // namespace orrery::json
