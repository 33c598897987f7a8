// What the fuzz targets of commands share: choosing a command by an input, and blocks of an exact size.
#pragma once

#include "support/CallerMemory.h"
#include "support/Specimens.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

namespace orrery::test {

// What chooses a command in an input: a number made from its name, so that an input that was kept stays with its
// command as others are added.
std::uint32_t FuzzNumberOf(std::string_view commandName);
// The command of that number, or of the next one that there is.
const Command& FuzzCommand(std::uint32_t number);

// Where the first descriptor of items without heads lies in the record; nothing when there is none.
std::optional<std::size_t> FirstItems(const record::Table& table);
// Lists that are empty, of first elements of lists too, get one element.
void RaiseCounts(const record::Table& table, std::byte* record);

class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    // The next bytes as a number; those that are missing read as 0.
    template <class Number>
    Number Take() {
        Number number = 0;
        const std::size_t size = rest_.size() < sizeof number ? rest_.size() : sizeof number;
        if (size != 0) std::memcpy(&number, rest_.data(), size);
        rest_.remove_prefix(size);
        return number;
    }
    // The next bytes, as many as there are.
    std::string_view Skip(std::size_t count) {
        const std::string_view bytes = rest_.substr(0, count);
        rest_.remove_prefix(bytes.size());
        return bytes;
    }
    std::string_view Rest() const { return rest_; }

  private:
    std::string_view rest_;
};

// A block of exactly `size` bytes, `skew` bytes off an aligned address: to AddressSanitizer what lies around it is no
// memory, and it itself is none afterwards. Its room is used again by later blocks, since fresh pages cost more than
// what an input does with them; it is as they left it.
class FuzzBlock {
  public:
    FuzzBlock(std::size_t size, std::size_t skew);
    FuzzBlock(FuzzBlock&& other) noexcept : room_(std::exchange(other.room_, nullptr)), at_(other.at_) {}
    FuzzBlock(const FuzzBlock&) = delete;
    FuzzBlock& operator=(const FuzzBlock&) = delete;
    FuzzBlock& operator=(FuzzBlock&&) = delete;
    ~FuzzBlock();
    std::byte* get() const { return at_; }

    struct Room;

  private:
    Room* room_;
    std::byte* at_;
};

} // namespace orrery::test
