// A record table: all fields of one record, in record order, made when the library is compiled.
//
//     TABLE(kAlarmInput, CFG_ALARM_INPUT_INFO,
//           {
//               FIELD(nChannel, "params/channel", Int).FromRoot(),
//               FIELD(bEnable, "Enable", Bool),
//               FIELD(szName, "Name", Text),
//               FIELD(nSlot, "Slot", Int).Absent(-1).WriteUnless(-1),
//           });
//
// The rows must tile the record from its first byte to its last: a forgotten field does not compile.
#pragma once

#include "frame/record/Check.h"
#include "frame/record/Field.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace orrery {
struct PackedItems;
}

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
};

// Rows over a table look into it. One that is only declared, as those of other families are, is refused right here: as
// a PART it stands whole in a header.
template <class R>
consteval Nested<R> Record(const TypedTable<R>& table) {
    return {table.size == sizeof(R) ? &table : nullptr};
}

namespace build {

constexpr int Parts(std::string_view key) {
    int parts = 1;
    for (char c : key)
        parts += c == '/';
    return parts;
}

constexpr std::string_view Part(std::string_view key, int index) {
    while (index-- > 0)
        key.remove_prefix(key.find('/') + 1);
    return key.substr(0, key.find('/'));
}

// Ascending by the bytes of each part; an object's own key before what is inside it.
constexpr bool Before(std::string_view left, std::string_view right) {
    const int leftParts = Parts(left);
    const int rightParts = Parts(right);
    for (int i = 0; i < leftParts && i < rightParts; ++i) {
        const auto a = Part(left, i);
        const auto b = Part(right, i);
        if (a != b) return a < b; // char_traits<char> compares as unsigned bytes
    }
    return leftParts < rightParts;
}

// How one value of a row without words is read.
constexpr Plainly PlainValue(const Field& row) {
    if (row.rank > 0 || row.cell == Cell::Pointer || row.wholeMember) return Plainly::No;
    const bool isReal = row.cell == Cell::F32 || row.cell == Cell::F64;
    switch (row.kind) {
    case Kind::Bool:
        return row.cell == Cell::I32 ? Plainly::Switch : isReal ? Plainly::Element : Plainly::Integer;
    case Kind::Int:
        return row.cell == Cell::I32 ? Plainly::Number : isReal ? Plainly::Element : Plainly::Integer;
    case Kind::UInt:
        return isReal ? Plainly::Element : Plainly::Integer;
    case Kind::Real:
        return Plainly::Fraction;
    case Kind::Text:
        return Plainly::Local;
    case Kind::RawText:
        return Plainly::Raw;
    case Kind::Names:
        return Plainly::Named;
    case Kind::Record:
        return Plainly::Inner;
    default:
        return Plainly::Element;
    }
}
// The name table or the table that a row's node refers to.
constexpr const void* ReferenceOf(const Field& row) {
    if (row.kind == Kind::Names) return row.names;
    return row.kind == Kind::Record ? static_cast<const void*>(row.table) : nullptr;
}
// A row is read the short way when its words say nothing of reading.
constexpr Plainly ReadPlainly(const Field& row) {
    ReadingWords words = row;
    words.always = false; // the node knows
    if (words != ReadingWords{} || static_cast<const ListWords&>(row) != ListWords{} || !row.readable)
        return Plainly::No;
    return row.kind == Kind::Custom ? Plainly::Function : PlainValue(row);
}
// How a record inside another is written.
constexpr Way WayOfRecord(const Table& table) {
    if (table.isPlainObject()) return Way::Object;
    if (table.shape == Shape::Object || !table.isAlwaysWritten()) return Way::Inner;
    return table.isNumbers ? Way::Numbers : Way::Tuple;
}
// How a row is written that says nothing of writing but its codec, and that is no list.
constexpr Way WayOfCodec(const Field& row) {
    const bool isReal = row.cell == Cell::F32 || row.cell == Cell::F64;
    const bool isOwn = row.kind == row.writtenAs; // else the node has another codec, and the row no other table
    if (row.wholeMember) {
        switch (row.writtenAs) {
        case Kind::BitMask:
        case Kind::BitMaskLoose:
            return Way::Mask;
        case Kind::Schedule:
        case Kind::SectionList:
            return Way::Element;
        default:
            return Way::Row;
        }
    }
    if (WritesNoKey(row.writtenAs)) return Way::Nothing;
    switch (row.writtenAs) {
    case Kind::Bool:
        if (row.cell == Cell::I32) return row.trueAtOne ? Way::SwitchAtOne : Way::Switch;
        return isReal ? Way::Element : isOwn && !row.trueAtOne ? Way::Integer : Way::Row;
    case Kind::Int:
        if (row.cell == Cell::I32) return Way::Number;
        return isReal ? Way::Element : isOwn ? Way::Integer : Way::Row;
    case Kind::UInt:
        return isReal ? Way::Element : isOwn ? Way::Integer : Way::Row;
    case Kind::Real:
        return isReal ? Way::Fraction : Way::Row;
    case Kind::Text:
        return Way::Local;
    case Kind::RawText:
        return Way::Raw;
    case Kind::Names:
        return isOwn ? Way::Named : Way::Row;
    case Kind::Record:
        return isOwn ? WayOfRecord(*row.table) : Way::Row;
    case Kind::FullText:
    case Kind::TimeSection:
    case Kind::HolidaySchedule:
    case Kind::NetTime:
    case Kind::NetTimeEx:
    case Kind::ClockTime:
        return Way::Element;
    default:
        return Way::Row;
    }
}
constexpr bool IsMask(const Field& row) {
    return row.wholeMember && (row.writtenAs == Kind::BitMask || row.writtenAs == Kind::BitMaskLoose);
}
// What the key of a row is written by, when it is one member.
constexpr Slot GateOf(const Field& row) {
    return row.flag.exists() ? row.flag : row.condition;
}
constexpr Way WayOf(const Field& row) {
    if (!row.writable) return Way::Nothing;
    if (row.amongKeys || row.linkage || row.when != nullptr || (row.flag.exists() && row.condition.exists()))
        return Way::Row;
    if (row.kind == Kind::Custom) return Way::Function;
    const bool isList = (row.rank > 0 || row.cell == Cell::Pointer) && !row.wholeMember;
    if (isList) return row.single ? Way::Row : Way::List;
    WritingWords words = row;
    // The node knows of these.
    words.condition = {};
    words.keepsObject = false;
    words.unlessBare = false;
    if (row.writtenAs == Kind::Bool) words.trueAtOne = false;
    if (IsMask(row)) words.empty = Empty::NoKey;
    const bool isLeftOut = words.hasUnless;
    words.hasUnless = false;
    words.unless = 0;
    if (words != WritingWords{} || static_cast<const ListWords&>(row) != ListWords{}) return Way::Row;
    if (row.kind == Kind::Record && row.writtenAs != Kind::Record) return Way::Row; // its table may hold it back
    const Way way = WayOfCodec(row);
    return !isLeftOut ? way : way == Way::Number ? Way::NumberUnless : Way::Row;
}

// An array of which the words say nothing but how its count is told.
constexpr bool IsPlainList(const Field& row) {
    ReadingWords words = row;
    words.always = false;
    ListWords list = row;
    list.count = {};
    list.countUncapped = false;
    if (words != ReadingWords{} || list != ListWords{} || !row.readable) return false;
    if (row.rank == 0 || row.cell == Cell::Pointer || row.wholeMember) return false;
    return row.kind != Kind::None && row.kind != Kind::Custom && row.kind != Kind::Supplied;
}

// Whether keys may come in any order without another result, but for those of rows that InOrder tells of.
constexpr bool TakesAnyOrder(const Field& row) {
    if (row.key == nullptr || !row.readable) return true;
    return row.kind != Kind::Custom && !row.readCondition.exists() && !row.capacity.exists();
}
// Whether two rows with different keys store at one place: the later one's value stays.
constexpr bool InOrder(const Field& row, const Field& other) {
    if (row.key == nullptr || other.key == nullptr || row.size == 0 || other.size == 0) return false;
    if (row.offset == other.offset) return true;
    const auto holds = [](const Field& field, const Slot& slot) {
        return slot.exists() && field.offset <= slot.offset && slot.offset < field.offset + field.size;
    };
    return (row.count.exists() && row.count == other.count) || holds(row, other.count) || holds(other, row.count);
}

constexpr std::uint32_t SizeOf(Cell cell) {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        return 1;
    case Cell::I16:
    case Cell::U16:
        return 2;
    case Cell::I64:
    case Cell::U64:
        return 8;
    default:
        return 4;
    }
}

