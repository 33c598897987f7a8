// The frames: what many commands share between their export and their record table. A command chooses words; no family
// repeats a frame's steps.
#pragma once

#include "frame/record/Table.h"

#include <cstddef>
#include <cstdint>

namespace orrery {

namespace json {
class Value;
}

// ---- The words of a command's reply ------------------------------------------------------------------------------

// Where the value stands in the reply.
enum class Source : std::uint8_t {
    Table,        // params.table
    Caps,         // params.caps
    CapsOrParams, // params.caps, or params itself when there is no caps
    Params,       // params.<name>
    Top,          // <name> at the document's top level
    Result,       // result is itself the value
};

// What "result" must say.
enum class ResultTest : std::uint8_t {
    MustBeTrue,     // converts to true; absent refuses
    FalseRefuses,   // converts to true, or absent
    NotTested,      // the table of a refused call is read all the same
    ExactBool,      // the JSON value true
    IntegerNonZero, // reads as an integer other than 0
    TextTrue,       // reads as the text "true", case folded: JSON true and "true"
    Verdict,        // as FalseRefuses, but the reply is read all the same before the call fails
};

// Which shapes of the value are taken.
enum class Take : std::uint8_t {
    One,         // one record, whatever the type
    OneOrMany,   // array: a record an element; object: one record; other types fail
    AnyOrMany,   // array: a record an element; any other type: one record
    Many,        // array: a record an element; other types fail
    ManyOrNone,  // array: a record an element; other types succeed with no record
    List,        // one record that is itself a list: other types than an array fail
    ListOrNone,  // the same, but other types succeed with nothing read and no length
    ListOrLists, // array of objects: one record that is itself a list; array of arrays: a list, that is a record, an
                 // element; other types, and an empty array, succeed with nothing read and no length
    ListOrListsOrBlank, // the same, but an empty array is an empty list of lists, and other types are one record of
                        // which nothing is read
    ByMember,           // object: a record a member, in key order, null members skipped; other types fail
    ByMemberOrNone,     // the same; other types have no members
    Text                // one record that is a text: other types fail
};

// Whether a reply fills one record, whatever its value looks like (but for a list of lists).
constexpr bool TakesOneRecord(Take take) {
    return take == Take::One || take == Take::List || take == Take::ListOrNone || take == Take::ListOrLists
           || take == Take::ListOrListsOrBlank || take == Take::Text;
}

// What a null or absent value does.
enum class NullValue : std::uint8_t {
    Fails,
    LengthZero,      // succeeds, reply length 0
    LengthUntouched, // succeeds, reply length not assigned; only keys that start at the document are read
    OneRecord,       // succeeds with one record: what reading nothing gives
};

enum class Clearing : std::uint8_t {
    Buffer, // the whole buffer
    Record, // the first record
    Read,   // each record as it is read
    Kept,   // the caller's own input: descriptors, values that absent keys keep
};

enum class ReplyLength : std::uint8_t {
    OneRecord,
    PerRecord,
    PerFilled, // of each record that was read: a null element leaves its place and is not counted
    OneOfList, // one record; 0 for a list of lists, though its records are filled
    Told,      // what the command's function tells
    None,
};

// How far apart a caller's records are.
enum class Stride : std::uint8_t {
    Record,          // the record's own size
    SizeWord,        // the caller's first size word: each record passes through a local one, which moves as a block
    SizeWordByField, // the same, moved field by field
};

struct ParseFrame {
    Source source = Source::Table;
    const char* name = ""; // of the member, for Params and Top
    ResultTest result = ResultTest::MustBeTrue;
    Take take = Take::One;
    NullValue nullValue = NullValue::Fails;
    Clearing clearing = Clearing::Buffer;
    ReplyLength length = ReplyLength::OneRecord;
    Stride stride = Stride::Record;
    bool exactSize = false; // the buffer must have exactly the record's size
    bool readsNulls = false;
    bool rootKeysFirst = false;
    bool allMustFit = false;
    bool anySize = false;      // a buffer below one record takes as much of the record as it holds
    bool zeroesLength = false; // the reply length is 0 also when the call fails later
    bool needsText = false;    // an empty text fails before anything is cleared
    bool takesNoJson = false;
    bool takesEmptyLists = false;
    // Tests the caller's own input before anything else; false fails the call with nothing touched.
    bool (*accepts)(const std::byte* buffer, std::uint32_t size) = nullptr;
    // Runs once the text has parsed, before "result" is looked at.
    void (*parsed)(std::byte* buffer) = nullptr;
    // Chooses the shape that is taken, where something else than the value's own type settles it.
    Take (*takesBy)(const json::Value& root) = nullptr;
    bool looksBeside = false; // it looks at keys beside the value only
    // Bytes of the record that the table's function behind the rows fills, whatever has been read.
    std::uint32_t filledAt = 0;
    std::uint32_t filledSize = 0;
    // Tells the reply's length after one record has been read, where it is none of the usual ones.
    std::uint32_t (*lengthBy)(const std::byte* record) = nullptr;

