#include "frame/record/TextMembers.h"

#include "frame/record/ReadWeek.h"
#include "frame/record/TextSteps.h"

#include <utility>

namespace orrery::record {

using json::Value;

namespace {

bool IsUnread(const Field& row) noexcept {
    return !row.readable || (row.kind == Kind::Custom && row.custom->read == nullptr);
}

} // namespace

// Keeps what reading a row touches, but for what is kept in runs and for elements that are kept one by one.
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

} // namespace orrery::record
