// What the public headers say of records and members, as the compiler reads them.
#pragma once

#include "tools/Headers.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>

namespace orrery::test {

struct HeaderTexts {
    std::map<std::string, HeaderRecord> records;
    std::map<std::string, std::string> shared;
};

inline const HeaderTexts& Headers() {
    static const auto headers = [] {
        const std::string include = std::string(ORRERY_SOURCE_DIR) + "/include";
        const std::string command =
            std::string(ORRERY_COMPILER) + " -x c++ -E -CC -I '" + include + "' '" + include + "/orrery/orrery.h'";
        std::string text;
        if (std::FILE* const pipe = popen(command.c_str(), "r"); pipe != nullptr) {
            char part[65536];
            for (std::size_t got = 0; (got = std::fread(part, 1, sizeof part, pipe)) > 0;)
                text.append(part, got);
            EXPECT_EQ(pclose(pipe), 0) << command;
        }
        // Some compilers keep the ends of a macro's lines within its comments.
        for (std::size_t at = 0; (at = text.find("\\\n", at)) != std::string::npos;)
            text.erase(at, 1);
        const HeaderScanner scanner(text);
        HeaderTexts texts;
        for (const HeaderRecord& record : scanner.records)
            texts.records.emplace(record.name, record);
        texts.shared = scanner.shared;
        return texts;
    }();
    return headers;
}

// What the headers say of a member: behind or above it; else in the record that the comment above its own names
// ("members without a word are as in EVENT_OBJECT_INFO"); else, in an event, among its head and its closing fields.
inline std::string WordOf(const HeaderRecord& record, const HeaderMember& member) {
    for (const HeaderMember& each : record.members) { // "byName: ..." behind a macro that declares byName
        if (each.behind.starts_with(member.name + ": ")) return each.behind.substr(member.name.size() + 2);
    }
    const bool isOfAnother =
        record.Find(member.behind.substr(0, std::min(member.behind.find(':'), member.behind.size())));
    if (!member.behind.empty() && !isOfAnother) return member.behind;
    constexpr std::string_view kAsIn = "as in ";
    if (const std::size_t at = record.comment.find(kAsIn); at != std::string::npos) {
        std::string name = record.comment.substr(at + kAsIn.size());
        name.resize(std::min(name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789"), name.size()));
        const auto other = Headers().records.find(name);
        const HeaderMember* const same = other == Headers().records.end() ? nullptr : other->second.Find(member.name);
        if (same != nullptr) return WordOf(other->second, *same);
    }
    if (record.name.starts_with("DEV_EVENT_")) {
        const auto shared = Headers().shared.find(member.name);
        if (shared != Headers().shared.end()) return shared->second;
    }
    return member.above;
}

// What is said of a member; nothing for one that no header has.
inline std::string CommentOf(const std::string& record, std::string_view member) {
    const auto found = Headers().records.find(record);
    const HeaderMember* const known = found == Headers().records.end() ? nullptr : found->second.Find(member);
    return known == nullptr ? "" : WordOf(found->second, *known);
}

} // namespace orrery::test
