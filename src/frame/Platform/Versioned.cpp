#include "frame/Platform/Versioned.h"

#include "frame/Platform/ParamConvert.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery {

namespace {

using record::Cell;
using record::Field;
using record::Table;

// Calls `input(offset, size)` for every pointer of the record, nested ones included, and for the room behind it.
template <class Input>
void ForEachInput(const Table& table, std::uint32_t at, const Input& input) noexcept {
    if (!table.hasPointers) return;
    for (const Field& field : table) {
        if (field.cell == Cell::Record) {
            for (std::uint32_t part = 0; part < field.size; part += field.table->size)
                ForEachInput(*field.table, at + field.offset + part, input);
            continue;
        }
        if (field.cell == Cell::Pointer) input(at + field.offset, field.size);
        if (field.capacity.exists()) input(at + field.capacity.offset, record::build::SizeOf(field.capacity.cell));
    }
}

// Whether a function takes part in reading the record, or something in it starts only once it is read.
bool HasFunctions(const Table& table) noexcept {
    if (table.afterRead != nullptr || table.startsWhenRead || table.amongKeys != nullptr) return true;
    return std::ranges::any_of(table, [](const Field& field) {
        const bool hasPart = field.cell == Cell::Record || field.kind == record::Kind::Record;
        return field.kind == record::Kind::Custom || (hasPart && HasFunctions(*field.table));
    });
}

// Calls `test` with the place of the last byte of every text of the record itself, up to the first that fails.
template <class Test>
bool AllLastBytes(const Table& table, const Test& test) noexcept {
    for (const Field& field : table) {
        if (field.cell != Cell::Char || field.alias) continue;
        for (std::uint32_t end = field.elementSize; end <= field.size; end += field.elementSize) {
            if (!test(field.offset + end - 1)) return false;
        }
    }
    return true;
}

// All fields at once. What stands behind a text's terminator comes along, where nobody who writes looks.
void TakeWhole(const Table& table, const std::byte* caller, std::byte* local) noexcept {
    const auto word = record::Load<std::uint32_t>(local);
    std::memcpy(local, caller, table.size);
    record::Store(local, word);
    AllLastBytes(table, [local](std::uint32_t last) {
        local[last] = std::byte{0};
        return true;
    });
}

} // namespace

std::uint32_t StrideByWord(Stride how, const std::byte* first, std::uint32_t bufferSize) noexcept {
    constexpr std::uint32_t kWord = sizeof(std::uint32_t);
    if (bufferSize < kWord) return 0;
    const auto word = record::Load<std::uint32_t>(first);
    if (word == 0 || word > bufferSize) return 0;
    // Of a record that has not even its word no field moves, but a block must have it.
    if (word >= kWord || how == Stride::SizeWordByField) return word;
    LogSizeWord();
    return 0;
}

bool VersionedRecords::AreReadInPlace(const Table& table, Stride how, std::uint32_t stride) noexcept {
    constexpr std::uint32_t kLarge = 4096; // below it a second record costs less than a look at all rows
    return how == Stride::SizeWord && stride == table.size && stride >= kLarge && table.hasDefaults
           && !table.hasPointers && !HasFunctions(table);
}

std::optional<StayingBytes> VersionedRecords::ReadInPlaceByField(const Table& table, Stride how,
                                                                 std::uint32_t stride) noexcept {
    const bool isOwn = how == Stride::SizeWordByField && stride == table.size && table.hasDefaults;
    if (!isOwn || HasFunctions(table)) return std::nullopt;
    StayingBytes staying;
    for (const Field& field : table) {
        if (field.alias || field.size == 0) continue;
        // Bytes between fields are the caller's, and so is the last byte of a text that may have no end.
        if (field.offset != staying.end || field.kind == record::Kind::FullText) return std::nullopt;
        staying.end += field.size;
    }
    bool fits = true;
    ForEachInput(table, 0, [&](std::uint32_t at, std::uint32_t size) {
        fits = fits && staying.count < StayingBytes::kMostRuns && size <= StayingBytes::kMostBytes;
        if (fits) staying.runs[staying.count++] = {at, size};
    });
    return fits ? std::optional(staying) : std::nullopt;
}

void VersionedRecords::Prepare(std::byte* local) const noexcept {
    std::memset(local, 0, table_.size);
    record::SetSizeWords(table_, local);
}

void VersionedRecords::Start(const std::byte* caller, std::byte* local) const noexcept {
    Prepare(local);
    ForEachInput(table_, 0, [&](std::uint32_t at, std::uint32_t size) {
        if (at + size <= stride_) std::memcpy(local + at, caller + at, size);
    });
}

void VersionedRecords::Return(const std::byte* local, std::byte* caller) const noexcept {
    if (how_ == Stride::SizeWord)
        ParamConvert(local, table_.size, caller, stride_);
    else
        ConvertFields(table_, local, table_.size, caller, stride_);
}

bool VersionedRecords::areOwn(const std::byte* first, std::uint32_t count) const noexcept {
    if (how_ == Stride::Record || stride_ != table_.size) return false;
    const auto all = [&](auto test) {
        for (std::uint32_t i = 0; i < count; ++i) {
            if (!test(first + std::size_t{i} * stride_)) return false;
        }
        return true;
    };
    if (!all([&](const std::byte* record) { return record::Load<std::uint32_t>(record) == stride_; })) return false;
    return how_ != Stride::SizeWordByField || AllLastBytes(table_, [&](std::uint32_t last) {
               return all([last](const std::byte* record) { return record[last] == std::byte{0}; });
           });
}

void VersionedRecords::Take(const std::byte* caller, std::byte* local) const noexcept {
    if (how_ == Stride::SizeWordByField) {
        if (stride_ >= table_.size) return TakeWhole(table_, caller, local);
        return ConvertFields(table_, caller, stride_, local, table_.size);
    }
    ParamConvert(caller, stride_, local, table_.size);
    // The first bytes of a pointer lead nowhere.
    ForEachInput(table_, 0, [&](std::uint32_t at, std::uint32_t size) {
        if (at + size > stride_) std::memset(local + at, 0, size);
    });
}

} // namespace orrery
