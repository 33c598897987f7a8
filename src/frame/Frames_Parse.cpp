#include "frame/Frames.h"

#include "frame/TextRoad.h"

#include <algorithm>
#include <cstring>

namespace orrery {

using json::Value;
using record::ReadCall;

namespace {

void SetLength(const ParseRequest& request, std::uint32_t length) noexcept {
    if (request.returnedLength != nullptr) *request.returnedLength = length;
}

void Clear(const ParseFrame& frame, const ParseRequest& request, std::uint32_t stride) noexcept {
    auto* const buffer = static_cast<std::byte*>(request.buffer);
    const std::uint32_t behind = frame.filledAt + frame.filledSize;
    if (frame.clearing == Clearing::Buffer && frame.filledSize == 0) {
        std::memset(buffer, 0, request.bufferSize);
    } else if (frame.clearing == Clearing::Buffer) {
        std::memset(buffer, 0, frame.filledAt);
        std::memset(buffer + behind, 0, request.bufferSize - behind);
    }
    if (frame.clearing == Clearing::Record) std::memset(request.buffer, 0, stride);
}

// The documents' roads are functions of their own, so that the other road has their stack.
[[gnu::noinline]] Outcome ParseFamilyDocument(const record::Table& table, const ParseFrame& frame,
                                              const ParseRequest& request, std::uint32_t stride) noexcept {
    auto* const buffer = static_cast<std::byte*>(request.buffer);
    const bool isShort = request.bufferSize < stride;
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) {
        return parsed == Outcome::NoJson && frame.takesNoJson ? Outcome::Done : parsed;
    }
    if (frame.parsed != nullptr) frame.parsed(buffer);
    ReadCall call{document.parser, document.root};
    if (frame.rootKeysFirst) record::ReadRootFields(table, buffer, call);
    if (!ResultPasses(frame.result, document.root["result"])) return Outcome::Refused;

    const Value& value = FindValue(frame.source, frame.name, document.root);
    Holds holds = ShapeOf(frame.takesBy != nullptr ? frame.takesBy(document.root) : frame.take, value);
    // An empty array of records says as much as no array at all.
    const bool isEmptyList = holds == Holds::Elements && value.size() == 0;
    if (value.isNull() || (isEmptyList && !frame.takesEmptyLists)) {
        switch (frame.nullValue) {
        case NullValue::Fails:
            return Outcome::NoValue;
        case NullValue::LengthZero:
            SetLength(request, 0);
            return Outcome::Done;
        case NullValue::LengthUntouched:
            // What stands beside the value tells of the first record all the same.
            if (!frame.rootKeysFirst && !isShort && table.fromRoot.count > 0) {
                record::ReadRootFields(table, buffer, call);
            }
            return Outcome::Done;
        case NullValue::OneRecord:
            holds = Holds::OneRecord;
            break;
        }
    }
    if (holds == Holds::WrongShape) return Outcome::WrongShape;
    if (holds == Holds::NoList) return Outcome::Done;
    if (frame.allMustFit && holds == Holds::Elements && value.size() > request.bufferSize / stride) {
        return Outcome::TooManyRecords;
    }

    ParseRequest whole = request;
    if (isShort) { // of a record of the call's own the caller takes what the buffer holds
        whole.bufferSize = stride;
        whole.buffer = document.arena.Array<std::byte>(stride);
        if (whole.buffer == nullptr) return Outcome::OutOfMemory;
        std::memset(whole.buffer, 0, stride);
    }
    ReplyRecords records(table, frame, whole, stride, call);
    ReadAll(holds, value, frame.readsNulls, records);
    if (document.arena.failed()) {
        Clear(frame, request, stride);
        return Outcome::OutOfMemory;
    }
    if (isShort) std::memcpy(buffer, whole.buffer, request.bufferSize);
    if (call.overflowed) return Outcome::TooManyRecords;
    if (frame.result == ResultTest::Verdict && !ResultPasses(ResultTest::FalseRefuses, document.root["result"])) {
        return Outcome::Refused;
    }
    TellLength(frame, holds, records, request);
    return call.refused ? Outcome::RowRefused : Outcome::Done;
}

[[gnu::noinline]] Outcome ParseGenericDocument(const record::Table& table, const GenericFrame& frame,
                                               const ParseRequest& request) noexcept {
    auto* element = static_cast<std::byte*>(request.buffer);
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    if (!ResultPasses(ResultTest::MustBeTrue, document.root["result"])) return Outcome::Refused;

    constexpr unsigned kSampleShift = 4;
    const Value& value = document.root["params"]["table"];
    const bool isArray =
        frame.arrayForm && json::ArrayDepth(value, kSampleShift, document.arena) == frame.dimension + 1;
    const std::uint32_t count = std::min(isArray ? value.size() : 1, request.bufferSize / table.size);

    ReadCall call{document.parser, document.root};
    std::uint32_t read = 0;
    for (std::uint32_t i = 0; i < count; ++i, element += table.size) {
        const Value& one = isArray ? value[i] : value;
        if (one.isNull()) continue;
        call.index = i;
        record::ReadRecord(table, one, element, call);
        read += table.size;
    }
    if (document.arena.failed()) {
        if (frame.zeroBuffer) std::memset(request.buffer, 0, request.bufferSize);
        return Outcome::OutOfMemory;
    }
    if (request.returnedLength != nullptr) *request.returnedLength += read;
    return Outcome::Done;
}

} // namespace

Outcome ParseFamily(const record::Table& table, const ParseFrame& frame, const ParseRequest& request) noexcept {
    auto* const buffer = static_cast<std::byte*>(request.buffer);
    std::uint32_t stride = table.size;
    if (frame.stride != Stride::Record) {
        stride = StrideByWord(frame.stride, buffer, request.bufferSize);
        if (stride == 0) return Outcome::BufferTooSmall;
    }
    const bool isShort = request.bufferSize < stride;
    if (frame.exactSize ? request.bufferSize != stride : isShort && !frame.anySize) return Outcome::BufferTooSmall;
    if (frame.needsText && request.text[0] == '\0') return Outcome::NoJson;
    if (frame.accepts != nullptr && !frame.accepts(buffer, request.bufferSize)) return Outcome::NotAccepted;
    if (frame.zeroesLength) SetLength(request, 0);
    Clear(frame, request, stride);
    if (const auto read = ParseFamilyText(table, frame, request, stride)) return *read;
    const Outcome outcome = ParseFamilyDocument(table, frame, request, stride);
    const bool isRead = outcome == Outcome::Done || outcome == Outcome::RowRefused;
    if (frame.filledSize != 0 && !isRead) std::memset(buffer + frame.filledAt, 0, frame.filledSize);
    return outcome;
}

Outcome ParseGeneric(const record::Table& table, const GenericFrame& frame, const ParseRequest& request) noexcept {
    if (request.bufferSize < table.size) return Outcome::BufferTooSmall;
    if (frame.zeroBuffer) std::memset(request.buffer, 0, request.bufferSize);
    if (ParseGenericText(table, frame, request)) return Outcome::Done;
    return ParseGenericDocument(table, frame, request);
}

} // namespace orrery
