// What the public headers say of records, members and constants: their comments as one line each, and of them units
// and ranges. Made when this is built, by header_words.py, so that findings, tools and bindings tell the same.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orrery::headers {

struct Member {
    const char* name;
    const char* type; // of an element, as declared: "int32_t", "CFG_RECT", "const char*"
    const char* doc;  // whole, its key in quotes included; empty where the header has no word
    const char* unit; // "seconds"; empty: none is told
    bool hasRange;
    std::int64_t low, high; // of the member's value, both included
};

struct Record {
    const char* name;
    const char* doc; // above the record, from the declaration before
    std::span<const Member> members;

    const Member* Find(std::string_view member) const noexcept;
};

struct Constant {
    const char* name;
    std::int64_t value;
    const char* doc; // begins with the text of the code, in quotes, where it has one
};

struct Enumeration {
    const char* name; // empty: it has none
    const char* doc;
    std::span<const Constant> constants;
};

// By name.
std::span<const Record> Records() noexcept;
// In the order of the headers.
std::span<const Enumeration> Enumerations() noexcept;

// Null when no header has it. A member of a member ("stuTime.nHour") is the outer one.
const Record* FindRecord(std::string_view record) noexcept;
const Member* FindMember(std::string_view record, std::string_view member) noexcept;

} // namespace orrery::headers
