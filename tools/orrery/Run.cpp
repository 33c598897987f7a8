#include "orrery/Run.h"

#include "orrery/Diagnose.h"
#include "orrery/FillRecord.h"
#include "orrery/PrintRecord.h"

#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>
#include <functional>
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
std::string Notes(const Table& table, const json::Value& value) {
    constexpr std::size_t kMost = 8;
    const bool isList = value.type() == json::Type::Array;
    std::vector<std::string> notes;
    for (std::uint32_t i = 0; i < (isList ? value.size() : 1) && notes.size() <= kMost; ++i) {
        const auto more =
            isList ? PassedOver(table, value[i], "[" + std::to_string(i) + "]") : PassedOver(table, value);
        notes.insert(notes.end(), more.begin(), more.end());
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(notes.size(), kMost); ++i)
        text += "orrery: note: " + notes[i] + "\n";
    if (notes.size() > kMost) text += "orrery: note: and more of the kind\n";
    return text;
}

std::string Told(const std::vector<std::string>& notes) {
    std::string text;
    for (const std::string& note : notes)
        text += "orrery: note: " + note + "\n";
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

// Members of the records that leave no trace in the text: it stays as it is without them, though the record does not.
class Traceless {
  public:
    Traceless(const Command& command, const json::Value& root, const std::vector<std::byte>& records,
              const std::string& text)
        : command_(command), records_(records), text_(text), hasPointers_(HasPointers(*command.table)) {
        Visit(root, {}, [](const json::Value& whole) { return whole; });
    }
    std::vector<std::string> notes;

  private:
    static constexpr int kMostTries = 4000;
    using Rebuild = std::function<json::Value(const json::Value&)>;

    void Try(const json::Value& without, const std::string& path) {
        if (++tries_ > kMostTries) return;
        try {
            Memory memory;
            const auto records = FillAll(*command_.table, without, memory);
            // What the record would hold all the same is no loss.
            if (!hasPointers_ && records == records_) return;
            if (PackRecords(command_, records).text == text_) notes.push_back(path + " writes nothing");
        } catch (const FillError&) {
            // Other members need it.
        }
    }

    // Records with pointers differ by their addresses anyway.
    static bool SaysSomething(const json::Value& value) {
        return value.isString() ? !value.asString().empty() : value.size() == 0 && value.asDouble() != 0;
    }

    void Visit(const json::Value& value, const std::string& path, const Rebuild& rebuild) {
        if (value.type() == json::Type::Object) {
            const auto members = value.members();
            for (std::size_t i = 0; i < members.size() && tries_ < kMostTries; ++i) {
                const std::string name = path + (path.empty() ? "" : ".") + std::string(members[i].key());
                std::vector<json::Member> without(members.begin(), members.end());
                without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
                const std::size_t before = notes.size();
                if (!hasPointers_ || SaysSomething(members[i].value))
                    Try(rebuild(json::Value::OfObject(without.data(), static_cast<std::uint32_t>(without.size()))),
                        name);
                // What writes nothing as a whole does so in its parts; what writes something may hold parts that don't.
                const bool isCode = !members[i].value["code"].isNull(); // with its name
                if (notes.size() > before || members[i].value.size() == 0 || isCode) continue;
                Visit(members[i].value, name, [&](const json::Value& changed) {
                    std::vector<json::Member>& with = *levels_.emplace_back(
                        std::make_unique<std::vector<json::Member>>(members.begin(), members.end()));
                    with[i].value = changed;
                    const json::Value whole =
                        rebuild(json::Value::OfObject(with.data(), static_cast<std::uint32_t>(with.size())));
                    return whole;
                });
                levels_.clear();
            }
        } else if (value.type() == json::Type::Array) {
            const auto elements = value.elements();
            for (std::size_t i = 0; i < elements.size() && tries_ < kMostTries; ++i) {
                if (elements[i].type() != json::Type::Object) continue;
                Visit(elements[i], path + "[" + std::to_string(i) + "]", [&](const json::Value& changed) {
                    std::vector<json::Value>& with = *lists_.emplace_back(
                        std::make_unique<std::vector<json::Value>>(elements.begin(), elements.end()));
                    with[i] = changed;
                    return rebuild(json::Value::OfArray(with.data(), static_cast<std::uint32_t>(with.size())));
                });
                lists_.clear();
            }
        }
    }

    const Command& command_;
    const std::vector<std::byte>& records_;
    const std::string& text_;
    bool hasPointers_;
    std::vector<std::unique_ptr<std::vector<json::Member>>> levels_;
    std::vector<std::unique_ptr<std::vector<json::Value>>> lists_;
    int tries_ = 0;
};

// Records behind the first that the text has no place for.
std::vector<std::string> DroppedRecords(const Command& command, const std::vector<std::byte>& records,
                                        const std::string& text) {
    const std::size_t size = command.table->size;
    if (records.size() < 2 * size) return {};
    const std::vector<std::byte> first(records.begin(), records.begin() + static_cast<std::ptrdiff_t>(size));
    if (PackRecords(command, first).text != text) return {};
    return {std::to_string(records.size() / size) + " records, of which the text holds the first only"};
}

// ---- Parsing ----

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
    const PrintOptions print{options_.all, options_.brief};
    const bool asList = reply.isList || count != 1;
    Result result;
    result.out = (asList ? PrintRecords(table_, buffer_.bytes.data(), count, print)
                         : PrintRecord(table_, buffer_.bytes.data(), print))
                     .Print();
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

Result ParseText(const Command& command, std::string_view text, const ParseOptions& options) {
    if (!command.parses()) return Refuse(ExplainParse(command, Outcome::UnknownCommand, Document({}), 0));
    if (command.table == nullptr) return Refuse(std::string(command.name) + " has no record of fixed layout");
    try {
        return Parse(command, text, options).Run();
    } catch (const FillError& error) {
        return Refuse(error.what());
    } catch (const std::bad_alloc&) {
        return Refuse("out of memory");
    }
}

Result PackText(const Command& command, std::string_view json, const PackOptions& options) {
    if (!command.packs()) return Refuse(ExplainPack(command, Outcome::UnknownCommand, 0, 0, 0));
    if (command.table == nullptr) return Refuse(std::string(command.name) + " has no record of fixed layout");
    try {
        const Document document(json);
        if (!document.ok) return Refuse(ExplainSyntax(document));
        Memory memory;
        const auto records = FillAll(*command.table, document.root, memory);
        const Packed packed = PackRecords(command, records, options.capacity);
        if (packed.outcome == Outcome::Done) {
            Result result{kDone, packed.text, Notes(*command.table, document.root)};
            result.err += Told(DroppedRecords(command, records, packed.text));
            if (options.warn || options.strict)
                result.err += Told(Traceless(command, document.root, records, packed.text).notes);
            if (options.strict && !result.err.empty()) result.exit = kFound;
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
