// One row of a record table: a field of a record, its place, its JSON key and the rules of its way in and out.
//
// Rows are constants made from the record's own members (Rows.h). The same row reads, writes, prints, fills and checks.
#pragma once

#include "frame/With.h"
#include "frame/json/Value.h"
#include "frame/record/Names.h"

#include "orrery/types.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace orrery::record {

struct a_comma_is_missing_between_two_rows;
struct Field;
struct Table;
struct ReadCall;
struct WriteCall;

// The C type of a field's innermost element.
enum class Cell : std::uint8_t { I8, U8, I16, U16, I32, U32, I64, U64, F32, F64, Char, Pointer, Record };

// How a value becomes a field and back.
enum class Kind : std::uint8_t {
    None,            // not in the text: counts, presence flags, reserved words
    Size,            // the record's size word: set before reading, tested by the table
    Presence,        // read only: 1 when the key is present
    MemberName,      // the name under which the record itself stands in its parent object
    MemberCode,      // the same, through a name table
    Bool,            // asBool as 0 or 1; non-zero writes true
    Int,             // asInt, cut to the field's width
    UInt,            // asUInt, cut to the field's width
    Real,            // asDouble
    Text,            // string, converted between UTF-8 and the local encoding
    RawText,         // string, bytes as they stand
    FullText,        // string, cut at the field's capacity and only then converted: it may leave no terminator
    Names,           // string through a name table
    Record,          // object (or tuple) through another table
    TimeSection,     // "1 08:00:00-17:30:00", two digits a part at the most on reading
    Schedule,        // the whole matrix of sections at once, ended by its first bad cell
    HolidaySchedule, // CFG_TIME_SCHEDULE
    SectionList,     // a flat array of sections, bad ones passed over
    NetTime,         // "2026-11-20 09:30:00"
    NetTimeEx,       // "2026-11-20 09:30:00.250"
    ClockTime,       // "09:30:00"
    Date,            // "2026-11-20"
    UtcTime,         // seconds since 1970; read only. Milliseconds of the field are left alone
    SplitMode,       // "Split9"
    BitMask,         // list of numbers <-> bits of an array of words; numbers out of range are ignored
    BitMaskLoose,    // as BitMask, but -1 to -31 fall into word 0 by their remainder, as old devices count on
    Switches,        // list of numbers <-> elements set to 1
    Supplied,        // not in the text: copied from what the call carries along
    Custom,          // functions of the row's own
};
// Kinds whose rows are only read, or stand in the text otherwise than under their key.
constexpr bool WritesNoKey(Kind kind) {
    switch (kind) {
    case Kind::Size:
    case Kind::Presence:
    case Kind::MemberName:
    case Kind::MemberCode:
    case Kind::Date:
    case Kind::UtcTime:
        return true;
    default:
        return false;
    }
}

// Only values of exactly this JSON type are read.
enum class OnlyType : std::uint8_t {
    Any,
    String,
    Bool,
    Integer,  // a signed number: one past those is none
    Unsigned, // a number past the signed ones
    Integral, // an integer or a bool
    Array,
};

// What a null element of a list does on reading.
enum class Nulls : std::uint8_t {
    Count,     // keeps its slot and counts
    LeaveHole, // keeps its slot, does not count
    CloseUp,   // is passed over: the next element takes its slot
    Stop,      // ends the list
    Named,     // of a keyed list, whose nulls are passed over otherwise: its name makes it an element
};

// What an element that its table does not let out does on writing.
enum class Skipped : std::uint8_t {
    StaysNull, // a null in its place
    Hole,      // a null in its place, but none behind the last element written
    ClosesUp,  // no place at all
};

// What a list of count 0 writes.
enum class Empty : std::uint8_t { NoKey, Array, Null };

// A neighbouring member that a row depends on: a count, a capacity, a presence flag.
struct Slot {
    static constexpr std::uint32_t kNone = ~std::uint32_t{0};
    std::uint32_t offset = kNone;
    Cell cell = Cell::I32;

    constexpr bool exists() const { return offset != kNone; }
    constexpr bool operator==(const Slot&) const = default;
};

