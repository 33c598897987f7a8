#include "frame/record/ReadText.h"

#include "frame/json/Reader.h"
#include "frame/json/Tokens.h"
#include "frame/record/ReadSteps.h"
#include "frame/record/ReadWeek.h"

#include <algorithm>
#include <array>
#include <bit>
#include <new>
#include <utility>

namespace orrery::record {

namespace {

using json::Value;

// A value as a document of its own, which lies in this room when it is a short list of scalars, as most are.
struct ShortList {
    static constexpr std::uint32_t kMost = 48;
    alignas(Value) std::byte bytes[kMost * sizeof(Value)]; // left uninitialised on purpose

    Value* elements() noexcept { return reinterpret_cast<Value*>(bytes); }
};
const char* ReadShortList(const char* p, Value& value, ShortList& room, const TextCall& text) noexcept {
    std::uint32_t count = 0;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        if (count == ShortList::kMost || *step.at == '{' || *step.at == '[') return nullptr;
        p = json::ReadScalar(step.at, text.end, text.arena(), room.elements() + count++);
        if (p == nullptr) return nullptr;
        step = json::NextEntry(p, text.end, ']');
    }
    value = Value::OfArray(room.elements(), count);
    return step.at;
}
const char* ReadDocument(const char* p, Value& value, ShortList& room, const TextCall& text) noexcept {
    if (*p == '[') {
        if (const char* const after = ReadShortList(p, value, room, text)) return after;
    }
    return json::ParseAt(p, text.end, text.arena(), value);
}
const char* ReadAny(const char* p, Value& value, const TextCall& text) noexcept {
    if (*p == '{' || *p == '[') return json::ParseAt(p, text.end, text.arena(), value);
    return json::ReadScalar(p, text.end, text.arena(), &value);
}

// Whether the `size` bytes of a table's key text stand at `p`.
bool Stands(const char* keyText, std::size_t size, const char* p, const char* end) noexcept {
#if ORRERY_SSE2
    static_assert(kKeyTextSlack >= 16);
    const auto differs = [=](std::size_t at) {
        const __m128i ours = _mm_loadu_si128(reinterpret_cast<const __m128i*>(keyText + at));
        const __m128i theirs = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(ours, theirs))) ^ 0xFFFF;
    };
    if (size <= 16 && end - p >= 16) [[likely]]
        return (differs(0) & ((1u << size) - 1)) == 0;
    if (size <= static_cast<std::size_t>(end - p) && size <= 32 && size > 16)
        return (differs(0) | differs(size - 16)) == 0;
#endif
    return static_cast<std::size_t>(end - p) >= size && std::memcmp(keyText, p, size) == 0;
}

// The value behind `, "Key" : ` when the node's key stands so at `p`, as nearly all devices write it: one look tells of
// all that lies between two values. Null for any other text.
inline const char* ValueOfNext(const Table& table, const Node& node, const char* p, const char* end) noexcept {
    const char* const ours = table.keyTexts + node.quotedAt - 2;
    const std::size_t size = node.keySize + std::size_t{7};
#if ORRERY_SSE2
    static_assert(kKeyTextSlack >= 32);
    if (size > 32 || end - p <= 32) [[unlikely]]
        return nullptr;
    const auto same = [&](std::size_t at) {
        const __m128i left = _mm_loadu_si128(reinterpret_cast<const __m128i*>(ours + at));
        const __m128i right = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(left, right)))};
    };
    if ((~(same(0) | same(16) << 16) & ((std::uint64_t{1} << size) - 1)) != 0) return nullptr;
#else
    if (end - p <= static_cast<std::ptrdiff_t>(size) || std::memcmp(ours, p, size) != 0) return nullptr;
#endif
    p += size;
    return static_cast<unsigned char>(*p) > ' ' && *p != '/' ? p : nullptr;
}

const char* ReadNamedText(const Table& table, const char* p, std::byte* at, TextCall& text,
                          std::string_view memberName) noexcept;

// ---- Lists ---------------------------------------------------------------------------------------------------------

