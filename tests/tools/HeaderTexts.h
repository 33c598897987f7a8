// What the public headers say of records and members, by the extractor that findings and the schema use.
#pragma once

#include "explain/headers/HeaderWords.h"

#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

// What is said of a member; nothing for one that no header has.
inline std::string CommentOf(const std::string& record, std::string_view member) {
    const headers::Member* const known = headers::FindMember(record, member);
    return known == nullptr ? "" : known->doc;
}

// The keys that a comment quotes, in its order: "A" of `"A": ...`, "A/B" of `"A"."B"` and of `"A"[..]."B"`.
inline std::vector<std::string> QuotedKeys(std::string_view comment) {
    std::vector<std::string> keys;
    bool joins = false;
    for (std::size_t at = 0; at < comment.size();) {
        if (comment[at] != '"') {
            ++at;
            continue;
        }
        const std::size_t end = comment.find('"', at + 1);
        if (end == std::string_view::npos) break;
        const std::string part(comment.substr(at + 1, end - at - 1));
        if (joins) {
            keys.back() += "/" + part;
        } else {
            keys.push_back(part);
        }
        at = end + 1;
        if (comment.substr(at).starts_with("[..]")) at += 4;
        joins = comment.substr(at).starts_with(".\"");
        if (joins) ++at;
    }
    return keys;
}

} // namespace orrery::test
