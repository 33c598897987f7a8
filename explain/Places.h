// Where the values of a document stand in its text, found by a second look at the text: only whoever has something to
// tell pays for it.
#pragma once

#include "explain/Finding.h"

#include "frame/Arena.h"

namespace orrery::explain {

// A first look at a text that is known to be JSON: where its document ends, and how many members its objects have.
struct Skimmed {
    std::size_t end = 0;
    std::size_t members = 0;
};
Skimmed Skim(std::string_view text) noexcept;

// Members of all objects of a document; duplicates are gone there.
std::size_t CountMembers(const json::Value& root, Arena& arena) noexcept;

// Gives every finding its place. With `hasDuplicates` the members that a later one of the same key hides are found too.
void FindPlaces(std::string_view text, const json::Value& root, Arena& arena, bool hasDuplicates,
                std::vector<Finding>& findings);

} // namespace orrery::explain
