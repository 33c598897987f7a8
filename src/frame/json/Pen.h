// A text writer's place, held in registers by code that appends much: a whole member goes out with one look at the
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

    // Whether nothing stands in front of the next element.
    bool isFirst() const noexcept { return separator_ == 0; }
    // Whether there is room for a separator and `size` bytes more.
    bool has(std::size_t size) const noexcept { return size + kSeparator <= static_cast<std::size_t>(end_ - at_); }

    // How much room there is.
    std::size_t room() const noexcept { return static_cast<std::size_t>(end_ - at_); }

    // What a padded key may take beyond its own bytes.
    static constexpr std::size_t kPadding = 32;
    // A key that is written already, as in `"Enable" : `, with `, ` in front of it and kPadding bytes behind it that
    // may be read. It takes kPadding more than its length of the room, of which the excess gets overwritten.
    void PaddedKey(const char* quoted, std::size_t size) noexcept {
        const char* const from = quoted - separator_;
        size += separator_;
        std::memcpy(at_, from, 16);
        std::memcpy(at_ + 16, from + 16, 16);
        for (std::size_t i = 32; i < size; i += 16)
            [[unlikely]] std::memcpy(at_ + i, from + i, 16);
        at_ += size;
        separator_ = 0;
    }
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
    // Opens an object or an array, as an element or as the value of a key; ends it. Each needs room for two bytes.
    void BeginObject() noexcept { Begin("{ "); }
    void EndObject() noexcept { End(" }"); }
    void BeginArray() noexcept { Begin("[ "); }
    void EndArray() noexcept { End(" ]"); }
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
    // Whether nothing was written since `other` stood here.
    bool isAt(const Pen& other) const noexcept { return at_ == other.at_; }
    // The value of the key just written.
    template <class Put>
    void Value(Put put) noexcept {
        at_ = put(at_);
        separator_ = kSeparator;
    }
    // The same; nothing is written when `put` answers null.
    template <class Put>
    bool TryValue(Put put) noexcept {
        char* const end = put(at_);
        if (end == nullptr) return false;
        at_ = end;
        separator_ = kSeparator;
        return true;
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
    void Begin(const char* bracket) noexcept {
        std::memcpy(at_, ", ", kSeparator);
        at_ += separator_;
        std::memcpy(at_, bracket, 2);
        at_ += 2;
        separator_ = 0;
    }
    void End(const char* bracket) noexcept {
        std::memcpy(at_, bracket, 2);
        at_ += 2;
        separator_ = kSeparator;
    }

    static constexpr std::size_t kSeparator = TextWriter::kSeparator;

    char* at_;
    char* end_;
    std::size_t separator_; // what stands in front of the next element or member
};

} // namespace orrery::json
