#include "orrery/Output.h"

#include "orrery/Outline.h"

#include <algorithm>
#include <bit>
#include <charconv>

namespace orrery::tool {

namespace {

constexpr std::size_t kIndent = 2;

// Length of the well-formed UTF-8 sequence at the front; 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80) return 0;
    }
    // Overlong forms, surrogates, and what is beyond the last code point.
    if ((lead == 0xe0 && byte(1) < 0xa0) || (lead == 0xed && byte(1) > 0x9f)) return 0;
    if ((lead == 0xf0 && byte(1) < 0x90) || (lead == 0xf4 && byte(1) > 0x8f)) return 0;
    return length;
}

} // namespace

std::string Quoted(std::string_view text) {
    constexpr char kHex[] = "0123456789abcdef";
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += "\\u00";
            out += kHex[c >> 4];
            out += kHex[c & 15];
        } else {
            out += c;
        }
    }
    return out += '"';
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = SequenceLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string Printable(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t length = std::max<std::size_t>(SequenceLength(text), 1);
        const auto first = static_cast<unsigned char>(text[0]);
        const bool isControl = first < 0x20 || first == 0x7f || (first == 0xc2 && length == 2 && text[1] < '\xa0');
        const bool isBroken = first >= 0x80 && length == 1;
        if (isControl || isBroken)
            out += '?';
        else
            out += text.substr(0, length);
        text.remove_prefix(length);
    }
    return out;
}

Node Node::Number(std::int64_t number) {
    return Token(std::to_string(number));
}
Node Node::Unsigned(std::uint64_t number) {
    return Token(std::to_string(number));
}
Node Node::Token(std::string token) {
    Node node(Kind::Scalar);
    node.token_ = std::move(token);
    return node;
}
Node Node::Text(std::string_view text) {
    return Token(Quoted(text));
}

Node& Node::Add(Node element) {
    children_.emplace_back(std::string(), std::move(element));
    return *this;
}
Node& Node::Add(std::string_view key, Node member) {
    children_.emplace_back(Quoted(key), std::move(member));
    return *this;
}

const Node* Node::Find(std::string_view path) const {
    const Node* node = this;
    while (!path.empty()) {
        if (path.front() == '.') path.remove_prefix(1);
        if (path.starts_with('[')) {
            const std::size_t close = path.find(']');
            std::size_t index = 0;
            if (close == std::string_view::npos || close < 2 || close > 10) return nullptr;
            for (const char c : path.substr(1, close - 1)) {
                if (c < '0' || c > '9') return nullptr;
                index = index * 10 + static_cast<std::size_t>(c - '0');
            }
            if (!node->isArray() || index >= node->children_.size()) return nullptr;
            node = &node->children_[index].second;
            path.remove_prefix(close + 1);
            continue;
        }
        const std::string_view name = path.substr(0, path.find_first_of(".["));
        const std::string key = Quoted(name);
        const auto found = std::find_if(node->children_.begin(), node->children_.end(),
                                        [&](const auto& child) { return child.first == key; });
        if (name.empty() || found == node->children_.end()) return nullptr;
        node = &found->second;
        path.remove_prefix(name.size());
    }
    return node;
}

bool Node::IsNumber() const {
    return kind_ == Kind::Scalar && token_[0] != '"';
}

std::size_t Node::Width() const {
    // With "{ ", " }", ": " and ", " where they stand.
    std::size_t width = token_.size() + (children_.empty() ? 0 : 2);
    for (const auto& [key, child] : children_)
        width += key.size() + (key.empty() ? 2 : 4) + child.Width();
    return width;
}

bool Node::StandsOnOneLine(std::size_t width) const {
    if (IsSimple() || children_.empty()) return true;
    const auto& all = children_;
    if (!std::all_of(all.begin(), all.end(), [](const auto& child) { return child.second.IsSimple(); })) return false;
    if (isArray() && std::all_of(all.begin(), all.end(), [](const auto& child) { return child.second.IsNumber(); }))
        return true;
    return Width() <= width;
}

void Node::AppendOneLine(std::string& out) const {
    if (kind_ == Kind::Scalar) {
        out += token_;
        return;
    }
    if (children_.empty()) {
        out += isArray() ? "[]" : "{}";
        return;
    }
    out += isArray() ? "[" : "{ ";
    bool first = true;
    for (const auto& [key, child] : children_) {
        if (!first) out += ", ";
        first = false;
        if (!key.empty()) out += key + ": ";
        child.AppendOneLine(out);
    }
    out += isArray() ? "]" : " }";
}

