// Names of analysis rules and alarms to codes and back. All of it is constant: there is nothing to build or to lock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orrery {

// The code of a rule's name, compared byte by byte; 0 for a name that is not known and for null.
std::int32_t RuleCodeFromName(const char* name) noexcept;
std::int32_t RuleCodeFromName(std::string_view name) noexcept;

// Copies at most `limit` - 1 characters of the rule's name, fills up with zeros and sets the last byte of `limit` to
// zero. A code without a name gives "All", and nothing behind its copy is touched when it does not fit: hand in a
// zeroed buffer.
void RuleNameFromCode(std::int32_t code, char* buffer, std::size_t limit) noexcept;
// With `useDeviceName`, two codes give the name that devices expect in a rule rather than their usual one.
void RuleNameFromCode(std::int32_t code, char* buffer, std::size_t limit, bool useDeviceName) noexcept;
// The same name without a copy.
std::string_view RuleNameOf(std::int32_t code, bool useDeviceName) noexcept;

} // namespace orrery