struct Counts {
    std::uint32_t used = 0;  // elements that have a slot
    std::uint32_t size = 0;  // elements that came
    std::uint32_t holes = 0; // slots that do not count
};

// Of larger members the elements are kept one by one, as they come.
constexpr std::uint32_t kKeptWhole = 2 << 10;
bool IsKeptByElement(const Field& field) noexcept {
    return field.kind == Kind::Record && field.cell != Cell::Pointer && field.size > kKeptWhole;
}

const char* ReadElements(const Field& field, int level, const char* p, const Elements& room, TextCall& text,
                         Counts& counts, bool keepsEach) noexcept {
    const bool isPointed = field.cell == Cell::Pointer;
    const bool innermost = isPointed || level + 1 == field.rank;
    const std::uint32_t stride = StrideOf(field, level);
    const bool areNumbers = innermost && field.kind == Kind::Int && field.cell == Cell::I32;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        p = step.at;
        if (counts.used < room.room && !text.call.refused) {
            std::byte* const slot = room.first + std::size_t{counts.used++} * stride;
            const bool isContainer = *p == '{' || *p == '[';
            if (*p == 'n') counts.holes += field.nulls == Nulls::LeaveHole;
            std::int32_t number;
            if (isPointed && !StartPointed(field, slot, text.call)) return nullptr;
            if (keepsEach && innermost && !text.call.Keep(slot, stride)) return nullptr;
            if (innermost && isContainer && field.kind == Kind::Record) {
                p = ReadNamedText(*field.table, p, slot, text, {});
            } else if (const char* after; areNumbers && (after = json::ReadShortInt(p, text.end, number)) != nullptr) {
                Store(slot, number);
                p = after;
            } else if (innermost) {
                Value value;
                p = ReadAny(p, value, text);
                if (p == nullptr) return nullptr;
                ReadElement(field, value, slot, text.call, {});
            } else if (*p == '[') {
                Counts inside;
                p = ReadElements(field, level + 1, p, {slot, field.dims[level + 1]}, text, inside, keepsEach);
            } else {
                p = json::SkipValue(p, text.end, text.arena());
            }
        } else {
            p = json::SkipValue(p, text.end, text.arena());
        }
        if (p == nullptr) return nullptr;
        ++counts.size;
        step = json::NextEntry(p, text.end, ']');
    }
    return step.at;
}

const char* ReadListText(const Field& field, const char* p, std::byte* record, TextCall& text) noexcept {
    const bool isPointed = field.cell == Cell::Pointer;
    const Elements room = isPointed ? ElementsOf(field, record, 0) : Elements{record + field.offset, field.dims[0]};
    StoreSlot(field.flag, record, 1);
    Counts counts;
    const bool keepsRows = std::exchange(text.keepsRows, false);
    p = ReadElements(field, 0, p, room, text, counts, keepsRows && IsKeptByElement(field));
    text.keepsRows = keepsRows;
    if (p != nullptr) StoreSlot(field.count, record, field.countUncapped ? counts.size : counts.used - counts.holes);
    return p;
}

// A mask, bit after bit. Null for anything but so many short numbers as it has bits: some of them may be set, which
// will be set again.
const char* ReadMaskText(const Field& field, const char* p, std::byte* record, const TextCall& text) noexcept {
    std::uint32_t left = field.dims[0] * 32;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        std::int32_t number;
        p = json::ReadShortInt(step.at, text.end, number);
        if (p == nullptr || left-- == 0) return nullptr;
        SetBit(field, record + field.offset, number);
        step = json::NextEntry(p, text.end, ']');
    }
    StoreSlot(field.flag, record, 1);
    return step.at;
}

// ---- Objects -------------------------------------------------------------------------------------------------------

// The nodes of one object on their way through its members: which is expected next and, once that is asked, which have
// been seen.
class Members {
  public:
    Members(const Table& table, NodeRange range, std::byte* record, TextCall& text) noexcept
        : table_(table), first_(table.nodes + range.first), end_(first_ + range.count), next_(first_),
          lastAbsent_(table.nodes + range.lastAbsent), record_(record), text_(text),
          tracks_(table.anyOrder && lastAbsent_ > first_), watches_(tracks_ || text.keepsRows) {}

