// Frames run over tables of the tests' own.
#pragma once

#include "frame/Frames.h"

#include <cstring>
#include <string>
#include <vector>

namespace orrery::test {

// What a parse call left behind in a buffer that began as 0xCD bytes.
template <class R>
struct Filled {
    Outcome outcome = Outcome::BadArguments;
    std::uint32_t length = 1000000; // what stands there before the call
    std::vector<unsigned char> bytes;

    R operator[](std::size_t index) const {
        R record;
        std::memcpy(&record, bytes.data() + index * sizeof(R), sizeof(R));
        return record;
    }
    bool isAll(unsigned char byte, std::size_t from = 0) const {
        for (std::size_t i = from; i < bytes.size(); ++i) {
            if (bytes[i] != byte) return false;
        }
        return true;
    }
    bool isCleared(std::size_t from = 0) const { return isAll(0, from); }
    bool isUntouched(std::size_t from = 0) const { return isAll(0xCD, from); }
};

template <class R>
Filled<R> Parse(const record::Table& table, const GenericFrame& frame, const std::string& text, std::size_t size) {
    Filled<R> filled;
    filled.bytes.assign(size, 0xCD);
    filled.outcome = ParseGeneric(
        table, frame, {text.c_str(), filled.bytes.data(), static_cast<std::uint32_t>(size), &filled.length});
    return filled;
}

template <class R>
Filled<R> Parse(const record::Table& table, const ParseFrame& frame, const std::string& text, std::size_t size) {
    Filled<R> filled;
    filled.bytes.assign(size, 0xCD);
    filled.outcome = ParseFamily(table, frame,
                                 {text.c_str(), filled.bytes.data(), static_cast<std::uint32_t>(size), &filled.length});
    return filled;
}

inline std::string Reply(const std::string& table) {
    return R"({ "result" : true, "params" : { "table" : )" + table + " } }";
}

// What a pack call left behind in a buffer that began as '#': its bytes up to the capacity.
struct Written {
    Outcome outcome = Outcome::BadArguments;
    std::string bytes;

    // The text up to its terminator.
    std::string text() const { return bytes.substr(0, bytes.find('\0')); }
    bool isCleared() const { return bytes == std::string(bytes.size(), '\0'); }
    bool isUntouched() const { return bytes == std::string(bytes.size(), '#'); }
};

inline Written Pack(const record::Table& table, const GenericFrame& frame, const void* record, std::size_t size,
                    std::size_t capacity = 1000) {
    Written written{Outcome::BadArguments, std::string(capacity, '#')};
    written.outcome = PacketGeneric(
        table, frame,
        {record, static_cast<std::uint32_t>(size), written.bytes.data(), static_cast<std::uint32_t>(capacity)});
    return written;
}

inline Written Pack(const record::Table& table, const PackFrame& frame, const void* record, std::size_t size,
                    std::size_t capacity = 1000) {
    Written written{Outcome::BadArguments, std::string(capacity, '#')};
    written.outcome = PacketFamily(
        table, frame,
        {record, static_cast<std::uint32_t>(size), written.bytes.data(), static_cast<std::uint32_t>(capacity)});
    return written;
}

} // namespace orrery::test