struct Limits {
    std::size_t nodes = 1;
    std::size_t text = 1 + kKeyTextSlack;
    std::size_t supplied = 1;
    std::size_t started = 1;
    std::size_t references = 1;
    std::size_t flags = 1;
};

// A row whose record has presence flags of its own.
constexpr bool HasInnerFlags(const Field& row) {
    return row.kind == Kind::Record && row.cell != Cell::Pointer && row.table != nullptr && row.table->flagRunCount > 0;
}

// A row that Prepare has to look at.
constexpr bool IsStarted(const Field& row) {
    const bool isNested = row.cell == Cell::Record && row.table != nullptr;
    return row.kind == Kind::Size || row.hasDefault
           || (isNested && (row.table->hasDefaults || row.table->hasSizeWords));
}

template <class Rows>
consteval Limits LimitsOf() {
    Limits limits;
    for (const Field& row : Rows::rows) {
        limits.supplied += row.kind == Kind::Supplied;
        limits.started += IsStarted(row);
        limits.references += ReferenceOf(row) != nullptr;
        limits.flags += row.flag.exists() + HasInnerFlags(row);
        if (row.key == nullptr) continue;
        const auto parts = static_cast<std::size_t>(Parts(row.key));
        limits.nodes += parts;
        limits.text += std::string_view(row.key).size() + 8 * parts;
    }
    return limits;
}

