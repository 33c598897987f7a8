#include "frame/record/ReadText.h"

#include "frame/record/TextMembers.h"
#include "frame/record/TextSteps.h"

#include <new>
#include <utility>

namespace orrery::record {

using json::Value;

namespace {

// ---- Lists ---------------------------------------------------------------------------------------------------------

struct Counts {
    std::uint32_t used = 0;  // elements that have a slot
    std::uint32_t size = 0;  // elements that came
    std::uint32_t holes = 0; // slots that do not count
};

const char* ReadElements(const Field& field, int level, const char* p, const Elements& room, TextCall& text,
                         Counts& counts, bool keepsEach) noexcept {
    const bool isPointed = field.cell == Cell::Pointer;
    const bool innermost = isPointed || level + 1 == field.rank;
    const std::uint32_t stride = StrideOf(field, level);
    const bool areNumbers = innermost && field.kind == Kind::Int && field.cell == Cell::I32;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        p = step.at;
        if (counts.used < room.room && !text.call.refused) {
            std::byte* const slot = room.first + std::size_t{counts.used++} * stride;
            const bool isContainer = *p == '{' || *p == '[';
            if (*p == 'n') counts.holes += field.nulls == Nulls::LeaveHole;
            std::int32_t number;
            if (isPointed && !StartPointed(field, slot, text.call)) return nullptr;
            if (keepsEach && innermost && !text.call.Keep(slot, stride)) return nullptr;
            if (innermost && isContainer && field.kind == Kind::Record) {
                p = ReadNamedText(*field.table, p, slot, text, {});
            } else if (const char* after; areNumbers && (after = json::ReadShortInt(p, text.end, number)) != nullptr) {
                Store(slot, number);
                p = after;
            } else if (innermost) {
                Value value;
                p = ReadAny(p, value, text);
                if (p == nullptr) return nullptr;
                ReadElement(field, value, slot, text.call, {});
            } else if (*p == '[') {
                Counts inside;
                p = ReadElements(field, level + 1, p, {slot, field.dims[level + 1]}, text, inside, keepsEach);
            } else {
                p = json::SkipValue(p, text.end, text.arena());
            }
        } else {
            p = json::SkipValue(p, text.end, text.arena());
        }
        if (p == nullptr) return nullptr;
        ++counts.size;
        step = json::NextEntry(p, text.end, ']');
    }
    return step.at;
}

} // namespace

const char* ReadListText(const Field& field, const char* p, std::byte* record, TextCall& text) noexcept {
    const bool isPointed = field.cell == Cell::Pointer;
    const Elements room = isPointed ? ElementsOf(field, record, 0) : Elements{record + field.offset, field.dims[0]};
    StoreSlot(field.flag, record, 1);
    Counts counts;
    const bool keepsRows = std::exchange(text.keepsRows, false);
    p = ReadElements(field, 0, p, room, text, counts, keepsRows && IsKeptByElement(field));
    text.keepsRows = keepsRows;
    if (p != nullptr) StoreSlot(field.count, record, field.countUncapped ? counts.size : counts.used - counts.holes);
    return p;
}

// A mask, bit after bit. Null for anything but so many short numbers as it has bits: some of them may be set, which
// will be set again.
const char* ReadMaskText(const Field& field, const char* p, std::byte* record, const TextCall& text) noexcept {
    std::uint32_t left = field.dims[0] * 32;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        std::int32_t number;
        p = json::ReadShortInt(step.at, text.end, number);
        if (p == nullptr || left-- == 0) return nullptr;
        SetBit(field, record + field.offset, number);
        step = json::NextEntry(p, text.end, ']');
    }
    StoreSlot(field.flag, record, 1);
    return step.at;
}

