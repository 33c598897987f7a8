// Texts as editors and other systems leave them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orrery::tool {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// What a text that is no UTF-8 looks like: "UTF-16"; empty for one that may be UTF-8.
std::string_view ForeignEncoding(std::string_view text);
// The sentence about it.
std::string NotUtf8(std::string_view encoding);

// A file or, without a name or with "-", standard input. False when it can't be read or is no UTF-8; `note` tells then
// why, with its newline. A byte order mark is taken away, which `note` tells too.
bool ReadText(const std::string& name, std::string& text, std::string& note);

} // namespace orrery::tool
