#include "explain/Places.h"

#include "explain/TextBlock.h"

#include "frame/json/Scan.h"
#include "frame/json/StringDecoder.h"
#include "frame/json/WalkStack.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <limits>

namespace orrery::explain {

using json::Type;
using json::Value;

bool ParseDocument(std::string_view text, Arena& arena, Value& root, std::size_t& end,
                   json::SyntaxError& error) noexcept {
    if (text.size() <= std::numeric_limits<std::uint32_t>::max()) {
        arena.Expect(text.size());
        if (const char* const behind = json::ParseAt(text.data(), text.data() + text.size(), arena, root)) {
            end = static_cast<std::size_t>(behind - text.data());
            return true;
        }
        if (arena.failed()) return false;
    }
    return json::Parse(text, arena, root, &error); // which tells why not
}

std::size_t CountKeys(std::string_view document) noexcept {
    const char* const begin = document.data();
    const char* const end = begin + document.size();
    const char* p = begin;
    std::size_t keys = 0;
    [[maybe_unused]] const char* byBytes = p; // up to here byte after byte
    while (p != end) {
#if ORRERY_SSE2
        using Block = TextBlock<false>;
        while (p >= byBytes && p != end) {
            const auto left = static_cast<std::size_t>(end - p);
            std::array<char, Block::kSize> rest;
            if (left < rest.size()) {
                rest.fill(' ');
                std::memcpy(rest.data(), p, left);
            }
            const Block block(left < rest.size() ? rest.data() : p);
            if (block.hasEscapes() || block.hasSlashes()) { // what may be a comment is looked at byte by byte
                byBytes = left < rest.size() ? end : p + rest.size();
                break;
            }
            keys += block.colons;
            p += std::min(left, block.size());
            if (block.size() < Block::kSize && p != end) p = BehindString(p + 1, end);
        }
        if (p == end) break;
#endif
        if (*p == '"') {
            p = BehindString(p + 1, end);
        } else if (*p == '/') {
            const char* const next = json::SkipBlanksAndComments(p, end);
            p = next == p ? p + 1 : next;
        } else {
            keys += *p++ == ':';
        }
    }
    return keys;
}

std::size_t CountMembers(const Value& root, Arena& arena) noexcept {
    struct Rest {
        const Value* next;
        const Value* end;
        std::size_t step; // in values: a member is two
    };
    json::WalkStack<Rest, 32> open(arena);
    std::size_t members = 0;
    const auto enter = [&](const Value& value) {
        if (value.type() == Type::Array && value.size() > 0) {
            const auto elements = value.elements();
            return open.Push({elements.data(), elements.data() + elements.size(), 1});
        }
        if (value.type() == Type::Object && value.size() > 0) {
            const auto all = value.members();
            members += all.size();
            return open.Push({&all[0].value, &all[0].value + 2 * all.size(), 2});
        }
        return true;
    };
    static_assert(sizeof(json::Member) == 2 * sizeof(Value));
    if (!enter(root)) return 0;
    while (!open.empty()) {
        Rest& rest = open.top();
        const Value* at = rest.next;
        while (at != rest.end && at->type() < Type::Array)
            at += rest.step;
        if (at == rest.end) {
            open.Pop();
            continue;
        }
        rest.next = at + rest.step;
        if (!enter(*at)) return 0;
    }
    return members;
}

namespace {

class Scan {
  public:
    Scan(std::string_view text, Arena& arena, bool hasDuplicates, std::vector<Finding>& findings)
        : begin_(text.data()), end_(begin_ + text.size()), arena_(arena), hasDuplicates_(hasDuplicates),
          findings_(findings) {
        wanted_.reserve(findings.size());
        for (std::uint32_t i = 0; i < findings.size(); ++i) {
            if (findings[i].at == nullptr) continue;
            wanted_.push_back({findings[i].at, i});
            seen_[BitOf(findings[i].at) / 64] |= std::uint64_t{1} << BitOf(findings[i].at) % 64;
        }
        std::ranges::sort(wanted_, std::less{}, &Wanted::value);
    }

    void Run(const Value& root);

  private:
    struct Seen {
        std::size_t key = 0, keyEnd = 0, value = 0, valueEnd = 0;
    };
    struct Open {
        const Value* value;
        std::size_t begin, key, keyEnd;
        bool isObject;
        std::uint32_t next = 0;  // element; of an object the member that comes next where they come sorted
        std::string_view name{}; // of the member that is being read
        std::size_t nameAt = 0, nameEnd = 0;
        std::vector<Seen> seen{};

        // The member of that name; null when there is none.
        const Value* Find() {
            if (value == nullptr || value->type() != Type::Object) return nullptr;
            const auto members = value->members();
            if (next < members.size() && members[next].key() == name) return &members[next++].value;
            const Value& held = (*value)[name];
            if (&held == &json::kNull) return nullptr;
            next = static_cast<std::uint32_t>((&held - &members[0].value) / 2) + 1;
            return &held;
        }
    };

    struct Wanted {
        const Value* value;
        std::uint32_t finding;
    };
    // Most values are none of those that are wanted, which one look tells of nearly all.
    static std::size_t BitOf(const Value* value) {
        return (reinterpret_cast<std::uintptr_t>(value) / sizeof(Value)) % kSeenBits;
    }

    std::size_t At(const char* p) const { return static_cast<std::size_t>(p - begin_); }
    void Place(const Value* value, std::size_t key, std::size_t keyEnd, std::size_t begin, std::size_t end);
    void Member(Open& open, const Value* value, std::size_t begin, std::size_t end);
    std::string PathOf(std::string_view name) const;

