// What the files of the walk share.
#pragma once

#include "explain/Walk.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orrery::explain {

// A record under a key of its own, or one that shares the object.
bool IsNestedObject(const record::Field& field);

// Whether a row among the nodes reads the key; whether one of a record that shares the object does.
bool HasKey(const record::Table& table, record::NodeRange range, std::string_view key);
bool SharesKey(const record::Table& table, const json::Member& member);

// "1 element", "2 elements".
std::string Plural(std::uint64_t count, const char* one);

} // namespace orrery::explain