    const char* Read(const char* p) noexcept;

  private:
    int OrderOf(const Node& node, std::uint64_t prefix, std::string_view key) const noexcept {
        if (node.prefix != prefix) return node.prefix < prefix ? -1 : 1;
        return json::CompareKeys(table_.keyOf(node), key);
    }
    const Node* Find(std::string_view key, const char* object, const char* at) noexcept;
    const Node* FindBefore(const Node* end, std::string_view key) const noexcept;
    bool Track(const char* object, const char* at) noexcept;
    const char* ReadAt(const Node& node, const char* p) noexcept;
    const char* ReadUsual(const Node& node, const char* p) noexcept;
    const char* ReadWhole(const Node& node, const char* p) noexcept;
    const char* ReadShared(const Node* node, const char* p) noexcept;
    // False for a node that was seen before, or comes behind one that should have come first, or whose row could not be
    // kept. Keys in order need no memory of it.
    bool See(const Node& node) noexcept {
        if (!watches_) return true;
        if (text_.keepsRows && !KeepRow(node)) return false;
        if (!tracks_) return true;
        const auto place = static_cast<std::size_t>(&node - first_);
        std::uint64_t& word = seen_[place / 64];
        const std::uint64_t bit = std::uint64_t{1} << place % 64;
        if ((word & bit) != 0) return false;
        word |= bit;
        if (node.ordered) {
            if (&node < lastOrdered_) return false;
            lastOrdered_ = &node;
        }
        return true;
    }
    bool HasSeen(const Node& node) const noexcept {
        const auto place = static_cast<std::size_t>(&node - first_);
        return (seen_[place / 64] >> place % 64 & 1) != 0;
    }
    void ReadAbsent(const Node& node) noexcept {
        if (text_.keepsRows && !KeepRow(node)) return; // the call ends
        ReadNode(table_, node, json::kNull, record_, text_.call);
    }
    bool KeepRow(const Node& node) noexcept;
    const char* TakeUnread(const Field* row, std::string_view key, const char* p) noexcept;

    const Table& table_;
    const Node* const first_;
    const Node* const end_;
    const Node* next_;
    const Node* const lastAbsent_;
    const Node* lastOrdered_ = nullptr;
    std::byte* const record_;
    TextCall& text_;
    std::uint64_t seen_[kMostInText / 64] = {};
    bool tracks_;          // seen_ is kept: keys have come out of order, or absent ones are read at the end
    bool watches_;         // something is done about each member in front of reading it
    bool refuses_ = false; // a key came that the table takes in order only
};

bool IsUnread(const Field& row) noexcept {
    return !row.readable || (row.kind == Kind::Custom && row.custom->read == nullptr);
}

// Keeps what reading a row touches, but for what KeepSmallRows has kept and for elements that are kept one by one.
bool Members::KeepRow(const Node& node) noexcept {
    if (node.childCount > 0) return true; // its rows are
    const Field& row = table_.rows[node.row];
    if (row.size <= kKeptWhole || IsUnread(row) || (node.listed && IsKeptByElement(row))) return true;
    return text_.call.Keep(record_ + row.offset, row.size);
}

// A value that no row reads goes to whoever asks for it. `row` is null for a key of no row.
const char* Members::TakeUnread(const Field* row, std::string_view key, const char* p) noexcept {
    const bool isAsked = text_.asides != nullptr && (row != nullptr || first_ == table_.nodes + table_.members.first);
    if (isAsked) return text_.asides->take(*text_.asides, {table_, row, key, record_}, p, text_);
    return json::SkipValue(p, text_.end, text_.arena());
}

