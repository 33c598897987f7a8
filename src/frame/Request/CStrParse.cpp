#include "frame/Request/CStrParse.h"

#include "frame/JsonParser.h"
#include "frame/JsonParser_Scan.h"

namespace orrery {

namespace {

std::string_view Trimmed(std::string_view text) noexcept {
    constexpr std::string_view kStripped = " \t\r\n";
    const auto first = text.find_first_not_of(kStripped);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(kStripped) - first + 1);
}

// Hands every item to `sink`.
template <class Sink>
void ForEachItem(std::string_view text, std::string_view separator, bool trim, Sink sink) noexcept {
    for (std::string_view rest = text; !rest.empty();) {
        const auto at = rest.find(separator);
        const std::string_view item = rest.substr(0, at);
        rest = at == rest.npos ? std::string_view{} : rest.substr(at + separator.size());
        sink(trim ? Trimmed(item) : item);
    }
    const bool endsInSeparator =
        text.size() >= separator.size() && EqualsFolded(text.substr(text.size() - separator.size()), separator);
    if (endsInSeparator) sink(std::string_view{});
}

std::string_view ViewOf(const char* text) noexcept {
    return text == nullptr ? std::string_view{} : std::string_view(text);
}

} // namespace

CStrParse::CStrParse(const char* text, const char* separator) noexcept {
    if (setSeparator(separator)) setText(text);
}

std::string_view CStrParse::Separator() const noexcept {
    return ownSeparator_ ? strSeparator_.view() : std::string_view(":");
}

bool CStrParse::setText(const char* text) noexcept {
    return strText_.Assign(ViewOf(text)) && Split();
}

bool CStrParse::setSeparator(const char* separator) noexcept {
    if (!strSeparator_.Assign(ViewOf(separator))) return false;
    ownSeparator_ = true;
    return true;
}

bool CStrParse::Split() noexcept {
    const std::string_view text = strText_.view();
    const std::string_view separator = Separator();
    if (text.empty() || separator.empty()) return false;
    std::size_t count = 0;
    std::size_t size = 0;
    ForEachItem(text, separator, bTrim, [&](std::string_view item) {
        ++count;
        size += item.size() + 1;
    });
    if (count > INT32_MAX) return false;
    HeapBlock block(std::malloc(count * sizeof(char*) + size));
    if (block == nullptr) return false;
    auto** address = static_cast<const char**>(block.get());
    auto* next = reinterpret_cast<char*>(address + count);
    ForEachItem(text, separator, bTrim, [&](std::string_view item) {
        *address++ = next;
        if (!item.empty()) std::memcpy(next, item.data(), item.size());
        next[item.size()] = '\0';
        next += item.size() + 1;
    });
    items_ = std::move(block);
    count_ = static_cast<std::int32_t>(count);
    nIndex_ = 0;
    return true;
}

const char* CStrParse::getItem(std::int32_t index) noexcept {
    if (index >= 0)
        nIndex_ = index < INT32_MAX ? index + 1 : index;
    else if (nIndex_ < INT32_MAX)
        ++nIndex_;
    if (nIndex_ > count_) return strFault;
    return static_cast<const char**>(items_.get())[nIndex_ - 1];
}

std::int32_t CStrParse::getInt(std::int32_t index) noexcept {
    std::int32_t number = 0;
    scan::Scanner(getItem(index)).Number(number, 0);
    return number;
}

} // namespace orrery
