// How a display divides its picture, as one number: "Split9" is 9, "PIP3" is 1003.
#include "frame/JsonParser.h"
#include "frame/JsonParser_Scan.h"

#include <charconv>
#include <cstring>

namespace orrery {

namespace {

struct SplitKind {
    std::string_view prefix;
    std::int32_t base;
};

constexpr SplitKind kSplitKinds[] = {{"Split", 0}, {"PIP", 1000}, {"Free", 2000}, {"CompositeSplit", 3000}};
constexpr std::string_view kSplit3 = "Split3"; // one large picture over three small ones
constexpr std::string_view kSplit3B = "Split3B";
constexpr std::int32_t kSplit3Mode = 10;
constexpr std::int32_t kSplit3BMode = 11;

} // namespace

std::int32_t JsonParser::GetSplitMode(std::string_view text) noexcept {
    text = text.substr(0, text.find('\0'));
    for (const SplitKind& kind : kSplitKinds) {
        if (!text.starts_with(kind.prefix)) continue;
        // A bare "Split" is how some devices write the first of the two.
        if (kSplit3.starts_with(text)) return kSplit3Mode;
        if (kSplit3B.starts_with(text)) return kSplit3BMode;
        std::int32_t number = 0;
        scan::Scanner(text.substr(kind.prefix.size())).Number(number, 0);
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(kind.base) + static_cast<std::uint32_t>(number));
    }
    return 1;
}

std::uint32_t JsonParser::GetOverlaySplit(std::string_view text) noexcept {
    text = text.substr(0, text.find('\0'));
    if (EqualsFolded(text, kSplit3)) return kSplit3Mode;
    if (EqualsFolded(text, kSplit3B)) return kSplit3BMode;
    for (const SplitKind& kind : kSplitKinds) {
        if (!EqualsFolded(text.substr(0, kind.prefix.size()), kind.prefix)) continue;
        std::int32_t number = 0;
        scan::Scanner(text.substr(kind.prefix.size())).Number(number, 0);
        return static_cast<std::uint32_t>(kind.base) + static_cast<std::uint32_t>(number);
    }
    return 1;
}

std::string_view JsonParser::OverlaySplitText(std::uint32_t mode, std::array<char, 32>& room) noexcept {
    if (mode == kSplit3Mode) return kSplit3;
    if (mode == kSplit3BMode) return kSplit3B;
    const SplitKind& kind = kSplitKinds[mode >= 3000 ? 3 : mode / 1000];
    const std::uint32_t number = mode - static_cast<std::uint32_t>(kind.base);
    if (number == 0) return kind.prefix;
    std::memcpy(room.data(), kind.prefix.data(), kind.prefix.size());
    const auto end = std::to_chars(room.data() + kind.prefix.size(), room.data() + room.size(), number).ptr;
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

std::string_view JsonParser::SplitModeText(std::int32_t mode, std::array<char, 32>& room) noexcept {
    if (mode < 0 || mode == 3000) return {};
    if (mode == kSplit3Mode) return kSplit3;
    if (mode == kSplit3BMode) return kSplit3B;
    const SplitKind& kind = kSplitKinds[mode >= 3000 ? 3 : mode / 1000];
    if (mode == kind.base) return kind.prefix;
    std::memcpy(room.data(), kind.prefix.data(), kind.prefix.size());
    const char* const end = scan::Print(room.data() + kind.prefix.size(), mode - kind.base, 0);
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

bool JsonParser::SetSplitMode(json::TextWriter& out, std::int32_t mode) noexcept {
    std::array<char, 32> room;
    const std::string_view text = SplitModeText(mode, room);
    if (text.empty()) return false;
    out.String(text);
    return true;
}

} // namespace orrery
