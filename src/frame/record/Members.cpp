#include "frame/record/Engine.h"

namespace orrery::record {

void StoreReal(Cell cell, std::byte* at, double number) noexcept {
    if (cell == Cell::F32)
        Store(at, static_cast<float>(number));
    else
        Store(at, number);
}

void StoreNumber(Cell cell, std::byte* at, std::int64_t number) noexcept {
    if (cell == Cell::F32 || cell == Cell::F64)
        StoreReal(cell, at, static_cast<double>(number));
    else
        StoreInteger(cell, at, number);
}

std::uint32_t StrideOf(const Field& field, int level) noexcept {
    if (field.cell == Cell::Pointer) return field.table->size;
    std::uint32_t stride = field.elementSize;
    for (int i = field.rank - 1; i > level; --i)
        stride *= field.dims[i];
    return stride;
}

std::byte* SingleOf(const Field& field, const std::byte* record) noexcept {
    if (field.capacity.exists() && LoadSlot(field.capacity, record) <= 0) return nullptr;
    return Load<std::byte*>(record + field.offset);
}

std::string_view TextAt(const std::byte* at, std::size_t capacity) noexcept {
    const auto* const text = reinterpret_cast<const char*>(at);
    return {text, strnlen(text, capacity)};
}

namespace {

std::uint32_t ElementCount(const Field& field) noexcept {
    std::uint32_t count = 1;
    for (int i = 0; i < field.rank; ++i)
        count *= field.dims[i];
    return count;
}

// The size word of a record that starts at zero otherwise, as the elements of long lists do; null for other records.
const Field* OnlySizeWord(const Table& table) noexcept {
    if (table.startedCount != 1) return nullptr;
    const Field& only = table.rows[table.started[0]];
    return only.kind == Kind::Size ? &only : nullptr;
}

void Prepare(const Table& table, std::byte* record, bool defaults) noexcept {
    for (std::uint16_t row = 0; row < table.startedCount; ++row) {
        const Field& field = table.rows[table.started[row]];
        std::byte* const at = record + field.offset;
        if (field.kind == Kind::Size) {
            Store(at, table.size);
        } else if (field.cell == Cell::Record) {
            if (defaults && (field.amongKeys || field.table->startsWhenRead)) continue; // set when it is read
            if (!(defaults ? field.table->hasDefaults : field.table->hasSizeWords)) continue;
            const std::uint32_t count = ElementCount(field);
            if (const Field* const word = OnlySizeWord(*field.table)) {
                for (std::uint32_t i = 0; i < count; ++i)
                    Store(at + std::size_t{i} * field.elementSize + word->offset, field.table->size);
                continue;
            }
            for (std::uint32_t i = 0; i < count; ++i) {
                Prepare(*field.table, at + std::size_t{i} * field.elementSize, defaults);
            }
        } else if (defaults && field.hasDefault) {
            const std::uint32_t count = ElementCount(field);
            for (std::uint32_t i = 0; i < count; ++i) {
                StoreNumber(field.cell, at + std::size_t{i} * field.elementSize, field.defaultValue);
            }
        }
    }
}

} // namespace

// Tables nest as deep as the records do, a handful of levels, so these may call themselves.
void SetDefaults(const Table& table, std::byte* record) noexcept {
    Prepare(table, record, true);
}
void SetSizeWords(const Table& table, std::byte* record) noexcept {
    Prepare(table, record, false);
}
void ClearFlags(const Table& table, std::byte* record) noexcept {
    for (std::uint16_t i = 0; i < table.flagRunCount; ++i) {
        const FlagRun& run = table.flagRuns[i];
        if (run.row == FlagRun::kNone) {
            std::memset(record + run.offset, 0, run.size);
            continue;
        }
        const Table& inner = *table.rows[run.row].table;
        for (std::uint32_t at = 0; at < run.size; at += inner.size)
            ClearFlags(inner, record + run.offset + at);
    }
}

} // namespace orrery::record