// Functions of a row that no word can say. `record` is the record that holds the field, aligned for nothing.
struct CustomCodec {
    // Runs when the key is present (with Always: in every case, with a null value when it is not).
    void (*read)(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) = nullptr;
    // Writes `call.Key(...)` and a value, or nothing.
    void (*write)(const Field& field, const std::byte* record, WriteCall& call) = nullptr;
    // A JSON value as devices send it that comes back the same when it is written; null when nothing comes back.
    // Whoever fills records from tables alone, tests above all, has nothing else to go by.
    const char* sample = nullptr;
    // What `write` writes, for values that are short: put at `at`, where it finds `room` bytes and its key stands in
    // front of it. Null, and nothing of it counts, for what is left to `write`.
    char* (*put)(const Field& field, const std::byte* record, char* at) = nullptr;
    std::size_t room = 0;
    // What `read` reads, from the text itself: of the values that nearly all devices send, at `p` and in front of
    // `end`. The byte behind the value; null for what is left to `read`, which stores over what was stored.
    const char* (*readText)(const Field& field, const char* p, const char* end, std::byte* record) = nullptr;
};

// The words of a row, by what they speak of: a direction takes the short way past a row that says nothing of it.
struct ReadingWords {
    bool always = false; // read also when absent
    OnlyType only = OnlyType::Any;
    bool anyShape = false;  // a list is read also when the value is no array
    bool exactly = false;   // a list is read only when it has as many elements as the member
    bool zeroed = false;    // elements of a caller's array are cleared before they are read
    bool allOrNone = false; // more elements than there is room for end the call
    bool counted = false;   // the count is told also when there is no array
    Nulls nulls = Nulls::Count;
    Nulls refused = Nulls::Count;  // what an element does that its table does not take
    Slot readCondition;            // the key is read only when this member is set
    std::uint16_t firstBytes = 0;  // of a text, before it is converted; 0: all of it
    std::uint8_t atLeast = 0;      // an array is read only when it has so many elements
    bool owned = false;            // the pointer's block is made for the document and lives as long as the call's arena
    bool toBytes = false;          // the pointer leads to bytes: records of types that other members tell
    const char* failure = nullptr; // what the log says when there is no memory for an owned block

    constexpr bool operator==(const ReadingWords&) const = default;
};

struct WritingWords {
    static constexpr std::int64_t kNoLimit = INT64_MAX;

    bool trueAtOne = false; // a bool is true at exactly 1
    bool hasUnless = false;
    std::int32_t unless = 0; // the key is left out at this value
    bool notNegative = false;
    std::int64_t atMost = kNoLimit; // a larger number is written as this one
    Slot condition;                 // the key is written only when this member is set
    bool (*when)(const std::byte* record) = nullptr;
    bool untilEmpty = false; // a list of texts ends at the first empty one
    bool linkage = false;    // left out by calls that want no linkage
    Empty empty = Empty::NoKey;
    Skipped skipped = Skipped::StaysNull;
    bool unlessBare = false;   // an object without keys is left out
    bool keepsObject = false;  // the object inside the record's own that holds the key is null when it has no keys
    bool fullCapacity = false; // a caller's array is written to the end of its room, whatever its count
    std::uint16_t convertedRoom = 0; // of a name in UTF-8, its terminator included; 0: it grows by half at most

    constexpr bool operator==(const WritingWords&) const = default;
};

// Of lists, in both directions.
struct ListWords {
    Slot count; // elements in use
    bool countUncapped = false;
    Slot capacity;
    bool lent = false;      // the capacity is of an array inside the record
    bool single = false;    // the pointer leads to one record of the caller's
    bool keyed = false;     // a list stands as an object whose members are the elements
    bool amongKeys = false; // a keyed list whose members stand in the record's own object

    constexpr bool operator==(const ListWords&) const = default;
};

struct Field : ReadingWords, WritingWords, ListWords {
    static constexpr int kMaxRank = 3;

