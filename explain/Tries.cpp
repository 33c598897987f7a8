#include "explain/Tries.h"

#include "analyse/RuleFrame.h"
#include "events/EventCodecs.h"
#include "events/EventMap.h"
#include "events/ReqRealPicture.h"
#include "frame/PackedItems.h"
#include "frame/ReplySteps.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <span>

namespace orrery::explain {

using namespace record;
using json::Value;

namespace {

constexpr std::uint32_t kRoom = 32; // elements behind each of a caller's pointers
constexpr std::size_t kLargestBuffer = std::size_t{64} << 20;
constexpr std::size_t kMostWork = std::size_t{64} << 20; // bytes of text that are translated for the tries of one call

class Hash {
  public:
    void Add(const void* bytes, std::size_t size) {
        const auto* const at = static_cast<const unsigned char*>(bytes);
        std::size_t i = 0;
        for (; i + 8 <= size; i += 8) {
            std::uint64_t word;
            std::memcpy(&word, at + i, 8);
            Word(word);
        }
        std::uint64_t rest = size - i + 1;
        for (; i < size; ++i)
            rest = rest << 8 | at[i];
        Word(rest);
    }
    std::uint64_t value() const { return value_; }

  private:
    void Word(std::uint64_t word) {
        value_ = (value_ ^ word) * 0x9E3779B97F4A7C15u;
        value_ ^= value_ >> 29;
    }
    std::uint64_t value_ = 0x243F6A8885A308D3u;
};

// A record with all that its pointers lead to, but for the addresses themselves.
void Add(Hash& hash, const Table& table, const std::byte* record) {
    if (!table.hasPointers && table.items == nullptr) return hash.Add(record, table.size);
    for (const Field& field : table) {
        if (field.size == 0 || field.alias) continue;
        const std::byte* const at = record + field.offset;
        if (field.cell == Cell::Record && field.table->hasPointers) {
            for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
                Add(hash, *field.table, at + std::size_t{i} * field.elementSize);
        } else if (field.cell == Cell::Pointer && field.rank == 0) {
            const auto* const first = Load<const std::byte*>(at);
            if (first == nullptr || table.items != nullptr) continue; // items are hashed as the bytes that they are
            if (field.table == nullptr) {
                const auto* const text = reinterpret_cast<const char*>(first);
                hash.Add(text, std::strlen(text));
            } else if (!field.count.exists() && !field.capacity.exists()) {
                Add(hash, *field.table, first);
            } else {
                std::int64_t count = field.count.exists() ? LoadSlot(field.count, record) : kRoom;
                if (field.capacity.exists()) count = std::min(count, LoadSlot(field.capacity, record));
                for (std::int64_t i = 0; i < count; ++i)
                    Add(hash, *field.table, first + i * field.table->size);
            }
        } else if (field.cell != Cell::Pointer) {
            hash.Add(at, field.size);
        }
    }
}

class Memory {
  public:
    std::byte* Allocate(std::size_t size) {
        blocks_.push_back(std::make_unique<std::byte[]>(size));
        return blocks_.back().get();
    }

  private:
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
};

// What a caller prepares: size words, and room behind its pointers.
void Prepare(const Table& table, std::byte* record, Memory& memory, int depth = 0) {
    if (table.hasSizeWords) SetSizeWords(table, record);
    if (!table.hasPointers || depth > 3) return;
    for (const Field& field : table) {
        if (field.alias) continue;
        if (field.cell == Cell::Record && field.table->hasPointers) {
            for (std::uint32_t i = 0; i < field.size / field.elementSize; ++i)
                Prepare(*field.table, record + field.offset + std::size_t{i} * field.elementSize, memory, depth + 1);
        }
        if (field.cell != Cell::Pointer || field.rank != 0 || field.owned || field.table == nullptr
            || !field.capacity.exists())
            continue;
        std::byte* const block = memory.Allocate(std::size_t{kRoom} * field.table->size);
        for (std::uint32_t i = 0; i < kRoom; ++i)
            Prepare(*field.table, block + std::size_t{i} * field.table->size, memory, depth + 1);
        Store(record + field.offset, block);
        StoreSlot(field.capacity, record, kRoom);
    }
}

class Translation {
  public:
    Translation(const Command* command, const Value& root, std::uint32_t records) : command_(command) {
        if (command_ == nullptr) return;
        const Table& table = *command_->table;
        records_ = std::clamp<std::uint32_t>(
            records, 1, static_cast<std::uint32_t>(std::max<std::size_t>(1, kLargestBuffer / table.size)));
        if (command_->parse == Command::Frame::Family && command_->parseFrame.exactSize) records_ = 1;
        if (table.items != nullptr) {
            const Value& rules = command_->parseFrame.source == Source::Top
                                     ? FindValue(Source::Top, command_->parseFrame.name, root)
                                     : FindValue(Source::Table, "", root);
            itemBytes_ = std::max<std::uint32_t>(RuleArraySizeNeeded(rules), 64);
        }
    }

    std::uint64_t Of(const std::string& text) const {
        Hash hash;
        if (command_ == nullptr) {
            DeliverEvents(text.c_str(), AddEvent, &hash);
            return hash.value();
        }
        const Table& table = *command_->table;
        Memory memory;
        const std::size_t size = std::size_t{records_} * table.size;
        std::byte* const buffer = memory.Allocate(size);
        for (std::uint32_t i = 0; i < records_; ++i)
            Prepare(table, buffer + std::size_t{i} * table.size, memory);
        std::byte* items = nullptr;
        if (const PackedItems* const packed = table.items) {
            items = memory.Allocate(itemBytes_);
            Store(buffer + packed->pointer, items);
            StoreSlot(packed->bytes, buffer, itemBytes_);
        }
        std::uint32_t length = 0;
        const Outcome outcome = RunParse(*command_, {text.c_str(), buffer, static_cast<std::uint32_t>(size), &length});
        if (outcome == Outcome::OutOfMemory) throw std::bad_alloc();
        hash.Add(&outcome, sizeof outcome);
        hash.Add(&length, sizeof length);
        for (std::uint32_t i = 0; i < records_; ++i)
            Add(hash, table, buffer + std::size_t{i} * table.size);
        if (items != nullptr) hash.Add(items, itemBytes_);
        return hash.value();
    }

