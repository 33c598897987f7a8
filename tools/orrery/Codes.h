// Fields that hold a code, and the names that codes have.
#pragma once

#include "frame/record/Table.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

bool HasNames(const record::Field& field);
// Empty when the code has none.
std::string NameOfCode(const record::Field& field, std::int64_t code);
std::string_view NameOfCode(const record::NameTable& names, std::int64_t code);
// As the field itself compares names; unlike it, without a code for unknown ones.
std::optional<std::int32_t> CodeOfName(const record::Field& field, std::string_view name);
// All names, as far as they can be listed.
std::vector<std::string_view> NamesOf(const record::Field& field);

} // namespace orrery::tool
