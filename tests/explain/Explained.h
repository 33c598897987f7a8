// Explanations in one line each.
#pragma once

#include "orrery/explain.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace orrery::test {

struct Found {
    std::int32_t kind = 0;
    std::int32_t gravity = 0;
    std::uint32_t line = 0, column = 0, lost = 0;
    std::string word, path, field, message, nearest;
    std::size_t offset = 0, length = 0;
};

inline std::ostream& operator<<(std::ostream& out, const Found& found) {
    return out << found.line << ':' << found.column << " [" << found.word << "] " << found.path << " (" << found.field
               << "): " << found.message;
}

inline std::int32_t Keep(const ORRERY_FINDING* finding, void* user) {
    static_cast<std::vector<Found>*>(user)->push_back(
        {finding->nKind, finding->nGravity, finding->nLine, finding->nColumn, finding->nLost, finding->szKind,
         finding->szPath, finding->szField, finding->szMessage, finding->szNearest,
         static_cast<std::size_t>(finding->nOffset), static_cast<std::size_t>(finding->nLength)});
    return 1;
}

inline std::vector<Found> Explain(const std::string& command, const std::string& text, std::uint32_t records = 0) {
    std::vector<Found> found;
    ORRERY_ExplainReply(command.c_str(), text.data(), text.size(), records, Keep, &found);
    return found;
}
inline std::vector<Found> ExplainTable(const std::string& command, const std::string& table) {
    return Explain(command, R"({"result":true,"params":{"table":)" + table + "}}");
}
inline std::vector<Found> ExplainEvents(const std::string& text) {
    std::vector<Found> found;
    ORRERY_ExplainEvents(text.data(), text.size(), Keep, &found);
    return found;
}

} // namespace orrery::test
