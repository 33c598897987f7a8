// The field codecs: how one value of a document becomes a field of a record and back. Record tables name them; a
// family's own functions call them directly.
//
// Readers take the value, which may be null or of any type, and never fail the call: they answer whether they read.
// They store through memcpy, since nothing obliges a caller to align its buffer. Writers put one value behind
// `TextWriter::Key` or into an array.
#pragma once

#include "frame/LocalText.h"
#include "frame/json/TextWriter.h"
#include "frame/json/Value.h"

#include "orrery/types.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace orrery {

class JsonParser {
  public:
    explicit JsonParser(LocalText& text) noexcept : text_(text) {}

    LocalText& text() const noexcept { return text_; }

    // ---- Text ----------------------------------------------------------------------------------------------------

    // Clears all `capacity` bytes of the destination, then takes the string with a terminator; true when the value was
    // a string. Without `convert` the bytes are taken as they stand.
    bool GetJsonString(const json::Value& value, char* destination, std::size_t capacity, bool convert) noexcept;
    // Nothing at all when the destination is null or the value is null.
    bool GetJsonStringIfPresent(const json::Value& value, char* destination, std::size_t capacity) noexcept;
    // At most `limit` bytes of the string, converted and terminated; an empty string or no string at all leaves the
    // destination as it is. `room` is what really stands behind `destination`. True when the value was a string.
    bool GetJsonStringBounded(const json::Value& value, char* destination, std::size_t limit,
                              std::size_t room) noexcept;
    // The first `capacity` bytes of the string, converted; all of the destination may be text, without a terminator.
    // What stood there is gone when the value was a string, and stays when it was none.
    bool GetConvertedText(const json::Value& value, char* destination, std::size_t capacity) noexcept;
    // False and nothing written when the source is null. A source without a terminator ends at `capacity` bytes.
    // Converted text is cut at one and a half times the source's bytes.
    bool SetJsonString(json::TextWriter& out, const char* source, std::size_t capacity, bool convert) noexcept;

    // ---- Times ---------------------------------------------------------------------------------------------------

    // "%d %02d:%02d:%02d-%02d:%02d:%02d". Fields matched before a mismatch stay written; false unless all seven are.
    static bool GetTimeSection(const json::Value& value, CFG_TIME_SECTION* section) noexcept;
    // As many of the leading values as are sections in the form that nearly all devices write; how many.
    static std::size_t GetUsualSections(std::span<const json::Value> values, CFG_TIME_SECTION* sections) noexcept;
    // The same of a list of days straight from the text, from its bracket at `p` on, which is in front of `end`; what
    // there is no place for is passed over. The byte behind it; null as soon as anything else comes, and what was in
    // front of that is read.
    struct UsualDays {
        std::uint32_t count = 0; // that came
        bool areFull = true;     // each had as many sections as there are columns, or more
    };
    static const char* ReadUsualDays(const char* p, const char* end, Arena& arena, CFG_TIME_SECTION* sections,
                                     std::uint32_t rows, std::uint32_t columns, UsualDays& days) noexcept;
    static void SetTimeSection(json::TextWriter& out, const CFG_TIME_SECTION* section) noexcept;
    // A matrix, row-major with `columns` sections a row, "%d %d:%d:%d-%d:%d:%d"; the first bad cell ends it with false.
    static bool GetTimeSchedule(const json::Value& value, CFG_TIME_SECTION* sections, int rows, int columns,
                                int* rowsRead) noexcept;
    // Every cell of the matrix. False and nothing written when `sections` is null or a bound is below 1.
    static bool SetTimeSchedule(json::TextWriter& out, const CFG_TIME_SECTION* sections, int rows,
                                int columns) noexcept;
    // Clears the schedule, then reads 7 or 8 rows by 6; `bEnableHoliday` tells whether there were 8.
    // Its days as elements of the array that is open.
    static void SetTimeDays(json::TextWriter& out, const CFG_TIME_SECTION* days, int count, int columns) noexcept;
    static bool GetHolidaySchedule(const json::Value& value, CFG_TIME_SCHEDULE* schedule) noexcept;
    static void SetHolidaySchedule(json::TextWriter& out, const CFG_TIME_SCHEDULE* schedule) noexcept;
    // A flat array; elements that are no section are passed over.
    static bool GetTimeSectionList(const json::Value& value, CFG_TIME_SECTION* sections, int limit) noexcept;
    static bool SetTimeSectionList(json::TextWriter& out, const CFG_TIME_SECTION* sections, int count) noexcept;

    static bool GetNetTime(const json::Value& value, NET_TIME* time) noexcept; // "%04d-%02d-%02d %02d:%02d:%02d"
    static void SetNetTime(json::TextWriter& out, const NET_TIME* time) noexcept;
    static bool GetNetTimeEx(const json::Value& value, NET_TIME_EX* time) noexcept; // ... and ".%d"
    static void SetNetTimeEx(json::TextWriter& out, const NET_TIME_EX* time) noexcept;
    static bool GetClockTime(const json::Value& value, NET_TIME* time) noexcept; // "%02d:%02d:%02d", the date stays
    // The same of eight bytes in that form, two digits each; false for all others.
    static bool GetUsualClock(const char* text, std::int32_t (&fields)[3]) noexcept;
    static void SetClockTime(json::TextWriter& out, const NET_TIME* time) noexcept;
    // The same of the hour, the minute and the second that stand one behind the other; takes kClockText bytes. Null
    // when one of them has more than two digits.
    static constexpr std::size_t kClockText = 10;
    static char* PutClockTime(char* at, const void* clock) noexcept;
    static bool GetDate(const json::Value& value, NET_TIME* time) noexcept; // "%04d-%02d-%02d", the time stays
    // Seconds since 1970 in UTC; all fields 0 when the record, or the C library's own calendar, cannot hold the year.
    static NET_TIME UtcSecondsToNetTime(std::int64_t seconds) noexcept;
    static void GetUtcTime(const json::Value& value, NET_TIME* time) noexcept; // the same of an unsigned number