    bool operator==(const ParseFrame&) const = default;

    constexpr ParseFrame From(Source where, const char* member = "") const {
        return With(With(*this, &ParseFrame::source, where), &ParseFrame::name, member);
    }
    constexpr ParseFrame Result(ResultTest test) const { return With(*this, &ParseFrame::result, test); }
    constexpr ParseFrame Takes(Take what) const { return With(*this, &ParseFrame::take, what); }
    constexpr ParseFrame Null(NullValue what) const { return With(*this, &ParseFrame::nullValue, what); }
    constexpr ParseFrame Clears(Clearing what) const { return With(*this, &ParseFrame::clearing, what); }
    constexpr ParseFrame Length(ReplyLength what) const { return With(*this, &ParseFrame::length, what); }
    // With a size word each record is read into a fresh local one, so that absent keys give their defaults and flags
    // tell of this text alone; of the caller's record only its size word and its pointers count. Nothing else is
    // cleared.
    constexpr ParseFrame Strides(Stride what) const {
        return With(With(*this, &ParseFrame::stride, what), &ParseFrame::clearing,
                    what == Stride::Record ? clearing : Clearing::Kept);
    }
    constexpr ParseFrame ExactSize() const { return With(*this, &ParseFrame::exactSize, true); }
    // A null element is read as a record without keys, where others leave its slot alone.
    constexpr ParseFrame ReadsNulls() const { return With(*this, &ParseFrame::readsNulls, true); }
    // Keys that start at the document reach the first record once the text has parsed, though the call fail later.
    constexpr ParseFrame RootKeysFirst() const { return With(*this, &ParseFrame::rootKeysFirst, true); }
    // More records than fit the buffer fail the call.
    constexpr ParseFrame AllMustFit() const { return With(*this, &ParseFrame::allMustFit, true); }
    constexpr ParseFrame TakesBy(Take (*function)(const json::Value& root)) const {
        return With(*this, &ParseFrame::takesBy, function);
    }
    // The same, where what settles it are keys beside the value.
    constexpr ParseFrame TakesBeside(Take (*function)(const json::Value& root)) const {
        return With(TakesBy(function), &ParseFrame::looksBeside, true);
    }
    constexpr ParseFrame LengthBy(std::uint32_t (*function)(const std::byte* record)) const {
        return With(With(*this, &ParseFrame::length, ReplyLength::Told), &ParseFrame::lengthBy, function);
    }
    constexpr ParseFrame AnySize() const { return With(*this, &ParseFrame::anySize, true); }
    // The reply length is set to 0 once the buffer is known to be large enough, and so when the call fails later.
    constexpr ParseFrame ZeroesLength() const { return With(*this, &ParseFrame::zeroesLength, true); }
    // Text that is no JSON succeeds with nothing read and no length told.
    constexpr ParseFrame TakesNoJson() const { return With(*this, &ParseFrame::takesNoJson, true); }
    // An array without elements is a list of no records, whose length is told; without this word it is as good as null.
    constexpr ParseFrame TakesEmptyLists() const { return With(*this, &ParseFrame::takesEmptyLists, true); }
    constexpr ParseFrame NeedsText() const { return With(*this, &ParseFrame::needsText, true); }
    constexpr ParseFrame Accepts(bool (*test)(const std::byte*, std::uint32_t)) const {
        return With(*this, &ParseFrame::accepts, test);
    }
    // Where they are most of a large record, they are cleared only when the call fails.
    constexpr ParseFrame Fills(std::size_t at, std::size_t size) const {
        return With(With(*this, &ParseFrame::filledAt, static_cast<std::uint32_t>(at)), &ParseFrame::filledSize,
                    static_cast<std::uint32_t>(size));
    }
    constexpr ParseFrame OnceParsed(void (*function)(std::byte*)) const {
        return With(*this, &ParseFrame::parsed, function);
    }
};

// Declared only: a command that reaches one of these does not compile, and the name tells why.
void a_word_that_does_not_go_with_a_size_word();
void words_of_a_frame_that_contradict_each_other();

// The frame, if its words go together.
constexpr ParseFrame Consistent(const ParseFrame& frame) {
    const bool reaches = frame.rootKeysFirst || frame.anySize || frame.parsed != nullptr || frame.lengthBy != nullptr
                         || frame.clearing != Clearing::Kept;
    if (frame.stride != Stride::Record && reaches) a_word_that_does_not_go_with_a_size_word();
    const bool isNamed = frame.source == Source::Params || frame.source == Source::Top;
    if (isNamed != (frame.name[0] != '\0') || (frame.exactSize && frame.anySize)
        || (frame.length == ReplyLength::Told) != (frame.lengthBy != nullptr)
        || (frame.filledSize != 0
            && (frame.clearing != Clearing::Buffer || frame.take != Take::One || frame.anySize
                || frame.nullValue != NullValue::OneRecord || frame.takesNoJson))) {
        words_of_a_frame_that_contradict_each_other();
    }
    return frame;
}

// ---- The words of a command's text -------------------------------------------------------------------------------

enum class Form : std::uint8_t {
    One,         // one record, bare
    Array,       // as many records as fit the size, always an array
    BareIfOne,   // bare when exactly one whole record fits the size, else an array
    BareIfExact, // bare when the size is exactly one record, else an array of those that fit
    ByMember,    // as many records as fit the size, each under its member name
    Nothing,     // no record at all: the text of a document that nothing was put in
    NoText,      // not even that: success with the text buffer cleared, whatever its size
};

// How long a text may be, and how it is ended.
enum class Capacity : std::uint8_t {
    Strict,    // shorter than the capacity
    Loose,     // up to the capacity; at exactly the capacity the last character gives way to the terminator
    Raw,       // up to the capacity; at exactly the capacity there is no terminator
    OneBefore, // shorter than the capacity less one
    Bare,      // up to the capacity, and nothing is written behind the text; for calls that keep the text buffer
};

struct PackFrame {
    Form form = Form::One;
    Capacity capacity = Capacity::Strict;
    Stride stride = Stride::Record;
    const char* quotedKey = ""; // `"Key" : ` under which the value stands at the top; empty: the value is the text
    bool exactSize = false;     // the record must have exactly the table's size
    bool keepsText = false;     // a failed call leaves the text buffer as it was
    bool (*accepts)(const std::byte* record, std::uint32_t size) = nullptr;
    // Chooses the form, where something else than the size settles it.
    Form (*formBy)(const std::byte* first, std::uint32_t count) = nullptr;

