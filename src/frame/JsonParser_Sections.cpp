// Periods of a day, and the weeks that they make.
#include "frame/JsonParser.h"
#include "frame/JsonParser_Scan.h"
#include "frame/json/Pen.h"
#include "frame/json/Tokens.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace orrery {

namespace {

using scan::Scanner;

constexpr int kSectionFields = scan::kMostFields;
constexpr char kSectionSeparators[] = " ::-::";
constexpr unsigned char kSectionWidths[kSectionFields] = {0, 2, 2, 2, 2, 2, 2};
constexpr unsigned char kAnyWidths[kSectionFields] = {};

// Records are reached by offset: a member of a record at an odd address must not be named.
constexpr std::size_t kScheduleHoliday = offsetof(CFG_TIME_SCHEDULE, bEnableHoliday);
constexpr std::size_t kScheduleSections = offsetof(CFG_TIME_SCHEDULE, stuTimeSection);

// Nearly every device writes sections so: "1 08:00:00-17:30:00", with a flag of one digit, or of two.
constexpr std::size_t kUsualSize = 19;
inline bool ReadUsual(const char* text, std::size_t size, CFG_TIME_SECTION* section) noexcept {
    if (size != kUsualSize && size != kUsualSize + 1) return false;
    const bool isLong = size != kUsualSize;
    const char* const t = text + (isLong ? 1 : 0);
    const char* const begin = t + 2;
    const char* const end = t + 11;
    if (!scan::IsDigit(t[0]) || t[1] != ' ' || t[10] != '-' || (isLong && !scan::IsDigit(text[0]))) return false;
    const int mask = t[0] - '0' + (isLong ? 10 * (text[0] - '0') : 0);
    auto* const at = reinterpret_cast<std::byte*>(section);
#if ORRERY_SSE2
    const auto load = [](const char* from) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)); };
    const auto both = [](std::uint64_t clock) { return _mm_set1_epi64x(static_cast<long long>(clock)); };
    // Of both clocks, letters from the lowest up: what is left of a digit is its value, of a colon nothing.
    const __m128i digits = _mm_xor_si128(_mm_unpacklo_epi64(load(begin), load(end)), both(0x30303A30303A3030));
    const __m128i beyond = _mm_subs_epu8(digits, both(0x0909000909000909));
    if (_mm_movemask_epi8(_mm_cmpeq_epi8(beyond, _mm_setzero_si128())) != 0xFFFF) return false;
    const __m128i tenfold = _mm_add_epi8(_mm_slli_epi64(digits, 3), _mm_slli_epi64(digits, 1));
    const __m128i pairs = _mm_add_epi8(tenfold, _mm_srli_epi64(digits, 8)); // of each letter and the next
    // Hours, minutes, nothing and seconds of each, then nothing in front of them.
    const __m128i numbers = _mm_or_si128(_mm_and_si128(pairs, both(0x00FF0000000000FF)),
                                         _mm_and_si128(_mm_srli_epi64(pairs, 8), both(0x0000000000FF0000)));
    constexpr int kInOrder = _MM_SHUFFLE(3, 1, 0, 2);
    const __m128i inOrder = _mm_shufflehi_epi16(_mm_shufflelo_epi16(numbers, kInOrder), kInOrder);
    const __m128i whole = _mm_insert_epi16(inOrder, mask, 0);
    // The second overlaps the last number of the first.
    _mm_storeu_si128(reinterpret_cast<__m128i*>(at + 12), _mm_unpackhi_epi16(whole, _mm_setzero_si128()));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(at), _mm_unpacklo_epi16(whole, _mm_setzero_si128()));
#else
    std::uint64_t bad = 0;
    const auto first = scan::ReadClock(begin, bad);
    const auto last = scan::ReadClock(end, bad);
    if ((bad & scan::kHighBits) != 0) return false;
    const std::int32_t fields[kSectionFields] = {mask,      first.hour,  first.minute, first.second,
                                                 last.hour, last.minute, last.second};
    scan::StoreFields(at, fields, kSectionFields);
#endif
    return true;
}

bool ReadSection(std::string_view text, const unsigned char* widths, CFG_TIME_SECTION* section) noexcept {
    if (ReadUsual(text.data(), text.size(), section)) return true;
    std::int32_t fields[kSectionFields];
    Scanner scanner(text);
    const int count = scan::Fields(scanner, kSectionFields, kSectionSeparators, widths, fields);
    if (count != 0) scan::StoreFields(section, fields, count);
    return count == kSectionFields;
}

