// What is said of a member: the header's comment, or, where the header has no word, what the tables tell.
#pragma once

#include "orrery/Tables.h"

#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

// What a member without a key of its own is for.
enum class Role : std::uint8_t { None, Size, Count, Capacity, Flag, Condition, Reserved, Element };

struct MemberRole {
    Role role = Role::None;
    std::vector<std::string> of; // the members that it serves
};

// "count" and so on; empty for None.
const char* RoleWord(Role role);
// Of a member by the tables of its record.
MemberRole RoleOf(const std::vector<const record::Table*>& tables, const record::Field& field);
// Never empty for a member of a record that a table describes.
std::string DocOf(const std::vector<const record::Table*>& tables, const record::Field& field);

} // namespace orrery::tool
