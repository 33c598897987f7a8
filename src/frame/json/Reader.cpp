#include "frame/json/Reader.h"

#include "frame/json/MemberOrder.h"
#include "frame/json/Number.h"
#include "frame/json/Scan.h"
#include "frame/json/StringDecoder.h"

#include <cstdlib>
#include <limits>

namespace orrery::json {

namespace {

constexpr const char* kValueExpected = "Syntax error: value, object or array expected.";
constexpr const char* kArrayUnfinished = "Missing ',' or ']' in array declaration";
constexpr const char* kColonMissing = "Missing ':' after object member name";
constexpr const char* kObjectUnfinished = "Missing ',' or '}' in object declaration";
constexpr const char* kNameMissing = "Missing '}' or object member name";
constexpr const char* kNotANumber = "' is not a number.";
constexpr const char* kTextTooLong = "Text of four gigabytes or more";

// What is open around the value that is being read.
enum class Around : std::uint8_t { Nothing, Array, Object };

// Stands in the slot of a container's value while its elements are read, to find the way back out.
struct Enclosing {
    std::uint64_t prefix;   // of the enclosing object's key
    std::uint32_t distance; // in values, from the enclosing container's first entry to this one's
    Around around;
    bool sorted;
};
static_assert(sizeof(Enclosing) <= sizeof(Value));

// Whether the characters of `pattern` stand at `p`, by one compare.
template <std::size_t Size>
bool Stands(const char* p, const char* end, const char (&pattern)[Size]) noexcept {
    static_assert(Size == 3 || Size == 5, "of two or four bytes, which are one load");
    return end - p >= static_cast<std::ptrdiff_t>(Size - 1) && std::memcmp(p, pattern, Size - 1) == 0;
}

// Entries that have only just been stored, value by value: wider loads would have to wait for them.
void MoveEntries(std::byte* to, const std::byte* from, std::size_t bytes) noexcept {
#if ORRERY_SSE2
    constexpr std::size_t kFew = 512;
    if (bytes <= kFew) {
        for (const std::byte* const stop = from + bytes; from != stop; from += sizeof(Value), to += sizeof(Value)) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)));
            asm volatile("" ::: "memory"); // or it becomes a call of memcpy
        }
        return;
    }
#endif
    std::memcpy(to, from, bytes);
}

// Elements and members pile up on a stack of their own, wherever their container stands in the document, and move to
// the arena in one piece when it closes. An array's entry is a Value, an object's is a Member; `top` is where the next
// one goes. An entry's Value is the stack's topmost 16 bytes once it is complete.
class Reader {
  public:
    Reader(std::string_view text, Arena& arena, SyntaxError* error) noexcept
        : begin_(text.data()), end_(begin_ + text.size()), arena_(arena), error_(error) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() { std::free(block_); }

    // The byte behind the value; null when there is none.
    const char* Read(Value& root) noexcept;

  private:
    std::nullptr_t Fail(const char* stop, const char* message) noexcept {
        if (error_ != nullptr) *error_ = {message, static_cast<std::size_t>(stop - begin_)};
        return nullptr;
    }
    std::nullptr_t FailString(const DecodedString& decoded, const char* unterminated) noexcept {
        if (decoded.exhausted) return nullptr;
        return Fail(decoded.stop, decoded.unterminated ? unterminated : decoded.message);
    }
    bool Grow(std::byte*& top, std::byte*& start, std::byte*& limit) noexcept;
    bool HandOver(std::size_t bytes, std::byte*& start, std::byte*& limit) noexcept;

    // Room that is kept free above `top`: a member and what it opens.
    static constexpr std::size_t kHeadroom = 64;
    static constexpr std::size_t kStackSize = std::size_t{16} << 10;

    const char* const begin_;
    const char* const end_;
    Arena& arena_;
    SyntaxError* const error_;
    MemberOrders orders_;
    void* block_ = nullptr; // the stack behind an arena's header, once it has outgrown `near_`
    std::byte* bottom_ = near_;
    alignas(16) std::byte near_[kStackSize]; // left uninitialised on purpose
};

