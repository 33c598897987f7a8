#include "orrery/TextSplitter.h"

#include "orrery/Input.h"

#include "explain/TextBlock.h"

#include <algorithm>
#include <array>
#include <bit>

namespace orrery::tool {

namespace {

// Of the byte order: no text.
constexpr std::string_view kMark = kByteOrderMark;

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// The next byte that tells something, between quotes or outside.
using Bytes = std::array<bool, 256>;
constexpr Bytes BytesOf(std::string_view all) {
    Bytes bytes{};
    for (const char c : all)
        bytes[static_cast<unsigned char>(c)] = true;
    return bytes;
}
constexpr Bytes kInText = BytesOf("\"\\\n");
constexpr Bytes kOutside = BytesOf("\"{}[]\n");

std::size_t NextTelling(std::string_view text, std::size_t at, bool inText) {
#if ORRERY_SSE2
    constexpr int kCase = 0x20; // '[' and '{', ']' and '}' differ by this bit alone
    static_assert(('[' | kCase) == '{' && (']' | kCase) == '}');
    for (; at + 16 <= text.size(); at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + at));
        const auto is = [](__m128i among, char wanted) { return _mm_cmpeq_epi8(among, _mm_set1_epi8(wanted)); };
        const __m128i folded = _mm_or_si128(bytes, _mm_set1_epi8(kCase));
        const __m128i others = inText ? is(bytes, '\\') : _mm_or_si128(is(folded, '{'), is(folded, '}'));
        const __m128i all = _mm_or_si128(_mm_or_si128(is(bytes, '"'), is(bytes, '\n')), others);
        const int found = _mm_movemask_epi8(all);
        if (found != 0) return at + static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(found)));
    }
#endif
    const Bytes& tells = inText ? kInText : kOutside;
    while (at < text.size() && !tells[static_cast<unsigned char>(text[at])])
        ++at;
    return at;
}

// Whether a value may stand behind this.
bool MayFollow(std::string_view text) {
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return !text.empty() && (text.back() == ',' || text.back() == ':' || text.back() == '[');
}

} // namespace

void TextSplitter::Restart() {
    at_ = byBytes_ = 0;
    depth_ = 0;
    begun_ = isLine_ = inText_ = escaped_ = false;
}

void TextSplitter::Feed(std::string_view bytes) {
    buffer_.erase(0, begin_);
    fed_ += begin_;
    begin_ = 0;
    buffer_ += bytes;
}

std::optional<TextSplitter::Piece> TextSplitter::NextLine() {
    if (!Begin(false) || !begun_ || at_ != 0) return std::nullopt;
    const std::size_t end = buffer_.find('\n', begin_);
    if (end == std::string::npos || end + 1 == buffer_.size() || buffer_[end + 1] != '{') return std::nullopt;
    std::size_t last = end - 1;
    while (IsBlank(buffer_[last])) // its bracket is none
        --last;
    if (buffer_[last] != '}') return std::nullopt;
    const Piece piece{std::string_view(buffer_).substr(begin_, last + 1 - begin_), line_++, fed_ + begin_};
    begin_ = end + 1;
    Restart();
    return piece;
}

TextSplitter::Piece TextSplitter::Cut(std::size_t end) {
    Piece piece{std::string_view(buffer_).substr(begin_, end), line_, fed_ + begin_};
    for (std::size_t at = 0; (at = piece.text.find('\n', at)) != std::string_view::npos; ++at)
        ++line_; // a look for the next one is quick where there are few
    begin_ += end;
    Restart();
    while (!piece.text.empty() && IsBlank(piece.text.back()))
        piece.text.remove_suffix(1);
    return piece;
}

// To the first byte of a text. False when it is not there yet.
bool TextSplitter::Begin(bool isEnd) {
    if (begun_ || isLine_) return true;
    while (begin_ < buffer_.size()) {
        if (IsBlank(buffer_[begin_])) {
            line_ += buffer_[begin_++] == '\n';
        } else if (std::string_view(buffer_).substr(begin_).starts_with(kMark)) {
            begin_ += kMark.size();
        } else if (!isEnd && kMark.starts_with(std::string_view(buffer_).substr(begin_))) {
            return false;
        } else {
            break;
        }
    }
    if (begin_ == buffer_.size()) return false;
    begun_ = buffer_[begin_] == '{' || buffer_[begin_] == '[';
    isLine_ = !begun_;
    return true;
}

// Over what neither ends the text nor could: 64 bytes at a time.
void TextSplitter::SkipPlain([[maybe_unused]] std::string_view left) {
#if ORRERY_SSE2
    using Block = explain::TextBlock<true>;
    while (!inText_ && depth_ > 0 && at_ >= byBytes_ && left.size() - at_ >= Block::kSize) {
        const Block block(left.data() + at_);
        if (!block.isPlain(depth_) || block.hasNewlines()) {
            byBytes_ = at_ + Block::kSize;
            return;
        }
        depth_ += block.opens - block.closes;
        at_ += block.size();
        inText_ = block.size() < Block::kSize;
        at_ += inText_; // its quote
    }
#endif
}

std::optional<TextSplitter::Piece> TextSplitter::Take(bool isEnd) {
    if (!Begin(isEnd)) return std::nullopt;
    const std::string_view left = std::string_view(buffer_).substr(begin_);
    if (isLine_) {
        const std::size_t end = left.find('\n', at_);
        if (end != std::string_view::npos) return Cut(end);
        at_ = left.size();
        if (isEnd) return Cut(left.size());
        return std::nullopt;
    }
    for (; at_ < left.size(); ++at_) {
        SkipPlain(left);
        if (!escaped_) at_ = NextTelling(left, at_, inText_);
        if (at_ == left.size()) break;
        const char c = left[at_];
        if (c == '\n') {
            if (at_ + 1 == left.size()) {
                if (!isEnd) return std::nullopt; // what comes next tells
                continue;
            }
            // No value may begin here, so this one was cut off.
            if (left[at_ + 1] == '{' && (inText_ || !MayFollow(left.substr(0, at_)))) return Cut(at_ + 1);
        } else if (inText_) {
            if (escaped_)
                escaped_ = false;
            else if (c == '\\')
                escaped_ = true;
            else if (c == '"')
                inText_ = false;
        } else if (c == '"') {
            inText_ = true;
        } else if (c == '{' || c == '[') {
            ++depth_;
        } else if (--depth_ == 0) {
            return Cut(at_ + 1);
        }
    }
    if (!isEnd || left.empty()) return std::nullopt;
    // It never ends: its first line is given up, and what follows is looked at anew.
    const std::size_t end = left.find('\n');
    return Cut(end == std::string_view::npos ? left.size() : end + 1);
}

} // namespace orrery::tool
