// A text writer's place, held in registers by code that appends much: a whole element goes out with one look at the
// room, and nothing is stored in the writer between.
//
//     Pen pen(out);
//     if (pen.has(kIntegerRoom)) pen.Element([&](char* at) { return PutDigits(at, number); });
//     pen.Return(out);
#pragma once

#include "frame/json/TextWriter.h"

namespace orrery::json {

class Pen {
  public:
    explicit Pen(const TextWriter& out) noexcept
        : at_(out.next_), end_(out.end_), separator_(out.first_ ? 0 : kSeparator) {}
    // Hands the place back; the writer must not have moved meanwhile.
    void Return(TextWriter& out) const noexcept {
        out.next_ = at_;
        out.first_ = separator_ == 0;
    }

    // Whether there is room for a separator and `size` bytes more.
    bool has(std::size_t size) const noexcept { return size + kSeparator <= static_cast<std::size_t>(end_ - at_); }

    // How much room there is.
    std::size_t room() const noexcept { return static_cast<std::size_t>(end_ - at_); }

    // An element, or the value of a key: `put` writes it where it gets told and answers its end.
    template <class Put>
    void Element(Put put) noexcept {
        std::memcpy(at_, ", ", kSeparator);
        at_ = put(at_ + separator_);
        separator_ = kSeparator;
    }
    // The same; nothing is written when `put` answers null.
    template <class Put>
    bool TryElement(Put put) noexcept {
        std::memcpy(at_, ", ", kSeparator);
        char* const end = put(at_ + separator_);
        if (end == nullptr) return false;
        at_ = end;
        separator_ = kSeparator;
        return true;
    }
    // The element before once more, `size` bytes; needs room for them.
    void Again(std::size_t size) noexcept {
        std::memcpy(at_, ", ", kSeparator);
        std::memcpy(at_ + kSeparator, at_ - size, size);
        at_ += kSeparator + size;
    }
    // Length of the one element that was put since `before`.
    std::size_t LengthOfElementSince(const Pen& before) const noexcept {
        return static_cast<std::size_t>(at_ - before.at_) - before.separator_;
    }
    // Takes eight bytes, of which the last get overwritten.
    static char* PutBool(char* at, bool flag) noexcept {
        static constexpr char kWords[2][8] = {"false", "true"};
        std::memcpy(at, kWords[flag], 8);
        return at + 5 - flag;
    }

    static char* PutNull(char* at) noexcept {
        std::memcpy(at, "null", 4);
        return at + 4;
    }

    // "[ 1, 2 ]"
    static constexpr std::size_t kPairRoom = 6 + 2 * kIntegerRoom;
    static char* PutPair(char* at, std::int32_t first, std::int32_t second) noexcept {
        std::memcpy(at, "[ ", 2);
        at = PutDigits(at + 2, first);
        std::memcpy(at, ", ", 2);
        at = PutDigits(at + 2, second);
        std::memcpy(at, " ]", 2);
        return at + 2;
    }

  private:
    static constexpr std::size_t kSeparator = TextWriter::kSeparator;

    char* at_;
    char* end_;
    std::size_t separator_; // what stands in front of the next element or member
};

// The same for code that calls itself, or is called, for one value or many: the place goes along in a register and each
// call answers its end. Every member and every element has `, ` in front of it, the first one too; whoever opened the
// object or the array puts its bracket over those two bytes afterwards. Places are kept over calls as offsets, because
// a writer may move its text into a larger block.
class Hand {
  public:
    static constexpr std::size_t kSeparator = TextWriter::kSeparator;
    static constexpr std::size_t kNotFirst = static_cast<std::size_t>(-1);

    explicit Hand(TextWriter& out) noexcept : out_(out) {}

    std::size_t OffsetOf(const char* at) const noexcept { return static_cast<std::size_t>(at - out_.begin_); }
    char* PlaceOf(std::size_t offset) const noexcept { return out_.begin_ + offset; }
    bool Has(const char* at, std::size_t size) const noexcept {
        return size <= static_cast<std::size_t>(out_.end_ - at);
    }
    // Whoever stands in front of this place has room for more than `size` bytes, of which the writer had as many once.
    // It is another place once the writer itself has written.
    const char* LimitFor(std::size_t size) const noexcept { return out_.end_ - size; }

    // Whether nothing stands in the object or the array that the writer is in.
    bool isFirst() const noexcept { return out_.first_; }
    bool HasBehind(std::size_t size) const noexcept { return Has(out_.next_, size); }
    // Takes the place from the writer, which stands in an object or an array.
    char* Take() const noexcept { return out_.next_ - (out_.first_ ? kSeparator : 0); }
    // Hands the place back; at the offset `first` nothing stands inside `bracket` yet.
    void Give(char* at, std::size_t first, const char* bracket) const noexcept {
        out_.first_ = OffsetOf(at) == first;
        out_.next_ = at;
        if (!out_.first_) return;
        std::memcpy(at, bracket, kSeparator);
        out_.next_ += kSeparator;
    }
    // Takes the place for an element, or for the value of a key; ends it.
    char* TakeForValue() const noexcept { return out_.first_ ? out_.next_ : Separate(out_.next_); }
    void GiveBehindValue(char* at) const noexcept {
        out_.next_ = at;
        out_.first_ = false;
    }
    // Hands the place back behind a key.
    void GiveForValue(char* at) const noexcept {
        out_.next_ = at;
        out_.first_ = true;
    }
    char* Close(char* at, const char* bracket) const noexcept {
        if (Has(at, kSeparator)) [[likely]] {
            std::memcpy(at, bracket, kSeparator);
            return at + kSeparator;
        }
        out_.next_ = at;
        out_.Append(bracket, kSeparator);
        return out_.next_;
    }

    // What a key may take beyond its own bytes.
    static constexpr std::size_t kPadding = 32;
    // A key that is written already, as in `"Enable" : `, with `, ` in front of it and kPadding bytes behind it that
    // may be read. `size` is its length without these.
    static char* PutKey(char* at, const char* quoted, std::size_t size) noexcept {
        const char* const from = quoted - kSeparator;
        size += kSeparator;
        std::memcpy(at, from, 16);
        std::memcpy(at + 16, from + 16, 16);
        for (std::size_t i = 32; i < size; i += 16)
            [[unlikely]] std::memcpy(at + i, from + i, 16);
        return at + size;
    }
    // What stands in front of a member or an element; answers where that goes.
    static char* Separate(char* at) noexcept {
        std::memcpy(at, ", ", kSeparator);
        return at + kSeparator;
    }

    // Makes an array of the elements between the two places, of which the first has `, ` in front of it; takes two
    // bytes more.
    static char* PutBrackets(char* first, char* next) noexcept {
        std::memcpy(first, "[ ", kSeparator);
        std::memcpy(next, " ]", kSeparator);
        return next + kSeparator;
    }

  private:
    TextWriter& out_;
};

} // namespace orrery::json