const Node* Members::FindBefore(const Node* end, std::string_view key) const noexcept {
    const std::uint64_t prefix = json::KeyPrefix(key);
    const auto below = [&](const Node& node, int) { return OrderOf(node, prefix, key) < 0; };
    const Node* const node = std::lower_bound(first_, end, 0, below);
    return node == end || OrderOf(*node, prefix, key) != 0 ? nullptr : node;
}

// Sees all members of the object at `object` up to the one at `at`, which were read in order.
bool Members::Track(const char* object, const char* at) noexcept {
    tracks_ = watches_ = true;
    json::Step step = json::FirstEntry(object, text_.end, '}');
    while (step.at != at) {
        Value key;
        const char* p = json::ReadScalar(step.at, text_.end, text_.arena(), &key);
        if (p == nullptr || (p = json::ValueBehindKey(p, text_.end)) == nullptr) return false;
        const std::string_view name = key.asString();
        for (const Node* node = FindBefore(end_, name); node != nullptr && node != end_; ++node) {
            if (table_.keyOf(*node) != name) break;
            See(*node);
        }
        p = json::SkipValue(p, text_.end, text_.arena());
        if (p == nullptr) return false; // deeper than is gone through twice
        step = json::NextEntry(p, text_.end, '}');
    }
    return true;
}

// The first node with the key of the member at `at`; null when there is none, and `refuses_` when it can't be read any
// more.
const Node* Members::Find(std::string_view key, const char* object, const char* at) noexcept {
    const std::uint64_t prefix = json::KeyPrefix(key);
    const Node* const expected = next_;
    for (; next_ != end_; ++next_) {
        const int side = OrderOf(*next_, prefix, key);
        if (side == 0) return next_;
        if (side > 0) break;
        if (!table_.anyOrder && next_->needsAbsent) ReadAbsent(*next_);
    }
    if (next_ != expected || next_ == first_) return nullptr;
    // It belongs in front of what is expected, where it may have been before.
    if (OrderOf(next_[-1], prefix, key) < 0) return nullptr;
    const Node* const node = FindBefore(expected, key);
    if (node == nullptr) return nullptr;
    refuses_ = !table_.anyOrder || (!tracks_ && !Track(object, at));
    next_ = node;
    return node;
}

// Several nodes with one key. All but one may only want to know that it is there, or be written alone; or all may take
// a week. Otherwise the value is a document for all of them.
const char* Members::ReadShared(const Node* node, const char* p) noexcept {
    const std::string_view key = table_.keyOf(*node);
    const auto isPresence = [](const Node& one) {
        return one.kind == Kind::Presence && one.readPlainly == Plainly::Element && one.childCount == 0;
    };
    const auto isWritten = [this](const Node& one) {
        return one.readPlainly == Plainly::Function && table_.rows[one.row].custom->read == nullptr;
    };
    const Node* last = node;
    int others = 0;
    bool areWeeks = *p == '[';
    for (; last != end_ && last->shared && table_.keyOf(*last) == key; ++last) {
        if (!See(*last)) return nullptr;
        if (isWritten(*last)) continue;
        others += !isPresence(*last);
        areWeeks = areWeeks && last->week;
    }
    next_ = last;
    if (others == 0 && text_.asides != nullptr && isWritten(*node)) // and so are the others
        return TakeUnread(&table_.rows[node->row], key, p);
    if (others == 1 && (*p == '{' || *p == '[')) {
        const char* after = nullptr;
        for (; node != last; ++node) {
            if (isPresence(*node))
                ReadNode(table_, *node, Value::OfBool(true), record_, text_.call);
            else if (!isWritten(*node) && (after = ReadAt(*node, p)) == nullptr) // a container
                return nullptr;
        }
        return after;
    }
    if (areWeeks && others > 0) {
        Week week;
        const Node* one = node;
        while (one != last && (isWritten(*one) || ReadWeek(table_, *one, p, record_, text_, week)))
            ++one;
        if (one == last) return week.after;
    }
    Value value;
    p = ReadAny(p, value, text_);
    if (p == nullptr) return nullptr;
    for (; node != last; ++node)
        ReadNode(table_, *node, value, record_, text_.call);
    return p;
}

