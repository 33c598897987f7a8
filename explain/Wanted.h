// What a command or the reader would have taken, in words.
#pragma once

#include "Commands.h"

#include <string>
#include <string_view>

namespace orrery::explain {

// "true, or absent": of a reply's "result".
std::string ResultWanted(ResultTest test);
// "a list of records": of its value.
std::string Wanted(Take take);
// What a syntax error of the reader means to the text's author.
std::string Expected(std::string_view message);

// The rule type with a record whose name is most like this one; empty when none is like it.
std::string_view NearestRule(std::string_view name);

} // namespace orrery::explain
