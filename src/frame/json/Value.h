// One value of a JSON document. Values are plain 16-byte words over an arena: they own nothing, copy freely and stay
// valid as long as the arena and, for texts without escapes, the parsed text itself.
//
// Devices send whatever they like, so nothing here ever fails: a look-up that misses yields null, a conversion of an
// unfitting type yields zero, false or empty.
#pragma once

#include "frame/Arena.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace orrery::json {

enum class Type : std::uint8_t { Null, Int, UInt, Real, String, Bool, Array, Object };

struct Member;

class Value {
  public:
    constexpr Value() noexcept : type_(Type::Null), size_(0), payload_{} {}
    static Value OfInt(std::int32_t number) noexcept;
    static Value OfUInt(std::uint32_t number) noexcept;
    static Value OfReal(double number) noexcept;
    static Value OfBool(bool flag) noexcept;
    // The text must outlive the value.
    static Value OfString(std::string_view text) noexcept;
    // Elements and members must outlive the value; members are in ascending key order without duplicates.
    static Value OfArray(Value* elements, std::uint32_t count) noexcept;
    static Value OfObject(Member* members, std::uint32_t count) noexcept;

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

    bool asBool() const noexcept;
    std::int32_t asInt() const noexcept;
    std::uint32_t asUInt() const noexcept;
    double asDouble() const noexcept;
    // A string's text, "true" or "false" for a bool, empty for everything else: digits of a number never come back.
    std::string_view asString() const noexcept;

    // The member of that name, or a null value.
    const Value& operator[](std::string_view key) const noexcept;
    // The element at that index, or a null value.
    const Value& operator[](std::uint32_t index) const noexcept;

    // Empty for anything that is not an array or not an object.
    std::span<const Value> elements() const noexcept;
    std::span<const Member> members() const noexcept;

    // For texts whose keys are known only at run time. Each turns the value into an empty object (array) first when it
    // is none, inserts a null member (elements up to `index`) when there is none yet, and returns it. When the arena is
    // exhausted the result is a value that nobody reads, and the arena has failed.
    Value& At(Arena& arena, std::string_view key) noexcept;
    Value& At(Arena& arena, std::uint32_t index) noexcept;

  private:
    union Payload {
        std::int32_t number;
        std::uint32_t unsignedNumber;
        double real;
        bool flag;
        const char* text;
        Value* elements;
        Member* members;
    };

    Type type_;
    std::uint32_t size_;
    Payload payload_;
};

static_assert(sizeof(Value) == 16);

struct Member {
    const char* keyText;
    std::uint32_t keySize;
    Value value;

    std::string_view key() const noexcept { return {keyText, keySize}; }
};

// The shared null value that misses yield.
extern const Value kNull;

// The number of array levels of a value: 0 for a scalar or an object, -1 for null. A long array is sampled at every
// ((size >> sampleShift) + 1)-th element rather than walked, so a scalar between two samples goes unnoticed.
int ArrayDepth(const Value& value, unsigned sampleShift) noexcept;

} // namespace orrery::json
