#include "frame/json/Tokens.h"

#include <bitset>

namespace orrery::json {

namespace {

// The byte behind the string whose quote is at `p`.
inline const char* SkipString(const char* p, const char* end, Arena& arena) noexcept {
    const char* const stop = FindQuoteOrBackslash(p + 1, end);
    if (stop != end && *stop == '"') [[likely]]
        return stop + 1;
    const DecodedString decoded = DecodeString(p + 1, stop, end, arena);
    return decoded.text.data() == nullptr ? nullptr : decoded.stop;
}

inline const char* SkipNumber(const char* p, const char* end) noexcept {
    const char* digits = p + (*p == '-');
    const char* after = digits;
    while (after != end && static_cast<unsigned char>(*after) - unsigned{'0'} <= 9)
        ++after;
    if (after != digits && (after == end || !kNumberByte[static_cast<unsigned char>(*after)])) [[likely]]
        return after;
    Value ignored;
    return ReadNumber(p, end, &ignored);
}

} // namespace

const char* SkipValue(const char* p, const char* end, Arena& arena) noexcept {
    std::bitset<kSkipDepth> enclosing; // whether what encloses each open container is an object
    std::size_t depth = 0;
    bool inObject = false;
    for (;;) {
        // A value, whose first byte is at `p`.
        const char first = *p;
        if (first == '"') {
            p = SkipString(p, end, arena);
        } else if (first == '{' || first == '[') {
            const bool object = first == '{';
            const Step step = FirstEntry(p, end, object ? '}' : ']');
            p = step.at;
            if (step.more) {
                if (depth == kSkipDepth) return nullptr;
                enclosing[depth++] = inObject;
                inObject = object;
                goto entry;
            }
        } else if (first == '-' || (first >= '0' && first <= '9')) {
            p = SkipNumber(p, end);
        } else {
            Value ignored;
            p = ReadScalar(p, end, arena, &ignored);
        }
        for (;;) {
            if (p == nullptr || depth == 0) return p;
            const Step step = NextEntry(p, end, inObject ? '}' : ']');
            p = step.at;
            if (step.more) break;
            inObject = enclosing[--depth];
        }
    entry:
        if (!inObject) continue;
        if (*p != '"') return nullptr;
        p = SkipString(p, end, arena);
        if (p == nullptr) return nullptr;
        p = ValueBehindKey(p, end);
        if (p == nullptr) return nullptr;
    }
}

} // namespace orrery::json
