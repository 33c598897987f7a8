// What a caller prepares before a call: size words, and memory behind the pointers of a record.
#pragma once

#include "Commands.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace orrery::test {

// Whether the record, nested ones included, holds a pointer.
bool HasPointers(const record::Table& table);

// Memory behind the pointers of records. After Reset the same calls hand out the same blocks again, so that records
// prepared alike are equal byte by byte.
class CallerMemory {
  public:
    // `room` is how many records a pointer leads to, and how many descriptors of items, of each array, have any.
    explicit CallerMemory(std::uint32_t room = 3) : room_(room) {}

    void Reset() { used_ = 0; }

    // All bytes that have been handed out since, and what a caller had in them.
    std::vector<std::byte> Contents() const;
    std::size_t size() const;
    void PutContents(const std::vector<std::byte>& contents);

    // Points every pointer of the record to memory of its own and sets its capacity, or its count where it has no
    // capacity, to what is there. All other bytes stay, but for the type, the stride and the count of items.
    void MakePointersSafe(const record::Table& table, std::byte* record) { MakePointersSafe(table, record, {0, 1}); }
    // A record that a caller hands in to be filled: zeros, size words, room behind the pointers.
    void PrepareRecord(const record::Table& table, std::byte* record);
    // The same for a buffer of any size: every whole record in it is prepared if the command looks at what it holds.
    void PrepareBuffer(const Command& command, std::byte* buffer, std::size_t size);

  private:
    struct Place {
        std::uint32_t index, count; // of the record in an array of its own kind
    };
    void MakePointersSafe(const record::Table& table, std::byte* record, Place place);
    void LendItems(const PackedItems& items, const record::Table& table, std::byte* descriptor, Place place);
    std::byte* Bytes(std::size_t size);
    std::byte* Block(const record::Table& table, std::uint32_t count);

    std::uint32_t room_;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::vector<std::size_t> sizes_;
    std::size_t used_ = 0;
};

} // namespace orrery::test
