// Calendar texts.
#include "frame/JsonParser.h"
#include "frame/JsonParser_Scan.h"
#include "frame/json/Pen.h"

#include <cstddef>
#include <cstring>
#include <limits>

namespace orrery {

namespace {

using scan::Scanner;

constexpr char kDateTimeSeparators[] = "-- ::.";
constexpr unsigned char kDateTimeWidths[] = {4, 2, 2, 2, 2, 2, 0};
constexpr char kClockSeparators[] = "::";
constexpr unsigned char kClockWidths[] = {2, 2, 2};

// The first `want` of "2026-11-20 09:30:00.250" into the first words of `record`.
bool ReadDateTime(std::string_view text, int want, void* record) noexcept {
    std::int32_t fields[scan::kMostFields];
    int count = 0;
    if (text.size() >= 19 && want >= 6 && scan::HasShape(text.data(), "0000-00-00 00:00:00")) {
        const char* const t = text.data();
        fields[0] = scan::TwoDigits(t) * 100 + scan::TwoDigits(t + 2);
        for (int i = 1; i < 6; ++i)
            fields[i] = scan::TwoDigits(t + 2 + 3 * i);
        count = 6;
        Scanner rest(text.substr(19));
        if (want == 7 && rest.Literal('.') && rest.Number(fields[6], 0)) count = 7;
    } else {
        Scanner scanner(text);
        count = scan::Fields(scanner, want, kDateTimeSeparators, kDateTimeWidths, fields);
    }
    if (count != 0) scan::StoreFields(record, fields, count);
    return count == want;
}

} // namespace

bool JsonParser::GetNetTime(const json::Value& value, NET_TIME* time) noexcept {
    return time != nullptr && ReadDateTime(value.asString(), 6, time);
}

void JsonParser::SetNetTime(json::TextWriter& out, const NET_TIME* time) noexcept {
    scan::WriteFields(out, time, 6, kDateTimeSeparators, kDateTimeWidths);
}

bool JsonParser::GetNetTimeEx(const json::Value& value, NET_TIME_EX* time) noexcept {
    return time != nullptr && ReadDateTime(value.asString(), 7, time);
}

void JsonParser::SetNetTimeEx(json::TextWriter& out, const NET_TIME_EX* time) noexcept {
    scan::WriteFields(out, time, 7, kDateTimeSeparators, kDateTimeWidths);
}

bool JsonParser::GetUsualClock(const char* text, std::int32_t (&fields)[3]) noexcept {
    std::uint64_t bad = 0;
    const auto clock = scan::ReadClock(text, bad);
    fields[0] = clock.hour;
    fields[1] = clock.minute;
    fields[2] = clock.second;
    return (bad & scan::kHighBits) == 0;
}

bool JsonParser::GetClockTime(const json::Value& value, NET_TIME* time) noexcept {
    if (time == nullptr) return false;
    const std::string_view text = value.asString();
    std::int32_t fields[3];
    if (text.size() >= 8) {
        if (GetUsualClock(text.data(), fields)) {
            scan::StoreFields(reinterpret_cast<char*>(time) + offsetof(NET_TIME, dwHour), fields, 3);
            return true;
        }
    }
    Scanner scanner(text);
    const int count = scan::Fields(scanner, 3, kClockSeparators, kClockWidths, fields);
    if (count != 0) scan::StoreFields(reinterpret_cast<char*>(time) + offsetof(NET_TIME, dwHour), fields, count);
    return count == 3;
}

void JsonParser::SetClockTime(json::TextWriter& out, const NET_TIME* time) noexcept {
    if (time == nullptr) return out.Null();
    const char* const clock = reinterpret_cast<const char*>(time) + offsetof(NET_TIME, dwHour);
    json::Pen pen(out);
    if (pen.has(kClockText) && pen.TryElement([clock](char* to) { return PutClockTime(to, clock); }))
        return pen.Return(out);
    scan::WriteFields(out, clock, 3, kClockSeparators, kClockWidths);
}

char* JsonParser::PutClockTime(char* at, const void* clock) noexcept {
    std::uint32_t hour, minute, second;
    std::memcpy(&hour, clock, 4);
    std::memcpy(&minute, static_cast<const char*>(clock) + 4, 4);
    std::memcpy(&second, static_cast<const char*>(clock) + 8, 4);
    if (hour > 99 || minute > 99 || second > 99) return nullptr;
    std::memcpy(at, "\"00:00:00\"", kClockText);
    json::PutPair(at + 1, hour);
    json::PutPair(at + 4, minute);
    json::PutPair(at + 7, second);
    return at + kClockText;
}

bool JsonParser::GetDate(const json::Value& value, NET_TIME* time) noexcept {
    return time != nullptr && ReadDateTime(value.asString(), 3, time);
}

namespace {

// Years that begin in March have their leap day last; 400 of them are always this many days.
constexpr std::uint32_t kDaysOf400Years = 146097;

// The calendar of a day and of a second in it. Days are counted from a first of March `firstYear`, which begins 400
// years. What a division leaves stands in the lower half of a product that has the quotient in its upper one.
NET_TIME Calendar(std::int64_t firstYear, std::uint32_t days, std::uint32_t second) noexcept {
    const std::uint32_t quarters = 4 * days + 3;
    const std::uint32_t century = quarters / kDaysOf400Years;
    constexpr std::uint64_t kYear = 2939745; // 2^32 by the 1461 days of four years, rounded up
    const std::uint64_t years = kYear * (quarters % kDaysOf400Years | 3);
    const auto yearOfCentury = static_cast<std::uint32_t>(years >> 32);
    const std::uint32_t dayOfYear = static_cast<std::uint32_t>(years) / static_cast<std::uint32_t>(kYear) / 4;
    constexpr std::uint32_t kMonth = 2141;                    // 2^16 times five by the 153 days of five months
    const std::uint32_t months = kMonth * dayOfYear + 197913; // from the third month on
    const bool isNewYear = dayOfYear >= 306;                  // January and February
    const std::int64_t year = firstYear + 100 * century + yearOfCentury + isNewYear;
    // The C library counts years from 1900 in 32 bits, the record from 0: both have to hold it.
    constexpr std::int64_t kFirstYear = std::int64_t{std::numeric_limits<std::int32_t>::min()} + 1900;
    if (year < kFirstYear || year > std::numeric_limits<std::int32_t>::max()) return {};
    const std::uint32_t minute = second / 60;
    NET_TIME time;
    time.dwYear = static_cast<std::int32_t>(year);
    time.dwMonth = static_cast<std::int32_t>((months >> 16) - (isNewYear ? 12 : 0));
    time.dwDay = static_cast<std::int32_t>((months & 0xFFFF) / kMonth + 1);
    time.dwHour = static_cast<std::int32_t>(minute / 60);
    time.dwMinute = static_cast<std::int32_t>(minute % 60);
    time.dwSecond = static_cast<std::int32_t>(second % 60);
    return time;
}

} // namespace

void JsonParser::GetUtcTime(const json::Value& value, NET_TIME* time) noexcept {
    const NET_TIME fields = UtcSecondsToNetTime(value.asUInt());
    std::memcpy(static_cast<void*>(time), &fields, sizeof fields);
}

NET_TIME JsonParser::UtcSecondsToNetTime(std::int64_t seconds) noexcept {
    constexpr std::uint32_t kDay = 86400;
    constexpr std::uint32_t kDaysTo1970 = 719468; // from 0000-03-01
    // Until 2106, which is all that devices send, half the width does, at half the time.
    if (seconds >= 0 && seconds <= std::numeric_limits<std::uint32_t>::max()) {
        const auto narrow = static_cast<std::uint32_t>(seconds);
        return Calendar(0, narrow / kDay + kDaysTo1970, narrow % kDay);
    }
    std::int64_t days = seconds / kDay;
    std::int64_t second = seconds % kDay;
    if (second < 0) {
        second += kDay;
        --days;
    }
    days += kDaysTo1970;
    const std::int64_t era = (days >= 0 ? days : days - (kDaysOf400Years - 1)) / kDaysOf400Years;
    return Calendar(era * 400, static_cast<std::uint32_t>(days - era * kDaysOf400Years),
                    static_cast<std::uint32_t>(second));
}

} // namespace orrery