// Nodes nest as deep as records and their lists do, a handful of levels.
void Node::Append(std::string& out, std::size_t indent, std::size_t width) const {
    if (StandsOnOneLine(width)) return AppendOneLine(out);
    out += isArray() ? "[" : "{";
    bool first = true;
    for (const auto& [key, child] : children_) {
        out += first ? "\n" : ",\n";
        first = false;
        out.append(indent + kIndent, ' ');
        if (!key.empty()) out += key + ": ";
        child.Append(out, indent + kIndent, width);
    }
    out += '\n';
    out.append(indent, ' ');
    out += isArray() ? ']' : '}';
}

std::string Node::Bare() const {
    if (kind_ != Kind::Scalar) return OneLine();
    if (!token_.starts_with('"')) return token_;
    std::string text;
    for (std::size_t i = 1; i + 1 < token_.size(); ++i) {
        if (token_[i] != '\\') {
            text += token_[i];
        } else if (token_[++i] != 'u') {
            text += token_[i];
        } else { // a control character, as Quoted writes it
            text += static_cast<char>(std::stoi(token_.substr(i + 1, 4), nullptr, 16));
            i += 4;
        }
    }
    return text;
}

void LineWriter::Grow(std::size_t more) {
    room_.resize(std::max<std::size_t>({room_.size() * 2, used_ + more, std::size_t{4} << 10}));
}

void LineWriter::Integer(std::int64_t number) {
    constexpr std::size_t kDigits = 20;
    char* const at = Room(kDigits);
    if (number >= 0 && number <= 9) { // most are 0
        *at = static_cast<char>('0' + number);
        ++used_;
        return;
    }
    used_ = static_cast<std::size_t>(std::to_chars(at, at + kDigits, number).ptr - room_.data());
}

bool LineWriter::PlainText([[maybe_unused]] const std::byte* text, [[maybe_unused]] std::size_t room) {
#if ORRERY_SSE2
    constexpr std::size_t kStep = 16, kQuotes = 2;
    char* at = Room(room + kStep + kQuotes);
    *at++ = '"';
    for (std::size_t done = 0; done + kStep <= room; done += kStep, at += kStep) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + done));
        const auto is = [&](char wanted) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted)); };
        // Bytes beyond ASCII are below 0.
        const __m128i other = _mm_or_si128(_mm_cmplt_epi8(bytes, _mm_set1_epi8(' ')), _mm_or_si128(is('"'), is('\\')));
        const int found = _mm_movemask_epi8(other);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(at), bytes);
        if (found == 0) continue;
        const auto plain = static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(found)));
        done += plain;
        if (text[done] != std::byte{0} || !IsClear(text + done, room - done)) return false;
        at += plain;
        *at++ = '"';
        used_ = static_cast<std::size_t>(at - room_.data());
        return true;
    }
#endif
    return false;
}

void LineWriter::Zeros(std::size_t count) {
    constexpr std::string_view kZeros =
        "0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, ";
    constexpr std::size_t kOne = 3; // `0, `
    constexpr std::size_t kMost = kZeros.size() / kOne;
    if (count == 0) return;
    Next();
    for (; count > kMost; count -= kMost)
        Append(kZeros);
    Append(kZeros.substr(0, count * kOne - 2));
}

void LineWriter::Text(std::string_view text) {
    constexpr std::size_t kQuotes = 2;
    char* at = Room(text.size() + kQuotes);
    *at++ = '"';
    for (const char c : text) { // most are short
        if (c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20) return Append(Quoted(text));
        *at++ = c;
    }
    *at++ = '"';
    used_ = static_cast<std::size_t>(at - room_.data());
}

std::string LineWriter::Take() {
    room_.resize(used_);
    used_ = 0;
    isFirst_ = true;
    return std::exchange(room_, {});
}

std::string Node::OneLine() const {
    std::string out;
    AppendOneLine(out);
    return out;
}

std::string Node::PrintLine() const {
    return OneLine() += '\n';
}

std::string Node::Print(std::size_t width) const {
    std::string out;
    Append(out, 0, width);
    return out += '\n';
}

} // namespace orrery::tool