// Of a section in quotes.
constexpr std::size_t kSectionText = kUsualSize + 2;
// The usual section in quotes at `p`: the byte behind it, or null.
inline const char* ReadUsualText(const char* p, const char* end, CFG_TIME_SECTION* section) noexcept {
    if (end - p <= static_cast<std::ptrdiff_t>(kSectionText) || *p != '"')
        return nullptr; // one of two digits may be longer by one
    const std::size_t size = kUsualSize + (p[kSectionText - 1] == '"' ? 0 : 1);
    return p[size + 1] == '"' && ReadUsual(p + 1, size, section) ? p + size + 2 : nullptr;
}

constexpr std::size_t kSectionStep = kSectionText + 2; // to the same byte of the section behind it

// The first and the last sixteen bytes of a section.
struct SectionBytes {
#if ORRERY_SSE2
    __m128i first, last;
#else
    std::uint64_t first[2], last[2];
#endif
    explicit SectionBytes(const void* section) noexcept {
        std::memcpy(&first, section, sizeof first);
        std::memcpy(&last, static_cast<const std::byte*>(section) + sizeof(CFG_TIME_SECTION) - sizeof last,
                    sizeof last);
    }
    bool operator==(const SectionBytes& other) const noexcept {
#if ORRERY_SSE2
        const __m128i same = _mm_and_si128(_mm_cmpeq_epi8(first, other.first), _mm_cmpeq_epi8(last, other.last));
        return _mm_movemask_epi8(same) == 0xFFFF;
#else
        return std::memcmp(this, &other, sizeof *this) == 0;
#endif
    }
};

// The text of a section in quotes with `, ` in front of it, held in registers: what was just stored in pieces cannot be
// loaded at once before all of it has reached the cache, and the section before often comes again.
class SectionText {
  public:
    // The counterpart of ReadUsual: a week has 42 of them or 70. False when a field has more digits than usual.
    bool Set(const SectionBytes& section) noexcept {
#if ORRERY_SSE2
        // Eight numbers, the second of both clocks twice: those of the first clock, then those of the other.
        const __m128i numbers = _mm_packs_epi32(section.first, section.last);
        const __m128i most = _mm_setr_epi16(9, 99, 99, 99, 99, 99, 99, 99);
        const __m128i outside = _mm_subs_epu16(numbers, most);
        if (_mm_movemask_epi8(_mm_cmpeq_epi16(outside, _mm_setzero_si128())) != 0xFFFF) return false;
        // Two digits a number: the tens lower, as they stand in the text, but for minutes, whose tens are higher.
        const __m128i tens = _mm_mulhi_epi16(numbers, _mm_set1_epi16(6554)); // a tenth of 65536, and a little more
        const __m128i ofNumber = _mm_setr_epi16(256, 256, 1, 256, 256, 256, 1, 256);
        const __m128i ofTens = _mm_setr_epi16(-2559, -2559, 246, -2559, -2559, -2559, 246, -2559);
        const __m128i pairs = _mm_add_epi16(_mm_mullo_epi16(numbers, ofNumber), _mm_mullo_epi16(tens, ofTens));
        // Each clock in eight letters: hours, minutes twice, of which the inner letters stay, and seconds.
        constexpr int kSpread = _MM_SHUFFLE(3, 2, 2, 1);
        const __m128i spread = _mm_shufflehi_epi16(_mm_shufflelo_epi16(pairs, kSpread), kSpread);
        const __m128i kept = _mm_and_si128(spread, _mm_set1_epi64x(static_cast<long long>(0xFFFF00FFFF00FFFF)));
        const __m128i clocks = _mm_add_epi8(kept, _mm_set1_epi64x(0x30303A30303A3030)); // zeros and colons
        const auto begin = static_cast<std::uint64_t>(_mm_cvtsi128_si64(clocks));
        const auto end = static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(clocks, clocks)));
        // The mask has no tens.
        constexpr std::uint64_t kFirst = 0x203022202C; // `, "0 `
        const auto mask = static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_cvtsi128_si32(pairs)) & 0xFFFF);
        first_ = (kFirst + (mask << 16)) | begin << 40;
        second_ = begin >> 24 | std::uint64_t{'-'} << 40 | end << 48;
        last_ = end >> 8 | std::uint64_t{'"'} << 56;
