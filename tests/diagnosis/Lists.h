// Calls with descriptors of lists, whose texts end without a terminator.
#pragma once

#include "support/Call.h"

#include "orrery/diagnosis.h"

#include <string>
#include <vector>

namespace orrery::test {

inline constexpr Answer kListRead{1, 16};

// What a call tells of a text buffer of `room` bytes that began as '#'.
struct WrittenBytes {
    std::int32_t result;
    std::string bytes;
};
inline WrittenBytes WriteBytes(const char* command, const void* record, std::size_t size, std::size_t room) {
    const GuardedBuffer text(room);
    std::memset(text.data(), '#', room);
    const auto result = CLIENT_PacketData(command, record, static_cast<std::uint32_t>(size), text.data(),
                                          static_cast<std::uint32_t>(room));
    return {result, std::string(text.data(), room)};
}

// The text of a record without its newline, from a cleared buffer.
template <class R>
std::string TextOf(const char* command, const R& record) {
    std::vector<char> text(std::size_t{1} << 16);
    if (CLIENT_PacketData(command, &record, sizeof record, text.data(), static_cast<std::uint32_t>(text.size())) == 0)
        return kFailed;
    return WithoutNewline(text.data());
}

// An accepted reply with this table, into a descriptor of the caller's.
template <class List>
Answer ReadList(const char* command, const std::string& document, List& list) {
    std::uint32_t length = kNoLength;
    const auto result = CLIENT_ParseData(command, document.c_str(), &list, sizeof list, &length);
    return {result, length};
}
inline std::string ReplyWith(const std::string& table, const std::string& top = R"("result" : true, )",
                             const std::string& params = "") {
    return "{ " + top + R"("params" : { )" + params + R"("table" : )" + table + " } }";
}

} // namespace orrery::test
