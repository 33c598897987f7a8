#include "frame/Frames.h"

#include "frame/Document.h"
#include "frame/Platform/Versioned.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace orrery {

namespace {

using json::Value;
using record::ReadCall;

bool Passes(ResultTest test, const Value& result) noexcept {
    switch (test) {
    case ResultTest::MustBeTrue:
        return result.asBool();
    case ResultTest::FalseRefuses:
        return result.isNull() || result.asBool();
    case ResultTest::NotTested:
        return true;
    case ResultTest::ExactBool:
        return result.isBool() && result.asBool();
    case ResultTest::IntegerNonZero:
        return result.asInt() != 0;
    case ResultTest::TextTrue:
        return EqualsFolded(result.asString(), "true");
    }
    return false;
}

const Value& Find(const ParseFrame& frame, const Value& root) noexcept {
    const Value& params = root["params"];
    switch (frame.source) {
    case Source::Table:
        return params["table"];
    case Source::Caps:
        return params["caps"];
    case Source::CapsOrParams:
        return params["caps"].isNull() ? params : params["caps"];
    case Source::Params:
        return params[frame.name];
    case Source::Top:
        return root[frame.name];
    case Source::Result:
        return root["result"];
    }
    return json::kNull;
}

// What a value of the right shape holds.
enum class Holds : std::uint8_t { Nothing, OneRecord, Elements, Members, NoList, WrongShape };

Holds ShapeOf(Take take, const Value& value) noexcept {
    const bool isArray = value.type() == json::Type::Array;
    const bool isObject = value.type() == json::Type::Object;
    switch (take) {
    case Take::One:
        return Holds::OneRecord;
    case Take::OneOrMany:
        return isArray ? Holds::Elements : isObject ? Holds::OneRecord : Holds::WrongShape;
    case Take::AnyOrMany:
        return isArray ? Holds::Elements : Holds::OneRecord;
    case Take::Many:
        return isArray ? Holds::Elements : Holds::WrongShape;
    case Take::ManyOrNone:
        return isArray ? Holds::Elements : Holds::Nothing;
    case Take::List:
        return isArray ? Holds::OneRecord : Holds::WrongShape;
    case Take::ListOrNone:
        return isArray ? Holds::OneRecord : Holds::NoList;
    case Take::ListOrLists:
        if (value.size() == 0 || !isArray) return Holds::NoList;
        // A null is an empty list, but no object.
        if (value[0].isArray()) return Holds::Elements;
        return value[0].type() == json::Type::Object ? Holds::OneRecord : Holds::NoList;
    case Take::ByMember:
        return isObject ? Holds::Members : Holds::WrongShape;
    case Take::ByMemberOrNone:
        return isObject ? Holds::Members : Holds::Nothing;
    }
    return Holds::WrongShape;
}

// The caller's records, one behind the other.
class Records {
  public:
    Records(const record::Table& table, const ParseFrame& frame, const ParseRequest& request, std::uint32_t stride,
            ReadCall& call) noexcept
        : table_(table), first_(static_cast<std::byte*>(request.buffer)), stride_(stride),
          room_(request.bufferSize / stride), clears_(frame.clearing == Clearing::Read),
          isVersioned_(frame.stride != Stride::Record), versioned_(table, frame.stride, stride), call_(call) {
        if (isVersioned_) local_ = call.parser.text().arena().Array<std::byte>(table.size);
    }

    bool isFull() const noexcept { return used_ == room_; }
    // Records walked, whether something was read into them or not.
    std::uint32_t used() const noexcept { return used_; }
    // Those that something was read into.
    std::uint32_t filled() const noexcept { return filled_; }

    // Nothing is written for a null: its record stays as the buffer was cleared.
    void Skip() noexcept { ++used_; }

    void Read(const Value& value, std::string_view memberName) noexcept {
        std::byte* const at = first_ + std::size_t{used_} * stride_;
        call_.index = used_++;
        ++filled_;
        if (isVersioned_) return ReadVersioned(value, at, memberName);
        if (clears_) std::memset(at, 0, stride_);
        record::ReadRecord(table_, value, at, call_, memberName);
    }