  private:
    static std::int32_t AddEvent(std::uint32_t type, const void* record, std::uint32_t, void*, std::int32_t,
                                 void* user) noexcept {
        auto& hash = *static_cast<Hash*>(user);
        hash.Add(&type, sizeof type);
        if (const events::EventRow* const row = events::FindEvent(type))
            Add(hash, *row->table, static_cast<const std::byte*>(record));
        return 0;
    }

    const Command* command_;
    std::uint32_t records_ = 1;
    std::uint32_t itemBytes_ = 0;
};

// What one look at a function settles: the first finding of a kind at a place.
struct Subject {
    Finding* finding;
    std::string name;
    bool isRead = false;
};

// By record and key: what is read of one element is read of all.
std::string NameOf(const Finding& finding, std::string_view text) {
    std::string name = std::to_string(finding.kind) + finding.field + '|';
    for (std::size_t i = 0; i < finding.path.size(); ++i) { // without the places in lists
        name += finding.path[i];
        if (finding.path[i] != '[') continue;
        const std::size_t close = finding.path.find(']', i);
        i = close == std::string::npos ? i : close;
    }
    if (finding.kind != ORRERY_FINDING_UNKNOWN_KEY)
        name += text.substr(finding.valueOffset, finding.valueEnd - finding.valueOffset);
    return name;
}

// What stands in the place of a value that some function may read: one of them changes what it reads, be it that the
// key is there, a number, a text or a list.
constexpr std::string_view kLoud[] = {"null", "1", "\"1\"", "true", "[1,1,1,1]", "2.5"};
// A value that is read and says nothing is no mistake: without it, or with a text that nobody knows, all stays the
// same.
std::string_view Instead(int kind, std::size_t round) {
    if (kind == ORRERY_FINDING_UNKNOWN_KEY) return kLoud[round];
    return kind == ORRERY_FINDING_UNKNOWN_TEXT ? "\"\\u0001 no such text\"" : "null";
}

// Most of what is tried nothing reads, so it is tried all at once, and only where that changes a record by halves.
class Tries {
  public:
    Tries(const Translation& translation, std::string_view text) : translation_(translation), text_(text) {}

    // The values of the subjects stand one behind the other.
    void Settle(std::span<Subject> subjects) {
        if (subjects.empty() || !IsAnyRead(subjects)) return;
        if (subjects.size() == 1) {
            subjects.front().isRead = true;
            return;
        }
        Settle(subjects.first(subjects.size() / 2));
        Settle(subjects.subspan(subjects.size() / 2));
    }

  private:
    bool IsAnyRead(std::span<const Subject> subjects) {
        const bool isKey = std::ranges::any_of(
            subjects, [](const Subject& each) { return each.finding->kind == ORRERY_FINDING_UNKNOWN_KEY; });
        for (std::size_t round = 0; round < (isKey ? std::size(kLoud) : 1); ++round) {
            if (work_ > kMostWork) return false;
            if (!whole_) whole_ = Translate(std::string(text_));
            std::string changed;
            changed.reserve(text_.size());
            std::size_t at = 0;
            for (const Subject& subject : subjects) {
                changed += text_.substr(at, subject.finding->valueOffset - at);
                changed += Instead(subject.finding->kind, round);
                at = subject.finding->valueEnd;
            }
            changed += text_.substr(at);
            if (Translate(changed) != *whole_) return true;
        }
        return false;
    }
    std::uint64_t Translate(const std::string& text) {
        work_ += text.size();
        return translation_.Of(text);
    }

    const Translation& translation_;
    std::string_view text_;
    std::optional<std::uint64_t> whole_;
    std::size_t work_ = 0;
};

} // namespace

void DropWhatIsRead(const Command* command, std::string_view text, const Value& root, std::uint32_t records,
                    std::vector<Finding>& findings) {
    std::vector<Subject> all;
    std::map<std::string, bool> isRead;
    for (Finding& finding : findings) {
        if (!finding.isTried || finding.valueEnd == 0) continue;
        std::string name = NameOf(finding, text);
        if (isRead.emplace(name, false).second) all.push_back({&finding, std::move(name)});
    }
    std::ranges::stable_sort(all, std::less{}, [](const Subject& each) { return each.finding->valueOffset; });
    std::vector<Subject> subjects, inside; // those inside the value of another are tried one by one
    std::size_t end = 0;
    for (Subject& subject : all) {
        const bool isInside = subject.finding->valueOffset < end;
        if (!isInside) end = subject.finding->valueEnd;
        (isInside ? inside : subjects).push_back(std::move(subject));
    }
    const Translation translation(command, root, records);
    Tries tries(translation, text);
    tries.Settle(subjects);
    for (Subject& subject : inside)
        tries.Settle({&subject, 1});
    for (const auto* const settled : {&subjects, &inside})
        for (const Subject& subject : *settled)
            isRead[subject.name] = subject.isRead;
    std::erase_if(findings, [&](const Finding& finding) {
        return finding.isTried && finding.valueEnd != 0 && isRead[NameOf(finding, text)];
    });
}

} // namespace orrery::explain
