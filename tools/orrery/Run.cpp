#include "orrery/Run.h"

#include "orrery/Check.h"
#include "orrery/Diagnose.h"
#include "orrery/FillRecord.h"
#include "orrery/Output.h"
#include "orrery/PrintRecord.h"

#include "explain/Packs.h"
#include "explain/Places.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <memory>
#include <vector>

namespace orrery::tool {

namespace {

using record::Table;

// Where growing buffers end: what one person's reply on one machine can never need.
constexpr std::uint64_t kLargestBuffer = std::uint64_t{1} << 30;

Result Refuse(const std::string& why) {
    return {kRefused, {}, "orrery: " + why + "\n"};
}

bool HasPointers(const Table& table) {
    return std::any_of(table.begin(), table.end(), [](const record::Field& field) {
        return field.cell == record::Cell::Pointer || (field.cell == record::Cell::Record && HasPointers(*field.table));
    });
}

// ---- Packing ----

struct Packed {
    Outcome outcome = Outcome::Done;
    std::string text;
    std::size_t capacity = 0; // that was given
    std::size_t needed = 0;   // that would have done; 0 when nothing did
};

// How much longer than the text a buffer must be.
std::size_t RoomBehind(const Command& command) {
    if (command.pack != Command::Frame::Family) return 1;
    switch (command.packFrame.capacity) {
    case Capacity::Loose:
    case Capacity::Raw:
    case Capacity::Bare:
        return 0;
    case Capacity::OneBefore:
        return 2;
    case Capacity::Strict:
        break;
    }
    return 1;
}

Packed PackInto(const Command& command, const std::vector<std::byte>& records, std::size_t capacity) {
    std::vector<char> buffer(std::max<std::size_t>(capacity, 1));
    // No record at all still has an address.
    const std::byte none{};
    Packed packed;
    packed.capacity = capacity;
    packed.outcome =
        RunPack(command, {records.empty() ? &none : records.data(), static_cast<std::uint32_t>(records.size()),
                          buffer.data(), static_cast<std::uint32_t>(capacity)});
    if (packed.outcome == Outcome::Done) packed.text.assign(buffer.data(), strnlen(buffer.data(), capacity));
    return packed;
}

Packed PackRecords(const Command& command, const std::vector<std::byte>& records,
                   std::optional<std::uint32_t> capacity = {}) {
    Packed grown;
    for (std::uint64_t room = std::uint64_t{64} << 10; room <= kLargestBuffer; room *= 4) {
        grown = PackInto(command, records, room);
        if (grown.outcome != Outcome::TextTooLong) break;
    }
    if (!capacity) return grown;
    Packed packed = PackInto(command, records, *capacity);
    if (grown.outcome == Outcome::Done) packed.needed = grown.text.size() + RoomBehind(command);
    return packed;
}

// ---- Filling ----

// What a person who wrote the records should know.
std::vector<explain::Finding> Notes(const Table& table, const json::Value& value) {
    if (value.type() != json::Type::Array) return PassedOver(table, value);
    std::vector<explain::Finding> notes;
    for (std::uint32_t i = 0; i < value.size(); ++i)
        std::ranges::move(PassedOver(table, value[i], "[" + std::to_string(i) + "]"), std::back_inserter(notes));
    return notes;
}

std::string NoteLines(const std::vector<explain::Finding>& notes) {
    constexpr std::size_t kMost = 8;
    std::string text;
    for (std::size_t i = 0; i < std::min(notes.size(), kMost); ++i)
        text += "orrery: note: " + notes[i].path + " " + notes[i].message + "\n";
    if (notes.size() > kMost) text += "orrery: note: and more of the kind\n";
    return text;
}

// One record of an object, one each of an array's elements.
std::vector<std::byte> FillAll(const Table& table, const json::Value& value, Memory& memory) {
    const bool isList = value.type() == json::Type::Array;
    const std::uint32_t count = isList ? value.size() : 1;
    const std::uint64_t size = std::uint64_t{count} * table.size;
    if (size > kLargestBuffer) {
        throw FillError(std::to_string(count) + " records of " + std::to_string(table.size)
                        + " bytes are more than this program makes");
    }
    std::vector<std::byte> records(static_cast<std::size_t>(size));
    for (std::uint32_t i = 0; i < count; ++i) {
        FillRecord(table, isList ? value[i] : value, records.data() + std::size_t{i} * table.size, memory,
                   isList ? "[" + std::to_string(i) + "]" : std::string());
    }
    return records;
}

// The value of a document at a member's path; null when nobody wrote one there.
const json::Value* ValueAt(const json::Value& root, std::string_view path) {
    const json::Value* value = &root;
    if (value->type() == json::Type::Array && !path.starts_with('[')) value = &(*value)[0u];
    while (!path.empty()) {
        if (path.front() == '.') path.remove_prefix(1);
        if (path.starts_with('[')) {
            std::uint32_t index = 0;
            const std::size_t close = path.find(']');
            std::from_chars(path.data() + 1, path.data() + close, index);
            path.remove_prefix(close + 1);
            if (value->type() != json::Type::Array && value == &root && index == 0) continue; // one record alone
            if (index >= value->elements().size()) return nullptr;
            value = &(*value)[index];
        } else {
            const std::string_view name = path.substr(0, path.find_first_of(".["));
            value = &(*value)[name];
            if (value->isNull()) return nullptr;
            path.remove_prefix(name.size());
        }
    }
    return value;
}

// What of the records does not reach the text; of members those that somebody wrote.
std::vector<explain::Finding> Losses(const Command& command, Document& document, const std::vector<std::byte>& records,
                                     std::vector<explain::Finding> unknown, bool tries) {
    const std::byte none{};
    auto findings = explain::ExplainRecords(command, records.empty() ? &none : records.data(),
                                            static_cast<std::uint32_t>(records.size()), tries)
                        .findings;
    std::erase_if(findings, [&](explain::Finding& finding) {
        finding.at = ValueAt(document.root, finding.path);
        return finding.at == nullptr;
    });
    std::ranges::move(unknown, std::back_inserter(findings));
    explain::FindPlaces(document.text, document.root, document.arena, false, findings);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const auto& left, const auto& right) { return left.offset < right.offset; });
    return findings;
}

