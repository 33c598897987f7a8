#include "support/CommandCalls.h"

#include "frame/JsonParser.h"
#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <json/json.h>
#include <memory>
#include <sstream>

namespace orrery::test {

namespace {

using record::Cell;
using record::Field;
using record::Kind;
using record::Table;

bool IsAll(std::span<const std::byte> bytes, std::byte value) {
    return bytes.empty() || (bytes[0] == value && std::memcmp(bytes.data(), bytes.data() + 1, bytes.size() - 1) == 0);
}

// What a failed call leaves of a buffer that was cleared, or of one that was not reached.
void CheckFailure(const Command& command, Outcome outcome, std::span<const std::byte> bytes,
                  const std::vector<std::byte>& before) {
    switch (outcome) {
    case Outcome::Done:
    case Outcome::BadItem:    // delivers what was placed before it
    case Outcome::RowRefused: // delivers what was read before it
        return;
    case Outcome::BadArguments:
    case Outcome::UnknownCommand:
    case Outcome::BufferTooSmall:
    case Outcome::NotAccepted:
        EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), before.begin())) << command.name << ": touched by a refusal";
        return;
    default:
        break;
    }
    if (!ClearsBuffer(command)) return;
    const bool parsed = outcome != Outcome::NoJson && outcome != Outcome::OutOfMemory;
    if (!parsed || command.parse == Command::Frame::Generic || command.parseFrame.parsed == nullptr) {
        EXPECT_TRUE(IsAll(bytes, std::byte{0}))
            << command.name << ": not cleared by failure " << static_cast<int>(outcome);
        return;
    }
    std::vector<std::byte> expected(bytes.size());
    command.parseFrame.parsed(expected.data());
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), expected.begin())) << command.name;
}

} // namespace

bool ClearsBuffer(const Command& command) {
    if (command.parse == Command::Frame::Generic) return command.genericFrame.zeroBuffer;
    return command.parse == Command::Frame::Family && command.parseFrame.clearing == Clearing::Buffer;
}

ParseCalls::ParseCalls(const Command& command, std::size_t most) : command_(command), buffer_(most + kFront) {}

Outcome ParseCalls::Run(const char* text, std::size_t size, std::byte filling) {
    auto* const end = reinterpret_cast<std::byte*>(buffer_.data() + buffer_.size());
    bytes_ = {end - size, size};
    std::memset(end - size - kFront, static_cast<int>(kUntouched), kFront);
    std::memset(bytes_.data(), static_cast<int>(filling), size);
    memory_.Reset();
    memory_.PrepareBuffer(command_, bytes_.data(), size);
    // What a call that turns its buffer away leaves there; others clear it or write to it.
    const bool turnsAway = size < command_.table->size || !command_.parses() || command_.parseFrame.exactSize;
    if (turnsAway) before_.assign(bytes_.begin(), bytes_.end());
    length_ = 0;
    const Outcome outcome = RunParse(command_, {text, bytes_.data(), static_cast<std::uint32_t>(size), &length_});
    EXPECT_TRUE(IsAll({end - size - kFront, kFront}, kUntouched)) << command_.name << ": wrote in front of its buffer";
    if (before_.size() != size) before_.assign(size, filling);
    const bool turnedAway = command_.parseFrame.needsText && *text == '\0';
    if (turnedAway) {
        EXPECT_TRUE(std::equal(bytes_.begin(), bytes_.end(), before_.begin())) << command_.name;
    } else if (outcome != Outcome::Done) {
        CheckFailure(command_, outcome, bytes_, before_);
    }
    before_.clear();
    EXPECT_TRUE(length_ <= size || TellsMoreThanItFills(command_)) << command_.name << ": " << length_;
    return outcome;
}

bool TellsMoreThanItFills(const Command& command) {
    const bool isTold = command.parse == Command::Frame::Family && command.parseFrame.length == ReplyLength::Told;
    return isTold || command.parseFrame.anySize;
}

Packed Pack(const Command& command, const void* record, std::size_t size) {
    constexpr std::size_t kRoom = std::size_t{32} << 20;
    thread_local const std::unique_ptr<char[]> room(new char[kRoom]); // pages are taken as texts need them
    std::size_t capacity = std::size_t{64} << 10;
    // Packing clears the whole of its buffer, so a large one is for the few texts that need it.
    for (;; capacity *= 8) {
        // Commands that write nothing behind their text leave it without an end in a buffer that was used before.
        if (command.packFrame.capacity == Capacity::Bare) std::memset(room.get(), 0, capacity);
        const PackRequest request{record, static_cast<std::uint32_t>(size), room.get(),
                                  static_cast<std::uint32_t>(capacity)};
        const Outcome outcome = RunPack(command, request);
        if (outcome == Outcome::TextTooLong && capacity < kRoom) continue;
        if (outcome != Outcome::Done) return {outcome, {}};
        const std::size_t length = strnlen(room.get(), capacity);
        // A text that just fits may have lost its newline.
        if (length + 1 >= capacity && capacity < kRoom) continue;
        return {outcome, std::string(room.get(), length)};
    }
}

