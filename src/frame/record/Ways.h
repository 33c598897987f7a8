// Which way a row is read and written, by its words: the node of a row that has a short way says all that it needs.
#pragma once

#include "frame/record/Nodes.h"

namespace orrery::record::build {

// How one value of a row without words is read.
constexpr Plainly PlainValue(const Field& row) {
    if (row.rank > 0 || row.cell == Cell::Pointer || row.wholeMember) return Plainly::No;
    const bool isReal = row.cell == Cell::F32 || row.cell == Cell::F64;
    switch (row.kind) {
    case Kind::Bool:
        return row.cell == Cell::I32 ? Plainly::Switch : isReal ? Plainly::Element : Plainly::Integer;
    case Kind::Int:
        return row.cell == Cell::I32 ? Plainly::Number : isReal ? Plainly::Element : Plainly::Integer;
    case Kind::UInt:
        return isReal ? Plainly::Element : Plainly::Integer;
    case Kind::Real:
        return Plainly::Fraction;
    case Kind::Text:
        return Plainly::Local;
    case Kind::RawText:
        return Plainly::Raw;
    case Kind::Names:
        return Plainly::Named;
    case Kind::Record:
        return Plainly::Inner;
    default:
        return Plainly::Element;
    }
}
// The name table or the table that a row's node refers to.
constexpr const void* ReferenceOf(const Field& row) {
    if (row.kind == Kind::Names) return row.names;
    return row.kind == Kind::Record ? static_cast<const void*>(row.table) : nullptr;
}
// A row is read the short way when its words say nothing of reading.
constexpr Plainly ReadPlainly(const Field& row) {
    ReadingWords words = row;
    words.always = false; // the node knows
    if (words != ReadingWords{} || !row.readable) return Plainly::No;
    if (row.kind == Kind::Custom) return Plainly::Function; // which knows of its list
    return static_cast<const ListWords&>(row) != ListWords{} ? Plainly::No : PlainValue(row);
}
// How a record inside another is written.
constexpr Way WayOfRecord(const Table& table) {
    if (table.isPlainObject()) return Way::Object;
    if (table.shape == Shape::Object || !table.isAlwaysWritten()) return Way::Inner;
    return table.isNumbers ? Way::Numbers : Way::Tuple;
}
// How a row is written that says nothing of writing but its codec, and that is no list.
constexpr Way WayOfCodec(const Field& row) {
    const bool isReal = row.cell == Cell::F32 || row.cell == Cell::F64;
    const bool isOwn = row.kind == row.writtenAs; // else the node has another codec, and the row no other table
    if (row.wholeMember) {
        switch (row.writtenAs) {
        case Kind::BitMask:
        case Kind::BitMaskLoose:
            return Way::Mask;
        case Kind::Schedule:
        case Kind::SectionList:
            return Way::Element;
        default:
            return Way::Row;
        }
    }
    if (WritesNoKey(row.writtenAs)) return Way::Nothing;
    switch (row.writtenAs) {
    case Kind::Bool:
        if (row.cell == Cell::I32) return row.trueAtOne ? Way::SwitchAtOne : Way::Switch;
        return isReal ? Way::Element : isOwn && !row.trueAtOne ? Way::Integer : Way::Row;
    case Kind::Int:
        if (row.cell == Cell::I32) return Way::Number;
        return isReal ? Way::Element : isOwn ? Way::Integer : Way::Row;
    case Kind::UInt:
        return isReal ? Way::Element : isOwn ? Way::Integer : Way::Row;
    case Kind::Real:
        return isReal ? Way::Fraction : Way::Row;
    case Kind::Text:
        return Way::Local;
    case Kind::RawText:
        return Way::Raw;
    case Kind::Names:
        return isOwn ? Way::Named : Way::Row;
    case Kind::Record:
        return isOwn ? WayOfRecord(*row.table) : Way::Row;
    case Kind::FullText:
    case Kind::TimeSection:
    case Kind::HolidaySchedule:
    case Kind::NetTime:
    case Kind::NetTimeEx:
    case Kind::ClockTime:
        return Way::Element;
    default:
        return Way::Row;
    }
}
constexpr bool IsMask(const Field& row) {
    return row.wholeMember && (row.writtenAs == Kind::BitMask || row.writtenAs == Kind::BitMaskLoose);
}
// What the key of a row is written by, when it is one member.
constexpr Slot GateOf(const Field& row) {
    return row.flag.exists() ? row.flag : row.condition;
}
constexpr Way WayOf(const Field& row) {
    if (!row.writable) return Way::Nothing;
    if (row.amongKeys || row.linkage || row.when != nullptr || (row.flag.exists() && row.condition.exists()))
        return Way::Row;
    if (row.kind == Kind::Custom) return Way::Function;
    const bool isList = (row.rank > 0 || row.cell == Cell::Pointer) && !row.wholeMember;
    if (isList) return row.single ? Way::Row : Way::List;
    WritingWords words = row;
    // The node knows of these.
    words.condition = {};
    words.keepsObject = false;
    words.unlessBare = false;
    if (row.writtenAs == Kind::Bool) words.trueAtOne = false;
    if (IsMask(row)) words.empty = Empty::NoKey;
    const bool isLeftOut = words.hasUnless;
    words.hasUnless = false;
    words.unless = 0;
    if (words != WritingWords{} || static_cast<const ListWords&>(row) != ListWords{}) return Way::Row;
    if (row.kind == Kind::Record && row.writtenAs != Kind::Record) return Way::Row; // its table may hold it back
    const Way way = WayOfCodec(row);
    return !isLeftOut ? way : way == Way::Number ? Way::NumberUnless : Way::Row;
}

// An array of which the words say nothing but where its elements are and how their count is told.
constexpr bool IsPlainList(const Field& row) {
    const bool isPointed = row.cell == Cell::Pointer;
    ReadingWords words = row;
    words.always = false;
    words.anyShape = false; // of values that are no array
    if (isPointed) words.zeroed = false;
    if (words.nulls == Nulls::LeaveHole) words.nulls = Nulls::Count;
    ListWords list = row;
    list.count = {};
    list.countUncapped = false;
    if (isPointed) list.capacity = {};
    if (words != ReadingWords{} || list != ListWords{} || !row.readable || row.wholeMember) return false;
    if (isPointed) return row.kind == Kind::Record && row.capacity.exists();
    return row.rank > 0 && row.kind != Kind::None && row.kind != Kind::Custom && row.kind != Kind::Supplied;
}
// The same of an array that the codec takes whole.
constexpr bool IsPlainWhole(const Field& row) {
    ReadingWords words = row;
    words.always = false;
    words.anyShape = false;
    return words == ReadingWords{} && static_cast<const ListWords&>(row) == ListWords{} && row.readable;
}
// The days of a week, which hold sections.
constexpr bool IsPlainWeek(const Field& row) {
    if (row.kind == Kind::TimeSection) return IsPlainList(row) && row.rank == 2 && row.cell != Cell::Pointer;
    return IsPlainWhole(row) && (row.kind == Kind::Schedule || (row.kind == Kind::HolidaySchedule && row.rank == 0));
}
constexpr bool IsPlainMask(const Field& row) {
    return IsPlainWhole(row) && (row.kind == Kind::BitMask || row.kind == Kind::BitMaskLoose);
}

} // namespace orrery::record::build
