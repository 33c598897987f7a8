// Values out of a document by hand.
#pragma once

#include "bench/ByHand.h"

#include <algorithm>
#include <string_view>

namespace orrery::bench::byhand {

inline const Value* Get(const Value& object, const char* key) {
    if (!object.IsObject()) return nullptr;
    const auto member = object.FindMember(key);
    return member == object.MemberEnd() || member->value.IsNull() ? nullptr : &member->value;
}

inline std::string_view TextOf(const Value& value) {
    return value.IsString() ? std::string_view(value.GetString(), value.GetStringLength()) : std::string_view();
}

template <std::size_t N>
int CodeOf(const Value& value, const std::string_view (&names)[N], int unknown) {
    const auto text = TextOf(value);
    const auto found = std::find(names, names + N, text);
    return found == names + N ? unknown : static_cast<int>(found - names);
}

inline int NumberOf(const Value& value) {
    if (value.IsInt()) return value.GetInt();
    if (value.IsBool()) return value.GetBool() ? 1 : 0;
    return 0;
}

struct NoFlag {};

template <class Flag>
void Raise(Flag& flag) {
    flag = 1;
}
inline void Raise(const NoFlag&) {}

template <class Flag = const NoFlag>
void Int(const Value& object, const char* key, int32_t& field, Flag&& flag = {}) {
    if (const Value* value = Get(object, key)) {
        field = NumberOf(*value);
        Raise(flag);
    }
}

template <class Field, class Flag = const NoFlag>
void Bool(const Value& object, const char* key, Field& field, Flag&& flag = {}) {
    if (const Value* value = Get(object, key)) {
        field = value->IsBool() && value->GetBool() ? 1 : 0;
        Raise(flag);
    }
}

inline const Value* ParamsOf(Document& document, const char* text) {
    document.Parse<rapidjson::kParseStopWhenDoneFlag>(text);
    return document.HasParseError() ? nullptr : Get(document, "params");
}

} // namespace orrery::bench::byhand
