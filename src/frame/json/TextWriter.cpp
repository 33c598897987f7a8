#include "frame/json/TextWriter.h"

#include "frame/json/Scan.h"
#include "frame/json/WalkStack.h"

#include <algorithm>
#include <array>
#include <bit>

namespace orrery::json {

namespace {

// What stands for a byte that must be escaped: the backslash and its letter. Zeros for all others.
using Escape = std::array<char, 2>;
constexpr std::array<Escape, 256> kEscapes = [] {
    std::array<Escape, 256> table{};
    const auto set = [&table](unsigned char byte, char letter) { table[byte] = {'\\', letter}; };
    set('"', '"');
    set('\\', '\\');
    set('/', '/');
    set(8, 'b');
    set(9, 't');
    set(10, 'n');
    set(12, 'f');
    set(13, 'r');
    return table;
}();

std::uint16_t EscapeWordOf(char byte) noexcept {
    return std::bit_cast<std::uint16_t>(kEscapes[static_cast<unsigned char>(byte)]);
}
char EscapeOf(char byte) noexcept {
    return kEscapes[static_cast<unsigned char>(byte)][1];
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
// A bit for every byte that a text may end at or that may need an escape, and with `AsciiOnly` for every byte that is
// no ASCII: all control characters up to the last one that is escaped are among them.
template <bool AsciiOnly>
unsigned Stops(__m128i bytes) noexcept {
    const __m128i quote = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'));
    const __m128i backslash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'));
    const __m128i slash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('/'));
    // As signed numbers all bytes that are no ASCII lie below the control characters.
    const __m128i control = AsciiOnly ? _mm_cmplt_epi8(bytes, _mm_set1_epi8(14))
                                      : _mm_cmpeq_epi8(_mm_min_epu8(bytes, _mm_set1_epi8(13)), bytes);
    const __m128i any = _mm_or_si128(_mm_or_si128(quote, backslash), _mm_or_si128(slash, control));
    return static_cast<unsigned>(_mm_movemask_epi8(any));
}
// Copies sixteen bytes.
__m128i CopyBlock(char* out, const char* text) noexcept {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
    return bytes;
}

// Less than sixteen bytes, with zeros behind them; in registers, where nothing waits for what was just stored.
__m128i LoadFew(const char* text, std::size_t size) noexcept {
    std::uint64_t low = 0, high = 0;
    if (size >= 8) {
        std::memcpy(&low, text, 8);
        std::memcpy(&high, text + size - 8, 8);
        const std::size_t half = 4 * (16 - size);
        high = high >> half >> half;
    } else if (size >= 4) {
        std::uint32_t first, last;
        std::memcpy(&first, text, 4);
        std::memcpy(&last, text + size - 4, 4);
        low = first | std::uint64_t{last} << 8 * (size - 4);
    } else {
        for (std::size_t i = 0; i < size; ++i)
            low |= std::uint64_t{static_cast<unsigned char>(text[i])} << 8 * i;
    }
    return _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
}

// Of less than sixteen bytes.
char* CopyFew(char* out, const char* text, std::size_t size) noexcept {
    if (size >= 8) {
        std::memcpy(out, text, 8);
        std::memcpy(out + size - 8, text + size - 8, 8);
    } else if (size >= 4) {
        std::memcpy(out, text, 4);
        std::memcpy(out + size - 4, text + size - 4, 4);
    } else if (size > 0) {
        out[0] = text[0];
        out[size / 2] = text[size / 2];
        out[size - 1] = text[size - 1];
    }
    return out + size;
}
#endif

// Where a text is being written.
template <bool Terminated, bool AsciiOnly>
struct Quoting {
    char* at;
    const char* p;

