#include "frame/json/TextWriter.h"

#include "frame/json/Scan.h"
#include "frame/json/WalkStack.h"

#include <algorithm>
#include <array>
#include <bit>

namespace orrery::json {

namespace {

// The letter behind the backslash for a byte that must be escaped, 0 for all others.
constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> table{};
    table['"'] = '"';
    table['\\'] = '\\';
    table['/'] = '/';
    table[8] = 'b';
    table[9] = 't';
    table[10] = 'n';
    table[12] = 'f';
    table[13] = 'r';
    return table;
}();

char EscapeOf(char byte) noexcept {
    return kEscapes[static_cast<unsigned char>(byte)];
}

#if ORRERY_SSE2
// A bit for every byte that may need an escape. Byte 11 is among them, being in the midst of those that do.
unsigned Suspects(__m128i bytes) noexcept {
    const __m128i quote = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'));
    const __m128i backslash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'));
    const __m128i slash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('/'));
    const __m128i fromEight = _mm_sub_epi8(bytes, _mm_set1_epi8(8));
    const __m128i control = _mm_cmpeq_epi8(_mm_min_epu8(fromEight, _mm_set1_epi8(5)), fromEight);
    const __m128i any = _mm_or_si128(_mm_or_si128(quote, backslash), _mm_or_si128(slash, control));
    return static_cast<unsigned>(_mm_movemask_epi8(any));
}
#endif

} // namespace

char* PutCleanText(char* at, const char* text, std::size_t capacity, bool asciiOnly) noexcept {
    *at++ = '"';
#if ORRERY_SSE2
    // What stands behind the terminator is copied along and overwritten later.
    const __m128i zero = _mm_setzero_si128();
    for (std::size_t from = 0; capacity >= 16;) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + from));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(at + from), bytes);
        const unsigned ends = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, zero)));
        unsigned refused = Suspects(bytes);
        if (asciiOnly) refused |= static_cast<unsigned>(_mm_movemask_epi8(bytes));
        if (const unsigned any = ends | refused; any != 0) {
            const int first = std::countr_zero(any);
            if ((refused >> first & 1) != 0) return nullptr;
            at += from + static_cast<unsigned>(first);
            *at = '"';
            return at + 1;
        }
        if (from + 16 == capacity) {
            at[capacity] = '"';
            return at + capacity + 1;
        }
        // The last block ends where the capacity does and begins inside the one before.
        from = std::min(from + 16, capacity - 16);
    }
#endif
    for (std::size_t i = 0; i < capacity && text[i] != '\0'; ++i) {
        if (EscapeOf(text[i]) != 0 || (asciiOnly && static_cast<signed char>(text[i]) < 0)) return nullptr;
        *at++ = text[i];
    }
    *at = '"';
    return at + 1;
}

void TextWriter::AppendPart(const char* text, std::size_t size) noexcept {
    if (size == 0) return;
    if (arena_ != nullptr && size > static_cast<std::size_t>(end_ - next_)) Grow(size);
    const auto room = static_cast<std::size_t>(end_ - next_);
    const std::size_t part = size < room ? size : room;
    if (part > 0) {
        std::memcpy(next_, text, part);
        next_ += part;
    }
    lost_ += size - part;
}

void TextWriter::Grow(std::size_t size) noexcept {
    const auto used = static_cast<std::size_t>(next_ - begin_);
    if (lost_ != 0 || static_cast<std::size_t>(end_ - begin_) >= most_) return;
    const std::size_t wanted = std::min(4 * used + size, most_);
    char* const block = arena_->Array<char>(wanted);
    if (block == nullptr) return;
    if (used != 0) std::memcpy(block, begin_, used);
    begin_ = block;
    next_ = block + used;
    end_ = block + wanted;
}

void TextWriter::Real(double number) noexcept {
    char text[kRealRoom]; // which PutReal needs also beyond the digits
    Scalar(text, static_cast<std::size_t>(PutReal(text, number) - text));
}

// Whether a text of 32 bytes or less is known to need no escape.
bool TextWriter::IsClean(std::string_view text) noexcept {
    const char* const p = text.data();
    const std::size_t size = text.size();
#if ORRERY_SSE2
    if (size >= 16) {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + size - 16));
        return (Suspects(low) | Suspects(high)) == 0;
    }
    if (size >= 8) {
        const __m128i low = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        const __m128i high = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + size - 8));
        return Suspects(_mm_unpacklo_epi64(low, high)) == 0;
    }
    if (size >= 4) {
        std::uint32_t low, high;
        std::memcpy(&low, p, 4);
        std::memcpy(&high, p + size - 4, 4);
        return Suspects(_mm_set1_epi64x(static_cast<std::int64_t>(std::uint64_t{high} << 32 | low))) == 0;
    }