#if ORRERY_SSE2
// The first bytes of a text, as many as most have.
struct TextHead {
    static constexpr std::size_t kSize = 32;
    __m128i low, high;

    explicit TextHead(const char* p) noexcept : low(Load(p)), high(Load(p + 16)) {}
    // The first quote or backslash; kSize when there is none.
    std::size_t Stop() const noexcept {
        const auto hits = [](__m128i bytes) {
            const __m128i both =
                _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\')));
            return static_cast<std::uint32_t>(_mm_movemask_epi8(both));
        };
        return static_cast<std::size_t>(std::countr_zero(hits(low) | hits(high) << 16));
    }
    // Puts `size` bytes of them, fewer than all, into a field and clears what they leave of it. False, and nothing
    // done, when the field is too short.
    bool Put(char* to, std::size_t size, std::size_t capacity) const noexcept {
        alignas(64) static constexpr std::array<std::uint8_t, 2 * kSize> kMask = [] {
            std::array<std::uint8_t, 2 * kSize> mask{};
            std::fill_n(mask.begin(), kSize, std::uint8_t{0xFF});
            return mask;
        }();
        if (capacity < (size < 16 ? 16u : kSize)) return false;
        const auto* const mask = reinterpret_cast<const char*>(kMask.data() + kSize - size);
        const auto store = [to](std::size_t at, __m128i bytes) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + at), bytes);
        };
        if (capacity > 2 * kSize) {
            std::memset(to + kSize, 0, capacity - kSize);
        } else { // what follows may overlap it
            if (capacity >= kSize) store(capacity - kSize, _mm_setzero_si128());
            store(capacity - 16, _mm_setzero_si128());
        }
        store(0, _mm_and_si128(low, Load(mask)));
        if (capacity >= kSize) store(16, _mm_and_si128(high, Load(mask + 16)));
        return true;
    }

  private:
    static __m128i Load(const char* at) noexcept { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }
};
#endif

// The bool at `p`. The byte behind it; null for any other value.
inline const char* ReadBool(const char* p, const char* end, bool& isTrue) noexcept {
    isTrue = *p == 't';
    const std::ptrdiff_t size = isTrue ? 4 : 5;
    if (end - p < size || std::memcmp(p, isTrue ? "true" : "fals", 4) != 0 || p[size - 1] != 'e') return nullptr;
    return p + size;
}

// Apart from what nearly all numbers are.
[[gnu::noinline]] const char* ReadDecimal(const char* p, const char* end, double& number) noexcept {
    return json::ReadShortDecimal(p, end, number);
}