    bool operator==(const PackFrame&) const = default;

    constexpr PackFrame As(Form what) const { return With(*this, &PackFrame::form, what); }
    constexpr PackFrame Fits(Capacity what) const { return With(*this, &PackFrame::capacity, what); }
    constexpr PackFrame Strides(Stride what) const { return With(*this, &PackFrame::stride, what); }
    constexpr PackFrame Under(const char* quoted) const { return With(*this, &PackFrame::quotedKey, quoted); }
    constexpr PackFrame ExactSize() const { return With(*this, &PackFrame::exactSize, true); }
    constexpr PackFrame KeepsText() const { return With(*this, &PackFrame::keepsText, true); }
    constexpr PackFrame FormBy(Form (*function)(const std::byte* first, std::uint32_t count)) const {
        return With(*this, &PackFrame::formBy, function);
    }
    constexpr PackFrame Accepts(bool (*test)(const std::byte*, std::uint32_t)) const {
        return With(*this, &PackFrame::accepts, test);
    }
};

// ---- The generic frame -------------------------------------------------------------------------------------

struct GenericFrame {
    bool arrayForm = false;     // the table may be an array of records
    std::uint8_t dimension = 0; // array levels that one record itself has
    bool zeroBuffer = false;    // parse: the whole buffer is cleared first
    bool alwaysArray = false;   // pack: an array also for one record

    bool operator==(const GenericFrame&) const = default;
};

// Why a call answered 0. The exports keep it to themselves; tools tell their user.
enum class Outcome : std::uint8_t {
    Done,
    BadArguments,
    UnknownCommand,
    BufferTooSmall, // parse: below one record
    RecordTooSmall, // pack: below one record
    NotAccepted,    // the caller's own input is refused
    NoJson,
    Refused, // "result"
    NoValue,
    WrongShape,
    TooManyRecords, // of a command that takes all of them or none
    RowRefused,     // a row's function ended the call
    BadItem,        // an item of a buffer, or an element that should become one, is of no type that is known
    TextTooLong,
    OutOfMemory,
};

// Which of two roads that give the same a call takes. Only tests, which compare them, ask or tell.
struct ReadRoad {
    bool documentOnly = false;
    bool tookText = false; // the records were read from the text; no document of them was made
};

struct ParseRequest {
    const char* text;
    void* buffer;
    std::uint32_t bufferSize;
    std::uint32_t* returnedLength; // may be null
    ReadRoad* road = nullptr;
};

struct PackRequest {
    const void* record;
    std::uint32_t recordSize;
    char* textBuffer;
    std::uint32_t textCapacity;
};

Outcome ParseFamily(const record::Table& table, const ParseFrame& frame, const ParseRequest& request) noexcept;
Outcome PacketFamily(const record::Table& table, const PackFrame& frame, const PackRequest& request) noexcept;

// Adds each record that it reads to `*returnedLength`; a null element leaves a gap that is not counted.
Outcome ParseGeneric(const record::Table& table, const GenericFrame& frame, const ParseRequest& request) noexcept;
Outcome PacketGeneric(const record::Table& table, const GenericFrame& frame, const PackRequest& request) noexcept;

} // namespace orrery
