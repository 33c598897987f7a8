// One value of a row.
#include "frame/json/Pen.h"
#include "frame/record/WriteParts.h"

#include <algorithm>
#include <bit>

namespace orrery::record {

namespace {

// A real field written as an integer is truncated, and 0 where it does not fit.
std::int64_t LoadWhole(const Field& field, const std::byte* at) noexcept {
    if (field.cell != Cell::F32 && field.cell != Cell::F64) return LoadInteger(field.cell, at);
    const double number = LoadReal(field, at);
    return number > -2147483649.0 && number < 4294967296.0 ? static_cast<std::int64_t>(number) : 0;
}

void WriteSwitches(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < field.dims[0]; ++i) {
        if (Load<std::int32_t>(at + i * std::size_t{4}) != 0) call.out.UInt(i);
    }
    call.out.EndArray();
}

} // namespace

bool IsZero(const std::byte* at, std::size_t size) noexcept {
    std::uint32_t any = 0;
    for (std::size_t i = 0; i < size; i += sizeof any)
        any |= Load<std::uint32_t>(at + i);
    return any == 0;
}

void WriteMask(const std::byte* at, std::size_t size, json::TextWriter& out) noexcept {
    out.BeginArray();
    json::Pen pen(out);
    const auto put = [&](std::size_t place, std::uint32_t bits) {
        for (; bits != 0; bits &= bits - 1) {
            const auto number =
                static_cast<std::uint32_t>(8 * place) + static_cast<std::uint32_t>(std::countr_zero(bits));
            if (pen.has(json::kIntegerRoom)) [[likely]] {
                pen.Element([number](char* to) { return json::PutDigits(to, number); });
                continue;
            }
            pen.Return(out);
            out.UInt(number);
            pen = json::Pen(out);
        }
    };
    constexpr std::size_t kWord = sizeof(std::uint32_t), kBlock = 4 * kWord;
    for (std::size_t i = 0; i < size; i += kBlock) {
        // Most of a mask is zero.
        const std::size_t end = std::min(i + kBlock, size);
        if (end - i == kBlock && (Load<std::uint64_t>(at + i) | Load<std::uint64_t>(at + i + kBlock / 2)) == 0)
            continue;
        for (std::size_t k = i; k < end; k += kWord)
            put(k, Load<std::uint32_t>(at + k));
    }
    pen.Return(out);
    out.EndArray();
}

double LoadReal(const Field& field, const std::byte* at) noexcept {
    switch (field.cell) {
    case Cell::F32:
        return double{Load<float>(at)};
    case Cell::F64:
        return Load<double>(at);
    default:
        return static_cast<double>(LoadInteger(field.cell, at));
    }
}

const Name* NameAt(const Field& field, const std::byte* at) noexcept {
    const auto code = std::min<std::int64_t>(LoadInteger(field.cell, at), field.atMost);
    return field.names->RowOf(static_cast<std::int32_t>(code));
}

void WriteElement(const Field& field, const std::byte* at, WriteCall& call) noexcept {
    json::TextWriter& out = call.out;
    switch (field.writtenAs) {
    case Kind::None:
    case Kind::Size:
    case Kind::Presence:
    case Kind::MemberName:
    case Kind::MemberCode:
    case Kind::Date: // read only
    case Kind::UtcTime:
    case Kind::Supplied:
    case Kind::Custom:
        out.Null();
        break;
    case Kind::Bool: {
        const std::int64_t flag = LoadWhole(field, at);
        out.Bool(field.trueAtOne ? flag == 1 : flag != 0);
        break;
    }
    case Kind::Int:
        out.Int(static_cast<std::int32_t>(std::min(LoadWhole(field, at), field.atMost)));
        break;
    case Kind::UInt:
        out.UInt(static_cast<std::uint32_t>(std::min(LoadWhole(field, at), field.atMost)));
        break;
    case Kind::Real:
        out.Real(LoadReal(field, at));
        break;
    case Kind::Text:
    case Kind::RawText:
    case Kind::FullText:
        call.parser.SetJsonString(out, reinterpret_cast<const char*>(at), field.elementSize,
                                  field.writtenAs != Kind::RawText);
        break;
    case Kind::Names: {
        const Name* const row = NameAt(field, at);
        if (row != nullptr)
            row->clean ? out.CleanString(row->text) : out.String(row->text);
        else if (field.names->outside == NameTable::Outside::Text)
            out.String(field.names->outsideText);
        else
            out.Null();
        break;
    }
    case Kind::Record:
        WriteRecord(*field.table, at, call);
        break;
    case Kind::TimeSection:
        JsonParser::SetTimeSection(out, reinterpret_cast<const CFG_TIME_SECTION*>(at));
        break;
    case Kind::Schedule:
        JsonParser::SetTimeSchedule(out, reinterpret_cast<const CFG_TIME_SECTION*>(at), static_cast<int>(field.dims[0]),
                                    static_cast<int>(field.dims[1]));
        break;
    case Kind::HolidaySchedule:
        JsonParser::SetHolidaySchedule(out, reinterpret_cast<const CFG_TIME_SCHEDULE*>(at));
        break;
    case Kind::SectionList:
        JsonParser::SetTimeSectionList(out, reinterpret_cast<const CFG_TIME_SECTION*>(at),
                                       static_cast<int>(field.dims[0]));
        break;
    case Kind::NetTime:
        JsonParser::SetNetTime(out, reinterpret_cast<const NET_TIME*>(at));
        break;
    case Kind::NetTimeEx:
        JsonParser::SetNetTimeEx(out, reinterpret_cast<const NET_TIME_EX*>(at));
        break;
    case Kind::ClockTime:
        JsonParser::SetClockTime(out, reinterpret_cast<const NET_TIME*>(at));
        break;
    case Kind::SplitMode:
        if (!JsonParser::SetSplitMode(out, Load<std::int32_t>(at))) out.Null();
        break;
    case Kind::BitMask:
    case Kind::BitMaskLoose:
        WriteMask(at, field.size, out);
        break;
    case Kind::Switches:
        WriteSwitches(field, at, call);
        break;
    }
}

bool IsElementWritten(const Field& field, const std::byte* at) noexcept {
    if (field.kind == Kind::Record) return IsWritten(*field.table, at);
    if (field.writtenAs == Kind::Names && field.names->outside == NameTable::Outside::NoKey) {
        return NameAt(field, at) != nullptr;
    }
    return true;
}

void WriteLevels(const Field& field, int level, const std::byte* at, WriteCall& call) noexcept {
    if (level == field.rank) {
        if (IsElementWritten(field, at))
            WriteElement(field, at, call);
        else
            call.out.Null();
        return;
    }
    if (level + 1 == field.rank && field.writtenAs == Kind::TimeSection) {
        JsonParser::SetTimeSectionList(call.out, reinterpret_cast<const CFG_TIME_SECTION*>(at),
                                       static_cast<int>(field.dims[level]));
        return;
    }
    const std::uint32_t stride = StrideOf(field, level);
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < field.dims[level]; ++i) {
        WriteLevels(field, level + 1, at + std::size_t{i} * stride, call);
    }
    call.out.EndArray();
}

} // namespace orrery::record
