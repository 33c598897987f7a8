#include "explain/Packs.h"

#include "explain/WalkParts.h"

#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace orrery::explain {

using namespace record;

namespace {

constexpr std::size_t kFirstRoom = std::size_t{64} << 10;
constexpr std::size_t kMostRoom = std::size_t{1} << 30;
constexpr std::size_t kMostWork = std::size_t{1} << 30; // bytes of records and texts that the tries of one call pass

bool IsZero(const std::byte* at, std::size_t size) {
    return size == 0 || (at[0] == std::byte{0} && std::memcmp(at, at + 1, size - 1) == 0);
}

class Packs {
  public:
    Packs(const Command& command, const std::byte* records, std::uint32_t size)
        : command_(command), table_(*command.table), bytes_(records, records + size), text_(kFirstRoom) {}

    Explanation Explain(bool tries);

  private:
    // The text of what `bytes_` holds now.
    Outcome Pack(std::string& text);
    bool LeavesNoTrace(std::byte* at, std::size_t size);
    void Told(int kind, int gravity, const Table* table, const Field* field, std::string path, std::string message);
    void Members(const Table& table, std::byte* record, const std::string& path);
    void Elements(const Table& table, const Field& field, std::byte* at, int level, const std::string& path);
    void Code(const Table& table, const Field& field, const std::byte* at, const std::string& path);

    const Command& command_;
    const Table& table_;
    std::vector<std::byte> bytes_;
    std::vector<char> text_;
    std::string whole_;
    std::size_t work_ = 0;
    Explanation explanation_;
};

Outcome Packs::Pack(std::string& text) {
    const std::byte none{};
    for (;;) {
        std::fill(text_.begin(), text_.end(), '\0'); // some commands write no terminator
        const Outcome outcome =
            RunPack(command_, {bytes_.empty() ? &none : bytes_.data(), static_cast<std::uint32_t>(bytes_.size()),
                               text_.data(), static_cast<std::uint32_t>(text_.size())});
        if (outcome == Outcome::OutOfMemory) throw std::bad_alloc();
        if (outcome == Outcome::TextTooLong && text_.size() < kMostRoom) {
            text_.assign(text_.size() * 4, '\0');
            continue;
        }
        text.assign(text_.data(), outcome == Outcome::Done ? strnlen(text_.data(), text_.size()) : 0);
        return outcome;
    }
}

bool Packs::LeavesNoTrace(std::byte* at, std::size_t size) {
    work_ += bytes_.size() + text_.size();
    if (work_ > kMostWork) return false;
    const std::vector<std::byte> kept(at, at + size);
    std::memset(at, 0, size);
    std::string text;
    const bool isSame = Pack(text) == Outcome::Done && text == whole_;
    std::memcpy(at, kept.data(), size);
    return isSame;
}

void Packs::Told(int kind, int gravity, const Table* table, const Field* field, std::string path, std::string message) {
    Finding& finding = explanation_.findings.emplace_back();
    finding.kind = kind;
    finding.gravity = gravity;
    finding.path = std::move(path);
    finding.message = std::move(message);
    if (field != nullptr) finding.field = FieldName(*table, *field);
}

void Packs::Code(const Table& table, const Field& field, const std::byte* at, const std::string& path) {
    const std::int64_t code = LoadInteger(field.cell, at);
    const NameTable& names = *field.names;
    if (code >= INT32_MIN && code <= INT32_MAX && names.RowOf(static_cast<std::int32_t>(code)) != nullptr) return;
    // A code that reading gives for unknown texts is no mistake of the caller's.
    if (!names.unknownLeaves && code == names.unknownCode) return;
    Told(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, &table, &field, path,
         std::to_string(code) + " is no code: no name is written for it");
}

void Packs::Elements(const Table& table, const Field& field, std::byte* at, int level, const std::string& path) {
    const int rank = std::min<int>(field.rank, Field::kMaxRank);
    std::size_t stride = field.elementSize;
    for (int i = rank - 1; i > level; --i)
        stride *= field.dims[i];
    if (level == rank) {
        if (field.cell == Cell::Record)
            Members(*field.table, at, path + ".");
        else if (field.kind == Kind::Names && field.writtenAs == Kind::Names && field.writable)
            Code(table, field, at, path);
        return;
    }
    for (std::uint32_t i = 0; i < field.dims[level]; ++i, at += stride) {
        if (IsZero(at, stride)) continue;
        const std::string element = path + "[" + std::to_string(i) + "]";
        if (LeavesNoTrace(at, stride))
            Told(ORRERY_FINDING_WRITES_NOTHING, ORRERY_FINDING_LOST, &table, &field, element, "writes nothing");
        else
            Elements(table, field, at, level + 1, element);
    }
}

void Packs::Members(const Table& table, std::byte* record, const std::string& path) {
    for (const Field& field : table) {
        if (field.alias || field.size == 0 || field.kind == Kind::Size) continue;
        std::byte* const at = record + field.offset;
        if (IsZero(at, field.size)) continue;
        const bool isWhole = field.rank == 0 && field.cell != Cell::F32 && field.cell != Cell::F64;
        if (field.hasDefault && isWhole && LoadInteger(field.cell, at) == field.defaultValue) continue;
        const std::string name = path + field.name;
        if (LeavesNoTrace(at, field.size))
            Told(ORRERY_FINDING_WRITES_NOTHING, ORRERY_FINDING_LOST, &table, &field, name, "writes nothing");
        else
            Elements(table, field, at, 0, name);
    }
}

Explanation Packs::Explain(bool tries) {
    const Outcome outcome = Pack(whole_);
    const std::size_t one = table_.size;
    if (outcome != Outcome::Done) {
        const bool isSmall = outcome == Outcome::RecordTooSmall;
        const char* const why = outcome == Outcome::NotAccepted  ? "the command tests the record before, and refuses it"
                                : outcome == Outcome::BadItem    ? "an item is of a type that the command does not know"
                                : outcome == Outcome::RowRefused ? "a member of the record has no text"
                                : outcome == Outcome::TextTooLong ? "the text is longer than a gigabyte"
                                                                  : "the command refuses the record";
        Told(ORRERY_FINDING_REFUSED, ORRERY_FINDING_FATAL, nullptr, nullptr, {},
             isSmall ? "one record has " + std::to_string(one) + " bytes, there are " + std::to_string(bytes_.size())
                     : why);
        explanation_.isRefused = true;
        return std::move(explanation_);
    }
    const std::size_t count = bytes_.size() / one;
    std::size_t written = count;
    if (count > 1) { // what the first alone writes too has no place for the others
        std::vector<std::byte> all(bytes_);
        bytes_.resize(one);
        std::string first;
        const bool isSame = Pack(first) == Outcome::Done && first == whole_;
        bytes_ = std::move(all);
        if (isSame) {
            written = 1;
            Told(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, nullptr, nullptr, "[1]",
                 std::to_string(count) + " records, of which the text holds the first only");
            explanation_.findings.back().lost = static_cast<std::uint32_t>(count - 1);
        }
    }
    if (bytes_.size() % one != 0)
        Told(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, nullptr, nullptr, {},
             "behind " + Plural(count, "record") + " stand " + Plural(bytes_.size() % one, "byte")
                 + " that are no record");
    for (std::size_t i = 0; tries && i < written; ++i)
        Members(table_, bytes_.data() + i * one, count > 1 ? "[" + std::to_string(i) + "]." : "");
    return std::move(explanation_);
}

} // namespace

Explanation ExplainRecords(const Command& command, const std::byte* records, std::uint32_t size, bool tries) {
    return Packs(command, records, size).Explain(tries);
}

} // namespace orrery::explain
