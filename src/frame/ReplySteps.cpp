#include "frame/ReplySteps.h"

namespace orrery {

using json::Value;

bool ResultPasses(ResultTest test, const Value& result) noexcept {
    switch (test) {
    case ResultTest::MustBeTrue:
        return result.asBool();
    case ResultTest::FalseRefuses:
        return result.isNull() || result.asBool();
    case ResultTest::NotTested:
    case ResultTest::Verdict: // looked at once the reply has been read
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

const Value& FindValue(Source source, const char* name, const Value& root) noexcept {
    const Value& params = root["params"];
    switch (source) {
    case Source::Table:
        return params["table"];
    case Source::Caps:
        return params["caps"];
    case Source::CapsOrParams:
        return params["caps"].isNull() ? params : params["caps"];
    case Source::Params:
        return params[name];
    case Source::Top:
        return root[name];
    case Source::Result:
        return root["result"];
    }
    return json::kNull;
}

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
    case Take::ListOrListsOrBlank:
        if (!isArray) return Holds::BlankRecord;
        if (value.size() == 0 || value[0].isArray()) return Holds::Elements;
        return value[0].type() == json::Type::Object ? Holds::OneRecord : Holds::BlankRecord;
    case Take::ByMember:
        return isObject ? Holds::Members : Holds::WrongShape;
    case Take::ByMemberOrNone:
        return isObject ? Holds::Members : Holds::Nothing;
    case Take::Text:
        return value.isString() ? Holds::OneRecord : Holds::WrongShape;
    }
    return Holds::WrongShape;
}

void TellLength(const ParseFrame& frame, Holds holds, const ReplyRecords& records,
                const ParseRequest& request) noexcept {
    const auto tell = [&](std::uint32_t length) {
        if (request.returnedLength != nullptr) *request.returnedLength = length;
    };
    const std::uint32_t stride = records.stride();
    switch (frame.length) {
    case ReplyLength::OneRecord:
        tell(stride);
        break;
    case ReplyLength::PerRecord:
        tell(records.used() * stride);
        break;
    case ReplyLength::PerFilled:
        tell(records.filled() * stride);
        break;
    case ReplyLength::OneOfList:
        tell(holds == Holds::OneRecord || holds == Holds::BlankRecord ? stride : 0);
        break;
    case ReplyLength::Told:
        tell(frame.lengthBy(static_cast<const std::byte*>(request.buffer)));
        break;
    case ReplyLength::None:
        break;
    }
}

void ReadAll(Holds holds, const Value& value, bool readsNulls, ReplyRecords& records) noexcept {
    switch (holds) {
    case Holds::OneRecord:
        records.Read(value, {});
        break;
    case Holds::BlankRecord:
        records.Read(json::kNull, {});
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

} // namespace orrery
