#include "explain/Ranges.h"
#include "explain/WalkParts.h"

#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

namespace {

// What a member keeps of a number.
std::int64_t Cut(Cell cell, std::int64_t number) {
    if (cell == Cell::F32 || cell == Cell::F64) return number;
    std::byte kept[sizeof number] = {};
    StoreInteger(cell, kept, number);
    return LoadInteger(cell, kept);
}

unsigned Bits(Cell cell) {
    switch (cell) {
    case Cell::I8:
    case Cell::U8:
        return 8;
    case Cell::I16:
    case Cell::U16:
        return 16;
    default:
        return 32;
    }
}

} // namespace

bool Walk::IsPlainlyRead(const Table& table, const record::Node& node, const Value& value) {
    switch (node.readPlainly) {
    case Plainly::Switch:
        return value.isBool();
    case Plainly::Integer:
        if (node.kind == Kind::Bool) return value.isBool();
        if (value.asInt() < 0 || value.asInt() > INT8_MAX) return false; // not in every member
        [[fallthrough]];
    case Plainly::Number: {
        if (!value.isInt()) return false;
        const Range* const range = RangeOf(table.rows[node.row]);
        return range == nullptr || (value.asInt() >= range->low && value.asInt() <= range->high);
    }
    case Plainly::Local:
    case Plainly::Raw: {
        if (!value.isString()) return false;
        const std::string_view text = value.asString();
        return text.size() < node.elementSize && text.find('\0') == std::string_view::npos
               && (node.readPlainly == Plainly::Raw || text.empty() || document_.text.isCopyOf(text));
    }
    case Plainly::Named:
        return value.isString() && table.rows[node.row].names->Find(value.asString()) != nullptr;
    default:
        return false;
    }
}

void Walk::Number(const Site& site, const Value& value) {
    const Field& field = site.field;
    const bool isReal = field.cell == Cell::F32 || field.cell == Cell::F64;
    if (value.type() == Type::String || value.size() > 0 || value.type() == Type::Array
        || value.type() == Type::Object) {
        WrongType(value, site, "a number", "it reads as 0");
        return;
    }
    const double number = value.asDouble();
    std::string reads;
    if (field.kind == Kind::Real) {
        const double most = 3.4028234663852886e38;
        if (field.cell == Cell::F32 && (number > most || number < -most)) reads = "infinity";
    } else {
        const std::int64_t got = field.kind == Kind::UInt ? std::int64_t{value.asUInt()} : value.asInt();
        const std::int64_t stored = isReal ? got : Cut(field.cell, got);
        // A number that is stored bit by bit in an unsigned member comes back the same.
        if (static_cast<double>(stored) != number
            && !(field.kind == Kind::Int && Bits(field.cell) == 32 && static_cast<double>(got) == number))
            reads = std::to_string(stored);
    }
    if (reads.empty()) {
        // It is stored all the same, so that only the device's makers know what it means.
        const Range* const range = RangeOf(field);
        if (range == nullptr
            || (number >= static_cast<double>(range->low) && number <= static_cast<double>(range->high)))
            return;
        Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_NOTE, value, site,
            Joined({Shown(value), " is none of ", std::to_string(range->low), " to ", std::to_string(range->high),
                    "; it is stored as it stands"}));
        return;
    }
    const bool isFraction =
        static_cast<double>(static_cast<std::int64_t>(number > -9e18 && number < 9e18 ? number : 0)) != number
        && number > -2147483648.0 && number < 4294967295.0;
    const char* const why = isFraction                               ? " is no whole number"
                            : field.kind == Kind::UInt && number < 0 ? " is below 0"
                            : Bits(field.cell) < 32 && !isReal
                                ? (Bits(field.cell) == 8 ? " does not fit into 8 bits" : " does not fit into 16 bits")
                                : " is more than the field takes";
    Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, value, site, Shown(value) + why + ": it reads as " + reads);
}

void Walk::Text(const Site& site, const Value& value, std::string_view text) {
    const Field& field = site.field;
    const std::size_t capacity = field.elementSize;
    const std::size_t most = field.kind == Kind::FullText ? capacity : capacity - 1; // without the terminator
    if (field.firstBytes != 0 && text.size() > field.firstBytes) {
        Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                               "only the first " + Plural(field.firstBytes, "byte") + " of "
                                   + Plural(text.size(), "byte") + " are read");
        finding.lost = static_cast<std::uint32_t>(text.size() - field.firstBytes);
        text = text.substr(0, field.firstBytes);
    }
    if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
        Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                               "a NUL inside the text ends it after " + Plural(nul, "byte"));
        finding.lost = static_cast<std::uint32_t>(text.size() - nul);
    }
    LocalText& local = document_.text;
    std::size_t size = text.size();
    // A full text is cut before it is converted.
    if (field.kind != Kind::RawText && field.kind != Kind::FullText && size > 0 && !local.isCopyOf(text)) {
        // No encoding takes more than four bytes for what UTF-8 writes in one.
        std::vector<char> converted(size * 4 + 1);
        size = static_cast<std::size_t>(
            std::max(0, local.ConvertUtf8ToLocal(text.data(), static_cast<int>(size), converted.data(),
                                                 static_cast<int>(converted.size()))));
    }
    if (size <= most) return;
    Finding& finding = Add(ORRERY_FINDING_TEXT_CUT, ORRERY_FINDING_LOST, value, site,
                           "a text of " + Plural(size, "byte") + " where " + Plural(most, "byte") + " fit: the last "
                               + Plural(size - most, "byte") + (size - most == 1 ? " is lost" : " are lost"));
    finding.lost = static_cast<std::uint32_t>(size - most);
}

