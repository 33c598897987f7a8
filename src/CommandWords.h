// Words of the rows of the command table: whole rows by what serves them, and frames that many rows begin with.
#pragma once

#include "frame/Command.h"

namespace orrery::words {

inline constexpr ParseFrame kParse;
inline constexpr PackFrame kPack;

constexpr Command Generic(std::string_view name, const record::Table& table, TableFrame frame) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Table;
    command.tableFrame = frame;
    return command;
}

constexpr Command Both(std::string_view name, const record::Table& table, ParseFrame parse, PackFrame pack) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Family;
    command.parseFrame = Consistent(parse);
    command.packFrame = pack;
    return command;
}

constexpr Command Reply(std::string_view name, const record::Table& table, ParseFrame parse) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = Command::Frame::Family;
    command.parseFrame = Consistent(parse);
    return command;
}

// A parse function of its own; the frame's words tell tools what it does.
constexpr Command OwnParse(std::string_view name, const record::Table& table,
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

// Alarms of which a refused call's table is read all the same, and whose text may fill the buffer to its last byte.
inline constexpr ParseFrame kUntested = kParse.Result(ResultTest::NotTested);
inline constexpr PackFrame kLoose = kPack.Fits(Capacity::Loose);

inline constexpr ParseFrame kCaps = kParse.From(Source::Caps);
inline constexpr ParseFrame kCapsTextTrue = kCaps.Result(ResultTest::TextTrue);

inline constexpr TableFrame kOneCleared{.zeroBuffer = true};

} // namespace orrery::words
