// The engine that runs record tables in both directions.
#pragma once

#include "frame/JsonParser.h"
#include "frame/json/TextWriter.h"
#include "frame/json/Value.h"
#include "frame/record/Keeper.h"
#include "frame/record/Table.h"

#include <cstring>
#include <span>

namespace orrery::record {

// What a reading call carries along.
struct ReadCall {
    JsonParser& parser;
    const json::Value& root;       // the whole document, for keys outside the record's object
    bool refused = false;          // a row's function ends the call with 0
    bool overflowed = false;       // a list that is taken whole or not at all has more elements than room
    std::uint32_t index = 0;       // of the caller's record that is being read
    const void* context = nullptr; // what Supplied fields are copied from, of the type that their rows name
    void (*noMemory)(const Field& field) noexcept = nullptr; // told of an owned block that there was no memory for
    Keeper* keeper = nullptr; // of what the call touches, when it may have to be put back

    // Before anything behind a pointer of the caller's is touched; false when it must not be.
    bool Keep(std::byte* at, std::size_t size) const noexcept { return keeper == nullptr || keeper->Keep(at, size); }
};

// An object on the way out. It is opened by its first key, so that an object without keys leaves no trace.
struct OpenObject {
    OpenObject* parent = nullptr;
    std::string_view quotedKey; // of the object itself, inside its parent; empty when its place is open already
    bool opened = false;
};

// Length of a quoted key without the key itself: `"" : `.
inline constexpr std::size_t kQuotesAndColon = 5;

// Records to be written, one behind the other.
struct RecordList {
    const std::byte* first = nullptr;
    std::uint32_t count = 0;
    std::uint32_t stride = 0;
    // Records of another layout: brings one into a record of this library's, which holds it until the next is asked
    // for.
    const std::byte* (*take)(const void* context, const std::byte* record) noexcept = nullptr;
    const void* context = nullptr;

    const std::byte* operator[](std::uint32_t index) const noexcept {
        const std::byte* const record = first + std::size_t{index} * stride;
        return take == nullptr ? record : take(context, record);
    }
};

// What a writing call carries along.
struct WriteCall {
    JsonParser& parser;
    json::TextWriter& out;
    OpenObject* object = nullptr; // the object that keys go to
    bool refused = false;

    std::string_view quotedKey; // of the row that is being written

    bool linked = true;            // false leaves out rows that are linkage
    const void* context = nullptr; // what a family hands to its own rows' functions

    // Opens the row's key in the current object; a value must follow. A row that writes nothing leaves it alone.
    void Key() noexcept { Quoted(quotedKey); }
    // Opens a member whose text, `"Key" : ` with quotes and colon, is given.
    void Quoted(std::string_view quoted) noexcept {
        // An empty key is that of a value that stands on its own: its place is open already.
        if (quoted.size() == kQuotesAndColon) return;
        OpenObjects();
        out.RawKey(quoted);
    }
    // Opens a member whose name is known only now.
    void Member(std::string_view name) noexcept {
        OpenObjects();
        out.Key(name);
    }
    // Opens the object that keys go to, and those around it.
    void OpenObjects() noexcept {
        if (!object->opened) Open(*object);
    }