void Walk::Code(const Site& site, const Value& value, const NameTable& names, std::string_view text, bool isTried) {
    if (names.Find(text) != nullptr) return;
    constexpr std::uint16_t kMostTold = 12;
    std::vector<std::string_view> all;
    for (std::uint16_t i = 0; i < names.count; ++i)
        all.push_back(names.rows[i].text);
    const auto near = Nearest(text, all);
    std::string known;
    const std::size_t told = all.size() <= kMostTold ? all.size() : near.empty() ? kMostTold : near.size();
    for (std::size_t i = 0; i < told; ++i) {
        if (i > 0) known += ", ";
        known += all.size() <= kMostTold || near.empty() ? all[i] : near[i];
    }
    if (told < all.size()) known += ", ...";
    std::string message = Quoted(text) + " names no code: ";
    message += names.unknownLeaves ? std::string("the field stays as it is")
                                   : "it reads as " + std::to_string(names.unknownCode);
    message += "; known are " + known;
    Finding& finding = Add(ORRERY_FINDING_UNKNOWN_TEXT, ORRERY_FINDING_LOST, value, site, std::move(message));
    finding.nearest = std::move(known);
    finding.isTried = isTried;
}

namespace {

struct Clock {
    std::int32_t hour, minute, second;
    // 24:00:00 is how devices write the end of a day.
    bool isOfDay() const {
        const auto below = [](std::int32_t number, unsigned most) { return static_cast<unsigned>(number) < most; };
        const bool isBefore = below(hour, 24) && below(minute, 60) && below(second, 60);
        return isBefore || (hour == 24 && minute == 0 && second == 0);
    }
};
bool IsOfDay(const CFG_TIME_SECTION& section) {
    const Clock begin{section.nBeginHour, section.nBeginMin, section.nBeginSec};
    const Clock end{section.nEndHour, section.nEndMin, section.nEndSec};
    return begin.isOfDay() && end.isOfDay();
}

} // namespace

void Walk::Section(const Site& site, const Value& value, bool anyWidth) {
    if (!value.isString()) {
        WrongType(value, site, "a text like \"1 08:00:00-17:30:00\"");
        return;
    }
    CFG_TIME_SECTION section{};
    bool isSection = false;
    if (anyWidth) {
        Value cell = value;
        Value day = Value::OfArray(&cell, 1);
        isSection = JsonParser::GetTimeSchedule(Value::OfArray(&day, 1), &section, 1, 1, nullptr);
    } else {
        isSection = JsonParser::GetTimeSection(value, &section);
    }
    if (!isSection) {
        Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_LOST, value, site,
            Quoted(value.asString()) + " is no period like \"1 08:00:00-17:30:00\"");
        return;
    }
    if (IsOfDay(section)) return;
    Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_NOTE, value, site,
        Quoted(value.asString()) + " is no time of a day; it is stored as it stands");
}

std::size_t Walk::PlainSections(std::span<const Value> values) {
    CFG_TIME_SECTION sections[ORRERY_DAY_SECTIONS];
    std::size_t plain = 0;
    for (;;) {
        const auto few = values.subspan(plain, std::min(values.size() - plain, std::size(sections)));
        const std::size_t usual = JsonParser::GetUsualSections(few, sections);
        const auto* const odd = std::find_if_not(sections, sections + usual, IsOfDay);
        plain += static_cast<std::size_t>(odd - sections);
        if (odd != sections + std::size(sections)) return plain;
    }
}

