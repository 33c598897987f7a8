// Where the values of a document stand in its text, found by a second look at the text: only whoever has something to
// tell pays for it.
#pragma once

#include "explain/Finding.h"

#include "frame/Arena.h"
#include "frame/json/Reader.h"

namespace orrery::explain {

// Reads the document at the front of a text, as json::Parse does; `end`: where it ends there.
bool ParseDocument(std::string_view text, Arena& arena, json::Value& root, std::size_t& end,
                   json::SyntaxError& error) noexcept;

// How many members the objects of a document have in its text, which is known to be JSON and nothing else.
std::size_t CountKeys(std::string_view document) noexcept;

// Members of all objects of a document; duplicates are gone there.
std::size_t CountMembers(const json::Value& root, Arena& arena) noexcept;

// Gives every finding its place. With `hasDuplicates` the members that a later one of the same key hides are found too.
void FindPlaces(std::string_view text, const json::Value& root, Arena& arena, bool hasDuplicates,
                std::vector<Finding>& findings);

} // namespace orrery::explain