// ---- Parsing ----

// What stands around a record that is one of many.
constexpr std::string_view kFile = "file", kIndex = "index";

// The caller's side of one parse.
struct Buffer {
    std::vector<std::byte> bytes;
    std::uint32_t returned = 0;
    Outcome outcome = Outcome::Done;
};

class Parse {
  public:
    Parse(const Command& command, std::string_view text, const ParseOptions& options)
        : command_(command), table_(*command.table), options_(options), document_(text), terminated_(document_.text) {}

    Result Run();

  private:
    // What no command returns as a length: it tells whether one was assigned.
    static constexpr std::uint32_t kUntouched = ~std::uint32_t{0};

    std::uint64_t FirstSize(const Reply& reply) const;
    void Call(std::size_t size);
    std::size_t RecordsRead(const Reply& reply) const;
    std::string Note(const Reply& reply) const;
    std::string Print(std::size_t count, bool asList) const;
    std::string Shown(const std::byte* record, std::size_t index) const;
    std::optional<Node> MemberOf(const std::byte* record, std::size_t index, std::string_view path) const;

    const Command& command_;
    const Table& table_;
    const ParseOptions& options_;
    Document document_;
    std::string terminated_;
    Memory memory_;
    Buffer buffer_;
};

std::uint64_t Parse::FirstSize(const Reply& reply) const {
    if (options_.bytes) return *options_.bytes;
    const bool isExact = command_.parse == Command::Frame::Family && command_.parseFrame.exactSize;
    const std::uint64_t records = options_.records ? *options_.records : isExact ? 1 : std::max(reply.records, 1U);
    return records * table_.size;
}

void Parse::Call(std::size_t size) {
    memory_ = Memory();
    buffer_ = Buffer{std::vector<std::byte>(size), kUntouched, Outcome::Done};
    if (command_.parse != Command::Frame::Family) buffer_.returned = 0; // these add to it
    const std::size_t records = size / table_.size;
    if (!options_.start.empty()) {
        const Document start(options_.start);
        if (!start.ok) throw FillError("--start: " + ExplainSyntax(start));
        const auto filled = FillAll(table_, start.root, memory_);
        if (filled.size() > size) throw FillError("--start: more records than the buffer holds; see --records");
        if (!filled.empty()) std::memcpy(buffer_.bytes.data(), filled.data(), filled.size());
    } else {
        const std::uint32_t room = HasPointers(table_) ? LongestList(document_.root) : 0;
        for (std::size_t i = 0; i < records; ++i) {
            std::byte* const at = buffer_.bytes.data() + i * table_.size;
            if (table_.hasSizeWords) record::SetSizeWords(table_, at);
            if (room > 0) GiveRoom(table_, at, room, memory_);
        }
    }
    const auto read = [&] {
        buffer_.outcome = RunParse(
            command_, {terminated_.c_str(), buffer_.bytes.data(), static_cast<std::uint32_t>(size), &buffer_.returned});
    };
    read();
    if (!options_.start.empty() || !table_.hasPointers || buffer_.outcome != Outcome::Done) return;
    bool hasMoreRoom = false;
    for (std::size_t i = 0; i < records; ++i)
        hasMoreRoom |= GiveRoomAsRead(table_, buffer_.bytes.data() + i * table_.size, document_.root, memory_);
    if (hasMoreRoom) read();
}