    const char* name = "";
    // Member names from the table's object down, separated by '/'; null: not in the text; "": the value itself.
    const char* key = nullptr;
    std::uint32_t offset = 0;
    std::uint32_t size = 0;        // of the whole member; 0 for a row that stores nothing
    std::uint32_t elementSize = 0; // of one element; a text's is its capacity
    std::uint32_t dims[kMaxRank] = {};
    std::uint8_t alignment = 1; // of the member
    std::uint8_t rank = 0;      // array levels of the member, a text's own characters not among them
    bool wholeMember = false;   // the codec takes all of them at once
    Cell cell = Cell::I32;
    Kind kind = Kind::None;
    Kind writtenAs = Kind::None;
    const Table* table = nullptr; // of a nested record, whatever its codec
    const NameTable* names = nullptr;
    const CustomCodec* custom = nullptr;
    std::uint32_t suppliedFrom = 0; // place in what the call carries along

    bool readable = true;
    bool writable = true;
    bool fromRoot = false;   // the key starts at the document, not at the record's object
    bool alias = false;      // another key of a field that has a row already
    bool hasDefault = false; // set before anything is read
    std::int32_t defaultValue = 0;
    Slot flag; // set when the key is present; the key is written only when it is set

    constexpr bool operator==(const Field&) const = default;

    // What a row is when the one before it has no comma: nothing to make a row of.
    a_comma_is_missing_between_two_rows operator()(const Field&) const;

    // ---- Words of the vocabulary ---------------------------------------------------------------------------------

