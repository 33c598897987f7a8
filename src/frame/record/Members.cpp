#include "frame/record/Engine.h"

namespace orrery::record {

std::int64_t LoadInteger(Cell cell, const std::byte* at) noexcept {
    switch (cell) {
    case Cell::I8:
        return Load<std::int8_t>(at);
    case Cell::U8:
        return Load<std::uint8_t>(at);
    case Cell::I16:
        return Load<std::int16_t>(at);
    case Cell::U16:
        return Load<std::uint16_t>(at);
    case Cell::I32:
        return Load<std::int32_t>(at);
    case Cell::U32:
        return Load<std::uint32_t>(at);
    case Cell::I64:
        return Load<std::int64_t>(at);
    case Cell::U64:
        return static_cast<std::int64_t>(Load<std::uint64_t>(at));
    default:
        return 0;
    }
}

void StoreInteger(Cell cell, std::byte* at, std::int64_t value) noexcept {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        Store(at, static_cast<std::uint8_t>(value));
        break;
    case Cell::I16:
    case Cell::U16:
        Store(at, static_cast<std::uint16_t>(value));
        break;
    case Cell::I32:
    case Cell::U32:
        Store(at, static_cast<std::uint32_t>(value));
        break;
    case Cell::I64:
    case Cell::U64:
        Store(at, value);
        break;
    default:
        break;
    }
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

void Prepare(const Table& table, std::byte* record, bool defaults) noexcept {
    for (const Field& field : table) {
        std::byte* const at = record + field.offset;
        if (field.kind == Kind::Size) {
            Store(at, table.size);
        } else if (field.kind == Kind::Record && field.cell != Cell::Pointer) {
            if (field.table->startsWhenRead) continue;
            if (!(defaults ? field.table->hasDefaults : field.table->hasSizeWords)) continue;
            const std::uint32_t count = ElementCount(field);
            for (std::uint32_t i = 0; i < count; ++i) {
                Prepare(*field.table, at + std::size_t{i} * field.elementSize, defaults);
            }
        } else if (defaults && field.hasDefault) {
            const std::uint32_t count = ElementCount(field);
            for (std::uint32_t i = 0; i < count; ++i) {
                StoreInteger(field.cell, at + std::size_t{i} * field.elementSize, field.defaultValue);
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

} // namespace orrery::record