bool Reader::Grow(std::byte*& top, std::byte*& start, std::byte*& limit) noexcept {
    const auto used = static_cast<std::size_t>(top - bottom_);
    const auto before = static_cast<std::size_t>(start - bottom_);
    // A value takes two bytes of text, itself and what separates it, so this is enough, but for brackets that are
    // opened and never closed.
    const std::size_t enough = static_cast<std::size_t>(end_ - begin_ + 1) / 2 * sizeof(Value) + 2 * kHeadroom;
    std::size_t room = static_cast<std::size_t>(limit - bottom_) * 2;
    if (room > enough && used + kHeadroom <= enough) room = enough;
    void* const block = std::malloc(Arena::kBlockHeader + room);
    if (block == nullptr) {
        arena_.MarkFailed();
        return false;
    }
    auto* const larger = static_cast<std::byte*>(block) + Arena::kBlockHeader;
    std::memcpy(larger, bottom_, used);
    std::free(block_);
    block_ = block;
    bottom_ = larger;
    start = bottom_ + before;
    top = bottom_ + used;
    limit = bottom_ + room;
    return true;
}

// Leaves a long container's entries where they are and gives the whole stack to the arena, so that the longest of all
// is not held twice. False when it is not worth it.
bool Reader::HandOver(std::size_t bytes, std::byte*& start, std::byte*& limit) noexcept {
    const auto below = static_cast<std::size_t>(start - bottom_);
    if (block_ == nullptr || bytes < static_cast<std::size_t>(limit - bottom_) / 2) return false;
    if (below + bytes < kStackSize || below > kStackSize - kHeadroom) return false;
    arena_.Adopt(block_);
    block_ = nullptr;
    std::memcpy(near_, bottom_, below);
    bottom_ = near_;
    start = near_ + below;
    limit = near_ + kStackSize;
    return true;
}