// How many records of the buffer the call filled.
std::size_t Parse::RecordsRead(const Reply& reply) const {
    const std::size_t room = buffer_.bytes.size() / table_.size;
    const std::size_t returned = buffer_.returned == kUntouched ? 0 : buffer_.returned / table_.size;
    const std::size_t held = std::min<std::size_t>(reply.records, room);
    switch (command_.parse) {
    case Command::Frame::Family:
        if (command_.parseFrame.length == ReplyLength::None) return held;
        if (buffer_.returned == kUntouched) return 0;
        if (command_.parseFrame.length == ReplyLength::OneOfList) return held;
        if (command_.parseFrame.length == ReplyLength::Told) return std::min<std::size_t>(room, 1);
        if (returned == 0) return 0;
        return command_.parseFrame.length == ReplyLength::PerRecord ? returned : std::max<std::size_t>(held, 1);
    case Command::Frame::Generic:
        return returned == 0 ? 0 : held; // null elements keep their place without being counted
    default:
        return std::min(returned, room);
    }
}

std::string Parse::Note(const Reply& reply) const {
    if (command_.parse == Command::Frame::Own) return {};
    if (reply.value->isNull()) {
        return "orrery: note: the reply has no \"" + reply.path + "\"; "
               + (RecordsRead(reply) == 0 ? "no record was read\n" : "the record holds what absent keys give\n");
    }
    const std::size_t room = buffer_.bytes.size() / table_.size;
    if (reply.isList && reply.records > room) {
        return "orrery: note: the reply holds " + std::to_string(reply.records) + " records; there was room for "
               + std::to_string(room) + "\n";
    }
    return {};
}

std::optional<Node> Parse::MemberOf(const std::byte* record, std::size_t index, std::string_view path) const {
    if (path == kFile) return Node::Text(Printable(options_.file));
    if (path == kIndex) return Node::Unsigned(index);
    return PrintMember(table_, record, path, {options_.all, options_.brief});
}

// One record as a line, or as an object over several; empty for one that a filter keeps back.
std::string Parse::Shown(const std::byte* record, std::size_t index) const {
    const auto memberOf = [&](std::string_view path) { return MemberOf(record, index, path); };
    const bool isWanted = std::ranges::all_of(options_.filters, [&](const Filter& filter) {
        const std::optional<Node> member = memberOf(filter.path());
        return filter.Takes(member ? &*member : nullptr);
    });
    if (!isWanted) return {};
    if (IsRows(options_.format)) {
        return Row(options_.format, options_.width, tool::ColumnsOf(options_),
                   [&](const std::string& column) { return CellOf(memberOf(column)); });
    }
    Node node = Node::Object();
    for (const std::string_view around : {kFile, kIndex})
        node.Add(around, *memberOf(around));
    for (const std::string& field : options_.fields) {
        if (field == kFile || field == kIndex) continue;
        auto member = memberOf(field);
        node.Add(field, member ? std::move(*member) : Node::Null());
    }
    if (options_.fields.empty()) node.Add("record", PrintRecord(table_, record, {options_.all, options_.brief}));
    if (options_.format == Format::Lines) return node.PrintLine();
    return node.Print(options_.width == 0 ? Node::kWidest : options_.width);
}

std::string Parse::Print(std::size_t count, bool asList) const {
    const PrintOptions print{options_.all, options_.brief};
    const std::byte* const first = buffer_.bytes.data();
    if (options_.format == Format::Pretty && options_.fields.empty() && options_.filters.empty()) {
        return (asList ? PrintRecords(table_, first, count, print) : PrintRecord(table_, first, print))
            .Print(options_.width == 0 ? Node::kWidest : options_.width);
    }
    std::string out;
    for (std::size_t i = 0; i < count; ++i)
        out += Shown(first + i * table_.size, i);
    return out;
}