#endif
    char any = 0;
    for (const char byte : text)
        any |= EscapeOf(byte);
    return any == 0;
}

void TextWriter::String(std::string_view text) noexcept {
    constexpr std::size_t kShort = 32;
    if (text.size() <= kShort && IsClean(text)) {
        if (char* const at = Room(text.size() + 2)) [[likely]] {
            next_ = Quoted(Separated(at), text);
            first_ = false;
            return;
        }
    }
    Separate();
    Quote(text);
}

void TextWriter::Quote(std::string_view text) noexcept {
    Append("\"", 1);
    const char* p = text.data();
    const char* const end = p + text.size();
#if ORRERY_SSE2
    // A text of two blocks or less that is clean, as most are: the blocks overlap.
    if (text.size() >= 16 && text.size() <= 32 && static_cast<std::size_t>(end_ - next_) > text.size()) {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(end - 16));
        if ((Suspects(low) | Suspects(high)) == 0) [[likely]] {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(next_), low);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(next_ + text.size() - 16), high);
            next_ += text.size();
            *next_++ = '"';
            return;
        }
    }
    // Whole blocks are stored before it is known how much of them is good: what is not gets overwritten.
    while (end - p >= 16 && end_ - next_ >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(next_), bytes);
        const unsigned suspects = Suspects(bytes);
        if (suspects == 0) {
            p += 16;
            next_ += 16;
            continue;
        }
        const int good = std::countr_zero(suspects);
        p += good;
        next_ += good;
        Escaped(p, p + 1);
        ++p;
    }
    // Two halves that overlap cover what is left when it is clean.
    const auto left = end - p;
    if (left >= 8 && left < 16 && end_ - next_ >= left) {
        const __m128i low = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        const __m128i high = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(end - 8));
        if (Suspects(_mm_unpacklo_epi64(low, high)) == 0) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(next_), low);
            _mm_storel_epi64(reinterpret_cast<__m128i*>(next_ + left - 8), high);
            next_ += left;
            p = end;
        }
    }
#endif
    Escaped(p, end);
    Append("\"", 1);
}

void TextWriter::Escaped(const char* p, const char* end) noexcept {
    const auto size = static_cast<std::size_t>(end - p);
    if (size <= static_cast<std::size_t>(end_ - next_) / 2) [[likely]] {
        char* out = next_;
        for (; p != end; ++p) {
            if (const char letter = EscapeOf(*p)) {
                *out++ = '\\';
                *out++ = letter;
            } else {
                *out++ = *p;
            }
        }
        next_ = out;
        return;
    }
    for (; p != end; ++p) {
        const char escape[2] = {'\\', EscapeOf(*p)};
        if (escape[1] != 0) {
            Append(escape, 2);
        } else {
            Append(p, 1);
        }
    }
}

bool TextWriter::Write(const Value& value, Arena& arena) noexcept {
    struct Level {
        const Value* container;
        std::uint32_t next;
    };
    WalkStack<Level, 16> levels(arena);
    const Value* current = &value;
    for (;;) {
        switch (current->type()) {
        case Type::Null:
            Null();
            break;
        case Type::Int:
            Int(current->asInt());
            break;
        case Type::UInt:
            UInt(current->asUInt());
            break;
        case Type::Real:
            Real(current->asDouble());
            break;
        case Type::String:
            String(current->asString());
            break;
        case Type::Bool:
            Bool(current->asBool());
            break;
        case Type::Array:
            BeginArray();
            if (!levels.Push({current, 0})) return false;
            break;
        case Type::Object:
            BeginObject();
            if (!levels.Push({current, 0})) return false;
            break;
        }
        for (;;) {
            if (levels.empty()) return true;
            Level& level = levels.top();
            const bool object = level.container->type() == Type::Object;
            if (level.next < level.container->size()) {
                if (object) {
                    const Member& member = level.container->members()[level.next++];
                    Key(member.key());
                    current = &member.value;
                } else {
                    current = &level.container->elements()[level.next++];
                }
                break;
            }
            object ? EndObject() : EndArray();
            levels.Pop();
        }
    }
}

} // namespace orrery::json