    // ---- Fixed arrays of numbers -----------------------------------------------------------------------------------

    // Arrays of exactly 2 or 4 elements; anything else is refused with nothing written.
    static bool GetPoint(const json::Value& value, CFG_POINT* point) noexcept;
    static void SetPoint(json::TextWriter& out, const CFG_POINT* point) noexcept;
    static bool GetSize(const json::Value& value, CFG_SIZE* size) noexcept;
    static void SetSize(json::TextWriter& out, const CFG_SIZE* size) noexcept;
    static bool GetRect(const json::Value& value, CFG_RECT* rect) noexcept;
    static void SetRect(json::TextWriter& out, const CFG_RECT* rect) noexcept;
    static bool GetColor(const json::Value& value, CFG_COLOR* color) noexcept;
    static void SetColor(json::TextWriter& out, const CFG_COLOR* color) noexcept;
    // An element that is null or has fewer than two numbers leaves a hole and is not counted.
    static void GetPointList(const json::Value& value, int count, CFG_POLYGON* points, int* countOut) noexcept;
    // An array of pairs; a count of 0 writes nothing, so that the caller leaves the key out.
    static bool SetPointList(json::TextWriter& out, const CFG_POLYGON* points, int count) noexcept;

    // ---- Split modes -----------------------------------------------------------------------------------------------

    // "Split9" 9, "PIP3" 1003, "Free" 2000, "CompositeSplit2" 3002; 1 for a text of no such kind.
    static std::int32_t GetSplitMode(std::string_view text) noexcept;
    // The text of a mode in `room`, empty when it has none (3000 and negative numbers): then no key is written.
    static std::string_view SplitModeText(std::int32_t mode, std::array<char, 32>& room) noexcept;
    static bool SetSplitMode(json::TextWriter& out, std::int32_t mode) noexcept;

    // Overlays and composed pictures name the same modes by other rules: prefixes in any case, "Split3" and "Split3B"
    // as a whole, and a bare prefix is its first mode, "CompositeSplit" too. Every mode has a name.
    static std::uint32_t GetOverlaySplit(std::string_view text) noexcept;
    static std::string_view OverlaySplitText(std::uint32_t mode, std::array<char, 32>& room) noexcept;

    // ---- Base64 ----------------------------------------------------------------------------------------------------

    static std::size_t Base64EncodedSize(std::size_t size) noexcept; // terminator included
    // Terminates the output; returns the count with the terminator. `output` holds Base64EncodedSize(size).
    static std::size_t Base64Encode(char* output, const unsigned char* input, std::size_t size) noexcept;
    static std::size_t Base64DecodedSize(std::string_view text) noexcept; // terminator included
    // Decodes the leading run of alphabet characters and terminates; returns the decoded length. `output` holds
    // Base64DecodedSize(text).
    static std::size_t Base64Decode(unsigned char* output, std::string_view text) noexcept;

    // ---- Positions -------------------------------------------------------------------------------------------------

    // [ degrees, minutes, seconds, ... ] in millionths of a degree; 0 when shorter than three.
    static double GpsDegreesToMicro(const json::Value& value) noexcept;
    // Truncated toward zero; what does not fit becomes the nearest number that does, and 0 if it is no number.
    static std::int32_t GpsDegreesToMicroInt(const json::Value& value) noexcept;

  private:
    LocalText& text_;
};

// Equal but for the case of the ASCII letters: how commands and most enumerated texts compare.
bool EqualsFolded(std::string_view left, std::string_view right) noexcept;
// Eight bytes with their ASCII capitals made small; bytes of 128 and above stay.
constexpr std::uint64_t Folded(std::uint64_t word) noexcept {
    constexpr std::uint64_t kEach = 0x0101010101010101u;
    const std::uint64_t low = word & (0x7F * kEach);
    const std::uint64_t fromA = low + (0x80 - 'A') * kEach;
    const std::uint64_t pastZ = low + (0x80 - 'Z' - 1) * kEach;
    const std::uint64_t capital = fromA & ~pastZ & ~word & (0x80 * kEach);
    return word | capital >> 2;
}
// The eight bytes at `text`, the first in the lowest byte.
inline std::uint64_t Word(const char* text) noexcept {
    std::uint64_t word;
    std::memcpy(&word, text, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    return word;
}
// The same of a text shorter than eight bytes, of which nothing behind it may be loaded: its two ends, which overlap.
inline std::uint64_t ShortWord(const char* text, std::size_t size) noexcept {
    if (size >= 4) {
        std::uint32_t low, high;
        std::memcpy(&low, text, 4);
        std::memcpy(&high, text + size - 4, 4);
        if constexpr (std::endian::native == std::endian::big) {
            low = __builtin_bswap32(low);
            high = __builtin_bswap32(high);
        }
        return std::uint64_t{low} | std::uint64_t{high} << 8 * (size - 4);
    }
    if (size == 0) return 0;
    const auto byte = [text](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(text[i])}; };
    return byte(0) | byte(size / 2) << 8 * (size / 2) | byte(size - 1) << 8 * (size - 1);
}

} // namespace orrery