void Walk::Schedule(const Site& site, const Value& value, std::uint32_t rows, std::uint32_t columns) {
    if (value.type() != Type::Array) {
        WrongType(value, site, "a list of days");
        return;
    }
    std::uint32_t day = 0;
    for (const Value& sections : value.elements()) {
        if (day == rows) {
            Dropped(site, value, rows, value.size() - rows, "room for");
            break;
        }
        const Path inner = site.path.Element(day++);
        const Site own{site.table, site.field, inner};
        if (sections.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, sections, own, "null: the day stays empty");
            continue;
        }
        if (sections.type() != Type::Array) {
            WrongType(sections, own, "a list of periods", "the day stays empty");
            continue;
        }
        const auto periods = sections.elements();
        const std::size_t plain = PlainSections(periods.first(std::min<std::size_t>(periods.size(), columns)));
        auto at = static_cast<std::uint32_t>(plain);
        for (const Value& section : periods.subspan(plain)) {
            if (at == columns) {
                Dropped(own, sections, columns, sections.size() - columns, "room for");
                break;
            }
            const Path cell = inner.Element(at++);
            const std::size_t before = findings_.size();
            Section({site.table, site.field, cell}, section, true);
            if (section.isNull())
                Add(ORRERY_FINDING_NULL, ORRERY_FINDING_LOST, section, Site{site.table, site.field, cell},
                    "null where a period is read");
            // The first that cannot be read ends the whole schedule.
            if (findings_.size() > before && findings_.back().gravity == ORRERY_FINDING_LOST) {
                findings_.back().message += "; the schedule ends here";
                return;
            }
        }
    }
}

void Walk::Time(const Site& site, const Value& value) {
    const Field& field = site.field;
    const char* const like = field.kind == Kind::NetTime     ? "\"2026-11-20 09:30:00\""
                             : field.kind == Kind::NetTimeEx ? "\"2026-11-20 09:30:00.250\""
                             : field.kind == Kind::ClockTime ? "\"09:30:00\""
                                                             : "\"2026-11-20\"";
    if (!value.isString()) {
        WrongType(value, site, (std::string("a text like ") + like).c_str());
        return;
    }
    NET_TIME_EX time{};
    NET_TIME plain{};
    bool isTime = false;
    switch (field.kind) {
    case Kind::NetTime:
        isTime = JsonParser::GetNetTime(value, &plain);
        break;
    case Kind::NetTimeEx:
        isTime = JsonParser::GetNetTimeEx(value, &time);
        std::memcpy(&plain, &time, sizeof plain);
        break;
    case Kind::ClockTime: {
        const std::string_view text = value.asString();
        const auto most = field.firstBytes == 0 ? text.size() : std::min<std::size_t>(text.size(), field.firstBytes);
        isTime = JsonParser::GetClockTime(Value::OfString(text.substr(0, most)), &plain);
        break;
    }
    default:
        isTime = JsonParser::GetDate(value, &plain);
        break;
    }
    if (!isTime) {
        Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_LOST, value, site,
            Quoted(value.asString()) + " is no time like " + like + ": what stands before the mistake is read");
        return;
    }
    const bool hasDate = field.kind != Kind::ClockTime, hasClock = field.kind != Kind::Date;
    // Devices write a time that they do not have as zeros.
    const bool isNone = hasDate && plain.dwYear == 0 && plain.dwMonth == 0 && plain.dwDay == 0;
    const bool isDate = isNone || (plain.dwMonth >= 1 && plain.dwMonth <= 12 && plain.dwDay >= 1 && plain.dwDay <= 31);
    const Clock clock{static_cast<std::int32_t>(plain.dwHour), static_cast<std::int32_t>(plain.dwMinute),
                      static_cast<std::int32_t>(plain.dwSecond)};
    if ((!hasDate || isDate) && (!hasClock || clock.isOfDay())) return;
    Add(ORRERY_FINDING_BAD_TIME, ORRERY_FINDING_NOTE, value, site,
        Quoted(value.asString()) + (hasDate && !isDate ? " is no day of a calendar" : " is no time of a day")
            + "; it is stored as it stands");
}

void Walk::Numbers(const Site& site, const Value& value) {
    const Field& field = site.field;
    const std::uint32_t most = field.kind == Kind::Switches ? field.dims[0] : field.dims[0] * 32;
    const std::int64_t least = field.kind == Kind::BitMaskLoose ? -31 : 0;
    std::uint32_t at = 0;
    for (const Value& element : value.elements()) {
        if (at == most) {
            Dropped(site, value, most, value.size() - most, "room for");
            break;
        }
        const Path inner = site.path.Element(at++);
        const Site own{site.table, field, inner};
        if (element.isNull()) {
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, element, own, "null in a list: it reads as 0");
        } else if (element.type() == Type::String || element.type() >= Type::Array) {
            WrongType(element, own, "a number", "it reads as 0");
        } else if (element.asDouble() < static_cast<double>(least) || element.asDouble() >= most) {
            Add(ORRERY_FINDING_OUT_OF_RANGE, ORRERY_FINDING_LOST, element, own,
                Shown(element) + " is none of 0 to " + std::to_string(most - 1) + ": it is ignored");
        }
    }
}

} // namespace orrery::explain