namespace {

std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        constexpr std::string_view kLetters = "btnfr";
        const std::size_t letter = kLetters.find(text[++i]);
        plain += letter == std::string_view::npos ? text[i] : "\b\t\n\f\r"[letter];
    }
    return plain;
}

} // namespace

std::string FlawOf(std::string_view packed) {
    struct Open {
        char closing;
        std::string last;
        bool isFirst = true;
    };
    std::vector<Open> open;
    if (packed.empty() || packed.back() != '\n') return "no newline at its end";
    for (std::size_t i = 0; i < packed.size(); ++i) {
        const char c = packed[i];
        if (c == '{' || c == '[') {
            open.push_back({c == '{' ? '}' : ']', {}});
        } else if (c == '}' || c == ']') {
            if (open.empty() || open.back().closing != c) return "a bracket that does not match";
            open.pop_back();
        } else if (c == '"') {
            const std::size_t start = ++i;
            while (i < packed.size() && packed[i] != '"')
                i += packed[i] == '\\' ? 2 : 1;
            if (i >= packed.size()) return "a string without an end";
            if (!packed.substr(i + 1).starts_with(" : ")) continue;
            if (open.empty() || open.back().closing != '}') return "a key outside an object";
            const std::string key = Unescaped(packed.substr(start, i - start));
            const auto below = [](char a, char b) {
                return static_cast<unsigned char>(a) < static_cast<unsigned char>(b);
            };
            Open& object = open.back();
            const bool inOrder =
                object.isFirst
                || std::lexicographical_compare(object.last.begin(), object.last.end(), key.begin(), key.end(), below);
            if (!inOrder) return "key '" + key + "' after '" + object.last + "'";
            object.last = key;
            object.isFirst = false;
        }
    }
    return open.empty() ? "" : "a bracket without an end";
}

std::string FlawOfJson(std::string_view packed) {
    if (std::string flaw = FlawOf(packed); !flaw.empty()) return flaw;
    Json::CharReaderBuilder builder;
    builder["strictRoot"] = false;
    builder["rejectDupKeys"] = true;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    if (reader->parse(packed.data(), packed.data() + packed.size(), &root, &errors)) return {};
    return "no JSON: " + errors;
}

namespace {

// Whether the key of a row goes out for this record.
bool IsOut(const Field& field, const std::byte* record) {
    const std::byte* const at = record + field.offset;
    if (field.flag.exists() && record::LoadSlot(field.flag, record) == 0) return false;
    if (field.condition.exists() && record::LoadSlot(field.condition, record) == 0) return false;
    if (field.when != nullptr && !field.when(record)) return false;
    if (field.count.exists() && record::LoadSlot(field.count, record) <= 0) return false;
    if (field.rank > 0 || field.cell == Cell::F32 || field.cell == Cell::F64) return true;
    const std::int64_t number = record::LoadInteger(field.cell, at);
    if (field.hasUnless && number == field.unless) return false;
    if (field.notNegative && number < 0) return false;
    return number <= field.atMost || field.kind == Kind::Text || field.kind == Kind::RawText;
}

// Whether an element that is held back moves those behind it.
bool ClosesUp(const Field& field, const std::byte* record) {
    if (field.skipped != record::Skipped::ClosesUp || field.kind != Kind::Record || !field.count.exists()) return false;
    const bool isPointer = field.cell == Cell::Pointer;
    const std::byte* const first =
        isPointer ? record::Load<const std::byte*>(record + field.offset) : record + field.offset;
    const std::int64_t room = isPointer ? record::LoadSlot(field.capacity, record) : field.dims[0];
    for (std::int64_t i = 0; first != nullptr && i < record::LoadSlot(field.count, record) && i < room; ++i) {
        if (!record::IsWritten(*field.table, first + i * std::int64_t{field.table->size})) return true;
    }
    return false;
}

bool IsBothWays(const Field& field) {
    if (field.key == nullptr || !field.readable || !field.writable || field.fromRoot) return false;
    if (field.kind == Kind::None || record::WritesNoKey(field.kind)) return false;
    return field.kind != Kind::Custom
           || (field.custom->sample != nullptr && field.custom->read != nullptr && field.custom->write != nullptr);
}

// Whether what is written for one element reads as that element.
bool ComesBack(const Field& field, const std::byte* at) {
    if (field.kind == Kind::Names) {
        const auto code = static_cast<std::int32_t>(record::LoadInteger(field.cell, at));
        const record::Name* const row = field.names->RowOf(code);
        return row != nullptr && field.names->CodeOf(row->text) == code;
    }
    if (field.kind == Kind::SplitMode) {
        std::array<char, 32> room;
        const auto mode = record::Load<std::int32_t>(at);
        return JsonParser::GetSplitMode(JsonParser::SplitModeText(mode, room)) == mode;
    }
    if (field.kind == Kind::ClockTime) return false; // its date does not travel: compared by its time below
    if (field.only == record::OnlyType::Bool) return field.writtenAs == Kind::Bool;
    return true;
}

class Comparison {
  public:
    std::vector<std::string> found;