    const char* begin_;
    const char* end_;
    Arena& arena_;
    bool hasDuplicates_;
    std::vector<Finding>& findings_;
    static constexpr std::size_t kSeenBits = 4096;
    std::array<std::uint64_t, kSeenBits / 64> seen_{};
    std::vector<Wanted> wanted_; // by their addresses
    std::vector<Open> open_;
};

void Scan::Place(const Value* value, std::size_t key, std::size_t keyEnd, std::size_t begin, std::size_t end) {
    if (value == nullptr || (seen_[BitOf(value) / 64] >> BitOf(value) % 64 & 1) == 0) return;
    for (auto wanted = std::ranges::lower_bound(wanted_, value, std::less{}, &Wanted::value);
         wanted != wanted_.end() && wanted->value == value; ++wanted) {
        Finding& finding = findings_[wanted->finding];
        finding.offset = finding.atKey ? key : begin;
        finding.length = finding.atKey ? keyEnd - key : end - begin;
        finding.valueOffset = begin;
        finding.valueEnd = end;
    }
}

std::string Scan::PathOf(std::string_view name) const {
    std::vector<Path> steps(open_.size() + 1);
    for (std::size_t i = 0; i < open_.size(); ++i) {
        const Open& open = open_[i];
        const bool isLast = i + 1 == open_.size();
        steps[i + 1] = open.isObject ? steps[i].Member(isLast ? name : open.name) : steps[i].Element(open.next - 1);
    }
    return TextOf(steps.back());
}

// A member whose key came before hides that one.
void Scan::Member(Open& open, const Value* value, std::size_t begin, std::size_t end) {
    if (!hasDuplicates_ || open.value == nullptr || value == nullptr || open.value->type() != Type::Object) return;
    const auto members = open.value->members();
    if (members.empty()) return;
    const auto index = static_cast<std::size_t>(value - &members[0].value) / 2;
    if (open.seen.empty()) open.seen.resize(members.size());
    if (index >= open.seen.size()) return;
    Seen& seen = open.seen[index];
    if (seen.valueEnd != 0) {
        const std::string_view hidden(begin_ + seen.value, seen.valueEnd - seen.value);
        const std::string_view counts(begin_ + begin, end - begin);
        Finding finding;
        finding.kind = ORRERY_FINDING_DUPLICATE_KEY;
        finding.gravity = hidden == counts ? ORRERY_FINDING_NOTE : ORRERY_FINDING_LOST;
        finding.offset = seen.key;
        finding.length = seen.keyEnd - seen.key;
        finding.path = PathOf(open.name);
        const auto line = std::count(begin_, begin_ + open.nameAt, '\n') + 1;
        finding.message = "the key stands again on line " + std::to_string(line)
                          + (hidden == counts ? ", with the same value" : ", and only its last value counts");
        findings_.push_back(std::move(finding));
    }
    seen = {open.nameAt, open.nameEnd, begin, end};
}

void Scan::Run(const Value& root) {
    const char* p = begin_;
    const Value* current = &root;
    std::size_t key = 0, keyEnd = 0;
    for (;;) {
        // A value.
        p = json::SkipBlanks(p, end_);
        if (p == end_) return;
        const std::size_t begin = At(p);
        if (*p == '{' || *p == '[') {
            open_.push_back({current, begin, key, keyEnd, *p == '{'});
            ++p;
        } else {
            if (*p == '"')
                p = BehindString(p + 1, end_);
            else
                while (p != end_ && !json::IsBlank(*p) && *p != ',' && *p != ']' && *p != '}' && *p != '/')
                    ++p;
            Place(current, key, keyEnd, begin, At(p));
            if (open_.empty()) return;
            if (open_.back().isObject) Member(open_.back(), current, begin, At(p));
        }
        // What follows it, up to the next value.
        for (;;) {
            p = json::SkipBlanks(p, end_);
            if (p == end_) return;
            Open& open = open_.back();
            if (*p == ',') {
                ++p;
                continue;
            }
            if (*p == '}' || *p == ']') {
                ++p;
                const Open closed = std::move(open_.back());
                open_.pop_back();
                Place(closed.value, closed.key, closed.keyEnd, closed.begin, At(p));
                if (open_.empty()) return;
                if (open_.back().isObject) Member(open_.back(), closed.value, closed.begin, At(p));
                continue;
            }
            if (!open.isObject) {
                key = keyEnd = At(p);
                const bool isThere =
                    open.value != nullptr && open.value->type() == Type::Array && open.next < open.value->size();
                current = isThere ? &(*open.value)[open.next] : nullptr;
                ++open.next;
                break;
            }
            if (*p != '"') return;
            open.nameAt = At(p);
            const char* const name = p + 1;
            const char* const backslash = json::FindQuoteOrBackslash(name, end_);
            if (backslash != end_ && *backslash == '"') {
                open.name = {name, static_cast<std::size_t>(backslash - name)};
                p = backslash + 1;
            } else {
                const json::DecodedString decoded = json::DecodeString(name, backslash, end_, arena_);
                if (decoded.stop == nullptr || decoded.message != nullptr) return;
                open.name = decoded.text;
                p = decoded.stop;
            }
            open.nameEnd = At(p);
            key = open.nameAt;
            keyEnd = open.nameEnd;
            current = open.Find();
            p = json::SkipBlanks(p, end_);
            if (p != end_ && *p == ':') ++p;
            break;
        }
    }
}

} // namespace

void FindPlaces(std::string_view text, const Value& root, Arena& arena, bool hasDuplicates,
                std::vector<Finding>& findings) {
    Scan(text, arena, hasDuplicates, findings).Run(root);
}

} // namespace orrery::explain
