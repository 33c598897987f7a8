// The engine that runs record tables in both directions.
#pragma once

#include "frame/JsonParser.h"
#include "frame/json/TextWriter.h"
#include "frame/json/Value.h"
#include "frame/record/Table.h"

#include <cstring>

namespace orrery::record {

// What a reading call carries along.
struct ReadCall {
    JsonParser& parser;
    const json::Value& root;       // the whole document, for keys outside the record's object
    bool refused = false;          // a row's function ends the call with 0
    const void* context = nullptr; // what Supplied fields are copied from, of the type that their rows name
};

// An object on the way out. It is opened by its first key, so that an object without keys leaves no trace.
struct OpenObject {
    OpenObject* parent = nullptr;
    std::string_view quotedKey; // of the object itself, inside its parent; empty when its place is open already
    bool opened = false;
};

// Length of a quoted key without the key itself: `"" : `.
inline constexpr std::size_t kQuotesAndColon = 5;

// What a writing call carries along.
struct WriteCall {
    JsonParser& parser;
    json::TextWriter& out;
    OpenObject* object = nullptr; // the object that keys go to
    bool refused = false;

    std::string_view quotedKey; // of the row that is being written

    // Opens the row's key in the current object; a value must follow. A row that writes nothing leaves it alone.
    void Key() noexcept { Quoted(quotedKey); }
    // Opens a member whose text, `"Key" : ` with quotes and colon, is given.
    void Quoted(std::string_view quoted) noexcept;
};

// Sets what starts at something other than zero: defaults and size words, nested ones included. The record must be
// clear otherwise.
void SetDefaults(const Table& table, std::byte* record) noexcept;
// Sets the size words only, nested ones included.
void SetSizeWords(const Table& table, std::byte* record) noexcept;

// Reads a record from a value: defaults first, then every row. `memberName` is the name under which the value stands,
// for records that keep it.
void ReadRecord(const Table& table, const json::Value& value, std::byte* record, ReadCall& call,
                std::string_view memberName = {}) noexcept;
// The rows alone, over what the record already holds. False when the record's guard refused it.
bool ReadFields(const Table& table, const json::Value& value, std::byte* record, ReadCall& call) noexcept;
// One row from the value at its key; null when there is none.
void ReadField(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) noexcept;

// Writes a record as one value; null when none of its rows writes anything.
void WriteRecord(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// Writes records as one object, each under its member name, in the order of the names. Of equal names the last stands.
void WriteByName(const Table& table, const std::byte* first, std::uint32_t recordCount, std::uint32_t stride,
                 WriteCall& call) noexcept;
// Writes the record's keys into the object that is open in `call`.
void WriteFields(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// False for a record that its table does not let out.
bool IsWritten(const Table& table, const std::byte* record) noexcept;
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

// An integer member of any width; 0 for a slot that does not exist.
std::int64_t LoadInteger(Cell cell, const std::byte* at) noexcept;
void StoreInteger(Cell cell, std::byte* at, std::int64_t value) noexcept;
inline std::int64_t LoadSlot(const Slot& slot, const std::byte* record) noexcept {
    return slot.exists() ? LoadInteger(slot.cell, record + slot.offset) : 0;
}
inline void StoreSlot(const Slot& slot, std::byte* record, std::int64_t value) noexcept {
    if (slot.exists()) StoreInteger(slot.cell, record + slot.offset, value);
}

// A field's text up to its terminator, or to its capacity when it has none.
std::string_view TextAt(const std::byte* at, std::size_t capacity) noexcept;

} // namespace orrery::record

// A member of a record by name, for functions beside a table: MEMBER(record, CFG_X, nCount) loads it and
// SET_MEMBER(record, CFG_X, nCount, value) stores it, whatever the record's alignment.
#define MEMBER(at, recordType, member)                                                                                 \
    ::orrery::record::Load<decltype(recordType::member)>((at) + offsetof(recordType, member))
#define SET_MEMBER(at, recordType, member, value)                                                                      \
    ::orrery::record::Store<decltype(recordType::member)>((at) + offsetof(recordType, member), (value))
