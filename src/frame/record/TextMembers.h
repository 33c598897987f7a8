// The members of one object of a text, and what reading them asks of the rest of the road (ReadText.cpp).
#pragma once

#include "frame/record/ReadSteps.h"
#include "frame/record/ReadText.h"

namespace orrery::record {

// Whether the elements of a list are kept one by one, as they come.
inline bool IsKeptByElement(const Field& field) noexcept {
    return field.kind == Kind::Record && field.cell != Cell::Pointer && field.size > kKeptWhole;
}

// A record from the value at `p` with the name under which it stands; and lists and masks from the bracket there. The
// byte behind the value, or null as in ReadRecordText.
const char* ReadNamedText(const Table& table, const char* p, std::byte* at, TextCall& text,
                          std::string_view memberName) noexcept;
const char* ReadListText(const Field& field, const char* p, std::byte* record, TextCall& text) noexcept;
const char* ReadMaskText(const Field& field, const char* p, std::byte* record, const TextCall& text) noexcept;

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

} // namespace orrery::record
