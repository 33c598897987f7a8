// Calls through the exports, in one line each.
#pragma once

#include "orrery/orrery.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace orrery::test {

// What a parse call left behind. The record begins as bytes that no reading leaves, and the length as kNoLength, so
// that a test sees what was touched.
inline constexpr unsigned char kUntouched = 0xCD;
inline constexpr std::uint32_t kNoLength = 777777;

template <class R>
struct Parsed {
    std::int32_t result = 0;
    std::uint32_t length = kNoLength;
    std::unique_ptr<R> record = std::make_unique<R>();

    explicit operator bool() const { return result != 0; }
    const R* operator->() const { return record.get(); }
    const R& operator*() const { return *record; }

    bool isAll(unsigned char byte) const {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(record.get());
        for (std::size_t i = 0; i < sizeof(R); ++i) {
            if (bytes[i] != byte) return false;
        }
        return true;
    }
    bool isCleared() const { return isAll(0); }
    bool isUntouched() const { return isAll(kUntouched); }
};

// The document as it stands.
template <class R>
Parsed<R> ParseDocument(const char* command, const std::string& document) {
    Parsed<R> parsed;
    std::memset(static_cast<void*>(parsed.record.get()), kUntouched, sizeof(R));
    parsed.result = CLIENT_ParseData(command, document.c_str(), parsed.record.get(), sizeof(R), &parsed.length);
    return parsed;
}

// An accepted reply with this table.
template <class R>
Parsed<R> Parse(const char* command, const std::string& table) {
    return ParseDocument<R>(command, R"({ "result" : true, "params" : { "table" : )" + table + " } }");
}

inline constexpr const char* kFailed = "(failed)";

// The text without its newline.
template <class R>
std::string Pack(const char* command, const R& record) {
    std::vector<char> text(std::size_t{1} << 20, '#');
    if (CLIENT_PacketData(command, &record, sizeof(R), text.data(), static_cast<std::uint32_t>(text.size())) == 0) {
        return kFailed;
    }
    std::string packed = text.data();
    if (packed.empty() || packed.back() != '\n') return "(no newline) " + packed;
    packed.pop_back();
    return packed;
}

// Records of a third of a megabyte stay off the stack.
template <class R>
std::unique_ptr<R> Cleared() {
    return std::make_unique<R>();
}

} // namespace orrery::test