// What nodes refer to, each once.
template <std::size_t Most>
struct References {
    std::array<const void*, Most> all{};
    std::uint16_t count = 0;

    constexpr std::uint16_t Find(const void* wanted) {
        for (std::uint16_t i = 0; i < count; ++i) {
            if (all[i] == wanted) return i;
        }
        all[count] = wanted;
        return count++;
    }
};

template <Limits Most>
struct Tree {
    std::array<Node, Most.nodes> nodes{};
    std::array<char, Most.text> texts{};
    std::array<Copy, Most.supplied> supplied{};
    std::array<std::uint16_t, Most.started> started{};
    std::array<FlagRun, Most.flags> flagRuns{};
    std::uint16_t flagRunCount = 0;
    std::uint16_t suppliedCount = 0;
    std::uint16_t startedCount = 0;
    std::uint16_t nodeCount = 0;
    std::uint16_t textSize = 0;
    bool anyOrder = true;
    NodeRange members;
    NodeRange fromRoot;
    NodeRange self;

    constexpr Node& Add(std::string_view key) {
        Node& node = nodes[nodeCount++];
        for (char c : std::string_view(", "))
            texts[textSize++] = c;
        node.quotedAt = textSize;
        node.keySize = static_cast<std::uint16_t>(key.size());
        node.prefix = json::KeyPrefix(key);
        texts[textSize++] = '"';
        for (char c : key)
            texts[textSize++] = c;
        for (char c : std::string_view("\" : "))
            texts[textSize++] = c;
        return node;
    }