namespace {

// ---- Records -------------------------------------------------------------------------------------------------------

// A point, a box or a colour: as many whole numbers as the record has. Null for anything else.
const char* ReadNumbers(const Table& table, const char* p, std::byte* record, const TextCall& text) noexcept {
    std::int32_t numbers[kMostInTuple];
    const Node* const nodes = table.nodes + table.self.first;
    const std::uint32_t wanted = table.self.count;
    for (std::uint32_t i = 0; i < wanted; ++i) {
        if (nodes[i].readPlainly != Plainly::Number) return nullptr;
    }
    const char* after = json::ReadFewNumbers(p, text.end, wanted, numbers);
    if (after == nullptr) {
        std::uint32_t count = 0;
        json::Step step = json::FirstEntry(p, text.end, ']');
        while (step.more) {
            if (count == wanted) return nullptr;
            p = json::ReadShortInt(step.at, text.end, numbers[count++]);
            if (p == nullptr) return nullptr;
            step = json::NextEntry(p, text.end, ']');
        }
        if (step.at == nullptr || count != wanted) return nullptr;
        after = step.at;
    }
    for (std::uint32_t i = 0; i < wanted; ++i)
        Store(record + nodes[i].offset, numbers[i]);
    return after;
}

// The elements are few, and their number has to be known before the first is read.
[[gnu::noinline]] const char* ReadTuple(const Table& table, const char* p, std::byte* record, TextCall& text) noexcept {
    if (const char* const after = ReadNumbers(table, p, record, text)) return after;
    alignas(Value) std::byte room[kMostInTuple * sizeof(Value)]; // left uninitialised on purpose
    auto* const values = reinterpret_cast<Value*>(room);
    const std::uint32_t wanted = table.self.count;
    std::uint32_t count = 0;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        if (count >= wanted)
            p = json::SkipValue(step.at, text.end, text.arena());
        else if (*step.at == '{' || *step.at == '[')
            p = json::ParseAt(step.at, text.end, text.arena(), *new (values + count) Value);
        else
            p = json::ReadScalar(step.at, text.end, text.arena(), values + count);
        if (p == nullptr) return nullptr;
        ++count;
        step = json::NextEntry(p, text.end, ']');
    }
    if (step.at == nullptr || (table.shape == Shape::Tuple && count != wanted)
        || (table.shape == Shape::LongTuple && count < wanted))
        return step.at;
    for (; count < wanted; ++count)
        Value::PutNull(values + count);
    for (std::uint32_t i = 0; i < wanted; ++i) {
        const Node& node = table.nodes[table.self.first + i];
        if (node.readPlainly == Plainly::Number)
            Store(record + node.offset, values[i].asInt());
        else
            ReadElement(table.rows[node.row], values[i], record + node.offset, text.call, {});
    }
    return step.at;
}

// What afterRead touches is not kept row by row: it waits for the reply to turn out good.
[[gnu::noinline]] const char* ReadWithAsides(const Table& table, const char* p, std::byte* record,
                                             TextCall& text) noexcept {
    Asides* const asides = table.asides(record, text.arena());
    if (asides == nullptr || (text.keepsRows && !asides->runs->Keep(record, text.call))) return nullptr;
    StartFields(table, record, text.call);
    Asides* const around = std::exchange(text.asides, asides);
    p = Members(table, table.members, record, text).Read(p);
    text.asides = around;
    if (p == nullptr) return nullptr;
    if (text.keepsRows)
        asides->next = std::exchange(text.waiting, asides);
    else
        asides->finish(*asides, text.call);
    return p;
}

const char* ReadFieldsText(const Table& table, const char* p, std::byte* record, TextCall& text) noexcept {
    const bool hasShape = *p == (table.shape == Shape::Object ? '{' : '[');
    if (!hasShape || table.guarded || !IsInText(table)) {
        if (hasShape && HasAsides(table)) return ReadWithAsides(table, p, record, text);
        if (text.keepsRows) return nullptr;
        Value value;
        p = ReadAny(p, value, text);
        if (p != nullptr) ReadFields(table, value, record, text.call);
        return p;
    }
    if (table.clearsFlags || table.suppliedCount > 0) StartFields(table, record, text.call);
    p = table.shape == Shape::Object ? Members(table, table.members, record, text).Read(p)
                                     : ReadTuple(table, p, record, text);
    if (p != nullptr && table.fromRoot.count > 0) ReadRootFields(table, record, text.call);
    return p;
}

} // namespace

const char* ReadNamedText(const Table& table, const char* p, std::byte* at, TextCall& text,
                          std::string_view memberName) noexcept {
    if (table.startsWhenRead || table.memberName != nullptr) StartNamed(table, at, text.call, memberName);
    return ReadFieldsText(table, p, at, text);
}

void FinishAsides(TextCall& text) noexcept {
    text.call.keeper = nullptr;
    Asides* first = nullptr;
    while (text.waiting != nullptr) {
        Asides* const asides = std::exchange(text.waiting, text.waiting->next);
        asides->next = std::exchange(first, asides);
    }
    for (; first != nullptr; first = first->next)
        first->finish(*first, text.call);
}

const char* ReadMembersText(const Table& table, const KeptRuns& runs, const char* p, std::byte* record,
                            TextCall& text) noexcept {
    if (text.keepsRows && !runs.Keep(record, text.call)) return nullptr;
    return Members(table, table.members, record, text).Read(p);
}

const char* ReadAside(const char* p, Value& value, TextCall& text) noexcept {
    return ReadAny(p, value, text);
}

const char* ReadRecordText(const Table& table, const char* p, std::byte* record, TextCall& text,
                           std::string_view memberName) noexcept {
    if (table.hasDefaults && !table.startsWhenRead) SetDefaults(table, record);
    return ReadNamedText(table, p, record, text, memberName);
}

} // namespace orrery::record