#else
        std::uint32_t fields[kSectionFields + 1]; // the second of the first clock twice
        std::memcpy(fields, section.first, sizeof section.first);
        std::memcpy(fields + 3, section.last, sizeof section.last);
        std::uint32_t outside = 0; // its highest bit is set when a field is
        for (int i = 0; i < kSectionFields; ++i)
            outside |= fields[i] | ((i == 0 ? 9u : 99u) - fields[i]);
        if (outside >> 31 != 0) return false;
        std::memcpy(text_, ", \"0 00:00:00-00:00:00\"", kSectionStep);
        text_[3] = static_cast<char>('0' + fields[0]);
        for (int i = 1; i < kSectionFields; ++i)
            json::PutPair(text_ + 2 + 3 * i, fields[i]);
#endif
        return true;
    }
    char* Put(char* to) const noexcept {
#if ORRERY_SSE2
        std::memcpy(to, &first_, 8);
        std::memcpy(to + 8, &second_, 8);
        std::memcpy(to + kSectionStep - 8, &last_, 8);
#else
        std::memcpy(to, text_, kSectionStep);
#endif
        return to + kSectionStep;
    }

  private:
#if ORRERY_SSE2
    std::uint64_t first_ = 0, second_ = 0, last_ = 0; // eight letters each, the first lowest; one stands in two
#else
    char text_[kSectionStep];
#endif
};

// A day of usual sections, which finds DayRoom; null when it is none.
constexpr std::size_t DayRoom(int sections) {
    return static_cast<std::size_t>(sections) * kSectionStep + 2;
}
[[gnu::always_inline]] inline char* PutUsualDay(char* to, const CFG_TIME_SECTION* day, int sections) noexcept {
    SectionBytes before(day);
    SectionText text;
    if (!text.Set(before)) return nullptr;
    char* next = text.Put(to);
    for (int i = 1; i < sections; ++i) {
        const SectionBytes bytes(day + i);
        if (!(bytes == before)) {
            before = bytes;
            if (!text.Set(bytes)) return nullptr;
        }
        next = text.Put(next);
    }
    return json::Hand::PutBrackets(to, next);
}

// The least of a caller's bound and what the document has; the bound is at least 1 here.
int Limit(int bound, std::uint32_t size) noexcept {
    return static_cast<int>(std::min(static_cast<std::uint32_t>(bound), size));
}

} // namespace

bool JsonParser::GetTimeSection(const json::Value& value, CFG_TIME_SECTION* section) noexcept {
    return section != nullptr && ReadSection(value.asString(), kSectionWidths, section);
}

std::size_t JsonParser::GetUsualSections(std::span<const json::Value> values, CFG_TIME_SECTION* sections) noexcept {
    std::size_t count = 0;
    for (; count < values.size(); ++count) {
        const std::string_view text = values[count].asString();
        if (!ReadUsual(text.data(), text.size(), sections + count)) break;
    }
    return count;
}

const char* JsonParser::ReadUsualDays(const char* p, const char* end, Arena& arena, CFG_TIME_SECTION* sections,
                                      std::uint32_t rows, std::uint32_t columns, UsualDays& days) noexcept {
    days = {};
    json::Step step = json::FirstEntry(p, end, ']');
    if (!step.more) return nullptr;
    for (; step.more; step = json::NextEntry(p, end, ']')) {
        p = step.at;
        if (days.count++ >= rows) {
            p = json::SkipValue(p, end, arena);
        } else {
            if (*p != '[') return nullptr;
            json::Step cell = json::FirstEntry(p, end, ']');
            std::uint32_t used = 0;
            for (; cell.more; cell = json::NextEntry(p, end, ']')) {
                p = used == columns ? json::SkipValue(cell.at, end, arena)
                                    : ReadUsualText(cell.at, end, sections + used++);
                if (p == nullptr) return nullptr;
            }
            days.areFull = days.areFull && used == columns;
            sections += columns;
            p = cell.at;
        }
        if (p == nullptr) return nullptr;
    }
    return step.at;
}

void JsonParser::SetTimeSection(json::TextWriter& out, const CFG_TIME_SECTION* section) noexcept {
    if (section != nullptr) {
        SectionText text;
        json::Pen pen(out);
        if (pen.has(kSectionText) && text.Set(SectionBytes(section))) {
            char whole[kSectionStep];
            text.Put(whole);
            pen.Element([&whole](char* to) { return json::CopyShort(to, whole + 2, kSectionText); });
            return pen.Return(out);
        }
    }
    scan::WriteFields(out, section, kSectionFields, kSectionSeparators, kSectionWidths);
}

