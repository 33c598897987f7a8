// What a record table is when the library runs: its rows, and the nodes that its keys became. Table.h makes it.
#pragma once

#include "frame/record/Field.h"

#include <cstdint>
#include <string_view>

namespace orrery {
class Arena;
struct PackedItems;
} // namespace orrery

namespace orrery::record {

// Rows whose words say nothing of reading go a short way: what it needs of them stands in the node, and the row itself
// is not looked at.
enum class Plainly : std::uint8_t {
    No,
    Switch,   // a bool in a 32-bit member
    Number,   // an int in a 32-bit member
    Integer,  // a bool, an int or an unsigned in a member of any width
    Fraction, // a real in a member of either width
    Local,    // a text, converted
    Raw,      // a text as it stands
    Named,    // through a name table
    Inner,    // a record through another table
    Element,  // one value of another codec
    Function, // the row's own function
};
// The same of writing. A presence flag, or a member that the key is written by, stands in the node as well.
enum class Way : std::uint8_t {
    Row, // what the row says, whatever its words
    // One value:
    Switch,
    SwitchAtOne, // true at exactly 1
    Number,
    Integer,
    Fraction,
    Local,
    Raw,
    Named,
    // Others:
    NumberUnless, // a Number that is left out at one value, which the row tells
    Mask,         // a list of numbers from bits
    Numbers,      // an array of 32-bit numbers, each a row of a record
    Tuple,        // an array of values, each a row of a record
    Object,       // a record whose writing is writing its keys
    Inner,        // a record that its table may hold back, or that something stands for
    Element,      // one value of another codec
    Function,     // the row's own function
    List,         // elements, whatever their words
    Nothing,      // a row that is only read
};
// Longer keys stand in no node that is written the short way, so that one look at the room is enough for any.
inline constexpr std::size_t kLongestPlainKey = 100;

struct Asides;

// One key of the object that a record stands in: a field, or an object inside the object with keys of its own. The
// nodes of an object are in key order, so that reading is one merge of two sorted lists and writing comes out sorted.
// A node holds no pointers, so that it needs no start-up of the library and no memory of a process's own.
struct Node {
    std::uint64_t prefix = 0;   // json::KeyPrefix of the key
    std::uint16_t quotedAt = 0; // the text `"Key" : ` in the table's key texts
    std::uint16_t keySize = 0;
    std::uint16_t row = 0;
    std::uint16_t firstChild = 0;
    std::uint16_t childCount = 0; // above 0: an object inside the object
    std::uint16_t childLastAbsent = 0;
    Plainly readPlainly = Plainly::No;
    Way way = Way::Row;
    // Of the row, for the short ways:
    std::uint16_t reference = 0; // of its name table or table among the table's references
    std::uint32_t offset = 0;
    std::uint32_t elementSize = 0; // of a mask the size of all its words
    Slot flag;
    std::uint32_t gate = Slot::kNone; // what must be set for the key to be written
    Cell gateCell = Cell::I32;
    Cell cell = Cell::I32;
    Kind kind = Kind::None;
    bool needsAbsent : 1 = false; // looked at also when the key is absent
    // For reading from the text:
    bool listed : 1 = false;  // an array that says nothing but its elements and their count
    bool week : 1 = false;    // days of sections, a list or one value, of which the words say no more
    bool mask : 1 = false;    // bits, of which the words say no more
    bool shared : 1 = false;  // the node behind it, or in front of it, has the same key
    bool ordered : 1 = false; // what it stores depends on which of it and another node comes first
    // For writing:
    bool staysNull : 1 = false; // an object inside the object, or a mask, that is written as null when nothing is in it
    bool unlessBare : 1 = false; // a record, or a mask, that is left out when nothing is in it

    constexpr bool isGated() const { return gate != Slot::kNone; }
};
static_assert(sizeof(Node) == 48);

// Presence flags that lie side by side; or, with `row`, those of the record in that row, which has its own.
struct FlagRun {
    static constexpr std::uint16_t kNone = 0xFFFF;
    std::uint32_t offset = 0;
    std::uint32_t size = 0;
    std::uint16_t row = kNone;
};

struct NodeRange {
    std::uint16_t first = 0;
    std::uint16_t count = 0;
    std::uint16_t lastAbsent = 0; // behind the last node that is looked at also when its key is absent
};

// Bytes that a record copies from what the call carries along: a field, or several that lie side by side in both.
struct Copy {
    std::uint32_t to = 0;
    std::uint32_t from = 0;
    std::uint32_t size = 0;
};

// Bytes behind a table's last key text that may be loaded.
inline constexpr std::size_t kKeyTextSlack = 32;
// As many values of a tuple, and as many keys of an object, are read from the text at the most.
inline constexpr std::size_t kMostInText = 256;
inline constexpr std::size_t kMostInTuple = 16;

enum class Shape : std::uint8_t {
    Object,
    Tuple,      // an array of exactly as many elements as the record has rows with the key ""
    LooseTuple, // the same without the test of its length: missing elements read as null
    LongTuple,  // at least as many elements; what follows them is passed over
};

struct Table {
    const char* record = ""; // the C name of the record
    std::uint32_t size = 0;
    const Field* rows = nullptr;
    std::uint16_t rowCount = 0;

