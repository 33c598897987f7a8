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
        // In the text: from the comma before its name, from its value, and its end.
        std::uint32_t begin, value, end;
        bool isAlike; // zeros print what stands in the text

        bool IsZero(const std::byte* record, bool all) const;
    };
    std::string text;
    std::vector<Member> members;

    std::string_view Part(std::size_t begin, std::size_t end) const {
        return std::string_view(text).substr(begin, end - begin);
    }
};

// Whether all bytes are 0.
bool IsClear(const std::byte* at, std::size_t size);

} // namespace orrery::tool
