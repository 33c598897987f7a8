#include "frame/Frames.h"

#include "frame/Deliver.h"
#include "frame/Document.h"
#include "frame/Platform/Versioned.h"
#include "frame/record/Engine.h"

#include <cstring>

namespace orrery {

namespace {

using record::OpenObject;
using record::WriteCall;

// A text that must not show before it is whole is written here first if it is no longer than this.
constexpr std::size_t kNearbyText = std::size_t{8} << 10;

// What is written: records at a stride, in one of the forms.
struct Content {
    const record::Table& table;
    record::RecordList records;
    Form form; // One, Array, ByMember or Nothing
    std::string_view quotedKey;
    bool everyPlace = false; // of an array: also a null behind the last record that is written
};

// Records that their table holds back are null in their place; behind the last one written there is no place, and a
// list that nothing was put in is null itself.
void WriteArray(const Content& content, WriteCall& call) noexcept {
    const record::RecordList& records = content.records;
    std::uint32_t end = records.count;
    while (!content.everyPlace && end > 0 && !record::IsWritten(content.table, records[end - 1]))
        --end;
    if (end == 0) return call.out.Null();
    call.out.BeginArray();
    // A text that has no room is of no use: with tiny size words there may be tens of thousands of records.
    for (std::uint32_t i = 0; i < end && call.out.fits(); ++i) {
        const std::byte* const record = records[i];
        if (record::IsWritten(content.table, record))
            record::WriteRecord(content.table, record, call);
        else
            call.out.Null();
    }
    call.out.EndArray();
}

// The records that their table lets out, under their names; without any the value is null, as a list's is.
void WriteMembers(const Content& content, WriteCall& call) noexcept {
    for (std::uint32_t i = 0; i < content.records.count; ++i) {
        if (!record::IsWrittenByName(content.table, content.records[i])) continue;
        return record::WriteByName(content.table, content.records, call);
    }
    call.out.Null();
}

// Writes the whole text; fails when memory ran out or a row's function refused.
Outcome WriteText(const Content& content, json::TextWriter& out) noexcept {
    WrittenText written(out);
    WriteCall& call = written.call;
    OpenObject root;
    if (!content.quotedKey.empty()) {
        call.object = &root;
        call.Quoted(content.quotedKey);
    }
    switch (content.form) {
    case Form::ByMember:
        WriteMembers(content, call);
        break;
    case Form::Array:
        WriteArray(content, call);
        break;
    case Form::Nothing:
        out.Null();
        break;
    default:
        if (const std::byte* const record = content.records[0]; record::IsWritten(content.table, record))
            record::WriteRecord(content.table, record, call);
        else
            out.Null();
        break;
    }
    if (root.opened) out.EndObject();
    return written.End();
}

// Writes into the caller's buffer only what fits; a failure leaves it alone.
Outcome DeliverOrKeep(const Content& content, Capacity capacity, const PackRequest& request) noexcept {
    const std::size_t room = request.textCapacity;
    char nearby[kNearbyText];
    StackArena<16> arena;
    json::TextWriter out(nearby, sizeof nearby, arena, room);
    if (const Outcome outcome = WriteText(content, out); outcome != Outcome::Done) return outcome;
    if (arena.failed()) return Outcome::OutOfMemory;
    if (!Fits(capacity, out.length(), room)) return Outcome::TextTooLong;
    std::memcpy(request.textBuffer, out.text(), out.length());
    Terminate(capacity, out.length(), request.textBuffer, room);
    return Outcome::Done;
}

Outcome Deliver(const Content& content, const PackFrame& frame, const PackRequest& request) noexcept {
    if (frame.keepsText) return DeliverOrKeep(content, frame.capacity, request);
    return DeliverText([&](json::TextWriter& out) { return WriteText(content, out); }, frame.capacity, request);
}

// Where callers' records of another layout pass through.
struct LocalRecord {
    VersionedRecords versioned;
    std::byte* record;
};

const std::byte* TakeRecord(const void* context, const std::byte* caller) noexcept {
    const auto& local = *static_cast<const LocalRecord*>(context);
    local.versioned.Take(caller, local.record);
    return local.record;
}

} // namespace

Outcome PacketFamily(const record::Table& table, const PackFrame& frame, const PackRequest& request) noexcept {
    const auto* const first = static_cast<const std::byte*>(request.record);
    std::uint32_t stride = table.size;
    if (frame.stride != Stride::Record) {
        stride = StrideByWord(frame.stride, first, request.recordSize);
        if (stride == 0) return Outcome::RecordTooSmall;
    }
    if (frame.exactSize ? request.recordSize != stride : request.recordSize < stride) return Outcome::RecordTooSmall;
    if (frame.accepts != nullptr && !frame.accepts(first, request.recordSize)) {
        if (!frame.keepsText) std::memset(request.textBuffer, 0, request.textCapacity);
        return Outcome::NotAccepted;
    }

    Content content{table, {first, request.recordSize / stride, stride}, frame.form, frame.quotedKey};
    std::uint32_t& count = content.records.count;
    if (frame.form == Form::BareIfOne) content.form = count == 1 ? Form::One : Form::Array;
    if (frame.formBy != nullptr) content.form = frame.formBy(first, count);
    if (frame.form == Form::BareIfExact) content.form = request.recordSize == stride ? Form::One : Form::Array;
    if (content.form == Form::NoText) {
        std::memset(request.textBuffer, 0, request.textCapacity);
        return Outcome::Done;
    }
    if (content.form == Form::One) count = 1;
    const VersionedRecords versioned{table, frame.stride, stride};
    if (frame.stride == Stride::Record || versioned.areOwn(first, count)) return Deliver(content, frame, request);

    StackArena<std::size_t{4} << 10> arena;
    const LocalRecord local{versioned, arena.Array<std::byte>(table.size)};
    if (local.record == nullptr) {
        return frame.keepsText ? Outcome::OutOfMemory : LeaveClear(Outcome::OutOfMemory, request);
    }
    local.versioned.Prepare(local.record);
    content.records.take = TakeRecord;
    content.records.context = &local;
    return Deliver(content, frame, request);
}

Outcome PacketGeneric(const record::Table& table, const GenericFrame& frame, const PackRequest& request) noexcept {
    const auto* const first = static_cast<const std::byte*>(request.record);
    Content content{table, {first, 1, table.size}, Form::One, {}, true};
    std::uint32_t& count = content.records.count;
    if (frame.arrayForm) count = request.recordSize / table.size;
    if (frame.alwaysArray || count >= 2) content.form = Form::Array;
    if (count == 0) content.form = Form::Array; // no record: the text of a list that nothing was put in

    StackArena<std::size_t{4} << 10> arena;
    if (!frame.arrayForm && request.recordSize < table.size) {
        // One record is written in any event; what the caller did not hand over reads as zero.
        auto* const whole = arena.Array<std::byte>(table.size);
        if (whole == nullptr) return LeaveClear(Outcome::OutOfMemory, request);
        std::memset(whole, 0, table.size);
        std::memcpy(whole, first, request.recordSize);
        content.records.first = whole;
    }
    // What a row's function thinks of its record is not asked here, as it is not when reading: what it wrote stands.
    const auto write = [&](json::TextWriter& out) {
        const Outcome outcome = WriteText(content, out);
        return outcome == Outcome::RowRefused ? Outcome::Done : outcome;
    };
    return DeliverText(write, Capacity::Strict, request);
}

} // namespace orrery
