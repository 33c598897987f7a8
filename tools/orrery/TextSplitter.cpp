#include "orrery/TextSplitter.h"

#include <algorithm>

namespace orrery::tool {

namespace {

// Of the byte order: no text.
constexpr std::string_view kMark = "\xEF\xBB\xBF";

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

void TextSplitter::Restart() {
    at_ = 0;
    depth_ = 0;
    begun_ = isLine_ = inText_ = escaped_ = false;
    before_ = '\0';
}

void TextSplitter::Feed(std::string_view bytes) {
    buffer_.erase(0, begin_);
    begin_ = 0;
    buffer_ += bytes;
}

TextSplitter::Piece TextSplitter::Cut(std::size_t end) {
    Piece piece{buffer_.substr(begin_, end), line_};
    line_ += static_cast<std::uint64_t>(std::count(piece.text.begin(), piece.text.end(), '\n'));
    begin_ += end;
    Restart();
    while (!piece.text.empty() && IsBlank(piece.text.back()))
        piece.text.pop_back();
    return piece;
}

std::optional<TextSplitter::Piece> TextSplitter::Take(bool isEnd) {
    if (!begun_ && !isLine_) {
        while (begin_ < buffer_.size()) {
            if (IsBlank(buffer_[begin_])) {
                line_ += buffer_[begin_++] == '\n';
            } else if (std::string_view(buffer_).substr(begin_).starts_with(kMark)) {
                begin_ += kMark.size();
            } else if (!isEnd && kMark.starts_with(std::string_view(buffer_).substr(begin_))) {
                return std::nullopt;
            } else {
                break;
            }
        }
        if (begin_ == buffer_.size()) return std::nullopt;
        begun_ = buffer_[begin_] == '{' || buffer_[begin_] == '[';
        isLine_ = !begun_;
    }
    const std::string_view left = std::string_view(buffer_).substr(begin_);
    if (isLine_) {
        const std::size_t end = left.find('\n', at_);
        if (end != std::string_view::npos) return Cut(end);
        at_ = left.size();
        if (isEnd) return Cut(left.size());
        return std::nullopt;
    }
    for (; at_ < left.size(); ++at_) {
        const char c = left[at_];
        if (c == '\n') {
            if (at_ + 1 == left.size()) {
                if (!isEnd) return std::nullopt; // what comes next tells
                continue;
            }
            // No value may begin here, so this one was cut off.
            const bool mayFollow = !inText_ && (before_ == ',' || before_ == ':' || before_ == '[');
            if (left[at_ + 1] == '{' && !mayFollow) return Cut(at_ + 1);
            continue;
        }
        if (inText_) {
            if (escaped_)
                escaped_ = false;
            else if (c == '\\')
                escaped_ = true;
            else if (c == '"')
                inText_ = false;
            continue;
        }
        if (IsBlank(c)) continue;
        before_ = c;
        if (c == '"') {
            inText_ = true;
        } else if (c == '{' || c == '[') {
            ++depth_;
        } else if ((c == '}' || c == ']') && --depth_ == 0) {
            return Cut(at_ + 1);
        }
    }
    if (!isEnd || left.empty()) return std::nullopt;
    // It never ends: its first line is given up, and what follows is looked at anew.
    const std::size_t end = left.find('\n');
    return Cut(end == std::string_view::npos ? left.size() : end + 1);
}

} // namespace orrery::tool
