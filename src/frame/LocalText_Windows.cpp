// The local encoding is the process's code page, as Windows programs have it. Its code pages have ASCII at its place
// and characters of one or two bytes.
#include "frame/LocalText.h"

#include "frame/LocalTextSteps.h"

#include <windows.h>

namespace orrery {

using namespace local_text;

namespace {

// A whole character of UTF-8 as UTF-16; returns its units.
int Utf16Of(const char* text, std::size_t size, wchar_t* units) noexcept {
    static constexpr unsigned char kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    std::uint32_t point = static_cast<unsigned char>(text[0]) & kLeadBits[size];
    for (std::size_t i = 1; i < size; ++i)
        point = point << 6 | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    if (point < 0x10000) {
        units[0] = static_cast<wchar_t>(point);
        return 1;
    }
    point -= 0x10000;
    units[0] = static_cast<wchar_t>(0xD800 + (point >> 10));
    units[1] = static_cast<wchar_t>(0xDC00 + (point & 0x3FF));
    return 2;
}

// A character of UTF-16 as UTF-8; returns its bytes.
std::size_t Utf8Of(const wchar_t* units, int count, char* text) noexcept {
    std::uint32_t point = units[0];
    if (count == 2) point = 0x10000 + ((point - 0xD800) << 10) + (units[1] - 0xDC00u);
    if (point < 0x80) {
        text[0] = static_cast<char>(point);
        return 1;
    }
    const std::size_t size = point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
    for (std::size_t i = size - 1; i > 0; --i, point >>= 6)
        text[i] = static_cast<char>(0x80 | (point & 0x3F));
    static constexpr unsigned char kLead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    text[0] = static_cast<char>(kLead[size] | point);
    return size;
}

bool IsWhole(const char* text, std::size_t size) noexcept {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t wanted = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    return size == wanted;
}

// Bytes that stand for the character; 0 when the code page lacks it.
std::size_t ToCodePage(const char* text, std::size_t size, char* local, int room) noexcept {
    wchar_t units[2];
    if (!IsWhole(text, size)) return 0;
    const int count = Utf16Of(text, size, units);
    BOOL lacks = FALSE;
    const int got = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, units, count, local, room, nullptr, &lacks);
    return lacks || got <= 0 ? 0 : static_cast<std::size_t>(got);
}

std::size_t FromCodePage(const char* text, std::size_t size, char* utf8) noexcept {
    wchar_t units[2];
    const int count = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text, static_cast<int>(size), units, 2);
    return count <= 0 ? 0 : Utf8Of(units, count, utf8);
}

} // namespace

LocalText::LocalText(Arena& arena) noexcept : arena_(arena) {
    isCopy_ = GetACP() == CP_UTF8;
    keepsAscii_ = true;
    codeset_[0] = '\0';
}

LocalText::~LocalText() = default;

bool LocalText::IsAscii(std::string_view text) noexcept {
    unsigned bits = 0;
    for (const char c : text)
        bits |= static_cast<unsigned char>(c);
    return bits < 0x80;
}

int LocalText::ConvertUtf8ToLocal(const char* source, int length, char* destination, int capacity) noexcept {
    if (IsNothing(source, length, destination, capacity)) return 0;
    auto left = static_cast<std::size_t>(length);
    if (isCopyOf({source, left})) return CopyBounded(source, length, destination, capacity);
    Room room{destination, static_cast<std::size_t>(capacity - 1)};
    char local[16];
    while (left > 0) {
        const std::size_t step = Utf8Step(source, left);
        const std::size_t count = ToCodePage(source, step, local, static_cast<int>(sizeof local));
        if (!(count == 0 ? room.Put("?", 1) : room.Put(local, count))) break;
        source += step;
        left -= step;
    }
    *room.next = '\0';
    return static_cast<int>(room.next - destination);
}

int LocalText::ConvertLocalToUtf8(const char* source, int length, char* destination, int capacity) noexcept {
    if (IsNothing(source, length, destination, capacity)) return 0;
    auto left = static_cast<std::size_t>(length);
    if (isCopyOf({source, left})) return CopyBounded(source, length, destination, capacity);
    Room room{destination, static_cast<std::size_t>(capacity - 1)};
    char utf8[4];
    while (left > 0) {
        std::size_t step = left > 1 && IsDBCSLeadByte(static_cast<BYTE>(*source)) ? 2 : 1;
        const std::size_t count = FromCodePage(source, step, utf8);
        if (count == 0) step = 1; // what follows a byte that begins no character may be one of its own
        if (!(count == 0 ? room.Put("?", 1) : room.Put(utf8, count))) break;
        source += step;
        left -= step;
    }
    *room.next = '\0';
    return static_cast<int>(room.next - destination);
}

} // namespace orrery
