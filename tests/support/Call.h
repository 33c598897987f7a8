// Calls through the exports, in one line each, over memory whose end is guarded where records are the caller's own.
#pragma once

#include "support/GuardedBuffer.h"

#include "orrery/calls.h"

#include <cstring>
#include <memory>
#include <ostream>
#include <string>

namespace orrery::test {

// What stands in the length before a call, and after one that tells none.
inline constexpr std::uint32_t kNoLength = 777777;

// ---- One record ----------------------------------------------------------------------------------------------------

// What a parse call left behind. The record begins as bytes that no reading leaves, so that a test sees what was
// touched.
inline constexpr unsigned char kUntouched = 0xCD;

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

// Records of a third of a megabyte stay off the stack.
template <class R>
std::unique_ptr<R> Cleared() {
    return std::make_unique<R>();
}

// ---- Any number of records -----------------------------------------------------------------------------------------

struct Answer {
    std::int32_t result;
    std::uint32_t length;

    bool operator==(const Answer&) const = default;
};
inline constexpr Answer kRefused{0, kNoLength};

inline std::ostream& operator<<(std::ostream& out, const Answer& answer) {
    return out << "{ result " << answer.result << ", length " << answer.length << " }";
}

// Records of the caller's, `size` bytes and not one more.
template <class R>
class Records {
  public:
    explicit Records(std::size_t count, int fill = 0) : Records(count, 0, fill) {}
    Records(std::size_t count, std::size_t extraBytes, int fill) : memory_(count * sizeof(R) + extraBytes) {
        std::memset(memory_.data(), fill, memory_.size());
    }

    R operator[](std::size_t index) const { // a copy: the end of the memory settles its alignment
        R record;
        std::memcpy(&record, memory_.data() + index * sizeof(R), sizeof record);
        return record;
    }
    void Set(std::size_t index, const R& record) {
        std::memcpy(memory_.data() + index * sizeof(R), &record, sizeof record);
    }
    char* data() const { return memory_.data(); }
    std::uint32_t size() const { return static_cast<std::uint32_t>(memory_.size()); }
    bool isAll(int byte) const {
        return memory_.view().find_first_not_of(static_cast<char>(byte)) == std::string_view::npos;
    }

  private:
    GuardedBuffer memory_;
};

// A whole document into the caller's records.
template <class R>
Answer ParseDocument(const char* command, std::string document, const Records<R>& records) {
    std::uint32_t length = kNoLength;
    const auto result = CLIENT_ParseData(command, document.c_str(), records.data(), records.size(), &length);
    return {result, length};
}

// An accepted reply with this table; `top` and `params` are further members of the document and of its "params".
template <class R>
Answer ParseTable(const char* command, const std::string& table, const Records<R>& records, const std::string& top = "",
                  const std::string& params = "") {
    return ParseDocument(command, "{" + top + R"("result":true,"params":{)" + params + R"("table":)" + table + "}}",
                         records);
}

// ---- The text ------------------------------------------------------------------------------------------------------

inline constexpr const char* kFailed = "(failed)";      // and the text buffer cleared
inline constexpr const char* kNotBegun = "(not begun)"; // refused with nothing touched

// The text of `size` bytes of records with its newline, from a text buffer of exactly `capacity` bytes.
inline std::string PackBytes(const char* command, const void* records, std::size_t size, std::size_t capacity) {
    const GuardedBuffer text(capacity);
    std::memset(text.data(), '#', capacity);
    if (CLIENT_PacketData(command, records, static_cast<std::uint32_t>(size), text.data(),
                          static_cast<std::uint32_t>(capacity))
        == 0) {
        if (text.view().find_first_not_of('\0') == std::string_view::npos) return kFailed;
        return text.view().find_first_not_of('#') == std::string_view::npos ? kNotBegun : "(failed, text left behind)";
    }
    return std::string(text.data(), strnlen(text.data(), capacity));
}

inline constexpr std::size_t kAmple = std::size_t{1} << 20;

// The text without its newline.
inline std::string WithoutNewline(std::string text) {
    if (text == kFailed || text == kNotBegun) return text;
    if (text.empty() || text.back() != '\n') return "(no newline) " + text;
    text.pop_back();
    return text;
}
template <class R>
std::string PackAll(const char* command, const Records<R>& records) {
    return WithoutNewline(PackBytes(command, records.data(), records.size(), kAmple));
}
template <class R>
std::string Pack(const char* command, const R& record) {
    return WithoutNewline(PackBytes(command, &record, sizeof record, kAmple));
}

} // namespace orrery::test