  private:
    void Open(OpenObject& closed) noexcept;
};

// Sets what starts at something other than zero: defaults and size words, nested ones included. The record must be
// clear otherwise.
void SetDefaults(const Table& table, std::byte* record) noexcept;
// Sets the size words only, nested ones included.
void SetSizeWords(const Table& table, std::byte* record) noexcept;

// Sets every presence flag to 0, nested ones included.
void ClearFlags(const Table& table, std::byte* record) noexcept;

// Reads a record from a value: defaults first, then every row. `memberName` is the name under which the value stands,
// for records that keep it.
void ReadRecord(const Table& table, const json::Value& value, std::byte* record, ReadCall& call,
                std::string_view memberName = {}) noexcept;
// The rows alone, over what the record already holds. False when the record's guard refused it.
bool ReadFields(const Table& table, const json::Value& value, std::byte* record, ReadCall& call) noexcept;
// The rows whose keys start at the document alone.
void ReadRootFields(const Table& table, std::byte* record, ReadCall& call) noexcept;
// One row from the value at its key; null when there is none.
void ReadField(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) noexcept;

// Whether a value is of the type that a row reads alone.
bool IsOfType(OnlyType only, const json::Value& value) noexcept;

// Writes a record as one value; null when none of its rows writes anything.
void WriteRecord(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// Writes records as one object, each under its member name, in the order of the names. Of equal names the last stands.
void WriteByName(const Table& table, const RecordList& records, WriteCall& call) noexcept;
// Records that stand under their names, in UTF-8.
struct NamedRecord {
    std::string_view name;
    std::uint32_t index;
};
// What is written of records, in the order of their names; of equal names the last. A name becomes at most `growth`
// halves of its length. Empty when memory ran out: the arena tells.
std::span<const NamedRecord> SortedByName(const Table& table, const RecordList& records, std::size_t growth,
                                          LocalText& text) noexcept;
// Writes the record's keys into the object that is open in `call`.
void WriteFields(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// False for a record that its table does not let out.
bool IsWritten(const Table& table, const std::byte* record) noexcept;
// The same for one that stands under its member name: a code that has no name has no member either.
bool IsWrittenByName(const Table& table, const std::byte* record) noexcept;
// The text of the record's member name; empty when it has none.
std::string_view MemberNameOf(const Table& table, const std::byte* record) noexcept;

// ---- Members by place, whatever their alignment ------------------------------------------------------------------

template <class T>
T Load(const std::byte* at) noexcept {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}
template <class T>
void Store(std::byte* at, T value) noexcept {
    std::memcpy(at, &value, sizeof value);
}

// An integer member of any width; 1 for a pointer that is not null, 0 for a slot that does not exist.
inline std::int64_t LoadInteger(Cell cell, const std::byte* at) noexcept {
    switch (cell) {
    case Cell::I8:
        return Load<std::int8_t>(at);
    case Cell::U8:
        return Load<std::uint8_t>(at);
    case Cell::I16:
        return Load<std::int16_t>(at);
    case Cell::U16:
        return Load<std::uint16_t>(at);
    case Cell::I32:
        return Load<std::int32_t>(at);
    case Cell::U32:
        return Load<std::uint32_t>(at);
    case Cell::I64:
        return Load<std::int64_t>(at);
    case Cell::U64:
        return static_cast<std::int64_t>(Load<std::uint64_t>(at));
    case Cell::Pointer:
        return Load<const void*>(at) != nullptr;
    default:
        return 0;
    }
}
inline void StoreInteger(Cell cell, std::byte* at, std::int64_t value) noexcept {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        Store(at, static_cast<std::uint8_t>(value));
        break;
    case Cell::I16:
    case Cell::U16:
        Store(at, static_cast<std::uint16_t>(value));
        break;
    case Cell::I32:
    case Cell::U32:
        Store(at, static_cast<std::uint32_t>(value));
        break;
    case Cell::I64:
    case Cell::U64:
        Store(at, value);
        break;
    default:
        break;
    }
}
// A number into a member of any arithmetic type.
void StoreReal(Cell cell, std::byte* at, double number) noexcept;
void StoreNumber(Cell cell, std::byte* at, std::int64_t number) noexcept;
inline std::int64_t LoadSlot(const Slot& slot, const std::byte* record) noexcept {
    return slot.exists() ? LoadInteger(slot.cell, record + slot.offset) : 0;
}
inline void StoreSlot(const Slot& slot, std::byte* record, std::int64_t value) noexcept {
    if (slot.exists()) StoreInteger(slot.cell, record + slot.offset, value);
}

// Bytes from one element of a list to the next, at a level of the member's dimensions.
std::uint32_t StrideOf(const Field& field, int level) noexcept;

// The caller's one record behind a pointer; null when there is none.
std::byte* SingleOf(const Field& field, const std::byte* record) noexcept;

// A field's text up to its terminator, or to its capacity when it has none.
std::string_view TextAt(const std::byte* at, std::size_t capacity) noexcept;

} // namespace orrery::record

// A member of a record by name, for functions beside a table: MEMBER(record, CFG_X, nCount) loads it and
// SET_MEMBER(record, CFG_X, nCount, value) stores it, whatever the record's alignment.
#define MEMBER(at, recordType, member)                                                                                 \
    ::orrery::record::Load<decltype(recordType::member)>((at) + offsetof(recordType, member))
#define SET_MEMBER(at, recordType, member, value)                                                                      \
    ::orrery::record::Store<decltype(recordType::member)>((at) + offsetof(recordType, member), (value))
