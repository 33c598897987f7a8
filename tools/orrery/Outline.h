// The line of a cleared record, prepared once a table: most members of a device's record are zeros, so that whole
// stretches of it are copied and only what differs is printed.
#pragma once

#include "frame/record/Engine.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orrery::tool {

struct Outline {
    struct Member {
        const record::Field* field;
        std::string_view name;
        // In the text: from the comma before its name, from its value, and its end.
        std::uint32_t begin, value, end;
        std::uint32_t offset, size; // in the record
        record::Slot count;         // of a list in use its elements are printed, zeros or not
        bool isAlike;               // zeros print what stands in the text
        bool isPlainlyBlank;        // it says nothing just where it is zeros
    };
    std::string text;
    std::vector<Member> members; // in the record's order

    std::string_view Part(std::size_t begin, std::size_t end) const {
        return std::string_view(text).substr(begin, end - begin);
    }
};

// The first byte that is not 0, of those from `from` on; `size` when all are.
std::size_t FirstSet(const std::byte* record, std::size_t from, std::size_t size);
bool IsClear(const std::byte* at, std::size_t size);

// Where a record is not zero: asked for member after member, it looks at each byte once.
class SetBytes {
  public:
    SetBytes(const std::byte* record, std::size_t size)
        : record_(record), size_(size), next_(FirstSet(record, 0, size)) {}

    bool AnyIn(std::size_t offset, std::size_t size) {
        if (offset < from_ || next_ < offset) {
            from_ = offset;
            next_ = FirstSet(record_, offset, size_);
        }
        return next_ < offset + size;
    }

  private:
    const std::byte* record_;
    std::size_t size_;
    std::size_t from_ = 0, next_; // between them all is 0
};

} // namespace orrery::tool
