// What cpp_commands.h says of commands and records is made of these; for orrery/cpp.h, which tells what it is for.
#ifndef ORRERY_CPP_RECORDS_H
#define ORRERY_CPP_RECORDS_H

#include <cstddef>
#include <cstdint>

namespace orrery {
namespace detail {

// Stands for the command of a record that has none.
struct no_command {
    static const char* name() { return nullptr; }
};
struct several_commands {};

// What a command's type says of it.
template <class R, bool IsCommand, bool Parses, bool Packs>
struct command {
    using record = R;
    static constexpr bool is_command = IsCommand, parses = Parses, packs = Packs;
};

// Codes of rules or of events.
template <std::uint32_t... Codes>
struct codes {
    static constexpr bool any = false;
    static bool has(std::uint32_t) { return false; }
};
template <std::uint32_t First, std::uint32_t... Rest>
struct codes<First, Rest...> {
    static constexpr bool any = true;
    static bool has(std::uint32_t code) { return code == First || codes<Rest...>::has(code); }
};

// What is known of a record: its size in the library; what reads and what writes it, where that is one command only; a
// command that knows its size words; the rules and the events whose record it is.
template <std::size_t Size, class ParsedBy = no_command, class PackedBy = no_command, class Any = no_command,
          class Rules = codes<>, class Events = codes<>>
struct known_record {
    static constexpr std::size_t size = Size;
    using parsed_by = ParsedBy;
    using packed_by = PackedBy;
    static const char* any_command() { return Any::name(); }
    using rules = Rules;
    using events = Events;
};
template <std::size_t Size, class Rules, class Events = codes<>>
using coded_record = known_record<Size, no_command, no_command, no_command, Rules, Events>;

// A record without a row of its own is no command's.
template <class R>
struct record_of : known_record<0> {};

} // namespace detail
} // namespace orrery

#endif
