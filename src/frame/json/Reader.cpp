#include "frame/json/Reader.h"

#include "frame/json/MemberOrder.h"
#include "frame/json/Number.h"
#include "frame/json/Scan.h"
#include "frame/json/StringDecoder.h"

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
    std::size_t distance; // in bytes, from the enclosing container's first entry to this one's
    Around around;
    bool sorted;
};
static_assert(sizeof(Enclosing) <= sizeof(Value));

// KeyPrefix without a look at how long a short key is: eight bytes must be loadable.
std::uint64_t LoadablePrefix(const char* key, std::size_t size) noexcept {
    const auto bytes = BigEndian<std::uint64_t>(key);
    return size >= 8 ? bytes : bytes & ~(~std::uint64_t{0} >> (8 * size));
}

// Elements and members pile up on a stack of their own, wherever their container stands in the document, and move to
// the arena in one piece when it closes. An array's entry is a Value, an object's is a Member; `top` is where the next
// one goes. An entry's Value is the stack's topmost 16 bytes once it is complete.
class Reader {
  public:
    Reader(std::string_view text, Arena& arena, SyntaxError* error) noexcept
        : begin_(text.data()), end_(begin_ + text.size()), arena_(arena), error_(error) {}

    bool Read(Value& root) noexcept;

  private:
    bool Fail(const char* stop, const char* message) noexcept {
        if (error_ != nullptr) *error_ = {message, static_cast<std::size_t>(stop - begin_)};
        return false;
    }
    bool FailString(const DecodedString& decoded, const char* unterminated) noexcept {
        if (decoded.exhausted) return false;
        return Fail(decoded.stop, decoded.unterminated ? unterminated : decoded.message);
    }
    bool Grow(std::byte*& top, std::byte*& start, std::byte*& limit) noexcept;
    bool InOrder(const Member& before, const Member& after, bool loadable) const noexcept;

    // Room that is kept free above `top`: a member and what it opens.
    static constexpr std::ptrdiff_t kHeadroom = 64;
    static constexpr std::size_t kStackSize = std::size_t{16} << 10;

    const char* const begin_;
    const char* const end_;
    Arena& arena_;
    SyntaxError* const error_;
    StackArena<kStackSize> stack_;
    std::byte* bottom_ = nullptr;
};

bool Reader::Grow(std::byte*& top, std::byte*& start, std::byte*& limit) noexcept {
    const auto used = static_cast<std::size_t>(top - bottom_);
    const auto room = static_cast<std::size_t>(limit - bottom_) * 2;
    auto* const larger = static_cast<std::byte*>(stack_.Allocate(room));
    if (larger == nullptr) {
        arena_.Exhaust();
        return false;
    }
    std::memcpy(larger, bottom_, used);
    start = larger + (start - bottom_);
    top = larger + used;
    limit = larger + room;
    bottom_ = larger;
    return true;
}

// Whether the two keys are in order and different. `loadable`: eight bytes may be loaded from each.
bool Reader::InOrder(const Member& before, const Member& after, bool loadable) const noexcept {
    if (loadable) {
        const std::uint64_t left = LoadablePrefix(before.keyText, before.keySize);
        const std::uint64_t right = LoadablePrefix(after.keyText, after.keySize);
        if (left != right) return left < right;
    }
    return CompareKeys(before.key(), after.key()) < 0;
}