    void Records(const Table& table, const std::byte* written, const std::byte* read, const std::string& path) {
        if (!record::IsWritten(table, written)) return;
        for (const Field& field : table) {
            const PackedItems* const items = BareItemsBehind(table);
            if (items != nullptr && field.size > 0 && field.offset == items->pointer) {
                Items(*items, table, written, read, path + "." + field.name);
                continue;
            }
            if (!IsBothWays(field) || !IsOut(field, written) || (field.linkage && !isLinked_)) continue;
            // Another row with the same key may have the word in its place.
            const bool shared = std::any_of(table.begin(), table.end(), [&](const Field& other) {
                return &other != &field && other.key != nullptr && std::string_view(other.key) == field.key
                       && other.writable && other.kind != Kind::Presence;
            });
            if (shared) continue;
            const std::string at = path + "." + field.name;
            if (ClosesUp(field, written)) continue;
            // A flag over nothing, and a count beside a room that is written whole, do not travel.
            const record::Slot flag = field.unlessBare ? record::Slot{} : field.flag;
            const record::Slot count = field.fullCapacity ? record::Slot{} : field.count;
            for (const record::Slot& slot : {flag, count}) {
                if (record::LoadSlot(slot, written) != record::LoadSlot(slot, read)) found.push_back(at + ": its slot");
            }
            Fields(field, written, read, at);
        }
    }

  private:
    bool isLinked_ = true; // whether rules have their linkage themselves

    void Items(const PackedItems& items, const Table& table, const std::byte* written, const std::byte* read,
               const std::string& path) {
        for (const record::Slot& slot : {items.code, items.size, items.count}) {
            if (record::LoadSlot(slot, written) != record::LoadSlot(slot, read)) found.push_back(path + ": its slot");
        }
        const auto* from = record::Load<const std::byte*>(written + items.pointer);
        const auto* to = record::Load<const std::byte*>(read + items.pointer);
        const ItemType type = items.typeOf(static_cast<std::uint32_t>(record::LoadSlot(items.code, written)));
        if (from == nullptr || to == nullptr || type.table == nullptr) return;
        isLinked_ = std::none_of(table.begin(), table.end(), [&](const Field& field) {
            return field.flag.exists() && record::LoadSlot(field.flag, written) != 0;
        });
        const std::int64_t stride = record::LoadSlot(items.size, written);
        for (std::int64_t i = 0; i < record::LoadSlot(items.count, written); ++i, from += stride, to += stride)
            Records(*type.table, from, to, path + "[" + std::to_string(i) + "]");
        isLinked_ = true;
    }

    void Fields(const Field& field, const std::byte* written, const std::byte* read, const std::string& path) {
        const std::byte* from = written + field.offset;
        const std::byte* to = read + field.offset;
        // A function's records too, where they hold pointers: each caller has places of its own behind them.
        const bool ofRecords = field.kind == Kind::Record
                               || (field.kind == Kind::Custom && field.cell == Cell::Record && field.table != nullptr
                                   && HasPointers(*field.table));
        std::size_t size = ofRecords ? field.table->size : field.elementSize;
        std::size_t count = field.size / (size == 0 ? 1 : size);
        if ((field.kind == Kind::Custom && !ofRecords) || field.kind == Kind::Schedule) {
            size = field.size;
            count = 1;
        }
        if (field.cell == Cell::Pointer) {
            from = record::Load<const std::byte*>(from);
            to = record::Load<const std::byte*>(to);
            count = field.capacity.exists() ? static_cast<std::size_t>(record::LoadSlot(field.capacity, written)) : 1;
            if (from == nullptr || to == nullptr) return;
            if (field.table != nullptr) size = field.table->size;
        }
        if (field.count.exists() && (field.kind != Kind::Custom || field.cell == Cell::Pointer || ofRecords)) {
            const auto used = static_cast<std::size_t>(record::LoadSlot(field.count, written));
            count = std::min(count, used * (field.rank > 1 ? count / field.dims[0] : 1));
        }
        for (std::size_t i = 0; i < count; ++i, from += size, to += size) {
            const std::string at = count > 1 ? path + "[" + std::to_string(i) + "]" : path;
            if (ofRecords) {
                Records(*field.table, from, to, at);
            } else if (field.kind == Kind::ClockTime) {
                const std::size_t date = offsetof(NET_TIME, dwHour);
                if (std::memcmp(from + date, to + date, size - date) != 0) found.push_back(at);
            } else if (ComesBack(field, from) && std::memcmp(from, to, size) != 0) {
                found.push_back(at);
            }
        }
    }
};

} // namespace

std::vector<std::string> Differences(const Table& table, const std::byte* written, const std::byte* read) {
    Comparison comparison;
    comparison.Records(table, written, read, table.record);
    return comparison.found;
}

} // namespace orrery::test