    // The nodes of one object and, behind them, of the objects inside it. `order` are the rows of the object, sorted.
    constexpr NodeRange AddObject(const Field* rows, const std::uint16_t* order, std::size_t count, int depth) {
        NodeRange range{nodeCount, CountKeys(rows, order, count, depth)};
        for (std::size_t i = 0; i < count;) {
            const std::size_t end = EndOfKey(rows, order, count, depth, i);
            Node& node = Add(Part(rows[order[i]].key, depth));
            node.row = order[i];
            for (std::size_t k = i; k < end; ++k) {
                if (rows[order[k]].always && rows[order[k]].readable) node.needsAbsent = true;
            }
            if (node.needsAbsent) range.lastAbsent = nodeCount;
            const auto sharesWith = [&](std::size_t other) {
                return Part(rows[order[other]].key, depth) == Part(rows[order[i]].key, depth);
            };
            node.shared = (i > 0 && sharesWith(i - 1)) || (end < count && sharesWith(end));
            i = end;
        }
        std::uint16_t index = range.first;
        for (std::size_t i = 0; i < count; ++index) {
            const std::size_t end = EndOfKey(rows, order, count, depth, i);
            if (Parts(rows[order[i]].key) > depth + 1) {
                const NodeRange inside = AddObject(rows, order + i, end - i, depth + 1);
                nodes[index].firstChild = inside.first;
                nodes[index].childCount = inside.count;
                nodes[index].childLastAbsent = inside.lastAbsent;
                for (std::size_t k = i; k < end && depth == 0; ++k)
                    nodes[index].staysNull = nodes[index].staysNull || rows[order[k]].keepsObject;
            } else {
                SetRow(nodes[index], rows[order[i]]);
            }
            i = end;
        }
        return range;
    }

    constexpr void SetRow(Node& node, const Field& row) {
        node.readPlainly = ReadPlainly(row);
        node.way = node.keySize <= kLongestPlainKey ? WayOf(row) : Way::Row;
        node.offset = row.offset;
        node.elementSize = node.way == Way::Mask ? row.size : row.elementSize;
        node.flag = row.flag;
        node.gate = GateOf(row).offset;
        node.gateCell = GateOf(row).cell;
        node.cell = row.cell;
        node.kind = row.kind;
        node.listed = IsPlainList(row);
        node.staysNull = node.way == Way::Mask && row.empty == Empty::Null;
        node.unlessBare = node.way == Way::Mask ? row.empty == Empty::NoKey : row.unlessBare;
    }

    // In the order of their places, so that neighbours become one run.
    constexpr void AddFlag(FlagRun run) {
        std::uint16_t at = flagRunCount++;
        for (; at > 0 && flagRuns[at - 1u].offset > run.offset; --at)
            flagRuns[at] = flagRuns[at - 1u];
        flagRuns[at] = run;
    }
    constexpr void JoinFlags() {
        std::uint16_t kept = 0;
        for (std::uint16_t i = 0; i < flagRunCount; ++i) {
            const FlagRun run = flagRuns[i];
            if (kept > 0 && run.row == FlagRun::kNone) {
                FlagRun& last = flagRuns[kept - 1u];
                if (last.row == FlagRun::kNone && last.offset + last.size >= run.offset) {
                    last.size = std::max(last.size, run.offset + run.size - last.offset);
                    continue;
                }
            }
            flagRuns[kept++] = run;
        }
        flagRunCount = kept;
    }

    constexpr void AddSupplied(const Field& row) {
        if (suppliedCount > 0) {
            Copy& last = supplied[suppliedCount - 1u];
            if (last.to + last.size == row.offset && last.from + last.size == row.suppliedFrom) {
                last.size += row.size;
                return;
            }
        }
        supplied[suppliedCount++] = {row.offset, row.suppliedFrom, row.size};
    }

  private:
    // A row of its own ends its node; rows inside the same inner object share one.
    static constexpr std::size_t EndOfKey(const Field* rows, const std::uint16_t* order, std::size_t count, int depth,
                                          std::size_t i) {
        if (Parts(rows[order[i]].key) == depth + 1) return i + 1;
        std::size_t end = i + 1;
        while (end < count && Part(rows[order[end]].key, depth) == Part(rows[order[i]].key, depth))
            ++end;
        return end;
    }
    static constexpr std::uint16_t CountKeys(const Field* rows, const std::uint16_t* order, std::size_t count,
                                             int depth) {
        std::uint16_t keys = 0;
        for (std::size_t i = 0; i < count; ++keys)
            i = EndOfKey(rows, order, count, depth, i);
        return keys;
    }
};

