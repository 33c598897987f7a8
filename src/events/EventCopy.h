// A record of an event with all that its pointers lead to, moved out of the arena that goes with its call.
#pragma once

#include "frame/record/Table.h"

#include <cstddef>
#include <cstdint>

namespace orrery {

// Copies `count` records and, behind them, every block that a pointer of theirs leads to; the pointers of the copies
// lead to the copied blocks. Returns the bytes that it takes. Nothing is written when `room` is less than that. The
// buffer has the alignment of the largest number.
std::size_t CopyWhole(const record::Table& table, const std::byte* records, std::uint32_t count, std::byte* buffer,
                      std::size_t room) noexcept;

// The same for what a callback was handed under a code; 0 for a code that no event has, and more than 4 GB.
std::uint32_t CopyEvent(std::uint32_t code, const std::byte* record, std::uint32_t recordSize, std::byte* buffer,
                        std::uint32_t bufferSize) noexcept;

} // namespace orrery