    // Read also when absent: null then reads as 0, false or empty. A flag is raised in every case.
    constexpr Field Always() const { return With(*this, &Field::always, true); }
    // What the field holds when the key is absent (0 without this word).
    constexpr Field Absent(std::int32_t value) const {
        return With(With(*this, &Field::hasDefault, true), &Field::defaultValue, value);
    }
    // A presence flag: reading sets it to whether the key was there, writing leaves the key out unless it is set.
    constexpr Field SetsAndNeeds(Slot slot) const { return With(*this, &Field::flag, slot); }
    constexpr Field Count(Slot slot) const { return With(*this, &Field::count, slot); }
    // The count is stored as the text has it; slots end at the member's end all the same.
    constexpr Field CountUncapped(Slot slot) const {
        return With(With(*this, &Field::count, slot), &Field::countUncapped, true);
    }
    // Room of the caller's array behind a pointer; of an array inside the record, how much of it the caller lends.
    constexpr Field Capacity(Slot slot) const { return With(*this, &Field::capacity, slot); }
    // How many elements of an array inside the record the caller asks for.
    constexpr Field Lent(Slot slot) const { return With(With(*this, &Field::capacity, slot), &Field::lent, true); }
    // The caller's pointer leads to one record, not to a list: null passes it over in both directions. A count is 1.
    constexpr Field Single() const { return With(*this, &Field::single, true); }
    // A list with more elements than there is room for ends the call before any is read.
    constexpr Field AllOrNone() const { return With(*this, &Field::allOrNone, true); }
    // The count tells how many the room would take also when the pointer is null.
    constexpr Field CountsWithoutArray() const { return With(*this, &Field::counted, true); }
    constexpr Field Zeroed() const { return With(*this, &Field::zeroed, true); }
    // A list is read also when the value is no array: as empty, or as one empty element for each member of an object.
    constexpr Field AnyShape() const { return With(*this, &Field::anyShape, true); }
    constexpr Field Exactly() const { return With(*this, &Field::exactly, true); }
    // An array is read only when it has so many elements; those behind are passed over.
    constexpr Field AtLeast(std::uint8_t elements) const { return With(*this, &Field::atLeast, elements); }
    // The pointer gets a block for as many records as the document has; null, with a count of 0, when it has none or
    // there is no memory, which `failureLine` then tells the log.
    constexpr Field Owned(const char* failureLine = nullptr) const {
        return With(With(*this, &Field::owned, true), &Field::failure, failureLine);
    }
    constexpr Field Keyed() const { return With(*this, &Field::keyed, true); }
    // A list with the key "": its elements are those members of the record's own object that are objects with members
    // of their own, whatever their names. An element's defaults are set when it is read, so that slots that no member
    // took stay clear. On writing the names go in order among the record's keys; a name that is a key hides the key.
    constexpr Field AmongKeys() const { return With(Keyed(), &Field::amongKeys, true); }
    constexpr Field NullElement(Nulls rule) const { return With(*this, &Field::nulls, rule); }
    // An element that its table does not take is treated as this rule treats a null.
    constexpr Field RefusedElement(Nulls rule) const { return With(*this, &Field::refused, rule); }
    // Read only when the member is set, by a key that stands before this one in key order; a pointer is set when it is
    // not null.
    constexpr Field ReadIf(Slot slot) const { return With(*this, &Field::readCondition, slot); }
    // Only so many bytes of a text, or of a time's text, are read.
    constexpr Field FirstBytes(std::uint16_t bytes) const { return With(*this, &Field::firstBytes, bytes); }
    constexpr Field Only(OnlyType type) const { return With(*this, &Field::only, type); }
    constexpr Field FromRoot() const { return With(With(*this, &Field::fromRoot, true), &Field::writable, false); }
    constexpr Field ReadOnly() const { return Writable(false); }
    constexpr Field Writable(bool does) const { return With(*this, &Field::writable, does); }
    constexpr Field WriteOnly() const { return With(*this, &Field::readable, false); }
    constexpr Field TrueAtOne() const { return With(*this, &Field::trueAtOne, true); }
    // The key is left out at this value.
    constexpr Field WriteUnless(std::int32_t value) const {
        return With(With(*this, &Field::hasUnless, true), &Field::unless, value);
    }
    constexpr Field WriteUnlessNegative() const { return With(*this, &Field::notNegative, true); }
    // A larger number is written as this one.
    constexpr Field WriteAtMost(std::int32_t value) const { return With(*this, &Field::atMost, value); }
    // Written only when the member is set (reading neither looks at it nor sets it).
    constexpr Field WriteIf(Slot slot) const { return With(*this, &Field::condition, slot); }
    // Written only when the function says so.
    constexpr Field WriteIf(bool (*test)(const std::byte* record)) const { return With(*this, &Field::when, test); }
    // A list of texts without a count of its own: the first empty one ends it on writing.
    constexpr Field UntilEmpty() const { return With(*this, &Field::untilEmpty, true); }
    // Left out by a call that writes without linkage.
    constexpr Field WriteIfLinked() const { return With(*this, &Field::linkage, true); }
    constexpr Field WriteEmpty(Empty rule) const { return With(*this, &Field::empty, rule); }
    constexpr Field WriteSkipped(Skipped rule) const { return With(*this, &Field::skipped, rule); }
    // A nested record of which nothing is written leaves no key.
    constexpr Field WriteUnlessBare() const { return With(*this, &Field::unlessBare, true); }
    // The object that holds the key, "A" of "A/B", is written also when nothing is in it, as null.
    constexpr Field KeepsObject() const { return With(*this, &Field::keepsObject, true); }
    // As many elements are written as the caller's array has room for; the count is only what reading found.
    constexpr Field WritesCapacity() const { return With(*this, &Field::fullCapacity, true); }
    // A name in UTF-8 has so many bytes of room, its terminator included, however short it is in the local encoding.
    constexpr Field ConvertedRoom(std::uint16_t bytes) const { return With(*this, &Field::convertedRoom, bytes); }
    // The codes that a row's own functions deal in, so that tools can show their names.
    constexpr Field Coded(const NameTable& codes) const { return With(*this, &Field::names, &codes); }
    // A second key of a field that has a row of its own.
    constexpr Field Alias() const { return With(*this, &Field::alias, true); }
    // What a pointer to bytes points at, for those who lay a record out; functions of the family read and write it.
    constexpr Field PointsTo(const Table& first) const { return With(*this, &Field::table, &first); }
    template <class Codec>
    constexpr Field WrittenAs(Codec) const {
        return With(*this, &Field::writtenAs, Codec::kind);
    }
};

} // namespace orrery::record