bool JsonParser::GetTimeSchedule(const json::Value& value, CFG_TIME_SECTION* sections, int rows, int columns,
                                 int* rowsRead) noexcept {
    if (sections == nullptr || rows < 1 || columns < 1 || !value.isArray() || value.size() == 0) return false;
    const auto days = value.elements().first(static_cast<std::size_t>(Limit(rows, value.size())));
    const auto count = static_cast<int>(days.size());
    if (rowsRead != nullptr) std::memcpy(rowsRead, &count, sizeof count);
    for (const json::Value& day : days) {
        if (day.isArray() && day.size() != 0) {
            CFG_TIME_SECTION* section = sections;
            for (const json::Value& cell : day.elements().first(static_cast<std::size_t>(Limit(columns, day.size())))) {
                if (!ReadSection(cell.asString(), kAnyWidths, section++)) return false;
            }
        }
        sections += columns;
    }
    return true;
}

bool JsonParser::SetTimeSchedule(json::TextWriter& out, const CFG_TIME_SECTION* sections, int rows,
                                 int columns) noexcept {
    if (sections == nullptr || rows < 1 || columns < 1) return false;
    out.BeginArray();
    SetTimeDays(out, sections, rows, columns);
    out.EndArray();
    return true;
}

void JsonParser::SetTimeDays(json::TextWriter& out, const CFG_TIME_SECTION* days, int count, int columns) noexcept {
    const auto size = static_cast<std::size_t>(columns) * sizeof *days;
    std::size_t length = 0; // of the text of the day before; 0: it is not to be repeated
    json::Pen pen(out);
    for (int i = 0; i < count; ++i, days += columns) {
        // Most days of a week are like the day before.
        if (length > 0 && pen.has(length) && std::memcmp(days - columns, days, size) == 0) {
            pen.Again(length);
            continue;
        }
        const json::Pen before = pen;
        if (pen.has(DayRoom(columns)) && pen.TryElement([=](char* to) { return PutUsualDay(to, days, columns); })) {
            length = pen.LengthOfElementSince(before);
            continue;
        }
        pen.Return(out);
        SetTimeSectionList(out, days, columns);
        pen = json::Pen(out);
        length = 0;
    }
    pen.Return(out);
}

bool JsonParser::GetHolidaySchedule(const json::Value& value, CFG_TIME_SCHEDULE* schedule) noexcept {
    if (schedule == nullptr) return false;
    auto* const bytes = reinterpret_cast<char*>(schedule);
    std::memset(bytes, 0, sizeof *schedule);
    auto* const sections = reinterpret_cast<CFG_TIME_SECTION*>(bytes + kScheduleSections);
    int rows = 0;
    if (!GetTimeSchedule(value, sections, ORRERY_SCHEDULE_DAYS, ORRERY_DAY_SECTIONS, &rows)) return false;
    if (rows < ORRERY_WEEK_DAYS) return false;
    const std::int32_t holiday = rows == ORRERY_SCHEDULE_DAYS;
    std::memcpy(bytes + kScheduleHoliday, &holiday, sizeof holiday);
    return true;
}

void JsonParser::SetHolidaySchedule(json::TextWriter& out, const CFG_TIME_SCHEDULE* schedule) noexcept {
    if (schedule == nullptr) return out.Null();
    const auto* const bytes = reinterpret_cast<const char*>(schedule);
    std::int32_t holiday;
    std::memcpy(&holiday, bytes + kScheduleHoliday, sizeof holiday);
    const int rows = holiday != 0 ? ORRERY_SCHEDULE_DAYS : ORRERY_WEEK_DAYS;
    const auto* const sections = reinterpret_cast<const CFG_TIME_SECTION*>(bytes + kScheduleSections);
    SetTimeSchedule(out, sections, rows, ORRERY_DAY_SECTIONS);
}

bool JsonParser::GetTimeSectionList(const json::Value& value, CFG_TIME_SECTION* sections, int limit) noexcept {
    if (sections == nullptr || limit < 1) return false;
    for (const json::Value& element : value.elements()) {
        if (limit-- == 0) break;
        ReadSection(element.asString(), kAnyWidths, sections++);
    }
    return true;
}

bool JsonParser::SetTimeSectionList(json::TextWriter& out, const CFG_TIME_SECTION* sections, int count) noexcept {
    if (sections == nullptr || count < 1) return false;
    json::Pen pen(out);
    if (pen.has(DayRoom(count)) && pen.TryElement([=](char* to) { return PutUsualDay(to, sections, count); })) {
        pen.Return(out);
        return true;
    }
    out.BeginArray();
    for (int i = 0; i < count; ++i)
        SetTimeSection(out, sections + i);
    out.EndArray();
    return true;
}

} // namespace orrery