// The values that nearly all text is, without a look at what else they might be; null for any other.
[[gnu::always_inline]] inline const char* Members::ReadUsual(const Node& node, const char* p) noexcept {
    std::byte* const at = record_ + node.offset;
    const char* const end = text_.end;
    const auto raiseFlag = [&] {
        if (node.flag.exists()) StoreInteger(node.flag.cell, record_ + node.flag.offset, 1);
    };
    switch (node.readPlainly) {
    case Plainly::Number: {
        std::int32_t number;
        p = json::ReadShortInt(p, end, number);
        if (p == nullptr) return nullptr;
        raiseFlag();
        Store(at, number);
        return p;
    }
    case Plainly::Switch: {
        bool isTrue;
        p = ReadBool(p, end, isTrue);
        if (p == nullptr) return nullptr;
        raiseFlag();
        Store(at, std::int32_t{isTrue});
        return p;
    }
    case Plainly::Integer: {
        std::int32_t number;
        if (node.kind == Kind::Bool) {
            bool isTrue;
            p = ReadBool(p, end, isTrue);
            number = isTrue;
        } else {
            p = json::ReadShortInt(p, end, number);
            if (p != nullptr && node.kind == Kind::UInt && number < 0) return nullptr;
        }
        if (p == nullptr) return nullptr;
        raiseFlag();
        StoreInteger(node.cell, at, number);
        return p;
    }
    case Plainly::Fraction: {
        std::int32_t whole;
        double number;
        if (const char* const after = ReadDecimal(p, end, number); after != nullptr) {
            p = after;
        } else if ((p = json::ReadShortInt(p, end, whole)) != nullptr) {
            number = whole;
        } else {
            return nullptr;
        }
        raiseFlag();
        StoreReal(node.cell, at, number);
        return p;
    }
    case Plainly::Local:
    case Plainly::Raw:
    case Plainly::Named: {
        if (*p != '"') return nullptr;
        auto* const field = reinterpret_cast<char*>(at);
#if ORRERY_SSE2
        if (node.readPlainly != Plainly::Named && end - p > static_cast<std::ptrdiff_t>(TextHead::kSize)) {
            const TextHead head(p + 1);
            const std::size_t size = head.Stop();
            const auto isCopied = [&] {
                return node.readPlainly == Plainly::Raw || text_.call.parser.text().isCopyOf({p + 1, size});
            };
            if (size < TextHead::kSize && p[1 + size] == '"' && isCopied() && head.Put(field, size, node.elementSize)) {
                raiseFlag();
                return p + size + 2;
            }
        }
#endif
        const char* const stop = json::FindQuoteOrBackslash(p + 1, end);
        if (stop == end || *stop != '"') return nullptr;
        const std::string_view content(p + 1, static_cast<std::size_t>(stop - p - 1));
        raiseFlag();
        if (node.readPlainly == Plainly::Named) {
            if (const auto code = table_.namesOf(node).CodeOf(content)) StoreInteger(node.cell, at, *code);
        } else {
            text_.call.parser.GetJsonString(Value::OfString(content), field, node.elementSize,
                                            node.readPlainly == Plainly::Local);
        }
        return stop + 1;
    }
    case Plainly::Function: {
        const Field& row = table_.rows[node.row];
        return row.custom->readText == nullptr ? nullptr : row.custom->readText(row, p, end, record_);
    }
    default:
        return nullptr;
    }
}

const char* Members::ReadAt(const Node& node, const char* p) noexcept {
    if (text_.asides != nullptr && node.childCount == 0 && IsUnread(table_.rows[node.row])) [[unlikely]]
        return TakeUnread(&table_.rows[node.row], table_.keyOf(node), p);
    if (*p == '{') {
        if (node.childCount > 0) {
            const NodeRange inside{node.firstChild, node.childCount, node.childLastAbsent};
            return Members(table_, inside, record_, text_).Read(p);
        }
    } else if (*p == '[') {
        if (Week week; node.week && ReadWeek(table_, node, p, record_, text_, week)) return week.after;
        if (node.mask) {
            if (const char* const after = ReadMaskText(table_.rows[node.row], p, record_, text_)) return after;
        }
        if (node.listed) return ReadListText(table_.rows[node.row], p, record_, text_);
    } else {
        Value value;
        p = json::ReadScalar(p, text_.end, text_.arena(), &value);
        if (p != nullptr) ReadNode(table_, node, value, record_, text_.call);
        return p;
    }
    if (node.readPlainly == Plainly::Inner) {
        if (node.flag.exists()) StoreInteger(node.flag.cell, record_ + node.flag.offset, 1);
        const bool keepsRows = std::exchange(text_.keepsRows, false);
        p = ReadNamedText(table_.tableOf(node), p, record_ + node.offset, text_, {});
        text_.keepsRows = keepsRows;
        return p;
    }
    return ReadWhole(node, p);
}

// Apart from ReadAt, which calls itself.
[[gnu::noinline]] const char* Members::ReadWhole(const Node& node, const char* p) noexcept {
    Value value;
    ShortList room;
    p = ReadDocument(p, value, room, text_);
    if (p != nullptr) ReadNode(table_, node, value, record_, text_.call);
    return p;
}