template <class Rows>
consteval auto BuildTree() {
    constexpr Limits limits = LimitsOf<Rows>();
    constexpr std::size_t count = sizeof(Rows::rows) / sizeof(Rows::rows[0]);
    const Field* const rows = Rows::rows;
    Tree<limits> tree;
    std::array<std::uint16_t, count> order{};
    for (const bool fromRoot : {false, true}) {
        std::size_t used = 0;
        for (std::size_t i = 0; i < count; ++i) {
            if (rows[i].key == nullptr || rows[i].key[0] == '\0' || rows[i].fromRoot != fromRoot) continue;
            std::size_t at = used++;
            for (; at > 0 && Before(rows[i].key, rows[order[at - 1]].key); --at)
                order[at] = order[at - 1];
            order[at] = static_cast<std::uint16_t>(i);
        }
        (fromRoot ? tree.fromRoot : tree.members) = tree.AddObject(rows, order.data(), used, 0);
    }
    tree.self.first = tree.nodeCount;
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].kind == Kind::Supplied) tree.AddSupplied(rows[i]);
        if (IsStarted(rows[i])) tree.started[tree.startedCount++] = static_cast<std::uint16_t>(i);
        if (rows[i].key == nullptr || rows[i].key[0] != '\0') continue;
        Node& node = tree.Add("");
        node.row = static_cast<std::uint16_t>(i);
        tree.SetRow(node, rows[i]);
        node.needsAbsent = true;
        ++tree.self.count;
    }
    References<limits.references> references;
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].flag.exists()) tree.AddFlag({rows[i].flag.offset, SizeOf(rows[i].flag.cell)});
        if (HasInnerFlags(rows[i])) tree.AddFlag({rows[i].offset, rows[i].size, static_cast<std::uint16_t>(i)});
        const void* const wanted = ReferenceOf(rows[i]);
        if (wanted == nullptr) continue;
        const std::uint16_t place = references.Find(wanted);
        for (Node& node : tree.nodes) {
            if (node.row == i && node.childCount == 0) node.reference = place;
        }
    }
    tree.JoinFlags();
    // Few rows have a count or another key's place, so that this is far from a comparison of all with all.
    for (std::size_t i = 0; i < count; ++i) {
        if (!rows[i].alias && !rows[i].count.exists()) continue;
        for (std::size_t k = 0; k < count; ++k) {
            if (k == i || !InOrder(rows[i], rows[k])) continue;
            const bool isApart = Parts(rows[i].key) > 1 || Parts(rows[k].key) > 1;
            if (isApart || rows[i].always || rows[k].always) tree.anyOrder = false;
            for (Node& node : tree.nodes) {
                if (node.childCount == 0 && (node.row == i || node.row == k)) node.ordered = true;
            }
        }
    }
    return tree;
}

template <class Rows>
inline constexpr auto kTree = BuildTree<Rows>();

// Apart from the tree, which has no pointers.
template <class Rows>
inline constexpr auto kReferences = [] {
    constexpr Limits limits = LimitsOf<Rows>();
    References<limits.references> references;
    for (const Field& row : Rows::rows) {
        if (const void* const wanted = ReferenceOf(row)) references.Find(wanted);
    }
    return references.all;
}();

} // namespace build