  private:
    // A record that ends the call stays as the caller had it.
    void ReadVersioned(const Value& value, std::byte* at, std::string_view memberName) noexcept {
        if (local_ == nullptr) return;
        const bool wasRefused = std::exchange(call_.refused, false);
        versioned_.Start(at, local_);
        record::ReadRecord(table_, value, local_, call_, memberName);
        if (!call_.refused) versioned_.Return(local_, at);
        call_.refused = call_.refused || wasRefused;
    }

    const record::Table& table_;
    std::byte* first_;
    std::uint32_t stride_;
    std::uint32_t room_;
    std::uint32_t used_ = 0;
    std::uint32_t filled_ = 0;
    bool clears_;
    bool isVersioned_;
    VersionedRecords versioned_;
    std::byte* local_ = nullptr;
    ReadCall& call_;
};

void ReadAll(Holds holds, const Value& value, bool readsNulls, Records& records) noexcept {
    switch (holds) {
    case Holds::OneRecord:
        records.Read(value, {});
        break;
    case Holds::Elements:
        for (const Value& element : value.elements()) {
            if (records.isFull()) break;
            if (element.isNull() && !readsNulls)
                records.Skip();
            else
                records.Read(element, {});
        }
        break;
    case Holds::Members:
        for (const json::Member& member : value.members()) {
            if (records.isFull()) break;
            if (!member.value.isNull()) records.Read(member.value, member.key());
        }
        break;
    case Holds::Nothing:
    case Holds::NoList:
    case Holds::WrongShape:
        break;
    }
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
    const auto setLength = [&](std::uint32_t length) {
        if (request.returnedLength != nullptr) *request.returnedLength = length;
    };
    if (frame.zeroesLength) setLength(0);
    const auto clear = [&] {
        if (frame.clearing == Clearing::Buffer) std::memset(buffer, 0, request.bufferSize);
        if (frame.clearing == Clearing::Record) std::memset(buffer, 0, stride);
    };
    clear();

    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    if (frame.parsed != nullptr) frame.parsed(buffer);
    ReadCall call{document.parser, document.root};
    if (frame.rootKeysFirst) record::ReadRootFields(table, buffer, call);
    if (!Passes(frame.result, document.root["result"])) return Outcome::Refused;

    const Value& value = Find(frame, document.root);
    Holds holds = ShapeOf(frame.takesBy != nullptr ? frame.takesBy(document.root) : frame.take, value);
    // An empty array of records says as much as no array at all.
    if (value.isNull() || (holds == Holds::Elements && value.size() == 0)) {
        switch (frame.nullValue) {
        case NullValue::Fails:
            return Outcome::NoValue;
        case NullValue::LengthZero:
            setLength(0);
            return Outcome::Done;
        case NullValue::LengthUntouched:
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
    Records records(table, frame, whole, stride, call);
    ReadAll(holds, value, frame.readsNulls, records);
    if (document.arena.failed()) {
        clear();
        return Outcome::OutOfMemory;
    }
    if (isShort) std::memcpy(buffer, whole.buffer, request.bufferSize);
    switch (frame.length) {
    case ReplyLength::OneRecord:
        setLength(stride);
        break;
    case ReplyLength::PerRecord:
        setLength(records.used() * stride);
        break;
    case ReplyLength::PerFilled:
        setLength(records.filled() * stride);
        break;
    case ReplyLength::OneOfList:
        setLength(holds == Holds::OneRecord ? stride : 0);
        break;
    case ReplyLength::Told:
        setLength(frame.lengthBy(buffer));
        break;
    case ReplyLength::None:
        break;
    }
    return call.refused ? Outcome::RowRefused : Outcome::Done;
}

Outcome ParseTableFrame(const record::Table& table, const TableFrame& frame, const ParseRequest& request) noexcept {
    if (request.bufferSize < table.size) return Outcome::BufferTooSmall;
    auto* element = static_cast<std::byte*>(request.buffer);
    if (frame.zeroBuffer) std::memset(element, 0, request.bufferSize);

    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    if (!Passes(ResultTest::MustBeTrue, document.root["result"])) return Outcome::Refused;

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

} // namespace orrery