const char* Members::Read(const char* p) noexcept {
    const char* const end = text_.end;
    const char* const object = p;
    const char* behind = nullptr; // the value before
    json::Step step = json::FirstEntry(p, end, '}');
    while (step.more) {
        p = step.at;
        const Node* node = next_;
        std::string_view other; // the key of no node
        const std::size_t quoted = node == end_ ? 0 : node->keySize + std::size_t{2};
        if (quoted != 0 && Stands(table_.keyTexts + node->quotedAt, quoted, p, end)) [[likely]] {
            p += quoted;
        } else {
            if (*p != '"') return nullptr;
            Value key;
            p = json::ReadScalar(p, end, text_.arena(), &key);
            if (p == nullptr) return nullptr;
            other = key.asString();
            node = Find(other, object, step.at);
            if (refuses_) return nullptr;
        }
        p = json::ValueBehindKey(p, end);
        if (p == nullptr) return nullptr;
        do {
            if (node == nullptr) {
                p = TakeUnread(nullptr, other, p);
            } else if (node->shared) {
                p = ReadShared(node, p);
            } else {
                if (!See(*node)) return nullptr;
                next_ = node + 1;
                const char* const after = ReadUsual(*node, p);
                p = after != nullptr ? after : ReadAt(*node, p);
            }
            if (p == nullptr) return nullptr;
            behind = p;
            node = next_;
        } while (node != end_ && (p = ValueOfNext(table_, *node, p, end)) != nullptr);
        step = json::NextEntry(behind, end, '}');
    }
    for (const Node* node = tracks_ ? first_ : next_; node < lastAbsent_; ++node) {
        if (node->needsAbsent && !HasSeen(*node)) ReadAbsent(*node);
    }
    return step.at;
}

// ---- Records -------------------------------------------------------------------------------------------------------

// A point, a box or a colour: as many whole numbers as the record has. Null for anything else.
const char* ReadNumbers(const Table& table, const char* p, std::byte* record, const TextCall& text) noexcept {
    std::int32_t numbers[kMostInTuple];
    const Node* const nodes = table.nodes + table.self.first;
    const std::uint32_t wanted = table.self.count;
    for (std::uint32_t i = 0; i < wanted; ++i) {
        if (nodes[i].readPlainly != Plainly::Number) return nullptr;
    }
    const char* after = json::ReadFewNumbers(p, text.end, wanted, numbers);
    if (after == nullptr) {
        std::uint32_t count = 0;
        json::Step step = json::FirstEntry(p, text.end, ']');
        while (step.more) {
            if (count == wanted) return nullptr;
            p = json::ReadShortInt(step.at, text.end, numbers[count++]);
            if (p == nullptr) return nullptr;
            step = json::NextEntry(p, text.end, ']');
        }
        if (step.at == nullptr || count != wanted) return nullptr;
        after = step.at;
    }
    for (std::uint32_t i = 0; i < wanted; ++i)
        Store(record + nodes[i].offset, numbers[i]);
    return after;
}

// The elements are few, and their number has to be known before the first is read.
[[gnu::noinline]] const char* ReadTuple(const Table& table, const char* p, std::byte* record, TextCall& text) noexcept {
    if (const char* const after = ReadNumbers(table, p, record, text)) return after;
    alignas(Value) std::byte room[kMostInTuple * sizeof(Value)]; // left uninitialised on purpose
    auto* const values = reinterpret_cast<Value*>(room);
    const std::uint32_t wanted = table.self.count;
    std::uint32_t count = 0;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        if (count >= wanted)
            p = json::SkipValue(step.at, text.end, text.arena());
        else if (*step.at == '{' || *step.at == '[')
            p = json::ParseAt(step.at, text.end, text.arena(), *new (values + count) Value);
        else
            p = json::ReadScalar(step.at, text.end, text.arena(), values + count);
        if (p == nullptr) return nullptr;
        ++count;
        step = json::NextEntry(p, text.end, ']');
    }
    if (step.at == nullptr || (table.shape == Shape::Tuple && count != wanted)
        || (table.shape == Shape::LongTuple && count < wanted))
        return step.at;
    for (; count < wanted; ++count)
        Value::PutNull(values + count);
    for (std::uint32_t i = 0; i < wanted; ++i) {
        const Node& node = table.nodes[table.self.first + i];
        if (node.readPlainly == Plainly::Number)
            Store(record + node.offset, values[i].asInt());
        else
            ReadElement(table.rows[node.row], values[i], record + node.offset, text.call, {});
    }
    return step.at;
}