    // The next byte, escaped if it must be; takes two. False when the text ends there or is not to have it.
    [[gnu::always_inline]] bool PutByte() noexcept {
        const char byte = *p;
        if (const std::uint16_t escape = EscapeWordOf(byte); escape != 0) [[likely]] {
            std::memcpy(at, &escape, 2);
            at += 2;
        } else {
            if (Terminated && byte == '\0') return false;
            if (AsciiOnly && static_cast<signed char>(byte) < 0) return false;
            *at++ = byte;
        }
        ++p;
        return true;
    }
    // The end of what is written, once PutByte has answered false.
    char* End() const noexcept {
        if (!Terminated || *p != '\0') return nullptr;
        return Quote();
    }
    char* Quote() const noexcept {
        *at = '"';
        return at + 1;
    }
    // What is left, less than sixteen bytes. Apart, so that the road of the longer ones needs few registers.
    [[gnu::noinline]] static char* PutRest(char* at, const char* p, const char* end) noexcept {
        Quoting to{at, p};
#if ORRERY_SSE2
        auto left = static_cast<unsigned>(end - p);
        // A stop behind the last byte as well.
        for (unsigned stops = Stops<AsciiOnly>(LoadFew(p, left)) | 1u << left;; --left) {
            const unsigned good = std::min(static_cast<unsigned>(std::countr_zero(stops)), left);
            to.at = CopyFew(to.at, to.p, good);
            to.p += good;
            left -= good;
            if (left == 0) break;
            if (!to.PutByte()) return to.End();
            stops = stops >> good >> 1;
        }
#else
        while (to.p != end) {
            if (!to.PutByte()) return to.End();
        }
#endif
        return to.Quote();
    }
};

// PutText, with the text's size known or, else, to be found.
template <bool Terminated, bool AsciiOnly>
char* PutQuoted(char* at, const char* const text, std::size_t capacity) noexcept {
    *at++ = '"';
    Quoting<Terminated, AsciiOnly> to{at, text};
    const char* const end = text + capacity;
#if ORRERY_SSE2
    // What stands behind the terminator is copied along and overwritten later.
    while (end - to.p >= 16) {
        unsigned stops = Stops<AsciiOnly>(CopyBlock(to.at, to.p));
        if (stops == 0) {
            to.p += 16;
            to.at += 16;
            // The last block ends where the capacity does and begins inside the one before, if nothing moved it.
            const auto left = end - to.p;
            if (left > 0 && left < 16 && to.at - at == to.p - text) {
                to.p -= 16 - left;
                to.at -= 16 - left;
            }
            continue;
        }
        for (;;) {
            const auto good = static_cast<unsigned>(std::countr_zero(stops));
            to.p += good;
            to.at += good;
            if (!to.PutByte()) return to.End();
            // What is left of the block moves up, and where it stops next is known.
            stops = stops >> good >> 1;
            if (stops == 0 || end - to.p < 16) break;
            CopyBlock(to.at, to.p);
        }
    }
    if (to.p == end) return to.Quote();
#endif
    return to.PutRest(to.at, to.p, end);
}

} // namespace

char* PutText(char* at, const char* text, std::size_t capacity) noexcept {
    return PutQuoted<true, false>(at, text, capacity);
}
char* PutAscii(char* at, const char* text, std::size_t capacity) noexcept {
    return PutQuoted<true, true>(at, text, capacity);
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

void TextWriter::String(std::string_view text) noexcept {
    if (char* const at = Room(TextRoom(text.size()))) [[likely]] {
        char* const to = Separated(at);
        first_ = false;
        next_ = PutQuoted<false, false>(to, text.data(), text.size());
        return;
    }
    Separate();
    Quote(text);
}

void TextWriter::Key(std::string_view key) noexcept {
    constexpr std::string_view kColon = " : ";
    if (char* const at = Room(TextRoom(key.size()) + kColon.size())) [[likely]] {
        char* const end = PutQuoted<false, false>(Separated(at), key.data(), key.size());
        std::memcpy(end, kColon.data(), kColon.size());
        next_ = end + kColon.size();
    } else {
        Separate();
        Quote(key);
        Append(kColon.data(), kColon.size());
    }
    first_ = true;
}

void TextWriter::Quote(std::string_view text) noexcept {
    Append("\"", 1);
    const char* p = text.data();
    const char* const end = p + text.size();
#if ORRERY_SSE2
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
    // Values also go to fields of records, where nobody clears what stands behind a text.
    const auto number = [this](auto what) {
        char digits[kIntegerRoom];
        Separate();
        Append(digits, static_cast<std::size_t>(PutDigits(digits, what) - digits));
    };
    for (;;) {
        switch (current->type()) {
        case Type::Null:
            Null();
            break;
        case Type::Int:
            number(current->asInt());
            break;
        case Type::UInt:
            number(current->asUInt());
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
