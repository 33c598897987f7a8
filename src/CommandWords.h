// Words of the rows of the command map: whole rows by what serves them, and frames that many rows begin with.
#pragma once

#include "frame/Command.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace orrery::words {

inline constexpr ParseFrame kParse;
inline constexpr PackFrame kPack;

constexpr Command Generic(std::string_view name, const record::Table& table, GenericFrame frame) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Generic;
    command.genericFrame = frame;
    return command;
}

// The same frame of what is never written.
constexpr Command GenericReply(std::string_view name, const record::Table& table, GenericFrame frame) {
    Command command = Generic(name, table, frame);
    command.pack = Command::Frame::None;
    return command;
}

// Declared only: a row that reaches it does not compile, and the name tells why.
void a_stride_needs_a_record_that_begins_with_its_size_word();

template <class R>
inline constexpr bool kBeginsWithItsSize = requires {
    requires std::is_same_v<decltype(R::dwSize), std::uint32_t>;
    requires(offsetof(R, dwSize) == 0);
};
template <class R>
constexpr void NeedsSizeWord(Stride stride) {
    if (stride != Stride::Record && !kBeginsWithItsSize<R>) a_stride_needs_a_record_that_begins_with_its_size_word();
}

template <class R>
constexpr Command Both(std::string_view name, const record::TypedTable<R>& table, ParseFrame parse, PackFrame pack) {
    NeedsSizeWord<R>(parse.stride);
    NeedsSizeWord<R>(pack.stride);
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Family;
    command.parseFrame = Consistent(parse);
    command.packFrame = pack;
    return command;
}

template <class R>
constexpr Command Reply(std::string_view name, const record::TypedTable<R>& table, ParseFrame parse) {
    NeedsSizeWord<R>(parse.stride);
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = Command::Frame::Family;
    command.parseFrame = Consistent(parse);
    return command;
}

// A command that is written only.
constexpr Command Text(std::string_view name, const record::Table& table, PackFrame pack) {
    Command command;
    command.name = name;
    command.table = &table;
    command.pack = Command::Frame::Family;
    command.packFrame = pack;
    return command;
}

// A parse function of its own; the frame's words tell tools what it does.
template <class R>
constexpr Command OwnParse(std::string_view name, const record::TypedTable<R>& table,
                           Outcome (*parse)(const ParseRequest&) noexcept, ParseFrame like, PackFrame pack) {
    Command command = Both(name, table, like, pack);
    command.parse = Command::Frame::Own;
    command.ownParse = parse;
    return command;
}

// A buffer of items, described by the caller's record: read by a function of its own and, where there is one, written.
// The frame's words tell tools where the items stand.
constexpr Command Own(std::string_view name, const record::Table& table, Outcome (*parse)(const ParseRequest&),
                      Outcome (*pack)(const PackRequest&), ParseFrame like = kParse) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = Command::Frame::Own;
    if (pack != nullptr) command.pack = Command::Frame::Own;
    command.parseFrame = like;
    command.ownParse = parse;
    command.ownPack = pack;
    return command;
}

// A command that takes a buffer of exactly the other record's size as that record.
template <class R>
constexpr Command Or(const record::TypedTable<R>& other, Command command) {
    command.otherTable = &other;
    return command;
}

// Alarms of which a refused call's table is read all the same, and whose text may fill the buffer to its last byte.
inline constexpr ParseFrame kUntested = kParse.Result(ResultTest::NotTested);
inline constexpr PackFrame kLoose = kPack.Fits(Capacity::Loose);

// Texts that may fill the buffer without a terminator.
inline constexpr PackFrame kRaw = kPack.Fits(Capacity::Raw);

// Settings of several devices, inputs or outputs: a record each. One is written bare, several as a list.
inline constexpr ParseFrame kOneOrMany = kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
inline constexpr PackFrame kBareIfOne = kPack.As(Form::BareIfOne);
// The same, where the list may be empty.
inline constexpr ParseFrame kOneOrManyOrNone = kOneOrMany.TakesEmptyLists();
// The same of callers of every layout, whose first size word says how far apart their records are.
inline constexpr ParseFrame kVersioned = kOneOrMany.Null(NullValue::LengthZero).Strides(Stride::SizeWord);
inline constexpr PackFrame kVersionedBareIfOne = kBareIfOne.Strides(Stride::SizeWord);
// Doors and their like: a null element is a record without keys.
inline constexpr ParseFrame kDoors = kOneOrMany.ReadsNulls();
// A record that is a list.
inline constexpr ParseFrame kList = kParse.Takes(Take::List);
// The items of one record, or of a record a list.
inline constexpr ParseFrame kListOrLists =
    kParse.Takes(Take::ListOrListsOrBlank).Null(NullValue::LengthUntouched).Length(ReplyLength::OneOfList);
// Lens drives answer with a number.
inline constexpr ParseFrame kLens = kList.Result(ResultTest::IntegerNonZero).Null(NullValue::LengthUntouched);

// Descriptors of the caller's lists: read in place before "result" has its say, written without touching more of the
// text buffer than the text needs.
inline constexpr ParseFrame kDiagnosisList = kParse.Result(ResultTest::Verdict).Clears(Clearing::Kept).ExactSize();
inline constexpr PackFrame kDiagnosisText = kPack.Fits(Capacity::Bare).KeepsText().ExactSize();

// Devices that answer with a number of channels, in place of "result" or under "params".
inline constexpr ParseFrame kChannelCount = kUntested.From(Source::Result).Null(NullValue::OneRecord);

inline constexpr ParseFrame kCaps = kParse.From(Source::Caps);
inline constexpr ParseFrame kCapsTextTrue = kCaps.Result(ResultTest::TextTrue);

// A command that tells the log why it failed.
constexpr Command Logged(Command command, void (*parse)(Outcome, const ParseRequest&) noexcept,
                         void (*pack)(Outcome, const PackRequest&) noexcept) {
    command.parseFailed = parse;
    command.packFailed = pack;
    return command;
}

// The generic frame: one record, a list of them, or one that is a list itself or stands in one.
inline constexpr GenericFrame kOneCleared{.zeroBuffer = true};
inline constexpr GenericFrame kManyCleared{.arrayForm = true, .zeroBuffer = true};
inline constexpr GenericFrame kManyKept{.arrayForm = true};
inline constexpr GenericFrame kManyAlwaysArray{.arrayForm = true, .zeroBuffer = true, .alwaysArray = true};
inline constexpr GenericFrame kOneOfArrayCleared{.dimension = 1, .zeroBuffer = true};
inline constexpr GenericFrame kArraysCleared{.arrayForm = true, .dimension = 1, .zeroBuffer = true};

} // namespace orrery::words
