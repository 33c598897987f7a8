// Events as a client gets them: each delivered one is looked at inside the callback, while its record lives.
#pragma once

#include "orrery/calls.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

struct Delivered {
    std::uint32_t type;
    const void* record;
    std::uint32_t size;

    template <class R>
    const R& as() const {
        return *static_cast<const R*>(record);
    }
};

using EventVisitor = std::function<void(const Delivered&)>;

inline int32_t VisitEvent(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t, void* user) {
    (*static_cast<const EventVisitor*>(user))({type, record, size});
    return 0;
}

inline std::int32_t Decode(const std::string& text, const EventVisitor& visit) {
    return CLIENT_ParseAnalyzerEventData(text.c_str(), static_cast<std::uint32_t>(text.size()), VisitEvent,
                                         const_cast<EventVisitor*>(&visit));
}

// The codes delivered for a text, in order.
inline std::vector<std::uint32_t> CodesOf(const std::string& text) {
    std::vector<std::uint32_t> codes;
    Decode(text, [&](const Delivered& event) { codes.push_back(event.type); });
    return codes;
}

// { "Event" : [ ... ] } around one event with that "Data".
inline std::string EventText(std::string_view code, std::string_view data) {
    return "{\"Event\":[{\"Code\":\"" + std::string(code) + "\",\"Data\":" + std::string(data) + "}]}";
}

// Looks at the one event of a text; false when there was none, or more than one.
inline bool DecodeOne(std::string_view code, std::string_view data, const EventVisitor& visit) {
    int count = 0;
    Decode(EventText(code, data), [&](const Delivered& event) {
        ++count;
        visit(event);
    });
    return count == 1;
}

// A value of each JSON type, for keys that expect another.
inline constexpr const char* kValuesOfAnyType[] = {"7",           "-1.5", "true",         "\"text\"", "[]",
                                                   "[1,2,3,4,5]", "{}",   "[[],{},null]", "null"};

// An object of all keys that stand anywhere in a text, each with that value.
inline std::string EveryKeyAs(std::string_view text, const char* value) {
    std::string data = "{";
    for (std::size_t colon = text.find("\":"); colon != std::string_view::npos; colon = text.find("\":")) {
        const std::size_t start = text.rfind('"', colon - 1);
        data +=
            (data.size() > 1 ? ",\"" : "\"") + std::string(text.substr(start + 1, colon - start - 1)) + "\":" + value;
        text.remove_prefix(colon + 2);
    }
    return data + "}";
}

} // namespace orrery::test