bool Reader::Read(Value& root) noexcept {
    const char* const end = end_;
    bottom_ = static_cast<std::byte*>(stack_.Allocate(kStackSize));
    std::byte* top = bottom_;
    std::byte* limit = bottom_ + kStackSize;
    std::byte* start = top; // the first entry of the innermost open container
    Around around = Around::Nothing;
    bool sorted = true;
    const char* p = SkipBlanks(begin_, end);

    for (;;) {
        // One value, into the slot at `top`; `p` is at its first byte.
        if (p == end) return Fail(p, kValueExpected);
        switch (*p) {
        case '"': {
            const char* const text = p + 1;
            const char* const stop = FindQuoteOrBackslash(text, end);
            if (stop != end && *stop == '"') [[likely]] {
                new (top) Value(Value::OfString({text, static_cast<std::size_t>(stop - text)}));
                p = stop + 1;
                break;
            }
            const DecodedString decoded = DecodeString(text, stop, end, arena_);
            if (decoded.text.data() == nullptr) return FailString(decoded, kValueExpected);
            new (top) Value(Value::OfString(decoded.text));
            p = decoded.stop;
            break;
        }
        case '{':
        case '[': {
            const bool object = *p == '{';
            p = SkipBlanks(p + 1, end);
            if (p != end && *p == (object ? '}' : ']')) {
                new (top) Value(object ? Value::OfObject(nullptr, 0) : Value::OfArray(nullptr, 0));
                ++p;
                break;
            }
            new (top) Enclosing{static_cast<std::size_t>(top + sizeof(Value) - start), around, sorted};
            top += sizeof(Value);
            start = top;
            around = object ? Around::Object : Around::Array;
            sorted = true;
            if (limit - top < kHeadroom && !Grow(top, start, limit)) return false;
            if (object) goto memberName;
            continue;
        }
        case 't':
            if (end - p < 4 || std::memcmp(p, "true", 4) != 0) return Fail(p, kValueExpected);
            new (top) Value(Value::OfBool(true));
            p += 4;
            break;
        case 'f':
            if (end - p < 5 || std::memcmp(p, "false", 5) != 0) return Fail(p, kValueExpected);
            new (top) Value(Value::OfBool(false));
            p += 5;
            break;
        case 'n':
            if (end - p < 4 || std::memcmp(p, "null", 4) != 0) return Fail(p, kValueExpected);
            new (top) Value;
            p += 4;
            break;
        default: {
            if (*p != '-' && (*p < '0' || *p > '9')) return Fail(p, kValueExpected);
            Value number;
            const char* const after = ReadNumber(p, end, number);
            if (after == nullptr) return Fail(NumberTokenEnd(p, end), kNotANumber);
            new (top) Value(number);
            p = after;
            break;
        }
        }

        // A value is complete. What follows it closes any number of containers, or leads on to the next entry.
        for (;;) {
            if (around == Around::Nothing) {
                root = *std::launder(reinterpret_cast<const Value*>(top));
                return true;
            }
            top += sizeof(Value);
            p = SkipBlanks(p, end);
            if (p != end && *p == ',') {
                p = SkipBlanks(p + 1, end);
                break;
            }
            Value closed;
            const auto bytes = static_cast<std::size_t>(top - start);
            if (around == Around::Array) {
                if (p == end || *p != ']') return Fail(p, kArrayUnfinished);
                void* const elements = arena_.Allocate(bytes);
                if (elements == nullptr) return false;
                std::memcpy(elements, start, bytes);
                closed =
                    Value::OfArray(static_cast<Value*>(elements), static_cast<std::uint32_t>(bytes / sizeof(Value)));
            } else {
                if (p == end || *p != '}') return Fail(p, kObjectUnfinished);
                void* const members = arena_.Allocate(bytes);
                if (members == nullptr) return false;
                std::memcpy(members, start, bytes);
                auto count = static_cast<std::uint32_t>(bytes / sizeof(Member));
                if (!sorted) {
                    count = SortMembers(static_cast<Member*>(members), reinterpret_cast<Member*>(start), count);
                }
                closed = Value::OfObject(static_cast<Member*>(members), count);
            }
            ++p;
            top = start - sizeof(Value);
            const Enclosing enclosing = *std::launder(reinterpret_cast<const Enclosing*>(top));
            start -= enclosing.distance;
            around = enclosing.around;
            sorted = enclosing.sorted;
            new (top) Value(closed);
        }
        if (limit - top < kHeadroom && !Grow(top, start, limit)) return false;
        if (around == Around::Array) continue;

    memberName:
        if (p == end || *p != '"') return Fail(p, kNameMissing);
        auto* const member = reinterpret_cast<Member*>(top);
        {
            const char* const key = p + 1;
            const char* const stop = FindQuoteOrBackslash(key, end);
            const bool loadable = end - key >= 8; // so it is from the key before, which lies in front of this one
            if (stop != end && *stop == '"') [[likely]] {
                member->keyText = key;
                member->keySize = static_cast<std::uint32_t>(stop - key);
                p = stop + 1;
            } else {
                const DecodedString decoded = DecodeString(key, stop, end, arena_);
                if (decoded.text.data() == nullptr) return FailString(decoded, kNameMissing);
                member->keyText = decoded.text.data();
                member->keySize = static_cast<std::uint32_t>(decoded.text.size());
                p = decoded.stop;
            }
            if (top != start && sorted) sorted = InOrder(member[-1], *member, loadable);
        }
        top = reinterpret_cast<std::byte*>(&member->value);
        p = SkipBlanks(p, end);
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
    return Reader(text, arena, error).Read(root);
}

} // namespace orrery::json