const char* Reader::Read(Value& root) noexcept {
    const char* const end = end_;
    std::byte* top = bottom_;
    std::byte* limit = bottom_ + kStackSize;
    std::byte* start = top; // the first entry of the innermost open container
    Around around = Around::Nothing;
    bool sorted = true;
    std::uint64_t prefix = 0; // of the key before in the innermost open object
    const char* p = SkipBlanks(begin_, end);

    for (;;) {
        // One value, into the slot at `top`; `p` is at its first byte or at blanks before it.
        if (p == end) return Fail(p, kValueExpected);
        switch (*p) {
        case '"': {
            const char* const text = p + 1;
            const char* const stop = FindQuoteOrBackslash(text, end);
            if (stop != end && *stop == '"') [[likely]] {
                Value::PutString(top, text, static_cast<std::size_t>(stop - text));
                p = stop + 1;
                break;
            }
            const DecodedString decoded = DecodeString(text, stop, end, arena_);
            if (decoded.text.data() == nullptr) return FailString(decoded, kValueExpected);
            Value::PutString(top, decoded.text.data(), decoded.text.size());
            p = decoded.stop;
            break;
        }
        case '{':
        case '[': {
            const bool object = *p == '{';
            p = SkipBlanks(p + 1, end);
            if (p != end && *p == (object ? '}' : ']')) {
                object ? Value::PutObject(top, nullptr, 0) : Value::PutArray(top, nullptr, 0);
                ++p;
                break;
            }
            const auto distance = static_cast<std::size_t>(top + sizeof(Value) - start) / sizeof(Value);
            new (top) Enclosing{prefix, static_cast<std::uint32_t>(distance), around, sorted};
            top += sizeof(Value);
            start = top;
            around = object ? Around::Object : Around::Array;
            sorted = true;
            if (static_cast<std::size_t>(limit - top) < kHeadroom && !Grow(top, start, limit)) return nullptr;
            if (object) goto memberName;
            continue;
        }
        case 't':
            if (!Stands(p, end, "true")) return Fail(p, kValueExpected);
            Value::PutBool(top, true);
            p += 4;
            break;
        case 'f':
            if (end - p < 5 || std::memcmp(p, "false", 5) != 0) return Fail(p, kValueExpected);
            Value::PutBool(top, false);
            p += 5;
            break;
        case 'n':
            if (!Stands(p, end, "null")) return Fail(p, kValueExpected);
            Value::PutNull(top);
            p += 4;
            break;
        default: {
            if (*p != '-' && (*p < '0' || *p > '9')) {
                const char* const next = SkipBlanksAndComments(p, end);
                if (next == p) return Fail(p, kValueExpected);
                p = next;
                continue;
            }
            const char* const after = ReadNumber(p, end, top);
            if (after == nullptr) return Fail(NumberTokenEnd(p, end), kNotANumber);
            p = after;
            break;
        }
        }

        // A value is complete. What follows it closes any number of containers, or leads on to the next entry.
        for (;;) {
            if (around == Around::Nothing) {
                root = *std::launder(reinterpret_cast<const Value*>(top));
                return p;
            }
            top += sizeof(Value);
            if (Stands(p, end, ", ")) [[likely]] {
                p += 2;
                break;
            }
            p = SkipBlanks(p, end);
            if (p != end && *p == ',') {
                p = SkipBlanks(p + 1, end);
                break;
            }
            const bool object = around == Around::Object;
            if (p == end || *p != (object ? '}' : ']')) return Fail(p, object ? kObjectUnfinished : kArrayUnfinished);
            ++p;
            const auto bytes = static_cast<std::size_t>(top - start);
            std::byte* entries = start;
            if (!sorted || !HandOver(bytes, start, limit)) {
                entries = static_cast<std::byte*>(arena_.Allocate(bytes));
                if (entries == nullptr) return nullptr;
                if (sorted) MoveEntries(entries, start, bytes);
            }
            std::byte* const from = start;
            top = start - sizeof(Value);
            const Enclosing enclosing = *std::launder(reinterpret_cast<const Enclosing*>(top));
            start -= std::size_t{enclosing.distance} * sizeof(Value);
            if (object) {
                auto count = static_cast<std::uint32_t>(bytes / sizeof(Member));
                auto* const members = reinterpret_cast<Member*>(entries);
                if (!sorted) count = SortMembers(reinterpret_cast<Member*>(from), members, count, orders_);
                Value::PutObject(top, members, count);
            } else {
                Value::PutArray(top, reinterpret_cast<const Value*>(entries), bytes / sizeof(Value));
            }
            around = enclosing.around;
            sorted = enclosing.sorted;
            prefix = enclosing.prefix;
        }
        if (static_cast<std::size_t>(limit - top) < kHeadroom && !Grow(top, start, limit)) return nullptr;
        if (around == Around::Array) continue;

    memberName:
        if (p == end || *p != '"') {
            p = SkipBlanks(p, end);
            if (p == end || *p != '"') return Fail(p, kNameMissing);
        }
        {
            const char* key = p + 1;
            const char* stop = FindQuoteOrBackslash(key, end);
            auto size = static_cast<std::size_t>(stop - key);
            if (stop == end || *stop != '"') [[unlikely]] {
                const DecodedString decoded = DecodeString(key, stop, end, arena_);
                if (decoded.text.data() == nullptr) return FailString(decoded, kNameMissing);
                key = decoded.text.data();
                size = decoded.text.size();
                stop = decoded.stop - 1;
            } else if (end - key < static_cast<std::ptrdiff_t>(kKeySlack)) [[unlikely]] {
                auto* const copy = arena_.Array<char>(size + kKeySlack);
                if (copy == nullptr) return nullptr;
                std::memcpy(copy, key, size);
                std::memset(copy + size, 0, kKeySlack);
                key = copy;
            }
            auto* const member = reinterpret_cast<Member*>(top);
            Member::PutKey(member, key, static_cast<std::uint32_t>(size));
            const std::uint64_t before = prefix;
            prefix = KeyPrefix(key, size);
            if (prefix <= before && top != start && sorted) {
                sorted = prefix == before && CompareKeys(member[-1].key(), {key, size}) < 0;
            }
            top += offsetof(Member, value);
            if (Stands(stop, end, "\" : ")) [[likely]] {
                p = stop + 4;
                continue;
            }
            p = SkipBlanks(stop + 1, end);
        }
        if (p == end || *p != ':') return Fail(p, kColonMissing);
        p = SkipBlanks(p + 1, end);
    }
}

} // namespace

const char* SkipBlanksAndComments(const char* p, const char* end) noexcept {
    for (;;) {
        p = FindNonBlank(p, end);
        if (end - p < 2 || *p != '/') return p;
        if (p[1] == '/') {
            p += 2;
            while (p != end && *p != '\n' && *p != '\r')
                ++p;
        } else if (p[1] == '*') {
            const char* star = p + 2;
            do {
                star = static_cast<const char*>(std::memchr(star, '*', static_cast<std::size_t>(end - star)));
                if (star == nullptr || ++star == end) return p;
            } while (*star != '/');
            p = star + 1;
        } else {
            return p;
        }
    }
}

bool Parse(std::string_view text, Arena& arena, Value& root, SyntaxError* error) noexcept {
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
        if (error != nullptr) *error = {kTextTooLong, 0};
        return false;
    }
    arena.Expect(text.size());
    return Reader(text, arena, error).Read(root) != nullptr;
}

const char* ParseAt(const char* p, const char* end, Arena& arena, Value& value) noexcept {
    return Reader({p, static_cast<std::size_t>(end - p)}, arena, nullptr).Read(value);
}

} // namespace orrery::json