// Keeps all rows but large ones, neighbours at once; flags and counts are rows of their own.
bool KeepSmallRows(const Table& table, std::byte* record, const ReadCall& call) noexcept {
    std::byte* run = record;
    std::byte* end = record;
    for (const Field& row : table) {
        std::byte* const at = record + row.offset;
        if (row.size <= kKeptWhole && at == end) {
            end += row.size;
            continue;
        }
        if (run != end && !call.Keep(run, static_cast<std::size_t>(end - run))) return false;
        run = at;
        end = at + row.size;
        if (row.size > kKeptWhole) run = end;
    }
    return run == end || call.Keep(run, static_cast<std::size_t>(end - run));
}

// What afterRead touches is not kept row by row: it waits for the reply to turn out good.
[[gnu::noinline]] const char* ReadWithAsides(const Table& table, const char* p, std::byte* record,
                                             TextCall& text) noexcept {
    Asides* const asides = table.asides(record, text.arena());
    if (asides == nullptr || (text.keepsRows && !KeepSmallRows(table, record, text.call))) return nullptr;
    StartFields(table, record, text.call);
    Asides* const around = std::exchange(text.asides, asides);
    p = Members(table, table.members, record, text).Read(p);
    text.asides = around;
    if (p == nullptr) return nullptr;
    if (text.keepsRows)
        asides->next = std::exchange(text.waiting, asides);
    else
        asides->finish(*asides, text.call);
    return p;
}

const char* ReadFieldsText(const Table& table, const char* p, std::byte* record, TextCall& text) noexcept {
    const bool hasShape = *p == (table.shape == Shape::Object ? '{' : '[');
    if (!hasShape || table.guarded || !IsInText(table)) {
        if (hasShape && HasAsides(table)) return ReadWithAsides(table, p, record, text);
        if (text.keepsRows) return nullptr;
        Value value;
        p = ReadAny(p, value, text);
        if (p != nullptr) ReadFields(table, value, record, text.call);
        return p;
    }
    if (table.clearsFlags || table.suppliedCount > 0) StartFields(table, record, text.call);
    p = table.shape == Shape::Object ? Members(table, table.members, record, text).Read(p)
                                     : ReadTuple(table, p, record, text);
    if (p != nullptr && table.fromRoot.count > 0) ReadRootFields(table, record, text.call);
    return p;
}

const char* ReadNamedText(const Table& table, const char* p, std::byte* at, TextCall& text,
                          std::string_view memberName) noexcept {
    if (table.startsWhenRead || table.memberName != nullptr) StartNamed(table, at, text.call, memberName);
    return ReadFieldsText(table, p, at, text);
}

} // namespace

void FinishAsides(TextCall& text) noexcept {
    text.call.keeper = nullptr;
    Asides* first = nullptr;
    while (text.waiting != nullptr) {
        Asides* const asides = std::exchange(text.waiting, text.waiting->next);
        asides->next = std::exchange(first, asides);
    }
    for (; first != nullptr; first = first->next)
        first->finish(*first, text.call);
}

const char* ReadMembersText(const Table& table, const char* p, std::byte* record, TextCall& text) noexcept {
    if (text.keepsRows && !KeepSmallRows(table, record, text.call)) return nullptr;
    return Members(table, table.members, record, text).Read(p);
}

const char* ReadAside(const char* p, Value& value, TextCall& text) noexcept {
    return ReadAny(p, value, text);
}

const char* ReadRecordText(const Table& table, const char* p, std::byte* record, TextCall& text,
                           std::string_view memberName) noexcept {
    if (table.hasDefaults && !table.startsWhenRead) SetDefaults(table, record);
    return ReadNamedText(table, p, record, text, memberName);
}

} // namespace orrery::record