    const Node* nodes = nullptr;
    const char* keyTexts = nullptr;          // each with `, ` in front of it, and kKeyTextSlack bytes behind the last
    const void* const* references = nullptr; // name tables and tables that nodes refer to
    const FlagRun* flagRuns = nullptr;
    std::uint16_t flagRunCount = 0;
    NodeRange members;  // keys of the record's object
    NodeRange fromRoot; // keys that start at the document
    NodeRange self;     // fields that are the value itself; a tuple's elements

    const Copy* supplied = nullptr; // what the call carries along
    std::uint16_t suppliedCount = 0;
    std::uint16_t startedCount = 0;
    const std::uint16_t* started = nullptr; // rows that start at something other than zero, or hold such rows

    const Field* amongKeys = nullptr;  // the list whose members stand among the record's keys, when it has one
    const Field* memberName = nullptr; // the row that keeps the name under which the record stands

    Shape shape = Shape::Object;
    bool hasDefaults = false;    // some field, nested ones included, starts at something other than zero
    bool hasSizeWords = false;   // some field, nested ones included, is a size word
    bool hasPointers = false;    // some field, nested ones included, is a pointer
    bool startsWhenRead = false; // defaults and size words are set by reading it: what is not read stays zero
    bool guarded = false;        // neither read nor written unless the size word holds exactly the record's size
    bool takesFirst = false;     // of an array the first element is read
    bool clearsFlags = false;    // presence flags, nested ones included, start at 0 in a record that keeps its values
    bool inText = false;         // its object, or its tuple, is read member by member from the text
    bool anyOrder = false;       // keys may come in any order when it is read so
    bool partsAskRoot = false;   // some record inside it has keys that start at the document
    bool isNumbers = false;      // its values, if it is a tuple, are 32-bit numbers
    bool (*writes)(const std::byte* record) = nullptr;
    void (*afterRead)(const json::Value& value, std::byte* record, ReadCall& call) = nullptr;

    Asides* (*asides)(std::byte* record, Arena& arena) = nullptr; // what else of its object is kept for afterRead

    const PackedItems* items = nullptr; // what stands behind a descriptor's pointer to bytes; for tools and tests

    std::string_view keyOf(const Node& node) const { return {keyTexts + node.quotedAt + 1, node.keySize}; }
    std::string_view quotedKeyOf(const Node& node) const {
        return {keyTexts + node.quotedAt, node.keySize + std::size_t{5}}; // the quotes and the colon
    }
    const NameTable& namesOf(const Node& node) const {
        return *static_cast<const NameTable*>(references[node.reference]);
    }
    const Table& tableOf(const Node& node) const { return *static_cast<const Table*>(references[node.reference]); }
    // Whether it is let out, whatever it holds.
    constexpr bool isAlwaysWritten() const { return !guarded && writes == nullptr; }
    // Whether writing it is writing its keys: nothing holds it back, and nothing stands for it or among them.
    constexpr bool isPlainObject() const {
        return shape == Shape::Object && self.count == 0 && amongKeys == nullptr && isAlwaysWritten();
    }
    const Field* begin() const { return rows; }
    const Field* end() const { return rows + rowCount; }
};

template <class R>
struct TypedTable : Table {
    // The record stands as an array whose elements are the rows with the key "", in row order.
    constexpr TypedTable As(Shape what) const { return With(*this, &TypedTable::shape, what); }
    // The record's size word is tested: with another value the record is neither read nor written.
    constexpr TypedTable Guarded() const { return With(*this, &TypedTable::guarded, true); }
    // An object, or an array whose first element it is: some devices wrap a single record.
    constexpr TypedTable TakesFirst() const { return With(*this, &TypedTable::takesFirst, true); }
    // The record's presence flags tell of the text just read alone, though absent keys keep the caller's values.
    constexpr TypedTable ClearsFlags() const { return With(*this, &TypedTable::clearsFlags, true); }
    // As a part of another record: its defaults and size words are set when it is read, and not before.
    constexpr TypedTable StartsWhenRead() const { return With(*this, &TypedTable::startsWhenRead, true); }
    // Only records that pass are written.
    constexpr TypedTable Writes(bool (*test)(const std::byte* record)) const {
        return With(*this, &TypedTable::writes, test);
    }
    // What the record's pointer to bytes leads to.
    constexpr TypedTable Describes(const PackedItems& what) const { return With(*this, &TypedTable::items, &what); }
    // Runs once the rows have been read, for what depends on several of them.
    constexpr TypedTable AfterRead(void (*function)(const json::Value&, std::byte*, ReadCall&)) const {
        return With(With(*this, &TypedTable::afterRead, function), &TypedTable::inText, false);
    }
    // Behind AfterRead: what that function asks of the object is kept while the text is read (ReadText.h), so that no
    // document is made of it. Rows' own functions of such a table touch their own members, flags and counts alone.
    constexpr TypedTable KeepsAside(Asides* (*make)(std::byte* record, Arena& arena)) const {
        return With(*this, &TypedTable::asides, make);
    }
};

} // namespace orrery::record
