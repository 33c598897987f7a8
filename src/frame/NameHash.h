// A hash for names of commands and events that takes them eight bytes at a time.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orrery {

// Of a name's first and last eight bytes, which overlap in a short name, and its length.
constexpr std::uint32_t NameHash(std::uint64_t first, std::uint64_t last, std::size_t size) noexcept {
    const std::uint64_t hash = (first * 0x9E3779B97F4A7C15u ^ last) * 0xC2B2AE3D27D4EB4Fu + size;
    return static_cast<std::uint32_t>(hash >> 32 ^ hash >> 20);
}

} // namespace orrery
