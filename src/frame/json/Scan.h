// Looking at text sixteen bytes at a time. Nothing here loads a byte outside [p, end).
#pragma once

#include "frame/json/Value.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orrery::json {

// The first quote or backslash, or `end`.
inline const char* FindQuoteOrBackslash(const char* p, const char* end) noexcept {
#if ORRERY_SSE2
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i backslash = _mm_set1_epi8('\\');
    while (end - p >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const int hits =
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, backslash)));
        if (hits != 0) return p + std::countr_zero(static_cast<unsigned>(hits));
        p += 16;
    }
#endif
    while (p != end && *p != '"' && *p != '\\')
        ++p;
    return p;
}

inline bool IsBlank(char byte) noexcept {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// The first byte that is no white space, or `end`.
inline const char* FindNonBlank(const char* p, const char* end) noexcept {
#if ORRERY_SSE2
    while (end - p >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const __m128i flat =
            _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(' ')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\t')));
        const __m128i lineEnd =
            _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
        const unsigned others = ~static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(flat, lineEnd))) & 0xFFFFU;
        if (others != 0) return p + std::countr_zero(others);
        p += 16;
    }
#endif
    while (p != end && IsBlank(*p))
        ++p;
    return p;
}

// Whether the byte stands for itself between two tokens: neither a blank nor the start of a comment.
inline bool IsPlainByte(char byte) noexcept {
    return static_cast<unsigned char>(byte) > ' ' && byte != '/';
}

// The first byte past white space and comments, or `end`. A comment that never ends is left standing: its slash is no
// token, so whoever meets it reports the syntax error.
const char* SkipBlanksAndComments(const char* p, const char* end) noexcept;

// The same, for the usual text: one blank between two tokens or none.
inline const char* SkipBlanks(const char* p, const char* end) noexcept {
    if (p != end && *p == ' ') ++p;
    if (p != end && IsPlainByte(*p)) [[likely]] {
        return p;
    }
    return SkipBlanksAndComments(p, end);
}

} // namespace orrery::json
