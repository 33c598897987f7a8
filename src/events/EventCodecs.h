// Codecs that only the records of analyzer events need, as words for their rows.
#pragma once

#include "frame/record/Engine.h"
#include "frame/record/SharedCodecs.h"

#include "orrery/events_vehicle.h"

template <>
inline constexpr bool orrery::record::kBeginsAsNetTime<EVENT_TIME> = true;
template <>
inline constexpr bool orrery::record::kBeginsAsNetTime<EVENT_CALENDAR> = true;

namespace orrery::events {

using namespace record;

// [ r, g, b, a ] with the first in the highest byte.
FUNCTION_CODEC(PackedColor, kPackedColor, (std::is_same_v<T, std::uint32_t>));
// A real without its fraction, cut to the field's width.
FUNCTION_CODEC(WholeReal, kWholeReal, kIsInteger<T>);
// [ degrees, minutes, seconds ] in millionths of a degree.
FUNCTION_CODEC(Degrees, kDegrees, (std::is_same_v<T, std::uint32_t> || std::is_same_v<T, double>));
// Integers that count thousandths.
FUNCTION_CODEC(Thousandths, kThousandths, (std::is_same_v<T, float>));
FUNCTION_CODEC(SignedThousandths, kSignedThousandths, (std::is_same_v<T, float>));
// An integer that is stored as unsigned when the text's is.
FUNCTION_CODEC(AnyInteger, kAnyInteger, kIsInteger<T>);
// The first or second number of an array.
FUNCTION_CODEC(FirstNumber, kFirstNumber, kIsInteger<T>);
FUNCTION_CODEC(SecondNumber, kSecondNumber, kIsInteger<T>);
// A state that counts from 1 in the record, with 0 for none.
FUNCTION_CODEC(CountedFromOne, kCountedFromOne, kIsInteger<T>);

// A text of any length in a block of its own.
struct OwnedTextCodec {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    static constexpr bool owned = true;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, const char*>;
    const CustomCodec* codec;
};
extern const CustomCodec kOwnedText;
inline constexpr OwnedTextCodec OwnedText{&kOwnedText};

// An object in a block of its own; null when there is no memory.
extern const CustomCodec kOwnedRecord;
template <class R>
struct OwnedRecord {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    static constexpr bool owned = true;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, const R*>;
    const CustomCodec* codec = &kOwnedRecord;
    const Table* table;
    constexpr explicit OwnedRecord(const TypedTable<R>& itsTable) : table(&itsTable) {}
};

// An object whose members are the elements: the table gives each key the index of its element. Keys are compared as
// they are, so the table must be exact.
extern const CustomCodec kByKeys;
void KeysMustBeExact(); // is no constant: a call of it does not compile
struct ByKeys {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = std::rank_v<T> == 1 && kIsInteger<std::remove_extent_t<T>>;
    const CustomCodec* codec = &kByKeys;
    const NameTable* names;
    consteval explicit ByKeys(const NameTable& table) : names(&table) {
        if (table.compare != Compare::Exact || table.lastWins) KeysMustBeExact();
    }
};

// A number that one of a list becomes: the place of the text's number, counted from `First`; 0 for a number not in it.
template <std::int32_t First, std::int32_t... Numbers>
void ReadPlaceIn(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const std::int32_t number = value.asInt();
    std::int32_t place = First;
    const bool found = ((number == Numbers || (++place, false)) || ...);
    StoreInteger(field.cell, record + field.offset, found ? place : 0);
}
template <std::int32_t First, std::int32_t... Numbers>
inline constexpr CustomCodec kPlaceIn{ReadPlaceIn<First, Numbers...>};
template <std::int32_t First, std::int32_t... Numbers>
struct PlaceInCodec {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = kIsInteger<T>;
    const CustomCodec* codec = &kPlaceIn<First, Numbers...>;
};
template <std::int32_t First, std::int32_t... Numbers>
inline constexpr PlaceInCodec<First, Numbers...> PlaceIn{};

// A number that is stored only when it lies between two; any other leaves the field's default.
template <std::int32_t Least, std::int32_t Most>
void ReadWithin(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const std::int32_t number = value.asInt();
    if (number >= Least && number <= Most) StoreInteger(field.cell, record + field.offset, number);
}
template <std::int32_t Least, std::int32_t Most>
inline constexpr CustomCodec kWithin{ReadWithin<Least, Most>};
template <std::int32_t Least, std::int32_t Most>
struct WithinCodec {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = kIsInteger<T>;
    const CustomCodec* codec = &kWithin<Least, Most>;
};
template <std::int32_t Least, std::int32_t Most>
inline constexpr WithinCodec<Least, Most> Within{};

// A text in a block of `Capacity` bytes, also when there is no text (with Always). The row's Owned says what the log
// hears when there is no memory for it.
void ReadTextBlock(const Field& field, const json::Value& value, std::byte* record, std::uint32_t capacity,
                   ReadCall& call) noexcept;
template <std::uint32_t Capacity>
inline constexpr CustomCodec kTextBlock{[](const Field& field, const json::Value& value, std::byte* record,
                                           ReadCall& call) { ReadTextBlock(field, value, record, Capacity, call); }};
template <std::uint32_t Capacity>
struct TextBlockCodec {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, const char*>;
    const CustomCodec* codec = &kTextBlock<Capacity>;
};
template <std::uint32_t Capacity>
inline constexpr TextBlockCodec<Capacity> TextBlock{};

// ---- The same as functions, for what a row can't say ----

// The block of a text; null when there is no memory.
const char* OwnText(const json::Value& value, ReadCall& call) noexcept;
const char* OwnText(std::string_view text, Arena& arena) noexcept;
// Without the fraction; the nearest 64-bit integer when there is none, 0 for no number.
std::int64_t WholeOf(double number) noexcept;
// Unsigned when the text's number is.
inline std::uint32_t AnyIntegerOf(const json::Value& value) noexcept {
    return value.isUInt() ? value.asUInt() : static_cast<std::uint32_t>(value.asInt());
}

} // namespace orrery::events