template <class Rows>
consteval TypedTable<typename Rows::R> MakeTable(const char* name) {
    using R = typename Rows::R;
    static_assert(std::is_standard_layout_v<R> && std::is_trivial_v<R>, "records are plain C structures");
    if constexpr (build::kFlaw<Rows>.mistake != build::Mistake::None) build::Tell<build::kFlaw<Rows>>();
    constexpr auto& tree = build::kTree<Rows>;
    TypedTable<R> table;
    table.record = name;
    table.size = sizeof(R);
    table.rows = Rows::rows;
    table.rowCount = sizeof(Rows::rows) / sizeof(Rows::rows[0]);
    table.nodes = tree.nodes.data();
    table.keyTexts = tree.texts.data();
    table.references = build::kReferences<Rows>.data();
    table.flagRuns = tree.flagRuns.data();
    table.flagRunCount = tree.flagRunCount;
    table.members = tree.members;
    table.fromRoot = tree.fromRoot;
    table.self = tree.self;
    table.supplied = tree.supplied.data();
    table.suppliedCount = tree.suppliedCount;
    table.started = tree.started.data();
    table.startedCount = tree.startedCount;
    table.anyOrder = tree.anyOrder;
    for (const Field& row : Rows::rows) {
        if (row.hasDefault || row.kind == Kind::Size) table.hasDefaults = true;
        if (row.kind == Kind::Size) table.hasSizeWords = true;
        if (row.cell == Cell::Pointer) table.hasPointers = true;
        if (row.amongKeys) table.amongKeys = &row;
        if (row.kind == Kind::MemberName || row.kind == Kind::MemberCode) table.memberName = &row;
        if (row.cell == Cell::Record) {
            if (row.table->hasDefaults && !row.amongKeys && !row.table->startsWhenRead) table.hasDefaults = true;
            if (row.table->hasSizeWords) table.hasSizeWords = true;
            if (row.table->hasPointers) table.hasPointers = true;
        }
        const bool hasPart = row.kind == Kind::Record && row.table != nullptr;
        if (hasPart && (row.table->fromRoot.count > 0 || row.table->partsAskRoot)) table.partsAskRoot = true;
        table.anyOrder = table.anyOrder && build::TakesAnyOrder(row);
    }
    const auto* const self = table.nodes + table.self.first;
    table.isNumbers = table.self.count > 0 && std::all_of(self, self + table.self.count, [](const Node& node) {
                          return node.way == Way::Number && !node.isGated();
                      });
    // Rows whose key is "" ask for the object as a whole, as do lists among its keys.
    table.inText = table.amongKeys == nullptr && table.members.count <= kMostInText;
    return table;
}

} // namespace orrery::record

// In brackets, so that a row that follows another without a comma is a call of the one before it, which tells.
#define FIELD(member, ...)                                                                                             \
    (::orrery::record::MakeField<decltype(R::member)>(#member, offsetof(R, member) __VA_OPT__(, ) __VA_ARGS__))
// A member that is copied from `source`, a member of the same type in what the call carries along (a `contextType`).
#define SUPPLIED(contextType, source)                                                                                  \
    ::orrery::record::SuppliedFrom<decltype(contextType::source)> {                                                    \
        offsetof(contextType, source)                                                                                  \
    }
#define AT(member) ::orrery::record::MakeSlot<decltype(R::member)>(offsetof(R, member))

// The table of a record that a command uses, declared `extern const` in the family's header.
#define TABLE(name, recordType, ...)                                                                                   \
    ORRERY_ROWS_OF(name, recordType, __VA_ARGS__);                                                                     \
    constexpr ::orrery::record::TypedTable<recordType> name = ::orrery::record::MakeTable<RowsOf_##name>(#recordType)

// The table of a record that stands inside others: whole in a header, or in the one file that needs it.
#define PART(name, recordType, ...)                                                                                    \
    ORRERY_ROWS_OF(name, recordType, __VA_ARGS__);                                                                     \
    inline constexpr ::orrery::record::TypedTable<recordType> name =                                                   \
        ::orrery::record::MakeTable<RowsOf_##name>(#recordType)

#define ORRERY_ROWS_OF(name, recordType, ...)                                                                          \
    struct RowsOf_##name {                                                                                             \
        using R = recordType;                                                                                          \
        static constexpr ::orrery::record::Field rows[] = __VA_ARGS__;                                                 \
    }

#include "frame/record/SharedRecords.h"