Result Parse::Run() {
    const Reply reply = LookAt(command_, document_.root);
    const bool fixed = options_.bytes || options_.records;
    std::uint64_t size = FirstSize(reply);
    for (;; size *= 2) {
        if (size > kLargestBuffer) {
            return Refuse("the records of this reply take " + std::to_string(size)
                          + " bytes, more than this program makes; see --records");
        }
        Call(static_cast<std::size_t>(size));
        if (fixed || command_.parse != Command::Frame::Own) break;
        // A command of its own form tells only by trying whether there was room.
        const bool isFull = buffer_.outcome == Outcome::Done && buffer_.returned >= size && reply.records > 1;
        if (buffer_.outcome != Outcome::BufferTooSmall && !isFull) break;
    }
    if (buffer_.outcome != Outcome::Done) {
        return Refuse(ExplainParse(command_, buffer_.outcome, document_, static_cast<std::uint32_t>(size)));
    }

    const std::size_t count = RecordsRead(reply);
    Result result;
    result.out = Print(count, reply.isList || count != 1);
    result.err = Note(reply);
    if (!options_.pack) return result;
    if (!command_.packs()) {
        result.exit = kRefused;
        result.err += "orrery: " + ExplainPack(command_, Outcome::UnknownCommand, 0, 0, 0) + "\n";
        return result;
    }
    buffer_.bytes.resize(count * table_.size);
    const Packed packed = PackRecords(command_, buffer_.bytes);
    result.out += packed.text;
    if (packed.outcome != Outcome::Done) {
        const auto recordSize = static_cast<std::uint32_t>(buffer_.bytes.size());
        result.exit = kRefused;
        result.err += "orrery: " + ExplainPack(command_, packed.outcome, recordSize, packed.capacity, 0) + "\n";
    }
    return result;
}

} // namespace

std::vector<std::string> ColumnsOf(const ParseOptions& options) {
    std::vector<std::string> columns = {std::string(kFile), std::string(kIndex)};
    columns.insert(columns.end(), options.fields.begin(), options.fields.end());
    return columns;
}

Result ParseText(const Command& command, std::string_view text, const ParseOptions& options) {
    if (!command.parses()) return Refuse(ExplainParse(command, Outcome::UnknownCommand, Document({}), 0));
    if (command.table == nullptr) return Refuse(std::string(command.name) + " has no record of fixed layout");
    try {
        std::string whole;
        if (options.table) {
            const Document bare(text);
            if (!bare.ok) return Refuse(ExplainSyntax(bare));
            std::size_t before = 0;
            whole = WrapValue(command, bare.text, before);
            text = whole;
        }
        return Parse(command, text, options).Run();
    } catch (const FillError& error) {
        return Refuse(error.what());
    } catch (const std::bad_alloc&) {
        return Refuse("out of memory");
    }
}

namespace {

// The request that a client sends: a configuration is set by its name, any other command is called with its text.
std::string Request(const Command& command, std::string text, std::uint32_t id) {
    while (text.ends_with('\n'))
        text.pop_back();
    const bool isMethod = command.name.find('.') != std::string_view::npos;
    const std::string method(isMethod ? command.name : "configManager.setConfig");
    std::string request = "{ \"id\" : " + std::to_string(id) + ", \"method\" : " + Quoted(method) + ", \"params\" : ";
    request += isMethod ? text : "{ \"name\" : " + Quoted(command.name) + ", \"table\" : " + text + " }";
    return request + " }\n";
}

} // namespace

Result PackText(const Command& command, std::string_view json, const PackOptions& options) {
    if (!command.packs()) return Refuse(ExplainPack(command, Outcome::UnknownCommand, 0, 0, 0));
    if (command.table == nullptr) return Refuse(std::string(command.name) + " has no record of fixed layout");
    try {
        Document document(json);
        if (!document.ok) return Refuse(ExplainSyntax(document));
        std::vector<explain::Finding> unknown;
        const bool isTold = options.warn || options.strict;
        Memory memory(isTold ? &unknown : nullptr);
        const auto records = FillAll(*command.table, document.root, memory);
        const Packed packed = PackRecords(command, records, options.capacity);
        if (packed.outcome == Outcome::Done) {
            Result result{kDone, packed.text, {}};
            auto notes = Notes(*command.table, document.root);
            if (options.json)
                std::ranges::move(notes, std::back_inserter(unknown)); // each with its place, as all else
            else
                result.err = NoteLines(notes);
            const auto losses = Losses(command, document, records, std::move(unknown), isTold);
            CheckOptions told;
            if (options.json) told.format = Format::Lines;
            result.err += FindingLines(losses, options.file, document.text, told);
            if (options.strict && !result.err.empty()) result.exit = kFound;
            if (options.request) result.out = Request(command, std::move(result.out), *options.request);
            return result;
        }
        return Refuse(ExplainPack(command, packed.outcome, static_cast<std::uint32_t>(records.size()), packed.capacity,
                                  packed.needed));
    } catch (const FillError& error) {
        return Refuse(error.what());
    } catch (const std::bad_alloc&) {
        return Refuse("out of memory");
    }
}

Result ParseText(std::string_view name, std::string_view text, const ParseOptions& options) {
    const Command* const command = FindCommand(name);
    return command != nullptr ? ParseText(*command, text, options) : Refuse(UnknownCommand(name));
}

Result PackText(std::string_view name, std::string_view json, const PackOptions& options) {
    const Command* const command = FindCommand(name);
    return command != nullptr ? PackText(*command, json, options) : Refuse(UnknownCommand(name));
}

} // namespace orrery::tool
