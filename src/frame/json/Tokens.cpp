#include "frame/json/Tokens.h"

#include <bitset>

namespace orrery::json {

const char* SkipValue(const char* p, const char* end, Arena& arena) noexcept {
    std::bitset<kSkipDepth> isObject;
    int depth = 0;
    for (;;) {
        // A value, whose first byte is at `p`.
        bool opened = false;
        if (*p == '{' || *p == '[') {
            const bool object = *p == '{';
            const Step first = FirstEntry(p, end, object ? '}' : ']');
            if (first.at == nullptr || (first.more && depth == kSkipDepth)) return nullptr;
            p = first.at;
            opened = first.more;
            if (opened) isObject[static_cast<std::size_t>(depth++)] = object;
        } else {
            Value ignored;
            p = ReadScalar(p, end, arena, &ignored);
            if (p == nullptr) return nullptr;
        }
        while (!opened) {
            if (depth == 0) return p;
            const Step next = NextEntry(p, end, isObject[static_cast<std::size_t>(depth - 1)] ? '}' : ']');
            if (next.at == nullptr) return nullptr;
            p = next.at;
            if (next.more) break;
            --depth;
        }
        if (!isObject[static_cast<std::size_t>(depth - 1)]) continue;
        Value key;
        if (*p != '"') return nullptr;
        p = ReadScalar(p, end, arena, &key);
        if (p == nullptr) return nullptr;
        p = ValueBehindKey(p, end);
        if (p == nullptr) return nullptr;
    }
}

} // namespace orrery::json
