#include "events/EventCopy.h"

#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery {

using namespace record;

namespace {

// Counts what blocks take, and copies them when there is a buffer.
class Copier {
  public:
    explicit Copier(std::byte* buffer) noexcept : buffer_(buffer) {}

    std::size_t used() const noexcept { return used_; }

    // Returns where the block stands; null while blocks are only counted.
    std::byte* Block(const std::byte* from, std::size_t size) noexcept {
        constexpr std::size_t kAlignment = alignof(std::max_align_t);
        used_ = (used_ + kAlignment - 1) / kAlignment * kAlignment;
        std::byte* const to = buffer_ == nullptr ? nullptr : buffer_ + used_;
        used_ += size;
        if (to != nullptr) std::memcpy(to, from, size);
        return to;
    }

    void Records(const Table& table, const std::byte* from, std::byte* to, std::size_t count) noexcept {
        if (!table.hasPointers) return;
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t at = i * table.size;
            Behind(table, from + at, to == nullptr ? nullptr : to + at);
        }
    }

  private:
    // `to` is the copy of the record `from`. Tables nest as deep as records do, a handful of levels.
    void Behind(const Table& table, const std::byte* from, std::byte* to) noexcept {
        for (const Field& field : table) {
            if (field.alias || field.size == 0) continue;
            std::byte* const copy = to == nullptr ? nullptr : to + field.offset;
            if (field.cell == Cell::Record) {
                Records(*field.table, from + field.offset, copy, field.size / field.table->size);
            } else if (field.cell == Cell::Pointer) {
                const auto* const block = Load<const std::byte*>(from + field.offset);
                const std::byte* const moved = block == nullptr ? nullptr : Pointed(table, field, from, block);
                if (copy != nullptr) Store(copy, moved);
            }
        }
    }

    std::byte* Pointed(const Table& table, const Field& field, const std::byte* record,
                       const std::byte* block) noexcept {
        if (field.table == nullptr) return Block(block, std::strlen(reinterpret_cast<const char*>(block)) + 1);
        // Items of a packed buffer hold no pointers.
        if (const PackedItems* const items = ItemsBehind(table); items != nullptr)
            return Block(block, static_cast<std::size_t>(std::max<std::int64_t>(LoadSlot(items->bytes, record), 0)));
        // Without a count a pointer leads to one record.
        const std::int64_t count = field.count.exists() ? LoadSlot(field.count, record) : 1;
        const auto records = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
        std::byte* const to = Block(block, records * field.table->size);
        Records(*field.table, block, to, records);
        return to;
    }

    std::byte* buffer_;
    std::size_t used_ = 0;
};

std::size_t Run(const Table& table, const std::byte* records, std::size_t count, std::byte* buffer) noexcept {
    Copier copier(buffer);
    std::byte* const to = copier.Block(records, count * table.size);
    copier.Records(table, records, to, count);
    return copier.used();
}

} // namespace

std::size_t CopyWhole(const Table& table, const std::byte* records, std::uint32_t count, std::byte* buffer,
                      std::size_t room) noexcept {
    const std::size_t needed = Run(table, records, count, nullptr);
    if (buffer != nullptr && needed <= room) Run(table, records, count, buffer);
    return needed;
}

std::uint32_t CopyEvent(std::uint32_t code, const std::byte* record, std::uint32_t recordSize, std::byte* buffer,
                        std::uint32_t bufferSize) noexcept {
    const Table* table = nullptr;
    std::uint32_t count = 1;
    if (const events::EventRow* const event = events::FindEvent(code); event != nullptr) {
        table = event->table;
    } else if (const events::TypedRow* const typed = events::FindTyped(code); typed != nullptr) {
        table = typed->table;
        if (typed->isList) count = recordSize / table->size;
    }
    if (table == nullptr || count == 0) return 0;
    const std::size_t needed = CopyWhole(*table, record, count, buffer, bufferSize);
    return needed > UINT32_MAX ? 0 : static_cast<std::uint32_t>(needed);
}

} // namespace orrery
